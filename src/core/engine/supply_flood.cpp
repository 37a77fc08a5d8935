#include "engine/supply_flood.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/cleared_with_tables.h"
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

// What the flood knows of a hex's ground, as bits.
enum Ground : std::uint16_t {
  kOffMap = 1 << 0,    // beyond the edge of the map: never stepped into
  kSeaHex = 1 << 1,
  kUrbanHex = 1 << 2,
  kBelowSea = 1 << 3,  // grass, forest or urban (Land below the sea's number)
  kRoadHex = 1 << 4,   // Hex.Road is 1
  kOwn = 1 << 5,       // the hex is the flooding regime's
  kForeign = 1 << 6,   // another regime's formation stands in stack slot 1
  kHeld = 1 << 7,      // the flooding regime's formation stands in stack slot 1
  kLandCost = 1 << 8,  // the cost table knows its landscape (sea is costed apart)
  kInBox = 1 << 9,     // inside the flood's box: hexes outside it are written but never walked
  kRouted = 1 << 10,   // the route to the hex has touched the sea or landed (PathSea or PathPortX set)
};
// The landscape (1 to 6 when the cost table knows it) sits in the bits from here.
constexpr int kLandShift = 12;

// The flood reads and writes a few fields of many hexes many times, and the
// hex records are large: it works on a compact copy of those fields, its
// ground read once (once per flood, or once for a run of floods over a map
// on which nothing moves) and its planes kept beside it until the end.
// Nearly every step reads only the ground and the cost of the hex stepped
// into, and most steps are not taken: those two are kept apart in four bytes
// a hex, so that the part of the map around a wave stays in the processor's
// nearest cache. The rest of a hex's route is read and written only when a
// step is taken or a hex is walked.
struct Cell {
  std::uint16_t ground = kOffMap;
  Short mark = 0;
};
static_assert(sizeof(Cell) == 4);
// In the order of a FloodHex after its cost, so that a run's result is one
// copy of the four route fields.
struct Route {
  Short wave = 0;  // the reach is held to the hexes of the map, so a wave's number fits
  Short pathSea = 0, pathLand = 0, pathPortX = 0, pathPortY = 0;
};
static_assert(kMapCap * kMapCap + 1 <= 32767);

bool IsSea(const Cell& h) { return (h.ground & kSeaHex) != 0; }
bool IsUrban(const Cell& h) { return (h.ground & kUrbanHex) != 0; }

// A flood from off the map: nothing is reached, and the box is empty.
void NothingReached() {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      h.PathSea = h.PathLand = h.PathPortX = h.PathPortY = 0;
      h.Mark = kOut;
      h.Wave = kOut;
    }
  }
  FloodMinX = FloodMinY = FloodMaxX = FloodMaxY = 0;
}

// A hex is kept as x * kColumn + y, with a column of room on each side of the
// map and a row above and below it, so that a step off the map lands on a
// cell that says so, and the order of the numbers is the order in which a
// walk over the map, column by column and top to bottom, meets the hexes.
// The column length is even, so a cell's number is odd exactly when its row is.
constexpr int kColumn = kMapCap + 2;
static_assert(kColumn % 2 == 0);

// The step to the neighbour in each direction, as a difference of cell
// numbers, for an even row and for an odd row (odd rows lie half a hex east).
constexpr int kStep[2][kHexSides + 1] = {
    {0, -kColumn - 1, -1, kColumn, 1, -kColumn + 1, -kColumn},  // even row
    {0, -1, kColumn - 1, kColumn, kColumn + 1, 1, -kColumn},    // odd row
};

struct FloodScratch {
  std::vector<Cell> cells = std::vector<Cell>(kColumn * kColumn);
  std::vector<Route> routes = std::vector<Route>(kColumn * kColumn);
  // The hexes a wave walks. The rules walk every hex of the box in each
  // wave and expand those that carry the wave's number; only hexes the wave
  // before gave that number can carry it, so the flood keeps them in a
  // list, in the order of the walk over the box, and walks only those.
  // Every tie between two routes thus falls as the walk over the box lets
  // it fall, and the step cost carried from one step to the next sees the
  // same steps in the same order.
  std::vector<int> walk;  // the wave being walked
  // The hexes of the box given the next wave's number, one bit per cell:
  // read in the order of the cell numbers, they are the next wave's walk.
  std::vector<std::uint64_t> next = std::vector<std::uint64_t>((kColumn * kColumn + 63) / 64);
  // The last flood: its box and what it could touch (the box, a step beyond
  // it, and the hexes around a sea hex a step beyond it).
  int minX = 0, minY = 0, maxX = 0, maxY = 0;
  int loX = 0, loY = 0, hiX = 0, hiY = 0;
  int reach = 0;
  bool edit = false;  // the last flood was the editor's
};

