// Looking at the art the way the game shows it: a small map drawn with the
// game's order of layers, for judging the pictures together.
#pragma once

#include <map>
#include <string>

#include "canvas.h"

namespace art {

// The picture as the map blits it: less than half covered is see-through,
// the rest fully there.
Canvas Hardened(const Canvas& c);
// Writes a number in a 3 x 5 pixel font with its upper left at (x, y).
void DrawNumber(Canvas& c, int x, int y, int n, RGB ink);
void DrawText(Canvas& c, int x, int y, const std::string& text, RGB ink);
// Draws the sample map with the sprites by number and writes it.
int Preview(const std::string& file, const std::map<int, Canvas>& sprites);

}  // namespace art
