#include "scene.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace art {
namespace {
const RGB kInkLine = C(26, 26, 22);
}

void Shaded(Canvas& c, const Shape& s, RGB base, float light, float dark) {
  const float y0 = s.y0, y1 = s.y1;
  c.FillFn(s, [=](float, float y) {
    const float t = std::clamp((y - y0) / std::max(1.0f, y1 - y0), 0.0f, 1.0f);
    return Mix(Tint(base, light), Shade(base, dark), t);
  });
}

void Outline(Canvas& layer, RGB ink) {
  // One drawing pixel thick at any scale, following the shape's fine edge.
  const int s = layer.Scale();
  std::vector<std::pair<int, int>> edge;
  layer.ForEachFine([&](const Canvas::Fine& p) {
    if (layer.FineAlpha(p.X, p.Y) < 0.5f) return;
    for (int d = 1; d <= s; ++d) {
      if (layer.FineAlpha(p.X - d, p.Y) < 0.5f || layer.FineAlpha(p.X + d, p.Y) < 0.5f ||
          layer.FineAlpha(p.X, p.Y - d) < 0.5f || layer.FineAlpha(p.X, p.Y + d) < 0.5f) {
        edge.push_back({p.X, p.Y});
        return;
      }
    }
  });
  for (const auto& [X, Y] : edge) layer.FineSet(X, Y, Mix(layer.FineAt(X, Y), ink, 0.8f));
}

void Gradient(Canvas& c, float y0, float y1, RGB top, RGB bottom) {
  c.FillFn(Rect(-1, y0, static_cast<float>(c.Width()) + 1, y1), [=](float, float y) {
    return Mix(top, bottom, std::clamp((y - y0) / std::max(1.0f, y1 - y0), 0.0f, 1.0f));
  });
}

void Frame(Canvas& c) {
  const float w = static_cast<float>(c.Width()) - 1, h = static_cast<float>(c.Height()) - 1;
  c.Stroke({{0, 0}, {w, 0}, {w, h}, {0, h}}, C(30, 28, 26), 1.0f);
}

void Cloud(Canvas& c, float x, float y, float s, RGB colour, float opacity) {
  Shape shape = Ellipse(x, y, s * 1.6f, s * 0.55f);
  shape = Union(shape, Circle(x - s * 0.6f, y - s * 0.3f, s * 0.6f));
  shape = Union(shape, Circle(x + s * 0.3f, y - s * 0.5f, s * 0.75f));
  shape = Union(shape, Circle(x + s * 1.0f, y - s * 0.1f, s * 0.5f));
  c.FillFn(shape, [=](float, float yy) { return Mix(colour, Shade(colour, 0.86f), std::clamp((yy - y + s) / (2 * s), 0.0f, 1.0f)); },
           opacity);
}

void LandBackdrop(Canvas& c, float horizon, int seed) {
  const float w = static_cast<float>(c.Width()), h = static_cast<float>(c.Height());
  Gradient(c, -1, horizon + 1, C(138, 176, 214), C(222, 228, 226));
  Cloud(c, w * (0.2f + 0.2f * Hash(seed, 1, 9)), horizon * 0.35f, h * 0.07f, C(250, 250, 246), 0.85f);
  Cloud(c, w * (0.7f + 0.15f * Hash(seed, 2, 9)), horizon * 0.25f, h * 0.05f, C(250, 250, 246), 0.75f);
  // Far hills, then the ground.
  std::vector<Pt> hills{{-1, horizon + 1}};
  for (float x = -1; x <= w + 1; x += 4) {
    hills.push_back({x, horizon - 3 - 4 * Noise(x / 18.0f, 0.5f, seed)});
  }
  hills.push_back({w + 1, horizon + 1});
  c.Fill(Polygon(hills), C(140, 158, 146));
  c.FillFn(Rect(-1, horizon, w + 1, h + 1), [=](float x, float y) {
    const float t = (y - horizon) / std::max(1.0f, h - horizon);
    const RGB g = Mix(C(150, 164, 96), C(104, 122, 62), t);
    return Shade(g, 0.94f + 0.12f * Noise(x / 6.0f, y / 3.0f, seed + 3));
  });
}

