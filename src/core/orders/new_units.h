// New units and the chain of command.
#pragma once

namespace mf {

// Removal of a THQ from the chain of command: frees its badge, and the
// formations under it lose their Boss and ThqBadge (and are redrawn).
void DropThq(int unit);

// The New Unit dialog for the selected hex ("[N]ew Unit").
void NewCommand();
// The do button of a change of command, with the formation of the order at
// UI.OrdX, UI.OrdY, UI.OrdSlot and its new boss selected.
void doNewBoss();
// "Disband this unit": asks, and disbands the selected formation.
void doDisband();
// A press on the neighbour in direction 1..6 of the entrenching formation's
// hex: fortifies that side by one level, for supply and MP.
void doEntrench(int direction);

}  // namespace mf
