#include "orders/command.h"

#include <string>

#include "model/arith.h"
#include "model/counter_pic.h"
#include "model/game_state.h"
#include "model/order_registers.h"
#include "model/stack.h"
#include "orders/new_units.h"
#include "orders/order_buttons.h"
#include "platform/platform.h"
#include "platform/say.h"

namespace mf {
namespace {


// The change of command is over: the selection goes back to the formation
// that got (or did not get) its new boss, and the buttons are as at rest.
void EndBossOrder() {
  UI.Order.BossOrder = 0;
  ReturnSelectionToOrigin();
  RequestRedraw(1);
  RefreshButtons();
  Buttons.doButton.enabled = false;
  Buttons.orderLineShown = false;
  Buttons.cancel.enabled = false;
  Helper();
}


// Takes unit u out of whatever stack holds it, moving the higher slots down.
void LeaveStack(int u) {
  auto closeUp = [u](int x, int y) {
    Long* stack = Hex[x][y].Unit;
    for (int slot = 1; slot <= kStackSlots; ++slot) {
      if (stack[slot] != u) continue;
      for (int k = slot; k < kStackSlots; ++k) stack[k] = stack[k + 1];
      stack[kStackSlots] = 0;
      return true;
    }
    return false;
  };
  // The selected hex first: that is where a disbanded formation stands.
  if (ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)) &&
      closeUp(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)))
    return;
  for (int x = 1; x <= Game.MapW && x <= kMapCap; ++x)
    for (int y = 1; y <= Game.MapH && y <= kMapCap; ++y)
      if (closeUp(x, y)) return;
}

void Disband(int u, int depth) {
  if (!ValidUnit(u) || Unit[u].Regime == 0) return;
  UnitRec& un = Unit[u];
  if (un.Officer >= 1 && un.Officer <= kOfficerCap) Officer[un.Officer].InPool = 1;
  un.Officer = 0;
  LeaveStack(u);
  // The headquarters' places in the chain are freed while the unit still
  // belongs to its regime.
  if (un.Thq > 0) DropThq(u);
  if (un.Shq > 0) DropShq(u);
  // What a ship carries goes down with it.
  const int cargo = static_cast<int>(un.Cargo);
  un.Cargo = 0;
  if (depth < 2 && cargo != u) Disband(cargo, depth + 1);
  un.Regime = 0;
  un.Name.clear();
}

}  // namespace

void doNewBoss() {
  const int source = UnitAt(UI.OrdX, UI.OrdY, UI.OrdSlot);
  const int target = UnitAt(UI.SelX, UI.SelY, UI.SelSlot);
  if (source == 0 || target == 0 || target == source) {
    EndBossOrder();
    return;
  }
  // A boss is chosen among the formations on the regime's own ground.
  if (Hex[UI.SelX][UI.SelY].Owner != Unit[source].Regime) {
    EndBossOrder();
    return;
  }
  const bool fits = UI.Order.BossOrder == 1 ? Unit[target].Thq > 0 : Unit[target].Shq > 0;
  if (!fits) {
    Say("Not possible or operation canceled. Only formations can be assigned to THQs. Only THQs to SHQS.");
    return;
  }
  UnitRec& un = Unit[source];
  // Leaving one commander for another throws the staff into disorder; a
  // formation that had nobody above it is only slowed down.
  if (un.Boss > 0 && !Editing()) {
    un.Disruption += EV(544);
    if (un.Disruption > 100) un.Disruption = 100;
  }
  un.Boss = target;
  un.MP = 0;
  if (!Editing()) un.Readiness = static_cast<Long>(Int(un.Readiness * 0.8));
  Counter(source);
  // A THQ under another SHQ may wear another badge: its formations show it.
  if (un.Thq > 0) {
    for (int v = 1; v <= kUnitCap; ++v)
      if (v != source && Unit[v].Regime != 0 && Unit[v].Boss == source) Counter(v);
    RequestRedraw(2);
  }
  EndBossOrder();
}

void DisbandUnit(int u) {
  Disband(u, 0);
  UI.SelCount = StackCount(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
  if (UI.SelSlot > UI.SelCount) UI.SelSlot = UI.SelCount;
  UI.PanelDirty = true;
  RequestRedraw(1);
}

void doDisband() {
  const int u = UnitAt(UI.SelX, UI.SelY, UI.SelSlot);
  if (u == 0) return;
  if (!Plat().AskYesNo("Do you want to disband " + Unit[u].Name + "?", "")) return;
  DisbandUnit(u);
  RefreshButtons();
}

void doRename() {
  if (UI.SelSlot <= 0) return;
  const int u = UnitAt(UI.SelX, UI.SelY, UI.SelSlot);
  if (u == 0) return;
  if (!Editing() && Hex[UI.SelX][UI.SelY].Owner != Game.CurRegime) return;
  const std::string old = Unit[u].Name;
  std::string offer = old;
  for (;;) {
    std::string name = Plat().InputPrompt("Give new name for unit", "Rename", offer);
    if (Len(name) > 20) {
      Say("Max 20 characters");
      offer = Left(name, 20);
      continue;
    }
    // The old name offered back and taken as it stands changes nothing.
    if (name == old) return;
    if (name.find('"') != std::string::npos) {
      Say("Dont use a quote please.");
      offer = old;
      continue;
    }
    if (Len(name) < 3) return;
    Unit[u].Name = name;
    UI.PanelDirty = true;
    return;
  }
}

}  // namespace mf
