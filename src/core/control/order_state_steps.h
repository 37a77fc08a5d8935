// What the parts of the order state machine share: the selection as the
// orders see it, and the steps every order takes at its start and its end.
// Only the order state's own files include this; the window and the scripts
// use order_state.h.
#pragma once

#include <string>

#include "control/selection.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/order_registers.h"
#include "platform/platform.h"
#include "platform/say.h"

namespace mf::order_steps {

inline void Click() {
  if (UI.SoundOff == 0) Plat().PlaySound(kClickSound);
}
inline void Sound(int slot) {
  if (UI.SoundOff == 0) Plat().PlaySound(slot);
}

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
