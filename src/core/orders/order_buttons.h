// The state of the order buttons under the map: which are enabled for the
// selection, their captions, the do and cancel buttons and the order line.
// The window shows `Buttons` as it stands after every action and tick; the
// orders themselves set it back to rest when they end.
#pragma once

#include <string>

namespace mf {

// The order buttons of the map window.
enum OrderButtonId : int {
  kBtnMove,
  kBtnAttack,
  kBtnProduction,
  kBtnCommand,
  kBtnNewUnit,
  kBtnTransfer,
  kBtnOfficerPool,
  kBtnResearch,
  kBtnDiplomatics,
  kBtnDisband,
  kBtnEntrench,
  kBtnLoad,
  kBtnUnload,
  kBtnInterdict,
  kBtnStrategic,
  kBtnAirlift,
  kBtnAirSupply,
  kOrderButtonCount
};

struct OrderButtonInfo {
  const char* name;   // what scripts press it by: "move", "newunit", ...
  const char* label;  // its label: "[M]ove", "[C]hange Command", ...
  int key;            // its letter, 'M'; 0 for none
};
// The fixed table of the order buttons, by id.
const OrderButtonInfo& OrderButtonOf(int id);
// The id of a button by its script name; -1 for none.
int OrderButtonByName(const std::string& name);

struct ButtonFace {
  std::string caption;
  bool enabled = false;
};

struct ButtonState {
  ButtonFace order[kOrderButtonCount];  // captions are the labels of OrderButtonOf
  ButtonFace doButton;                  // its caption tells what will happen
  ButtonFace cancel;                    // "CANCEL ORDER"
  ButtonFace nextTurn;                  // "Next turn", or the computer's phase
  bool paintControls = false;           // the editor's ground-paint controls
  bool orderLineShown = false;          // the line under the map during a move
  std::string orderLine;                // "Move Cost = 3", "No Move possible."
  int aiPhase = 0, aiPhases = 0;        // the computer player's progress
};
extern ButtonState Buttons;

// True while one of the orders is under way (the editor's painting aside).
bool OrderUnderWay();

// Enables the buttons for the selection; touches nothing while an order is
// under way. At rest the do and cancel buttons are off and the order line hidden.
void RefreshButtons();
// Disables every order button and the ground-paint controls.
void DisableButtons();
// Writes the guiding line for the order under way (or the line of a regime
// at rest) and enables "CANCEL ORDER" for every order but Entrench.
void Helper();
// The computer player reports its progress for the "Next turn" caption.
void SetAIPhase(int phase, int phases);

// The air wing an air order is given to: the selected wing itself, or the
// wing aboard the selected ship; 0 for none.
int AirWingOfSelection();

// The selection goes back to the formation the order started from.
void ReturnSelectionToOrigin();

}  // namespace mf
