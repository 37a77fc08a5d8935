// The supply flood on small maps worked out by hand: costs, roads, the sea
// with its ports and open shores, blocked lanes, and the odd tie-breaks.
#include "econ_test_util.h"
#include "model/hex_geometry.h"

namespace mf::test {
namespace {

class SupplyFloodTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(10, 10, {"Red", "Blue"});
  }

  // Every hex not listed is out of reach with empty route data.
  static void ExpectOnlyReached(const std::vector<std::pair<std::pair<int, int>, Route>>& reached) {
    for (int x = 1; x <= Game.MapW; ++x) {
      for (int y = 1; y <= Game.MapH; ++y) {
        Route want{999, 0, 0, 0, 0};
        for (const auto& [xy, r] : reached)
          if (xy.first == x && xy.second == y) want = r;
        EXPECT_EQ(RouteAt(x, y), want) << "hex " << x << "," << y;
      }
    }
  }

  // Row 2: grass, grass, a port at 3, sea at 4..6, the far coast at 7 and 8,
  // all land Red's; every other hex is nobody's grass, closed to supply.
  void SeaCrossing(int farCoast, int beyond) {
    Row(2, 1, 2, kGrass, 1);
    Put(3, 2, kUrban, 1);
    Row(2, 4, 6, kSea, 0);
    Put(7, 2, farCoast, 1);
    Put(8, 2, beyond, 1);
    shq = AddShq(1, 1, 2, 1);
  }
  // A ship of regime r in slot 1 of a sea hex, which stays nobody's.
  static int Ship(int r, int x, int y) {
    const int u = world::AddUnit(r, x, y, "Ship");
    Unit[u].Theater = kSeaTheater;
    Hex[x][y].Owner = 0;
    return u;
  }

  int shq = 0;
};

TEST_F(SupplyFloodTest, ALandRouteCountsItsStepsWithRoadsAndTowns) {
  EngineVar[21].Value = 2;  // grass
  EngineVar[23].Value = 3;  // urban
  EngineVar[27].Value = 1;  // road
  Row(2, 1, 8, kGrass, 1);
  Put(5, 2, kUrban, 1);
  Put(7, 2, kUrban, 1);
  Put(8, 2, kUrban, 1);
  for (int x : {1, 2, 3, 6}) Hex[x][2].Road = 1;
  AddShq(1, 1, 2, 1);
  FloodFrom(1, 2);
  // Road to road 1, road to plain grass 2, into a town without roads 3, out
  // of a town onto a road 1, from a road into a town 1, and town to town
  // with no road the town's own 3.
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {1, 0, 1, 0, 0}},
                     {{3, 2}, {2, 0, 2, 0, 0}},
                     {{4, 2}, {4, 0, 3, 0, 0}},
                     {{5, 2}, {7, 0, 4, 0, 0}},
                     {{6, 2}, {8, 0, 5, 0, 0}},
                     {{7, 2}, {9, 0, 6, 0, 0}},
                     {{8, 2}, {12, 0, 7, 0, 0}}});
  // An SHQ floods 30 waves: the box is the origin +- 31, held to the map.
  EXPECT_EQ(FloodMinX, 1);
  EXPECT_EQ(FloodMinY, 1);
  EXPECT_EQ(FloodMaxX, 10);
  EXPECT_EQ(FloodMaxY, 10);
}

TEST_F(SupplyFloodTest, SwampAndMountainHaveTheirOwnCosts) {
  EngineVar[25].Value = 4;  // swamp
  EngineVar[26].Value = 7;  // mountain
  Row(2, 1, 4, kGrass, 1);
  Put(2, 2, kSwamp, 1);
  Put(3, 2, kMountain, 1);
  Put(4, 2, kForest, 1);
  EngineVar[22].Value = 2;  // forest
  AddShq(1, 1, 2, 1);
  FloodFrom(1, 2);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {4, 0, 1, 0, 0}},
                     {{3, 2}, {11, 0, 2, 0, 0}},
                     {{4, 2}, {13, 0, 3, 0, 0}}});
}

