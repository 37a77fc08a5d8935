#include "control/editor_menu.h"

#include "editor/current_unit_dialog.h"
#include "editor/general_dialog.h"
#include "editor/regimes_dialog.h"
#include "editor/types_dialog.h"
#include "model/game_state.h"
#include "view/status_dialog.h"

namespace mf {
namespace {

constexpr EditorMenuEntry kEditEntries[] = {
    {"general", "General..."},
    {"currentunit", "Current Unit..."},
    {"regimes", "Regimes..."},
    {"types", "Types..."},
};
constexpr EditorMenuEntry kGameEntries[] = {
    {"status", "Status..."},
};

struct Opener {
  const char* name;
  void (*open)();
};
const Opener kOpeners[] = {
    {"status", &DoStatus},
    {"general", &OpenGeneralDialog},
    {"currentunit", &OpenCurrentUnitDialog},
    {"regimes", &OpenRegimesDialog},
    {"types", &OpenTypesDialog},
};

}  // namespace

std::span<const EditorMenuEntry> EditMenuEntries() { return kEditEntries; }
std::span<const EditorMenuEntry> GameMenuEntries() { return kGameEntries; }

bool MenuDialogEnabled(const std::string& name) {
  if (UI.BusyPointer) return false;
  if (name == "status") return true;
  if (UI.EditMode != 1 || Game.Turn != 0) return false;
  // The unit editor edits the formation selected on the map.
  if (name == "currentunit") {
    if (!ValidHex(UI.SelX, UI.SelY) || UI.SelSlot < 1 || UI.SelSlot > kStackSlots) return false;
    const Long u = Hex[UI.SelX][UI.SelY].Unit[UI.SelSlot];
    return ValidUnit(u) && Unit[u].Regime > 0;
  }
  return true;
}

bool OpenMenuDialog(const std::string& name, std::string* why) {
  for (const auto& o : kOpeners) {
    if (name != o.name) continue;
    if (!MenuDialogEnabled(name)) {
      *why = "the menu entry of \"" + name + "\" cannot be chosen now";
      return false;
    }
    o.open();
    return true;
  }
  *why = "no dialog \"" + name + "\" to open (status, general, currentunit, regimes, types)";
  return false;
}

}  // namespace mf
