// Formations split on a thin line and merge on a crowded one.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/reshape.h"
#include "files/scenario_schema.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

class ReshapeTest : public OpsTest {
 protected:
  void SetUp() override {
    OpsTest::SetUp();
    front = LandFront(3);
    Regime[red].PP = 10;
    EngineVar[611].Value = 1;
    thq = world::AddThq(red, 3, 2, 0, "Red THQ");
  }
  int front = 0, thq = 0;
};

// A thin line (balance 2) and a front with far more than its weight: the
// units of the front that stand alone are listed by worth, 100 rifles
// (2250) before 50 (1000); n = CInt(Int(2 / 1.5) + 1) = 2, and every pass
// takes entry 2, so the weaker of the two is halved, and only once.
TEST_F(ReshapeTest, ThinLineSplitsEntryNOnce) {
  AI.FrontBalance[front] = 2;
  AI.FrontShare[front] = 600;
  AI.FrontWeight[front] = 100;
  const int strong = Rifles(red, 2, 1, 100, front);
  const int weak = Rifles(red, 1, 2, 50, front);
  Unit[weak].Boss = thq;
  // Not alone: not listed.
  const int paired = Rifles(red, 2, 2, 80, front);
  Rifles(red, 2, 2, 80, 0);
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[strong].InfQty, 100);
  EXPECT_EQ(Unit[paired].InfQty, 80);
  EXPECT_EQ(Unit[weak].InfQty, 25);
  const int made = static_cast<int>(Hex[1][2].Unit[2]);
  ASSERT_NE(made, 0);
  EXPECT_EQ(Unit[made].Regime, red);
  EXPECT_EQ(Unit[made].InfType, rifle);
  EXPECT_EQ(Unit[made].InfQty, 25);
  EXPECT_EQ(Unit[made].Boss, thq);
  EXPECT_EQ(Unit[made].Front, front);
  EXPECT_EQ(Hex[1][2].Unit[3], 0);
  EXPECT_EQ(Regime[red].PP, 9);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{31}));
}

// Without the share far above the weight only a unit worth more than six
// times engine variable 101 (1500) is listed: the strong one, split as
// entry 1. A garrison splits even when its balance is 0.
TEST_F(ReshapeTest, GarrisonSplitsItsStrongUnit) {
  AI.FrontStance[front] = 0;
  AI.FrontShare[front] = 100;
  AI.FrontWeight[front] = 100;
  const int strong = Rifles(red, 2, 1, 100, front);
  Rifles(red, 1, 2, 50, front);
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[strong].InfQty, 50);
  EXPECT_EQ(Unit[Hex[2][1].Unit[2]].InfQty, 50);
  EXPECT_EQ(Hex[1][2].Unit[2], 0);
}

// A THQ that is split is the boss of its other half. n = CInt(Int(1 /
// 1.5) + 1) = 1: entry 1, the THQ with 400 rifles (worth 9000), ahead of a
// single rifle (worth 0, which leaves its entry blank).
TEST_F(ReshapeTest, SplitThqIsTheBossOfItsHalf) {
  AI.FrontBalance[front] = 1;
  AI.FrontShare[front] = 600;
  AI.FrontWeight[front] = 100;
  Unit[thq].Front = front;
  Unit[thq].InfType = rifle;
  Unit[thq].InfQty = 400;
  Unit[thq].Experience = 100;
  Rifles(red, 1, 2, 1, front);
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[thq].InfQty, 200);
  EXPECT_EQ(Unit[Hex[3][2].Unit[2]].Boss, thq);
  EXPECT_EQ(Hex[1][2].Unit[2], 0);
}

// Half of one rifle is nothing: no new unit, nothing paid.
TEST_F(ReshapeTest, HalfOfOneIsNothing) {
  AI.FrontBalance[front] = 1;
  AI.FrontShare[front] = 600;
  AI.FrontWeight[front] = 100;
  const int single = Rifles(red, 1, 2, 1, front);
  AIUnitSplitMerge();
  EXPECT_EQ(Hex[1][2].Unit[2], 0);
  EXPECT_EQ(Unit[single].InfQty, 1);
  EXPECT_EQ(Regime[red].PP, 10);
}

