// The computer player's analysis of areas and fronts on small one-row maps,
// every figure worked out by hand (the working is in the comments).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ai/ai_state.h"
#include "ai/areas.h"
#include "ai/fronts.h"
#include "ai_world.h"

namespace mf {
namespace {

using namespace test::ai;
using Row = std::vector<long>;
using Lines = std::vector<std::string>;

class AnalysisTest : public test::CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    ResetAIState();
  }
  // Two regimes, A (1) to move and B (2), at war; the game ends at 1000.
  void Regimes() {
    test::world::AddRegime("A");
    test::world::AddRegime("B");
    Game.CurRegime = 1;
    Game.GameEndPop = 1000;
  }
  void FindAll() {
    AIClear();
    AIFindAreas();
    AIAreaStrength();
    AIFindFronts();
  }
  void AnalyseAll() {
    FindAll();
    AIAssignFronts();
  }
  Lines Log() const { return platform.AnalysisLines(); }
  Lines LogFrom(std::size_t first) const {
    const Lines& all = platform.AnalysisLines();
    return Lines(all.begin() + static_cast<long>(first), all.end());
  }
};

// Two regimes on one landmass:
//   column   1   2      3   4   5   6      7
//   land     g   Ashby  f   g   s   Brill  g
//   owner    A   A      A   A   B   B      B
// Ashby (pop 200) is area 1, Brill (pop 100) area 2. Wave 1: Ashby gives
// forest 3 Int(100 x 0.75) = 75 and grass 1 90; Brill gives grass 7 90 and
// swamp 5 50. Wave 2: hex 3 gives grass 4 Int(75 x 0.9) = 67; hex 5 finds
// hex 4 taken. Land borders are counted from both sides: [1,2] = [2,1] = 2.
// Smoothing in place: area 1 Int((200 + 100) / 2) = 150, then area 2
// Int((100 + 150) / 2) = 125.
TEST_F(AnalysisTest, TwoRegimesOnOneLandmass) {
  RowMap("gTfgsTg", "1111222");
  Regimes();
  Town(2, "Ashby", 200);
  Town(6, "Brill", 100);
  const int mine = Soldiers(1, 4, "1st", 10);
  Soldiers(2, 5, "Foe", 10);
  AIClear();
  AIFindAreas();
  EXPECT_EQ(LandmassRow(), (Row{1, 1, 1, 1, 1, 1, 1}));
  EXPECT_EQ(AreaRow(), (Row{1, 1, 1, 1, 2, 2, 2}));
  EXPECT_EQ(AreaValueRow(), (Row{90, 100, 75, 67, 50, 100, 90}));
  EXPECT_EQ(AI.LandmassCount, 1);
  EXPECT_EQ(AI.AreaCount, 2);
  EXPECT_EQ(AI.AreaX[1], 2);
  EXPECT_EQ(AI.AreaX[2], 6);
  EXPECT_EQ(AI.AreaLandmass[1], 1);
  EXPECT_EQ(AI.AreaLandmass[2], 1);
  EXPECT_EQ(AI.AreaLandBorder[1][2], 2);
  EXPECT_EQ(AI.AreaLandBorder[2][1], 2);
  EXPECT_EQ(AI.AreaSeaBorder[1][2], 0);
  EXPECT_EQ(AI.AreaCoastBorder[1][2], 0);
  EXPECT_EQ(AI.AreaValue[1], 150);
  EXPECT_EQ(AI.AreaValue[2], 125);
  EXPECT_EQ(AI.AreaLandDist[1][2], 1);
  EXPECT_EQ(AI.AreaLandDist[2][1], 1);
  EXPECT_EQ(AI.AreaLandDist[1][1], 2);  // there and back
  EXPECT_EQ(AI.AreaLandDist[2][2], 2);
  EXPECT_EQ(AI.AreaSeaDist[1][2], 999);
  EXPECT_EQ(AI.AreaSeaDist[1][1], 999);

  // Only A's own unit is counted (worth 10); Brill is estimated at
  // Int(Sqr(125 / 200)) = 0.
  AIAreaStrength();
  EXPECT_EQ(AI.AreaSide[1], 1);
  EXPECT_EQ(AI.AreaSide[2], 2);
  EXPECT_EQ(AI.AreaOwnStrength[1], 10);
  EXPECT_EQ(AI.AreaEnemyStrength[2], 0);
  EXPECT_EQ(AI.AreaContact[1], 0);
  EXPECT_EQ(AI.AreaContact[2], 10);

  // The front's weight: Int(125 x 100 / 1000) + Int(150 x 100 / 1000) + 0 = 27.
  AIFindFronts();
  EXPECT_EQ(AI.FrontCount, 1);
  EXPECT_EQ(AI.FrontOwnArea[1], 1);
  EXPECT_EQ(AI.FrontEnemyArea[1], 2);
  EXPECT_EQ(AI.FrontWeight[1], 27);
  EXPECT_EQ(Log(), (Lines{"", "OPERATIONS:", "---------------", "FRONT (27) :Ashby <--> Brill"}));

  // S = 1 + 10 = 11, the unit's per mille Int(10 x 1000 / 11) = 909. The one
  // front weighs 1000. Stance: O 10, E 0, B = 100: full offensive.
  AIAssignFronts();
  EXPECT_EQ(Unit[mine].Front, 1);
  EXPECT_EQ(AI.FrontWeight[1], 1000);
  EXPECT_EQ(AI.FrontShare[1], 909);
  EXPECT_EQ(AI.FrontStrength[1], 10);
  EXPECT_EQ(AI.FrontStance[1], 4);
  EXPECT_EQ(LogFrom(4), (Lines{"", "OPERATIONS:", "Unused land strength:  91", "---------------",
                               "Fr(909/1000) :Ashby<>Brill", "FULL OFFENSIVE", "->1st( 909"}));
}

