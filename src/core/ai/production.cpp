#include "ai/production.h"

#include <algorithm>

#include "ai/ai_state.h"
#include "ai/analysis_log.h"
#include "ai/logistics.h"
#include "engine/diplomacy.h"
#include "engine/research.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"
#include "model/type_lookup.h"
#include "orders/move_allowance.h"
#include "orders/transport.h"

namespace mf {
namespace {

// The cells of the wants and shares.
float& Want(int theater, int cls) { return AI.TypeWant[theater][cls]; }
void ClearWants() {
  for (int t = 0; t < kAITheaters; ++t)
    for (int c = 0; c <= kAIClasses; ++c) {
      AI.TypeWant[t][c] = 0;
      AI.TypeShare[t][c] = 0;
    }
}

// What the transports of a ship can lift of land troops.
Long SeaLift(int ship) { return Clamp32(AttrOf(Unit[ship].MobType, kCarryCap) * Unit[ship].MobQty); }

// Calls f(x, y, unit) for every unit of Game.CurRegime in the stacks, in scan order.
template <class F>
void ForOwnUnits(F f) {
  const int r = CurrentRegime();
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (ValidUnit(u) && Unit[u].Regime == r && r != 0) f(x, y, u);
      }
}

bool AreaOf(int x, int y, int shq) {
  const int a = Hex[x][y].Area;
  return a >= 1 && a <= kAreaCap && AI.AreaShq[a] == shq;
}

// The share of a type's cell falls by a town's part of the population.
void ShareFalls(Long type, Long pop, Long total) {
  if (!ValidType(type) || total <= 0) return;
  const int t = static_cast<int>(Type[type].Theater);
  const int c = static_cast<int>(Type[type].Class);
  if (t < 0 || t >= kAITheaters || c < 1 || c > kAIClasses) return;
  Long& share = AI.TypeShare[t][c];
  share = std::max<Long>(share - static_cast<Long>(Int(static_cast<double>(pop) * 1000 / total)), 0);
}

// The first land infantry type that the town's people can make and the
// regime's people may own: what a town makes when the chosen type is foreign
// to it.
Long FirstLivedInfantry(Long people) {
  const Long own = Regime[CurrentRegime()].OwnPeople;
  for (int t = 1; t <= kTypeCap; ++t) {
    const TypeRec& ty = Type[t];
    if (ty.Theater != kLandTheater || ty.Class != 1) continue;
    if (people >= 0 && people <= kPeopleCap && ty.Living[people] == 1 && own >= 0 && own <= kPeopleCap &&
        ty.Owning[own] == 1)
      return t;
  }
  return 0;
}

// Draws a type cell by the shares: up to ten tries; a port leaves out land
// and air for the first five, an inland town never takes a ship.
Long ChooseType(bool coastal) {
  Long sum = 0;
  for (int t = 0; t < kAITheaters; ++t)
    for (int c = 1; c <= kAIClasses; ++c) sum += AI.TypeShare[t][c];
  for (int attempt = 1; attempt <= 10; ++attempt) {
    const double r = static_cast<double>(Rnd()) * static_cast<double>(sum);
    double reached = 0;
    for (int t = 0; t < kAITheaters; ++t)
      for (int c = 1; c <= kAIClasses; ++c) {
        if (t == kSeaTheater && !coastal) continue;
        if (t != kSeaTheater && coastal && attempt <= 5) continue;
        reached += AI.TypeShare[t][c];
        if (reached >= r) return AI.BestType[t][c];
      }
  }
  return -1;
}

// The town at (x, y) takes a new order from the shares of SHQ q.
void NewOrder(int x, int y, int q, Long total) {
  HexRec& h = Hex[x][y];
  const bool coastal = AISeaBeside(x, y);
  Long type = ChooseType(coastal);
  if (type < 0) return;
  const Long people = h.People;
  const bool lived = ValidType(type) && people >= 0 && people <= kPeopleCap && Type[type].Living[people] == 1;
  if (!lived) type = FirstLivedInfantry(people);
  if (ValidType(type) && Type[type].Theater == kSeaTheater && !coastal) type = AI.BestType[0][1];
  h.Prod = type;
  AILog(h.UrbanName + ", Prod = " + Type[ValidType(type) ? type : 0].Name);
  const int s = static_cast<int>(Unit[q].Shq);
  if (s >= 1 && s <= kShqCap && AI.ShqNeedsLand[s] != 0) {
    h.Prod = AI.BestType[0][1];
    AI.ShqNeedsLand[s] = 0;
  }
  ShareFalls(h.Prod, h.Pop, total);
}

// The wants of SHQ q from its fronts. True when any front counted.
bool FrontWants(int q) {
  bool counted = false;
  for (int f = 1; f <= LastFront(); ++f) {
    const Long own = AI.FrontOwnArea[f];
    const Long other = AI.FrontEnemyArea[f];
    if (other <= 0 || other > kAreaCap || own < 1 || own > kAreaCap) continue;
    if (AI.FrontShare[f] <= 0 || AI.AreaShq[own] != q) continue;
    counted = true;
    const double w = AI.FrontWeight[f];
    if (AI.AreaLandBorder[own][other] > 0) {
      switch (AI.FrontStance[f]) {
        case 1: Want(0, 1) += static_cast<float>(w); break;
        case 2:
          Want(0, 1) += static_cast<float>(w / 2);
          Want(0, 4) += static_cast<float>(w / 4);
          Want(2, 3) += static_cast<float>(w / 6);
          Want(0, 3) += static_cast<float>(w / 5);
          break;
        case 3:
          Want(0, 1) += static_cast<float>(w / 3);
          Want(0, 4) += static_cast<float>(w / 3);
          Want(2, 3) += static_cast<float>(w / 5);
          Want(0, 3) += static_cast<float>(w / 5);
          break;
        case 4:
          Want(0, 1) += static_cast<float>(w / 4);
          Want(0, 4) += static_cast<float>(w / 2);
          Want(2, 3) += static_cast<float>(w / 4);
          Want(0, 3) += static_cast<float>(w / 10);
          break;
        default: break;
      }
    } else if (AI.AreaLandmass[own] != AI.AreaLandmass[other]) {
      switch (AISeaPlan(f)) {
        case 0: Want(1, 2) += static_cast<float>(w); break;
        case 1: Want(1, 2) += static_cast<float>(w * 10); break;
        case 2:
          Want(0, 1) += static_cast<float>(w * 0.9);
          Want(0, 2) += static_cast<float>(w * 0.1);
          Want(2, 3) += static_cast<float>(w * 0.5);
          break;
        case 3: Want(1, 2) += static_cast<float>(w / 5); break;
        default: break;
      }
    }
  }
  return counted;
}

// Fighters against the foreign air force at war, and escorts for own bombers.
void AirWants(int q) {
  const int r = CurrentRegime();
  double foreign = 0, own = 0, bombers = 0;
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (!ValidUnit(u) || Unit[u].Regime == 0 || Unit[u].Theater != kAirTheater) continue;
        if (Unit[u].Regime != r) {
          if (!AtPeace(r, static_cast<int>(Unit[u].Regime)))
            foreign += Unit[u].InfQty + static_cast<double>(Unit[u].ArtQty) / 2;
        } else if (AreaOf(x, y, q)) {
          own += Unit[u].InfQty;
          bombers += Unit[u].ArtQty;
        }
      }
  if (foreign > own) Want(2, 1) += static_cast<float>((foreign - own) * (5 + foreign / 3));
  if (bombers > 4 * own) Want(2, 1) += 100;
  if (Want(2, 1) > 200) Want(2, 1) = 200;
}

