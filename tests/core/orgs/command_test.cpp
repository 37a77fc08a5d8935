// Change of command, disbanding and renaming.
#include "model/invariants.h"
#include "orders/command.h"
#include "orders/new_units.h"
#include "orgs_test_util.h"
#include "view/counter.h"

namespace mf::test {
namespace {

class CommandTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
    shq = AddShq(red, 1, 1, 1, "First Army");
    thq = AddThq(red, 3, 3, shq, "Northern Group");
    thq2 = AddThq(red, 6, 6, shq, "Southern Group");
    unit = AddFormation(red, 4, 4, 0, 100, "1st Bataljon");
    Unit[unit].Readiness = 60;
    Unit[unit].Disruption = 10;
    Unit[unit].MP = 0;
  }

  // "[C]hange Command" on the formation at (x, y), then a press on (tx, ty)
  // and the do button.
  void ChangeBoss(int x, int y, int tx, int ty, int tslot = 1) {
    Select(x, y);
    ASSERT_TRUE(PressOrderButton(kBtnCommand));
    Select(tx, ty, tslot);
    DoButton();
  }

  int shq = 0, thq = 0, thq2 = 0, unit = 0;
};

TEST_F(CommandTest, FirstBossCostsAFifthOfReadinessButNoDisruption) {
  ChangeBoss(4, 4, 3, 3);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Unit[unit].Boss, thq);
  EXPECT_EQ(Unit[unit].Readiness, 48);  // Int(60 x 0.8)
  EXPECT_EQ(Unit[unit].Disruption, 10);
  EXPECT_EQ(Unit[unit].MP, 0);
  EXPECT_EQ(UI.Order.BossOrder, 0);
  // The selection is back on the formation, and it wears its THQ's badge.
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.SelY, 4);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(Unit[unit].ThqBadge, Unit[thq].ThqBadge);
  EXPECT_GT(Unit[unit].ThqBadge, 0);
  EXPECT_FALSE(Buttons.doButton.enabled);
}

TEST_F(CommandTest, NextBossCostsReadinessAndDisruption) {
  Unit[unit].Boss = thq;
  ChangeBoss(4, 4, 6, 6);
  EXPECT_EQ(Unit[unit].Boss, thq2);
  EXPECT_EQ(Unit[unit].Readiness, 48);
  EXPECT_EQ(Unit[unit].Disruption, 60);  // 10 + 50
  // Disruption stops at 100; readiness 55 falls to Int(44.0) = 44.
  Unit[unit].Disruption = 70;
  Unit[unit].Readiness = 55;
  ChangeBoss(4, 4, 3, 3);
  EXPECT_EQ(Unit[unit].Disruption, 100);
  EXPECT_EQ(Unit[unit].Readiness, 44);
  // Readiness 7: Int(5.6) = 5.
  Unit[unit].Readiness = 7;
  ChangeBoss(4, 4, 6, 6);
  EXPECT_EQ(Unit[unit].Readiness, 5);
}

TEST_F(CommandTest, AUnitWithMovementPointsIsAskedFirst) {
  Unit[unit].MP = 2;
  Select(4, 4);
  ASSERT_TRUE(PressOrderButton(kBtnCommand));  // the question answered No
  EXPECT_EQ(Messages(), std::vector<std::string>{"Unit still has Movement Points. Are you sure?"});
  EXPECT_EQ(UI.Order.BossOrder, 0);
  platform.QueueAnswer("yes");
  ASSERT_TRUE(PressOrderButton(kBtnCommand));
  EXPECT_EQ(UI.Order.BossOrder, 1);
  Select(3, 3);
  DoButton();
  EXPECT_EQ(Unit[unit].Boss, thq);
  EXPECT_EQ(Unit[unit].MP, 0);
}

TEST_F(CommandTest, AFormationTakesOnlyATHQ) {
  ChangeBoss(4, 4, 1, 1);  // the SHQ
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "Not possible or operation canceled. Only formations can be assigned to THQs. Only THQs to "
                            "SHQS."});
  EXPECT_EQ(Unit[unit].Boss, 0);
  EXPECT_EQ(Unit[unit].Readiness, 60);
  // The order stands: another choice may follow.
  EXPECT_EQ(UI.Order.BossOrder, 1);
  Select(3, 3);
  DoButton();
  EXPECT_EQ(Unit[unit].Boss, thq);
}