TEST_F(AnalysisTest, AFrontAgainstARegimeAtPeaceKeepsAFifthOrATenth) {
  RowMap("gTfgsTg", "1111222");
  Regimes();
  Town(2, "Ashby", 200);
  Town(6, "Brill", 100);
  Dip[1][2].Relation = 1;
  Dip[1][2].Cost = 100;
  FindAll();
  ASSERT_EQ(AI.FrontCount, 1);
  EXPECT_EQ(AI.FrontWeight[1], 5);  // Int(27 / 5)
  Dip[1][2].Cost = 999;             // peace that is dear to break
  FindAll();
  EXPECT_EQ(AI.FrontWeight[1], 2);  // Int(27 / 10)
}

// A neutral town next to an own area: the front is full offensive whatever
// the figures say. An own unit of worth 30 standing in the neutral area
// raises its estimate to 30 and strays to the front: O = 10 + 30, E = 30,
// B = Int(4000 / 70 - 3000 / 70) = 14, which by itself is an offensive (3).
TEST_F(AnalysisTest, ANeutralTownNextDoorIsAFullOffensive) {
  RowMap("gTfgsTg", "1111222");
  Regimes();
  Town(2, "Ashby", 200);
  Town(6, "Brill", 100);
  Soldiers(1, 4, "1st", 10);
  const int stray = Soldiers(1, 7, "2nd", 30);
  AnalyseAll();
  EXPECT_EQ(Unit[stray].Front, 1);
  EXPECT_EQ(AI.AreaEnemyStrength[2], 30);
  EXPECT_EQ(AI.FrontStance[1], 3);

  for (int x = 5; x <= 7; ++x) Hex[x][1].Owner = 0;
  AnalyseAll();
  EXPECT_EQ(AreaRow(), (Row{1, 1, 1, 1, 2, 2, 2}));
  EXPECT_EQ(AI.AreaEnemyStrength[2], 30);
  EXPECT_EQ(AI.FrontStrength[1], 40);
  EXPECT_EQ(AI.FrontStance[1], 4);
}

