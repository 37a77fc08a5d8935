// The invariant check: silent on a sound world, and one line naming the
// broken invariant and the place for each kind of damage.
#include <gtest/gtest.h>

#include "model/invariants.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class InvariantsTest : public CoreTest {
 protected:
  // Two regimes: North with an SHQ and two units stacked at (3,3) and a ship
  // carrying a unit at (5,5); South with one unit at (8,8).
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
    north = world::AddRegime("North");
    south = world::AddRegime("South");
    Game.CurRegime = north;
    shq = world::AddUnit(north, 3, 3, "1st SHQ");
    const int s = NewShqNumber();
    Unit[shq].Shq = s;
    Shq[north][s].Unit = shq;
    infantry = world::AddUnit(north, 3, 3, "2nd");
    ship = world::AddUnit(north, 5, 5, "Ship");
    cargo = NewUnitNumber();
    Unit[cargo].Regime = north;
    Unit[cargo].Name = "Carried";
    Unit[ship].Cargo = cargo;
    enemy = world::AddUnit(south, 8, 8, "Enemy");
  }
  int north = 0, south = 0, shq = 0, infantry = 0, ship = 0, cargo = 0, enemy = 0;
};

TEST_F(InvariantsTest, ASoundWorldPasses) {
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(InvariantsTest, AnEmptyMapPasses) {
  world::NewMap(10, 10);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(InvariantsTest, Slot2UsedWhileSlot1IsEmpty) {
  Hex[3][3].Unit[1] = 0;  // slot 2 still holds the infantry
  EXPECT_EQ(CheckInvariants(), "stack not packed: Hex[3,3].Unit[2] = " + std::to_string(infantry) +
                                   " while Hex[3,3].Unit[1] is empty");
}

TEST_F(InvariantsTest, Slot3UsedWhileSlot2IsEmpty) {
  Hex[5][5].Unit[3] = Hex[5][5].Unit[1];
  Hex[5][5].Unit[1] = infantry;
  Hex[3][3].Unit[2] = 0;
  EXPECT_EQ(CheckInvariants(), "stack not packed: Hex[5,5].Unit[3] = " + std::to_string(ship) +
                                   " while Hex[5,5].Unit[2] is empty");
}

TEST_F(InvariantsTest, AUnitInTwoSlots) {
  Hex[3][3].Unit[3] = shq;
  EXPECT_EQ(CheckInvariants(), "unit in two stack slots: unit " + std::to_string(shq) +
                                   " in Hex[3,3].Unit[1] and Hex[3,3].Unit[3]");
}

TEST_F(InvariantsTest, AUnitInTwoHexes) {
  Hex[4][7].Unit[1] = infantry;
  // x is the outer loop: (3,3) is met before (4,7).
  EXPECT_EQ(CheckInvariants(), "unit in two stack slots: unit " + std::to_string(infantry) +
                                   " in Hex[3,3].Unit[2] and Hex[4,7].Unit[1]");
}

TEST_F(InvariantsTest, AFreeUnitInAStack) {
  Unit[infantry].Regime = 0;
  EXPECT_EQ(CheckInvariants(), "free unit in a stack: Hex[3,3].Unit[2] = " + std::to_string(infantry) +
                                   " has Regime 0");
}

TEST_F(InvariantsTest, CargoInAStack) {
  Hex[5][5].Unit[2] = cargo;
  EXPECT_EQ(CheckInvariants(), "cargo in a stack: Hex[5,5].Unit[2] = " + std::to_string(cargo) +
                                   " is the Cargo of unit " + std::to_string(ship));
}

TEST_F(InvariantsTest, AnOldCargoNumberOfAFreeUnitDoesNotCount) {
  // A disbanded carrier may leave its Cargo number behind in a free slot.
  Unit[enemy + 1].Regime = 0;
  Unit[enemy + 1].Cargo = infantry;
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(InvariantsTest, ShqTableDisagreesWithTheUnit) {
  const int s = Unit[shq].Shq;
  Shq[north][s].Unit = infantry;
  EXPECT_EQ(CheckInvariants(), "SHQ table mismatch: Unit[" + std::to_string(shq) + "].Shq = " +
                                   std::to_string(s) + " but Shq[" + std::to_string(north) + "," +
                                   std::to_string(s) + "].Unit = " + std::to_string(infantry));
}

TEST_F(InvariantsTest, ShqNumberOutsideTheTable) {
  Unit[shq].Shq = 51;
  EXPECT_EQ(CheckInvariants(), "SHQ table mismatch: Unit[" + std::to_string(shq) + "] of regime " +
                                   std::to_string(north) + " has Shq 51 outside the table");
}

TEST_F(InvariantsTest, TwoRegimesInOneStack) {
  Unit[infantry].Regime = south;
  EXPECT_EQ(CheckInvariants(), "mixed regimes in a stack: Hex[3,3] unit " + std::to_string(shq) + " of regime " +
                                   std::to_string(north) + " and unit " + std::to_string(infantry) +
                                   " of regime " + std::to_string(south));
}

TEST_F(InvariantsTest, UnitNumbersOutsideTheTable) {
  Hex[6][2].Unit[1] = 2001;
  EXPECT_EQ(CheckInvariants(), "unit number out of range: Hex[6,2].Unit[1] = 2001");
  Hex[6][2].Unit[1] = -4;
  EXPECT_EQ(CheckInvariants(), "unit number out of range: Hex[6,2].Unit[1] = -4");
}

TEST_F(InvariantsTest, OnlyHexesOfTheMapAreScanned) {
  Hex[11][11].Unit[2] = 2001;  // beyond the 10 x 10 map: leftovers of a bigger one
  EXPECT_EQ(CheckInvariants(), "");
}

}  // namespace
}  // namespace mf
