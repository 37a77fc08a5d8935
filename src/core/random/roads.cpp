#include "random/roads.h"

#include <vector>

#include "ai/ai_state.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {
namespace {

constexpr int kUnreached = 999;
constexpr int kGrowthWaves = 30;
constexpr int kFloodWaves = 39;
constexpr int kRoadWaves = 20;  // a way must be found in fewer waves than this

bool Passable(const HexRec& h) { return h.Land != kSea && h.Land != kMountain; }

// Cost of stepping from one hex onto the next.
int StepCost(const HexRec& from, const HexRec& to) {
  if (!Passable(to)) return kUnreached;
  if (from.Road != 0 && to.Road != 0) return 1;
  if (to.Land == kUrban) return 1;
  return 5;
}

// The scratch planes of the road flood: cost, wave of arrival and the hex
// each hex was entered from.
struct RoadFlood {
  std::vector<int> cost, wave, from;
  std::vector<int> frontier, next;
};

// Floods from town a and, if town b is reached in time, lays the road.
void JoinTowns(RoadFlood& f, int ax, int ay, int bx, int by) {
  const int w = static_cast<int>(Game.MapW);
  const int h = static_cast<int>(Game.MapH);
  const int stride = h + 1;
  auto at = [stride](int x, int y) { return x * stride + y; };
  const std::size_t cells = static_cast<std::size_t>((w + 1) * stride);
  f.cost.assign(cells, kUnreached);
  f.wave.assign(cells, 0);
  f.from.assign(cells, -1);
  f.frontier.clear();
  f.cost[static_cast<std::size_t>(at(ax, ay))] = 0;
  f.frontier.push_back(at(ax, ay));
  for (int wave = 1; wave <= kFloodWaves && !f.frontier.empty(); ++wave) {
    f.next.clear();
    for (const int c : f.frontier) {
      const int x = c / stride;
      const int y = c % stride;
      const HexRec& here = Hex[x][y];
      for (int d = 1; d <= 6; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (n.x < 1 || n.y < 1) continue;
        const int step = StepCost(here, Hex[n.x][n.y]);
        if (step >= kUnreached) continue;
        const int nc = at(n.x, n.y);
        const int cost = f.cost[static_cast<std::size_t>(c)] + step;
        if (cost < f.cost[static_cast<std::size_t>(nc)]) {
          if (f.wave[static_cast<std::size_t>(nc)] != wave) f.next.push_back(nc);
          f.cost[static_cast<std::size_t>(nc)] = cost;
          f.wave[static_cast<std::size_t>(nc)] = wave;
          f.from[static_cast<std::size_t>(nc)] = c;
        }
      }
    }
    f.frontier.swap(f.next);
  }
  const int b = at(bx, by);
  if (f.cost[static_cast<std::size_t>(b)] >= kUnreached || f.wave[static_cast<std::size_t>(b)] >= kRoadWaves) return;
  for (int c = b; c >= 0; c = f.from[static_cast<std::size_t>(c)]) Hex[c / stride][c % stride].Road = 1;
}

}  // namespace

void BuildRoads() {
  const int w = static_cast<int>(Game.MapW);
  const int h = static_cast<int>(Game.MapH);
  // Every town is an area of its own.
  AI.AreaCount = 0;
  for (int x = 1; x <= w; ++x)
    for (int y = 1; y <= h; ++y) {
      HexRec& hex = Hex[x][y];
      hex.Area = 0;
      hex.Mark = kUnreached;
      if (hex.Land != kUrban || AI.AreaCount >= kAreaCap) continue;
      const int a = static_cast<int>(++AI.AreaCount);
      AI.AreaX[a] = x;
      AI.AreaY[a] = y;
      hex.Area = static_cast<Short>(a);
      hex.Mark = 1;
      hex.Road = 0;
    }
  for (int a = 1; a <= kAreaCap; ++a)
    for (int b = 1; b <= kAreaCap; ++b) AI.AreaLandBorder[a][b] = 0;

  // The towns spread over land; where two meet they border each other.
  for (int wave = 1; wave <= kGrowthWaves; ++wave)
    for (int x = 1; x <= w; ++x)
      for (int y = 1; y <= h; ++y) {
        const HexRec& hex = Hex[x][y];
        if (hex.Mark != wave) continue;
        for (int d = 1; d <= 6; ++d) {
          const HexXY n = Neighbour(x, y, d);
          if (n.x < 1 || n.y < 1) continue;
          HexRec& next = Hex[n.x][n.y];
          if (next.Mark == kUnreached) {
            if (!Passable(next)) continue;
            next.Mark = static_cast<Short>(wave + 1);
            next.Area = hex.Area;
          } else if (next.Area != 0 && next.Area != hex.Area) {
            AI.AreaLandBorder[hex.Area][next.Area] = 1;
            AI.AreaLandBorder[next.Area][hex.Area] = 1;
          }
        }
      }

  RoadFlood flood;
  const int count = LastArea();
  for (int a = 1; a <= count; ++a)
    for (int b = a + 1; b <= count; ++b)
      if (AI.AreaLandBorder[a][b] == 1)
        JoinTowns(flood, static_cast<int>(AI.AreaX[a]), static_cast<int>(AI.AreaY[a]),
                  static_cast<int>(AI.AreaX[b]), static_cast<int>(AI.AreaY[b]));
}

}  // namespace mf
