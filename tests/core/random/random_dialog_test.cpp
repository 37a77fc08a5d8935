// The Random Scenario dialog: opening on the base scenario, its boxes, and
// the refusals of "Start Random Game" in their order of overruling.
#include <filesystem>

#include "model/invariants.h"
#include "random/random_dialog.h"
#include "random_test_util.h"

namespace mf::test {
namespace {

class RandomDialogTest : public RandomTest {
 protected:
  void SetUp() override {
    RandomTest::SetUp();
    ASSERT_TRUE(CopyBase());
    OpenLikeTheMenu(d);
    platform.Clear();
  }
  // Sets the texts and presses Start; the message the player reads.
  std::string Try(const std::string& size, const std::string& land, int regimes) {
    d.SetMapSize(size);
    d.SetLand(land);
    std::string why;
    EXPECT_TRUE(d.SetRegimes(regimes, &why)) << why;
    return Press(d);
  }
  void ExpectRefusedOnce(const std::string& message) {
    EXPECT_TRUE(d.open);
    EXPECT_FALSE(d.made);
    EXPECT_TRUE(d.refused);
    EXPECT_EQ(d.refusal, message);
    ASSERT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Messages()[0], message);
    // Nothing was made: the map is still the cleared one.
    EXPECT_EQ(Game.MapW, 10);
    EXPECT_EQ(Unit[1].Regime, 0);
    platform.Clear();
  }
  RandomScenarioDialog d;
};

TEST_F(RandomDialogTest, DefaultRegimesAreTheTenOfTheTable) {
  EXPECT_EQ(Game.RegimeCount, 10);
  const char* names[] = {"Groschken Empire", "Atlantic Empire", "Merchant Federation", "Holy Empire",
                         "Domaine de Louis",  "Pacifist Empire", "Dark Empire",         "Universal Nation",
                         "Il Cooperativo",    "Dritte Reich"};
  const int sprites[] = {2, 4, 6, 7, 8, 9, 10, 11, 12, 13};
  const char* colours[] = {"0", "16777215", "16777215", "16777215", "0", "16777215", "0", "0", "0", "16777215"};
  const int peoples[] = {1, 2, 3, 4, 5, 3, 1, 2, 4, 1};
  for (int r = 1; r <= 10; ++r) {
    EXPECT_EQ(Regime[r].Name, names[r - 1]);
    EXPECT_EQ(Regime[r].HexSprite, sprites[r - 1]);
    EXPECT_EQ(Regime[r].TextColor, colours[r - 1]);
    EXPECT_EQ(Regime[r].OwnPeople, peoples[r - 1]);
    EXPECT_EQ(Regime[r].PP, 20);
    EXPECT_EQ(Regime[r].FormationName, "Bataljon");
    EXPECT_EQ(Regime[r].AI, r == 1 ? 0 : 1);
    // Officers have faces: the portrait set of the people, which the pictures have.
    EXPECT_EQ(Regime[r].PortraitSet, peoples[r - 1]);
    bool face = false;
    for (int p = 1; p <= kPortraitCap; ++p) face = face || OfficerPicSet[p] == Regime[r].PortraitSet;
    EXPECT_TRUE(face) << "regime " << r;
  }
  EXPECT_EQ(d.rows[1].name, "Groschken Empire");
  EXPECT_TRUE(d.rows[1].human);
  EXPECT_FALSE(d.rows[2].human);
  EXPECT_TRUE(d.rows[4].shown);
  EXPECT_FALSE(d.rows[5].shown);
  EXPECT_EQ(d.mapSizeText, "40");
  EXPECT_EQ(d.landText, "50");
  EXPECT_EQ(d.overrideText, "0");
}

TEST_F(RandomDialogTest, OpeningKeepsOnlyTheBaseRules) {
  // Types, peoples and research came from the base; its map, regimes, units did not.
  EXPECT_GT(Game.TypeCount, 2);
  EXPECT_GT(Game.PeopleCount, 4);
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.UnitCount, 0);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      EXPECT_EQ(Hex[x][y].Land, kGrass);
      EXPECT_EQ(Hex[x][y].Owner, 0);
    }
  EXPECT_EQ(Regime[11].Name, "");
  EXPECT_EQ(Game.OfficerCount, 0);
}

