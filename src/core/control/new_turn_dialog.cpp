#include "control/new_turn_dialog.h"

#include "control/scenario_flow.h"
#include "engine/news.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/labels.h"
#include "platform/paths.h"

namespace mf {
namespace {

RegimeRec& Current() { return Regime[CurrentRegime()]; }

// One row per class that counts something, "Infantry: 5"; "None" when no
// class does.
std::vector<std::string> ClassRows(const Long (&counts)[kLossClasses + 1]) {
  std::vector<std::string> rows;
  for (int c = 1; c <= kLossClasses; ++c)
    if (counts[c] > 0) rows.push_back(LossClassLabel(c) + ": " + NumText(counts[c]));
  if (rows.empty()) rows.push_back("None");
  return rows;
}

void Headline(NewTurnDialog& d) {
  const RegimeRec& me = Current();
  const std::string turn = NumText(Game.Turn);
  if (Game.GameWinner == 0) {
    d.headlineTitle = me.Name + " TURN " + turn;
    d.headlineText = me.Name + " you are ready to start turn " + turn + " at your command. " +
                     "The Victory condition is " + NumText(Game.GameEndPop) + " population under your control. " +
                     "You control " + NumText(Game.CurPop) + " population.";
  } else if (Game.GameWinner == Game.CurRegime) {
    d.headlineTitle = "YOU WON THE GAME";
    if (Game.WinnerPop > 0) {
      d.headlineText = "VICTORY. You are Victorious! You control " + NumText(Game.WinnerPop) + " population. " +
                       "The Victory condition was " + NumText(Game.GameEndPop) + " population under your control.";
    } else {
      // A victory handed out by an event has no population behind it.
      d.headlineText = "VICTORY. You are victorious!";
    }
  } else {
    d.headlineTitle = "YOU LOST THE GAME";
    const std::string winner = ValidRegime(Game.GameWinner) ? Regime[Game.GameWinner].Name : std::string();
    if (Game.WinnerPop > 0) {
      d.headlineText = "DEFEAT. " + winner + " has won the game. They control " + NumText(Game.WinnerPop) +
                       " population. " + "The Victory condition was " + NumText(Game.GameEndPop) +
                       " population under your control.";
    } else {
      d.headlineText = "DEFEAT. " + winner + " has won the game.";
    }
  }
}

}  // namespace

std::string NextHumanEmail() {
  const int last = LastRegime();
  const int from = Game.CurRegime < 1 ? 1 : static_cast<int>(Game.CurRegime);
  for (int r = from; r <= last; ++r)
    if (Regime[r].AI == 0) return Regime[r].Email;
  for (int r = 1; r < from && r <= last; ++r)
    if (Regime[r].AI == 0) return Regime[r].Email;
  return "";
}

void NewTurnDialog::Prepare() {
  const RegimeRec& me = Current();
  open = true;
  accepted = false;
  leave = false;
  passwordText.clear();

  // 1. The buttons, and the password part.
  caption = me.Name;
  proceedCaption = "Start turn " + NumText(Game.Turn);
  if (Game.UsePasswords == 1) {
    reportShown = false;
    passwordShown = true;
    passwordButtonCaption = Game.Turn == 1 ? "Set this as your password" : "Log in";
  } else {
    passwordShown = false;
    passwordButtonCaption.clear();
    RevealReport();
  }

  // 2. The player who is done mails the file to the next human.
  pbemShown = Game.PBEM == 1;
  pbemCaption = pbemShown ? "Save PBEM & Exit this game\n(Dont forget to mail it to " + NextHumanEmail() + ")"
                          : std::string();

  // 3 to 5. Headline.
  Headline(*this);

  // 6. Lists. Of the surrender and resignation lines the last one found counts.
  newsRows.clear();
  rememberedNotice = 0;
  const int r = CurrentRegime();
  for (int n = 1; n <= kNewsCap; ++n) {
    const NewsRec& line = News[r][n];
    if (line.Type == kNewsLost || line.Type > 900) newsRows.push_back(line.Text);
    if (line.Type == kNewsSurrender || line.Type == kNewsResignation) rememberedNotice = line.Type;
  }
  if (newsRows.empty()) newsRows.push_back("None");
  lossRows = ClassRows(me.Losses);
  killRows = ClassRows(me.Kills);
  briefing = me.Intro;
}

void NewTurnDialog::RevealReport() {
  reportShown = true;
  accepted = true;
}

bool NewTurnDialog::PasswordMatches() const { return passwordText == Current().Password; }

bool NewTurnDialog::PasswordButton(std::string* why) {
  if (!open || !passwordShown) {
    *why = "the password part is hidden";
    return false;
  }
  if (Game.Turn == 1) {
    // The first turn is where each player chooses his password.
    Current().Password = passwordText;
    RevealReport();
    return true;
  }
  if (PasswordMatches()) {
    RevealReport();
    return true;
  }
  Plat().ShowMessage("Wrong Password", "");
  *why = "Wrong Password";
  return false;
}

bool NewTurnDialog::ProceedButton(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (Game.UsePasswords == 1) {
    if (!PasswordMatches()) {
      Plat().ShowMessage("Wrong Password", "");
      *why = "Wrong Password";
      return false;
    }
    accepted = true;
  }
  open = false;
  return true;
}

bool NewTurnDialog::SavePbemButton(const std::string& path, std::string* why) {
  if (!open || !pbemShown) {
    *why = "there is no play-by-mail button outside a play-by-mail game";
    return false;
  }
  // The save of the menu, with the path given when a script names it.
  const std::string file = path.empty() ? Plat().SaveFileDialog("Save", ScenarioFilter(), UserGameDir()) : path;
  if (!SaveToPath(file)) {
    *why = "Save canceled";
    return false;
  }
  leave = true;
  open = false;
  return true;
}

bool NewTurnDialog::ExitButton(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (Plat().AskYesNo("Are you sure you want to Quit?", "Quit game")) {
    leave = true;
    open = false;
  }
  return true;
}

bool NewTurnDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (action == "password") {
    SetPasswordText(value);
    return true;
  }
  if (action == "login") return PasswordButton(why);
  if (action == "proceed") return ProceedButton(why);
  if (action == "savepbem") return SavePbemButton(value, why);
  if (action == "exit") return ExitButton(why);
  *why = "no action \"" + action + "\" in the New Turn dialog (password=TEXT, login, proceed, savepbem=FILE, exit)";
  return false;
}

void RunNewTurnDialog() {
  NewTurnDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  if (dialog.leave) {
    UI.ExitAfterTurnForm = true;
    return;
  }
  if (!dialog.accepted) return;
  if (dialog.rememberedNotice == kNewsSurrender && Game.GameWinner != Game.CurRegime) {
    Plat().ShowMessage(
        "The last human player has surrendered. Technicaly you have not attained the Victory Condition yet, but you "
        "may consider this a victory because your last human opponent deemed you the winner.",
        "");
  }
  if (dialog.rememberedNotice == kNewsResignation) {
    Plat().ShowMessage(
        "Just a reminder that a human player has resigned. But at least one other, next to you is left. However this "
        "is an important step towards your victory.",
        "");
  }
}

}  // namespace mf
