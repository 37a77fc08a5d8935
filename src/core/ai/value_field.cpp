#include "ai/value_field.h"

#include "ai/ai_orders.h"
#include "ai/ai_state.h"
#include "ai/unit_worth.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {
namespace {

bool OnMap(HexXY n) { return n.x > 0 && n.y > 0; }

// Land that units walk on: neither sea nor mountain.
bool Walkable(const HexRec& h) { return h.Land != kSea && h.Land != kMountain; }
bool Own(const HexRec& h) { return h.Owner == Game.CurRegime; }

// Worth (kind 3) of everything standing on hex (x, y).
long StackWorth(int x, int y) {
  long sum = 0;
  for (int s = 1; s <= kStackSlots; ++s) sum += AIUnitWorth(x, y, static_cast<int>(Hex[x][y].Unit[s]), 3);
  return sum;
}

// The line: hexes of the own area that look into the other area over land.
void LineHexes(int f, long own, long other, long stance) {
  int c = 0;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      if (h.Land == kSea || h.Area != own) continue;
      bool line = false;
      for (int d = 1; d <= kHexSides; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (!OnMap(n)) continue;
        const HexRec& nh = Hex[n.x][n.y];
        if (nh.Area != other || !Walkable(nh)) continue;
        if (!line) {
          // The value of the hex comes from the first neighbour across.
          line = true;
          ++c;
          double u = h.AreaValue;
          const double v = nh.AreaValue;
          if (h.Land == kUrban) u *= 1.4;
          if (nh.Land == kUrban) u *= 1.2;
          std::int64_t L = 0;
          switch (stance) {
            case 1: L = Int(u * 10 / 30); break;
            case 2: L = Int((u * 7 + v * 3) / 30); break;
            case 3: L = Int((u * 4 + v * 6) / 30); break;
            case 4: L = Int((u + v * 9) / 30); break;
            default: L = h.AreaValue; break;
          }
          std::int64_t work = 100 + Mod(c, 3) + L;
          if (h.Land == kSwamp) work = Int(work / 2.0);
          h.Work = static_cast<Long>(work);
          h.Mark = 1;
          AI.FrontLineHexes[f] += 1;
        }
        // Threatened hexes draw more.
        h.Work += StackWorth(n.x, n.y);
      }
    }
  }
}

// A front that guards a town or looks across the water: its centre and the
// land around it.
void CentreHexes(int f, long own) {
  const int cx = static_cast<int>(AI.AreaX[own]);
  const int cy = static_cast<int>(AI.AreaY[own]);
  if (!ValidHex(cx, cy)) return;
  HexRec& centre = Hex[cx][cy];
  bool transport = false;
  for (int s = 1; s <= kStackSlots; ++s) {
    const long u = centre.Unit[s];
    if (ValidUnit(static_cast<int>(u)) && Unit[u].Regime != 0 && Unit[u].Theater == kSeaTheater && Unit[u].MobQty > 0)
      transport = true;
  }
  // A port where transports wait wants less; a full one less still.
  centre.Work = transport ? 120 : (centre.Unit[kStackSlots] != 0 ? 80 : 200);
  centre.Mark = 1;
  AI.FrontLineHexes[f] = 1;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(cx, cy, d);
    if (!OnMap(n)) continue;
    HexRec& nh = Hex[n.x][n.y];
    if (!Own(nh) || nh.Land == kSea) continue;
    nh.Work = 100;
    nh.Mark = 1;
  }
}

