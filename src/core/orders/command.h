// The chain of command of a regime's formations: choosing a new boss,
// disbanding, and renaming.
#pragma once

namespace mf {

// The do button of a change of command ("DO NEW THQ FOR ..." / "DO NEW SHQ
// FOR ..."): the formation of the order (UI.OrdX, UI.OrdY, UI.OrdSlot) takes
// the selected THQ (BossOrder 1) or SHQ (BossOrder 2) as its boss.
void doNewBoss();

// "Disband this unit": asks, and disbands the selected formation.
void doDisband();
// Disbands unit u at once: its officer goes back to the pool, its stack
// closes up, a THQ or SHQ leaves the chain of command, the unit's number is
// free again. Troops, and whatever it carried, are lost.
void DisbandUnit(int u);

// A double click on the name of the selected formation in the side panel:
// asks for a new name (at most 20 characters, no double quote; a name of
// fewer than 3 characters leaves the old one). Nothing outside the
// player's own hexes unless in the editor.
void doRename();

}  // namespace mf
