// The windowed program: core runs the game, the window only shows it.
#include <QApplication>
#include <iostream>

#include "program.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
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
  return mf::app::RunProgram(app, options);
}
