#include "view/sprite_table.h"

namespace mf {

// Filled by the map view together with its sprite and sound tables.
void LoadSprites() {}

}  // namespace mf
