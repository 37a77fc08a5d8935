// Transfer of troops and supply between formations of one regime and the
// stock of an SHQ, paid in transport over the source's supply reach.
#pragma once

namespace mf {

// The do button of a transfer, with the source at UI.OrdX, UI.OrdY,
// UI.OrdSlot and the selected formation as destination: checks the chain
// of command between the two and opens the Transfer dialog.
void TransferBetween();

// Ends the transfer order: the flag off, the flood forgotten, the selection
// back on the source, both hexes redrawn and the buttons refreshed.
void dotransfer2();

}  // namespace mf
