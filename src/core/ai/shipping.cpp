#include "ai/shipping.h"

#include <vector>

#include "ai/ai_orders.h"
#include "ai/ai_state.h"
#include "ai/sorted_list.h"
#include "ai/unit_worth.h"
#include "engine/diplomacy.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "orders/flood.h"
#include "orders/movement.h"
#include "orders/transport.h"
#include "platform/platform.h"

namespace mf {
namespace {

bool OnMap(HexXY n) { return n.x > 0 && n.y > 0; }

constexpr int kSeaWaves = 30;
constexpr const char* kWarshipsInPort = "AI cannot invade town with warships. yep this is bug.";


// A warship: a sea unit with guns of its first class.
bool Warship(long u) { return AILive(u) && Unit[u].Theater == kSeaTheater && Unit[u].InfQty > 0; }
bool WarshipIn(const HexRec& h) {
  for (int s = 1; s <= kStackSlots; ++s)
    if (Warship(h.Unit[s])) return true;
  return false;
}

struct Place {
  int x = 0, y = 0, slot = 0;
};
Place Find(int u) {
  for (int x = 1; x <= MapW(); ++x)
    for (int y = 1; y <= MapH(); ++y)
      for (int s = 1; s <= kStackSlots; ++s)
        if (Hex[x][y].Unit[s] == u) return {x, y, s};
  return {};
}

int CargoOf(int ship) {
  const long c = Unit[ship].Cargo;
  return AILive(c) ? static_cast<int>(c) : 0;
}

Long ReadinessAfterLanding(Long readiness) { return readiness - 30 < 10 ? 10 : readiness - 30; }

// Troops ashore: they stand on (x, y) and are done for the turn.
void PutAshore(int ship, int cargo, int x, int y, int slot) {
  Hex[x][y].Unit[slot] = cargo;
  Unit[ship].Cargo = 0;
  Unit[cargo].MP = 0;
  Unit[cargo].Readiness = ReadinessAfterLanding(Unit[cargo].Readiness);
}

// 2. In port, a formation strong enough to take land and light enough to
// carry goes aboard.
void Board(int ship, const Place& at) {
  HexRec& h = Hex[at.x][at.y];
  if (h.Land != kUrban) return;
  for (int s = 1; s <= kStackSlots; ++s) {
    const int u = static_cast<int>(h.Unit[s]);
    if (!AILive(u) || u == ship || Unit[u].Regime != Game.CurRegime || Unit[u].Theater != kLandTheater) continue;
    if (AIIsHq(u)) continue;
    if (UnitOccupyPower(u) <= static_cast<double>(EV(101))) continue;
    if (UnitLoadWeight(u) > ShipCapacity(ship, u)) continue;
    LeaveStack(at.x, at.y, u);
    Unit[ship].Cargo = u;
    AIMoveSound();
    AIShowChange(2);
    return;
  }
}

// 4. The shore next to the ship where the other side is weakest.
Place LandingSite(const Place& at, long other) {
  Place best;
  long least = 0;
  const int r = CurrentRegime();
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(at.x, at.y, d);
    if (!OnMap(n)) continue;
    const HexRec& h = Hex[n.x][n.y];
    if (h.Land == kSea || h.Land == kMountain || h.Work <= 0) continue;
    // Land of a regime at peace is no landing ground.
    if (h.Owner != 0 && h.Owner != r && AtPeace(r, static_cast<int>(h.Owner))) continue;
    bool near = h.Area == other;
    for (int e = 1; e <= kHexSides && !near; ++e) {
      const HexXY m = Neighbour(n.x, n.y, e);
      if (OnMap(m) && Hex[m.x][m.y].Area == other) near = true;
    }
    if (!near) continue;
    long defence = 0;
    // Units 1, 2 and 3 of the table are weighed here, where the slots'
    // units were meant: the computer has always judged shores so.
    if (h.Owner != Game.CurRegime)
      defence = AIUnitWorth(n.x, n.y, 1, 2) + AIUnitWorth(n.x, n.y, 2, 2) + AIUnitWorth(n.x, n.y, 3, 2);
    if (best.x == 0 || defence < least) {
      best = {n.x, n.y, 0};
      least = defence;
    }
  }
  return best;
}

// 5. The landing. False when warships hold the shore.
bool Land(int ship, const Place& site) {
  const int cargo = CargoOf(ship);
  if (cargo == 0 || Unit[cargo].Theater == kAirTheater) return true;
  HexRec& h = Hex[site.x][site.y];
  if (h.Owner == Game.CurRegime) {
    const int slot = FirstFreeSlot(site.x, site.y);
    if (slot != 0) PutAshore(ship, cargo, site.x, site.y, slot);
    AIShowChange(2);
    return true;
  }
  if (h.Unit[1] == 0) {
    // Nobody on the beach: it is taken at once.
    PutAshore(ship, cargo, site.x, site.y, 1);
    TakeHex(site.x, site.y);
    AIShowChange(2);
    return true;
  }
  if (WarshipIn(h)) {
    Plat().ShowMessage(kWarshipsInPort, "");
    return false;
  }
  AIWatch(site.x, site.y);
  LandingBattle(cargo, site.x, site.y);
  if (Unit[cargo].Regime == 0) {
    Unit[ship].Cargo = 0;
  } else if (h.Unit[1] == 0) {
    PutAshore(ship, cargo, site.x, site.y, 1);
    TakeHex(site.x, site.y);
  }
  // Otherwise the beach held: the survivors stay aboard.
  AIShowChange(2);
  return true;
}

}  // namespace

