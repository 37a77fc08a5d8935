#include "model/hex_geometry.h"

#include <cstdlib>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {
namespace {

// Steps of the six directions, by parity of the row. Odd rows sit half a hex
// east of even rows, so the diagonal steps of an odd row reach one column
// further east than those of an even row. Index 0 is unused.
constexpr int kStepX[2][kHexSides + 1] = {
    {0, -1, 0, 1, 0, -1, -1},  // even y
    {0, 0, 1, 1, 1, 0, -1},    // odd y
};
constexpr int kStepY[kHexSides + 1] = {0, -1, -1, 0, 1, 1, 0};

// The owner-respecting search never goes deeper than this: the THQ ranges
// it serves end at five hexes.
constexpr int kOwnerDepth = 5;
constexpr int kNoPath = 999;
// Every hex the search can reach lies within kOwnerDepth rows and columns of
// the start.
constexpr int kOwnerSpan = 2 * kOwnerDepth + 1;

}  // namespace

HexXY Neighbour(int x, int y, int direction) {
  if (x < 1 || y < 1 || direction < 1 || direction > kHexSides) return {};
  const int parity = y & 1;
  int nx = x + kStepX[parity][direction];
  int ny = y + kStepY[direction];
  // Each coordinate is tested by itself, so (0, 5) can come out. A map size
  // beyond the table (bad data) is held to the table.
  const int w = MapW();
  const int h = MapH();
  if (nx < 1 || nx > w) nx = 0;
  if (ny < 1 || ny > h) ny = 0;
  return {nx, ny};
}

int Distance(int x1, int y1, int x2, int y2) {
  if (x1 == x2 && y1 == y2) return 0;
  int cx = x1;
  int cy = y1;
  // The walk closes the row gap first and slides sideways on the way, the way
  // a diagonal step allows it; once in the right row it walks straight.
  for (int step = 1; step <= 100; ++step) {
    bool moved = false;
    if (y2 > cy) {
      ++cy;
      moved = true;
    }
    if (cy > y2) {
      --cy;
      moved = true;
    }
    if (cy % 2 == 0) {
      // Entering an even row, a diagonal step may also go east.
      if (x2 > cx) ++cx;
      if (cx > x2 && !moved) --cx;
    } else {
      // Entering an odd row, a diagonal step may also go west.
      if (x2 > cx && !moved) ++cx;
      if (cx > x2) --cx;
    }
    if (cx == x2 && cy == y2) return step;
  }
  // Not reached: the target counts as beyond every range.
  return 101;
}

int OwnerDistance(int x1, int y1, int x2, int y2) {
  if (x1 == x2 && y1 == y2) return 0;
  if (x1 < 1 || y1 < 1 || x1 > kMapCap || y1 > kMapCap) return kNoPath;
  // Whether a step may be taken depends only on the two hexes it joins, so
  // the fewest steps are found ring by ring from the start: every hex is
  // reached first by one of its shortest paths and never needs a second look.
  bool seen[kOwnerSpan][kOwnerSpan] = {};
  HexXY ring[kOwnerSpan * kOwnerSpan];
  int ringEnd = 0;
  ring[ringEnd++] = {x1, y1};
  seen[kOwnerDepth][kOwnerDepth] = true;
  for (int depth = 0, ringBegin = 0; depth < kOwnerDepth; ++depth) {
    const int nextBegin = ringEnd;
    for (int i = ringBegin; i < nextBegin; ++i) {
      const HexXY h = ring[i];
      const Long owner = Hex[h.x][h.y].Owner;
      for (int dir = 1; dir <= kHexSides; ++dir) {
        const HexXY n = Neighbour(h.x, h.y, dir);
        if (n.x < 1 || n.y < 1) continue;
        const Long nextOwner = Hex[n.x][n.y].Owner;
        // Neutral ground is always entered; owned ground only from ground of the same owner.
        if (nextOwner != 0 && nextOwner != owner) continue;
        if (n.x == x2 && n.y == y2) return depth + 1;
        bool& s = seen[n.x - x1 + kOwnerDepth][n.y - y1 + kOwnerDepth];
        if (s) continue;
        s = true;
        ring[ringEnd++] = n;
      }
    }
    ringBegin = nextBegin;
  }
  return kNoPath;
}

