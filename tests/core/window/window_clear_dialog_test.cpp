// The Clear / New Game dialog and the two clear commands of the file menu.
#include <gtest/gtest.h>

#include "model/clear_dialog.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class ClearDialogTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(20, 15);
    red = world::AddRegime("Red");
    type = world::AddType("Rifles", 0, 1);
    world::AddUnit(red, 3, 3, "1st", type, 10);
    EngineVar[533].Value = 77;  // a rule changed by the author
    Game.Turn = 4;
    UI.EditMode = 0;
    Game.FogOfWar = 1;
    UI.MapShown = false;
    UI.PanelsShown = false;
    UI.MapControlsShown = false;
    UI.RegimeLabel = "Red";
    UI.RedrawRequest = 0;
  }
  int red = 0;
  int type = 0;
};

TEST_F(ClearDialogTest, TheDialogsWords) {
  EXPECT_STREQ(ClearDialog::kCaption, "Clear / New Game");
  EXPECT_STREQ(ClearDialog::kWidthLabel, "Map Width");
  EXPECT_STREQ(ClearDialog::kHeightLabel, "Map Height");
  EXPECT_STREQ(ClearDialog::kNote, "(max 100x100 map.. minimal 10x10)");
  EXPECT_STREQ(ClearDialog::kMakeItSo, "Make it so");
  EXPECT_EQ(ClearDialog(ClearDialog::kClearMap).DialogName(), "clear");
}

TEST_F(ClearDialogTest, TheFieldsStartWithTheMapAsItIs) {
  ClearDialog d(ClearDialog::kNewScenario);
  EXPECT_EQ(d.widthText, "20");
  EXPECT_EQ(d.heightText, "15");
  EXPECT_TRUE(d.IsOpen());
  ClearDialog silent(ClearDialog::kOnlyClear);
  EXPECT_EQ(silent.widthText, "0");
  EXPECT_EQ(silent.heightText, "0");
}

TEST_F(ClearDialogTest, NewScenarioClearsEverythingToTheSizeGiven) {
  platform.QueueDialog("clear", {{"width", "5"}, {"height", "250"}, {"makeitso", ""}});
  NewScenarioCommand();
  EXPECT_EQ(Game.MapW, 10);   // below 10 becomes 10
  EXPECT_EQ(Game.MapH, 100);  // above 100 becomes 100
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(Game.TypeCount, 0);       // rules back to their defaults
  EXPECT_EQ(EngineVar[533].Value, 3);  // "Number of combat rounds" default
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.RegimeLabel, "Editing");
  EXPECT_EQ(UI.HelpText, "You are in the editing mode. If you want to play this scenario select start in the menu.");
  EXPECT_TRUE(UI.MapShown);
  EXPECT_TRUE(UI.PanelsShown);
  EXPECT_TRUE(UI.MapControlsShown);
  EXPECT_EQ(UI.RedrawRequest, 2);
  EXPECT_TRUE(UI.PanelDirty);
  // The map window was laid out for the new size: 10 x 42 + 70 by 100 x 30 + 70.
  EXPECT_EQ(UI.PictureW, 490);
  EXPECT_EQ(UI.PictureH, 3070);
}

TEST_F(ClearDialogTest, ClearMapKeepsTheRulesAndTheRegimeLabel) {
  platform.QueueDialog("clear", {{"width", "30"}, {"height", "12"}, {"makeitso", ""}});
  ClearMapCommand();
  EXPECT_EQ(Game.MapW, 30);
  EXPECT_EQ(Game.MapH, 12);
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(Game.TypeCount, 1);
  EXPECT_EQ(Type[type].Name, "Rifles");
  EXPECT_EQ(EngineVar[533].Value, 77);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.RegimeLabel, "Red");  // only a new scenario writes "Editing"
  EXPECT_TRUE(UI.MapShown);
}

TEST_F(ClearDialogTest, MakeItSoAloneKeepsTheSize) {
  // Nothing queued: the dialog's default is its one button.
  ClearMapCommand();
  EXPECT_EQ(Game.MapW, 20);
  EXPECT_EQ(Game.MapH, 15);
  EXPECT_EQ(Game.UnitCount, 0);
}

TEST_F(ClearDialogTest, ClosingTheDialogClearsNothing) {
  platform.QueueDialog("clear", {{"width", "50"}, {"cancel", ""}});
  NewScenarioCommand();
  EXPECT_EQ(Game.MapW, 20);
  EXPECT_EQ(Game.UnitCount, 1);
  EXPECT_EQ(Game.TypeCount, 1);
  EXPECT_EQ(Game.Turn, 4);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_FALSE(UI.MapShown);
  EXPECT_EQ(UI.RedrawRequest, 0);
}

TEST_F(ClearDialogTest, SizesAreReadAsNumbers) {
  platform.QueueDialog("clear", {{"width", " 24.5 hexes"}, {"height", "abc"}, {"makeitso", ""}});
  ClearMapCommand();
  EXPECT_EQ(Game.MapW, 24);  // 24.5 rounds to the even 24
  EXPECT_EQ(Game.MapH, 10);  // no number: 0, held to 10
}

TEST_F(ClearDialogTest, TheSilentClearIsAFullClearToTheSmallestMap) {
  ClearDialog d(ClearDialog::kOnlyClear);
  d.widthText = "50";  // the silent clear always clears to "0"
  std::string why;
  ASSERT_TRUE(d.Act("makeitso", "", &why));
  EXPECT_TRUE(d.Cleared());
  EXPECT_FALSE(d.IsOpen());
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  EXPECT_EQ(Game.TypeCount, 0);
  EXPECT_EQ(EngineVar[533].Value, 3);
}

TEST_F(ClearDialogTest, UnknownActionsAndActionsOnAClosedDialogAreRefused) {
  ClearDialog d(ClearDialog::kClearMap);
  std::string why;
  EXPECT_FALSE(d.Act("ok", "", &why));
  EXPECT_EQ(why, "no such action (width, height, makeitso, cancel)");
  ASSERT_TRUE(d.Act("cancel", "", &why));
  EXPECT_FALSE(d.IsOpen());
  EXPECT_FALSE(d.Act("makeitso", "", &why));
  EXPECT_EQ(why, "the dialog is closed");
  EXPECT_FALSE(d.Cleared());
  EXPECT_EQ(Game.UnitCount, 1);
}

}  // namespace
}  // namespace mf
