// Small worlds for the combat suite: a 10 x 10 map of grass held by Red (1,
// the regime to move) on the west and Blue (2) on the east, at war, with
// unit types whose numbers the tests work through by hand.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "combat/attack.h"
#include "combat/battle_state.h"
#include "combat/battle_window.h"
#include "combat/losses.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "support/core_test.h"

namespace mf::test {

class CombatTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    MakeWorld();
  }

  void MakeWorld() {
    world::NewMap(10, 10);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Game.Turn = 1;
    Game.CurRegime = red;
    UI.EditMode = 0;
    // Columns 1..5 are Red's, 6..10 Blue's.
    for (int x = 1; x <= 10; ++x)
      for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = x <= 5 ? red : blue;
    MakeTypes();
    ZeroBattleTallies();
  }

  void TearDown() override {
    SetBattleWindowHook({});
    CoreTest::TearDown();
  }

  static int NewType(const std::string& name, int theater, int cls) { return world::AddType(name, theater, cls); }

  // Land: rifles, trucks, a field gun that fights in the line (range 1), a
  // long gun (range 3) and tanks. Sea: destroyers, cargo ships, carriers and
  // submarines. Air: fighters, transports, bombers. No type costs anything,
  // so losses move no experience or readiness unless a test sets a cost.
  void MakeTypes() {
    rifle = NewType("Rifles", kLandTheater, 1);
    SetAttr(rifle, {{kWeight, 10}, {kSoftAttack, 8}, {kSoftDefense, 10}, {kHardAttack, 2}, {kHardDefense, 2},
                    {kHitPoints, 40}, {kFrontsize, 1}});
    truck = NewType("Trucks", kLandTheater, 2);
    SetAttr(truck, {{kWeight, 6}, {kCarryCap, 40}, {kSoftDefense, 1}, {kHardDefense, 1}, {kHitPoints, 20},
                    {kFrontsize, 1}});
    fieldGun = NewType("Field Gun", kLandTheater, 3);
    SetAttr(fieldGun, {{kWeight, 20}, {kSoftAttack, 6}, {kSoftDefense, 3}, {kHardAttack, 4}, {kHardDefense, 2},
                       {kArtilleryAttack, 10}, {kArtilleryRange, 1}, {kHitPoints, 30}, {kFrontsize, 2}});
    longGun = NewType("Long Gun", kLandTheater, 3);
    SetAttr(longGun, {{kWeight, 30}, {kSoftDefense, 2}, {kHardDefense, 1}, {kArtilleryAttack, 20},
                      {kArtilleryRange, 3}, {kHitPoints, 30}, {kFrontsize, 2}});
    tank = NewType("Tanks", kLandTheater, 4);
    SetAttr(tank, {{kWeight, 40}, {kCarryCap, 20}, {kSoftAttack, 6}, {kSoftDefense, 8}, {kHardAttack, 10},
                   {kHardDefense, 12}, {kHitPoints, 60}, {kFrontsize, 3}});
    destroyer = NewType("Destroyers", kSeaTheater, 1);
    SetAttr(destroyer, {{kArtilleryAttack, 10}, {kArtilleryRange, 2}, {kHitPoints, 50}});
    cargoShip = NewType("Cargo Ships", kSeaTheater, 2);
    SetAttr(cargoShip, {{kCarryCap, 100}, {kHitPoints, 40}});
    carrierShip = NewType("Carriers", kSeaTheater, 3);
    SetAttr(carrierShip, {{kCarryCap, 50}, {kArtilleryAttack, 4}, {kHitPoints, 80}});
    sub = NewType("Submarines", kSeaTheater, 4);
    SetAttr(sub, {{kArtilleryAttack, 15}, {kHitPoints, 30}, {kSubskills, 50}});
    fighter = NewType("Fighters", kAirTheater, 1);
    SetAttr(fighter, {{kWeight, 5}, {kHitPoints, 20}});
    airlifter = NewType("Transports", kAirTheater, 2);
    SetAttr(airlifter, {{kWeight, 8}, {kCarryCap, 50}, {kHitPoints, 25}});
    bomber = NewType("Bombers", kAirTheater, 3);
    SetAttr(bomber, {{kWeight, 10}, {kHitPoints, 30}});
  }

  static void SetAttr(int type, std::initializer_list<std::pair<int, int>> values) {
    for (const auto& [attr, value] : values) Type[type].Attr[attr] = value;
  }

  // A unit of regime r in the first free slot of (x, y): readiness 100,
  // experience 100, no disruption, 10 MP; classes set by the helpers below.
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

  // The attackers' list as the attack order leaves it, for target (tx, ty).
  static void Target(int tx, int ty) {
    UI.OrdX = tx;
    UI.OrdY = ty;
    UI.AttackerCount = 0;
    for (int i = 0; i <= kAttackerCap; ++i) UI.AttackerX[i] = UI.AttackerY[i] = UI.AttackerSlot[i] = 0;
  }
  static void Join(int x, int y, int slot) {
    const int n = static_cast<int>(++UI.AttackerCount);
    UI.AttackerX[n] = x;
    UI.AttackerY[n] = y;
    UI.AttackerSlot[n] = slot;
  }

  static const std::vector<std::string>& Log() { return TheBattleWindow().lines; }

  // The log from the first line equal to `from` on, `count` lines (all to
  // the end when count is 0).
  static std::vector<std::string> LogFrom(const std::string& from, std::size_t count = 0) {
    const auto& log = Log();
    std::vector<std::string> out;
    std::size_t i = 0;
    while (i < log.size() && log[i] != from) ++i;
    for (; i < log.size() && (count == 0 || out.size() < count); ++i) out.push_back(log[i]);
    return out;
  }
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

  // The draws that follow a seed, for working a battle out by hand.
  static std::vector<float> DrawsAfterSeed(std::uint32_t seed, int n) {
    SeedRnd(seed);
    std::vector<float> d;
    for (int i = 0; i < n; ++i) d.push_back(Rnd());
    SeedRnd(seed);
    return d;
  }

  int red = 0, blue = 0;
  int rifle = 0, truck = 0, fieldGun = 0, longGun = 0, tank = 0;
  int destroyer = 0, cargoShip = 0, carrierShip = 0, sub = 0;
  int fighter = 0, airlifter = 0, bomber = 0;
};

}  // namespace mf::test
