// Counters of the eight families in the regime colours, the two marks, THQ
// badges, extra counters, and the small silhouettes they share with the
// icons.
#include <algorithm>
#include <cmath>

#include "art.h"

namespace art {
namespace {

const RGB kInk = C(28, 28, 30);
const RGB kPanel = C(244, 240, 226);
const RGB kEdge = C(26, 24, 22);

// The outline of a counter of a family, shrunk by inset pixels: ships have
// a bow, aircraft round ends, everything else is a card with soft corners.
// All stay inside the hex, also when a stack shifts them by a pixel.
Shape BodyShape(int family, float inset) {
  const float i = inset;
  if (family == 7) {
    return Polygon({{6.5f + i, 7.5f + i}, {33.0f - i * 0.6f, 7.5f + i}, {38.0f - i, 19.5f}, {33.0f - i * 0.6f, 31.5f - i},
                    {6.5f + i, 31.5f - i}});
  }
  if (family == 8) return RoundRect(6.0f + i, 7.5f + i, 36.0f - i, 31.5f - i, std::max(1.0f, 6.5f - i));
  return RoundRect(6.5f + i, 7.5f + i, 35.5f - i, 31.5f - i, std::max(0.8f, 2.5f - i * 0.5f));
}

// Outline, the body colour lit from the upper left, and an inner ring when
// the counter wears one.
void PaintBody(Canvas& c, int family, RGB colour, bool hasRing, RGB ring) {
  c.Fill(BodyShape(family, 0), kEdge);
  float in = 1.0f;
  if (hasRing) {
    c.Fill(BodyShape(family, 1.0f), ring);
    in = 2.3f;
  }
  const Shape inner = BodyShape(family, in);
  c.Fill(inner, colour);
  c.Fill(Intersect(BodyShape(family, in), Rect(0, 0, 43, 9.6f)), Tint(colour, 0.35f));
  c.Fill(Intersect(BodyShape(family, in), Rect(0, 29.6f - (in - 1), 43, 41)), Shade(colour, 0.72f));
}

// The symbol box in the upper half. The lower half stays in the body colour:
// the map prints the attack and defence figures there, in the regime's text
// colour, which is black on the light regime colours and white on the dark.
void PaintPanels(Canvas& c, float x0, float x1) {
  c.Fill(Rect(x0, 10.5f, x1, 20.5f), kPanel);
  c.Stroke({{x0, 10.5f}, {x1, 10.5f}, {x1, 20.5f}, {x0, 20.5f}}, Shade(kPanel, 0.45f), 0.6f);
}

// Crossed lines from corner to corner: foot soldiers.
void InfantryCross(Canvas& c, float x0, float y0, float x1, float y1, RGB ink) {
  c.Fill(Line({x0, y0}, {x1, y1}, 1.3f), ink);
  c.Fill(Line({x0, y1}, {x1, y0}, 1.3f), ink);
}

}  // namespace

void DrawTruck(Canvas& c, float cx, float cy, float s, RGB ink) {
  const float u = s / 16.0f;
  // Cargo box, cab on the right, two axles.
  c.Fill(Rect(cx - 8 * u, cy - 4 * u, cx + 2 * u, cy + 2 * u), ink);
  c.Fill(Polygon({{cx + 2.8f * u, cy - 2 * u}, {cx + 6 * u, cy - 2 * u}, {cx + 8 * u, cy + 0.2f * u},
                  {cx + 8 * u, cy + 2.5f * u}, {cx + 2.8f * u, cy + 2.5f * u}}),
         ink);
  c.Fill(Rect(cx + 3.8f * u, cy - 1.2f * u, cx + 5.8f * u, cy + 0.2f * u), C(200, 220, 230));
  c.Fill(Circle(cx - 5 * u, cy + 3.2f * u, 1.8f * u), ink);
  c.Fill(Circle(cx + 5 * u, cy + 3.2f * u, 1.8f * u), ink);
  c.Fill(Circle(cx - 5 * u, cy + 3.2f * u, 0.7f * u), C(170, 170, 170));
  c.Fill(Circle(cx + 5 * u, cy + 3.2f * u, 0.7f * u), C(170, 170, 170));
}

void DrawTank(Canvas& c, float cx, float cy, float s, RGB ink) {
  const float u = s / 16.0f;
  c.Fill(RoundRect(cx - 8 * u, cy + 0.5f * u, cx + 8 * u, cy + 4.5f * u, 2 * u), ink);
  for (int i = -3; i <= 3; ++i) c.Fill(Circle(cx + i * 2.2f * u, cy + 2.5f * u, 0.7f * u), C(150, 150, 150));
  c.Fill(Polygon({{cx - 7 * u, cy + 0.8f * u}, {cx - 5.5f * u, cy - 1.8f * u}, {cx + 6 * u, cy - 1.8f * u},
                  {cx + 7.5f * u, cy + 0.8f * u}}),
         ink);
  c.Fill(RoundRect(cx - 3.5f * u, cy - 4.6f * u, cx + 2.5f * u, cy - 1.2f * u, 1.2f * u), ink);
  c.Fill(Line({cx + 2 * u, cy - 3.2f * u}, {cx + 9 * u, cy - 3.4f * u}, 1.1f * u), ink);
}

void DrawGun(Canvas& c, float cx, float cy, float s, RGB ink) {
  const float u = s / 16.0f;
  c.Fill(Line({cx - 1 * u, cy + 1 * u}, {cx + 8 * u, cy - 5 * u}, 1.5f * u), ink);     // barrel
  c.Fill(Line({cx - 1 * u, cy + 1.5f * u}, {cx - 8 * u, cy + 4.5f * u}, 1.3f * u), ink);  // trail
  c.Fill(Polygon({{cx - 2.5f * u, cy - 2 * u}, {cx + 1.5f * u, cy - 3.5f * u}, {cx + 2 * u, cy + 1 * u},
                  {cx - 2 * u, cy + 2 * u}}),
         ink);  // shield
  c.Fill(Circle(cx, cy + 2.8f * u, 2.6f * u), ink);
  c.Fill(Circle(cx, cy + 2.8f * u, 1.0f * u), C(170, 170, 170));
}

void DrawShip(Canvas& c, float cx, float cy, float s, RGB ink) {
  const float u = s / 16.0f;
  c.Fill(Polygon({{cx - 8 * u, cy}, {cx + 9 * u, cy}, {cx + 6.5f * u, cy + 3 * u}, {cx - 7 * u, cy + 3 * u}}), ink);
  c.Fill(Rect(cx - 4 * u, cy - 2.5f * u, cx + 3 * u, cy), ink);
  c.Fill(Rect(cx - 2 * u, cy - 4.5f * u, cx + 1 * u, cy - 2 * u), ink);
  c.Fill(Rect(cx - 0.6f * u, cy - 7 * u, cx + 0.4f * u, cy - 4 * u), ink);
  c.Fill(Line({cx + 3 * u, cy - 1.2f * u}, {cx + 6.5f * u, cy - 1.8f * u}, 0.9f * u), ink);
  c.Fill(Line({cx - 4 * u, cy - 1.2f * u}, {cx - 7 * u, cy - 1.8f * u}, 0.9f * u), ink);
}

void DrawPlane(Canvas& c, float cx, float cy, float s, RGB ink) {
  const float u = s / 16.0f;
  // Seen from above, nose up.
  c.Fill(Ellipse(cx, cy, 1.3f * u, 7.5f * u), ink);
  c.Fill(Polygon({{cx - 8 * u, cy + 0.5f * u}, {cx - 1 * u, cy - 2.5f * u}, {cx + 1 * u, cy - 2.5f * u},
                  {cx + 8 * u, cy + 0.5f * u}, {cx + 8 * u, cy + 1.8f * u}, {cx - 8 * u, cy + 1.8f * u}}),
         ink);
  c.Fill(Polygon({{cx - 3.5f * u, cy + 6.5f * u}, {cx, cy + 4.5f * u}, {cx + 3.5f * u, cy + 6.5f * u},
                  {cx + 3.5f * u, cy + 7.3f * u}, {cx - 3.5f * u, cy + 7.3f * u}}),
         ink);
}

void DrawStar(Canvas& c, float cx, float cy, float r, RGB ink) {
  std::vector<Pt> pts;
  for (int i = 0; i < 10; ++i) {
    const float a = -1.5707963f + i * 0.6283185f;
    const float rr = (i % 2) ? r * 0.42f : r;
    pts.push_back({cx + rr * std::cos(a), cy + rr * std::sin(a)});
  }
  c.Fill(Polygon(pts), ink);
}

void DrawSoldier(Canvas& c, float cx, float cy, float s, RGB ink) {
  const float u = s / 16.0f;
  c.Fill(Circle(cx, cy - 5.5f * u, 1.8f * u), ink);
  c.Fill(Line({cx, cy - 3.5f * u}, {cx - 0.3f * u, cy + 1.5f * u}, 2.2f * u), ink);
  c.Fill(Line({cx - 0.3f * u, cy + 1.5f * u}, {cx - 3 * u, cy + 6.5f * u}, 1.5f * u), ink);
  c.Fill(Line({cx - 0.3f * u, cy + 1.5f * u}, {cx + 2.5f * u, cy + 6.5f * u}, 1.5f * u), ink);
  c.Fill(Line({cx, cy - 2.5f * u}, {cx + 3 * u, cy + 0.5f * u}, 1.2f * u), ink);
  c.Fill(Line({cx + 1 * u, cy + 1.5f * u}, {cx + 5 * u, cy - 6 * u}, 0.9f * u), ink);  // rifle
}

Canvas Counter(int family, int colour) {
  Canvas c(kHexW, kHexH);
  RGB body;
  if (colour == 20) {
    body = C(146, 146, 142);  // no link to the chain of command: no colour
  } else if (colour == 19) {
    body = C(128, 124, 120);  // no supply
  } else {
    body = RegimeColour(colour);
  }
  if (family == 2 || family == 3) {
    // The staff of a headquarters, below its left edge.
    c.Fill(Rect(7.5f, 30, 10.0f, 34.5f), kEdge);
    c.Fill(Rect(8.4f, 30, 9.2f, 33.8f), Tint(body, 0.2f));
  }
  // Out of supply: a red ring inside the edge.
  PaintBody(c, family, body, colour == 19, C(220, 30, 30));
  if (family == 3) {
    // A strategic HQ wears a gold frame.
    c.Fill(Subtract(BodyShape(family, 2.0f), BodyShape(family, 3.1f)), C(230, 188, 60));
  }
  float x0 = 11.5f, x1 = 30.5f;
  if (family == 7) {
    x0 = 10.5f;
    x1 = 29.5f;
  } else if (family == 8) {
    x0 = 12.0f;
    x1 = 30.0f;
  }
  PaintPanels(c, x0, x1);
  const float cx = (x0 + x1) / 2, cy = 15.6f;
  switch (family) {
    case 1: DrawTruck(c, cx, cy, 15, kInk); break;
    case 2:
      // A tactical HQ: a swallow-tailed pennant on its pole.
      c.Fill(Line({cx - 5, cy - 4.6f}, {cx - 5, cy + 4.8f}, 1.2f), kInk);
      c.Fill(Polygon({{cx - 4.6f, cy - 4.6f}, {cx + 7, cy - 4.6f}, {cx + 3.5f, cy - 1.6f}, {cx + 7, cy + 1.4f},
                      {cx - 4.6f, cy + 1.4f}}),
             kInk);
      c.Fill(Polygon({{cx - 3.8f, cy - 3.8f}, {cx + 5.2f, cy - 3.8f}, {cx + 2.4f, cy - 1.6f}, {cx + 5.2f, cy + 0.6f},
                      {cx - 3.8f, cy + 0.6f}}),
             colour >= 1 && colour <= 15 ? RegimeColour(colour) : C(150, 150, 150));
      break;
    case 3:
      DrawStar(c, cx - 3.5f, cy, 4.6f, C(200, 150, 20));
      DrawStar(c, cx + 4.0f, cy, 4.6f, C(200, 150, 20));
      c.Stroke({{cx - 8.1f, cy - 4.6f}, {cx + 8.6f, cy - 4.6f}}, kInk, 0.6f, false);
      break;
    case 4: InfantryCross(c, x0 + 0.6f, 11.1f, x1 - 0.6f, 19.9f, kInk); break;
    case 5: DrawGun(c, cx, cy, 15, kInk); break;
    case 6: DrawTank(c, cx, cy + 0.6f, 16, kInk); break;
    case 7: DrawShip(c, cx, cy + 0.6f, 15, kInk); break;
    case 8: DrawPlane(c, cx, cy, 11, kInk); break;
    default: break;
  }
  return c;
}

Canvas Badge(int n) {
  Canvas c(kHexW, kHexH);
  const int shape = (n - 1) % 6;
  const int tone = (n - 1) / 6;
  const RGB fills[5] = {C(226, 36, 36), C(36, 96, 228), C(252, 214, 36), C(246, 244, 236), C(30, 30, 34)};
  const RGB fill = fills[tone];
  const RGB edge = tone == 4 ? C(236, 232, 220) : C(20, 20, 22);
  // The badge sits on the upper right corner of the counter.
  const float cx = 31.0f, cy = 12.0f, r = 3.8f;
  Shape outer, inner;
  switch (shape) {
    case 0:
      outer = Circle(cx, cy, r + 0.9f);
      inner = Circle(cx, cy, r);
      break;
    case 1:
      outer = Rect(cx - r - 0.4f, cy - r - 0.4f, cx + r + 0.4f, cy + r + 0.4f);
      inner = Rect(cx - r + 0.5f, cy - r + 0.5f, cx + r - 0.5f, cy + r - 0.5f);
      break;
    case 2:
      outer = Polygon({{cx, cy - r - 1.6f}, {cx + r + 1.6f, cy}, {cx, cy + r + 1.6f}, {cx - r - 1.6f, cy}});
      inner = Polygon({{cx, cy - r + 0.2f}, {cx + r - 0.2f, cy}, {cx, cy + r - 0.2f}, {cx - r + 0.2f, cy}});
      break;
    case 3:
      outer = Polygon({{cx, cy - r - 1.8f}, {cx + r + 1.6f, cy + r + 0.6f}, {cx - r - 1.6f, cy + r + 0.6f}});
      inner = Polygon({{cx, cy - r + 0.4f}, {cx + r - 0.2f, cy + r - 0.5f}, {cx - r + 0.2f, cy + r - 0.5f}});
      break;
    case 4: {
      DrawStar(c, cx, cy + 0.3f, r + 2.2f, edge);
      DrawStar(c, cx, cy + 0.3f, r + 0.6f, fill);
      return c;
    }
    default:
      outer = Union(Rect(cx - r - 0.6f, cy - 1.9f, cx + r + 0.6f, cy + 1.9f), Rect(cx - 1.9f, cy - r - 0.6f, cx + 1.9f, cy + r + 0.6f));
      inner = Union(Rect(cx - r + 0.4f, cy - 1.0f, cx + r - 0.4f, cy + 1.0f), Rect(cx - 1.0f, cy - r + 0.4f, cx + 1.0f, cy + r - 0.4f));
      break;
  }
  c.Fill(outer, edge);
  c.Fill(inner, fill);
  return c;
}

Canvas Extra(int n) {
  Canvas c(kHexW, kHexH);
  // Extra counters stand for kinds of troops, not for a regime: khaki.
  const RGB body = C(184, 168, 118);
  PaintBody(c, 1, body, false, body);
  const float x0 = 11.5f, x1 = 30.5f;
  PaintPanels(c, x0, x1);
  const float cx = 21.0f, cy = 15.6f;
  switch (n) {
    case 1:  // engineers: the bridge sign
      c.Fill(Rect(cx - 6, cy - 3, cx + 6, cy - 1.6f), kInk);
      c.Fill(Rect(cx - 6, cy - 3, cx - 4.6f, cy + 3), kInk);
      c.Fill(Rect(cx - 0.7f, cy - 3, cx + 0.7f, cy + 3), kInk);
      c.Fill(Rect(cx + 4.6f, cy - 3, cx + 6, cy + 3), kInk);
      break;
    case 2:  // paratroops: a canopy over a man
      c.Fill(Intersect(Ellipse(cx, cy - 1, 7, 5), Rect(cx - 8, cy - 7, cx + 8, cy - 1)), kInk);
      c.Fill(Line({cx - 6.5f, cy - 1}, {cx, cy + 3.5f}, 0.6f), kInk);
      c.Fill(Line({cx + 6.5f, cy - 1}, {cx, cy + 3.5f}, 0.6f), kInk);
      c.Fill(Circle(cx, cy + 4, 1.4f), kInk);
      break;
    case 3:  // mountain troops: cross under a peak
      InfantryCross(c, x0 + 0.6f, 11.1f, x1 - 0.6f, 19.9f, kInk);
      c.Fill(Polygon({{cx - 4, cy + 5.3f}, {cx, cy + 0.5f}, {cx + 4, cy + 5.3f}}), kInk);
      break;
    case 4:  // rocket artillery: a rack of rockets
      for (int i = 0; i < 3; ++i) {
        const float ox = cx - 5 + i * 3.5f;
        c.Fill(Line({ox, cy + 4}, {ox + 4, cy - 4}, 1.4f), kInk);
        c.Fill(Polygon({{ox + 3.2f, cy - 3.3f}, {ox + 5.2f, cy - 5.8f}, {ox + 4.8f, cy - 2.6f}}), C(200, 60, 30));
      }
      break;
    case 5:  // anti-aircraft: a gun pointing up with bursts
      c.Fill(Line({cx - 3, cy + 4}, {cx + 2, cy - 4}, 1.5f), kInk);
      c.Fill(Circle(cx - 3.5f, cy + 4, 2.2f), kInk);
      DrawStar(c, cx + 5, cy - 2.5f, 2.6f, C(210, 90, 20));
      DrawStar(c, cx - 5.5f, cy - 3, 2.0f, C(210, 90, 20));
      break;
    case 6:  // recon: an armoured car with a long look
      c.Fill(Polygon({{cx - 7, cy + 1.5f}, {cx - 5, cy - 1.5f}, {cx + 5, cy - 1.5f}, {cx + 7, cy + 1.5f}}), kInk);
      c.Fill(RoundRect(cx - 2.5f, cy - 4, cx + 2.5f, cy - 1, 1), kInk);
      for (float wx : {-4.5f, 0.0f, 4.5f}) c.Fill(Circle(cx + wx, cy + 2.8f, 1.6f), kInk);
      c.Fill(Line({cx - 7, cy + 5.2f}, {cx + 7, cy - 5.2f}, 0.8f), C(180, 40, 40));
      break;
    case 7:  // marines: an anchor
      c.Fill(Ring(cx, cy - 4, 1.2f, 0.8f), kInk);
      c.Fill(Line({cx, cy - 2.8f}, {cx, cy + 4.5f}, 1.2f), kInk);
      c.Fill(Line({cx - 3, cy - 1.5f}, {cx + 3, cy - 1.5f}, 1.0f), kInk);
      c.Fill(Intersect(Ring(cx, cy + 0.5f, 4.4f, 1.2f), Rect(cx - 6, cy + 1.2f, cx + 6, cy + 6)), kInk);
      break;
    case 8:  // heavy armour: a big tank with a second gun
      DrawTank(c, cx - 0.5f, cy + 0.8f, 19, kInk);
      c.Fill(Line({cx + 3, cy - 0.6f}, {cx + 8.5f, cy - 0.6f}, 0.9f), kInk);
      break;
    case 9:  // supply column: a truck with crates
      DrawTruck(c, cx, cy + 0.5f, 15, kInk);
      c.Fill(Rect(cx - 6.5f, cy - 5.5f, cx - 3.0f, cy - 2.5f), C(200, 150, 70));
      c.Fill(Rect(cx - 2.5f, cy - 5.5f, cx + 1.0f, cy - 2.5f), C(200, 150, 70));
      break;
    default:  // militia: a cross of broken lines
      for (int i = 0; i < 4; ++i) {
        const float t0 = i / 4.0f + 0.03f, t1 = i / 4.0f + 0.19f;
        c.Fill(Line(Lerp({x0 + 0.6f, 11.1f}, {x1 - 0.6f, 19.9f}, t0), Lerp({x0 + 0.6f, 11.1f}, {x1 - 0.6f, 19.9f}, t1), 1.3f), kInk);
        c.Fill(Line(Lerp({x0 + 0.6f, 19.9f}, {x1 - 0.6f, 11.1f}, t0), Lerp({x0 + 0.6f, 19.9f}, {x1 - 0.6f, 11.1f}, t1), 1.3f), kInk);
      }
      break;
  }
  return c;
}

}  // namespace art
