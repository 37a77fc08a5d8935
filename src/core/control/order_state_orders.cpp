// The start and the cancel of each order: what a press on an order button
// checks before the order begins, how the order marks its reach on the map,
// what a press on the map does while the order is under way, and how the
// cancel button and Esc end it without effect.
#include <string>

#include "combat/attack.h"
#include "control/order_state.h"
#include "control/order_state_steps.h"
#include "engine/diplomacy.h"
#include "engine/officers.h"
#include "engine/production.h"
#include "engine/research.h"
#include "engine/supply_flood.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/stack.h"
#include "model/type_lookup.h"
#include "orders/command.h"
#include "orders/entrench.h"
#include "orders/flood.h"
#include "orders/move_allowance.h"
#include "orders/movement.h"
#include "orders/new_units.h"
#include "orders/sight.h"
#include "orders/transport.h"
#include "platform/platform.h"
#include "platform/text_case.h"

namespace mf {

namespace order_steps {

void EndMoveOrder() {
  UI.Order.SelOrderMove = 0;
  ClearFlood();
  // The dark reach goes away.
  RequestRedraw(2);
  FinishOrder();
}

void EndEntrenchOrder() {
  UI.Order.EntrenchOrder = 0;
  ClearFlood();
  ReturnSelectionToOrigin();
  RequestRedraw(2);
  FinishOrder();
}

void EndBossOrder() {
  UI.Order.BossOrder = 0;
  ReturnSelectionToOrigin();
  RequestRedraw(1);
  FinishOrder();
}

}  // namespace order_steps

using namespace order_steps;

namespace {

// Sounds of a finished move, by what moved.
constexpr int kSoundMoveFoot = 11;   // "mov_inf.wav"
constexpr int kSoundMoveArmour = 12; // "mov_arm.wav"
constexpr int kSoundRebase = 14;     // "att_bomb.wav"
constexpr int kSoundMoveShip = 15;   // "mov_ship.wav"



// No formation is joined to the attack.
void ClearAttackers() {
  for (int i = 0; i <= kAttackerCap; ++i) {
    UI.AttackerX[i] = 0;
    UI.AttackerY[i] = 0;
    UI.AttackerSlot[i] = 0;
  }
  UI.AttackerCount = 0;
}

// Where a move order's click lands: the origin ends the order, elsewhere the
// formation moves if it can.
void MoveClick() {
  if (UI.SelX == UI.OrdX && UI.SelY == UI.OrdY) {
    EndMoveOrder();
    return;
  }
  const int u = static_cast<int>(UI.Order.SelOrderMove);
  const int result = MoveUnit(false);
  if (result == kMoveShortOfMP) {
    Say("Not enough movementpoints");
    return;
  }
  if (result == kMoveHexFull) {
    Say("To many units in target hex");
    return;
  }
  // The formation now stands in the selected hex: its stack is counted
  // again, so that the next order can start from here at once.
  UI.SelCount = StackCount(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
  if (!Editing()) SightPass();
  RequestRedraw(2);
  UI.PanelDirty = true;
  Buttons.orderLineShown = false;
  if (!Editing() && ValidUnit(u)) {
    const long theater = Unit[u].Theater;
    if (theater == kSeaTheater) {
      Sound(kSoundMoveShip);
    } else if (theater == kAirTheater) {
      Sound(kSoundRebase);
    } else {
      Sound(UnitMaxMoveOf(u, true) > 99 ? kSoundMoveArmour : kSoundMoveFoot);
    }
  }
  EndMoveOrder();
}

void StartMove() {
  const int u = SelectedUnit();
  const bool own = SelectionOnMap() && (SelectedHex().Owner == Game.CurRegime || (u != 0 && Unit[u].Regime == Game.CurRegime));
  if (!(Editing() || own)) return;
  if (UI.SelCount <= 0 || UI.SelSlot <= 0 || u == 0) return;
  BeginOrder("DON'T MOVE");
  UI.Order.SelOrderMove = u;
  MoveFlood(false);
  Buttons.orderLine.clear();
  Buttons.orderLineShown = true;
  Helper();
}

// The neighbour of the entrenching formation's hex that the selection is,
// 1..6, or 0.
int DirectionFromOrigin() {
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY), d);
    if (n.x == UI.SelX && n.y == UI.SelY) return d;
  }
  return 0;
}

