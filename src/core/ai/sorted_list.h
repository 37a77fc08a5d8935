// The sorted list that nearly every stage of the computer player uses to
// pick the best of many candidates: hexes, units or fronts with a score.
#pragma once

#include "model/game_state.h"

namespace mf {

// Sets all entries and AI.ListCount to 0.
void ListClear();

// Inserts (a, b, score) keeping the list in falling order of score. The first
// entry is stored whatever its score; an equal score never displaces, so the
// first added stays in front; when the list is full the lowest falls away;
// and a score of 0 or less carried past the last filled entry is lost, which
// leaves a blank entry although AI.ListCount has grown.
void ListAdd(Long a, Long b, Long score);

}  // namespace mf
