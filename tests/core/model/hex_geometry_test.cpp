// Hex geometry: neighbours, the walked distance, the owner-respecting
// distance, and the arithmetic between hexes and pixels of the map picture.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "model/hex_geometry.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class HexGeometryTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
  }
};

void ExpectHex(HexXY got, int x, int y) {
  EXPECT_EQ(got.x, x);
  EXPECT_EQ(got.y, y);
}

// ---- Neighbour --------------------------------------------------------------

TEST_F(HexGeometryTest, NeighboursOfAnEvenRowHex) {
  ExpectHex(Neighbour(5, 4, 1), 4, 3);
  ExpectHex(Neighbour(5, 4, 2), 5, 3);
  ExpectHex(Neighbour(5, 4, 3), 6, 4);
  ExpectHex(Neighbour(5, 4, 4), 5, 5);
  ExpectHex(Neighbour(5, 4, 5), 4, 5);
  ExpectHex(Neighbour(5, 4, 6), 4, 4);
}

TEST_F(HexGeometryTest, NeighboursOfAnOddRowHex) {
  ExpectHex(Neighbour(5, 5, 1), 5, 4);
  ExpectHex(Neighbour(5, 5, 2), 6, 4);
  ExpectHex(Neighbour(5, 5, 3), 6, 5);
  ExpectHex(Neighbour(5, 5, 4), 6, 6);
  ExpectHex(Neighbour(5, 5, 5), 5, 6);
  ExpectHex(Neighbour(5, 5, 6), 4, 5);
}

TEST_F(HexGeometryTest, OnlyTheOffendingCoordinateIsZeroed) {
  // (1, 2) is an even row: north-west is (0, 1), and only x is off the map.
  ExpectHex(Neighbour(1, 2, 1), 0, 1);
  // East of the last column of row 1.
  ExpectHex(Neighbour(10, 1, 3), 0, 1);
  // South-east of (1, 10), an even row, is (1, 11): only y is off.
  ExpectHex(Neighbour(1, 10, 4), 1, 0);
}

TEST_F(HexGeometryTest, NorthEastOfTheLastHexOfRow1IsOffBothWays) {
  // Row 1 is odd: north-east is (MapW + 1, 0).
  ExpectHex(Neighbour(10, 1, 2), 0, 0);
}

TEST_F(HexGeometryTest, AHexWithAZeroCoordinateHasNoNeighbours) {
  for (int d = 1; d <= 6; ++d) {
    ExpectHex(Neighbour(0, 3, d), 0, 0);
    ExpectHex(Neighbour(3, 0, d), 0, 0);
  }
}

TEST_F(HexGeometryTest, ADirectionOutside1To6GivesNothing) {
  ExpectHex(Neighbour(5, 5, 0), 0, 0);
  ExpectHex(Neighbour(5, 5, 7), 0, 0);
  ExpectHex(Neighbour(5, 5, -1), 0, 0);
}

// Every neighbour of every hex of a 17 x 13 map lies at Distance 1 both ways,
// leads back by the opposite direction, and no other hex lies at Distance 1.
TEST_F(HexGeometryTest, PropertyNeighboursAreAtDistanceOneBothWays) {
  world::NewMap(17, 13);
  ASSERT_EQ(Game.MapW, 17);
  ASSERT_EQ(Game.MapH, 13);
  const int opposite[7] = {0, 4, 5, 6, 1, 2, 3};
  int pairs = 0;
  for (int x = 1; x <= 17; ++x) {
    for (int y = 1; y <= 13; ++y) {
      int onMap = 0;
      for (int d = 1; d <= 6; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (n.x < 1 || n.y < 1) continue;
        ++onMap;
        ++pairs;
        EXPECT_EQ(Distance(x, y, n.x, n.y), 1) << x << "," << y << " dir " << d;
        EXPECT_EQ(Distance(n.x, n.y, x, y), 1) << x << "," << y << " dir " << d;
        const HexXY back = Neighbour(n.x, n.y, opposite[d]);
        EXPECT_EQ(back.x, x);
        EXPECT_EQ(back.y, y);
      }
      int atOne = 0;
      for (int x2 = 1; x2 <= 17; ++x2)
        for (int y2 = 1; y2 <= 13; ++y2)
          if (Distance(x, y, x2, y2) == 1) ++atOne;
      EXPECT_EQ(atOne, onMap) << x << "," << y;
    }
  }
  // Sides inside a 17 x 13 map: 16 east-west sides in each of 13 rows; between
  // two adjacent rows each hex of the odd row touches two hexes of the even
  // row, except the last one, which touches one: 2 x 17 - 1 = 33, in 12 row
  // gaps. Each side is seen from both of its hexes.
  const int eastWest = 16 * 13;
  const int diagonal = 33 * 12;
  EXPECT_EQ(pairs, 2 * (eastWest + diagonal));
}

