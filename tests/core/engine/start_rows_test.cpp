// The regime rows both start dialogs share: what they show, and how each
// dialog reads the scenario's ban on computer players.
#include "engine/start_rows.h"

#include "engine_test_util.h"

namespace mf::test {
namespace {

const char* const kBanned = "The AI is not allowed to play in this scenario.";

class StartRowsTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue", "Green"});
  }
};

TEST_F(StartRowsTest, RowsShowTheRegimesInPlayAndHideTheRestBlank) {
  Regime[2].AI = 1;
  Regime[3].Email = "green@example.org";
  RegimeRow rows[6];
  rows[5].name = "left over";
  MirrorRegimeRows(rows, 5, 3);
  EXPECT_EQ(rows[1].name, "Red");
  EXPECT_TRUE(rows[1].human);
  EXPECT_FALSE(rows[2].human);
  EXPECT_EQ(rows[3].email, "green@example.org");
  for (int r = 1; r <= 3; ++r) EXPECT_TRUE(rows[r].shown) << r;
  for (int r = 4; r <= 5; ++r) {
    EXPECT_FALSE(rows[r].shown) << r;
    EXPECT_EQ(rows[r].name, "") << r;
  }
}

TEST_F(StartRowsTest, ABanAtOneKeepsTheRegimeHumanForBothReadings) {
  EngineVar[701].Value = 1;
  std::string why;
  for (ComputerBan ban : {ComputerBan::kAtOne, ComputerBan::kUnlessZero}) {
    Regime[2].AI = 1;
    ASSERT_TRUE(ChooseHuman(2, 3, false, ban, &why)) << why;
    EXPECT_EQ(Regime[2].AI, 0);
  }
  EXPECT_EQ(Messages(), (std::vector<std::string>{kBanned, kBanned}));
}

TEST_F(StartRowsTest, AnotherValueBansTheComputerOnlyWhereAnyValueButZeroIsABan) {
  EngineVar[701].Value = 2;
  std::string why;
  ASSERT_TRUE(ChooseHuman(2, 3, false, ComputerBan::kAtOne, &why)) << why;
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_TRUE(Messages().empty());
  ASSERT_TRUE(ChooseHuman(3, 3, false, ComputerBan::kUnlessZero, &why)) << why;
  EXPECT_EQ(Regime[3].AI, 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{kBanned});
  // Without a ban either reading lets the computer play, and a person back.
  EngineVar[701].Value = 0;
  ASSERT_TRUE(ChooseHuman(3, 3, false, ComputerBan::kUnlessZero, &why)) << why;
  EXPECT_EQ(Regime[3].AI, 1);
  ASSERT_TRUE(ChooseHuman(3, 3, true, ComputerBan::kAtOne, &why)) << why;
  EXPECT_EQ(Regime[3].AI, 0);
}

TEST_F(StartRowsTest, OnlyShownRowsTakeChoicesAndLongAddressesAreNotKeptUnderALimit) {
  std::string why;
  EXPECT_FALSE(ChooseHuman(4, 3, true, ComputerBan::kAtOne, &why));
  EXPECT_EQ(why, "there is no row for regime 4");
  EXPECT_FALSE(ChooseEmail(0, 3, "x@example.org", 0, &why));
  EXPECT_EQ(why, "there is no row for regime 0");
  const std::string longAddress(40, 'a');
  ASSERT_TRUE(ChooseEmail(1, 3, longAddress, 40, &why));
  EXPECT_EQ(Regime[1].Email, "");
  ASSERT_TRUE(ChooseEmail(1, 3, longAddress.substr(1), 40, &why));
  EXPECT_EQ(Regime[1].Email, longAddress.substr(1));
  ASSERT_TRUE(ChooseEmail(2, 3, longAddress, 0, &why));
  EXPECT_EQ(Regime[2].Email, longAddress);
}

}  // namespace
}  // namespace mf::test
