// Selecting a hex and a formation of its stack with the mouse.
#pragma once

#include "model/stack.h"

namespace mf {

// Mouse buttons of a press on the map.
constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;

// Sound slot played by every press on the map.
constexpr int kClickSound = 1;

// Selects hex (x, y) as a press on it does. A press on the hex selected by
// the press before, in a stack of two or three and with no move under way,
// walks one slot further down the stack (3 wraps to 1); any other press
// selects the top of the stack (slot 1, or 0 for an empty hex). Asks for the
// hexes to be redrawn and the side panel to be rebuilt.
void SelectHex(int x, int y);

// A press on the small counter of stack slot 1..3 in the side panel: that
// formation of the selected hex becomes the selected one. False when the
// slot holds no formation.
bool SelectStackSlot(int slot);

// A press of a mouse button on the map, already turned into a hex. Presses
// off the map are ignored. Every other press plays the click (unless sound
// is switched off), selects and refreshes the order buttons; a right press
// only selects. A left press then finishes a move or an entrenchment under
// way, or paints in the editor.
void ClickMap(int x, int y, int button);

}  // namespace mf