// One town and no foreign neighbour: one garrison front of weight
// Int(300 x 100 / 1000 / 3) = 10, stance 0.
TEST_F(AnalysisTest, ALoneTownGetsOneGarrisonFront) {
  RowMap("Tgg", "111");
  Regimes();
  Town(1, "Ashby", 300);
  Soldiers(1, 2, "1st", 10);
  FindAll();
  ASSERT_EQ(AI.FrontCount, 1);
  EXPECT_EQ(AI.FrontOwnArea[1], 1);
  EXPECT_EQ(AI.FrontEnemyArea[1], 0);
  EXPECT_EQ(AI.FrontWeight[1], 10);
  EXPECT_EQ(Log().back(), "GARRISON (10) :Ashby");
  AIAssignFronts();
  EXPECT_EQ(AI.FrontStance[1], 0);
  EXPECT_EQ(LogFrom(4), (Lines{"", "OPERATIONS:", "Unused land strength:  91", "---------------",
                               "Fr(909/1000) :Ashby<>", "*GARRISON*", "->1st( 909"}));
}

// Two towns of one regime that touch: no front between them, a garrison each.
// Ashby (100) takes the grass between them; smoothing gives Ashby
// Int((100 + 200) / 2) = 150 and Cole Int((200 + 150) / 2) = 175, so the
// garrisons weigh Int(150 x 100 / 1000 / 3) = 5 and Int(17.5 / 3) = 5.
TEST_F(AnalysisTest, TwoOwnAreasThatTouchFormNoFront) {
  RowMap("TgT", "111");
  Regimes();
  Town(1, "Ashby", 100);
  Town(3, "Cole", 200);
  FindAll();
  EXPECT_EQ(AreaRow(), (Row{1, 1, 2}));
  EXPECT_EQ(AI.AreaLandBorder[1][2], 2);
  EXPECT_EQ(AI.AreaValue[1], 150);
  EXPECT_EQ(AI.AreaValue[2], 175);
  ASSERT_EQ(AI.FrontCount, 2);
  EXPECT_EQ(AI.FrontEnemyArea[1], 0);
  EXPECT_EQ(AI.FrontEnemyArea[2], 0);
  EXPECT_EQ(LogFrom(3), (Lines{"GARRISON (5) :Ashby", "GARRISON (5) :Cole"}));
}

// An island with a port: the town's water is reached through the town hex
// only. Wave 1 from the town: sea 2 90 and grass 4 90; wave 2: sea 1 81,
// while grass 4 may not go to sea, so the coast at 5 and 6 stays without area.
TEST_F(AnalysisTest, AnIslandPortOwnsTheWaterReachedFromTheTown) {
  RowMap("~~Tg~~", "001100");
  Regimes();
  Town(3, "Ashby", 100);
  FindAll();
  EXPECT_EQ(LandmassRow(), (Row{0, 0, 1, 1, 0, 0}));
  EXPECT_EQ(AreaRow(), (Row{1, 1, 1, 1, 0, 0}));
  EXPECT_EQ(AreaValueRow(), (Row{81, 90, 100, 90, 0, 0}));
  EXPECT_EQ(AI.AreaCount, 1);
  EXPECT_EQ(AI.LandmassCount, 1);
}

