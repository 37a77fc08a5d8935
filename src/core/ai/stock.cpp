#include "ai/stock.h"

#include <algorithm>
#include <vector>

#include "ai/ai_state.h"
#include "ai/logistics.h"
#include "ai/sorted_list.h"
#include "ai/unit_worth.h"
#include "engine/supply_flood.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/hex_geometry.h"
#include "model/type_lookup.h"
#include "orders/move_allowance.h"
#include "orders/new_units.h"
#include "orders/transfer.h"

namespace mf {
namespace {

constexpr Long kOutOfReach = 999;


struct Place {
  int x = 0, y = 0, slot = 0;
};

// Where each unit of the regime stands, by unit number; x 0 for none.
std::vector<Place> Positions() {
  std::vector<Place> at(kUnitCap + 1);
  const int r = CurrentRegime();
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (ValidUnit(u) && Unit[u].Regime == r && r != 0) at[u] = {x, y, s};
      }
  return at;
}

// Calls f(x, y, unit) for each land formation (no SHQ) of the regime in the
// stacks, in scan order.
template <class F>
void ForLandFormations(F f) {
  const int r = CurrentRegime();
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (ValidUnit(u) && r != 0 && Unit[u].Regime == r && Unit[u].Shq == 0 && Unit[u].Theater == kLandTheater)
          f(x, y, u);
      }
}

// The cursor of the walk wraps at a quarter of the regime's units.
int CursorWrap() {
  const int r = CurrentRegime();
  int n = 0;
  for (int u = 1; u <= kUnitCap; ++u)
    if (Unit[u].Regime == r && r != 0) ++n;
  return std::max(n / 4, 1);
}

// The stock slot from which class `cls` of formation u may be topped up: the
// slot of the type it holds, or, when that class is empty, the last slot of
// any land type of the class. 0 when there is none.
int SlotFor(int shq, int u, int cls) {
  if (UnitSlotQty(u, cls) > 0) {
    const Long held = UnitSlotType(u, cls);
    return AILastStockSlot(shq, 0, [held](int t) { return t == held; });
  }
  return AILastStockSlot(shq, 0, [cls](int t) { return Type[t].Theater == kLandTheater && Type[t].Class == cls; });
}

ShqRec& PoolOf(int shq) { return Shq[Unit[shq].Regime][Unit[shq].Shq]; }

// Hands `qty` of the type in stock slot k of SHQ q to formation u.
void Give(const ShqPlace& q, int k, Long qty, const Place& to) {
  if (qty <= 0) return;
  TransferRequest = TransferRequestRec{};
  AIRequestStock(PoolOf(q.unit).StockType[k], qty);
  AIHandOver(q, to.x, to.y, to.slot);
}

// True when front f's own area is the SHQ's area or joined to it by land.
bool FrontLinked(Long f, Long shqArea) {
  const Long own = AI.FrontOwnArea[f];
  if (own == shqArea) return true;
  if (!ValidArea(own) || !ValidArea(shqArea)) return false;
  const int d = AI.AreaLandDist[shqArea][own];
  return d >= 1 && d < kOutOfReach;
}

// Walks the sorted list `tries` times from its head, wrapping the cursor,
// and calls give(unit) for each entry that holds a unit and passes `may`.
template <class May, class Act>
void Walk(int tries, May may, Act give) {
  const int wrap = CursorWrap();
  int cursor = 1;
  for (int n = 1; n <= tries; ++n) {
    if (cursor > wrap) cursor = 1;
    const int entry = cursor++;
    if (entry > kListCap) continue;
    const int u = AI.ListA[entry];
    if (ValidUnit(u) && may(u)) give(u);
  }
}

// Candidates of the infantry and armour stages: land formations of fronts in
// or joined by land to the SHQ's area, supplied or without infantry.
template <class F>
void ForFrontFormations(Long shqArea, F f) {
  ForLandFormations([&](int x, int y, int u) {
    const Long front = Unit[u].Front;
    if (!AIValidFront(front) || !FrontLinked(front, shqArea)) return;
    if (Unit[u].SupplyPct <= 0 && Unit[u].InfQty > 0) return;
    f(x, y, u, front);
  });
}

}  // namespace

void AIStockInf() {
  for (const ShqPlace& q : AIShqsOnMap(true)) {
    const Long area = Hex[q.x][q.y].Area;
    ListClear();
    ForFrontFormations(area, [](int x, int y, int u, Long f) {
      const UnitRec& un = Unit[u];
      Long score = std::clamp<Long>(10 + static_cast<Long>(Int((UnitMaxMoveOf(u, true) - 100) / 10.0)), 0, 20);
      score += AI.FrontWeight[f] - AI.FrontShare[f];
      if (un.Thq > 0 && un.InfQty == 0) score += 2500;
      if (un.ArtQty > 0 && un.InfQty == 0) score += 50;
      score -= AIUnitWorth(x, y, u, 3);
      ListAdd(u, 0, score);
    });
    const std::vector<Place> at = Positions();
    Walk(
        5,
        [&](int u) {
          return PoolOf(q.unit).Carry > 0 || (at[u].x == q.x && at[u].y == q.y);
        },
        [&](int u) {
          const int k = SlotFor(q.unit, u, 1);
          if (k == 0) return;
          const Long stock = PoolOf(q.unit).StockQty[k];
          Long amount = CInt(Int(stock / 5.0) + 5);
          amount = std::min<Long>(amount, Unit[u].Thq > 0 ? stock : stock - 20);
          Give(q, k, amount, at[u]);
        });
  }
}

