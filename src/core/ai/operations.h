// Where the computer player fights and moves: front by front it paints the
// value field, attacks where its odds are met, lets its units flow uphill
// on the field, and ships troops across the water of its sea fronts.
#pragma once

#include <string>

namespace mf {

// The supply ratio of Game.CurRegime: what its SHQs make of supply against
// what its towns would give, at most 1. Kept in AI.SupplyRatio from one
// computer turn to the next (in memory only); a regime without towns keeps
// the old figure.
void AISupplyRatio();

// The penalty of a first step into foreign land and the odds an attack
// must beat, by the stance of a front, the first and the second time a front
// attacks in a turn; all shrink with the supply ratio R.
double AIPenalty(long stance, double R);
double AIOddsFirst(long stance, double R);
double AIOddsSecond(long stance, double R);

// All fighting and moving of Game.CurRegime's computer turn, front by front
// in number order. A landing that meets warships in port ends it early.
void AIOperations();

// The line of the analysis log that closes a front's operations:
// "AREAFRONT( f) : hexes-units=balance)".
std::string AIAreaFrontLine(int f);

}  // namespace mf
