#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <fstream>

namespace art {

RGB Mix(RGB a, RGB b, float t) {
  return RGB{a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}
RGB Shade(RGB c, float f) {
  return RGB{std::clamp(c.r * f, 0.0f, 1.0f), std::clamp(c.g * f, 0.0f, 1.0f), std::clamp(c.b * f, 0.0f, 1.0f)};
}
RGB Tint(RGB c, float t) { return Mix(c, RGB{1, 1, 1}, t); }
Pt Lerp(Pt a, Pt b, float t) { return Pt{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t}; }

Shape Polygon(std::vector<Pt> pts) {
  Shape s;
  s.x0 = s.y0 = 1e9f;
  s.x1 = s.y1 = -1e9f;
  for (const Pt& p : pts) {
    s.x0 = std::min(s.x0, p.x);
    s.y0 = std::min(s.y0, p.y);
    s.x1 = std::max(s.x1, p.x);
    s.y1 = std::max(s.y1, p.y);
  }
  s.inside = [pts = std::move(pts)](float x, float y) {
    bool in = false;
    const std::size_t n = pts.size();
    for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
      const Pt& a = pts[i];
      const Pt& b = pts[j];
      if ((a.y > y) != (b.y > y)) {
        const float cx = a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y);
        if (x < cx) in = !in;
      }
    }
    return in;
  };
  return s;
}

Shape Circle(float cx, float cy, float r) { return Ellipse(cx, cy, r, r); }

Shape Ellipse(float cx, float cy, float rx, float ry) {
  Shape s{cx - rx, cy - ry, cx + rx, cy + ry, nullptr};
  s.inside = [=](float x, float y) {
    const float dx = (x - cx) / rx, dy = (y - cy) / ry;
    return dx * dx + dy * dy <= 1.0f;
  };
  return s;
}

Shape EllipseRot(float cx, float cy, float rx, float ry, float angle) {
  const float m = std::max(rx, ry);
  Shape s{cx - m, cy - m, cx + m, cy + m, nullptr};
  const float c = std::cos(angle), sn = std::sin(angle);
  s.inside = [=](float x, float y) {
    const float u = ((x - cx) * c + (y - cy) * sn) / rx;
    const float v = (-(x - cx) * sn + (y - cy) * c) / ry;
    return u * u + v * v <= 1.0f;
  };
  return s;
}

Shape Rect(float x0, float y0, float x1, float y1) {
  Shape s{x0, y0, x1, y1, nullptr};
  s.inside = [=](float x, float y) { return x >= x0 && x <= x1 && y >= y0 && y <= y1; };
  return s;
}

Shape RoundRect(float x0, float y0, float x1, float y1, float radius) {
  Shape s{x0, y0, x1, y1, nullptr};
  s.inside = [=](float x, float y) {
    if (x < x0 || x > x1 || y < y0 || y > y1) return false;
    const float cx = std::clamp(x, x0 + radius, x1 - radius);
    const float cy = std::clamp(y, y0 + radius, y1 - radius);
    const float dx = x - cx, dy = y - cy;
    return dx * dx + dy * dy <= radius * radius;
  };
  return s;
}

Shape Line(Pt a, Pt b, float w) {
  const float h = w / 2;
  Shape s{std::min(a.x, b.x) - h, std::min(a.y, b.y) - h, std::max(a.x, b.x) + h, std::max(a.y, b.y) + h, nullptr};
  s.inside = [=](float x, float y) {
    const float vx = b.x - a.x, vy = b.y - a.y;
    const float len2 = vx * vx + vy * vy;
    float t = len2 > 0 ? ((x - a.x) * vx + (y - a.y) * vy) / len2 : 0;
    t = std::clamp(t, 0.0f, 1.0f);
    const float dx = x - (a.x + vx * t), dy = y - (a.y + vy * t);
    return dx * dx + dy * dy <= h * h;
  };
  return s;
}

Shape Ring(float cx, float cy, float r, float w) {
  Shape s{cx - r - w / 2, cy - r - w / 2, cx + r + w / 2, cy + r + w / 2, nullptr};
  s.inside = [=](float x, float y) {
    const float d = std::hypot(x - cx, y - cy);
    return std::fabs(d - r) <= w / 2;
  };
  return s;
}

Shape Polyline(std::vector<Pt> pts, float w) {
  Shape s;
  s.x0 = s.y0 = 1e9f;
  s.x1 = s.y1 = -1e9f;
  std::vector<Shape> parts;
  for (std::size_t i = 0; i + 1 < pts.size(); ++i) {
    parts.push_back(Line(pts[i], pts[i + 1], w));
    s.x0 = std::min(s.x0, parts.back().x0);
    s.y0 = std::min(s.y0, parts.back().y0);
    s.x1 = std::max(s.x1, parts.back().x1);
    s.y1 = std::max(s.y1, parts.back().y1);
  }
  s.inside = [parts = std::move(parts)](float x, float y) {
    for (const Shape& p : parts) {
      if (p.inside(x, y)) return true;
    }
    return false;
  };
  return s;
}