FloodScratch& Scratch() {
  static FloodScratch scratch;
  return scratch;
}

// A clear of the game forgets the last flood: its box says nothing of the
// zeroed hexes.
const bool kClearedWithTables = ClearedWithTables([] { Scratch() = FloodScratch{}; });

// The regime of the unit in stack slot 1 of a hex; 0 when the slot is empty.
Long SlotOneRegime(const HexRec& h) {
  const int u = h.Unit[1];
  return ValidUnit(u) ? Unit[u].Regime : 0;
}

// Reads the ground of the hexes x0..x1, y0..y1 into the cells; those beyond
// the map are marked so.
void GatherGround(std::vector<Cell>& cells, int x0, int x1, int y0, int y1) {
  const int w = MapW(), hgt = MapH();
  for (int x = x0; x <= x1; ++x) {
    for (int y = y0; y <= y1; ++y) {
      Cell& c = cells[x * kColumn + y];
      if (x < 1 || x > w || y < 1 || y > hgt) {
        c.ground = kOffMap;
        continue;
      }
      const HexRec& h = Hex[x][y];
      std::uint16_t g = 0;
      if (h.Land == kSea) g |= kSeaHex;
      if (h.Land == kUrban) g |= kUrbanHex;
      if (h.Land < kSea) g |= kBelowSea;
      if (h.Land >= kGrass && h.Land <= kMountain && h.Land != kSea)
        g |= static_cast<std::uint16_t>(kLandCost | (h.Land << kLandShift));
      if (h.Road == 1) g |= kRoadHex;
      if (h.Owner == Game.CurRegime) g |= kOwn;
      const Long r = SlotOneRegime(h);
      if (r != 0 && r != Game.CurRegime) g |= kForeign;
      if (r == Game.CurRegime && h.Unit[1] != 0) g |= kHeld;
      c.ground = g;
    }
  }
}

// Sea n is closed when an enemy ship lies on it or on a sea hex beside it,
// unless an own ship holds n itself; supply leaves the land only from an own
// port, and otherwise stays on the sea.
bool SeaBlocked(const std::vector<Cell>& cells, int cur, int cellN, bool seaAllowed) {
  const Cell& n = cells[cellN];
  bool blocked = (n.ground & kForeign) != 0;
  const int* step = kStep[cellN & 1];
  for (int dir = 1; dir <= kHexSides && !blocked; ++dir) {
    const Cell& side = cells[cellN + step[dir]];
    if ((side.ground & kOffMap) == 0 && IsSea(side) && (side.ground & kForeign) != 0) blocked = true;
  }
  if ((n.ground & kHeld) != 0) blocked = false;
  const Cell& c = cells[cur];
  const bool ownPort = IsUrban(c) && (c.ground & kOwn) != 0;
  if (!seaAllowed || !(ownPort || IsSea(c))) blocked = true;
  return blocked;
}

// Carries the route of cur over to n after an accepted step.
void CarryRoute(const Cell& curCell, const Route& cur, Cell& nCell, Route& n, int nx, int ny) {
  const bool curSea = IsSea(curCell);
  const bool nSea = IsSea(nCell);
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
    if (IsUrban(nCell)) {
      n.pathPortX = static_cast<Short>(nx);
      n.pathPortY = static_cast<Short>(ny);
    } else {
      n.pathPortX = -1;
      n.pathPortY = -1;
    }
    n.pathLand = cur.pathLand;
    n.pathSea = cur.pathSea;
  }
  const bool routed = n.pathSea != 0 || n.pathPortX != 0;
  nCell.ground = static_cast<std::uint16_t>((nCell.ground & ~kRouted) | (routed ? kRouted : 0));
}

