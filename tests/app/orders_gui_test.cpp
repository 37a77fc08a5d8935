// The orders in the real window: a formation is selected, "[M]ove" draws its
// reach dark, the mouse over the map tells the cost, a press moves it, and
// the buttons follow the order machine.
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <filesystem>

#include "app_fixture.h"
#include "view_runner.h"
#include "files/scenario_file.h"
#include "map_widget.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"
#include "view/draw_hex.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class OrdersWindowTest : public AppTest {
 protected:
  // Red's turn 1 of a game in play without fog: two formations of rifles
  // (3 MP) on Red's land, Blue's land to the east.
  void OpenGame() {
    world::NewMap(20, 14);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Regime[red].HexSprite = 1;
    Regime[blue].HexSprite = 2;
    for (int x = 1; x <= 20; ++x) {
      for (int y = 1; y <= 14; ++y) {
        Hex[x][y].Owner = x <= 12 ? red : blue;
        Hex[x][y].Vis = 3;
      }
    }
    const int rifles = world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Sprite = 1;
    Type[rifles].Attr[kWeight] = 1;
    Type[rifles].Attr[kMovementCap] = 3;
    Type[rifles].Attr[kSoftAttack] = 10;
    Type[rifles].Attr[kHitPoints] = 20;
    first = world::AddUnit(red, 6, 7, "1st Rifles", rifles, 30);
    Unit[first].MP = 2;
    world::AddUnit(red, 6, 7, "2nd Rifles", rifles, 30);
    world::AddUnit(blue, 15, 7, "Blue Guards", rifles, 30);
    Game.Turn = 1;
    Game.CurRegime = red;
    Game.FogOfWar = 0;
    const std::string path = TempPath("game.mf1");
    ASSERT_TRUE(WriteFile(path));
    ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  }
  QPoint Centre(int x, int y) { return window->mapWidget()->HexCentreOnView(x, y); }
  void Hover(int x, int y) {
    QWidget* view = window->mapWidget()->view();
    const QPointF at(Centre(x, y));
    QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view, &move);
    Settle();
  }
  void Click(const char* button) {
    window->orderButton(button)->click();
    Settle();
  }
  void Shot(const QString& name) {
    window->SyncWithGame();
    Settle();
    const std::filesystem::path dir(MF_SCREENSHOT_DIR);
    std::filesystem::create_directories(dir);
    EXPECT_TRUE(window->grab().toImage().save(QString::fromStdString((dir / name.toStdString()).string()), "PNG"));
  }
  int red = 0, blue = 0, first = 0;
};

TEST_F(OrdersWindowTest, TheButtonsFollowTheSelection) {
  OpenGame();
  EXPECT_FALSE(window->orderButton("move")->isEnabled());
  PressMap(Centre(6, 7));
  EXPECT_TRUE(window->orderButton("move")->isEnabled());
  EXPECT_TRUE(window->orderButton("entrench")->isEnabled());
  EXPECT_FALSE(window->orderButton("attack")->isEnabled());
  EXPECT_FALSE(window->orderButton("do")->isEnabled());
  EXPECT_EQ(window->orderButton("nextturn")->text(), "Next turn");
  PressMap(Centre(15, 7));
  EXPECT_TRUE(window->orderButton("attack")->isEnabled());
  EXPECT_FALSE(window->orderButton("move")->isEnabled());
  EXPECT_TRUE(window->orderButton("command")->toolTip().startsWith("[C]hange Command"));
}

TEST_F(OrdersWindowTest, AMoveDrawsItsReachDarkAndAPressCarriesItOut) {
  OpenGame();
  PressMap(Centre(6, 7));
  const QImage before = GrabMap();
  Click("move");
  EXPECT_EQ(UI.Order.SelOrderMove, first);
  EXPECT_EQ(window->orderButton("do")->text(), "DON'T MOVE");
  EXPECT_TRUE(window->orderButton("do")->isEnabled());
  EXPECT_TRUE(window->orderButton("cancel")->isEnabled());
  EXPECT_FALSE(window->orderButton("move")->isEnabled());
  EXPECT_EQ(LabelText(window.get(), "helpLine"),
            "You are moving a formation. Click on a highlighted hex to move it there.");

  // Two hexes east is within reach, three is not: the reachable hex now
  // shows the dark form of Red's hex picture, the other is as it was.
  const QImage reach = GrabMap();
  const QColor darkRed = LayeredColour({sprite::kDarkShift + sprite::kRegimeHexBase + 1}, 21, 20);
  EXPECT_EQ(reach.pixelColor(Centre(8, 7)), darkRed);
  EXPECT_NE(before.pixelColor(Centre(8, 7)), darkRed);
  EXPECT_EQ(reach.pixelColor(Centre(9, 7)), before.pixelColor(Centre(9, 7)));

  // The mouse over the map tells the cost.
  auto* line = window->findChild<QLabel*>("orderLine");
  ASSERT_NE(line, nullptr);
  Hover(8, 7);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->text(), "Move Cost = 2");
  Shot("move_reach.png");
  Hover(9, 7);
  EXPECT_EQ(line->text(), "No Move possible.");

  PressMap(Centre(8, 7));
  EXPECT_EQ(Hex[8][7].Unit[1], first);
  EXPECT_EQ(Unit[first].MP, 0);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_FALSE(line->isVisible());
  EXPECT_FALSE(window->orderButton("do")->isEnabled());
  EXPECT_FALSE(window->orderButton("cancel")->isEnabled());
  const QImage after = GrabMap();
  EXPECT_EQ(after.pixelColor(Centre(7, 6)), before.pixelColor(Centre(7, 6)));  // no longer dark
  Shot("after_move.png");
}

TEST_F(OrdersWindowTest, TheKeysAndTheCancelButtonWorkTheOrders) {
  OpenGame();
  PressMap(Centre(6, 7));
  PressKey(Qt::Key_M);
  EXPECT_EQ(UI.Order.SelOrderMove, first);
  window->orderButton("cancel")->click();
  Settle();
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  PressKey(Qt::Key_M);
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  PressKey(Qt::Key_E);
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
  EXPECT_EQ(window->orderButton("do")->text(), "DON'T ENTRENCH");
  PressKey(Qt::Key_Return);
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
}

TEST_F(OrdersWindowTest, AttackersJoinFromThePanel) {
  OpenGame();
  // Blue's guards next to Red's 1st rifles.
  Hex[7][7].Unit[1] = Hex[15][7].Unit[1];
  Hex[15][7].Unit[1] = 0;
  Hex[7][7].Owner = blue;
  RequestRedraw(2);
  PressMap(Centre(7, 7));
  Click("attack");
  EXPECT_EQ(UI.Order.AttackOrder, 1);
  EXPECT_EQ(window->orderButton("do")->text(), "DO ATTACK");
  PressMap(Centre(6, 7), Qt::RightButton);
  auto* counter = window->findChild<QLabel*>("stackSlot1");
  ASSERT_NE(counter, nullptr);
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), counter->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(counter, &press);
  Settle();
  EXPECT_EQ(UI.AttackerCount, 1);
  auto* big = window->findChild<QLabel*>("bigPicture");
  ASSERT_NE(big, nullptr);
  QApplication::sendEvent(big, &press);
  Settle();
  EXPECT_EQ(UI.AttackerCount, 0);
  Shot("attack_prepared.png");
}

}  // namespace
}  // namespace mf::app::test
