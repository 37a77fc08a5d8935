// The computer's aircraft strike the first thing in sight within reach.
#include <gtest/gtest.h>

#include "ai/air_interdict.h"
#include "ai/ai_state.h"
#include "combat/battle_state.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

class AirInterdictTest : public OpsTest {
 protected:
  void SetUp() override {
    OpsTest::SetUp();
    LandFront(3);
    wing = world::AddUnit(red, 1, 2, "Red Wing");
    Unit[wing].Theater = kAirTheater;
    Unit[wing].InfType = fighter;
    Unit[wing].InfQty = 10;
    Unit[wing].Experience = 100;
    Unit[wing].Readiness = 80;
    Unit[wing].MP = 6;
  }
  int wing = 0;
};

// In map order: (4,1) holds an SHQ, (4,2) is out of sight, (5,1) is the
// first that may be struck.
TEST_F(AirInterdictTest, FirstVisibleNonShqStackInMapOrder) {
  world::AddShq(blue, 4, 1, 1, "Blue SHQ");
  Rifles(blue, 4, 2, 50, 0, "Hidden");
  Hex[4][2].Vis = 0;
  Rifles(blue, 5, 1, 50, 0, "Seen");
  Rifles(blue, 6, 2, 50, 0, "Later");
  AIAirInterdict();
  EXPECT_EQ(TheBattle.tx, 5);
  EXPECT_EQ(TheBattle.ty, 1);
  EXPECT_TRUE(BattleLogHas("Interdict"));
  // The strike cost the wing its movement; the order is over.
  EXPECT_EQ(Unit[wing].MP, 1);
  EXPECT_EQ(UI.Order.InterdictOrder, 0);
  EXPECT_EQ(Hex[5][1].Mark, 999);
}

TEST_F(AirInterdictTest, TiredWingsOffOwnGroundAndPeaceStayHome) {
  Rifles(blue, 5, 1, 50, 0, "Seen");
  Unit[wing].Readiness = 60;
  AIAirInterdict();
  EXPECT_FALSE(BattleLogHas("Interdict"));
  Unit[wing].Readiness = 61;
  Dip[red][blue].Relation = 1;
  AIAirInterdict();
  EXPECT_FALSE(BattleLogHas("Interdict"));
  Dip[red][blue].Relation = 0;
  Hex[1][2].Owner = blue;
  AIAirInterdict();
  EXPECT_FALSE(BattleLogHas("Interdict"));
  Hex[1][2].Owner = red;
  AIAirInterdict();
  EXPECT_TRUE(BattleLogHas("Interdict"));
}

}  // namespace
}  // namespace mf::test