// Whether the step from cur to n with cost c replaces what n holds. The
// rules are applied in their order; each may overturn the one before.
bool AcceptStep(const Cell& curCell, const Route& cur, const Cell& nCell, const Route& n, long c, long shqRange) {
  const long mc = curCell.mark, mn = nCell.mark;
  const long pc = cur.pathPortX, pn = n.pathPortX;
  const long sc = cur.pathSea, sn = n.pathSea;
  const bool curSea = IsSea(curCell), nSea = IsSea(nCell);
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
  if (sc > 0 && sn == 0 && !curSea && !nSea && 16 * mc < 10 * mn && 2 * mn > shqRange) a = true;
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

// A hex whose route has neither touched the sea nor landed, and that is not
// sea itself: between two such hexes the rules of the sea all fall silent
// and a step is taken exactly when it is cheaper.
bool Overland(const Cell& h) { return (h.ground & (kSeaHex | kRouted)) == 0; }

// Sets the box of the flood from (ox, oy) with this reach, reads the ground
// of what it can touch unless a run has read the whole map already, and
// clears the planes there.
void StartFlood(FloodScratch& fs, int ox, int oy, int reach, bool readGround) {
  fs.reach = reach;
  fs.edit = false;
  fs.minX = std::max(1, ox - (reach + 1));
  fs.maxX = std::min(MapW(), ox + reach + 1);
  fs.minY = std::max(1, oy - (reach + 1));
  fs.maxY = std::min(MapH(), oy + reach + 1);
  fs.loX = std::max(1, fs.minX - 2);
  fs.hiX = std::min(MapW(), fs.maxX + 2);
  fs.loY = std::max(1, fs.minY - 2);
  fs.hiY = std::min(MapH(), fs.maxY + 2);
  // With the edge of the map where the flood reaches it.
  if (readGround) GatherGround(fs.cells, fs.loX - 1, fs.hiX + 1, fs.loY - 1, fs.hiY + 1);
  for (int x = fs.loX; x <= fs.hiX; ++x) {
    const bool columnInBox = x >= fs.minX && x <= fs.maxX;
    for (int y = fs.loY; y <= fs.hiY; ++y) {
      Cell& c = fs.cells[x * kColumn + y];
      c.mark = kOut;
      fs.routes[x * kColumn + y] = Route{kOut, 0, 0, 0, 0};
      const bool inBox = columnInBox && y >= fs.minY && y <= fs.maxY;
      c.ground = static_cast<std::uint16_t>((c.ground & ~(kInBox | kRouted)) | (inBox ? kInBox : 0));
    }
  }
}

// The costs and switches of a flood's steps, read once per flood.
struct StepRules {
  long cost[8];  // by landscape
  long ev24, ev27, shqRange;
  bool seaAllowed;
};

// A step from cur into n (on the map) by every rule of the land and the sea;
// c is the step cost carried over from the step before, and the step's own
// cost is returned to be carried on. A taken step gives n the next wave's
// number.
long RuledStep(FloodScratch& fs, const StepRules& rules, int cell, int cellN, std::uint16_t roadTo, Short nextWave,
               long c) {
  std::vector<Cell>& cells = fs.cells;
  Cell& cur = cells[cell];
  Cell& n = cells[cellN];
  const Route& curRoute = fs.routes[cell];
  Route& nRoute = fs.routes[cellN];
  // 1. Landscape.
  if (n.ground & kLandCost) c = rules.cost[n.ground >> kLandShift];
  // 2. Roads, and a road running into a town or out of one.
  if (n.ground & roadTo) c = rules.ev27;
  // 3. Taking to sea.
  if (IsSea(n)) c = SeaBlocked(cells, cell, cellN, rules.seaAllowed) ? kOut : rules.ev24;
  // 4. Coming ashore costs a sea step whatever the land.
  if (IsSea(cur) && !IsSea(n)) c = rules.ev24;
  // 5. A route that has landed does not land again (swamp and mountain excepted).
  if (IsSea(cur) && (n.ground & kBelowSea) && curRoute.pathPortX != 0) c = kOut;
  // 6.
  if (IsSea(cur) && !IsSea(n) && n.mark > 0 && nRoute.pathPortX > 0) c = kOut;
  // 7. Supply crosses only the regime's own land, and the sea.
  if (!IsSea(n) && !(n.ground & kOwn)) c = kOut;

  if (!AcceptStep(cur, curRoute, n, nRoute, c, rules.shqRange)) return c;
  n.mark = ToMark(cur.mark + c);
  nRoute.wave = nextWave;
  CarryRoute(cur, curRoute, n, nRoute, cellN / kColumn, cellN % kColumn);
  if (n.ground & kInBox) fs.next[cellN >> 6] |= std::uint64_t{1} << (cellN & 63);
  return c;
}

// The waves of the flood from the origin cell, on cells already gathered
// and started.
void Spread(FloodScratch& fs, int origin, bool seaAllowed) {
  std::vector<Cell>& cells = fs.cells;
  std::vector<Route>& routes = fs.routes;
  const int reach = fs.reach;
  const StepRules rules{{0, EV(21), EV(22), EV(23), 0, EV(25), EV(26), 0}, EV(24), EV(27), EV(230), seaAllowed};
  cells[origin].mark = 0;
  routes[origin].wave = 1;
  fs.walk.clear();
  fs.walk.push_back(origin);
  std::uint64_t* const next = fs.next.data();
  // The bits the box's cells can have.
  const int firstWord = (fs.minX * kColumn + fs.minY) / 64;
  const int lastWord = (fs.maxX * kColumn + fs.maxY) / 64;

  // The step cost lives for the whole flood: a landscape the cost table does
  // not know keeps the cost of the step before.
  long c = 0;
  for (int w = 1; w <= reach; ++w) {
    if (w == kOut) {
      // The hexes the flood never reached still carry the out-of-reach wave
      // number and a cost within a reach this long: this one wave walks them
      // all, the whole box in its order.
      fs.walk.clear();
      for (int x = fs.minX; x <= fs.maxX; ++x)
        for (int y = fs.minY; y <= fs.maxY; ++y) fs.walk.push_back(x * kColumn + y);
    } else if (fs.walk.empty()) {
      // Nothing left to walk: the flood is done, unless its reach takes it
      // to that one wave.
      if (reach < kOut || w > kOut) break;
      w = kOut - 1;
      continue;
    }
    const Short nextWave = static_cast<Short>(w + 1);
    for (const int cell : fs.walk) {
      Cell& cur = cells[cell];
      Route& curRoute = routes[cell];
      if (cur.mark > reach || curRoute.wave != w) continue;
      // The grounds into which a road carries a step from here.
      const std::uint16_t roadTo = static_cast<std::uint16_t>(((cur.ground & kRoadHex) ? (kRoadHex | kUrbanHex) : 0) |
                                                              ((cur.ground & kUrbanHex) ? kRoadHex : 0));
      if (!Overland(cur)) {
        const int* step = kStep[cell & 1];
        for (int dir = 1; dir <= kHexSides; ++dir) {
          const int cellN = cell + step[dir];
          if ((cells[cellN].ground & kOffMap) == 0) c = RuledStep(fs, rules, cell, cellN, roadTo, nextWave, c);
        }
        continue;
      }
      const long curMark = cur.mark;
      const Short curLand = static_cast<Short>(curRoute.pathLand + 1);
      const Short curPortY = curRoute.pathPortY;
      const int* step = kStep[cell & 1];
      for (int dir = 1; dir <= kHexSides; ++dir) {
        const int cellN = cell + step[dir];
        Cell& n = cells[cellN];
        const std::uint16_t g = n.ground;
        if (g & (kOffMap | kSeaHex | kRouted)) {
          if ((g & kOffMap) == 0) c = RuledStep(fs, rules, cell, cellN, roadTo, nextWave, c);
          continue;
        }
        // Overland: landscape, roads, and only the regime's own land; the
        // step is taken when it is cheaper.
        c = (g & kLandCost) ? rules.cost[g >> kLandShift] : c;
        c = (g & roadTo) ? rules.ev27 : c;
        c = (g & kOwn) ? c : kOut;
        const long m = curMark + c;
        if (m < n.mark) {
          n.mark = ToMark(m);
          Route& nRoute = routes[cellN];
          nRoute.wave = nextWave;
          nRoute.pathLand = curLand;
          nRoute.pathPortY = curPortY;
          if (g & kInBox) next[cellN >> 6] |= std::uint64_t{1} << (cellN & 63);
        }
      }
    }
    // The next wave's walk: the hexes it was given to, in the order of the walk.
    fs.walk.clear();
    for (int i = firstWord; i <= lastWord; ++i) {
      for (std::uint64_t bits = next[i]; bits != 0; bits &= bits - 1)
        fs.walk.push_back(i * 64 + std::countr_zero(bits));
      next[i] = 0;
    }
  }

  // Costs beyond the reach read as out of reach.
  for (int x = fs.minX; x <= fs.maxX; ++x) {
    for (int y = fs.minY; y <= fs.maxY; ++y) {
      Cell& h = cells[x * kColumn + y];
      if (h.mark > reach) h.mark = kOut;
    }
  }
}

// The unit a flood from (x, y, slot) starts from, 0 when there is none.
int OriginUnit(int x, int y, int slot) {
  const int u = (ValidHex(x, y) && slot >= 1 && slot <= kStackSlots) ? Hex[x][y].Unit[slot] : 0;
  return ValidUnit(u) ? u : 0;
}

// The last flood into the hex records; every hex of the map outside what the
// flood could touch is out of reach with no route.
void WriteBack(const FloodScratch& fs) {
  FloodMinX = fs.minX;
  FloodMinY = fs.minY;
  FloodMaxX = fs.maxX;
  FloodMaxY = fs.maxY;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      if (x < fs.loX || x > fs.hiX || y < fs.loY || y > fs.hiY) {
        h.PathSea = h.PathLand = h.PathPortX = h.PathPortY = 0;
        h.Mark = kOut;
        h.Wave = kOut;
        continue;
      }
      h.Mark = fs.cells[x * kColumn + y].mark;
      const Route& f = fs.routes[x * kColumn + y];
      h.Wave = f.wave;
      h.PathSea = f.pathSea;
      h.PathLand = f.pathLand;
      h.PathPortX = f.pathPortX;
      h.PathPortY = f.pathPortY;
    }
  }
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
  FloodScratch& fs = Scratch();

  if (UI.EditMode == 1) {
    EditFlood();
    return;
  }

  // No origin on the map: nothing is reached.
  if (!ValidHex(ox, oy)) {
    NothingReached();
    return;
  }
  StartFlood(fs, ox, oy, FloodReach(OriginUnit(ox, oy, UI.OrdSlot)), true);
  Spread(fs, ox * kColumn + oy, seaAllowed);
  WriteBack(fs);
}

