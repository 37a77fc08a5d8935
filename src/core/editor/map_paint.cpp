#include "editor/map_paint.h"

namespace mf {

// Map painting comes with the editor's painting tools.
void RegimePaintButton() {}
void LandscapePaintButton() {}

}  // namespace mf
