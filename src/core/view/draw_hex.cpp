#include "view/draw_hex.h"

#include <cstdlib>
#include <string>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "platform/platform.h"
#include "view/canvas.h"
#include "view/counter.h"

namespace mf {

namespace {

// Where the supply overlay prints its figure, from the hex's centre.
constexpr int kSupplyFigureLeft = 8;
constexpr int kSupplyFigureTop = 11;

Canvas& CanvasOfPass(int pass) { return pass == 2 ? PanelHexCanvas() : MapCanvas(); }

bool OnMap(HexXY n) { return n.x > 0 && n.y > 0; }

// Has the current regime ever seen the hex? Regimes beyond the sight planes
// and the time before the first turn read as having seen everything.
bool SeenByCurrent(int x, int y) {
  const Long r = Game.CurRegime;
  if (r < 1 || r > kSightRegimes) return true;
  return Hex[x][y].Seen[r] != 0;
}

// Is the selected hex within reach of the order under way?
bool SelectionReachable() {
  return ValidHex(UI.SelX, UI.SelY) && Hex[UI.SelX][UI.SelY].Mark < 999;
}

// The order in which the stack of a hex is drawn, bottom first, so that the
// selected slot ends on top.
void StackOrder(int x, int y, int order[3]) {
  const int sel = (UI.SelX == x && UI.SelY == y) ? UI.SelSlot : 0;
  if (sel == 2) {
    order[0] = 1; order[1] = 3; order[2] = 2;
  } else if (sel == 3) {
    order[0] = 2; order[1] = 1; order[2] = 3;
  } else {
    order[0] = 3; order[1] = 2; order[2] = 1;
  }
}

void DrawUnits(int x, int y, int left, int top) {
  const HexRec& h = Hex[x][y];
  int order[3];
  StackOrder(x, y, order);
  int count = 0;
  for (int s = 1; s <= kStackSlots; ++s) {
    if (h.Unit[s] > 0) ++count;
  }
  if (count == 0) return;
  // Three counters at -1, 0, +1 pixels, two at -1 and 0: the stack looks layered.
  int offset = count >= 2 ? -1 : 0;
  int topUnit = 0, topLeft = left, topTop = top;
  for (int k = 0; k < 3; ++k) {
    const int u = h.Unit[order[k]];
    if (u <= 0 || !ValidUnit(u)) continue;
    const int l = left + offset, t = top + offset;
    MapCanvas().Blit(Unit[u].CounterPic, l, t);
    if (Unit[u].ThqBadge > 0) MapCanvas().Blit(sprite::Checked(kBadgeSpriteBase + static_cast<long long>(Unit[u].ThqBadge)), l, t);
    topUnit = u;
    topLeft = l;
    topTop = t;
    ++offset;
  }
  if (topUnit > 0) DrawCounterFigures(MapCanvas(), topUnit, topLeft, topTop);
}

void DrawGrid(PixelXY c) {
  const int px[6] = {c.x - 21, c.x - 21, c.x, c.x + 21, c.x + 21, c.x};
  const int py[6] = {c.y - 10, c.y + 10, c.y + 20, c.y + 10, c.y - 10, c.y - 20};
  for (int k = 0; k < 6; ++k) {
    const int n = (k + 1) % 6;
    MapCanvas().Line(px[k], py[k], px[n], py[n], kColourGrid);
  }
}

void DrawNewsMarks(int x, int y, int left, int top) {
  const HexRec& h = Hex[x][y];
  for (int m = 1; m <= 10; ++m) {
    if (h.NewsMark[m] == 0) continue;
    int spr = 0;
    if (m <= 6) spr = sprite::kNewsMarkBase + m;
    if (m == 7) spr = sprite::kNewsMark7;
    if (m == 8) spr = sprite::kNewsMark8;
    if (m == 9) spr = sprite::kNewsMark9;
    if (spr > 0) MapCanvas().Blit(spr, left, top);
  }
}

// What the current regime's HQs make and its formations ask for, on the
// hexes where they stand: an SHQ's output counts up, a formation's demand down.
void DrawSupplyFigure(int x, int y, PixelXY c) {
  const HexRec& h = Hex[x][y];
  bool any = false;
  long sum = 0;
  for (int s = 1; s <= kStackSlots; ++s) {
    const int u = h.Unit[s];
    if (u <= 0 || !ValidUnit(u) || Unit[u].Regime != Game.CurRegime) continue;
    any = true;
    sum += Unit[u].Shq > 0 ? Unit[u].GenSupply : -Unit[u].GenSupply;
  }
  if (!any) return;
  const Colour colour = sum >= 0 ? kColourGreen : kColourDefault;
  // Under the counter's card, at the foot of the hex, so that the figure
  // never covers the counter's own figures.
  MapCanvas().Text(NumText(std::labs(sum)), c.x - kSupplyFigureLeft, c.y + kSupplyFigureTop, "arial", 9, colour);
}

}  // namespace

bool HexUnexplored(int x, int y) {
  return ValidHex(x, y) && !SeenByCurrent(x, y) && Game.FogOfExploration != 0 && UI.EditMode == 0;
}

bool RangeModeOn() {
  const OrderFlags& o = UI.Order;
  return o.SelOrderMove > 0 || o.TransferOrder > 0 || o.AirliftOrder > 0 || o.AirSupplyOrder > 0 ||
         o.InterdictOrder > 0 || o.StratBombOrder > 0 || o.EntrenchOrder > 0;
}

void TerrainDraw(int x, int y, int left, int top, bool dark, int pass) {
  if (!ValidHex(x, y)) return;
  Canvas& canvas = CanvasOfPass(pass);
  HexRec& h = Hex[x][y];

  if (HexUnexplored(x, y)) {
    canvas.Blit(sprite::kUnexplored, left, top);
    return;
  }

  // Base hex: sea keeps its own picture, every other landscape stands on the
  // plain hex, coloured by its owner.
  long long base = h.Land;
  if (h.Land == kForest || h.Land == kUrban || h.Land == kSwamp || h.Land == kMountain || h.Land == 7) base = sprite::kBaseHex;
  if (h.Owner == 99) h.Owner = 0;  // an old marker of no owner
  if (h.Owner > 0) base = static_cast<long long>(ValidRegime(h.Owner) ? Regime[h.Owner].HexSprite : 0) + sprite::kRegimeHexBase;
  if (dark) base += sprite::kDarkShift;
  canvas.Blit(sprite::Checked(base), left, top);

  // The landscape on top of it.
  if (h.Land == kForest) canvas.Blit(sprite::kForest, left, top);
  if (h.Land == kSwamp) canvas.Blit(sprite::kSwamp, left, top);
  if (h.Land == kMountain) canvas.Blit(sprite::kMountain, left, top);
  if (h.Land == kUrban && h.Pop > 0) {
    // The town's size by the population rows, largest first.
    int town = sprite::kUrbanLargest + 5;
    if (h.Pop > EV(465)) {
      town = sprite::kUrbanLargest;
    } else if (h.Pop > EV(464)) {
      town = sprite::kUrbanLargest + 1;
    } else if (h.Pop > EV(463)) {
      town = sprite::kUrbanLargest + 2;
    } else if (h.Pop > EV(462)) {
      town = sprite::kUrbanLargest + 3;
    } else if (h.Pop > EV(461)) {
      town = sprite::kUrbanLargest + 4;
    }
    canvas.Blit(town, left, top);
  }

  // Rivers and coasts darken with the hex, and all of them while a range is
  // shown that reaches the selected hex.
  const int waterShift = (dark || (RangeModeOn() && SelectionReachable())) ? sprite::kRiverDarkShift : 0;
  if (h.Land != kSea) {
    for (int side = 1; side <= kHexSides; ++side) {
      if (h.River[side] != 0) canvas.Blit(sprite::kRiverBase + side + waterShift, left, top);
    }
  }

  // A road runs towards every neighbour with a road; a town draws none of
  // its own, the roads of its neighbours lead into it.
  if (h.Road == 1 && h.Land != kUrban) {
    for (int side = 1; side <= kHexSides; ++side) {
      const HexXY n = Neighbour(x, y, side);
      if (OnMap(n) && Hex[n.x][n.y].Road == 1) canvas.Blit(sprite::kRoadBase + side, left, top);
    }
  }

  // Woods spill over onto open ground and towns, but not across a river.
  if (h.Land == kGrass || h.Land == kUrban) {
    for (int side = 1; side <= kHexSides; ++side) {
      const HexXY n = Neighbour(x, y, side);
      if (OnMap(n) && Hex[n.x][n.y].Land == kForest && h.River[side] == 0) canvas.Blit(sprite::kForest + side, left, top);
    }
  }

  for (int side = 1; side <= kHexSides; ++side) {
    const HexXY n = Neighbour(x, y, side);
    if (OnMap(n) && Hex[n.x][n.y].Land == kSea) canvas.Blit(sprite::kRiverBase + side + waterShift, left, top);
  }

  // Fortifications only where the regime sees now.
  if (h.Vis >= 1) {
    for (int side = 1; side <= kHexSides; ++side) {
      const long long level = h.Entrench[side];
      if (level > 0) canvas.Blit(sprite::Checked(sprite::kEntrenchBase + 10 * (level - 1) + side), left, top);
    }
  }
}

void DrawHex(int x, int y) {
  if (!ValidHex(x, y)) return;
  const PixelXY c = HexToPixel(x, y, UI.ScrollX, UI.ScrollY);
  if (HexOffWindow(c)) return;
  const int left = c.x - 21;
  const int top = c.y - 20;
  HexRec& h = Hex[x][y];

  // Within reach of the order under way: the dark form.
  const bool dark = h.Mark < 999 && UI.EditMode == 0;
  TerrainDraw(x, y, left, top, dark, 1);

  for (int s = 1; s <= kStackSlots; ++s) {
    if (h.Unit[s] > 0) Counter(h.Unit[s]);
  }
  if (h.Vis > 0 || Game.FogOfWar == 0) DrawUnits(x, y, left, top);

  if (h.Owner == Game.CurRegime && Game.CurRegime > 0 && h.Pop > 0 && UI.EditMode == 0) {
    if (h.Damage > 0) MapCanvas().Blit(sprite::kDamage, left, top);
    if (h.ProdSHQ == 0) MapCanvas().Blit(sprite::kNoProduction, left, top);
  }

  if (UI.Overlay.ShowGrid != 0) DrawGrid(c);
  if (UI.Overlay.ShowSight != 0 && h.Vis < 1) MapCanvas().Blit(sprite::kHiddenHex, left, top);
  if (UI.Overlay.ShowEnemy != 0) DrawNewsMarks(x, y, left, top);
  if (UI.Overlay.ShowSupply != 0) DrawSupplyFigure(x, y, c);
}

void DoDrawhex() {
  MapCanvas().Clear();
  const int w = MapW();
  const int hgt = MapH();
  if (!RangeModeOn()) {
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= hgt; ++y) Hex[x][y].Mark = 999;
    }
  }
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= hgt; ++y) DrawHex(x, y);
  }
  Plat().YieldEvents();
}

void DoDrawhex6() {
  const int w = MapW();
  const int hgt = MapH();
  const int x1 = UI.SelX - 15 < 1 ? 1 : UI.SelX - 15;
  const int x2 = UI.SelX + 15 > w ? w : UI.SelX + 15;
  const int y1 = UI.SelY - 15 < 1 ? 1 : UI.SelY - 15;
  const int y2 = UI.SelY + 15 > hgt ? hgt : UI.SelY + 15;
  if (!RangeModeOn()) {
    for (int x = x1; x <= x2; ++x) {
      for (int y = y1; y <= y2; ++y) Hex[x][y].Mark = 999;
    }
  }
  for (int x = x1; x <= x2; ++x) {
    for (int y = y1; y <= y2; ++y) DrawHex(x, y);
  }
  Plat().YieldEvents();
}


}  // namespace mf
