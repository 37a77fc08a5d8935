// What the computer player thinks a unit is worth, worked out by hand.
#include <gtest/gtest.h>

#include "ai/unit_worth.h"
#include "support/core_test.h"

namespace mf {
namespace {

using namespace test::world;

class UnitWorthTest : public test::CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    NewMap(6, 6);
    r = AddRegime("North");
    EngineVar[301].Value = 8;  // a small unit divider keeps the figures readable
    Hex[4][4].Land = kUrban;
  }
  int Typed(int theater, int cls, std::initializer_list<std::pair<int, int>> attrs) {
    const int t = AddType("t", theater, cls);
    for (auto [a, v] : attrs) Type[t].Attr[a] = v;
    return t;
  }
  int r = 0;
};

// A land unit with all four classes, an officer and some disruption:
//   a = (20 + 5) x 10 + (40 + 60) x 3 = 550, d = (15 + 5) x 10 + (30 + 50) x 3 = 440,
//   r = (10 + 50) x 4 = 240 (the Mob class counts nothing on land).
// Leadership: own level 1 + 5/10 = 1.5, M = (4.5 + 2 + 1) / 6 = 1.25, L = 1.125.
// Disruption factor: 1 - (3 x 10) / 6 / 100 = 0.95.
//   a: 550 x 90% = 495, x 80% = 396, x L = 445 (445.5), x D = 422 (422.75), / 8 = 52
//   d: 440 -> 396 -> 316 (316.8) -> 355 (355.5) -> 337 (337.25) -> 42
//   r: 240 -> 216 -> 172 (172.8) -> 193 (193.5) -> 183 (183.35) -> 22
//      (without a truncation at every step it would be 23)
// Artillery attack 50 above anti-air 10: r goes to the attack, 52 + 22 = 74.
TEST_F(UnitWorthTest, LandUnitOfAllFourClasses) {
  const int inf = Typed(0, 1, {{kSoftAttack, 20}, {kHardAttack, 5}, {kSoftDefense, 15}, {kHardDefense, 5}});
  const int mob = Typed(0, 2, {{kSoftAttack, 99}, {kSoftDefense, 99}, {kCarryCap, 50}});
  const int art = Typed(0, 3, {{kAntiAirCap, 10}, {kArtilleryAttack, 50}});
  const int arm = Typed(0, 4, {{kSoftAttack, 40}, {kHardAttack, 60}, {kSoftDefense, 30}, {kHardDefense, 50}});
  const int u = AddUnit(r, 2, 2, "1st", inf, 10);
  Unit[u].MobType = mob;
  Unit[u].MobQty = 5;
  Unit[u].ArtType = art;
  Unit[u].ArtQty = 4;
  Unit[u].ArmType = arm;
  Unit[u].ArmQty = 3;
  Unit[u].Readiness = 90;
  Unit[u].Experience = 80;
  Unit[u].Disruption = 10;
  Unit[u].Officer = 1;
  Officer[1].Land = 5;
  Officer[1].Regime = r;
  EXPECT_EQ(AIUnitWorth(2, 2, u, 1), 74);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 2), 42);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 3), 58);       // Int((74 + 42) / 2)
  EXPECT_EQ(AIUnitWorth(2, 2, u, 4), 58 * 8);   // x the unit divider
  // Anti-air guns as strong as their shells count for the defence.
  Type[art].Attr[kAntiAirCap] = 50;
  // r = 100 x 4 = 400 -> 360 -> 288 -> 324 -> 307 (307.8) -> 38
  EXPECT_EQ(AIUnitWorth(2, 2, u, 1), 52);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 2), 42 + 38);
  // A town hex changes nothing for a land unit.
  EXPECT_EQ(AIUnitWorth(4, 4, u, 2), 80);
}

TEST_F(UnitWorthTest, EachFigureIsCappedAt99) {
  const int inf = Typed(0, 1, {{kSoftAttack, 100}, {kSoftDefense, 30}});
  const int u = AddUnit(r, 2, 2, "Big", inf, 20);
  Unit[u].Experience = 100;
  // a: 2000 -> 2000 -> 2000 -> 2000 -> 2000 -> 250, capped 99; d: 600 -> 75.
  EXPECT_EQ(AIUnitWorth(2, 2, u, 1), 99);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 2), 75);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 3), 87);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 4), 87 * 8);
}

