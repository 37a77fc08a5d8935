// The turn cycle: regimes take turns.
#pragma once

namespace mf {

// The next-turn driver: advances Game.CurRegime (and Game.Turn), shows a
// human the New Turn dialog, and does the turn-start work of the regime.
void NextTurn();

}  // namespace mf
