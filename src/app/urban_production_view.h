// The window of the Urban Production dialog.
#pragma once

namespace mf::app {

// Registers the view of the "production" dialog.
void RegisterUrbanProductionView();

}  // namespace mf::app
