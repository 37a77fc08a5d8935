#include "engine/officers.h"

namespace mf {

// The officer pool comes with the officers' rules.
void doPool() {}

}  // namespace mf
