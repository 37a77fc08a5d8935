// New units and the chain of command.
#pragma once

namespace mf {

// Removal of a THQ from the chain of command: frees its badge, and the
// formations under it lose their Boss and ThqBadge (and are redrawn).
void DropThq(int unit);

}  // namespace mf
