// What the computer player buys and builds: research, the best type of each
// theater and class, what each SHQ wants for its fronts and what its towns
// make of it.
#pragma once

#include "model/game_state.h"

namespace mf {

// Towns with population that nobody holds yet: while there are any, the
// computer buys no research and keeps building.
int AICountTowns();

// Buys, on four turns in five, every research field on offer that it can pay
// with ten points to spare, in field order, whatever the field needs first.
// Nothing while neutral towns remain.
void AIResearch();

// AI.BestType: the strongest type the regime may build in each theater and
// class, by the sum of its fighting figures (land artillery counting its
// range a thousandfold); the first of equals. 0 where there is none. Logs
// each cell.
void AIBestType();

// How a front across the water should be fought: 0 build transports, 1 build
// many (no lift at all yet and an easy target), 2 build the troops to ship,
// 3 a few more transports.
int AISeaPlan(int front);

// When the regime's land troops weigh no more than three times what its
// transports can lift, the wish for transports goes to troops and aircraft.
void AISeaLift();

// Per SHQ: the wants of its fronts, the shares of the types, and new orders
// for its towns. Ends for the whole turn at the first SHQ that wants nothing.
// Nothing without fronts.
void AIProduction();

}  // namespace mf
