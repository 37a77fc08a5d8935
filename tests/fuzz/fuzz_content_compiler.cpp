// The content compiler on any source text (its includes are taken from the
// scratch folder, where only the source itself stands).
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "compile_content.h"
#include "files/scenario_file.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mf;
  fuzz::FreshGame();
  const std::string path = fuzz::WriteScratch("source.txt", fuzz::AsText(data, size));
  std::vector<std::string> errors;
  if (content::CompileContent(path, &errors)) SerializeScenario();
  return 0;
}
