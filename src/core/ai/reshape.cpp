#include "ai/reshape.h"

#include <cstdlib>

#include "ai/ai_orders.h"
#include "ai/ai_state.h"
#include "ai/sorted_list.h"
#include "ai/unit_worth.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/counter_pic.h"
#include "model/game_state.h"
#include "model/stack.h"
#include "orders/command.h"
#include "orders/new_units.h"
#include "orders/transfer.h"
#include "orders/transport.h"

namespace mf {
namespace {


bool Mine(long u) { return AILive(u) && Unit[u].Regime == Game.CurRegime; }

// Troops go from the unit in slot `from` to the unit in slot `into` of one
// hex through a transfer in the computer's way; for each class 1..4 the
// quantity in qty (of the giver's type). Same hex: no transport is paid.
bool Hand(int x, int y, int from, int into, const Long qty[5]) {
  const int giver = static_cast<int>(Hex[x][y].Unit[from]);
  TransferRequest = TransferRequestRec{};
  for (int c = 1; c <= 4; ++c) {
    TransferRequest.Type[c] = UnitSlotType(giver, c);
    TransferRequest.Qty[c] = qty[c];
  }
  UI.OrdX = x;
  UI.OrdY = y;
  UI.OrdSlot = from;
  UI.SelX = x;
  UI.SelY = y;
  UI.SelSlot = into;
  const bool done = RunTransfer(true);
  if (done) AIMoveSound();
  TransferRequest = TransferRequestRec{};
  return done;
}

// The whole of unit in slot `from` goes into the unit in slot `into`; the
// empty giver is disbanded. False when nothing went over.
bool MergeWhole(int x, int y, int from, int into) {
  const int giver = static_cast<int>(Hex[x][y].Unit[from]);
  Long qty[5] = {};
  for (int c = 1; c <= 4; ++c) qty[c] = UnitSlotQty(giver, c);
  if (!Hand(x, y, from, into, qty)) return false;
  DisbandUnit(giver);
  AIShowChange(1);
  return true;
}

// A line too long for the units on it: one strong formation of front f
// that stands alone is halved.
void Split(int f) {
  const long balance = AI.FrontBalance[f];
  ListClear();
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      const HexRec& h = Hex[x][y];
      const int u = static_cast<int>(h.Unit[1]);
      if (!Mine(u) || Unit[u].Front != f || h.Unit[2] != 0) continue;
      const Long worth = AIUnitWorth(x, y, u, 4);
      if (AI.FrontShare[f] > 5 * AI.FrontWeight[f] || worth > 6 * EV(101)) ListAdd(x, y, worth);
    }
  }
  long n = static_cast<long>(CInt(static_cast<double>(Int(balance / 1.5) + 1)));
  if (n > AI.ListCount) n = AI.ListCount;
  // Every pass takes the same entry n: once it is split its hex holds two,
  // so one formation of a front at most is split in a turn.
  for (long pass = 1; pass <= n; ++pass) {
    const int x = static_cast<int>(AI.ListA[n]);
    const int y = static_cast<int>(AI.ListB[n]);
    if (!ValidHex(x, y) || Hex[x][y].Unit[2] != 0) continue;
    const int old = static_cast<int>(Hex[x][y].Unit[1]);
    if (!Mine(old)) continue;
    Long half[5] = {};
    half[1] = static_cast<Long>(Int(Unit[old].InfQty / 2.0));
    half[2] = static_cast<Long>(Int(Unit[old].MobQty / 2.0));
    half[4] = static_cast<Long>(Int(Unit[old].ArmQty / 2.0));
    if (half[1] + half[2] + half[4] < 1) continue;
    UI.SelX = x;
    UI.SelY = y;
    UI.SelCount = StackCount(x, y);
    const int made = NewFormation(static_cast<int>(Unit[old].Theater));
    if (made == 0) return;
    const int slot = static_cast<int>(UI.SelSlot);
    if (!Hand(x, y, 1, slot, half)) {
      DisbandUnit(made);
      continue;
    }
    Unit[made].Boss = Unit[old].Thq > 0 ? old : Unit[old].Boss;
    Unit[made].Front = f;
    Counter(made);
    AIShowChange(1);
  }
}

// A line crowded with units: formations of front f merge into partners in
// their own hexes.
void Merge(int f) {
  const long balance = AI.FrontBalance[f];
  long n = static_cast<long>(CInt(static_cast<double>(std::abs(Int(balance / 2.0)) + 1)));
  long divisor = 4;
  if (n > 4) divisor = 3;
  if (n > 6) divisor = 2;
  if (n > 10) divisor = 1;
  const double limit = static_cast<double>(EV(102)) / static_cast<double>(divisor);
  for (int x = 1; x <= MapW() && n > 0; ++x) {
    for (int y = 1; y <= MapH() && n > 0; ++y) {
      if (Hex[x][y].Owner != Game.CurRegime) continue;
      bool merged = true;
      while (merged && n > 0) {
        merged = false;
        for (int a = 1; a <= kStackSlots && !merged; ++a) {
          const long ua = Hex[x][y].Unit[a];
          if (!Mine(ua) || Unit[ua].Front != f || Unit[ua].Thq > 0 || Unit[ua].Shq > 0 || AILongRange(static_cast<int>(ua)))
            continue;
          for (int b = 1; b <= kStackSlots && !merged; ++b) {
            const long ub = Hex[x][y].Unit[b];
            if (b == a || !Mine(ub) || Unit[ub].Shq > 0 || AILongRange(static_cast<int>(ub))) continue;
            if (Unit[ub].Theater != Unit[ua].Theater) continue;
            if (!AIClassesFit(static_cast<int>(ua), static_cast<int>(ub))) continue;
            const double weight = static_cast<double>(UnitLoadWeight(static_cast<int>(ua))) +
                                  static_cast<double>(UnitLoadWeight(static_cast<int>(ub)));
            if (weight > limit) continue;
            if (!MergeWhole(x, y, a, b)) continue;
            merged = true;
            --n;
          }
        }
      }
    }
  }
}

}  // namespace

bool AIClassesFit(int a, int b) {
  for (int c = 1; c <= 4; ++c) {
    if (UnitSlotQty(a, c) > 0 && UnitSlotQty(b, c) > 0 && UnitSlotType(a, c) != UnitSlotType(b, c)) return false;
  }
  return true;
}

void AIUnitSplitMerge() {
  for (int f = 1; f <= LastFront(); ++f) {
    if (AI.FrontBalance[f] > 0 || AI.FrontStance[f] == 0) Split(f);
    if (AI.FrontBalance[f] < 0) Merge(f);
  }
  AIClearOrders();
}

void AIMergeNaval() {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      bool merged = true;
      while (merged) {
        merged = false;
        int a = 0, b = 0;
        for (int s = 1; s <= kStackSlots; ++s) {
          const long u = Hex[x][y].Unit[s];
          if (!Mine(u) || Unit[u].Theater != kSeaTheater) continue;
          if (a == 0) {
            a = s;
          } else if (b == 0) {
            b = s;
          }
        }
        if (a == 0 || b == 0) break;
        const int ua = static_cast<int>(Hex[x][y].Unit[a]);
        const int ub = static_cast<int>(Hex[x][y].Unit[b]);
        if (AILive(Unit[ua].Cargo) || !AIClassesFit(ua, ub)) break;
        merged = MergeWhole(x, y, a, b);
      }
    }
  }
  AIClearOrders();
}

}  // namespace mf
