// The battle: every ground, naval and bombardment attack of the game, for
// human and computer regimes alike.
#pragma once

namespace mf {

// Fights the battle of the attackers in UI.AttackerX/Y/Slot (UI.AttackerCount
// of them) against the stack on UI.OrdX, UI.OrdY. Nothing when the list is empty.
void doAttack();

// Can the selected formation (UI.SelX, UI.SelY, UI.SelSlot) fire at the
// target UI.OrdX, UI.OrdY from where it stands? Guns of a land formation
// reach as far as the artillery type's range; a warship fires with its
// warships' artillery range.
bool GunsReachTarget();
// The same for the formation in stack slot `slot` of the selected hex.
bool GunsInSlotReachTarget(int slot);

}  // namespace mf
