// Speed of the map drawing on the largest map: 100 x 100 hexes of mixed
// landscape with rivers, roads and towns, two regimes, 1500 formations in
// stacks of one to three. The canvas only counts what it is asked to paint,
// so the figures are the cost of the drawing rules themselves, not of a
// toolkit's pixels.
#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/scripted_platform.h"
#include "view/canvas.h"
#include "view/counter.h"
#include "view/draw_hex.h"

namespace {

using namespace mf;

class CountingCanvas final : public Canvas {
 public:
  void Clear() override { ++clears; }
  void Blit(int, int, int) override { ++blits; }
  void Line(int, int, int, int, Colour) override { ++lines; }
  void Text(const std::string&, int, int, const std::string&, int, Colour) override { ++texts; }
  long clears = 0, blits = 0, lines = 0, texts = 0;
};

ScriptedPlatform gPlatform;

void BuildDrawWorld() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  ClearGame(true, 100, 100);
  InstallPlatform(&gPlatform);
  std::mt19937 gen(7);
  auto pick = [&gen](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen); };

  Game.RegimeCount = 2;
  for (int r = 1; r <= 2; ++r) {
    SetNewRegimeDefaults(r);
    Regime[r].Name = r == 1 ? "Red" : "Blue";
    Regime[r].HexSprite = r == 1 ? 3 : 7;
  }
  Game.CurRegime = 1;
  Game.Turn = 5;
  UI.EditMode = 0;

  const int types = 8;
  Game.TypeCount = types;
  for (int t = 1; t <= types; ++t) {
    Type[t].Name = "Type " + std::to_string(t);
    Type[t].Class = 1 + (t - 1) % 4;
    Type[t].Cost = pick(5, 200);
    for (int a = 1; a <= kTypeAttrs; ++a) Type[t].Attr[a] = pick(0, 30);
    Type[t].Attr[kHitPoints] = 20;
  }

  for (int x = 1; x <= 100; ++x) {
    for (int y = 1; y <= 100; ++y) {
      HexRec& h = Hex[x][y];
      const int roll = pick(1, 100);
      h.Land = roll <= 50 ? kGrass : roll <= 65 ? kForest : roll <= 80 ? kSea : roll <= 88 ? kSwamp : roll <= 95 ? kMountain : kUrban;
      if (h.Land == kUrban) {
        h.Pop = pick(100, 8000);
        h.UrbanName = "Town";
      }
      if (h.Land != kSea) h.Owner = x <= 50 ? 1 : 2;
      if (h.Land != kSea && pick(0, 4) == 0) h.Road = 1;
      if (h.Land != kSea && pick(0, 9) == 0) h.River[pick(1, 6)] = 1;
      if (pick(0, 19) == 0) h.Entrench[pick(1, 6)] = pick(1, 3);
      h.Vis = static_cast<Short>(pick(0, 1));
      h.Seen[1] = 1;
      h.Mark = 999;
    }
  }

  // 1500 formations: every regime's land gets stacks until the count is reached.
  int made = 0;
  while (made < 1500) {
    const int x = pick(1, 100), y = pick(1, 100);
    HexRec& h = Hex[x][y];
    if (h.Land == kSea || h.Unit[3] != 0) continue;
    const int u = NewUnitNumber();
    Unit[u].Name = "Formation";
    Unit[u].Regime = h.Owner;
    Unit[u].InfType = 1;
    Unit[u].InfQty = pick(1, 100);
    Unit[u].MobType = 2;
    Unit[u].MobQty = pick(0, 20);
    Unit[u].ArtType = 3;
    Unit[u].ArtQty = pick(0, 10);
    Unit[u].ArmType = 4;
    Unit[u].ArmQty = pick(0, 10);
    Unit[u].Readiness = pick(30, 100);
    Unit[u].Experience = pick(20, 100);
    Unit[u].SupplyPct = pick(0, 100);
    Unit[u].Boss = pick(0, 1);
    int s = 1;
    while (h.Unit[s] != 0) ++s;
    h.Unit[s] = u;
    ++made;
  }
  LayOutMapWindow();
  // The view in the middle of the map.
  UI.ScrollX = 40 * 42;
  UI.ScrollY = 40 * 30;
  UI.SelX = 60;
  UI.SelY = 50;
  UI.SelSlot = 1;
}

