// The seam between the rules and the outside world. Core never opens a
// window or blocks on a person: it asks the installed platform. The Qt
// program installs a windowed one; the tests and marrowfield-cli install the
// scripted one, which records every message and answers from a queue.
#pragma once

#include <string>
#include <vector>

namespace mf {

// A modal dialog of the game, kept as plain state with a function for every
// button, list and box. A platform shows it and forwards a person's actions;
// the scripted platform feeds it queued actions. All rules live in the dialog.
class HumbleDialog {
 public:
  virtual ~HumbleDialog() = default;
  // Name used by scripts: "newturn", "production", "transfer", ...
  virtual std::string DialogName() const = 0;
  virtual bool IsOpen() const = 0;
  // One action of a person: "proceed", or a setting with a value ("type", "12").
  // False, with a reason, when the dialog has no such action or it is disabled.
  virtual bool Act(const std::string& action, const std::string& value, std::string* why) = 0;
  // What the dialog does when a script queued nothing for it.
  virtual std::string DefaultAction() const = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;
  // Message box with an OK button. An empty title shows the program's name.
  virtual void ShowMessage(const std::string& text, const std::string& title) = 0;
  // Message box with Yes and No; true for Yes.
  virtual bool AskYesNo(const std::string& text, const std::string& title) = 0;
  // Input prompt with a default; an empty result means cancelled (or emptied).
  virtual std::string InputPrompt(const std::string& text, const std::string& title,
                                  const std::string& defaultText) = 0;
  // Plays the sound of a slot of the sound table; the caller checks UI.SoundOff.
  virtual void PlaySound(int slot) = 0;
  // Lets the event loop run once (long work yields at named points).
  virtual void YieldEvents() = 0;
  virtual void SleepMs(int ms) = 0;
  virtual void SetBusy(bool busy) = 0;
  // File dialogs; filter as "Name|*.ext|Name2|*.ext2". An empty result is cancel.
  virtual std::string OpenFileDialog(const std::string& title, const std::string& filter,
                                     const std::string& startDir) = 0;
  virtual std::string SaveFileDialog(const std::string& title, const std::string& filter,
                                     const std::string& startDir) = 0;
  // Runs a modal dialog until it closes.
  virtual void RunDialog(HumbleDialog& dialog) = 0;
  // Milliseconds since some fixed start.
  virtual unsigned TickCount() = 0;
  // Whether the mouse button is held down now; a dragged scroll bar waits for
  // its release before the map is redrawn.
  virtual bool MouseButtonDown() { return false; }
  // One line of the computer player's analysis log, as it is written. The
  // window appends it to its analysis list; the headless program prints it.
  virtual void AnalysisLine(const std::string&) {}
  // The lines of a report (the Status and Info dialogs) each time one is
  // filled. A window shows them in the dialog itself and needs nothing here;
  // the scripted platform records and prints them.
  virtual void ShowReport(const std::vector<std::string>& lines) { (void)lines; }
  // The colour picker: true with the chosen colour as 0xRRGGBB in *rgb,
  // false when the person cancels. Without a picker it is always cancelled.
  virtual bool PickColor(long* rgb) {
    (void)rgb;
    return false;
  }
};

// The installed platform. Before anything is installed a scripted platform
// with an empty queue serves, so core routines never meet a null seam.
Platform& Plat();
// Installs a platform (not owned); nullptr returns to the built-in scripted one.
void InstallPlatform(Platform* platform);

// Title that an empty message-box title stands for.
inline constexpr const char* kProgramTitle = "Marrowfield";

}  // namespace mf
