// How the computer player gives its orders. It has no order language of its
// own: it sets the registers a player's clicks set and calls the routines
// the buttons call, and when the player watches (Game.ShowAIMoves, only
// without fog of war) it centres the map on each attack and move and
// repaints what changed.
#pragma once

#include <functional>
#include <vector>

#include "ai/ai_state.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {

// The sound of a computer unit that moves, loads or receives troops.
constexpr int kAIMoveSound = 31;

// True while the player watches the computer's turn.
bool AIShowing();
// Plays the computer's move sound unless sound is off.
void AIMoveSound();
// Centres the map on hex (x, y) before an attack or a move that is watched.
void AIWatch(int x, int y);
// After a watched order: asks for the hexes around the selection (where the
// order ended) to be repainted, or the whole map, and lets the window paint.
// Does nothing while nobody watches.
void AIShowChange(Long what);

// A unit number that names a unit in play.
bool AILive(long u);

// A flood over Hex.Mark, wave by wave, as a scan of the whole map per wave
// would run it: in wave w the hexes marked w, in map order (x outer, y
// inner). It starts from the hexes marked 1; `expand` handles one hex of
// wave w and adds every hex it marks w + 1 to `next`. Stops after `waves`
// waves or when a wave marks nothing.
using AIWaveStep = std::function<void(int x, int y, long w, std::vector<HexXY>& next)>;
void AIFloodWaves(long waves, const AIWaveStep& expand);

// Kinds of unit as the computer player sorts them.
bool AIIsHq(int u);
// A land formation whose guns reach beyond the next hex.
bool AILongRange(int u);

// Floods the reach of the unit in slot `slot` of (x, y) as a player's move
// order does (drawn only while watched). The flood stands in Hex.Mark.
void AIFloodFrom(int x, int y, int slot);
// Moves the unit in slot `slot` of (x, y) to (tx, ty) along the last flood,
// with the move sound; true when it went. UI.OrdX, UI.OrdY, UI.OrdSlot then
// hold its new place.
bool AIMoveUnitTo(int x, int y, int slot, int tx, int ty);

// The order registers at rest, as the computer leaves them after a stage:
// no order flag, no origin, no attackers. The selection is left alone.
void AIClearOrders();

// One battle against (tx, ty) by the attackers listed in UI.AttackerX,
// UI.AttackerY, UI.AttackerSlot (UI.AttackerCount of them), as the do button
// of an attack fights it; the list is empty again afterwards.
void AIFight(int tx, int ty);

}  // namespace mf
