#include "ai/logistics.h"

#include <algorithm>

#include "ai/ai_state.h"
#include "ai/analysis_log.h"
#include "engine/supply_flood.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/hex_geometry.h"
#include "orders/transfer.h"

namespace mf {
namespace {

constexpr Long kOutOfReach = 999;

}  // namespace

void AIRequestStock(Long type, Long qty) {
  if (!ValidType(type)) return;
  const int cls = std::clamp<int>(Type[type].Class, 1, 4);
  TransferRequest.Type[cls] = type;
  TransferRequest.Qty[cls] = qty;
}

bool AIHandOver(const ShqPlace& from, int toX, int toY, int toSlot) {
  UI.OrdX = from.x;
  UI.OrdY = from.y;
  UI.OrdSlot = from.slot;
  SupplyFlood(true);
  UI.SelX = toX;
  UI.SelY = toY;
  UI.SelSlot = toSlot;
  return RunTransfer(true);
}

std::vector<ShqPlace> AIShqsOnMap(bool ownHexOnly) {
  std::vector<ShqPlace> found;
  const int r = CurrentRegime();
  if (r == 0) return found;
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y) {
      if (ownHexOnly && Hex[x][y].Owner != r) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (ValidUnit(u) && Unit[u].Regime == r && Unit[u].Shq > 0 && Unit[u].Shq <= kShqCap)
          found.push_back({x, y, s, u});
      }
    }
  return found;
}

bool AIOwnTown(int x, int y) { return Hex[x][y].Pop > 0 && Hex[x][y].Owner == Game.CurRegime && Game.CurRegime > 0; }

bool AISeaBeside(int x, int y) {
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(x, y, d);
    if (n.x >= 1 && n.y >= 1 && Hex[n.x][n.y].Land == kSea) return true;
  }
  return false;
}

Long AIShqReach(int x, int y, int shq) {
  if (!ValidUnit(shq) || Unit[shq].Regime != Game.CurRegime || Unit[shq].Shq < 1 || Unit[shq].Shq > kShqCap)
    return kOutOfReach;
  return Hex[x][y].ShqDist[Unit[shq].Shq];
}

void AIAreasToShq() {
  if (AI.FrontCount == 0) return;
  for (int a = 0; a <= kAreaCap; ++a) AI.AreaShq[a] = 0;
  double best[kAreaCap + 1] = {};
  const double range = EV(230);
  for (const ShqPlace& q : AIShqsOnMap(false)) {
    double v = 0;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) {
        if (!AIOwnTown(x, y)) continue;
        const Long d = AIShqReach(x, y, q.unit);
        if (d >= kOutOfReach) continue;
        const double pop = Hex[x][y].Pop;
        if (d < range * 0.4) {
          v += pop;
        } else if (d < range * 0.8) {
          v += pop / 3;
        } else {
          v += pop / 8;
        }
      }
    const int a = Hex[q.x][q.y].Area;
    if (a >= 1 && a <= kAreaCap && v > best[a]) {
      best[a] = v;
      AI.AreaShq[a] = q.unit;
    }
  }
  // An area that got its SHQ from a neighbour does not pass it on in the same
  // round, so each SHQ reaches out one step further per round.
  bool received[kAreaCap + 1] = {};
  const int areas = LastArea();
  for (int n = 1; n <= 5; ++n)
    for (int a = 1; a <= areas; ++a) {
      if (AI.AreaShq[a] == 0 || received[a]) continue;
      for (int b = 1; b <= areas; ++b) {
        if (AI.AreaShq[b] != 0) continue;
        const int d = AI.AreaLandDist[a][b];
        if (d >= 1 && d <= n) {
          AI.AreaShq[b] = AI.AreaShq[a];
          received[b] = true;
        }
      }
    }
}