// ---- Distance ---------------------------------------------------------------

TEST_F(HexGeometryTest, EqualHexesAreAtDistanceZero) {
  EXPECT_EQ(Distance(4, 4, 4, 4), 0);
}

TEST_F(HexGeometryTest, DistanceWithinOneRowIsTheDifferenceOfX) {
  EXPECT_EQ(Distance(2, 7, 9, 7), 7);
  EXPECT_EQ(Distance(9, 4, 2, 4), 7);
  EXPECT_EQ(Distance(1, 1, 100, 1), 99);
}

TEST_F(HexGeometryTest, DistanceWalkedByHand) {
  // (2,2) -> (5,7): rows 3..7 are entered one by one, sliding east on entering
  // the even rows 4 and 6: (2,3) (3,4) (3,5) (4,6) (4,7), then east to (5,7).
  EXPECT_EQ(Distance(2, 2, 5, 7), 6);
  // Back: (5,6) (4,5) (4,4) (3,3) (3,2), sliding west on entering odd rows 5
  // and 3, then west to (2,2).
  EXPECT_EQ(Distance(5, 7, 2, 2), 6);
  // (3,3) -> (3,6): the target column is never passed, so the walk goes
  // straight down: (3,4) (3,5) (3,6).
  EXPECT_EQ(Distance(3, 3, 3, 6), 3);
}

TEST_F(HexGeometryTest, DistanceGivesUpAfter100Steps) {
  // (1,1) -> (100,3): (2,2) (2,3), then 98 steps east: exactly 100.
  EXPECT_EQ(Distance(1, 1, 100, 3), 100);
  EXPECT_EQ(Distance(100, 3, 1, 1), 100);
  // (1,1) -> (100,5): (2,2) (2,3) (3,4) (3,5), then 97 steps east: 101 steps
  // would be needed, so the walk reports 101.
  EXPECT_EQ(Distance(1, 1, 100, 5), 101);
  EXPECT_EQ(Distance(100, 5, 1, 1), 101);
  EXPECT_EQ(Distance(1, 1, 100, 100), 101);
}

// Is the walk ever asymmetric? Worked by hand: give every hex the half-column
// number X = 2x, plus 1 on odd rows. Any step to another row changes X by
// exactly 1, a step within the row by exactly 2, so no path is shorter than
// dy + max(0, (|dX| - dy) / 2). The walk changes row on each of its first dy
// steps, each time taking the diagonal that brings X towards the target (the
// parity rules of the walk allow exactly the diagonals that exist), and then
// walks straight: it meets that bound, from either end. So Distance is the
// true hex distance, symmetric, and the cut-off at 100 steps is symmetric too.
// The claim that the walk can differ by direction does not hold for this walk;
// this test checks the argument over every pair of rows and every x offset of
// the largest map, in both directions.
int HalfColumnDistance(int x1, int y1, int x2, int y2) {
  const int dx = std::abs((2 * x1 + (y1 & 1)) - (2 * x2 + (y2 & 1)));
  const int dy = std::abs(y1 - y2);
  return dy + (dx > dy ? (dx - dy) / 2 : 0);
}

TEST_F(HexGeometryTest, DistanceIsSymmetricOnTheLargestMap) {
  long checked = 0;
  for (int y1 = 1; y1 <= 100; ++y1) {
    for (int y2 = 1; y2 <= 100; ++y2) {
      for (int dx = -99; dx <= 99; ++dx) {
        // The walk depends only on the rows and the x offset.
        const int x1 = dx >= 0 ? 1 : 100;
        const int x2 = x1 + dx;
        const int there = Distance(x1, y1, x2, y2);
        const int back = Distance(x2, y2, x1, y1);
        if (there != back) {
          ADD_FAILURE() << "(" << x1 << "," << y1 << ")-(" << x2 << "," << y2 << "): " << there << " vs " << back;
          return;
        }
        const int expected = HalfColumnDistance(x1, y1, x2, y2);
        if (there != (expected > 100 ? 101 : expected)) {
          ADD_FAILURE() << "(" << x1 << "," << y1 << ")-(" << x2 << "," << y2 << "): " << there << " expected "
                        << expected;
          return;
        }
        ++checked;
      }
    }
  }
  EXPECT_EQ(checked, 100L * 100L * 199L);
}

// ---- OwnerDistance ----------------------------------------------------------

