// The "Show Supply" command: the switch, the figure of each SHQ with its
// strict range test and its stale flood origin, and the figures on the map.
#include "engine/show_supply.h"

#include "control/menu_state.h"
#include "core/view/recording_canvas.h"
#include "econ_test_util.h"
#include "model/reset.h"
#include "view/canvas.h"
#include "view/draw_hex.h"

namespace mf::test {
namespace {

class ShowSupplyTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(40, 10, {"Red", "Blue"});
    Row(2, 1, 40, kGrass, 1);
    shq = AddShq(1, 2, 2, 1);
    // The last order left its origin on the SHQ, as the supply pass does.
    UI.OrdX = 2;
    UI.OrdY = 2;
    UI.OrdSlot = 1;
    UI.RedrawRequest = 0;
  }
  int shq = 0;
};

TEST_F(ShowSupplyTest, SwitchingOnSumsTheTownsStrictlyInsideTheRange) {
  AddTown(3, 2, 1, 1000, shq);      // 100
  AddTown(31, 2, 1, 800, shq);      // cost 29: 80
  AddTown(32, 2, 1, 2000, shq);     // cost exactly 30: left out
  AddTown(4, 2, 1, 500, shq, -1);   // extra supply counts without its multiplier
  Hex[4][2].Damage = 20;            // and with its damage: 5 x 80 / 10 = 40
  AddTown(5, 2, 1, 700, 0);         // delivers to nobody
  ShowSupplyCommand();
  EXPECT_EQ(UI.Overlay.ShowSupply, 1);
  EXPECT_EQ(Unit[shq].GenSupply, 220);
  EXPECT_EQ(UI.RedrawRequest, 2);
  // The selection stands on the last SHQ; the order origin is untouched.
  EXPECT_EQ(UI.SelX, 2);
  EXPECT_EQ(UI.SelY, 2);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.OrdX, 2);
}

TEST_F(ShowSupplyTest, TheComputersBonusIsNotShown) {
  AddTown(3, 2, 1, 1000, shq);
  Regime[1].AI = 1;
  Game.AIProdBonus = 1;
  ShowSupplyCommand();
  EXPECT_EQ(Unit[shq].GenSupply, 100);
}

TEST_F(ShowSupplyTest, SwitchingOffClearsTheFlagAndKeepsTheFigures) {
  AddTown(3, 2, 1, 1000, shq);
  ShowSupplyCommand();
  UI.RedrawRequest = 0;
  AddTown(3, 2, 1, 3000, shq);
  ShowSupplyCommand();
  EXPECT_EQ(UI.Overlay.ShowSupply, 0);
  EXPECT_EQ(UI.RedrawRequest, 2);
  EXPECT_EQ(Unit[shq].GenSupply, 100);
}

TEST_F(ShowSupplyTest, TheFloodStartsWhereTheLastOrderLeftIt) {
  // The last order was a formation's at (20,2) with 3 MP: its reach is all
  // the command floods, so the SHQ is shown the towns near (20,2).
  const int column = AddFormation(1, 20, 2, shq);
  Unit[column].MP = 3;
  UI.OrdX = 20;
  UI.OrdY = 2;
  UI.OrdSlot = 1;
  AddTown(3, 2, 1, 1000, shq);
  AddTown(22, 2, 1, 600, shq);
  ShowSupplyCommand();
  EXPECT_EQ(Unit[shq].GenSupply, 60);
}

TEST_F(ShowSupplyTest, EverySHQOnTheMapGetsAFigureOfTheCurrentRegimesTowns) {
  Row(6, 1, 40, kGrass, 2);
  const int blueShq = AddShq(2, 5, 6, 1, "Blue SHQ");
  Unit[blueShq].GenSupply = 77;
  AddTown(6, 6, 2, 1000, blueShq);  // Blue's own town: not the current regime's
  AddTown(3, 2, 1, 1000, shq);
  ShowSupplyCommand();
  EXPECT_EQ(Unit[blueShq].GenSupply, 0);
  EXPECT_EQ(Unit[shq].GenSupply, 100);
  // The selection ends on the last SHQ in the scan.
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 6);
}

TEST_F(ShowSupplyTest, TheViewMenuSwitchRunsTheCommand) {
  AddTown(3, 2, 1, 1000, shq);
  ToggleDisplaySwitch(DisplaySwitch::kShowSupply);
  EXPECT_EQ(UI.Overlay.ShowSupply, 1);
  EXPECT_EQ(Unit[shq].GenSupply, 100);
  EXPECT_TRUE(GetMenuState().showSupply);
  ToggleDisplaySwitch(DisplaySwitch::kShowSupply);
  EXPECT_EQ(UI.Overlay.ShowSupply, 0);
  EXPECT_FALSE(GetMenuState().showSupply);
}

TEST_F(ShowSupplyTest, TheFigureIsPrintedOnTheSHQsHex) {
  RecordingCanvas canvas;
  InstallMapCanvas(&canvas);
  LayOutMapWindow();
  UI.ScrollX = UI.ScrollY = 0;
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y) Hex[x][y].Vis = 3;
  AddTown(3, 2, 1, 1000, shq);
  const int f = AddFormation(1, 2, 2, shq);
  Unit[f].GenSupply = 30;  // its demand of the last turn start
  ShowSupplyCommand();
  canvas.Reset();
  DrawHex(2, 2);
  // 100 made less 30 asked, in green at the foot of the hex: the centre (84,
  // 60) less 8 across and 11 down.
  EXPECT_EQ(canvas.Ops().back(), "text 70 76 71 arial 9 65280");
  InstallMapCanvas(nullptr);
}

}  // namespace
}  // namespace mf::test
