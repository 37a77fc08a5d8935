// The Status dialog: three reports in words for the regime at the map, one
// at a time in one list: the selected hex and the SHQs that reach it, the
// order of battle, and production with the supply system of the last turn
// start.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

// The regime the reports speak of: the moving regime in play; in the editor,
// where nobody moves, the owner of the selected hex (0 when none).
int StatusRegime();

// "HEX STATUS x,y", then for each SHQ of the regime that reached the hex at
// its last turn start "Hex is supplied by " + name, "   -distance: " + cost,
// and for a route over the sea the port it came ashore in, or the open shore
// line with its "(50% penalty)". Empty, after the message "No hex selected
// before going to status report.", when no hex is selected.
std::vector<std::string> HexStatusReport();
// "YOUR ORDER OF BATTLE: (OOB)": each SHQ with its pool and its THQs with
// their formations, then the formations without a chain under a line of dots.
std::vector<std::string> OrderOfBattleReport();
// "CURRENT PRODUCTION:" with what each town makes this turn, then "YOUR
// SUPPLY SYSTEM:" with each SHQ's towns, the formations it served and the
// sums of both.
std::vector<std::string> SupplySystemReport();

class StatusDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Status";
  // The doubled sign of "Supply&&Prod" is how a button caption shows one "&".
  static constexpr const char* kHexButton = "Selected Hex";
  static constexpr const char* kOobButton = "OOB";
  static constexpr const char* kSupplyButton = "Supply&&Prod";
  static constexpr const char* kExitButton = "Exit Status Window";

  // Opens on the report chosen last (the first one the first time).
  void Prepare();

  // ---- Outputs ------------------------------------------------------------
  std::vector<std::string> lines;
  int report = 1;  // 1 hex, 2 order of battle, 3 supply and production

  // ---- State --------------------------------------------------------------
  bool open = false;

  // ---- The player's actions -------------------------------------------------
  void HexButton() { Show(1); }
  void OobButton() { Show(2); }
  void SupplyButton() { Show(3); }
  void ExitButton() { open = false; }
  // The report as plain text, one line each, for the clipboard.
  std::string Text() const;

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: hex, oob, supply, exit.
  std::string DialogName() const override { return "status"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "exit"; }

 private:
  void Show(int which);
};

// The Status dialog from the menu or its key: opens it and waits until it closes.
void DoStatus();

}  // namespace mf
