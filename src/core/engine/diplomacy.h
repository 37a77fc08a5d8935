// Diplomacy between regimes: war and peace, bought with political points.
// A regime changes a relation on its own, without the other's consent; each
// change doubles the price of the next one between the same two regimes.
#pragma once

namespace mf {

// A price that can never be paid: the relation of the pair is fixed.
constexpr int kDipFixedCost = 999;

// Opens the Diplomatics dialog for Game.CurRegime. In the editor, where no
// regime has the turn, it speaks for the owner of the selected hex, and does
// not open over a hex without an owner.
void OpenDiplomaticsDialog();

// True when regimes a and b are at peace (Dip.Relation 1). Anything else,
// including a pair outside the table, counts as war.
bool AtPeace(int a, int b);

// The speaker turns his relation with `other` round: peace for a pair at war,
// war for a pair at peace, announced in a message box. Both directions take
// the new relation and the turn; the speaker pays the price, and the price
// doubles both ways. The caller has checked that the price can be paid.
void DipChangeRelation(int speaker, int other);

// The editor's form for a pair: asks for the relation and for the price of
// the next change, and stores both answers in both directions.
void DipEditPair(int speaker, int other);

}  // namespace mf
