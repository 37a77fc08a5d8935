// The scenario reader on any bytes: read as a load reads (scrambled or
// plain), with the engine-variable repairs and the counters a load
// recomputes, then saved again.
#include <cstddef>
#include <cstdint>

#include "files/scenario_file.h"
#include "fuzz_support.h"
#include "model/capacity.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "view/counter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mf;
  fuzz::FreshGame();
  std::string bytes = fuzz::AsText(data, size);
  UnscrambleBytes(&bytes);
  onlyclear();
  const long version = ParseScenario(bytes);
  if (version > kFileVersion) return 0;  // refused before the rest is read
  RepairEngineVarsAfterLoad(version, false);
  for (int u = 1; u <= Game.UnitCount && u <= kUnitCap; ++u)
    if (Unit[u].Regime > 0) Counter(u);
  const std::string saved = SerializeScenario();
  // What was saved reads back.
  onlyclear();
  ParseScenario(saved);
  return 0;
}
