#include "engine/supply_flood.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "orders/flood.h"

namespace mf {
namespace {

constexpr int kOut = 999;  // cost of a hex out of reach

// Costs are whole numbers well inside 16 bits for any sane rule set; a rule
// set with absurd costs is held at the edge of the field rather than wrapped.
Short ToMark(long v) { return static_cast<Short>(std::clamp<long>(v, -32768, 32767)); }

// The reach of a flood by the kind of unit it starts from.
int FloodReach(int u) {
  long r = 0;
  if (Unit[u].Shq > 0) {
    r = EV(230);
  } else if (Unit[u].Thq > 0) {
    r = std::max<long>(10, Unit[u].MP);
  } else {
    r = Unit[u].MP;
  }
  if (r == 0) r = 1;
  // More waves than the map has hexes can reach nothing new.
  return static_cast<int>(std::clamp<long>(r, -1, kMapCap * kMapCap));
}

// Everything reachable at no cost: the editor's flood.
void EditFlood() {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      h.Mark = 0;
      h.ScratchRecon = 0;
      h.PathSea = h.PathLand = h.PathPortX = h.PathPortY = 0;
    }
  }
}

// The flood reads and writes a few fields of many hexes many times, and the
// hex records are large: it works on a compact copy of those fields for the
// part of the map it can touch (its box and two hexes around it, as far as
// a step and the look around a sea hex go), made once per flood, and writes
// its results back into the hex records at the end.
struct Cell {
  Long wave = 0;
  Long stepCost = 0;     // the cost of a step into it by its landscape
  Short mark = 0;
  Short pathSea = 0, pathLand = 0, pathPortX = 0, pathPortY = 0;
  bool landCost = false; // whether the cost table knows its landscape (sea is costed apart)
  bool sea = false;
  bool urban = false;
  bool belowSea = false; // grass, forest or urban (Land below the sea's number)
  bool road = false;     // Hex.Road is 1
  bool own = false;      // the hex is the flooding regime's
  bool foreign = false;  // another regime's formation stands in stack slot 1
  bool held = false;     // the flooding regime's formation stands in stack slot 1
};

// A hex is kept as x * (kMapCap + 1) + y, so that the order of the numbers
// is the order in which a walk over the map, column by column and top to
// bottom, meets the hexes.
constexpr int kColumn = kMapCap + 1;

struct FloodScratch {
  std::vector<Cell> cells = std::vector<Cell>(kColumn * kColumn);
  // The hexes a wave walks. The rules walk every hex of the box in each
  // wave and expand those that carry the wave's number; only hexes the wave
  // before gave that number can carry it, so the flood keeps them in a
  // list, in the order of the walk over the box, and walks only those.
  // Every tie between two routes thus falls as the walk over the box lets
  // it fall, and the step cost carried from one step to the next sees the
  // same steps in the same order.
  std::vector<int> walk;  // the wave being walked
  std::vector<int> next;  // hexes given the next wave's number, as they came
};

FloodScratch& Scratch() {
  static FloodScratch scratch;
  return scratch;
}

bool IsSea(const Cell& h) { return h.sea; }

// Sea n is closed when an enemy ship lies on it or on a sea hex beside it,
// unless an own ship holds n itself; supply leaves the land only from an own
// port, and otherwise stays on the sea.
bool SeaBlocked(const std::vector<Cell>& cells, int cx, int cy, int nx, int ny, bool seaAllowed) {
  const Cell& n = cells[nx * kColumn + ny];
  bool blocked = n.foreign;
  for (int dir = 1; dir <= kHexSides && !blocked; ++dir) {
    const HexXY m = Neighbour(nx, ny, dir);
    if (m.x < 1 || m.y < 1) continue;
    const Cell& side = cells[m.x * kColumn + m.y];
    if (IsSea(side) && side.foreign) blocked = true;
  }
  if (n.held) blocked = false;
  const Cell& cur = cells[cx * kColumn + cy];
  const bool ownPort = cur.urban && cur.own;
  if (!seaAllowed || !(ownPort || IsSea(cur))) blocked = true;
  return blocked;
}

// Carries the route of cur over to n after an accepted step.
void CarryRoute(const Cell& cur, Cell& n, int nx, int ny) {
  const bool curSea = IsSea(cur);
  const bool nSea = IsSea(n);
  if (!curSea && !nSea) {
    n.pathLand = cur.pathSea == 0 ? static_cast<Short>(cur.pathLand + 1) : cur.pathLand;
    n.pathSea = cur.pathSea;
    n.pathPortX = cur.pathPortX;
    n.pathPortY = cur.pathPortY;
  } else if (curSea && nSea) {
    if (cur.pathPortX == 0) {
      n.pathSea = static_cast<Short>(cur.pathSea + 1);
      n.pathLand = cur.pathLand;
      n.pathPortX = cur.pathPortX;
      n.pathPortY = cur.pathPortY;
    }
  } else if (!curSea && nSea) {
    if (cur.pathSea == 0) {
      n.pathLand = cur.pathLand;
      n.pathSea = 1;
    }
  } else if (cur.pathPortX == 0) {
    // Ashore: in an urban hex the route has found a port, elsewhere open shore.
    if (n.urban) {
      n.pathPortX = static_cast<Short>(nx);
      n.pathPortY = static_cast<Short>(ny);
    } else {
      n.pathPortX = -1;
      n.pathPortY = -1;
    }
    n.pathLand = cur.pathLand;
    n.pathSea = cur.pathSea;
  }
}