Shape Intersect(Shape a, Shape b) {
  Shape s{std::max(a.x0, b.x0), std::max(a.y0, b.y0), std::min(a.x1, b.x1), std::min(a.y1, b.y1), nullptr};
  s.inside = [a = std::move(a.inside), b = std::move(b.inside)](float x, float y) { return a(x, y) && b(x, y); };
  return s;
}

Shape Subtract(Shape a, Shape b) {
  Shape s{a.x0, a.y0, a.x1, a.y1, nullptr};
  s.inside = [a = std::move(a.inside), b = std::move(b.inside)](float x, float y) { return a(x, y) && !b(x, y); };
  return s;
}

Shape Union(Shape a, Shape b) {
  Shape s{std::min(a.x0, b.x0), std::min(a.y0, b.y0), std::max(a.x1, b.x1), std::max(a.y1, b.y1), nullptr};
  s.inside = [a = std::move(a.inside), b = std::move(b.inside)](float x, float y) { return a(x, y) || b(x, y); };
  return s;
}

float Hash(int x, int y, int seed) {
  std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u +
                    static_cast<std::uint32_t>(seed) * 2246822519u;
  h = (h ^ (h >> 13)) * 1274126177u;
  h ^= h >> 16;
  return static_cast<float>(h & 0xFFFFFF) / 16777216.0f;
}

float Noise(float x, float y, int seed) {
  const int ix = static_cast<int>(std::floor(x)), iy = static_cast<int>(std::floor(y));
  const float fx = x - ix, fy = y - iy;
  const float sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
  const float a = Hash(ix, iy, seed), b = Hash(ix + 1, iy, seed);
  const float c = Hash(ix, iy + 1, seed), d = Hash(ix + 1, iy + 1, seed);
  return a + (b - a) * sx + (c - a) * sy + (a - b - c + d) * sx * sy;
}

namespace {
int g_drawScale = 1;
constexpr float kSub[4] = {-0.375f, -0.125f, 0.125f, 0.375f};
}  // namespace

void SetDrawScale(int scale) { g_drawScale = scale < 1 ? 1 : scale; }
int DrawScale() { return g_drawScale; }

Canvas::Canvas(int w, int h) : Canvas(w, h, g_drawScale) {}

Canvas::Canvas(int w, int h, int scale)
    : w_(w), h_(h), s_(scale < 1 ? 1 : scale), W_(w * s_), H_(h * s_), px_(static_cast<std::size_t>(W_) * H_) {}

void Canvas::Blend(int X, int Y, RGB c, float cover) {
  if (X < 0 || Y < 0 || X >= W_ || Y >= H_ || cover <= 0) return;
  Px& p = px_[static_cast<std::size_t>(Y) * W_ + X];
  p.r = c.r * cover + p.r * (1 - cover);
  p.g = c.g * cover + p.g * (1 - cover);
  p.b = c.b * cover + p.b * (1 - cover);
  p.a = cover + p.a * (1 - cover);
}

namespace {

// The fine pixels a shape's box may touch, one drawing pixel of slack around it.
void FineBox(const Shape& sh, int s, int W, int H, int& X0, int& Y0, int& X1, int& Y1) {
  X0 = std::max(0, (static_cast<int>(std::floor(sh.x0)) - 1) * s);
  Y0 = std::max(0, (static_cast<int>(std::floor(sh.y0)) - 1) * s);
  X1 = std::min(W - 1, (static_cast<int>(std::ceil(sh.x1)) + 2) * s - 1);
  Y1 = std::min(H - 1, (static_cast<int>(std::ceil(sh.y1)) + 2) * s - 1);
}

// The centre of fine pixel X in drawing coordinates.
float FineCentre(int X, int s) { return (X + 0.5f) / s - 0.5f; }

int Hits(const Shape& sh, float cx, float cy, int s) {
  int hits = 0;
  for (float dy : kSub) {
    for (float dx : kSub) {
      if (sh.inside(cx + dx / s, cy + dy / s)) ++hits;
    }
  }
  return hits;
}

}  // namespace

void Canvas::FillFn(const Shape& sh, const std::function<RGB(float, float)>& colour, float opacity) {
  int X0, Y0, X1, Y1;
  FineBox(sh, s_, W_, H_, X0, Y0, X1, Y1);
  for (int Y = Y0; Y <= Y1; ++Y) {
    const float cy = FineCentre(Y, s_);
    for (int X = X0; X <= X1; ++X) {
      const float cx = FineCentre(X, s_);
      const int hits = Hits(sh, cx, cy, s_);
      if (hits) Blend(X, Y, colour(cx, cy), opacity * hits / 16.0f);
    }
  }
}

