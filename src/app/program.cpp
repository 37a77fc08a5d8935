#include "program.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <iostream>

#include "dialog_views.h"
#include "main_window.h"
#include "map_widget.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/paths.h"
#include "qt_canvas.h"
#include "qt_platform.h"
#include "splash.h"
#include "view/sprite_table.h"

namespace mf::app {
namespace {

constexpr int kMinScreenHeight = 768;

bool OffscreenPlatform() { return QGuiApplication::platformName() == "offscreen"; }

}  // namespace

bool ParseProgramArguments(const QStringList& args, ProgramOptions* o, QString* error) {
  for (int i = 0; i < args.size(); ++i) {
    const QString& a = args[i];
    auto value = [&](QString* into) {
      if (i + 1 >= args.size()) {
        *error = a + " needs a value";
        return false;
      }
      *into = args[++i];
      return true;
    };
    if (a == "--screenshot") {
      if (!value(&o->screenshot)) return false;
    } else if (a == "--program-dir") {
      if (!value(&o->programDir)) return false;
    } else if (a == "--smoke-test") {
      o->smokeTest = true;
    } else if (a == "--no-splash") {
      o->noSplash = true;
    } else if (a.startsWith("--")) {
      *error = "unknown option " + a;
      return false;
    } else if (o->file.isEmpty()) {
      o->file = a;
    } else {
      *error = "only one file can be opened: " + a;
      return false;
    }
  }
  return true;
}

void StartGameState(const QString& programDir) {
  mf::SetProgramDir(programDir.toStdString());
  mf::SeedRndFromClock();
  mf::FillEngineVarLabels();
  mf::SetEngineVarDefaults();
  mf::ClearForLoad();
  mf::LoadSprites();
  mf::UI.EditMode = 1;
  mf::UI.HideEditor = true;
  mf::LayOutMapWindow();
}

bool ScreenCheck(int screenHeight) {
  if (screenHeight >= kMinScreenHeight) return true;
  mf::Plat().ShowMessage("Error. You must have at least sceen resolution 1024x768 to run MF. Press OK to Quit.", "");
  return false;
}

int RunProgram(QApplication& app, const ProgramOptions& options) {
  const bool unattended = options.smokeTest || !options.screenshot.isEmpty();
  QtPlatform platform;
  platform.SetUnattended(unattended);
  mf::InstallPlatform(&platform);
  RegisterAllDialogViews();

  // Beside the program in a build, share/marrowfield once installed.
  const QString dir = options.programDir.isEmpty()
                          ? QString::fromStdString(mf::FindProgramDir(QCoreApplication::applicationDirPath().toStdString()))
                          : options.programDir;
  StartGameState(dir);
  // Let the event loop run once before the windows come up.
  QCoreApplication::processEvents();

  // The pictures, once; a missing picture of the fixed set stops the program.
  if (!Sprites().Reload()) {
    mf::Plat().ShowMessage(Sprites().Problem().toStdString(), "");
    mf::InstallPlatform(nullptr);
    return 1;
  }

  // The screen must hold the window. The offscreen platform has no real
  // screen, and screenshot and smoke-test runs look at no screen.
  if (!unattended && !OffscreenPlatform()) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen && !ScreenCheck(screen->geometry().height())) {
      mf::InstallPlatform(nullptr);
      return 1;
    }
  }

  if (!unattended && !options.noSplash && !OffscreenPlatform()) ShowSplash();

  int code = 0;
  {
    MainWindow window(&platform);
    window.show();
    window.SyncWithGame();
    if (!options.file.isEmpty()) window.OpenFile(options.file);

    if (!options.screenshot.isEmpty()) {
      QTimer::singleShot(0, &window, [&] {
        window.SyncWithGame();
        QCoreApplication::processEvents();
        const QImage shot = window.grab().toImage();
        const bool saved = shot.save(options.screenshot, "PNG");
        if (!saved) std::cerr << "could not write " << options.screenshot.toStdString() << "\n";
        code = saved ? 0 : 1;
        window.QuitNow();
      });
    } else if (options.smokeTest) {
      // Proves the window comes up and the event loop runs, then leaves.
      QTimer::singleShot(200, &window, [&] {
        code = window.isVisible() ? 0 : 1;
        window.QuitNow();
      });
    }
    const int loop = app.exec();
    if (code == 0) code = loop;
  }
  mf::InstallPlatform(nullptr);
  return code;
}

}  // namespace mf::app
