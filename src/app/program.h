// The program from start to end: its command line, the start of the game
// state, the splash, the main window, and the screenshot run.
//
//   marrowfield [FILE] [--program-dir DIR] [--screenshot PNG] [--smoke-test] [--no-splash]
#pragma once

#include <QString>
#include <QStringList>

class QApplication;

namespace mf::app {

struct ProgramOptions {
  QString file;          // a scenario or saved game to open at start
  QString screenshot;    // save the window as this PNG once the file is shown, then quit
  QString programDir;    // the folder with default/ and scenarios/; else the executable's
  bool smokeTest = false;  // open the window, run the event loop briefly, quit
  bool noSplash = false;
};

// Reads the command line (without the program name); false with a reason
// for an unknown option or a missing value.
bool ParseProgramArguments(const QStringList& args, ProgramOptions* options, QString* error);

// The start of the game state, as the program opens: the clock seeds the
// generator, engine variables at their defaults, the sprite and sound tables
// scanned, an empty 10 x 10 map in editing mode with the editor panel hidden.
// The program folder is set first.
void StartGameState(const QString& programDir);

// The screen test of the start: a screen less than 768 pixels high cannot
// hold the game; the player is told so (through the installed platform) and
// the result is false.
bool ScreenCheck(int screenHeight);

// The whole run of the program; the exit code.
int RunProgram(QApplication& app, const ProgramOptions& options);

}  // namespace mf::app
