// The real window on the offscreen platform: it opens on the empty map,
// loads a scenario, draws it with the game's own pictures, and turns presses
// and keys into the game's selection and switches.
#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QScrollBar>
#include <QSet>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <filesystem>

#include "app_fixture.h"
#include "view_runner.h"
#include "files/scenario_file.h"
#include "map_widget.h"
#include "minimap.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "qt_canvas.h"
#include "side_panel.h"
#include "splash.h"
#include "support/core_test.h"
#include "view/counter.h"
#include "view/draw_hex.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

// The middle of a hex picture, where the terrain shows best.
constexpr int kMidX = 21;
constexpr int kMidY = 20;

class WindowTest : public AppTest {
 protected:
  // A small scenario made with the game's own routines and saved as the
  // editor saves it: each landscape once, apart from one another, a regime
  // with land and a formation, a town.
  std::string MakeScenario() {
    world::NewMap(14, 12);
    Hex[3][3].Land = kSea;
    Hex[5][4].Land = kForest;
    Hex[7][5].Land = kMountain;
    Hex[4][7].Land = kSwamp;
    Hex[6][9].Land = kUrban;
    Hex[6][9].Pop = 3;
    Hex[6][9].UrbanName = "Ashford";
    const int red = world::AddRegime("Red");
    Regime[red].HexSprite = 3;
    const int rifles = world::AddType("Rifles", kLandTheater, 1);
    world::AddUnit(red, 9, 9, "1st Rifles", rifles, 10);
    Hex[10][9].Owner = red;
    const std::string path = TempPath("small.mf1");
    EXPECT_TRUE(WriteFile(path));
    onlyclear();
    return path;
  }

  QColor At(const QImage& img, int x, int y) {
    const QPoint c = window->mapWidget()->HexCentreOnView(x, y);
    return img.pixelColor(c);
  }
};

TEST_F(WindowTest, ItOpensOnTheEmptyTenByTenMapInEditingMode) {
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_TRUE(UI.HideEditor);
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(window->windowTitle(), "Marrowfield");
  EXPECT_EQ(LabelText(window.get(), "modeLabel"), "EDITING   10 x 10");
  // The editor's menus: start and the editing switch, no turn commands.
  EXPECT_TRUE(window->action("start")->isEnabled());
  EXPECT_TRUE(window->action("editor")->isEnabled());
  EXPECT_FALSE(window->action("editor")->isChecked());
  EXPECT_FALSE(window->action("endTurn")->isEnabled());
  EXPECT_FALSE(window->action("surrender")->isEnabled());
  EXPECT_TRUE(window->action("save")->isEnabled());
  EXPECT_FALSE(window->orderButton("nextturn")->isEnabled());
  EXPECT_EQ(window->orderButton("cancel")->text(), "CANCEL ORDER");
  // Every hex of the empty map is grass, as the plain hex picture has it.
  const QImage map = GrabMap();
  const QColor grass = LayeredColour({sprite::kBaseHex}, kMidX, kMidY);
  ASSERT_TRUE(grass.isValid());
  for (int x : {1, 5, 10}) {
    for (int y : {1, 6, 10}) EXPECT_EQ(At(map, x, y), grass) << "hex " << x << "," << y;
  }
}