void SeaBackdrop(Canvas& c, float horizon, int seed) {
  const float w = static_cast<float>(c.Width()), h = static_cast<float>(c.Height());
  Gradient(c, -1, horizon + 1, C(130, 170, 210), C(216, 226, 232));
  Cloud(c, w * (0.25f + 0.2f * Hash(seed, 1, 9)), horizon * 0.4f, h * 0.07f, C(250, 250, 246), 0.85f);
  Cloud(c, w * 0.78f, horizon * 0.3f, h * 0.05f, C(250, 250, 246), 0.7f);
  c.FillFn(Rect(-1, horizon, w + 1, h + 1), [=](float, float y) {
    return Mix(C(70, 116, 160), C(28, 64, 108), (y - horizon) / std::max(1.0f, h - horizon));
  });
  Waves(c, horizon + 2, C(150, 186, 214), seed);
}

void SkyBackdrop(Canvas& c, int seed) {
  const float w = static_cast<float>(c.Width()), h = static_cast<float>(c.Height());
  Gradient(c, -1, h + 1, C(96, 146, 206), C(200, 218, 234));
  Cloud(c, w * 0.18f, h * 0.78f, h * 0.1f, C(252, 252, 250), 0.9f);
  Cloud(c, w * (0.6f + 0.2f * Hash(seed, 3, 9)), h * 0.86f, h * 0.12f, C(252, 252, 250), 0.9f);
  Cloud(c, w * 0.85f, h * 0.22f, h * 0.06f, C(252, 252, 250), 0.6f);
}

void Waves(Canvas& c, float from, RGB colour, int seed) {
  const float w = static_cast<float>(c.Width()), h = static_cast<float>(c.Height());
  int i = 0;
  for (float y = from; y < h; y += 3.0f + (y - from) * 0.12f) {
    for (float x = -4 + 9 * Hash(i, 0, seed); x < w; x += 10 + 8 * Hash(i, 1, seed), ++i) {
      const float len = 2 + (y - from) * 0.12f;
      c.Fill(Line({x, y}, {x + len, y - 0.3f}, 0.7f), colour, 0.7f);
    }
  }
}

void TankSide(Canvas& c, float x, float g, const TankSpec& t) {
  Canvas layer(c.Width(), c.Height());
  const float L = t.length, th = t.hull;
  const float trackH = th * 0.75f;
  // Tracks and road wheels.
  layer.Fill(RoundRect(x, g - trackH, x + L, g, trackH / 2), C(52, 52, 46));
  for (int i = 0; i < t.wheels; ++i) {
    const float wx = x + trackH * 0.55f + i * (L - trackH * 1.1f) / std::max(1, t.wheels - 1);
    layer.Fill(Circle(wx, g - trackH / 2, trackH * 0.38f), C(96, 96, 84));
    layer.Fill(Circle(wx, g - trackH / 2, trackH * 0.14f), C(40, 40, 36));
  }
  // Hull with a sloped glacis at the front.
  const float top = g - trackH - th * 0.6f;
  Shaded(layer,
       Polygon({{x - 1, g - trackH * 0.8f}, {x + 1, top}, {x + L - th * 0.9f, top}, {x + L + 2, g - trackH * 0.9f},
                {x + L, g - trackH * 0.6f}, {x, g - trackH * 0.6f}}),
       t.base);
  // Turret and gun.
  const float tx = x + L * 0.42f;
  Shaded(layer,
       Polygon({{tx - t.turretW / 2, top}, {tx - t.turretW / 2 + 1.5f, top - t.turretH}, {tx + t.turretW / 2 - 1.5f, top - t.turretH},
                {tx + t.turretW / 2 + 1.5f, top}}),
       t.base);
  layer.Fill(Line({tx + t.turretW / 2, top - t.turretH * 0.55f}, {tx + t.turretW / 2 + t.gun, top - t.turretH * 0.6f},
                  std::max(1.2f, t.turretH * 0.28f)),
             Shade(t.base, 0.75f));
  layer.Fill(Rect(tx - t.turretW * 0.25f, top - t.turretH - 1.6f, tx, top - t.turretH + 0.2f), Shade(t.base, 0.85f));
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
}

