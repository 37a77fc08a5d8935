#include "orders/transfer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "engine/supply_flood.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/cleared_with_tables.h"
#include "model/counter_pic.h"
#include "model/game_state.h"
#include "model/order_registers.h"
#include "model/stack.h"
#include "model/type_lookup.h"
#include "orders/flood.h"
#include "orders/order_buttons.h"
#include "orders/transport.h"
#include "platform/say.h"

namespace mf {

TransferRequestRec TransferRequest;

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { TransferRequest = TransferRequestRec{}; });
}  // namespace

namespace {


// The pool of an SHQ unit; nullptr for anything else.
ShqRec* PoolPtr(int u) {
  const long r = Unit[u].Regime;
  const long s = Unit[u].Shq;
  if (ValidRegime(static_cast<int>(r)) && s >= 1 && s <= kShqCap) return &Shq[r][s];
  return nullptr;
}
// The same for reading: an empty pool stands in for none.
const ShqRec& PoolOf(int u) {
  static const ShqRec empty;
  const ShqRec* pool = PoolPtr(u);
  return pool != nullptr ? *pool : empty;
}

// The stock slot that holds a type: the last one with it, as production
// fills them. 0 for none.
int StockSlotOf(const ShqRec& pool, long type) {
  int slot = 0;
  for (int k = 1; k <= StockWidth(); ++k)
    if (pool.StockType[k] == type) slot = k;
  return slot;
}

long Capped(long n) { return std::clamp<long>(n, 0, kTransferRowMax); }

// A divider of the rules; a zeroed rule divides by 1 rather than trapping.
double Divider(int ev) {
  const long d = EV(ev);
  return d == 0 ? 1.0 : static_cast<double>(d);
}


// Kind of a unit in the chain of command.
enum Rank { kFormation, kThqRank, kShqRank };
Rank RankOf(int u) { return Unit[u].Shq > 0 ? kShqRank : Unit[u].Thq > 0 ? kThqRank : kFormation; }
long BossOf(long u) { return ValidUnit(static_cast<int>(u)) ? Unit[u].Boss : 0; }

// The refusal of the chain of command between source s and destination d,
// "" when the transfer may go ahead.
std::string ChainRefusal(int s, int d) {
  const Rank rs = RankOf(s), rd = RankOf(d);
  const long bs = BossOf(s), bd = BossOf(d);
  if (rs == kFormation) {
    if (rd == kFormation) return bs != 0 && bs == bd ? "" : "Not a formation under same THQ";
    if (rd == kThqRank) return bs == d ? "" : "Not the THQ of this formation";
    return bs != 0 && BossOf(bs) == d ? "" : "Not the SHQ of the units formations THQ";
  }
  if (rs == kThqRank) {
    if (rd == kFormation) return bd == s ? "" : "Not a formation under this THQ";
    if (rd == kThqRank) return bs != 0 && bs == bd ? "" : "Not a THQ under the same SHQ";
    return bs == d ? "" : "Not this THQs SHQ";
  }
  if (rd == kFormation) return bd != 0 && BossOf(bd) == s ? "" : "This formation is not in Chain of Command of the SHQ.";
  if (rd == kThqRank) return bd == s ? "" : "This THQ is not assigned to this SHQ.";
  return "";
}

}  // namespace

const char* TransferDialog::RowWord(int cls) {
  static const char* const kWords[5] = {"", "Infantry", "Mobile", "Artillery", "Armour"};
  return cls >= 1 && cls <= 4 ? kWords[cls] : "";
}

