// A regime's Strategic HQ set up in one stroke, without prompts and free of
// charge: the staff a new random game gives each regime in its start town,
// and the staff the computer founds in a town it holds.
#pragma once

#include <string>

namespace mf {

// Makes an SHQ of regime r in hex (x, y), stack slot `slot` (1..3), or in
// the first free slot of the hex when `slot` is 0:
//  - a free unit number and a free SHQ number of the regime (the searches
//    say their own words when the tables are full);
//  - named "SHQ " + the town name of the hex, cut to 16 characters;
//  - counter Regime.HexSprite + 240, theater land, every figure 0 (MP,
//    readiness, experience, disruption, stock, troops);
//  - a newly drawn officer;
//  - registered as Shq[r][number].Unit.
// Game.CurRegime is r during the call and is restored afterwards; the hex's
// owner and its town production are left to the caller. Returns the unit,
// or 0 (nothing changed on the map) when no unit or SHQ number is free, the
// regime or the hex is not valid, or the slot is taken or out of 1..3.
int MakeRegimeShq(int r, int x, int y, int slot);

// "SHQ " + the town name, cut to 16 characters: the name of a regime's SHQ.
std::string RegimeShqName(const std::string& townName);

}  // namespace mf
