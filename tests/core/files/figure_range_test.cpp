// Unit-type attributes and rule constants read from a file lie within a
// million either way from 0: a file may hold any number there, and play adds
// and multiplies them.
#include <string>
#include <vector>

#include "files/field_registry.h"
#include "files/scenario_file.h"
#include "files/scenario_schema.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class FigureRange : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
    world::AddRegime("Red");
    world::AddRegime("Blue");
    rifles = world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Attr[kFrontsize] = 1;
    world::AddUnit(1, 2, 2, "A", rifles, 5);
  }
  // The game read back from its own save with the named lines changed.
  void ReadWith(const std::vector<std::pair<std::string, std::string>>& changes) {
    auto lines = SplitLines(SerializeScenario());
    for (const auto& [name, value] : changes) {
      const auto at = LinesOf(name);
      ASSERT_FALSE(at.empty()) << name;
      lines[at[0]] = value;
    }
    ClearForLoad();
    ParseScenario(JoinLines(lines));
  }
  int rifles = 0;
};

// Found by playing a file with a soft attack of 2147483647: the computer's
// choice of the best type adds seven attributes and overflowed. And a rule
// 101 (the soft attack that occupies) of 2147483647 overflowed six times over
// in the computer's splitting of strong formations.
TEST_F(FigureRange, AttributesAndRulesBeyondAMillionReadAsAMillion) {
  ReadWith({{"Type[1].Attr[4]", " 2147483647 "},
            {"Type[1].Attr[15]", " 1000001 "},
            {"Type[1].Attr[18]", " 1000000 "},
            {"EngineVar[101]", " 2147483647 "},
            {"EngineVar[102]", " 1000000 "}});
  EXPECT_EQ(kFigureCap, 1000000);
  EXPECT_EQ(Type[rifles].Attr[kSoftAttack], 1000000);
  EXPECT_EQ(Type[rifles].Attr[kHitPoints], 1000000);
  EXPECT_EQ(Type[rifles].Attr[kDogfight], 1000000);
  EXPECT_EQ(EngineVar[101].Value, 1000000);
  EXPECT_EQ(EngineVar[102].Value, 1000000);
  // The save writes what was kept, and reads back the same.
  const std::string saved = SerializeScenario();
  ClearForLoad();
  ParseScenario(saved);
  EXPECT_EQ(Type[rifles].Attr[kSoftAttack], 1000000);
  EXPECT_EQ(EngineVar[101].Value, 1000000);
}

TEST_F(FigureRange, AttributesAndRulesBelowMinusAMillionReadAsMinusAMillion) {
  ReadWith({{"Type[1].Attr[1]", "-2147483648 "},
            {"Type[1].Attr[5]", "-1 "},
            {"EngineVar[1]", "-1000001 "},
            {"EngineVar[999]", "-12 "}});
  EXPECT_EQ(Type[rifles].Attr[kWeight], -1000000);
  EXPECT_EQ(Type[rifles].Attr[kSoftDefense], -1);
  EXPECT_EQ(EngineVar[1].Value, -1000000);
  EXPECT_EQ(EngineVar[999].Value, -12);
}

// What a script may set is what a file keeps.
TEST_F(FigureRange, AScriptSetsAttributesAndRulesWithinTheSameRange) {
  std::string why;
  EXPECT_TRUE(SetField("Type[1].Attr[4]", "1000000", &why)) << why;
  EXPECT_EQ(Type[rifles].Attr[kSoftAttack], 1000000);
  EXPECT_FALSE(SetField("Type[1].Attr[4]", "1000001", &why));
  EXPECT_EQ(why,
            "\"Type[1].Attr[4]\": value 1000001 is outside what a scenario file holds there (-1000000..1000000)");
  EXPECT_TRUE(SetField("EngineVar[101]", "-1000000", &why)) << why;
  EXPECT_FALSE(SetField("EngineVar[101]", "-1000001", &why));
  EXPECT_EQ(why,
            "\"EngineVar[101]\": value -1000001 is outside what a scenario file holds there (-1000000..1000000)");
  EXPECT_EQ(EngineVar[101].Value, -1000000);
}

}  // namespace
}  // namespace mf::test
