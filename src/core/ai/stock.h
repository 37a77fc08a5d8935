// How the computer player gets its SHQs' stock onto the map: topping up the
// formations of its fronts class by class, founding fleets and air wings for
// ships and aircraft waiting in stock, and raising new land formations where
// infantry piles up.
//
// The four top-up stages list the candidates of each SHQ in the sorted list
// by need and walk it with a cursor that starts at the head and wraps at a
// quarter of the regime's unit count, one entry per try. A class is topped up
// only with the type the formation already has in it (or any type of that
// class when it has none).
#pragma once

namespace mf {

// Infantry for the land formations of fronts in the SHQ's area or joined to
// it by land, the weakest and emptiest first; five tries per SHQ, each
// needing transport left or the formation in the SHQ's own hex.
void AIStockInf();
// The whole artillery stock to the one land formation in the SHQ's reach that
// needs it most (fronts that attack, few own neighbours, no sea on the way);
// one try, with transport left.
void AIStockArt();
// Trucks for every supplied formation of a front in reach, slowest first,
// enough to carry its infantry and artillery, out of the stock the SHQ does
// not need to carry its own troops.
void AIStockMob();
// Armour for the formations that infantry would get, on fronts with contact
// and off swamp and forest, the attacking fronts first; twenty tries, with
// transport left.
void AIStockArm();

// Transports in stock go to a fleet in a port of the front area (within 5
// land steps) that has the greatest share; a new fleet is founded if none.
void AIBuildNaval();
// Bombers in stock go to an air wing in a town of the front area facing the
// greatest foreign strength; a new wing is founded if none.
void AIBuildAir();
// Fighters in stock, the same way.
void AIBuildAir2();

// An SHQ with more than 20 infantry, or any short-range guns, in stock and
// room in its hex raises a new land formation there and hands it all of both.
void AINewLandUnits();

}  // namespace mf
