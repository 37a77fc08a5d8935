// Movement: the reach of a formation, moving it, and the taking of land.
#pragma once

namespace mf {

// Turn-start spread for Game.CurRegime: neutral land next to the regime and
// enemy land that no unit of its owner holds or guards change hands, one
// ring a turn. Called by the next-turn driver before supply.
void HexCapture();

}  // namespace mf
