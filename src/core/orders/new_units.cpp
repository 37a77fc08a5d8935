#include "orders/new_units.h"

#include "engine/officers.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/counter_pic.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/order_registers.h"
#include "model/stack.h"
#include "orders/order_buttons.h"

namespace mf {
namespace {


// Price in political points of each kind of unit.
long CostOf(int kind) {
  switch (kind) {
    case NewUnitDialog::kNavy: return EV(612);
    case NewUnitDialog::kAir: return EV(613);
    case NewUnitDialog::kThq: return EV(614);
    case NewUnitDialog::kShq: return EV(615);
    default: return EV(611);
  }
}


// The headquarters' name: offered, and with askName put to the player. A
// name shorter than 2 characters is no name and "" comes back; a longer
// one than 16 is cut.
std::string HqName(bool askName, const std::string& question, const std::string& offer) {
  std::string name = askName ? Plat().InputPrompt(question, "", offer) : offer;
  if (Len(name) < 2) return "";
  if (Len(name) > 16) name = Left(name, 16);
  return name;
}

// The free stack slot of the place, 0 when slot 3 is taken.
int FreeSlot() {
  if (!SelectionOnMap()) return 0;
  const int slot = StackCount(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)) + 1;
  return slot <= kStackSlots ? slot : 0;
}

// Stands new unit u, already set up, in the slot and gives it its officer,
// counter and price; the selection moves to it.
void Commission(int u, int slot, int kind) {
  Hex[UI.SelX][UI.SelY].Unit[slot] = u;
  MakeOfficer(u);
  Counter(u);
  if (!Editing()) Regime[Unit[u].Regime].PP = AddSat(Regime[Unit[u].Regime].PP, -static_cast<std::int64_t>(CostOf(kind)));
  UI.SelCount = StackCount(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
  UI.SelSlot = slot;
  UI.PanelDirty = true;
  RequestRedraw(1);
}

// A fresh unit record of the current regime, as every new unit starts.
void Fresh(int u, const std::string& name) {
  Unit[u] = UnitRec{};  // the number may have served a disbanded unit
  UnitRec& un = Unit[u];
  un.Name = name;
  un.Regime = Game.CurRegime;
  un.Theater = kLandTheater;
  un.MP = 0;
  un.Readiness = 50;
  un.Experience = 25;
  un.SupplyPct = 0;
  // Setting up a new staff leaves a unit in some disorder.
  un.Disruption = Editing() ? 0 : static_cast<Long>(EV(545));
}

}  // namespace

std::string Ordinal(long n) {
  if (n == 1) return "1st";
  if (n == 2) return "2nd";
  return NumText(n) + "th";
}

int NewFormation(int theater) {
  const int r = CurrentRegime();
  if (r == 0 || !SelectionOnMap()) return 0;
  const int u = NewUnitNumber();
  if (u == 0) return 0;
  const int slot = FreeSlot();
  if (slot == 0) return 0;
  if (theater != kSeaTheater && theater != kAirTheater) theater = kLandTheater;
  Regime[r].UnitSerial += 1;
  Fresh(u, Ordinal(Regime[r].UnitSerial) + " " + Regime[r].FormationName);
  Unit[u].Theater = theater;
  const int kind = theater == kSeaTheater ? NewUnitDialog::kNavy
                   : theater == kAirTheater ? NewUnitDialog::kAir
                                            : NewUnitDialog::kLand;
  Commission(u, slot, kind);
  return u;
}

int NewThq(bool askName) {
  const int r = CurrentRegime();
  if (r == 0 || !SelectionOnMap()) return 0;
  const int u = NewUnitNumber();
  if (u == 0) return 0;
  const int slot = FreeSlot();
  if (slot == 0) return 0;
  // The serial counts only a THQ that is made.
  const std::string name =
      HqName(askName, "Give a name to the new Tactical HQ.", "THQ " + Ordinal(Regime[r].UnitSerial + 1));
  if (name.empty()) return 0;
  Regime[r].UnitSerial += 1;
  Fresh(u, name);
  Unit[u].Thq = 1;
  Unit[u].Shq = 0;
  Commission(u, slot, NewUnitDialog::kThq);
  return u;
}

int NewShq(bool askName) {
  const int r = CurrentRegime();
  if (r == 0 || !SelectionOnMap()) return 0;
  const int u = NewUnitNumber();
  if (u == 0) return 0;
  const int number = NewShqNumber();
  if (number == 0) return 0;
  const int slot = FreeSlot();
  if (slot == 0) return 0;
  const std::string name = HqName(askName, "Give a name to the new Strategic HQ.", "SHQ " + Ordinal(number));
  if (name.empty()) return 0;
  Fresh(u, name);
  UnitRec& un = Unit[u];
  un.Shq = number;
  un.Readiness = 0;
  un.Experience = 0;
  Shq[r][number].Unit = u;
  Commission(u, slot, NewUnitDialog::kShq);
  return u;
}

void DropThq(int unit) {
  if (!ValidUnit(unit)) return;
  const long r = Unit[unit].Regime;
  if (ValidRegime(static_cast<int>(r))) {
    for (int b = 1; b <= kBadgeCap; ++b)
      if (Regime[r].ThqBadgeUnit[b] == unit) Regime[r].ThqBadgeUnit[b] = 0;
  }
  Unit[unit].ThqBadge = 0;
  for (int v = 1; v <= kUnitCap; ++v) {
    if (v == unit || Unit[v].Regime == 0 || Unit[v].Boss != unit) continue;
    Unit[v].Boss = 0;
    Unit[v].ThqBadge = 0;
    Counter(v);
  }
  RequestRedraw(2);
}

void DropShq(int unit) {
  if (!ValidUnit(unit)) return;
  for (int v = 1; v <= kUnitCap; ++v) {
    if (v == unit || Unit[v].Regime == 0 || Unit[v].Boss != unit) continue;
    Unit[v].Boss = 0;
    Counter(v);
  }
  const long r = Unit[unit].Regime;
  const long s = Unit[unit].Shq;
  if (ValidRegime(static_cast<int>(r)) && s >= 1 && s <= kShqCap && Shq[r][s].Unit == unit) Shq[r][s].Unit = 0;
  RequestRedraw(2);
}

// ---- The New Unit dialog ----------------------------------------------------

void NewUnitDialog::Prepare() {
  static const char* const kWords[kKinds] = {"Land Formation = ", "Navy Fleet = ", "Air Wing = ", "THQ = ", "SHQ = "};
  const int r = CurrentRegime();
  const bool place = SelectionOnMap();
  const HexRec& h = place ? Hex[UI.SelX][UI.SelY] : Hex[0][0];
  bool sea = false;
  if (place) {
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY), d);
      if (n.x >= 1 && n.y >= 1 && Hex[n.x][n.y].Land == kSea) sea = true;
    }
  }
  // A full hex takes nobody, and a unit needs a regime to serve.
  const bool room = r != 0 && place && h.Unit[kStackSlots] == 0;
  for (int k = 0; k < kKinds; ++k) {
    caption[k] = kWords[k] + NumText(CostOf(k)) + "pp";
    enabled[k] = room && (Editing() || Regime[r].PP >= CostOf(k));
  }
  // A fleet is launched from a port, an air wing needs open ground or a town.
  if (!(h.Land == kUrban && sea)) enabled[kNavy] = false;
  if (!(h.Land == kGrass || h.Land == kUrban)) enabled[kAir] = false;
  made = 0;
  open = true;
}

