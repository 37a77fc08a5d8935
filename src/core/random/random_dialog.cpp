#include "random/random_dialog.h"

#include <filesystem>

#include "model/arith.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "platform/dialog_values.h"
#include "platform/paths.h"
#include "random/generator.h"

namespace fs = std::filesystem;

namespace mf {
namespace {

struct TempRegime {
  const char* name;
  Long hexSprite;
  const char* textColor;
  Long people;
};

const TempRegime kTempRegimes[kRandomRows + 1] = {
    {"", 0, "", 0},
    {"Groschken Empire", 2, "0", 1},
    {"Atlantic Empire", 4, "16777215", 2},
    {"Merchant Federation", 6, "16777215", 3},
    {"Holy Empire", 7, "16777215", 4},
    {"Domaine de Louis", 8, "0", 5},
    {"Pacifist Empire", 9, "16777215", 3},
    {"Dark Empire", 10, "0", 1},
    {"Universal Nation", 11, "0", 2},
    {"Il Cooperativo", 12, "0", 4},
    {"Dritte Reich", 13, "16777215", 1},
};

}  // namespace

// Every regime needs a portrait set for its officers' faces: the set of its
// people's number when the pictures have one, else the first set there is.
void GivePortraitSets() {
  bool present[kPortraitCap + 1] = {};
  int firstSet = 0;
  for (int p = 1; p <= kPortraitCap; ++p) {
    const Long set = OfficerPicSet[p];
    if (set < 1 || set > kPortraitCap) continue;
    present[set] = true;
    if (firstSet == 0) firstSet = static_cast<int>(set);
  }
  for (int r = 1; r <= kRandomRows; ++r) {
    const Long people = Regime[r].OwnPeople;
    Regime[r].PortraitSet = people >= 1 && people <= kPortraitCap && present[people] ? people : firstSet;
  }
}

void MakeRandomRegimes() {
  Game.RegimeCount = kRandomRows;
  for (int r = 1; r <= kRandomRows; ++r) {
    RegimeRec& reg = Regime[r];
    reg.Name = kTempRegimes[r].name;
    reg.HexSprite = kTempRegimes[r].hexSprite;
    reg.TextColor = kTempRegimes[r].textColor;
    reg.OwnPeople = kTempRegimes[r].people;
    reg.PP = 20;
    reg.FormationName = "Bataljon";
    // One player against the computer unless the player says otherwise.
    reg.AI = r == 1 ? 0 : 1;
  }
}

// ---- The dialog ---------------------------------------------------------------

void RandomScenarioDialog::Mirror() {
  MirrorSwitches();
  MirrorRegimeRows(rows, kRandomRows, regimes);
}

void RandomScenarioDialog::Prepare() {
  open = true;
  made = false;
  refused = false;
  refusal.clear();
  Mirror();
}

bool RandomScenarioDialog::SetRegimes(int n, std::string* why) {
  if (n < 1 || n > kRandomRows) {
    *why = "the number of regimes is one of the buttons 1 to 10, not " + std::to_string(n);
    return false;
  }
  regimes = n;
  Mirror();
  return true;
}

bool RandomScenarioDialog::SetHuman(int row, bool human, std::string* why) {
  if (!ChooseHuman(row, regimes, human, ComputerBan::kUnlessZero, why)) return false;
  Mirror();
  return true;
}

bool RandomScenarioDialog::SetEmail(int row, const std::string& email, std::string* why) {
  if (!ChooseEmail(row, regimes, email, kEmailLimit, why)) return false;
  Mirror();
  return true;
}

bool RandomScenarioDialog::Refuse(const std::string& message, std::string* why) {
  Plat().ShowMessage(message, "");
  refused = true;
  refusal = message;
  *why = message;
  return false;
}

bool RandomScenarioDialog::StartButton(std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  refused = false;
  refusal.clear();
  // A seed above 0 makes the map repeat for that seed.
  const auto seed = CInt(Val(overrideText));
  if (seed > 0) SeedRnd(static_cast<std::uint32_t>(seed));

  const double sizeValue = Val(mapSizeText);
  if (sizeValue < 10 || sizeValue > 100) return Refuse("Map size between 10-100", why);
  const double landValue = Val(landText);
  if (landValue < 10 || landValue > 100) return Refuse("Land% between 10-100", why);
  const int size = static_cast<int>(CInt(sizeValue));
  const int land = static_cast<int>(CInt(landValue));

  Game.RegimeCount = regimes;
  if (Game.RegimeCount + 2 > (land + size) / 10.0)
    return Refuse("To many regimes for the land%, map size setting. Max regimes allowed is " +
                      Str(Int((land + size) / 10.0) - 2),
                  why);

  for (int a = 1; a <= kRegimeCap; ++a)
    for (int b = 1; b <= kRegimeCap; ++b) {
      Dip[a][b].Relation = 0;
      Dip[a][b].Cost = 999;
    }
  if (allied) {
    for (int a = 1; a <= regimes; ++a)
      for (int b = 1; b <= regimes; ++b)
        if (a != b && Regime[a].AI != 0 && Regime[b].AI != 0) Dip[a][b].Relation = 1;
  }

  // Every check is made; the last that fails is the one the player reads.
  int humans = 0;
  bool addressMissing = false;
  for (int r = 1; r <= regimes; ++r) {
    if (Regime[r].AI != 0) continue;
    ++humans;
    if (Len(Regime[r].Email) < 3) addressMissing = true;
  }
  std::string message;
  if (humans == 0) message = "You must at least select 1 human player.";
  if (Game.PBEM == 1 && humans == 1) message = "No PBEM possible with only 1 human player.";
  if (Game.PBEM == 1 && addressMissing) message = "One of human email adresses not known. Not possible in PBEM.";
  if (Game.FogOfWar == 1 && Game.ShowAIMoves != kFalse) message = "You cannot show AI moves if Fog Of War is on";
  if (Game.FogOfWar == 1 && Game.AIAnalysis != kFalse) message = "You cannot do Analysis if Fog of War is on";
  if (!message.empty()) return Refuse(message, why);

  // Out of unit or SHQ numbers: the click ends, the dialog stays.
  if (!MakeRandomMap(size, land, static_cast<int>(seed), realStart)) return true;
  made = true;
  open = false;
  return true;
}

void RandomScenarioDialog::CancelButton() {
  made = false;
  open = false;
}

bool RandomScenarioDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  // "humans" lists the people's regimes: 1 = a human plays it.
  bool handled = false;
  const bool applied = ApplyChoice(action, value, "humans", true, why, &handled);
  if (handled) return applied;
  bool on = false;
  if (action == "allied" || action == "realstart") {
    if (!BoxValue(value, &on, why)) return false;
    if (action == "allied") SetAllied(on);
    if (action == "realstart") SetRealStart(on);
    return true;
  }
  if (action == "size") {
    SetMapSize(value);
    return true;
  }
  if (action == "land") {
    SetLand(value);
    return true;
  }
  if (action == "seed") {
    SetOverride(value);
    return true;
  }
  if (action == "regimes") {
    const double n = Val(value);
    if (Trim(value).empty() || n != static_cast<int>(n)) {
      *why = "regimes takes a whole number 1..10, not \"" + value + "\"";
      return false;
    }
    return SetRegimes(static_cast<int>(n), why);
  }
  if (action == "start") return StartButton(why);
  if (action == "cancel") {
    CancelButton();
    return true;
  }
  *why = "no action \"" + action +
         "\" in the Random Scenario dialog (size, land, regimes, humans, email, seed, realstart, fog, exploration, "
         "pbem, passwords, aibonus, allied, start, cancel)";
  return false;
}

bool RandomDialogActions(const std::vector<std::string>& words, std::vector<DialogAction>* actions,
                         std::string* why) {
  static const char* const kKeys[] = {"size", "land", "regimes", "humans", "email", "seed", "realstart",
                                      "fog", "exploration", "pbem", "passwords", "aibonus", "allied"};
  std::vector<DialogAction> rest;
  for (const auto& word : words) {
    const auto eq = word.find('=');
    const std::string key = eq == std::string::npos ? word : word.substr(0, eq);
    bool known = false;
    for (const char* k : kKeys) known = known || key == k;
    if (!known || eq == std::string::npos) {
      *why = "\"" + word +
             "\" is not one of size=, land=, regimes=, humans=, email=, seed=, realstart=, fog=, exploration=, "
             "pbem=, passwords=, aibonus=, allied=";
      return false;
    }
    DialogAction action{key, word.substr(eq + 1)};
    if (key == "regimes") {
      actions->push_back(std::move(action));
    } else {
      rest.push_back(std::move(action));
    }
  }
  for (auto& a : rest) actions->push_back(std::move(a));
  return true;
}

std::string RandomBasePath() { return (fs::path(ScenariosDir()) / kRandomBaseFile).string(); }

}  // namespace mf
