// The movement-point allowance of a formation, shared by the turn start
// (which refills MP) and by movement (which reads how much a unit carries).
#pragma once

namespace mf {

// Works out the MP allowance of the unit in stack slot `slot` of hex (x, y)
// and writes it into Unit.MP unless keep is true. Returns the carrying
// percent: for land Int(100 / Z) capped at 500, for sea and air 100.
int UnitMaxMove(int x, int y, int slot, bool keep);
// The same by unit number.
int UnitMaxMoveOf(int unit, bool keep);

}  // namespace mf
