// When the computer attacks on land, worked out on the land front of the
// value field tests: the Blue hex (4,2) has Red's (3,1) on its side 1 and
// Red's (3,2) on its side 6.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/land_attack.h"
#include "ai/operations.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

class LandAttackTest : public OpsTest {
 protected:
  // 100 Blue rifles on (4,2) (defence worth 8, so Q = 1 + 8 = 9), backed by
  // a Blue stack on (5,2) (Q x 1.15 = 10.35). Red's 100 rifles on (3,1)
  // attack over a river (10 x 0.30 = 3), those on (3,2) against
  // fortifications of level 2 (10 x 0.60 = 6): A = 9.
  void RiverAndFort() {
    front = LandFront(3);
    defender = Rifles(blue, 4, 2, 100, 0, "Blue Guard");
    Rifles(blue, 5, 2, 100, 0, "Blue Reserve");
    r1 = Rifles(red, 3, 1, 100, front, "Red North");
    r2 = Rifles(red, 3, 2, 100, front, "Red South");
    Hex[4][2].River[1] = 1;
    Hex[4][2].Entrench[6] = 2;
  }
  int front = 0, defender = 0, r1 = 0, r2 = 0;
};

TEST_F(LandAttackTest, RiverAndFortificationsWeighOnTheAttack) {
  RiverAndFort();
  const AIAttackOdds odds = AIWeighAttack(4, 2);
  EXPECT_DOUBLE_EQ(odds.Q, 10.35);
  EXPECT_DOUBLE_EQ(odds.A, 9.0);
}

TEST_F(LandAttackTest, NoAttackWhenTheOddsAreNotMet) {
  RiverAndFort();
  // Offensive at full supply: 10.35 x 0.9 = 9.315 is not below 9.
  AILandAttack(front, AIOddsFirst(3, 1.0));
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
  EXPECT_EQ(Hex[4][2].Unit[1], defender);
  EXPECT_EQ(Unit[r1].MP, 6);
}

TEST_F(LandAttackTest, AttackWhenTheOddsAreMet) {
  RiverAndFort();
  // Supply at 95 in the hundred lowers the odds: 10.35 x 0.855 = 8.85 < 9.
  AILandAttack(front, AIOddsFirst(3, 0.95));
  EXPECT_TRUE(BattleLogHas("Initiating Battle"));
  EXPECT_TRUE(BattleLogHas("Red North Engages"));
  EXPECT_TRUE(BattleLogHas("Red South Engages"));
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(UI.Order.AttackOrder, 0);
}

TEST_F(LandAttackTest, WithoutRiverOrFortThePlainSumCounts) {
  RiverAndFort();
  Hex[4][2].River[1] = 0;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).A, 16.0);
  Hex[4][2].Entrench[6] = 3;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).A, 14.0);
  // Units with less than 2 MP and headquarters bring nothing.
  Unit[r2].MP = 1;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).A, 10.0);
  Unit[r2].MP = 6;
  Unit[r2].Thq = 1;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).A, 10.0);
}

TEST_F(LandAttackTest, LandscapeStrengthensTheDefence) {
  RiverAndFort();
  Hex[4][2].Land = kForest;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).Q, 9 * 1.3 * 1.15);
  Hex[4][2].Land = kUrban;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).Q, 9 * 1.6 * 1.15);
  Hex[4][2].Land = kSwamp;
  EXPECT_DOUBLE_EQ(AIWeighAttack(4, 2).Q, 9 * 1.3 * 1.15);
}

// Units of another area count in A but stay out of the battle.
TEST_F(LandAttackTest, OnlyTheFrontsOwnAreaGoesIn) {
  RiverAndFort();
  Hex[3][1].Area = 3;
  AILandAttack(front, 0.5);
  EXPECT_TRUE(BattleLogHas("Red South Engages"));
  EXPECT_FALSE(BattleLogHas("Red North Engages"));
}

TEST_F(LandAttackTest, RegimesAtPeaceAreLeftAlone) {
  RiverAndFort();
  Dip[red][blue].Relation = 1;
  Dip[blue][red].Relation = 1;
  AILandAttack(front, 0.0);
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
}

