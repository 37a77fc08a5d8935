// Hex geometry of the map: rows are horizontal, every odd row shifted half a
// hex east. Directions 1..6 run clockwise from the north-west side.
#pragma once

namespace mf {

struct HexXY {
  int x = 0;
  int y = 0;
};

// Neighbour of (x, y) in direction 1..6. Each coordinate off the map becomes
// 0 by itself, so (0, 5) is possible: callers test both for > 0.
HexXY Neighbour(int x, int y, int direction);
// Walked number of hexes from the first hex to the second; 101 when the walk
// has not arrived after 100 steps. The walk always takes a shortest path, so
// the result is the true hex distance and the same in both directions.
int Distance(int x1, int y1, int x2, int y2);
// Hexes between two hexes over a path of at most 5 steps in which no step
// enters an owned hex whose owner differs from the owner of the hex the step
// comes from; neutral hexes are always entered. So a path may leave its
// owner's ground for neutral ground but cannot come back onto owned ground
// from there. 0 for equal hexes, 999 when there is no such path.
int OwnerDistance(int x1, int y1, int x2, int y2);

// Pixel constants of the map picture.
constexpr int kHexColumnW = 42;
constexpr int kHexRowH = 30;
constexpr int kHexPicW = 43;
constexpr int kHexPicH = 41;
constexpr int kViewSlackW = 958;   // the classic map window; UI.ViewW, UI.ViewH hold the real one
constexpr int kViewSlackH = 448;

// Centre of a hex on the window, given the scroll positions.
struct PixelXY {
  int x = 0;
  int y = 0;
};
PixelXY HexToPixel(int x, int y, int scrollX, int scrollY);
// True when a hex whose centre lies at c is outside the drawn window.
bool HexOffWindow(PixelXY c);
// Hex under a point of the window (scroll positions added), or zeros: in the
// zigzag bands at a row's upper and lower edge both are 0, and a coordinate
// beyond the map (or below 0, for points left of or above the picture) is 0.
HexXY PixelToHex(int px, int py, int scrollX, int scrollY);
// Scrolls the map so that hex (x, y) stands in the middle of the view: 10
// hexes from the left and 6 from the top of the classic 958 x 448 window,
// correspondingly more in a larger one; held inside the scroll ranges. Asks
// for the whole map to be redrawn when the view moved. The window, the turn
// cycle and the computer player's watched moves all centre through it.
void CenterMap(int x, int y);
// Size of the map picture for the current Game.MapW, Game.MapH.
int MapPictureW();
int MapPictureH();

}  // namespace mf