void AIStockArt() {
  const int r = CurrentRegime();
  for (const ShqPlace& q : AIShqsOnMap(true)) {
    UI.OrdX = q.x;
    UI.OrdY = q.y;
    UI.OrdSlot = q.slot;
    SupplyFlood(true);
    ListClear();
    ForLandFormations([&](int x, int y, int u) {
      const HexRec& h = Hex[x][y];
      if (h.Mark >= kOutOfReach || h.PathPortX == -1) return;
      const UnitRec& un = Unit[u];
      Long score = 100;
      if (un.Thq > 0) score -= 3;
      if (AIValidFront(un.Front)) {
        static const Long kByStance[5] = {0, 4, 6, 8, 6};
        const Long stance = AI.FrontStance[un.Front];
        if (stance >= 1 && stance <= 4) score += kByStance[stance];
        if (AI.FrontShare[un.Front] > AI.FrontWeight[un.Front]) score -= 6;
      }
      if (un.ArtQty > 0) score += 1;
      // Guns behind the line, with nothing but own ground around them.
      bool allOwn = true;
      for (int d = 1; d <= kHexSides; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (n.x >= 1 && n.y >= 1 && Hex[n.x][n.y].Owner != r) allOwn = false;
      }
      if (allOwn) score -= 50;
      if (h.PathSea > 0) score -= 50;
      ListAdd(u, 0, score);
    });
    const std::vector<Place> at = Positions();
    Walk(
        1, [&](int) { return PoolOf(q.unit).Carry > 0; },
        [&](int u) {
          const int k = SlotFor(q.unit, u, 3);
          if (k > 0) Give(q, k, PoolOf(q.unit).StockQty[k], at[u]);
        });
  }
}

void AIStockMob() {
  for (const ShqPlace& q : AIShqsOnMap(true)) {
    UI.OrdX = q.x;
    UI.OrdY = q.y;
    UI.OrdSlot = q.slot;
    SupplyFlood(true);
    ListClear();
    ForLandFormations([&](int x, int y, int u) {
      if (Unit[u].SupplyPct <= 0 || !AIValidFront(Unit[u].Front) || Hex[x][y].Mark >= kOutOfReach) return;
      ListAdd(u, 0, 600 - UnitMaxMoveOf(u, true));
    });
    // The SHQ keeps the trucks it needs to carry its own infantry and guns.
    const ShqRec& pool = PoolOf(q.unit);
    Long ownLoad = 0;
    for (int k = 1; k <= StockWidth(); ++k) {
      const Long t = pool.StockType[k];
      if (ValidType(t) && Type[t].Theater == kLandTheater && (Type[t].Class == 1 || Type[t].Class == 3))
        ownLoad = AddSat(ownLoad, AttrOf(t, kWeight) * pool.StockQty[k]);
    }
    const std::vector<Place> at = Positions();
    const int entries = std::min<int>(AI.ListCount, kListCap);
    for (int e = 1; e <= entries; ++e) {
      const int u = AI.ListA[e];
      if (!ValidUnit(u)) continue;
      const int k = SlotFor(q.unit, u, 2);
      if (k == 0) continue;
      const Long cap = AttrOf(PoolOf(q.unit).StockType[k], kCarryCap);
      if (cap <= 0) continue;
      const UnitRec& un = Unit[u];
      const double load = AttrOf(un.InfType, kWeight) * static_cast<double>(un.InfQty) +
                          AttrOf(un.ArtType, kWeight) * static_cast<double>(un.ArtQty);
      const Long need = static_cast<Long>(Int(load / cap + 1)) - un.MobQty;
      const Long reserve = ownLoad > 0 ? static_cast<Long>(Int(static_cast<double>(ownLoad) / cap)) + 1 : 0;
      const Long spare = PoolOf(q.unit).StockQty[k] - reserve;
      Give(q, k, std::min(need, spare), at[u]);
    }
  }
}

