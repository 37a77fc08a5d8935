// The operations of a whole front, and what the player sees of them.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/move_all.h"
#include "ai/operations.h"
#include "ai/value_field.h"
#include "combat/battle_window.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

class OperationsTest : public OpsTest {
 protected:
  void TearDown() override {
    SetBattleWindowHook({});
    OpsTest::TearDown();
  }
  // Counts the battles and air missions fought from now on.
  void CountBattles() {
    SetBattleWindowHook([this](BattleWindowChange c) {
      if (c == BattleWindowChange::kOpened) ++battles;
    });
  }
  // A Red unit of the even land front on (1,2), about to climb to (3,2),
  // on a view 100 pixels square that puts hex x at 42 x and row y at 30 y.
  int ClimbingUnit() {
    const int f = LandFront(2);
    Rifles(red, 1, 2, 100, f);
    UI.ViewW = 100;
    UI.ViewH = 100;
    UI.ScrollMaxX = 5000;
    UI.ScrollMaxY = 5000;
    UI.RedrawRequest = 0;
    return f;
  }
  // Red on the full offensive against 140 Blue rifles on (4,2).
  int FullOffensive() {
    const int f = LandFront(4);
    Rifles(blue, 4, 2, 140, 0, "Blue Guard");
    Rifles(red, 3, 1, 100, f, "Red North");
    Rifles(red, 3, 2, 100, f, "Red South");
    return f;
  }
  int battles = 0;
};

TEST_F(OperationsTest, PenaltyAndOddsByStanceShrinkWithSupply) {
  const double penalty[5] = {40, 40, 20, 10, 0};
  const double first[5] = {1.3, 1.2, 1.1, 0.9, 0.7};
  const double second[5] = {1.5, 1.3, 1.2, 1.1, 0.9};
  for (int s = 0; s <= 4; ++s) {
    EXPECT_DOUBLE_EQ(AIPenalty(s, 1.0), penalty[s]);
    EXPECT_DOUBLE_EQ(AIOddsFirst(s, 1.0), first[s]);
    EXPECT_DOUBLE_EQ(AIOddsSecond(s, 1.0), second[s]);
    EXPECT_DOUBLE_EQ(AIPenalty(s, 0.5), penalty[s] / 2);
    EXPECT_DOUBLE_EQ(AIOddsFirst(s, 0.5), first[s] / 2);
    EXPECT_DOUBLE_EQ(AIOddsSecond(s, 0.5), second[s] / 2);
  }
}

// A quiet front: nobody to fight, and the one unit on its line cannot move.
// Two line hexes, one unit: balance 1.
TEST_F(OperationsTest, EachFrontEndsWithItsBalance) {
  const int f = LandFront(2);
  const int u = Rifles(red, 3, 2, 100, f);
  Unit[u].MP = 0;
  AIOperations();
  EXPECT_EQ(AI.FrontLineHexes[f], 2);
  EXPECT_EQ(AI.FrontLineUnits[f], 1);
  EXPECT_EQ(AI.FrontBalance[f], 1);
  ASSERT_FALSE(platform.AnalysisLines().empty());
  EXPECT_EQ(platform.AnalysisLines().back(), "AREAFRONT( 1) : 2-1=1)");
  EXPECT_EQ(Hex[3][2].Unit[1], u);
}

TEST_F(OperationsTest, AreaFrontLineShowsNegativeBalances) {
  AI.FrontCount = 12;
  AI.FrontLineHexes[12] = 3;
  AI.FrontLineUnits[12] = 5;
  AI.FrontBalance[12] = -2;
  EXPECT_EQ(AIAreaFrontLine(12), "AREAFRONT( 12) : 3-5=-2)");
}

// Full offensive at full supply (an SHQ making all the supply its town
// would give): Red attacks 140 Blue rifles at 9 against 12 in its first
// round of attacks; after that battle its attackers have no MP left.
TEST_F(OperationsTest, FullOffensiveFightsInItsFirstRound) {
  FullOffensive();
  Hex[4][2].River[1] = 1;
  Hex[4][2].Entrench[6] = 2;
  Hex[1][1].Pop = 100;
  const int shq = world::AddShq(red, 2, 1, 1, "SHQ");
  Unit[shq].GenSupply = 10;
  CountBattles();
  AIOperations();
  EXPECT_DOUBLE_EQ(AI.SupplyRatio, 1.0);
  EXPECT_GE(battles, 1);
}

// The same front on the offensive does not attack at those odds.
TEST_F(OperationsTest, OffensiveHoldsBackAtThoseOdds) {
  const int f = LandFront(3);
  Rifles(blue, 4, 2, 140, 0, "Blue Guard");
  const int north = Rifles(red, 3, 1, 100, f, "Red North");
  const int south = Rifles(red, 3, 2, 100, f, "Red South");
  Unit[north].MP = 2;  // enough to attack, not to move on
  Unit[south].MP = 2;
  Hex[4][2].River[1] = 1;
  Hex[4][2].Entrench[6] = 2;
  Hex[1][1].Pop = 100;
  const int shq = world::AddShq(red, 2, 1, 1, "SHQ");
  Unit[shq].GenSupply = 10;
  CountBattles();
  AIOperations();
  EXPECT_EQ(battles, 0);
}

// Watched moves: the map centres on the unit before it moves and the map
// is repainted.
TEST_F(OperationsTest, WatchedMoveCentresTheMap) {
  const int f = ClimbingUnit();
  Game.ShowAIMoves = kTrue;
  AIHexValues(f, 20, 1);
  AIMoveAll(f, 1);
  EXPECT_NE(Hex[3][2].Unit[1], 0);
  EXPECT_EQ(UI.ScrollX, 42);
  EXPECT_EQ(UI.ScrollY, 60);
  EXPECT_EQ(UI.RedrawRequest, 2);
}

TEST_F(OperationsTest, UnwatchedMoveLeavesTheMapAlone) {
  const int f = ClimbingUnit();
  AIHexValues(f, 20, 1);
  AIMoveAll(f, 1);
  EXPECT_NE(Hex[3][2].Unit[1], 0);
  EXPECT_EQ(UI.ScrollX, 0);
  EXPECT_EQ(UI.ScrollY, 0);
  EXPECT_EQ(UI.RedrawRequest, 0);
}

// A watched battle is shown in the battle window, which waits for OK as
// long as a person plays; an unwatched one is fought out of sight.
TEST_F(OperationsTest, WatchedBattleIsShown) {
  FullOffensive();
  Game.ShowAIMoves = kTrue;
  bool shown = false;
  SetBattleWindowHook([&](BattleWindowChange c) {
    if (c == BattleWindowChange::kOpened && TheBattleWindow().visible) shown = true;
  });
  AIOperations();
  EXPECT_TRUE(shown);
  bool waited = false;
  for (const PlatformEvent& e : platform.Events())
    if (e.kind == PlatformEvent::kDialogAction && e.title == "battle") waited = true;
  EXPECT_TRUE(waited);
}

TEST_F(OperationsTest, UnwatchedBattleIsNotShown) {
  FullOffensive();
  bool shown = false;
  int fought = 0;
  SetBattleWindowHook([&](BattleWindowChange c) {
    if (c == BattleWindowChange::kOpened) ++fought;
    if (c == BattleWindowChange::kOpened && TheBattleWindow().visible) shown = true;
  });
  AIOperations();
  EXPECT_GE(fought, 1);
  EXPECT_FALSE(shown);
}

}  // namespace
}  // namespace mf::test
