// How much of the tables is in use, held inside what the tables can hold.
// The counts and sizes in Game come from scenario files and editors; a loop
// bounded by these helpers never reads past a table even when a file or a
// slip of the editor has put a count out of range.
#pragma once

#include <algorithm>

#include "model/capacity.h"
#include "model/game_state.h"

namespace mf {

// A count held to 0..cap, for loops over a table of cap entries.
inline int Held(long count, int cap) { return static_cast<int>(std::clamp<long>(count, 0, cap)); }

// Columns and rows of the map that lie inside the hex table.
inline int MapW() { return Held(Game.MapW, kMapCap); }
inline int MapH() { return Held(Game.MapH, kMapCap); }

// The highest numbers in play of the regimes, unit types, peoples and units.
inline int LastRegime() { return Held(Game.RegimeCount, kRegimeCap); }
inline int LastType() { return Held(Game.TypeCount, kTypeCap); }
inline int LastPeople() { return Held(Game.PeopleCount, kPeopleCap); }
inline int LastUnit() { return Held(Game.UnitCount, kUnitCap); }

// The regime whose turn it is, 0 when the turn names no regime of the table.
inline int CurrentRegime() { return ValidRegime(Game.CurRegime) ? static_cast<int>(Game.CurRegime) : 0; }

// Whether the computer plays regime r; a number that names no regime of the
// table is nobody's, so no computer plays it.
inline bool RunByComputer(Long r) { return ValidRegime(r) && Regime[r].AI > 0; }

// Whether the regime whose turn it is is played by the computer.
inline bool ComputerToMove() { return RunByComputer(Game.CurRegime); }

// How many goods an SHQ's stock holds side by side (engine variable 616).
inline int StockWidth() { return Held(EV(616), kStockCap); }

}  // namespace mf