// A hex taken belongs to the first attacker's area for the rest of the turn.
TEST_F(LandAttackTest, HexTakenJoinsTheFirstAttackersArea) {
  front = LandFront(3);
  Rifles(blue, 4, 2, 2, 0, "Blue Picket");
  Rifles(red, 3, 1, 100, front, "Red North");
  Rifles(red, 3, 2, 100, front, "Red South");
  ASSERT_EQ(Hex[4][2].Area, 2);
  AILandAttack(front, 1.0);
  ASSERT_TRUE(BattleLogHas("Initiating Battle"));
  ASSERT_EQ(Hex[4][2].Owner, red);
  EXPECT_EQ(Hex[4][2].Area, 1);
}

// Full offensive at full supply: odds of 0.7 in the first round of attacks,
// 0.9 in the second. A = 9 (as above) against 140 Blue rifles alone,
// Q = 1 + 11 = 12: 9 > 8.4 attacks, 9 > 10.8 does not; nor would an
// offensive front at 0.9 in its first round.
TEST_F(LandAttackTest, FullOffensiveAttacksAtOddsAboveSevenTenthsInTheFirstRound) {
  front = LandFront(4);
  Rifles(blue, 4, 2, 140, 0, "Blue Guard");
  Rifles(red, 3, 1, 100, front, "Red North");
  Rifles(red, 3, 2, 100, front, "Red South");
  Hex[4][2].River[1] = 1;
  Hex[4][2].Entrench[6] = 2;
  const AIAttackOdds odds = AIWeighAttack(4, 2);
  ASSERT_DOUBLE_EQ(odds.Q, 12.0);
  ASSERT_DOUBLE_EQ(odds.A, 9.0);
  EXPECT_DOUBLE_EQ(AIOddsFirst(4, 1.0), 0.7);
  AILandAttack(front, AIOddsSecond(4, 1.0));
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
  AILandAttack(front, AIOddsFirst(3, 1.0));
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
  AILandAttack(front, AIOddsFirst(4, 1.0));
  EXPECT_TRUE(BattleLogHas("Initiating Battle"));
}

// No supply at all: the SHQs make nothing of what the towns would give, so
// R = 0 and every odds is 0: Red North alone over the river (A = 3) attacks
// 140 rifles (Q = 12).
TEST_F(LandAttackTest, WithoutSupplyEveryHexWithDefenceAndAttackQualifies) {
  front = LandFront(1);
  Rifles(blue, 4, 2, 140, 0, "Blue Guard");
  Rifles(red, 3, 1, 100, front, "Red North");
  Hex[4][2].River[1] = 1;
  Hex[1][1].Pop = 300;
  const int shq = world::AddShq(red, 2, 1, 1, "SHQ");
  Unit[shq].GenSupply = 0;
  AI.SupplyRatio = 0.8;
  AISupplyRatio();
  EXPECT_EQ(AI.SupplyRatio, 0.0);
  EXPECT_EQ(AIOddsFirst(1, AI.SupplyRatio), 0.0);
  AILandAttack(front, AIOddsFirst(1, AI.SupplyRatio));
  EXPECT_TRUE(BattleLogHas("Red North Engages"));
}

// The ratio: supply the SHQs make over what the towns would give (Pop over
// engine variable 201, by town), at most 1; without towns it stays.
TEST_F(LandAttackTest, SupplyRatio) {
  front = LandFront(1);
  Hex[1][1].Pop = 300;   // 30
  Hex[2][2].Pop = 95;    // 9
  Hex[5][1].Pop = 1000;  // Blue's: not counted
  const int shq = world::AddShq(red, 2, 1, 1, "SHQ");
  Unit[shq].GenSupply = 13;
  world::AddShq(blue, 6, 1, 1, "Blue SHQ");
  AISupplyRatio();
  EXPECT_DOUBLE_EQ(AI.SupplyRatio, 13.0 / 39.0);
  Unit[shq].GenSupply = 50;
  AISupplyRatio();
  EXPECT_DOUBLE_EQ(AI.SupplyRatio, 1.0);
  Hex[1][1].Pop = 0;
  Hex[2][2].Pop = 0;
  Unit[shq].GenSupply = 1;
  AISupplyRatio();
  EXPECT_DOUBLE_EQ(AI.SupplyRatio, 1.0);
}

}  // namespace
}  // namespace mf::test
