// Speed of whole computer turns on the largest random game: the generator's
// map of size 100 with 60% land and 10 regimes (generator seed 7), every
// regime computer-run, played for 10 full rounds on seed 7 so that the
// armies have grown (and, as the argument 50, for 50 rounds, when the
// armies are about four times as big). That game is kept as a saved file;
// every iteration loads it again (not timed) and times what follows it:
//
// - BM_ComputerRegimeTurn: the next regime's whole turn (regime 1 of turn
//   11, or 51): events, population, the turn-start economy and the computer's
//   every stage. Goal: median at most 100 ms.
// - BM_ComputerRound: the whole next round (11, or 51), all 10 regimes one after the
//   other. Goal: at most 1 s. Its counters give the median and the slowest
//   regime turn inside the round in processor milliseconds.
//
// The game is the one `marrowfield-cli random --size 100 --land 60
// --regimes 10 --seed 7` and `marrowfield-cli play --seed 7` make, so a
// figure here can be checked by hand from the command line. The benchmark
// needs the scenarios the build compiled beside it (the generator takes its
// rules from one of them).
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "control/computer_game.h"
#include "control/random_flow.h"
#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/paths.h"
#include "platform/scripted_platform.h"
#include "random/random_dialog.h"

namespace {

using namespace mf;
namespace fs = std::filesystem;

constexpr unsigned kSeed = 7;

// The platform, made anew for every load: the officers a turn makes are
// drawn from its clock, which then starts again at the same tick, so that
// every iteration plays the very same turn.
std::unique_ptr<ScriptedPlatform> gGamePlatform;

void FreshPlatform() {
  auto fresh = std::make_unique<ScriptedPlatform>();
  fresh->keepAnalysis = false;
  InstallPlatform(fresh.get());
  gGamePlatform = std::move(fresh);
}

// The saved games after so many first rounds; each made once per run of
// the program.
std::map<int, std::string> gSaved;
std::string gWhyNot;
struct RemoveSaved {
  ~RemoveSaved() {
    std::error_code ec;
    for (const auto& [rounds, path] : gSaved) fs::remove(path, ec);
    InstallPlatform(nullptr);
  }
} gRemoveSaved;

std::string ExecutableDir() {
  std::error_code ec;
  const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
  return ec ? std::string(".") : exe.parent_path().string();
}

double ProcessorMs() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

// Loads a game as `play` loads it: the tables cleared, the file read and
// the game set up.
bool Load(const std::string& path) {
  onlyclear();
  if (!ReadFile(path)) return false;
  setup();
  return true;
}

// The random game, saved and loaded again as the command line does it, then
// played for the first rounds (the argument of the benchmark). False, with the reason, when it cannot be.
bool MakeSavedGame(int roundsBefore) {
  if (gSaved.count(roundsBefore) != 0) return true;
  if (!gWhyNot.empty()) return false;
  SetProgramDir(FindProgramDir(ExecutableDir()));
  FreshPlatform();
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  SeedRnd(1);
  UI.EditMode = 1;
  UI.HideEditor = true;
  setup();
  std::vector<DialogAction> actions;
  if (!RandomDialogActions({"size=100", "land=60", "regimes=10", "seed=7"}, &actions, &gWhyNot)) return false;
  actions.push_back({"start", ""});
  gGamePlatform->QueueDialog("random", std::move(actions));
  std::string refusal;
  if (!MakeRandomScenario(&refusal)) {
    gWhyNot = "no random map was made: " + refusal + " (are the scenarios beside mfbench?)";
    return false;
  }
  setup();
  const std::string path = (fs::temp_directory_path() / ("mfbench_game_" + std::to_string(getpid()) + "_" +
                                                          std::to_string(roundsBefore) + ".mf1")).string();
  if (!WriteFile(path) || !Load(path)) {
    gWhyNot = "cannot save and load " + path;
    return false;
  }
  std::string why;
  if (!StartComputerGame(&why)) {
    gWhyNot = why;
    return false;
  }
  SeedRnd(kSeed);
  int rounds = 0;
  while (rounds < roundsBefore) {
    if (!PlayComputerRegimeTurn()) {
      gWhyNot = "the game ended before round " + std::to_string(roundsBefore);
      return false;
    }
    gGamePlatform->Clear();
    if (RoundComplete()) ++rounds;
  }
  if (!WriteFile(path)) {
    gWhyNot = "cannot save " + path;
    return false;
  }
  gSaved[roundsBefore] = path;
  return true;
}

// Back to the game after the first rounds, the generator on a fixed seed.
void Restore(benchmark::State& state) {
  FreshPlatform();
  if (!Load(gSaved.at(static_cast<int>(state.range(0))))) {
    state.SkipWithError("cannot load the saved game again");
    return;
  }
  std::string why;
  StartComputerGame(&why);
  SeedRnd(kSeed);
}

// Formations of all regimes: how big the armies have grown.
double Formations() {
  long n = 0;
  for (int r = 1; r <= Game.RegimeCount && r <= kRegimeCap; ++r) n += HoldingsOf(r).formations;
  return static_cast<double>(n);
}

void BM_ComputerRegimeTurn(benchmark::State& state) {
  if (!MakeSavedGame(static_cast<int>(state.range(0)))) {
    state.SkipWithError(gWhyNot.c_str());
    return;
  }
  for (auto _ : state) {
    state.PauseTiming();
    Restore(state);
    state.ResumeTiming();
    if (!PlayComputerRegimeTurn()) state.SkipWithError("the game ended");
  }
  state.counters["regime"] = static_cast<double>(Game.CurRegime);
  state.counters["turn"] = static_cast<double>(Game.Turn);
  state.counters["formations"] = Formations();
}
BENCHMARK(BM_ComputerRegimeTurn)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void BM_ComputerRound(benchmark::State& state) {
  if (!MakeSavedGame(static_cast<int>(state.range(0)))) {
    state.SkipWithError(gWhyNot.c_str());
    return;
  }
  std::vector<double> turns;
  for (auto _ : state) {
    state.PauseTiming();
    Restore(state);
    state.ResumeTiming();
    turns.clear();
    do {
      const double start = ProcessorMs();
      if (!PlayComputerRegimeTurn()) {
        state.SkipWithError("the game ended");
        break;
      }
      turns.push_back(ProcessorMs() - start);
    } while (!RoundComplete());
  }
  if (!turns.empty()) {
    std::sort(turns.begin(), turns.end());
    state.counters["turns"] = static_cast<double>(turns.size());
    state.counters["median_turn_ms"] = turns[turns.size() / 2];
    state.counters["slowest_turn_ms"] = turns.back();
  }
  state.counters["formations"] = Formations();
}
BENCHMARK(BM_ComputerRound)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

}  // namespace
