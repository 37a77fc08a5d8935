#include "model/clear_dialog.h"

#include "model/arith.h"
#include "model/game_state.h"
#include "model/reset.h"

namespace mf {
namespace {

void RunClearCommand(ClearDialog::Use use) {
  ClearDialog dialog(use);
  Plat().RunDialog(dialog);
  if (!dialog.Cleared()) return;
  const bool newScenario = use == ClearDialog::kNewScenario;
  AfterClearCommand(newScenario);
  // An empty map to edit: map, panels and controls back, nothing of the old
  // map left on screen.
  UI.MapShown = true;
  UI.PanelsShown = true;
  UI.MapControlsShown = true;
  UI.HelpText = "You are in the editing mode. If you want to play this scenario select start in the menu.";
  RequestRedraw(2);
  UI.PanelDirty = true;
}

}  // namespace

ClearDialog::ClearDialog(Use use) : use_(use) {
  if (use == kOnlyClear) {
    widthText = "0";
    heightText = "0";
  } else {
    widthText = NumText(Game.MapW);
    heightText = NumText(Game.MapH);
  }
}

bool ClearDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (!open_) {
    if (why) *why = "the dialog is closed";
    return false;
  }
  if (action == "width") {
    widthText = value;
  } else if (action == "height") {
    heightText = value;
  } else if (action == "makeitso") {
    MakeItSoPressed();
  } else if (action == "cancel") {
    Cancel();
  } else {
    if (why) *why = "no such action (width, height, makeitso, cancel)";
    return false;
  }
  return true;
}

void ClearDialog::MakeItSoPressed() {
  if (!open_) return;
  if (use_ == kOnlyClear)
    ClearGame(true, 0, 0);
  else
    ClearGame(use_ == kNewScenario, MapSizeFromText(widthText), MapSizeFromText(heightText));
  cleared_ = true;
  open_ = false;
}

void NewScenarioCommand() { RunClearCommand(ClearDialog::kNewScenario); }
void ClearMapCommand() { RunClearCommand(ClearDialog::kClearMap); }

}  // namespace mf
