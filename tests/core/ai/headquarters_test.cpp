// New SHQs and THQs and bosses for units, on maps worked out by hand.
#include <gtest/gtest.h>

#include "ai/headquarters.h"
#include "logistics_test_util.h"

namespace mf::test {
namespace {

// ---- A new SHQ ---------------------------------------------------------------

class NewShq : public LogisticsTest {
 protected:
  // Alder (3, 3) heads area 1 and Cedar (9, 9) area 3, both without an SHQ;
  // Birk (15, 3) heads area 2, served by the SHQ at (19, 1), 16 columns from
  // Alder and 10 from Cedar.
  void SetUp() override {
    LogisticsTest::SetUp();
    MakeMap(20, 10);
    Regime[us].HexSprite = 4;
    for (int x = 1; x <= 20; ++x)
      for (int y = 1; y <= 10; ++y) Hex[x][y].Landmass = 1;
    Town(3, 3, us, "Alder", 1000);
    Town(15, 3, us, "Birk", 1000);
    Town(9, 9, us, "Cedar", 1000);
    AI.AreaCount = 3;
    const int centres[4][2] = {{0, 0}, {3, 3}, {15, 3}, {9, 9}};
    for (int a = 1; a <= 3; ++a) {
      AI.AreaX[a] = centres[a][0];
      AI.AreaY[a] = centres[a][1];
      AI.AreaSide[a] = 1;
      AI.AreaLandmass[a] = 1;
      Hex[centres[a][0]][centres[a][1]].Area = static_cast<Short>(a);
    }
    far = world::AddShq(us, 19, 1, 1, "SHQ Far");
    Hex[19][1].Area = 2;
    AI.AreaShq[2] = far;
  }
  int far = 0;
};

TEST_F(NewShq, TheFirstTownAreaWithoutAnShqGetsOneAndOnlyOne) {
  AINewShq();
  const int made = Hex[3][3].Unit[1];
  ASSERT_GT(made, 0);
  EXPECT_EQ(Unit[made].Name, "SHQ Alder");
  EXPECT_EQ(Unit[made].Shq, 2);
  EXPECT_EQ(Unit[made].Regime, us);
  EXPECT_EQ(Unit[made].CounterPic, 244);
  EXPECT_EQ(Shq[us][2].Unit, made);
  EXPECT_EQ(Hex[3][3].ProdSHQ, made);
  EXPECT_EQ(Hex[9][9].Unit[1], 0);
  EXPECT_EQ(Regime[us].PP, 20);
}

TEST_F(NewShq, ACentreWithoutRoomOrWithAForeignNeighbourOrAnShqNearIsPassedOver) {
  // Alder is full.
  for (int s = 1; s <= 3; ++s) world::AddUnit(us, 3, 3, "Corps");
  // Cedar has an own SHQ 9 columns and 9 rows away on its landmass.
  const int near = world::AddShq(us, 18, 1, 2, "SHQ Near");
  Hex[18][1].Landmass = 1;
  AINewShq();
  EXPECT_EQ(Hex[9][9].Unit[1], 0);
  // On another landmass it is no obstacle.
  Hex[18][1].Landmass = 2;
  AINewShq();
  ASSERT_GT(Hex[9][9].Unit[1], 0);
  EXPECT_EQ(Unit[Hex[9][9].Unit[1]].Name, "SHQ Cedar");
  EXPECT_NE(Hex[9][9].Unit[1], near);
}

TEST_F(NewShq, AForeignNeighbourKeepsTheShqAway) {
  Hex[4][3].Owner = them;
  AINewShq();
  EXPECT_EQ(Hex[3][3].Unit[1], 0);
  EXPECT_GT(Hex[9][9].Unit[1], 0);
}

class ServedNewShq : public NewShq {
 protected:
  // Far serves every area and is the nearest SHQ at Alder's centre (20).
  void SetUp() override {
    NewShq::SetUp();
    AI.AreaShq[1] = far;
    AI.AreaShq[3] = far;
    Hex[3][3].ShqDist[1] = 20;
    Hex[2][3].Area = 1;
    Hex[9][9].ShqDist[1] = 24;
  }
};

TEST_F(ServedNewShq, AnAreaWhoseFarEndLiesBeyondFourFifthsOfTheRangeGetsItsOwnShq) {
  // The worst hex of area 1 lies at 25; engine variable 230 is 30: above 24.
  Hex[2][3].ShqDist[1] = 25;
  AINewShq();
  EXPECT_GT(Hex[3][3].Unit[1], 0);
}

TEST_F(ServedNewShq, AnAreaReachedWithinFourFifthsOfTheRangeStaysWithout) {
  Hex[2][3].ShqDist[1] = 24;
  AINewShq();
  EXPECT_EQ(Hex[3][3].Unit[1], 0);
  EXPECT_EQ(Hex[9][9].Unit[1], 0);
}

TEST_F(ServedNewShq, AnAreaWithAnShqInsideStaysWithout) {
  Hex[2][3].ShqDist[1] = 25;
  world::AddShq(us, 2, 3, 2, "SHQ Inside");
  Hex[2][3].Landmass = 2;  // not near on the landmass
  AINewShq();
  EXPECT_EQ(Hex[3][3].Unit[1], 0);
}

// ---- A new THQ ---------------------------------------------------------------

class NewThq : public LogisticsTest {
 protected:
  // Area 1 (columns 1-6) is ours with Holt (2, 4) at its centre and the SHQ
  // at (2, 2); area 2 (7-12) is Theirland's. A front in stance 2 between them.
  void SetUp() override {
    LogisticsTest::SetUp();
    MakeMap(12, 8);
    rifles = MakeType("Rifles", kLandTheater, 1);
    for (int x = 7; x <= 12; ++x)
      for (int y = 1; y <= 8; ++y) Hex[x][y].Owner = them;
    Area(1, 1, 6, 1, 8);
    Area(2, 7, 12, 1, 8);
    AI.AreaX[1] = 2, AI.AreaY[1] = 4;
    AI.AreaLandBorder[1][2] = AI.AreaLandBorder[2][1] = 8;
    Town(2, 4, us, "Holt", 1000);
    shq = world::AddShq(us, 2, 2, 1, "SHQ Holt");
    AI.AreaShq[1] = shq;
    Shq[us][1].StockType[1] = rifles;
    Shq[us][1].StockQty[1] = 16;
    Shq[us][1].Carry = 100;
    for (int x = 1; x <= 6; ++x)
      for (int y = 1; y <= 8; ++y) {
        Hex[x][y].ShqDist[1] = 5;
        Hex[x][y].AreaValue = 10 * x;
      }
    Hex[2][4].AreaValue = 100;
    Hex[3][4].AreaValue = 90;
    front = Front(1, 2, 500, 100, 2);
  }
  int rifles = 0, shq = 0, front = 0;
};

TEST_F(NewThq, TheBestScoredHexGetsATHQUnderTheShq) {
  // Holt itself scores 100 + 1000 + 500 but is full; (3, 4) scores 1590.
  for (int s = 1; s <= 3; ++s) world::AddUnit(us, 2, 4, "Corps");
  AINewThq();
  const int thq = Hex[3][4].Unit[1];
  ASSERT_GT(thq, 0);
  EXPECT_EQ(Unit[thq].Thq, 1);
  EXPECT_EQ(Unit[thq].Boss, shq);
  EXPECT_EQ(Unit[thq].Front, front);
  EXPECT_EQ(Regime[us].PP, 20 - 3);
  EXPECT_EQ(AI.ShqNeedsLand[1], 0);
  EXPECT_EQ(platform.AnalysisLines(), std::vector<std::string>{"New THQ placed  3, 4"});
}

TEST_F(NewThq, AnShqWithoutTransportDrawsTheTHQIntoItsOwnHex) {
  // Carry 0: +2500 where the SHQ stands, -2500 elsewhere.
  Shq[us][1].Carry = 0;
  AINewThq();
  EXPECT_EQ(Unit[Hex[2][2].Unit[2]].Thq, 1);
  EXPECT_EQ(Hex[2][4].Unit[1], 0);
}

TEST_F(NewThq, FifteenInfantryAreNotEnoughAndTheShqIsMarkedAsNeedingLandTroops) {
  Shq[us][1].StockQty[1] = 15;
  AINewThq();
  EXPECT_EQ(Hex[2][4].Unit[1], 0);
  EXPECT_EQ(AI.ShqNeedsLand[1], 1);
  EXPECT_EQ(Regime[us].PP, 20);
  EXPECT_TRUE(platform.AnalysisLines().empty());
}

TEST_F(NewThq, NothingWhenTheShqReachesTheHexOnlyOverTheSea) {
  Hex[2][4].ShqPrev1[1] = 2;
  AINewThq();
  EXPECT_EQ(Hex[2][4].Unit[1], 0);
  EXPECT_EQ(AI.ShqNeedsLand[1], 0);
}

TEST_F(NewThq, NothingWhenTheAreaHasATHQOrTheFrontNoStance) {
  world::AddThq(us, 5, 5, shq, "THQ Old");
  AINewThq();
  EXPECT_EQ(Hex[2][4].Unit[1], 0);
  Hex[5][5].Unit[1] = 0;
  AI.FrontStance[front] = 0;
  AINewThq();
  EXPECT_EQ(Hex[2][4].Unit[1], 0);
}

// ---- Bosses ------------------------------------------------------------------

TEST_F(LogisticsTest, UnitsWithoutAFittingBossTakeTheBestOne) {
  MakeMap(12, 8);
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 8; ++y) Hex[x][y].Landmass = 1;
  Area(1, 1, 6, 1, 8);
  Area(2, 7, 12, 1, 8);
  const int s1 = world::AddShq(us, 1, 1, 1, "SHQ West");
  const int s2 = world::AddShq(us, 12, 1, 2, "SHQ East");
  AI.AreaShq[1] = s1;
  AI.AreaShq[2] = s2;
  Hex[3][3].ShqDist[1] = 4;
  const int t1 = world::AddThq(us, 3, 3, s2, "THQ West");
  const int t2 = world::AddThq(us, 10, 3, s2, "THQ East");
  const int u1 = world::AddUnit(us, 4, 4, "1st Corps");
  Unit[u1].Front = 1;
  const int u2 = world::AddUnit(us, 9, 6, "2nd Corps");
  Unit[u2].Boss = t1;
  const int u3 = world::AddUnit(us, 5, 3, "3rd Corps");
  Unit[u3].Boss = t1;
  const int u4 = world::AddUnit(us, 11, 7, "4th Corps");
  Unit[u4].Front = 2;
  Hex[11][7].Landmass = 2;

  AIAssignBoss();
  // The west THQ served the east SHQ: it takes its area's SHQ, which reaches it.
  EXPECT_EQ(Unit[t1].Boss, s1);
  EXPECT_EQ(Unit[t2].Boss, s2);
  // 1st: west THQ 80 - 1 + 20 = 99 against east 80 - 6 = 74.
  EXPECT_EQ(Unit[u1].Boss, t1);
  // 2nd: its THQ is 6.7 away; west 74 against east 80 - 3 = 77.
  EXPECT_EQ(Unit[u2].Boss, t2);
  EXPECT_EQ(Unit[u2].Readiness, 80);
  EXPECT_EQ(Unit[u2].Disruption, 50);
  // 3rd keeps its THQ 2 away, untouched.
  EXPECT_EQ(Unit[u3].Boss, t1);
  EXPECT_EQ(Unit[u3].Readiness, 100);
  // 4th, off the landmass: west 80 - 8 - 6 = 66, east 80 - 4 - 6 + 20 = 90.
  EXPECT_EQ(Unit[u4].Boss, t2);
  // A new boss where there was none costs no disruption.
  EXPECT_EQ(Unit[u4].Disruption, 0);
}

}  // namespace
}  // namespace mf::test