// A crowded line, balance -3: n = CInt(|Int(-1.5)| + 1) = 3, divisor 4;
// two of 100 rifles (1000 weight each) merge under 50000 / 4.
TEST_F(ReshapeTest, CrowdedLineMergesWholeUnits) {
  AI.FrontBalance[front] = -3;
  const int a = Rifles(red, 2, 1, 100, front);
  const int b = Rifles(red, 2, 1, 100, 0);
  AIUnitSplitMerge();
  EXPECT_EQ(Hex[2][1].Unit[1], b);
  EXPECT_EQ(Hex[2][1].Unit[2], 0);
  EXPECT_EQ(Unit[b].InfQty, 200);
  EXPECT_EQ(Unit[a].Regime, 0);
}

// The size limit: 2000 together against 7000 / 4 = 1750 refuses; with a
// balance of -14, n = 8 and the divisor 2: 3500 takes them.
TEST_F(ReshapeTest, MergesStayUnderAShareOfTheLargestSize) {
  EngineVar[102].Value = 7000;
  AI.FrontBalance[front] = -3;
  const int a = Rifles(red, 2, 1, 100, front);
  const int b = Rifles(red, 2, 1, 100, 0);
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[a].InfQty, 100);
  EXPECT_EQ(Unit[b].InfQty, 100);
  AI.FrontBalance[front] = -14;
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[a].Regime, 0);
  EXPECT_EQ(Unit[b].InfQty, 200);
}

TEST_F(ReshapeTest, OnlyCompatibleUnitsOfTheFrontMerge) {
  AI.FrontBalance[front] = -3;
  const int other = world::AddType("Militia", kLandTheater, 1);
  const int a = Rifles(red, 2, 1, 100, front);
  const int b = Rifles(red, 2, 1, 100, 0);
  Unit[b].InfType = other;
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[a].Regime, red);
  EXPECT_EQ(Unit[b].InfQty, 100);
  // Neither merges a unit of another front.
  Unit[b].InfType = rifle;
  Unit[a].Front = front + 1;
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[a].Regime, red);
  EXPECT_EQ(Unit[b].InfQty, 100);
}

TEST_F(ReshapeTest, ShipsInOnePortJoinUp) {
  auto ship = [&](int qty) {
    const int s = world::AddUnit(red, 1, 1, "Ships");
    Unit[s].Theater = kSeaTheater;
    Unit[s].MobType = cargo;
    Unit[s].MobQty = qty;
    return s;
  };
  const int first = ship(2);
  const int second = ship(3);
  const int load = Rifles(red, 1, 2, 5);
  Unit[first].Cargo = load;
  Hex[1][2].Unit[1] = 0;
  AIMergeNaval();
  EXPECT_EQ(Unit[second].MobQty, 3);
  Unit[first].Cargo = 0;
  AIMergeNaval();
  EXPECT_EQ(Unit[first].Regime, 0);
  EXPECT_EQ(Unit[second].MobQty, 5);
  EXPECT_EQ(Hex[1][1].Unit[1], second);
}

// With the soft attack that occupies (rule 101) at a million, no formation
// is worth six times it: a strong one on a front that is not crowded stays
// whole. At the default (250, six times 1500) the same one is split.
TEST_F(ReshapeTest, NoFormationIsWorthSixTimesAMillion) {
  AI.FrontStance[front] = 0;
  AI.FrontShare[front] = 100;
  AI.FrontWeight[front] = 100;
  EngineVar[101].Value = kFigureCap;
  const int strong = Rifles(red, 2, 1, 100, front);
  Rifles(red, 1, 2, 50, front);
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[strong].InfQty, 100);
  EXPECT_EQ(Hex[2][1].Unit[2], 0);
  EngineVar[101].Value = 250;
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[strong].InfQty, 50);
}

}  // namespace
}  // namespace mf::test
