#include "orders/movement.h"

#include "engine/diplomacy.h"

#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/type_lookup.h"
#include "orders/flood.h"
#include "orders/move_allowance.h"
#include "orders/transport.h"

namespace mf {
namespace {

constexpr int kOutOfReach = 999;
constexpr int kShownShore = 9999;  // next to a ship's reach: shown, never entered
constexpr int kMaxWaves = kRouteSteps;  // 15: also the length of Hex.Route

bool OnMap(HexXY n) { return n.x > 0 && n.y > 0; }

// True when regime `other` is at peace with the current regime.
// Land of a regime the mover is at peace with is closed to it; its own never is.
bool PeaceLand(long owner) {
  return owner != Game.CurRegime && AtPeace(CurrentRegime(), static_cast<int>(owner));
}
bool Full(const HexRec& h) { return h.Unit[kStackSlots] != 0; }

// Landscape cost of a land formation entering a hex, by engine variables 1 to 6.
int LandStepCost(long land) {
  if (land < kGrass || land > kMountain) return kOutOfReach;
  return static_cast<int>(EV(static_cast<int>(land)));
}

bool HasRoad(const HexRec& h) { return h.Road == 1; }

// Cost of one step of a land formation u from cur towards n in direction d,
// in the first wave or later; 999 and above refuses the step. The rules'
// extras add up without wrapping, so a huge one refuses the step too.
int LandStep(int u, int carryPct, double occupyPower, int cx, int cy, HexXY n, int d, int wave) {
  const HexRec& cur = Hex[cx][cy];
  const HexRec& to = Hex[n.x][n.y];
  const UnitRec& unit = Unit[u];
  int c = LandStepCost(to.Land);
  // Vehicles lose time among the trees; foot troops and their guns do not.
  if (to.Land == kForest && carryPct > 100) c = AddSat(c, EV(7));
  // Only foot infantry wades through a swamp.
  if (to.Land == kSwamp && (unit.MobQty > 0 || unit.ArtQty > 0 || unit.ArmQty > 0)) c = kOutOfReach;
  if (cur.River[d] == 1) c = AddSat(c, EV(8));
  // A road cancels every extra: forest, river and swamp alike.
  if ((HasRoad(cur) && HasRoad(to)) || (HasRoad(cur) && to.Land == kUrban) || (cur.Land == kUrban && HasRoad(to))) c = 1;
  // The SHQ numbered 1 moves at a flat rate, and only that one; where the
  // hex is out of reach (a river may have raised the 999 further) it stays so.
  if (c < kOutOfReach && unit.Shq == 1) c = 1;
  if (Full(to)) c = kOutOfReach;
  // A human cannot walk into a hex he does not see now; the computer can.
  if (!ComputerToMove() && to.Vis < 1) c = kOutOfReach;
  if (PeaceLand(to.Owner)) c = kOutOfReach;
  if (to.Owner != Game.CurRegime) {
    c = AddSat(c, EV(9));
    if (to.Unit[1] != 0) c = kOutOfReach;
    // Weak formations enter foreign land only where it is already their own.
    if (occupyPower < static_cast<double>(EV(101))) c = kOutOfReach;
  }
  // Going back the way it came costs nothing in the first wave.
  if (wave == 1 && n.x == unit.FromX && n.y == unit.FromY && !Full(to) && to.Owner == Game.CurRegime) c = 0;
  return c;
}

int SeaStep(HexXY n) {
  const HexRec& to = Hex[n.x][n.y];
  int c = kOutOfReach;
  // Rows 10 and 11 are read crosswise to their labels, as the game always did.
  if (to.Land == kUrban) c = static_cast<int>(EV(10));
  if (to.Land == kSea) c = static_cast<int>(EV(11));
  if (Full(to)) c = kOutOfReach;
  if (to.Unit[1] != 0 && Unit[to.Unit[1]].Regime != Game.CurRegime) c = kOutOfReach;
  if (to.Land == kUrban && to.Owner != Game.CurRegime) c = kOutOfReach;
  if (!ComputerToMove() && to.Vis < 1) c = kOutOfReach;
  return c;
}

int AirStep(HexXY n) {
  const HexRec& to = Hex[n.x][n.y];
  int c = static_cast<int>(EV(12));
  if (PeaceLand(to.Owner)) c = kOutOfReach;
  return c;
}

// An air formation lands only on own grass or towns with room in the stack;
// the room is not looked at in the row and the column of the selection.
bool AirfieldRefused(int x, int y) {
  const HexRec& h = Hex[x][y];
  if (h.Owner != Game.CurRegime) return true;
  if (h.Land != kUrban && h.Land != kGrass) return true;
  if (Full(h) && x != UI.SelX && y != UI.SelY) return true;
  return false;
}

void Filters(int theater, int x1, int y1, int x2, int y2) {
  const OrderFlags& o = UI.Order;
  const bool bombing = o.StratBombOrder > 0 || o.InterdictOrder > 0;
  const bool airlift = o.AirliftOrder > 0;
  const bool plainMove = o.InterdictOrder == 0 && o.StratBombOrder == 0 && o.AirliftOrder == 0 && o.AirSupplyOrder == 0;
  for (int x = x1; x <= x2; ++x) {
    for (int y = y1; y <= y2; ++y) {
      HexRec& h = Hex[x][y];
      if (bombing && h.Owner != 0 && PeaceLand(h.Owner)) h.Mark = kOutOfReach;
    }
  }
  if (!(o.StratBombOrder > 0 || (airlift && AirliftDrop == 0))) {
    for (int x = x1; x <= x2; ++x)
      for (int y = y1; y <= y2; ++y)
        if (Hex[x][y].Vis < 1) Hex[x][y].Mark = kOutOfReach;
  }
  if (theater == kAirTheater && plainMove) {
    for (int x = x1; x <= x2; ++x)
      for (int y = y1; y <= y2; ++y)
        if (AirfieldRefused(x, y)) Hex[x][y].Mark = kOutOfReach;
  }
  if (airlift) {
    const int r = CurrentRegime();
    for (int x = x1; x <= x2; ++x) {
      for (int y = y1; y <= y2; ++y) {
        HexRec& h = Hex[x][y];
        if (AirliftDrop == 1) {
          if (AirfieldRefused(x, y)) h.Mark = kOutOfReach;
        } else {
          const bool unexplored = Game.FogOfExploration == 1 && r >= 1 && r <= kSightRegimes && h.Seen[r] < 1;
          if (PeaceLand(h.Owner) || unexplored || h.Land == kMountain || h.Land == kSea) h.Mark = kOutOfReach;
        }
      }
    }
  }
  if (o.AirSupplyOrder > 0) {
    for (int x = x1; x <= x2; ++x) {
      for (int y = y1; y <= y2; ++y) {
        HexRec& h = Hex[x][y];
        if (h.Owner != Game.CurRegime || h.Land == kMountain || h.Land == kSea) h.Mark = kOutOfReach;
      }
    }
  }
  if (theater == kSeaTheater) {
    // The shore around a fleet's reach is shown, so that landing and
    // bombardment targets can be picked, but it cannot be entered.
    for (int x = x1; x <= x2; ++x) {
      for (int y = y1; y <= y2; ++y) {
        if (Hex[x][y].Mark >= kOutOfReach) continue;
        for (int d = 1; d <= kHexSides; ++d) {
          const HexXY n = Neighbour(x, y, d);
          if (OnMap(n) && Hex[n.x][n.y].Mark == kOutOfReach) Hex[n.x][n.y].Mark = kShownShore;
        }
      }
    }
  }
}

// Hands a hex to the mover: in play to the current regime (a town that
// changes hands forgets its production), in the editor to the formation's own.
void CaptureByMove(int x, int y, int u, Short area) {
  HexRec& h = Hex[x][y];
  if (h.Land == kSea) return;
  if (UI.EditMode == 1) {
    h.Owner = Unit[u].Regime;
  } else {
    TakeHex(x, y);
  }
  if (area > 0) h.Area = area;
}

}  // namespace

void TakeHex(int x, int y) {
  if (!ValidHex(x, y)) return;
  HexRec& h = Hex[x][y];
  if (h.Owner != Game.CurRegime && h.Pop > 0) {
    h.Prod = 0;
    h.ProdSHQ = 0;
  }
  h.Owner = Game.CurRegime;
}

double UnitOccupyPower(int unit) {
  if (!ValidUnit(unit)) return 0;
  const UnitRec& u = Unit[unit];
  double power = 0;
  if (u.Theater == kSeaTheater) {
    for (int cls = 1; cls <= 4; ++cls) {
      const long qty = UnitSlotQty(unit, cls);
      if (qty != 0) power += static_cast<double>(AttrOf(UnitSlotType(unit, cls), kHitPoints)) * qty;
    }
    return power;
  }
  if (u.Theater == kAirTheater) {
    if (u.InfQty != 0) power += static_cast<double>(AttrOf(u.InfType, kDogfight)) * u.InfQty;
    if (u.MobQty != 0) power += static_cast<double>(AttrOf(u.MobType, kSoftAttack)) * u.MobQty;
    if (u.ArtQty != 0) power += static_cast<double>(AttrOf(u.ArtType, kStrategicBombing)) * u.ArtQty;
    if (u.ArmQty != 0) power += static_cast<double>(AttrOf(u.ArmType, kStrategicBombing)) * u.ArmQty;
    return power;
  }
  // Infantry and armour count by their staying power, guns and vehicles by their fire.
  if (u.InfQty != 0)
    power += AttrOf(u.InfType, kHitPoints) / 20.0 * static_cast<double>(AttrOf(u.InfType, kSoftAttack)) * u.InfQty;
  if (u.MobQty != 0) power += static_cast<double>(AttrOf(u.MobType, kSoftAttack)) * u.MobQty;
  if (u.ArtQty != 0) power += static_cast<double>(AttrOf(u.ArtType, kSoftAttack)) * u.ArtQty;
  if (u.ArmQty != 0)
    power += AttrOf(u.ArmType, kHitPoints) / 20.0 * static_cast<double>(AttrOf(u.ArmType, kSoftAttack)) * u.ArmQty;
  return power;
}

void MoveFlood(bool silent) {
  const int w = MapW();
  const int hgt = MapH();
  const int ox = static_cast<int>(UI.OrdX);
  const int oy = static_cast<int>(UI.OrdY);
  if (UI.EditMode == 1) {
    // The editor puts a formation anywhere.
    for (int x = 1; x <= w; ++x)
      for (int y = 1; y <= hgt; ++y) Hex[x][y].Mark = 0;
    if (!silent) {
      FloodMinX = 1;
      FloodMinY = 1;
      FloodMaxX = w;
      FloodMaxY = hgt;
      RequestRedraw(2);
    }
    return;
  }
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= hgt; ++y) {
      HexRec& h = Hex[x][y];
      h.Mark = kOutOfReach;
      h.Wave = kOutOfReach;
      for (int s = 0; s <= kRouteSteps; ++s) h.Route[0][s] = h.Route[1][s] = 0;
    }
  }
  if (!ValidHex(ox, oy) || UI.OrdSlot < 1 || UI.OrdSlot > kStackSlots) return;
  const int u = static_cast<int>(Hex[ox][oy].Unit[UI.OrdSlot]);
  if (!ValidUnit(u)) return;
  const UnitRec& unit = Unit[u];

  int range = unit.MP > kMaxWaves ? kMaxWaves : static_cast<int>(unit.MP);
  if (range < 1) range = 1;
  Hex[ox][oy].Mark = 0;
  Hex[ox][oy].Wave = 1;
  const int x1 = ox - (range + 1) < 1 ? 1 : ox - (range + 1);
  const int y1 = oy - (range + 1) < 1 ? 1 : oy - (range + 1);
  const int x2 = ox + range + 1 > w ? w : ox + range + 1;
  const int y2 = oy + range + 1 > hgt ? hgt : oy + range + 1;

  const long theater = unit.Theater;
  // What the formation carries and how strong it is do not change during the flood.
  const int carryPct = theater == kLandTheater ? UnitMaxMoveOf(u, true) : 100;
  const double occupyPower = theater == kLandTheater ? UnitOccupyPower(u) : 0;

  for (int wave = 1; wave <= range; ++wave) {
    for (int x = x1; x <= x2; ++x) {
      for (int y = y1; y <= y2; ++y) {
        const HexRec& cur = Hex[x][y];
        if (cur.Mark >= kOutOfReach || cur.Wave != wave) continue;
        for (int d = 1; d <= kHexSides; ++d) {
          const HexXY n = Neighbour(x, y, d);
          if (!OnMap(n)) continue;
          int c = kOutOfReach;
          if (theater == kSeaTheater) {
            c = SeaStep(n);
          } else if (theater == kAirTheater) {
            c = AirStep(n);
          } else {
            c = LandStep(u, carryPct, occupyPower, x, y, n, d, wave);
          }
          HexRec& to = Hex[n.x][n.y];
          const long cost = static_cast<long>(cur.Mark) + c;
          if (cost < to.Mark && cost <= unit.MP) {
            to.Mark = static_cast<Short>(cost);
            to.Wave = wave + 1;
            for (int s = 1; s < wave; ++s) {
              to.Route[0][s] = cur.Route[0][s];
              to.Route[1][s] = cur.Route[1][s];
            }
            to.Route[0][wave] = static_cast<Short>(x);
            to.Route[1][wave] = static_cast<Short>(y);
          }
        }
      }
    }
  }

  Filters(static_cast<int>(theater), x1, y1, x2, y2);

  if (!silent) {
    FloodMinX = x1;
    FloodMinY = y1;
    FloodMaxX = x2;
    FloodMaxY = y2;
    // The reach draws dark; the window repaints the map from Hex.Mark.
    RequestRedraw(2);
  }
}

