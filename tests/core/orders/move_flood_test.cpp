// The movement flood: Hex.Mark fields worked out by hand on small maps.
//
// The maps have odd rows shifted half a hex east. From (3, 3) the six
// neighbours are (3,2) (4,2) (4,3) (4,4) (3,4) (2,3); from an even row such
// as (3, 2) they are (2,1) (3,1) (4,2) (3,3) (2,3) (2,2).
#include <gtest/gtest.h>

#include "orders/flood.h"
#include "orders/movement.h"
#include "orders/transport.h"
#include "orders_test_util.h"

namespace mf {
namespace {

using Rows = std::vector<std::string>;
namespace world = test::world;

class MoveFloodTest : public test::OrdersTest {};

TEST_F(MoveFloodTest, FootInfantryOnOwnGrassReachesItsMP) {
  MakeMap(10, 10);
  Infantry(red, 3, 3, "1st", 2);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(MarkRows(), (Rows{
                            "- 2 2 2 - -",
                            "- 2 1 1 2 -",
                            "2 1 0 1 2 -",
                            "- 2 1 1 2 -",
                            "- 2 2 2 - -",
                            "- - - - - -",
                        }));
  EXPECT_EQ(MarksBeyond(), 0);
  EXPECT_EQ(Hex[3][3].Wave, 1);
  EXPECT_EQ(Hex[4][2].Wave, 2);
  EXPECT_EQ(Hex[5][2].Wave, 3);
  EXPECT_EQ(Hex[6][6].Wave, 999);
}

TEST_F(MoveFloodTest, ForestSwampMountainAndRiverForFootInfantry) {
  // Forest east (2), swamp south-west (2 for foot troops), mountain west
  // (999), a river on the north-east side of the origin (1 + 2).
  MakeMap(10, 10);
  Hex[4][3].Land = kForest;
  Hex[3][4].Land = kSwamp;
  Hex[2][3].Land = kMountain;
  Hex[3][3].River[2] = 1;
  Infantry(red, 3, 3, "1st", 3);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(MarkRows(), (Rows{
                            "3 2 2 3 - -",
                            "3 2 1 2 3 -",
                            "3 - 0 2 3 -",
                            "- 3 2 1 2 3",
                            "- 3 2 2 3 -",
                            "- - 3 3 3 -",
                        }));
  EXPECT_EQ(MarksBeyond(), 0);
  // (4, 2) is cheaper round the river: left from (3, 3) in wave 1, from (3, 2) in wave 2.
  EXPECT_EQ(Hex[4][2].Wave, 3);
  EXPECT_EQ(Hex[4][2].Route[0][1], 3);
  EXPECT_EQ(Hex[4][2].Route[1][1], 3);
  EXPECT_EQ(Hex[4][2].Route[0][2], 3);
  EXPECT_EQ(Hex[4][2].Route[1][2], 2);
  EXPECT_EQ(Hex[4][2].Route[0][3], 0);
}

TEST_F(MoveFloodTest, CarriedTroopsPayExtraInForestAndStayOutOfSwamps) {
  MakeMap(10, 10);
  Hex[4][3].Land = kForest;
  Hex[3][4].Land = kSwamp;
  Motorised(red, 3, 3, "1st", 4);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 4);    // forest 2 + engine variable 7's 2
  EXPECT_EQ(Hex[3][4].Mark, 999);  // vehicles never enter a swamp
  EXPECT_EQ(Hex[4][4].Mark, 1);
  EXPECT_EQ(Hex[2][4].Mark, 2);    // round the swamp: (2, 3), then (2, 4)
}

TEST_F(MoveFloodTest, ARoadInForestAcrossARiverCostsOne) {
  MakeMap(10, 10);
  Hex[4][3].Land = kForest;
  Hex[3][3].River[3] = 1;
  Hex[3][3].Road = 1;
  Hex[4][3].Road = 1;
  Motorised(red, 3, 3, "1st", 1);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 1);
  // Without the road the straight step costs forest 2 + vehicles 2 + river
  // 2; round the river, by (4, 2) or (4, 4), it is 1 + 4.
  Hex[4][3].Road = 0;
  Unit[Hex[3][3].Unit[1]].MP = 9;
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 5);
  Hex[4][2].Land = kMountain;
  Hex[4][4].Land = kMountain;
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 6);
}

TEST_F(MoveFloodTest, ARoadLeadsIntoATownAndOutOfIt) {
  MakeMap(10, 10);
  Hex[3][3].Road = 1;
  Hex[4][3].Land = kUrban;
  Hex[5][3].Land = kForest;
  Hex[5][3].Road = 1;
  EngineVar[3].Value = 4;  // urban would cost 4 without the road
  Infantry(red, 3, 3, "1st", 2);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 1);
  EXPECT_EQ(Hex[5][3].Mark, 2);
}