void AITownsToShq() {
  const std::vector<ShqPlace> shqs = AIShqsOnMap(true);
  if (shqs.empty()) return;
  std::vector<Long> gifts(shqs.size(), 0);
  const Long divider = EV(201) == 0 ? 1 : EV(201);
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y) {
      if (!AIOwnTown(x, y)) continue;
      const Long value = static_cast<Long>(Int(static_cast<double>(Hex[x][y].Pop) / divider));
      int chosen = -1;
      double bestRatio = -1;
      for (std::size_t i = 0; i < shqs.size(); ++i) {
        const int s = static_cast<int>(Unit[shqs[i].unit].Shq);
        if (Hex[x][y].ShqDist[s] >= kOutOfReach || Hex[x][y].ShqPrev1[s] != 0) continue;
        const Long demand = Unit[shqs[i].unit].SupplyDemand;
        double ratio = 0;
        if (demand > 0) ratio = gifts[i] == 0 ? 99.0 : static_cast<double>(demand) / gifts[i];
        // The later SHQ wins a tie.
        if (ratio >= bestRatio) {
          bestRatio = ratio;
          chosen = static_cast<int>(i);
        }
      }
      if (chosen < 0) continue;
      // The town's worth is divided by the population divider a second time
      // here; the balance between SHQs is struck on that figure.
      gifts[chosen] += static_cast<Long>(Int(static_cast<double>(value) / divider));
      Hex[x][y].ProdSHQ = shqs[chosen].unit;
      const int a = Hex[x][y].Area;
      if (a >= 1 && a <= kAreaCap) AI.AreaShq[a] = shqs[chosen].unit;
    }
}

void AIShqToShq() {
  const int r = CurrentRegime();
  if (r == 0) return;
  const std::vector<ShqPlace> shqs = AIShqsOnMap(true);
  std::vector<bool> received(shqs.size(), false);
  const int areas = LastArea();
  for (std::size_t g = 0; g < shqs.size(); ++g) {
    if (received[g]) continue;
    const ShqPlace& giver = shqs[g];
    ShqRec& pool = Shq[r][Unit[giver.unit].Shq];
    for (int k = 1; k <= StockWidth(); ++k) {
      const Long type = pool.StockType[k];
      const Long qty = pool.StockQty[k];
      if (!ValidType(type) || qty <= 0) continue;
      const TypeRec& t = Type[type];
      if (t.Class == 2 && (t.Theater == kLandTheater || t.Theater == kSeaTheater)) continue;
      // What the giver's towns make of this type in one turn.
      double perTurn = 0;
      if (t.Cost > 0)
        for (int x = 1; x <= Game.MapW; ++x)
          for (int y = 1; y <= Game.MapH; ++y)
            if (AIOwnTown(x, y) && Hex[x][y].ProdSHQ == giver.unit && Hex[x][y].Prod == type)
              perTurn += static_cast<double>(Hex[x][y].Pop) / t.Cost;
      if (qty <= 2 * perTurn) continue;

      UI.OrdX = giver.x;
      UI.OrdY = giver.y;
      UI.OrdSlot = giver.slot;
      SupplyFlood(true);
      int best = -1;
      Long bestScore = 0;
      for (std::size_t o = 0; o < shqs.size(); ++o) {
        if (o == g) continue;
        const Long cost = Hex[shqs[o].x][shqs[o].y].Mark;
        if (cost >= 50) continue;
        Long score = -cost;
        for (int a = 1; a <= areas; ++a)
          if (AI.AreaShq[a] == shqs[o].unit) score += AI.AreaContact[a];
        if (best < 0 || score > bestScore) {
          best = static_cast<int>(o);
          bestScore = score;
        }
      }
      if (best < 0) continue;
      const ShqPlace& taker = shqs[best];
      TransferRequest = TransferRequestRec{};
      AIRequestStock(type, qty);
      AIHandOver(giver, taker.x, taker.y, taker.slot);
      received[best] = true;
      pool.Carry = 0;
      AILog(Unit[giver.unit].Name + ">" + Unit[taker.unit].Name);
    }
  }
}

}  // namespace mf
