// Serving the SHQs of a regime: production, demand, the ratio Q, the
// factors of distance, THQ and disruption, the open shore, the stock and
// its cap, disruption recovery, cargo and ships. All numbers by hand, with
// the default rules unless a test says otherwise.
#include "econ_test_util.h"

namespace mf::test {
namespace {

class SupplyTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(40, 10, {"Red", "Blue"});
    // Row 2 is Red's road-less corridor: a hex at (x, 2) lies at cost x - 1
    // from the SHQ at (1, 2).
    Row(2, 1, 40, kGrass, 1);
    shq = AddShq(1, 1, 2, 1, "First SHQ");
    rifles = LandType("Rifles", 1, 1, 0, 3, 10);
  }

  int shq = 0;
  int rifles = 0;
};

// ---- Production, demand and the ratio Q ------------------------------------

TEST_F(SupplyTest, StockZeroProductionFiftyDemandHundredGivesHalfSupply) {
  AddTown(2, 2, 1, 500, shq);  // 500 / 100 x 100 / 10 = 50
  const int f = AddFormation(1, 3, 2, shq, rifles, 10);
  Unit[f].Readiness = 10;  // P = 100 + 10 - 10 = 100: the full need of 10 x 10
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 50);
  EXPECT_EQ(Unit[f].GenSupply, 100);
  EXPECT_EQ(Unit[shq].SupplyDemand, 100);
  EXPECT_EQ(Unit[f].SupplyPct, 50);
  // Q below 1 empties the stock.
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
  EXPECT_EQ(Unit[shq].Readiness, 25);
  EXPECT_EQ(Unit[shq].Experience, 25);
  EXPECT_EQ(Unit[shq].MP, 0);
}

TEST_F(SupplyTest, TheStockMakesUpForTheTownsAndKeepsWhatIsLeft) {
  AddTown(2, 2, 1, 500, shq);
  const int f = AddFormation(1, 3, 2, shq, rifles, 10);
  Unit[f].Readiness = 10;
  Unit[shq].SupplyPct = 80;  // (50 + 80) / 100 is above 1: Q = 1
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 100);
  EXPECT_EQ(Unit[shq].SupplyPct, 30);  // 80 + 50 - 100
}

TEST_F(SupplyTest, ARatioOfExactlyOneServesInFullAndEmptiesTheStock) {
  AddTown(2, 2, 1, 500, shq);
  const int f = AddFormation(1, 3, 2, shq, rifles, 10);
  Unit[f].Readiness = 10;
  Unit[shq].SupplyPct = 50;
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 100);
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
}

TEST_F(SupplyTest, AThirdOfTheDemandRoundsToThirtyThree) {
  AddTown(2, 2, 1, 500, shq);
  const int f = AddFormation(1, 3, 2, shq, rifles, 15);
  Unit[f].Readiness = 10;  // demand 150, Q = 50 / 150
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 33);
}

TEST_F(SupplyTest, WithNoDemandTheStockGrowsUpToItsCap) {
  AddTown(2, 2, 1, 1000, shq);  // G = 100
  struct Case {
    int before, after;
  };
  // Above 1000 (engine variable 218) and above 2 x G (217) the stock is cut
  // to 2 x G; below either limit it keeps all.
  for (const Case c : {Case{1200, 200}, Case{900, 1000}, Case{150, 250}, Case{0, 100}, Case{950, 200}}) {
    Unit[shq].SupplyPct = c.before;
    ServeSupply();
    EXPECT_EQ(Unit[shq].GenSupply, 100);
    EXPECT_EQ(Unit[shq].SupplyDemand, 0);
    EXPECT_EQ(Unit[shq].SupplyPct, c.after) << "stock before " << c.before;
  }
}

// Found by playing a file whose rule 217 was -1000000: the cap cut the stock
// below nothing, the next ratio came out hugely negative, and so did the
// supply, readiness and worth of every formation of the SHQ. A cap below
// nothing empties the stock instead, and the next turn serves from the towns.
TEST_F(SupplyTest, ANegativeStockCapEmptiesTheStock) {
  AddTown(2, 2, 1, 1000, shq);  // G = 100
  const int f = AddFormation(1, 3, 2, shq, rifles, 10);
  Unit[f].Readiness = 10;  // demand 100
  EngineVar[217].Value = -1000000;
  Unit[shq].SupplyPct = 1200;  // 1200 + 100 - 100 is above 1000: cut to 100 x -1000000
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 100);
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 100);  // Q = (100 + 0) / 100
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
}

