#include "engine/supply_flood.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "model/arith.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "orders/flood.h"

namespace mf {
namespace {

constexpr int kOut = 999;  // cost of a hex out of reach

int MapW() { return std::clamp<int>(Game.MapW, 0, kMapCap); }
int MapH() { return std::clamp<int>(Game.MapH, 0, kMapCap); }

bool IsSea(const HexRec& h) { return h.Land == kSea; }
bool HasRoad(const HexRec& h) { return h.Road == 1; }

// The regime of the unit in stack slot 1 of a hex; 0 when the slot is empty.
Long SlotOneRegime(const HexRec& h) {
  const int u = h.Unit[1];
  return ValidUnit(u) ? Unit[u].Regime : 0;
}
bool ForeignInSlotOne(const HexRec& h) {
  const Long r = SlotOneRegime(h);
  return r != 0 && r != Game.CurRegime;
}

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

// Sea n is closed when an enemy ship lies on it or on a sea hex beside it,
// unless an own ship holds n itself; supply leaves the land only from an own
// port, and otherwise stays on the sea.
bool SeaBlocked(int cx, int cy, int nx, int ny, bool seaAllowed) {
  const HexRec& n = Hex[nx][ny];
  bool blocked = ForeignInSlotOne(n);
  for (int dir = 1; dir <= kHexSides && !blocked; ++dir) {
    const HexXY m = Neighbour(nx, ny, dir);
    if (m.x < 1 || m.y < 1) continue;
    const HexRec& side = Hex[m.x][m.y];
    if (IsSea(side) && ForeignInSlotOne(side)) blocked = true;
  }
  if (SlotOneRegime(n) == Game.CurRegime && n.Unit[1] != 0) blocked = false;
  const HexRec& cur = Hex[cx][cy];
  const bool ownPort = cur.Land == kUrban && cur.Owner == Game.CurRegime;
  if (!seaAllowed || !(ownPort || IsSea(cur))) blocked = true;
  return blocked;
}

// Carries the route of cur over to n after an accepted step.
void CarryRoute(const HexRec& cur, HexRec& n, int nx, int ny) {
  const bool curSea = IsSea(cur);
  const bool nSea = IsSea(n);
  if (!curSea && !nSea) {
    n.PathLand = cur.PathSea == 0 ? static_cast<Short>(cur.PathLand + 1) : cur.PathLand;
    n.PathSea = cur.PathSea;
    n.PathPortX = cur.PathPortX;
    n.PathPortY = cur.PathPortY;
  } else if (curSea && nSea) {
    if (cur.PathPortX == 0) {
      n.PathSea = static_cast<Short>(cur.PathSea + 1);
      n.PathLand = cur.PathLand;
      n.PathPortX = cur.PathPortX;
      n.PathPortY = cur.PathPortY;
    }
  } else if (!curSea && nSea) {
    if (cur.PathSea == 0) {
      n.PathLand = cur.PathLand;
      n.PathSea = 1;
    }
  } else if (cur.PathPortX == 0) {
    // Ashore: in an urban hex the route has found a port, elsewhere open shore.
    if (n.Land == kUrban) {
      n.PathPortX = static_cast<Short>(nx);
      n.PathPortY = static_cast<Short>(ny);
    } else {
      n.PathPortX = -1;
      n.PathPortY = -1;
    }
    n.PathLand = cur.PathLand;
    n.PathSea = cur.PathSea;
  }
}

// Whether the step from cur to n with cost c replaces what n holds. The
// rules are applied in their order; each may overturn the one before.
bool AcceptStep(const HexRec& cur, const HexRec& n, long c) {
  const long mc = cur.Mark, mn = n.Mark;
  const long pc = cur.PathPortX, pn = n.PathPortX;
  const long sc = cur.PathSea, sn = n.PathSea;
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

// The hexes a wave walks. The rules walk every hex of the box in each wave,
// column by column and top to bottom, and expand those that carry the
// wave's number; only hexes the wave before gave that number can carry it,
// so the flood keeps them in a list, in that same order, and walks only
// those. Every tie between two routes thus falls as the walk over the box
// lets it fall, and the step cost carried from one step to the next sees
// the same steps in the same order.
//
// A hex is kept as x * (kMapCap + 1) + y, so that the order of the numbers
// is the order of the walk.
constexpr int kColumn = kMapCap + 1;

struct WaveScratch {
  std::vector<int> walk;     // the wave being walked
  std::vector<int> next;     // hexes given the next wave's number, as they came
  std::vector<int> reached;  // hexes in the box whose cost was written
  // reachedIn[x][y] == serial when the hex is in `reached` for this flood.
  std::vector<unsigned> reachedIn = std::vector<unsigned>(kColumn * kColumn, 0u);
  unsigned serial = 0;
};

WaveScratch& Scratch() {
  static WaveScratch scratch;
  return scratch;
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

  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      h.PathSea = h.PathLand = h.PathPortX = h.PathPortY = 0;
      h.Mark = kOut;
      h.Wave = kOut;
    }
  }
  // No origin on the map: nothing is reached.
  if (!ValidHex(ox, oy)) {
    FloodMinX = FloodMinY = FloodMaxX = FloodMaxY = 0;
    return;
  }
  Hex[ox][oy].Mark = 0;
  Hex[ox][oy].Wave = 1;
  const int minX = std::max(1, ox - (reach + 1)), maxX = std::min(MapW(), ox + reach + 1);
  const int minY = std::max(1, oy - (reach + 1)), maxY = std::min(MapH(), oy + reach + 1);

