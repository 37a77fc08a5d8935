#include "random/islands.h"

#include "model/arith.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"

namespace mf {

int IslandCount(int size, int land) { return static_cast<int>(Int((size + land) / 10.0)); }

int GrowthWaves(int size, int land) {
  return static_cast<int>(Int(size / 4.0) - 5 + Int(land / 10.0));
}

void GrowIsland(int waves) {
  const int w = static_cast<int>(Game.MapW);
  const int h = static_cast<int>(Game.MapH);
  Rnd();
  // Each island has its own mix: above P plains, above M forest, else mountain.
  const float plains = Rnd() * 0.2f + 0.2f;
  const float forest = Rnd() * 0.1f + 0.05f;
  for (int x = 2; x <= w - 1; ++x)
    for (int y = 2; y <= h - 1; ++y) Hex[x][y].Work = 0;
  const int sx = static_cast<int>(Int(Rnd() * static_cast<double>(w - 3))) + 2;
  const int sy = static_cast<int>(Int(Rnd() * static_cast<double>(h - 3))) + 2;
  if (ValidHex(sx, sy)) Hex[sx][sy].Work = 1;

  for (int wave = 1; wave <= waves; ++wave) {
    for (int x = 2; x <= w - 1; ++x)
      for (int y = 2; y <= h - 1; ++y) {
        HexRec& hex = Hex[x][y];
        if (hex.Work != wave || hex.Land != kSea) continue;
        const float r = Rnd();
        hex.Land = r > plains ? kGrass : r > forest ? kForest : kMountain;
        // Growth is sure at first and thins out towards the last wave.
        for (int d = 1; d <= 6; ++d) {
          const HexXY n = Neighbour(x, y, d);
          if (n.x < 1 || n.y < 1) continue;
          if (Int(Rnd() * static_cast<double>(waves)) < waves + 1 - wave) Hex[n.x][n.y].Work = wave + 1;
        }
      }
  }
}

}  // namespace mf
