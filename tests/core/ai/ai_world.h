// Small worlds for the computer player's tests: one-row maps (each hex then
// touches only its left and right neighbour, which keeps the hand-worked
// grids short), land units of a known worth, and the analysis run stage by
// stage for regime 1.
#pragma once

#include <string>
#include <vector>

#include "support/core_test.h"

namespace mf::test::ai {

// A map one row high whose hexes are given by letters, one per column:
// 'g' grass, 'f' forest, 's' swamp, 'm' mountain, '~' sea, 'T' a town
// (urban). `owners` gives each column's owner as a digit ('0' nobody).
void RowMap(const std::string& land, const std::string& owners);
// A town at column x of row 1 with a name and a population.
void Town(int x, const std::string& name, long pop);
// A land unit of regime r on (x, 1) whose worth (kind 3) is `worth`: it
// holds `worth` infantry of soft attack and defence 10, at full
// readiness and experience, with the unit divider at 10.
int Soldiers(int r, int x, const std::string& name, int worth);
// A ship of regime r on (x, 1) worth nothing.
int Ship(int r, int x, const std::string& name);
// The rows of a hex field of row 1 as numbers, for comparing whole grids.
std::vector<long> AreaRow();
std::vector<long> AreaValueRow();
std::vector<long> LandmassRow();

}  // namespace mf::test::ai
