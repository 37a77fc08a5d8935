// Fronts: the pairs of an own area and a foreign one that touch, by land or
// across water, and how the computer player shares its units out over them.
#pragma once

namespace mf {

// Finds the fronts of Game.CurRegime, with their weights, and writes them to
// the analysis log.
void AIFindFronts();
// True when the front's foreign side is an easy target: weak against what
// stands in the own area, or nobody's land at all.
bool AIFrontSoft(int front);
// Gives every unit a front (remembered, dealt out, or the nearest), shifts
// strength to fronts that lack it, sets each front's stance and logs it all.
void AIAssignFronts();
// Gives each THQ a front whose own area has no THQ yet.
void AIMoveThqFront();

}  // namespace mf
