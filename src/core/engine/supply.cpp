#include "engine/supply.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "engine/supply_flood.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/type_lookup.h"
#include "orders/flood.h"

namespace mf {
namespace {



// Largest whole number not above a / b, for a positive b.
std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  std::int64_t q = a / b;
  if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
  return q;
}

UnitRec& U(Long u) { return Unit[ValidUnit(u) ? u : 0]; }

// A formation answers to the SHQ when its boss is the SHQ or its boss's boss
// is. An SHQ is never served as a formation: its percentage field is its stock.
bool UnderShq(int u, int shq) {
  if (Unit[u].Shq > 0) return false;
  const Long boss = Unit[u].Boss;
  if (boss == 0) return false;
  return boss == shq || U(boss).Boss == shq;
}

// What one formation asks of its SHQ this turn: the supply need of its
// troops, less for a rested formation and more for a tired one.
Long Demand(int u) {
  std::int64_t need = 0;
  for (int cls = 1; cls <= 4; ++cls) {
    const Long qty = UnitSlotQty(u, cls);
    if (qty > 0) need = AddSat64(need, AttrOf(UnitSlotType(u, cls), kSupplyNeed) * qty);
  }
  std::int64_t p = 100 + static_cast<std::int64_t>(EV(221)) - Unit[u].Readiness;
  if (p < 10) p = 10;
  return Clamp32(FloorDiv(need * p, 100));
}

// The distance factor, in percent, by the cost of the way from the SHQ.
// Each threshold that holds overwrites the one before.
int DistancePct(long h) {
  const long range = EV(230);
  int f = 100;
  if (2 * h > range) f = 90;
  if (10 * h > 6 * range) f = 80;
  if (10 * h > 7 * range) f = 60;
  if (10 * h > 8 * range) f = 40;
  if (10 * h > 9 * range) f = 20;
  return f;
}

// The THQ factor, as the engine variable's percent: how far the formation
// stands from its THQ, counted over ground its regime may cross.
long ThqPct(int u, int x, int y) {
  const Long boss = Unit[u].Boss;
  int bx = 0, by = 0;
  for (int sx = std::max(1, x - 5); sx <= std::min(MapW(), x + 5) && bx == 0; ++sx) {
    for (int sy = std::max(1, y - 5); sy <= std::min(MapH(), y + 5) && bx == 0; ++sy) {
      for (int s = 1; s <= kStackSlots; ++s) {
        if (Hex[sx][sy].Unit[s] == boss) {
          bx = sx;
          by = sy;
          break;
        }
      }
    }
  }
  if (bx == 0) return EV(234);
  const int d = OwnerDistance(bx, by, x, y);
  if (d >= 0 && d <= 5) return EV(210 + d);
  return EV(234);
}

// Officer rating for a theater; officer 0 rates 0 everywhere.
long Rating(Long officer, Long theater) {
  const OfficerRec& o = Officer[(officer >= 1 && officer <= kOfficerCap) ? officer : 0];
  if (theater == kSeaTheater) return o.Sea;
  if (theater == kAirTheater) return o.Air;
  return o.Land;
}
long FameRoot(Long officer) {
  const OfficerRec& o = Officer[(officer >= 1 && officer <= kOfficerCap) ? officer : 0];
  return o.Fame > 0 ? static_cast<long>(Int(std::sqrt(static_cast<double>(o.Fame)))) : 0;
}

Long ClampDisruption(std::int64_t d) { return static_cast<Long>(std::clamp<std::int64_t>(d, 0, 75)); }

// A formation reached by its SHQ shakes off disruption under its officer.
void RecoverDisruption(int u) {
  UnitRec& unit = Unit[u];
  if (unit.Disruption > 0) {
    const std::int64_t s = Rating(unit.Officer, unit.Theater);
    std::int64_t d = FloorDiv((20 - s) * unit.Disruption, 20);
    d -= FameRoot(unit.Officer);
    d -= 10;
    unit.Disruption = Clamp32(d);
  }
  unit.Disruption = ClampDisruption(unit.Disruption);
}

// The SHQ's own recovery borrows the officer of the formation it served
// last, rated for the SHQ's own theater, and rounds where formations cut.
void RecoverShqDisruption(int shq, Long lastOfficer) {
  UnitRec& unit = Unit[shq];
  if (unit.Disruption > 0) {
    const std::int64_t s = Rating(lastOfficer, unit.Theater);
    std::int64_t d = CInt(static_cast<double>((20 - s) * unit.Disruption) / 20.0);
    d -= FameRoot(lastOfficer);
    d -= 10;
    unit.Disruption = Clamp32(d);
  }
  unit.Disruption = ClampDisruption(unit.Disruption);
}

// The supply percentage of one formation: Q x 100 x F x X, and x T under a
// THQ. The factors are whole percents and the disruption a fraction of
// thirds or sixths, so the product is formed whole and divided once: a value
// that lies exactly half way is then seen as such by the rounding.
Long ServedPct(int u, int x, int y, Long mark, float q) {
  const UnitRec& unit = Unit[u];
  const Long boss = unit.Boss;
  const bool withThq = unit.Theater == kLandTheater && U(boss).Thq > 0;
  const std::int64_t f = DistancePct(mark);
  std::int64_t e = 0;
  std::int64_t parts = 1;
  if (withThq) {
    e = 3 * static_cast<std::int64_t>(unit.Disruption) + 2 * static_cast<std::int64_t>(U(boss).Disruption);
    const Long bossBoss = U(boss).Boss;
    if (bossBoss != 0) e += U(bossBoss).Disruption;
    if (e > 0) parts = 6;
  } else {
    e = 2 * static_cast<std::int64_t>(unit.Disruption);
    if (boss != 0) e += U(boss).Disruption;
    if (e > 0) parts = 3;
  }
  // X = (100 - e / parts) / 100 = (100 parts - e) / (100 parts).
  std::int64_t num = f * (100 * parts - e);
  std::int64_t den = 100 * parts;
  if (withThq) {
    num *= ThqPct(u, x, y);
    den *= 100;
  }
  return Clamp32(CInt(static_cast<double>(q) * static_cast<double>(num) / static_cast<double>(den)));
}

// What the serving reads of the map, once for all SHQs: nothing on it moves
// and no hex changes hands while the SHQs are served.
struct Placed {
  int x = 0, y = 0;
  int u = 0;    // the unit, for a unit
  int hex = 0;  // its place in a flood's result: (x - 1) * the map's height + (y - 1)
};
struct ServeMap {
  std::vector<Placed> units;  // the regime's units on the map, in hex and slot order
  std::vector<Placed> towns;  // the regime's towns, in hex order
};

void ReadServeMap(ServeMap& m, int r) {
  m.units.clear();
  m.towns.clear();
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      const HexRec& h = Hex[x][y];
      const int hex = (x - 1) * MapH() + (y - 1);
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = h.Unit[s];
        if (ValidUnit(u) && Unit[u].Regime == r) m.units.push_back(Placed{x, y, u, hex});
      }
      if (h.Owner == r && h.Pop > 0) m.towns.push_back(Placed{x, y, 0, hex});
    }
  }
}

