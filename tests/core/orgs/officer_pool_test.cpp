// The Officerpool dialog: the lists, assigning, buying, firing, and the
// editor's buttons.
#include "engine/officers.h"
#include "orgs_test_util.h"

namespace mf::test {
namespace {

class OfficerPoolTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
    Regime[red].PP = 7;
    unit = AddFormation(red, 4, 4, 0, 100, "1st Bataljon");
    Unit[unit].Readiness = 60;
    Unit[unit].Disruption = 30;
    Unit[unit].MP = 3;
    Unit[unit].SupplyPct = 40;
    // Officer 2 commands the formation; 3 and 5 wait in Red's pool, 6 in Blue's.
    Put(2, red, 0, "Hans Meier", 12);
    Unit[unit].Officer = 2;
    Put(3, red, 1, "Olga Brandt", 13);
    Put(5, red, 1, "Piet Roos", 14);
    Put(6, blue, 1, "Cora Vale", 41);
    Game.OfficerCount = 6;
    Select(4, 4);
  }

  static void Put(int o, int r, int inPool, const std::string& name, int pic) {
    Officer[o] = OfficerRec{};
    Officer[o].Regime = r;
    Officer[o].InPool = inPool;
    Officer[o].Name = name;
    Officer[o].Pic = pic;
    Officer[o].Land = 5;
    Officer[o].Sea = 3;
    Officer[o].Air = 2;
    Officer[o].Fame = 4;
    Officer[o].Retreat = 50;
  }

  void Open(bool editing = false) {
    dialog.Prepare(editing);
    ASSERT_TRUE(dialog.IsOpen());
  }
  bool Do(const std::string& action, const std::string& value = "") {
    std::string why;
    const bool ok = dialog.Act(action, value, &why);
    last = why;
    return ok;
  }

  OfficerPoolDialog dialog;
  std::string last;
  int unit = 0;
};

TEST_F(OfficerPoolTest, ShowsPointsPoolAndTheUnitsOfficer) {
  Open();
  EXPECT_EQ(dialog.ppText, "(7pp available)");
  EXPECT_EQ(dialog.poolRows, (std::vector<std::string>{"Olga Brandt", "Piet Roos"}));
  EXPECT_EQ(dialog.officerOfRow, (std::vector<int>{3, 5}));
  EXPECT_EQ(dialog.unitView.picture, 1812);
  EXPECT_EQ(dialog.unitView.lines,
            (std::vector<std::string>{"Hans Meier", "LAND: 5", "SEA: 3", "AIR: 2", "FAME: 4", "RETREAT: 50"}));
  EXPECT_TRUE(dialog.poolView.lines.empty());
  EXPECT_FALSE(dialog.fireEnabled);
  EXPECT_FALSE(dialog.editButtonsShown);
  ASSERT_TRUE(Do("officer", "5"));
  EXPECT_EQ(dialog.poolRow, 1);
  EXPECT_EQ(dialog.poolView.picture, 1814);
  EXPECT_EQ(dialog.poolView.lines.front(), "Piet Roos");
  EXPECT_TRUE(dialog.fireEnabled);
  EXPECT_FALSE(Do("officer", "6"));  // Blue's
  EXPECT_EQ(last, "officer 6 is not in the pool");
}

TEST_F(OfficerPoolTest, UnitWithoutOfficer) {
  Unit[unit].Officer = 0;
  Officer[2].InPool = 1;
  Open();
  EXPECT_EQ(dialog.unitView.lines, std::vector<std::string>{"No officer attached to unit."});
  EXPECT_EQ(dialog.unitView.picture, 0);
  EXPECT_EQ(dialog.poolRows.size(), 3u);
}

TEST_F(OfficerPoolTest, AssignSwapsOfficersAndCostsTheUnit) {
  Open();
  ASSERT_TRUE(Do("officer", "3"));
  ASSERT_TRUE(Do("assign"));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Unit[unit].Officer, 3);
  EXPECT_EQ(Officer[3].InPool, 0);
  EXPECT_EQ(Officer[2].InPool, 1);  // back in the pool
  EXPECT_EQ(Unit[unit].MP, 0);
  EXPECT_EQ(Unit[unit].Readiness, 45);   // 60 - 15
  EXPECT_EQ(Unit[unit].Disruption, 80);  // 30 + 50
  EXPECT_EQ(dialog.officerOfRow, (std::vector<int>{2, 5}));
  EXPECT_EQ(dialog.unitView.lines.front(), "Olga Brandt");
  EXPECT_EQ(dialog.poolRow, -1);
}

