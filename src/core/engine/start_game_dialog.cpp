#include "engine/start_game_dialog.h"

#include <vector>

#include "engine/fog_switches.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "platform/dialog_values.h"

namespace mf {

void StartGameDialog::Mirror() {
  fog = Game.FogOfWar == 1;
  exploration = Game.FogOfExploration == 1;
  pbem = Game.PBEM == 1;
  passwords = Game.UsePasswords == 1;
  aiBonus = Game.AIProdBonus == 1;
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

void StartGameDialog::SetFog(bool on) {
  SetFogOfWar(on);
  Mirror();
}

void StartGameDialog::SetExploration(bool on) {
  SetFogOfExploration(on);
  Mirror();
}

void StartGameDialog::SetPbem(bool on) {
  Game.PBEM = on ? 1 : 0;
  Mirror();
}

void StartGameDialog::SetPasswords(bool on) {
  Game.UsePasswords = on ? 1 : 0;
  Mirror();
}

void StartGameDialog::SetAIBonus(bool on) {
  Game.AIProdBonus = on ? 1 : 0;
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
  bool on = false;
  if (action == "fog" || action == "exploration" || action == "pbem" || action == "passwords" ||
      action == "aibonus") {
    if (!BoxValue(value, &on, why)) return false;
    if (action == "fog") SetFog(on);
    if (action == "exploration") SetExploration(on);
    if (action == "pbem") SetPbem(on);
    if (action == "passwords") SetPasswords(on);
    if (action == "aibonus") SetAIBonus(on);
    return true;
  }
  if (action == "ai") {
    const auto entries = SplitCommas(value);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (!BoxValue(entries[i], &on, why)) return false;
      if (!SetHuman(static_cast<int>(i) + 1, !on, why)) return false;
    }
    return true;
  }
  if (action == "email") {
    const auto entries = SplitCommas(value);
    for (std::size_t i = 0; i < entries.size(); ++i)
      if (!SetEmail(static_cast<int>(i) + 1, entries[i], why)) return false;
    return true;
  }
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
