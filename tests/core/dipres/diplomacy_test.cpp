// The Diplomatics dialog: its rows, captions and buttons, and what pressing
// a button does to the relation table and the points.
#include "engine/diplomacy.h"

#include "dipres_test_util.h"

namespace mf::test {
namespace {

using Strings = std::vector<std::string>;

class DiplomacyTest : public DipResTest {
 protected:
  void SetUp() override {
    DipResTest::SetUp();
    Regimes({"Red", "Blue", "Green", "Gold"});
    Regime[1].HexSprite = 3;
    Regime[3].HexSprite = 7;
    Regime[4].HexSprite = 15;
    Game.CurRegime = 2;
    Game.Turn = 7;
    Regime[2].PP = 100;
    Pair(2, 1, 0, 50);   // at war, peace for 50
    Pair(2, 3, 1, 120);  // at peace, war for 120: more than Blue has
    Pair(2, 4, 0, 999);  // at war for ever
  }
  DiplomaticsDialog Open(int speaker = 2) {
    DiplomaticsDialog d;
    d.Prepare(speaker, UI.EditMode == 1);
    return d;
  }
};

TEST_F(DiplomacyTest, TitleAndRowsByRegimeNumber) {
  const DiplomaticsDialog d = Open();
  EXPECT_EQ(d.DialogName(), "diplomatics");
  EXPECT_EQ(d.title, "Blue relations:");
  // Place p holds regime p + 1; Blue's own place stays empty.
  EXPECT_TRUE(d.rows[0].shown);
  EXPECT_EQ(d.rows[0].regime, 1);
  EXPECT_FALSE(d.rows[1].shown);
  EXPECT_TRUE(d.rows[2].shown);
  EXPECT_EQ(d.rows[2].regime, 3);
  EXPECT_TRUE(d.rows[3].shown);
  for (int p = 4; p < kDipRows; ++p) EXPECT_FALSE(d.rows[p].shown) << p;
  // The regime's coloured hex: 20 + Regime.HexSprite.
  EXPECT_EQ(d.rows[0].hexPicture, 23);
  EXPECT_EQ(d.rows[2].hexPicture, 27);
  EXPECT_EQ(d.rows[3].hexPicture, 35);
  EXPECT_EQ(d.rows[0].text, "At war with Red");
  EXPECT_EQ(d.rows[2].text, "At peace with Green");
  EXPECT_EQ(d.rows[3].text, "At war with Gold");
}

TEST_F(DiplomacyTest, CaptionsAndTheirStates) {
  const DiplomaticsDialog d = Open();
  EXPECT_EQ(d.rows[0].buttonCaption, "Make Peace for 50 PP");
  EXPECT_TRUE(d.rows[0].buttonShown);
  EXPECT_TRUE(d.rows[0].buttonEnabled);
  // 120 points is more than Blue's 100: the button is there but cannot be pressed.
  EXPECT_EQ(d.rows[2].buttonCaption, "Declare War for 120 PP");
  EXPECT_TRUE(d.rows[2].buttonShown);
  EXPECT_FALSE(d.rows[2].buttonEnabled);
  // 999: the relation can never change, and the button is gone.
  EXPECT_FALSE(d.rows[3].buttonShown);
  EXPECT_FALSE(d.rows[3].buttonEnabled);
}

TEST_F(DiplomacyTest, OnlyTheFirstTenPlacesAreShown) {
  for (int r = 5; r <= 12; ++r) world::AddRegime("R" + std::to_string(r));
  const DiplomaticsDialog d = Open();
  EXPECT_EQ(Game.RegimeCount, 12);
  // Regime 10 is at place 9, the last; 11 and 12 have no place.
  EXPECT_TRUE(d.rows[9].shown);
  EXPECT_EQ(d.rows[9].regime, 10);
  EXPECT_EQ(d.rows[9].text, "At war with R10");
  DiplomaticsDialog press = Open();
  std::string why;
  EXPECT_FALSE(press.Act("row", "11", &why));
  EXPECT_EQ(why, "there is no row for regime 11");
}

TEST_F(DiplomacyTest, MakingPeace) {
  DiplomaticsDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("row", "1", &why)) << why;
  EXPECT_EQ(Messages(), Strings{"PEACE IS MADE!!! You are now at peace with Red"});
  EXPECT_EQ(Dip[2][1].Relation, 1);
  EXPECT_EQ(Dip[1][2].Relation, 1);
  // 100 - 50 points; the price doubles to 100 both ways; the turn is noted both ways.
  EXPECT_EQ(Regime[2].PP, 50);
  EXPECT_EQ(Dip[2][1].Cost, 100);
  EXPECT_EQ(Dip[1][2].Cost, 100);
  EXPECT_EQ(Dip[2][1].LastTurn, 7);
  EXPECT_EQ(Dip[1][2].LastTurn, 7);
  EXPECT_TRUE(UI.PanelDirty);
  // The dialog has refilled: war now costs 100, more than the 50 left.
  EXPECT_EQ(d.rows[0].text, "At peace with Red");
  EXPECT_EQ(d.rows[0].buttonCaption, "Declare War for 100 PP");
  EXPECT_FALSE(d.rows[0].buttonEnabled);
  EXPECT_TRUE(d.IsOpen());
  // The other pairs are untouched.
  EXPECT_EQ(Dip[2][3].Relation, 1);
  EXPECT_EQ(Dip[2][3].Cost, 120);
  EXPECT_EQ(Dip[3][1].Relation, 0);
}

TEST_F(DiplomacyTest, DeclaringWar) {
  Regime[2].PP = 500;
  Pair(2, 3, 1, 120, 2);
  DiplomaticsDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("row", "3", &why)) << why;
  EXPECT_EQ(Messages(), Strings{"WAR IS DECLARED !!! You are now at WAR with Green"});
  EXPECT_EQ(Dip[2][3].Relation, 0);
  EXPECT_EQ(Dip[3][2].Relation, 0);
  EXPECT_EQ(Regime[2].PP, 380);
  EXPECT_EQ(Regime[3].PP, 0);
  EXPECT_EQ(Dip[2][3].Cost, 240);
  EXPECT_EQ(Dip[3][2].Cost, 240);
  EXPECT_EQ(Dip[2][3].LastTurn, 7);
  EXPECT_EQ(Dip[3][2].LastTurn, 7);
  EXPECT_EQ(d.rows[2].text, "At war with Green");
  EXPECT_EQ(d.rows[2].buttonCaption, "Make Peace for 240 PP");
  EXPECT_TRUE(d.rows[2].buttonEnabled);
}