// Trucks for the slow units of attacking fronts on one landmass.
void MobilityWants(int q) {
  for (int f = 1; f <= LastFront(); ++f) {
    const Long own = AI.FrontOwnArea[f];
    const Long other = AI.FrontEnemyArea[f];
    if (AI.FrontStance[f] <= 2 || other <= 0 || other > kAreaCap || own < 1 || own > kAreaCap) continue;
    if (AI.AreaShq[own] != q || AI.AreaLandmass[own] != AI.AreaLandmass[other]) continue;
    const double w = AI.FrontWeight[f];
    ForOwnUnits([&](int, int, int u) {
      if (Unit[u].Front == f && UnitMaxMoveOf(u, true) < 100) Want(0, 2) += static_cast<float>(w / 4);
    });
  }
}

}  // namespace

int AICountTowns() {
  int n = 0;
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      if (Hex[x][y].Pop > 0 && Hex[x][y].Owner == 0) ++n;
  return n;
}

void AIResearch() {
  const int r = CurrentRegime();
  if (r == 0 || AICountTowns() > 0) return;
  if (Rnd() < 0.8f) return;
  for (int f = 1; f <= kResearchCap; ++f) {
    const Long cost = Research[f].Cost;
    if (cost <= 0 || FieldKnown(r, f)) continue;
    if (cost + 10 < Regime[r].PP) {
      Regime[r].PP -= cost;
      Regime[r].Research[f] = 1;
    }
  }
}