void TruckSide(Canvas& c, float x, float g, float L, RGB base, int cargo) {
  Canvas layer(c.Width(), c.Height());
  const float k = L / 40.0f;
  const float r = 3.6f * k;
  // Chassis, cab, bonnet.
  layer.Fill(Rect(x, g - r - 2.5f * k, x + L, g - r), C(40, 40, 36));
  Shaded(layer, Polygon({{x + L * 0.68f, g - r - 1}, {x + L * 0.68f, g - r - 11 * k}, {x + L * 0.84f, g - r - 11 * k},
                       {x + L * 0.86f, g - r - 6 * k}, {x + L, g - r - 5.5f * k}, {x + L, g - r - 1}}),
       base);
  layer.Fill(Rect(x + L * 0.71f, g - r - 10 * k, x + L * 0.8f, g - r - 6.5f * k), C(170, 196, 210));
  if (cargo == 0) {
    Shaded(layer, RoundRect(x, g - r - 13 * k, x + L * 0.66f, g - r - 2, 3 * k), Mix(base, C(160, 150, 110), 0.45f));
    for (int i = 1; i < 4; ++i) {
      const float rx = x + L * 0.66f * i / 4;
      layer.Fill(Line({rx, g - r - 12.5f * k}, {rx, g - r - 2.5f}, 0.6f), Shade(base, 0.6f), 0.6f);
    }
  } else {
    Shaded(layer, Rect(x, g - r - 6 * k, x + L * 0.66f, g - r - 2), base);
    if (cargo == 1) {
      for (int i = 0; i < 3; ++i) {
        const float cx = x + 2 * k + i * 8.5f * k;
        Shaded(layer, Rect(cx, g - r - 13 * k, cx + 7.5f * k, g - r - 6 * k), C(176, 130, 70));
        layer.Fill(Line({cx, g - r - 13 * k}, {cx + 7.5f * k, g - r - 6 * k}, 0.6f), C(110, 76, 36));
      }
    }
  }
  for (float wx : {x + L * 0.18f, x + L * 0.42f, x + L * 0.84f}) {
    layer.Fill(Circle(wx, g - r, r), C(36, 36, 34));
    layer.Fill(Circle(wx, g - r, r * 0.45f), C(120, 120, 110));
  }
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
}

void ArmouredCar(Canvas& c, float x, float g, float L, RGB base) {
  Canvas layer(c.Width(), c.Height());
  const float k = L / 40.0f;
  const float r = 4.0f * k;
  Shaded(layer,
       Polygon({{x, g - r}, {x + 2 * k, g - r - 9 * k}, {x + L - 8 * k, g - r - 9 * k}, {x + L, g - r - 3 * k}, {x + L, g - r}}),
       base);
  Shaded(layer, Polygon({{x + L * 0.3f, g - r - 9 * k}, {x + L * 0.34f, g - r - 14 * k}, {x + L * 0.58f, g - r - 14 * k},
                       {x + L * 0.62f, g - r - 9 * k}}),
       base);
  layer.Fill(Line({x + L * 0.6f, g - r - 11.5f * k}, {x + L * 0.86f, g - r - 11.5f * k}, 1.4f * k), Shade(base, 0.7f));
  layer.Fill(Rect(x + L * 0.76f, g - r - 7 * k, x + L * 0.86f, g - r - 5.5f * k), C(40, 40, 36));
  for (float wx : {x + L * 0.18f, x + L * 0.42f, x + L * 0.8f}) {
    layer.Fill(Circle(wx, g - r, r), C(36, 36, 34));
    layer.Fill(Circle(wx, g - r, r * 0.45f), C(120, 120, 110));
  }
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
}

