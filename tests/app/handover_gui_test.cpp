// The window always shows the game as it is: after a start, a turn handed to
// the next player, a computer turn, a clear and a refused load, the map, the
// minimap, the header and the side panel are those of the game at that
// moment; behind a player's New Turn dialog nothing of the last player's turn
// stands. The dialogs answer Enter and Space with their main action, and the
// window asks before what cannot be undone.
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "control/new_turn_dialog.h"
#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "dialog_views.h"
#include "files/scenario_file.h"
#include "map_widget.h"
#include "minimap.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "side_panel.h"
#include "support/core_test.h"
#include "view/draw_hex.h"
#include "view/panel.h"
#include "view_text.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

// Every label of the side panel that a player can see, by name and text.
QStringList PanelTexts(SidePanel* panel) {
  QStringList out;
  for (QLabel* l : panel->findChildren<QLabel*>()) {
    if (!l->isVisibleTo(panel) || l->text().isEmpty()) continue;
    out << l->objectName() + "=" + l->text();
  }
  return out;
}

// What the window showed when a dialog came up.
struct Behind {
  QString dialog, regime, turn, pp, help;
  bool mapShown = true;
  bool panelHexShown = true;
  QStringList panel;
};

class HandoverTest : public AppTest {
 protected:
  // Red in the west, Blue in the east of a 16 x 10 map, each with an SHQ in
  // a town and a formation; Blue's town lies far beyond Red's sight.
  void MakeWorld(bool blueComputer) {
    WatchedGame g;  // 16 x 10, Red up to column 8, Blue's town and rifles at 15,5
    MakeWatchedGame(&g);
    red = g.red;
    blue = g.blue;
    rifles = g.rifles;
    redUnit = g.redUnit;
    blueUnit = g.blueUnit;
    Regime[red].HexSprite = 1;
    Regime[blue].HexSprite = 4;
    Regime[red].PP = 17;
    Regime[blue].PP = 93;
    Regime[blue].AI = blueComputer ? 1 : 0;
    Hex[2][5].UrbanName = "Redford";
    Hex[15][5].UrbanName = "Bluehaven";
    Game.FogOfExploration = 1;
    UI.EditMode = 1;
    window->SyncWithGame();
    Settle();
  }

  void WatchDialogs() {
    platform.SetDialogWatcher([this](const std::string& name) {
      Settle();
      Behind b;
      b.dialog = QString::fromStdString(name);
      b.regime = LabelText(window.get(), "regimeLabel");
      b.turn = LabelText(window.get(), "turnLabel");
      b.pp = LabelText(window.get(), "ppLabel");
      b.help = LabelText(window.get(), "helpLine");
      b.mapShown = UI.MapShown;
      b.panelHexShown = mf::Panel.hexShown;
      b.panel = PanelTexts(window->sidePanel());
      behind.push_back(b);
    });
  }

  void Trigger(const char* action) {
    QAction* a = window->action(action);
    ASSERT_NE(a, nullptr) << action;
    ASSERT_TRUE(a->isEnabled()) << action;
    a->trigger();
    Settle();
  }

