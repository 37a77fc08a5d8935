// The drawing seam. The map is painted by core routines hex by hex; they
// talk to a Canvas, never to a toolkit. The Qt window installs canvases that
// paint onto its pixmaps; the tests install a canvas that records every call;
// marrowfield-cli installs none, and drawing then only does its bookkeeping
// (counters, the repair of owner 99) while the pictures go nowhere.
#pragma once

#include <string>

namespace mf {

// Colours are the game's own numbers, 0x00BBGGRR, as the rules write them.
using Colour = long;
constexpr Colour kColourGreen = 65280;       // &HFF00
constexpr Colour kColourYellow = 65535;      // &HFFFF
constexpr Colour kColourRed = 255;           // &HFF
constexpr Colour kColourGrid = 0x555555;     // the hex grid
constexpr Colour kColourWhite = 0xFFFFFF;
// The text colour a picture has unless told otherwise: black.
constexpr Colour kColourDefault = 0;

class Canvas {
 public:
  virtual ~Canvas() = default;
  // Blanks the whole picture.
  virtual void Clear() = 0;
  // Draws sprite `sprite` (43 x 41) with its upper left corner at (left,
  // top); white pixels of the sprite are transparent. An empty sprite slot
  // draws nothing.
  virtual void Blit(int sprite, int left, int top) = 0;
  // A one-pixel line from (x1, y1) to (x2, y2).
  virtual void Line(int x1, int y1, int x2, int y2, Colour colour) = 0;
  // Text with its upper left corner at (x, y), in a named font of `size` points.
  virtual void Text(const std::string& text, int x, int y, const std::string& font, int size,
                    Colour colour) = 0;
};

// The picture of the map, the size of the map window; hexes are placed on it
// relative to the scroll positions UI.ScrollX, UI.ScrollY.
Canvas& MapCanvas();
// The small hex picture of the side panel, 43 x 41, where a hex without a
// visible unit is shown.
Canvas& PanelHexCanvas();
// Installs the canvases (not owned); nullptr installs a canvas that draws nothing.
void InstallMapCanvas(Canvas* canvas);
void InstallPanelHexCanvas(Canvas* canvas);

// Reads a regime's counter text colour, written as "&Hffffff" (or as a plain
// decimal number), into a colour; an empty or unreadable text gives white.
Colour ParseTextColour(const std::string& text);

}  // namespace mf
