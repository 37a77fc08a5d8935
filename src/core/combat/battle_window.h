// The battle window: one list of log lines, a status line and an OK button.
//
// A battle writes its log whether or not anybody watches; the window is only
// shown when the regime to move is a person's, or the computer's moves are
// to be shown. The window program follows the battle through a hook, since
// the lines must appear while the battle is still being fought; the wait for
// OK at the end of a shown battle is an ordinary modal dialog ("battle").
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class BattleWindow : public HumbleDialog {
 public:
  std::string DialogName() const override { return "battle"; }
  // Open while it waits for OK at the end of a shown battle.
  bool IsOpen() const override { return waiting; }
  // "ok" (the OK button) and "space" (the space bar) both close it once OK is enabled.
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "ok"; }

  // ---- Outputs ------------------------------------------------------------
  std::string caption = "Battle";
  std::vector<std::string> lines;  // the log, oldest first; the view keeps the last in sight
  std::string status;              // "" while fighting, "Finished." at the end
  std::string okCaption = "OK";
  bool okEnabled = false;
  bool visible = false;            // the window is on screen
  bool mainWindowEnabled = true;   // the main window takes no input during a battle

  // ---- State --------------------------------------------------------------
  bool waiting = false;

  void OkButton();
};

// The one battle window of the program.
BattleWindow& TheBattleWindow();

// What just changed in the battle window.
enum class BattleWindowChange { kOpened, kLine, kFinished, kClosed };
// Called after every change; the window program shows the battle live, the
// headless program prints the lines. An empty function removes the hook.
using BattleWindowHook = std::function<void(BattleWindowChange change)>;
void SetBattleWindowHook(BattleWindowHook hook);

// Appends a line to the battle log, keeps it in sight, then waits `delay`
// milliseconds. The log is written for every battle, shown or not.
void AddBattleLine(const std::string& text, int delay);

// Opening and closing of the window around a battle or an air mission.
// `shown` is the display flag: the window appears only when it is set; the
// main window is disabled either way. Opening empties the log and the status.
void OpenBattleWindow(bool shown);
// The end of a fight: a shown window reads "Finished.", enables OK and waits
// for it (unless every regime is computer-run); then the window goes away
// and the main window takes input again.
void CloseBattleWindow(bool shown);

}  // namespace mf
