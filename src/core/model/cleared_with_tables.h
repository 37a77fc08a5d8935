// The globals of one game that live outside the tables.
#pragma once

namespace mf {

// Globals of the layers above the tables that belong to one game (the battle
// being fought, the order buttons, the side panel, a transfer or an airlift
// under way, the floods' working fields, the sight cells, the computer
// player's tables, the paint tools) register here how they are put back to
// their start, so that the clear that zeroes the tables, ZeroAllTables,
// clears them too and nothing of one game reaches the next. The owner
// registers once, at start-up, beside the global:
//   const bool kClearedWithTables = ClearedWithTables([] { TheBattle = BattleState{}; });
// Returns true.
bool ClearedWithTables(void (*reset)());

}  // namespace mf
