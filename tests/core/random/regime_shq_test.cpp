// A regime's SHQ made in one stroke: for the start towns of a new random
// game and for the towns where the computer founds a new staff.
#include "orders/regime_shq.h"

#include "model/capacity.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class RegimeShqTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Regime[red].HexSprite = 4;
    Regime[blue].HexSprite = 9;
    Game.PeopleCount = 1;
    People[1].FirstName[1] = "Anna";
    People[1].LastName[1] = "Stone";
    Regime[red].OwnPeople = 1;
    Regime[red].PortraitSet = 1;
    Regime[blue].OwnPeople = 1;
    Regime[blue].PortraitSet = 1;
    for (int p = 1; p <= 10; ++p) OfficerPicSet[p] = 1;
    Hex[3][4].Land = kUrban;
    Hex[3][4].UrbanName = "Glasgow";
    Hex[3][4].Owner = red;
  }
  int red = 0, blue = 0;
};

TEST_F(RegimeShqTest, TheNameIsShqAndTheTownCutToSixteen) {
  EXPECT_EQ(RegimeShqName("Glasgow"), "SHQ Glasgow");
  EXPECT_EQ(RegimeShqName("Emerald City"), "SHQ Emerald City");     // exactly 16
  EXPECT_EQ(RegimeShqName("Emerald Cityscape"), "SHQ Emerald City");  // 21 cut to 16
  EXPECT_EQ(RegimeShqName(""), "SHQ ");
}

TEST_F(RegimeShqTest, MadeInTheGivenSlotWithEveryFigureZero) {
  Game.CurRegime = 0;
  const int u = MakeRegimeShq(red, 3, 4, 1);
  ASSERT_EQ(u, 1);
  EXPECT_EQ(Hex[3][4].Unit[1], 1);
  const UnitRec& un = Unit[u];
  EXPECT_EQ(un.Name, "SHQ Glasgow");
  EXPECT_EQ(un.Regime, red);
  EXPECT_EQ(un.Shq, 1);
  EXPECT_EQ(un.Thq, 0);
  EXPECT_EQ(un.Boss, 0);
  EXPECT_EQ(un.CounterPic, 4 + 240);
  EXPECT_EQ(un.Theater, kLandTheater);
  EXPECT_EQ(un.MP, 0);
  EXPECT_EQ(un.Readiness, 0);
  EXPECT_EQ(un.Experience, 0);
  EXPECT_EQ(un.Disruption, 0);
  EXPECT_EQ(un.SupplyPct, 0);
  EXPECT_EQ(un.InfQty + un.MobQty + un.ArtQty + un.ArmQty, 0);
  EXPECT_EQ(un.InfType + un.MobType + un.ArtType + un.ArmType, 0);
  EXPECT_EQ(Shq[red][1].Unit, u);
  // Its officer: a regime's officer in command, not in the pool.
  ASSERT_EQ(un.Officer, 1);
  EXPECT_EQ(Officer[1].Regime, red);
  EXPECT_EQ(Officer[1].InPool, 0);
  EXPECT_EQ(Officer[1].Name, "Anna Stone");
  // The current regime is as it was, and nothing was said or charged.
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Regime[red].PP, 0);
  EXPECT_TRUE(Messages().empty());
  // The owner and the town's production are the caller's.
  EXPECT_EQ(Hex[3][4].ProdSHQ, 0);
}

TEST_F(RegimeShqTest, SlotZeroTakesTheFirstFreeSlotAndTheNextShqNumber) {
  const int a = MakeRegimeShq(red, 3, 4, 0);
  Game.CurRegime = blue;
  const int b = MakeRegimeShq(red, 3, 4, 0);
  EXPECT_EQ(Game.CurRegime, blue);
  ASSERT_NE(a, 0);
  ASSERT_NE(b, 0);
  EXPECT_EQ(Hex[3][4].Unit[1], a);
  EXPECT_EQ(Hex[3][4].Unit[2], b);
  EXPECT_EQ(Unit[a].Shq, 1);
  EXPECT_EQ(Unit[b].Shq, 2);
  EXPECT_EQ(Shq[red][2].Unit, b);
  // Blue's SHQ numbers are its own.
  const int c = MakeRegimeShq(blue, 3, 4, 0);
  EXPECT_EQ(Unit[c].Shq, 1);
  EXPECT_EQ(Unit[c].CounterPic, 9 + 240);
  EXPECT_EQ(Hex[3][4].Unit[3], c);
  // Now the hex is full.
  EXPECT_EQ(MakeRegimeShq(blue, 3, 4, 0), 0);
}

TEST_F(RegimeShqTest, ATakenSlotOrAHoleInTheStackRefuses) {
  const int other = world::AddUnit(red, 3, 4, "Guard");
  EXPECT_EQ(MakeRegimeShq(red, 3, 4, 1), 0);  // taken
  EXPECT_EQ(MakeRegimeShq(red, 3, 4, 3), 0);  // slot 2 empty below it
  EXPECT_EQ(MakeRegimeShq(red, 3, 4, 4), 0);  // no such slot
  EXPECT_EQ(MakeRegimeShq(red, 3, 4, -1), 0);
  EXPECT_EQ(Hex[3][4].Unit[1], other);
  EXPECT_EQ(Hex[3][4].Unit[2], 0);
  EXPECT_EQ(Shq[red][1].Unit, 0);
  const int u = MakeRegimeShq(red, 3, 4, 2);
  EXPECT_EQ(Hex[3][4].Unit[2], u);
}

TEST_F(RegimeShqTest, NoRegimeOrNoHexMakesNothing) {
  EXPECT_EQ(MakeRegimeShq(0, 3, 4, 1), 0);
  EXPECT_EQ(MakeRegimeShq(kRegimeCap + 1, 3, 4, 1), 0);
  EXPECT_EQ(MakeRegimeShq(red, 11, 4, 1), 0);
  EXPECT_EQ(MakeRegimeShq(red, 0, 0, 1), 0);
  EXPECT_EQ(Unit[1].Regime, 0);
}

TEST_F(RegimeShqTest, NoFreeUnitNumberGivesZeroAndTheSearchesWords) {
  for (int u = 1; u <= kUnitCap; ++u) Unit[u].Regime = blue;
  EXPECT_EQ(MakeRegimeShq(red, 3, 4, 1), 0);
  EXPECT_EQ(Hex[3][4].Unit[1], 0);
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0],
            "You are playing a scenario that has exceed  2000 units. An error has just occured. It is not possible "
            "to create another unit either for you or for the AI.");
}

TEST_F(RegimeShqTest, NoFreeShqNumberGivesZeroAndLeavesTheUnitFree) {
  for (int s = 1; s <= kShqCap; ++s) {
    const int u = world::AddShq(red, 5, 5, s, "Old");
    // Three to a hex: move them off the map's stacks, they still count as red's.
    Hex[5][5].Unit[1] = Hex[5][5].Unit[2] = Hex[5][5].Unit[3] = 0;
    ASSERT_EQ(Unit[u].Shq, s);
  }
  const int before = static_cast<int>(Game.UnitCount);
  EXPECT_EQ(MakeRegimeShq(red, 3, 4, 1), 0);
  EXPECT_EQ(Hex[3][4].Unit[1], 0);
  EXPECT_EQ(Unit[before + 1].Regime, 0);
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0], "This is a bug. To many SHQs for this player. Game will go beserk now");
}

}  // namespace
}  // namespace mf::test
