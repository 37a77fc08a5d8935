// What a unit is worth to the computer player: one small number per unit on
// a scale capped at 99, used by every stage that weighs strength.
#pragma once

#include "model/game_state.h"

namespace mf {

// Worth of `unit` standing on hex (x, y). kind 1 attack, 2 defence, 3 the
// mean of the two, 4 that mean scaled back up by the unit divider (engine
// variable 301). 0 for a unit without a regime or another kind.
Long AIUnitWorth(int x, int y, int unit, int kind);

}  // namespace mf
