// Drawing of the map, hex by hex. There is no scene graph: every change
// repaints the hexes it touches, each in one fixed order of layers, onto the
// map canvas (view/canvas.h).
#pragma once

#include "model/sprite_numbers.h"

namespace mf {

// The size of a hex picture and where the culling of the map window lies
// come from the hex geometry; the outline of the grid is drawn from there too.

// True while an order is under way whose reach is shown on the map (move,
// transfer, airlift, air supply, interdict, strategic bombing, entrench):
// the flood's Hex.Mark then stands, and hexes within reach draw dark.
bool RangeModeOn();

// True when the current regime has never seen hex (x, y) and the fog of
// exploration hides it: the map shows the white hex and nothing of what
// stands or grows there.
bool HexUnexplored(int x, int y);

// Paints hex (x, y) onto the map canvas: terrain, counters, urban markers,
// grid and the overlays that are switched on. Hexes outside the map window
// are skipped.
void DrawHex(int x, int y);
// The terrain layer of hex (x, y) with the picture's upper left corner at
// (left, top); pass 1 paints the map canvas, pass 2 the panel's hex picture.
void TerrainDraw(int x, int y, int left, int top, bool dark, int pass);
// Redraws the whole map: clears the picture, puts every Hex.Mark to 999
// unless a range is being shown, draws every hex, and lets the window breathe.
void DoDrawhex();
// Redraws the square of 15 hexes each way around the selection, clamped to
// the map: the cheap redraw after a move.
void DoDrawhex6();

}  // namespace mf
