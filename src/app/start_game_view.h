// The window of the Start Game dialog.
#pragma once

namespace mf::app {

// Registers the view of the "startgame" dialog.
void RegisterStartGameView();

}  // namespace mf::app