  WaveScratch& ws = Scratch();
  if (++ws.serial == 0) {
    std::fill(ws.reachedIn.begin(), ws.reachedIn.end(), 0u);
    ws.serial = 1;
  }
  ws.walk.clear();
  ws.next.clear();
  ws.reached.clear();
  const int origin = ox * kColumn + oy;
  ws.walk.push_back(origin);
  ws.reached.push_back(origin);
  ws.reachedIn[origin] = ws.serial;

  // The step cost lives for the whole flood: a landscape the cost table does
  // not know keeps the cost of the step before.
  long c = 0;
  for (int w = 1; w <= reach; ++w) {
    if (w == kOut) {
      // The hexes the flood never reached still carry the out-of-reach wave
      // number and a cost within a reach this long: this one wave walks them
      // all, the whole box in its order.
      ws.walk.clear();
      for (int x = minX; x <= maxX; ++x)
        for (int y = minY; y <= maxY; ++y) ws.walk.push_back(x * kColumn + y);
    } else if (ws.walk.empty()) {
      // Nothing left to walk: the flood is done, unless its reach takes it
      // to that one wave.
      if (reach < kOut || w > kOut) break;
      w = kOut - 1;
      continue;
    }
    for (const int cell : ws.walk) {
      const int x = cell / kColumn, y = cell % kColumn;
      HexRec& cur = Hex[x][y];
      if (cur.Mark > reach || cur.Wave != w) continue;
      for (int dir = 1; dir <= kHexSides; ++dir) {
        const HexXY nn = Neighbour(x, y, dir);
        if (nn.x < 1 || nn.y < 1) continue;
        HexRec& n = Hex[nn.x][nn.y];
        // 1. Landscape.
        switch (n.Land) {
          case kGrass: c = EV(21); break;
          case kForest: c = EV(22); break;
          case kUrban: c = EV(23); break;
          case kSwamp: c = EV(25); break;
          case kMountain: c = EV(26); break;
          default: break;
        }
        // 2. Roads, and a road running into a town or out of one.
        if ((HasRoad(cur) && HasRoad(n)) || (HasRoad(cur) && n.Land == kUrban) ||
            (cur.Land == kUrban && HasRoad(n)))
          c = EV(27);
        // 3. Taking to sea.
        if (IsSea(n)) c = SeaBlocked(x, y, nn.x, nn.y, seaAllowed) ? kOut : EV(24);
        // 4. Coming ashore costs a sea step whatever the land.
        if (IsSea(cur) && !IsSea(n)) c = EV(24);
        // 5. A route that has landed does not land again (swamp and mountain excepted).
        if (IsSea(cur) && n.Land < kSea && cur.PathPortX != 0) c = kOut;
        // 6.
        if (IsSea(cur) && !IsSea(n) && n.Mark > 0 && n.PathPortX > 0) c = kOut;
        // 7. Supply crosses only the regime's own land, and the sea.
        if (!IsSea(n) && n.Owner != Game.CurRegime) c = kOut;

        if (!AcceptStep(cur, n, c)) continue;
        n.Mark = ToMark(cur.Mark + c);
        const bool queued = n.Wave == w + 1;
        n.Wave = w + 1;
        CarryRoute(cur, n, nn.x, nn.y);
        // Hexes outside the box are written but never walked.
        if (nn.x < minX || nn.x > maxX || nn.y < minY || nn.y > maxY) continue;
        const int cellN = nn.x * kColumn + nn.y;
        if (!queued) ws.next.push_back(cellN);
        if (ws.reachedIn[cellN] != ws.serial) {
          ws.reachedIn[cellN] = ws.serial;
          ws.reached.push_back(cellN);
        }
      }
    }
    std::sort(ws.next.begin(), ws.next.end());
    std::swap(ws.walk, ws.next);
    ws.next.clear();
  }

  FloodMinX = minX;
  FloodMinY = minY;
  FloodMaxX = maxX;
  FloodMaxY = maxY;
  // Costs beyond the reach read as out of reach; only hexes of the box that
  // the flood wrote can hold one.
  for (const int cell : ws.reached) {
    HexRec& h = Hex[cell / kColumn][cell % kColumn];
    if (h.Mark > reach) h.Mark = kOut;
  }
}

}  // namespace mf
