#include "ai/areas.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "ai/unit_worth.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/hex_geometry.h"

namespace mf {
namespace {

bool OnMap(const HexXY& n) { return n.x > 0 && n.y > 0; }
bool IsSea(const HexRec& h) { return h.Land == kSea; }
bool IsMountain(const HexRec& h) { return h.Land == kMountain; }

// Landmasses: a seed spreads in whole-map sweeps, x outer and y inner. A
// hex takes the number of a numbered neighbour that is neither sea nor
// mountain, so a mountain gets a number but passes none on. The rule allows
// as many sweeps as the map is long; a sweep that numbers nothing would leave
// every later sweep the same, so the spreading stops there.
void FindLandmasses(int m) {
  const int w = MapW(), h = MapH();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      const HexRec& seed = Hex[x][y];
      if (IsSea(seed) || IsMountain(seed) || seed.Landmass != 0) continue;
      AI.LandmassCount += 1;
      Hex[x][y].Landmass = static_cast<Short>(AI.LandmassCount);
      for (int sweep = 1; sweep <= m; ++sweep) {
        bool changed = false;
        for (int sx = 1; sx <= w; ++sx) {
          for (int sy = 1; sy <= h; ++sy) {
            HexRec& hex = Hex[sx][sy];
            if (IsSea(hex) || hex.Landmass != 0) continue;
            for (int d = 1; d <= kHexSides; ++d) {
              const HexXY n = Neighbour(sx, sy, d);
              if (!OnMap(n)) continue;
              const HexRec& nb = Hex[n.x][n.y];
              if (IsSea(nb) || IsMountain(nb) || nb.Landmass == 0) continue;
              hex.Landmass = nb.Landmass;
              changed = true;
              break;
            }
          }
        }
        if (!changed) break;
      }
    }
  }
}

// Whether an area spreading from `from` may not enter `to`: it keeps to land
// of one owner, goes to sea only from its town hex, and once at sea stays
// at sea.
bool SpreadStops(const HexRec& from, const HexRec& to) {
  if (to.Owner != from.Owner && !IsSea(to)) return true;
  if (IsMountain(to)) return true;
  if (!IsSea(from) && from.Land != kUrban && IsSea(to)) return true;
  if (IsSea(from) && !IsSea(to)) return true;
  return false;
}

double SpreadFactor(const HexRec& to) {
  if (to.Land == kSwamp) return 0.5;
  if (to.Land == kForest) return 0.75;
  return 0.9;
}

struct Cell {
  int x, y;
};