TEST_F(WindowTest, ALoadedScenarioIsDrawnWithTheGamesOwnPictures) {
  const std::string path = MakeScenario();
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  ASSERT_FALSE(platform.Messages().empty());
  EXPECT_EQ(platform.Messages().back(), "Loaded");
  EXPECT_EQ(Game.MapW, 14);
  EXPECT_EQ(Game.MapH, 12);
  EXPECT_EQ(LabelText(window.get(), "helpLine"),
            "You have loaded a game. You can now edit it or select start in the menu.");

  const QImage map = GrabMap();
  EXPECT_EQ(At(map, 2, 2), LayeredColour({sprite::kBaseHex}, kMidX, kMidY)) << "grass";
  // The load selects hex (1, 1): it is drawn like any other, under its outline.
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(At(map, 1, 1), LayeredColour({sprite::kBaseHex}, kMidX, kMidY)) << "selected grass";
  EXPECT_EQ(At(map, 3, 3), LayeredColour({sprite::kSeaHex}, kMidX, kMidY)) << "sea";
  EXPECT_EQ(At(map, 5, 4), LayeredColour({sprite::kBaseHex, sprite::kForest}, kMidX, kMidY)) << "forest";
  EXPECT_EQ(At(map, 7, 5), LayeredColour({sprite::kBaseHex, sprite::kMountain}, kMidX, kMidY)) << "mountain";
  EXPECT_EQ(At(map, 4, 7), LayeredColour({sprite::kBaseHex, sprite::kSwamp}, kMidX, kMidY)) << "swamp";
  EXPECT_EQ(At(map, 10, 9), LayeredColour({sprite::kRegimeHexBase + 3}, kMidX, kMidY)) << "Red's land";
  // The landscapes really differ from one another on screen.
  EXPECT_NE(At(map, 2, 2), At(map, 3, 3));
  EXPECT_NE(At(map, 2, 2), At(map, 10, 9));
}

TEST_F(WindowTest, APressOnAHexSelectsItAndFillsThePanel) {
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(MakeScenario())));
  PressMap(window->mapWidget()->HexCentreOnView(9, 9));
  EXPECT_EQ(UI.SelX, 9);
  EXPECT_EQ(UI.SelY, 9);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.SelCount, 1);
  SidePanel* panel = window->sidePanel();
  EXPECT_EQ(LabelText(panel, "hexCoords"), "Hex 9, 9");
  EXPECT_EQ(LabelText(panel, "landLabel"), "Plains");
  EXPECT_EQ(LabelText(panel, "ownerLabel"), "Red");
  EXPECT_EQ(LabelText(panel, "unitName"), "1st Rifles");
  EXPECT_EQ(LabelText(panel, "troop1"), "Rifles  x 10");
  EXPECT_FALSE(panel->findChild<QLabel*>("stackSlot1")->pixmap().isNull());

  // The town: its name in the panel, no formation.
  PressMap(window->mapWidget()->HexCentreOnView(6, 9));
  EXPECT_EQ(UI.SelX, 6);
  EXPECT_EQ(UI.SelSlot, 0);
  EXPECT_EQ(LabelText(panel, "urbanName"), "Ashford");
  EXPECT_TRUE(panel->findChild<QLabel*>("stackSlot1")->pixmap().isNull());
}

TEST_F(WindowTest, APressBetweenTwoRowsSelectsNothing) {
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(MakeScenario())));
  PressMap(window->mapWidget()->HexCentreOnView(5, 5));
  ASSERT_EQ(UI.SelX, 5);
  // Half-way between the centres of (5, 5) and (6, 5), 12 units below the
  // row's line: the zigzag band at the edge of the row.
  const QPoint c = window->mapWidget()->HexCentreOnView(5, 5);
  PressMap(QPoint(c.x() + 21, c.y() + 12));
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 5);
}

TEST_F(WindowTest, TwoPressesOnAStackWalkThroughIt) {
  world::NewMap(12, 12);
  const int red = world::AddRegime("Red");
  world::AddUnit(red, 4, 4, "First");
  world::AddUnit(red, 4, 4, "Second");
  const std::string path = TempPath("stack.mf1");
  ASSERT_TRUE(WriteFile(path));
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  const QPoint c = window->mapWidget()->HexCentreOnView(4, 4);
  PressMap(c);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(LabelText(window->sidePanel(), "unitName"), "First");
  PressMap(c, Qt::RightButton);
  EXPECT_EQ(UI.SelSlot, 2);
  EXPECT_EQ(LabelText(window->sidePanel(), "unitName"), "Second");
}

TEST_F(WindowTest, F1SwitchesTheSoundWithItsMessage) {
  PressKey(Qt::Key_F1);
  EXPECT_EQ(UI.SoundOff, 1);
  ASSERT_FALSE(platform.Messages().empty());
  EXPECT_EQ(platform.Messages().back(), "Sound is switched off");
  PressKey(Qt::Key_F1);
  EXPECT_EQ(UI.SoundOff, 0);
  EXPECT_EQ(platform.Messages().back(), "Sound is switched on");
}