void AIBestType() {
  const int r = CurrentRegime();
  const Long own = Regime[r].OwnPeople;
  for (int t = 0; t < kAITheaters; ++t)
    for (int c = 1; c <= kAIClasses; ++c) {
      Long best = 0, bestFigure = 0;
      for (int ty = 1; ty <= kTypeCap; ++ty) {
        const TypeRec& y = Type[ty];
        if (y.Theater != t || y.Class != c) continue;
        if (!TypeResearchKnown(r, ty) || own < 0 || own > kPeopleCap || y.Owning[own] != 1) continue;
        Long figure = y.Attr[kSoftAttack] + y.Attr[kSoftDefense] + y.Attr[kHardAttack] + y.Attr[kHardDefense] +
                      y.Attr[kHitPoints] + y.Attr[kDogfight] + y.Attr[kArtilleryAttack];
        if (t == kLandTheater && c == 3) figure += y.Attr[kArtilleryRange] * 1000;
        if (best == 0 || figure > bestFigure) {
          best = ty;
          bestFigure = figure;
        }
      }
      AI.BestType[t][c] = best;
      AILog("Theater=" + Str(t) + ", Type=" + Str(c) + " = " + Type[best].Name);
    }
}

int AISeaPlan(int front) {
  if (front < 1 || front > kFrontCap) return 0;
  const Long own = AI.FrontOwnArea[front];
  const Long other = AI.FrontEnemyArea[front];
  if (own < 1 || own > kAreaCap || other < 0 || other > kAreaCap) return 0;
  Long lift = 0, weight = 0;
  ForOwnUnits([&](int x, int y, int u) {
    if (Unit[u].Theater == kSeaTheater && (Unit[u].Front == front || Hex[x][y].Area == own)) lift += SeaLift(u);
    if (Unit[u].Theater == kLandTheater && Hex[x][y].Area == own) weight += UnitLoadWeight(u);
  });
  int s = 0;
  if (AI.AreaEnemyStrength[other] * 5 < AI.AreaOwnStrength[own]) s = 1;
  const Long cx = AI.AreaX[other], cy = AI.AreaY[other];
  if (ValidHex(cx, cy) && Hex[cx][cy].Owner == 0) s += 1;
  if (lift == 0 && s > 0) return 1;
  if (weight > 3 * lift) return 0;
  if (weight > lift) return 3;
  return 2;
}

void AISeaLift() {
  Long weight = 0, lift = 0;
  ForOwnUnits([&](int, int, int u) {
    if (Unit[u].Theater == kLandTheater) weight += UnitLoadWeight(u);
    if (Unit[u].Theater == kSeaTheater) lift += SeaLift(u);
  });
  if (weight > 3 * lift) return;
  const float sea = Want(1, 2);
  Want(0, 1) += sea * 0.75f;
  Want(0, 2) += sea * 0.25f;
  Want(2, 3) += sea * 0.5f;
  Want(1, 2) = 0;
}

void AIProduction() {
  const int r = CurrentRegime();
  if (r == 0 || AI.FrontCount == 0) return;
  AIBestType();
  const int neutralTowns = AICountTowns();
  for (const ShqPlace& place : AIShqsOnMap(true)) {
    const int q = place.unit;
    ClearWants();
    const bool counted = FrontWants(q);
    AISeaLift();
    if (counted) AirWants(q);
    MobilityWants(q);

    double total = 0;
    for (int t = 0; t < kAITheaters; ++t)
      for (int c = 1; c <= kAIClasses; ++c) total += AI.TypeWant[t][c];
    if (total == 0) return;
    for (int t = 0; t < kAITheaters; ++t)
      for (int c = 1; c <= kAIClasses; ++c) {
        AI.TypeShare[t][c] = static_cast<Long>(Int(AI.TypeWant[t][c] * 1000 / total));
        if (AI.TypeWant[t][c] > 0)
          AILog("Typ=" + Type[AI.BestType[t][c]].Name + ", C=" + NumText(AI.TypeShare[t][c]) + "%%");
      }

    // The population of q's towns; a town well on its way keeps its order.
    Long pop = 0;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y)
        if (AIOwnTown(x, y) && AreaOf(x, y, q)) pop += Hex[x][y].Pop;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) {
        if (!AIOwnTown(x, y) || !AreaOf(x, y, q)) continue;
        const HexRec& h = Hex[x][y];
        if (h.ProdPts > h.Pop && h.Prod > 0) ShareFalls(h.Prod, h.Pop, pop);
      }
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) {
        if (!AIOwnTown(x, y) || !AreaOf(x, y, q)) continue;
        HexRec& h = Hex[x][y];
        if (h.ProdPts >= h.Pop) continue;
        if (!(AI.SupplyRatio > Rnd())) continue;
        const bool e = Rnd() > 0.1f;
        if ((neutralTowns > 0 || e) && Regime[r].PP > 10) {
          NewOrder(x, y, q, pop);
        } else {
          h.Prod = 0;
          AILog(h.UrbanName + ", Prod = PP");
        }
      }
  }
}

}  // namespace mf