TEST_F(SupplyTest, AnSHQWithoutTownsServesFromItsStockDownToNothing) {
  const int f = AddFormation(1, 3, 2, shq, rifles, 10);
  Unit[f].Readiness = 10;
  // 1101 - 100 leaves 1001: above 1000 and above 2 x 0, so cut to 0.
  Unit[shq].SupplyPct = 1101;
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 100);
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
  Unit[shq].SupplyPct = 60;
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 60);
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
}

TEST_F(SupplyTest, TownsDeliverByPopulationDamageBonusAndExtraSupply) {
  AddTown(2, 2, 1, 3000, shq);
  Hex[2][2].Damage = 25;           // 30 x 75 / 10 = 225
  AddTown(3, 2, 1, 1000, shq, -1);  // 100 x 3 = 300
  AddTown(4, 2, 1, 1000, 0);        // delivers to nobody
  AddTown(5, 2, 1, 1000, 999);      // to another SHQ
  AddTown(6, 1, 2, 1000, shq);      // Blue's town, and out of Red's reach
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 525);
  // A computer regime with the production bonus gets double, before the multiplier.
  Regime[1].AI = 1;
  Game.AIProdBonus = 1;
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 450 + 600);
  // The bonus is the computer's only.
  Regime[1].AI = 0;
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 525);
}

TEST_F(SupplyTest, ATownOutOfReachDeliversNothing) {
  AddTown(31, 2, 1, 1000, shq);  // cost 30: within engine variable 230
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 100);
  AddTown(31, 2, 0, 0, 0);
  AddTown(32, 2, 1, 1000, shq);  // cost 31
  Hex[31][2].Owner = 1;
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 0);
}

TEST_F(SupplyTest, DemandFallsWithReadiness) {
  const int t = LandType("Light", 1, 1, 0, 3, 2);
  struct Case {
    int readiness, demand;
  };
  // 2 x 10 = 20, times (110 - readiness) / 100 but at least 10 / 100.
  for (const Case c : {Case{100, 2}, Case{50, 12}, Case{0, 22}, Case{97, 2}, Case{105, 2}, Case{91, 3}}) {
    const int f = AddFormation(1, 3, 2, shq, t, 10);
    Unit[f].Readiness = c.readiness;
    ServeSupply();
    EXPECT_EQ(Unit[f].GenSupply, c.demand) << "readiness " << c.readiness;
    EXPECT_EQ(Unit[shq].SupplyDemand, c.demand);
    Unit[f].Regime = 0;
    Hex[3][2].Unit[1] = 0;
  }
}

TEST_F(SupplyTest, DemandCountsEveryClassWithTroops) {
  const int a = LandType("Trucks", 2, 0, 5, 8, 3);
  const int b = LandType("Guns", 3, 3, 0, 2, 4);
  const int c = LandType("Tanks", 4, 0, 0, 5, 7);
  const int f = AddFormation(1, 3, 2, shq, rifles, 2);  // 20
  Unit[f].MobType = a;
  Unit[f].MobQty = 3;  // 9
  Unit[f].ArtType = b;
  Unit[f].ArtQty = 0;  // a class with no troops asks nothing
  Unit[f].ArmType = c;
  Unit[f].ArmQty = 1;  // 7
  Unit[f].Readiness = 60;  // x 50 / 100
  ServeSupply();
  EXPECT_EQ(Unit[f].GenSupply, 18);
}

// ---- The factors -------------------------------------------------------------

TEST_F(SupplyTest, DistanceFactorByTheCostOfTheWay) {
  struct Case {
    int cost, pct;
  };
  // Thresholds over engine variable 230 = 30: above 15, 18, 21, 24, 27.
  const std::vector<Case> cases{{15, 100}, {16, 90}, {18, 90}, {19, 80}, {21, 80}, {22, 60},
                                {24, 60},  {25, 40}, {27, 40}, {28, 20}, {30, 20}, {31, 0}};
  std::vector<int> units;
  for (const Case& c : cases) units.push_back(AddFormation(1, c.cost + 1, 2, shq));
  ServeSupply();
  for (std::size_t i = 0; i < cases.size(); ++i)
    EXPECT_EQ(Unit[units[i]].SupplyPct, cases[i].pct) << "cost " << cases[i].cost;
}