// Column 4 of the 10 x 10 map owned by regime `owner` in every row.
void WallOfColumn4(int owner) {
  for (int y = 1; y <= 10; ++y) Hex[4][y].Owner = owner;
}

TEST_F(HexGeometryTest, OwnerDistanceOnNeutralGroundUpTo5) {
  EXPECT_EQ(OwnerDistance(3, 5, 3, 5), 0);
  EXPECT_EQ(OwnerDistance(3, 5, 4, 5), 1);
  EXPECT_EQ(OwnerDistance(3, 5, 8, 5), 5);
  // (2,2) -> (5,7) is six steps (see the walk above): beyond the search.
  EXPECT_EQ(OwnerDistance(2, 2, 5, 7), 999);
  EXPECT_EQ(OwnerDistance(1, 1, 7, 1), 999);
  EXPECT_EQ(OwnerDistance(1, 1, 6, 1), 5);
}

TEST_F(HexGeometryTest, OwnerDistanceIsWalledOffByAForeignOwner) {
  // x moves by at most 1 a step, so every path from column 3 to column 5
  // enters column 4, which regime 2 owns, from ground that is not regime 2's.
  WallOfColumn4(2);
  Hex[3][5].Owner = 1;
  EXPECT_EQ(OwnerDistance(3, 5, 5, 5), 999);
  // The plain walk does not care about owners.
  EXPECT_EQ(Distance(3, 5, 5, 5), 2);
}

TEST_F(HexGeometryTest, OwnerDistancePassesAWallOfTheStartingOwner) {
  WallOfColumn4(1);
  Hex[3][5].Owner = 1;
  // (3,5) -> (4,5) regime 1 from regime 1 -> (5,5) neutral.
  EXPECT_EQ(OwnerDistance(3, 5, 5, 5), 2);
}

TEST_F(HexGeometryTest, OwnerDistanceGoesRoundThroughAGap) {
  WallOfColumn4(2);
  Hex[3][5].Owner = 1;
  Hex[4][6].Owner = 0;
  // The only hex next to both (3,5) and (5,5) is (4,5), in the wall. Through
  // the gap: (3,5) south-east to (4,6), east to (5,6), north-east to (5,5).
  EXPECT_EQ(OwnerDistance(3, 5, 5, 5), 3);
}

TEST_F(HexGeometryTest, OwnedGroundIsNotEnteredFromNeutralGround) {
  // Start and target are regime 1's, the ground between neutral: every
  // neighbour of the target is neutral, and a step from neutral ground into
  // regime 1's hex is a step into a different owner.
  Hex[2][5].Owner = 1;
  Hex[4][5].Owner = 1;
  EXPECT_EQ(OwnerDistance(2, 5, 4, 5), 999);
  // With (3,5) regime 1's as well the way is open.
  Hex[3][5].Owner = 1;
  EXPECT_EQ(OwnerDistance(2, 5, 4, 5), 2);
}

TEST_F(HexGeometryTest, NeutralGroundIsEnteredFromAnyOwner) {
  Hex[2][5].Owner = 3;
  EXPECT_EQ(OwnerDistance(2, 5, 6, 5), 4);
}

TEST_F(HexGeometryTest, OwnerDistanceFromOffTheMapFindsNothing) {
  EXPECT_EQ(OwnerDistance(0, 5, 1, 5), 999);
  EXPECT_EQ(OwnerDistance(0, 0, 0, 0), 0);
}

TEST_F(HexGeometryTest, OwnerDistanceTakesTheOnlyGapWithinFiveSteps) {
  WallOfColumn4(2);
  Hex[3][5].Owner = 1;
  // The only way past the wall from (3,5) to (5,5) within five steps: down
  // column 3 to (3,7), east through the gap at (4,7), north-east to (5,6)
  // and north to (5,5).
  Hex[4][7].Owner = 0;
  EXPECT_EQ(OwnerDistance(3, 5, 5, 5), 5);
  EXPECT_EQ(OwnerDistance(3, 5, 4, 7), 3);
  // One row further south the way round is seven steps.
  Hex[4][7].Owner = 2;
  Hex[4][8].Owner = 0;
  EXPECT_EQ(OwnerDistance(3, 5, 5, 5), 999);
  EXPECT_EQ(OwnerDistance(3, 5, 4, 8), 3);
}