TEST_F(RandomDialogTest, AMissingBaseSaysWhichFileAndFolderAndLosesNothing) {
  std::filesystem::remove(RandomBasePath());
  Hex[3][3].Land = kForest;
  Regime[1].Name = "Mine";
  EXPECT_FALSE(MakeRandomScenario());
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_NE(Messages()[0].find("2PL_Two_Rivers.mf1"), std::string::npos);
  EXPECT_NE(Messages()[0].find(tempDir + "/scenarios"), std::string::npos) << Messages()[0];
  EXPECT_EQ(Hex[3][3].Land, kForest);
  EXPECT_EQ(Regime[1].Name, "Mine");
}

TEST_F(RandomDialogTest, FogOfExplorationNeedsFogOfWarBothWays) {
  d.SetExploration(true);
  EXPECT_TRUE(d.fog);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  d.SetFog(false);
  EXPECT_FALSE(d.exploration);
  EXPECT_EQ(Game.FogOfExploration, 0);
  d.SetFog(true);
  EXPECT_FALSE(d.exploration);
}

TEST_F(RandomDialogTest, AnAddressIsKeptBelowFortyCharacters) {
  std::string why;
  const std::string thirtyNine(39, 'a');
  ASSERT_TRUE(d.SetEmail(1, thirtyNine, &why));
  EXPECT_EQ(Regime[1].Email, thirtyNine);
  ASSERT_TRUE(d.SetEmail(1, std::string(40, 'b'), &why));
  EXPECT_EQ(Regime[1].Email, thirtyNine);
  EXPECT_FALSE(d.SetEmail(5, "x@y", &why));  // row 5 hidden with 4 regimes
}

TEST_F(RandomDialogTest, HumanBoxAndRule701) {
  std::string why;
  ASSERT_TRUE(d.SetHuman(2, true, &why));
  EXPECT_EQ(Regime[2].AI, 0);
  ASSERT_TRUE(d.SetHuman(2, false, &why));
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_TRUE(Messages().empty());
  EngineVar[701].Value = 1;
  ASSERT_TRUE(d.SetHuman(1, false, &why));
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_TRUE(d.rows[1].human);
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0], "The AI is not allowed to play in this scenario.");
}

TEST_F(RandomDialogTest, RegimeButtonsShowTheirRows) {
  std::string why;
  ASSERT_TRUE(d.SetRegimes(7, &why));
  EXPECT_TRUE(d.rows[7].shown);
  EXPECT_FALSE(d.rows[8].shown);
  EXPECT_FALSE(d.SetRegimes(11, &why));
  EXPECT_FALSE(d.SetRegimes(0, &why));
}

