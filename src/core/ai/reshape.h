// Reshaping the computer's formations to the length of each line: a thin
// line splits a strong formation in two, a crowded one merges formations
// that stand together; ships in one port join up.
#pragma once

namespace mf {

// For each front: with more line hexes than units (or on a garrison front)
// at most one strong formation of the front that stands alone is halved
// into a new formation beside it; with more units than line hexes
// formations of the front merge whole into a partner of their hex while the
// two together stay under a share of the largest size a unit may have.
void AIUnitSplitMerge();

// Two ships in one hex, the first without cargo: the first joins the other.
void AIMergeNaval();

// Can every class of unit a go into unit b: each class empty in one of them
// or of one type in both?
bool AIClassesFit(int a, int b);

}  // namespace mf