void AISeaField(int f, int mode) {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      Hex[x][y].Work = 0;
      Hex[x][y].Mark = 0;
    }
  }
  if (!AIValidFront(f)) return;
  const long area = mode == 1 ? AI.FrontEnemyArea[f] : AI.FrontOwnArea[f];
  if (area <= 0) return;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      if (h.Land != kUrban || h.Area != area) continue;
      h.Work = mode == 1 ? 100 : 200;
      // A port with warships in it is not where troops go ashore.
      if (mode == 1 && WarshipIn(h)) h.Work = 0;
      h.Mark = 1;
    }
  }
  AIFloodWaves(kSeaWaves, [](int x, int y, long w, std::vector<HexXY>& next) {
    const HexRec& h = Hex[x][y];
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(x, y, d);
      if (!OnMap(n)) continue;
      HexRec& nh = Hex[n.x][n.y];
      if (nh.Mark != 0 || nh.Land == kMountain) continue;
      nh.Mark = static_cast<Short>(w + 1);
      nh.Work = static_cast<Long>(Int(h.Work * 0.9));
      next.push_back(n);
    }
  });
}

void AIMoveShip(int x, int y, int slot) {
  const int ship = static_cast<int>(Hex[x][y].Unit[slot]);
  if (!AILive(ship)) return;
  AIFloodFrom(x, y, slot);
  ListClear();
  for (int tx = 1; tx <= MapW(); ++tx) {
    for (int ty = 1; ty <= MapH(); ++ty) {
      const HexRec& t = Hex[tx][ty];
      if (t.Work > 0 && t.Mark < 999) ListAdd(tx, ty, t.Work - t.Mark);
    }
  }
  const int bx = static_cast<int>(AI.ListA[1]);
  const int by = static_cast<int>(AI.ListB[1]);
  if (ValidHex(bx, by) && (bx != x || by != y)) {
    const long worth = 2L * AIUnitWorth(x, y, ship, 3);
    if (AIMoveUnitTo(x, y, slot, bx, by)) {
      Hex[bx][by].Work -= static_cast<Long>(worth);
      Hex[x][y].Work += static_cast<Long>(worth);
    }
  }
  ClearFlood();
}

bool AIShipping(int f) {
  if (!AIValidFront(f)) return true;
  const long own = AI.FrontOwnArea[f];
  const long other = AI.FrontEnemyArea[f];
  const int homeX = static_cast<int>(AI.AreaX[own]), homeY = static_cast<int>(AI.AreaY[own]);
  const int farX = static_cast<int>(AI.AreaX[other]), farY = static_cast<int>(AI.AreaY[other]);

  std::vector<int> ships;
  for (int x = 1; x <= MapW(); ++x)
    for (int y = 1; y <= MapH(); ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const long u = Hex[x][y].Unit[s];
        if (AILive(u) && Unit[u].Regime == Game.CurRegime && Unit[u].Theater == kSeaTheater && Unit[u].Front == f)
          ships.push_back(static_cast<int>(u));
      }

  for (const int ship : ships) {
    Place at = Find(ship);
    if (at.x == 0 || Unit[ship].Regime == 0) continue;
    // 1. Empty and away from home: home.
    if (CargoOf(ship) == 0 && (at.x != homeX || at.y != homeY)) {
      AISeaField(f, 2);
      AIMoveShip(at.x, at.y, at.slot);
      at = Find(ship);
    }
    // 2. Empty in port: take troops aboard.
    if (CargoOf(ship) == 0) Board(ship, at);
    const int cargo = CargoOf(ship);
    if (cargo == 0) continue;
    // 3. The other side is at peace now: the ship stands down.
    const long farOwner = ValidHex(farX, farY) ? Hex[farX][farY].Owner : 0;
    if (farOwner > 0 && AtPeace(CurrentRegime(), static_cast<int>(farOwner))) {
      Unit[ship].Front = 0;
      continue;
    }
    // 4. Sail for the other side and look for a beach.
    AISeaField(f, 1);
    AIMoveShip(at.x, at.y, at.slot);
    at = Find(ship);
    if (at.x == 0) continue;
    const Place site = LandingSite(at, other);
    if (site.x == 0) continue;
    // 5. Ashore.
    if (!Land(ship, site)) return false;
  }
  return true;
}

}  // namespace mf
