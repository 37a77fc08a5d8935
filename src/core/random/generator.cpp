#include "random/generator.h"

#include "model/arith.h"
#include "model/capacity.h"
#include "model/game_state.h"
#include "random/islands.h"
#include "random/roads.h"
#include "random/start_forces.h"
#include "random/towns.h"

namespace mf {
namespace {

// A second attempt after running out of numbers starts from no forces.
void ForgetForces() {
  for (int u = 1; u <= kUnitCap; ++u) Unit[u] = UnitRec{};
  Game.UnitCount = 0;
  for (int o = 1; o <= kOfficerCap; ++o) Officer[o] = OfficerRec{};
  Game.OfficerCount = 0;
  for (int r = 1; r <= kRegimeCap; ++r) {
    for (int s = 1; s <= kShqCap; ++s) Shq[r][s] = ShqRec{};
    for (int b = 1; b <= kBadgeCap; ++b) Regime[r].ThqBadgeUnit[b] = 0;
    Regime[r].UnitSerial = 0;
  }
}

}  // namespace

bool MakeRandomMap(int size, int land, int seed, bool realRandomStart) {
  if (size < 1 || size > kMapCap) return false;
  Game.MapW = size;
  Game.MapH = size;
  Game.Turn = 0;
  UI.EditMode = 0;
  for (int x = 1; x <= size; ++x)
    for (int y = 1; y <= size; ++y) {
      Hex[x][y] = HexRec{};
      Hex[x][y].Land = kSea;
    }
  ForgetForces();

  const int islands = IslandCount(size, land);
  const int waves = GrowthWaves(size, land);
  TownNameDraw names;
  for (int i = 1; i <= islands; ++i) {
    GrowIsland(waves);
    PlaceShoreTown(names);
    PlaceInlandTown(names);
  }

  const bool placed = PlaceStartForces(seed, realRandomStart, names);
  Game.CurRegime = 0;
  if (!placed) return false;
  BuildRoads();

  double pop = 0;
  for (int x = 1; x <= size; ++x)
    for (int y = 1; y <= size; ++y) pop += Hex[x][y].Pop;
  Game.GameEndPop = static_cast<Long>(Int(pop * 0.8));
  Game.CurRegime = 0;
  Game.Turn = 0;
  UI.SelX = 0;
  UI.SelY = 0;
  return true;
}

}  // namespace mf
