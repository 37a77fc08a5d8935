#include "ai/headquarters.h"

#include <cmath>
#include <cstdlib>
#include <vector>

#include "ai/ai_state.h"
#include "ai/analysis_log.h"
#include "ai/logistics.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/hex_geometry.h"
#include "orders/command.h"
#include "orders/new_units.h"
#include "orders/regime_shq.h"

namespace mf {
namespace {

constexpr Long kOutOfReach = 999;

// A unit of the regime where it stands.
struct Place {
  int x = 0, y = 0, slot = 0, unit = 0;
};

// Every unit of Game.CurRegime in the stacks, in scan order.
std::vector<Place> OwnUnits() {
  std::vector<Place> all;
  const int r = CurrentRegime();
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (ValidUnit(u) && Unit[u].Regime == r && r != 0) all.push_back({x, y, s, u});
      }
  return all;
}

bool HasOwnThqIn(Long area) {
  for (const Place& p : OwnUnits())
    if (Unit[p.unit].Thq > 0 && Hex[p.x][p.y].Area == area) return true;
  return false;
}

// The cheapest reach of any of the regime's SHQ numbers at (x, y), and the
// number that gives it (the lowest of equals); 0 when none reaches it.
int NearestShqNumber(int x, int y) {
  int best = 0;
  for (int s = 1; s <= kShqCap; ++s)
    if (Hex[x][y].ShqDist[s] < kOutOfReach && (best == 0 || Hex[x][y].ShqDist[s] < Hex[x][y].ShqDist[best]))
      best = s;
  return best;
}

// True when SHQ `shq` holds more than 15 pieces of a land infantry type.
bool HoldsInfantry(int shq) {
  return AILastStockSlot(shq, 15, [](int t) { return Type[t].Theater == kLandTheater && Type[t].Class == 1; }) > 0;
}

// The change of command as the do button makes it: `unit` at (x, y, slot)
// takes the unit at `boss` as its THQ (order 1) or SHQ (order 2).
void TakeBoss(const Place& unit, const Place& boss, int order) {
  UI.OrdX = unit.x;
  UI.OrdY = unit.y;
  UI.OrdSlot = unit.slot;
  UI.SelX = boss.x;
  UI.SelY = boss.y;
  UI.SelSlot = boss.slot;
  UI.Order.BossOrder = order;
  doNewBoss();
}

Place Where(int unit, const std::vector<Place>& all) {
  for (const Place& p : all)
    if (p.unit == unit) return p;
  return Place{};
}

}  // namespace

void AINewShq() {
  const int r = CurrentRegime();
  if (r == 0) return;
  const std::vector<ShqPlace> shqs = AIShqsOnMap(false);
  const int areas = LastArea();
  for (int a = 1; a <= areas; ++a) {
    if (AI.AreaSide[a] != 1) continue;
    const int cx = AI.AreaX[a], cy = AI.AreaY[a];
    if (!ValidHex(cx, cy) || Hex[cx][cy].Pop <= 0) continue;
    bool wanted = AI.AreaShq[a] == 0;
    if (!wanted) {
      bool shqInside = false;
      for (const ShqPlace& q : shqs)
        if (Hex[q.x][q.y].Area == a) shqInside = true;
      const int nearest = NearestShqNumber(cx, cy);
      Long worst = kOutOfReach;
      if (nearest > 0) {
        worst = 0;
        for (int x = 1; x <= Game.MapW; ++x)
          for (int y = 1; y <= Game.MapH; ++y)
            if (Hex[x][y].Area == a && Hex[x][y].Land != kSea && Hex[x][y].ShqDist[nearest] > worst)
              worst = Hex[x][y].ShqDist[nearest];
      }
      wanted = worst > EV(230) * 0.8 && !shqInside;
    }
    if (!wanted) continue;

    // The centre must have room, no foreign neighbour, and no own SHQ near
    // on its landmass.
    if (Hex[cx][cy].Unit[kStackSlots] != 0) continue;
    bool foreign = false;
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(cx, cy, d);
      if (n.x >= 1 && n.y >= 1 && Hex[n.x][n.y].Owner > 0 && Hex[n.x][n.y].Owner != r) foreign = true;
    }
    if (foreign) continue;
    bool near = false;
    for (const ShqPlace& q : shqs)
      if (Hex[q.x][q.y].Landmass == AI.AreaLandmass[a] && std::abs(q.x - cx) < 10 && std::abs(q.y - cy) < 10)
        near = true;
    if (near) continue;

    const int u = MakeRegimeShq(r, cx, cy, 0);
    if (u != 0) Hex[cx][cy].ProdSHQ = u;
    return;
  }
}

