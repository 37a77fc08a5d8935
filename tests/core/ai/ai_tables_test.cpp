// The computer player's tables by name and its analysis log through the
// platform, as scripts and the window see them.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/analysis_log.h"
#include "files/field_registry.h"
#include "support/core_test.h"

namespace mf {
namespace {

class AITablesTest : public test::CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    ResetAIState();
  }
  std::string Get(const std::string& name) {
    std::string value, why;
    EXPECT_TRUE(GetField(name, &value, &why)) << why;
    return value;
  }
  void Set(const std::string& name, const std::string& value) {
    std::string why;
    EXPECT_TRUE(SetField(name, value, &why)) << why;
  }
};

TEST_F(AITablesTest, TheWorkingTablesAreNamedUnderAI) {
  AI.AreaCount = 7;
  AI.AreaX[3] = 12;
  AI.AreaLandBorder[2][5] = 4;
  AI.FrontStance[9] = 3;
  AI.ListScore[1] = -5;
  EXPECT_EQ(Get("AI.AreaCount"), "7");
  EXPECT_EQ(Get("AI.AreaX[3]"), "12");
  EXPECT_EQ(Get("AI.AreaLandBorder[2,5]"), "4");
  EXPECT_EQ(Get("AI.AreaLandBorder[5,2]"), "0");
  EXPECT_EQ(Get("AI.FrontStance[9]"), "3");
  EXPECT_EQ(Get("AI.ListScore[1]"), "-5");

  Set("AI.FrontCount", "2");
  Set("AI.AreaSeaDist[1,2]", "999");
  Set("AI.FrontOwnArea[2]", "6");
  EXPECT_EQ(AI.FrontCount, 2);
  EXPECT_EQ(AI.AreaSeaDist[1][2], 999);
  EXPECT_EQ(AI.FrontOwnArea[2], 6);
}

TEST_F(AITablesTest, TheSupplyRatioIsAFloatingValue) {
  Set("AI.SupplyRatio", "0.25");
  EXPECT_DOUBLE_EQ(AI.SupplyRatio, 0.25);
  EXPECT_EQ(Get("AI.SupplyRatio"), "0.25");
  AI.SupplyRatio = 1;
  EXPECT_EQ(Get("AI.SupplyRatio"), "1");
}

TEST_F(AITablesTest, IndicesOutsideTheTablesAreRefused) {
  std::string value, why;
  EXPECT_FALSE(GetField("AI.AreaX[101]", &value, &why));
  EXPECT_NE(why.find("outside"), std::string::npos) << why;
  EXPECT_FALSE(GetField("AI.FrontWeight[1001]", &value, &why));
  EXPECT_FALSE(GetField("AI.AreaLandDist[1]", &value, &why));
  EXPECT_FALSE(SetField("AI.AreaX[0]", "3", &why));
}

TEST_F(AITablesTest, LoopsOverAreasAndFrontsStayInsideTheTables) {
  AI.AreaCount = 7;
  AI.FrontCount = 12;
  EXPECT_EQ(LastArea(), 7);
  EXPECT_EQ(LastFront(), 12);
  EXPECT_TRUE(AIValidFront(12));
  EXPECT_FALSE(AIValidFront(13));
  EXPECT_FALSE(AIValidFront(0));
  AI.AreaCount = kAreaCap + 5;  // a count set by hand past the tables
  AI.FrontCount = -3;
  EXPECT_EQ(LastArea(), kAreaCap);
  EXPECT_EQ(LastFront(), 0);
  EXPECT_FALSE(AIValidFront(1));
  AI.FrontCount = kFrontCap + 1;
  EXPECT_TRUE(AIValidFront(kFrontCap));
  EXPECT_FALSE(AIValidFront(kFrontCap + 1));
  EXPECT_TRUE(ValidArea(kAreaCap));
  EXPECT_FALSE(ValidArea(kAreaCap + 1));
  EXPECT_FALSE(ValidArea(0));
}

TEST_F(AITablesTest, TheHexWorkingFieldsOfTheAnalysisAreNamed) {
  test::world::NewMap(5, 5);
  Set("Hex[2,3].Area", "4");
  Set("Hex[2,3].Landmass", "2");
  Set("Hex[2,3].AreaValue", "81");
  Set("Hex[2,3].Work", "-40");
  Set("Hex[2,3].Mark", "3");
  EXPECT_EQ(Hex[2][3].Area, 4);
  EXPECT_EQ(Hex[2][3].Landmass, 2);
  EXPECT_EQ(Hex[2][3].AreaValue, 81);
  EXPECT_EQ(Hex[2][3].Work, -40);
  EXPECT_EQ(Hex[2][3].Mark, 3);
}

TEST_F(AITablesTest, LogLinesGoOutThroughThePlatformInOrder) {
  std::vector<std::string> printed;
  platform.printer = [&](const PlatformEvent& e) { printed.push_back(FormatEvent(e)); };
  AILog("OPERATIONS:");
  AILog("");
  AILog("FRONT (12) :Ashby <--> Brill");
  ASSERT_EQ(platform.AnalysisLines().size(), 3u);
  EXPECT_EQ(platform.AnalysisLines()[0], "OPERATIONS:");
  EXPECT_EQ(platform.AnalysisLines()[1], "");
  EXPECT_EQ(platform.AnalysisLines()[2], "FRONT (12) :Ashby <--> Brill");
  ASSERT_EQ(printed.size(), 3u);
  EXPECT_EQ(printed[0], "AI OPERATIONS:");
  EXPECT_EQ(printed[2], "AI FRONT (12) :Ashby <--> Brill");
  // They are not message boxes.
  EXPECT_TRUE(Messages().empty());
  platform.keepAnalysis = false;
  AILog("more");
  EXPECT_EQ(platform.AnalysisLines().size(), 3u);
  EXPECT_EQ(printed.back(), "AI more");
}

}  // namespace
}  // namespace mf