void EntrenchClick() {
  if (UI.SelX == UI.OrdX && UI.SelY == UI.OrdY) {
    EndEntrenchOrder();
    return;
  }
  if (!SelectionOnMap() || SelectedHex().Mark != 0) return;
  const int d = DirectionFromOrigin();
  if (d != 0) doEntrench(d);
}

void StartEntrench() {
  if (Editing()) return;
  const int u = SelectedUnit();
  if (u == 0 || Unit[u].Theater != kLandTheater) return;
  if (!(SelectedHex().Owner == Game.CurRegime || Unit[u].Regime == Game.CurRegime)) return;
  BeginOrder("DON'T ENTRENCH");
  UI.Order.EntrenchOrder = 1;
  // Only the six sides of the hex can be picked.
  ClearFlood();
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY), d);
    if (n.x > 0 && n.y > 0) Hex[n.x][n.y].Mark = 0;
  }
  RequestRedraw(1);
  Helper();
}

// The reach of a wing from the order's origin. A wing on board flies from
// the ship's slot while its reach is worked out.
void FloodFromWing(int wing) {
  Long& slot = Hex[UI.OrdX][UI.OrdY].Unit[UI.OrdSlot];
  const Long held = slot;
  slot = wing;
  MoveFlood(false);
  slot = held;
}

// Interdiction and strategic bombing start the same way: a wing with 2 MP,
// flown from its own hex or from the deck of the selected ship.
void StartAirStrike(bool strategic) {
  const int wing = AirWingOfSelection();
  if (wing == 0 || Unit[wing].MP < 2) return;
  BeginOrder(strategic ? "DO STRATEGIC BOMBING" : "DO INTERDICT");
  if (strategic) {
    UI.Order.StratBombOrder = 1;
  } else {
    UI.Order.InterdictOrder = 1;
  }
  FloodFromWing(wing);
  Helper();
}


}  // namespace

void MoveButton() {
  if (UI.Order.SelOrderMove > 0) {
    MoveClick();
  } else {
    StartMove();
  }
}

void AttackButton() {
  const HexRec& h = SelectedHex();
  if (h.Unit[1] == 0 || UI.SelCount == 0) {
    Say("There are no enemy units in the hex you selected. You dont have to attack. You can use move to take it.");
    return;
  }
  const long regime = Unit[UnitAt(UI.SelX, UI.SelY, 1)].Regime;
  if (ValidRegime(static_cast<int>(regime)) && Dip[CurrentRegime()][regime].Relation == 1) {
    Say("You cannot attack units from a player you are at peace with");
    return;
  }
  if (regime == Game.CurRegime) {
    Say("You cannot attack your own units. Select an enemy unit and press Attack again.");
    return;
  }
  // Pressed again while the attack is being prepared: only the tests above.
  if (UI.Order.AttackOrder > 0) return;
  BeginOrder("DO ATTACK");
  UI.Order.AttackOrder = 1;
  ClearAttackers();
  Helper();
}

void ProductionButton() { UrbanProduction(); }
void NewUnitButton() { NewCommand(); }
void OfficerPoolButton() { OpenOfficerPoolDialog(); }
void ResearchButton() { OpenResearchDialog(); }
void DiplomaticsButton() { OpenDiplomaticsDialog(); }
void DisbandButton() { doDisband(); }

void CommandButton() {
  const int u = SelectedUnit();
  if (u == 0) return;
  if (!Editing() && Unit[u].Regime != Game.CurRegime) return;
  if (Unit[u].MP > 0 && !Plat().AskYesNo("Unit still has Movement Points. Are you sure?", "WARNING")) return;
  if (Unit[u].Shq > 0) {
    Say("You cannot assign a Boss for a SHQ. A SHQ is the top dog.");
    return;
  }
  // A formation picks a THQ; a THQ picks an SHQ.
  const bool thq = Unit[u].Thq > 0;
  BeginOrder((thq ? "DO NEW SHQ FOR " : "DO NEW THQ FOR ") + Unit[u].Name);
  UI.Order.BossOrder = thq ? 2 : 1;
  Helper();
}