void AIStockArm() {
  for (const ShqPlace& q : AIShqsOnMap(true)) {
    const Long area = Hex[q.x][q.y].Area;
    ListClear();
    ForFrontFormations(area, [](int x, int y, int u, Long f) {
      const Long own = AI.FrontOwnArea[f];
      if (!ValidArea(own) || AI.AreaContact[own] <= 0) return;
      if (Hex[x][y].Land == kSwamp || Hex[x][y].Land == kForest) return;
      const UnitRec& un = Unit[u];
      const Long twice = AI.FrontStance[f] * 2;
      Long score = twice * twice;
      score += static_cast<Long>(Int((AI.FrontWeight[f] - AI.FrontShare[f]) / 10.0));
      score -= AIUnitWorth(x, y, u, 3);
      if (un.ArtQty > 0) score -= 10;
      if (un.Thq > 0) score -= 25;
      ListAdd(u, 0, score);
    });
    const std::vector<Place> at = Positions();
    Walk(
        20, [&](int) { return PoolOf(q.unit).Carry > 0; },
        [&](int u) {
          const int k = SlotFor(q.unit, u, 4);
          if (k == 0) return;
          const Long stock = PoolOf(q.unit).StockQty[k];
          Give(q, k, std::min<Long>(CInt(Int(stock / 20.0) + 1), stock), at[u]);
        });
  }
}

namespace {

// Founds or reinforces a formation of `theater` with the last stock slot of
// each SHQ holding a type of that theater and class, in a town of the front
// area chosen by `score` among the fronts within 5 land steps.
template <class Score>
void BuildFromStock(int theater, int cls, Score score) {
  const int r = CurrentRegime();
  if (r == 0) return;
  for (const ShqPlace& q : AIShqsOnMap(true)) {
    const int k = AILastStockSlot(q.unit, 0, [&](int t) { return Type[t].Theater == theater && Type[t].Class == cls; });
    if (k == 0) continue;
    const Long shqArea = Hex[q.x][q.y].Area;
    Long bestArea = 0, best = 0;
    for (int f = 1; f <= LastFront(); ++f) {
      const Long own = AI.FrontOwnArea[f];
      if (!ValidArea(own)) continue;
      if (own != shqArea) {
        if (!ValidArea(shqArea)) continue;
        const int d = AI.AreaLandDist[shqArea][own];
        if (d < 1 || d > 5) continue;
      }
      const Long s = score(f);
      if (bestArea == 0 || s > best) {
        bestArea = own;
        best = s;
      }
    }
    if (bestArea == 0) continue;

    // The first town of that area that has a formation of the theater, or
    // room for a new one; a fleet needs a port.
    int tx = 0, ty = 0, slot = 0;
    for (int x = 1; x <= Game.MapW && tx == 0; ++x)
      for (int y = 1; y <= Game.MapH && tx == 0; ++y) {
        if (!AIOwnTown(x, y) || Hex[x][y].Area != bestArea) continue;
        if (theater == kSeaTheater && !AISeaBeside(x, y)) continue;
        int found = 0;
        for (int s = 1; s <= kStackSlots && found == 0; ++s) {
          const int u = Hex[x][y].Unit[s];
          if (ValidUnit(u) && Unit[u].Regime == r && Unit[u].Theater == theater && Unit[u].Shq == 0 &&
              Unit[u].Thq == 0)
            found = s;
        }
        if (found != 0 || Hex[x][y].Unit[kStackSlots] == 0) {
          tx = x;
          ty = y;
          slot = found;
        }
      }
    if (tx == 0) continue;
    if (slot == 0) {
      UI.SelX = tx;
      UI.SelY = ty;
      if (NewFormation(theater) == 0) continue;
      slot = static_cast<int>(UI.SelSlot);
    }
    Give(q, k, PoolOf(q.unit).StockQty[k], Place{tx, ty, slot});
  }
}

}  // namespace

void AIBuildNaval() {
  BuildFromStock(kSeaTheater, 2, [](int f) { return AI.FrontShare[f]; });
}

void AIBuildAir() {
  BuildFromStock(kAirTheater, 3, [](int f) {
    const Long other = AI.FrontEnemyArea[f];
    return ValidArea(other) ? AI.AreaEnemyStrength[other] : 0;
  });
}

void AIBuildAir2() {
  BuildFromStock(kAirTheater, 1, [](int f) {
    const Long other = AI.FrontEnemyArea[f];
    return ValidArea(other) ? AI.AreaEnemyStrength[other] : 0;
  });
}

void AINewLandUnits() {
  for (const ShqPlace& q : AIShqsOnMap(false)) {
    if (Hex[q.x][q.y].Unit[kStackSlots] != 0) continue;
    const int inf =
        AILastStockSlot(q.unit, 20, [](int t) { return Type[t].Theater == kLandTheater && Type[t].Class == 1; });
    const int art = AILastStockSlot(q.unit, 0, [](int t) {
      return Type[t].Theater == kLandTheater && Type[t].Class == 3 && Type[t].Attr[kArtilleryRange] < 2;
    });
    if (inf == 0 && art == 0) continue;
    UI.SelX = q.x;
    UI.SelY = q.y;
    if (NewFormation(kLandTheater) == 0) continue;
    const Place to{q.x, q.y, static_cast<int>(UI.SelSlot)};
    const ShqRec& pool = PoolOf(q.unit);
    TransferRequest = TransferRequestRec{};
    if (inf != 0) AIRequestStock(pool.StockType[inf], pool.StockQty[inf]);
    if (art != 0) AIRequestStock(pool.StockType[art], pool.StockQty[art]);
    AIHandOver(q, to.x, to.y, to.slot);
  }
}

}  // namespace mf
