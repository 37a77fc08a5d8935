// ApplyLoss and CheckCargo, with the numbers worked out by hand.
#include "combat_test_util.h"
#include "engine/news.h"

namespace mf::test {
namespace {

class LossTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    // Rifles cost 1000 a man: ten of them are worth 10000, whose root is 100.
    Type[rifle].Cost = 1000;
    shooter = Put(red, 5, 5, "Red Rifles");
    Give(shooter, 1, rifle, 10);
    victim = Put(blue, 6, 5, "Blue Rifles");
    Give(victim, 1, rifle, 10);
  }
  int shooter = 0, victim = 0;
};

// Equal sides, 5 men lost: V = 1000 x 5 x 150 / 100 = 7500, o / a = 1.
//   XV = floor(floor(7500 x 40) / 350)  = floor(857.1)  = 857  -> 8 points
//   XO = floor(floor(7500 x 120) / 350) = floor(2571.4) = 2571 -> 25 points
//   RV = floor(floor(7500 x 250) / 350) = floor(5357.1) = 5357 -> 53 points
//   RO = 7500 x 50 x 1.33 (Red is to move) = 498750; / 350 = 1425 -> 14 points
// Rows 405..408 are all 100: no change. Every value is 100 or more, so no
// draw is needed for them.
TEST_F(LossTest, EqualSidesInALandFight) {
  Unit[victim].Experience = 74;
  Unit[shooter].Experience = 100;
  ApplyLoss(victim, shooter, kLossLandFight, 1, 5);
  EXPECT_EQ(Unit[victim].InfQty, 5);
  EXPECT_EQ(Unit[victim].Experience, 82);  // 74 + 8: below 75 the whole gain
  EXPECT_EQ(Unit[victim].Readiness, 47);   // 100 - 53
  EXPECT_EQ(Unit[shooter].Experience, 106);  // 100 + floor(25 x 25 / 100)
  EXPECT_EQ(Unit[shooter].Readiness, 86);    // 100 - 14
  // The defender's own report counts the loss; no kill is credited to Red.
  EXPECT_EQ(DefenderLost[1], 5);
  EXPECT_EQ(AttackerLost[1], 0);
  EXPECT_EQ(Regime[blue].Losses[1], 5);
  EXPECT_EQ(Regime[red].Kills[1], 0);
}

TEST_F(LossTest, ExperienceBands) {
  // XV is 8 points as above. From 75 half of it (row 451 = 50), from 100 a
  // quarter (row 452 = 25), from 150 nothing.
  const struct {
    Long before;
    Long after;
  } cases[] = {{74, 82}, {75, 79}, {99, 103}, {100, 102}, {149, 150}, {150, 150}};
  for (const auto& c : cases) {
    Unit[victim].InfQty = 10;
    Unit[victim].Experience = c.before;
    Unit[victim].Readiness = 100;
    ApplyLoss(victim, shooter, kLossLandFight, 1, 5);
    EXPECT_EQ(Unit[victim].Experience, c.after) << "experience " << c.before;
  }
}

TEST_F(LossTest, ReadinessBands) {
  // RV is 53 points. Below 30: floor(r - 0.40 x 53); below 60: floor(r - 0.70 x 53);
  // else r - 53; never below 10.
  const struct {
    Long before;
    Long after;
  } cases[] = {{100, 47}, {60, 10}, {59, 21}, {30, 10}, {29, 10}, {5, 10}};
  for (const auto& c : cases) {
    Unit[victim].InfQty = 10;
    Unit[victim].Readiness = c.before;
    ApplyLoss(victim, shooter, kLossLandFight, 1, 5);
    EXPECT_EQ(Unit[victim].Readiness, c.after) << "readiness " << c.before;
  }
  // 59 - 37.1 = 21.9 -> 21; the opponent at 59 loses floor(0.7 x 14) = floor(9.8).
  Unit[victim].InfQty = 10;
  Unit[shooter].Readiness = 59;
  ApplyLoss(victim, shooter, kLossLandFight, 1, 5);
  EXPECT_EQ(Unit[shooter].Readiness, 49);  // floor(59 - 9.8)
}