TEST_F(SupplyTest, AFormationAtExactlyTheRangeIsServedAtOneFifth) {
  const int f = AddFormation(1, 31, 2, shq, rifles, 10);
  Unit[shq].SupplyPct = 500;
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 20);
  EXPECT_GT(Unit[f].GenSupply, 0);
}

class ThqFactorTest : public SupplyTest {
 protected:
  void SetUp() override {
    SupplyTest::SetUp();
    OwnAll(1);
    thq = AddThq(1, 20, 9, shq);  // parked out of the way until placed
  }
  // Moves the THQ to (x, y) and serves a formation under it at (10, 5).
  int ServedWithThqAt(int x, int y) {
    Hex[20][9].Unit[1] = 0;
    Unit[shq].SupplyPct = 500;  // plenty for the formation's need of 1
    if (x == 10 && y == 5) {
      Hex[10][5].Unit[2] = thq;
    } else {
      Hex[x][y].Unit[1] = thq;
    }
    ServeSupply();
    const int pct = Unit[f].SupplyPct;
    Hex[x][y].Unit[x == 10 && y == 5 ? 2 : 1] = 0;
    Hex[20][9].Unit[1] = thq;
    return pct;
  }
  int thq = 0;
  int f = 0;
};

TEST_F(ThqFactorTest, ByTheFormationsDistanceFromItsThq) {
  f = AddFormation(1, 10, 5, thq, rifles, 1);
  // Engine variables 210 to 215 by distance 0..5; beyond, engine variable 234.
  EXPECT_EQ(ServedWithThqAt(10, 5), 100);
  EXPECT_EQ(ServedWithThqAt(11, 5), 100);
  EXPECT_EQ(ServedWithThqAt(12, 5), 90);
  EXPECT_EQ(ServedWithThqAt(13, 5), 80);
  EXPECT_EQ(ServedWithThqAt(14, 5), 70);
  EXPECT_EQ(ServedWithThqAt(15, 5), 60);
  EXPECT_EQ(ServedWithThqAt(16, 5), 40);
  // Within the square of +-5 but six steps away: no way of five, so 234.
  EXPECT_EQ(ServedWithThqAt(15, 10), 40);
}

TEST_F(ThqFactorTest, AThqLoadedOnAShipIsNowhereToBeFound) {
  f = AddFormation(1, 10, 5, thq, rifles, 1);
  Hex[20][9].Unit[1] = 0;
  Unit[shq].SupplyPct = 500;
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 40);
}

TEST_F(ThqFactorTest, ForeignGroundBetweenCountsUnlessAWayAroundIsShort) {
  f = AddFormation(1, 10, 5, thq, rifles, 1);
  for (int y = 1; y <= 10; ++y) Hex[11][y].Owner = 2;
  // The SHQ stands on Red's side of the wall, as does the formation.
  EXPECT_EQ(ServedWithThqAt(12, 5), 40);
  // A gap at (11,4) gives the way (12,5) (12,4) (11,4) (10,5): three steps.
  Hex[11][4].Owner = 1;
  EXPECT_EQ(ServedWithThqAt(12, 5), 80);
}

TEST_F(ThqFactorTest, ShipsAndAircraftUnderAThqHaveNoThqFactor) {
  f = AddFormation(1, 10, 5, thq);
  Unit[f].Theater = kAirTheater;
  EXPECT_EQ(ServedWithThqAt(16, 5), 100);
}

TEST_F(SupplyTest, DisruptionOfTheFormationAndItsBossesLowersSupply) {
  struct Case {
    int own, shqDisruption, cost, pct;
  };
  // Directly under the SHQ: E = (2 x own + SHQ's) / 3, X = (100 - E) / 100.
  const std::vector<Case> cases{
      {30, 0, 2, 80},   // E = 20
      {10, 0, 2, 93},   // E = 6.67: 93.33
      {2, 1, 16, 88},   // F 0.9 and E = 5/3: 88.5, halves to even
      {5, 5, 16, 86},   // F 0.9 and E = 5: 85.5, halves to even
      {0, 90, 2, 70},   // only the SHQ's: E = 30
  };
  for (const Case& c : cases) {
    const int f = AddFormation(1, c.cost + 1, 2, shq);
    Unit[f].Disruption = c.own;
    Unit[shq].Disruption = c.shqDisruption;
    ServeSupply();
    EXPECT_EQ(Unit[f].SupplyPct, c.pct) << "own " << c.own << ", SHQ " << c.shqDisruption;
    Unit[f].Regime = 0;
    Hex[c.cost + 1][2].Unit[1] = 0;
  }
}

