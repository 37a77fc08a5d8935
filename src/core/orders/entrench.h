// Fortifying a side of a hex.
#pragma once

namespace mf {

// A press on the neighbour in direction 1..6 of the entrenching formation's
// hex (UI.OrdX, UI.OrdY, UI.OrdSlot): that side of its hex is fortified one
// level further, paid in supply from its SHQ's stock and in MP.
void doEntrench(int direction);

}  // namespace mf