// Town areas race outward in waves from every town. The hexes of one wave
// are visited in map order (x outer, y inner), as a whole-map scan for
// Hex.Mark = w would visit them; only those hexes are kept in a list.
void FindTownAreas(int m) {
  const int w = MapW(), h = MapH();
  std::vector<Cell> wave;
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      HexRec& hex = Hex[x][y];
      if (hex.Pop > 0 && hex.Land == kUrban) {
        if (AI.AreaCount >= kAreaCap) continue;  // the tables hold 100 areas
        const int a = static_cast<int>(++AI.AreaCount);
        AI.AreaX[a] = x;
        AI.AreaY[a] = y;
        AI.AreaLandmass[a] = hex.Landmass;
        AI.AreaValue[a] = hex.Pop;
        hex.Area = static_cast<Short>(a);
        hex.AreaValue = 100;
        hex.Mark = 1;
        wave.push_back({x, y});
      }
    }
  }
  // Wave 0 finds no hex marked 0 with an area; the towns spread in wave 1.
  std::vector<Cell> next;
  for (int wv = 1; wv <= m && !wave.empty(); ++wv) {
    next.clear();
    for (const Cell& c : wave) {
      const HexRec& from = Hex[c.x][c.y];
      for (int d = 1; d <= kHexSides; ++d) {
        const HexXY n = Neighbour(c.x, c.y, d);
        if (!OnMap(n)) continue;
        HexRec& to = Hex[n.x][n.y];
        if (to.Area != 0 || SpreadStops(from, to)) continue;
        const Long v = static_cast<Long>(Int(from.AreaValue * SpreadFactor(to)));
        if (v <= to.AreaValue) continue;
        to.Mark = static_cast<Short>(wv + 1);
        to.AreaValue = v;
        to.Area = from.Area;
        next.push_back({n.x, n.y});
      }
    }
    std::sort(next.begin(), next.end(), [](const Cell& a, const Cell& b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
    wave.swap(next);
  }
}

// Land where a unit stands but no town's area reaches becomes a pocket area
// of its own, and the pocket's name is written on the map for good.
void FindPockets(int m) {
  const int w = MapW(), h = MapH();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      HexRec& centre = Hex[x][y];
      if (IsSea(centre) || IsMountain(centre) || centre.Area != 0 || centre.Unit[1] == 0) continue;
      if (AI.AreaCount >= kAreaCap) return;  // the tables hold 100 areas
      const int a = static_cast<int>(++AI.AreaCount);
      AI.AreaSide[a] = centre.Owner == Game.CurRegime ? 1 : 2;
      AI.AreaX[a] = x;
      AI.AreaY[a] = y;
      centre.UrbanName = "Pocket " + Str(a);
      AI.AreaValue[a] = static_cast<Long>(CInt(Game.GameEndPop / 50.0));
      centre.Area = static_cast<Short>(a);
      centre.AreaValue = 100;
      const Long owner = centre.Owner;
      // As many sweeps as the map is long; one that adds nothing ends it.
      for (int sweep = 1; sweep <= m; ++sweep) {
        bool changed = false;
        for (int sx = 1; sx <= w; ++sx) {
          for (int sy = 1; sy <= h; ++sy) {
            HexRec& hex = Hex[sx][sy];
            if (hex.Owner != owner || IsSea(hex) || IsMountain(hex) || hex.Area != 0) continue;
            for (int d = 1; d <= kHexSides; ++d) {
              const HexXY n = Neighbour(sx, sy, d);
              if (OnMap(n) && Hex[n.x][n.y].Area == a) {
                hex.Area = static_cast<Short>(a);
                hex.AreaValue = 100;
                changed = true;
                break;
              }
            }
          }
        }
        if (!changed) break;
      }
    }
  }
}

void CountBorders() {
  const int w = MapW(), h = MapH();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      const HexRec& hex = Hex[x][y];
      const int a = hex.Area;
      if (a <= 0 || a > kAreaCap) continue;
      for (int d = 1; d <= kHexSides; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (!OnMap(n)) continue;
        const HexRec& nb = Hex[n.x][n.y];
        const int b = nb.Area;
        if (b <= 0 || b > kAreaCap || b == a) continue;
        if (!IsSea(hex) && !IsSea(nb)) {
          AI.AreaLandBorder[a][b] += 1;
          AI.AreaLandBorder[b][a] += 1;
        } else if (IsSea(hex) && IsSea(nb)) {
          AI.AreaSeaBorder[a][b] += 1;
        } else if (IsSea(hex)) {
          AI.AreaCoastBorder[a][b] += 1;
        }
      }
    }
  }
}

// Each area takes the mean of its value and its land neighbours' values, in
// number order and in place: later areas see values already smoothed.
void SmoothValues() {
  const int count = LastArea();
  for (int a = 1; a <= count; ++a) {
    std::int64_t sum = AI.AreaValue[a];
    int n = 1;
    for (int b = 1; b <= count; ++b) {
      if (AI.AreaLandBorder[a][b] > 0) {
        sum += AI.AreaValue[b];
        ++n;
      }
    }
    AI.AreaValue[a] = static_cast<Long>(Int(static_cast<double>(sum) / n));
  }
}

}  // namespace

void AIClear() {
  AI.AreaCount = 0;
  AI.FrontCount = 0;
  AI.LandmassCount = 0;
  for (int x = 0; x <= kMapCap; ++x) {
    for (int y = 0; y <= kMapCap; ++y) {
      HexRec& h = Hex[x][y];
      h.Mark = 0;
      h.ScratchRecon = 0;
      h.Area = 0;
      h.AreaValue = 0;
      h.Landmass = 0;
    }
  }
  for (int a = 0; a <= kAreaCap; ++a) {
    AI.AreaX[a] = AI.AreaY[a] = AI.AreaValue[a] = 0;
    AI.AreaOwnStrength[a] = AI.AreaEnemyStrength[a] = AI.AreaContact[a] = 0;
    AI.AreaLandmass[a] = AI.AreaSide[a] = 0;
    for (int b = 0; b <= kAreaCap; ++b) {
      AI.AreaLandBorder[a][b] = AI.AreaSeaBorder[a][b] = AI.AreaCoastBorder[a][b] = 0;
      AI.AreaLandDist[a][b] = AI.AreaSeaDist[a][b] = 0;
    }
  }
  for (int s = 0; s <= kShqCap; ++s) AI.ShqNeedsLand[s] = 0;
  for (int f = 0; f <= kFrontCap; ++f) {
    AI.FrontOwnArea[f] = AI.FrontEnemyArea[f] = AI.FrontWeight[f] = 0;
    AI.FrontStance[f] = AI.FrontShare[f] = AI.FrontStrength[f] = 0;
  }
}