TEST_F(OfficerPoolTest, AssignKeepsReadinessAtTenAndDisruptionAtHundred) {
  Unit[unit].Readiness = 20;
  Unit[unit].Disruption = 70;
  Open();
  Do("officer", "3");
  Do("assign");
  EXPECT_EQ(Unit[unit].Readiness, 10);  // 20 - 15 = 5, at least 10
  EXPECT_EQ(Unit[unit].Disruption, 100);
}

TEST_F(OfficerPoolTest, AssignRefusals) {
  Open();
  ASSERT_TRUE(Do("assign"));
  EXPECT_EQ(Messages(), std::vector<std::string>{"No officer selected"});
  EXPECT_EQ(Unit[unit].Officer, 2);
}

TEST_F(OfficerPoolTest, AssignNeedsAUnit) {
  Select(6, 6);  // an empty hex
  Open();
  Do("officer", "3");
  Do("assign");
  EXPECT_EQ(Messages(), std::vector<std::string>{"You selected no unit before going to the officerpool."});
  EXPECT_EQ(Officer[3].InPool, 1);
}

TEST_F(OfficerPoolTest, OutOfSupplyMeansExactlyZero) {
  Unit[unit].SupplyPct = 0;
  Open();
  Do("officer", "3");
  Do("assign");
  EXPECT_EQ(Messages(), std::vector<std::string>{"You cannot replace an officer in a unit that is out of supply"});
  EXPECT_EQ(Unit[unit].Officer, 2);
  EXPECT_EQ(Unit[unit].Readiness, 60);
  // At 1% the change goes through.
  Unit[unit].SupplyPct = 1;
  Do("assign");
  EXPECT_EQ(Unit[unit].Officer, 3);
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(OfficerPoolTest, AnShqIsNeverOutOfSupplyForItsOfficer) {
  const int shq = AddShq(red, 4, 4, 1, "First Army", 0);
  Select(4, 4, 2);
  Open();
  ASSERT_EQ(dialog.unit, shq);
  Do("officer", "3");
  Do("assign");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Unit[shq].Officer, 3);
}

TEST_F(OfficerPoolTest, BuyCostsOnePointAndStopsAtFifty) {
  // 49 in the pool: 2 already, 47 more.
  for (int o = 10; o < 57; ++o) Put(o, red, 1, "Extra " + std::to_string(o), 20);
  Open();
  ASSERT_EQ(dialog.poolRows.size(), 49u);
  ASSERT_TRUE(Do("buy"));
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Regime[red].PP, 6);
  EXPECT_EQ(PoolCount(red), 50);
  EXPECT_EQ(dialog.poolRows.size(), 50u);
  EXPECT_EQ(dialog.ppText, "(6pp available)");
  // 50: no more, though the points are there.
  ASSERT_TRUE(Do("buy"));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Max 50 officers in pool."});
  EXPECT_EQ(Regime[red].PP, 6);
  EXPECT_EQ(PoolCount(red), 50);
}

TEST_F(OfficerPoolTest, BuyNeedsPoints) {
  Regime[red].PP = 0;
  Open();
  Do("buy");
  EXPECT_EQ(Messages(), std::vector<std::string>{"Not enough PP to buy"});
  EXPECT_EQ(PoolCount(red), 2);
  Regime[red].PP = 1;
  Do("buy");
  EXPECT_EQ(Regime[red].PP, 0);
  EXPECT_EQ(PoolCount(red), 3);
  // The new officer took the first free row.
  EXPECT_EQ(Officer[1].Regime, red);
  EXPECT_EQ(Officer[1].InPool, 1);
}

TEST_F(OfficerPoolTest, FireFreesTheRow) {
  Open();
  EXPECT_FALSE(Do("fire"));
  EXPECT_EQ(last, "no officer of the pool is selected");
  Do("officer", "5");
  ASSERT_TRUE(Do("fire"));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Officer is fired and will never return"});
  EXPECT_EQ(Officer[5].Regime, 0);
  EXPECT_EQ(Officer[5].Name, "");
  EXPECT_EQ(dialog.officerOfRow, std::vector<int>{3});
}

TEST_F(OfficerPoolTest, EditorButtonsOutsideTheEditor) {
  Open();
  ASSERT_TRUE(Do("new"));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Only in edit mode. sorry if button is still there"});
  EXPECT_EQ(PoolCount(red), 2);
  EXPECT_FALSE(Do("reset"));
  EXPECT_FALSE(Do("edit"));
  EXPECT_FALSE(Do("portrait"));
  EXPECT_FALSE(Do("delete"));
}

