// The window while the computer plays: a game of computer regimes goes
// round without waiting for the timer, and closing the window during a
// computer turn asks first and ends the program once the turn has stopped.
#include <QApplication>
#include <QTimer>
#include <string>

#include "ai/ai_state.h"
#include "control/computer_game.h"
#include "app_fixture.h"
#include "view_runner.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class ComputerTurnsTest : public AppTest {
 protected:
  // Five regimes on a 64 x 44 map, each with one town far from the others.
  void FiveRegimes() {
    world::NewMap(64, 44);
    for (int r = 1; r <= 5; ++r) {
      world::AddRegime("Realm " + std::to_string(r));
      HexRec& town = Hex[10 * r][20];
      town.Land = kUrban;
      town.Pop = 1000;
      town.Owner = r;
      town.UrbanName = "Town " + std::to_string(r);
    }
    Game.GameEndPop = 100000;
  }
};

TEST_F(ComputerTurnsTest, FiveComputerRegimesGoRoundWithoutWaitingForTheTimer) {
  FiveRegimes();
  // The timer is stopped: only the window's own follow-up can move the game.
  ASSERT_FALSE(window->timer().isActive());
  window->Act([] {
    std::string why;
    ASSERT_TRUE(StartComputerGame(&why)) << why;
    ASSERT_TRUE(PlayComputerRegimeTurn());
  });
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_TRUE(WaitUntil([] { return Game.Turn >= 3; }));
  EXPECT_GE(Game.Turn, 3);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ComputerTurnsTest, APersonsTurnBeginsOnTheTimersTick) {
  FiveRegimes();
  window->Act([] {
    std::string why;
    ASSERT_TRUE(StartComputerGame(&why)) << why;
    Regime[2].AI = 0;  // regime 2 is a player's
    ASSERT_TRUE(PlayComputerRegimeTurn());
  });
  // The computer's turn is over, but the window does not hurry the person's
  // New Turn dialog: with the timer stopped nothing moves.
  LetEventsRun(300);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
}

TEST_F(ComputerTurnsTest, ClosingDuringAComputerTurnAsksAndQuitsWhenTheTurnHasStopped) {
  FiveRegimes();
  // As inside the driver: the computer is at work.
  UI.BusyPointer = true;
  platform.QueueAnswer("yes");
  window->close();
  ASSERT_FALSE(platform.Messages().empty());
  EXPECT_EQ(platform.Messages().back(), "Are you sure you want to quit?");
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(AI.StopRequested);
  // The driver returns after the stage it was in.
  UI.BusyPointer = false;
  window->SyncWithGame();
  EXPECT_FALSE(window->isVisible());
  // The program asked the application to leave its event loop; the tests
  // that follow need a working one: a short main loop clears the request.
  QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
  QCoreApplication::exec();
}

TEST_F(ComputerTurnsTest, ClosingDuringAComputerTurnAnsweredNoGoesOn) {
  FiveRegimes();
  UI.BusyPointer = true;
  platform.QueueAnswer("no");
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(AI.StopRequested);
  UI.BusyPointer = false;
  window->SyncWithGame();
  EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace mf::app::test