TEST_F(SupplyTest, UnderAThqDisruptionCountsThreeTwoOne) {
  const int thq = AddThq(1, 6, 2, shq);
  const int f = AddFormation(1, 5, 2, thq, rifles, 1);
  Unit[f].Disruption = 30;
  Unit[thq].Disruption = 12;
  Unit[shq].Disruption = 6;
  Unit[shq].SupplyPct = 500;
  ServeSupply();
  // E = (90 + 24 + 6) / 6 = 20; the THQ one hex away: T = 1.
  EXPECT_EQ(Unit[f].SupplyPct, 80);
}

TEST_F(SupplyTest, AThqServedBeforeItsFormationHasAlreadyRecovered) {
  // Scanned first, at (4,2), the THQ's disruption has fallen from 12 to 2 by
  // the time its formation at (5,2) is served: E = (90 + 4 + 6) / 6.
  const int thq = AddThq(1, 4, 2, shq);
  const int f = AddFormation(1, 5, 2, thq, rifles, 1);
  Unit[f].Disruption = 30;
  Unit[thq].Disruption = 12;
  Unit[shq].Disruption = 6;
  Unit[shq].SupplyPct = 500;
  ServeSupply();
  EXPECT_EQ(Unit[thq].Disruption, 2);
  EXPECT_EQ(Unit[f].SupplyPct, 83);
}

// ---- Over the sea --------------------------------------------------------------

class SeaSupplyTest : public SupplyTest {
 protected:
  // Row 2: Red's grass at 1 and 2, a port at 3, sea at 4..6, the far coast
  // at 7 and 8, the rest of the corridor nobody's.
  void SeaCrossing(int farCoast, int beyond) {
    Row(2, 9, 40, kGrass, 0);
    Put(3, 2, kUrban, 1);
    Row(2, 4, 6, kSea, 0);
    Put(7, 2, farCoast, 1);
    Put(8, 2, beyond, 1);
  }
};

TEST_F(SeaSupplyTest, ATownBehindAnOwnPortDeliversInFull) {
  SeaCrossing(kUrban, kGrass);
  AddTown(7, 2, 1, 1000, shq);
  const int f = AddFormation(1, 8, 2, shq);
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 100);
  EXPECT_EQ(Unit[f].SupplyPct, 100);
  // Its route is kept under the SHQ's number: three sea hexes, two land
  // hexes, landed at the port (7,2).
  EXPECT_EQ(Hex[8][2].ShqDist[1], 7);
  EXPECT_EQ(Hex[8][2].ShqPrev1[1], 3);
  EXPECT_EQ(Hex[8][2].ShqPrev2[1], 2);
  EXPECT_EQ(Hex[8][2].ShqPrev3[1], 7);
  EXPECT_EQ(Hex[8][2].ShqPrev4[1], 2);
}

TEST_F(SeaSupplyTest, OverOpenShoreATownDeliversNothingAndFormationsGetHalf) {
  SeaCrossing(kGrass, kUrban);
  AddTown(8, 2, 1, 1000, shq);
  const int f = AddFormation(1, 8, 2, shq);
  const int g = AddFormation(1, 7, 2, shq);
  Unit[g].Disruption = 10;  // 93.33 -> 93, then Int(0.5 x 93)
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 0);
  EXPECT_EQ(Unit[f].SupplyPct, 50);
  EXPECT_EQ(Unit[g].SupplyPct, 46);
  EXPECT_EQ(Hex[8][2].ShqPrev3[1], -1);
  EXPECT_EQ(Hex[8][2].ShqPrev4[1], -1);
}

