#include "orders/order_state.h"

namespace mf {

// No order can be started yet, so there is never one to cancel; the orders
// of the map window fill this in together with their buttons.
void DoCancel() {}

}  // namespace mf
