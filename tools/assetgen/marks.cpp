// Marks drawn over hexes (highlight, towns without output, damage, hidden
// hexes, news of the last turn, attack joining) and the icons of the panel.
#include <cmath>

#include "art.h"

namespace art {
namespace {

const RGB kInk = C(30, 30, 32);
const RGB kRed = C(214, 34, 30);

Canvas Hex() { return Canvas(kHexW, kHexH); }

void ClipToHex(Canvas& c) {
  c.ClipToHexOutline();
}

// A round plate that icons stand on, so they read on any panel colour.
void Plate(Canvas& c, RGB fill) {
  c.Fill(Circle(21, 20, 14.5f), C(60, 58, 54));
  c.Fill(Circle(21, 20, 13.5f), fill);
  c.Fill(Intersect(Circle(21, 20, 13.5f), Rect(0, 0, 43, 12)), Tint(fill, 0.3f));
}

void Crate(Canvas& c, float cx, float cy, float s) {
  c.Fill(Rect(cx - s, cy - s * 0.8f, cx + s, cy + s * 0.8f), C(178, 128, 62));
  c.Stroke({{cx - s, cy - s * 0.8f}, {cx + s, cy - s * 0.8f}, {cx + s, cy + s * 0.8f}, {cx - s, cy + s * 0.8f}},
           C(90, 58, 24), 0.9f);
  c.Fill(Line({cx - s, cy - s * 0.8f}, {cx + s, cy + s * 0.8f}, 0.8f), C(120, 80, 36));
  c.Fill(Line({cx - s, cy + s * 0.8f}, {cx + s, cy - s * 0.8f}, 0.8f), C(120, 80, 36));
}

void Factory(Canvas& c, float x, float y, RGB ink) {
  c.Fill(Polygon({{x, y + 6}, {x, y + 1}, {x + 2.5f, y + 2.5f}, {x + 2.5f, y + 1}, {x + 5, y + 2.5f}, {x + 5, y - 2},
                  {x + 6.5f, y - 2}, {x + 6.5f, y + 6}}),
         ink);
}

}  // namespace

Canvas Highlight() {
  Canvas c = Hex();
  c.Stroke(HexCorners(1.1f), C(255, 226, 40), 2.2f);
  c.Stroke(HexCorners(2.6f), C(120, 90, 0), 0.7f);
  ClipToHex(c);
  return c;
}

Canvas NoProduction(int kind) {
  Canvas c = Hex();
  // A factory with a bar across it, low in the town's hex.
  const RGB plate = kind == 1 ? C(250, 236, 200) : C(252, 214, 150);
  c.Fill(RoundRect(4.5f, 26, 16.5f, 36, 2), C(50, 40, 30));
  c.Fill(RoundRect(5.5f, 27, 15.5f, 35, 1.5f), plate);
  Factory(c, 7.2f, 28, C(70, 64, 58));
  c.Fill(Line({6.5f, 34}, {14.5f, 28}, 1.4f), kind == 1 ? kRed : C(214, 110, 20));
  ClipToHex(c);
  return c;
}

Canvas Damage() {
  Canvas c = Hex();
  // Rubble and fires, with smoke drifting to the upper right.
  for (int i = 0; i < 7; ++i) {
    const float x = 9 + Hash(i, 1, 805) * 24, y = 21 + Hash(i, 2, 805) * 12;
    c.Fill(Ellipse(x, y, 2.2f, 1.2f), C(60, 54, 50));
  }
  for (int i = 0; i < 5; ++i) {
    const float x = 26 + i * 2.4f, y = 14 - i * 2.2f;
    c.Fill(Circle(x, y, 2.8f + i * 0.4f), C(90, 88, 86), 0.75f);
  }
  const Pt fires[3] = {{15, 27}, {23, 24}, {28, 29}};
  for (const Pt& f : fires) {
    c.Fill(Polygon({{f.x - 2.6f, f.y + 1.5f}, {f.x - 1.2f, f.y - 3.5f}, {f.x, f.y - 1.5f}, {f.x + 1.0f, f.y - 5.0f},
                    {f.x + 2.6f, f.y + 1.5f}}),
           C(236, 96, 24));
    c.Fill(Polygon({{f.x - 1.3f, f.y + 1.5f}, {f.x - 0.2f, f.y - 2.0f}, {f.x + 1.3f, f.y + 1.5f}}), C(255, 214, 70));
  }
  ClipToHex(c);
  return c;
}

Canvas Hidden() {
  Canvas c = Hex();
  // A veil of fine diagonal lines: the terrain still shows between them.
  for (int y = 0; y < kHexH; ++y) {
    for (int x = 0; x < kHexW; ++x) {
      if ((x + y) % 3 == 0) c.Set(x, y, C(54, 58, 74));
    }
  }
  ClipToHex(c);
  return c;
}

Canvas ShadowMark() {
  Canvas c = Hex();
  for (int y = 0; y < kHexH; ++y) {
    for (int x = 0; x < kHexW; ++x) {
      if ((x + y) % 2 == 0) c.Set(x, y, C(16, 16, 20));
    }
  }
  ClipToHex(c);
  return c;
}

Canvas NewsMark(int mark) {
  Canvas c = Hex();
  if (mark >= 1 && mark <= 6) {
    // An attack that came from side `mark`: an arrow from that side inwards.
    const Pt from = Lerp(kCentre, SideMiddle(mark), 0.97f);
    const Pt tip = Lerp(kCentre, SideMiddle(mark), 0.05f);
    const float dx = tip.x - from.x, dy = tip.y - from.y;
    const float len = std::hypot(dx, dy);
    const Pt dir{dx / len, dy / len}, nrm{-dy / len, dx / len};
    const Pt neck{tip.x - dir.x * 7, tip.y - dir.y * 7};
    const std::vector<Pt> head = {tip, {neck.x + nrm.x * 5.2f, neck.y + nrm.y * 5.2f}, {neck.x - nrm.x * 5.2f, neck.y - nrm.y * 5.2f}};
    c.Fill(Line(from, neck, 5.4f), kInk);
    c.Fill(Polygon({{tip.x + dir.x * 1.2f, tip.y + dir.y * 1.2f},
                    {neck.x + nrm.x * 6.6f - dir.x * 0.8f, neck.y + nrm.y * 6.6f - dir.y * 0.8f},
                    {neck.x - nrm.x * 6.6f - dir.x * 0.8f, neck.y - nrm.y * 6.6f - dir.y * 0.8f}}),
           kInk);
    c.Fill(Line(from, neck, 3.2f), kRed);
    c.Fill(Polygon(head), kRed);
  } else if (mark == 7) {
    // Bombardment: a shell burst.
    std::vector<Pt> burst;
    for (int i = 0; i < 16; ++i) {
      const float a = i * 0.3926991f;
      const float r = (i % 2) ? 4.0f : 9.0f;
      burst.push_back({21 + r * std::cos(a), 20 + r * std::sin(a)});
    }
    std::vector<Pt> edge;
    for (const Pt& p : burst) edge.push_back(Lerp(kCentre, p, 1.18f));
    c.Fill(Polygon(edge), kInk);
    c.Fill(Polygon(burst), C(246, 130, 24));
    c.Fill(Circle(21, 20, 3.2f), C(255, 230, 90));
  } else if (mark == 8) {
    // Air attack: a bomber with a falling bomb.
    c.Fill(Circle(21, 20, 11), kInk);
    c.Fill(Circle(21, 20, 10), C(250, 236, 210));
    DrawPlane(c, 21, 17.5f, 12, kRed);
    c.Fill(Ellipse(21, 27.5f, 1.3f, 2.2f), kInk);
  } else {
    // A unit destroyed here: a black cross edged in red.
    c.Fill(Line({13, 12}, {29, 28}, 5.4f), kRed);
    c.Fill(Line({13, 28}, {29, 12}, 5.4f), kRed);
    c.Fill(Line({13, 12}, {29, 28}, 3.4f), kInk);
    c.Fill(Line({13, 28}, {29, 12}, 3.4f), kInk);
  }
  ClipToHex(c);
  return c;
}

Canvas SpeedIcon(int kind) {
  Canvas c = Hex();
  Plate(c, C(226, 222, 206));
  switch (kind) {
    case 1: DrawGun(c, 21, 20, 20, kInk); break;
    case 2: DrawSoldier(c, 21, 20.5f, 20, kInk); break;
    case 3: DrawTank(c, 21, 21, 21, kInk); break;
    default: DrawTruck(c, 21, 20, 20, kInk); break;
  }
  return c;
}

Canvas SupplyIcon(int kind) {
  Canvas c = Hex();
  if (kind >= 1 && kind <= 6) {
    // A gauge of six bars, `kind` of them filled.
    Plate(c, C(226, 222, 206));
    for (int i = 0; i < 6; ++i) {
      const float x = 10.5f + i * 3.8f, top = 27 - (i + 1) * 2.2f;
      const RGB fill = i < kind ? Mix(C(220, 50, 30), C(40, 170, 40), kind / 6.0f) : C(190, 186, 172);
      c.Fill(Rect(x, top, x + 2.6f, 28), fill);
      c.Stroke({{x, top}, {x + 2.6f, top}, {x + 2.6f, 28}, {x, 28}}, C(70, 66, 60), 0.5f);
    }
    return c;
  }
  switch (kind) {
    case 7:  // over open shore
      Plate(c, C(200, 222, 236));
      Crate(c, 21, 17, 6);
      c.Fill(Polyline({{9, 27}, {13, 25}, {17, 27}, {21, 25}, {25, 27}, {29, 25}, {33, 27}}, 1.5f), C(40, 100, 180));
      c.Fill(Rect(9, 29, 33, 31), C(214, 190, 120));
      break;
    case 8:  // over land
      Plate(c, C(214, 232, 196));
      DrawTruck(c, 21, 22, 20, kInk);
      Crate(c, 17, 14, 3.5f);
      break;
    case 9:  // no supply reaches
      Plate(c, C(240, 214, 210));
      Crate(c, 21, 20, 6.5f);
      c.Fill(Line({12, 11}, {30, 29}, 2.6f), kRed);
      c.Fill(Line({12, 29}, {30, 11}, 2.6f), kRed);
      break;
    default:  // through a port
      Plate(c, C(200, 222, 236));
      DrawShip(c, 21, 23, 22, kInk);
      Crate(c, 16, 13.5f, 3.5f);
      break;
  }
  return c;
}

Canvas JoinMark(int kind) {
  Canvas c = Hex();
  if (kind == 1) {
    // Click to join the attack.
    c.Fill(Circle(21, 20, 9.5f), C(20, 60, 20));
    c.Fill(Circle(21, 20, 8.3f), C(90, 200, 80));
    c.Fill(Rect(19.6f, 14, 22.4f, 26), C(250, 250, 240));
    c.Fill(Rect(15, 18.6f, 27, 21.4f), C(250, 250, 240));
  } else if (kind == 2) {
    // Joined.
    c.Fill(Circle(21, 20, 9.5f), C(20, 60, 20));
    c.Fill(Circle(21, 20, 8.3f), C(40, 150, 50));
    c.Fill(Polyline({{16, 20}, {20, 24.5f}, {27, 15}}, 2.6f), C(250, 250, 240));
  } else {
    // The target of the attack.
    c.Fill(Ring(21, 20, 11, 2.2f), kRed);
    c.Fill(Ring(21, 20, 5, 1.4f), kRed);
    for (int s = 0; s < 4; ++s) {
      const float a = s * 1.5707963f;
      c.Fill(Line({21 + 7 * std::cos(a), 20 + 7 * std::sin(a)}, {21 + 15 * std::cos(a), 20 + 15 * std::sin(a)}, 1.6f), kRed);
    }
    ClipToHex(c);
  }
  return c;
}

}  // namespace art
