// The computer's sums of attributes and rules at the largest figures a file
// holds (a million each): the choices come out as with small figures.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/production.h"
#include "files/scenario_schema.h"
#include "logistics_test_util.h"

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

}  // namespace
}  // namespace mf::test
