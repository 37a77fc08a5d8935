// Whole games in which the computer plays every regime: what the headless
// `play` and `balance` commands, the long all-computer soak and the speed
// measurements run. The game goes through the very same driver and timer as
// in the window; nothing here decides anything for a regime.
#pragma once

#include <string>

#include "model/game_state.h"

namespace mf {

// Makes every regime of the loaded game computer-run, with fog of war and
// fog of exploration off and no play by mail or passwords. A game not yet
// started starts at its first regime turn when the first regime turn is
// played. False, with the game's own words, when the scenario forbids the
// computer (engine variable 701).
bool StartComputerGame(std::string* why);

// Plays the next regime turn: the first turn of a game not yet started, or,
// through the window's timer, the turn after the one just finished. A
// regime that an event has handed back to a person is taken over by the
// computer again. False when no game is in play any more (an event ended it).
bool PlayComputerRegimeTurn();

// True when the regime turn just played was the last of its round.
bool RoundComplete();

// What a regime holds: towns (owned hexes with population), formations (its
// units that are no headquarters) and political points.
struct RegimeHoldings {
  Long towns = 0;
  Long formations = 0;
  Long pp = 0;
};
RegimeHoldings HoldingsOf(int regime);

// "Turn 3 | Red: towns 4, formations 6, pp 23 | Blue: towns 2, ...": one
// line for the round just played.
std::string RoundLine();

}  // namespace mf
