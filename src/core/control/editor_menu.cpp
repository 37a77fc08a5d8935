#include "control/editor_menu.h"

#include "model/game_state.h"
#include "view/status_dialog.h"

namespace mf {
namespace {

constexpr EditorMenuEntry kGameEntries[] = {
    {"status", "Status..."},
};

struct Opener {
  const char* name;
  void (*open)();
};
const Opener kOpeners[] = {
    {"status", &DoStatus},
};

}  // namespace

std::span<const EditorMenuEntry> EditMenuEntries() { return {}; }
std::span<const EditorMenuEntry> GameMenuEntries() { return kGameEntries; }

bool MenuDialogEnabled(const std::string& name) {
  if (UI.BusyPointer) return false;
  if (name == "status") return true;
  return UI.EditMode == 1 && Game.Turn == 0;
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
