// The window of the New Turn dialog.
#pragma once

namespace mf::app {

// Registers the view of the "newturn" dialog.
void RegisterNewTurnView();

}  // namespace mf::app
