// Research fields bought with political points.
#pragma once

namespace mf {

// Opens the Research dialog for Game.CurRegime.
void doRes();

}  // namespace mf
