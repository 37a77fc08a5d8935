// How the computer player sees the map: landmasses, the areas around towns
// and pockets, which areas touch, how far apart they are, and how strong
// each side is in each area. Rebuilt at the start of every computer turn.
#pragma once

#include "ai/ai_state.h"

namespace mf {

// All working tables of the analysis to 0 (AreaShq keeps its value).
void AIClear();
// Landmasses, town areas, pockets, borders, smoothed values and distances.
void AIFindAreas();
// Which side holds each area and how much strength stands in and next to it.
void AIAreaStrength();

// Steps between areas over the borders of `border`: 1 for neighbours, 999
// when there is no way; an area reaches itself in 2 steps through any
// neighbour. Rows and columns 1..count of `dist` are written.
using AreaPairTable = Short[kAreaCap + 1][kAreaCap + 1];
void AIAreaDistances(const AreaPairTable& border, AreaPairTable& dist, int count);

}  // namespace mf
