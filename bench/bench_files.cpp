// Speed of the scenario files on the largest game the tables hold: a map of
// 100 x 100, 2000 units, 10 regimes with full news lists (1000 lines each),
// 100 unit types (so 100 stock slots per SHQ), 5 peoples with all 300 names.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "control/scenario_flow.h"
#include "files/json_io.h"
#include "files/scenario_file.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/scripted_platform.h"
#include "support/bench_worlds.h"

namespace fs = std::filesystem;

namespace {

using namespace mf;

// The folder of the benchmark's files; never freed, so that the clean-up at
// the end of the program can still name it.
const std::string& Folder() {
  static const std::string* dir = [] {
    const fs::path p = fs::temp_directory_path() / ("mfbench_files_" + std::to_string(std::random_device{}()));
    fs::create_directories(p);
    return new std::string(p.string());
  }();
  return *dir;
}

ScriptedPlatform& Quiet() {
  static ScriptedPlatform platform;
  InstallPlatform(&platform);
  return platform;
}

void BM_SerializeScenario(benchmark::State& state) {
  bench::BuildFullScenario();
  std::size_t bytes = 0;
  for (auto _ : state) {
    const std::string plain = SerializeScenario();
    bytes = plain.size();
    benchmark::DoNotOptimize(plain.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
  state.counters["file_bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_SerializeScenario)->Unit(benchmark::kMillisecond);

void BM_SerializeAndWriteFile(benchmark::State& state) {
  bench::BuildFullScenario();
  const std::string path = Folder() + "/write.mf1";
  for (auto _ : state) {
    if (!WriteFile(path)) state.SkipWithError("write failed");
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(fs::file_size(path)) * state.iterations());
}
BENCHMARK(BM_SerializeAndWriteFile)->Unit(benchmark::kMillisecond);

void BM_ParseScenario(benchmark::State& state) {
  bench::BuildFullScenario();
  const std::string plain = SerializeScenario();
  for (auto _ : state) {
    benchmark::DoNotOptimize(ParseScenario(plain));
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(plain.size()) * state.iterations());
}
BENCHMARK(BM_ParseScenario)->Unit(benchmark::kMillisecond);

// The whole load of a scrambled file: unscramble on disk, read, parse,
// scramble again, repairs and counters.
void BM_ReadFile(benchmark::State& state) {
  ScriptedPlatform& platform = Quiet();
  bench::BuildFullScenario();
  const std::string path = Folder() + "/read.mf1";
  if (!WriteFile(path)) state.SkipWithError("write failed");
  for (auto _ : state) {
    if (!ReadFile(path)) state.SkipWithError("read failed");
    platform.Clear();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(fs::file_size(path)) * state.iterations());
  InstallPlatform(nullptr);
}
BENCHMARK(BM_ReadFile)->Unit(benchmark::kMillisecond);

void BM_ExportJson(benchmark::State& state) {
  bench::BuildFullScenario();
  std::size_t bytes = 0;
  for (auto _ : state) {
    const std::string json = ExportJson();
    bytes = json.size();
    benchmark::DoNotOptimize(json.data());
  }
  state.counters["json_bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_ExportJson)->Unit(benchmark::kMillisecond);

void BM_ImportJson(benchmark::State& state) {
  bench::BuildFullScenario();
  const std::string json = ExportJson();
  for (auto _ : state) {
    std::string why;
    if (!ImportJson(json, &why)) state.SkipWithError(why.c_str());
  }
}
BENCHMARK(BM_ImportJson)->Unit(benchmark::kMillisecond);

// Removes the benchmark's files when the program ends.
struct CleanUp {
  ~CleanUp() {
    std::error_code ec;
    fs::remove_all(Folder(), ec);
  }
} cleanUp;

}  // namespace
