// The Event! dialog: the story of a fired event with its picture, and OK or,
// for a choice event, up to five buttons with the answers the scenario
// offers.
#pragma once

#include <string>

#include "platform/platform.h"

namespace mf {

class EventDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Event!";
  static constexpr const char* kOk = "OK";
  static constexpr int kChoices = 5;

  // Fills every output from event `event` and opens the dialog.
  void Prepare(int event);

  // ---- Outputs ------------------------------------------------------------
  std::string caption = kCaption;
  std::string story;                   // Event.Story, its lines broken by CR LF
  int picture = 0;                     // sprite 2000 + Event.Sprite; 0 when the event has none
  std::string okCaption = kOk;
  bool okEnabled = true;               // off for a choice event: the player must choose
  bool choiceShown[kChoices] = {};     // a choice button with a text longer than 1
  std::string choiceCaption[kChoices]; // Event.DataText[1..5]
  bool mainWindowEnabled = true;       // the main window takes no input while the dialog is up

  // ---- State --------------------------------------------------------------
  int event = 0;
  bool open = false;
  int chosen = 0;  // the choice button pressed, 1..5; 0 for OK

  // ---- The player's actions -------------------------------------------------
  bool OkButton(std::string* why);
  // Choice button n (1..5): applies that choice and closes.
  bool ChoiceButton(int n, std::string* why);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: ok, choice=N.
  std::string DialogName() const override { return "event"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  // OK, or for a choice event its first choice ("choice=1").
  std::string DefaultAction() const override;
};

}  // namespace mf
