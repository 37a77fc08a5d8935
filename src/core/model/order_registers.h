// The player's selection and the origin of the order under way, read from
// UI's registers so that a register a script or a damaged file has put off
// the map never reaches past the tables; and whether the editor is open.
#pragma once

#include "model/game_state.h"

namespace mf {

// The editor is open: its own rules and buttons, not a player's.
inline bool Editing() { return UI.EditMode == 1; }

// The formation in a stack slot of a hex, 0 for none or bad data.
inline int UnitAt(long x, long y, long slot) {
  if (!ValidHex(static_cast<int>(x), static_cast<int>(y)) || slot < 1 || slot > kStackSlots) return 0;
  const long u = Hex[x][y].Unit[slot];
  return ValidUnit(static_cast<int>(u)) ? static_cast<int>(u) : 0;
}

// The selected formation, and the formation that gives the order under way.
inline int SelectedUnit() { return UnitAt(UI.SelX, UI.SelY, UI.SelSlot); }
inline int OriginUnit() { return UnitAt(UI.OrdX, UI.OrdY, UI.OrdSlot); }

// The selected hex lies on the map; the hex itself, or the blank hex 0,0
// when it does not.
inline bool SelectionOnMap() { return ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)); }
inline HexRec& SelectedHex() { return SelectionOnMap() ? Hex[UI.SelX][UI.SelY] : Hex[0][0]; }

}  // namespace mf
