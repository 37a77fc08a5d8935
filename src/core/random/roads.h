// Roads of a random map: towns that are neighbours over land are joined
// where a short way exists.
#pragma once

namespace mf {

// Numbers the towns as areas (AI.AreaCount, AI.AreaX/Y, Hex.Area), grows
// them over land for 30 waves (not over sea or mountain) to find which
// towns border each other (AI.AreaLandBorder), and joins each such pair
// once, in order, by the cheapest way that a flood of 39 waves finds:
// entering land costs 5, a town 1, road to road 1. A way found within 19
// waves gets Hex.Road 1 on every hex, both towns included; later pairs use
// the roads of earlier ones. Hex.Mark is left as the growth set it.
void BuildRoads();

}  // namespace mf