  // The window as it stands must be what a redraw of everything from the
  // game's state gives, and its header must be the game's.
  void ExpectWindowCurrent(const char* where) {
    SCOPED_TRACE(where);
    window->SyncWithGame();
    Settle();
    const QImage map = GrabMap();
    const QImage mini = window->minimap()->grab().toImage();
    const QStringList panel = PanelTexts(window->sidePanel());
    const QString regime = LabelText(window.get(), "regimeLabel");
    const QString turn = LabelText(window.get(), "turnLabel");
    const QString pp = LabelText(window.get(), "ppLabel");
    const QString mode = LabelText(window.get(), "modeLabel");

    RequestRedraw(2);
    UI.PanelDirty = true;
    window->minimap()->Rebuild();
    window->SyncWithGame();
    Settle();
    EXPECT_TRUE(map == GrabMap()) << "the map was not the game's";
    EXPECT_TRUE(mini == window->minimap()->grab().toImage()) << "the minimap was not the game's";
    EXPECT_EQ(panel, PanelTexts(window->sidePanel()));

    if (UI.EditMode == 1) {
      EXPECT_EQ(mode, QString("EDITING   %1 x %2").arg(Game.MapW).arg(Game.MapH));
    } else {
      EXPECT_EQ(mode, QString());
    }
    if (Game.Turn > 0 && UI.EditMode != 1 && ValidRegime(Game.CurRegime)) {
      const RegimeRec& r = Regime[Game.CurRegime];
      EXPECT_EQ(regime, Q(r.Name) + (r.AI > 0 ? " (AI)" : ""));
      EXPECT_EQ(turn, QString("Turn %1").arg(Game.Turn));
      // A computer regime's points are not shown to the players.
      EXPECT_EQ(pp, r.AI > 0 ? QString() : QString("PP %1").arg(r.PP));
    }
    // The panel tells what the rules let the current player know of the
    // selected hex, no more.
    const PanelContent expected = PanelOf(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
    if (expected.unitShown) {
      EXPECT_EQ(LabelText(window->sidePanel(), "unitName"), Q(expected.unitName));
    } else {
      EXPECT_FALSE(panel.join("|").contains("unitName=")) << panel.join("|").toStdString();
    }
  }

  int red = 0, blue = 0, rifles = 0, redUnit = 0, blueUnit = 0;
  std::vector<Behind> behind;
};

TEST_F(HandoverTest, BehindTheNextPlayersNewTurnDialogNothingOfTheLastTurnStands) {
  MakeWorld(false);
  WatchDialogs();
  Trigger("start");
  ASSERT_EQ(Game.Turn, 1);
  ASSERT_EQ(Game.CurRegime, red);
  ExpectWindowCurrent("Red's turn 1");
  EXPECT_EQ(LabelText(window.get(), "helpLine"), "Your turn 1 has started.");

  // Red looks at his formation, then hands over to Blue.
  UI.SelX = 4;
  UI.SelY = 5;
  UI.SelSlot = 1;
  UI.PanelDirty = true;
  window->SyncWithGame();
  ASSERT_EQ(LabelText(window->sidePanel(), "unitName"), "Red Rifles");
  behind.clear();
  platform.QueueAnswer("yes");
  Trigger("endTurn");
  ASSERT_EQ(Game.CurRegime, blue);

  ASSERT_FALSE(behind.empty());
  const Behind& b = behind.front();
  EXPECT_EQ(b.dialog, "newturn");
  EXPECT_EQ(b.regime, "Blue");
  EXPECT_EQ(b.turn, "Turn 1");
  EXPECT_EQ(b.help, QString());
  EXPECT_FALSE(b.mapShown);
  EXPECT_FALSE(b.panelHexShown);
  EXPECT_FALSE(b.panel.join("|").contains("Red")) << b.panel.join("|").toStdString();
  ExpectWindowCurrent("Blue's turn 1");
  EXPECT_NE(LabelText(window->sidePanel(), "unitName"), "Red Rifles");
}

TEST_F(HandoverTest, AComputerTurnShowsNothingOfTheComputersAndHandsBackAFreshWindow) {
  MakeWorld(true);
  WatchDialogs();
  Trigger("start");
  ASSERT_EQ(Game.CurRegime, red);
  ExpectWindowCurrent("Red's turn 1");

  // Red ends his turn: the computer plays Blue's turn inside the driver.
  platform.QueueAnswer("yes");
  Trigger("endTurn");
  ASSERT_EQ(Game.CurRegime, blue);
  window->SyncWithGame();
  Settle();
  EXPECT_EQ(LabelText(window.get(), "regimeLabel"), "Blue (AI)");
  EXPECT_EQ(LabelText(window.get(), "ppLabel"), QString());
  EXPECT_FALSE(mf::Panel.hexShown);
  const QString shown = PanelTexts(window->sidePanel()).join("|");
  EXPECT_FALSE(shown.contains("Blue")) << shown.toStdString();
  EXPECT_FALSE(shown.contains("93")) << shown.toStdString();

  // The timer ends the computer's turn and brings Red his New Turn dialog.
  behind.clear();
  ASSERT_TRUE(RunTimerUntil([this] { return Game.CurRegime == red; }));
  ASSERT_EQ(Game.Turn, 2);
  ASSERT_FALSE(behind.empty());
  EXPECT_EQ(behind.front().regime, "Red");
  EXPECT_EQ(behind.front().pp, "PP 17");
  EXPECT_EQ(behind.front().help, QString());
  EXPECT_FALSE(behind.front().panelHexShown);
  ExpectWindowCurrent("Red's turn 2");

  // Blue's town lies in fog Red never lifted: nothing of it shows.
  UI.SelX = 15;
  UI.SelY = 5;
  UI.SelSlot = 0;
  UI.PanelDirty = true;
  window->SyncWithGame();
  const QString town = PanelTexts(window->sidePanel()).join("|");
  EXPECT_FALSE(town.contains("Blue Command")) << town.toStdString();
  EXPECT_FALSE(town.contains("Blue Rifles")) << town.toStdString();
  EXPECT_FALSE(town.contains("Bluehaven")) << town.toStdString();
  EXPECT_TRUE(town.contains("Unexplored hex")) << town.toStdString();
}

TEST_F(HandoverTest, ARefusedLoadLeavesNoStaleMapOrHeader) {
  MakeWorld(false);
  Trigger("start");
  ExpectWindowCurrent("a game in play");

  // A later part of a campaign, which only a running campaign may load.
  const std::string game = TempPath("before.mf1");
  ASSERT_TRUE(WriteFile(game));
  world::NewMap(12, 12);
  EngineVar[704].Value = 1;
  EngineVar[706].Value = 1;
  const std::string later = TempPath("later.mf2");
  ASSERT_TRUE(WriteFile(later));
  ASSERT_TRUE(LoadGameFile(game));
  window->SyncWithGame();
  ASSERT_GT(Game.Turn, 0);

  UI.HideEditor = true;
  platform.QueueAnswer("yes");  // the game in play may go
  platform.QueueFile(later);
  Trigger("load");
  ASSERT_FALSE(platform.Messages().empty());
  EXPECT_EQ(platform.Messages().back(), "You are not allowed to load this file.");
  ExpectWindowCurrent("after the refused load");
  EXPECT_EQ(LabelText(window.get(), "regimeLabel").contains("Red"), Game.Turn > 0);
}

TEST_F(HandoverTest, ClearAndNewScenarioBringTheWholeWindowUpToDate) {
  MakeWorld(false);
  Trigger("start");
  platform.QueueAnswer("yes");
  Trigger("clearMap");
  ExpectWindowCurrent("after clear map");
  platform.QueueAnswer("yes");
  Trigger("newScenario");
  ExpectWindowCurrent("after a new scenario");
  EXPECT_EQ(LabelText(window.get(), "modeLabel"), QString("EDITING   %1 x %2").arg(Game.MapW).arg(Game.MapH));
}

TEST_F(HandoverTest, ThrowingAwayAGameOrSurrenderingIsAskedFirst) {
  MakeWorld(false);
  Trigger("start");
  ASSERT_EQ(Game.Turn, 1);
  const size_t asked = platform.Messages().size();

  // No: the game stays as it was.
  platform.QueueAnswer("no");
  Trigger("newScenario");
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.MapW, 16);
  ASSERT_GT(platform.Messages().size(), asked);
  EXPECT_EQ(platform.Messages()[asked], kThrowAwayQuestion);