void Report(benchmark::State& state, const CountingCanvas& c) {
  const double runs = static_cast<double>(state.iterations());
  state.counters["blits"] = static_cast<double>(c.blits) / runs;
  state.counters["lines"] = static_cast<double>(c.lines) / runs;
  state.counters["texts"] = static_cast<double>(c.texts) / runs;
}

// DoDrawhex as the rules have it: the whole map is walked, the hexes outside
// the window are culled.
void BM_DrawFullMap(benchmark::State& state) {
  BuildDrawWorld();
  UI.Overlay = OverlayFlags{};
  CountingCanvas canvas;
  InstallMapCanvas(&canvas);
  for (auto _ : state) DoDrawhex();
  Report(state, canvas);
  InstallMapCanvas(nullptr);
}
BENCHMARK(BM_DrawFullMap)->Unit(benchmark::kMicrosecond);

// The same with fog of war: foreign counters show the estimate, which
// reseeds the generator for every top counter.
void BM_DrawFullMapFog(benchmark::State& state) {
  BuildDrawWorld();
  Game.FogOfWar = 1;
  for (int x = 1; x <= 100; ++x)
    for (int y = 1; y <= 100; ++y) Hex[x][y].Vis = 1;
  CountingCanvas canvas;
  InstallMapCanvas(&canvas);
  for (auto _ : state) DoDrawhex();
  Report(state, canvas);
  InstallMapCanvas(nullptr);
}
BENCHMARK(BM_DrawFullMapFog)->Unit(benchmark::kMicrosecond);

// All four overlays switched on: grid, hidden hexes, news marks, supply figures.
void BM_DrawFullMapOverlays(benchmark::State& state) {
  BuildDrawWorld();
  UI.Overlay.ShowGrid = 1;
  UI.Overlay.ShowSight = 1;
  UI.Overlay.ShowEnemy = 1;
  UI.Overlay.ShowSupply = 1;
  for (int x = 1; x <= 100; x += 3)
    for (int y = 1; y <= 100; y += 3) Hex[x][y].NewsMark[1 + (x + y) % 9] = 1;
  CountingCanvas canvas;
  InstallMapCanvas(&canvas);
  for (auto _ : state) DoDrawhex();
  Report(state, canvas);
  InstallMapCanvas(nullptr);
}
BENCHMARK(BM_DrawFullMapOverlays)->Unit(benchmark::kMicrosecond);

// DoDrawhex6, the redraw after a move: the 31 x 31 square around the
// selection, in the middle of the view.
void BM_DrawSquareAroundSelection(benchmark::State& state) {
  BuildDrawWorld();
  CountingCanvas canvas;
  InstallMapCanvas(&canvas);
  for (auto _ : state) DoDrawhex6();
  Report(state, canvas);
  InstallMapCanvas(nullptr);
}
BENCHMARK(BM_DrawSquareAroundSelection)->Unit(benchmark::kMicrosecond);

// Every hex of the map painted, as a window that shows the whole map at once
// (a minimap, a screenshot of the full picture) would need: DrawHex for all
// 10 000 hexes, the culling turned aside by walking the view over the map.
void BM_DrawEveryHex(benchmark::State& state) {
  BuildDrawWorld();
  CountingCanvas canvas;
  InstallMapCanvas(&canvas);
  for (auto _ : state) {
    for (int vx = 0; vx < 5; ++vx) {
      for (int vy = 0; vy < 7; ++vy) {
        UI.ScrollX = vx * 23 * 42;
        UI.ScrollY = vy * 16 * 30;
        for (int x = 1 + vx * 23; x <= 100 && x <= 23 + vx * 23; ++x)
          for (int y = 1 + vy * 16; y <= 100 && y <= 16 + vy * 16; ++y) DrawHex(x, y);
      }
    }
  }
  Report(state, canvas);
  InstallMapCanvas(nullptr);
}
BENCHMARK(BM_DrawEveryHex)->Unit(benchmark::kMicrosecond);

// The counters of all 1500 formations.
void BM_CounterAllUnits(benchmark::State& state) {
  BuildDrawWorld();
  for (auto _ : state) {
    for (int u = 1; u <= Game.UnitCount; ++u) Counter(u);
    benchmark::DoNotOptimize(Unit[1].CounterPic);
  }
}
BENCHMARK(BM_CounterAllUnits)->Unit(benchmark::kMicrosecond);

}  // namespace
