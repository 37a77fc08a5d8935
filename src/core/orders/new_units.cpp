#include "orders/new_units.h"

namespace mf {

// Leaves the THQ's formations without a tactical commander.
void DropThq(int) {}

}  // namespace mf
