// Scenario events: the scripted happenings of a scenario, tested once a game
// turn, and the Event! dialog that shows them to the regimes they concern.
#pragma once

namespace mf {

// The effects an event can have, by Event.Type.
enum EventType : int {
  kEventStory = 0,       // the story alone
  kEventMakeUnit = 1,    // a formation appears on the map
  kEventPoints = 2,      // a regime's political points change
  kEventBookVars = 3,    // book variables rise or are set
  kEventChoice = 4,      // a regime chooses between up to five answers
  kEventLoadFile = 5,    // the campaign goes on with another file (or "end")
  kEventDiplomacy = 6,   // a pair of regimes turns to war or peace
  kEventGameWinner = 7,  // the game has a winner
};

// Event pictures are sprites from here on: picture n is 2000 + n.
constexpr int kEventSpriteBase = 2000;

// Tests every event in number order and applies those that pass, marking
// them with Event.FiredTurn = Game.Turn. The next-turn driver calls it at the
// first start of a game (with Game.Turn 1) and whenever Game.Turn has risen.
// An event with a story of one character or less does not exist. A
// formation that finds no place leaves its event unfired, to be tried again
// at the next game turn.
void RunEvents();

// The choice `choice` (1..5; 0 counts as 1) of choice event `event`: the
// book variables of that choice rise by the amounts the event gives for it.
void ApplyChoice(int event, int choice);

// Shows one fired event to the current regime in the Event! dialog; a choice
// event waits for the player's choice, a file event names the next scenario
// in UI.PendingFile.
void DoShowEvent(int event);

}  // namespace mf
