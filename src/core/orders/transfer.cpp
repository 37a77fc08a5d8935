#include "orders/transfer.h"

#include "model/game_state.h"
#include "orders/flood.h"
#include "orders/order_state.h"
#include "view/selection.h"

namespace mf {

// The chain-of-command test and the Transfer dialog come with the transfer
// rules; until then the order stands until it is cancelled.
void TransferBetween() {}

void dotransfer2() {
  UI.Order.TransferOrder = 0;
  ClearFlood();
  ReturnSelectionToOrigin();
  RequestRedraw(2);
  RefreshButtons();
  Helper();
}

}  // namespace mf
