#include "engine/start_game_dialog.h"

#include <vector>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {

void StartGameDialog::Mirror() {
  MirrorSwitches();
  MirrorRegimeRows(rows, kStartRows, Held(Game.RegimeCount, kStartRows));
}

void StartGameDialog::Prepare() {
  story = Game.ScenarioStory;
  open = true;
  started = false;
  refused = false;
  refusal.clear();
  Mirror();
}

bool StartGameDialog::SetHuman(int row, bool human, std::string* why) {
  if (!ChooseHuman(row, Held(Game.RegimeCount, kStartRows), human, ComputerBan::kAtOne, why)) return false;
  Mirror();
  return true;
}

bool StartGameDialog::SetEmail(int row, const std::string& email, std::string* why) {
  if (!ChooseEmail(row, Held(Game.RegimeCount, kStartRows), email, 0, why)) return false;
  Mirror();
  return true;
}

bool StartGameDialog::StartButton(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  int humans = 0;
  bool addressMissing = false;
  for (int r = 1; r <= Held(Game.RegimeCount, kStartRows); ++r) {
    if (Regime[r].AI != 0) continue;
    ++humans;
    if (Trim(Regime[r].Email).empty()) addressMissing = true;
  }
  // Every check is made; the last that fails is the one the player reads.
  std::string message;
  if (Game.PBEM == 1 && humans == 1) message = "No PBEM possible with only 1 human player.";
  if (Game.PBEM == 1 && addressMissing) message = "One of human email adresses not known. Not possible in PBEM.";
  if (Game.FogOfWar == 1 && Game.ShowAIMoves != kFalse) message = "You cannot show AI moves if Fog Of War is on";
  if (Game.FogOfWar == 1 && Game.AIAnalysis != kFalse) message = "You cannot do Analysis is Fog of War is on";
  if (!message.empty()) {
    Plat().ShowMessage(message, "");
    refused = true;
    refusal = message;
    *why = message;
    return false;
  }
  refused = false;
  refusal.clear();
  Game.SpareFlag = kFalse;
  started = true;
  open = false;
  return true;
}

void StartGameDialog::CancelButton() {
  started = false;
  open = false;
}

bool StartGameDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  // A setting the dialog cannot take cancels it there and then: a game is
  // never started with its boxes half set.
  if (!Apply(action, value, why)) {
    if (action != "start" && action != "cancel") {
      refused = true;
      CancelButton();
    }
    return false;
  }
  return true;
}

bool StartGameDialog::Apply(const std::string& action, const std::string& value, std::string* why) {
  // "ai" lists the computer's regimes: 1 = the computer plays it.
  bool handled = false;
  const bool applied = ApplyChoice(action, value, "ai", false, why, &handled);
  if (handled) return applied;
  if (action == "start") return StartButton(why);
  if (action == "cancel") {
    CancelButton();
    return true;
  }
  *why = "no action \"" + action +
         "\" in the Start Game dialog (fog, exploration, pbem, passwords, aibonus, ai, email, start, cancel)";
  return false;
}

}  // namespace mf