// Whether the step from cur to n with cost c replaces what n holds. The
// rules are applied in their order; each may overturn the one before.
bool AcceptStep(const Cell& cur, const Cell& n, long c) {
  const long mc = cur.mark, mn = n.mark;
  const long pc = cur.pathPortX, pn = n.pathPortX;
  const long sc = cur.pathSea, sn = n.pathSea;
  const bool curSea = IsSea(cur), nSea = IsSea(n);
  bool a = mc + c < mn;
  // 1. A landed route always gives way to one that has not landed on open shore.
  if (pc >= 0 && pn == -1) a = true;
  // 2. An overland route replaces a sea route even if up to 60% longer.
  if (sc == 0 && sn > 0 && !curSea && !nSea && 16 * mn > 10 * mc) a = true;
  // 3.
  if (a && mn < kOut && pn == 0 && (curSea || pc == -1)) a = false;
  // 4. Open shore never replaces a port.
  if (pc == -1 && pn > 0) a = false;
  // 5. A port replaces open shore.
  if (pn == -1 && pc > 0) a = true;
  // 6.
  if (sc > 0 && sn == 0 && !curSea && !nSea && 16 * mc < 10 * mn && 2 * mn > EV(230)) a = true;
  // 7.
  if (c < kOut && sn > 0) {
    if (pn > 0 && pc == 0 && mc < kOut) a = true;
    if (pn == -1 && pc > -1 && mc < kOut) a = true;
  }
  // 8. A hex reached without a landing is never taken over by a route that landed.
  if (!a) return false;
  if (pn == 0 && mn < kOut && (pc > 0 || pc == -1)) return false;
  if (pn > 0 && pc == -1) return false;
  return true;
}

// The regime of the unit in stack slot 1 of a hex; 0 when the slot is empty.
Long SlotOneRegime(const HexRec& h) {
  const int u = h.Unit[1];
  return ValidUnit(u) ? Unit[u].Regime : 0;
}

// The compact copy of hex (x, y) as a flood starts: what it reads of the
// hex, and its planes cleared.
Cell Gather(const HexRec& h) {
  Cell c;
  c.sea = h.Land == kSea;
  c.urban = h.Land == kUrban;
  c.belowSea = h.Land < kSea;
  switch (h.Land) {
    case kGrass: c.stepCost = EV(21); break;
    case kForest: c.stepCost = EV(22); break;
    case kUrban: c.stepCost = EV(23); break;
    case kSwamp: c.stepCost = EV(25); break;
    case kMountain: c.stepCost = EV(26); break;
    default: break;
  }
  c.landCost = h.Land == kGrass || h.Land == kForest || h.Land == kUrban || h.Land == kSwamp || h.Land == kMountain;
  c.wave = kOut;
  c.mark = kOut;
  c.road = h.Road == 1;
  c.own = h.Owner == Game.CurRegime;
  const Long r = SlotOneRegime(h);
  c.foreign = r != 0 && r != Game.CurRegime;
  c.held = r == Game.CurRegime && h.Unit[1] != 0;
  return c;
}

}  // namespace

long TownSupply(int x, int y) {
  if (!ValidHex(x, y)) return 0;
  const HexRec& h = Hex[x][y];
  const long divider = EV(201);
  if (divider == 0) return 0;
  // (Pop / 100) * (100 - Damage) / divider, taken whole in one division so
  // that no binary fraction decides the floor.
  const std::int64_t num = static_cast<std::int64_t>(h.Pop) * (100 - h.Damage);
  const std::int64_t den = static_cast<std::int64_t>(100) * divider;
  std::int64_t q = num / den;
  if ((num % den != 0) && ((num < 0) != (den < 0))) --q;
  return static_cast<long>(std::clamp<std::int64_t>(q, INT32_MIN, INT32_MAX));
}

