// Help where a player looks for it: every order button's tip names its key
// and what it does; the map's hover tip tells the hex as far as the player
// may know it; formations joined to an attack are marked on the map and in
// the panel; the Help menu opens "How to play" and "About"; the wheel
// scrolls and zooms; the reach of a move is outlined; no button is offered
// for a feature that is not there.
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QToolTip>
#include <QTimer>
#include <QWheelEvent>

#include "app_fixture.h"
#include "view_runner.h"
#include "control/order_state.h"
#include "dialog_views.h"
#include "engine/urban_production_dialog.h"
#include "files/scenario_file.h"
#include "help_window.h"
#include "map_widget.h"
#include "model/game_state.h"
#include "orders/order_buttons.h"
#include "side_panel.h"
#include "support/core_test.h"
#include "view/panel.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class HelpTest : public AppTest {
 protected:
  // Red's turn in a game without fog: Red's rifles next to Blue's.
  void OpenGame(int fog = 0) {
    world::NewMap(30, 20);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Regime[red].HexSprite = 1;
    Regime[blue].HexSprite = 4;
    for (int x = 1; x <= 30; ++x)
      for (int y = 1; y <= 20; ++y) {
        Hex[x][y].Owner = x <= 12 ? red : blue;
        Hex[x][y].Vis = fog ? 0 : 3;
      }
    rifles = world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Attr[kWeight] = 1;
    Type[rifles].Attr[kMovementCap] = 3;
    Type[rifles].Attr[kSoftAttack] = 10;
    Type[rifles].Attr[kHitPoints] = 20;
    first = world::AddUnit(red, 12, 7, "1st Rifles", rifles, 30);
    Unit[first].MP = 3;
    second = world::AddUnit(red, 12, 8, "2nd Rifles", rifles, 30);
    Unit[second].MP = 3;
    enemy = world::AddUnit(blue, 13, 7, "Blue Guards", rifles, 30);
    Game.Turn = 1;
    Game.CurRegime = red;
    Game.FogOfWar = fog;
    const std::string path = TempPath("game.mf1");
    ASSERT_TRUE(WriteFile(path));
    ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
    Settle();
  }
  QPoint Centre(int x, int y) { return window->mapWidget()->HexCentreOnView(x, y); }
  void Select(int x, int y) {
    PressMap(Centre(x, y), Qt::RightButton);
    window->SyncWithGame();
  }
  // The tip the map shows at a hex.
  QString TipAt(int x, int y) {
    QWidget* view = window->mapWidget()->view();
    QHelpEvent help(QEvent::ToolTip, Centre(x, y), view->mapToGlobal(Centre(x, y)));
    QApplication::sendEvent(view, &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }
  void Wheel(QPoint angle, Qt::KeyboardModifiers mods) {
    QWidget* view = window->mapWidget()->view();
    const QPointF at(200, 200);
    QWheelEvent e(at, view->mapToGlobal(at), QPoint(), angle, Qt::NoButton, mods, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &e);
    Settle();
  }
  int red = 0, blue = 0, rifles = 0, first = 0, second = 0, enemy = 0;
};

TEST_F(HelpTest, EveryOrderButtonTellsItsKeyAndWhatItDoes) {
  OpenGame();
  for (const auto& def : OrderButtonDefs()) {
    QPushButton* b = window->orderButton(def.name);
    ASSERT_NE(b, nullptr) << def.name;
    const QString tip = b->toolTip();
    const int id = mf::OrderButtonByName(def.name);
    ASSERT_GE(id, 0) << def.name;
    EXPECT_TRUE(tip.startsWith(QString::fromStdString(mf::OrderButtonOf(id).label))) << tip.toStdString();
    const int key = mf::OrderButtonOf(id).key;
    if (key > 0) {
      EXPECT_TRUE(tip.contains(QString("(key %1)").arg(QChar(key)))) << tip.toStdString();
    } else {
      EXPECT_TRUE(tip.contains("(no key)")) << tip.toStdString();
    }
    EXPECT_TRUE(tip.contains(def.help)) << tip.toStdString();
    EXPECT_GT(std::string(def.help).size(), 20u) << def.name;
  }
  EXPECT_TRUE(window->orderButton("cancel")->toolTip().contains("Esc"));
  EXPECT_TRUE(window->orderButton("do")->toolTip().contains("Enter"));
}

