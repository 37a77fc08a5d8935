// The JSON import on any text, and a save of what it filled in.
#include <cstddef>
#include <cstdint>
#include <string>

#include "files/json_io.h"
#include "files/scenario_file.h"
#include "fuzz_support.h"
#include "model/reset.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mf;
  fuzz::FreshGame();
  onlyclear();
  std::string why;
  if (ImportJson(fuzz::AsText(data, size), &why)) SerializeScenario();
  return 0;
}
