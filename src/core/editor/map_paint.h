// Painting the map by hand in the editor: owners and landscape.
#pragma once

namespace mf {

// A left press on the map while owners are being painted (RegimePaint).
void RegimePaintButton();
// A left press on the map while landscape is being painted (LandscapePaint).
void LandscapePaintButton();

}  // namespace mf
