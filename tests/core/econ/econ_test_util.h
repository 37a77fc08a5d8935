// Fixture of the economy's tests: small maps where every hex's landscape
// and owner is set by hand, and helpers for HQs, formations and towns.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "engine/production.h"
#include "engine/recovery.h"
#include "engine/supply.h"
#include "engine/supply_flood.h"
#include "model/game_state.h"
#include "model/invariants.h"
#include "orders/flood.h"
#include "orders/move_allowance.h"
#include "support/core_test.h"

namespace mf::test {

// The route data of one hex after a supply flood, for comparing in one go.
struct Route {
  int mark, sea, land, portX, portY;
  bool operator==(const Route&) const = default;
};
inline std::ostream& operator<<(std::ostream& os, const Route& r) {
  return os << "{mark " << r.mark << ", sea " << r.sea << ", land " << r.land << ", port " << r.portX << ","
            << r.portY << "}";
}

class EconTest : public CoreTest {
 protected:
  // A w x h map of grass that nobody owns, and regimes named as given, all
  // human and at peace with each other, so that land changes hands only
  // where a test says so.
  void MakeWorld(int w, int h, std::vector<std::string> names) {
    world::NewMap(w, h);
    for (const auto& n : names) world::AddRegime(n);
    for (int a = 1; a <= Game.RegimeCount; ++a)
      for (int b = 1; b <= Game.RegimeCount; ++b)
        if (a != b) Dip[a][b].Relation = 1;
    Game.CurRegime = 1;
    Game.Turn = 1;
    UI.EditMode = 0;
  }

  // Hexes (x1..x2, y) get a landscape and an owner.
  static void Row(int y, int x1, int x2, int land, int owner) {
    for (int x = x1; x <= x2; ++x) {
      Hex[x][y].Land = land;
      Hex[x][y].Owner = owner;
    }
  }
  static void Put(int x, int y, int land, int owner) {
    Hex[x][y].Land = land;
    Hex[x][y].Owner = owner;
  }
  static void OwnAll(int owner) {
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) Hex[x][y].Owner = owner;
  }

  // A land type of the given class with its numbers.
  static int LandType(const std::string& name, int cls, int weight, int carry, int move, int need, int cost = 100) {
    const int t = world::AddType(name, kLandTheater, cls);
    Type[t].Attr[kWeight] = weight;
    Type[t].Attr[kCarryCap] = carry;
    Type[t].Attr[kMovementCap] = move;
    Type[t].Attr[kSupplyNeed] = need;
    Type[t].Cost = cost;
    return t;
  }

  // An SHQ of regime r with the given number, standing on (x, y).
  static int AddShq(int r, int x, int y, int number, const std::string& name = "SHQ") {
    return world::AddShq(r, x, y, number, name);
  }
  static int AddThq(int r, int x, int y, int boss, const std::string& name = "THQ") {
    return world::AddThq(r, x, y, boss, name);
  }
  // A land formation of `qty` pieces of type t under `boss`.
  static int AddFormation(int r, int x, int y, int boss, int t = 0, int qty = 0, const std::string& name = "Formation") {
    const int u = world::AddUnit(r, x, y, name, t, qty);
    Unit[u].Boss = boss;
    Unit[u].SupplyPct = 0;  // as the driver's sweep leaves it
    return u;
  }
  // A town of regime r delivering to SHQ unit shq.
  static void AddTown(int x, int y, int r, int pop, int shq, int prod = 0) {
    Hex[x][y].Land = kUrban;
    Hex[x][y].Owner = r;
    Hex[x][y].Pop = pop;
    Hex[x][y].ProdSHQ = shq;
    Hex[x][y].Prod = prod;
  }

  // Runs the supply flood from the unit in (x, y, slot).
  static void FloodFrom(int x, int y, int slot = 1, bool seaAllowed = true) {
    UI.OrdX = x;
    UI.OrdY = y;
    UI.OrdSlot = slot;
    ClearFlood();
    SupplyFlood(seaAllowed);
  }

  static Route RouteAt(int x, int y) {
    const HexRec& h = Hex[x][y];
    return {h.Mark, h.PathSea, h.PathLand, h.PathPortX, h.PathPortY};
  }
};

}  // namespace mf::test
