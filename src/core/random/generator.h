// The random map itself: islands with their towns, the regimes' start
// towns and forces, roads, and the population that wins the game.
#pragma once

namespace mf {

// Makes the map of a new random game for the regimes 1..Game.RegimeCount
// as they stand (names, peoples, who plays them): a size x size map of sea,
// IslandCount islands of GrowthWaves waves each with a shore and an inland
// town, the start forces (seeded by `seed` and `realRandomStart` as the
// dialog's "Random Override:" and "But real random for start towns"),
// roads, and Game.GameEndPop = Int(0.8 x all population). Leaves Game.Turn
// 0, Game.CurRegime 0, UI.EditMode 0 and no selection. Draws from Rnd as
// it stands: the caller seeds it. The units, officers and SHQ tables of
// any earlier attempt are cleared first. False when unit or SHQ numbers
// ran out while placing the regimes.
bool MakeRandomMap(int size, int land, int seed, bool realRandomStart);

}  // namespace mf
