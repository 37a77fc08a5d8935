// The news list: AddNews and its kinds.
#include "engine/news.h"

#include "engine_test_util.h"

namespace mf::test {
namespace {

class NewsTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue"});
  }
};

TEST_F(NewsTest, KindOneHoldsTheNameOfTheLostFormation) {
  const int u = world::AddUnit(2, 3, 4, "3rd Bataljon", 1, 5);
  AddNews(1, u, 1, "ignored", 3, 4, 9);
  EXPECT_EQ(News[1][1].Type, 1);
  EXPECT_EQ(News[1][1].Text, "3rd Bataljon");
  EXPECT_EQ(News[1][1].X, 0);
  EXPECT_EQ(News[1][1].Y, 0);
  EXPECT_EQ(News[1][1].Mark, 0);
}

TEST_F(NewsTest, MapMarksHoldPlaceAndMark) {
  AddNews(2, 0, 2, "ignored", 6, 7, 8);
  AddNews(2, 0, 99, "", 1, 2, 3);
  EXPECT_EQ(News[2][1].Type, 2);
  EXPECT_EQ(News[2][1].X, 6);
  EXPECT_EQ(News[2][1].Y, 7);
  EXPECT_EQ(News[2][1].Mark, 8);
  EXPECT_EQ(News[2][1].Text, "");
  EXPECT_EQ(News[2][2].Type, 99);
  EXPECT_EQ(News[2][2].Mark, 3);
}

TEST_F(NewsTest, KindsAboveHundredHoldTheirText) {
  AddNews(1, 0, 991, "Blue surrendered.", 4, 4, 2);
  AddNews(1, 0, 101, "A note", 0, 0, 0);
  EXPECT_EQ(News[1][1].Type, 991);
  EXPECT_EQ(News[1][1].Text, "Blue surrendered.");
  EXPECT_EQ(News[1][1].X, 0);
  EXPECT_EQ(News[1][1].Mark, 0);
  EXPECT_EQ(News[1][2].Type, 101);
  EXPECT_EQ(News[1][2].Text, "A note");
}

TEST_F(NewsTest, KindHundredStoresNothing) {
  AddNews(1, 0, 100, "nothing", 2, 2, 1);
  EXPECT_EQ(News[1][1].Type, 0);
  EXPECT_EQ(News[1][1].Text, "");
  AddNews(1, 0, 0, "nothing", 2, 2, 1);
  EXPECT_EQ(News[1][1].Type, 0);
}

TEST_F(NewsTest, TheFirstFreeLineIsTaken) {
  News[1][1].Type = 2;
  News[1][2].Type = 0;
  News[1][3].Type = 1;
  AddNews(1, 0, 150, "into two", 0, 0, 0);
  EXPECT_EQ(News[1][2].Type, 150);
  EXPECT_EQ(News[1][2].Text, "into two");
  AddNews(1, 0, 151, "into four", 0, 0, 0);
  EXPECT_EQ(News[1][4].Text, "into four");
}

TEST_F(NewsTest, AFullListWritesIntoLineZero) {
  for (int n = 1; n <= kNewsCap; ++n) News[1][n].Type = 150;
  AddNews(1, 0, 992, "lost line", 0, 0, 0);
  EXPECT_EQ(News[1][0].Type, 992);
  EXPECT_EQ(News[1][0].Text, "lost line");
  EXPECT_EQ(News[1][kNewsCap].Text, "");
  // Line 1000 freed again takes the next one.
  News[1][kNewsCap].Type = 0;
  AddNews(1, 0, 993, "last line", 0, 0, 0);
  EXPECT_EQ(News[1][kNewsCap].Text, "last line");
}

TEST_F(NewsTest, RegimeZeroBelowHundredGoesToTheOwnerOfTheFirstUnitInTheHex) {
  world::AddUnit(2, 5, 5, "Blue guard", 1, 1);
  world::AddUnit(1, 5, 5, "Red visitor", 1, 1);  // slot 2: not the first
  AddNews(0, 0, 2, "", 5, 5, 7);
  EXPECT_EQ(News[2][1].Type, 2);
  EXPECT_EQ(News[2][1].Mark, 7);
  EXPECT_EQ(News[1][1].Type, 0);
}

TEST_F(NewsTest, RegimeZeroWithNobodyInTheHexIsDropped) {
  AddNews(0, 0, 2, "", 5, 5, 7);
  for (int r = 0; r <= 2; ++r) EXPECT_EQ(News[r][1].Type, 0) << r;
  EXPECT_EQ(News[0][0].Type, 0);
}

TEST_F(NewsTest, RegimeZeroAboveHundredIsNotLookedUp) {
  world::AddUnit(2, 5, 5, "Blue guard", 1, 1);
  AddNews(0, 0, 991, "text", 5, 5, 0);
  EXPECT_EQ(News[2][1].Type, 0);
  EXPECT_EQ(News[1][1].Type, 0);
}

}  // namespace
}  // namespace mf::test
