// Speed of the window's own map: the real main window at 1280 x 800 on the
// offscreen platform, showing the largest scenario (100 x 100 hexes, 10
// regimes, 2000 formations) from the middle of the map. A full repaint is the
// game's whole-map redraw into the window's picture plus the view painting
// it; a scroll step is one notch of the mouse wheel, which moves the view by
// two rows of hexes and redraws it. Built only with the Qt program.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QWheelEvent>
#include <memory>

#include "main_window.h"
#include "map_widget.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "platform/platform.h"
#include "program.h"
#include "qt_platform.h"
#include "qt_canvas.h"
#include "support/bench_worlds.h"
#include "view/draw_hex.h"

namespace {

using namespace mf;
using mf::app::MainWindow;
using mf::app::MapWidget;

// The one application of the benchmark program, made on first use.
QApplication& App() {
  static int argc = 1;
  static char name[] = "mfbench";
  static char* argv[] = {name, nullptr};
  if (!QApplication::instance()) qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication app(argc, argv);
  return app;
}

struct Window {
  mf::app::QtPlatform platform;
  std::unique_ptr<MainWindow> main;
};

// The window over the largest scenario, with the view in the middle of the
// map at the given zoom; nullptr (and the benchmark skipped with the reason)
// when the pictures are missing.
std::unique_ptr<Window> OpenWindow(benchmark::State& state, int zoom) {
  App();
  auto w = std::make_unique<Window>();
  w->platform.SetUnattended(true);
  InstallPlatform(&w->platform);
  mf::app::StartGameState(QCoreApplication::applicationDirPath());
  if (!mf::app::Sprites().Reload()) {
    state.SkipWithError(mf::app::Sprites().Problem().toStdString().c_str());
    InstallPlatform(nullptr);
    return nullptr;
  }
  mf::bench::BuildFullScenario();
  Game.Turn = 3;
  Game.CurRegime = 1;
  Game.FogOfWar = 0;
  Game.FogOfExploration = 0;
  UI.EditMode = 0;
  UI.MapShown = true;
  w->main = std::make_unique<MainWindow>(&w->platform);
  w->main->timer().stop();
  w->main->resize(1280, 800);
  w->main->show();
  w->main->mapWidget()->SetZoom(zoom);
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  setup();
  UI.ScrollX = 40 * 42;
  UI.ScrollY = 40 * 30;
  UI.SelX = 50;
  UI.SelY = 50;
  RequestRedraw(2);
  w->main->SyncWithGame();
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  return w;
}

void CloseWindow(std::unique_ptr<Window>& w) {
  w->main.reset();
  InstallPlatform(nullptr);
}

// The whole view drawn again as the game asks after a load, a turn change or
// a zoom: every hex walked, those in the window drawn, then painted.
void BM_MapWidgetFullRepaint(benchmark::State& state) {
  const int zoom = static_cast<int>(state.range(0));
  auto w = OpenWindow(state, zoom);
  if (!w) return;
  MapWidget* map = w->main->mapWidget();
  for (auto _ : state) {
    RequestRedraw(2);
    map->RedrawRequested();
    map->view()->repaint();
  }
  state.counters["view_w"] = static_cast<double>(UI.ViewW);
  state.counters["view_h"] = static_cast<double>(UI.ViewH);
  CloseWindow(w);
}
BENCHMARK(BM_MapWidgetFullRepaint)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// One notch of the mouse wheel, down and then up again in turn, each step
// redrawn and painted as the window does it.
void BM_MapWidgetScrollStep(benchmark::State& state) {
  const int zoom = static_cast<int>(state.range(0));
  auto w = OpenWindow(state, zoom);
  if (!w) return;
  QWidget* view = w->main->mapWidget()->view();
  const QPointF at(view->width() / 2.0, view->height() / 2.0);
  int direction = -120;
  for (auto _ : state) {
    QWheelEvent wheel(at, view->mapToGlobal(at), QPoint(), QPoint(0, direction), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &wheel);
    view->repaint();
    direction = -direction;
  }
  CloseWindow(w);
}
BENCHMARK(BM_MapWidgetScrollStep)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
