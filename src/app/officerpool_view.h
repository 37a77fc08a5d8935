// The window of the Officerpool dialog.
#pragma once

namespace mf::app {

// Registers the view of the "officerpool" dialog.
void RegisterOfficerPoolView();

}  // namespace mf::app
