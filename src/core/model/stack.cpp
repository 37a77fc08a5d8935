#include "model/stack.h"

#include "model/game_state.h"

namespace mf {

int StackCount(int x, int y) {
  if (!ValidHex(x, y)) return 0;
  int count = 0;
  while (count < kStackSlots && Hex[x][y].Unit[count + 1] != 0) ++count;
  return count;
}

}  // namespace mf
