#include "orders/sight.h"

namespace mf {

// Lifts the fog where the regime's formations can see.
void SightPass() {}

}  // namespace mf