void StaffCar(Canvas& c, float x, float g, float L, RGB base, RGB pennant) {
  Canvas layer(c.Width(), c.Height());
  const float k = L / 40.0f;
  const float r = 3.8f * k;
  Shaded(layer,
       Polygon({{x, g - r}, {x + 1 * k, g - r - 6 * k}, {x + L * 0.62f, g - r - 7 * k}, {x + L, g - r - 5 * k},
                {x + L + 1 * k, g - r}}),
       base);
  // The folded hood and the windscreen.
  layer.Fill(Polygon({{x + 2 * k, g - r - 6 * k}, {x + 5 * k, g - r - 10 * k}, {x + 13 * k, g - r - 10 * k},
                      {x + 14 * k, g - r - 6.5f * k}}),
             C(50, 46, 40));
  layer.Fill(Line({x + L * 0.6f, g - r - 7 * k}, {x + L * 0.56f, g - r - 12 * k}, 1.0f), C(170, 196, 210));
  // An officer in his seat.
  layer.Fill(Circle(x + L * 0.42f, g - r - 11 * k, 2.2f * k), C(226, 186, 150));
  layer.Fill(Ellipse(x + L * 0.42f, g - r - 12.6f * k, 2.8f * k, 1.1f * k), Shade(base, 0.7f));
  layer.Fill(Rect(x + L * 0.38f, g - r - 9 * k, x + L * 0.47f, g - r - 6.5f * k), Shade(base, 0.8f));
  for (float wx : {x + L * 0.2f, x + L * 0.8f}) {
    layer.Fill(Circle(wx, g - r, r), C(36, 36, 34));
    layer.Fill(Circle(wx, g - r, r * 0.5f), C(190, 190, 180));
  }
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
  // Pennants on the front wings.
  const float px = x + L * 0.9f, py = g - r - 5.5f * k;
  c.Fill(Line({px, py}, {px, py - 7 * k}, 0.7f), C(40, 40, 40));
  c.Fill(Polygon({{px + 0.3f, py - 7 * k}, {px + 5 * k, py - 5.6f * k}, {px + 0.3f, py - 4.2f * k}}), pennant);
}

void ShipSide(Canvas& c, float x, float wl, const ShipSpec& s) {
  Canvas layer(c.Width(), c.Height());
  const float L = s.length;
  const float deck = wl - s.freeboard;
  // Hull: square stern, raked bow.
  Shaded(layer,
       Polygon({{x, deck + 1}, {x + L * 0.9f, deck}, {x + L + 2, deck - 2}, {x + L * 0.93f, wl + s.draft},
                {x + 3, wl + s.draft}, {x, wl}}),
       s.hull, 0.15f, 0.6f);
  layer.Fill(Rect(x + 1, wl - 0.5f, x + L * 0.95f, wl + s.draft), Mix(s.hull, C(120, 40, 36), 0.5f));
  if (s.flatDeck) {
    // A flight deck over the whole length, the island to starboard.
    Shaded(layer, Rect(x - 2, deck - 4, x + L + 3, deck - 1.2f), C(120, 112, 100));
    layer.Fill(Line({x + 4, deck - 2.6f}, {x + L - 2, deck - 2.6f}, 0.4f), C(230, 230, 220), 0.8f);
    Shaded(layer, Rect(x + L * 0.62f, deck - 4 - s.bridge, x + L * 0.76f, deck - 4), s.upper);
    layer.Fill(Rect(x + L * 0.66f, deck - 7 - s.bridge, x + L * 0.72f, deck - 4 - s.bridge), C(40, 40, 40));
  } else {
    // Superstructure, funnels, turrets, masts.
    const float bx0 = x + L * 0.36f, bx1 = x + L * 0.62f;
    Shaded(layer, Rect(bx0, deck - s.bridge * 0.55f, bx1, deck), s.upper);
    Shaded(layer, Rect(bx0 + (bx1 - bx0) * 0.45f, deck - s.bridge, bx1, deck - s.bridge * 0.5f), s.upper);
    layer.Fill(Rect(bx0 + (bx1 - bx0) * 0.55f, deck - s.bridge * 0.86f, bx1 - 1, deck - s.bridge * 0.74f), C(40, 50, 60));
    for (int f = 0; f < s.funnels; ++f) {
      const float fx = bx0 + 2 + f * (L * 0.08f);
      Shaded(layer, Polygon({{fx, deck - s.bridge * 0.5f}, {fx + 0.8f, deck - s.bridge * 1.05f}, {fx + 4.6f, deck - s.bridge * 1.05f},
                           {fx + 4.4f, deck - s.bridge * 0.5f}}),
           s.upper);
      layer.Fill(Rect(fx + 0.8f, deck - s.bridge * 1.05f, fx + 4.6f, deck - s.bridge * 0.96f), C(30, 30, 30));
    }
    layer.Fill(Line({bx1 - 2, deck - s.bridge}, {bx1 - 2, deck - s.bridge * 1.7f}, 0.8f), C(50, 50, 50));
    auto turret = [&](float tx, bool fore) {
      const float tw = 5.5f * s.turret, th = 2.6f * s.turret;
      Shaded(layer, RoundRect(tx - tw / 2, deck - th, tx + tw / 2, deck + 0.2f, 1.0f), s.upper);
      const float dir = fore ? 1.0f : -1.0f;
      layer.Fill(Line({tx + dir * tw * 0.3f, deck - th * 0.55f}, {tx + dir * (tw * 0.3f + 6 * s.turret), deck - th * 0.75f},
                      0.9f * s.turret),
                 Shade(s.upper, 0.6f));
    };
    for (int i = 0; i < s.turretsFore; ++i) turret(x + L * (0.8f - i * 0.1f), true);
    for (int i = 0; i < s.turretsAft; ++i) turret(x + L * (0.18f + i * 0.1f), false);
    if (s.cranes) {
      for (float cx : {x + L * 0.2f, x + L * 0.78f}) {
        layer.Fill(Line({cx, deck}, {cx, deck - s.bridge * 1.2f}, 1.2f), C(70, 60, 50));
        layer.Fill(Line({cx, deck - s.bridge * 1.1f}, {cx + 9, deck - s.bridge * 0.4f}, 0.8f), C(70, 60, 50));
        Shaded(layer, Rect(cx - 6, deck - 3, cx + 5, deck), C(160, 110, 60));
      }
    }
    if (s.portholes) {
      for (float px = x + 5; px < x + L * 0.9f; px += 3.5f) {
        layer.Fill(Circle(px, deck + 2, 0.7f), C(236, 226, 170));
        if (px > bx0 - 6 && px < bx1 + 6) layer.Fill(Circle(px, deck - 2.5f, 0.7f), C(236, 226, 170));
      }
    }
  }
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
}

