#include "ai/fronts.h"

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "ai/ai_state.h"
#include "ai/analysis_log.h"
#include "ai/sorted_list.h"
#include "ai/unit_worth.h"
#include "model/arith.h"
#include "model/bounds.h"

namespace mf {
namespace {

// An area number from a table, 0 when it is none or out of range.
int AreaIndex(long a) { return a > 0 && a <= kAreaCap ? static_cast<int>(a) : 0; }
const HexRec& CentreOf(long area) {
  const int a = AreaIndex(area);
  return Hex[Held(AI.AreaX[a], kMapCap)][Held(AI.AreaY[a], kMapCap)];
}
Long OwnArea(int f) { return AI.FrontOwnArea[f]; }
Long OtherArea(int f) { return AI.FrontEnemyArea[f]; }

// The weights ask for a population to compare against; a scenario without
// one counts as 1.
double EndPop() { return Game.GameEndPop > 0 ? static_cast<double>(Game.GameEndPop) : 1.0; }

bool AtPeaceWith(long owner) {
  return owner > 0 && ValidRegime(static_cast<int>(owner)) && CurrentRegime() > 0 &&
         Dip[CurrentRegime()][owner].Relation == 1;
}

bool OwnUnit(int u) { return ValidUnit(u) && CurrentRegime() > 0 && Unit[u].Regime == CurrentRegime(); }
bool IsHq(int u) { return Unit[u].Shq > 0 || Unit[u].Thq > 0; }

// Every unit standing on the map, in scan order: x outer, y inner, slots 1..3.
template <class F>
void ForEachUnitOnMap(F&& f) {
  const int w = MapW(), h = MapH();
  for (int x = 1; x <= w; ++x)
    for (int y = 1; y <= h; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = static_cast<int>(Hex[x][y].Unit[s]);
        if (ValidUnit(u)) f(x, y, u);
      }
}

Long BaseWeight(int own, int other) {
  return static_cast<Long>(Int(AI.AreaValue[other] * 100 / EndPop()) + Int(AI.AreaValue[own] * 100 / EndPop()) +
                           AI.AreaEnemyStrength[other]);
}

int NewFront(int own, int other, Long weight) {
  if (AI.FrontCount >= kFrontCap) return 0;
  const int f = static_cast<int>(++AI.FrontCount);
  AI.FrontOwnArea[f] = own;
  AI.FrontEnemyArea[f] = other;
  AI.FrontWeight[f] = weight;
  return f;
}

const char* StanceWord(long stance) {
  switch (stance) {
    case 0: return "*GARRISON*";
    case 1: return "*DEFENSIVE*";
    case 2: return "*EVEN STEVEN*";
    case 3: return "OFFENSIVE";
    case 4: return "FULL OFFENSIVE";
    default: return "";
  }
}

// The state of one sharing-out of units over the fronts.
struct Assigning {
  Long strength = 1;  // 1 + the own strength of all own areas
  Long unused = 1000;
  std::vector<int> given;  // units each front has given away this turn

