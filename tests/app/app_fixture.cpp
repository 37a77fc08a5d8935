#include "app_fixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <filesystem>
#include <random>

#include "dialog_views.h"
#include "map_widget.h"
#include "model/game_state.h"
#include "platform/platform.h"
#include "program.h"
#include "qt_canvas.h"
#include "support/core_test.h"
#include "view_runner.h"

namespace fs = std::filesystem;

namespace mf::app::test {

void AppTest::SetUp() {
  platform.SetUnattended(true);
  mf::InstallPlatform(&platform);
  RegisterAllDialogViews();
  mf::ZeroAllTables();
  // The program folder is the folder of the test program, beside the game
  // program, where the build put default/.
  StartGameState(QCoreApplication::applicationDirPath());
  ASSERT_TRUE(Sprites().Reload()) << Sprites().Problem().toStdString();
  window = std::make_unique<MainWindow>(&platform);
  window->timer().stop();  // ticks come when a test asks for them
  window->resize(1280, 800);
  window->show();
  Settle();
  window->SyncWithGame();

  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  std::random_device rd;
  tempDir = (fs::temp_directory_path() / ("mfapptest_" + std::string(info->name()) + "_" + std::to_string(rd())))
                .string();
  fs::create_directories(tempDir);
}

void AppTest::TearDown() {
  window.reset();
  mf::InstallPlatform(nullptr);
  std::error_code ec;
  fs::remove_all(tempDir, ec);
}

std::string AppTest::TempPath(const std::string& name) const { return (fs::path(tempDir) / name).string(); }

void AppTest::Settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

bool AppTest::RunTimerUntil(const std::function<bool()>& done) {
  window->timer().start();
  const bool came = WaitUntil(done);
  window->timer().stop();
  return came;
}

void MakeWatchedGame(WatchedGame* g) {
  namespace world = mf::test::world;
  world::NewMap(g->width, 10);
  g->red = world::AddRegime("Red");
  g->blue = world::AddRegime("Blue");
  Regime[g->blue].AI = 1;
  for (int x = 1; x <= g->width; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = x <= g->border ? g->red : g->blue;
  for (int x : {2, g->blueTown}) {
    Hex[x][5].Land = kUrban;
    Hex[x][5].Pop = 400;
  }
  g->rifles = world::AddType("Rifles", kLandTheater, 1);
  Type[g->rifles].Attr[kSoftAttack] = 10;
  Type[g->rifles].Attr[kHitPoints] = g->hitPoints;
  Type[g->rifles].Attr[kMovementCap] = 3;
  world::AddShq(g->red, 2, 5, 1, "Red Command");
  world::AddShq(g->blue, g->blueTown, 5, 1, "Blue Command");
  g->redUnit = world::AddUnit(g->red, 4, 5, "Red Rifles", g->rifles, 20);
  g->blueUnit = world::AddUnit(g->blue, g->blueAt, 5, "Blue Rifles", g->rifles, g->blueMen);
  Game.GameEndPop = 100000;
}

void AppTest::PressMap(QPoint at, Qt::MouseButton button) {
  QWidget* view = window->mapWidget()->view();
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(at), view->mapToGlobal(QPointF(at)), button, button,
                    Qt::NoModifier);
  QApplication::sendEvent(view, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(at), view->mapToGlobal(QPointF(at)), button,
                      Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(view, &release);
  Settle();
}

void AppTest::PressKey(int qtKey) {
  QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &press);
  QKeyEvent release(QEvent::KeyRelease, qtKey, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &release);
  Settle();
}

QImage AppTest::GrabMap() {
  window->SyncWithGame();
  Settle();
  return window->mapWidget()->view()->grab().toImage();
}

QColor AppTest::LayeredColour(const std::vector<int>& sprites, int px, int py) {
  QColor out;
  for (int s : sprites) {
    const QImage img = Sprites().Image(s);
    if (img.isNull()) continue;
    const QColor c = img.pixelColor(px, py);
    if (c.alpha() == 255) out = c;
  }
  return out;
}

}  // namespace mf::app::test