void PlaneSide(Canvas& c, float x, float y, const PlaneSpec& p) {
  Canvas layer(c.Width(), c.Height());
  const float L = p.length, b = p.body;
  const float ca = std::cos(p.angle), sa = std::sin(p.angle);
  // Points of the plane in its own frame (nose towards +u), turned and moved.
  auto P = [&](float u, float v) { return Pt{x + u * ca - v * sa, y + u * sa + v * ca}; };
  auto poly = [&](std::initializer_list<Pt> pts) {
    std::vector<Pt> out;
    for (const Pt& q : pts) out.push_back(P(q.x, q.y));
    return Polygon(out);
  };
  const float nose = L / 2, tail = -L / 2;
  auto camo = [&](float px, float py) {
    // Upper surfaces in the camouflage colour, the belly lighter.
    const float v = -(px - x) * sa + (py - y) * ca;
    return v < b * 0.15f ? Mix(Tint(p.top, 0.2f), p.top, std::clamp((v + b) / b, 0.0f, 1.0f)) : p.under;
  };
  // Tail fin and tailplane.
  layer.FillFn(poly({{tail + 1, -b * 0.3f}, {tail - 0.5f, -b * 1.9f}, {tail + L * 0.1f, -b * 1.9f}, {tail + L * 0.2f, -b * 0.3f}}), camo);
  // Fuselage.
  layer.FillFn(poly({{tail, -b * 0.35f}, {tail + L * 0.25f, -b * 0.55f}, {nose - L * 0.16f, -b * 0.6f}, {nose - 1, -b * 0.3f},
                     {nose, b * 0.05f}, {nose - 1.5f, b * 0.45f}, {nose - L * 0.2f, b * 0.55f}, {tail + L * 0.3f, b * 0.35f},
                     {tail, 0}}),
               camo);
  layer.Fill(poly({{tail + L * 0.02f, -b * 0.02f}, {tail + L * 0.22f, -b * 0.05f}, {tail + L * 0.22f, b * 0.12f},
                   {tail + L * 0.02f, b * 0.08f}}),
             Shade(p.top, 0.7f));
  // Canopy or glazed nose.
  if (p.glassNose) {
    layer.Fill(poly({{nose - L * 0.1f, -b * 0.55f}, {nose - 1, -b * 0.3f}, {nose, b * 0.05f}, {nose - 1.5f, b * 0.4f},
                     {nose - L * 0.1f, b * 0.2f}}),
               C(170, 206, 226));
  }
  const float cockpit = p.engines == 1 ? L * 0.02f : L * 0.18f;
  layer.Fill(EllipseRot(P(cockpit, -b * 0.55f).x, P(cockpit, -b * 0.55f).y, L * 0.09f, b * 0.32f, p.angle), C(150, 190, 214));
  if (p.windows) {
    for (float u = tail + L * 0.32f; u < nose - L * 0.25f; u += L * 0.06f) {
      const Pt w = P(u, -b * 0.15f);
      layer.Fill(Rect(w.x - 0.7f, w.y - 0.7f, w.x + 0.7f, w.y + 0.7f), C(200, 220, 230));
    }
  }
  // The wing seen edge on, and engines.
  const float wingV = p.gullWing ? b * 0.25f : b * 0.3f;
  layer.FillFn(poly({{-L * 0.12f, wingV - 0.9f}, {L * 0.12f, wingV - 1.1f}, {L * 0.14f, wingV + 0.5f}, {-L * 0.12f, wingV + 0.9f}}),
               [&](float, float) { return Shade(p.top, 0.8f); });
  if (p.gullWing) {
    layer.Fill(poly({{-L * 0.02f, wingV}, {L * 0.06f, wingV + b * 0.6f}, {L * 0.1f, wingV + b * 0.6f}, {L * 0.04f, wingV}}),
               Shade(p.top, 0.7f));
  }
  if (p.engines == 1) {
    layer.Fill(poly({{nose - 0.5f, -b * 0.25f}, {nose + 1.5f, -b * 0.05f}, {nose + 1.5f, b * 0.15f}, {nose - 0.5f, b * 0.35f}}),
               C(60, 60, 60));
    const Pt hub = P(nose + 1.8f, b * 0.05f);
    layer.Fill(EllipseRot(hub.x, hub.y, 0.6f, b * 1.0f, p.angle), C(120, 120, 120), 0.55f);
  } else {
    const int shown = p.engines == 4 ? 2 : 1;
    for (int e = 0; e < shown; ++e) {
      const float eu = L * 0.1f - e * L * 0.09f, ev = wingV + 0.6f + e * 0.4f;
      layer.FillFn(poly({{eu - L * 0.14f, ev - b * 0.3f}, {eu + L * 0.04f, ev - b * 0.35f}, {eu + L * 0.06f, ev},
                         {eu + L * 0.04f, ev + b * 0.35f}, {eu - L * 0.1f, ev + b * 0.25f}}),
                   camo);
      const Pt hub = P(eu + L * 0.07f, ev);
      layer.Fill(EllipseRot(hub.x, hub.y, 0.5f, b * 0.8f, p.angle), C(120, 120, 120), 0.55f);
    }
  }
  // An emblem on the flank: a pale disc with a dark ring.
  const Pt mark = P(tail + L * 0.35f, 0);
  layer.Fill(Circle(mark.x, mark.y, b * 0.32f), C(40, 40, 40));
  layer.Fill(Circle(mark.x, mark.y, b * 0.22f), C(236, 232, 214));
  if (p.floats) {
    layer.Fill(poly({{-L * 0.18f, b * 1.6f}, {L * 0.2f, b * 1.6f}, {L * 0.24f, b * 1.3f}, {-L * 0.16f, b * 1.3f}}), C(200, 196, 180));
    layer.Fill(Line(P(-L * 0.05f, wingV + 0.5f), P(-L * 0.05f, b * 1.35f), 0.6f), C(60, 60, 60));
    layer.Fill(Line(P(L * 0.08f, wingV + 0.5f), P(L * 0.08f, b * 1.35f), 0.6f), C(60, 60, 60));
  }
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
}

