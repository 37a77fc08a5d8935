// What the parts of the order state machine share: the selection as the
// orders see it, and the steps every order takes at its start and its end.
// Only the order state's own files include this; the window and the scripts
// use order_state.h.
#pragma once

#include <string>

#include "control/selection.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "platform/platform.h"

namespace mf::order_steps {

inline bool Editing() { return UI.EditMode == 1; }

inline void Click() {
  if (UI.SoundOff == 0) Plat().PlaySound(kClickSound);
}
inline void Sound(int slot) {
  if (UI.SoundOff == 0) Plat().PlaySound(slot);
}
inline void Say(const std::string& text) { Plat().ShowMessage(text, ""); }

// The formation in a stack slot of a hex, 0 for none or bad data.
inline int UnitAt(long x, long y, long slot) {
  if (!ValidHex(static_cast<int>(x), static_cast<int>(y)) || slot < 1 || slot > kStackSlots) return 0;
  const long u = Hex[x][y].Unit[slot];
  return ValidUnit(static_cast<int>(u)) ? static_cast<int>(u) : 0;
}
inline int SelectedUnit() { return UnitAt(UI.SelX, UI.SelY, UI.SelSlot); }
inline int OriginUnit() { return UnitAt(UI.OrdX, UI.OrdY, UI.OrdSlot); }
inline bool SelectionOnMap() { return ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)); }
inline HexRec& SelectedHex() { return SelectionOnMap() ? Hex[UI.SelX][UI.SelY] : Hex[0][0]; }

// The buttons at the start of an order: the origin is the selection, the
// order buttons go off, and the do button takes the order's caption.
void BeginOrder(const std::string& doCaption);
// The buttons at the end of an order: buttons for the selection again, do
// off, the order line hidden, the line of a regime at rest.
void FinishOrder();

// The ends of the orders that the do button and the cancel both reach.
void EndMoveOrder();
void EndEntrenchOrder();
void EndBossOrder();

}  // namespace mf::order_steps
