#include "control/random_flow.h"

#include <filesystem>
#include <fstream>

#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "platform/paths.h"
#include "platform/platform.h"
#include "random/random_dialog.h"

namespace fs = std::filesystem;

namespace mf {

bool PrepareRandomGame(std::string* refusal) {
  if (refusal) refusal->clear();
  const std::string base = RandomBasePath();
  std::error_code ec;
  if (!fs::is_regular_file(base, ec) || !std::ifstream(base, std::ios::binary)) {
    const std::string message = std::string("A random game takes its rules from the scenario ") + kRandomBaseFile +
                                ", which is not in the folder " + ScenariosDir() + ". Nothing was changed.";
    Plat().ShowMessage(message, RandomScenarioDialog::kCaption);
    if (refusal) *refusal = message;
    return false;
  }
  ClearForLoad();
  // Only the rule set of the base scenario is taken: rules, unit types,
  // research and peoples; its map, regimes and units are not.
  ImportRulesOf(base);
  MakeRandomRegimes();
  GivePortraitSets();
  UI.EditMode = 1;
  return true;
}

bool MakeRandomScenario(std::string* refusal) {
  if (!PrepareRandomGame(refusal)) return false;
  RandomScenarioDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  if (!dialog.made) UI.EditMode = 1;
  if (refusal && !dialog.made && dialog.refused) *refusal = dialog.refusal;
  return dialog.made;
}

bool StartRandomGame() {
  const bool made = MakeRandomScenario();
  LayOutMapWindow();
  if (made) BeginFirstTurn();
  return made;
}

}  // namespace mf