// The side to move loses: RV is raised by a third, RO is not.
//   RV = 7500 x 250 x 1.33 = 2493750; / 350 = 7125 -> 71 points
//   RO = 7500 x 50 = 375000; / 350 = 1071.4 -> 1071 -> 10 points
TEST_F(LossTest, TheSideToMoveLoses) {
  ApplyLoss(shooter, victim, kLossLandFight, 1, 5);
  EXPECT_EQ(Unit[shooter].InfQty, 5);
  EXPECT_EQ(Unit[shooter].Readiness, 29);
  EXPECT_EQ(Unit[victim].Readiness, 90);
  EXPECT_EQ(AttackerLost[1], 5);
  EXPECT_EQ(DefenderLost[1], 0);
  EXPECT_EQ(Regime[blue].Kills[1], 5);
  EXPECT_EQ(Regime[red].Losses[1], 0);
}

// Kind 40 against land troops, by guns worth half of the battery: Red has
// 10 rifles and 5 long guns at 2000, worth 20000, o = 141.42.
//   XV = floor(floor(7500 x 40 x 1.41421) / 350) = 1212, x 20% = 242.4  -> 2
//   XO = floor(floor(7500 x 120 x 0.70711) / 350) = 1818, x 100%       -> 18
//   RV = floor(floor(1875000 x 1.41421) / 350) = 7576, x 150% = 11364  -> 113
//   RO = floor(floor(498750 x 0.70711) / 350) = 1007, x 80% = 805.6 -> 806;
//        + 100 x 100 x (10000 / 20000) x 10 / 100 = 500 -> 1306      -> 13
TEST_F(LossTest, ArtilleryWearsOutItsGuns) {
  Type[longGun].Cost = 2000;
  Give(shooter, 3, longGun, 5);
  ApplyLoss(victim, shooter, kLossArtillery, 1, 5);
  EXPECT_EQ(Unit[victim].InfQty, 5);
  EXPECT_EQ(Unit[victim].Experience, 100);  // 100 + floor(2 x 0.25)
  EXPECT_EQ(Unit[victim].Readiness, 10);    // 100 - 113, held at 10
  EXPECT_EQ(Unit[shooter].Experience, 104);  // 100 + floor(18 x 0.25)
  EXPECT_EQ(Unit[shooter].Readiness, 87);    // 100 - 13
}

TEST_F(LossTest, AmountIsCutToWhatIsThere) {
  ApplyLoss(victim, shooter, kLossLandFight, 1, 25);
  EXPECT_EQ(Unit[victim].InfQty, 0);
  EXPECT_EQ(DefenderLost[1], 10);
  ApplyLoss(victim, shooter, kLossLandFight, 1, 3);
  EXPECT_EQ(Unit[victim].InfQty, 0);
  EXPECT_EQ(DefenderLost[1], 10);
}

// Small values are a chance of one point. Cost 100: V = 150, a = o = 31.6.
//   XV = floor(6000 / 350) = 17, XO = floor(18000 / 350) = 51,
//   RV = floor(37500 / 350) = 107 -> 1 point without a draw,
//   RO = CInt(7500 x 1.33) = 9975, floor(9975 / 350) = 28.
// Draws after seed 12345: 0.9296, 0.8902, 0.3164, then the fame draw 0.1307.
TEST_F(LossTest, SmallValuesAreAChance) {
  Type[rifle].Cost = 100;
  Unit[victim].Experience = 50;
  Unit[shooter].Experience = 50;
  SeedRnd(12345);
  ApplyLoss(victim, shooter, kLossLandFight, 1, 1);
  EXPECT_EQ(Unit[victim].Experience, 50);  // 92.96 is not below 17
  EXPECT_EQ(Unit[shooter].Experience, 50);  // 89.02 is not below 51
  EXPECT_EQ(Unit[victim].Readiness, 99);    // RV 107 -> 1
  EXPECT_EQ(Unit[shooter].Readiness, 100);  // 31.64 is not below 28
  EXPECT_FLOAT_EQ(Rnd(), 0.1839188f);       // four draws were taken, and the fame draw

  // With the draws 0.1307, 0.1839, 0.0398 every chance comes off.
  Unit[victim].InfQty = 10;
  SeedRnd(12345);
  for (int i = 0; i < 3; ++i) Rnd();
  ApplyLoss(victim, shooter, kLossLandFight, 1, 1);
  EXPECT_EQ(Unit[victim].Experience, 51);
  EXPECT_EQ(Unit[shooter].Experience, 51);
  EXPECT_EQ(Unit[victim].Readiness, 98);
  EXPECT_EQ(Unit[shooter].Readiness, 99);
}