// Steps 2 to 8 of one SHQ's turn, with the flood of step 1 in `flood`.
void ServeOne(int shq, int r, const ServeMap& m, const std::vector<FloodHex>& flood) {
  const long range = EV(230);

  // 2. What its towns send it.
  std::int64_t g = 0;
  const bool bonus = Regime[r].AI == 1 && Game.AIProdBonus == 1;
  for (const Placed& t : m.towns) {
    const FloodHex& f = flood[t.hex];
    const HexRec& h = Hex[t.x][t.y];
    if (f.mark > range || f.pathPortX == -1 || h.ProdSHQ != shq) continue;
    std::int64_t v = TownSupply(t.x, t.y);
    if (bonus) v *= 2;
    if (h.Prod == -1) v *= EV(237);
    g += v;
  }
  Unit[shq].GenSupply = Clamp32(g);

  // 3. What its formations within reach ask for.
  std::int64_t d = 0;
  for (const Placed& p : m.units) {
    if (flood[p.hex].mark > range || !UnderShq(p.u, shq)) continue;
    Unit[p.u].GenSupply = Demand(p.u);
    d += Unit[p.u].GenSupply;
  }
  Unit[shq].SupplyDemand = Clamp32(d);

  // 4. One ratio for all: no formation is served before another.
  const std::int64_t stock = Unit[shq].SupplyPct;
  float q = 1.0f;
  if (d > 0) {
    const double ratio = static_cast<double>(g + stock) / static_cast<double>(d);
    if (ratio <= 1.0) q = static_cast<float>(ratio);
  }

  // 5. Serving.
  Long lastOfficer = 0;
  for (const Placed& p : m.units) {
    const FloodHex& f = flood[p.hex];
    if (f.mark > range || !UnderShq(p.u, shq)) continue;
    UnitRec& unit = Unit[p.u];
    unit.SupplyPct = ServedPct(p.u, p.x, p.y, f.mark, q);
    // Over open shore only part of it gets through.
    if (f.pathPortX == -1) unit.SupplyPct = Clamp32(FloorDiv(static_cast<std::int64_t>(EV(216)) * unit.SupplyPct, 100));
    RecoverDisruption(p.u);
    if (ValidUnit(unit.Cargo)) Unit[unit.Cargo].SupplyPct = unit.SupplyPct;
    lastOfficer = unit.Officer;
  }

  // 6. The stock: emptied when it could not meet the demand, otherwise it
  // grows by what is left, held to a multiple of the production once it is
  // above the amount always allowed.
  std::int64_t newStock = 0;
  if (q >= 1.0f) {
    newStock = stock + g - d;
    if (newStock > EV(218) && newStock > g * EV(217)) newStock = g * EV(217);
    // A cap below nothing (a negative rule 217) empties the stock: a stock
    // below 0 would make the next ratio, and every supply figure from it,
    // negative.
    if (newStock < 0) newStock = 0;
  }
  Unit[shq].SupplyPct = Clamp32(newStock);
  Unit[shq].Readiness = 25;
  Unit[shq].Experience = 25;

  // 7.
  RecoverShqDisruption(shq, lastOfficer);

  // 8. Ships under a THQ of this SHQ draw supply at sea wherever they are.
  const Long shipPct = Clamp32(CInt(static_cast<double>(q) * 100.0));
  for (const Placed& p : m.units) {
    const UnitRec& unit = Unit[p.u];
    if (unit.Theater != kSeaTheater || unit.Shq > 0) continue;
    if (unit.Boss != 0 && U(unit.Boss).Boss == shq) Unit[p.u].SupplyPct = shipPct;
  }
}

}  // namespace

