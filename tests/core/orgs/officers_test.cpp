// Drawing officers: portrait, row, names, the skill ladder and retreat.
#include "engine/officers.h"
#include "model/rnd.h"
#include "orgs_test_util.h"

namespace mf::test {
namespace {

class OfficerTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
  }
};

TEST_F(OfficerTest, SkillLadderFollowsRows471To476) {
  // Defaults 5, 15, 30, 50, 65, 80.
  EXPECT_EQ(OfficerSkill(0, 0.81f), 9);
  EXPECT_EQ(OfficerSkill(4, 0.8f), 8);  // not above 0.8
  EXPECT_EQ(OfficerSkill(4, 0.0f), 8);
  EXPECT_EQ(OfficerSkill(5, 0.99f), 7);
  EXPECT_EQ(OfficerSkill(14, 0.0f), 7);
  EXPECT_EQ(OfficerSkill(15, 0.0f), 6);
  EXPECT_EQ(OfficerSkill(29, 0.0f), 6);
  EXPECT_EQ(OfficerSkill(30, 0.0f), 5);
  EXPECT_EQ(OfficerSkill(49, 0.0f), 5);
  EXPECT_EQ(OfficerSkill(50, 0.0f), 4);
  EXPECT_EQ(OfficerSkill(64, 0.0f), 4);
  EXPECT_EQ(OfficerSkill(65, 0.51f), 3);
  EXPECT_EQ(OfficerSkill(79, 0.5f), 2);
  EXPECT_EQ(OfficerSkill(80, 0.99f), 1);
  EXPECT_EQ(OfficerSkill(99, 0.0f), 1);
  // The rungs move with the rows.
  EngineVar[471].Value = 50;
  EXPECT_EQ(OfficerSkill(49, 0.9f), 9);
  EngineVar[476].Value = 100;
  EXPECT_EQ(OfficerSkill(99, 0.9f), 3);
}