// A ship: a = artillery attack of the Inf type x 2 + subskills of the Arm type
// x 4 = 60 + 100 = 160. d: the Inf class (40 x 2) is replaced by the Mob class
// (20 x 3 = 60), the empty Art class replaces nothing, the Arm class adds
// 10 x 4: d = 100. Readiness 90, experience 80, divider 8, and neither
// leadership nor disruption:
//   a: 160 -> 144 -> 115 (115.2) -> 14;  d: 100 -> 90 -> 72 -> 9.
TEST_F(UnitWorthTest, ShipAtSeaAndInPort) {
  const int war = Typed(1, 1, {{kArtilleryAttack, 30}, {kHitPoints, 40}});
  const int cargo = Typed(1, 2, {{kHitPoints, 20}});
  const int carrier = Typed(1, 3, {{kHitPoints, 500}});
  const int sub = Typed(1, 4, {{kSubskills, 25}, {kHitPoints, 10}, {kArtilleryAttack, 70}});
  Hex[2][2].Land = kSea;
  const int u = AddUnit(r, 2, 2, "Fleet", war, 2);
  Unit[u].Theater = kSeaTheater;
  Unit[u].MobType = cargo;
  Unit[u].MobQty = 3;
  Unit[u].ArtType = carrier;  // a type but no ships of it
  Unit[u].ArmType = sub;
  Unit[u].ArmQty = 4;
  Unit[u].Readiness = 90;
  Unit[u].Experience = 80;
  Unit[u].Disruption = 50;
  EXPECT_EQ(AIUnitWorth(2, 2, u, 1), 14);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 2), 9);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 3), 11);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 4), 88);
  // In port the same ships are no defence at all.
  EXPECT_EQ(AIUnitWorth(4, 4, u, 1), 14);
  EXPECT_EQ(AIUnitWorth(4, 4, u, 2), 0);
  EXPECT_EQ(AIUnitWorth(4, 4, u, 3), 7);
  // With carriers aboard, they replace the cargo ships: d = 500 + 40 = 540
  // -> 486 -> 388 (388.8) -> 48.
  Unit[u].ArtQty = 1;
  EXPECT_EQ(AIUnitWorth(2, 2, u, 2), 48);
}

// An air unit: a = dogfight 30 x 2 + 5 x 2 + 10 x 3 = 100 (the Arm class has
// no dogfight share). d from strategic bombing: Inf 0, replaced by Mob 0,
// replaced by Art 40 x 3 = 120, plus Arm 20 x 1 = 140. Readiness 100,
// experience 50: a 100 -> 50 -> 6; d 140 -> 70 -> 8.
TEST_F(UnitWorthTest, AirUnit) {
  const int fighter = Typed(2, 1, {{kDogfight, 30}});
  const int transport = Typed(2, 2, {{kDogfight, 5}});
  const int bomber = Typed(2, 3, {{kDogfight, 10}, {kStrategicBombing, 40}});
  const int rocket = Typed(2, 4, {{kDogfight, 90}, {kStrategicBombing, 20}});
  const int u = AddUnit(r, 4, 4, "Wing", fighter, 2);
  Unit[u].Theater = kAirTheater;
  Unit[u].MobType = transport;
  Unit[u].MobQty = 2;
  Unit[u].ArtType = bomber;
  Unit[u].ArtQty = 3;
  Unit[u].ArmType = rocket;
  Unit[u].ArmQty = 1;
  Unit[u].Experience = 50;
  EXPECT_EQ(AIUnitWorth(4, 4, u, 1), 6);
  EXPECT_EQ(AIUnitWorth(4, 4, u, 2), 8);  // a town does not matter to aircraft
  EXPECT_EQ(AIUnitWorth(4, 4, u, 3), 7);
  EXPECT_EQ(AIUnitWorth(4, 4, u, 4), 56);
}

TEST_F(UnitWorthTest, NoRegimeOrAnotherKindIsWorthNothing) {
  const int inf = Typed(0, 1, {{kSoftAttack, 100}, {kSoftDefense, 100}});
  const int u = AddUnit(r, 2, 2, "1st", inf, 5);
  EXPECT_GT(AIUnitWorth(2, 2, u, 3), 0);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 0), 0);
  EXPECT_EQ(AIUnitWorth(2, 2, u, 5), 0);
  EXPECT_EQ(AIUnitWorth(2, 2, 0, 1), 0);
  EXPECT_EQ(AIUnitWorth(2, 2, kUnitCap + 1, 1), 0);
  Unit[u].Regime = 0;
  EXPECT_EQ(AIUnitWorth(2, 2, u, 1), 0);
}

}  // namespace
}  // namespace mf
