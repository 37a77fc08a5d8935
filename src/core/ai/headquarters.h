// The computer player's headquarters: new SHQs for towns left without one,
// new THQs for fronts that have none, and bosses for units that lack one.
#pragma once

namespace mf {

// At most one new SHQ a turn, in the centre of the first own town area that
// no SHQ serves, or that its nearest SHQ reaches only at the edge of its
// range and that has no SHQ of its own: only in a centre with room, no
// foreign neighbour, and no own SHQ closer than 10 columns and 10 rows on the
// same landmass. It is set up as a new random game sets up a regime's SHQ,
// and the town delivers to it.
void AINewShq();

// For each front with a stance, a town at its own centre and no THQ in its
// own area: the best-scored hex gets a new THQ under the SHQ of its area
// ("New THQ placed x,y"), when that SHQ reaches it over land and holds more
// than 15 infantry to give it; otherwise the SHQ is marked as needing land
// troops, and its next town makes infantry.
void AINewThq();

// THQs take the SHQ of their area when theirs is another one; line units
// without a boss, or with one more than 4 hexes away, take the best THQ by
// distance, landmass and area.
void AIAssignBoss();

}  // namespace mf
