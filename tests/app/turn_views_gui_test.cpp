// The windows of the New Turn and Start Game dialogs on the offscreen
// platform: they show what the dialog holds, forward the player's clicks,
// and keep the event loop (and so the game's timer) running while open.
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "control/new_turn_dialog.h"
#include "dialog_views.h"
#include "engine/start_game_dialog.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class TurnViewsTest : public AppTest {
 protected:
  // Runs the view of a dialog; `inside` runs once the window is up. A window
  // still open after two seconds is closed so that a failure cannot hang.
  void RunView(mf::HumbleDialog& dialog, const char* windowName, std::function<void(QDialog*)> inside) {
    RunDialogView(dialog, window.get(), windowName, inside);
  }
  void TwoRegimes() {
    world::NewMap(10, 10);
    world::AddRegime("Red");
    world::AddRegime("Blue");
  }
};

TEST_F(TurnViewsTest, TheNewTurnWindowLogsInAndProceeds) {
  TwoRegimes();
  Game.Turn = 3;
  Game.CurRegime = 1;
  Game.UsePasswords = 1;
  Game.GameEndPop = 5000;
  Regime[1].Password = "abc";
  Regime[1].Losses[2] = 4;
  mf::NewTurnDialog dialog;
  dialog.Prepare();
  RunView(dialog, "newTurnDialog", [&](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Red");
    auto* report = d->findChild<QWidget*>("report");
    auto* password = d->findChild<QLineEdit*>("password");
    auto* login = d->findChild<QPushButton*>("passwordButton");
    auto* proceed = d->findChild<QPushButton*>("proceed");
    auto* pbem = d->findChild<QPushButton*>("savePbem");
    ASSERT_TRUE(report && password && login && proceed && pbem);
    EXPECT_FALSE(report->isVisible());
    EXPECT_TRUE(password->isVisible());
    EXPECT_FALSE(pbem->isVisible());
    EXPECT_EQ(login->text(), "Log in");
    EXPECT_EQ(proceed->text(), "Start turn 3");
    // Escape does not close it.
    d->reject();
    EXPECT_TRUE(d->isVisible());
    password->setText("abd");
    login->click();
    EXPECT_FALSE(report->isVisible());
    password->setText("abc");
    login->click();
    EXPECT_TRUE(report->isVisible());
    EXPECT_EQ(d->findChild<QLabel*>("headlineTitle")->text(), "Red TURN 3");
    auto* losses = d->findChild<QListWidget*>("losses");
    ASSERT_EQ(losses->count(), 1);
    EXPECT_EQ(losses->item(0)->text(), "Trucks: 4");
    EXPECT_EQ(d->findChild<QListWidget*>("kills")->item(0)->text(), "None");
    proceed->click();
    EXPECT_FALSE(d->isVisible());
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_TRUE(dialog.accepted);
  EXPECT_EQ(platform.Messages(), std::vector<std::string>{"Wrong Password"});
}

TEST_F(TurnViewsTest, TheTimerKeepsTickingWhileTheNewTurnWindowIsOpen) {
  TwoRegimes();
  Game.Turn = 1;
  Game.CurRegime = 1;
  mf::NewTurnDialog dialog;
  dialog.Prepare();
  UI.ScrollPending = 1;  // a redraw the next tick makes
  window->timer().start();
  bool tickedWhileOpen = false;
  RunView(dialog, "newTurnDialog", [&](QDialog* d) {
    // A tick of the main window's timer makes the redraw while the window is up.
    tickedWhileOpen = WaitUntil([] { return UI.ScrollPending == 0; }, 2000);
    d->findChild<QPushButton*>("proceed")->click();
  });
  window->timer().stop();
  EXPECT_TRUE(tickedWhileOpen);
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(TurnViewsTest, TheStartGameWindowCouplesTheFogBoxesAndStarts) {
  TwoRegimes();
  Game.ScenarioStory = "Two rivers.";
  mf::StartGameDialog dialog;
  dialog.Prepare();
  RunView(dialog, "startGameDialog", [&](QDialog* d) {
    auto* fog = d->findChild<QCheckBox*>("fog");
    auto* exploration = d->findChild<QCheckBox*>("exploration");
    auto* human2 = d->findChild<QCheckBox*>("human2");
    auto* human3 = d->findChild<QCheckBox*>("human3");
    auto* email2 = d->findChild<QLineEdit*>("email2");
    ASSERT_TRUE(fog && exploration && human2 && human3 && email2);
    EXPECT_TRUE(human2->isVisible());
    EXPECT_FALSE(human3->isVisible());
    EXPECT_FALSE(fog->isChecked());
    exploration->click();
    EXPECT_TRUE(fog->isChecked());
    EXPECT_EQ(Game.FogOfWar, 1);
    fog->click();
    EXPECT_FALSE(exploration->isChecked());
    EXPECT_EQ(Game.FogOfExploration, 0);
    human2->click();
    EXPECT_EQ(Regime[2].AI, 1);
    email2->setFocus();
    email2->insert("blue@example.org");
    EXPECT_EQ(Regime[2].Email, "blue@example.org");
    KeepPicture(d, "start_game.png");
    d->findChild<QPushButton*>("start")->click();
    EXPECT_FALSE(d->isVisible());
  });
  EXPECT_TRUE(dialog.started);
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(TurnViewsTest, TheStartGameWindowKeepsEveryRowHumanWhenTheComputerIsForbidden) {
  TwoRegimes();
  EngineVar[701].Value = 1;
  mf::StartGameDialog dialog;
  dialog.Prepare();
  RunView(dialog, "startGameDialog", [&](QDialog* d) {
    auto* human2 = d->findChild<QCheckBox*>("human2");
    human2->click();
    EXPECT_TRUE(human2->isChecked());
    EXPECT_EQ(Regime[2].AI, 0);
    // Closing the window cancels.
    d->reject();
  });
  EXPECT_FALSE(dialog.started);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(platform.Messages(), std::vector<std::string>{"The AI is not allowed to play in this scenario."});
}

}  // namespace
}  // namespace mf::app::test