void SoldierSide(Canvas& c, float x, float g, float h, RGB u, int pose) {
  Canvas layer(c.Width(), c.Height());
  const float k = h / 24.0f;
  const RGB boots = C(40, 34, 28), skin = C(222, 178, 140);
  const float hip = g - 10 * k, shoulder = g - 18 * k;
  const float lean = pose == 0 ? 2.5f * k : 0.0f;
  // Legs.
  if (pose == 1) {
    layer.Fill(Line({x, hip}, {x - 0.5f * k, g - 1}, 2.6f * k), Shade(u, 0.8f));
    layer.Fill(Line({x + 1.2f * k, hip}, {x + 1.4f * k, g - 1}, 2.6f * k), Shade(u, 0.9f));
  } else {
    layer.Fill(Polyline({{x, hip}, {x - 2.5f * k, g - 5 * k}, {x - 4.5f * k, g - 1}}, 2.6f * k), Shade(u, 0.8f));
    layer.Fill(Polyline({{x + 0.5f * k, hip}, {x + 3 * k, g - 5.5f * k}, {x + 4.5f * k, g - 1}}, 2.6f * k), Shade(u, 0.95f));
  }
  layer.Fill(Ellipse(x - (pose == 1 ? 0 : 4.2f * k), g - 0.8f * k, 1.8f * k, 0.9f * k), boots);
  layer.Fill(Ellipse(x + (pose == 1 ? 1.8f * k : 5.2f * k), g - 0.8f * k, 1.8f * k, 0.9f * k), boots);
  // Body.
  Shaded(layer, Polygon({{x - 2 * k, hip + 0.5f}, {x - 2.2f * k + lean, shoulder}, {x + 2.6f * k + lean, shoulder},
                       {x + 2.4f * k, hip + 0.5f}}),
       u);
  if (pose == 3) Shaded(layer, RoundRect(x - 5 * k + lean, shoulder + 0.5f, x - 1.5f * k + lean, hip - 2 * k, 1.2f * k), C(120, 100, 60));
  // Head and helmet.
  const float hx = x + 0.5f * k + lean * 1.4f, hy = shoulder - 2.6f * k;
  layer.Fill(Circle(hx, hy, 2.0f * k), skin);
  layer.Fill(Intersect(Ellipse(hx - 0.2f * k, hy - 0.4f * k, 2.8f * k, 2.6f * k), Rect(hx - 4 * k, hy - 4 * k, hx + 4 * k, hy - 0.4f * k)),
             Shade(u, 0.75f));
  layer.Fill(Line({hx - 3 * k, hy - 0.3f * k}, {hx + 3 * k, hy - 0.3f * k}, 0.7f * k), Shade(u, 0.6f));
  // Arms and what they carry.
  if (pose == 0) {
    layer.Fill(Line({x + lean, shoulder + 1.5f * k}, {x + 5 * k + lean, shoulder + 3 * k}, 1.8f * k), Shade(u, 0.9f));
    layer.Fill(Line({x - 2 * k + lean, shoulder + 4.5f * k}, {x + 11 * k + lean, shoulder - 0.5f * k}, 1.0f * k), C(70, 50, 30));
  } else if (pose == 2) {
    layer.Fill(Line({x + lean, shoulder + 1.5f * k}, {x + 4 * k, shoulder + 6 * k}, 1.8f * k), Shade(u, 0.9f));
    layer.Fill(Line({x + 2 * k, shoulder - 2 * k}, {x + 6 * k, g - 2 * k}, 0.9f * k), C(110, 80, 50));
    layer.Fill(Polygon({{x + 5 * k, g - 3 * k}, {x + 7.5f * k, g - 3.5f * k}, {x + 7.8f * k, g}, {x + 5.6f * k, g}}), C(120, 120, 124));
  } else {
    layer.Fill(Line({x + lean, shoulder + 1.5f * k}, {x + 0.5f * k, hip}, 1.8f * k), Shade(u, 0.9f));
    layer.Fill(Line({x - 1 * k, shoulder - 3 * k}, {x + 1.5f * k, hip + 2 * k}, 0.9f * k), C(70, 50, 30));
  }
  Outline(layer, kInkLine);
  c.Draw(layer, 0, 0);
}

