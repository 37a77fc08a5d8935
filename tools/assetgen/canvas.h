// A small painting surface for the default art: shapes with soft edges,
// composited in floating point, written out as 24-bit bitmaps.
//
// Coordinates are pixel numbers: pixel (x, y) has its centre at (x, y). A hex
// picture is 43 x 41 with its centre at (21, 20).
//
// A canvas may hold its picture at a finer scale (2 for the high-density
// pictures): every drawing call still speaks in the coordinates above, and
// each of those pixels is then scale x scale pixels of the written file, so
// shapes come out sharp rather than enlarged.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace art {

struct RGB {
  float r = 0, g = 0, b = 0;
};

// A colour from 0..255 components.
constexpr RGB C(int r, int g, int b) { return RGB{r / 255.0f, g / 255.0f, b / 255.0f}; }
RGB Mix(RGB a, RGB b, float t);
// Multiplies the components (f below 1 darkens).
RGB Shade(RGB c, float f);
// Moves a colour towards white by t.
RGB Tint(RGB c, float t);

struct Pt {
  float x = 0, y = 0;
};
Pt Lerp(Pt a, Pt b, float t);

// A shape: a bounding box and an inside test on continuous coordinates.
struct Shape {
  float x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  std::function<bool(float, float)> inside;
};

Shape Polygon(std::vector<Pt> pts);
Shape Circle(float cx, float cy, float r);
Shape Ellipse(float cx, float cy, float rx, float ry);
// An ellipse turned by angle (radians).
Shape EllipseRot(float cx, float cy, float rx, float ry, float angle);
Shape Rect(float x0, float y0, float x1, float y1);
Shape RoundRect(float x0, float y0, float x1, float y1, float radius);
// A segment with round ends, w wide.
Shape Line(Pt a, Pt b, float w);
Shape Ring(float cx, float cy, float r, float w);
// A thick polyline: capsules along the points.
Shape Polyline(std::vector<Pt> pts, float w);
// Points of the shape a that are also in b, or in a but not in b.
Shape Intersect(Shape a, Shape b);
Shape Subtract(Shape a, Shape b);
Shape Union(Shape a, Shape b);

// Deterministic value noise in [0, 1).
float Hash(int x, int y, int seed);
float Noise(float x, float y, int seed);

// The scale new canvases are made at (1 unless set).
void SetDrawScale(int scale);
int DrawScale();

class Canvas {
 public:
  Canvas(int w, int h);
  Canvas(int w, int h, int scale);
  int Width() const { return w_; }
  int Height() const { return h_; }
  int Scale() const { return s_; }

  // Paints the shape in a colour, with an opacity 0..1.
  void Fill(const Shape& s, RGB c, float opacity = 1.0f);
  // Paints with a colour that depends on the place.
  void FillFn(const Shape& s, const std::function<RGB(float, float)>& colour, float opacity = 1.0f);
  // Outline of a polygon, w wide.
  void Stroke(const std::vector<Pt>& pts, RGB c, float w, bool closed = true);
  // Paints a whole-pixel rectangle with no soft edge.
  void Block(int x0, int y0, int x1, int y1, RGB c);
  // Multiplies the colour of covered pixels (a shadow that keeps texture).
  void Darken(const Shape& s, float f);
  // Puts another canvas on this one at (x, y).
  void Draw(const Canvas& src, int x, int y);
  // Every pixel outside the test becomes empty.
  void Clip(const std::function<bool(int, int)>& keep);
  // Every fine pixel outside the hex outline becomes empty.
  void ClipToHexOutline();

  // Coverage and colour of a pixel (colour not premultiplied); at a finer
  // scale, of the first of its fine pixels.
  float Alpha(int x, int y) const;
  RGB At(int x, int y) const;
  // Sets a pixel to a colour, fully covered (all its fine pixels).
  void Set(int x, int y, RGB c);

  // Every fine pixel (X, Y) of the picture, with the pixel (x, y) it belongs
  // to and its centre (fx, fy) in drawing coordinates. At scale 1 these are
  // all the same numbers.
  struct Fine {
    int X, Y, x, y;
    float fx, fy;
  };
  void ForEachFine(const std::function<void(const Fine&)>& f) const;
  float FineAlpha(int X, int Y) const;
  RGB FineAt(int X, int Y) const;
  void FineSet(int X, int Y, RGB c);

  // Writes a 24-bit bitmap. Masked: pixels less than half covered become
  // white (255,255,255), the see-through colour of the map; covered pixels
  // never are pure white. Otherwise the picture lies on white.
  bool WriteBmp(const std::string& path, bool masked) const;
  // The bitmap bytes as they would be written.
  std::vector<std::uint8_t> BmpBytes(bool masked) const;

 private:
  struct Px {
    float r = 0, g = 0, b = 0, a = 0;  // premultiplied
  };
  void Blend(int X, int Y, RGB c, float cover);
  int w_, h_, s_;
  int W_, H_;  // the fine size
  std::vector<Px> px_;
};

// The hex outline of a map picture: corners (0,10), (0,30), (21,40),
// (42,30), (42,10), (21,0), edge pixels included, so neighbours tile with
// no gap.
bool InHex(int x, int y);
// The same outline for a fine pixel: at scale 1 exactly InHex; finer, the
// slanted sides are followed at the fine pixels, still with no gap between
// neighbours.
bool InHexFine(const Canvas::Fine& p, int scale);
// The hex outline as a polygon, shrunk towards the centre by inset pixels.
std::vector<Pt> HexCorners(float inset = 0.0f);
// Two corners of side 1..6 (1 north-west, clockwise to 6 west), in the
// order going clockwise.
void SideCorners(int side, Pt& a, Pt& b, float inset = 0.0f);
// The middle of side 1..6.
Pt SideMiddle(int side);
constexpr Pt kCentre{21.0f, 20.0f};

}  // namespace art
