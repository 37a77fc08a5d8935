// Fortifying a hex side: the six checks, the question, the costs.
#include "control/selection.h"
#include "model/hex_geometry.h"
#include "orders/entrench.h"
#include "orgs_test_util.h"

namespace mf::test {
namespace {

class EntrenchTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
    shq = AddShq(red, 1, 1, 1, "First Army", 1000);
    thq = AddThq(red, 2, 2, shq);
    // 10 rifles of engineer skill 30: K = 300 skill points.
    unit = AddFormation(red, 5, 5, thq, 10);
    Unit[unit].MP = 4;
    n1 = Neighbour(5, 5, 1);
  }

  // "[E]ntrench" on the formation, then a left press on its neighbour in direction d.
  void Dig(int d) {
    Select(5, 5);
    ASSERT_TRUE(PressOrderButton(kBtnEntrench));
    ASSERT_EQ(UI.Order.EntrenchOrder, 1);
    const HexXY n = Neighbour(5, 5, d);
    ClickMap(n.x, n.y, kLeftButton);
  }

  int shq = 0, thq = 0, unit = 0;
  HexXY n1{};
};

TEST_F(EntrenchTest, FirstLevelForSupplyAndMovementPoints) {
  platform.QueueAnswer("yes");
  Dig(1);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Do you want to spend 250 Supply Points to build a level 1 fortification?"});
  EXPECT_EQ(Hex[5][5].Entrench[1], 1);
  EXPECT_EQ(Unit[shq].SupplyPct, 750);
  // N = 2 x 250 / 300 = 1.67 MP: 4 - 1.67 = 2.33, stored as 2.
  EXPECT_EQ(Unit[unit].MP, 2);
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_EQ(Hex[n1.x][n1.y].Mark, 999);  // the flood is forgotten
  // Only this side of this hex.
  for (int d = 2; d <= 6; ++d) EXPECT_EQ(Hex[5][5].Entrench[d], 0);
  EXPECT_EQ(Hex[n1.x][n1.y].Entrench[4], 0);
}

TEST_F(EntrenchTest, HigherLevelsCostTheirRows) {
  Hex[5][5].Entrench[2] = 1;
  Unit[unit].InfQty = 50;  // K = 1500
  platform.QueueAnswer("yes");
  Dig(2);
  EXPECT_EQ(Messages().back(), "Do you want to spend 750 Supply Points to build a level 2 fortification?");
  EXPECT_EQ(Hex[5][5].Entrench[2], 2);
  EXPECT_EQ(Unit[shq].SupplyPct, 250);
  // N = 2 x 750 / 1500 = 1: exactly 1 MP.
  EXPECT_EQ(Unit[unit].MP, 3);
}

TEST_F(EntrenchTest, LevelThreeIsTheLast) {
  Hex[5][5].Entrench[3] = 3;
  Dig(3);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Maximum level of entrenchment (level 3) is reached already."});
  EXPECT_EQ(Hex[5][5].Entrench[3], 3);
  // The order stands for another side.
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
}

TEST_F(EntrenchTest, NotEnoughEngineers) {
  Unit[unit].InfQty = 8;  // K = 240 < 250
  Dig(1);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "Only units with infantry with enough engineer skill can build fortifications. You need 250 "
                            "skill points, and you only have: 240"});
  EXPECT_EQ(Hex[5][5].Entrench[1], 0);
  EXPECT_EQ(Unit[shq].SupplyPct, 1000);
}

TEST_F(EntrenchTest, NotEnoughSupplyInTheShq) {
  Unit[shq].SupplyPct = 249;
  Dig(1);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "Not enough supply in SHQ to construct this level of entrenchment. Supply needed is 250 of "
                            "which 0 would have been penalty points for not having enough engineer skill."});
  EXPECT_EQ(Hex[5][5].Entrench[1], 0);
}

TEST_F(EntrenchTest, TheShqMayBeTheDirectBoss) {
  Unit[unit].Boss = shq;
  platform.QueueAnswer("yes");
  Dig(1);
  EXPECT_EQ(Unit[shq].SupplyPct, 750);
}

TEST_F(EntrenchTest, WithoutAnShqNothingHappens) {
  Unit[unit].Boss = 0;
  Dig(1);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Hex[5][5].Entrench[1], 0);
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
  // A THQ without an SHQ above it is no better.
  Unit[unit].Boss = thq;
  Unit[thq].Boss = 0;
  DoCancel();
  Dig(1);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(EntrenchTest, MovementPointsNeeded) {
  // N = 1.67: 1 MP is short, and the message asks for 2.
  Unit[unit].MP = 1;
  Dig(1);
  EXPECT_EQ(Messages(), std::vector<std::string>{"You need at least 2 MP to do that."});
  DoCancel();
  // K = 1000: N = 0.5, yet 0 MP is not enough, and the message asks for 1.
  Unit[unit].InfQty = 1000 / 30 + 1;  // 34 x 30 = 1020
  Unit[unit].MP = 0;
  Dig(1);
  EXPECT_EQ(Messages().back(), "You need at least 1 MP to do that.");
  DoCancel();
  // With 1 MP the work costs at least 1 MP: nothing is left.
  Unit[unit].MP = 1;
  platform.QueueAnswer("yes");
  Dig(1);
  EXPECT_EQ(Hex[5][5].Entrench[1], 1);
  EXPECT_EQ(Unit[unit].MP, 0);
}

TEST_F(EntrenchTest, NoLeavesEverythingAndTheOrderStands) {
  Dig(1);  // the question answered No
  EXPECT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Hex[5][5].Entrench[1], 0);
  EXPECT_EQ(Unit[shq].SupplyPct, 1000);
  EXPECT_EQ(Unit[unit].MP, 4);
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
  // A press on the origin ends it.
  ClickMap(5, 5, kLeftButton);
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
}

TEST_F(EntrenchTest, OnlyNeighboursCanBePicked) {
  Select(5, 5);
  ASSERT_TRUE(PressOrderButton(kBtnEntrench));
  ClickMap(8, 8, kLeftButton);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
}

TEST_F(EntrenchTest, TheButtonWantsLandInfantryOutsideAnShq) {
  Select(1, 1);
  RefreshButtons();
  EXPECT_FALSE(Buttons.order[kBtnEntrench].enabled);
  Unit[unit].InfQty = 0;
  Select(5, 5);
  RefreshButtons();
  EXPECT_FALSE(Buttons.order[kBtnEntrench].enabled);
}

TEST_F(EntrenchTest, DirectDoEntrenchOnAFormationWithoutInfantry) {
  // Reached by the routine itself (the button would be off): no infantry,
  // no skill.
  Unit[unit].InfQty = 0;
  Origin(5, 5);
  UI.Order.EntrenchOrder = 1;
  doEntrench(4);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "Only units with infantry with enough engineer skill can build fortifications. You need 250 "
                            "skill points, and you only have: 0"});
}

}  // namespace
}  // namespace mf::test
