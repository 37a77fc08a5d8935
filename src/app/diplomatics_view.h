// The window of the Diplomatics dialog.
#pragma once

namespace mf::app {

// Registers the view of the "diplomatics" dialog.
void RegisterDiplomaticsView();

}  // namespace mf::app
