#include "engine/production.h"

#include <algorithm>
#include <cstdint>

#include "engine/urban_production_dialog.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "platform/platform.h"

namespace mf {
namespace {

// Political points of a town: W = H x Pop / engine variable 231, the whole
// part sure and the fraction a chance. W is kept as a fraction of whole
// numbers so that its whole part is exact.
void PoliticalPoints(const HexRec& h, int r, bool bonus) {
  const std::int64_t den = 100 * static_cast<std::int64_t>(EV(231));
  std::int64_t num = static_cast<std::int64_t>(100 - h.Damage) * h.Pop;
  if (bonus) num *= 2;
  std::int64_t whole = 0;
  double fraction = 0;
  if (den != 0) {
    whole = num / den;
    if (num % den != 0 && ((num < 0) != (den < 0))) --whole;
    fraction = static_cast<double>(num - whole * den) / static_cast<double>(den);
  }
  std::int64_t gain = 0;
  if (whole >= 1) gain += whole;
  if (Rnd() < fraction) gain += 1;
  Regime[r].PP = AddSat(Regime[r].PP, gain);
}

// Production points towards the town's type, and finished pieces into the
// stock of its SHQ.
void UnitPieces(HexRec& h, int r, bool bonus, bool overseas, int shqNumber) {
  // W = H x Pop = (100 - Damage) x Pop / 100, stored rounded.
  std::int64_t w100 = static_cast<std::int64_t>(100 - h.Damage) * h.Pop;
  if (bonus) w100 *= 2;
  if (overseas) w100 = 0;
  h.ProdPts = Clamp32(CInt(static_cast<double>(static_cast<std::int64_t>(h.ProdPts) * 100 + w100) / 100.0));
  const int type = h.Prod;
  const long n = ProducedCount(type, h.ProdPts);
  if (n <= 0) return;
  ShqRec& stock = Shq[r][shqNumber];
  int slot = 0;
  for (int k = 1; k <= StockWidth(); ++k)
    if (stock.StockType[k] == type) slot = k;
  if (slot == 0) {
    for (int k = 1; k <= StockWidth(); ++k) {
      if (stock.StockType[k] == 0) {
        slot = k;
        stock.StockType[k] = type;
        break;
      }
    }
  }
  const std::int64_t left = static_cast<std::int64_t>(h.ProdPts) - static_cast<std::int64_t>(Type[type].Cost) * n;
  h.ProdPts = Clamp32(std::max<std::int64_t>(left, 0));
  // With no free slot the points are spent and the pieces are lost: the
  // rules count them into slot 0, which no list shows, and slot 0 of every
  // table stays empty here, so they are simply dropped.
  if (slot == 0) return;
  stock.StockQty[slot] = AddSat(stock.StockQty[slot], n);
}

}  // namespace

long ProducedCount(int type, long points) {
  if (!ValidType(type) || Type[type].Cost <= 0) return 0;
  return static_cast<long>(Int(static_cast<double>(points) / static_cast<double>(Type[type].Cost)));
}

void TownOutput(int x, int y) {
  const int r = CurrentRegime();
  if (r == 0 || !ValidHex(x, y)) return;
  HexRec& h = Hex[x][y];
  if (h.Owner != r || h.Pop <= 0 || h.ProdSHQ <= 0 || !ValidUnit(h.ProdSHQ)) return;
  // The town's SHQ must be alive, the regime's, and must have reached the
  // town in this turn's flood.
  const UnitRec& shq = Unit[h.ProdSHQ];
  if (shq.Regime != r || shq.Shq < 1 || shq.Shq > kShqCap) return;
  const int number = shq.Shq;
  if (h.ShqDist[number] > EV(230)) return;

  const bool bonus = Regime[r].AI == 1 && Game.AIProdBonus == 1;
  if (h.Prod == 0) {
    PoliticalPoints(h, r, bonus);
  } else if (h.Prod > 0 && ValidType(h.Prod)) {
    // A town overseas from its SHQ sends supply but earns no points for units.
    UnitPieces(h, r, bonus, h.ShqPrev1[number] > 0, number);
  }
  // Extra supply (-1) is counted by the supply pass.
}

void PoolTransport() {
  const int r = CurrentRegime();
  if (r == 0) return;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      if (Hex[x][y].Owner != r) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (!ValidUnit(u) || Unit[u].Shq < 1 || Unit[u].Shq > kShqCap || Unit[u].Regime != r) continue;
        ShqRec& pool = Shq[r][Unit[u].Shq];
        std::int64_t land = 0, sea = 0;
        for (int k = 1; k <= StockWidth(); ++k) {
          const Long t = pool.StockType[k];
          if (!ValidType(t)) continue;
          const std::int64_t cap = static_cast<std::int64_t>(pool.StockQty[k]) * Type[t].Attr[kCarryCap];
          if (Type[t].Theater == kLandTheater) land += cap;
          if (Type[t].Theater == kSeaTheater) sea += cap;
        }
        pool.Carry = Clamp32(land);
        pool.CarrySea = Clamp32(sea);
      }
    }
  }
}

void UrbanProduction() {
  if (!ValidHex(UI.SelX, UI.SelY)) return;
  UrbanProductionDialog dialog;
  dialog.Prepare(UI.SelX, UI.SelY);
  Plat().RunDialog(dialog);
  // The town's marks and its panel show the new choice.
  RequestRedraw(1);
  UI.PanelDirty = true;
}

}  // namespace mf