  platform.QueueAnswer("no");
  platform.QueueFile(TempPath("never.mf1"));
  Trigger("load");
  EXPECT_EQ(Game.Turn, 1);
  platform.QueueAnswer("no");
  Trigger("scenario1");
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.MapW, 16);

  platform.QueueAnswer("no");
  Trigger("surrender");
  EXPECT_EQ(platform.Messages().back(), kSurrenderQuestion);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Regime[red].AI, 0);

  // Yes: the surrender goes through as the rules have it.
  platform.QueueAnswer("yes");
  Trigger("surrender");
  EXPECT_EQ(Regime[red].AI, 1);

  // Outside a game nothing is asked.
  mf::EndGameToEmptyMap();
  window->SyncWithGame();
  const size_t before = platform.Messages().size();
  Trigger("newScenario");
  for (size_t i = before; i < platform.Messages().size(); ++i) EXPECT_NE(platform.Messages()[i], kThrowAwayQuestion);
  EXPECT_EQ(LabelText(window.get(), "regimeLabel"), "Editing");
}

// Runs the New Turn window with `inside` once it is up.
void RunNewTurn(QWidget* parent, mf::NewTurnDialog& dialog, const std::function<void(QDialog*)>& inside) {
  RunDialogView(dialog, parent, "newTurnDialog", inside);
}

void SendKey(QWidget* to, int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Space ? " " : "\r");
  QApplication::sendEvent(to, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
  QApplication::sendEvent(to, &release);
}

class NewTurnKeysTest : public AppTest {
 protected:
  void Prepare() {
    world::NewMap(10, 10);
    world::AddRegime("Red");
    world::AddRegime("Blue");
    Game.Turn = 4;
    Game.CurRegime = 1;
    Game.GameEndPop = 5000;
    dialog.Prepare();
  }
  mf::NewTurnDialog dialog;
};

TEST_F(NewTurnKeysTest, EnterStartsTheTurnEvenWhenExitGameHadTheFocus) {
  Prepare();
  RunNewTurn(window.get(), dialog, [&](QDialog* d) {
    auto* proceed = d->findChild<QPushButton*>("proceed");
    auto* exitGame = d->findChild<QPushButton*>("exitGame");
    ASSERT_TRUE(proceed && exitGame);
    EXPECT_EQ(proceed->text(), "Start turn 4");
    EXPECT_TRUE(proceed->isDefault());
    EXPECT_FALSE(exitGame->autoDefault());
    exitGame->setFocus();
    SendKey(exitGame, Qt::Key_Return);
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_FALSE(UI.ExitAfterTurnForm);
  // No question to quit was asked.
  EXPECT_TRUE(platform.Messages().empty());
}

TEST_F(NewTurnKeysTest, SpaceStartsTheTurnFromAnyButtonOrList) {
  Prepare();
  RunNewTurn(window.get(), dialog, [&](QDialog* d) {
    auto* news = d->findChild<QWidget*>("news");
    ASSERT_NE(news, nullptr);
    news->setFocus();
    SendKey(news, Qt::Key_Space);
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_FALSE(UI.ExitAfterTurnForm);
}

TEST_F(NewTurnKeysTest, EscapeNeitherQuitsNorClosesTheReport) {
  Prepare();
  RunNewTurn(window.get(), dialog, [&](QDialog* d) {
    SendKey(d, Qt::Key_Escape);
    Settle();
    EXPECT_TRUE(d->isVisible());
    EXPECT_TRUE(dialog.IsOpen());
    d->findChild<QPushButton*>("proceed")->click();
  });
  EXPECT_FALSE(UI.ExitAfterTurnForm);
  EXPECT_TRUE(platform.Messages().empty());
}

}  // namespace
}  // namespace mf::app::test