// A sea front between two islands:
//   column   1      2   3   4   5
//   land     Ashby  ~   ~   ~   Brill
// Ashby's water: 2 (90), then 3 (81) in wave 2, before Brill's 4 (90) can
// reach it. Sea borders: [1,2] = [2,1] = 1. No land borders, so no
// smoothing: 300 and 200. Brill is estimated at Int(Sqr(1)) = 1.
// Weight: 20 + 30 + 1 = 51, over a distance of 4: Int(51 x 100 / 54) = 94;
// soft (1 x 5 < 10): 47. A ship at Ashby's water has sea distance 2 to its
// own area and joins the only sea front with 100 - 16 + 909.
TEST_F(AnalysisTest, ASeaFrontBetweenTwoIslands) {
  RowMap("T~~~T", "10002");
  Regimes();
  Town(1, "Ashby", 300);
  Town(5, "Brill", 200);
  const int soldiers = Soldiers(1, 1, "1st", 10);
  const int fleet = Ship(1, 2, "Fleet");
  FindAll();
  EXPECT_EQ(LandmassRow(), (Row{1, 0, 0, 0, 2}));
  EXPECT_EQ(AreaRow(), (Row{1, 1, 1, 2, 2}));
  EXPECT_EQ(AreaValueRow(), (Row{100, 90, 81, 90, 100}));
  EXPECT_EQ(AI.LandmassCount, 2);
  EXPECT_EQ(AI.AreaSeaBorder[1][2], 1);
  EXPECT_EQ(AI.AreaSeaBorder[2][1], 1);
  EXPECT_EQ(AI.AreaCoastBorder[1][2], 0);
  EXPECT_EQ(AI.AreaLandBorder[1][2], 0);
  EXPECT_EQ(AI.AreaValue[1], 300);
  EXPECT_EQ(AI.AreaValue[2], 200);
  EXPECT_EQ(AI.AreaSeaDist[1][2], 1);
  EXPECT_EQ(AI.AreaSeaDist[1][1], 2);
  EXPECT_EQ(AI.AreaLandDist[1][2], 999);
  EXPECT_EQ(AI.AreaEnemyStrength[2], 1);
  ASSERT_EQ(AI.FrontCount, 1);
  EXPECT_TRUE(AIFrontSoft(1));
  EXPECT_EQ(AI.FrontWeight[1], 47);
  EXPECT_EQ(AI.FrontStance[1], 99);
  EXPECT_EQ(Log().back(), "FRONT (47) :Ashby <--> Brill");

  // Stance: O 10, E 1: B = Int(1000 / 11 - 100 / 11) = 81.
  AIAssignFronts();
  EXPECT_EQ(Unit[soldiers].Front, 1);
  EXPECT_EQ(Unit[fleet].Front, 1);
  EXPECT_EQ(AI.FrontShare[1], 909);
  EXPECT_EQ(AI.FrontStance[1], 4);
  EXPECT_EQ(LogFrom(4), (Lines{"", "OPERATIONS:", "Unused land strength:  91", "---------------",
                               "Fr(909/1000) :Ashby<>Brill", "FULL OFFENSIVE", "->1st( 909", "->Fleet( 0"}));
}

// A pocket, and a mountain:
//   column   1      2   3   4   5    6
//   land     Ashby  g   m   g   g    g
//   owner    A      A   A   B   B    B      (B's unit on 5)
// The mountain takes landmass 1 from its neighbour but passes it on to
// nobody, so 4..6 are landmass 2. Ashby's area stops at the mountain. B's
// unit opens pocket area 2 ("Pocket  2", value CInt(1000 / 50) = 20), and
// the pocket takes in B's land around it at 100.
TEST_F(AnalysisTest, APocketAndAMountain) {
  RowMap("Tgmggg", "111222");
  Regimes();
  Town(1, "Ashby", 300);
  Soldiers(1, 2, "1st", 10);
  Soldiers(2, 5, "Foe", 10);
  FindAll();
  EXPECT_EQ(LandmassRow(), (Row{1, 1, 1, 2, 2, 2}));
  EXPECT_EQ(AreaRow(), (Row{1, 1, 0, 2, 2, 2}));
  EXPECT_EQ(AreaValueRow(), (Row{100, 90, 0, 100, 100, 100}));
  EXPECT_EQ(AI.LandmassCount, 2);
  EXPECT_EQ(AI.AreaCount, 2);
  EXPECT_EQ(Hex[5][1].UrbanName, "Pocket  2");
  EXPECT_EQ(AI.AreaX[2], 5);
  EXPECT_EQ(AI.AreaValue[2], 20);
  EXPECT_EQ(AI.AreaSide[2], 2);
  EXPECT_EQ(AI.AreaLandmass[2], 0);
  EXPECT_EQ(AI.AreaLandBorder[1][2], 0);
  ASSERT_EQ(AI.FrontCount, 1);
  EXPECT_EQ(AI.FrontEnemyArea[1], 0);
  EXPECT_EQ(Log().back(), "GARRISON (10) :Ashby");
  // The name stays on the map after the analysis is cleared.
  AIClear();
  EXPECT_EQ(Hex[5][1].UrbanName, "Pocket  2");
}

