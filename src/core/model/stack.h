// The stack of formations in a hex.
#pragma once

namespace mf {

// Formations standing in hex (x, y): the stack slots in use, 0..3. Slots are
// packed, so this also is the number of the last slot in use.
int StackCount(int x, int y);

}  // namespace mf