TEST_F(HelpTest, TheHoverTipTellsTheHexAsFarAsThePlayerMayKnowIt) {
  OpenGame(1);
  // Red sees his own rifles' hex and its neighbours, not farther.
  Hex[12][7].Vis = 1;
  Hex[13][7].Vis = 1;
  Hex[20][15].Vis = 0;
  world::AddUnit(blue, 20, 15, "Hidden Reserve", rifles, 10);
  const QString own = TipAt(12, 7);
  EXPECT_TRUE(own.contains("Hex 12, 7")) << own.toStdString();
  EXPECT_TRUE(own.contains("Plains")) << own.toStdString();
  EXPECT_TRUE(own.contains("Red")) << own.toStdString();
  EXPECT_TRUE(own.contains("1st Rifles")) << own.toStdString();
  EXPECT_TRUE(own.contains("MP 3")) << own.toStdString();
  const QString seen = TipAt(13, 7);
  EXPECT_TRUE(seen.contains("Blue Guards")) << seen.toStdString();
  EXPECT_FALSE(seen.contains("MP")) << seen.toStdString();
  const QString hidden = TipAt(20, 15);
  EXPECT_TRUE(hidden.contains("Blue")) << hidden.toStdString();
  EXPECT_FALSE(hidden.contains("Hidden Reserve")) << hidden.toStdString();
  EXPECT_EQ(hidden.toStdString(), HexTipText(20, 15));
}

TEST_F(HelpTest, JoinedFormationsAreMarkedOnTheMapAndInThePanel) {
  OpenGame();
  Select(13, 7);
  window->orderButton("attack")->click();
  Settle();
  ASSERT_EQ(UI.Order.AttackOrder, 1);
  const QImage before = GrabMap();

  // Red's first rifles join through their picture in the panel.
  Select(12, 7);
  auto* counter = window->sidePanel()->findChild<QLabel*>("stackSlot1");
  ASSERT_NE(counter, nullptr);
  EXPECT_TRUE(counter->toolTip().contains("Click to join")) << counter->toolTip().toStdString();
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), counter->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(counter, &press);
  Settle();
  window->SyncWithGame();
  ASSERT_EQ(UI.AttackerCount, 1);
  EXPECT_TRUE(counter->property("joined").toBool());
  EXPECT_TRUE(counter->toolTip().contains("Joined to the attack")) << counter->toolTip().toStdString();

  // The map marks the joined hex; the other hex of Red stays as it was.
  const QImage after = GrabMap();
  const QPoint joined = Centre(12, 7);
  const QPoint other = Centre(12, 8);
  int changed = 0;
  for (int dy = -16; dy <= 16; ++dy)
    for (int dx = -16; dx <= 16; ++dx)
      if (before.pixelColor(joined + QPoint(dx, dy)) != after.pixelColor(joined + QPoint(dx, dy))) ++changed;
  EXPECT_GT(changed, 40);
  EXPECT_EQ(before.pixelColor(other + QPoint(0, 6)), after.pixelColor(other + QPoint(0, 6)));
  // The target carries its red ring.
  const QColor ring = after.pixelColor(Centre(13, 7) + QPoint(17, 0));
  EXPECT_GT(ring.red(), 180);
  EXPECT_LT(ring.green(), 120);
}