void TransferDialog::Prepare(bool aiMode) {
  AIMode = aiMode;
  source = UnitAt(UI.OrdX, UI.OrdY, UI.OrdSlot);
  dest = UnitAt(UI.SelX, UI.SelY, UI.SelSlot);
  for (auto& row : rows) row = TransferRow{};
  supplyChosen = supplyAvailable = 0;
  stockRows.clear();
  stockTypeOfRow.clear();
  stockRow = -1;
  MessageText.clear();
  transferDone = false;
  open = source != 0 && dest != 0;
  if (!open) return;

  sourceShq = Unit[source].Shq > 0;
  destShq = Unit[dest].Shq > 0;
  distance = Hex[UI.SelX][UI.SelY].Mark;

  if (sourceShq) {
    const ShqRec& pool = PoolOf(source);
    listShown = true;
    for (int k = 1; k <= StockWidth(); ++k) {
      const long t = pool.StockType[k];
      if (!ValidType(static_cast<int>(t)) || pool.StockQty[k] <= 0) continue;
      // Into a formation go only pieces of its own element.
      if (!destShq && Type[t].Theater != Unit[dest].Theater) continue;
      stockRows.push_back(NumText(pool.StockQty[k]) + "x " + Type[t].Name);
      stockTypeOfRow.push_back(static_cast<int>(t));
    }
    LandCap = pool.Carry;
    SeaCap = pool.CarrySea;
    if (!destShq) {
      // Each class the destination holds is topped up with its own type.
      for (int c = 1; c <= 4; ++c) {
        if (UnitSlotQty(dest, c) <= 0) continue;
        const long t = UnitSlotType(dest, c);
        const int slot = StockSlotOf(pool, t);
        rows[c].type = t;
        rows[c].available = slot > 0 ? Capped(pool.StockQty[slot]) : 0;
      }
    }
  } else {
    listShown = false;
    for (int c = 1; c <= 4; ++c) {
      rows[c].type = UnitSlotType(source, c);
      rows[c].available = Capped(UnitSlotQty(source, c));
    }
    // A formation carries on its own trucks, and only while they can still move.
    const UnitRec& s = Unit[source];
    LandCap = s.MobQty > 0 && s.MP > 0 ? AttrOf(s.MobType, kCarryCap) * s.MobQty : 0;
    SeaCap = 0;
  }
  supplyShown = sourceShq && destShq;
  if (supplyShown) supplyAvailable = std::max<Long>(Unit[source].SupplyPct, 0);
  if (AIMode) FromRequest();
  Refresh();
}

void TransferDialog::FromRequest() {
  for (int c = 1; c <= 4; ++c) {
    const long t = TransferRequest.Type[c];
    const long q = TransferRequest.Qty[c];
    if (q <= 0 || !ValidType(static_cast<int>(t))) continue;
    long available = 0;
    if (sourceShq) {
      const ShqRec& pool = PoolOf(source);
      const int slot = StockSlotOf(pool, t);
      available = slot > 0 ? Capped(pool.StockQty[slot]) : 0;
    } else if (UnitSlotType(source, c) == t) {
      available = Capped(UnitSlotQty(source, c));
    }
    rows[c].type = t;
    rows[c].available = available;
    rows[c].chosen = static_cast<Long>(std::min(q, available));
  }
  if (supplyShown) supplyChosen = std::clamp<Long>(TransferRequest.Supply, 0, supplyAvailable);
}

void TransferDialog::Refresh() {
  for (int c = 1; c <= 4; ++c) rowText[c] = rows[c].type != 0 ? TypeOf(rows[c].type).Name : "";
  WorkOutCost();
  FillLabels();
}