// The value flows wave by wave from the marked hexes: inland at 85 in the
// hundred, into the empty land of the other area at the price of the step.
void Flood(int f, long other, long stance, double P) {
  AIFloodWaves(EV(230), [&](int x, int y, long w, std::vector<HexXY>& next) {
    HexRec& h = Hex[x][y];
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(x, y, d);
      if (!OnMap(n)) continue;
      HexRec& nh = Hex[n.x][n.y];
      if (nh.Mark != 0 || !Walkable(nh)) continue;
      if (Own(nh)) {
        nh.Mark = static_cast<Short>(w + 1);
        nh.Work = static_cast<Long>(Int(h.Work * 0.85));
        if (nh.Land == kUrban && stance == 1) nh.Work = static_cast<Long>(CInt(nh.Work * 1.4));
        next.push_back(n);
      } else if (other > 0 && nh.Area == other && nh.Unit[1] == 0) {
        nh.Mark = static_cast<Short>(w + 1);
        if (Own(h)) {
          nh.Work = static_cast<Long>(Int(nh.AreaValue / 3.0 + h.Work - P));
        } else {
          std::int64_t v = Int(h.Work * 0.95);
          if (w == 2) v += 15;
          if (w == 3) v += 10;
          if (w == 4) v += 5;
          nh.Work = static_cast<Long>(v);
        }
        next.push_back(n);
      }
    }
    for (int s = 1; s <= kStackSlots; ++s) {
      const int u = static_cast<int>(h.Unit[s]);
      if (!ValidUnit(u) || Unit[u].Regime == 0 || Unit[u].Theater != kLandTheater) continue;
      if (Unit[u].Front == f && !AIIsHq(u)) AI.FrontLineUnits[f] += 1;
      h.Work -= 2 * AIUnitWorth(x, y, u, 3);
    }
    // An empty hex next to the line wants someone in it.
    if (h.Unit[1] == 0 && w == 1) h.Work = static_cast<Long>(CInt(Int(h.AreaValue / 5.0) + static_cast<double>(h.Work)));
  });
}

// The field of a class other than the line units, hex by hex from the line
// units' field. Headquarters (and SHQs) keep away from the line: every
// foreign neighbour (and a town counts as two) cuts the value, and the cuts
// add up. An SHQ wants no town of its own to sit in either. Aircraft only
// want own ground, and not much of it. Nobody but the line units wants
// foreign ground.
Long ClassValue(int x, int y, int unitClass) {
  const HexRec& h = Hex[x][y];
  if (!Own(h)) return 0;
  std::int64_t v = h.Work;
  if (unitClass == kAIAirClass) return static_cast<Long>(v > 50 ? 50 : v);
  int n = 0;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY nb = Neighbour(x, y, d);
    if (!OnMap(nb)) continue;
    const HexRec& nh = Hex[nb.x][nb.y];
    if (Walkable(nh) && !Own(nh)) ++n;
  }
  if (h.Land == kUrban) n += 2;
  if (n == 1) v = Int(v * 0.6);
  if (n == 2) v = Int(v * 0.4);
  if (n == 3) v = Int(v * 0.2);
  if (n > 0) v = Int(v * 0.1);
  if (unitClass == kAIShqClass) {
    if (v < 0) v = 0;
    if (h.Land == kUrban) v = Int(v / 2.0);
  }
  return static_cast<Long>(v);
}

// The field and its scratch planes to 0 on the whole map.
void ClearField() {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      h.Mark = 0;
      h.ScratchRecon = 0;
      h.Work = 0;
    }
  }
}

}  // namespace

bool AINoLandBorder(int f) {
  if (!AIValidFront(f)) return false;
  const long own = AI.FrontOwnArea[f], other = AI.FrontEnemyArea[f];
  if (!ValidArea(own) || other < 0 || other > kAreaCap) return false;
  return AI.AreaLandBorder[own][other] == 0;
}

bool AISeaFront(int f) { return AIValidFront(f) && AI.FrontEnemyArea[f] > 0 && AINoLandBorder(f); }


void AIClearWork(int f) {
  ClearField();
  if (!AIValidFront(f)) return;
  AI.FrontLineHexes[f] = 0;
  AI.FrontLineUnits[f] = 0;
  AI.FrontBalance[f] = 0;
}

void AIHexValues(int f, double P, int unitClass) {
  for (int g = 1; g <= kFrontCap; ++g) {
    AI.FrontLineHexes[g] = 0;
    AI.FrontLineUnits[g] = 0;
  }
  ClearField();
  if (!AIValidFront(f)) return;
  const long own = AI.FrontOwnArea[f];
  const long other = AI.FrontEnemyArea[f];
  const long stance = AI.FrontStance[f];
  if (!ValidArea(own) || other < 0 || other > kAreaCap) return;

  if (other > 0) LineHexes(f, own, other, stance);
  if (other == 0 || AINoLandBorder(f)) CentreHexes(f, own);
  Flood(f, other, stance, P);

  if (unitClass == kAIStaffClass || unitClass == kAIShqClass || unitClass == kAIAirClass) {
    // Each hex's new value depends on its own old value only.
    for (int x = 1; x <= MapW(); ++x)
      for (int y = 1; y <= MapH(); ++y) Hex[x][y].Work = ClassValue(x, y, unitClass);
  }
}

}  // namespace mf
