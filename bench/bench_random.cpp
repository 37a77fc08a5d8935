// Speed of the random map generator on its largest setting: a map of 100 x
// 100 with land 100% (20 islands of 30 waves), 10 regimes of which 9 are
// computer-run, so that every step (islands, towns, start forces, roads)
// runs at its full size. One iteration is one "Start Random Game" past its
// checks.
#include <benchmark/benchmark.h>

#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/scripted_platform.h"
#include "random/generator.h"
#include "random/random_dialog.h"

namespace {

using namespace mf;

ScriptedPlatform gRandomPlatform;

// The rules a random game needs without the base file: infantry and trucks
// as types 1 and 2, a people with names, and portraits for every regime.
void BuildRandomWorld() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  InstallPlatform(&gRandomPlatform);
  ClearGame(true, 10, 10);
  Game.TypeCount = 2;
  Type[1].Name = "Infantry";
  Type[1].Class = 1;
  Type[2].Name = "Trucks";
  Type[2].Class = 2;
  Game.PeopleCount = 5;
  for (int p = 1; p <= 5; ++p) {
    People[p].Name = "Folk " + std::to_string(p);
    People[p].FirstName[1] = "Anna";
    People[p].LastName[1] = "Stone";
  }
  for (int pic = 1; pic <= 200; ++pic) OfficerPicSet[pic] = (pic - 1) / 40 + 1;
  MakeRandomRegimes();
  for (int r = 1; r <= 10; ++r) Regime[r].PortraitSet = Regime[r].OwnPeople;
}

void BM_RandomMap100Land100TenRegimes(benchmark::State& state) {
  BuildRandomWorld();
  std::uint32_t seed = 1;
  for (auto _ : state) {
    for (int r = 1; r <= 10; ++r) Regime[r].PP = 20;
    SeedRnd(seed);
    const bool made = MakeRandomMap(100, 100, static_cast<int>(seed), false);
    if (!made) state.SkipWithError("no map was made");
    benchmark::DoNotOptimize(Game.GameEndPop);
    ++seed;
  }
  InstallPlatform(nullptr);
}
BENCHMARK(BM_RandomMap100Land100TenRegimes)->Unit(benchmark::kMillisecond);

}  // namespace