TEST_F(OfficerPoolTest, EditorMakesOfficersForFree) {
  UI.EditMode = 1;
  Open(true);
  EXPECT_TRUE(dialog.editButtonsShown);
  ASSERT_TRUE(Do("new"));
  EXPECT_EQ(Regime[red].PP, 7);
  EXPECT_EQ(PoolCount(red), 3);
}

TEST_F(OfficerPoolTest, EditorAssignsWithoutDisruptionAndWithoutSupply) {
  UI.EditMode = 1;
  Unit[unit].SupplyPct = 0;
  Open(true);
  Do("officer", "3");
  Do("assign");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Unit[unit].Officer, 3);
  EXPECT_EQ(Unit[unit].Disruption, 30);
  EXPECT_EQ(Unit[unit].Readiness, 45);
}

TEST_F(OfficerPoolTest, EditorEditsTheOfficerInView) {
  UI.EditMode = 1;
  Open(true);
  // No pool officer selected: the formation's own officer.
  for (const char* a : {"Karl Rot", "7", "", "9", "12", "80"}) platform.QueueAnswer(a);
  ASSERT_TRUE(Do("edit"));
  EXPECT_EQ(Prompts(), (std::vector<std::string>{"[Marrowfield] Name -> Karl Rot", "[Marrowfield] Land -> 7",
                                                 "[Marrowfield] Sea -> ", "[Marrowfield] Air -> 9",
                                                 "[Marrowfield] Fame -> 12", "[Marrowfield] Retreat -> 80"}));
  EXPECT_EQ(Officer[2].Name, "Karl Rot");
  EXPECT_EQ(Officer[2].Land, 7);
  EXPECT_EQ(Officer[2].Sea, 3);  // an emptied prompt leaves it
  EXPECT_EQ(Officer[2].Air, 9);
  EXPECT_EQ(Officer[2].Fame, 12);
  EXPECT_EQ(Officer[2].Retreat, 80);
  EXPECT_EQ(dialog.unitView.lines[0], "Karl Rot");
  // The selected pool officer goes first; a portrait outside 1..200 is not taken.
  Do("officer", "5");
  platform.QueueAnswer("250");
  Do("portrait");
  EXPECT_EQ(Officer[5].Pic, 14);
  platform.QueueAnswer("33");
  Do("portrait");
  EXPECT_EQ(Officer[5].Pic, 33);
  EXPECT_EQ(Prompts().back(), "[Marrowfield] Give correct existing number btwn min 1- max200 -> 33");
}

TEST_F(OfficerPoolTest, EditorResetsAndDeletes) {
  UI.EditMode = 1;
  Officer[2].Land = 9;
  Officer[2].Sea = 1;
  Officer[2].Air = 8;
  Officer[2].Retreat = 90;
  Open(true);
  ASSERT_TRUE(Do("reset"));
  EXPECT_EQ(Officer[2].Land, 5);
  EXPECT_EQ(Officer[2].Sea, 5);
  EXPECT_EQ(Officer[2].Air, 5);
  EXPECT_EQ(Officer[2].Retreat, 50);
  Do("officer", "3");
  ASSERT_TRUE(Do("delete"));
  EXPECT_EQ(Officer[3].Regime, 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Officer is fired and will never return"});
}

TEST_F(OfficerPoolTest, DoPoolInTheEditorServesTheSelectedUnitsRegime) {
  UI.EditMode = 1;
  Game.CurRegime = 0;
  const int b = AddFormation(blue, 8, 8, 0, 10, "Blue one");
  Hex[8][8].Owner = blue;
  Regime[blue].PP = 3;
  Select(8, 8);
  platform.QueueDialog("officerpool", {{"buy", ""}});
  OpenOfficerPoolDialog();
  // Blue's pool got an officer for Blue's point, and the editor has no
  // regime to move again.
  EXPECT_EQ(Regime[blue].PP, 2);
  EXPECT_EQ(PoolCount(blue), 2);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Unit[b].Regime, blue);
}

TEST_F(OfficerPoolTest, DoPoolThroughTheButton) {
  platform.QueueDialog("officerpool", {{"officer", "5"}, {"assign", ""}});
  ASSERT_TRUE(PressOrderButton(kBtnOfficerPool));
  EXPECT_EQ(Unit[unit].Officer, 5);
  EXPECT_EQ(Game.CurRegime, red);
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
}

}  // namespace
}  // namespace mf::test
