#include "control/keyboard.h"

#include <string>

#include "control/order_state.h"
#include "model/arith.h"
#include "model/game_state.h"
#include "platform/platform.h"

namespace mf {
namespace {

void SwitchSound() {
  if (UI.SoundOff == 0) {
    UI.SoundOff = 1;
    Plat().ShowMessage("Sound is switched off", "");
  } else {
    UI.SoundOff = 0;
    Plat().ShowMessage("Sound is switched on", "");
  }
}

// F12, a tester's key: jumps the game to another turn.
void AskForTurn() {
  const std::string answer = Plat().InputPrompt("Set current Turn please (debug only):", "", NumText(Game.Turn));
  // A cancelled prompt leaves the game where it is rather than throwing it
  // back to turn 0, which would end the game under the players' feet.
  if (Trim(answer).empty()) return;
  Game.Turn = ValLong(answer);
  UI.TurnLabel = NumText(Game.Turn);
}

// One scroll position moved by half of the visible part along one axis.
// The visible part is the picture less the scroll range; a map that fits
// the window has no range and does not scroll.
bool ScrollAxis(Long& pos, Long maxPos, Long picture, int dir) {
  if (dir == 0 || maxPos <= 0) return false;
  const Long half = (picture - maxPos) / 2;
  Long to = pos + dir * half;
  if (to < 0) to = 0;
  if (to > maxPos) to = maxPos;
  if (to == pos) return false;
  pos = to;
  return true;
}

}  // namespace

bool ScrollHalfScreen(int dx, int dy) {
  const bool movedX = ScrollAxis(UI.ScrollX, UI.ScrollMaxX, UI.PictureW, dx);
  const bool movedY = ScrollAxis(UI.ScrollY, UI.ScrollMaxY, UI.PictureH, dy);
  // The map picture shows the window's part of the map only: it is drawn anew.
  if (movedX || movedY) RequestRedraw(2);
  return movedX || movedY;
}

bool KeyDown(int keyCode) {
  const bool editing = UI.EditMode == 1;
  switch (keyCode) {
    case kKeyF1:
      SwitchSound();
      return true;
    case kKeyF11:
      if (editing) return false;
      UI.AILogShown = !UI.AILogShown;
      return true;
    case kKeyF12:
      if (editing) return false;
      AskForTurn();
      return true;
    case kKeyEscape:
      DoCancel();
      return true;
    case kKeyLeft:
      return ScrollHalfScreen(-1, 0);
    case kKeyRight:
      return ScrollHalfScreen(1, 0);
    case kKeyUp:
      return ScrollHalfScreen(0, -1);
    case kKeyDown:
      return ScrollHalfScreen(0, 1);
    default:
      // Enter, Space and the letters of the order buttons belong to the
      // orders; F2 to the editor's owner painting.
      return OrderKey(keyCode);
  }
}

}  // namespace mf
