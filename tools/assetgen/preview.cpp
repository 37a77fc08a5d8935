#include "preview.h"

#include <cstring>
#include <queue>
#include <vector>

namespace art {
namespace {

// 3 x 5 glyphs, one row of three bits per line.
struct Glyph {
  char ch;
  unsigned char rows[5];
};
const Glyph kGlyphs[] = {
    {'0', {7, 5, 5, 5, 7}}, {'1', {2, 6, 2, 2, 7}}, {'2', {7, 1, 7, 4, 7}}, {'3', {7, 1, 3, 1, 7}},
    {'4', {5, 5, 7, 1, 1}}, {'5', {7, 4, 7, 1, 7}}, {'6', {7, 4, 7, 5, 7}}, {'7', {7, 1, 1, 2, 2}},
    {'8', {7, 5, 7, 5, 7}}, {'9', {7, 5, 7, 1, 7}}, {'-', {0, 0, 7, 0, 0}}, {'+', {0, 2, 7, 2, 0}},
    {'S', {7, 4, 7, 1, 7}}, {'H', {5, 5, 7, 5, 5}}, {'Q', {7, 5, 5, 7, 1}}, {'L', {4, 4, 4, 4, 7}},
    {'o', {0, 7, 5, 5, 7}}, {'w', {0, 5, 5, 7, 7}}, {' ', {0, 0, 0, 0, 0}},
};

constexpr int kW = 12, kH = 10;

// The sample map: landscape by letter (g grass, f forest, u urban, s sea,
// w swamp, m mountain), rows y = 1..10.
const char* const kLand[kH] = {
    "sssggffggmmg", "ssggufggmgfg", "ssgffggwwggg", "sggggguwgffg", "ssguggggsfug",
    "sgggfgmmggsg", "ssggffmguggs", "sssggggggwss", "ssgugfggffgs", "sssggggggmmg",
};

struct Hex {
  int land = 1, owner = 0, size = 0;
  bool road = false;
  bool river[7] = {};
  int entrench[7] = {};
  int units[4][3] = {};  // family, colour, badge for slots 1..3; family 0 empty
  int count = 0;
  int news = 0;
  bool damage = false, noprod = false, seen = true, visible = true, dark = false;
};

Hex gMap[kW + 1][kH + 1];

void Neighbour(int x, int y, int d, int& nx, int& ny) {
  static const int even[7][2] = {{0, 0}, {-1, -1}, {0, -1}, {1, 0}, {0, 1}, {-1, 1}, {-1, 0}};
  static const int odd[7][2] = {{0, 0}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 0}};
  const int(*t)[2] = (y % 2) ? odd : even;
  nx = x + t[d][0];
  ny = y + t[d][1];
  if (nx < 1 || nx > kW) nx = 0;
  if (ny < 1 || ny > kH) ny = 0;
}

void SetRiver(int x, int y, int side) {
  gMap[x][y].river[side] = true;
  int nx, ny;
  Neighbour(x, y, side, nx, ny);
  if (nx && ny) gMap[nx][ny].river[(side + 2) % 6 + 1] = true;
}

void AddUnit(int x, int y, int family, int colour, int badge) {
  Hex& h = gMap[x][y];
  if (h.count >= 3) return;
  ++h.count;
  h.units[h.count][0] = family;
  h.units[h.count][1] = colour;
  h.units[h.count][2] = badge;
}

void BuildMap() {
  for (int y = 1; y <= kH; ++y) {
    for (int x = 1; x <= kW; ++x) {
      Hex& h = gMap[x][y];
      const char ch = kLand[y - 1][x - 1];
      h.land = ch == 'f' ? 2 : ch == 'u' ? 3 : ch == 's' ? 4 : ch == 'w' ? 5 : ch == 'm' ? 6 : 1;
      if (h.land != 4) h.owner = x <= 5 ? 1 : x >= 8 ? (y >= 8 ? 7 : 2) : 0;
    }
  }
  gMap[5][2].size = 3;
  gMap[7][4].size = 1;
  gMap[4][5].size = 0;
  gMap[11][5].size = 2;
  gMap[9][7].size = 4;
  gMap[4][9].size = 5;
  // A river between columns 6 and 7, winding round the odd rows.
  for (int y = 1; y <= kH; ++y) {
    if (y % 2) {
      SetRiver(6, y, 2);
      SetRiver(6, y, 3);
      SetRiver(6, y, 4);
    } else {
      SetRiver(6, y, 3);
    }
  }
  for (const auto& p : std::vector<std::pair<int, int>>{{4, 5}, {5, 5}, {6, 5}, {7, 4}, {8, 4}, {9, 5}, {10, 5},
                                                        {11, 5}, {5, 4}, {5, 3}, {5, 2}, {10, 6}, {9, 7}}) {
    gMap[p.first][p.second].road = true;
  }
  AddUnit(3, 2, 4, 1, 1);
  AddUnit(5, 4, 6, 1, 2);
  AddUnit(5, 4, 4, 1, 2);
  AddUnit(5, 4, 5, 1, 2);
  AddUnit(4, 6, 5, 1, 1);
  AddUnit(1, 4, 7, 1, 0);
  AddUnit(4, 5, 3, 1, 0);
  AddUnit(3, 4, 2, 1, 1);
  AddUnit(9, 3, 6, 2, 7);
  AddUnit(9, 3, 1, 2, 7);
  AddUnit(11, 5, 3, 2, 0);
  AddUnit(9, 6, 2, 2, 8);
  AddUnit(8, 7, 8, 2, 8);
  AddUnit(12, 7, 7, 2, 0);
  AddUnit(10, 8, 4, 20, 0);
  AddUnit(11, 9, 5, 19, 0);
  AddUnit(8, 9, 4, 7, 13);
  AddUnit(10, 3, 1, 2, 14);
  AddUnit(2, 6, 401, 0, 0);
  AddUnit(3, 7, 403, 0, 0);
  AddUnit(8, 4, 1, 2, 25);
  gMap[6][5].entrench[2] = 1;
  gMap[6][5].entrench[3] = 1;
  gMap[8][5].entrench[5] = 2;
  gMap[8][5].entrench[6] = 2;
  gMap[8][3].entrench[6] = 3;
  gMap[8][3].entrench[1] = 3;
  gMap[7][6].news = 3;
  gMap[8][2].news = 7;
  gMap[10][2].news = 9;
  gMap[6][7].news = 8;
  gMap[11][5].damage = true;
  gMap[4][9].noprod = true;
  for (int y = 1; y <= 3; ++y) gMap[12][y].seen = false;
  for (int y = 4; y <= 6; ++y) gMap[12][y].visible = false;
  // The reach of a move from (5, 4): two steps, drawn dark.
  std::queue<std::pair<int, int>> q;
  int dist[kW + 1][kH + 1];
  std::memset(dist, -1, sizeof dist);
  dist[5][4] = 0;
  q.push({5, 4});
  while (!q.empty()) {
    const auto [x, y] = q.front();
    q.pop();
    gMap[x][y].dark = true;
    if (dist[x][y] == 2) continue;
    for (int d = 1; d <= 6; ++d) {
      int nx, ny;
      Neighbour(x, y, d, nx, ny);
      if (nx && ny && dist[nx][ny] < 0 && gMap[nx][ny].land != 4) {
        dist[nx][ny] = dist[x][y] + 1;
        q.push({nx, ny});
      }
    }
  }
}

struct Painter {
  Canvas& pic;
  const std::map<int, Canvas>& sprites;
  void Blit(int n, int left, int top) const {
    auto it = sprites.find(n);
    if (it != sprites.end()) pic.Draw(it->second, left, top);
  }
};

void DrawHexAt(const Painter& p, int x, int y) {
  const Hex& h = gMap[x][y];
  const int cx = x * 42 + ((y % 2) ? 21 : 0), cy = y * 30;
  const int left = cx - 21, top = cy - 20;
  if (!h.seen) {
    p.Blit(804, left, top);
    return;
  }
  const int darkShift = h.dark ? 1000 : 0;
  int base = h.land == 4 ? 4 : 1;
  if (h.owner > 0) base = 20 + h.owner;
  p.Blit(base + darkShift, left, top);
  if (h.land == 2) p.Blit(1500, left, top);
  if (h.land == 5) p.Blit(1601, left, top);
  if (h.land == 6) p.Blit(1611, left, top);
  if (h.land == 3) p.Blit(1521 + h.size, left, top);
  if (h.land != 4) {
    for (int s = 1; s <= 6; ++s) {
      if (h.river[s]) p.Blit(1540 + s + (h.dark ? 20 : 0), left, top);
    }
  }
  if (h.road && h.land != 3) {
    for (int s = 1; s <= 6; ++s) {
      int nx, ny;
      Neighbour(x, y, s, nx, ny);
      if (nx && ny && gMap[nx][ny].road) p.Blit(1620 + s, left, top);
    }
  }
  for (int s = 1; s <= 6; ++s) {
    int nx, ny;
    Neighbour(x, y, s, nx, ny);
    if (!nx || !ny) continue;
    if ((h.land == 1 || h.land == 3) && gMap[nx][ny].land == 2 && !h.river[s]) p.Blit(1500 + s, left, top);
    if (h.land != 4 && gMap[nx][ny].land == 4) p.Blit(1540 + s + (h.dark ? 20 : 0), left, top);
  }
  if (h.visible) {
    for (int s = 1; s <= 6; ++s) {
      if (h.entrench[s] > 0) p.Blit(1100 + 10 * (h.entrench[s] - 1) + s, left, top);
    }
    // Stacks look layered: three at -1, 0, +1, the first slot on top.
    static const int order3[3] = {3, 2, 1};
    static const int order2[2] = {2, 1};
    const int* order = h.count == 3 ? order3 : order2;
    const int n = h.count == 1 ? 1 : h.count;
    for (int i = 0; i < n; ++i) {
      const int slot = h.count == 1 ? 1 : order[i];
      const int off = h.count == 3 ? i - 1 : h.count == 2 ? i - 1 : 0;
      const int fam = h.units[slot][0], col = h.units[slot][1], badge = h.units[slot][2];
      const int sprite = fam >= 400 ? fam : 180 + 20 * fam + col;
      p.Blit(sprite, left + off, top + off);
      if (badge > 0) p.Blit(850 + badge, left + off, top + off);
    }
    if (h.count > 0) {
      // The figures, as the map prints them for the top unit: attack on the
      // left, defence on the right, black on light colours, white on dark.
      const int fam = h.units[1][0], col = h.units[1][1];
      const int off = h.count == 3 ? 1 : 0;
      const bool light = col == 2 || col == 5 || col == 8 || col == 10 || col == 11 || col == 12 || fam >= 400;
      const RGB ink = light ? C(10, 10, 10) : C(250, 250, 250);
      const char* attack = fam == 3 ? "SHQ" : fam == 8 ? "9" : fam == 5 ? "12" : "6";
      DrawText(p.pic, left + 9 + off, top + 23 + off, attack, ink);
      if (fam != 3) DrawText(p.pic, left + 25 + off, top + 23 + off, fam == 5 ? "3" : "5", ink);
    }
  }
  if (h.damage) p.Blit(805, left, top);
  if (h.noprod) p.Blit(803, left, top);
  if (!h.visible) p.Blit(808, left, top);
  if (h.news >= 1 && h.news <= 6) p.Blit(844 + h.news, left, top);
  if (h.news == 7) p.Blit(806, left, top);
  if (h.news == 8) p.Blit(807, left, top);
  if (h.news == 9) p.Blit(810, left, top);
  if (x == 5 && y == 4) p.Blit(801, left, top);
}

}  // namespace