void TransferDialog::WorkOutCost() {
  if (source == 0 || dest == 0 || !ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY))) return;
  double w1 = 0, w2 = 0, x = 0, pieces = 0;
  int landRows = 0, seaRows = 0, airRows = 0;
  for (int c = 1; c <= 4; ++c) {
    const TransferRow& row = rows[c];
    if (row.type == 0 || row.chosen <= 0) continue;
    const double w = static_cast<double>(AttrOf(row.type, kWeight)) * row.chosen;
    // Trucks and tanks drive themselves over land; only foot and guns ride.
    if (c == 1 || c == 3) w1 += w;
    w2 += w;
    pieces += w;
    const long theater = TypeOf(row.type).Theater;
    if (theater == kSeaTheater) {
      ++seaRows;
      x += w;
    } else if (theater == kAirTheater) {
      ++airRows;
      x += w;
    } else {
      ++landRows;
    }
  }
  const double q = supplyShown ? static_cast<double>(supplyChosen) : 0.0;
  w1 += static_cast<double>(EV(28)) * q;
  w2 += static_cast<double>(EV(28)) * q;
  if (q > 0) ++landRows;
  const double t = destShq ? 0.0 : static_cast<double>(UnitLoadWeight(dest)) + pieces;

  const HexRec& h = Hex[UI.SelX][UI.SelY];
  const double m = h.Mark, l = h.PathLand, a = h.PathSea;
  const long p = h.PathPortX;

  double land = 0, sea = 0;
  MessageText.clear();
  if (h.Mark == 999) {
    land = sea = kTransferImpossible;
    MessageText = "Hex you want to transfer to is out of reach.";
  } else if (landRows == 0 && seaRows + airRows > 0) {
    land = sea = 0;
  } else if (a > 0) {
    // The land behind the landing is paid at its own rate, by both.
    const double e = m - l - a;
    land = static_cast<double>(Int(w2 * l / Divider(601))) + w2 * e / Divider(603);
    sea = static_cast<double>(Int(w2 * a / Divider(602))) + w2 * e / Divider(603);
    if (p == -1) {
      MessageText = "Hex is overseas and is not connected to a reachable port.";
      land = sea = kTransferImpossible;
    }
  } else {
    land = static_cast<double>(Int(w1 * l / Divider(601)));
  }
  // On the quay of the landing no land transport is needed.
  if (h.Mark == a + 1 && a > 0) land = 0;
  if (UI.OrdX == UI.SelX && UI.OrdY == UI.SelY) land = sea = 0;
  // Warships and aircraft carry themselves.
  if (!sourceShq && h.Mark != 999 && seaRows + airRows > 0) {
    land = std::max(land - x, 0.0);
    sea = std::max(sea - x, 0.0);
  }
  if (!destShq && t > static_cast<double>(EV(102))) {
    land = sea = kTransferImpossible;
    MessageText = "The destination unit has reached its maximum weight.";
  }
  // A little transport is still transport.
  if (land > 0 && land < 1) land = 1;
  if (sea > 0 && sea < 1) sea = 1;
  LandCost = static_cast<long>(std::trunc(land));
  SeaCost = static_cast<long>(std::trunc(sea));
}

void TransferDialog::FillLabels() {
  landCapText = NumText(LandCap);
  seaCapText = NumText(SeaCap);
  const bool tooMuch = LandCost > LandCap || SeaCost > SeaCap;
  if (tooMuch) {
    landCostText = kNotAvailable;
    seaCostText = kNotAvailable;
    // A reason already given (out of reach, overseas, too heavy) stays.
    if (MessageText.empty()) MessageText = kTooMuch;
  } else {
    landCostText = NumText(LandCost);
    seaCostText = NumText(SeaCost);
  }
}

void TransferDialog::MixIncomingFigures() {
  UnitRec& s = Unit[source];
  UnitRec& d = Unit[dest];
  if (destShq) {
    d.Experience = 25;
    d.Readiness = 25;
    return;
  }
  // Weighed by what the pieces cost; trucks bring no state of their own.
  double g = 0, h = 0;
  for (int c : {1, 3, 4}) {
    const double cost = static_cast<double>(TypeOf(rows[c].type).Cost);
    g += cost * rows[c].chosen;
    h += cost * static_cast<double>(UnitSlotQty(dest, c));
  }
  const double gh = g + h;
  auto mix = [&](double from, double into) { return static_cast<Long>(Int((g * from + h * into) / gh)); };
  s.Experience = std::max<Long>(s.Experience, 25);
  d.Experience = std::max<Long>(d.Experience, 25);
  if (gh > 0) d.Experience = std::max<Long>(mix(s.Experience, d.Experience), 25);
  if (gh > 0 && s.Disruption > d.Disruption) d.Disruption = mix(s.Disruption, d.Disruption);
  s.Readiness = std::max<Long>(s.Readiness, 25);
  d.Readiness = std::max<Long>(d.Readiness, 25);
  if (gh > 0) d.Readiness = std::max<Long>(mix(s.Readiness, d.Readiness), 25);
}