TEST_F(DiplomacyTest, TwoChangesInARowQuadrupleTheFirstCost) {
  Regime[2].PP = 1000;
  Pair(2, 1, 0, 30);
  DiplomaticsDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("row", "1", &why)) << why;
  ASSERT_TRUE(d.Act("row", "1", &why)) << why;
  EXPECT_EQ(Messages(), (Strings{"PEACE IS MADE!!! You are now at peace with Red",
                                 "WAR IS DECLARED !!! You are now at WAR with Red"}));
  // Paid 30 then 60; the next change costs 120 = 4 x 30, from either side.
  EXPECT_EQ(Regime[2].PP, 910);
  EXPECT_EQ(Dip[2][1].Cost, 120);
  EXPECT_EQ(Dip[1][2].Cost, 120);
  EXPECT_EQ(Dip[2][1].Relation, 0);
  EXPECT_EQ(Dip[1][2].Relation, 0);
  EXPECT_EQ(d.rows[0].buttonCaption, "Make Peace for 120 PP");
}

TEST_F(DiplomacyTest, ACostEqualToThePointsIsAllowed) {
  Regime[2].PP = 80;
  Pair(2, 1, 0, 80);
  DiplomaticsDialog d = Open();
  EXPECT_TRUE(d.rows[0].buttonEnabled);
  std::string why;
  ASSERT_TRUE(d.Act("row", "1", &why)) << why;
  EXPECT_EQ(Regime[2].PP, 0);
  EXPECT_EQ(Dip[2][1].Relation, 1);
  // One point short is not enough.
  Regime[2].PP = 159;
  d.Refill();
  EXPECT_EQ(d.rows[0].buttonCaption, "Declare War for 160 PP");
  EXPECT_FALSE(d.rows[0].buttonEnabled);
}

