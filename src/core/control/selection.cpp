#include "control/selection.h"

#include <cstdlib>

#include "control/order_state.h"
#include "editor/map_paint.h"
#include "model/game_state.h"
#include "platform/platform.h"

namespace mf {
namespace {

// Hexes redrawn around the selection by a partial redraw, each way.
constexpr int kPartialReach = 15;

}  // namespace

void SelectHex(int x, int y) {
  if (!ValidHex(x, y)) return;
  // The stack may have changed since the last press (a formation moved off
  // or was disbanded), so it is counted afresh on every press.
  UI.SelCount = StackCount(x, y);
  const bool sameHex = x == UI.PrevSelX && y == UI.PrevSelY;
  const int oldX = UI.PrevSelX;
  const int oldY = UI.PrevSelY;
  UI.SelX = x;
  UI.SelY = y;
  if (UI.Order.SelOrderMove == 0 && sameHex && UI.SelCount > 1) {
    // Walking the stack: only this hex changes.
    UI.SelSlot = UI.SelSlot + 1;
    if (UI.SelSlot > UI.SelCount || UI.SelSlot < 1) UI.SelSlot = 1;
    RequestRedraw(1);
  } else {
    UI.SelSlot = UI.SelCount > 0 ? 1 : 0;
    // The old hex goes back to its stack drawn in plain order: the square
    // around the new selection covers it when it is near, otherwise the
    // whole map is redrawn.
    const bool oldNear = std::abs(oldX - x) <= kPartialReach && std::abs(oldY - y) <= kPartialReach;
    RequestRedraw(oldX > 0 && oldY > 0 && !oldNear ? 2 : 1);
  }
  UI.PrevSelX = x;
  UI.PrevSelY = y;
  UI.PanelDirty = true;
}

bool SelectStackSlot(int slot) {
  if (!ValidHex(UI.SelX, UI.SelY)) return false;
  UI.SelCount = StackCount(UI.SelX, UI.SelY);
  if (slot < 1 || slot > UI.SelCount) return false;
  UI.SelSlot = slot;
  // The chosen formation is drawn on top of its stack.
  RequestRedraw(1);
  UI.PanelDirty = true;
  return true;
}

void ClickMap(int x, int y, int button) {
  if (x <= 0 || y <= 0 || !ValidHex(x, y)) return;
  if (UI.SoundOff == 0) Plat().PlaySound(kClickSound);
  SelectHex(x, y);
  RefreshButtons();
  if (button != kLeftButton) return;
  // A left press also finishes the orders that end with a click on the map
  // (move, entrench, the editor's painting); each in turn takes it from here.
  if (UI.Order.SelOrderMove > 0) MoveButton();
  if (UI.Order.EntrenchOrder > 0) EntrenchButton();
  if (UI.Order.RegimePaint > 0) RegimePaintButton();
  if (UI.Order.LandscapePaint > 0) LandscapePaintButton();
}

}  // namespace mf
