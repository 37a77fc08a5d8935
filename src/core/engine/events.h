// Scenario events: the scripted happenings of a scenario, tested once a game
// turn, and the Event! dialog that shows them to the regimes they concern.
#pragma once

namespace mf {

// Tests every event in number order and applies those that pass, marking
// them with Event.FiredTurn = Game.Turn. The next-turn driver calls it at the
// first start of a game (with Game.Turn 1) and whenever Game.Turn has risen.
void RunEvents();
// Shows one fired event to the current regime in the Event! dialog; a choice
// event waits for the player's choice, a file event names the next scenario.
void DoShowEvent(int event);

}  // namespace mf