int MoveUnit(bool /*silent*/) {
  const int tx = static_cast<int>(UI.SelX);
  const int ty = static_cast<int>(UI.SelY);
  const int ox = static_cast<int>(UI.OrdX);
  const int oy = static_cast<int>(UI.OrdY);
  const int oslot = static_cast<int>(UI.OrdSlot);
  if (!ValidHex(tx, ty) || !ValidHex(ox, oy) || oslot < 1 || oslot > kStackSlots) return kMoveShortOfMP;
  int count = 0;
  while (count < kStackSlots && Hex[tx][ty].Unit[count + 1] != 0) ++count;
  UI.SelCount = count;
  const int u = static_cast<int>(UI.Order.SelOrderMove > 0 ? UI.Order.SelOrderMove : Hex[ox][oy].Unit[oslot]);
  if (!ValidUnit(u) || Hex[ox][oy].Unit[oslot] != u) return kMoveShortOfMP;
  const bool editing = UI.EditMode == 1;
  const long mark = Hex[tx][ty].Mark;

  // A stack holds three; the editor cannot squeeze in a fourth either.
  if (count > 2) return kMoveHexFull;
  if (!editing) {
    // 999 and 9999 are out of reach whatever the MP.
    if (Unit[u].MP < mark || mark >= kOutOfReach) return kMoveShortOfMP;
  }
  // Moving onto its own hex leaves everything where it is.
  if (tx == ox && ty == oy) return kMoveDone;
  const bool human = !ComputerToMove();
  if (!human) UI.Order.SelOrderMove = 0;

  // Into the target's first free slot; the origin's stack closes up.
  const int slot = count + 1;
  Hex[tx][ty].Unit[slot] = u;
  Long* stack = Hex[ox][oy].Unit;
  for (int s = oslot; s < kStackSlots; ++s) stack[s] = stack[s + 1];
  stack[kStackSlots] = 0;
  UI.SelSlot = slot;

  const Short area = Hex[ox][oy].Area;
  CaptureByMove(tx, ty, u, area);
  const long wave = Hex[tx][ty].Wave;
  if (!editing && wave > 1 && Unit[u].Theater == kLandTheater) {
    // Step 1 is the origin; the steps after it are the hexes passed on the way.
    const long last = wave > kRouteSteps ? kRouteSteps : wave;
    for (long s = 2; s <= last; ++s) {
      const int rx = Hex[tx][ty].Route[0][s];
      const int ry = Hex[tx][ty].Route[1][s];
      if (ValidHex(rx, ry)) CaptureByMove(rx, ry, u, area);
    }
  }

  if (!editing) {
    UnitRec& unit = Unit[u];
    const long before = unit.MP;
    if (unit.Theater == kAirTheater) {
      // Rebasing leaves an air formation hardly ready for the rest of the turn.
      unit.Readiness = 10;
      unit.Disruption = unit.Disruption + 20 > 100 ? 100 : unit.Disruption + 20;
    } else if (mark > 0 && before > 0) {
      // Spending all MP costs a tenth of the readiness, part of them a part of that.
      const std::int64_t num = static_cast<std::int64_t>(unit.Readiness) * (100 * before - 10 * mark);
      const std::int64_t den = 100 * static_cast<std::int64_t>(before);
      std::int64_t q = num / den;
      if (num % den != 0 && num < 0) --q;
      unit.Readiness = static_cast<Long>(q);
    }
    unit.FromX = 0;
    unit.FromY = 0;
    unit.MP = static_cast<Long>(before - mark);
  }

  UI.OrdX = tx;
  UI.OrdY = ty;
  UI.OrdSlot = slot;
  UI.Order.SelOrderMove = human ? u : 0;
  return kMoveDone;
}

