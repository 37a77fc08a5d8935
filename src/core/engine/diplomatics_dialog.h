// The Diplomatics dialog: one regime's standing with every other regime,
// and a button per regime to buy peace or war with political points. In the
// editor the same buttons set a pair's relation and price directly.
#pragma once

#include <string>

#include "platform/platform.h"

namespace mf {

// The dialog has room for ten regimes; a regime sits at place (number - 1),
// so regimes beyond the tenth are not shown and the speaker's own place is
// left empty.
constexpr int kDipRows = 10;

struct DiplomaticsRow {
  bool shown = false;       // a regime other than the speaker, within the ten places
  int regime = 0;           // place + 1
  int hexPicture = 0;       // the regime's coloured hex, sprite 20 + Regime.HexSprite
  std::string text;         // "At war with Blue" / "At peace with Blue"
  std::string buttonCaption;
  bool buttonShown = false;    // a price of 999 means the relation can never change
  bool buttonEnabled = false;  // a price above the speaker's points cannot be paid
};

class DiplomaticsDialog : public HumbleDialog {
 public:
  // Opens the dialog for `speaker`; `editing` gives the editor's form.
  void Prepare(int speaker, bool editing);
  // Fills every row from the relation table, as it stands now.
  void Refill();

  // ---- Outputs ------------------------------------------------------------
  std::string caption = "Diplomatics";
  std::string title;                 // regime name + " relations:"
  std::string closeCaption = "Close";
  DiplomaticsRow rows[kDipRows];     // by place: rows[p] is regime p + 1

  // ---- State --------------------------------------------------------------
  bool open = false;
  bool editing = false;
  int speaker = 0;  // the regime whose relations are shown

  // ---- The player's actions -------------------------------------------------
  // The button of the row of regime `regime`. False, with a reason, when that
  // row or its button is not there or not enabled.
  bool PressRow(int regime, std::string* why);
  void CloseButton() { open = false; }

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: row=R (the button of regime R), close.
  std::string DialogName() const override { return "diplomatics"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }
};

}  // namespace mf
