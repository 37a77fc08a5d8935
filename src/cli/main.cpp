// marrowfield-cli: the headless program. The game's own routines, driven
// from the command line and from scripts, with every message box printed.
#include <exception>
#include <iostream>

#include "platform/paths.h"
#include "session.h"
#include "subcommands.h"

int main(int argc, char** argv) {
  // The program folder is the one that holds the executable, so that the
  // scenarios/ and default/ folders built next to it are found.
  // Installed, they lie in share/marrowfield under the install prefix.
  const std::string dir = mf::cli::ExecutableDir();
  if (!dir.empty()) mf::SetProgramDir(mf::FindProgramDir(dir));
  const mf::cli::Args args(argv + 1, argv + argc);
  // Whatever a routine throws ends the program with one clear line and exit
  // code 1, never with an abort.
  try {
    return mf::cli::CliMain(args, std::cout, std::cerr);
  } catch (const std::exception& e) {
    std::cout.flush();
    std::cerr << "marrowfield-cli: internal error: " << e.what() << "\n";
  } catch (...) {
    std::cout.flush();
    std::cerr << "marrowfield-cli: internal error\n";
  }
  return 1;
}