Canvas Hardened(const Canvas& c) {
  Canvas out(c.Width(), c.Height());
  for (int y = 0; y < c.Height(); ++y) {
    for (int x = 0; x < c.Width(); ++x) {
      if (c.Alpha(x, y) >= 0.5f) out.Set(x, y, c.At(x, y));
    }
  }
  return out;
}

void DrawText(Canvas& c, int x, int y, const std::string& text, RGB ink) {
  for (char ch : text) {
    for (const Glyph& g : kGlyphs) {
      if (g.ch != ch) continue;
      for (int r = 0; r < 5; ++r) {
        for (int b = 0; b < 3; ++b) {
          if (g.rows[r] & (4 >> b)) c.Set(x + b, y + r, ink);
        }
      }
    }
    x += 4;
  }
}

void DrawNumber(Canvas& c, int x, int y, int n, RGB ink) { DrawText(c, x, y, std::to_string(n), ink); }

int Preview(const std::string& file, const std::map<int, Canvas>& sprites) {
  BuildMap();
  Canvas pic(kW * 42 + 70, kH * 30 + 70);
  pic.Fill(Rect(-1, -1, pic.Width() + 1, pic.Height() + 1), C(34, 34, 38));
  const Painter p{pic, sprites};
  for (int x = 1; x <= kW; ++x) {
    for (int y = 1; y <= kH; ++y) DrawHexAt(p, x, y);
  }
  return pic.WriteBmp(file, false) ? 0 : 1;
}

}  // namespace art
