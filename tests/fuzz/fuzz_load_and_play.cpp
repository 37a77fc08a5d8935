// The whole road of a file into a game: the menu's load (with its checks,
// the unscrambling, the repairs and the set-up), the Start Game dialog, and
// two turns played through the End Turn command.
#include <cstddef>
#include <cstdint>
#include <sstream>

#include "fuzz_support.h"
#include "script_runner.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mf;
  fuzz::FreshGame();
  fuzz::WriteScratch("game.mf1", fuzz::AsText(data, size));
  std::ostringstream out, err;
  cli::RunScriptText("load game.mf1\nstart\nendturn\nendturn\n", "fuzz.mfs", fuzz::ScratchDir(), out, err);
  return 0;
}