TEST_F(WindowTest, ArrowKeysScrollABigMapByHalfAView) {
  world::NewMap(60, 40);
  const std::string path = TempPath("big.mf1");
  ASSERT_TRUE(WriteFile(path));
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  window->SyncWithGame();
  ASSERT_GT(UI.ScrollMaxX, 0);
  // The window's own view decides the scroll range: picture less the view.
  EXPECT_EQ(UI.ScrollMaxX, 60 * 42 + 70 - UI.ViewW);
  EXPECT_EQ(UI.ViewW, window->mapWidget()->view()->width());
  PressKey(Qt::Key_Right);
  EXPECT_EQ(UI.ScrollX, UI.ViewW / 2);
  auto* bar = window->mapWidget()->findChild<QScrollBar*>("mapScrollX");
  ASSERT_NE(bar, nullptr);
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(bar->value(), UI.ScrollX);
  // The picture follows the scroll: hex (x, y) is drawn where it now stands.
  const QImage map = GrabMap();
  const QPoint c = window->mapWidget()->HexCentreOnView(20, 5);
  EXPECT_EQ(map.pixelColor(c), LayeredColour({sprite::kBaseHex}, kMidX, kMidY));
  PressKey(Qt::Key_Left);
  EXPECT_EQ(UI.ScrollX, 0);
}

TEST_F(WindowTest, ASmallMapHidesTheScrollBars) {
  auto* h = window->mapWidget()->findChild<QScrollBar*>("mapScrollX");
  auto* v = window->mapWidget()->findChild<QScrollBar*>("mapScrollY");
  EXPECT_FALSE(h->isVisible());
  EXPECT_FALSE(v->isVisible());
  EXPECT_EQ(UI.ScrollMaxX, 0);
}

TEST_F(WindowTest, TheMinimapMovesTheMapWindow) {
  world::NewMap(80, 80);
  Hex[70][70].Land = kSea;
  const std::string path = TempPath("huge.mf1");
  ASSERT_TRUE(WriteFile(path));
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  Minimap* mini = window->minimap();
  // A press on the lower right of the minimap brings that corner into view.
  QPoint target;
  for (int px = mini->width() - 1; px > 0 && target.isNull(); --px) {
    const QPoint hex = mini->HexAt(QPoint(px, mini->height() / 2));
    if (hex.x() == 70) target = QPoint(px, mini->height() / 2);
  }
  ASSERT_FALSE(target.isNull());
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(target), mini->mapToGlobal(QPointF(target)),
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(mini, &press);
  Settle();
  EXPECT_GT(UI.ScrollX, 0);
  const QPoint c = window->mapWidget()->HexCentreOnView(70, 40);
  EXPECT_GT(c.x(), 0);
  EXPECT_LT(c.x(), window->mapWidget()->view()->width());
}

// A wheel notch moves the view without drawing the minimap's picture of the
// whole map again; the minimap still shows the game, the moved view and any
// change the game asked to be drawn together with the scroll.
TEST_F(WindowTest, AScrollKeepsTheMinimapTheGames) {
  world::NewMap(80, 80);
  const std::string path = TempPath("scroll.mf1");
  ASSERT_TRUE(WriteFile(path));
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  window->SyncWithGame();
  Settle();
  Minimap* mini = window->minimap();
  QWidget* view = window->mapWidget()->view();
  auto wheelDown = [&] {
    const QPointF at(view->width() / 2.0, view->height() / 2.0);
    QWheelEvent e(at, view->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                  Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &e);
    Settle();
  };
  auto minimapAsRebuilt = [&] {
    const QImage shown = mini->grab().toImage();
    mini->Rebuild();
    return shown == mini->grab().toImage();
  };
  const QImage before = mini->grab().toImage();
  const Long scrollBefore = UI.ScrollY;
  wheelDown();
  EXPECT_GT(UI.ScrollY, scrollBefore);
  EXPECT_FALSE(before == mini->grab().toImage()) << "the minimap's view frame did not move";
  EXPECT_TRUE(minimapAsRebuilt()) << "after a scroll";

  // A change of the map waiting to be drawn when the wheel turns.
  for (int x = 1; x <= 20; ++x) Hex[x][3].Land = kSea;
  RequestRedraw(2);
  wheelDown();
  EXPECT_TRUE(minimapAsRebuilt()) << "after a scroll with a change of the map";
}

