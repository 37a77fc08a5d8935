// Urban production: what the towns of a regime make each turn.
#pragma once

namespace mf {

// Finished pieces of a type that so many production points pay for:
// Int(points / Type.Cost); 0 for a type without a cost.
long ProducedCount(int type, long points);
// Output of the town at hex (x, y) for Game.CurRegime: political points, or
// production points towards a unit type whose finished pieces go into the
// stock of the town's SHQ. The next-turn driver's hex loop calls it for each
// hex of the regime with population, after the recovery of that hex's slots.
// A town whose SHQ was not reached this turn makes nothing.
void TownOutput(int x, int y);
// Recomputes Shq.Carry and Shq.CarrySea of every SHQ of Game.CurRegime from
// the land and sea types waiting in its stock. Called by the next-turn driver
// after the hex loop.
void PoolTransport();
// Opens the Urban Production dialog for the selected hex (UI.SelX, UI.SelY)
// and waits until it is closed; then the hex is redrawn and its panel rebuilt.
void UrbanProduction();

}  // namespace mf
