// The turn cycle: regimes take turns.
#pragma once

namespace mf {

// The next-turn driver: advances Game.CurRegime (and Game.Turn), shows a
// human the New Turn dialog, and does the turn-start work of the regime.
void NextTurn();
// Ends the turn of the current regime and starts the next.
void pubendturn();
// Ends a game and leaves the program on an empty map in editing mode.
void mendpublic();

// Menu commands of the game menu.
void EndTurnCommand();    // asks "Are you sure you want to end your turn?"
void SurrenderCommand();
void StartCommand();      // the Start Game dialog, then the first turn

// One tick of the repeating timer of the main window.
void TimerTick();

}  // namespace mf
