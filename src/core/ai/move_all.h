// Units flow uphill on the value field of their front.
#pragma once

namespace mf {

// Moves the units of one class (kAILineClass ... kAIAirClass) that serve
// front f (SHQs whatever front they serve) each at most once to the best
// hex of the field within their reach, if it is enough better than where
// they stand. What a unit brings to its new hex is taken off the field
// there and given back where it left, so that the next unit looks elsewhere.
void AIMoveAll(int f, int unitClass);

}  // namespace mf
