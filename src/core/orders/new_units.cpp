#include "orders/new_units.h"

namespace mf {

// Leaves the THQ's formations without a tactical commander.
void DropThq(int) {}

// Raising units, changing bosses, disbanding and fortifying come with the
// rules of the chain of command; until then the buttons reach these and
// nothing changes.
void NewCommand() {}
void doNewBoss() {}
void doDisband() {}
void doEntrench(int) {}

}  // namespace mf