void Canvas::Fill(const Shape& s, RGB c, float opacity) {
  FillFn(s, [c](float, float) { return c; }, opacity);
}

void Canvas::Stroke(const std::vector<Pt>& pts, RGB c, float w, bool closed) {
  std::vector<Pt> line = pts;
  if (closed && !pts.empty()) line.push_back(pts.front());
  Fill(Polyline(line, w), c);
}

void Canvas::Block(int x0, int y0, int x1, int y1, RGB c) {
  for (int y = y0; y <= y1; ++y) {
    for (int x = x0; x <= x1; ++x) Set(x, y, c);
  }
}

void Canvas::Darken(const Shape& sh, float f) {
  int X0, Y0, X1, Y1;
  FineBox(sh, s_, W_, H_, X0, Y0, X1, Y1);
  for (int Y = Y0; Y <= Y1; ++Y) {
    for (int X = X0; X <= X1; ++X) {
      const int hits = Hits(sh, FineCentre(X, s_), FineCentre(Y, s_), s_);
      const float k = 1 - (1 - f) * hits / 16.0f;
      Px& p = px_[static_cast<std::size_t>(Y) * W_ + X];
      p.r *= k;
      p.g *= k;
      p.b *= k;
    }
  }
}

void Canvas::Draw(const Canvas& src, int ox, int oy) {
  // Both at one scale: the pictures of one run are drawn at one scale.
  const int k = src.s_ == s_ ? 1 : 0;
  if (!k) return;
  for (int Y = 0; Y < src.H_; ++Y) {
    for (int X = 0; X < src.W_; ++X) {
      const Px& s = src.px_[static_cast<std::size_t>(Y) * src.W_ + X];
      const int tx = ox * s_ + X, ty = oy * s_ + Y;
      if (tx < 0 || ty < 0 || tx >= W_ || ty >= H_ || s.a <= 0) continue;
      Px& d = px_[static_cast<std::size_t>(ty) * W_ + tx];
      d.r = s.r + d.r * (1 - s.a);
      d.g = s.g + d.g * (1 - s.a);
      d.b = s.b + d.b * (1 - s.a);
      d.a = s.a + d.a * (1 - s.a);
    }
  }
}

void Canvas::Clip(const std::function<bool(int, int)>& keep) {
  for (int Y = 0; Y < H_; ++Y) {
    for (int X = 0; X < W_; ++X) {
      if (!keep(X / s_, Y / s_)) px_[static_cast<std::size_t>(Y) * W_ + X] = Px{};
    }
  }
}

void Canvas::ClipToHexOutline() {
  ForEachFine([this](const Fine& p) {
    if (!InHexFine(p, s_)) px_[static_cast<std::size_t>(p.Y) * W_ + p.X] = Px{};
  });
}

float Canvas::Alpha(int x, int y) const { return FineAlpha(x * s_, y * s_); }

RGB Canvas::At(int x, int y) const { return FineAt(x * s_, y * s_); }

void Canvas::Set(int x, int y, RGB c) {
  if (x < 0 || y < 0 || x >= w_ || y >= h_) return;
  for (int j = 0; j < s_; ++j)
    for (int i = 0; i < s_; ++i) FineSet(x * s_ + i, y * s_ + j, c);
}

void Canvas::ForEachFine(const std::function<void(const Fine&)>& f) const {
  for (int Y = 0; Y < H_; ++Y) {
    for (int X = 0; X < W_; ++X) f(Fine{X, Y, X / s_, Y / s_, FineCentre(X, s_), FineCentre(Y, s_)});
  }
}

float Canvas::FineAlpha(int X, int Y) const {
  if (X < 0 || Y < 0 || X >= W_ || Y >= H_) return 0;
  return px_[static_cast<std::size_t>(Y) * W_ + X].a;
}

RGB Canvas::FineAt(int X, int Y) const {
  if (X < 0 || Y < 0 || X >= W_ || Y >= H_) return RGB{1, 1, 1};
  const Px& p = px_[static_cast<std::size_t>(Y) * W_ + X];
  if (p.a <= 0) return RGB{1, 1, 1};
  return RGB{p.r / p.a, p.g / p.a, p.b / p.a};
}

void Canvas::FineSet(int X, int Y, RGB c) {
  if (X < 0 || Y < 0 || X >= W_ || Y >= H_) return;
  px_[static_cast<std::size_t>(Y) * W_ + X] = Px{c.r, c.g, c.b, 1};
}

