// The supply flood: how far supply travels from a headquarters over the map,
// and by which route (overland, through an own port, or over open shore).
#pragma once

#include <vector>

#include "model/game_state.h"

namespace mf {

// Floods from the unit in UI.OrdX, UI.OrdY, UI.OrdSlot on behalf of
// Game.CurRegime. Writes Hex.Mark (cost, 999 out of reach), Hex.Wave, the
// route planes Hex.PathSea, Hex.PathLand, Hex.PathPortX, Hex.PathPortY and
// the box FloodMinX..FloodMaxY. With seaAllowed false no route takes to sea.
// In editing mode everything is reachable at cost 0.
void SupplyFlood(bool seaAllowed);

// A run of floods on behalf of Game.CurRegime over a map on which nothing
// moves and no hex changes hands between them (the turn start's floods from
// each SHQ): the ground is read once for the whole run, and each flood keeps
// its results to itself until asked.
void BeginFloodRun();
// One flood of the run from the unit in (x, y, slot): the same flood as
// SupplyFlood from there, but the hex records are left alone.
void RunFlood(int x, int y, int slot, bool seaAllowed);
// What the run's last flood found for one hex.
struct FloodHex {
  Short mark = 999;  // cost, 999 out of reach
  Short pathSea = 0, pathLand = 0, pathPortX = 0, pathPortY = 0;
};
// The run's last flood over the whole map, column by column: hex (x, y) at
// (x - 1) * H + (y - 1), with H the map's height (Game.MapH held to the
// tables).
void RunFloodResult(std::vector<FloodHex>& out);
// Writes the run's last flood into the hex records and its box, as
// SupplyFlood from there would have.
void WriteRunFlood();

// The supply a town sends its SHQ each turn before any bonus or multiplier:
// Int((Pop / 100) * (100 - Damage) / engine variable 201). 0 when the
// divider is 0.
long TownSupply(int x, int y);

}  // namespace mf