TEST_F(SeaSupplyTest, AnEnemyShipCutsTheLaneUnlessOwnShipsHoldIt) {
  SeaCrossing(kUrban, kGrass);
  AddTown(7, 2, 1, 1000, shq);
  const int f = AddFormation(1, 8, 2, shq);
  Put(5, 1, kSea, 0);
  const int enemy = world::AddUnit(2, 5, 1, "Raider");
  Unit[enemy].Theater = kSeaTheater;
  Hex[5][1].Owner = 0;
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 0);
  EXPECT_EQ(Unit[f].SupplyPct, 0);
  for (int x : {5, 6}) {
    const int ship = world::AddUnit(1, x, 2, "Escort");
    Unit[ship].Theater = kSeaTheater;
    Hex[x][2].Owner = 0;
  }
  ServeSupply();
  EXPECT_EQ(Unit[shq].GenSupply, 100);
  EXPECT_EQ(Unit[f].SupplyPct, 100);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(SeaSupplyTest, ShipsUnderAThqDrawSupplyAtAnyRange) {
  SeaCrossing(kUrban, kGrass);
  Put(40, 9, kSea, 0);
  Put(40, 10, kSea, 0);
  AddTown(2, 2, 1, 500, shq);  // G = 50
  const int thq = AddThq(1, 2, 2, shq);
  const int demand = AddFormation(1, 3, 2, shq, rifles, 10);
  Unit[demand].Readiness = 10;  // D = 100: Q = 0.5
  const int far = AddFormation(1, 40, 9, thq);
  Unit[far].Theater = kSeaTheater;
  const int direct = AddFormation(1, 40, 10, shq);
  Unit[direct].Theater = kSeaTheater;
  // A ship under the THQ close by loses its distance factor too.
  const int near = AddFormation(1, 5, 2, thq);
  Unit[near].Theater = kSeaTheater;
  Unit[near].Disruption = 30;
  Hex[40][9].Owner = Hex[40][10].Owner = 0;
  ServeSupply();
  EXPECT_EQ(Unit[far].SupplyPct, 50);
  EXPECT_EQ(Unit[near].SupplyPct, 50);
  // Directly under the SHQ and out of reach: nothing.
  EXPECT_EQ(Unit[direct].SupplyPct, 0);
}

// ---- Disruption recovery ---------------------------------------------------------

TEST_F(SupplyTest, AServedFormationShakesOffDisruptionUnderItsOfficer) {
  Game.OfficerCount = 2;
  Officer[1].Land = 5;
  Officer[1].Sea = 0;
  Officer[1].Fame = 16;
  Officer[2].Land = 0;
  Officer[2].Sea = 10;
  Officer[2].Fame = 17;  // Int(sqrt(17)) = 4
  struct Case {
    int officer, theater, before, after;
  };
  const std::vector<Case> cases{
      {1, kLandTheater, 40, 16},  // Int(15 / 20 x 40) = 30, - 4, - 10
      {2, kSeaTheater, 40, 6},    // Int(10 / 20 x 40) = 20, - 4, - 10
      {0, kLandTheater, 100, 75}, // 100 - 10 = 90, held to 75
      {0, kLandTheater, 5, 0},    // 5 - 10, held to 0
      {1, kLandTheater, 0, 0},    // nothing to recover
      {1, kLandTheater, 3, 0},    // Int(2.25) = 2 - 4 - 10
  };
  for (const Case& c : cases) {
    const int f = AddFormation(1, 3, 2, shq);
    Unit[f].Officer = c.officer;
    Unit[f].Theater = c.theater;
    Unit[f].Disruption = c.before;
    ServeSupply();
    EXPECT_EQ(Unit[f].Disruption, c.after) << "officer " << c.officer << ", disruption " << c.before;
    Unit[f].Regime = 0;
    Hex[3][2].Unit[1] = 0;
  }
}

TEST_F(SupplyTest, AFormationNoSHQReachesKeepsItsDisruption) {
  const int f = AddFormation(1, 35, 2, shq);  // cost 34
  Unit[f].Disruption = 90;
  ServeSupply();
  EXPECT_EQ(Unit[f].Disruption, 90);
  EXPECT_EQ(Unit[f].SupplyPct, 0);
}

TEST_F(SupplyTest, TheSHQRecoversUnderTheOfficerOfTheFormationServedLastAndRounds) {
  Game.OfficerCount = 2;
  Officer[1].Land = 12;
  Officer[1].Fame = 100;
  Officer[2].Land = 3;
  Officer[2].Sea = 10;
  Officer[2].Fame = 9;
  const int a = AddFormation(1, 3, 2, shq);
  Unit[a].Officer = 1;
  const int b = AddFormation(1, 4, 2, shq);  // later in the scan
  Unit[b].Officer = 2;
  Unit[b].Theater = kSeaTheater;
  Unit[shq].Disruption = 30;
  ServeSupply();
  // The SHQ's own theater (land) picks officer 2's land rating 3:
  // 17 / 20 x 30 = 25.5, rounded to 26 (a formation would cut to 25); - 3 - 10.
  EXPECT_EQ(Unit[shq].Disruption, 13);
}

