// The buttons of the order state machine: what a press on an order button,
// a key, a stack slot of the side panel or the mouse over the map does to
// the buttons and the order line, and how the buttons stand at the start and
// the end of every order.
#include <string>

#include "control/keyboard.h"
#include "control/order_state.h"
#include "control/order_state_steps.h"
#include "control/selection.h"
#include "control/turn_cycle.h"
#include "model/arith.h"
#include "model/game_state.h"

namespace mf {

namespace order_steps {

void BeginOrder(const std::string& doCaption) {
  UI.OrdX = UI.SelX;
  UI.OrdY = UI.SelY;
  UI.OrdSlot = UI.SelSlot;
  DisableButtons();
  Buttons.doButton.caption = doCaption;
  Buttons.doButton.enabled = true;
}

void FinishOrder() {
  RefreshButtons();
  Buttons.doButton.enabled = false;
  Buttons.orderLineShown = false;
  Buttons.cancel.enabled = false;
  Helper();
}

}  // namespace order_steps

using namespace order_steps;

void NextTurnButton() { EndTurnCommand(); }

bool PressOrderButton(int id) {
  if (id < 0 || id >= kOrderButtonCount) return false;
  RefreshButtons();
  if (!Buttons.order[id].enabled) return false;
  switch (id) {
    case kBtnMove: MoveButton(); break;
    case kBtnAttack: AttackButton(); break;
    case kBtnProduction: ProductionButton(); break;
    case kBtnCommand: CommandButton(); break;
    case kBtnNewUnit: NewUnitButton(); break;
    case kBtnTransfer: TransferButton(); break;
    case kBtnOfficerPool: OfficerPoolButton(); break;
    case kBtnResearch: ResearchButton(); break;
    case kBtnDiplomatics: DiplomaticsButton(); break;
    case kBtnDisband: DisbandButton(); break;
    case kBtnEntrench: EntrenchButton(); break;
    case kBtnLoad: LoadButton(); break;
    case kBtnUnload: UnloadButton(); break;
    case kBtnInterdict: InterdictButton(); break;
    case kBtnStrategic: StrategicButton(); break;
    case kBtnAirlift: AirliftButton(); break;
    case kBtnAirSupply: AirSupplyButton(); break;
    default: return false;
  }
  return true;
}

bool OrderKey(int keyCode) {
  const OrderFlags& o = UI.Order;
  if (keyCode == kKeyEnter || keyCode == kKeySpace) {
    // Airlift and air supply are finished with the button only.
    const bool confirmable = o.SelOrderMove > 0 || o.EntrenchOrder > 0 || o.TransferOrder > 0 || o.BossOrder > 0 ||
                             o.AttackOrder > 0 || o.LoadOrder > 0 || o.InterdictOrder > 0 ||
                             o.StratBombOrder > 0 || o.LandingOrder > 0;
    if (!confirmable) return false;
    DoButton();
    return true;
  }
  // Letters come as their capitals' codes; the codes above them are the
  // function keys and the number pad.
  const int letter = keyCode;
  if (letter < 'A' || letter > 'Z') return false;
  if (o.AttackOrder > 0 || o.SelOrderMove > 0 || o.TransferOrder > 0 || o.BossOrder > 0) return false;
  if (Editing() && !UI.ShowEditorPanel) return false;
  for (int i = 0; i < kOrderButtonCount; ++i)
    if (OrderButtonOf(i).key == letter) return PressOrderButton(i);
  return false;
}

bool PanelPress(int slot) {
  if (!SelectStackSlot(slot)) return false;
  JoinAttacker();
  return true;
}

void HoverMap(int x, int y) {
  if (UI.Order.SelOrderMove <= 0) return;
  if (ValidHex(x, y) && Hex[x][y].Mark < 999) {
    Buttons.orderLine = "Move Cost = " + NumText(Hex[x][y].Mark);
  } else {
    Buttons.orderLine = "No Move possible.";
  }
}

}  // namespace mf