bool NewUnitDialog::Make(int kind, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (kind < 0 || kind >= kKinds || !enabled[kind]) {
    *why = "the button \"" + (kind >= 0 && kind < kKinds ? caption[kind] : std::string("?")) + "\" is disabled";
    return false;
  }
  switch (kind) {
    case kLand: made = NewFormation(kLandTheater); break;
    case kNavy: made = NewFormation(kSeaTheater); break;
    case kAir: made = NewFormation(kAirTheater); break;
    case kThq: made = NewThq(true); break;
    case kShq: made = NewShq(true); break;
    default: break;
  }
  open = false;
  return true;
}

bool NewUnitDialog::Cancel(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  open = false;
  return true;
}

bool NewUnitDialog::Act(const std::string& action, const std::string&, std::string* why) {
  if (action == "land") return Make(kLand, why);
  if (action == "navy") return Make(kNavy, why);
  if (action == "air") return Make(kAir, why);
  if (action == "thq") return Make(kThq, why);
  if (action == "shq") return Make(kShq, why);
  if (action == "cancel") return Cancel(why);
  *why = "no action \"" + action + "\" in the New Unit dialog (land, navy, air, thq, shq, cancel)";
  return false;
}

void NewCommand() {
  if (!SelectionOnMap()) return;
  // In the editor the unit is the hex owner's, and free.
  const Long saved = Game.CurRegime;
  if (Editing()) Game.CurRegime = Hex[UI.SelX][UI.SelY].Owner;
  NewUnitDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  if (Editing()) Game.CurRegime = saved;
  UI.PanelDirty = true;
  RequestRedraw(1);
  RefreshButtons();
}

}  // namespace mf