TEST_F(MoveFloodTest, OnlyTheSHQNumberedOneMovesAtAFlatRate) {
  MakeMap(10, 10);
  Hex[4][3].Land = kForest;
  Hex[2][3].Land = kMountain;
  const int shq = world::AddUnit(red, 3, 3, "Army");
  Unit[shq].Shq = 1;
  Unit[shq].MP = 1;
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 1);
  EXPECT_EQ(Hex[2][3].Mark, 999);  // 999 stays 999
  Hex[3][3].River[6] = 1;          // nor does a river make a mountain passable
  MoveFlood(true);
  EXPECT_EQ(Hex[2][3].Mark, 999);
  Unit[shq].Shq = 2;
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 999);  // forest 2 is beyond its 1 MP
}

TEST_F(MoveFloodTest, MPZeroFloodsAsOneButOffersOnlyTheFreeReturn) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 0);
  Unit[u].FromX = 4;
  Unit[u].FromY = 4;
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(MarkRows(), (Rows{
                            "- - - - - -",
                            "- - - - - -",
                            "- - 0 - - -",
                            "- - - 0 - -",
                            "- - - - - -",
                            "- - - - - -",
                        }));
  EXPECT_EQ(MarksBeyond(), 0);
}

TEST_F(MoveFloodTest, TheFreeReturnNeedsOwnLandWithRoom) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 0);
  Unit[u].FromX = 4;
  Unit[u].FromY = 4;
  Hex[4][4].Owner = 0;
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][4].Mark, 999);
  Hex[4][4].Owner = red;
  Infantry(red, 4, 4, "2nd", 0);
  Infantry(red, 4, 4, "3rd", 0);
  Infantry(red, 4, 4, "4th", 0);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][4].Mark, 999);
}

TEST_F(MoveFloodTest, AWeakFormationEntersOwnLandButNotNeutralLand) {
  MakeMap(10, 10);
  Hex[4][3].Owner = 0;
  Hex[4][4].Owner = blue;
  // 20 rifles: 20/20 x 10 x 20 = 200, below the 250 of engine variable 101.
  const int u = world::AddUnit(red, 3, 3, "Weak", rifle, 20);
  Unit[u].MP = 3;
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[3][2].Mark, 1);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[4][4].Mark, 999);
  // 25 rifles make 250, which is enough: foreign land costs 1 more.
  Unit[u].InfQty = 25;
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 2);
  EXPECT_EQ(Hex[4][4].Mark, 2);
}

TEST_F(MoveFloodTest, OccupiedForeignLandAndPeaceLandAreClosed) {
  MakeMap(10, 10);
  const int green = world::AddRegime("Green");
  Dip[red][green].Relation = 1;
  Hex[4][3].Owner = blue;
  Infantry(blue, 4, 3, "Enemy", 3);
  Hex[4][4].Owner = green;
  Hex[3][4].Owner = blue;  // empty enemy land: 1 + 1
  Infantry(red, 3, 3, "1st", 3);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[4][4].Mark, 999);
  EXPECT_EQ(Hex[3][4].Mark, 2);
}

TEST_F(MoveFloodTest, AHumanCannotWalkIntoHexesHeDoesNotSee) {
  // A corridor of own grass at row 3, the rest mountain; (4, 3) unseen.
  MakeMap(10, 10);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y)
      if (y != 3) Hex[x][y].Land = kMountain;
  Hex[4][3].Vis = 0;
  Infantry(red, 3, 3, "1st", 3);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[5][3].Mark, 999);
  EXPECT_EQ(Hex[2][3].Mark, 1);
  // The computer walks through; the unseen hex itself still is no target.
  Regime[red].AI = 1;
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[5][3].Mark, 2);
  EXPECT_EQ(Hex[5][3].Route[0][2], 4);
}

TEST_F(MoveFloodTest, AFullHexRefusesEveryStepIntoIt) {
  MakeMap(10, 10);
  Infantry(red, 4, 3, "A", 0);
  Infantry(red, 4, 3, "B", 0);
  Infantry(red, 4, 3, "C", 0);
  Infantry(red, 3, 3, "1st", 3);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[5][3].Mark, 3);  // round it: (4, 2), (5, 2), (5, 3)
}

