// Which SHQ serves which area and town, and stock handed between SHQs, on
// small maps worked out by hand.
#include <gtest/gtest.h>

#include "ai/logistics.h"
#include "logistics_test_util.h"

namespace mf::test {
namespace {

class AreasToShq : public LogisticsTest {
 protected:
  // Four areas of four columns each in a row, 1-2-3-4, on a 16 x 6 map; area
  // 1 and area 3 are not joined (as if a mountain ridge ran between them
  // that area 2 goes round).
  void SetUp() override {
    LogisticsTest::SetUp();
    MakeMap(16, 6);
    Area(1, 1, 4, 1, 6);
    Area(2, 5, 8, 1, 6);
    Area(3, 9, 12, 1, 6);
    Area(4, 13, 16, 1, 6);
    for (int a = 1; a <= 4; ++a)
      for (int b = 1; b <= 4; ++b) AI.AreaLandDist[a][b] = 999;
    auto join = [](int a, int b, int d) { AI.AreaLandDist[a][b] = AI.AreaLandDist[b][a] = static_cast<Short>(d); };
    join(1, 2, 1);
    join(2, 3, 1);
    join(3, 4, 1);
    join(2, 4, 2);
    Front(1, 0, 1000, 0, 0);
    a = world::AddShq(us, 2, 2, 1, "SHQ Aston");
    b = world::AddShq(us, 3, 3, 2, "SHQ Brill");
    c = world::AddShq(us, 14, 2, 3, "SHQ Dunmore");
    Town(1, 1, us, "Aston", 900);
    Town(4, 4, us, "Brill", 600);
    Town(2, 5, them, "Cotter", 5000);
    Town(15, 5, us, "Dunmore", 300);
    // Engine variable 230 is 30: full worth below 12, a third below 24, an eighth beyond.
    Hex[1][1].ShqDist[1] = 5;
    Hex[4][4].ShqDist[1] = 20;
    Hex[2][5].ShqDist[1] = 1;
    Hex[1][1].ShqDist[2] = 25;
    Hex[4][4].ShqDist[2] = 3;
    Hex[15][5].ShqDist[3] = 2;
  }
  int a = 0, b = 0, c = 0;
};

TEST_F(AreasToShq, TheShqWithMostPopulationInReachTakesItsAreaAndPassesItOverLand) {
  // Aston SHQ: 900 + 600 / 3 = 1100; Brill SHQ: 900 / 8 + 600 = 712.5; the
  // foreign Cotter counts for nobody. Dunmore SHQ: 300 in area 4.
  AIAreasToShq();
  EXPECT_EQ(AI.AreaShq[1], a);
  // Area 2 gets Aston's SHQ in the first round and may not pass it on in the
  // same round: area 3 takes Dunmore's from area 4 instead.
  EXPECT_EQ(AI.AreaShq[2], a);
  EXPECT_EQ(AI.AreaShq[3], c);
  EXPECT_EQ(AI.AreaShq[4], c);
}

TEST_F(AreasToShq, AnShqThatReachesNoTownServesNoArea) {
  Hex[15][5].ShqDist[3] = 999;
  AI.AreaShq[4] = 55;
  AIAreasToShq();
  // Area 4 is cleared. Only area 1 hands its SHQ on; areas 3 and 4 lie
  // beyond its reach, and area 2, which received it, does not pass it on.
  EXPECT_EQ(AI.AreaShq[1], a);
  EXPECT_EQ(AI.AreaShq[2], a);
  EXPECT_EQ(AI.AreaShq[3], 0);
  EXPECT_EQ(AI.AreaShq[4], 0);
}

TEST_F(AreasToShq, NothingHappensWithoutFronts) {
  AI.FrontCount = 0;
  AI.AreaShq[3] = 77;
  AIAreasToShq();
  EXPECT_EQ(AI.AreaShq[1], 0);
  EXPECT_EQ(AI.AreaShq[3], 77);
}

TEST_F(LogisticsTest, TownsGoToTheShqThatHasGivenLeastForItsDemand) {
  MakeMap(10, 10);
  const int a = world::AddShq(us, 2, 2, 1, "SHQ A");
  const int b = world::AddShq(us, 3, 3, 2, "SHQ B");
  const int c = world::AddShq(us, 5, 2, 3, "SHQ C");
  Unit[a].SupplyDemand = 50;
  Unit[b].SupplyDemand = 0;
  Unit[c].SupplyDemand = 400;
  Town(1, 1, us, "Ashby", 2000);
  Town(1, 3, us, "Barrow", 90);
  Town(4, 1, us, "Cray", 3000);
  Town(4, 4, us, "Dale", 900);
  Town(6, 6, us, "Eyre", 100);
  Hex[1][1].Area = 1;
  Hex[1][3].Area = 1;
  Hex[4][1].Area = 2;
  Hex[4][4].Area = 3;
  Hex[6][6].Area = 4;
  AI.AreaCount = 4;
  for (int s = 1; s <= 3; ++s) {
    Hex[1][1].ShqDist[s] = 5;
    Hex[1][3].ShqDist[s] = 5;
    Hex[4][1].ShqDist[s] = 5;
  }
  // Dale is reached by A only across the sea, by B over land.
  Hex[4][4].ShqDist[1] = 3;
  Hex[4][4].ShqPrev1[1] = 2;
  Hex[4][4].ShqDist[2] = 4;
  Hex[6][6].ProdSHQ = a;

  AITownsToShq();
  // Ashby: A and C both have demand and no gifts (99 each): the later SHQ, C,
  // wins; C's gifts rise by Int(Int(2000 / 10) / 10) = 20.
  EXPECT_EQ(Hex[1][1].ProdSHQ, c);
  // Barrow: A 99, B 0, C 400 / 20 = 20: A; its gifts rise by Int(9 / 10) = 0.
  EXPECT_EQ(Hex[1][3].ProdSHQ, a);
  // Cray: A has still given nothing (99) against C's 20. Had the divider been
  // applied once, A would stand at 50 / 9 and C would win.
  EXPECT_EQ(Hex[4][1].ProdSHQ, a);
  // Dale: only B reaches it over land, with a ratio of 0.
  EXPECT_EQ(Hex[4][4].ProdSHQ, b);
  // Eyre is reached by nobody and keeps its SHQ.
  EXPECT_EQ(Hex[6][6].ProdSHQ, a);
  EXPECT_EQ(AI.AreaShq[1], a);
  EXPECT_EQ(AI.AreaShq[2], a);
  EXPECT_EQ(AI.AreaShq[3], b);
  EXPECT_EQ(AI.AreaShq[4], 0);
}

TEST_F(LogisticsTest, StockPiledBeyondTwiceATurnsOutputGoesToTheShqNearestTheContact) {
  MakeMap(10, 10);
  // Theirland's column 8 cuts the far SHQ off from supply.
  for (int y = 1; y <= 10; ++y) Hex[8][y].Owner = them;
  const int rifles = MakeType("Rifles", kLandTheater, 1);
  const int trucks = MakeType("Trucks", kLandTheater, 2);
  const int guns = MakeType("Guns", kLandTheater, 3);
  const int tanks = MakeType("Tanks", kLandTheater, 4);
  const int cargo = MakeType("Cargoships", kSeaTheater, 2);
  const int gate = world::AddShq(us, 2, 2, 1, "SHQ Gate");
  const int rook = world::AddShq(us, 2, 7, 2, "SHQ Rook");
  const int lance = world::AddShq(us, 5, 2, 3, "SHQ Lance");
  const int far = world::AddShq(us, 10, 5, 4, "SHQ Far");
  Town(1, 1, us, "Gatehouse", 1000);
  Hex[1][1].ProdSHQ = gate;
  Hex[1][1].Prod = rifles;  // 10 rifles a turn
  Town(1, 2, us, "Gunwharf", 500);
  Hex[1][2].ProdSHQ = gate;
  Hex[1][2].Prod = guns;  // 5 guns a turn
  ShqRec& g = Shq[us][1];
  g.StockType[1] = rifles, g.StockQty[1] = 50;
  g.StockType[2] = trucks, g.StockQty[2] = 40;
  g.StockType[3] = cargo, g.StockQty[3] = 10;
  g.StockType[4] = guns, g.StockQty[4] = 8;
  g.Carry = 500;
  Shq[us][2].StockType[1] = rifles, Shq[us][2].StockQty[1] = 100;
  Shq[us][3].StockType[1] = tanks, Shq[us][3].StockQty[1] = 30;
  Shq[us][4].StockType[1] = rifles, Shq[us][4].StockQty[1] = 1;
  // Lance serves areas 1 and 2 (contact 10 + 5), Rook area 3 (contact 30).
  AI.AreaCount = 4;
  AI.AreaShq[1] = lance, AI.AreaContact[1] = 10;
  AI.AreaShq[2] = lance, AI.AreaContact[2] = 5;
  AI.AreaShq[3] = rook, AI.AreaContact[3] = 30;
  AI.AreaShq[4] = far, AI.AreaContact[4] = 500;

  AIShqToShq();
  // Gate's 50 rifles are more than twice its 10 a turn: Rook scores 30 - 5
  // against Lance's 15 - 3 and Far is cut off. Trucks and cargo ships stay;
  // 8 guns are not more than twice 5.
  EXPECT_EQ(g.StockQty[1], 0);
  EXPECT_EQ(g.StockQty[2], 40);
  EXPECT_EQ(g.StockQty[3], 10);
  EXPECT_EQ(g.StockQty[4], 8);
  EXPECT_EQ(g.Carry, 0);
  // Rook received and gives nothing in this stage, though its 100 rifles are
  // made by no town.
  EXPECT_EQ(Shq[us][2].StockQty[1], 150);
  // Lance's tanks go to Rook as well (30 less its cost against Gate's 0 - 3).
  EXPECT_EQ(Shq[us][3].StockQty[1], 0);
  EXPECT_EQ(Shq[us][2].StockType[2], tanks);
  EXPECT_EQ(Shq[us][2].StockQty[2], 30);
  // Far reaches no other SHQ and keeps its rifle.
  EXPECT_EQ(Shq[us][4].StockQty[1], 1);
  EXPECT_EQ(platform.AnalysisLines(), (std::vector<std::string>{"SHQ Gate>SHQ Rook", "SHQ Lance>SHQ Rook"}));
}

}  // namespace
}  // namespace mf::test
