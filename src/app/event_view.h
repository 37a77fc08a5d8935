// The window of the Event! dialog.
#pragma once

namespace mf::app {

// Registers the view of the "event" dialog.
void RegisterEventView();

}  // namespace mf::app