std::vector<std::uint8_t> Canvas::BmpBytes(bool masked) const {
  const int stride = (W_ * 3 + 3) / 4 * 4;
  const std::uint32_t dataSize = static_cast<std::uint32_t>(stride * H_);
  std::vector<std::uint8_t> out(54 + dataSize, 0);
  auto put = [&](std::size_t at, std::uint32_t v, int bytes) {
    for (int i = 0; i < bytes; ++i) out[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
  };
  out[0] = 'B';
  out[1] = 'M';
  put(2, 54 + dataSize, 4);
  put(10, 54, 4);
  put(14, 40, 4);
  put(18, static_cast<std::uint32_t>(W_), 4);
  put(22, static_cast<std::uint32_t>(H_), 4);
  put(26, 1, 2);
  put(28, 24, 2);
  put(34, dataSize, 4);
  put(38, 2835, 4);
  put(42, 2835, 4);
  auto byte = [](float v) { return static_cast<std::uint8_t>(std::clamp(std::lround(v * 255.0f), 0L, 255L)); };
  for (int y = 0; y < H_; ++y) {
    const std::size_t row = 54 + static_cast<std::size_t>(H_ - 1 - y) * stride;
    for (int x = 0; x < W_; ++x) {
      const Px& p = px_[static_cast<std::size_t>(y) * W_ + x];
      std::uint8_t r, g, b;
      if (masked) {
        if (p.a < 0.5f) {
          r = g = b = 255;
        } else {
          r = byte(p.r / p.a);
          g = byte(p.g / p.a);
          b = byte(p.b / p.a);
          // Pure white would vanish on the map.
          if (r == 255 && g == 255 && b == 255) b = 252;
        }
      } else {
        r = byte(p.r + (1 - p.a));
        g = byte(p.g + (1 - p.a));
        b = byte(p.b + (1 - p.a));
      }
      out[row + x * 3] = b;
      out[row + x * 3 + 1] = g;
      out[row + x * 3 + 2] = r;
    }
  }
  return out;
}

bool Canvas::WriteBmp(const std::string& path, bool masked) const {
  const std::vector<std::uint8_t> bytes = BmpBytes(masked);
  std::ofstream out(path, std::ios::binary);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(out);
}

bool InHex(int x, int y) {
  if (x < 0 || x > 42 || y < 0 || y > 40) return false;
  return 10 * x + 21 * y >= 210 && 10 * x - 21 * y <= 210 && 10 * x + 21 * y <= 1050 && 21 * y - 10 * x <= 630;
}

bool InHexFine(const Canvas::Fine& p, int scale) {
  if (scale <= 1) return InHex(p.x, p.y);
  // The whole-pixel test on the fine centre, with the half pixel that the
  // edge pixels add at scale 1 (the four slanted sides have the normal
  // length sqrt(10 * 10 + 21 * 21)).
  const float x = p.fx, y = p.fy;
  constexpr float e = 0.5f * 23.26f;
  if (x < -0.5f || x > 42.5f || y < -0.5f || y > 40.5f) return false;
  return 10 * x + 21 * y >= 210 - e && 10 * x - 21 * y <= 210 + e && 10 * x + 21 * y <= 1050 + e &&
         21 * y - 10 * x <= 630 + e;
}

namespace {
const Pt kCorner[6] = {{0, 10}, {21, 0}, {42, 10}, {42, 30}, {21, 40}, {0, 30}};

// The line of side s (0-based) moved inwards by d, as point and direction.
void InsetLine(int s, float d, Pt& p, Pt& dir) {
  const Pt a = kCorner[s], b = kCorner[(s + 1) % 6];
  dir = Pt{b.x - a.x, b.y - a.y};
  const float len = std::hypot(dir.x, dir.y);
  // Clockwise on screen, the inside is to the right of the direction.
  const Pt normal{-dir.y / len, dir.x / len};
  p = Pt{a.x + normal.x * d, a.y + normal.y * d};
}

Pt Meet(Pt p1, Pt d1, Pt p2, Pt d2) {
  const float den = d1.x * d2.y - d1.y * d2.x;
  const float t = ((p2.x - p1.x) * d2.y - (p2.y - p1.y) * d2.x) / den;
  return Pt{p1.x + d1.x * t, p1.y + d1.y * t};
}
}  // namespace

std::vector<Pt> HexCorners(float inset) {
  std::vector<Pt> out;
  for (int i = 0; i < 6; ++i) {
    // Corner i lies between side i-1 and side i (0-based).
    Pt p1, d1, p2, d2;
    InsetLine((i + 5) % 6, inset, p1, d1);
    InsetLine(i, inset, p2, d2);
    out.push_back(inset == 0 ? kCorner[i] : Meet(p1, d1, p2, d2));
  }
  return out;
}

void SideCorners(int side, Pt& a, Pt& b, float inset) {
  const std::vector<Pt> c = HexCorners(inset);
  a = c[(side - 1) % 6];
  b = c[side % 6];
}

Pt SideMiddle(int side) {
  Pt a, b;
  SideCorners(side, a, b);
  return Lerp(a, b, 0.5f);
}

}  // namespace art
