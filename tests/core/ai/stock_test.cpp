// The stock that each stage hands out of an SHQ, on maps worked by hand.
// Types carry no fighting figures here, so every unit is worth 0 and the
// scores are the stages' own terms.
#include <gtest/gtest.h>

#include "ai/stock.h"
#include "logistics_test_util.h"

namespace mf::test {
namespace {

class Stock : public LogisticsTest {
 protected:
  // A 12 x 8 map of ours; area 1 holds everything, a front from it against
  // area 2. The SHQ stands at (2, 2).
  void SetUp() override {
    LogisticsTest::SetUp();
    MakeMap(12, 8);
    rifles = MakeType("Rifles", kLandTheater, 1);
    trucks = MakeType("Trucks", kLandTheater, 2);
    Type[trucks].Attr[kCarryCap] = 10;
    guns = MakeType("Guns", kLandTheater, 3);
    Type[guns].Attr[kArtilleryRange] = 1;
    tanks = MakeType("Tanks", kLandTheater, 4);
    Area(1, 1, 12, 1, 8);
    AI.AreaCount = 2;
    shq = world::AddShq(us, 2, 2, 1, "SHQ Home");
    pool = &Shq[us][1];
    pool->Carry = 100;
  }
  // Land formations that serve no front, so that the regime counts more units.
  void Fillers(int n) {
    for (int i = 0; i < n; ++i) world::AddUnit(us, 12, 1 + i % 8, "Filler");
  }
  int rifles = 0, trucks = 0, guns = 0, tanks = 0, shq = 0;
  ShqRec* pool = nullptr;
};

class StockInf : public Stock {
 protected:
  // Front 1: weight 500, share 100. Scores: the THQ without infantry 10 + 400
  // + 2500 = 2910, the gun battery without infantry 10 + 400 + 50 = 460, the
  // rifle corps 10 + 400 = 410. An unsupplied corps with infantry and one of
  // no front are left out.
  void SetUp() override {
    Stock::SetUp();
    pool->StockType[1] = rifles;
    pool->StockQty[1] = 50;
    Front(1, 2, 500, 100, 2);
    corps = world::AddUnit(us, 4, 4, "1st Corps", rifles, 10);
    thq = world::AddThq(us, 3, 3, shq, "THQ One");
    battery = world::AddUnit(us, 5, 5, "2nd Corps");
    Unit[battery].ArtType = guns;
    Unit[battery].ArtQty = 5;
    Unit[battery].SupplyPct = 0;
    hungry = world::AddUnit(us, 6, 6, "3rd Corps", rifles, 10);
    Unit[hungry].SupplyPct = 0;
    idle = world::AddUnit(us, 7, 7, "4th Corps", rifles, 10);
    for (int u : {corps, thq, battery, hungry}) Unit[u].Front = 1;
  }
  int corps = 0, thq = 0, battery = 0, hungry = 0, idle = 0;
};

TEST_F(StockInf, WithSixUnitsTheCursorNeverLeavesTheHead) {
  // A quarter of 6 units is 1: all five tries go to the THQ, which may take
  // the whole stock: 15 of 50, 12 of 35, 9 of 23, 7 of 14, 6 of 7.
  AIStockInf();
  EXPECT_EQ(Unit[thq].InfType, rifles);
  EXPECT_EQ(Unit[thq].InfQty, 49);
  EXPECT_EQ(pool->StockQty[1], 1);
  EXPECT_EQ(Unit[corps].InfQty, 10);
  EXPECT_EQ(Unit[hungry].InfQty, 10);
  EXPECT_EQ(Unit[idle].InfQty, 10);
}

TEST_F(StockInf, WithTwelveUnitsTheCursorWrapsAfterThree) {
  Fillers(6);
  // THQ 15 (35 left); battery min(12, 35 - 20) = 12 (23); corps min(9, 3) = 3
  // (20); THQ again 9 (11); battery min(7, -9): nothing.
  AIStockInf();
  EXPECT_EQ(Unit[thq].InfQty, 24);
  EXPECT_EQ(Unit[battery].InfType, rifles);
  EXPECT_EQ(Unit[battery].InfQty, 12);
  EXPECT_EQ(Unit[corps].InfQty, 13);
  EXPECT_EQ(pool->StockQty[1], 11);
}

TEST_F(StockInf, WithoutTransportOnlyUnitsInTheShqsHexAreServed) {
  pool->Carry = 0;
  AIStockInf();
  EXPECT_EQ(Unit[thq].InfQty, 0);
  EXPECT_EQ(pool->StockQty[1], 50);

  // The same THQ in the SHQ's own hex.
  Hex[3][3].Unit[1] = 0;
  Hex[2][2].Unit[2] = thq;
  AIStockInf();
  EXPECT_EQ(Unit[thq].InfQty, 49);
}

TEST_F(StockInf, AClassIsToppedUpOnlyWithTheTypeItHolds) {
  const int militia = MakeType("Militia", kLandTheater, 1);
  pool->StockType[1] = militia;
  Fillers(6);
  AIStockInf();
  // The corps holds rifles and the stock militia: it gets none.
  EXPECT_EQ(Unit[corps].InfType, rifles);
  EXPECT_EQ(Unit[corps].InfQty, 10);
  EXPECT_EQ(Unit[thq].InfType, militia);
}

TEST_F(Stock, TheWholeArtilleryStockGoesToTheFormationThatNeedsItMost) {
  // Column 10 is Theirland's: only units beside it see a foreign neighbour.
  for (int y = 1; y <= 8; ++y) Hex[10][y].Owner = them;
  pool->StockType[3] = guns;
  pool->StockQty[3] = 12;
  const int attack = Front(1, 2, 500, 100, 4);
  const int over = Front(1, 3, 100, 300, 3);
  const int g1 = world::AddUnit(us, 9, 4, "1st Corps");  // 100 + 6 = 106
  Unit[g1].Front = attack;
  const int g2 = world::AddUnit(us, 9, 6, "2nd Corps");  // 100 + 8 - 6 = 102
  Unit[g2].Front = over;
  const int g3 = world::AddThq(us, 5, 5, shq, "THQ One");  // 100 - 3 + 6 - 50 = 53
  Unit[g3].Front = attack;
  const int g4 = world::AddUnit(us, 9, 2, "4th Corps");  // 100 + 8 - 6 + 1 = 103
  Unit[g4].Front = over;
  Unit[g4].ArtType = guns;
  Unit[g4].ArtQty = 2;

  AIStockArt();
  EXPECT_EQ(Unit[g1].ArtType, guns);
  EXPECT_EQ(Unit[g1].ArtQty, 12);
  EXPECT_EQ(Unit[g4].ArtQty, 2);
  EXPECT_EQ(pool->StockQty[3], 0);
}

TEST_F(Stock, ArtilleryNeedsTransportLeft) {
  pool->StockType[3] = guns;
  pool->StockQty[3] = 12;
  pool->Carry = 0;
  const int g1 = world::AddUnit(us, 9, 4, "1st Corps");
  Unit[g1].Front = Front(1, 2, 500, 100, 4);
  AIStockArt();
  EXPECT_EQ(Unit[g1].ArtQty, 0);
  EXPECT_EQ(pool->StockQty[3], 12);
}

class StockMob : public Stock {
 protected:
  // 20 trucks (carry 10) and 30 rifles (weight 1) in stock: the SHQ keeps
  // Int(30 / 10) + 1 = 4 trucks for its own riflemen. The walkers of 25
  // (carrying percent 100 / 26 = 3, score 597) need Int(25 / 10 + 1) = 3;
  // the corps of 50 with 2 trucks (100 x 21 / 51 = 41, score 559) needs 6 - 2.
  void SetUp() override {
    Stock::SetUp();
    Type[rifles].Attr[kWeight] = 1;
    pool->StockType[1] = trucks;
    pool->StockQty[1] = 20;
    pool->StockType[2] = rifles;
    pool->StockQty[2] = 30;
    const int f = Front(1, 2, 500, 100, 3);
    walkers = world::AddUnit(us, 4, 4, "1st Corps", rifles, 25);
    riders = world::AddUnit(us, 5, 5, "2nd Corps", rifles, 50);
    Unit[riders].MobType = trucks;
    Unit[riders].MobQty = 2;
    cut = world::AddUnit(us, 6, 6, "3rd Corps", rifles, 25);
    Unit[cut].SupplyPct = 0;
    for (int u : {walkers, riders, cut}) Unit[u].Front = f;
  }
  int walkers = 0, riders = 0, cut = 0;
};

TEST_F(StockMob, TrucksGoToTheSlowestFirstAsManyAsTheyNeed) {
  AIStockMob();
  EXPECT_EQ(Unit[walkers].MobType, trucks);
  EXPECT_EQ(Unit[walkers].MobQty, 3);
  EXPECT_EQ(Unit[riders].MobQty, 6);
  EXPECT_EQ(Unit[cut].MobQty, 0);
  EXPECT_EQ(pool->StockQty[1], 13);
}

TEST_F(StockMob, TheShqKeepsTheTrucksForItsOwnTroops) {
  pool->StockQty[1] = 6;
  AIStockMob();
  EXPECT_EQ(Unit[walkers].MobQty, 2);  // 6 - 4 spare
  EXPECT_EQ(Unit[riders].MobQty, 2);
  EXPECT_EQ(pool->StockQty[1], 4);
}

TEST_F(Stock, ArmourGoesToAttackingFrontsWithContactOffSwampAndForest) {
  pool->StockType[4] = tanks;
  pool->StockQty[4] = 40;
  const int f = Front(1, 2, 500, 100, 4);
  AI.AreaContact[1] = 5;
  const int a1 = world::AddUnit(us, 4, 4, "1st Corps");  // 64 + 40 = 104
  const int a2 = world::AddUnit(us, 4, 5, "2nd Corps");  // in forest
  Hex[4][5].Land = kForest;
  const int a3 = world::AddThq(us, 5, 5, shq, "THQ One");  // 104 - 25
  const int a4 = world::AddUnit(us, 6, 6, "4th Corps");    // 104 - 10
  Unit[a4].ArtType = guns;
  Unit[a4].ArtQty = 1;
  for (int u : {a1, a2, a3, a4}) Unit[u].Front = f;
  // Five units: the cursor stays at the head. Twenty tries of Int(stock /
  // 20) + 1: 3, then 2 nine times (19 left), then 1 ten times: 31 in all.
  AIStockArm();
  EXPECT_EQ(Unit[a1].ArmType, tanks);
  EXPECT_EQ(Unit[a1].ArmQty, 31);
  EXPECT_EQ(Unit[a2].ArmQty, 0);
  EXPECT_EQ(pool->StockQty[4], 9);

  // Without contact nothing moves.
  AI.AreaContact[1] = 0;
  AIStockArm();
  EXPECT_EQ(pool->StockQty[4], 9);
}

// ---- Fleets and air wings -------------------------------------------------------

class Build : public Stock {
 protected:
  // Areas 1 (columns 1-4), 2 (5-8) and 3 (9-12); the sea lies along row 8
  // of area 2. Area 3 is 6 land steps from the SHQ's area 1.
  void SetUp() override {
    Stock::SetUp();
    Area(1, 1, 4, 1, 8);
    Area(2, 5, 8, 1, 8);
    Area(3, 9, 12, 1, 8);
    for (int a = 1; a <= 3; ++a)
      for (int b = 1; b <= 3; ++b) AI.AreaLandDist[a][b] = 999;
    AI.AreaLandDist[1][2] = AI.AreaLandDist[2][1] = 1;
    AI.AreaLandDist[1][3] = AI.AreaLandDist[3][1] = 6;
    for (int x = 5; x <= 8; ++x) Hex[x][8].Land = kSea;
    Town(6, 2, us, "Inland", 500);
    Town(7, 7, us, "Harbour", 500);
    Town(10, 4, us, "Faraway", 500);
    cargo = MakeType("Cargoships", kSeaTheater, 2);
    bombers = MakeType("Bombers", kAirTheater, 3);
    fighters = MakeType("Fighters", kAirTheater, 1);
    Front(1, 0, 100, 100, 0);
    Front(2, 4, 100, 300, 2);
    Front(3, 5, 100, 900, 2);
    AI.AreaEnemyStrength[4] = 7;
    AI.AreaEnemyStrength[5] = 50;
  }
  int cargo = 0, bombers = 0, fighters = 0;
};

TEST_F(Build, TransportsFoundAFleetInAPortOfTheFrontWithTheGreatestShare) {
  pool->StockType[5] = cargo;
  pool->StockQty[5] = 5;
  // Area 3's share of 900 lies 6 steps away; area 2's 300 wins. Inland has no
  // sea beside it: the fleet is founded in Harbour.
  AIBuildNaval();
  const int fleet = Hex[7][7].Unit[1];
  ASSERT_GT(fleet, 0);
  EXPECT_EQ(Unit[fleet].Theater, kSeaTheater);
  EXPECT_EQ(Unit[fleet].MobType, cargo);
  EXPECT_EQ(Unit[fleet].MobQty, 5);
  EXPECT_EQ(Hex[6][2].Unit[1], 0);
  EXPECT_EQ(pool->StockQty[5], 0);
  EXPECT_EQ(Regime[us].PP, 20 - EV(612));

  // More transports join the fleet that is there.
  pool->StockQty[5] = 3;
  AIBuildNaval();
  EXPECT_EQ(Unit[fleet].MobQty, 8);
  EXPECT_EQ(Hex[7][7].Unit[2], 0);
}

TEST_F(Build, BombersAndFightersGoToTheFrontFacingTheGreatestStrength) {
  pool->StockType[5] = bombers;
  pool->StockQty[5] = 4;
  pool->StockType[6] = fighters;
  pool->StockQty[6] = 6;
  // Area 2 faces 7, area 1's garrison front nothing; area 3 is out of reach.
  // Inland is the first town of area 2.
  AIBuildAir();
  const int wing = Hex[6][2].Unit[1];
  ASSERT_GT(wing, 0);
  EXPECT_EQ(Unit[wing].Theater, kAirTheater);
  EXPECT_EQ(Unit[wing].ArtType, bombers);
  EXPECT_EQ(Unit[wing].ArtQty, 4);
  EXPECT_EQ(pool->StockQty[6], 6);
  AIBuildAir2();
  EXPECT_EQ(Unit[wing].InfType, fighters);
  EXPECT_EQ(Unit[wing].InfQty, 6);
  EXPECT_EQ(Hex[6][2].Unit[2], 0);
}

// ---- New land formations -------------------------------------------------------

TEST_F(Stock, AnShqWithMoreThanTwentyInfantryRaisesANewFormation) {
  const int mortars = MakeType("Mortars", kLandTheater, 3);
  Type[mortars].Attr[kArtilleryRange] = 2;  // long range: stays
  pool->StockType[1] = rifles;
  pool->StockQty[1] = 21;
  pool->StockType[2] = guns;
  pool->StockQty[2] = 3;
  pool->StockType[3] = mortars;
  pool->StockQty[3] = 5;
  AINewLandUnits();
  const int corps = Hex[2][2].Unit[2];
  ASSERT_GT(corps, 0);
  EXPECT_EQ(Unit[corps].Theater, kLandTheater);
  EXPECT_EQ(Unit[corps].InfType, rifles);
  EXPECT_EQ(Unit[corps].InfQty, 21);
  EXPECT_EQ(Unit[corps].ArtType, guns);
  EXPECT_EQ(Unit[corps].ArtQty, 3);
  EXPECT_EQ(pool->StockQty[1], 0);
  EXPECT_EQ(pool->StockQty[3], 5);
  EXPECT_EQ(Regime[us].PP, 20 - EV(611));
}

TEST_F(Stock, TwentyInfantryRaiseNothingAndNeitherDoesAFullHex) {
  pool->StockType[1] = rifles;
  pool->StockQty[1] = 20;
  AINewLandUnits();
  EXPECT_EQ(Hex[2][2].Unit[2], 0);

  pool->StockQty[1] = 30;
  world::AddUnit(us, 2, 2, "Guard");
  world::AddUnit(us, 2, 2, "Guard");
  AINewLandUnits();
  EXPECT_EQ(pool->StockQty[1], 30);
}

}  // namespace
}  // namespace mf::test