// Strays and shifting between three fronts:
//   column   1      2      3   4     5     6
//   land     Brill  Ashby  g   Cole  Dunn  g
//   owner    B      A      A   B     A     A
//   pop      400    100        200   300
// Areas in scan order: Brill 1, Ashby 2 (with 3), Cole 3, Dunn 4 (with 6).
// Smoothing in place: 1: Int(500 / 2) = 250; 2: Int((100 + 250 + 200) / 3) =
// 183; 3: Int((200 + 183 + 300) / 3) = 227; 4: Int((300 + 227) / 2) = 263.
// A's units: u1, u2, u3 on Ashby, u4 on 3 (worth 10 each), u5 on 6 (10),
// and u6 (worth 40) standing in Cole. Cole's estimate: Int(Sqr(227 / 200))
// = 1, + 40 = 41; Brill's 1. S = 1 + 40 + 10 = 51; a unit of 10 is
// Int(10000 / 51) = 196 per mille, u6 Int(40000 / 51) = 784.
// Fronts: 1 Ashby-Brill 25 + 18 + 1 = 44; 2 Ashby-Cole 22 + 18 + 41 = 81;
// 3 Dunn-Cole 22 + 26 + 41 = 89; sum 214: per mille 205, 378, 415.
// Round robin on Ashby: u1 -> 1, u2 -> 2, u3 -> 1, u4 -> 2; u5 -> 3. The
// stray u6 sees distance 1 to Ashby and Dunn and takes front 1, the first.
// Shares 1176, 392, 196. Shifting: front 3 is needy; at reach 2 Ashby is
// 2 steps away; at reach 3 front 1 gives u1 (score 997, Ashby's u1 before
// u3 on the tie) and front 2, with share - 10 above weight and stance 0,
// may give, but each of its units would leave it short (score 100). At
// reach 4 front 3 (392) is still needy and front 1 gives u3 (997 - 173).
// Stances: front 1 O 60, E 1: B 96 -> 4; fronts 2 and 3 share Cole:
// O = 20 + 10 = 30, E = 41: B = Int(42.25 - 57.75) = -16 -> 1.
TEST_F(AnalysisTest, StraysAndShiftingBetweenThreeFronts) {
  RowMap("TTgTTg", "211211");
  Regimes();
  Town(1, "Brill", 400);
  Town(2, "Ashby", 100);
  Town(4, "Cole", 200);
  Town(5, "Dunn", 300);
  const int u1 = Soldiers(1, 2, "u1", 10);
  const int u2 = Soldiers(1, 2, "u2", 10);
  const int u3 = Soldiers(1, 2, "u3", 10);
  const int u4 = Soldiers(1, 3, "u4", 10);
  const int u5 = Soldiers(1, 6, "u5", 10);
  const int u6 = Soldiers(1, 4, "u6", 40);
  FindAll();
  EXPECT_EQ(AreaRow(), (Row{1, 2, 2, 3, 4, 4}));
  EXPECT_EQ(AreaValueRow(), (Row{100, 100, 90, 100, 100, 90}));
  EXPECT_EQ(AI.AreaValue[1], 250);
  EXPECT_EQ(AI.AreaValue[2], 183);
  EXPECT_EQ(AI.AreaValue[3], 227);
  EXPECT_EQ(AI.AreaValue[4], 263);
  EXPECT_EQ(AI.AreaLandDist[4][2], 2);
  EXPECT_EQ(AI.AreaLandDist[1][4], 3);
  EXPECT_EQ(AI.AreaLandDist[3][3], 2);
  EXPECT_EQ(AI.AreaEnemyStrength[1], 1);
  EXPECT_EQ(AI.AreaEnemyStrength[3], 41);
  EXPECT_EQ(AI.AreaOwnStrength[2], 40);
  EXPECT_EQ(AI.AreaOwnStrength[4], 10);
  EXPECT_EQ(AI.AreaContact[2], 42);
  EXPECT_EQ(AI.AreaContact[4], 41);
  EXPECT_EQ(AI.AreaContact[1], 40);
  EXPECT_EQ(AI.AreaContact[3], 50);
  EXPECT_EQ(LogFrom(3), (Lines{"FRONT (44) :Ashby <--> Brill", "FRONT (81) :Ashby <--> Cole",
                               "FRONT (89) :Dunn <--> Cole"}));

  AIAssignFronts();
  EXPECT_EQ(AI.FrontWeight[1], 205);
  EXPECT_EQ(AI.FrontWeight[2], 378);
  EXPECT_EQ(AI.FrontWeight[3], 415);
  EXPECT_EQ(AI.FrontShare[1], 784);
  EXPECT_EQ(AI.FrontShare[2], 392);
  EXPECT_EQ(AI.FrontShare[3], 588);
  EXPECT_EQ(AI.FrontStrength[1], 60);  // shifting leaves the strengths alone
  EXPECT_EQ(AI.FrontStrength[2], 20);
  EXPECT_EQ(AI.FrontStrength[3], 10);
  EXPECT_EQ(AI.FrontStance[1], 4);
  EXPECT_EQ(AI.FrontStance[2], 1);
  EXPECT_EQ(AI.FrontStance[3], 1);
  EXPECT_EQ(Unit[u1].Front, 3);
  EXPECT_EQ(Unit[u1].AIX, 4);
  EXPECT_EQ(Unit[u1].AIY, 3);
  EXPECT_EQ(Unit[u2].Front, 2);
  EXPECT_EQ(Unit[u3].Front, 3);
  EXPECT_EQ(Unit[u4].Front, 2);
  EXPECT_EQ(Unit[u5].Front, 3);
  EXPECT_EQ(Unit[u6].Front, 1);
  EXPECT_EQ(LogFrom(6), (Lines{"u1 shifted from  1 to  3.", "u3 shifted from  1 to  3.", "", "OPERATIONS:",
                               "Unused land strength: -764", "---------------", "Fr(784/205) :Ashby<>Brill",
                               "FULL OFFENSIVE", "->u6( 784", "Fr(392/378) :Ashby<>Cole", "*DEFENSIVE*", "->u2( 196",
                               "->u4( 196", "Fr(588/415) :Dunn<>Cole", "*DEFENSIVE*", "->u1( 196", "->u3( 196",
                               "->u5( 196"}));
}

