#include "editor/map_paint.h"

#include <deque>
#include <utility>
#include <vector>

#include "model/arith.h"
#include "model/capacity.h"
#include "model/cleared_with_tables.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/order_registers.h"
#include "orders/order_buttons.h"
#include "platform/platform.h"

namespace mf {

PaintToolsRec PaintTools;


namespace {

const std::string kEntries[kPaintListRows + 1] = {
    "",      "Grass", "Forest", "", "Sea", "Swamp/Marsh", "Mountain", "Road", "", "", "",
    "River /-", "River -\\", "River -|", "River _/", "River \\_", "River |-"};

constexpr const char* kNoRegime = "Type a valid regime # in the box above or use 99 to paint neutral ownership.";
constexpr const char* kNoLandscape = "Select a landscape type in the listbox right of the pressed button first.";
constexpr int kNameLimit = 20;
constexpr Long kPopLimit = 250000;


// What painting can change of a hex: kept before and after each hex of a stroke.
struct HexPaint {
  Long Land = 0, Pop = 0, People = 0, Owner = 0, Prod = 0, ProdSHQ = 0, Road = 0;
  Short River[kHexSides + 1] = {};
  std::string UrbanName;
};

HexPaint Take(int x, int y) {
  const HexRec& h = Hex[x][y];
  HexPaint p;
  p.Land = h.Land;
  p.Pop = h.Pop;
  p.People = h.People;
  p.Owner = h.Owner;
  p.Prod = h.Prod;
  p.ProdSHQ = h.ProdSHQ;
  p.Road = h.Road;
  for (int s = 1; s <= kHexSides; ++s) p.River[s] = h.River[s];
  p.UrbanName = h.UrbanName;
  return p;
}

void Put(int x, int y, const HexPaint& p) {
  HexRec& h = Hex[x][y];
  h.Land = p.Land;
  h.Pop = p.Pop;
  h.People = p.People;
  h.Owner = p.Owner;
  h.Prod = p.Prod;
  h.ProdSHQ = p.ProdSHQ;
  h.Road = p.Road;
  for (int s = 1; s <= kHexSides; ++s) h.River[s] = p.River[s];
  h.UrbanName = p.UrbanName;
}

bool Same(const HexPaint& a, const HexPaint& b) {
  if (a.Land != b.Land || a.Pop != b.Pop || a.People != b.People || a.Owner != b.Owner || a.Prod != b.Prod ||
      a.ProdSHQ != b.ProdSHQ || a.Road != b.Road || a.UrbanName != b.UrbanName)
    return false;
  for (int s = 1; s <= kHexSides; ++s)
    if (a.River[s] != b.River[s]) return false;
  return true;
}

struct HexChange {
  int x = 0, y = 0;
  HexPaint before, after;
};
using Stroke = std::vector<HexChange>;

// The stroke under way (open while the button is held) and the two stacks.
struct Strokes {
  bool open = false;
  int mapW = 0, mapH = 0;  // the map the strokes were made on
  Stroke current;
  std::vector<std::pair<int, int>> visited;  // hexes the open stroke has passed
  std::deque<Stroke> undo, redo;
};
Strokes& History() {
  static Strokes s;
  return s;
}

// Strokes of another map cannot be undone on this one.
void CheckMap() {
  Strokes& h = History();
  if (h.mapW != Game.MapW || h.mapH != Game.MapH) {
    ForgetPaintStrokes();
    h.mapW = static_cast<int>(Game.MapW);
    h.mapH = static_cast<int>(Game.MapH);
  }
}

void CloseStroke() {
  Strokes& h = History();
  if (!h.open) return;
  h.open = false;
  h.visited.clear();
  if (h.current.empty()) return;
  h.undo.push_back(std::move(h.current));
  h.current.clear();
  while (static_cast<int>(h.undo.size()) > kPaintUndoDepth) h.undo.pop_front();
  h.redo.clear();
}

void OpenStroke() {
  CloseStroke();
  CheckMap();
  Strokes& h = History();
  h.open = true;
  h.current.clear();
}

bool InStroke(int x, int y) {
  for (const auto& [vx, vy] : History().visited)
    if (vx == x && vy == y) return true;
  return false;
}

// Notes what a hex was before it is changed and after.
void Record(int x, int y, const HexPaint& before) {
  const HexPaint after = Take(x, y);
  if (Same(before, after)) return;
  History().current.push_back({x, y, before, after});
}

// The hex and its six neighbours are drawn again (a road or a river shows
// on both sides), and the map refreshed.
void Repaint() {
  RequestRedraw(1);
  UI.PanelDirty = true;
}

// The regime of the box: 1..Game.RegimeCount or 99; 0 when not valid.
int BoxRegime() {
  const std::string t = Trim(PaintTools.regimeBox);
  if (t.empty()) return 0;
  const double v = Val(t);
  if (v != static_cast<int>(v)) return 0;
  const int r = static_cast<int>(v);
  if (r == kNeutralBrush) return r;
  return r >= 1 && r <= Game.RegimeCount && r <= kRegimeCap ? r : 0;
}

int ListBrush() {
  const int row = PaintTools.listRow;
  return row >= 1 && row <= kPaintListRows && !kEntries[row].empty() ? row : 0;
}

// Regime painting of one hex: the owner changes unless it is the owner
// already, a unit stands there, or the hex is sea.
void PaintOwner(int x, int y) {
  HexRec& h = Hex[x][y];
  const Long owner = UI.Order.RegimePaint == kNeutralBrush ? 0 : UI.Order.RegimePaint;
  if (h.Owner == owner || h.Unit[1] != 0 || h.Land == kSea) return;
  const HexPaint before = Take(x, y);
  h.Owner = owner;
  Record(x, y, before);
  Repaint();
}

// Landscape painting of one hex.
void PaintLandscape(int x, int y) {
  HexRec& h = Hex[x][y];
  const Long brush = UI.Order.LandscapePaint;
  const HexPaint before = Take(x, y);
  if (brush < kRoadBrush) {
    if (h.Land == brush) return;
    if (brush == kSea && h.Unit[1] != 0) return;
    h.Land = brush;
    h.Pop = 0;
    h.Prod = 0;
    h.People = 0;
    h.ProdSHQ = 0;
    if (brush == kSea) h.Owner = 0;
  } else if (brush == kRoadBrush) {
    h.Road = h.Road != 0 ? 0 : 1;
  } else if (brush >= kFirstRiverBrush && brush < kFirstRiverBrush + kHexSides) {
    Short& side = h.River[brush - kFirstRiverBrush + 1];
    side = side != 0 ? 0 : 1;
  } else {
    return;
  }
  Record(x, y, before);
  Repaint();
}

void PaintAt(int x, int y) {
  if (!Editing() || !ValidHex(x, y) || InStroke(x, y)) return;
  if (History().open) History().visited.emplace_back(x, y);
  if (UI.Order.RegimePaint > 0) PaintOwner(x, y);
  if (UI.Order.LandscapePaint > 0) PaintLandscape(x, y);
}

void AfterBrushChange() {
  RefreshButtons();
  UI.PanelDirty = true;
}

}  // namespace

const std::string& PaintListEntry(int row) {
  static const std::string none;
  return row >= 1 && row <= kPaintListRows ? kEntries[row] : none;
}

std::string RegimePaintCaption() { return UI.Order.RegimePaint > 0 ? "END REGIME PAINTING" : "PAINT REGIME"; }
std::string TypePaintCaption() { return UI.Order.LandscapePaint > 0 ? "END TYPE PAINTING" : "PAINT TYPE"; }
std::string UrbanCaption() { return "URBAN"; }

void EndPainting() {
  CloseStroke();
  UI.Order.RegimePaint = 0;
  UI.Order.LandscapePaint = 0;
  AfterBrushChange();
}

void PressRegimePaint() {
  if (!Editing()) return;
  if (UI.Order.RegimePaint > 0) {
    EndPainting();
    return;
  }
  const int r = BoxRegime();
  if (r == 0) {
    Plat().ShowMessage(kNoRegime, "");
    return;
  }
  EndPainting();
  UI.Order.RegimePaint = r;
  AfterBrushChange();
}

void PressTypePaint() {
  if (!Editing()) return;
  if (UI.Order.LandscapePaint > 0) {
    EndPainting();
    return;
  }
  const int brush = ListBrush();
  if (brush == 0) {
    Plat().ShowMessage(kNoLandscape, "");
    return;
  }
  EndPainting();
  UI.Order.LandscapePaint = brush;
  AfterBrushChange();
}

void SetPaintRegimeBox(const std::string& text) {
  PaintTools.regimeBox = text;
  const int r = BoxRegime();
  if (UI.Order.RegimePaint > 0 && r > 0) {
    CloseStroke();
    UI.Order.RegimePaint = r;
  }
}

void SelectPaintRow(int row) {
  PaintTools.listRow = row >= 0 && row <= kPaintListRows ? row : 0;
  const int brush = ListBrush();
  if (UI.Order.LandscapePaint > 0 && brush > 0) {
    CloseStroke();
    UI.Order.LandscapePaint = brush;
  }
}

void PressUrban() {
  if (!Editing()) return;
  const int x = static_cast<int>(UI.SelX), y = static_cast<int>(UI.SelY);
  if (!ValidHex(x, y) || Hex[x][y].Land == kSea) return;
  HexRec& h = Hex[x][y];
  const std::string name = Plat().InputPrompt("Urban Name", "", h.UrbanName);
  if (name.empty()) return;
  const std::string popText = Plat().InputPrompt("Population", "", NumText(h.Pop));
  if (Trim(popText).empty()) return;
  const std::string peopleText = Plat().InputPrompt("People?", "", NumText(h.People));
  if (Trim(peopleText).empty()) return;

  OpenStroke();
  const HexPaint before = Take(x, y);
  double pop = Val(popText);
  if (pop < 0) pop = 0;
  if (pop > kPopLimit) pop = kPopLimit;
  Long people = ValLong(peopleText);
  if (people < 1) people = 1;  // every town has a people
  if (CInt(pop) == 0) {
    h.Land = kGrass;
    h.Pop = 0;
    h.UrbanName.clear();
    h.People = 0;
  } else {
    h.Land = kUrban;
    h.Pop = static_cast<Long>(CInt(pop));
    h.UrbanName = Left(name, kNameLimit);
    h.People = people;
  }
  Record(x, y, before);
  CloseStroke();
  Repaint();
}

void RegimePaintButton() {
  OpenStroke();
  PaintAt(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
}

void LandscapePaintButton() {
  // Both brushes are never on together; a press opens one stroke.
  if (UI.Order.RegimePaint > 0) return;
  OpenStroke();
  PaintAt(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
}

void PaintDragTo(int x, int y) {
  if (!History().open || !ValidHex(x, y)) return;
  if (UI.Order.RegimePaint == 0 && UI.Order.LandscapePaint == 0) return;
  if (InStroke(x, y)) return;
  PaintAt(x, y);
}

void EndPaintStroke() { CloseStroke(); }

bool PaintStrokeOpen() {
  return History().open && (UI.Order.RegimePaint > 0 || UI.Order.LandscapePaint > 0);
}

bool UndoPaint() {
  CloseStroke();
  CheckMap();
  Strokes& h = History();
  if (h.undo.empty()) return false;
  // A stroke is taken back only from the hexes it left; a map loaded or
  // changed otherwise since makes the kept strokes meaningless.
  for (const auto& c : h.undo.back())
    if (!ValidHex(c.x, c.y) || !Same(Take(c.x, c.y), c.after)) {
      ForgetPaintStrokes();
      return false;
    }
  Stroke s = std::move(h.undo.back());
  h.undo.pop_back();
  for (auto it = s.rbegin(); it != s.rend(); ++it) Put(it->x, it->y, it->before);
  h.redo.push_back(std::move(s));
  RequestRedraw(2);
  UI.PanelDirty = true;
  return true;
}

bool RedoPaint() {
  CloseStroke();
  CheckMap();
  Strokes& h = History();
  if (h.redo.empty()) return false;
  for (const auto& c : h.redo.back())
    if (!ValidHex(c.x, c.y) || !Same(Take(c.x, c.y), c.before)) {
      ForgetPaintStrokes();
      return false;
    }
  Stroke s = std::move(h.redo.back());
  h.redo.pop_back();
  for (const auto& c : s) Put(c.x, c.y, c.after);
  h.undo.push_back(std::move(s));
  RequestRedraw(2);
  UI.PanelDirty = true;
  return true;
}

int UndoDepth() { return static_cast<int>(History().undo.size()); }
int RedoDepth() { return static_cast<int>(History().redo.size()); }

void ForgetPaintStrokes() {
  Strokes& h = History();
  h.open = false;
  h.current.clear();
  h.visited.clear();
  h.undo.clear();
  h.redo.clear();
}

namespace {
// A clear of the game clears the tools and the strokes too: strokes of the
// last game cannot be undone on the next, even on a map of the same size.
const bool kClearedWithTables = ClearedWithTables([] {
  PaintTools = PaintToolsRec{};
  ForgetPaintStrokes();
});
}  // namespace

std::string BrushLabel() {
  if (UI.Order.RegimePaint == kNeutralBrush) return "Owner: neutral";
  if (UI.Order.RegimePaint > 0) {
    const Long r = UI.Order.RegimePaint;
    return "Owner: " + (ValidRegime(static_cast<int>(r)) ? Regime[r].Name : std::string());
  }
  if (UI.Order.LandscapePaint > 0) return PaintListEntry(static_cast<int>(UI.Order.LandscapePaint));
  return "";
}

}  // namespace mf
