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

#include "orders/order_buttons.h"

namespace mf {

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

}  // namespace mf
