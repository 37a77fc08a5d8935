// The regimes' start on a random map: a town each, as far from the others
// as twenty tries find, with its SHQ, a THQ beside it and, for a computer
// regime, one more formation.
#pragma once

#include "random/towns.h"

namespace mf {

// A place tried for a start town is refused until this many tries (counted
// over all regimes) have been made anywhere but on plains.
constexpr long kStartTownStrictTries = 5000;
// Guard against a map so crowded with towns that no place lacks a town
// beside it: from this many tries on that rule gives way too, rather than
// the search running for ever.
constexpr long kStartTownLastResortTries = 2000000;

// Places regimes 1..Game.RegimeCount in order. For each the generator is
// first reset to `seed` (so that the start towns do not vary between
// games of one setting, also for seed 0), or, when realRandom is set and
// seed > 0, seeded from the clock. False when unit or SHQ numbers ran out;
// the regimes placed before stay.
bool PlaceStartForces(int seed, bool realRandom, TownNameDraw& names);

// The start town of one regime among the towns of earlier regimes: the
// best of twenty candidates by least distance to them. `tries` counts the
// tries of all regimes. Exposed for tests.
struct StartTown {
  int x = 0;
  int y = 0;
};
StartTown ChooseStartTown(const StartTown* earlier, int earlierCount, long& tries);

}  // namespace mf
