// The turn cycle: regimes take turns.
#pragma once

#include <functional>
#include <string>

namespace mf {

// The next-turn driver: advances Game.CurRegime (and Game.Turn), shows a
// human the New Turn dialog, and does the turn-start work of the regime.
void NextTurn();
// Ends the turn of the current regime and starts the next.
void EndCurrentTurn();
// Ends a game and leaves the program on an empty map in editing mode.
void EndGameToEmptyMap();

// Menu commands of the game menu.
void EndTurnCommand();    // asks "Are you sure you want to end your turn?"
void SurrenderCommand();
void StartCommand();      // the Start Game dialog, then the first turn
// Leaves the editor and begins turn 1 with regime 1, as a game that has
// passed its start dialog does.
void BeginFirstTurn();

// One tick of the repeating timer of the main window.
void TimerTick();

// True when the End Turn command would put its question now: a game is in
// play, not in editing mode, and the driver is not running.
bool EndTurnAsks();

// Watches the turn cycle: called with the name of each routine of another
// subsystem just before the turn cycle calls it ("RunEvents", "RunNewTurnDialog",
// "HexCapture", "ServeSupply", "RecoveryPass 3,4,1", "TownOutput 3,4",
// "PoolTransport", "ClearFlood", "SightPass", "AITurn", "DropThq 12",
// "DoShowEvent 5"). Tests follow the order of a turn with it; play leaves it empty.
using TurnStepWatcher = std::function<void(const std::string& step)>;
void SetTurnStepWatcher(TurnStepWatcher watcher);

// Called at the top of the next-turn driver: a regime's turn has ended (or a
// game is about to begin) and nothing of the next turn has been done yet.
// The tests check the game's invariants here; play leaves it empty.
using TurnEndWatcher = std::function<void()>;
void SetTurnEndWatcher(TurnEndWatcher watcher);

}  // namespace mf
