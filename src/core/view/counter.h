// Counters of units on the map.
#pragma once

namespace mf {

// Computes Unit.CounterPic and Unit.ThqBadge of a unit.
void Counter(int u);

}  // namespace mf
