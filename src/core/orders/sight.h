// Sight and fog: what the current regime sees now and has ever explored.
#pragma once

namespace mf {

// Works out Hex.Vis and Hex.Seen for Game.CurRegime from the recon of its
// formations, under the game's fog of war and fog of exploration.
void SightPass();

}  // namespace mf