void AINewThq() {
  const int r = CurrentRegime();
  if (r == 0) return;
  for (int f = 1; f <= LastFront(); ++f) {
    const Long own = AI.FrontOwnArea[f];
    if (AI.FrontStance[f] <= 0 || !ValidArea(own)) continue;
    const int cx = AI.AreaX[own], cy = AI.AreaY[own];
    if (!ValidHex(cx, cy) || Hex[cx][cy].Pop <= 0) continue;
    if (HasOwnThqIn(own)) continue;

    int bx = 0, by = 0;
    Long best = 0;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) {
        const HexRec& h = Hex[x][y];
        if (h.Land == kSea || h.Unit[kStackSlots] != 0) continue;
        Long score = h.AreaValue + 1000;
        if (NearestShqNumber(x, y) == 0) score -= 2500;
        if (h.Area == own) score += 500;
        // The own area itself counts as joined to itself by land.
        if (h.Area != own && (!ValidArea(h.Area) || AI.AreaLandBorder[h.Area][own] == 0)) score -= 7500;
        const Long q = ValidArea(h.Area) ? AI.AreaShq[h.Area] : 0;
        const Long number = ValidUnit(q) ? Unit[q].Shq : 0;
        if (number < 0 || number > kShqCap || Shq[r][number].Carry == 0) {
          if (q != 0 && (h.Unit[1] == q || h.Unit[2] == q)) {
            score += 2500;
          } else {
            score -= 2500;
          }
        }
        // A hex not yet held loses for every neighbour it has on the map.
        if (h.Owner != r)
          for (int d = 1; d <= kHexSides; ++d) {
            const HexXY n = Neighbour(x, y, d);
            if (n.x >= 1 && n.y >= 1) score -= 100;
          }
        if (bx == 0 || score > best) {
          bx = x;
          by = y;
          best = score;
        }
      }
    if (bx == 0) continue;

    const Long area = Hex[bx][by].Area;
    const Long q = ValidArea(area) ? AI.AreaShq[area] : 0;
    if (!ValidUnit(q) || Unit[q].Regime != r || Unit[q].Shq < 1 || Unit[q].Shq > kShqCap) continue;
    const Long s = Unit[q].Shq;
    if (Hex[bx][by].ShqDist[s] == kOutOfReach || Hex[bx][by].ShqPrev1[s] > 0) continue;
    if (!HoldsInfantry(static_cast<int>(q))) {
      AI.ShqNeedsLand[s] = 1;
      continue;
    }
    UI.SelX = bx;
    UI.SelY = by;
    const int t = NewThq(false);
    if (t == 0) continue;
    AILog("New THQ placed " + Str(bx) + "," + Str(by));
    const std::vector<Place> all = OwnUnits();
    TakeBoss(Where(t, all), Where(static_cast<int>(q), all), 2);
    Unit[t].Front = f;
  }
}

void AIAssignBoss() {
  const int r = CurrentRegime();
  if (r == 0) return;
  const std::vector<Place> all = OwnUnits();
  for (const Place& p : all) {
    UnitRec& un = Unit[p.unit];
    if (un.Shq > 0 || un.Regime != r) continue;
    const Long area = Hex[p.x][p.y].Area;
    const bool bossAlive = ValidUnit(un.Boss) && Unit[un.Boss].Regime == r;
    if (un.Thq > 0) {
      const Long q = ValidArea(area) ? AI.AreaShq[area] : 0;
      if (bossAlive && un.Boss == q) continue;
      if (q == 0 || AIShqReach(p.x, p.y, static_cast<int>(q)) >= kOutOfReach) continue;
      const Place boss = Where(static_cast<int>(q), all);
      if (boss.unit != 0) TakeBoss(p, boss, 2);
      continue;
    }
    // A line unit: the straight line to its boss decides whether it needs another.
    bool needs = !bossAlive;
    if (!needs) {
      const Place boss = Where(static_cast<int>(un.Boss), all);
      needs = boss.unit == 0 || std::hypot(boss.x - p.x, boss.y - p.y) > 4;
    }
    if (!needs) continue;
    Place best;
    Long bestScore = 0;
    for (const Place& t : all) {
      if (Unit[t.unit].Thq <= 0) continue;
      Long score = 80 - static_cast<Long>(Int(std::hypot(t.x - p.x, t.y - p.y)));
      if (Hex[t.x][t.y].Landmass != Hex[p.x][p.y].Landmass) score -= 6;
      if (area != 0 && Hex[t.x][t.y].Area == area && un.Front > 0) score += 20;
      if (best.unit == 0 || score > bestScore) {
        best = t;
        bestScore = score;
      }
    }
    if (best.unit != 0 && best.unit != un.Boss) TakeBoss(p, best, 1);
  }
}

}  // namespace mf