void TransferDialog::CarryOut() {
  if (!AIMode && UI.SoundOff == 0) Plat().PlaySound(kTransferSound);
  MixIncomingFigures();
  UnitRec& s = Unit[source];
  UnitRec& d = Unit[dest];
  if (sourceShq) {
    if (ShqRec* pool = PoolPtr(source)) {
      pool->Carry = static_cast<Long>(pool->Carry - LandCost);
      pool->CarrySea = static_cast<Long>(pool->CarrySea - SeaCost);
    }
    d.MP = 0;
  } else {
    // Whoever transports or receives is busy for the rest of the turn.
    if (LandCost > 0) s.MP = 0;
    if (!destShq) d.MP = 0;
  }

  bool moved[5] = {};
  if (destShq) {
    d.SupplyPct += supplyChosen;
    s.SupplyPct -= supplyChosen;
    ShqRec* into = PoolPtr(dest);
    for (int c = 1; c <= 4 && into != nullptr; ++c) {
      const TransferRow& row = rows[c];
      if (row.type == 0 || row.chosen <= 0) continue;
      int slot = StockSlotOf(*into, row.type);
      for (int k = 1; k <= StockWidth() && slot == 0; ++k)
        if (into->StockType[k] == 0) slot = k;
      // A pool with every slot taken by other types cannot take these.
      if (slot == 0) continue;
      into->StockType[slot] = row.type;
      into->StockQty[slot] = AddSat(into->StockQty[slot], row.chosen);
      moved[c] = true;
    }
  } else {
    for (int c = 1; c <= 4; ++c) {
      const TransferRow& row = rows[c];
      if (row.type == 0 || row.chosen <= 0) continue;
      UnitSlotType(dest, c) = row.type;
      UnitSlotQty(dest, c) += row.chosen;
      moved[c] = true;
    }
  }

  for (int c = 1; c <= 4; ++c) {
    if (!moved[c]) continue;
    if (sourceShq) {
      ShqRec* pool = PoolPtr(source);
      const int slot = pool != nullptr ? StockSlotOf(*pool, rows[c].type) : 0;
      if (slot > 0) pool->StockQty[slot] = std::max<Long>(pool->StockQty[slot] - rows[c].chosen, 0);
    } else {
      UnitSlotQty(source, c) = std::max<Long>(UnitSlotQty(source, c) - rows[c].chosen, 0);
    }
  }

  // What is left of the source moves no faster than its slowest troops.
  if (!sourceShq) {
    long slowest = -1;
    for (int c : {1, 2, 4}) {
      if (UnitSlotQty(source, c) <= 0) continue;
      const long cap = AttrOf(UnitSlotType(source, c), kMovementCap);
      if (slowest < 0 || cap < slowest) slowest = cap;
    }
    if (slowest >= 0 && slowest < s.MP) s.MP = static_cast<Long>(slowest);
  }

  transferDone = true;
  open = false;
  if (!AIMode || Game.ShowAIMoves != kFalse) {
    Counter(source);
    Counter(dest);
    EndTransferOrder();
  }
}

bool TransferDialog::SelectStock(int row, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (!listShown || row < 0 || row >= static_cast<int>(stockRows.size())) {
    *why = "no such row in the stock list";
    return false;
  }
  stockRow = row;
  return true;
}

bool TransferDialog::Add(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (stockRow < 0) {
    *why = "no stock type is selected";
    return false;
  }
  const int t = stockTypeOfRow[stockRow];
  const int c = static_cast<int>(Type[t].Class);
  if (c < 1 || c > 4) {
    *why = "type " + NumText(t) + " has no class row";
    return false;
  }
  // A formation holds one type per class.
  if (!destShq && rows[c].type != 0 && rows[c].type != t) {
    *why = std::string("the ") + RowWord(c) + " row holds another type";
    return false;
  }
  const ShqRec& pool = PoolOf(source);
  const int slot = StockSlotOf(pool, t);
  rows[c].type = t;
  rows[c].chosen = 0;
  rows[c].available = slot > 0 ? Capped(pool.StockQty[slot]) : 0;
  Refresh();
  return true;
}

