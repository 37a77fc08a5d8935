// Raising new formations, THQs and SHQs for political points, and taking
// headquarters out of the chain of command.
#pragma once

#include <string>

#include "platform/platform.h"

namespace mf {

// "1st", "2nd", and from there on the number with "th" ("3th", "21th"):
// how a regime numbers its new formations.
std::string Ordinal(long n);

// A new formation of Game.CurRegime in the theater (0 land, 1 sea, 2 air;
// anything else reads as land) at UI.SelX, UI.SelY, in the first free
// stack slot: named by the regime's serial, readiness 50, experience 25,
// no troops, with a newly drawn officer. Outside the editor it is disrupted
// by engine variable 545 and costs engine variable 611, 612 or 613. Returns
// the unit, or 0 when no unit number is free or the hex is full.
int NewFormation(int theater);
// A new THQ there, for engine variable 614. With askName the player names
// it ("Give a name to the new Tactical HQ.", offering "THQ" + the ordinal of
// the regime's serial); a name shorter than 2 characters cancels it, one
// longer than 16 is cut. The computer takes the offered name.
int NewThq(bool askName = true);
// A new SHQ there, for engine variable 615, with the next free SHQ number of
// the regime and an empty pool. Named as a THQ is ("Give a name to the new
// Strategic HQ.", offering "SHQ" + the ordinal of its number).
int NewShq(bool askName = true);

// A THQ leaves the chain of command: its badge is freed, and the formations
// under it lose their Boss and ThqBadge (and are redrawn).
void DropThq(int unit);
// An SHQ leaves the chain of command: everything directly under it loses its
// Boss, and its SHQ number is free again.
void DropShq(int unit);

// The New Unit dialog for the selected hex.
class NewUnitDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Create what kind of unit?";
  static constexpr const char* kCancel = "CANCEL";
  enum Kind : int { kLand, kNavy, kAir, kThq, kShq, kKinds };

  // Fills captions and enabled states for UI.SelX, UI.SelY and
  // Game.CurRegime, and opens the dialog.
  void Prepare();

  // ---- Outputs ------------------------------------------------------------
  // "Land Formation = 1pp", "Navy Fleet = 1pp", "Air Wing = 1pp",
  // "THQ = 3pp", "SHQ = 5pp".
  std::string caption[kKinds];
  bool enabled[kKinds] = {};

  // ---- State --------------------------------------------------------------
  bool open = false;
  int made = 0;  // the unit the dialog made, 0 for none

  // ---- The player's actions -------------------------------------------------
  // One of the five buttons: makes that unit and closes the dialog.
  bool Make(int kind, std::string* why);
  bool Cancel(std::string* why);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: land, navy, air, thq, shq, cancel.
  std::string DialogName() const override { return "newunit"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "cancel"; }
};

// "[N]ew Unit": the New Unit dialog for the selected hex. In the editor the
// hex's owner is the regime that gets the unit, free of charge.
void NewCommand();

}  // namespace mf
