// Sight and fog: what the current regime sees now and has explored.
#include <gtest/gtest.h>

#include "model/hex_geometry.h"
#include "orders/sight.h"
#include "orders_test_util.h"

namespace mf {
namespace {

using Rows = std::vector<std::string>;
namespace world = test::world;

class SightTest : public test::OrdersTest {
 protected:
  void SetUp() override {
    OrdersTest::SetUp();
    MakeMap(10, 10, 0);
    Game.FogOfWar = 1;
  }
  // Hexes within `rings` of (x, y) seen, and no others.
  static void ExpectSeenWithin(int x, int y, int rings) {
    for (int i = 1; i <= Game.MapW; ++i)
      for (int j = 1; j <= Game.MapH; ++j)
        EXPECT_EQ(Hex[i][j].Vis, Distance(x, y, i, j) <= rings ? 1 : 0) << i << "," << j;
  }
  // A scout formation of `points` recon points (1 of its own + the rest by
  // its scouts' ReconCap) on neutral land.
  int Scout(int x, int y, int points) {
    Type[scout].Attr[kReconCap] = points - 1;
    const int u = world::AddUnit(red, x, y, "Scouts", scout, 1);
    Hex[x][y].Owner = 0;
    return u;
  }
};

TEST_F(SightTest, WithoutFogEveryHexIsSeenAndExplored) {
  Game.FogOfWar = 0;
  Game.CurRegime = red;
  Hex[4][4].Mark = 3;
  SightPass();
  for (int x = 1; x <= 10; ++x) {
    for (int y = 1; y <= 10; ++y) {
      EXPECT_EQ(Hex[x][y].Vis, 3);
      EXPECT_EQ(Hex[x][y].Seen[red], 1);
      EXPECT_EQ(Hex[x][y].Seen[blue], 0);
      EXPECT_EQ(Hex[x][y].Mark, 999);
      EXPECT_EQ(Hex[x][y].ScratchRecon, 0);
    }
  }
}

TEST_F(SightTest, ALoneFormationWithoutReconSeesItsSixNeighbours) {
  world::AddUnit(red, 5, 5, "1st", rifle, 10);
  Hex[5][5].Owner = 0;
  SightPass();
  EXPECT_EQ(VisRows(), (Rows{
                           "0 0 0 0 0 0 0 0 0 0",
                           "0 0 0 0 0 0 0 0 0 0",
                           "0 0 0 0 0 0 0 0 0 0",
                           "0 0 0 0 1 1 0 0 0 0",
                           "0 0 0 1 1 1 0 0 0 0",
                           "0 0 0 0 1 1 0 0 0 0",
                           "0 0 0 0 0 0 0 0 0 0",
                           "0 0 0 0 0 0 0 0 0 0",
                           "0 0 0 0 0 0 0 0 0 0",
                           "0 0 0 0 0 0 0 0 0 0",
                       }));
  // Without fog of exploration every hex counts as explored.
  EXPECT_EQ(Hex[10][10].Seen[red], 1);
}

TEST_F(SightTest, TheSquareOfTheDistanceSetsThePrice) {
  // With the default 1000: the second ring costs 2000, the third 4500.
  Scout(5, 5, 1999);
  SightPass();
  ExpectSeenWithin(5, 5, 1);
  Type[scout].Attr[kReconCap] = 1999;  // 2000 points
  SightPass();
  ExpectSeenWithin(5, 5, 2);
  Type[scout].Attr[kReconCap] = 4498;  // 4499 points
  SightPass();
  ExpectSeenWithin(5, 5, 2);
  Type[scout].Attr[kReconCap] = 4499;  // 4500 points
  SightPass();
  ExpectSeenWithin(5, 5, 3);
  EngineVar[232].Value = 500;  // a cheaper rule: 4500 points reach the fourth ring (4000)
  SightPass();
  ExpectSeenWithin(5, 5, 4);
}

TEST_F(SightTest, TheFormationsOfAStackAddTheirPoints) {
  Type[scout].Attr[kReconCap] = 999;
  world::AddUnit(red, 5, 5, "A", scout, 1);  // 1000
  Hex[5][5].Owner = 0;
  SightPass();
  ExpectSeenWithin(5, 5, 1);
  world::AddUnit(red, 5, 5, "B", scout, 1);  // 2000 together
  Hex[5][5].Owner = 0;
  SightPass();
  ExpectSeenWithin(5, 5, 2);
}

TEST_F(SightTest, OverOwnLandSightRunsElevenRingsWithOnePoint) {
  MakeMap(30, 30, 1);
  Game.FogOfWar = 1;
  world::AddUnit(red, 1, 15, "1st", rifle, 10);
  SightPass();
  EXPECT_EQ(Hex[12][15].Vis, 1);
  EXPECT_EQ(Hex[13][15].Vis, 0);
  ExpectSeenWithin(1, 15, 11);
}

TEST_F(SightTest, ForeignLandPassesSightOnOnlyAtTheFullPrice) {
  for (int x = 1; x <= 4; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = red;
  world::AddUnit(red, 1, 5, "1st", rifle, 10);
  SightPass();
  for (int y = 1; y <= 10; ++y) {
    EXPECT_EQ(Hex[5][y].Vis, 1) << y;
    EXPECT_EQ(Hex[6][y].Vis, 0) << y;
  }
}

class ShipSightTest : public SightTest {
 protected:
  void SetUp() override {
    SightTest::SetUp();
    // Sea in columns 1..5, neutral land beyond.
    for (int x = 1; x <= 5; ++x)
      for (int y = 1; y <= 10; ++y) Hex[x][y].Land = kSea;
  }
};

TEST_F(ShipSightTest, AShipSeesTheShoreAndNoFurther) {
  Type[warship].Attr[kReconCap] = 500000;  // 1000001 points: every ring
  Ship(red, 3, 5, "Fleet", 0);
  Hex[3][5].Owner = 0;
  SightPass();
  for (int y = 1; y <= 10; ++y) {
    for (int x = 1; x <= 6; ++x) EXPECT_EQ(Hex[x][y].Vis, 1) << x << "," << y;
    EXPECT_EQ(Hex[7][y].Vis, 0) << y;
  }
}

TEST_F(ShipSightTest, OwnShoreLooksOutToSeaButSeaSightDoesNotGoInland) {
  // A ship in an own port on the coast: from the port the sea field goes
  // out to sea; from the port inland it does not.
  Hex[6][5].Land = kUrban;
  Hex[6][5].Owner = red;
  Type[warship].Attr[kReconCap] = 500000;
  Ship(red, 6, 5, "Fleet", 0);
  SightPass();
  EXPECT_EQ(Hex[1][5].Vis, 1);
  EXPECT_EQ(Hex[7][5].Vis, 0);
  EXPECT_EQ(Hex[8][5].Vis, 0);
}

TEST_F(ShipSightTest, AircraftLookOverSeaAndLandAlike) {
  Type[fighter].Attr[kReconCap] = 200000;  // 1000001 points
  Wing(red, 3, 5, "Wing", 0);
  Hex[3][5].Owner = 0;
  SightPass();
  EXPECT_EQ(Hex[7][5].Vis, 1);
  EXPECT_EQ(Hex[10][5].Vis, 1);
}

TEST_F(ShipSightTest, LandSightDoesNotLeaveTheSea) {
  // A land formation aboard nothing, standing on a sea hex by bad data,
  // looks nowhere: land sight starts only from land.
  Type[scout].Attr[kReconCap] = 500000;
  world::AddUnit(red, 3, 5, "Swimmers", scout, 2);
  Hex[3][5].Owner = 0;
  SightPass();
  EXPECT_EQ(Hex[3][5].Vis, 1);
  EXPECT_EQ(Hex[4][5].Vis, 0);
  EXPECT_EQ(Hex[2][5].Vis, 0);
}

TEST_F(SightTest, OnlyTheCurrentRegimeLooks) {
  world::AddUnit(blue, 5, 5, "Enemy", rifle, 10);
  SightPass();
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) EXPECT_EQ(Hex[x][y].Vis, 0);
}

TEST_F(SightTest, ExplorationCoversWhatIsSeenAndTheRimOfOwnLand) {
  Game.FogOfExploration = 1;
  world::AddUnit(red, 2, 2, "1st", rifle, 10);
  Hex[2][2].Owner = 0;
  Hex[8][8].Owner = red;
  Hex[9][1].Seen[red] = 1;  // explored in an earlier turn
  SightPass();
  EXPECT_EQ(Hex[2][2].Seen[red], 1);
  EXPECT_EQ(Hex[3][2].Seen[red], 1);
  EXPECT_EQ(Hex[4][2].Seen[red], 0);
  // The rim of (8, 8), even row: (7,7) (8,7) (9,8) (8,9) (7,9) (7,8).
  for (auto [x, y] : {std::pair{7, 7}, {8, 7}, {9, 8}, {8, 9}, {7, 9}, {7, 8}}) {
    EXPECT_EQ(Hex[x][y].Seen[red], 1) << x << "," << y;
    EXPECT_EQ(Hex[x][y].Vis, 0) << x << "," << y;
  }
  // The own hex itself has no own neighbour and nobody looking at it.
  EXPECT_EQ(Hex[8][8].Seen[red], 0);
  EXPECT_EQ(Hex[9][1].Seen[red], 1);
  EXPECT_EQ(Hex[5][5].Seen[red], 0);
  EXPECT_EQ(Hex[3][2].Seen[blue], 0);
}

TEST_F(SightTest, ExplorationWithoutFogOfWarSeesEverything) {
  Game.FogOfWar = 0;
  Game.FogOfExploration = 1;
  world::AddUnit(red, 2, 2, "1st", rifle, 10);
  Hex[2][2].Owner = 0;
  SightPass();
  // The look from the stack writes 1 over the 3 of a game without fog of war.
  EXPECT_EQ(Hex[2][2].Vis, 1);
  EXPECT_EQ(Hex[3][2].Vis, 1);
  EXPECT_EQ(Hex[9][9].Vis, 3);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) EXPECT_EQ(Hex[x][y].Seen[red], 1);
}

TEST_F(SightTest, TheScratchFieldsAreLeftAtRest) {
  world::AddUnit(red, 2, 2, "1st", rifle, 10);
  SightPass();
  for (int x = 1; x <= 10; ++x) {
    for (int y = 1; y <= 10; ++y) {
      EXPECT_EQ(Hex[x][y].Mark, 999);
      EXPECT_EQ(Hex[x][y].ScratchRecon, 0);
    }
  }
}

}  // namespace
}  // namespace mf
