// Where the computer's guns aim. A gun of range 3 on (5,5) of a 10 x 10 map
// searches its ring of neighbours, then the ring around each of them, then
// a third ring around the hex that takes its column from the second ring
// and its row from the first: so it reaches (3,3), three hexes off, but
// never (5,2), three hexes due north, since the rows it searches in the
// third ring lie within one of the first ring's.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/artillery_fire.h"
#include "model/hex_geometry.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

class ArtilleryTest : public OpsTest {
 protected:
  void SetUp() override {
    OpsTest::SetUp();
    MakeWorld(10, 10, 10);
    Area(1, 5, 5, 1);
    for (int x = 1; x <= 10; ++x) Column(x, 1, 50);
    front = Front(1, 2, 3);
    battery = world::AddUnit(red, 5, 5, "Red Battery");
    Unit[battery].ArtType = gun;
    Unit[battery].ArtQty = 10;
    Unit[battery].Experience = 100;
    Unit[battery].MP = 6;
  }
  // A Blue stack on Blue ground.
  int Enemy(int x, int y, const std::string& name) {
    Hex[x][y].Owner = blue;
    return Rifles(blue, x, y, 50, 0, name);
  }
  int front = 0, battery = 0;
};

TEST_F(ArtilleryTest, ThirdRingCrossesTheFirstAndSecond) {
  ASSERT_EQ(Distance(5, 5, 5, 2), 3);
  ASSERT_EQ(Distance(5, 5, 3, 3), 3);
  Enemy(5, 2, "Blue North");
  AITarget t = AIArtilleryTarget(5, 5, 3);
  EXPECT_EQ(t.x, 0);
  Enemy(3, 3, "Blue West");
  t = AIArtilleryTarget(5, 5, 3);
  EXPECT_EQ(t.x, 3);
  EXPECT_EQ(t.y, 3);
}

TEST_F(ArtilleryTest, GunFiresAloneAtWhatItFinds) {
  Enemy(5, 2, "Blue North");
  Enemy(3, 3, "Blue West");
  AIArtilleryFire(front);
  EXPECT_TRUE(BattleLogHas("Red Battery Bombards Blue West"));
  EXPECT_FALSE(BattleLogHas("Blue North"));
}

TEST_F(ArtilleryTest, NearerRingsComeFirst) {
  Enemy(3, 3, "Blue West");
  Enemy(7, 4, "Blue East");  // two hexes off
  AITarget t = AIArtilleryTarget(5, 5, 3);
  EXPECT_EQ(t.x, 7);
  EXPECT_EQ(t.y, 4);
  Enemy(6, 5, "Blue Next");  // a neighbour
  t = AIArtilleryTarget(5, 5, 3);
  EXPECT_EQ(t.x, 6);
  EXPECT_EQ(t.y, 5);
}

TEST_F(ArtilleryTest, ShortGunsDoNotSearchTheThirdRing) {
  Enemy(3, 3, "Blue West");
  EXPECT_EQ(AIArtilleryTarget(5, 5, 2).x, 0);
  Type[gun].Attr[kArtilleryRange] = 2;
  AIArtilleryFire(front);
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
}

TEST_F(ArtilleryTest, OnlyReadyGunsOfTheAreaAtWarFire) {
  Enemy(6, 5, "Blue Next");
  Unit[battery].MP = 1;
  AIArtilleryFire(front);
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
  Unit[battery].MP = 6;
  Hex[5][5].Area = 3;
  AIArtilleryFire(front);
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
  Hex[5][5].Area = 1;
  Dip[red][blue].Relation = 1;
  AIArtilleryFire(front);
  EXPECT_FALSE(BattleLogHas("Initiating Battle"));
  Dip[red][blue].Relation = 0;
  AIArtilleryFire(front);
  EXPECT_TRUE(BattleLogHas("Red Battery Bombards Blue Next"));
}

}  // namespace
}  // namespace mf::test