// An SHQ's counter reads "SHQ" where the attack stands and its defence
// beside it: the wide word is drawn narrower, so that a blank of the card
// stays between the two and they never read as "SHQ0".
TEST_F(WindowTest, AnSHQsTwoFiguresStayApart) {
  const QColor card(170, 30, 30);
  for (int scale : {1, 2}) {
    SCOPED_TRACE(scale);
    ImageCanvas canvas(48, 41, card, scale);
    canvas.Clear();
    canvas.Text("SHQ", mf::kAttackTextX, mf::kFigureTextY, "Small Fonts", mf::kFigureFontSize, 0xFFFFFF);
    canvas.Text("0", mf::kDefenceTextX, mf::kFigureTextY, "Small Fonts", mf::kFigureFontSize, 0xFFFFFF);
    canvas.End();
    const QImage& img = canvas.image();
    // Whether any pixel of picture column `col` in the figures' band is ink.
    auto inked = [&](int col) {
      for (int px = col * scale; px < (col + 1) * scale; ++px)
        for (int py = (mf::kFigureTextY - 1) * scale; py < (mf::kFigureTextY + 10) * scale; ++py)
          if (img.pixelColor(px, py).lightness() > card.lightness() + 60) return true;
      return false;
    };
    EXPECT_TRUE(inked(mf::kAttackTextX + 1));
    EXPECT_TRUE(inked(mf::kDefenceTextX + 1));
    // A blank as wide as a space: three clear columns before the defence.
    int clear = 0;
    for (int col = mf::kDefenceTextX - 3; col < mf::kDefenceTextX; ++col) clear += inked(col) ? 0 : 1;
    EXPECT_EQ(clear, 3) << "the attack figure ran into the defence figure";
  }
}

TEST_F(WindowTest, MinimapCellsFollowTheTablesAndTheFog) {
  world::NewMap(12, 12);
  const int red = world::AddRegime("Red");
  Regime[red].HexSprite = 5;
  Hex[2][2].Land = kSea;
  world::AddUnit(red, 4, 4, "Seen");
  Hex[6][6].Pop = 2;
  EXPECT_EQ(MinimapCellAt(2, 2).colour, LayeredColour({sprite::kSeaHex}, kMidX, kMidY));
  EXPECT_EQ(MinimapCellAt(4, 4).colour, LayeredColour({sprite::kRegimeHexBase + 5}, kMidX, kMidY));
  EXPECT_TRUE(MinimapCellAt(4, 4).unit);
  EXPECT_TRUE(MinimapCellAt(6, 6).town);
  // In play under fog of war a formation out of sight is not shown.
  UI.EditMode = 0;
  Game.FogOfWar = 1;
  Game.CurRegime = 1;
  Hex[4][4].Vis = 0;
  EXPECT_FALSE(MinimapCellAt(4, 4).unit);
  Hex[4][4].Vis = 1;
  EXPECT_TRUE(MinimapCellAt(4, 4).unit);
  // Fog of exploration: a hex the regime never saw is dark.
  Game.FogOfExploration = 1;
  Hex[2][2].Seen[1] = 0;
  EXPECT_EQ(MinimapCellAt(2, 2).colour, QColor(40, 40, 44));
}

