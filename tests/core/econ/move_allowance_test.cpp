// The movement-point allowance of a formation and its carrying percent.
#include "econ_test_util.h"

namespace mf::test {
namespace {

class MoveAllowanceTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(10, 10, {"Red"});
    OwnAll(1);
    //                    class weight carry move need
    rifles = LandType("Rifles", 1, 1, 0, 3, 1);
    trucks = LandType("Trucks", 2, 0, 5, 8, 1);
    guns = LandType("Guns", 3, 3, 0, 2, 1);
    tanks = LandType("Tanks", 4, 0, 0, 5, 1);
    u = AddFormation(1, 4, 4, 0);
    Unit[u].MP = -7;  // so that a write shows
  }
  void Troops(int inf, int mob, int art, int arm) {
    Unit[u].InfType = rifles;
    Unit[u].InfQty = inf;
    Unit[u].MobType = trucks;
    Unit[u].MobQty = mob;
    Unit[u].ArtType = guns;
    Unit[u].ArtQty = art;
    Unit[u].ArmType = tanks;
    Unit[u].ArmQty = arm;
  }
  int rifles = 0, trucks = 0, guns = 0, tanks = 0, u = 0;
};

TEST_F(MoveAllowanceTest, WhenAllCanRideTheVehiclesSetThePace) {
  Troops(10, 2, 0, 1);  // load 10, carry 10: Z = 11 / 11 = 1
  EXPECT_EQ(UnitMaxMoveOf(u, false), 100);
  // Trucks 8, and the slower tanks 5.
  EXPECT_EQ(Unit[u].MP, 5);
  Troops(10, 2, 0, 0);
  Unit[u].ArmType = 0;
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 8);
}

TEST_F(MoveAllowanceTest, TheCarryingPercentIsCappedAtFiveHundred) {
  Troops(0, 2, 0, 0);  // carry 10 for no load: 100 x 11 / 1
  Unit[u].ArmType = 0;
  EXPECT_EQ(UnitMaxMoveOf(u, false), 500);
  EXPECT_EQ(Unit[u].MP, 8);
  Troops(3, 1, 0, 0);  // 100 x 6 / 4 = 150
  Unit[u].ArmType = 0;
  EXPECT_EQ(UnitMaxMoveOf(u, false), 150);
}

TEST_F(MoveAllowanceTest, GunsTooHeavyToTowMarchWithTheInfantry) {
  Troops(10, 2, 4, 0);  // guns 12 > carry 10; load 22
  Unit[u].ArmType = 0;
  // Int(100 x 11 / 23) = 47; guns 2 and rifles 3: 2.
  EXPECT_EQ(UnitMaxMoveOf(u, false), 47);
  EXPECT_EQ(Unit[u].MP, 2);
  Type[guns].Attr[kMovementCap] = 6;
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 3);
}

TEST_F(MoveAllowanceTest, OtherwiseTheInfantrySetsThePace) {
  Troops(10, 2, 2, 0);  // guns 6 within the carry of 10, but load 16 is not
  Unit[u].ArmType = 0;
  EXPECT_EQ(UnitMaxMoveOf(u, false), 64);  // Int(1100 / 17)
  EXPECT_EQ(Unit[u].MP, 3);
}

TEST_F(MoveAllowanceTest, NoTroopsNoMovementAndAnSHQAlwaysOne) {
  Troops(0, 0, 0, 0);
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 0);
  Troops(10, 2, 0, 1);
  Unit[u].Shq = 1;
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 1);
}

TEST_F(MoveAllowanceTest, VehicleTypesCountEvenWithoutVehicles) {
  // Weightless infantry rides in nothing: Z = 1, and the truck type with no
  // trucks still gives its pace.
  Type[rifles].Attr[kWeight] = 0;
  Troops(5, 0, 0, 0);
  Unit[u].ArmType = 0;
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 8);
  // With no vehicle type at all the allowance keeps its start of 999.
  Unit[u].MobType = 0;
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 999);
}

TEST_F(MoveAllowanceTest, ShipsAndAircraftGoAtTheirSlowestClass) {
  const int war = world::AddType("Cruisers", kSeaTheater, 1);
  const int sub = world::AddType("Submarines", kSeaTheater, 4);
  Type[war].Attr[kMovementCap] = 6;
  Type[sub].Attr[kMovementCap] = 4;
  Unit[u].Theater = kSeaTheater;
  Unit[u].InfType = war;
  Unit[u].InfQty = 2;
  Unit[u].ArmType = sub;
  Unit[u].ArmQty = 0;  // the type is what counts
  EXPECT_EQ(UnitMaxMoveOf(u, false), 100);
  EXPECT_EQ(Unit[u].MP, 4);
  Unit[u].InfType = Unit[u].ArmType = 0;
  UnitMaxMoveOf(u, false);
  EXPECT_EQ(Unit[u].MP, 99);
  const int fighters = world::AddType("Fighters", kAirTheater, 1);
  const int bombers = world::AddType("Bombers", kAirTheater, 3);
  Type[fighters].Attr[kMovementCap] = 10;
  Type[bombers].Attr[kMovementCap] = 7;
  Unit[u].Theater = kAirTheater;
  Unit[u].InfType = fighters;
  Unit[u].ArtType = bombers;
  EXPECT_EQ(UnitMaxMoveOf(u, false), 100);
  EXPECT_EQ(Unit[u].MP, 7);
}

TEST_F(MoveAllowanceTest, KeepLeavesTheMPAndByHexIsTheSame) {
  Troops(10, 2, 4, 0);
  Unit[u].ArmType = 0;
  EXPECT_EQ(UnitMaxMoveOf(u, true), 47);
  EXPECT_EQ(Unit[u].MP, -7);
  EXPECT_EQ(UnitMaxMove(4, 4, 1, true), 47);
  EXPECT_EQ(Unit[u].MP, -7);
  EXPECT_EQ(UnitMaxMove(4, 4, 1, false), 47);
  EXPECT_EQ(Unit[u].MP, 2);
}

}  // namespace
}  // namespace mf::test