TEST_F(DiplomacyTest, AnEventSetCostOf999HidesTheButton) {
  Regime[2].PP = 5000;
  Pair(2, 1, 0, 50);
  DiplomaticsDialog d = Open();
  EXPECT_TRUE(d.rows[0].buttonShown);
  // An event makes peace and fixes the pair, as the diplomacy event does:
  // relation and price both ways, the turn as the last change.
  Pair(2, 1, 1, 999, 7);
  d.Refill();
  EXPECT_EQ(d.rows[0].text, "At peace with Red");
  EXPECT_FALSE(d.rows[0].buttonShown);
  EXPECT_FALSE(d.rows[0].buttonEnabled);
  std::string why;
  EXPECT_FALSE(d.Act("row", "1", &why));
  EXPECT_EQ(why, "the relation with regime 1 can never change");
  EXPECT_EQ(Regime[2].PP, 5000);
  EXPECT_TRUE(Messages().empty());
  // 998 is a price like any other.
  Pair(2, 1, 1, 998, 7);
  d.Refill();
  EXPECT_TRUE(d.rows[0].buttonShown);
  EXPECT_EQ(d.rows[0].buttonCaption, "Declare War for 998 PP");
}

TEST_F(DiplomacyTest, ADisabledOrMissingButtonCannotBePressed) {
  DiplomaticsDialog d = Open();
  std::string why;
  EXPECT_FALSE(d.Act("row", "3", &why));
  EXPECT_EQ(why, "\"Declare War for 120 PP\" is more than the points there are");
  EXPECT_FALSE(d.Act("row", "2", &why));
  EXPECT_EQ(why, "there is no row for regime 2");
  EXPECT_FALSE(d.Act("row", "abc", &why));
  EXPECT_FALSE(d.Act("wave", "", &why));
  EXPECT_EQ(Dip[2][3].Relation, 1);
  EXPECT_EQ(Regime[2].PP, 100);
  EXPECT_TRUE(Messages().empty());
  EXPECT_TRUE(d.Act("close", "", &why));
  EXPECT_FALSE(d.IsOpen());
  EXPECT_EQ(d.DefaultAction(), "close");
}

TEST_F(DiplomacyTest, DoDipRunsTheDialogForTheRegimeWhoseTurnItIs) {
  keeper.QueueDialog("diplomatics", {{"row", "1"}});
  OpenDiplomaticsDialog();
  ASSERT_EQ(keeper.dipOpened.size(), 1u);
  EXPECT_EQ(keeper.dipOpened[0].speaker, 2);
  EXPECT_FALSE(keeper.dipOpened[0].editing);
  EXPECT_EQ(keeper.dipOpened[0].rows[0].text, "At war with Red");
  EXPECT_EQ(keeper.dipClosed[0].rows[0].text, "At peace with Red");
  EXPECT_FALSE(keeper.dipClosed[0].IsOpen());
  EXPECT_EQ(Dip[1][2].Relation, 1);
  EXPECT_EQ(Regime[2].PP, 50);
  EXPECT_EQ(Messages(), Strings{"PEACE IS MADE!!! You are now at peace with Red"});
  EXPECT_TRUE(keeper.lastError.empty()) << keeper.lastError;
}

TEST_F(DiplomacyTest, AtPeaceReadsTheRelation) {
  EXPECT_TRUE(AtPeace(2, 3));
  EXPECT_TRUE(AtPeace(3, 2));
  EXPECT_FALSE(AtPeace(2, 1));
  EXPECT_FALSE(AtPeace(0, 3));
  EXPECT_FALSE(AtPeace(2, 21));
}

// ---- The editor's form -------------------------------------------------------

