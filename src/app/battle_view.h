// The window of a battle: the log as it is fought, "Finished." and OK.
#pragma once

namespace mf::app {

// Registers the view of the "battle" dialog (the wait for OK) and follows
// every battle through the core's battle window hook, so that a shown
// battle appears line by line while it is fought.
void RegisterBattleView();

}  // namespace mf::app