TEST_F(SupplyFloodTest, APortCrossingLandsInTheFarTown) {
  SeaCrossing(kUrban, kGrass);
  FloodFrom(1, 2);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {1, 0, 1, 0, 0}},
                     {{3, 2}, {2, 0, 2, 0, 0}},
                     {{4, 2}, {3, 1, 2, 0, 0}},
                     {{5, 2}, {4, 2, 2, 0, 0}},
                     {{6, 2}, {5, 3, 2, 0, 0}},
                     {{7, 2}, {6, 3, 2, 7, 2}},
                     {{8, 2}, {7, 3, 2, 7, 2}},
                     // Rule 6 forces a landed route into every land hex
                     // beside it that no route has reached; across foreign
                     // land that step costs 999, so the hex stays out of
                     // reach but keeps the route it was given.
                     {{6, 1}, {999, 3, 2, 7, 2}},
                     {{7, 1}, {999, 3, 2, 7, 2}},
                     {{6, 3}, {999, 3, 2, 7, 2}},
                     {{7, 3}, {999, 3, 2, 7, 2}},
                     {{8, 1}, {999, 3, 2, 7, 2}},
                     {{8, 3}, {999, 3, 2, 7, 2}},
                     {{9, 2}, {999, 3, 2, 7, 2}}});
}

TEST_F(SupplyFloodTest, AnOpenShoreLandingIsMarkedMinusOne) {
  SeaCrossing(kGrass, kUrban);
  FloodFrom(1, 2);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {1, 0, 1, 0, 0}},
                     {{3, 2}, {2, 0, 2, 0, 0}},
                     {{4, 2}, {3, 1, 2, 0, 0}},
                     {{5, 2}, {4, 2, 2, 0, 0}},
                     {{6, 2}, {5, 3, 2, 0, 0}},
                     {{7, 2}, {6, 3, 2, -1, -1}},
                     {{8, 2}, {7, 3, 2, -1, -1}},
                     {{6, 1}, {999, 3, 2, -1, -1}},
                     {{7, 1}, {999, 3, 2, -1, -1}},
                     {{6, 3}, {999, 3, 2, -1, -1}},
                     {{7, 3}, {999, 3, 2, -1, -1}},
                     {{8, 1}, {999, 3, 2, -1, -1}},
                     {{8, 3}, {999, 3, 2, -1, -1}},
                     {{9, 2}, {999, 3, 2, -1, -1}}});
}

TEST_F(SupplyFloodTest, AnEnemyShipBesideTheLaneClosesIt) {
  SeaCrossing(kUrban, kGrass);
  // (5,1) touches the lane hexes (5,2) and (6,2).
  Put(5, 1, kSea, 0);
  Ship(2, 5, 1);
  FloodFrom(1, 2);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {1, 0, 1, 0, 0}},
                     {{3, 2}, {2, 0, 2, 0, 0}},
                     {{4, 2}, {3, 1, 2, 0, 0}}});
}

TEST_F(SupplyFloodTest, AnOwnShipKeepsOnlyItsOwnHexOpen) {
  SeaCrossing(kUrban, kGrass);
  Put(5, 1, kSea, 0);
  Ship(2, 5, 1);
  Ship(1, 5, 2);
  FloodFrom(1, 2);
  // (6,2) is still beside the enemy.
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {1, 0, 1, 0, 0}},
                     {{3, 2}, {2, 0, 2, 0, 0}},
                     {{4, 2}, {3, 1, 2, 0, 0}},
                     {{5, 2}, {4, 2, 2, 0, 0}}});

  Ship(1, 6, 2);
  FloodFrom(1, 2);
  EXPECT_EQ(RouteAt(6, 2), (Route{5, 3, 2, 0, 0}));
  EXPECT_EQ(RouteAt(7, 2), (Route{6, 3, 2, 7, 2}));
  EXPECT_EQ(RouteAt(8, 2), (Route{7, 3, 2, 7, 2}));
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(SupplyFloodTest, AnEnemyShipOnTheLaneItselfClosesIt) {
  SeaCrossing(kUrban, kGrass);
  Ship(2, 5, 2);
  FloodFrom(1, 2);
  // (5,2) holds it, (4,2) and (6,2) lie beside it: the port is shut in.
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}}, {{2, 2}, {1, 0, 1, 0, 0}}, {{3, 2}, {2, 0, 2, 0, 0}}});
  EXPECT_EQ(RouteAt(5, 2).mark, 999);
  EXPECT_EQ(RouteAt(6, 2).mark, 999);
  EXPECT_EQ(RouteAt(7, 2).mark, 999);
}