// THQs are not dealt out: the first free one in Ashby takes a front of its
// own area; the second finds Ashby served and goes to Dunn, 2 steps away, at
// reach 2.
TEST_F(AnalysisTest, ThqsGoWhereNoThqServesYet) {
  RowMap("TTgTTg", "211211");
  Regimes();
  Town(1, "Brill", 400);
  Town(2, "Ashby", 100);
  Town(4, "Cole", 200);
  Town(5, "Dunn", 300);
  Soldiers(1, 2, "u1", 10);
  Soldiers(1, 3, "u4", 10);
  Soldiers(1, 6, "u5", 10);
  const int shq = test::world::AddShq(1, 6, 1, 1, "Army");
  const int hq1 = test::world::AddThq(1, 3, 1, shq, "HQ1");
  const int hq2 = test::world::AddThq(1, 3, 1, shq, "HQ2");
  AnalyseAll();
  const std::size_t before = Log().size();
  AIMoveThqFront();
  EXPECT_EQ(Unit[hq1].Front, 1);
  EXPECT_EQ(Unit[hq2].Front, 3);
  EXPECT_EQ(Unit[shq].Front, 0);
  EXPECT_EQ(LogFrom(before), (Lines{"Changed THQ HQ1 to front  1", "Changed THQ HQ2 to front  3"}));
}

}  // namespace
}  // namespace mf