TEST_F(OfficerTest, PoolOfficerOfTheRegimeToMove) {
  Game.OfficerCount = 0;
  const int o = MakeOfficer(0);
  ASSERT_EQ(o, 1);
  EXPECT_EQ(Officer[o].Regime, red);
  EXPECT_EQ(Officer[o].InPool, 1);
  EXPECT_EQ(Officer[o].Pic, 1);  // first portrait of set 1
  EXPECT_EQ(Officer[o].Fame, 0);
  EXPECT_EQ(Officer[o].Spare, 0);
  EXPECT_EQ(Game.OfficerCount, 1);
  // Names come from the regime's people: first + blank + last.
  const std::string& n = Officer[o].Name;
  EXPECT_TRUE(n == "Anna Stone" || n == "Anna Marsh" || n == "Bert Stone" || n == "Bert Marsh") << n;
  for (long s : {Officer[o].Land, Officer[o].Sea, Officer[o].Air}) {
    EXPECT_GE(s, 1);
    EXPECT_LE(s, 9);
  }
  EXPECT_GE(Officer[o].Retreat, 20);  // 20 + floor(draw x 60)
  EXPECT_LE(Officer[o].Retreat, 79);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(OfficerTest, UnitOfficerServesTheUnitsRegimeAndCommandsIt) {
  const int u = world::AddUnit(blue, 3, 3, "Blue one", rifle, 10);
  Officer[1].Regime = red;  // row 1 taken
  Officer[1].Pic = 41;      // a Red officer wearing Blue's first portrait
  const int o = MakeOfficer(u);
  ASSERT_EQ(o, 2);
  EXPECT_EQ(Unit[u].Officer, 2);
  EXPECT_EQ(Officer[o].InPool, 0);
  EXPECT_EQ(Officer[o].Regime, blue);
  EXPECT_EQ(Officer[o].Name, "Cora Vale");
  // Portrait 41 is worn (by an officer of any regime): the next one of set 2.
  EXPECT_EQ(Officer[o].Pic, 42);
  EXPECT_EQ(Game.OfficerCount, 2);
}

TEST_F(OfficerTest, NamesOfOneCharacterDoNotCount) {
  People[1].FirstName[1] = "A";
  People[1].FirstName[2] = "";
  People[1].FirstName[3] = "Ida";
  People[1].LastName[1] = "B";
  People[1].LastName[2] = "";
  People[1].LastName[5] = "Frost";
  const int o = MakeOfficer(0);
  ASSERT_GT(o, 0);
  EXPECT_EQ(Officer[o].Name, "Ida Frost");
}

TEST_F(OfficerTest, NotEnoughNames) {
  People[1].LastName[1] = "X";
  People[1].LastName[2] = "";
  EXPECT_EQ(MakeOfficer(0), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Not enough names.. Thats a bug mister scenario editor"});
  EXPECT_EQ(Officer[1].Regime, 0);
}

TEST_F(OfficerTest, NoPortraitOfThePeoplesSet) {
  Regime[red].PortraitSet = 4;
  EXPECT_EQ(MakeOfficer(0), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "There is no single portrait for this people.. bad scenarioset design! quiting make officer."});
  EXPECT_EQ(Officer[1].Regime, 0);
  EXPECT_EQ(Game.OfficerCount, 0);
}

TEST_F(OfficerTest, NoEmptyRow) {
  for (int o = 1; o <= kOfficerCap; ++o) Officer[o].Regime = blue;
  EXPECT_EQ(MakeOfficer(0), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Error.. no empty slots"});
}

TEST_F(OfficerTest, PortraitIsReusedOnlyWhenTheSetIsUsedUp) {
  // Set 1 has 40 portraits: forty officers wear forty different ones, in order.
  for (int i = 1; i <= 40; ++i) {
    const int o = MakeOfficer(0);
    ASSERT_EQ(o, i);
    EXPECT_EQ(Officer[o].Pic, i);
  }
  // The forty-first has to share one of them.
  const int o = MakeOfficer(0);
  EXPECT_GE(Officer[o].Pic, 1);
  EXPECT_LE(Officer[o].Pic, 40);
  Officer[o].Pic = 1;  // so that portrait 5 below is worn by row 5 alone
  // A set of one portrait: everybody wears it.
  Regime[blue].PortraitSet = 3;
  OfficerPicSet[90] = 3;
  Game.CurRegime = blue;
  EXPECT_EQ(Officer[MakeOfficer(0)].Pic, 90);
  EXPECT_EQ(Officer[MakeOfficer(0)].Pic, 90);
  // A freed row gives its portrait back.
  Officer[5].Regime = 0;
  Game.CurRegime = red;
  EXPECT_EQ(Officer[MakeOfficer(0)].Pic, 5);
}

TEST_F(OfficerTest, RetreatIsBasicPlusRandomAtMost95) {
  EngineVar[478].Value = 0;
  EngineVar[477].Value = 33;
  EXPECT_EQ(Officer[MakeOfficer(0)].Retreat, 33);
  EngineVar[477].Value = 120;
  EXPECT_EQ(Officer[MakeOfficer(0)].Retreat, 95);
  // 90 + floor(draw x 60): from 90 up, and never above 95.
  EngineVar[477].Value = 90;
  EngineVar[478].Value = 60;
  for (int i = 0; i < 50; ++i) {
    const int o = MakeOfficer(0);
    EXPECT_GE(Officer[o].Retreat, 90);
    EXPECT_LE(Officer[o].Retreat, 95);
    Officer[o] = OfficerRec{};
  }
}

TEST_F(OfficerTest, SkillsFollowTheRowsWhateverTheDraw) {
  // Every d100 is below 100: all skills are 7 with rows 0, 100.
  EngineVar[471].Value = 0;
  EngineVar[472].Value = 100;
  for (int i = 0; i < 20; ++i) {
    const int o = MakeOfficer(0);
    EXPECT_EQ(Officer[o].Land, 7);
    EXPECT_EQ(Officer[o].Sea, 7);
    EXPECT_EQ(Officer[o].Air, 7);
    Officer[o] = OfficerRec{};
  }
  // All rows 0: every skill is 1.
  for (int r = 471; r <= 476; ++r) EngineVar[r].Value = 0;
  const int o = MakeOfficer(0);
  EXPECT_EQ(Officer[o].Land + Officer[o].Sea + Officer[o].Air, 3);
}

// With the default rows, 5 of every 100 skills are 8 or 9, one in five of
// those a 9, and 10 of every 100 a 7. 3000 officers make 9000 skills:
// 450 expected of 8 or 9 (standard deviation about 21), 90 nines (about
// 8.5), 900 sevens (about 28); the bounds are four deviations wide.
TEST_F(OfficerTest, FivePercentOfSkillsAreEightOrNine) {
  int high = 0, nines = 0, sevens = 0, total = 0;
  for (int i = 0; i < 3000; ++i) {
    SeedRnd(static_cast<std::uint32_t>(1000 + i));
    const int o = MakeOfficer(0);
    ASSERT_GT(o, 0);
    for (long s : {Officer[o].Land, Officer[o].Sea, Officer[o].Air}) {
      ++total;
      if (s >= 8) ++high;
      if (s == 9) ++nines;
      if (s == 7) ++sevens;
    }
    Officer[o] = OfficerRec{};
  }
  EXPECT_EQ(total, 9000);
  EXPECT_GE(high, 366);
  EXPECT_LE(high, 534);
  EXPECT_GE(nines, 56);
  EXPECT_LE(nines, 124);
  EXPECT_GE(sevens, 788);
  EXPECT_LE(sevens, 1012);
}

TEST_F(OfficerTest, NoRegimeNoOfficer) {
  Game.CurRegime = 0;
  EXPECT_EQ(MakeOfficer(0), 0);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(OfficerTest, ViewLinesOfAnOfficer) {
  Officer[4] = OfficerRec{};
  Officer[4].Regime = red;
  Officer[4].Name = "Hans Meier";
  Officer[4].Pic = 12;
  Officer[4].Land = 5;
  Officer[4].Sea = 3;
  Officer[4].Air = 2;
  Officer[4].Fame = 4;
  Officer[4].Retreat = 50;
  const OfficerView v = ViewOfOfficer(4, "none");
  EXPECT_EQ(v.picture, 1812);
  EXPECT_EQ(v.lines, (std::vector<std::string>{"Hans Meier", "LAND: 5", "SEA: 3", "AIR: 2", "FAME: 4", "RETREAT: 50"}));
  EXPECT_EQ(ViewOfOfficer(0, "No officer attached to unit.").lines,
            std::vector<std::string>{"No officer attached to unit."});
  EXPECT_EQ(ViewOfOfficer(0, "No officer attached to unit.").picture, 0);
}

}  // namespace
}  // namespace mf::test
