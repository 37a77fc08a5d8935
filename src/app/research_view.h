// The window of the Research dialog.
#pragma once

namespace mf::app {

// Registers the view of the "research" dialog.
void RegisterResearchView();

}  // namespace mf::app
