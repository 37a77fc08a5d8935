#include "orders/transport.h"

namespace mf {

int AirliftUnit = 0;
int AirliftDrop = 0;
int AirSupplyShq = 0;

// What ships and air wings do at the end of their orders comes with the
// naval and air rules; until then the orders start and can be cancelled,
// and the do button leaves them standing.
void doUnloadTown() {}
void doLoad() {}
void doLanding() {}
void doAirlift() {}
void doAirsupply() {}
void doAirMission() {}

}  // namespace mf
