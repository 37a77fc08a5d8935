// The value field of a front, worked out by hand on maps of two rows.
//
// The land front: Red holds columns 1-3 (area 1), Blue columns 4-6 (area 2).
// Area worths by column 55, 75, 95 | 43, 70, 100; (1,1) is a town. The line
// hexes are (3,1) (counter 1) and (3,2) (counter 2), each looking first at
// the Blue hex east of it (worth 43). With u = 95 and v = 43:
//   L by stance 1..4 = Int(950/30) 31, Int(794/30) 26, Int(638/30) 21, Int(482/30) 16,
//   line values 101 + L and 102 + L, each + Int(95/5) = 19 for an empty hex;
//   inland Int(x 0.85) a step; into Blue Int(43/3 + line value - P) with
//   P = 40, 20, 10, 0; then Int(x 0.95) + 15 and Int(x 0.95) + 10.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/operations.h"
#include "ai/value_field.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

using Grid = std::vector<std::vector<long>>;

class ValueFieldTest : public OpsTest {
 protected:
  // Red's port (2,1) faces Blue across the water of column 3: Red holds
  // columns 1-2 (area 1), Blue columns 4-5 (area 2); area worths by column
  // 81, 100, 90 (the water) | 70, 100, with (1,2) 73 and (2,2) 90.
  int SeaFront() {
    MakeWorld(5, 2, 2);
    for (int y = 1; y <= 2; ++y) {
      Hex[3][y].Land = kSea;
      Hex[3][y].Owner = 0;
    }
    Area(1, 2, 1, 1);
    Area(2, 5, 1, 2);
    const long worth[6] = {0, 81, 100, 90, 70, 100};
    for (int x = 1; x <= 5; ++x) Column(x, x <= 3 ? 1 : 2, worth[x]);
    Hex[1][2].AreaValue = 73;
    Hex[2][2].AreaValue = 90;
    Hex[2][1].Land = kUrban;
    AI.AreaCoastBorder[1][2] = 2;
    return Front(1, 2, 3);
  }
};

TEST_F(ValueFieldTest, DefensiveLandFrontWantsItsLineAndTownsMost) {
  const int f = LandFront(1);
  AIHexValues(f, AIPenalty(1, 1.0), 1);
  // (1,1) is a town in a defensive stance: CInt(95 x 1.4) = 133.
  EXPECT_EQ(WorkGrid(), (Grid{{133, 112, 151, 106, 115, 119}, {96, 113, 152, 106, 115, 119}}));
  EXPECT_EQ(AI.FrontLineHexes[f], 2);
  EXPECT_EQ(AI.FrontLineUnits[f], 0);
}

TEST_F(ValueFieldTest, EvenFrontLooksHalfwayAcross) {
  const int f = LandFront(2);
  AIHexValues(f, AIPenalty(2, 1.0), 1);
  EXPECT_EQ(WorkGrid(), (Grid{{90, 107, 146, 121, 129, 132}, {91, 108, 147, 121, 129, 132}}));
}

TEST_F(ValueFieldTest, OffensiveFrontWantsTheLandInFront) {
  const int f = LandFront(3);
  AIHexValues(f, AIPenalty(3, 1.0), 1);
  EXPECT_EQ(WorkGrid(), (Grid{{87, 103, 141, 126, 134, 137}, {88, 104, 142, 126, 134, 137}}));
}

TEST_F(ValueFieldTest, FullOffensiveWantsTheFarSideMost) {
  const int f = LandFront(4);
  AIHexValues(f, AIPenalty(4, 1.0), 1);
  EXPECT_EQ(WorkGrid(), (Grid{{84, 99, 136, 131, 139, 142}, {85, 100, 137, 131, 139, 142}}));
}

// Units on the even front: a Blue stack on (4,2) threatens both line hexes
// (+9 each) and stops the flow into it; a Red unit of the front on (2,1)
// and one of another front on (3,1) each take 2 x 9 off their hex, and only
// the first counts on the line. (3,1): 127 + 9 = 136, less 18, no bonus for
// an occupied hex: 118. (3,2): 128 + 9 + 19 = 156. (4,1): Int(14.33 + 136 -
// 20) = 130; (5,*) Int(123.5) + 15 = 138; (6,*) Int(131.1) + 10 = 141.
// (2,1): Int(136 x 0.85) = 115, less 18: 97; (1,1) from 115: 97.
// (2,2): Int(137 x 0.85) = 116; (1,2): Int(98.6) = 98.
TEST_F(ValueFieldTest, UnitsThreatenAndFillTheLine) {
  const int f = LandFront(2);
  Rifles(blue, 4, 2, 100);
  Rifles(red, 2, 1, 100, f);
  Rifles(red, 3, 1, 100, f + 1);
  AI.FrontLineHexes[f + 1] = 7;
  AI.FrontLineUnits[f + 1] = 7;
  ASSERT_EQ(AIUnitWorth(4, 2, static_cast<int>(Hex[4][2].Unit[1]), 3), 9);
  AIHexValues(f, 20, 1);
  EXPECT_EQ(WorkGrid(), (Grid{{97, 97, 118, 130, 138, 141}, {98, 116, 156, 0, 138, 141}}));
  EXPECT_EQ(AI.FrontLineHexes[f], 2);
  EXPECT_EQ(AI.FrontLineUnits[f], 1);
  // Every front's line counts start again.
  EXPECT_EQ(AI.FrontLineHexes[f + 1], 0);
  EXPECT_EQ(AI.FrontLineUnits[f + 1], 0);
}

