// The window of the New Unit dialog.
#pragma once

namespace mf::app {

// Registers the view of the "newunit" dialog.
void RegisterNewUnitView();

}  // namespace mf::app
