#include "engine/diplomacy.h"

namespace mf {

// The Diplomatics dialog lets a regime buy war or peace with its points.
void doDip() {}

}  // namespace mf