PixelXY HexToPixel(int x, int y, int scrollX, int scrollY) {
  PixelXY c;
  c.x = x * kHexColumnW + ((y % 2 != 0) ? kHexColumnW / 2 : 0) - scrollX;
  c.y = y * kHexRowH - scrollY;
  return c;
}

// The classic map window of 958 x 448 culls centres beyond 1000 and 488; a
// larger window shows more of the map and culls further out.
bool HexOffWindow(PixelXY c) {
  return c.x < -42 || c.y < -40 || c.x > UI.ViewW + 42 || c.y > UI.ViewH + 40;
}

HexXY PixelToHex(int pxWindow, int pyWindow, int scrollX, int scrollY) {
  const std::int64_t px = static_cast<std::int64_t>(pxWindow) + scrollX;
  const std::int64_t py = static_cast<std::int64_t>(pyWindow) + scrollY;

  // 1. Snap to the nearest row line (rows are 30 apart).
  const std::int64_t r = Mod(py, 30);
  std::int64_t ry = py;
  if (r > 14) ry = py + 30 - r;
  if (r < 15) ry = py - r;

  // 2. Snap to the nearest half column (centres of odd and even rows alternate every 21).
  const std::int64_t c = Mod(px, 21);
  std::int64_t cx = px;
  if (c > 11) cx = px + 21 - c;
  if (c < 12) cx = px - c;

  // 3. Which rows have their centres on that half column, and which kind of row this is.
  int columnKind = 0;
  if (Mod(cx - 21, 42) == 0) columnKind = 1;  // centres of odd rows
  if (Mod(cx, 42) == 0) columnKind = 2;       // centres of even rows
  const int rowKind = (Mod(ry, 60) == 0) ? 2 : 1;

  std::int64_t x = 0;
  std::int64_t y = 0;
  if (columnKind == rowKind) {
    // 4. On a centre line of this row.
    x = (columnKind == 1) ? Int(static_cast<double>(cx - 21) / 42) : Int(static_cast<double>(cx) / 42);
    y = Int(static_cast<double>(ry) / 30);
  } else {
    // 5. Between two hexes of the row. Near the row's upper and lower edge the
    // hex outlines zigzag, and a click there selects nothing.
    if (std::llabs(py - ry) >= 10) return {};
    x = (px >= cx) ? Int(static_cast<double>(cx + 21) / 42) : Int(static_cast<double>(cx - 21) / 42);
    y = Int(static_cast<double>(ry) / 30);
  }

  // 6. Beyond the map each coordinate becomes 0 by itself. A point left of or
  // above the picture (only possible with negative window points) gives 0 too,
  // so no caller ever sees a negative hex.
  if (x > Game.MapW || x > kMapCap || x < 0) x = 0;
  if (y > Game.MapH || y > kMapCap || y < 0) y = 0;
  return {static_cast<int>(x), static_cast<int>(y)};
}

int MapPictureW() { return Game.MapW * kHexColumnW + 70; }
int MapPictureH() { return Game.MapH * kHexRowH + 70; }

void CenterMap(int x, int y) {
  // The classic map window of 958 x 448 puts the hex 10 columns from the
  // left and 6 rows from the top; a larger window keeps it in its middle.
  const Long across = UI.ViewW / (2 * kHexColumnW) - 1;
  const Long down = UI.ViewH / (2 * kHexRowH) - 1;
  Long sx = (x - across) * kHexColumnW;
  Long sy = (y - down) * kHexRowH;
  if (sx > UI.ScrollMaxX) sx = UI.ScrollMaxX;
  if (sy > UI.ScrollMaxY) sy = UI.ScrollMaxY;
  if (sx < 0) sx = 0;
  if (sy < 0) sy = 0;
  if (sx != UI.ScrollX || sy != UI.ScrollY) {
    UI.ScrollX = sx;
    UI.ScrollY = sy;
    RequestRedraw(2);
  }
}

}  // namespace mf