// The search as it was first written: every path of up to five steps,
// depth first, cut off where it can no longer beat the best found. Kept as
// the reference the ring-by-ring search must agree with.
void ReferenceOwnerWalk(int x, int y, Long owner, int depth, int x2, int y2, int& best) {
  if (depth >= 5 || depth + 1 >= best) return;
  for (int dir = 1; dir <= 6; ++dir) {
    const HexXY n = Neighbour(x, y, dir);
    if (n.x < 1 || n.y < 1) continue;
    const Long nextOwner = Hex[n.x][n.y].Owner;
    if (nextOwner != 0 && nextOwner != owner) continue;
    if (n.x == x2 && n.y == y2) {
      best = depth + 1;
      return;
    }
    ReferenceOwnerWalk(n.x, n.y, nextOwner, depth + 1, x2, y2, best);
  }
}

int ReferenceOwnerDistance(int x1, int y1, int x2, int y2) {
  if (x1 == x2 && y1 == y2) return 0;
  if (x1 < 1 || y1 < 1 || x1 > kMapCap || y1 > kMapCap) return 999;
  int best = 999;
  ReferenceOwnerWalk(x1, y1, Hex[x1][y1].Owner, 0, x2, y2, best);
  return best;
}

TEST_F(HexGeometryTest, OwnerDistanceAgreesWithTheFullSearchOnRandomOwnedMaps) {
  std::mt19937 rng(20261125);
  long compared = 0, found = 0, walled = 0;
  for (int map = 0; map < 30; ++map) {
    const int w = 1 + static_cast<int>(rng() % 11);
    const int h = 1 + static_cast<int>(rng() % 11);
    world::NewMap(w, h);
    // From nearly all neutral to nearly all owned, by up to three regimes.
    const unsigned ownedPct = rng() % 101;
    const unsigned regimes = 1 + rng() % 3;
    for (int x = 1; x <= w; ++x)
      for (int y = 1; y <= h; ++y)
        Hex[x][y].Owner = (rng() % 100 < ownedPct) ? static_cast<Long>(1 + rng() % regimes) : 0;
    // Every pair, with a ring of hexes just off the map on each side.
    for (int x1 = 0; x1 <= w + 1; ++x1)
      for (int y1 = 0; y1 <= h + 1; ++y1)
        for (int x2 = 0; x2 <= w + 1; ++x2)
          for (int y2 = 0; y2 <= h + 1; ++y2) {
            const int want = ReferenceOwnerDistance(x1, y1, x2, y2);
            ASSERT_EQ(OwnerDistance(x1, y1, x2, y2), want)
                << "map " << map << " (" << w << " x " << h << ") from " << x1 << "," << y1 << " to " << x2 << ","
                << y2;
            ++compared;
            if (want >= 1 && want <= 5) ++found;
            if (want == 999) ++walled;
          }
  }
  // The maps gave both answers plenty of times.
  EXPECT_GT(found, 10000);
  EXPECT_GT(walled, 10000);
  EXPECT_GT(compared, 100000);
}

// ---- Pixels -----------------------------------------------------------------

TEST_F(HexGeometryTest, HexCentresOnThePicture) {
  PixelXY c = HexToPixel(1, 1, 0, 0);
  EXPECT_EQ(c.x, 63);  // 1 x 42 + 21 on an odd row
  EXPECT_EQ(c.y, 30);
  c = HexToPixel(2, 2, 0, 0);
  EXPECT_EQ(c.x, 84);
  EXPECT_EQ(c.y, 60);
  c = HexToPixel(1, 1, 50, 20);
  EXPECT_EQ(c.x, 13);
  EXPECT_EQ(c.y, 10);
}

TEST_F(HexGeometryTest, HexesOutsideTheWindowAreSkipped) {
  EXPECT_FALSE(HexOffWindow({-42, 0}));
  EXPECT_TRUE(HexOffWindow({-43, 0}));
  EXPECT_FALSE(HexOffWindow({0, -40}));
  EXPECT_TRUE(HexOffWindow({0, -41}));
  EXPECT_FALSE(HexOffWindow({1000, 488}));
  EXPECT_TRUE(HexOffWindow({1001, 0}));
  EXPECT_TRUE(HexOffWindow({0, 489}));
}

TEST_F(HexGeometryTest, MapPictureSize) {
  EXPECT_EQ(MapPictureW(), 490);  // 10 x 42 + 70
  EXPECT_EQ(MapPictureH(), 370);  // 10 x 30 + 70
}

TEST_F(HexGeometryTest, ClicksOnCentresFindTheirHex) {
  ExpectHex(PixelToHex(63, 30, 0, 0), 1, 1);
  ExpectHex(PixelToHex(126, 60, 0, 0), 3, 2);
  ExpectHex(PixelToHex(147, 90, 0, 0), 3, 3);
  ExpectHex(PixelToHex(420, 300, 0, 0), 10, 10);
  // Every centre of the map, both ways.
  for (int x = 1; x <= 10; ++x) {
    for (int y = 1; y <= 10; ++y) {
      const PixelXY c = HexToPixel(x, y, 0, 0);
      const HexXY h = PixelToHex(c.x, c.y, 0, 0);
      EXPECT_EQ(h.x, x);
      EXPECT_EQ(h.y, y);
    }
  }
}