TEST_F(WindowTest, ZoomTwoDrawsThePicturesDrawnAtTwiceTheSize) {
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(MakeScenario())));
  window->action("zoom2")->trigger();
  Settle();
  EXPECT_EQ(window->mapWidget()->Zoom(), 2);
  EXPECT_EQ(window->mapWidget()->DrawScale(), 2);
  EXPECT_EQ(UI.ViewW, window->mapWidget()->view()->width() / 2);
  const QImage map = GrabMap();
  const QPoint c = window->mapWidget()->HexCentreOnView(3, 3);
  EXPECT_EQ(c, QPoint(2 * (3 * 42 + 21), 2 * 90));
  // Pixel for pixel the sea picture drawn at twice the size, not the small
  // one enlarged: neighbouring screen pixels differ where the fine picture does.
  const QImage fine = Sprites().Get(sprite::kSeaHex, 2).toImage();
  ASSERT_EQ(fine.width(), 86);
  int differ = 0;
  for (int dy = -8; dy < 8; ++dy) {
    for (int dx = -8; dx < 8; ++dx) {
      EXPECT_EQ(map.pixelColor(c + QPoint(dx, dy)), fine.pixelColor(2 * kMidX + dx, 2 * kMidY + dy));
      if (dx % 2 == 0 && map.pixelColor(c + QPoint(dx, dy)) != map.pixelColor(c + QPoint(dx + 1, dy))) ++differ;
    }
  }
  EXPECT_GT(differ, 0);
  // A press at zoom 2 finds the hex under it.
  PressMap(c);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 3);
}

TEST_F(WindowTest, TheViewMenuSwitchesTickAndRedraw) {
  QAction* grid = window->action("showGrid");
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->text(), "Show/Hide Grid");
  EXPECT_FALSE(grid->isChecked());
  const QImage before = GrabMap();
  grid->trigger();
  EXPECT_EQ(UI.Overlay.ShowGrid, 1);
  EXPECT_TRUE(grid->isChecked());
  const QImage after = GrabMap();
  // The grid runs along the hex outline: the top left corner of hex (5, 5).
  const QPoint c = window->mapWidget()->HexCentreOnView(5, 5);
  const QPoint corner(c.x() - 21, c.y());
  EXPECT_NE(before.pixelColor(corner), after.pixelColor(corner));
  EXPECT_EQ(after.pixelColor(corner), GameColour(kColourGrid));
}

TEST_F(WindowTest, NewScenarioFromTheMenuClearsToTheDialogsSize) {
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(MakeScenario())));
  // Unattended, the dialog takes its default: "Make it so" with the fields
  // as they start, the size of the map as it is.
  window->action("newScenario")->trigger();
  Settle();
  EXPECT_EQ(Game.MapW, 14);
  EXPECT_EQ(Game.MapH, 12);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(LabelText(window.get(), "regimeLabel"), "Editing");
  const QImage map = GrabMap();
  EXPECT_EQ(At(map, 3, 3), LayeredColour({sprite::kBaseHex}, kMidX, kMidY));  // the sea is gone
}

TEST_F(WindowTest, AHiddenMapShowsNothingOfTheGame) {
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(MakeScenario())));
  const QColor sea = LayeredColour({sprite::kSeaHex}, kMidX, kMidY);
  ASSERT_EQ(At(GrabMap(), 3, 3), sea);
  // What the turn driver does between two players at one screen.
  UI.MapShown = false;
  UI.PanelsShown = false;
  UI.MapControlsShown = false;
  window->SyncWithGame();
  Settle();
  const QImage map = GrabMap();
  EXPECT_EQ(At(map, 3, 3), map.pixelColor(0, 0));
  EXPECT_EQ(At(map, 5, 4), map.pixelColor(0, 0));
  const QImage mini = window->minimap()->grab().toImage();
  const QPoint inside(mini.width() / 2, mini.height() / 2);
  EXPECT_EQ(mini.pixelColor(inside), mini.pixelColor(0, 0));
  EXPECT_FALSE(window->sidePanel()->isVisible());
  EXPECT_FALSE(window->orderButton("move")->isVisible());
  EXPECT_FALSE(window->orderButton("cancel")->isVisible());
  // Presses on the hidden map select nothing.
  PressMap(window->mapWidget()->HexCentreOnView(9, 9));
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(UI.SelY, 1);
  // Shown again, the map is all there.
  UI.MapShown = true;
  UI.PanelsShown = true;
  UI.MapControlsShown = true;
  window->SyncWithGame();
  Settle();
  EXPECT_EQ(At(GrabMap(), 3, 3), sea);
  EXPECT_TRUE(window->sidePanel()->isVisible());
  EXPECT_TRUE(window->orderButton("move")->isVisible());
}