TEST_F(SupplyFloodTest, SupplyTakesToSeaOnlyFromAnOwnPort) {
  // The coast at 3 is plain grass: no port.
  SeaCrossing(kUrban, kGrass);
  Put(3, 2, kGrass, 1);
  FloodFrom(1, 2);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}}, {{2, 2}, {1, 0, 1, 0, 0}}, {{3, 2}, {2, 0, 2, 0, 0}}});
  // A flood that may not use the sea stops at the port.
  Put(3, 2, kUrban, 1);
  FloodFrom(1, 2, 1, /*seaAllowed=*/false);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}}, {{2, 2}, {1, 0, 1, 0, 0}}, {{3, 2}, {2, 0, 2, 0, 0}}});
}

TEST_F(SupplyFloodTest, AnOverlandRouteUpToSixtyPercentLongerReplacesTheSeaRoute) {
  // A port at (2,2), one sea hex (3,2), the far port (4,2), and a land way
  // round by (2,1) and (3,1). By sea (4,2) costs 3; by land 4, within 1.6 x 3.
  Put(1, 2, kGrass, 1);
  Put(2, 2, kUrban, 1);
  Put(3, 2, kSea, 0);
  Put(4, 2, kUrban, 1);
  Put(2, 1, kGrass, 1);
  Put(3, 1, kGrass, 1);
  AddShq(1, 1, 2, 1);
  FloodFrom(1, 2);
  ExpectOnlyReached({{{1, 2}, {0, 0, 0, 0, 0}},
                     {{2, 2}, {1, 0, 1, 0, 0}},
                     {{2, 1}, {2, 0, 2, 0, 0}},
                     {{3, 2}, {2, 1, 1, 0, 0}},
                     {{3, 1}, {3, 0, 3, 0, 0}},
                     {{4, 2}, {4, 0, 4, 0, 0}}});
}

TEST_F(SupplyFloodTest, ReachDependsOnTheKindOfUnit) {
  MakeWorld(20, 20, {"Red"});
  OwnAll(1);
  const int u = world::AddUnit(1, 10, 10, "Column");
  // A formation floods as far as its MP.
  Unit[u].MP = 4;
  FloodFrom(10, 10);
  for (int x = 1; x <= 20; ++x)
    for (int y = 1; y <= 20; ++y) {
      const int d = Distance(10, 10, x, y);
      EXPECT_EQ(Hex[x][y].Mark, d <= 4 ? d : 999) << x << "," << y;
    }
  EXPECT_EQ(FloodMinX, 5);
  EXPECT_EQ(FloodMaxX, 15);
  EXPECT_EQ(FloodMinY, 5);
  EXPECT_EQ(FloodMaxY, 15);
  // With no MP it still reaches its neighbours.
  Unit[u].MP = 0;
  FloodFrom(10, 10);
  EXPECT_EQ(Hex[11][10].Mark, 1);
  EXPECT_EQ(Hex[12][10].Mark, 999);
  EXPECT_EQ(FloodMinX, 8);
  EXPECT_EQ(FloodMaxX, 12);
  // A THQ reaches at least 10.
  Unit[u].Thq = 1;
  Unit[u].MP = 3;
  FloodFrom(10, 10);
  EXPECT_EQ(Hex[20][10].Mark, 10);
  EXPECT_EQ(FloodMinX, 1);
  EXPECT_EQ(FloodMaxX, 20);
  Unit[u].MP = 2;
  EngineVar[21].Value = 2;
  FloodFrom(10, 10);
  EXPECT_EQ(Hex[15][10].Mark, 10);
  EXPECT_EQ(Hex[16][10].Mark, 999);
  // An SHQ reaches engine variable 230.
  EngineVar[21].Value = 1;
  Unit[u].Thq = 0;
  Unit[u].Shq = 1;
  EngineVar[230].Value = 3;
  FloodFrom(10, 10);
  EXPECT_EQ(Hex[13][10].Mark, 3);
  EXPECT_EQ(Hex[14][10].Mark, 999);
}