TEST_F(CommandTest, ATHQTakesOnlyAnSHQ) {
  const int shq2 = AddShq(red, 8, 8, 2, "Second Army");
  Unit[thq].Readiness = 100;
  const int f = AddFormation(red, 3, 4, thq);
  ChangeBoss(3, 3, 6, 6);  // another THQ
  EXPECT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Unit[thq].Boss, shq);
  DoCancel();
  EXPECT_EQ(UI.Order.BossOrder, 0);
  ChangeBoss(3, 3, 8, 8);
  EXPECT_EQ(Unit[thq].Boss, shq2);
  EXPECT_EQ(Unit[thq].Disruption, 50);
  EXPECT_EQ(Unit[thq].Readiness, 80);
  // The formation under it is drawn again, with its THQ's badge.
  EXPECT_EQ(Unit[f].ThqBadge, Unit[thq].ThqBadge);
}

TEST_F(CommandTest, TheSelfOrNobodyEndsSilently) {
  ChangeBoss(4, 4, 4, 4);
  EXPECT_EQ(UI.Order.BossOrder, 0);
  EXPECT_EQ(Unit[unit].Readiness, 60);
  ChangeBoss(4, 4, 9, 9);  // an empty hex
  EXPECT_EQ(UI.Order.BossOrder, 0);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(CommandTest, ABossOnForeignGroundEndsTheOrder) {
  Hex[3][3].Owner = blue;
  ChangeBoss(4, 4, 3, 3);
  EXPECT_EQ(UI.Order.BossOrder, 0);
  EXPECT_EQ(Unit[unit].Boss, 0);
  EXPECT_EQ(Unit[unit].Readiness, 60);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(CommandTest, EditorChangesBossesForFree) {
  UI.EditMode = 1;
  UI.ShowEditorPanel = true;
  Unit[unit].Boss = thq;
  ChangeBoss(4, 4, 6, 6);
  EXPECT_EQ(Unit[unit].Boss, thq2);
  EXPECT_EQ(Unit[unit].Readiness, 60);
  EXPECT_EQ(Unit[unit].Disruption, 10);
}

TEST_F(CommandTest, DisbandAsksFirst) {
  const int second = AddFormation(red, 4, 4, 0, 10, "2nd Bataljon");
  Unit[unit].Officer = 7;
  Officer[7].Regime = red;
  Officer[7].InPool = 0;
  Select(4, 4);
  ASSERT_TRUE(PressOrderButton(kBtnDisband));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Do you want to disband 1st Bataljon?"});
  EXPECT_EQ(Unit[unit].Regime, red);
  platform.QueueAnswer("yes");
  ASSERT_TRUE(PressOrderButton(kBtnDisband));
  EXPECT_EQ(Unit[unit].Regime, 0);
  EXPECT_EQ(Unit[unit].Name, "");
  EXPECT_EQ(Officer[7].InPool, 1);
  EXPECT_EQ(Officer[7].Regime, red);
  EXPECT_EQ(Unit[unit].Officer, 0);
  // The stack closes up.
  EXPECT_EQ(Hex[4][4].Unit[1], second);
  EXPECT_EQ(Hex[4][4].Unit[2], 0);
  EXPECT_EQ(UI.SelCount, 1);
  EXPECT_EQ(UI.SelSlot, 1);
}

TEST_F(CommandTest, DisbandingATHQFreesItsBadgeAndFormations) {
  Unit[unit].Boss = thq;
  Counter(thq);
  Counter(unit);
  ASSERT_EQ(Regime[red].ThqBadgeUnit[1], thq);
  Select(3, 3);
  platform.QueueAnswer("yes");
  doDisband();
  EXPECT_EQ(Regime[red].ThqBadgeUnit[1], 0);
  EXPECT_EQ(Unit[unit].Boss, 0);
  EXPECT_EQ(Unit[unit].ThqBadge, 0);
  EXPECT_EQ(Unit[thq].Regime, 0);
  EXPECT_EQ(Hex[3][3].Unit[1], 0);
  EXPECT_EQ(UI.SelSlot, 0);
}

TEST_F(CommandTest, DisbandingAnShqFreesItsNumber) {
  Select(1, 1);
  platform.QueueAnswer("yes");
  doDisband();
  EXPECT_EQ(Shq[red][1].Unit, 0);
  EXPECT_EQ(Unit[thq].Boss, 0);
  EXPECT_EQ(Unit[thq2].Boss, 0);
  EXPECT_EQ(Unit[shq].Regime, 0);
}

TEST_F(CommandTest, DisbandingAShipLosesItsCargo) {
  const int ship = world::AddUnit(red, 8, 8, "1st Fleet", destroyer, 2);
  Unit[ship].Theater = kSeaTheater;
  const int carried = AddFormation(red, 8, 8, 0, 10, "Marines");
  Hex[8][8].Unit[2] = 0;  // aboard, in no stack
  Unit[ship].Cargo = carried;
  Unit[carried].Officer = 9;
  Officer[9].Regime = red;
  Select(8, 8);
  platform.QueueAnswer("yes");
  doDisband();
  EXPECT_EQ(Unit[ship].Regime, 0);
  EXPECT_EQ(Unit[carried].Regime, 0);
  EXPECT_EQ(Officer[9].InPool, 1);
}

TEST_F(CommandTest, RenameTakesANewName) {
  Select(4, 4);
  platform.QueueAnswer("Iron Guard");
  doRename();
  EXPECT_EQ(Unit[unit].Name, "Iron Guard");
  EXPECT_EQ(Prompts(), std::vector<std::string>{"[Rename] Give new name for unit -> Iron Guard"});
  EXPECT_TRUE(Messages().empty());
}

TEST_F(CommandTest, RenameToTwoCharactersKeepsTheOldNameSilently) {
  Select(4, 4);
  platform.QueueAnswer("IG");
  doRename();
  EXPECT_EQ(Unit[unit].Name, "1st Bataljon");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Prompts().size(), 1u);
  // Three are enough.
  platform.QueueAnswer("IGx");
  doRename();
  EXPECT_EQ(Unit[unit].Name, "IGx");
}

TEST_F(CommandTest, RenameCutsAtTwentyAndAsksAgain) {
  Select(4, 4);
  platform.QueueAnswer("Twenty-one characters");  // 21
  doRename();  // the second prompt takes the cut text as offered
  EXPECT_EQ(Messages(), std::vector<std::string>{"Max 20 characters"});
  EXPECT_EQ(Prompts(), (std::vector<std::string>{"[Rename] Give new name for unit -> Twenty-one characters",
                                                 "[Rename] Give new name for unit -> Twenty-one character"}));
  EXPECT_EQ(Unit[unit].Name, "Twenty-one character");
}

TEST_F(CommandTest, RenameRefusesQuotes) {
  Select(4, 4);
  platform.QueueAnswer("The \"Iron\" Guard");
  platform.QueueAnswer("Iron Guard");
  doRename();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Dont use a quote please."});
  EXPECT_EQ(Unit[unit].Name, "Iron Guard");
  // Refused again, the old name offered back and taken leaves it.
  platform.QueueAnswer("\"x\"");
  doRename();
  EXPECT_EQ(Unit[unit].Name, "Iron Guard");
  EXPECT_EQ(Prompts().back(), "[Rename] Give new name for unit -> Iron Guard");
}

TEST_F(CommandTest, RenameCountsCharactersNotBytes) {
  Select(4, 4);
  // Twenty letters, some of them two bytes long.
  platform.QueueAnswer("Überfall Südwärts ÄÖ");
  doRename();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Unit[unit].Name, "Überfall Südwärts ÄÖ");
}