TEST_F(WindowTest, WhileTheGameIsBusyThePlayersCommandsWait) {
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(MakeScenario())));
  UI.BusyPointer = true;
  window->SyncWithGame();
  EXPECT_FALSE(window->action("load")->isEnabled());
  EXPECT_FALSE(window->action("start")->isEnabled());
  EXPECT_TRUE(window->action("showGrid")->isEnabled());
  window->action("showGrid")->trigger();
  EXPECT_EQ(UI.Overlay.ShowGrid, 1);  // the view still follows the player
  EXPECT_TRUE(platform.Busy());  // the wait cursor
  PressMap(window->mapWidget()->HexCentreOnView(9, 9));
  PressKey(Qt::Key_F1);
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(UI.SoundOff, 0);
  UI.BusyPointer = false;
  window->SyncWithGame();
  EXPECT_FALSE(platform.Busy());
  EXPECT_TRUE(window->action("load")->isEnabled());
  PressMap(window->mapWidget()->HexCentreOnView(9, 9));
  EXPECT_EQ(UI.SelX, 9);
}

TEST_F(WindowTest, QuittingAsksFirst) {
  platform.QueueAnswer("no");
  window->close();
  EXPECT_TRUE(window->isVisible());
  ASSERT_FALSE(platform.Messages().empty());
  EXPECT_EQ(platform.Messages().back(), "Are you sure you want to quit?");
}

TEST_F(WindowTest, AScreenshotOfALoadedScenario) {
  // A larger scenario for a person to look at: land of two regimes, a river
  // of sea, forests, hills, towns and a few formations.
  world::NewMap(34, 22);
  const int red = world::AddRegime("Red");
  const int blue = world::AddRegime("Blue");
  Regime[red].HexSprite = 1;
  Regime[blue].HexSprite = 4;
  const int rifles = world::AddType("Rifles", kLandTheater, 1);
  for (int x = 1; x <= 34; ++x) {
    for (int y = 1; y <= 22; ++y) {
      if ((x + y) % 7 == 0 && x > 3) Hex[x][y].Land = kForest;
      if ((x * 3 + y) % 11 == 0) Hex[x][y].Land = kMountain;
      if (x == 17 || (x == 18 && y % 3 == 0)) Hex[x][y].Land = kSea;
      if (Hex[x][y].Land != kSea) Hex[x][y].Owner = x < 17 ? red : blue;
    }
  }
  Hex[8][6].Land = kUrban;
  Hex[8][6].Pop = 6;
  Hex[8][6].UrbanName = "Ashford";
  Hex[26][14].Land = kUrban;
  Hex[26][14].Pop = 4;
  Hex[26][14].UrbanName = "Brennick";
  Type[rifles].Sprite = 1;
  const int first = world::AddUnit(red, 10, 8, "1st Rifles", rifles, 10);
  Game.OfficerCount = 1;
  Officer[1].Name = "Col. Varga";
  Officer[1].Pic = 3;
  Officer[1].Regime = red;
  Unit[first].Officer = 1;
  world::AddUnit(red, 10, 8, "2nd Rifles", rifles, 8);
  world::AddUnit(red, 13, 11, "3rd Rifles", rifles, 12);
  world::AddUnit(blue, 21, 9, "Blue Guards", rifles, 10);
  const std::string path = TempPath("shot.mf1");
  ASSERT_TRUE(WriteFile(path));
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  PressMap(window->mapWidget()->HexCentreOnView(10, 8));
  window->SyncWithGame();
  Settle();
  const QImage shot = window->grab().toImage();
  ASSERT_FALSE(shot.isNull());
  EXPECT_EQ(shot.width(), window->width());
  const std::filesystem::path dir(MF_SCREENSHOT_DIR);
  std::filesystem::create_directories(dir);
  const QString file = QString::fromStdString((dir / "loaded_scenario.png").string());
  EXPECT_TRUE(shot.save(file, "PNG"));
  EXPECT_TRUE(QImage(file).size() == shot.size());

  // The smallest screen the game runs on.
  window->resize(1024, 740);
  Settle();
  window->SyncWithGame();
  Settle();
  const QImage small = window->grab().toImage();
  EXPECT_EQ(small.width(), 1024);
  EXPECT_TRUE(small.save(QString::fromStdString((dir / "loaded_scenario_1024.png").string()), "PNG"));
  // The map view still shows the scenario, with the scroll range of its real size.
  EXPECT_EQ(UI.ViewW, window->mapWidget()->view()->width());
  EXPECT_EQ(UI.ScrollMaxX, 34 * 42 + 70 - UI.ViewW);
}

