// The menus of the main window: which commands can be chosen now, and the
// check marks of the switches. The window asks after every action and tick
// and shows what it is told; the commands of the view menu live here too.
#pragma once

#include <string>

namespace mf {

struct MenuState {
  // File menu.
  bool newScenario = false;
  bool clearMap = false;
  bool randomScenario = false;  // the Random Scenario dialog
  bool load = false;
  bool save = false;
  bool import = false;
  bool scenarios = false;  // the four fixed entries scenario1 .. scenario4
  bool quit = true;
  // Game menu.
  bool start = false;
  bool endTurn = false;
  bool surrender = false;
  // View menu: the display switches are always available; these are their ticks.
  bool showEnemy = false;
  bool showSight = false;
  bool showSupply = false;
  bool showGrid = false;
  // The editing switch: shows or hides the editor panel while editing.
  bool editor = false;
  bool editorChecked = false;
};

// The state of the menus for the tables as they stand.
MenuState GetMenuState();

// The display switches of the view menu, with their menu texts.
enum class DisplaySwitch { kShowEnemy, kShowSight, kShowSupply, kShowGrid };
const std::string& DisplaySwitchText(DisplaySwitch which);
// Flips a switch between 0 and 1 and asks for the whole map to be redrawn.
void ToggleDisplaySwitch(DisplaySwitch which);

// The editing switch: flips UI.HideEditor while a map is being edited and
// lays the window out again. Does nothing while a game is in play.
void ToggleEditor();

}  // namespace mf
