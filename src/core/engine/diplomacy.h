// Diplomacy between regimes: war and peace, bought with political points.
#pragma once

namespace mf {

// Opens the Diplomatics dialog for Game.CurRegime.
void doDip();

}  // namespace mf