  Long PerMille(int x, int y, int u) const {
    return static_cast<Long>(Int(AIUnitWorth(x, y, u, 3) * 1000.0 / strength));
  }
};

// A land unit that the dealing-out places: no ship, no headquarters.
bool Dealt(int u) { return OwnUnit(u) && Unit[u].Theater != kSeaTheater && !IsHq(u); }

void RememberFronts() {
  for (int u = 1; u <= kUnitCap; ++u) {
    if (!OwnUnit(u)) continue;
    UnitRec& unit = Unit[u];
    unit.Front = 0;
    for (int f = 1; f <= LastFront(); ++f)
      if (unit.AIX == OwnArea(f) && unit.AIY == OtherArea(f)) unit.Front = f;
    if (unit.Front == 0) unit.AIX = unit.AIY = 0;
  }
}

void WeighInPerMille() {
  std::int64_t sum = 0;
  for (int f = 1; f <= LastFront(); ++f) sum += AI.FrontWeight[f];
  if (sum == 0) sum = 1;
  for (int f = 1; f <= LastFront(); ++f)
    AI.FrontWeight[f] = static_cast<Long>(Int(AI.FrontWeight[f] * 1000.0 / static_cast<double>(sum)));
}

// Units of an own area without a front go to the area's fronts in turn.
void DealRoundRobin() {
  std::vector<std::vector<int>> frontsOf(kAreaCap + 1);
  for (int f = 1; f <= LastFront(); ++f) {
    const int a = AreaIndex(OwnArea(f));
    if (AI.AreaSide[a] == 1) frontsOf[a].push_back(f);
  }
  std::vector<std::size_t> cursor(kAreaCap + 1, 0);
  ForEachUnitOnMap([&](int x, int y, int u) {
    const int a = AreaIndex(Hex[x][y].Area);
    if (a == 0 || !Dealt(u) || Unit[u].Front != 0) return;
    const auto& list = frontsOf[a];
    if (list.empty()) return;
    if (list.size() == 1) {
      Unit[u].Front = list[0];
      return;
    }
    Unit[u].Front = list[cursor[a]];
    cursor[a] = cursor[a] + 1 == list.size() ? 0 : cursor[a] + 1;
  });
}

// Units outside every own area go to the nearest front on their landmass.
void PlaceStrays() {
  ForEachUnitOnMap([&](int x, int y, int u) {
    if (!Dealt(u) || Unit[u].Front != 0) return;
    const int here = AreaIndex(Hex[x][y].Area);
    int best = 0;
    long bestDist = 999;
    for (int f = 1; f <= LastFront(); ++f) {
      const long d = AI.AreaLandDist[here][AreaIndex(OwnArea(f))];
      if (d >= bestDist) continue;  // below 999, and the first of equals stays
      if (CentreOf(OwnArea(f)).Landmass != Hex[x][y].Landmass) continue;
      best = f;
      bestDist = d;
    }
    if (best != 0) Unit[u].Front = best;
  });
}

void CountShares(Assigning& as) {
  ForEachUnitOnMap([&](int x, int y, int u) {
    const int f = static_cast<int>(Unit[u].Front);
    if (!OwnUnit(u) || !AIValidFront(f)) return;
    const Long p = as.PerMille(x, y, u);
    AI.FrontShare[f] += p;
    AI.FrontStrength[f] += AIUnitWorth(x, y, u, 3);
    as.unused -= p;
  });
}

bool SeaFront(int f) {
  const int own = AreaIndex(OwnArea(f)), other = AreaIndex(OtherArea(f));
  return other > 0 && AI.AreaLandBorder[own][other] == 0;
}

// A ship without a front takes the sea front nearest to it by sea, the one
// with the most strength among equals.
void PlaceShips() {
  ForEachUnitOnMap([&](int x, int y, int u) {
    if (!OwnUnit(u) || Unit[u].Theater != kSeaTheater || Unit[u].Front != 0) return;
    const int h = AreaIndex(Hex[x][y].Area);
    ListClear();
    for (int n = 1; n <= 5; ++n) {
      for (int f = 1; f <= LastFront(); ++f) {
        if (!SeaFront(f)) continue;
        const int own = AreaIndex(OwnArea(f));
        const Long d = AI.AreaSeaDist[h][own];
        if (d <= n || h == own) ListAdd(f, 0, 100 - (d + 2) * (d + 2) + AI.FrontShare[f]);
      }
    }
    if (AI.ListA[1] > 0) Unit[u].Front = AI.ListA[1];
  });
}

void ShiftStrength(Assigning& as) {
  const int fronts = LastFront();
  for (int r = 2; r <= 4; ++r) {
    for (int n = 1; n <= fronts; ++n) {
      if (!(AI.FrontWeight[n] - 10 > AI.FrontShare[n])) continue;
      const int ownN = AreaIndex(OwnArea(n));
      for (int g = 1; g <= fronts; ++g) {
        if (g == n) continue;
        const int ownG = AreaIndex(OwnArea(g));
        if (!(ownG == ownN || AI.AreaLandDist[ownN][ownG] < r)) continue;
        const bool mayGive = (AI.FrontShare[g] - 30 > AI.FrontWeight[g] && as.given[g] < 5) ||
                             (AI.FrontShare[g] - 10 > AI.FrontWeight[g] && AI.FrontStance[g] == 0);
        if (!mayGive) continue;
        ListClear();
        std::vector<std::pair<int, Long>> perMille;  // the candidates and their per mille
        ForEachUnitOnMap([&](int x, int y, int u) {
          if (Hex[x][y].Area != ownG || !OwnUnit(u) || Unit[u].Theater != kLandTheater || IsHq(u)) return;
          if (Unit[u].Front != g) return;
          const Long p = as.PerMille(x, y, u);
          perMille.push_back({u, p});
          Long score = 1000 - (std::abs(AI.AreaX[ownN] - x) + std::abs(AI.AreaY[ownN] - y));
          const Long overshoot = AI.FrontWeight[n] - AI.FrontShare[n] - p;
          if (overshoot < 0) score += overshoot;
          // Taking it would leave the giver short.
          if (AI.FrontWeight[g] > AI.FrontShare[g] - p) score = 100;
          ListAdd(u, 0, score);
        });
        const int u = static_cast<int>(AI.ListA[1]);
        if (!ValidUnit(u) || AI.ListScore[1] <= 500) continue;
        Long p = 0;
        for (const auto& [v, pv] : perMille)
          if (v == u) p = pv;
        Unit[u].Front = n;
        Unit[u].AIX = OwnArea(n);
        Unit[u].AIY = OtherArea(n);
        as.given[g] += 1;
        AI.FrontShare[g] -= p;
        AI.FrontShare[n] += p;
        AILog(Unit[u].Name + " shifted from " + Str(g) + " to " + Str(n) + ".");
      }
    }
  }
}

void SetStances() {
  const int fronts = LastFront();
  for (int f = 1; f <= fronts; ++f) {
    const int other = AreaIndex(OtherArea(f));
    const double e = AI.AreaEnemyStrength[other];
    double o = AI.FrontStrength[f];
    for (int g = 1; g <= fronts; ++g)
      if (g != f && OtherArea(g) == OtherArea(f)) o += AI.FrontStrength[g];
    double t = static_cast<double>(Int(o + e));
    if (t == 0) t = 1;
    const std::int64_t b = Int(o * 100 / t - e * 100 / t);
    Long stance = 2;
    if (b < -9) stance = 1;
    if (b > 9) stance = 3;
    if (b > 40) stance = 4;
    if (other == 0)
      stance = 0;
    else if (CentreOf(other).Owner == 0)
      stance = 4;
    AI.FrontStance[f] = stance;
  }
}

void LogAssignment(const Assigning& as) {
  AILog("");
  AILog("OPERATIONS:");
  AILog("Unused land strength: " + Str(as.unused));
  AILog("---------------");
  for (int f = 1; f <= LastFront(); ++f) {
    AILog("Fr(" + NumText(AI.FrontShare[f]) + "/" + NumText(AI.FrontWeight[f]) + ") :" +
          CentreOf(OwnArea(f)).UrbanName + "<>" + (OtherArea(f) > 0 ? CentreOf(OtherArea(f)).UrbanName : ""));
    AILog(StanceWord(AI.FrontStance[f]));
    ForEachUnitOnMap([&](int x, int y, int u) {
      if (OwnUnit(u) && Unit[u].Front == f) AILog("->" + Unit[u].Name + "(" + Str(as.PerMille(x, y, u)));
    });
  }
}

}  // namespace

bool AIFrontSoft(int front) {
  if (front < 1 || front > kFrontCap) return false;
  const int own = AreaIndex(OwnArea(front)), other = AreaIndex(OtherArea(front));
  return AI.AreaEnemyStrength[other] * 5 < AI.AreaOwnStrength[own] || CentreOf(other).Owner == 0;
}

void AIFindFronts() {
  const int count = LastArea();
  for (int a = 1; a <= count; ++a) {
    if (AI.AreaSide[a] != 1) continue;
    bool any = false;
    for (int b = 1; b <= count; ++b) {
      if (AI.AreaSide[b] != 2 || AI.AreaLandBorder[a][b] <= 0) continue;
      Long w = BaseWeight(a, b);
      const Long owner = CentreOf(b).Owner;
      // A neighbour at peace still counts, for a fifth; one that has made
      // peace hard to break, for a tenth.
      if (AtPeaceWith(owner)) {
        w = static_cast<Long>(Dip[CurrentRegime()][owner].Cost >= 999 ? Int(w / 10.0) : Int(w / 5.0));
      }
      if (NewFront(a, b, w)) any = true;
    }
    for (int b = 1; b <= count; ++b) {
      if (AI.AreaSide[b] != 2) continue;
      if (AI.AreaCoastBorder[a][b] <= 0 && AI.AreaSeaBorder[a][b] <= 0) continue;
      const HexRec& ca = CentreOf(a);
      const HexRec& cb = CentreOf(b);
      if (ca.Landmass == cb.Landmass) continue;
      Long w = BaseWeight(a, b);
      long d = std::abs(AI.AreaX[a] - AI.AreaX[b]) + std::abs(AI.AreaY[a] - AI.AreaY[b]);
      if (cb.Owner != CurrentRegime() && AtPeaceWith(cb.Owner)) d += 50;
      w = static_cast<Long>(Int(w * 100.0 / (50 + d)));
      const int f = NewFront(a, b, w);
      if (f == 0) continue;
      any = true;
      if (AIFrontSoft(f)) AI.FrontWeight[f] = static_cast<Long>(Int(AI.FrontWeight[f] / 2.0));
      AI.FrontStance[f] = 99;
    }
    if (!any) NewFront(a, 0, static_cast<Long>(Int(AI.AreaValue[a] * 100 / EndPop() / 3)));
  }

  for (int u = 1; u <= kUnitCap; ++u)
    if (Unit[u].Front > AI.FrontCount) Unit[u].Front = 0;

  AILog("");
  AILog("OPERATIONS:");
  AILog("---------------");
  for (int f = 1; f <= LastFront(); ++f) {
    const std::string own = CentreOf(OwnArea(f)).UrbanName;
    if (OtherArea(f) > 0)
      AILog("FRONT (" + NumText(AI.FrontWeight[f]) + ") :" + own + " <--> " + CentreOf(OtherArea(f)).UrbanName);
    else
      AILog("GARRISON (" + NumText(AI.FrontWeight[f]) + ") :" + own);
  }
}

void AIAssignFronts() {
  Assigning as;
  as.given.assign(static_cast<std::size_t>(kFrontCap) + 1, 0);
  Long strength = 1;
  for (int a = 1; a <= LastArea(); ++a)
    if (AI.AreaSide[a] == 1) strength += AI.AreaOwnStrength[a];
  as.strength = strength;

  RememberFronts();
  WeighInPerMille();
  DealRoundRobin();
  PlaceStrays();
  CountShares(as);
  PlaceShips();
  ShiftStrength(as);
  SetStances();
  LogAssignment(as);
}

void AIMoveThqFront() {
  const int fronts = LastFront();
  const int w = MapW(), h = MapH();
  for (int f = 1; f <= fronts; ++f) {
    const long own = OwnArea(f);
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= h; ++y) {
        if (Hex[x][y].Area != own || Hex[x][y].Owner != CurrentRegime()) continue;
        for (int s = 1; s <= kStackSlots; ++s) {
          const int t = static_cast<int>(Hex[x][y].Unit[s]);
          if (!OwnUnit(t) || Unit[t].Thq <= 0) continue;
          bool free = Unit[t].Front == 0;
          if (!free && Unit[t].Front == f) {
            // A second THQ of the same area may go where it is needed more.
            ForEachUnitOnMap([&](int ox, int oy, int o) {
              if (o == t || !OwnUnit(o) || Unit[o].Thq <= 0 || Hex[ox][oy].Area != own) return;
              const long of = Unit[o].Front;
              if (of > 0 && of <= fronts && OwnArea(static_cast<int>(of)) == own) free = true;
            });
          }
          if (!free) continue;
          std::vector<int> thqs(kAreaCap + 1, 0);
          ForEachUnitOnMap([&](int, int, int o) {
            const long of = Unit[o].Front;
            if (OwnUnit(o) && Unit[o].Thq > 0 && of > 0 && of <= fronts) thqs[AreaIndex(OwnArea(static_cast<int>(of)))] += 1;
          });
          auto place = [&](bool garrison) {
            for (int r = 1; r <= 4; ++r) {
              for (int g = 1; g <= fronts; ++g) {
                if (garrison ? AI.FrontStance[g] != 0 : AI.FrontStance[g] <= 0) continue;
                const int ownG = AreaIndex(OwnArea(g));
                const long d = AI.AreaLandDist[AreaIndex(own)][ownG];
                if (!(ownG == own || (d > 0 && d <= r))) continue;
                if (thqs[ownG] != 0) continue;
                Unit[t].Front = g;
                AILog("Changed THQ " + Unit[t].Name + " to front " + Str(g));
                return true;
              }
            }
            return false;
          };
          if (!place(false)) place(true);
        }
      }
    }
  }
}

}  // namespace mf
