#include "engine/production.h"

namespace mf {

// Adds the town's political points or unit-type production for this turn.
void TownOutput(int, int) {}
// Works out how much the SHQ pools can carry over land and by sea.
void PoolTransport() {}

// The Urban Production dialog chooses what a town makes and for which SHQ.
void UrbanProduction() {}

}  // namespace mf
