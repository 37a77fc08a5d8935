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

namespace fs = std::filesystem;

namespace {

using namespace mf;

constexpr int kRegimes = 10;
constexpr int kTypes = 100;

void BuildFullScenario() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  MakeItSo(true, "100", "100");
  Game.BookVarCount = kBookVarCount;
  Game.Turn = 12;
  Game.CurRegime = 3;
  Game.ScenarioStory = "A long war.\r\nTen nations.\r\nOne map.";
  std::mt19937 gen(42);
  auto pick = [&gen](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen); };

  Game.RegimeCount = kRegimes;
  for (int r = 1; r <= kRegimes; ++r) {
    SetNewRegimeDefaults(r);
    Regime[r].Name = "Regime " + std::to_string(r);
    Regime[r].PP = pick(0, 500);
    Regime[r].Intro = "Briefing of regime " + std::to_string(r) + ".\r\nHold the line.";
    for (int b = 1; b <= kRegimes; ++b) Dip[r][b].Cost = 999;
    for (int n = 1; n <= kNewsCap; ++n) {
      News[r][n] = NewsRec{101, "Battle report " + std::to_string(n) + " of regime " + std::to_string(r),
                           static_cast<Short>(pick(1, 100)), static_cast<Short>(pick(1, 100)),
                           static_cast<Short>(pick(1, 10))};
    }
    for (int s = 1; s <= 5; ++s) {
      for (int k = 1; k <= 20; ++k) {
        Shq[r][s].StockType[k] = k;
        Shq[r][s].StockQty[k] = pick(0, 200);
      }
    }
  }
  Game.PeopleCount = 5;
  for (int p = 1; p <= 5; ++p) {
    People[p].Name = "People " + std::to_string(p);
    for (int n = 1; n <= kPeopleNames; ++n) {
      People[p].FirstName[n] = "Förname" + std::to_string(n);
      People[p].LastName[n] = "Lastname" + std::to_string(n);
    }
  }
  Game.TypeCount = kTypes;
  for (int t = 1; t <= kTypes; ++t) {
    Type[t].Name = "Type " + std::to_string(t);
    Type[t].Class = 1 + t % 4;
    for (int a = 1; a <= kTypeAttrs; ++a) Type[t].Attr[a] = pick(1, 100);
  }
  for (int x = 1; x <= 100; ++x) {
    for (int y = 1; y <= 100; ++y) {
      HexRec& h = Hex[x][y];
      h.Land = pick(1, 6);
      h.Owner = pick(0, kRegimes);
      for (int r = 1; r <= kRegimes; ++r) h.Seen[r] = static_cast<Short>(pick(0, 1));
      if (pick(0, 20) == 0) {
        h.Pop = pick(500, 8000);
        h.UrbanName = "Town " + std::to_string(x) + "-" + std::to_string(y);
      }
    }
  }
  Game.UnitCount = kUnitCap;
  for (int u = 1; u <= kUnitCap; ++u) {
    UnitRec& un = Unit[u];
    un.Name = "Unit " + std::to_string(u);
    un.Regime = 1 + u % kRegimes;
    un.InfType = pick(1, kTypes);
    un.InfQty = pick(1, 20);
    un.Readiness = pick(0, 100);
    un.Experience = 25;
    // Units stand where they fit; a hex holds three.
    const int cell = (u - 1) / 3;
    Hex[1 + cell % 100][1 + cell / 100].Unit[1 + (u - 1) % 3] = u;
  }
  Game.EventCount = 50;
  for (int e = 1; e <= 50; ++e) Event[e].Story = "Event " + std::to_string(e) + "\r\nwith a story.";
}

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
  BuildFullScenario();
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
  BuildFullScenario();
  const std::string path = Folder() + "/write.mf1";
  for (auto _ : state) {
    if (!WriteFile(path)) state.SkipWithError("write failed");
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(fs::file_size(path)) * state.iterations());
}
BENCHMARK(BM_SerializeAndWriteFile)->Unit(benchmark::kMillisecond);

void BM_ParseScenario(benchmark::State& state) {
  BuildFullScenario();
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
  BuildFullScenario();
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
  BuildFullScenario();
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
  BuildFullScenario();
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
