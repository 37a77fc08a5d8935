// Small worlds for the air and sea suite: a 10 x 10 map of grass held by Red
// (1, the regime to move) on the west and Blue (2) on the east, at war, all
// of it in sight, with unit types whose numbers the tests work through by
// hand. No type costs anything, so a loss moves no experience or readiness
// (and takes its five draws: four chances at zero points and the fame draw)
// unless a test gives a type a cost.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "combat/air_mission.h"
#include "combat/attack.h"
#include "combat/battle_window.h"
#include "combat/losses.h"
#include "control/order_state.h"
#include "model/game_state.h"
#include "model/invariants.h"
#include "model/rnd.h"
#include "orders/transport.h"
#include "support/core_test.h"

namespace mf::test {

class AirSeaTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Game.Turn = 3;
    Game.CurRegime = red;
    Game.FogOfWar = 0;
    UI.EditMode = 0;
    for (int x = 1; x <= 10; ++x) {
      for (int y = 1; y <= 10; ++y) {
        Hex[x][y].Owner = x <= 5 ? red : blue;
        Hex[x][y].Vis = 3;
      }
    }
    MakeTypes();
    ZeroBattleTallies();
    // The battle window outlives a test; each starts with an empty log.
    TheBattleWindow().lines.clear();
  }

  void TearDown() override {
    SetBattleWindowHook({});
    CoreTest::TearDown();
  }

  static void SetAttr(int type, std::initializer_list<std::pair<int, int>> values) {
    for (const auto& [attr, value] : values) Type[type].Attr[attr] = value;
  }

  // Land: rifles, paratroops (who can jump), trucks, flak guns and tanks.
  // Sea: destroyers, cargo ships, carriers, submarines. Air: fighters,
  // transport aircraft, bombers.
  void MakeTypes() {
    rifle = world::AddType("Rifles", kLandTheater, 1);
    SetAttr(rifle, {{kWeight, 10}, {kMovementCap, 3}, {kSoftAttack, 8}, {kSoftDefense, 10}, {kHardAttack, 2},
                    {kHardDefense, 2}, {kHitPoints, 40}, {kFrontsize, 1}, {kSupplyNeed, 2}});
    para = world::AddType("Paratroops", kLandTheater, 1);
    SetAttr(para, {{kWeight, 8}, {kMovementCap, 3}, {kSoftAttack, 10}, {kSoftDefense, 8}, {kHardAttack, 2},
                   {kHardDefense, 2}, {kHitPoints, 40}, {kFrontsize, 1}, {kSupplyNeed, 2}, {kParadropCap, 1}});
    truck = world::AddType("Trucks", kLandTheater, 2);
    SetAttr(truck, {{kWeight, 6}, {kCarryCap, 40}, {kMovementCap, 6}, {kSoftDefense, 1}, {kHardDefense, 1},
                    {kHitPoints, 20}, {kFrontsize, 1}, {kSupplyNeed, 1}});
    flak = world::AddType("Flak", kLandTheater, 3);
    SetAttr(flak, {{kWeight, 20}, {kMovementCap, 2}, {kSoftDefense, 3}, {kArtilleryRange, 1}, {kAntiAirCap, 2},
                   {kHitPoints, 30}, {kFrontsize, 2}, {kSupplyNeed, 3}});
    tank = world::AddType("Tanks", kLandTheater, 4);
    SetAttr(tank, {{kWeight, 40}, {kCarryCap, 20}, {kMovementCap, 5}, {kSoftAttack, 6}, {kSoftDefense, 8},
                   {kHardAttack, 10}, {kHardDefense, 12}, {kHitPoints, 60}, {kFrontsize, 3}, {kSupplyNeed, 4}});
    destroyer = world::AddType("Destroyers", kSeaTheater, 1);
    SetAttr(destroyer, {{kMovementCap, 8}, {kArtilleryAttack, 10}, {kArtilleryRange, 2}, {kHitPoints, 50}});
    cargoShip = world::AddType("Cargo Ships", kSeaTheater, 2);
    SetAttr(cargoShip, {{kMovementCap, 6}, {kCarryCap, 100}, {kHitPoints, 40}});
    carrierShip = world::AddType("Carriers", kSeaTheater, 3);
    SetAttr(carrierShip, {{kMovementCap, 6}, {kCarryCap, 100}, {kArtilleryAttack, 4}, {kHitPoints, 80}});
    sub = world::AddType("Submarines", kSeaTheater, 4);
    SetAttr(sub, {{kMovementCap, 6}, {kArtilleryAttack, 15}, {kHitPoints, 30}, {kSubskills, 50}});
    fighter = world::AddType("Fighters", kAirTheater, 1);
    SetAttr(fighter, {{kWeight, 5}, {kMovementCap, 10}, {kSoftAttack, 4}, {kHardAttack, 2}, {kDogfight, 10},
                      {kNavalInterdict, 3}, {kHitPoints, 20}});
    airlifter = world::AddType("Transports", kAirTheater, 2);
    SetAttr(airlifter, {{kWeight, 8}, {kMovementCap, 8}, {kCarryCap, 50}, {kHitPoints, 25}});
    bomber = world::AddType("Bombers", kAirTheater, 3);
    SetAttr(bomber, {{kWeight, 10}, {kMovementCap, 8}, {kSoftAttack, 30}, {kHardAttack, 12},
                     {kNavalInterdict, 20}, {kStrategicBombing, 40}, {kHitPoints, 30}});
  }

  // A unit of regime r in the first free slot of (x, y): readiness 100,
  // experience 100, no disruption, 10 MP, full supply.
  static int Put(int r, int x, int y, const std::string& name) {
    const int u = world::AddUnit(r, x, y, name);
    if (u == 0) return 0;
    Unit[u].Experience = 100;
    Unit[u].MP = 10;
    return u;
  }
  static void Give(int u, int cls, int type, int qty) {
    UnitSlotType(u, cls) = type;
    UnitSlotQty(u, cls) = qty;
    Unit[u].Theater = Type[type].Theater;
  }
  // A unit that is nowhere on the map yet (to be put aboard a ship).
  static int Spare(int r, const std::string& name) {
    const int u = NewUnitNumber();
    Unit[u] = UnitRec{};
    Unit[u].Name = name;
    Unit[u].Regime = r;
    Unit[u].Readiness = 100;
    Unit[u].Experience = 100;
    Unit[u].MP = 10;
    Unit[u].SupplyPct = 100;
    return u;
  }

  // The registers of an order under way, as its button leaves them: the
  // origin slot, and the target selected.
  static void Origin(int x, int y, int slot) {
    UI.OrdX = x;
    UI.OrdY = y;
    UI.OrdSlot = slot;
  }
  static void Select(int x, int y, int slot) {
    UI.SelX = x;
    UI.SelY = y;
    UI.SelSlot = slot;
    int n = 0;
    while (n < kStackSlots && Hex[x][y].Unit[n + 1] != 0) ++n;
    UI.SelCount = n;
  }
  // A map where every hex is within reach at `cost`, as a flood leaves it.
  static void MarkAll(int cost) {
    for (int x = 1; x <= 10; ++x)
      for (int y = 1; y <= 10; ++y) Hex[x][y].Mark = static_cast<Short>(cost);
  }

  static const std::vector<std::string>& Log() { return TheBattleWindow().lines; }
  static bool LogHas(const std::string& line) {
    for (const auto& l : Log())
      if (l == line) return true;
    return false;
  }
  static int LogCount(const std::string& line) {
    int n = 0;
    for (const auto& l : Log())
      if (l == line) ++n;
    return n;
  }
  // The lines of the log that start with `prefix`, in order.
  static std::vector<std::string> LogLines(const std::string& prefix) {
    std::vector<std::string> out;
    for (const auto& l : Log())
      if (l.rfind(prefix, 0) == 0) out.push_back(l);
    return out;
  }

  // The draws that follow a seed, for working a mission out by hand; the
  // generator is seeded again afterwards.
  static std::vector<float> DrawsAfterSeed(std::uint32_t seed, int n) {
    SeedRnd(seed);
    std::vector<float> d;
    for (int i = 0; i < n; ++i) d.push_back(Rnd());
    SeedRnd(seed);
    return d;
  }

  int red = 0, blue = 0;
  int rifle = 0, para = 0, truck = 0, flak = 0, tank = 0;
  int destroyer = 0, cargoShip = 0, carrierShip = 0, sub = 0;
  int fighter = 0, airlifter = 0, bomber = 0;
};

// A platform that also keeps the pauses after the log lines.
class PausingPlatform : public ScriptedPlatform {
 public:
  void SleepMs(int ms) override { pauses.push_back(ms); }
  std::vector<int> pauses;
};

}  // namespace mf::test
