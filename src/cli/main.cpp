// marrowfield-cli: the headless program. The game's own routines, driven
// from the command line and from scripts, with every message box printed.
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
  return mf::cli::CliMain(args, std::cout, std::cerr);
}