TEST_F(MoveFloodTest, MoreMPThanWavesStillStopsAfterFifteenWaves) {
  MakeMap(20, 20);
  Infantry(red, 1, 1, "1st", 40);
  Origin(1, 1);
  MoveFlood(true);
  EXPECT_EQ(Hex[16][1].Mark, 15);
  EXPECT_EQ(Hex[17][1].Mark, 999);
  EXPECT_EQ(Hex[16][1].Route[0][15], 15);
}

TEST_F(MoveFloodTest, EditModeReachesEveryHexAtNoCost) {
  MakeMap(10, 10);
  Hex[2][3].Land = kMountain;
  Infantry(red, 3, 3, "1st", 0);
  Origin(3, 3);
  UI.EditMode = 1;
  MoveFlood(false);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) EXPECT_EQ(Hex[x][y].Mark, 0) << x << "," << y;
}

TEST_F(MoveFloodTest, ShipsSailTheSeaEnterOwnPortsAndShowTheShore) {
  // Columns 1..3 are sea, 4..6 land; an own port at (4, 3), an enemy town
  // at (4, 5), an enemy ship at (1, 1). Urban costs row 10 (2 here), sea
  // row 11 (1): the rows are read crosswise to their labels.
  MakeMap(10, 10);
  for (int x = 1; x <= 3; ++x)
    for (int y = 1; y <= 10; ++y) {
      Hex[x][y].Land = kSea;
      Hex[x][y].Owner = 0;
    }
  Hex[4][3].Land = kUrban;
  Hex[4][5].Land = kUrban;
  Hex[4][5].Owner = blue;
  EngineVar[10].Value = 2;
  EngineVar[11].Value = 1;
  Ship(blue, 1, 1, "Raider", 0);
  Ship(red, 2, 3, "Fleet", 3);
  Hex[1][1].Owner = 0;  // the sea belongs to nobody
  Hex[2][3].Owner = 0;
  Origin(2, 3);
  MoveFlood(true);
  EXPECT_EQ(MarkRows(6, 7), (Rows{
                                "S 2 2 S - -",
                                "2 1 1 S S -",
                                "1 0 1 3 S -",
                                "2 1 1 S S -",
                                "2 2 2 S - -",
                                "3 3 3 S - -",
                                "S S S - - -",
                            }));
  EXPECT_EQ(MarksBeyond(6, 7), 0);
}

TEST_F(MoveFloodTest, AFullHexIsClosedToShipsToo) {
  MakeMap(10, 10);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      Hex[x][y].Land = kSea;
      Hex[x][y].Owner = 0;
    }
  Ship(red, 3, 3, "A", 0);
  Ship(red, 3, 3, "B", 0);
  Ship(red, 3, 3, "C", 0);
  Ship(red, 4, 3, "Fleet", 3);
  Origin(4, 3);
  MoveFlood(true);
  EXPECT_EQ(Hex[3][3].Mark, 9999);  // shown, not entered
  EXPECT_EQ(Hex[2][3].Mark, 3);     // round it: (4, 2), (3, 2), (2, 3)
}

TEST_F(MoveFloodTest, AnAirWingRebasesOnlyToOwnGrassAndTowns) {
  // All cost 1 (engine variable 12). Peace land (5, 2) is closed to the
  // flood; the filter of a plain move keeps own grass and towns with room:
  // forest (2, 2), Blue's (5, 3), the full hex (4, 4) and the sea (3, 5)
  // go; the full hex (1, 3) stays, as it lies in the selection's row.
  MakeMap(10, 10);
  const int green = world::AddRegime("Green");
  Dip[red][green].Relation = 1;
  Hex[5][2].Owner = green;
  Hex[5][3].Owner = blue;
  Hex[2][2].Land = kForest;
  Hex[3][5].Land = kSea;
  Hex[3][5].Owner = 0;
  for (const char* n : {"A", "B", "C"}) Infantry(red, 4, 4, n, 0);
  for (const char* n : {"D", "E", "F"}) Infantry(red, 1, 3, n, 0);
  Wing(red, 3, 3, "Wing", 2);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(MarkRows(), (Rows{
                            "- 2 2 2 - -",
                            "- - 1 1 - -",
                            "2 1 0 1 - -",
                            "- 2 1 - 2 -",
                            "- 2 - 2 - -",
                            "- - - - - -",
                        }));
  EXPECT_EQ(MarksBeyond(), 0);
}