TEST_F(HexGeometryTest, ScrollPositionsAreAddedFirst) {
  // (26, 10) in the window is (126, 60) on the picture: the centre of (3,2).
  ExpectHex(PixelToHex(26, 10, 100, 50), 3, 2);
}

TEST_F(HexGeometryTest, ClickNearACentreSnapsToIt) {
  // (137, 74): 137 mod 21 = 11, not above 11, so the column snaps back to 126;
  // 74 mod 30 = 14, not above 14, so the row snaps back to 60: hex (3,2).
  ExpectHex(PixelToHex(137, 74, 0, 0), 3, 2);
  // Five pixels lower the point still lies inside the lower tip of (3,2), but
  // 75 mod 30 = 15 snaps it to row line 90 (odd row 3). Column 126 is a centre
  // of even rows, so the point counts as between (2,3) at 105 and (3,3) at
  // 147, and |75 - 90| = 15 puts it into the zigzag band: nothing.
  ExpectHex(PixelToHex(126, 75, 0, 0), 0, 0);
}

TEST_F(HexGeometryTest, ClickBetweenTwoHexesOfAnOddRow) {
  // Row 1 (line 30), centres at 63 and 105; the boundary column is 84.
  // (84, 25): 84 is a multiple of 42 (kind 2), row 30 is kind 1: between two
  // hexes; |25 - 30| = 5; at or right of 84: x = Int((84 + 21) / 42) = 2.
  ExpectHex(PixelToHex(84, 25, 0, 0), 2, 1);
  // (83, 25): 83 mod 21 = 20 snaps to 84; left of it: x = Int(63 / 42) = 1.
  ExpectHex(PixelToHex(83, 25, 0, 0), 1, 1);
}

TEST_F(HexGeometryTest, ClickBetweenTwoHexesOfAnEvenRow) {
  // Row 2 (line 60), centres at 84 and 126; the boundary column 105 is kind 1.
  ExpectHex(PixelToHex(105, 55, 0, 0), 3, 2);  // Int(126 / 42)
  ExpectHex(PixelToHex(104, 55, 0, 0), 2, 2);  // 104 snaps to 105; Int(84 / 42)
}

TEST_F(HexGeometryTest, AClickInTheZigzagBandSelectsNothing) {
  // Upper third of row 1 between (1,1) and (2,1): (84, 18) snaps to row line
  // 30 (18 mod 30 = 18 > 14) and |18 - 30| = 12.
  ExpectHex(PixelToHex(84, 18, 0, 0), 0, 0);
  // Lower edge: (84, 40): 40 mod 30 = 10 snaps to 30, |40 - 30| = 10: nothing.
  ExpectHex(PixelToHex(84, 40, 0, 0), 0, 0);
  // One pixel nearer the row line it is hex (2,1).
  ExpectHex(PixelToHex(84, 39, 0, 0), 2, 1);
  // Upper edge at exactly 10: (84, 20).
  ExpectHex(PixelToHex(84, 20, 0, 0), 0, 0);
  ExpectHex(PixelToHex(84, 21, 0, 0), 2, 1);
}

TEST_F(HexGeometryTest, ClicksBeyondTheMapZeroEachCoordinateByItself) {
  // Centre of (11,2) is (462, 60): x is beyond the 10 x 10 map.
  ExpectHex(PixelToHex(462, 60, 0, 0), 0, 2);
  // Centre of (3,11) is (147, 330).
  ExpectHex(PixelToHex(147, 330, 0, 0), 3, 0);
  ExpectHex(PixelToHex(504, 330, 0, 0), 0, 0);
}

TEST_F(HexGeometryTest, ClicksLeftOfThePictureGiveNoNegativeHex) {
  // (-30, 30): -30 mod 21 = -9 (the sign of the dividend) snaps to -21, a
  // centre column of odd rows, on odd row line 30: x = Int(-42 / 42) = -1,
  // which is held at 0.
  ExpectHex(PixelToHex(-30, 30, 0, 0), 0, 1);
  // (5, 60): 5 snaps to column 0, a centre of even rows: x = 0.
  ExpectHex(PixelToHex(5, 60, 0, 0), 0, 2);
}

}  // namespace
}  // namespace mf
