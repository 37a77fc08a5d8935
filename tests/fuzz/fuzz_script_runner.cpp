// The script runner on any script. Paths in a script are taken from the
// scratch folder; a script that names a path with a slash could reach any
// file of the machine, so such inputs are passed over.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "fuzz_support.h"
#include "script_runner.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mf;
  const std::string text = fuzz::AsText(data, size);
  if (text.find('/') != std::string::npos || text.find('\\') != std::string::npos) return 0;
  // "$TMP" makes a scratch folder of the run's own, which is fine; "~" is not expanded.
  fuzz::FreshGame();
  std::ostringstream out, err;
  cli::RunScriptText(text, "fuzz.mfs", fuzz::ScratchDir(), out, err);
  return 0;
}
