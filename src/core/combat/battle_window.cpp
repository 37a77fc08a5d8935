#include "combat/battle_window.h"

#include <utility>

#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {
namespace {

BattleWindowHook& Hook() {
  static BattleWindowHook hook;
  return hook;
}

void Tell(BattleWindowChange change) {
  if (Hook()) Hook()(change);
}

// Nobody sits at the screen when the computer plays every regime: a shown
// battle then goes by without waiting for OK.
bool EveryRegimeComputerRun() {
  for (int r = 1; r <= Game.RegimeCount && r <= kRegimeCap; ++r)
    if (!RunByComputer(r)) return false;
  return true;
}

}  // namespace

bool BattleWindow::Act(const std::string& action, const std::string&, std::string* why) {
  if (action != "ok" && action != "space") {
    if (why) *why = "the battle window has no action \"" + action + "\"";
    return false;
  }
  if (!okEnabled) {
    if (why) *why = "OK is not enabled while the battle is fought";
    return false;
  }
  OkButton();
  return true;
}

void BattleWindow::OkButton() {
  if (okEnabled) waiting = false;
}

BattleWindow& TheBattleWindow() {
  static BattleWindow window;
  return window;
}

void SetBattleWindowHook(BattleWindowHook hook) { Hook() = std::move(hook); }

void AddBattleLine(const std::string& text, int delay) {
  TheBattleWindow().lines.push_back(text);
  Tell(BattleWindowChange::kLine);
  if (delay > 0) Plat().SleepMs(delay);
}

void OpenBattleWindow(bool shown) {
  BattleWindow& w = TheBattleWindow();
  w.mainWindowEnabled = false;
  // The log of an unshown battle is never looked at, so every battle starts
  // an empty one; a shown battle must in any case.
  w.lines.clear();
  w.status.clear();
  w.okEnabled = false;
  w.waiting = false;
  w.visible = shown;
  Tell(BattleWindowChange::kOpened);
}

void CloseBattleWindow(bool shown) {
  BattleWindow& w = TheBattleWindow();
  if (shown) {
    w.status = "Finished.";
    w.okEnabled = true;
    Tell(BattleWindowChange::kFinished);
    if (!EveryRegimeComputerRun()) {
      w.waiting = true;
      Plat().RunDialog(w);
      w.waiting = false;
    }
  }
  w.visible = false;
  w.okEnabled = false;
  w.mainWindowEnabled = true;
  Tell(BattleWindowChange::kClosed);
}

}  // namespace mf
