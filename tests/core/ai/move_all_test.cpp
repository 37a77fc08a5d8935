// Units flowing uphill on the field of their front, on the even land front
// of the value field tests (Red columns 1-3, Blue 4-6, two rows).
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/move_all.h"
#include "ai/operations.h"
#include "ai/value_field.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

using MoveAllTest = OpsTest;

// A Red unit of the front on (1,2) with 6 MP. Its own worth comes off its
// hex: (1,2) = 91 - 18 = 73. Within reach: (3,2) at 2 MP scores 147 - 6 =
// 141, the best; 147 - 73 + 18 = 92 is well above 4, so it goes there and
// takes its worth along: (3,2) 147 - 18 = 129, (1,2) 73 + 18 = 91. From
// (3,2) it would go on to (3,1) (146 - 129 + 18 = 35), but a unit moves
// once in a call.
TEST_F(MoveAllTest, LineUnitClimbsToTheLineOnce) {
  const int f = LandFront(2);
  const int u = Rifles(red, 1, 2, 100, f);
  AIHexValues(f, 20, 1);
  ASSERT_EQ(Hex[1][2].Work, 73);
  AIMoveAll(f, 1);
  EXPECT_EQ(Hex[3][2].Unit[1], u);
  EXPECT_EQ(Hex[1][2].Unit[1], 0);
  EXPECT_EQ(Hex[3][2].Work, 129);
  EXPECT_EQ(Hex[1][2].Work, 91);
  EXPECT_EQ(Unit[u].MP, 4);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{31}));
  // The flood is forgotten afterwards.
  EXPECT_EQ(Hex[3][1].Mark, 999);
}

TEST_F(MoveAllTest, OnlyUnitsOfTheClassAndTheFrontMove) {
  const int f = LandFront(2);
  const int other = Rifles(red, 1, 2, 100, f + 1);
  const int thq = world::AddThq(red, 2, 2, 0, "THQ");
  Unit[thq].Front = f;
  Unit[thq].MP = 6;
  AIHexValues(f, 20, 1);
  AIMoveAll(f, 1);
  EXPECT_EQ(Hex[1][2].Unit[1], other);
  EXPECT_EQ(Hex[2][2].Unit[1], thq);
  EXPECT_TRUE(platform.Sounds().empty());
}

// A unit standing on the line hex (3,2): 128, less its 18, and no bonus
// for an empty hex: 110. The best it sees is (3,1) at 1 MP, 146 - 3 = 143.
// It moves when 146 - Work(3,2) + 18 is above 4: at 159 it does (5), at
// 160 (4) it stays.
TEST_F(MoveAllTest, MovesOnlyWhenTheGainIsAboveFour) {
  const int f = LandFront(2);
  const int u = Rifles(red, 3, 2, 100, f);
  AIHexValues(f, 20, 1);
  ASSERT_EQ(Hex[3][2].Work, 110);
  Hex[3][2].Work = 160;
  AIMoveAll(f, 1);
  EXPECT_EQ(Hex[3][2].Unit[1], u);
  Hex[3][2].Work = 159;
  AIMoveAll(f, 1);
  EXPECT_EQ(Hex[3][1].Unit[1], u);
}

// An SHQ serves no front and moves in the SHQ pass of every front, once in
// each. Front 1 (the land front, even): the SHQ field is 1, 107, 5 | 91,
// 108, 8; from (1,2) with the flat cost of SHQ 1 the best is (2,2),
// 108 - 3 = 105, and 108 - 91 > 4. Front 2 guards area 1 with its centre
// on (2,1): 200 + 15 there, and from (2,2) it goes there: 215 - 3.
TEST_F(MoveAllTest, ShqMovesOnceInEveryFrontsTurn) {
  const int f1 = LandFront(2);
  const int f2 = Front(1, 0, 0);
  AI.AreaX[1] = 2;
  AI.AreaY[1] = 1;
  const int shq = world::AddShq(red, 1, 2, 1, "SHQ");
  Unit[shq].MP = 5;
  AIHexValues(f1, 20, 3);
  EXPECT_EQ(WorkGrid(), (std::vector<std::vector<long>>{{1, 107, 5, 0, 0, 0}, {91, 108, 8, 0, 0, 0}}));
  AIMoveAll(f1, 3);
  EXPECT_EQ(Hex[2][2].Unit[1], shq);
  EXPECT_EQ(Unit[shq].MP, 4);
  AIHexValues(f2, 20, 3);
  EXPECT_EQ(Hex[2][1].Work, 215);
  AIMoveAll(f2, 3);
  EXPECT_EQ(Hex[2][1].Unit[1], shq);
  EXPECT_EQ(Unit[shq].MP, 3);
}

// Across the water a port with its second slot taken scores 0.
TEST_F(MoveAllTest, CrowdedPortOfASeaFrontScoresNothing) {
  const int f = LandFront(2);
  AI.AreaLandBorder[1][2] = AI.AreaLandBorder[2][1] = 0;
  ASSERT_TRUE(AINoLandBorder(f));
  // Only (1,1) (the town) is worth going to, and it holds two units.
  const int u = Rifles(red, 2, 2, 100, f);
  Rifles(red, 1, 1, 1);
  Rifles(red, 1, 1, 1);
  for (int x = 1; x <= 6; ++x)
    for (int y = 1; y <= 2; ++y) Hex[x][y].Work = 0;
  Hex[1][1].Work = 500;
  AIMoveAll(f, 1);
  EXPECT_EQ(Hex[2][2].Unit[1], u);
  // On a land front it would go.
  AI.AreaLandBorder[1][2] = 3;
  AIMoveAll(f, 1);
  EXPECT_EQ(Hex[1][1].Unit[3], u);
}

}  // namespace
}  // namespace mf::test
