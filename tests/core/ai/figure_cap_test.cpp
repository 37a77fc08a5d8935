// The computer's sums of attributes and rules at the largest figures a file
// holds (a million each): the choices come out as with small figures.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/production.h"
#include "ai/reshape.h"
#include "files/scenario_schema.h"
#include "logistics_test_util.h"
#include "ops_test_util.h"

namespace mf::test {
namespace {

class FigureCapProduction : public LogisticsTest {};

// Seven attributes and the range a thousandfold, each at a million, come to
// 1,007,000,000: the type with them all is the best, one a point short is not.
TEST_F(FigureCapProduction, BestTypeAddsAttributesAtTheCap) {
  MakeMap(10, 10);
  auto gun = [](const std::string& name, Long figure) {
    const int t = MakeType(name, kLandTheater, 3);
    for (int a : {kSoftAttack, kSoftDefense, kHardAttack, kHardDefense, kHitPoints, kDogfight, kArtilleryAttack})
      Type[t].Attr[a] = figure;
    Type[t].Attr[kArtilleryRange] = kFigureCap;
    return t;
  };
  gun("Short", kFigureCap - 1);
  const int full = gun("Full", kFigureCap);
  gun("Also short", kFigureCap - 1);
  AIBestType();
  EXPECT_EQ(AI.BestType[kLandTheater][3], full);
}

class FigureCapReshape : public OpsTest {
 protected:
  void SetUp() override {
    OpsTest::SetUp();
    front = LandFront(3);
    Regime[red].PP = 10;
    EngineVar[611].Value = 1;
  }
  int front = 0;
};

// With the soft attack that occupies (rule 101) at a million, no formation
// is worth six times it: a strong one on a front that is not crowded stays
// whole. At the default (250, six times 1500) the same one is split.
TEST_F(FigureCapReshape, NoFormationIsWorthSixTimesAMillion) {
  AI.FrontStance[front] = 0;
  AI.FrontShare[front] = 100;
  AI.FrontWeight[front] = 100;
  EngineVar[101].Value = kFigureCap;
  const int strong = Rifles(red, 2, 1, 100, front);
  Rifles(red, 1, 2, 50, front);
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[strong].InfQty, 100);
  EXPECT_EQ(Hex[2][1].Unit[2], 0);
  EngineVar[101].Value = 250;
  AIUnitSplitMerge();
  EXPECT_EQ(Unit[strong].InfQty, 50);
}

}  // namespace
}  // namespace mf::test
