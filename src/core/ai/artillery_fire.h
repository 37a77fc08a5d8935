// The computer's guns fire at whatever foreign stack they find first.
#pragma once

namespace mf {

// Every own land unit with long-range guns in front f's own area that has
// 2 MP left bombards, alone and without weighing the odds, the first
// occupied hex at war that its search finds: the ring of neighbours, then
// the ring around each of them, then (guns of range 3 and more) a third
// ring searched around the hex that crosses the column of the second ring
// with the row of the first, as the computer has always aimed.
void AIArtilleryFire(int f);

// The hex that a gun of range `range` on (x, y) picks; (0, 0) for none.
struct AITarget {
  int x = 0;
  int y = 0;
};
AITarget AIArtilleryTarget(int x, int y, long range);

}  // namespace mf