TEST_F(LossTest, NoOpponentMovesNeitherExperienceNorReadiness) {
  ApplyLoss(victim, 0, kLossArtillery, 1, 5);
  EXPECT_EQ(Unit[victim].InfQty, 5);
  EXPECT_EQ(Unit[victim].Experience, 100);
  EXPECT_EQ(Unit[victim].Readiness, 100);
  EXPECT_EQ(DefenderLost[1], 5);
  EXPECT_EQ(Regime[blue].Losses[1], 5);
}

// Anti-aircraft fire of Blue at Red's aircraft: the kill goes to Blue, no
// officer is made famous, and the victim's readiness does not move since the
// fire has no worth to weigh (o = 0).
TEST_F(LossTest, AntiAircraftFireCreditsTheRegime) {
  Type[bomber].Cost = 5000;
  const int wing = Put(red, 4, 4, "Red Wing");
  Give(wing, 3, bomber, 4);
  ApplyLoss(wing, kRegimeFire + blue, kLossArtillery, 3, 1);
  EXPECT_EQ(Unit[wing].ArtQty, 3);
  EXPECT_EQ(AttackerLost[11], 1);  // bombers: 3 + 4 x 2
  EXPECT_EQ(Regime[blue].Kills[11], 1);
  EXPECT_EQ(Unit[wing].Readiness, 100);
}

// Fame: V = 7500 is above row 235 (4000). With an officer on the unit only
// the pool is 3; with its THQ's and SHQ's officers 6. The draws after seed
// 12345 are 0.9296 (the fame test) and 0.8902: floor(0.8902 x pool + 1).
TEST_F(LossTest, FameGoesUpTheChain) {
  const int thq = Put(red, 1, 1, "Red THQ");
  Unit[thq].Thq = 1;
  const int shq = Put(red, 1, 2, "Red SHQ");
  Unit[shq].Shq = 1;
  Unit[shooter].Boss = thq;
  Unit[thq].Boss = shq;
  Unit[shooter].Officer = 1;
  Officer[1].Regime = red;

  SeedRnd(12345);
  ApplyLoss(victim, shooter, kLossLandFight, 1, 1);  // V = 1500 < 4000, 0.9296 >= 0.375: no fame
  EXPECT_EQ(Officer[1].Fame, 0);

  Unit[victim].InfQty = 10;
  SeedRnd(12345);
  ApplyLoss(victim, shooter, kLossLandFight, 1, 5);  // pool 3: floor(2.67 + 1) = 3, own officer
  EXPECT_EQ(Officer[1].Fame, 1);

  Unit[thq].Officer = 2;
  Unit[shq].Officer = 3;
  Officer[2].Regime = Officer[3].Regime = red;
  Unit[victim].InfQty = 10;
  SeedRnd(12345);
  ApplyLoss(victim, shooter, kLossLandFight, 1, 5);  // pool 6: floor(5.34 + 1) = 6, the top officer
  EXPECT_EQ(Officer[1].Fame, 1);
  EXPECT_EQ(Officer[2].Fame, 0);
  EXPECT_EQ(Officer[3].Fame, 1);

  // The SHQ level counts only above a THQ level that counts.
  Unit[thq].Officer = 0;
  Unit[victim].InfQty = 10;
  SeedRnd(12345);
  ApplyLoss(victim, shooter, kLossLandFight, 1, 5);  // pool 3 again
  EXPECT_EQ(Officer[1].Fame, 2);
  EXPECT_EQ(Officer[3].Fame, 1);

  // A loss below the price wins fame by chance: V = 1500, 0.1307 < 0.375;
  // then floor(0.1839 x 3 + 1) = 1.
  Unit[victim].InfQty = 10;
  SeedRnd(12345);
  for (int i = 0; i < 3; ++i) Rnd();
  ApplyLoss(victim, shooter, kLossLandFight, 1, 1);
  EXPECT_EQ(Officer[1].Fame, 3);
}

