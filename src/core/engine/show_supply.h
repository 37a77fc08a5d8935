// The "Show Supply" command of the view menu: the supply figures on the map.
#pragma once

namespace mf {

// Toggles UI.Overlay.ShowSupply. Switching it on works out, for every SHQ on
// the map in hex and slot order, what the current regime's towns within its
// reach make for it (into Unit.GenSupply of the SHQ), so that the map can
// print it; either way the whole map is redrawn.
void ShowSupplyCommand();

}  // namespace mf
