// Movement: the reach of a formation, moving it, and the taking of land.
#pragma once

namespace mf {

// Results of MoveUnit.
constexpr int kMoveDone = 0;
constexpr int kMoveShortOfMP = 1;   // "Not enough movementpoints"
constexpr int kMoveHexFull = 2;     // "To many units in target hex"

// Floods the reach of the formation in UI.OrdX, UI.OrdY, UI.OrdSlot for
// Game.CurRegime: Hex.Mark holds the MP cost of each hex it can go to (999
// out of reach; 9999 a hex next to a ship's reach that is shown but cannot
// be entered), Hex.Wave the wave that reached it and Hex.Route the hexes
// left on the way. The order under way (interdict, strategic bombing,
// airlift, air supply, or a plain move) filters the result. In editing mode
// every hex is reachable at cost 0. With silent false the reach is drawn and
// its box kept in FloodMinX .. FloodMaxY; the computer player floods silently.
void MoveFlood(bool silent);

// Moves the formation of the order (SelOrderMove, or for the computer the
// unit in UI.OrdX, UI.OrdY, UI.OrdSlot) to UI.SelX, UI.SelY along the path
// of the last MoveFlood: packs it into the target's stack, takes the target
// and, for land formations, the hexes on the way, and charges MP and
// readiness. Returns kMoveDone, kMoveShortOfMP or kMoveHexFull; a refused
// move changes nothing. Shows nothing; the caller tells the player.
int MoveUnit(bool silent);

// The strength that lets a formation take foreign land by walking into it,
// compared with engine variable 101.
double UnitOccupyPower(int unit);

// Turn-start spread for Game.CurRegime: neutral land next to the regime and
// enemy land that no unit of its owner holds or guards change hands, one
// ring a turn. Called by the next-turn driver before supply.
void HexCapture();

// Hands hex (x, y) to Game.CurRegime as a move or the turn start takes it:
// a town that changes hands loses what it was making and for whom.
void TakeHex(int x, int y);

}  // namespace mf
