#include "control/menu_state.h"

#include "engine/show_supply.h"
#include "model/game_state.h"
#include "model/order_registers.h"
#include "model/reset.h"

namespace mf {
namespace {

Long& SwitchField(DisplaySwitch which) {
  switch (which) {
    case DisplaySwitch::kShowEnemy:
      return UI.Overlay.ShowEnemy;
    case DisplaySwitch::kShowSight:
      return UI.Overlay.ShowSight;
    case DisplaySwitch::kShowSupply:
      return UI.Overlay.ShowSupply;
    case DisplaySwitch::kShowGrid:
      break;
  }
  return UI.Overlay.ShowGrid;
}

bool GameInPlay() { return Game.Turn > 0; }

}  // namespace

MenuState GetMenuState() {
  MenuState m;
  // While the turn driver or the computer player runs, the game yields to the
  // event loop now and then; a menu command chosen in such a moment would run
  // in the middle of that work, so everything but the view and quitting waits.
  const bool free = !UI.BusyPointer;
  m.newScenario = free;
  m.clearMap = free;
  m.randomScenario = free;
  m.load = free;
  m.save = free;
  m.import = free;
  m.scenarios = free;
  m.quit = true;
  // A game in play disables start and editing; the editor enables them.
  m.start = free && !GameInPlay();
  m.endTurn = free && GameInPlay() && !Editing();
  m.surrender = free && GameInPlay() && !Editing();
  m.showEnemy = UI.Overlay.ShowEnemy != 0;
  m.showSight = UI.Overlay.ShowSight != 0;
  m.showSupply = UI.Overlay.ShowSupply != 0;
  m.showGrid = UI.Overlay.ShowGrid != 0;
  m.editor = free && !GameInPlay() && Editing();
  m.editorChecked = Editing() && !UI.HideEditor;
  return m;
}

const std::string& DisplaySwitchText(DisplaySwitch which) {
  static const std::string enemy = "Show Most Recent Enemy Actions";
  static const std::string sight = "Show Sight Range";
  static const std::string supply = "Show Supply";
  static const std::string grid = "Show/Hide Grid";
  switch (which) {
    case DisplaySwitch::kShowEnemy:
      return enemy;
    case DisplaySwitch::kShowSight:
      return sight;
    case DisplaySwitch::kShowSupply:
      return supply;
    case DisplaySwitch::kShowGrid:
      break;
  }
  return grid;
}

void ToggleDisplaySwitch(DisplaySwitch which) {
  // The supply switch works out the figures it shows.
  if (which == DisplaySwitch::kShowSupply) {
    ShowSupplyCommand();
    return;
  }
  Long& field = SwitchField(which);
  field = field != 0 ? 0 : 1;
  RequestRedraw(2);
}

void ToggleEditor() {
  if (GameInPlay() || !Editing()) return;
  UI.HideEditor = !UI.HideEditor;
  LayOutMapWindow();
  UI.PanelDirty = true;
}

}  // namespace mf