// Headquarters: own hexes cut by their foreign neighbours, a town counting
// two more, and the cuts add up: (3,1) has two Blue neighbours,
// Int(Int(146 x 0.4) x 0.1) = 5; (3,2) one, Int(Int(147 x 0.6) x 0.1) = 8;
// the town (1,1) Int(Int(90 x 0.4) x 0.1) = 3. Foreign land 0.
TEST_F(ValueFieldTest, HeadquartersKeepAwayFromTheLine) {
  const int f = LandFront(2);
  AIHexValues(f, 20, 2);
  EXPECT_EQ(WorkGrid(), (Grid{{3, 107, 5, 0, 0, 0}, {91, 108, 8, 0, 0, 0}}));
}

// An SHQ's field is the HQs' with towns halved again: (1,1) Int(3 / 2) = 1.
TEST_F(ValueFieldTest, ShqsAvoidTownsToo) {
  const int f = LandFront(2);
  AIHexValues(f, 20, 3);
  EXPECT_EQ(WorkGrid(), (Grid{{1, 107, 5, 0, 0, 0}, {91, 108, 8, 0, 0, 0}}));
}

TEST_F(ValueFieldTest, AircraftWantOwnGroundUpToFifty) {
  const int f = LandFront(2);
  AIHexValues(f, 20, 4);
  EXPECT_EQ(WorkGrid(), (Grid{{50, 50, 50, 0, 0, 0}, {50, 50, 50, 0, 0, 0}}));
}

// A garrison: all Red, one area, centre (2,1) worth 100, the neighbours of
// the centre 100 each, then 85 a step inland and, on the first wave, a fifth
// of the area worth for an empty hex: (1,1) 100 + Int(72/5) = 114, (2,1)
// 200 + 20 = 220, (2,2) 100 + 18 = 118, (3,*) 100 + 16 = 116; (1,2) and
// (4,*) Int(100 x 0.85) = 85.
TEST_F(ValueFieldTest, GarrisonFrontGuardsItsTown) {
  MakeWorld(4, 2, 4);
  Area(1, 2, 1, 1);
  const long worth[5] = {0, 72, 100, 81, 65};
  for (int x = 1; x <= 4; ++x) Column(x, 1, worth[x]);
  Hex[2][2].AreaValue = 90;
  Hex[2][1].Land = kUrban;
  const int f = Front(1, 0, 0);
  AIHexValues(f, AIPenalty(0, 1.0), 1);
  EXPECT_EQ(WorkGrid(), (Grid{{114, 220, 116, 85}, {85, 118, 116, 85}}));
  EXPECT_EQ(AI.FrontLineHexes[f], 1);
}

// The sea front: no line hex; the port 200 (+20), its land neighbours 100
// (+16, +18), (1,2) 85; the water and Blue's shore get nothing.
TEST_F(ValueFieldTest, SeaFrontCentreIsThePort) {
  const int f = SeaFront();
  ASSERT_TRUE(AISeaFront(f));
  AIHexValues(f, AIPenalty(3, 1.0), 1);
  EXPECT_EQ(WorkGrid(), (Grid{{116, 220, 0, 0, 0}, {85, 118, 0, 0, 0}}));
  EXPECT_EQ(AI.FrontLineHexes[f], 1);
}

TEST_F(ValueFieldTest, PortWithTransportsOrFullWantsLess) {
  const int f = SeaFront();
  // A transport in port: 120 (+ nothing, slot 1 is taken).
  const int ship = world::AddUnit(red, 2, 1, "Transports");
  Unit[ship].Theater = kSeaTheater;
  Unit[ship].MobType = cargo;
  Unit[ship].MobQty = 3;
  AIHexValues(f, 10, 1);
  EXPECT_EQ(Hex[2][1].Work, 120);
  // Three units and no transport among them: 80.
  Unit[ship].MobQty = 0;
  Rifles(red, 2, 1, 1);
  Rifles(red, 2, 1, 1);
  AIHexValues(f, 10, 1);
  // 80 less 2 x the (nil) worth of the units.
  EXPECT_EQ(Hex[2][1].Work, 80);
}

}  // namespace
}  // namespace mf::test
