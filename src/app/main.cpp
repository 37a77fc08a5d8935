// The windowed program: core runs the game, this file only shows it.
#include <QApplication>
#include <QCoreApplication>
#include <QTimer>

#include "main_window.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/paths.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Marrowfield");
  const bool smokeTest = QCoreApplication::arguments().contains("--smoke-test");

  mf::SetProgramDir(QCoreApplication::applicationDirPath().toStdString());
  mf::SeedRndFromClock();
  mf::FillEngineVarLabels();
  mf::SetEngineVarDefaults();
  mf::onlyclear();
  mf::UI.EditMode = 1;
  mf::UI.HideEditor = true;
  mf::setup();

  mf::app::MainWindow window;
  window.show();
  if (smokeTest) {
    // Proves the window comes up and the event loop runs, then leaves.
    QTimer::singleShot(200, &app, [&] { app.exit(window.isVisible() ? 0 : 1); });
  }
  return app.exec();
}
