// What the chain of command adds to a formation in battle: the leadership of
// its officers, the disruption of its chain, and how long it stands before
// it breaks off or retreats.
#pragma once

namespace mf {

// Leadership factor L, 1 or more. Own officer, THQ and SHQ each make a level
// of 1 + rating / 10 + sqrt(fame) / 5 (rating by the unit's theater); the
// levels are weighted 3 : 2 : 1 and half of what they add above 1 counts.
double Leadership(int unit);

// Disruption factor D, 1 for an undisturbed chain: 1 - x / 100 with x the
// weighted disruption of the unit, its boss and its boss's boss.
double DisruptionFactor(int unit);

// The retreat figure of the officers over a unit, a percentage: an SHQ has
// its own officer's, others a 3 : 2 : 1 weighting of own officer, THQ and
// SHQ, where a level without an officer takes a neighbour's and 50 is the
// figure of nobody at all.
int OfficerRetreatLevel(int unit);

}  // namespace mf