TEST_F(RandomDialogTest, RefusalsInTheirOrder) {
  Try("9", "50", 2);
  ExpectRefusedOnce("Map size between 10-100");
  Try("101", "50", 2);
  ExpectRefusedOnce("Map size between 10-100");
  // The size is looked at first and ends the click.
  Try("9", "101", 2);
  ExpectRefusedOnce("Map size between 10-100");
  Try("40", "101", 2);
  ExpectRefusedOnce("Land% between 10-100");
  Try("40", "9", 2);
  ExpectRefusedOnce("Land% between 10-100");
  // 30 and 10: (10 + 30) / 10 = 4, so two regimes at most; three are too many.
  Try("30", "10", 3);
  ExpectRefusedOnce("To many regimes for the land%, map size setting. Max regimes allowed is  2");
  EXPECT_EQ(Game.RegimeCount, 3);
  // 100 and 100 allow 18: ten is fine as far as this check goes, so the
  // next check speaks: nobody human.
  std::string why;
  for (int r = 1; r <= 10; ++r) d.SetHuman(r, false, &why);
  Try("100", "100", 10);
  ExpectRefusedOnce("You must at least select 1 human player.");
  d.SetHuman(1, true, &why);
  d.SetEmail(1, "me@home", &why);
  d.SetPbem(true);
  Try("30", "30", 2);
  ExpectRefusedOnce("No PBEM possible with only 1 human player.");
  // One human with a short address: the address check overrules the count.
  d.SetEmail(1, "ab", &why);
  Try("30", "30", 2);
  ExpectRefusedOnce("One of human email adresses not known. Not possible in PBEM.");
  d.SetHuman(2, true, &why);
  d.SetEmail(1, "a@b", &why);
  d.SetEmail(2, "ab", &why);
  Try("30", "30", 2);
  ExpectRefusedOnce("One of human email adresses not known. Not possible in PBEM.");
  // Fog of war with the computer's moves shown overrules that.
  d.SetFog(true);
  Game.ShowAIMoves = kTrue;
  Try("30", "30", 2);
  ExpectRefusedOnce("You cannot show AI moves if Fog Of War is on");
  // And the analysis overrules everything.
  Game.AIAnalysis = kTrue;
  Try("30", "30", 2);
  ExpectRefusedOnce("You cannot do Analysis if Fog of War is on");
  // All fixed: the map is made and the dialog closes.
  Game.ShowAIMoves = kFalse;
  Game.AIAnalysis = kFalse;
  d.SetEmail(2, "c@d", &why);
  EXPECT_EQ(Try("30", "30", 2), "");
  EXPECT_TRUE(d.made);
  EXPECT_FALSE(d.open);
  EXPECT_EQ(Game.MapW, 30);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(RandomDialogTest, AnOverlongRegimeCountNamesTheLimitForSmallSettings) {
  // 10 and 10 allow no regime at all: the limit reads 0.
  Try("10", "10", 1);
  ExpectRefusedOnce("To many regimes for the land%, map size setting. Max regimes allowed is  0");
}

TEST_F(RandomDialogTest, AlliedComputersOnlyAmongThemselves) {
  std::string why;
  d.SetAllied(true);
  ASSERT_EQ(Try("40", "50", 4), "");
  for (int a = 1; a <= 4; ++a)
    for (int b = 1; b <= 4; ++b) {
      const bool both = a != 1 && b != 1 && a != b;
      EXPECT_EQ(Dip[a][b].Relation, both ? 1 : 0) << a << "," << b;
      EXPECT_EQ(Dip[a][b].Cost, 999);
    }
}

TEST_F(RandomDialogTest, ScriptActions) {
  std::string why;
  EXPECT_TRUE(d.Act("size", "25", &why));
  EXPECT_TRUE(d.Act("land", "60", &why));
  EXPECT_TRUE(d.Act("regimes", "3", &why));
  EXPECT_TRUE(d.Act("humans", "1,1,0", &why));
  EXPECT_TRUE(d.Act("email", "a@b,c@d", &why));
  EXPECT_TRUE(d.Act("seed", "7", &why));
  EXPECT_TRUE(d.Act("realstart", "1", &why));
  EXPECT_TRUE(d.Act("aibonus", "1", &why));
  EXPECT_EQ(d.mapSizeText, "25");
  EXPECT_EQ(d.landText, "60");
  EXPECT_EQ(d.regimes, 3);
  EXPECT_EQ(Regime[2].AI, 0);
  EXPECT_EQ(Regime[3].AI, 1);
  EXPECT_EQ(Regime[2].Email, "c@d");
  EXPECT_EQ(d.overrideText, "7");
  EXPECT_TRUE(d.realStart);
  EXPECT_EQ(Game.AIProdBonus, 1);
  EXPECT_FALSE(d.Act("humans", "1,1,0,1", &why));  // row 4 is hidden
  EXPECT_FALSE(d.Act("fog", "yes", &why));
  EXPECT_FALSE(d.Act("regimes", "x", &why));
  EXPECT_FALSE(d.Act("paint", "", &why));
  EXPECT_EQ(d.DefaultAction(), "start");
  EXPECT_TRUE(d.Act("cancel", "", &why));
  EXPECT_FALSE(d.open);
  EXPECT_FALSE(d.made);
}

}  // namespace
}  // namespace mf::test