void BeginFloodRun() {
  FloodScratch& fs = Scratch();
  GatherGround(fs.cells, 0, MapW() + 1, 0, MapH() + 1);
  fs.edit = false;
  fs.minX = fs.minY = fs.maxX = fs.maxY = 0;
  fs.loX = fs.loY = 1;
  fs.hiX = fs.hiY = 0;
}

void RunFlood(int x, int y, int slot, bool seaAllowed) {
  FloodScratch& fs = Scratch();
  fs.edit = UI.EditMode == 1;
  if (fs.edit || !ValidHex(x, y)) {
    // The editor's flood reaches everything at no cost; from off the map
    // nothing is reached. Neither walks.
    fs.minX = fs.minY = fs.maxX = fs.maxY = 0;
    fs.loX = fs.loY = 1;
    fs.hiX = fs.hiY = 0;
    return;
  }
  StartFlood(fs, x, y, FloodReach(OriginUnit(x, y, slot)), false);
  Spread(fs, x * kColumn + y, seaAllowed);
}

void RunFloodResult(std::vector<FloodHex>& out) {
  const FloodScratch& fs = Scratch();
  const int w = MapW(), h = MapH();
  out.resize(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
  const FloodHex none = fs.edit ? FloodHex{0, 0, 0, 0, 0} : FloodHex{};
  FloodHex* o = out.data();
  for (int x = 1; x <= w; ++x, o += h) {
    if (x < fs.loX || x > fs.hiX) {
      std::fill(o, o + h, none);
      continue;
    }
    const int y0 = std::max(1, fs.loY), y1 = std::min(h, fs.hiY);
    std::fill(o, o + (y0 - 1), none);
    const Cell* cell = &fs.cells[x * kColumn];
    const Route* route = &fs.routes[x * kColumn];
    for (int y = y0; y <= y1; ++y) {
      const Route& r = route[y];
      o[y - 1] = FloodHex{cell[y].mark, r.pathSea, r.pathLand, r.pathPortX, r.pathPortY};
    }
    if (y1 < h) std::fill(o + std::max(y1, 0), o + h, none);
  }
}

void WriteRunFlood() {
  const FloodScratch& fs = Scratch();
  if (fs.edit) {
    EditFlood();
    return;
  }
  if (fs.minX == 0) {
    NothingReached();
    return;
  }
  WriteBack(fs);
}

}  // namespace mf