bool TransferDialog::SetChosen(int cls, long n, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (cls < 1 || cls > 4 || rows[cls].type == 0) {
    *why = std::string("the ") + RowWord(cls) + " row is empty";
    return false;
  }
  if (n < 0 || n > rows[cls].available) {
    *why = std::string("the ") + RowWord(cls) + " slider goes from 0 to " + NumText(rows[cls].available);
    return false;
  }
  rows[cls].chosen = static_cast<Long>(n);
  Refresh();
  return true;
}

bool TransferDialog::SetSupply(long n, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (!supplyShown) {
    *why = "supply goes only from an SHQ to an SHQ";
    return false;
  }
  if (n < 0 || n > supplyAvailable) {
    *why = "the supply slider goes from 0 to " + NumText(supplyAvailable);
    return false;
  }
  supplyChosen = static_cast<Long>(n);
  Refresh();
  return true;
}

bool TransferDialog::Transfer(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  // Beyond the capacity the button does nothing; the labels say why.
  if (!AIMode && (LandCost > LandCap || SeaCost > SeaCap)) return true;
  CarryOut();
  return true;
}

bool TransferDialog::Cancel(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  for (auto& row : rows) row = TransferRow{};
  supplyChosen = 0;
  open = false;
  EndTransferOrder();
  return true;
}

bool TransferDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  static const char* const kRows[5] = {"", "inf", "mob", "art", "arm"};
  for (int c = 1; c <= 4; ++c)
    if (action == kRows[c]) return SetChosen(c, ValLong(value), why);
  if (action == "supply") return SetSupply(ValLong(value), why);
  if (action == "add") {
    const long t = ValLong(value);
    for (std::size_t row = 0; row < stockTypeOfRow.size(); ++row) {
      if (stockTypeOfRow[row] != t) continue;
      if (!SelectStock(static_cast<int>(row), why)) return false;
      return Add(why);
    }
    *why = "type " + value + " is not in the stock list";
    return false;
  }
  if (action == "transfer") return Transfer(why);
  if (action == "cancel") return Cancel(why);
  *why = "no action \"" + action + "\" in the Transfer dialog (add=T, inf=N, mob=N, art=N, arm=N, supply=N, "
         "transfer, cancel)";
  return false;
}

bool RunTransfer(bool aiMode) {
  TransferDialog dialog;
  dialog.Prepare(aiMode);
  if (!dialog.open) return false;
  if (aiMode) {
    dialog.CarryOut();
  } else {
    Plat().RunDialog(dialog);
    // Closed by its frame: as Cancel.
    if (dialog.open) {
      std::string why;
      dialog.Cancel(&why);
    }
  }
  return dialog.transferDone;
}

void TransferBetween() {
  const int s = UnitAt(UI.OrdX, UI.OrdY, UI.OrdSlot);
  const int d = UnitAt(UI.SelX, UI.SelY, UI.SelSlot);
  if (s == 0 || d == 0 || s == d) {
    EndTransferOrder();
    return;
  }
  const std::string refusal = RankOf(s) == kShqRank && RankOf(d) == kShqRank ? "" : ChainRefusal(s, d);
  if (!refusal.empty()) {
    Say(refusal);
    EndTransferOrder();
    return;
  }
  // Troops change element only through an SHQ's pool.
  if (Unit[s].Shq <= 0 && Unit[d].Theater != Unit[s].Theater) return;
  SupplyFlood(true);
  RunTransfer(false);
}

void EndTransferOrder() {
  UI.Order.TransferOrder = 0;
  ClearFlood();
  ReturnSelectionToOrigin();
  RequestRedraw(2);
  RefreshButtons();
  Helper();
}

}  // namespace mf