class DiplomacyEditTest : public DiplomacyTest {
 protected:
  void SetUp() override {
    DiplomacyTest::SetUp();
    UI.EditMode = 1;
    Game.CurRegime = 0;
    Regime[2].PP = 0;
    Hex[4][5].Owner = 2;
    UI.SelX = 4;
    UI.SelY = 5;
  }
};

TEST_F(DiplomacyEditTest, TheEditorSpeaksForTheOwnerOfTheSelectedHex) {
  OpenDiplomaticsDialog();
  ASSERT_EQ(keeper.dipOpened.size(), 1u);
  const DiplomaticsDialog& d = keeper.dipOpened[0];
  EXPECT_EQ(d.speaker, 2);
  EXPECT_TRUE(d.editing);
  EXPECT_EQ(d.title, "Blue relations:");
  EXPECT_FALSE(d.rows[1].shown);
  // Every button is there and pressable, whatever the price and the points.
  EXPECT_EQ(d.rows[0].buttonCaption, "Change Rel and Costs (0,50)");
  EXPECT_EQ(d.rows[2].buttonCaption, "Change Rel and Costs (1,120)");
  EXPECT_EQ(d.rows[3].buttonCaption, "Change Rel and Costs (0,999)");
  for (int p : {0, 2, 3}) {
    EXPECT_TRUE(d.rows[p].buttonShown) << p;
    EXPECT_TRUE(d.rows[p].buttonEnabled) << p;
  }
  EXPECT_EQ(d.rows[3].text, "At war with Gold");
  // The editor has no regime whose turn it is, before or after.
  EXPECT_EQ(Game.CurRegime, 0);
}

TEST_F(DiplomacyEditTest, TheFormStoresRelationAndCostBothWaysAndNothingElse) {
  DiplomaticsDialog d = Open();
  keeper.QueueAnswer("1");
  keeper.QueueAnswer("250");
  std::string why;
  ASSERT_TRUE(d.Act("row", "4", &why)) << why;
  EXPECT_EQ(Prompts(), (Strings{"Current relation 0=war, 1=peace ? -> 1", "Change Cost in PP? -> 250"}));
  EXPECT_EQ(Dip[2][4].Relation, 1);
  EXPECT_EQ(Dip[4][2].Relation, 1);
  EXPECT_EQ(Dip[2][4].Cost, 250);
  EXPECT_EQ(Dip[4][2].Cost, 250);
  // No payment, no message, no turn noted.
  EXPECT_EQ(Regime[2].PP, 0);
  EXPECT_EQ(Dip[2][4].LastTurn, 0);
  EXPECT_EQ(Dip[4][2].LastTurn, 0);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(d.rows[3].buttonCaption, "Change Rel and Costs (1,250)");
  EXPECT_EQ(d.rows[3].text, "At peace with Gold");
}

TEST_F(DiplomacyEditTest, ThePromptsOfferThePresentValues) {
  DiplomaticsDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("row", "3", &why)) << why;
  EXPECT_EQ(Prompts(), (Strings{"Current relation 0=war, 1=peace ? -> 1", "Change Cost in PP? -> 120"}));
  EXPECT_EQ(Dip[2][3].Relation, 1);
  EXPECT_EQ(Dip[3][2].Cost, 120);
}

TEST_F(DiplomacyEditTest, AnUnequalPairIsMadeEqual) {
  Dip[4][2].Cost = 17;
  Dip[4][2].Relation = 1;
  DiplomaticsDialog d = Open();
  keeper.QueueAnswer("0");
  keeper.QueueAnswer("40");
  std::string why;
  ASSERT_TRUE(d.Act("row", "4", &why)) << why;
  EXPECT_EQ(Dip[4][2].Relation, 0);
  EXPECT_EQ(Dip[4][2].Cost, 40);
}

TEST_F(DiplomacyEditTest, ANeutralHexOpensNothing) {
  UI.SelX = 6;
  UI.SelY = 6;
  OpenDiplomaticsDialog();
  EXPECT_TRUE(keeper.dipOpened.empty());
  EXPECT_TRUE(keeper.Events().empty());
}

}  // namespace
}  // namespace mf::test
