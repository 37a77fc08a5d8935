// Checks of the invariants the rules keep for the tables. Tests run it after
// every regime turn and long computer games run it after every turn.
#pragma once

#include <string>

namespace mf {

// "" when every invariant holds; otherwise one line naming the first broken
// invariant and where. Hexes 1..MapW x 1..MapH are scanned, x outer, y inner,
// slots 1..3, then units 1..2000 for their SHQ numbers. The lines begin:
//   "unit number out of range: Hex[x,y].Unit[s] = n"
//   "stack not packed: Hex[x,y].Unit[s] = u while Hex[x,y].Unit[s-1] is empty"
//   "free unit in a stack: ..."      (a unit with Regime 0)
//   "cargo in a stack: ..."          (the Cargo of a living unit)
//   "unit in two stack slots: ..."
//   "mixed regimes in a stack: ..."
//   "SHQ table mismatch: ..."        (Shq[r][Unit[u].Shq].Unit is not u)
std::string CheckInvariants();

}  // namespace mf
