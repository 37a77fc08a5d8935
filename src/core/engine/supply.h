// The supply network: towns feed their SHQs, SHQs feed the formations under
// them over the map, and each formation ends the flood with its supply
// percentage for the turn.
#pragma once

namespace mf {

// Serves every SHQ of Game.CurRegime in hex and slot order: resets
// Hex.ShqDist to 999 for all SHQ numbers, floods each SHQ's reach, adds its
// towns' supply to its stock and shares the stock out over its formations.
// Called by the next-turn driver after HexCapture and before recovery.
void ServeSupply();

}  // namespace mf
