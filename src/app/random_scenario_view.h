// The window of the Random Scenario dialog.
#pragma once

namespace mf::app {

// Registers the view of the "random" dialog.
void RegisterRandomScenarioView();

}  // namespace mf::app
