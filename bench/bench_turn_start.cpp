// Speed of a regime's turn start on the largest map: 100 x 100 hexes, a
// regime with 20 SHQs and 400 formations (20 of them THQs) and 100 towns, the
// SHQ range (engine variable 230) at 50. Measured are the turn-start steps
// of the economy as the next-turn driver runs them: capture of undefended
// land, supply from every SHQ, recovery of every formation and the towns'
// output, the stocks' transport, and the final clearing of the flood.
#include <benchmark/benchmark.h>

#include "engine/supply.h"
#include "engine/supply_flood.h"
#include "model/game_state.h"
#include "orders/flood.h"
#include "platform/scripted_platform.h"
#include "support/bench_worlds.h"

namespace {

using namespace mf;

ScriptedPlatform gTurnPlatform;

void BuildTurnWorld() {
  InstallPlatform(&gTurnPlatform);
  bench::BuildTurnWorld();
}

void BM_TurnStartEconomy(benchmark::State& state) {
  BuildTurnWorld();
  long served = 0;
  for (auto _ : state) {
    bench::TurnStartEconomy();
    benchmark::ClobberMemory();
  }
  for (int u = 1; u <= Game.UnitCount; ++u)
    if (Unit[u].Regime == 1 && Unit[u].Shq == 0 && Unit[u].SupplyPct > 0) ++served;
  state.counters["formations_served"] = static_cast<double>(served);
  state.counters["units"] = static_cast<double>(Game.UnitCount);
}
BENCHMARK(BM_TurnStartEconomy)->Unit(benchmark::kMillisecond);

void BM_ServeSupply(benchmark::State& state) {
  BuildTurnWorld();
  for (auto _ : state) {
    ServeSupply();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_ServeSupply)->Unit(benchmark::kMillisecond);

// One SHQ's flood of 50 waves over its box of 101 x 101, the unit of work
// that ServeSupply repeats for each SHQ.
void BM_SupplyFloodOneShq(benchmark::State& state) {
  BuildTurnWorld();
  const int shq = Shq[1][7].Unit;
  for (int x = 1; x <= 100; ++x)
    for (int y = 1; y <= 100; ++y)
      for (int s = 1; s <= kStackSlots; ++s)
        if (Hex[x][y].Unit[s] == shq) {
          UI.OrdX = x;
          UI.OrdY = y;
          UI.OrdSlot = s;
        }
  for (auto _ : state) {
    ClearFlood();
    SupplyFlood(true);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_SupplyFloodOneShq)->Unit(benchmark::kMicrosecond);

// The same flood as the turn start runs it for each SHQ: the map's ground
// read once for all SHQs beforehand, the results kept out of the hex records.
void BM_SupplyFloodInRun(benchmark::State& state) {
  BuildTurnWorld();
  const int shq = Shq[1][7].Unit;
  int ox = 0, oy = 0, slot = 0;
  for (int x = 1; x <= 100; ++x)
    for (int y = 1; y <= 100; ++y)
      for (int s = 1; s <= kStackSlots; ++s)
        if (Hex[x][y].Unit[s] == shq) {
          ox = x;
          oy = y;
          slot = s;
        }
  BeginFloodRun();
  for (auto _ : state) {
    RunFlood(ox, oy, slot, true);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_SupplyFloodInRun)->Unit(benchmark::kMicrosecond);

}  // namespace