TEST_F(MoveFloodTest, InterdictionReachesEverythingButPeaceLand) {
  MakeMap(10, 10);
  const int green = world::AddRegime("Green");
  Dip[red][green].Relation = 1;
  Hex[5][2].Owner = green;
  Hex[5][3].Owner = blue;
  Hex[2][2].Land = kForest;
  Hex[3][5].Land = kSea;
  Hex[3][5].Owner = 0;
  Hex[4][5].Vis = 0;
  Wing(red, 3, 3, "Wing", 2);
  Origin(3, 3);
  UI.Order.InterdictOrder = 1;
  MoveFlood(true);
  EXPECT_EQ(MarkRows(), (Rows{
                            "- 2 2 2 - -",
                            "- 2 1 1 - -",
                            "2 1 0 1 2 -",
                            "- 2 1 1 2 -",
                            "- 2 2 - - -",
                            "- - - - - -",
                        }));
  EXPECT_EQ(MarksBeyond(), 0);
}

TEST_F(MoveFloodTest, StrategicBombingLooksPastTheFog) {
  MakeMap(10, 10);
  Hex[4][5].Vis = 0;
  Wing(red, 3, 3, "Wing", 2);
  Origin(3, 3);
  UI.Order.StratBombOrder = 1;
  MoveFlood(true);
  EXPECT_EQ(Hex[4][5].Mark, 2);
}

TEST_F(MoveFloodTest, AnAirdropAvoidsMountainsSeaPeaceAndUnexploredLand) {
  MakeMap(10, 10);
  const int green = world::AddRegime("Green");
  Dip[red][green].Relation = 1;
  Game.FogOfExploration = 1;
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Seen[red] = 1;
  Hex[3][2].Land = kMountain;
  Hex[4][2].Land = kSea;
  Hex[4][2].Owner = 0;
  Hex[4][3].Owner = green;  // closed to the flood already
  Hex[4][4].Seen[red] = 0;
  Hex[3][4].Vis = 0;        // a drop does not need to see
  Hex[2][3].Owner = blue;   // enemy land is a drop zone
  Wing(red, 3, 3, "Wing", 1);
  Origin(3, 3);
  UI.Order.AirliftOrder = 1;
  AirliftDrop = 0;
  MoveFlood(true);
  EXPECT_EQ(Hex[3][2].Mark, 999);
  EXPECT_EQ(Hex[4][2].Mark, 999);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[4][4].Mark, 999);
  EXPECT_EQ(Hex[3][4].Mark, 1);
  EXPECT_EQ(Hex[2][3].Mark, 1);
  // Troops that must land need an own airfield that is seen.
  AirliftDrop = 1;
  MoveFlood(true);
  EXPECT_EQ(Hex[3][4].Mark, 999);
  EXPECT_EQ(Hex[2][3].Mark, 999);
  EXPECT_EQ(Hex[4][4].Mark, 1);
  AirliftDrop = 0;
}

TEST_F(MoveFloodTest, AirSupplyReachesOwnLandOnly) {
  MakeMap(10, 10);
  Hex[3][2].Land = kMountain;
  Hex[4][3].Owner = blue;
  Hex[4][4].Land = kForest;
  Wing(red, 3, 3, "Wing", 1);
  Origin(3, 3);
  UI.Order.AirSupplyOrder = 1;
  MoveFlood(true);
  EXPECT_EQ(Hex[3][2].Mark, 999);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_EQ(Hex[4][4].Mark, 1);  // a supply drop needs no airfield
}

TEST_F(MoveFloodTest, ADrawnFloodKeepsItsBox) {
  MakeMap(10, 10);
  Infantry(red, 3, 4, "1st", 2);
  Origin(3, 4);
  UI.RedrawRequest = 0;
  MoveFlood(false);
  EXPECT_EQ(FloodMinX, 1);
  EXPECT_EQ(FloodMinY, 1);
  EXPECT_EQ(FloodMaxX, 6);
  EXPECT_EQ(FloodMaxY, 7);
  EXPECT_EQ(UI.RedrawRequest, 2);
}

TEST_F(MoveFloodTest, AHugeStepCostIntoForeignLandStaysOutOfReach) {
  // A scenario may set grass to any cost; with the extra for foreign land on
  // top it must not come round to a cheap step.
  MakeMap(10, 10, 2);
  Hex[3][3].Owner = red;
  EngineVar[1].Value = 2147483647;
  EngineVar[9].Value = 1;
  EngineVar[101].Value = 0;
  Infantry(red, 3, 3, "1st", 3);
  Origin(3, 3);
  MoveFlood(true);
  EXPECT_EQ(MarkRows(), (Rows{
                            "- - - - - -",
                            "- - - - - -",
                            "- - 0 - - -",
                            "- - - - - -",
                            "- - - - - -",
                            "- - - - - -",
                        }));
  EXPECT_EQ(MarksBeyond(), 0);
}

}  // namespace
}  // namespace mf