void TransferButton() {
  const int u = SelectedUnit();
  if (u == 0 || Unit[u].Regime != Game.CurRegime) return;
  BeginOrder("DO TRANSFER FROM " + Upper(Unit[u].Name));
  UI.Order.TransferOrder = 1;
  // The reach of the source's transport shows on the map.
  SupplyFlood(true);
  RequestRedraw(2);
  Helper();
}

void EntrenchButton() {
  if (UI.Order.EntrenchOrder > 0) {
    EntrenchClick();
  } else {
    StartEntrench();
  }
}

void LoadButton() {
  const int u = SelectedUnit();
  if (u == 0 || Unit[u].Regime != Game.CurRegime || Unit[u].Theater != kSeaTheater) return;
  BeginOrder("DO LOAD INTO " + Unit[u].Name);
  UI.Order.LoadOrder = 1;
  Helper();
}

void UnloadButton() {
  const int u = SelectedUnit();
  if (u == 0 || Unit[u].Regime != Game.CurRegime || Unit[u].Theater != kSeaTheater) return;
  // In a town the cargo walks ashore at once.
  if (SelectedHex().Land == kUrban) {
    doUnloadTown();
    return;
  }
  BeginOrder("DO UNLOAD ON SELECTED HEX");
  UI.Order.LandingOrder = 1;
  Helper();
}

void InterdictButton() { StartAirStrike(false); }
void StrategicButton() { StartAirStrike(true); }

void AirliftButton() {
  const int wing = AirWingOfSelection();
  if (wing == 0) return;
  // The formations on the airfield that could be flown out.
  int found[kStackSlots] = {};
  int n = 0;
  for (int s = 1; s <= kStackSlots; ++s) {
    const int v = UnitAt(UI.SelX, UI.SelY, s);
    if (v != 0 && v != wing && Unit[v].Theater == kLandTheater) found[n++] = v;
  }
  if (n == 0) {
    Plat().ShowMessage("No unit in hex thats eligable for transport.", "Not possible");
    return;
  }
  int lifted = found[0];
  if (n > 1) {
    const bool first = Plat().AskYesNo(
        "[Yes = transport " + Unit[found[0]].Name + "]   [No = transport " + Unit[found[1]].Name + "]",
        "Airlift which unit");
    lifted = first ? found[0] : found[1];
  }
  if (Unit[lifted].MP < 2) {
    Say("Unit has not enough MP. Should have at least 2mp.");
    return;
  }
  // What the transport aircraft can carry decides; too heavy, and nothing happens.
  const long capacity = AttrOf(Unit[wing].MobType, kCarryCap) * Unit[wing].MobQty;
  if (UnitLoadWeight(lifted) > capacity) return;
  int drop = 0;
  for (int cls = 1; cls <= 4; ++cls)
    if (UnitSlotQty(lifted, cls) > 0 && AttrOf(UnitSlotType(lifted, cls), kParadropCap) == 0) drop = 1;
  BeginOrder("SELCECT AIRLIFT/AIRDROP DESTINATION FOR " + Unit[lifted].Name);
  AirliftUnit = lifted;
  AirliftDrop = drop;
  UI.Order.AirliftOrder = 1;
  FloodFromWing(wing);
  Helper();
}

void AirSupplyButton() {
  const int wing = AirWingOfSelection();
  if (wing == 0) return;
  // The SHQ that pays: the wing's boss, or its boss's boss.
  int shq = 0;
  const long boss = Unit[wing].Boss;
  if (ValidUnit(static_cast<int>(boss))) {
    if (Unit[boss].Shq > 0) {
      shq = static_cast<int>(boss);
    } else if (ValidUnit(static_cast<int>(Unit[boss].Boss)) && Unit[Unit[boss].Boss].Shq > 0) {
      shq = static_cast<int>(Unit[boss].Boss);
    }
  }
  if (shq == 0 || Unit[shq].Shq > kShqCap) return;
  if (SelectedHex().ShqDist[Unit[shq].Shq] >= 999) return;
  BeginOrder("DO AIRSUPPLY FROM " + Unit[wing].Name);
  AirSupplyShq = shq;
  UI.Order.AirSupplyOrder = 1;
  FloodFromWing(wing);
  Helper();
}