TEST_F(WindowTest, ASavedGameInPlayShowsItsRegimeTurnAndTheTurnCommands) {
  world::NewMap(20, 14);
  const int red = world::AddRegime("Red");
  world::AddRegime("Blue");
  Regime[red].PP = 35;
  Regime[red].HexSprite = 1;
  world::AddUnit(red, 5, 5, "Guards");
  Game.Turn = 2;
  Game.CurRegime = red;
  const std::string path = TempPath("game.mf1");
  ASSERT_TRUE(WriteFile(path));
  ASSERT_TRUE(window->OpenFile(QString::fromStdString(path)));
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_EQ(LabelText(window.get(), "helpLine"), "Welcome back to your game.");
  EXPECT_EQ(LabelText(window.get(), "regimeLabel"), "Red");
  EXPECT_EQ(LabelText(window.get(), "turnLabel"), "Turn 2");
  EXPECT_EQ(LabelText(window.get(), "ppLabel"), "PP 35");
  EXPECT_EQ(LabelText(window.get(), "modeLabel"), "");
  EXPECT_FALSE(window->action("start")->isEnabled());
  EXPECT_FALSE(window->action("editor")->isEnabled());
  EXPECT_TRUE(window->action("endTurn")->isEnabled());
  EXPECT_TRUE(window->action("surrender")->isEnabled());
  EXPECT_TRUE(window->orderButton("nextturn")->isEnabled());
  PressMap(window->mapWidget()->HexCentreOnView(5, 5));
  window->SyncWithGame();
  const std::filesystem::path dir(MF_SCREENSHOT_DIR);
  std::filesystem::create_directories(dir);
  EXPECT_TRUE(window->grab().toImage().save(QString::fromStdString((dir / "game_in_play.png").string()), "PNG"));
}

TEST_F(WindowTest, TheSplashPictureIsPaintedFromTheGamesPictures) {
  const QImage splash = SplashPicture();
  ASSERT_EQ(splash.size(), QSize(640, 360));
  const std::filesystem::path dir(MF_SCREENSHOT_DIR);
  std::filesystem::create_directories(dir);
  EXPECT_TRUE(splash.save(QString::fromStdString((dir / "splash.png").string()), "PNG"));
  // The strip of country along the bottom is made of hex pictures: the
  // colours of the plain hex picture show there, and none above it.
  const QImage plain = Sprites().Image(sprite::kBaseHex);
  QSet<QRgb> grass;
  for (int x = 0; x < plain.width(); ++x)
    for (int y = 0; y < plain.height(); ++y)
      if (qAlpha(plain.pixel(x, y)) == 255) grass.insert(plain.pixel(x, y));
  int strip = 0, sky = 0;
  for (int x = 0; x < splash.width(); ++x) {
    for (int y = 0; y < splash.height(); ++y) {
      if (!grass.contains(splash.pixel(x, y) | 0xFF000000u)) continue;
      (y >= 210 ? strip : sky) += 1;
    }
  }
  EXPECT_GT(strip, 5000);
  EXPECT_EQ(sky, 0);
}

}  // namespace
}  // namespace mf::app::test
