// Readiness, experience and recovery between turns.
#pragma once

namespace mf {

// Recovery of one formation of Game.CurRegime standing in stack slot `slot`
// of hex (x, y): readiness from its supply, experience, and new movement
// points (and the same for a formation it carries). The next-turn driver's
// one hex loop calls it for every formation of the regime, x then y, slots 1
// to 3, each hex's slots before that hex's TownOutput.
void RecoveryPass(int x, int y, int slot);

}  // namespace mf
