// Speed of the computer player's analysis on the largest map: 100 x 100
// hexes, 100 towns (so 100 areas) on a grid ten hexes apart held by four
// regimes in quadrants, a sea channel across the middle, and 1000 land
// units, ten around each town. Measured are steps 3 to 5 of a computer
// turn: clearing the working tables, landmasses, areas, borders and
// distances, strengths, fronts, sharing out the units, and the THQs.
#include <benchmark/benchmark.h>

#include <string>

#include "ai/areas.h"
#include "ai/fronts.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/reset.h"
#include "platform/scripted_platform.h"

namespace {

using namespace mf;

ScriptedPlatform gAIPlatform;

int Quadrant(int x, int y) { return (x <= 50 ? 1 : 2) + (y <= 50 ? 0 : 2); }

void PutUnit(int r, int x, int y, int type, int n) {
  HexRec& h = Hex[x][y];
  int slot = 1;
  while (slot <= kStackSlots && h.Unit[slot] != 0) ++slot;
  if (slot > kStackSlots) return;
  const int u = NewUnitNumber();
  if (u == 0) return;
  Unit[u] = UnitRec{};
  Unit[u].Name = "Unit " + std::to_string(n);
  Unit[u].Regime = r;
  Unit[u].InfType = type;
  Unit[u].InfQty = 20 + n % 30;
  Unit[u].Readiness = 80;
  Unit[u].Experience = 50;
  if (n % 10 == 9) Unit[u].Thq = 1;  // one THQ in ten
  h.Unit[slot] = u;
}

void BuildAIWorld() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  ClearGame(true, 100, 100);
  gAIPlatform.keepAnalysis = false;
  InstallPlatform(&gAIPlatform);
  Game.RegimeCount = 4;
  for (int r = 1; r <= 4; ++r) {
    SetNewRegimeDefaults(r);
    Regime[r].Name = "Regime " + std::to_string(r);
    Regime[r].AI = 1;
  }
  Dip[1][2].Relation = 1;  // one neighbour at peace
  Game.CurRegime = 1;
  Game.GameEndPop = 20000;
  const int type = ++Game.TypeCount;
  Type[type].Name = "Rifles";
  Type[type].Attr[kSoftAttack] = 20;
  Type[type].Attr[kSoftDefense] = 25;
  Type[type].Attr[kHardDefense] = 5;
  for (int x = 1; x <= 100; ++x)
    for (int y = 1; y <= 100; ++y) {
      HexRec& h = Hex[x][y];
      h.Land = (y == 48 || y == 49) && x > 10 && x < 90 ? kSea : (x * 7 + y * 3) % 11 == 0 ? kForest : kGrass;
      if ((x * 5 + y) % 37 == 0 && h.Land == kGrass) h.Land = kMountain;
      h.Owner = h.Land == kSea ? 0 : Quadrant(x, y);
    }
  int n = 0;
  for (int i = 0; i < 10; ++i)
    for (int j = 0; j < 10; ++j) {
      const int x = 5 + 10 * i, y = 5 + 10 * j;
      HexRec& town = Hex[x][y];
      town.Land = kUrban;
      town.Pop = 50 + (i * 37 + j * 11) % 400;
      town.UrbanName = "Town " + std::to_string(i * 10 + j + 1);
      town.Owner = Quadrant(x, y);
      // Ten units on the town and its neighbours.
      for (int d = 0; d <= kHexSides && n < (i * 10 + j + 1) * 10; ++d) {
        const HexXY at = d == 0 ? HexXY{x, y} : Neighbour(x, y, d);
        if (at.x < 1 || at.y < 1 || Hex[at.x][at.y].Land == kSea || Hex[at.x][at.y].Land == kMountain) continue;
        if (Hex[at.x][at.y].Land != kUrban) Hex[at.x][at.y].Land = kGrass;
        for (int s = 0; s < 2 && n < (i * 10 + j + 1) * 10; ++s) PutUnit(Quadrant(x, y), at.x, at.y, type, n++);
      }
    }
}

void BM_AIAnalysis(benchmark::State& state) {
  BuildAIWorld();
  for (auto _ : state) {
    AIClear();
    AIFindAreas();
    AIAreaStrength();
    AIFindFronts();
    AIAssignFronts();
    AIMoveThqFront();
    benchmark::DoNotOptimize(AI.FrontCount);
  }
  state.counters["areas"] = static_cast<double>(AI.AreaCount);
  state.counters["fronts"] = static_cast<double>(AI.FrontCount);
  InstallPlatform(nullptr);
}
BENCHMARK(BM_AIAnalysis)->Unit(benchmark::kMillisecond);

}  // namespace