void HexCapture() {
  const int w = MapW();
  const int hgt = MapH();
  const int r = CurrentRegime();
  for (int x = 1; x <= w; ++x)
    for (int y = 1; y <= hgt; ++y) Hex[x][y].Mark = 0;
  if (r == 0) return;
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= hgt; ++y) {
      HexRec& h = Hex[x][y];
      if (h.Owner == 0) {
        // Neutral land next to the regime joins it, unless the scenario says no.
        if (h.Land == kSea || EV(703) != 0) continue;
        for (int d = 1; d <= kHexSides; ++d) {
          const HexXY n = Neighbour(x, y, d);
          if (OnMap(n) && Hex[n.x][n.y].Owner == r) {
            h.Mark = 1;
            break;
          }
        }
      } else if (h.Owner != r && ValidRegime(static_cast<int>(h.Owner)) && Dip[r][h.Owner].Relation == 0) {
        // Enemy land falls when its owner neither holds it nor stands next
        // to it on his own land, and a formation of ours stands next to it.
        int held = h.Unit[1] != 0 ? 1 : 0;
        int ours = 0;
        for (int d = 1; d <= kHexSides; ++d) {
          const HexXY n = Neighbour(x, y, d);
          if (!OnMap(n)) continue;
          const HexRec& nb = Hex[n.x][n.y];
          if (nb.Owner == h.Owner && nb.Unit[1] != 0) ++held;
          if (nb.Owner == r) {
            for (int s = 1; s <= kStackSlots; ++s) {
              const long v = nb.Unit[s];
              if (v != 0 && ValidUnit(static_cast<int>(v)) && Unit[v].Shq == 0) ++ours;
            }
          }
        }
        if (held == 0 && ours > 0) h.Mark = 1;
      }
    }
  }
  // Only now do the marked hexes change hands, so land spreads one ring a turn.
  for (int x = 1; x <= w; ++x)
    for (int y = 1; y <= hgt; ++y)
      if (Hex[x][y].Mark == 1) TakeHex(x, y);
}

}  // namespace mf
