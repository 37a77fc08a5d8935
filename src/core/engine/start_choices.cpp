#include "engine/start_choices.h"

#include "engine/fog_switches.h"
#include "model/game_state.h"
#include "platform/dialog_values.h"

namespace mf {

void StartChoices::MirrorSwitches() {
  fog = Game.FogOfWar == 1;
  exploration = Game.FogOfExploration == 1;
  pbem = Game.PBEM == 1;
  passwords = Game.UsePasswords == 1;
  aiBonus = Game.AIProdBonus == 1;
}

void StartChoices::SetFog(bool on) {
  SetFogOfWar(on);
  Mirror();
}

void StartChoices::SetExploration(bool on) {
  SetFogOfExploration(on);
  Mirror();
}

void StartChoices::SetPbem(bool on) {
  Game.PBEM = on ? 1 : 0;
  Mirror();
}

void StartChoices::SetPasswords(bool on) {
  Game.UsePasswords = on ? 1 : 0;
  Mirror();
}

void StartChoices::SetAIBonus(bool on) {
  Game.AIProdBonus = on ? 1 : 0;
  Mirror();
}

bool StartChoices::ApplyChoice(const std::string& action, const std::string& value, const std::string& playersAction,
                               bool oneIsHuman, std::string* why, bool* handled) {
  *handled = true;
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
  if (action == playersAction) {
    const auto entries = SplitCommas(value);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (!BoxValue(entries[i], &on, why)) return false;
      if (!SetHuman(static_cast<int>(i) + 1, oneIsHuman ? on : !on, why)) return false;
    }
    return true;
  }
  if (action == "email") {
    const auto entries = SplitCommas(value);
    for (std::size_t i = 0; i < entries.size(); ++i)
      if (!SetEmail(static_cast<int>(i) + 1, entries[i], why)) return false;
    return true;
  }
  *handled = false;
  return false;
}

}  // namespace mf
