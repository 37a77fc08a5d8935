// The one random generator of the program. A fixed algorithm (mt19937), so a
// seed repeats its sequence on every machine and compiler.
#pragma once

#include <cstdint>

namespace mf {

// Seeds the generator.
void SeedRnd(std::uint32_t seed);
// Seeds the generator from the clock, as the program does at start.
void SeedRndFromClock();
// One draw in [0, 1), single precision.
float Rnd();

}  // namespace mf