TEST_F(HelpTest, AMoveOutlinesItsReach) {
  OpenGame();
  Select(12, 8);
  const QImage before = GrabMap();
  window->orderButton("move")->click();
  Settle();
  ASSERT_GT(UI.Order.SelOrderMove, 0);
  const QImage after = GrabMap();
  // Somewhere on the map the outline's light colour now shows.
  int light = 0;
  for (int y = 0; y < after.height(); y += 1)
    for (int x = 0; x < after.width(); x += 1) {
      const QColor c = after.pixelColor(x, y);
      if (c == QColor(130, 235, 255) && before.pixelColor(x, y) != c) ++light;
    }
  EXPECT_GT(light, 50);
}

TEST_F(HelpTest, TheWheelScrollsShiftWheelScrollsAcrossCtrlWheelZooms) {
  OpenGame();
  UI.ScrollX = 0;
  UI.ScrollY = 0;
  window->SyncWithGame();
  ASSERT_GT(UI.ScrollMaxY, 0);
  Wheel(QPoint(0, -120), Qt::NoModifier);
  EXPECT_EQ(UI.ScrollY, std::min<Long>(60, UI.ScrollMaxY));
  EXPECT_EQ(UI.ScrollX, 0);
  Wheel(QPoint(0, 120), Qt::NoModifier);
  EXPECT_EQ(UI.ScrollY, 0);
  if (UI.ScrollMaxX > 0) {
    Wheel(QPoint(0, -120), Qt::ShiftModifier);
    EXPECT_EQ(UI.ScrollX, std::min<Long>(84, UI.ScrollMaxX));
  }
  Wheel(QPoint(0, 120), Qt::ControlModifier);
  EXPECT_EQ(window->mapWidget()->Zoom(), 2);
  EXPECT_TRUE(window->action("zoom2")->isChecked());
  Wheel(QPoint(0, -120), Qt::ControlModifier);
  EXPECT_EQ(window->mapWidget()->Zoom(), 1);
  EXPECT_TRUE(window->action("zoom1")->isChecked());
}

TEST_F(HelpTest, TheHelpMenuOpensHowToPlayAndAbout) {
  QAction* how = window->action("howToPlay");
  QAction* about = window->action("about");
  ASSERT_TRUE(how && about);
  EXPECT_EQ(how->text(), "How to play");
  EXPECT_EQ(about->text(), "About");
  how->trigger();
  Settle();
  auto* page = window->findChild<HelpWindow*>("howToPlayWindow");
  ASSERT_NE(page, nullptr);
  EXPECT_TRUE(page->isVisible());
  const QString text = page->findChild<QTextBrowser*>("helpText")->toPlainText();
  for (const char* part : {"The screen", "The counters", "attack", "defence", "Supply", "Attacking", "DO ATTACK",
                           "Keys", "Esc", "Ctrl + wheel"}) {
    EXPECT_TRUE(text.contains(part)) << part;
  }
  about->trigger();
  Settle();
  auto* box = window->findChild<HelpWindow*>("aboutWindow");
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->findChild<QTextBrowser*>("helpText")->toPlainText().contains("Marrowfield"));
  // Help can be read while the computer plays.
  UI.BusyPointer = true;
  window->SyncWithGame();
  EXPECT_TRUE(how->isEnabled());
  UI.BusyPointer = false;
}

TEST_F(HelpTest, TheUnitTypeInfoButtonIsOfferedNowThatTheInfoWindowExists) {
  OpenGame();
  Hex[5][5].Land = kUrban;
  Hex[5][5].Pop = 500;
  Hex[5][5].Owner = red;
  mf::UrbanProductionDialog dialog;
  dialog.Prepare(5, 5);
  RunDialogView(dialog, window.get(), "urbanProductionDialog", [](QDialog* d) {
    auto* info = d->findChild<QPushButton*>("info");
    ASSERT_NE(info, nullptr);
    EXPECT_TRUE(info->isVisible());
    d->findChild<QPushButton*>("close")->click();
  });
}

}  // namespace
}  // namespace mf::app::test
