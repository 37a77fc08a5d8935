// The windowed program: core runs the game, the window only shows it.
#include <QApplication>
#include <QMessageBox>
#include <exception>
#include <iostream>

#include "program.h"

namespace {

// Every event the window handles, and so every slot that runs game code,
// passes through here: whatever a routine throws is shown to the player, and
// the game goes on instead of ending the program.
class GameApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::exception& e) {
      Report(e.what());
    } catch (...) {
      Report("an unknown error");
    }
    return false;
  }

 private:
  void Report(const char* what) {
    std::cerr << "marrowfield: " << what << "\n";
    // One box at a time: an error while the box is up is only printed.
    if (reporting_) return;
    reporting_ = true;
    QMessageBox::warning(activeWindow(), "Marrowfield",
                         QString("Something went wrong: %1\nThe game goes on; save it under a new name to be safe.")
                             .arg(QString::fromUtf8(what)));
    reporting_ = false;
  }
  bool reporting_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  GameApplication app(argc, argv);
  QApplication::setApplicationName("Marrowfield");
  mf::app::ProgramOptions options;
  QString error;
  QStringList args = QCoreApplication::arguments();
  args.removeFirst();
  if (!mf::app::ParseProgramArguments(args, &options, &error)) {
    std::cerr << "marrowfield: " << error.toStdString() << "\n"
              << "usage: marrowfield [FILE] [--program-dir DIR] [--screenshot PNG] [--smoke-test] [--no-splash]\n";
    return 2;
  }
  // What is thrown outside the event loop (the start, the file opened with
  // it) ends the program with one clear line instead of an abort.
  try {
    return mf::app::RunProgram(app, options);
  } catch (const std::exception& e) {
    std::cerr << "marrowfield: " << e.what() << "\n";
  } catch (...) {
    std::cerr << "marrowfield: an unknown error\n";
  }
  return 1;
}