void DoCancel() {
  OrderFlags& o = UI.Order;
  if (o.EntrenchOrder > 0) EndEntrenchOrder();
  if (o.InterdictOrder > 0 || o.StratBombOrder > 0) {
    o.InterdictOrder = 0;
    o.StratBombOrder = 0;
    ReturnSelectionToOrigin();
    ClearFlood();
    RequestRedraw(2);
    FinishOrder();
  }
  if (o.LandingOrder > 0) {
    o.LandingOrder = 0;
    ReturnSelectionToOrigin();
    FinishOrder();
  }
  if (o.LoadOrder > 0) {
    o.LoadOrder = 0;
    ReturnSelectionToOrigin();
    FinishOrder();
  }
  if (o.AirliftOrder > 0 || o.AirSupplyOrder > 0) {
    o.AirliftOrder = 0;
    o.AirSupplyOrder = 0;
    ReturnSelectionToOrigin();
    ClearFlood();
    RequestRedraw(2);
    FinishOrder();
  }
  if (o.BossOrder > 0 || o.TransferOrder > 0) {
    // With the origin selected again, the do button ends the order by itself.
    ReturnSelectionToOrigin();
    DoButton();
  }
  if (o.SelOrderMove > 0) {
    ReturnSelectionToOrigin();
    MoveButton();
  }
  if (o.AttackOrder > 0) {
    o.AttackOrder = 0;
    ClearAttackers();
    ReturnSelectionToOrigin();
    RequestRedraw(2);
    FinishOrder();
  }
}

void JoinAttacker() {
  if (UI.Order.AttackOrder == 0) return;
  const int u = SelectedUnit();
  // Only the regime's own formations can be sent in.
  if (u == 0 || Unit[u].Regime != Game.CurRegime) return;
  if (Unit[u].Theater == kAirTheater) {
    Say("Air Units Cannot join attack. Use interdict to use them seperatly.");
    return;
  }
  // Above twenty, not at twenty: a twenty-first can still join.
  if (UI.AttackerCount > 20) {
    Say("You can only select a maximum of 20 units for an attack.");
    return;
  }
  const int d = Distance(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY), static_cast<int>(UI.OrdX),
                         static_cast<int>(UI.OrdY));
  if (d != 1 && !GunsReachTarget()) return;
  if (Unit[u].MP < 2) {
    Say("Unit does not have 2 MP left. This is needed to do an attack.");
    return;
  }
  int at = 0;
  for (int i = 1; i <= UI.AttackerCount && i <= kAttackerCap; ++i) {
    if (UI.AttackerX[i] == UI.SelX && UI.AttackerY[i] == UI.SelY && UI.AttackerSlot[i] == UI.SelSlot) {
      at = i;
      break;
    }
  }
  if (at > 0) {
    // The last one takes its place.
    const long last = UI.AttackerCount;
    UI.AttackerX[at] = UI.AttackerX[last];
    UI.AttackerY[at] = UI.AttackerY[last];
    UI.AttackerSlot[at] = UI.AttackerSlot[last];
    UI.AttackerX[last] = 0;
    UI.AttackerY[last] = 0;
    UI.AttackerSlot[last] = 0;
    UI.AttackerCount = last - 1;
  } else if (UI.AttackerCount < kAttackerCap) {
    const long n = UI.AttackerCount + 1;
    UI.AttackerX[n] = UI.SelX;
    UI.AttackerY[n] = UI.SelY;
    UI.AttackerSlot[n] = UI.SelSlot;
    UI.AttackerCount = n;
  }
  RequestRedraw(1);
  UI.PanelDirty = true;
}

}  // namespace mf
