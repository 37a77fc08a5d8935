// The one big do button: it finishes whichever order is under way, by
// handing it to the rule routine that carries it out or ending it where the
// player chose nothing to do.
#include "combat/attack.h"
#include "control/order_state.h"
#include "control/order_state_steps.h"
#include "model/game_state.h"
#include "orders/command.h"
#include "orders/sight.h"
#include "orders/transfer.h"
#include "orders/transport.h"

namespace mf {

namespace {

using namespace order_steps;

// The do button of a change of command: choosing nobody or the formation
// itself ends the order without a word.
void BossDo() {
  const int target = SelectedUnit();
  if (target == 0 || target == OriginUnit()) {
    EndBossOrder();
    return;
  }
  doNewBoss();
}

// The do button of a transfer: no destination, or the source itself, ends it.
void TransferDo() {
  const int target = SelectedUnit();
  if (target == 0 || target == OriginUnit()) {
    EndTransferOrder();
    return;
  }
  TransferBetween();
}

void AttackDo() {
  doAttack();
  UI.Order.AttackOrder = 0;
  RefreshButtons();
  // The attackers' hexes and the target change; the whole map is redrawn
  // after the fog has been worked out again.
  SightPass();
  RequestRedraw(2);
  UI.PanelDirty = true;
  FinishOrder();
}

}  // namespace

void DoButton() {
  Click();
  OrderFlags& o = UI.Order;
  if (o.SelOrderMove > 0) EndMoveOrder();
  if (o.EntrenchOrder > 0) EndEntrenchOrder();
  if (o.AttackOrder > 0) AttackDo();
  if (o.BossOrder > 0) BossDo();
  if (o.AirSupplyOrder > 0) doAirsupply();
  if (o.AirliftOrder > 0) doAirlift();
  if (o.TransferOrder > 0) TransferDo();
  if (o.LandingOrder > 0) doLanding();
  if (o.StratBombOrder > 0 || o.InterdictOrder > 0) doAirMission();
  if (o.LoadOrder > 0) doLoad();
  if (o.RegimePaint > 0 || o.LandscapePaint > 0) {
    o.RegimePaint = 0;
    o.LandscapePaint = 0;
    RefreshButtons();
    Buttons.doButton.enabled = false;
  }
}

}  // namespace mf
