#include "engine/turn_cycle.h"

namespace mf {

// The turn engine fills these in; until then a resumed game stays where the
// file left it and the game menu does nothing.
void NextTurn() {}
void pubendturn() {}
void mendpublic() {}
void EndTurnCommand() {}
void SurrenderCommand() {}
void StartCommand() {}
void TimerTick() {}

}  // namespace mf
