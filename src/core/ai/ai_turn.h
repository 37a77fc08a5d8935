// The computer player's turn.
#pragma once

namespace mf {

// Plays the whole turn of Game.CurRegime as the computer: analysis of areas
// and fronts, fighting and moving front by front, then its economy. Called by
// the next-turn driver after the regime's turn-start work.
void AITurn();

}  // namespace mf
