// The window of the Transfer dialog.
#pragma once

namespace mf::app {

// Registers the view of the "transfer" dialog.
void RegisterTransferView();

}  // namespace mf::app
