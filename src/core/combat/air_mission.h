// Air missions: one air formation flies from its base to a target hex. On
// the way it meets every enemy fighter wing in range and the anti-aircraft
// guns around the target; then an interdiction strikes the target formation
// and a strategic bombing strikes the town. Air supply and airlifts fly the
// same gauntlet and leave the delivery to their orders.
#pragma once

#include <string>

namespace mf {

// Flies the mission of the order flag that is set (InterdictOrder,
// StratBombOrder, AirSupplyOrder or AirliftOrder). The mission unit is the
// unit in slot UI.OrdSlot of hex (UI.OrdX, UI.OrdY), or the air wing aboard
// it when that unit is a ship; the target is hex (UI.SelX, UI.SelY) and the
// formation in its slot UI.SelSlot (none for a bombing of an empty town).
// Writes the battle log, changes units and the town, and keeps the tallies,
// as a battle does. The refusals are the orders' own; this assumes a valid
// mission.
void FlyAirMission();

// The unit that flies the mission of the registers above: the origin slot's
// unit, or its air cargo. 0 for none.
int AirMissionUnit();

// The first log line of the mission under way: "Interdict", "Strategic
// Bombing", "AirSupply", "AirLift/Drop"; "" when no air order is set.
std::string AirMissionTitle();

// Anti-aircraft points that the guns in and around hex (tx, ty) bring to
// bear for the defending regimes `side` and `owner` (the target's regime and
// the hex's owner), never for Game.CurRegime: the 7 x 7 square within
// engine variable 502 of the target, without the map's bottom row.
long long AntiAirPoints(int tx, int ty, long side, long owner);

}  // namespace mf
