// Which menu commands the main window offers, and the view menu's switches.
#include <gtest/gtest.h>

#include "control/menu_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class MenuStateTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
    // The program opens so: editing an empty map, editor panel hidden.
    UI.EditMode = 1;
    UI.HideEditor = true;
    UI.WindowWidth = 1024;
    LayOutMapWindow();
  }
};

TEST_F(MenuStateTest, TheEditorOffersStartAndEditingButNotTheTurnCommands) {
  const MenuState m = GetMenuState();
  EXPECT_TRUE(m.newScenario);
  EXPECT_TRUE(m.clearMap);
  EXPECT_TRUE(m.load);
  EXPECT_TRUE(m.save);
  EXPECT_TRUE(m.import);
  EXPECT_TRUE(m.scenarios);
  EXPECT_TRUE(m.quit);
  EXPECT_TRUE(m.start);
  EXPECT_TRUE(m.editor);
  EXPECT_FALSE(m.endTurn);
  EXPECT_FALSE(m.surrender);
  EXPECT_FALSE(m.editorChecked);  // the panel is hidden
}

TEST_F(MenuStateTest, AGameInPlayDisablesStartAndEditing) {
  Game.Turn = 3;
  UI.EditMode = 0;
  const MenuState m = GetMenuState();
  EXPECT_FALSE(m.start);
  EXPECT_FALSE(m.editor);
  EXPECT_FALSE(m.editorChecked);
  EXPECT_TRUE(m.endTurn);
  EXPECT_TRUE(m.surrender);
  EXPECT_TRUE(m.save);
  EXPECT_TRUE(m.load);
}

TEST_F(MenuStateTest, WhileTheComputerWorksOnlyTheViewAndQuittingAreOffered) {
  Game.Turn = 2;
  UI.EditMode = 0;
  UI.Overlay.ShowGrid = 1;
  UI.BusyPointer = true;
  const MenuState m = GetMenuState();
  EXPECT_FALSE(m.newScenario);
  EXPECT_FALSE(m.clearMap);
  EXPECT_FALSE(m.load);
  EXPECT_FALSE(m.save);
  EXPECT_FALSE(m.import);
  EXPECT_FALSE(m.scenarios);
  EXPECT_FALSE(m.start);
  EXPECT_FALSE(m.endTurn);
  EXPECT_FALSE(m.surrender);
  EXPECT_FALSE(m.editor);
  EXPECT_TRUE(m.quit);
  EXPECT_TRUE(m.showGrid);
}

TEST_F(MenuStateTest, DisplaySwitchTextsAreTheMenuTexts) {
  EXPECT_EQ(DisplaySwitchText(DisplaySwitch::kShowEnemy), "Show Most Recent Enemy Actions");
  EXPECT_EQ(DisplaySwitchText(DisplaySwitch::kShowSight), "Show Sight Range");
  EXPECT_EQ(DisplaySwitchText(DisplaySwitch::kShowSupply), "Show Supply");
  EXPECT_EQ(DisplaySwitchText(DisplaySwitch::kShowGrid), "Show/Hide Grid");
}

TEST_F(MenuStateTest, EachSwitchFlipsItsOwnFlagAndItsTickAndRedrawsTheMap) {
  struct Case {
    DisplaySwitch which;
    Long* field;
    bool MenuState::*tick;
  };
  const Case cases[] = {
      {DisplaySwitch::kShowEnemy, &UI.Overlay.ShowEnemy, &MenuState::showEnemy},
      {DisplaySwitch::kShowSight, &UI.Overlay.ShowSight, &MenuState::showSight},
      {DisplaySwitch::kShowSupply, &UI.Overlay.ShowSupply, &MenuState::showSupply},
      {DisplaySwitch::kShowGrid, &UI.Overlay.ShowGrid, &MenuState::showGrid},
  };
  for (const auto& c : cases) {
    UI.Overlay = OverlayFlags{};
    UI.RedrawRequest = 0;
    ToggleDisplaySwitch(c.which);
    EXPECT_EQ(*c.field, 1);
    EXPECT_TRUE(GetMenuState().*c.tick);
    EXPECT_EQ(UI.RedrawRequest, 2);
    // Only this switch moved.
    EXPECT_EQ(UI.Overlay.ShowEnemy + UI.Overlay.ShowSight + UI.Overlay.ShowSupply + UI.Overlay.ShowGrid, 1);
    ToggleDisplaySwitch(c.which);
    EXPECT_EQ(*c.field, 0);
    EXPECT_FALSE(GetMenuState().*c.tick);
  }
}

TEST_F(MenuStateTest, TheEditingSwitchShowsAndHidesTheEditorPanel) {
  ToggleEditor();
  EXPECT_FALSE(UI.HideEditor);
  EXPECT_TRUE(UI.ShowEditorPanel);
  EXPECT_TRUE(GetMenuState().editorChecked);
  EXPECT_TRUE(UI.PanelDirty);
  ToggleEditor();
  EXPECT_TRUE(UI.HideEditor);
  EXPECT_FALSE(UI.ShowEditorPanel);
  EXPECT_FALSE(GetMenuState().editorChecked);
}

TEST_F(MenuStateTest, ANarrowWindowKeepsTheEditorPanelAwayButTheSwitchStillTicks) {
  UI.WindowWidth = 819;
  ToggleEditor();
  EXPECT_FALSE(UI.HideEditor);
  EXPECT_FALSE(UI.ShowEditorPanel);  // narrower than 820
  EXPECT_TRUE(GetMenuState().editorChecked);
}

TEST_F(MenuStateTest, TheEditingSwitchDoesNothingInAGame) {
  Game.Turn = 1;
  UI.EditMode = 0;
  ToggleEditor();
  EXPECT_TRUE(UI.HideEditor);
}

}  // namespace
}  // namespace mf
