// Shipping across the water of a sea front: transports sail home empty,
// take a formation aboard in port, sail for the other side and put it
// ashore where the shore is weakest.
#pragma once

namespace mf {

// The value field of the water for front f. Mode 1: every town of the other
// area 100 (0 where a warship lies in it); mode 2: every town of the own
// area 200. From there it spreads 30 waves over every hex but mountains at
// 9 in 10 a step.
void AISeaField(int f, int mode);

// Sails the ship in slot `slot` of (x, y) to the best hex of the field
// within reach (Hex.Work less the cost to get there), if that is not where
// it lies. Its worth is taken off the field at the new hex and given back
// at the old one.
void AIMoveShip(int x, int y, int slot);

// The shipping of front f, ship by ship in map order. False when a landing
// met warships in the port it was to take: the computer gives up all its
// operations for the turn, with the message that says so.
bool AIShipping(int f);

}  // namespace mf