void SupplyFlood(bool seaAllowed) {
  const int ox = UI.OrdX, oy = UI.OrdY;
  const int slot = UI.OrdSlot;
  const int u = (ValidHex(ox, oy) && slot >= 1 && slot <= kStackSlots) ? Hex[ox][oy].Unit[slot] : 0;
  const int reach = FloodReach(ValidUnit(u) ? u : 0);

  if (UI.EditMode == 1) {
    EditFlood();
    return;
  }

  // No origin on the map: nothing is reached.
  if (!ValidHex(ox, oy)) {
    for (int x = 1; x <= MapW(); ++x) {
      for (int y = 1; y <= MapH(); ++y) {
        HexRec& h = Hex[x][y];
        h.PathSea = h.PathLand = h.PathPortX = h.PathPortY = 0;
        h.Mark = kOut;
        h.Wave = kOut;
      }
    }
    FloodMinX = FloodMinY = FloodMaxX = FloodMaxY = 0;
    return;
  }
  const int minX = std::max(1, ox - (reach + 1)), maxX = std::min(MapW(), ox + reach + 1);
  const int minY = std::max(1, oy - (reach + 1)), maxY = std::min(MapH(), oy + reach + 1);
  // What the flood can touch: the box, a step beyond it, and the hexes
  // around a sea hex a step beyond it.
  const int loX = std::max(1, minX - 2), hiX = std::min(MapW(), maxX + 2);
  const int loY = std::max(1, minY - 2), hiY = std::min(MapH(), maxY + 2);

  FloodScratch& fs = Scratch();
  std::vector<Cell>& cells = fs.cells;
  for (int x = loX; x <= hiX; ++x)
    for (int y = loY; y <= hiY; ++y) cells[x * kColumn + y] = Gather(Hex[x][y]);
  const int origin = ox * kColumn + oy;
  cells[origin].mark = 0;
  cells[origin].wave = 1;
  fs.walk.clear();
  fs.next.clear();
  fs.walk.push_back(origin);

  // The step cost lives for the whole flood: a landscape the cost table does
  // not know keeps the cost of the step before.
  long c = 0;
  for (int w = 1; w <= reach; ++w) {
    if (w == kOut) {
      // The hexes the flood never reached still carry the out-of-reach wave
      // number and a cost within a reach this long: this one wave walks them
      // all, the whole box in its order.
      fs.walk.clear();
      for (int x = minX; x <= maxX; ++x)
        for (int y = minY; y <= maxY; ++y) fs.walk.push_back(x * kColumn + y);
    } else if (fs.walk.empty()) {
      // Nothing left to walk: the flood is done, unless its reach takes it
      // to that one wave.
      if (reach < kOut || w > kOut) break;
      w = kOut - 1;
      continue;
    }
    for (const int cell : fs.walk) {
      const int x = cell / kColumn, y = cell % kColumn;
      Cell& cur = cells[cell];
      if (cur.mark > reach || cur.wave != w) continue;
      for (int dir = 1; dir <= kHexSides; ++dir) {
        const HexXY nn = Neighbour(x, y, dir);
        if (nn.x < 1 || nn.y < 1) continue;
        const int cellN = nn.x * kColumn + nn.y;
        Cell& n = cells[cellN];
        // 1. Landscape.
        if (n.landCost) c = n.stepCost;
        // 2. Roads, and a road running into a town or out of one.
        if ((cur.road && n.road) || (cur.road && n.urban) || (cur.urban && n.road)) c = EV(27);
        // 3. Taking to sea.
        if (IsSea(n)) c = SeaBlocked(cells, x, y, nn.x, nn.y, seaAllowed) ? kOut : EV(24);
        // 4. Coming ashore costs a sea step whatever the land.
        if (IsSea(cur) && !IsSea(n)) c = EV(24);
        // 5. A route that has landed does not land again (swamp and mountain excepted).
        if (IsSea(cur) && n.belowSea && cur.pathPortX != 0) c = kOut;
        // 6.
        if (IsSea(cur) && !IsSea(n) && n.mark > 0 && n.pathPortX > 0) c = kOut;
        // 7. Supply crosses only the regime's own land, and the sea.
        if (!IsSea(n) && !n.own) c = kOut;

        if (!AcceptStep(cur, n, c)) continue;
        n.mark = ToMark(cur.mark + c);
        const bool queued = n.wave == w + 1;
        n.wave = w + 1;
        CarryRoute(cur, n, nn.x, nn.y);
        // Hexes outside the box are written but never walked.
        if (queued || nn.x < minX || nn.x > maxX || nn.y < minY || nn.y > maxY) continue;
        fs.next.push_back(cellN);
      }
    }
    std::sort(fs.next.begin(), fs.next.end());
    std::swap(fs.walk, fs.next);
    fs.next.clear();
  }

  // Costs beyond the reach read as out of reach.
  for (int x = minX; x <= maxX; ++x) {
    for (int y = minY; y <= maxY; ++y) {
      Cell& h = cells[x * kColumn + y];
      if (h.mark > reach) h.mark = kOut;
    }
  }
  FloodMinX = minX;
  FloodMinY = minY;
  FloodMaxX = maxX;
  FloodMaxY = maxY;

  // The results into the hex records; every hex of the map outside what the
  // flood could touch is out of reach with no route.
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      if (x < loX || x > hiX || y < loY || y > hiY) {
        h.PathSea = h.PathLand = h.PathPortX = h.PathPortY = 0;
        h.Mark = kOut;
        h.Wave = kOut;
        continue;
      }
      const Cell& f = cells[x * kColumn + y];
      h.Mark = f.mark;
      h.Wave = f.wave;
      h.PathSea = f.pathSea;
      h.PathLand = f.pathLand;
      h.PathPortX = f.pathPortX;
      h.PathPortY = f.pathPortY;
    }
  }
}

}  // namespace mf
