// The order state machine of the main map window: one order under way at a
// time, started by a button, finished by a press on the map or the do
// button, or ended by the cancel button and Esc.
#pragma once

namespace mf {

// Ends the order under way without effect and puts the selection back where
// the order started. Bound to the "CANCEL ORDER" button and to Esc.
void DoCancel();

}  // namespace mf