void AIAreaDistances(const AreaPairTable& border, AreaPairTable& dist, int count) {
  // The rule relaxes every row as many times as there are areas; what it
  // reaches is the length of the shortest walk of at least one step, which
  // a breadth-first search per area finds in one pass. An area reaches
  // itself by going to a neighbour and back: 2 steps.
  std::vector<int> queue;
  queue.reserve(static_cast<std::size_t>(count) + 1);
  for (int a = 1; a <= count; ++a) {
    for (int b = 1; b <= count; ++b) dist[a][b] = 999;
    queue.clear();
    for (int b = 1; b <= count; ++b) {
      if (border[a][b] > 0) {
        dist[a][b] = 1;
        queue.push_back(b);
      }
    }
    for (std::size_t head = 0; head < queue.size(); ++head) {
      const int b = queue[head];
      const Short next = static_cast<Short>(dist[a][b] + 1);
      for (int c = 1; c <= count; ++c) {
        if (border[b][c] <= 0 || dist[a][c] <= next) continue;
        dist[a][c] = next;
        // Back home is no place to go on from: its neighbours are at 1.
        if (c != a) queue.push_back(c);
      }
    }
  }
}

void AIFindAreas() {
  const int m = std::max(MapW(), MapH());
  FindLandmasses(m);
  FindTownAreas(m);
  FindPockets(m);
  CountBorders();
  SmoothValues();
  const int count = LastArea();
  AIAreaDistances(AI.AreaLandBorder, AI.AreaLandDist, count);
  AIAreaDistances(AI.AreaSeaBorder, AI.AreaSeaDist, count);
}

void AIAreaStrength() {
  const int count = LastArea();
  for (int a = 1; a <= count; ++a) {
    if (Hex[AI.AreaX[a]][AI.AreaY[a]].Owner == Game.CurRegime) {
      AI.AreaSide[a] = 1;
    } else {
      AI.AreaSide[a] = 2;
      // All the computer knows of the other side is what the area is worth.
      AI.AreaEnemyStrength[a] = static_cast<Long>(Int(std::sqrt(AI.AreaValue[a] / 200.0)));
    }
  }
  const int w = MapW(), h = MapH();
  const int me = CurrentRegime();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      const HexRec& hex = Hex[x][y];
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = static_cast<int>(hex.Unit[s]);
        if (!ValidUnit(u) || me == 0 || Unit[u].Regime != me || Unit[u].Theater != kLandTheater) continue;
        const Long worth = AIUnitWorth(x, y, u, 3);
        const int a = hex.Area > 0 && hex.Area <= kAreaCap ? hex.Area : 0;
        // Own units in a foreign area raise that area's figure too.
        if (AI.AreaSide[a] == 1)
          AI.AreaOwnStrength[a] += worth;
        else
          AI.AreaEnemyStrength[a] += worth;
      }
    }
  }
  for (int a = 1; a <= count; ++a) {
    if (AI.AreaSide[a] == 1) {
      Long contact = AI.AreaEnemyStrength[a];
      for (int b = 1; b <= count; ++b)
        if (AI.AreaSide[b] == 2 && AI.AreaLandBorder[a][b] > 0) contact += AI.AreaEnemyStrength[b];
      AI.AreaContact[a] = contact;
    } else {
      Long contact = 0;
      for (int b = 1; b <= count; ++b)
        if (AI.AreaSide[b] == 1 && AI.AreaLandBorder[a][b] > 0) contact += AI.AreaOwnStrength[b];
      AI.AreaContact[a] = contact;
    }
  }
}

}  // namespace mf