void ServeSupply() {
  const int r = CurrentRegime();
  if (r == 0) {
    for (int x = 1; x <= MapW(); ++x)
      for (int y = 1; y <= MapH(); ++y)
        for (int s = 0; s <= kShqCap; ++s) Hex[x][y].ShqDist[s] = 999;
    return;
  }

  // The regime's own SHQs, in hex and slot order; an SHQ number outside
  // 1..50 does not exist.
  struct Origin {
    int x, y, slot, shq;
  };
  std::vector<Origin> shqs;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      for (int slot = 1; slot <= kStackSlots; ++slot) {
        const int shq = Hex[x][y].Unit[slot];
        if (!ValidUnit(shq) || Unit[shq].Shq <= 0 || Hex[x][y].Owner != r) continue;
        if (Unit[shq].Regime != r || Unit[shq].Shq > kShqCap) continue;
        shqs.push_back(Origin{x, y, slot, shq});
      }
    }
  }

  static ServeMap map;
  ReadServeMap(map, r);
  // Each SHQ's reach, kept under its number for the rest of the turn. The
  // floods are kept here and written into the hex records together at the
  // end, each hex once, rather than over the whole map after each flood.
  static std::vector<std::vector<FloodHex>> floods;
  if (floods.size() < shqs.size()) floods.resize(shqs.size());
  BeginFloodRun();
  for (std::size_t k = 0; k < shqs.size(); ++k) {
    const Origin& o = shqs[k];
    // 1. Its reach.
    UI.OrdX = o.x;
    UI.OrdY = o.y;
    UI.OrdSlot = o.slot;
    RunFlood(o.x, o.y, o.slot, true);
    RunFloodResult(floods[k]);
    Unit[o.shq].MP = 0;
    ServeOne(o.shq, r, map, floods[k]);
  }

  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      for (int s = 0; s <= kShqCap; ++s) h.ShqDist[s] = 999;
      const std::size_t hex = static_cast<std::size_t>((x - 1) * MapH() + (y - 1));
      for (std::size_t k = 0; k < shqs.size(); ++k) {
        const int number = Unit[shqs[k].shq].Shq;
        const FloodHex& f = floods[k][hex];
        h.ShqDist[number] = f.mark;
        h.ShqPrev1[number] = f.pathSea;
        h.ShqPrev2[number] = f.pathLand;
        h.ShqPrev3[number] = f.pathPortX;
        h.ShqPrev4[number] = f.pathPortY;
      }
    }
  }
  // The last flood leaves its waves and its box behind, as every flood does.
  if (!shqs.empty()) WriteRunFlood();
  ClearFlood();
}

}  // namespace mf
