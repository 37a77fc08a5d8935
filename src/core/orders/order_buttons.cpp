#include "orders/order_buttons.h"

#include <string>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/cleared_with_tables.h"
#include "model/game_state.h"
#include "model/order_registers.h"
#include "model/stack.h"

namespace mf {

ButtonState Buttons;

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { Buttons = ButtonState{}; });
}  // namespace

namespace {

const OrderButtonInfo kButtons[kOrderButtonCount] = {
    {"move", "[M]ove", 'M'},
    {"attack", "[A]ttack", 'A'},
    {"production", "[P]roduction", 'P'},
    {"command", "[C]hange Command", 'C'},
    {"newunit", "[N]ew Unit", 'N'},
    {"transfer", "[T]ransfer", 'T'},
    {"officerpool", "[O]fficerpool", 'O'},
    {"research", "[R]esearch", 'R'},
    {"diplomatics", "[D]iplomatics", 'D'},
    {"disband", "Disband this unit", 0},
    {"entrench", "[E]ntrench", 'E'},
    {"load", "[L]oad", 'L'},
    {"unload", "[U]nload", 'U'},
    {"interdict", "[I]nterdict", 'I'},
    {"strategic", "[S]trategic bombing", 'S'},
    {"airlift", "Airli[f]t/drop", 'F'},
    {"airsupply", "Airtransfer [Y]", 'Y'},
};

const char* const kCancelCaption = "CANCEL ORDER";


// Whose the selection is: the hex's owner, or for a formation on a neutral
// hex (at sea) the formation's regime.
long SelectionOwner() {
  long o = SelectedHex().Owner;
  if (o == 0) {
    const int u = SelectedUnit();
    if (u != 0) o = Unit[u].Regime;
  }
  return o;
}

}  // namespace

// The air wing an air order is given to: the selected wing itself, or the
// wing aboard the selected ship.
int AirWingOfSelection() {
  const int u = SelectedUnit();
  if (u == 0) return 0;
  if (Unit[u].Theater == kAirTheater) return u;
  if (Unit[u].Theater == kSeaTheater && ValidUnit(static_cast<int>(Unit[u].Cargo)) &&
      Unit[Unit[u].Cargo].Theater == kAirTheater)
    return static_cast<int>(Unit[u].Cargo);
  return 0;
}

const OrderButtonInfo& OrderButtonOf(int id) {
  static const OrderButtonInfo none{"", "", 0};
  return id >= 0 && id < kOrderButtonCount ? kButtons[id] : none;
}

int OrderButtonByName(const std::string& name) {
  for (int i = 0; i < kOrderButtonCount; ++i)
    if (name == kButtons[i].name) return i;
  return -1;
}

bool OrderUnderWay() {
  const OrderFlags& o = UI.Order;
  return o.SelOrderMove > 0 || o.AttackOrder > 0 || o.BossOrder > 0 || o.TransferOrder > 0 || o.LoadOrder > 0 ||
         o.LandingOrder > 0 || o.AirliftOrder > 0 || o.AirSupplyOrder > 0 || o.InterdictOrder > 0 ||
         o.StratBombOrder > 0 || o.EntrenchOrder > 0;
}

void DisableButtons() {
  for (int i = 0; i < kOrderButtonCount; ++i) {
    Buttons.order[i].caption = kButtons[i].label;
    Buttons.order[i].enabled = false;
  }
  Buttons.paintControls = false;
}

void SetAIPhase(int phase, int phases) {
  Buttons.aiPhase = phase;
  Buttons.aiPhases = phases;
}