// Victim theater and kind pick the modifier rows: a sea unit shelled from
// afar (rows 425..428) against one hit in a sea battle (421..424).
TEST_F(LossTest, ModifierRowsBySeaKind) {
  Type[destroyer].Cost = 1000;
  const int ship = Put(blue, 6, 6, "Blue Ships");
  Give(ship, 1, destroyer, 10);
  // Sea battle: rows 421 (RV 100%), 423 (XV 100%): as the land fight above.
  Unit[ship].Experience = 50;
  ApplyLoss(ship, shooter, kLossSeaBattle, 1, 5);
  EXPECT_EQ(Unit[ship].Experience, 58);  // + 8
  EXPECT_EQ(Unit[ship].Readiness, 47);   // - 53
  // Artillery: RV x 150% = 5357 x 1.5 = 8035.5 -> 80; XV x 20% = 171.4 -> 1.
  // Ten ships again, worth 10000 as before.
  Unit[ship].InfQty = 10;
  Unit[ship].Experience = 50;
  Unit[ship].Readiness = 100;
  ApplyLoss(ship, shooter, kLossArtillery, 1, 5);
  EXPECT_EQ(Unit[ship].Experience, 51);
  EXPECT_EQ(Unit[ship].Readiness, 20);
  // Kind 31 has no row for a land victim: the land fight numbers stand unmodified.
  Unit[victim].Experience = 50;
  ApplyLoss(victim, shooter, kLossSeaBattle, 1, 5);
  EXPECT_EQ(Unit[victim].Experience, 58);
}

// ---- CheckCargo -------------------------------------------------------------

class CargoTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    Hex[6][5].Land = kSea;
    ship = Put(blue, 6, 5, "Blue Convoy");
    Give(ship, 2, cargoShip, 2);  // carries 2 x 100 = 200
    marines = world::AddUnit(blue, 1, 1, "Blue Marines");
    Hex[1][1].Unit[1] = 0;  // cargo stands in no stack
    Give(marines, 1, rifle, 10);  // 10 x 10 = 100
    Give(marines, 2, truck, 5);   // 5 x 6 = 30
    Give(marines, 4, tank, 2);    // 2 x 40 = 80
    Unit[ship].Cargo = marines;
  }
  int ship = 0, marines = 0;
};

TEST_F(CargoTest, NothingIsLostWhileTheShipsCanCarry) {
  Unit[ship].MobQty = 3;
  CheckCargo(ship);
  EXPECT_EQ(Unit[marines].InfQty, 10);
  EXPECT_EQ(Unit[marines].MobQty, 5);
  EXPECT_EQ(Unit[marines].ArmQty, 2);
  EXPECT_EQ(DefenderLost[1], 0);
}

// 210 on 200: one pass takes floor(10 x 0.1) = 1 rifle, and at least one
// truck and one tank: 90 + 24 + 40 = 154 fits.
TEST_F(CargoTest, OverweightCargoGoesOverboardATenthAtATime) {
  CheckCargo(ship);
  EXPECT_EQ(Unit[marines].InfQty, 9);
  EXPECT_EQ(Unit[marines].MobQty, 4);
  EXPECT_EQ(Unit[marines].ArmQty, 1);
  EXPECT_EQ(DefenderLost[1], 1);
  EXPECT_EQ(DefenderLost[2], 1);
  EXPECT_EQ(DefenderLost[4], 1);
  EXPECT_EQ(Regime[blue].Losses[1], 1);
  EXPECT_EQ(Unit[ship].Cargo, marines);
  EXPECT_EQ(Unit[marines].Regime, blue);
}

TEST_F(CargoTest, CargoWithoutShipsIsLost) {
  Unit[ship].MobQty = 0;
  CheckCargo(ship);
  EXPECT_EQ(Unit[marines].InfQty, 0);
  EXPECT_EQ(Unit[marines].InfType, 0);  // an emptied class loses its type
  EXPECT_EQ(Unit[marines].Regime, 0);
  EXPECT_EQ(Unit[ship].Cargo, 0);
  EXPECT_EQ(DefenderLost[1], 10);
  EXPECT_EQ(DefenderLost[2], 5);
  EXPECT_EQ(DefenderLost[4], 2);
  EXPECT_EQ(News[blue][1].Type, kNewsLost);
  EXPECT_EQ(News[blue][1].Text, "Blue Marines");
}

// An air wing rides on the carriers' class, and counts as aircraft.
TEST_F(CargoTest, AirCargoOnCarriers) {
  const int wing = world::AddUnit(red, 1, 2, "Red Wing");
  Hex[1][2].Unit[1] = 0;
  Give(wing, 1, fighter, 12);  // 12 x 5 = 60
  const int flattop = Put(red, 6, 6, "Red Carrier");
  Give(flattop, 3, carrierShip, 1);  // carries 50
  Unit[flattop].Cargo = wing;
  CheckCargo(flattop);
  EXPECT_EQ(Unit[wing].InfQty, 10);  // 12 - 1 = 11 weighs 55, 11 - 1 = 10 weighs 50
  EXPECT_EQ(AttackerLost[9], 2);
  EXPECT_EQ(DefenderLost[9], 0);
}

}  // namespace
}  // namespace mf::test
