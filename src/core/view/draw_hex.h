// Drawing of the map, hex by hex. There is no scene graph: every change
// repaints the hexes it touches, each in one fixed order of layers, onto the
// map canvas (view/canvas.h).
#pragma once

namespace mf {

// Sprite numbers of the pictures the map is made of.
namespace sprite {
constexpr int kBaseHex = 1;           // plain land hex
constexpr int kSeaHex = 4;
constexpr int kRegimeHexBase = 20;    // a regime's hex is 20 + Regime.HexSprite
constexpr int kDarkShift = 1000;      // the dark form of a base hex
constexpr int kNoProduction = 803;    // own town that delivers to no SHQ
constexpr int kUnexplored = 804;      // white hex of a map never seen
constexpr int kDamage = 805;
constexpr int kNewsMark7 = 806;
constexpr int kNewsMark8 = 807;
constexpr int kHiddenHex = 808;
constexpr int kNewsMark9 = 810;
constexpr int kNewsMarkBase = 844;    // news marks 1..6 are 844 + mark
constexpr int kEntrenchBase = 1100;   // 1100 + 10 (level - 1) + side
constexpr int kForest = 1500;         // 1501..1506 forest edges towards a side
constexpr int kUrbanLargest = 1521;   // 1521..1526, largest to smallest
constexpr int kRiverBase = 1540;      // 1541..1546 river or coast on a side
constexpr int kRiverDarkShift = 20;   // 1561..1566 their dark forms
constexpr int kSwamp = 1601;
constexpr int kMountain = 1611;
constexpr int kRoadBase = 1620;       // 1621..1626 road towards a side
constexpr int kSlots = 2100;          // the sprite table holds 0..2100

// A sprite number worked out from game data, or 0 (nothing) when the data
// would point outside the table.
constexpr int Checked(long long n) { return n >= 0 && n <= kSlots ? static_cast<int>(n) : 0; }
}  // namespace sprite

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
// Scrolls the map so that hex (x, y) stands in the middle of the view: 10
// hexes from the left and 6 from the top of the classic 958 x 448 window,
// correspondingly more in a larger one; held inside the scroll ranges. Asks
// for the whole map to be redrawn when the view moved.
void CenterMap(int x, int y);

}  // namespace mf
