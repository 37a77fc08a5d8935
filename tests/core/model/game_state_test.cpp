// The tables themselves: free unit and SHQ numbers, the strength slots by
// class, and what slot 0 of a table reads as.
#include <gtest/gtest.h>

#include "model/game_state.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class GameStateTest : public CoreTest {};

TEST_F(GameStateTest, NewUnitNumberTakesTheFirstFreeSlotAndClearsItsChain) {
  Unit[1].Regime = 1;
  Unit[2].Regime = 2;
  Unit[3].Thq = 5;
  Unit[3].Shq = 2;
  Unit[3].Boss = 7;
  Unit[3].Name = "leftover";
  Game.UnitCount = 2;
  EXPECT_EQ(NewUnitNumber(), 3);
  EXPECT_EQ(Unit[3].Thq, 0);
  EXPECT_EQ(Unit[3].Shq, 0);
  EXPECT_EQ(Unit[3].Boss, 0);
  EXPECT_EQ(Unit[3].Name, "leftover");  // the caller fills the rest
  EXPECT_EQ(Game.UnitCount, 3);
  EXPECT_TRUE(platform.Events().empty());
}

TEST_F(GameStateTest, NewUnitNumberLeavesAHigherCountAlone) {
  Unit[1].Regime = 1;
  Game.UnitCount = 40;  // unit 2 was freed below the highest number handed out
  EXPECT_EQ(NewUnitNumber(), 2);
  EXPECT_EQ(Game.UnitCount, 40);
}

TEST_F(GameStateTest, NewUnitNumberWhenAll2000AreTaken) {
  for (int u = 1; u <= kUnitCap; ++u) Unit[u].Regime = 1;
  EXPECT_EQ(NewUnitNumber(), 0);
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0],
            "You are playing a scenario that has exceed  2000 units. An error has just occured. It is not "
            "possible to create another unit either for you or for the AI.");
  EXPECT_EQ(platform.Events()[0].title, "Marrowfield");
}

TEST_F(GameStateTest, NewUnitNumberFindsTheLastSlot) {
  for (int u = 1; u < kUnitCap; ++u) Unit[u].Regime = 1;
  EXPECT_EQ(NewUnitNumber(), 2000);
  EXPECT_EQ(Game.UnitCount, 2000);
}

TEST_F(GameStateTest, NewShqNumberTakesTheLowestFreeNumberAndEmptiesItsStock) {
  Game.CurRegime = 1;
  Unit[4].Regime = 1;
  Shq[1][1].Unit = 4;  // still regime 1's
  ASSERT_EQ(EV(616), 20);
  Shq[1][2].StockType[1] = 7;
  Shq[1][2].StockQty[1] = 30;
  Shq[1][2].StockType[20] = 8;
  Shq[1][2].StockQty[20] = 3;
  Shq[1][2].StockType[21] = 9;  // beyond the stock width in use
  Shq[1][2].Carry = 60;
  Shq[1][2].CarrySea = 6;
  EXPECT_EQ(NewShqNumber(), 2);
  EXPECT_EQ(Shq[1][2].StockType[1], 0);
  EXPECT_EQ(Shq[1][2].StockQty[1], 0);
  EXPECT_EQ(Shq[1][2].StockType[20], 0);
  EXPECT_EQ(Shq[1][2].StockQty[20], 0);
  EXPECT_EQ(Shq[1][2].StockType[21], 9);
  EXPECT_EQ(Shq[1][2].Carry, 0);
  EXPECT_EQ(Shq[1][2].CarrySea, 6);
  EXPECT_EQ(Shq[1][1].Unit, 4);
}

TEST_F(GameStateTest, NewShqNumberFreesNumbersWhoseUnitWentToAnotherRegime) {
  Game.CurRegime = 1;
  Unit[4].Regime = 1;
  Unit[5].Regime = 2;  // captured or handed over
  Unit[6].Regime = 0;  // destroyed
  Unit[7].Regime = 2;
  Shq[1][1].Unit = 5;
  Shq[1][2].Unit = 4;
  Shq[1][3].Unit = 6;
  Shq[1][4].Unit = 7;
  Shq[1][1].StockQty[3] = 11;
  EXPECT_EQ(NewShqNumber(), 1);
  EXPECT_EQ(Shq[1][1].StockQty[3], 0);
  // The other numbers lost to the regime are freed on the same search.
  EXPECT_EQ(Shq[1][2].Unit, 4);
  EXPECT_EQ(Shq[1][3].Unit, 0);
  EXPECT_EQ(Shq[1][4].Unit, 0);
}

TEST_F(GameStateTest, NewShqNumberWhenAll50AreInUse) {
  Game.CurRegime = 2;
  for (int s = 1; s <= kShqCap; ++s) {
    Unit[s].Regime = 2;
    Shq[2][s].Unit = s;
  }
  EXPECT_EQ(NewShqNumber(), 0);
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0], "This is a bug. To many SHQs for this player. Game will go beserk now");
}

TEST_F(GameStateTest, StrengthSlotsByClass) {
  Unit[3].InfType = 1;
  Unit[3].InfQty = 10;
  Unit[3].MobType = 2;
  Unit[3].MobQty = 20;
  Unit[3].ArtType = 3;
  Unit[3].ArtQty = 30;
  Unit[3].ArmType = 4;
  Unit[3].ArmQty = 40;
  for (int c = 1; c <= 4; ++c) {
    EXPECT_EQ(UnitSlotType(3, c), c);
    EXPECT_EQ(UnitSlotQty(3, c), 10 * c);
  }
  UnitSlotQty(3, 3) = 33;
  EXPECT_EQ(Unit[3].ArtQty, 33);
  UnitSlotType(3, 4) = 9;
  EXPECT_EQ(Unit[3].ArmType, 9);
}

TEST_F(GameStateTest, ABadClassOrUnitReadsAsNone) {
  Unit[3].InfQty = 10;
  EXPECT_EQ(UnitSlotQty(3, 0), 0);
  EXPECT_EQ(UnitSlotQty(3, 5), 0);
  // Writing through a bad class lands in scratch, never in a unit.
  UnitSlotQty(3, 5) = 99;
  EXPECT_EQ(UnitSlotQty(3, 5), 0);
  EXPECT_EQ(Unit[3].InfQty, 10);
  EXPECT_EQ(UnitSlotType(2001, 1), 0);
  EXPECT_EQ(UnitSlotQty(-1, 1), 0);
}

TEST_F(GameStateTest, UnitZeroInAStackSlotReadsAsNoTroopsAndNoRegime) {
  world::NewMap(10, 10);
  const int r = world::AddRegime("North");
  world::AddUnit(r, 2, 2, "1st", 1, 50);
  const int empty = Hex[2][2].Unit[2];
  ASSERT_EQ(empty, 0);
  EXPECT_EQ(Unit[empty].Regime, 0);
  EXPECT_EQ(Unit[empty].Shq, 0);
  for (int c = 1; c <= 4; ++c) {
    EXPECT_EQ(UnitSlotType(empty, c), 0);
    EXPECT_EQ(UnitSlotQty(empty, c), 0);
  }
  EXPECT_EQ(Unit[Hex[2][2].Unit[1]].InfQty, 50);
}

}  // namespace
}  // namespace mf