void RefreshButtons() {
  if (OrderUnderWay()) return;
  const OrderFlags& o = UI.Order;
  const bool painting = o.RegimePaint > 0 || o.LandscapePaint > 0;
  Buttons.cancel.caption = kCancelCaption;
  if (!painting) {
    Buttons.doButton.enabled = false;
    Buttons.doButton.caption.clear();
    Buttons.cancel.enabled = false;
    Buttons.orderLineShown = false;
  }

  if (Editing()) {
    Buttons.nextTurn.caption = "Next turn";
    Buttons.nextTurn.enabled = false;
    if (painting) return;
    DisableButtons();
    if (!UI.ShowEditorPanel) return;
    const HexRec& h = SelectedHex();
    Buttons.order[kBtnMove].enabled = UI.SelSlot > 0;
    Buttons.order[kBtnProduction].enabled = h.Pop > 0;
    Buttons.order[kBtnCommand].enabled = UI.SelSlot > 0;
    Buttons.order[kBtnNewUnit].enabled = SelectionOnMap() && (h.Owner > 0 || h.Unit[1] == 0);
    Buttons.paintControls = true;
    return;
  }

  DisableButtons();
  // "Next turn" is always there in a game; during the computer's turn it
  // tells how far the computer has got.
  Buttons.nextTurn.enabled = Game.Turn > 0;
  if (ComputerToMove()) {
    Buttons.nextTurn.caption = Game.AIAnalysis != kFalse ? "AI PHASE " + NumText(Buttons.aiPhase) + "/" +
                                                               NumText(Buttons.aiPhases)
                                                         : std::string();
    return;
  }
  Buttons.nextTurn.caption = "Next turn";
  if (Game.Turn <= 0 || CurrentRegime() == 0 || !SelectionOnMap()) return;

  const HexRec& h = SelectedHex();
  const long o_ = SelectionOwner();
  const bool ownSel = o_ == Game.CurRegime;
  const bool slot = UI.SelSlot > 0;
  const int u = SelectedUnit();
  const bool ownUnit = u != 0 && Unit[u].Regime == Game.CurRegime;

  Buttons.order[kBtnMove].enabled = ownSel && slot;
  Buttons.order[kBtnAttack].enabled =
      !ownSel && UI.Order.SelOrderMove == 0 && slot &&
      (o_ == 0 || (ValidRegime(static_cast<int>(o_)) && Dip[CurrentRegime()][o_].Relation == 0));
  Buttons.order[kBtnProduction].enabled = ownSel && h.Pop > 0;
  Buttons.order[kBtnCommand].enabled = ownSel && slot;
  Buttons.order[kBtnNewUnit].enabled = ownSel && h.Unit[kStackSlots] == 0;
  Buttons.order[kBtnTransfer].enabled = ownSel && slot;
  Buttons.order[kBtnOfficerPool].enabled = ownSel;
  Buttons.order[kBtnResearch].enabled = ownSel;
  Buttons.order[kBtnDiplomatics].enabled = ownSel;
  Buttons.order[kBtnDisband].enabled = ownSel && slot;
  Buttons.order[kBtnEntrench].enabled =
      ownSel && u != 0 && Unit[u].InfQty > 0 && Unit[u].Theater == kLandTheater && Unit[u].Shq < 1;
  const bool ownShip = slot && ownUnit && Unit[u].Theater == kSeaTheater;
  Buttons.order[kBtnLoad].enabled = ownShip;
  Buttons.order[kBtnUnload].enabled = ownShip && Unit[u].Cargo > 0;
  const bool airPower = slot && ownUnit && AirWingOfSelection() != 0;
  Buttons.order[kBtnInterdict].enabled = airPower;
  Buttons.order[kBtnStrategic].enabled = airPower;
  Buttons.order[kBtnAirlift].enabled = airPower;
  Buttons.order[kBtnAirSupply].enabled = airPower;
}

void Helper() {
  const OrderFlags& o = UI.Order;
  std::string line;
  if (o.SelOrderMove > 0) {
    line = "You are moving a formation. Click on a highlighted hex to move it there.";
  } else if (o.AttackOrder > 0) {
    line = "You have targeted a hex for attack. Now you must select units to join this attack and press do attack.";
  } else if (o.BossOrder > 0) {
    line = "You want to change the boss of the selected Formation. Select the new boss and press the do new thq/shq "
           "button.";
  } else if (o.TransferOrder > 0) {
    line = "You have selected a unit to transfer. Now select the target formation and press do transfer";
  } else if (o.LoadOrder > 0) {
    line = "You have selected a Naval Formation to load another Formation. Select this formation and press do load.";
  } else if (o.LandingOrder > 0) {
    line = "You want to unload from your Naval Formation. Select a neighbouring hex to unload.";
  } else if (o.InterdictOrder > 0) {
    line = "You have selected an Air Formation to interdict. Now select a target formation and press do interdict.";
  } else if (o.StratBombOrder > 0) {
    line = "You have selected an Air Formation to Bomb a town. Now select a town and press do strategic bombing.";
  } else if (o.AirliftOrder > 0) {
    line = "You have selected an Air Formation to do an Air lift. Now select a target hex to drop or land the "
           "transported formation.";
  } else if (o.AirSupplyOrder > 0) {
    line = "You have selected an Air Formation to provide Air supply. Select the receiving unit and press do "
           "airsupply.";
  } else if (o.EntrenchOrder > 0) {
    line = "You are attempting to entrench a border of the selected hex. Click on a neighbour to select border.";
  } else if (Editing()) {
    line = "You are in the editing mode. If you want to play this scenario select start in the menu.";
  } else if (ComputerToMove()) {
    line = "The AI for " + Regime[CurrentRegime()].Name + " is doing it's turn.";
  } else {
    line = Regime[CurrentRegime()].Name + ", please give your orders. Press Next Turn Button if you are finished.";
  }
  UI.HelpText = line;
  Buttons.cancel.caption = kCancelCaption;
  // Entrenchment leaves the cancel button as it found it.
  if (o.EntrenchOrder == 0) Buttons.cancel.enabled = OrderUnderWay();
}

void ReturnSelectionToOrigin() {
  UI.SelX = UI.OrdX;
  UI.SelY = UI.OrdY;
  UI.PrevSelX = UI.OrdX;
  UI.PrevSelY = UI.OrdY;
  UI.SelCount = StackCount(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
  UI.SelSlot = UI.OrdSlot;
  if (UI.SelSlot > UI.SelCount) UI.SelSlot = UI.SelCount;
  UI.PanelDirty = true;
  RequestRedraw(1);
}

}  // namespace mf
