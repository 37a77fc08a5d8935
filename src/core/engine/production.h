// Urban production: what the towns of a regime make each turn.
#pragma once

namespace mf {

// Output of the town at hex (x, y) for Game.CurRegime: political points, or
// production points towards a unit type whose finished pieces go into the
// stock of the town's SHQ. The next-turn driver's hex loop calls it for each
// hex of the regime with population, after the recovery of that hex's slots.
void TownOutput(int x, int y);
// Recomputes Shq.Carry and Shq.CarrySea of every SHQ of Game.CurRegime from
// the land and sea types waiting in its stock. Called by the next-turn driver
// after the hex loop.
void PoolTransport();
// Opens the Urban Production dialog for the selected hex.
void UrbanProduction();

}  // namespace mf
