#include "ai/ai_turn.h"

namespace mf {

// Fights, moves and builds for a computer regime.
void AITurn() {}

}  // namespace mf