TEST_F(SupplyTest, AnSHQThatServedNobodyRecoversByTenAlone) {
  Unit[shq].Disruption = 95;
  ServeSupply();
  EXPECT_EQ(Unit[shq].Disruption, 75);
  Unit[shq].Disruption = 30;
  ServeSupply();
  EXPECT_EQ(Unit[shq].Disruption, 20);
}

// ---- Cargo, strays and the bookkeeping ---------------------------------------------

TEST_F(SupplyTest, ACarriedFormationGetsItsCarriersSupplyAndAsksNothing) {
  const int carrier = AddFormation(1, 17, 2, shq);  // cost 16: 90
  const int cargo = NewUnitNumber();
  Unit[cargo].Regime = 1;
  Unit[cargo].Name = "Passengers";
  Unit[cargo].InfType = rifles;
  Unit[cargo].InfQty = 50;
  Unit[cargo].Boss = shq;
  Unit[carrier].Cargo = cargo;
  ServeSupply();
  EXPECT_EQ(Unit[carrier].SupplyPct, 90);
  EXPECT_EQ(Unit[cargo].SupplyPct, 90);
  EXPECT_EQ(Unit[cargo].GenSupply, 0);
  EXPECT_EQ(Unit[shq].SupplyDemand, 0);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(SupplyTest, AFormationWithoutBossIsNeverServed) {
  const int f = AddFormation(1, 3, 2, 0);
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 0);
}

TEST_F(SupplyTest, AnSHQOnForeignGroundServesNobodyAndKeepsItsStock) {
  const int f = AddFormation(1, 3, 2, shq);
  Hex[1][2].Owner = 2;
  Unit[shq].SupplyPct = 400;
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 0);
  EXPECT_EQ(Unit[shq].SupplyPct, 400);
  EXPECT_EQ(Hex[3][2].ShqDist[1], 999);
}

TEST_F(SupplyTest, EachSHQKeepsItsOwnFloodUnderItsNumber) {
  // A second SHQ, number 3, at (20,2); numbers 2 and 4..50 are not served.
  const int second = AddShq(1, 20, 2, 3, "Second SHQ");
  const int near1 = AddFormation(1, 5, 2, shq);
  const int near3 = AddFormation(1, 25, 2, second);
  Hex[7][7].ShqDist[2] = 4;
  Hex[7][7].ShqDist[50] = 4;
  ServeSupply();
  EXPECT_EQ(Hex[5][2].ShqDist[1], 4);
  EXPECT_EQ(Hex[5][2].ShqDist[3], 15);
  EXPECT_EQ(Hex[25][2].ShqDist[3], 5);
  EXPECT_EQ(Hex[25][2].ShqDist[1], 24);
  EXPECT_EQ(Hex[5][2].ShqPrev2[1], 4);
  EXPECT_EQ(Hex[5][1].ShqDist[1], 999);
  EXPECT_EQ(Hex[7][7].ShqDist[2], 999);
  EXPECT_EQ(Hex[7][7].ShqDist[50], 999);
  // Each serves its own: (5,2) is near the first, (25,2) near the second.
  EXPECT_EQ(Unit[near1].SupplyPct, 100);
  EXPECT_EQ(Unit[near3].SupplyPct, 100);
  // The scratch planes are clear afterwards, and the last order origin is
  // the last SHQ served.
  EXPECT_EQ(Hex[5][2].Mark, 999);
  EXPECT_EQ(UI.OrdX, 20);
  EXPECT_EQ(UI.OrdY, 2);
  EXPECT_EQ(UI.OrdSlot, 1);
  EXPECT_EQ(Unit[second].MP, 0);
}

TEST_F(SupplyTest, ARegimeWithoutSHQLeavesItsFormationsAtZero) {
  Game.CurRegime = 2;
  Row(5, 1, 10, kGrass, 2);
  const int f = AddFormation(2, 3, 5, 0, rifles, 5);
  ServeSupply();
  EXPECT_EQ(Unit[f].SupplyPct, 0);
  // Red's SHQ is left alone in Blue's turn.
  EXPECT_EQ(Unit[shq].GenSupply, 0);
  EXPECT_EQ(Hex[2][2].ShqDist[1], 999);
}

}  // namespace
}  // namespace mf::test