TEST_F(SupplyFloodTest, AHexDearerThanTheReachEndsOutOfReach) {
  OwnAll(1);
  const int u = world::AddUnit(1, 5, 5, "Column");
  Unit[u].MP = 2;
  EngineVar[22].Value = 5;
  Put(6, 5, kForest, 1);
  FloodFrom(5, 5);
  // The forest would cost 5 over a reach of 2, and so lies out of reach;
  // the hex behind it is two steps away only through the forest. Round it
  // the grass is found at 1 and 2.
  EXPECT_EQ(Hex[6][5].Mark, 999);
  EXPECT_EQ(Hex[7][5].Mark, 999);
  EXPECT_EQ(Hex[6][4].Mark, 1);
  EXPECT_EQ(Hex[6][6].Mark, 1);
  EXPECT_EQ(Hex[7][4].Mark, 2);
  EXPECT_EQ(Hex[7][6].Mark, 2);
}

TEST_F(SupplyFloodTest, ForeignAndNeutralLandIsClosed) {
  Row(2, 1, 5, kGrass, 1);
  Put(3, 2, kGrass, 2);
  AddShq(1, 1, 2, 1);
  FloodFrom(1, 2);
  EXPECT_EQ(Hex[2][2].Mark, 1);
  EXPECT_EQ(Hex[3][2].Mark, 999);
  EXPECT_EQ(Hex[4][2].Mark, 999);
  Put(3, 2, kGrass, 0);
  FloodFrom(1, 2);
  EXPECT_EQ(Hex[3][2].Mark, 999);
  Put(3, 2, kGrass, 1);
  FloodFrom(1, 2);
  EXPECT_EQ(Hex[5][2].Mark, 4);
}

TEST_F(SupplyFloodTest, InTheEditorEverythingIsReachableAtNoCost) {
  AddShq(1, 1, 2, 1);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      Hex[x][y].Mark = 55;
      Hex[x][y].PathSea = 3;
      Hex[x][y].PathPortX = -1;
      Hex[x][y].ScratchRecon = 9;
    }
  UI.EditMode = 1;
  UI.OrdX = 1;
  UI.OrdY = 2;
  UI.OrdSlot = 1;
  SupplyFlood(true);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      EXPECT_EQ(RouteAt(x, y), (Route{0, 0, 0, 0, 0}));
      EXPECT_EQ(Hex[x][y].ScratchRecon, 0);
    }
}

TEST_F(SupplyFloodTest, ClearFloodPutsEveryHexOutOfReach) {
  SeaCrossing(kGrass, kUrban);
  FloodFrom(1, 2);
  ASSERT_EQ(Hex[8][2].PathPortX, -1);
  Hex[4][4].ScratchRecon = 2;
  ClearFlood();
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      EXPECT_EQ(RouteAt(x, y), (Route{999, 0, 0, 0, 0}));
      EXPECT_EQ(Hex[x][y].ScratchRecon, 0);
    }
}

TEST_F(SupplyFloodTest, TownSupplyIsPopulationOverTheDividerLessDamage) {
  Hex[3][3].Pop = 3000;
  Hex[3][3].Damage = 25;
  // (3000 / 100) x 75 / 10 = 225.
  EXPECT_EQ(TownSupply(3, 3), 225);
  Hex[3][3].Pop = 1234;
  Hex[3][3].Damage = 0;
  EXPECT_EQ(TownSupply(3, 3), 123);
  Hex[3][3].Damage = 33;
  // 12.34 x 67 / 10 = 82.678.
  EXPECT_EQ(TownSupply(3, 3), 82);
  EngineVar[201].Value = 0;
  EXPECT_EQ(TownSupply(3, 3), 0);
}

}  // namespace
}  // namespace mf::test
