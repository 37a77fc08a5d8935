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
