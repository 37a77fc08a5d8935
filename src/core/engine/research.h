// Research fields bought with political points. A field is bought outright
// in one step; there is no research in progress. A field a regime holds
// unlocks the unit types that name it.
#pragma once

#include <string>

#include "model/capacity.h"

namespace mf {

// A number that names a field of the research table.
inline bool ValidResearchField(long long field) { return field >= 1 && field <= kResearchCap; }

// Opens the Research dialog for Game.CurRegime. In the editor the regime is
// first taken from the selected formation, the editing buttons are shown,
// and closing leaves Game.CurRegime at 0 again.
void OpenResearchDialog();

// True when `regime` holds research field `field` (Regime.Research above 0).
// A field or regime outside the tables is held by nobody.
bool FieldKnown(int regime, int field);
// True when a field needed first by `field` (Research.Need1 or Need2) is not
// held by `regime`. A need of 0, or one outside the table, needs nothing.
bool FieldNeedMissing(int regime, int field);

// Production gate of a unit type: a type that names a research field can be
// made only by a regime that holds the field. A type with Type.Research 0 is
// free to all; any other number that names no field of the table (below 0,
// above 200) is a field nobody can hold, so nobody makes the type.
bool TypeResearchKnown(int regime, int type);

// The Buy button for `field`, bought by `regime`: refusals in the rules'
// order with their messages, else the field is gained (paid for outside the
// editor). True when the field was gained. Field 0 (no selection) does nothing.
bool BuyResearch(int regime, int field, bool editing);

// A line of the offer list: name + " (" + cost + ")", with "***" in front
// when a needed field is missing.
std::string ResearchOfferLine(int regime, int field);

}  // namespace mf
