#pragma once
// What both start dialogs (Start Game and Random Scenario) ask before a game
// begins: the game's switches, with the two fogs coupled, and who plays each
// regime. Every box writes straight into the game as the player clicks it;
// the dialog then shows what the game holds.

#include <string>

#include "engine/start_rows.h"
#include "platform/platform.h"

namespace mf {

class StartChoices : public HumbleDialog {
 public:
  // ---- Outputs: the switches as the game holds them -----------------------
  bool fog = false;
  bool exploration = false;
  bool pbem = false;
  bool passwords = false;
  bool aiBonus = false;

  // ---- The player's actions -------------------------------------------------
  // Fog of exploration needs fog of war: turning fog off turns exploration
  // off, and turning exploration on turns fog on.
  void SetFog(bool on);
  void SetExploration(bool on);
  void SetPbem(bool on);
  void SetPasswords(bool on);
  void SetAIBonus(bool on);
  // The "Human" box and the e-mail box of a regime's row (1-based); false,
  // with a reason, for a row that is not shown.
  virtual bool SetHuman(int row, bool human, std::string* why) = 0;
  virtual bool SetEmail(int row, const std::string& email, std::string* why) = 0;

 protected:
  // Shows the game's switches in the boxes.
  void MirrorSwitches();
  // Shows the whole dialog again once a box has changed the game.
  virtual void Mirror() = 0;
  // The script actions both dialogs take: a switch (fog, exploration, pbem,
  // passwords, aibonus) as 0 or 1; `playersAction`, a list of one box a
  // regime from 1, where 1 means a human when `oneIsHuman` and the computer
  // otherwise; email, a list of addresses. `*handled` is false for any other
  // action, which the dialog itself takes.
  bool ApplyChoice(const std::string& action, const std::string& value, const std::string& playersAction,
                   bool oneIsHuman, std::string* why, bool* handled);
};

}  // namespace mf
