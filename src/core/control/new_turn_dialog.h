// The New Turn dialog: what a human player sees before his turn starts —
// the headline (turn, victory or defeat), his news and losses, the briefing,
// the password, and in a play-by-mail game the button that saves the game
// for the next player.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class NewTurnDialog : public HumbleDialog {
 public:
  // Fills every output for Game.CurRegime and Game.Turn and opens the dialog.
  void Prepare();

  // ---- Outputs ------------------------------------------------------------
  std::string caption;          // the regime's name
  std::string proceedCaption;   // "Start turn 3"
  std::string exitCaption = "Exit Game";

  // The password part.
  bool passwordShown = false;
  std::string passwordLabel = "Password:";
  std::string passwordButtonCaption;  // "Set this as your password" on turn 1, "Log in" after
  std::string passwordText;           // what the player has typed

  // The play-by-mail button.
  bool pbemShown = false;
  std::string pbemCaption;  // "Save PBEM & Exit this game" and, on a second line, whom to mail

  // The report part; hidden behind the password when passwords are used.
  bool reportShown = false;
  std::string headlineTitle;
  std::string headlineText;
  std::string newsTitle = "FORMATION LOSSES + NEWS:";
  std::vector<std::string> newsRows;
  std::string lossesTitle = "LOSSES:";
  std::vector<std::string> lossRows;
  std::string killsTitle = "CASUALTIES INFLICTED:";
  std::vector<std::string> killRows;
  std::string briefingTitle = "Start briefing:";
  std::string briefing;

  // ---- State --------------------------------------------------------------
  bool open = false;
  bool accepted = false;     // the password was accepted (always so without passwords)
  bool leave = false;        // closed by a request to leave the game
  int rememberedNotice = 0;  // the last 991 or 992 line of the news list, 0 none

  // ---- The player's actions -------------------------------------------------
  void SetPasswordText(const std::string& text) { passwordText = text; }
  // "Set this as your password" / "Log in". False with "Wrong Password" when refused.
  bool PasswordButton(std::string* why);
  // "Start turn N": closes, with passwords only on a matching password.
  bool ProceedButton(std::string* why);
  // "Save PBEM & Exit this game": saves the game to `path` (an empty path asks
  // the file dialog) and leaves. A cancelled or failed save leaves the dialog open.
  bool SavePbemButton(const std::string& path, std::string* why);
  // "Exit Game": asks "Are you sure you want to Quit?"; on yes, leaves.
  bool ExitButton(std::string* why);
  // Reveals the report after a correct password.
  void RevealReport();

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: password=TEXT, login, proceed, savepbem=FILE, exit.
  std::string DialogName() const override { return "newturn"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "proceed"; }

 private:
  bool PasswordMatches() const;
};

// Address of the next human regime for the play-by-mail button: the e-mail of
// the first regime with Regime.AI 0, searching from Game.CurRegime itself
// upward and wrapping round to 1. "" when there is none.
std::string NextHumanEmail();

// Runs the New Turn dialog for the current regime through the platform. After
// it closes with the password accepted, and not by a request to leave, the
// surrender and resignation notices of the news list are shown. A request to
// leave sets UI.ExitAfterTurnForm.
void RunNewTurnDialog();

}  // namespace mf
