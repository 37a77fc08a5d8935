// Naval and air transport orders: ships load and land formations, air wings
// lift, drop, supply, interdict and bomb. The order machine starts these
// orders; the routines here carry them out when the do button is pressed.
//
// A ship carries one formation (or one air wing) as its Unit.Cargo, and the
// cargo stands in no stack until it is put ashore.
#pragma once

namespace mf {

// The formation an air wing is lifting in the airlift under way.
extern int AirliftUnit;
// 0: the lifted formation can jump; 1: it has troops that cannot and must land.
extern int AirliftDrop;
// The SHQ whose stock pays for the air supply under way.
extern int AirSupplyShq;

// "[U]nload" in a town: the ship's cargo goes straight into the town's stack.
void doUnloadTown();
// The do button of a load: the selected formation boards the ship of the order.
void doLoad();
// The do button of an unload on a shore: landing or invasion of the selected hex.
void doLanding();
// The do button of an airlift: the lifted formation lands or jumps on the selected hex.
void doAirlift();
// The do button of an air supply: the selected formation is supplied from the air.
void doAirsupply();
// The do button of an interdiction or a strategic bombing on the selected hex.
void doAirMission();

// What a formation weighs aboard: Weight x quantity over its four classes.
long UnitLoadWeight(int unit);
// What ship B can take of formation L: its cargo ships' Carry Cap x their
// quantity for a land formation, its carriers' for an air wing.
long ShipCapacity(int ship, int load);

// The battle of a formation that comes ashore or out of the sky, still
// aboard or in the air: it fights alone, from no side, against the stack on
// (tx, ty), in the landing form of the battle. The order registers are as
// they were afterwards.
void LandingBattle(int unit, int tx, int ty);

// The first free stack slot of hex (x, y), 0 when the hex is full.
int FirstFreeSlot(int x, int y);
// Takes `unit` out of the stack of hex (x, y); the stack closes up (the
// slots above it move down one). False when it does not stand there.
bool LeaveStack(int x, int y, int unit);

}  // namespace mf
