// The value field of a front: Hex.Work says how much the computer player
// wants a unit of the front standing on each hex. Line hexes facing the
// other area are worth most, more when threatened; the value flows inland
// from there, and into the empty foreign land in front by the stance of the
// front; what already stands on a hex lowers its value.
#pragma once

namespace mf {

// The classes of unit that AIMoveAll moves on the field.
constexpr int kAILineClass = 1;      // line units
constexpr int kAIStaffClass = 2;     // THQs and long-range artillery
constexpr int kAIShqClass = 3;       // SHQs
constexpr int kAIAirClass = 4;       // air units

// Clears the field for front f: Hex.Mark, Hex.ScratchRecon and Hex.Work on
// the whole map, and f's line counts and balance.
void AIClearWork(int f);

// Paints the field of front f for one class of unit, with penalty P for the
// first step into foreign land. Counts the front's line hexes and the units
// standing on its line (AI.FrontLineHexes, AI.FrontLineUnits); the line
// counts of every other front start again from 0.
void AIHexValues(int f, double P, int unitClass);

// True when f has an other area and no land border with it: a front across
// the water. A garrison front has no land border either.
bool AINoLandBorder(int f);
bool AISeaFront(int f);

}  // namespace mf
