// Watching the computer play: without fog of war the map stays on screen
// through the computer's turn, centred on what it does, and takes no press;
// with fog nothing of its turn is shown.
#include "app_fixture.h"
#include "control/turn_cycle.h"
#include "map_widget.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

class AIWatchTest : public AppTest {
 protected:
  // Red (a person) holds the west of a 30 x 10 map up to column 12, Blue
  // (the computer) the east; Blue's rifles stand three hexes behind its
  // line, where the computer wants them forward.
  void MakeWorld(long fog) {
    WatchedGame g;
    g.width = 30;
    g.border = 12;
    g.blueTown = 28;
    g.blueAt = 16;
    g.blueMen = 200;
    g.hitPoints = 40;
    MakeWatchedGame(&g);
    red = g.red;
    blue = g.blue;
    redUnit = g.redUnit;
    blueUnit = g.blueUnit;
    Type[g.rifles].Attr[kSoftDefense] = 10;
    Type[g.rifles].Attr[kWeight] = 1;
    // The scroll ranges of this map, as a load works them out.
    mf::LayOutMapWindow();
    Game.FogOfWar = fog;
    Game.Turn = 0;
    Game.CurRegime = 0;
    UI.EditMode = 0;
    window->Act([] { mf::NextTurn(); });
    Settle();
    ASSERT_EQ(Game.CurRegime, red);
  }

  // Red ends his turn; the computer plays Blue's inside the driver.
  void RedEndsTurn() {
    platform.QueueAnswer("yes");
    window->Act([] { mf::EndTurnCommand(); });
    Settle();
    ASSERT_EQ(Game.CurRegime, blue);
  }

  int red = 0, blue = 0, redUnit = 0, blueUnit = 0;
};

TEST_F(AIWatchTest, WithoutFogTheMapIsWatchedAndTakesNoPress) {
  MakeWorld(0);
  UI.ScrollX = 0;
  UI.ScrollY = 0;
  RedEndsTurn();
  EXPECT_NE(Game.ShowAIMoves, kFalse);
  EXPECT_TRUE(UI.MapShown);
  EXPECT_TRUE(window->mapWidget()->isVisible());
  // The computer moved its rifles, and the map followed it east.
  EXPECT_EQ(Hex[16][5].Unit[1], 0);
  EXPECT_GT(UI.ScrollX, 0);
  // Until the timer ends Blue's turn, a press on Red's rifles selects nothing.
  UI.SelX = 0;
  UI.SelY = 0;
  const QPoint at = window->mapWidget()->HexCentreOnView(4, 5);
  PressMap(at);
  EXPECT_EQ(UI.SelX, 0);
  // The timer hands the turn back to Red, and the map takes his presses again.
  ASSERT_TRUE(RunTimerUntil([this] { return Game.CurRegime == red; }));
  window->SyncWithGame();
  Settle();
  UI.ScrollX = 0;
  UI.ScrollY = 0;
  UI.RedrawRequest = 2;
  window->SyncWithGame();
  PressMap(window->mapWidget()->HexCentreOnView(4, 5));
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.SelY, 5);
}

TEST_F(AIWatchTest, WithFogNothingOfTheComputersTurnIsShown) {
  MakeWorld(1);
  RedEndsTurn();
  EXPECT_EQ(Game.ShowAIMoves, kFalse);
  EXPECT_FALSE(UI.MapShown);
}

}  // namespace
}  // namespace mf::app::test
