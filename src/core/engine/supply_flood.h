// The supply flood: how far supply travels from a headquarters over the map,
// and by which route (overland, through an own port, or over open shore).
#pragma once

namespace mf {

// Floods from the unit in UI.OrdX, UI.OrdY, UI.OrdSlot on behalf of
// Game.CurRegime. Writes Hex.Mark (cost, 999 out of reach), Hex.Wave, the
// route planes Hex.PathSea, Hex.PathLand, Hex.PathPortX, Hex.PathPortY and
// the box FloodMinX..FloodMaxY. With seaAllowed false no route takes to sea.
// In editing mode everything is reachable at cost 0.
void SupplyFlood(bool seaAllowed);

// The supply a town sends its SHQ each turn before any bonus or multiplier:
// Int((Pop / 100) * (100 - Damage) / engine variable 201). 0 when the
// divider is 0.
long TownSupply(int x, int y);

}  // namespace mf
