// Checks of the invariants the rules keep for the tables. Tests run it after
// every regime turn and long computer games run it after every turn.
#pragma once

#include <string>

namespace mf {

// "" when every invariant holds; otherwise one line naming the first broken
// invariant and where: packed stacks, a unit in at most one slot, no slot for
// a free unit or for cargo, Shq.Unit and Unit.Shq agreeing, one regime per stack.
std::string CheckInvariants();

}  // namespace mf
