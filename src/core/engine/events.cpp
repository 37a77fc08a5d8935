#include "engine/events.h"

namespace mf {

// Fires the scenario's events whose conditions hold this game turn.
void RunEvents() {}
// Shows the story of a fired event and takes the player's choice.
void DoShowEvent(int) {}

}  // namespace mf
