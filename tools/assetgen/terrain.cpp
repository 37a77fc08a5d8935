// Terrain pictures: the base hexes, landscapes drawn over them, rivers,
// coasts, roads and entrenchments by side.
#include <algorithm>
#include <cmath>

#include "art.h"

namespace art {
namespace {

constexpr float kDarkFactor = 0.58f;  // dark forms for hexes within reach of an order

const RGB kGrass = C(128, 170, 86);
const RGB kGrassTuft = C(96, 140, 62);
const RGB kSea = C(38, 84, 152);
const RGB kWave = C(150, 190, 232);
const RGB kWater = C(48, 100, 172);
const RGB kBank = C(204, 186, 128);
const RGB kParchment = C(240, 236, 224);

// Distance of a point from the nearest side of the hex outline.
float EdgeDistance(float x, float y) {
  const std::vector<Pt> c = HexCorners();
  float best = 1e9f;
  for (int i = 0; i < 6; ++i) {
    const Pt a = c[i], b = c[(i + 1) % 6];
    const float vx = b.x - a.x, vy = b.y - a.y;
    const float len = std::hypot(vx, vy);
    best = std::min(best, ((x - a.x) * vy - (y - a.y) * vx) / -len);
  }
  return best;
}

Canvas Hex() { return Canvas(kHexW, kHexH); }

void ClipToHex(Canvas& c) {
  c.ClipToHexOutline();
}

// Fills the hex with a textured ground colour; rim darkens the outermost pixel
// ring so that the hex pattern reads without the grid.
void Ground(Canvas& c, RGB base, float grain, int seed, float rim) {
  // The grain follows the fine pixels, so a finer picture has a finer grain.
  const bool fine = c.Scale() > 1;
  c.ForEachFine([&](const Canvas::Fine& p) {
    if (!InHexFine(p, c.Scale())) return;
    const float speck = fine ? Hash(p.X, p.Y, seed + 1007) : Hash(p.x, p.y, seed + 7);
    const float n = Noise(p.fx / 5.0f, p.fy / 5.0f, seed) * 0.6f + speck * 0.4f;
    RGB col = Shade(base, 1.0f + (n - 0.5f) * grain);
    if (EdgeDistance(p.fx, p.fy) < 0.9f) col = Shade(col, rim);
    c.FineSet(p.X, p.Y, col);
  });
}

void Tufts(Canvas& c, RGB ink, int seed, int count) {
  for (int i = 0; i < count; ++i) {
    const float x = 5 + Hash(i, 1, seed) * 33;
    const float y = 6 + Hash(i, 2, seed) * 29;
    if (!InHex(static_cast<int>(x), static_cast<int>(y)) || EdgeDistance(x, y) < 3) continue;
    c.Fill(Line({x - 1.2f, y + 1.0f}, {x - 0.4f, y - 1.2f}, 0.8f), ink, 0.8f);
    c.Fill(Line({x + 0.2f, y + 1.0f}, {x + 1.1f, y - 1.0f}, 0.8f), ink, 0.8f);
  }
}

void DarkenAll(Canvas& c) {
  c.Darken(Rect(0, 0, kHexW, kHexH), kDarkFactor);
}

// One tree seen from a little above: shadow, crown, light on the upper left.
void Tree(Canvas& c, float x, float y, float r, int seed) {
  const RGB crown = Mix(C(44, 102, 50), C(62, 118, 46), Hash(seed, 3, 11));
  c.Fill(Ellipse(x + r * 0.35f, y + r * 0.55f, r * 1.0f, r * 0.7f), C(30, 56, 30), 0.55f);
  c.Fill(Circle(x, y, r), crown);
  c.Fill(Circle(x - r * 0.3f, y - r * 0.3f, r * 0.55f), Mix(crown, C(150, 190, 90), 0.35f));
  c.Fill(Ring(x, y, r - 0.35f, 0.7f), Shade(crown, 0.6f), 0.8f);
}

// A house: wall, roof with a ridge, seen from the south-east.
void House(Canvas& c, float x, float y, float w, float h, RGB roof) {
  const RGB wall = C(226, 212, 186);
  c.Fill(Rect(x + 1, y + 1, x + w + 1, y + h + 1), C(40, 40, 36), 0.45f);  // shadow
  c.Fill(Rect(x, y + h * 0.45f, x + w, y + h), wall);
  c.Fill(Polygon({{x - 0.6f, y + h * 0.5f}, {x + w * 0.5f, y - 0.2f}, {x + w + 0.6f, y + h * 0.5f}}), roof);
  c.Fill(Polygon({{x + w * 0.5f, y - 0.2f}, {x + w + 0.6f, y + h * 0.5f}, {x + w * 0.5f, y + h * 0.5f}}),
         Shade(roof, 0.78f));
  c.Stroke({{x - 0.6f, y + h * 0.5f}, {x + w * 0.5f, y - 0.2f}, {x + w + 0.6f, y + h * 0.5f}}, Shade(roof, 0.5f),
           0.6f, false);
  c.Stroke({{x, y + h * 0.5f}, {x, y + h}, {x + w, y + h}, {x + w, y + h * 0.5f}}, C(90, 80, 70), 0.6f, false);
  c.Fill(Rect(x + w * 0.4f, y + h * 0.68f, x + w * 0.62f, y + h), C(100, 80, 60));
}

// A block of a city, flat roof, with a side face for height.
void Block(Canvas& c, float x, float y, float w, float d, float h, RGB roof) {
  c.Fill(Polygon({{x + w, y + d}, {x + w + h * 0.6f, y + d + h * 0.4f}, {x + h * 0.6f, y + d + h * 0.4f}, {x, y + d}}),
         C(40, 40, 40), 0.4f);
  c.Fill(Rect(x, y + d, x + w, y + d + h), Shade(roof, 0.72f));
  for (float wx = x + 1; wx < x + w - 0.5f; wx += 2) {
    for (float wy = y + d + 1; wy < y + d + h - 0.5f; wy += 2) c.Fill(Rect(wx, wy, wx + 0.8f, wy + 0.8f), C(250, 226, 140), 0.85f);
  }
  c.Fill(Rect(x, y, x + w, y + d), roof);
  c.Stroke({{x, y}, {x + w, y}, {x + w, y + d + h}, {x, y + d + h}}, C(60, 58, 56), 0.6f);
}

}  // namespace

RGB RegimeColour(int c) {
  // Regimes print their counter figures in black on colours 2, 5, 8, 10, 11
  // and 12 and in white on 1, 4, 6, 7, 9, 13 and 15, so the light and dark
  // colours sit at those numbers.
  static const RGB kColours[16] = {
      C(0, 0, 0),       C(200, 36, 32),   C(118, 176, 236), C(236, 128, 28),  C(34, 62, 172),
      C(240, 208, 44),  C(112, 52, 160),  C(28, 104, 54),   C(238, 136, 190), C(118, 74, 38),
      C(178, 180, 184), C(166, 206, 76),  C(120, 214, 200), C(128, 20, 46),   C(126, 122, 44),
      C(46, 46, 50),
  };
  if (c < 1 || c > 15) return kColours[10];
  return kColours[c];
}

Canvas PlainHex(bool dark) {
  Canvas c = Hex();
  Ground(c, kGrass, 0.16f, 101, 0.9f);
  Tufts(c, kGrassTuft, 102, 26);
  ClipToHex(c);
  if (dark) DarkenAll(c);
  return c;
}

Canvas SeaHex(bool dark) {
  Canvas c = Hex();
  Ground(c, kSea, 0.12f, 201, 1.0f);
  for (int i = 0; i < 9; ++i) {
    const float x = 6 + Hash(i, 1, 202) * 30, y = 7 + Hash(i, 2, 202) * 27;
    if (EdgeDistance(x, y) < 3.5f) continue;
    c.Fill(Polyline({{x - 3, y + 0.6f}, {x - 1.5f, y - 0.6f}, {x, y + 0.6f}, {x + 1.5f, y - 0.6f}, {x + 3, y + 0.6f}}, 0.8f),
           kWave, 0.85f);
  }
  ClipToHex(c);
  if (dark) DarkenAll(c);
  return c;
}

Canvas RegimeHex(int colour, bool dark) {
  Canvas c = Hex();
  const RGB full = RegimeColour(colour);
  const RGB fill = Mix(full, C(238, 232, 214), 0.38f);
  Ground(c, fill, 0.10f, 101, 1.0f);
  Tufts(c, Shade(fill, 0.82f), 102, 26);
  // A band of the full colour along the rim marks the border of the realm.
  const std::vector<Pt> inner = HexCorners(1.6f);
  c.Fill(Subtract(Polygon(HexCorners(-1.0f)), Polygon(inner)), Shade(full, 0.92f));
  c.Stroke(inner, Shade(full, 0.7f), 0.5f);
  ClipToHex(c);
  if (dark) DarkenAll(c);
  return c;
}

Canvas UnexploredHex() {
  Canvas c = Hex();
  Ground(c, kParchment, 0.04f, 301, 0.96f);
  for (int k = -40; k < 60; k += 5) {
    c.Fill(Line({static_cast<float>(k), 41}, {static_cast<float>(k) + 41, 0}, 0.6f), C(216, 210, 194), 0.7f);
  }
  ClipToHex(c);
  return c;
}

Canvas Forest(int side) {
  Canvas c = Hex();
  struct Spot {
    float x, y, r;
  };
  std::vector<Spot> spots;
  if (side == 0) {
    // A jittered grid of trees, leaving glades where the ground shows.
    int i = 0;
    for (float y = 6; y <= 35; y += 5.5f) {
      const float shift = (static_cast<int>(y) % 2) ? 2.5f : 0.0f;
      for (float x = 5 + shift; x <= 38; x += 6.2f, ++i) {
        const float jx = x + (Hash(i, 1, 401) - 0.5f) * 3.0f;
        const float jy = y + (Hash(i, 2, 401) - 0.5f) * 2.5f;
        if (EdgeDistance(jx, jy) < 3.0f || Hash(i, 3, 401) < 0.12f) continue;
        spots.push_back({jx, jy, 2.8f + Hash(i, 4, 401) * 1.2f});
      }
    }
  } else {
    // The edge of a wood across side s: a few trees just inside that side.
    Pt a, b;
    SideCorners(side, a, b, 3.8f);
    for (int i = 0; i < 3; ++i) {
      const Pt p = Lerp(a, b, 0.2f + 0.3f * i + (Hash(i, side, 402) - 0.5f) * 0.1f);
      spots.push_back({p.x, p.y, 2.4f + Hash(i, side, 403) * 0.8f});
    }
  }
  std::sort(spots.begin(), spots.end(), [](const Spot& p, const Spot& q) { return p.y < q.y; });
  int seed = 0;
  for (const Spot& s : spots) Tree(c, s.x, s.y, s.r, seed++);
  ClipToHex(c);
  return c;
}

Canvas Urban(int size) {
  Canvas c = Hex();
  // Size 0 is the largest city, 5 a hamlet.
  const int houses[6] = {7, 8, 7, 6, 4, 2};
  const int blocks[6] = {6, 3, 1, 0, 0, 0};
  const float paved[6] = {15, 13, 11, 9, 0, 0};
  if (paved[size] > 0) {
    c.Fill(Ellipse(21, 21, paved[size] + 2, paved[size] * 0.8f + 1), C(196, 188, 170), 0.9f);
    c.Fill(Line({21 - paved[size], 22}, {21 + paved[size], 22}, 1.3f), C(170, 160, 140));
    c.Fill(Line({21, 22 - paved[size] * 0.7f}, {21, 22 + paved[size] * 0.7f}, 1.3f), C(170, 160, 140));
  }
  struct Item {
    float x, y;
    bool block;
    int k;
  };
  std::vector<Item> items;
  // Places spiral outwards from the centre, so small towns stay compact.
  const Pt places[16] = {{17, 14}, {24, 17}, {14, 22}, {24, 25}, {30, 12}, {8, 15}, {31, 21}, {17, 28},
                         {10, 27}, {30, 28}, {21, 7},  {13, 8},  {6, 21},  {35, 17}, {25, 32}, {20, 21}};
  int placed = 0;
  for (int i = 0; i < blocks[size] + houses[size]; ++i) {
    items.push_back({places[placed].x, places[placed].y, i < blocks[size], placed});
    ++placed;
  }
  if (size >= 3) {
    // Villages gather round their middle.
    for (Item& it : items) {
      it.x = 21 + (it.x - 21) * 0.8f;
      it.y = 20 + (it.y - 20) * 0.8f;
    }
  }
  std::sort(items.begin(), items.end(), [](const Item& p, const Item& q) { return p.y < q.y; });
  const RGB roofs[4] = {C(184, 72, 48), C(158, 58, 40), C(120, 84, 62), C(196, 96, 56)};
  const RGB flats[3] = {C(150, 150, 156), C(128, 132, 140), C(170, 164, 150)};
  for (const Item& it : items) {
    if (it.block) {
      const float h = (size == 0 && it.k < 2) ? 6.0f : 3.0f;
      Block(c, it.x - 3.5f, it.y - 5 - h + 4, 7, 4, h, flats[it.k % 3]);
    } else {
      const float hw = size >= 4 ? 7.5f : 6.0f, hh = size >= 4 ? 6.5f : 5.0f;
      House(c, it.x - hw / 2, it.y - hh / 2, hw, hh, roofs[it.k % 4]);
    }
  }
  if (size == 0) {
    // The tower of the capital.
    c.Fill(Rect(20, 3, 23, 13), C(140, 132, 124));
    c.Fill(Polygon({{19.5f, 3.5f}, {21.5f, -0.5f}, {23.5f, 3.5f}}), C(90, 110, 120));
    c.Stroke({{20, 3}, {23, 3}, {23, 13}, {20, 13}}, C(60, 56, 52), 0.6f);
  }
  ClipToHex(c);
  return c;
}

Canvas UrbanAlt(int size) {
  // Whitewashed walls and flat roofs with domes, for peoples of the south.
  Canvas c = Hex();
  const int count[6] = {12, 10, 8, 6, 4, 2};
  const Pt places[12] = {{21, 15}, {14, 20}, {28, 21}, {20, 27}, {13, 12}, {29, 12},
                         {8, 25},  {33, 27}, {26, 33}, {14, 31}, {21, 7},  {34, 18}};
  std::vector<Pt> items(places, places + count[size]);
  std::sort(items.begin(), items.end(), [](const Pt& p, const Pt& q) { return p.y < q.y; });
  int k = 0;
  for (const Pt& p : items) {
    const float w = 6, h = 4;
    c.Fill(Rect(p.x - w / 2 + 1, p.y - h / 2 + 1, p.x + w / 2 + 1, p.y + h / 2 + 1), C(60, 50, 40), 0.4f);
    c.Fill(Rect(p.x - w / 2, p.y - h / 2, p.x + w / 2, p.y + h / 2), C(236, 226, 204));
    c.Fill(Rect(p.x - w / 2, p.y + h / 2 - 1.2f, p.x + w / 2, p.y + h / 2), C(200, 184, 156));
    c.Stroke({{p.x - w / 2, p.y - h / 2}, {p.x + w / 2, p.y - h / 2}, {p.x + w / 2, p.y + h / 2}, {p.x - w / 2, p.y + h / 2}},
             C(120, 104, 84), 0.5f);
    if (k % 3 == 0) {
      c.Fill(Ellipse(p.x, p.y - h / 2, 2.2f, 2.0f), C(60, 130, 150));
      c.Fill(Circle(p.x - 0.7f, p.y - h / 2 - 0.7f, 0.7f), C(150, 210, 220));
    }
    ++k;
  }
  ClipToHex(c);
  return c;
}

Canvas Swamp() {
  Canvas c = Hex();
  const Pt pools[5] = {{13, 14}, {27, 13}, {20, 23}, {10, 27}, {31, 27}};
  for (int i = 0; i < 5; ++i) {
    const float rx = 4.5f + Hash(i, 1, 501) * 2, ry = 2.0f + Hash(i, 2, 501);
    c.Fill(Ellipse(pools[i].x, pools[i].y, rx + 1.0f, ry + 1.0f), C(84, 78, 44), 0.9f);
    c.Fill(Ellipse(pools[i].x, pools[i].y, rx, ry), C(50, 98, 112));
    c.Fill(Line({pools[i].x - rx * 0.5f, pools[i].y - ry * 0.3f}, {pools[i].x + rx * 0.2f, pools[i].y - ry * 0.3f}, 0.7f),
           C(150, 196, 196));
  }
  // Reeds in tufts between the pools.
  for (int i = 0; i < 16; ++i) {
    const float x = 6 + Hash(i, 3, 502) * 31, y = 8 + Hash(i, 4, 502) * 26;
    if (EdgeDistance(x, y) < 3) continue;
    for (int k = -1; k <= 1; ++k) {
      c.Fill(Line({x + k * 1.1f, y + 1.5f}, {x + k * 1.7f, y - 3.0f}, 0.8f), C(40, 70, 30));
    }
    c.Fill(Ellipse(x + 0.2f, y - 2.6f, 0.5f, 1.0f), C(112, 74, 40));
  }
  ClipToHex(c);
  return c;
}

Canvas Mountain() {
  Canvas c = Hex();
  struct Peak {
    float x, base, top, half;
  };
  const Peak peaks[3] = {{12, 30, 12, 10}, {30, 31, 13, 10}, {21, 33, 4, 13}};
  for (const Peak& p : peaks) {
    const Pt top{p.x, p.top};
    const Pt left{p.x - p.half, p.base};
    const Pt right{p.x + p.half, p.base};
    const Pt foot{p.x + 1.5f, p.base};
    c.Fill(Polygon({left, top, right}), C(150, 134, 112));
    c.Fill(Polygon({top, right, foot}), C(104, 92, 80));
    // Snow on the upper third.
    const float t = 0.3f;
    const Pt sl = Lerp(top, left, t), sr = Lerp(top, right, t), sm = Lerp(top, foot, t * 1.1f);
    c.Fill(Polygon({top, sl, sm, sr}), C(244, 244, 240));
    c.Fill(Polygon({top, sm, sr}), C(196, 204, 214));
    c.Stroke({left, top, right}, C(70, 60, 50), 0.7f, false);
  }
  ClipToHex(c);
  return c;
}

Canvas Water(int side, bool dark) {
  Canvas c = Hex();
  Pt a, b, ai, bi, am, bm;
  SideCorners(side, a, b, -0.6f);
  SideCorners(side, ai, bi, 4.6f);
  SideCorners(side, am, bm, 2.2f);
  c.Fill(Polygon({a, b, bi, ai}), kWater);
  // The bank, and a glint on the water.
  c.Fill(Line(ai, bi, 1.3f), kBank);
  c.Fill(Line(Lerp(am, bm, 0.25f), Lerp(am, bm, 0.55f), 0.7f), C(150, 192, 230), 0.8f);
  ClipToHex(c);
  if (dark) DarkenAll(c);
  return c;
}

Canvas Road(int side) {
  Canvas c = Hex();
  const Pt end = SideMiddle(side);
  // Run a little past the side so that two halves of a road always meet.
  const Pt past = Lerp(kCentre, end, 1.06f);
  c.Fill(Line(kCentre, past, 4.2f), C(120, 96, 64));
  c.Fill(Line(kCentre, past, 2.6f), C(206, 180, 130));
  ClipToHex(c);
  return c;
}

Canvas Entrenchment(int level, int side) {
  Canvas c = Hex();
  Pt a, b;
  SideCorners(side, a, b, 5.6f);
  const Pt s = Lerp(a, b, 0.08f), e = Lerp(a, b, 0.92f);
  const RGB earth = C(92, 60, 30), light = C(200, 170, 110);
  if (level == 1) {
    // Dug-in foxholes: a row of earth mounds.
    for (int i = 0; i < 5; ++i) {
      const Pt p = Lerp(s, e, i / 4.0f);
      c.Fill(Circle(p.x, p.y, 2.0f), earth);
      c.Fill(Circle(p.x - 0.5f, p.y - 0.5f, 0.9f), light);
    }
  } else if (level == 2) {
    // Trenches: an earth bank topped with sandbags.
    c.Fill(Line(s, e, 4.0f), earth);
    for (int i = 0; i < 6; ++i) {
      const Pt p = Lerp(s, e, (i + 0.5f) / 6.0f);
      c.Fill(Ellipse(p.x, p.y, 1.5f, 1.2f), light);
    }
  } else {
    // Fortifications: a concrete wall with bastions.
    c.Fill(Line(s, e, 4.2f), C(50, 50, 54));
    c.Fill(Line(s, e, 2.4f), C(176, 176, 180));
    for (int i = 0; i < 3; ++i) {
      const Pt p = Lerp(s, e, i / 2.0f);
      c.Fill(Rect(p.x - 2.4f, p.y - 2.4f, p.x + 2.4f, p.y + 2.4f), C(50, 50, 54));
      c.Fill(Rect(p.x - 1.4f, p.y - 1.4f, p.x + 1.4f, p.y + 1.4f), C(196, 196, 200));
    }
  }
  ClipToHex(c);
  return c;
}

}  // namespace art
