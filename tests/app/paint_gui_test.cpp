// Map painting in the window: the tools beside the map, a drag that paints
// every hex it crosses, Ctrl+Z and Ctrl+Y, and the brush under the pointer.
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <filesystem>

#include "app_fixture.h"
#include "editor/map_paint.h"
#include "map_widget.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class PaintViewTest : public AppTest {
 protected:
  void SetUp() override {
    AppTest::SetUp();
    world::NewMap(20, 14);
    world::AddRegime("Red");
    world::AddRegime("Blue");
    Regime[1].HexSprite = 2;  // their colours on the map
    Regime[2].HexSprite = 4;
    UI.EditMode = 1;
    UI.HideEditor = false;
    mf::LayOutMapWindow();
    mf::PaintTools = mf::PaintToolsRec{};
    mf::ForgetPaintStrokes();
    RequestRedraw(2);
    window->SyncWithGame();
    Settle();
  }
  void TearDown() override {
    mf::EndPainting();
    mf::ForgetPaintStrokes();
    AppTest::TearDown();
  }
  template <typename T>
  T* Find(const char* name) {
    return window->findChild<T*>(name);
  }
  void Send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
    QWidget* view = window->mapWidget()->view();
    QMouseEvent e(type, QPointF(at), view->mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
    QApplication::sendEvent(view, &e);
  }
  QPoint Centre(int x, int y) { return window->mapWidget()->HexCentreOnView(x, y); }
};

TEST_F(PaintViewTest, TheToolsPaintADragAndUndoIt) {
  auto* box = Find<QLineEdit>("paintRegimeBox");
  auto* regime = Find<QPushButton>("paintRegime");
  auto* type = Find<QPushButton>("paintType");
  auto* list = Find<QListWidget>("paintList");
  ASSERT_TRUE(box && regime && type && list);
  EXPECT_TRUE(Find<QWidget>("paintPanel")->isVisible());
  EXPECT_EQ(regime->text(), "PAINT REGIME");
  EXPECT_EQ(list->count(), 16);
  EXPECT_EQ(list->item(1)->text(), "2 Forest");
  EXPECT_EQ(list->item(2)->text(), "");

  // An empty box: the message, no brush.
  regime->click();
  Settle();
  ASSERT_FALSE(platform.Messages().empty());
  EXPECT_EQ(platform.Messages().back(),
            "Type a valid regime # in the box above or use 99 to paint neutral ownership.");

  box->setFocus();
  box->insert("2");
  regime->click();
  Settle();
  EXPECT_EQ(UI.Order.RegimePaint, 2);
  EXPECT_EQ(regime->text(), "END REGIME PAINTING");

  // A press on (3, 5) and a drag along the row to (9, 5): every hex between is Blue's.
  const QPoint from = Centre(3, 5), to = Centre(9, 5);
  Send(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
  Send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  Settle();
  for (int x = 3; x <= 9; ++x) EXPECT_EQ(Hex[x][5].Owner, 2) << x;
  EXPECT_EQ(Hex[10][5].Owner, 0);
  EXPECT_EQ(Hex[3][6].Owner, 0);
  EXPECT_EQ(mf::UndoDepth(), 1);

  // The brush under the pointer, kept as a picture for a person to look at.
  Send(QEvent::MouseMove, Centre(12, 8), Qt::NoButton, Qt::NoButton);
  window->SyncWithGame();
  Settle();
  const QImage shot = window->grab().toImage();
  const std::filesystem::path dir(MF_SCREENSHOT_DIR);
  std::filesystem::create_directories(dir);
  EXPECT_TRUE(shot.save(QString::fromStdString((dir / "map_painting.png").string()), "PNG"));
  // The hovered hex is lighter in the view than the same hex without a brush.
  const QImage withBrush = window->mapWidget()->view()->grab().toImage();
  const QColor lit = withBrush.pixelColor(Centre(12, 8));

  // Ctrl+Z takes the stroke back, Ctrl+Y does it again.
  QShortcut* undo = window->findChild<QShortcut*>("paintUndo");
  QShortcut* redo = window->findChild<QShortcut*>("paintRedo");
  ASSERT_TRUE(undo && redo);
  EXPECT_EQ(undo->key(), QKeySequence(QKeySequence::Undo));
  EXPECT_EQ(redo->key(), QKeySequence(Qt::CTRL | Qt::Key_Y));
  emit undo->activated();
  Settle();
  for (int x = 3; x <= 9; ++x) EXPECT_EQ(Hex[x][5].Owner, 0) << x;
  emit redo->activated();
  Settle();
  for (int x = 3; x <= 9; ++x) EXPECT_EQ(Hex[x][5].Owner, 2) << x;

  // The type brush from the list; the regime brush ends.
  list->setCurrentRow(3);  // "4 Sea"
  type->click();
  Settle();
  EXPECT_EQ(type->text(), "END TYPE PAINTING");
  EXPECT_EQ(regime->text(), "PAINT REGIME");
  PressMap(Centre(4, 5));
  EXPECT_EQ(Hex[4][5].Land, kSea);
  EXPECT_EQ(Hex[4][5].Owner, 0);
  type->click();
  Settle();
  EXPECT_EQ(UI.Order.LandscapePaint, 0);
  // With no brush the hovered hex is drawn plainly again.
  Send(QEvent::MouseMove, Centre(12, 9), Qt::NoButton, Qt::NoButton);
  Send(QEvent::MouseMove, Centre(12, 8), Qt::NoButton, Qt::NoButton);
  window->SyncWithGame();
  Settle();
  const QColor plain = window->mapWidget()->view()->grab().toImage().pixelColor(Centre(12, 8));
  EXPECT_GT(lit.lightness(), plain.lightness());
}

TEST_F(PaintViewTest, TheToolsHideOutsideTheEditor) {
  UI.EditMode = 0;
  window->SyncWithGame();
  Settle();
  EXPECT_FALSE(Find<QWidget>("paintPanel")->isVisible());
}

}  // namespace
}  // namespace mf::app::test
