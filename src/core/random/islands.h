// Islands of a random map, grown out of the sea in waves.
#pragma once

namespace mf {

// Islands of a map: Int((size + land%) / 10).
int IslandCount(int size, int land);
// Growth waves of each island: Int(size / 4) - 5 + Int(land% / 10); zero or
// less grows nothing.
int GrowthWaves(int size, int land);

// Grows one island on the current map (Game.MapW x Game.MapH) in `waves`
// waves and leaves its reach in Hex.Work (wave number, 0 outside) for the
// town steps. Plains, forest and mountain are drawn from the island's own
// two thresholds; land of earlier islands is left as it is and the growth
// passes only through sea. The map's border hexes are never grown.
void GrowIsland(int waves);

}  // namespace mf