void Pine(Canvas& c, float x, float g, float h, RGB needles) {
  c.Fill(Rect(x - h * 0.04f, g - h * 0.2f, x + h * 0.04f, g), C(80, 56, 36));
  for (int i = 0; i < 3; ++i) {
    const float top = g - h + i * h * 0.22f, base = g - h * 0.15f - (2 - i) * h * 0.18f;
    const float half = h * (0.16f + i * 0.08f);
    c.Fill(Polygon({{x, top}, {x + half, base}, {x - half, base}}), Shade(needles, 1.0f - i * 0.08f));
  }
}

void BroadTree(Canvas& c, float x, float g, float h, RGB leaves) {
  c.Fill(Rect(x - h * 0.05f, g - h * 0.45f, x + h * 0.05f, g), C(86, 62, 40));
  c.Fill(Circle(x, g - h * 0.68f, h * 0.3f), leaves);
  c.Fill(Circle(x - h * 0.18f, g - h * 0.58f, h * 0.2f), Shade(leaves, 0.9f));
  c.Fill(Circle(x + h * 0.16f, g - h * 0.56f, h * 0.2f), Shade(leaves, 0.82f));
  c.Fill(Circle(x - h * 0.08f, g - h * 0.78f, h * 0.14f), Tint(leaves, 0.2f));
}

