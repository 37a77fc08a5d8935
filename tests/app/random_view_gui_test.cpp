// The Random Scenario window on the offscreen platform: opened from the File
// menu, it shows the dialog's fields, forwards the player's clicks, refuses
// with the dialog's words, and a made map is drawn and its first turn begun.
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "model/game_state.h"
#include "model/invariants.h"
#include "dialog_views.h"
#include "control/random_flow.h"
#include "random/random_dialog.h"

namespace mf::app::test {
namespace {

class RandomViewTest : public AppTest {
 protected:
  // Runs the window of the dialog as the menu opens it; `inside` runs once
  // it is up. A window still open after two seconds is closed.
  void RunView(mf::RandomScenarioDialog& dialog, std::function<void(QDialog*)> inside) {
    ASSERT_TRUE(mf::PrepareRandomGame());
    dialog.Prepare();
    RunDialogView(dialog, window.get(), "randomScenarioDialog", inside);
  }
};

TEST_F(RandomViewTest, TheFileMenuMakesAMapAndBeginsItsFirstTurn) {
  QAction* entry = window->action("randomScenario");
  ASSERT_NE(entry, nullptr);
  ASSERT_TRUE(entry->isEnabled());
  EXPECT_EQ(entry->text(), "Random Scenario...");
  // Nobody at the screen: the dialog takes its default, Start Random Game,
  // with its defaults, and the New Turn dialog of regime 1 its own.
  entry->trigger();
  Settle();
  window->SyncWithGame();
  Settle();
  EXPECT_EQ(Game.MapW, 40);
  EXPECT_EQ(Game.RegimeCount, 4);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_EQ(CheckInvariants(), "");
  KeepPicture(window.get(), "random_scenario_map.png");
}

TEST_F(RandomViewTest, TheWindowShowsForwardsAndRefuses) {
  mf::RandomScenarioDialog dialog;
  RunView(dialog, [&](QDialog* d) {
    auto* size = d->findChild<QLineEdit*>("mapSize");
    auto* land = d->findChild<QLineEdit*>("land");
    auto* seed = d->findChild<QLineEdit*>("override");
    auto* three = d->findChild<QRadioButton*>("regimes3");
    auto* human2 = d->findChild<QCheckBox*>("human2");
    auto* human4 = d->findChild<QCheckBox*>("human4");
    auto* fog = d->findChild<QCheckBox*>("fog");
    auto* exploration = d->findChild<QCheckBox*>("exploration");
    ASSERT_TRUE(size && land && seed && three && human2 && human4 && fog && exploration);
    EXPECT_EQ(size->text(), "40");
    EXPECT_EQ(land->text(), "50");
    EXPECT_TRUE(human4->isVisible());
    EXPECT_FALSE(human2->isChecked());
    EXPECT_EQ(d->findChild<QPushButton*>("start")->text(), "Start Random Game");
    KeepPicture(d, "random_scenario_dialog.png");

    // A size of 9 is refused with the dialog's words, and the window stays.
    size->selectAll();
    size->insert("9");
    EXPECT_EQ(dialog.mapSizeText, "9");
    d->findChild<QPushButton*>("start")->click();
    EXPECT_TRUE(d->isVisible());
    ASSERT_FALSE(platform.Messages().empty());
    EXPECT_EQ(platform.Messages().back(), "Map size between 10-100");

    size->selectAll();
    size->insert("30");
    seed->selectAll();
    seed->insert("5");
    three->click();
    EXPECT_EQ(dialog.regimes, 3);
    EXPECT_FALSE(human4->isVisible());
    exploration->click();
    EXPECT_TRUE(fog->isChecked());
    fog->click();
    EXPECT_FALSE(exploration->isChecked());
    human2->click();
    EXPECT_EQ(Regime[2].AI, 0);
    d->findChild<QPushButton*>("start")->click();
    EXPECT_FALSE(d->isVisible());
  });
  EXPECT_TRUE(dialog.made);
  EXPECT_EQ(Game.MapW, 30);
  EXPECT_EQ(Game.RegimeCount, 3);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(RandomViewTest, CancelMakesNothing) {
  mf::RandomScenarioDialog dialog;
  RunView(dialog, [&](QDialog* d) { d->findChild<QPushButton*>("cancel")->click(); });
  EXPECT_FALSE(dialog.made);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Unit[1].Regime, 0);
}

}  // namespace
}  // namespace mf::app::test
