// The order state machine of the main map window: one order under way at a
// time, started by a button, finished by a press on the map or the do
// button, or ended by the cancel button and Esc.
//
// Core never touches the window: the buttons' captions and enabled states,
// the do and cancel buttons and the order line stand in `Buttons`, which the
// window shows as it stands after every action and tick. The guiding line
// goes to UI.HelpText.
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

// The handlers of the order buttons. Each checks its start conditions and
// tells the player why an order cannot start.
void MoveButton();         // also the press on the map of a move under way
void AttackButton();
void ProductionButton();
void CommandButton();
void NewUnitButton();
void TransferButton();
void OfficerPoolButton();
void ResearchButton();
void DiplomaticsButton();
void DisbandButton();
void EntrenchButton();     // also the press on the map of an entrenchment under way
void LoadButton();
void UnloadButton();
void InterdictButton();
void StrategicButton();
void AirliftButton();
void AirSupplyButton();
// The one big do button: finishes the order under way.
void DoButton();
// Ends the order under way without effect and puts the selection back where
// the order started. Bound to the "CANCEL ORDER" button and to Esc.
void DoCancel();
// "Next turn": the end-of-turn question, or "You are in editing mode".
void NextTurnButton();

// A person's press on an order button: nothing unless it is enabled now.
bool PressOrderButton(int id);
// A key of the main window that belongs to the orders: Enter and Space
// finish the order under way, the letters press their buttons.
bool OrderKey(int keyCode);
// A press on the counter of stack slot 1..3 in the side panel: selects that
// formation, and while an attack is being prepared joins it to the attack
// or takes it out again.
bool PanelPress(int slot);
// The selected formation joins the attack being prepared, or leaves it.
void JoinAttacker();
// The mouse over hex (x, y) of the map: during a move the order line tells
// what a move there would cost.
void HoverMap(int x, int y);

// The selection goes back to the formation the order started from.
void ReturnSelectionToOrigin();

}  // namespace mf
