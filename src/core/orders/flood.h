// The scratch planes that the movement and supply floods share.
#pragma once

namespace mf {

// Forgets the last flood: Hex.Mark to 999 (out of reach) and the supply
// route planes (PathSea, PathLand, PathPortX, PathPortY) and the sight
// scratch to 0, on the whole map.
void ClearFlood();

// The box of hexes the last flood worked over, inclusive; written by each
// flood when it ends.
extern int FloodMinX, FloodMinY, FloodMaxX, FloodMaxY;

}  // namespace mf