void HouseFront(Canvas& c, float x, float g, float w, float h, RGB wall, RGB roof) {
  Shaded(c, Rect(x, g - h, x + w, g), wall, 0.1f, 0.85f);
  c.Fill(Polygon({{x - 1.5f, g - h + 0.5f}, {x + w / 2, g - h - w * 0.45f}, {x + w + 1.5f, g - h + 0.5f}}), roof);
  c.Stroke({{x - 1.5f, g - h + 0.5f}, {x + w / 2, g - h - w * 0.45f}, {x + w + 1.5f, g - h + 0.5f}}, Shade(roof, 0.5f), 0.7f, false);
  for (float wx = x + w * 0.15f; wx < x + w * 0.8f; wx += w * 0.35f) {
    c.Fill(Rect(wx, g - h * 0.75f, wx + w * 0.18f, g - h * 0.5f), C(70, 84, 96));
  }
  c.Fill(Rect(x + w * 0.42f, g - h * 0.42f, x + w * 0.6f, g), C(96, 66, 42));
  c.Stroke({{x, g - h}, {x + w, g - h}, {x + w, g}, {x, g}}, Shade(wall, 0.5f), 0.6f);
}

void Smoke(Canvas& c, float x, float y, float r, int seed, RGB colour, float opacity) {
  for (int i = 0; i < 7; ++i) {
    const float a = Hash(i, 1, seed) * 6.283f;
    const float d = r * 0.55f * Hash(i, 2, seed);
    const float rr = r * (0.45f + 0.35f * Hash(i, 3, seed));
    c.Fill(Circle(x + d * std::cos(a), y + d * std::sin(a) * 0.7f, rr), Shade(colour, 0.85f + 0.3f * Hash(i, 4, seed)), opacity * 0.6f);
  }
}

void Blast(Canvas& c, float x, float y, float r, int seed) {
  Smoke(c, x + r * 0.1f, y - r * 0.9f, r * 0.9f, seed, C(70, 66, 62), 0.85f);
  std::vector<Pt> star;
  for (int i = 0; i < 18; ++i) {
    const float a = i * 0.349f;
    const float rr = (i % 2 ? 0.55f : 1.0f) * r * (0.85f + 0.3f * Hash(i, 5, seed));
    star.push_back({x + rr * std::cos(a), y + rr * std::sin(a) * 0.8f});
  }
  c.Fill(Polygon(star), C(236, 110, 30));
  c.Fill(Circle(x, y, r * 0.55f), C(250, 180, 60));
  c.Fill(Circle(x - r * 0.1f, y - r * 0.1f, r * 0.28f), C(255, 240, 170));
}

}  // namespace art
