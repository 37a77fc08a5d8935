// The window of the Clear / New Game dialog.
#pragma once

namespace mf::app {

// Registers the view of the "clear" dialog.
void RegisterClearDialogView();

}  // namespace mf::app
