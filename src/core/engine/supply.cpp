#include "engine/supply.h"

namespace mf {

// Gives the regime's formations their supply percentage for this turn.
void ServeSupply() {}

}  // namespace mf