TEST_F(CommandTest, RenameOnlyOnOwnGroundOrInTheEditor) {
  const int b = AddFormation(blue, 9, 9, 0, 10, "Blue one");
  Hex[9][9].Owner = blue;
  Select(9, 9);
  platform.QueueAnswer("Stolen");
  doRename();
  EXPECT_EQ(Unit[b].Name, "Blue one");
  EXPECT_TRUE(Prompts().empty());
  UI.EditMode = 1;
  doRename();
  EXPECT_EQ(Unit[b].Name, "Stolen");
  // No formation selected: nothing.
  Select(10, 10);
  doRename();
  EXPECT_EQ(Prompts().size(), 1u);
}


TEST_F(CommandTest, TheTablesStayConsistentThroughRaisingAndDisbanding) {
  Regime[red].PP = 20;
  Select(9, 9);
  const int f = NewFormation(kLandTheater);
  const int t = NewThq(false);
  const int s = NewShq(false);
  ASSERT_TRUE(f > 0 && t > 0 && s > 0);
  EXPECT_EQ(CheckInvariants(), "");
  // Disband the middle one, then the SHQ at the bottom of the stack.
  Select(9, 9, 2);
  platform.QueueAnswer("yes");
  doDisband();
  EXPECT_EQ(CheckInvariants(), "");
  EXPECT_EQ(Hex[9][9].Unit[2], s);
  Select(9, 9, 2);
  platform.QueueAnswer("yes");
  doDisband();
  EXPECT_EQ(CheckInvariants(), "");
  EXPECT_EQ(Hex[9][9].Unit[1], f);
  EXPECT_EQ(Hex[9][9].Unit[2], 0);
  EXPECT_EQ(Shq[red][Unit[s].Shq].Unit, 0);
}

}  // namespace
}  // namespace mf::test
