// The Types dialog: its list with the class words, the filter box, new,
// delete and copy, the production lines, and the rules of the classes
// wired to the attribute boxes with their two edge cases.
#include "editor/types_dialog.h"

#include "support/core_test.h"

namespace mf::test {
namespace {

using Lines = std::vector<std::string>;

class TypesDialogTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(10, 10);
    rifles = world::AddType("Rifles", kLandTheater, 1);
    frigate = world::AddType("Frigate", kSeaTheater, 1);
    bomber = world::AddType("Bomber", kAirTheater, 3);
    blank = world::AddType("Blank", kAirTheater, 0);
    Game.PeopleCount = 2;
    People[1].Name = "Hillfolk";
    People[2].Name = "Rivermen";
    d.Prepare();
  }
  TypesDialog d;
  int rifles = 0, frigate = 0, bomber = 0, blank = 0;
  std::string why;
};

TEST_F(TypesDialogTest, TheListShowsNumberClassWordAndName) {
  EXPECT_EQ(d.rows, (Lines{"1) Inf Rifles", "2) War Frigate", "3) Bom Bomber", "4) n/a Blank"}));
  EXPECT_EQ(d.selected, 1);
  EXPECT_EQ(d.row, 0);
  EXPECT_EQ(d.numberLabel, "Type # = 1");
  ASSERT_TRUE(d.Select(frigate, &why));
  EXPECT_EQ(d.classLabels, (Lines{"War", "Trn", "Car", "Sub"}));
  EXPECT_EQ(d.classLabel, "War");
  ASSERT_TRUE(d.Select(blank, &why));
  EXPECT_EQ(d.classLabels, (Lines{"Fig", "Trn", "Bom", "n/a"}));
  EXPECT_EQ(d.classLabel, "n/a");
  EXPECT_FALSE(d.Select(5, &why));
  EXPECT_EQ(why, "there is no type 5 (the list holds 1..4)");
}

TEST_F(TypesDialogTest, TheFilterNarrowsByNameOrNumber) {
  d.SetFilter("fri");
  EXPECT_EQ(d.rows, (Lines{"2) War Frigate"}));
  EXPECT_EQ(d.row, -1);  // Rifles stays selected but is not shown
  EXPECT_EQ(d.selected, rifles);
  d.SetFilter("3");
  EXPECT_EQ(d.rows, (Lines{"3) Bom Bomber"}));
  d.SetFilter("  B ");
  EXPECT_EQ(d.rows, (Lines{"3) Bom Bomber", "4) n/a Blank"}));
  d.SetFilter("");
  EXPECT_EQ(d.rows.size(), 4u);
}

TEST_F(TypesDialogTest, NewDeleteAndCopy) {
  d.NewButton();
  EXPECT_EQ(Game.TypeCount, 5);
  EXPECT_EQ(Type[5].Name, "Type 5");
  EXPECT_EQ(d.selected, 5);
  for (int a = 1; a <= kTypeAttrs; ++a) EXPECT_EQ(Type[5].Attr[a], 0);
  Type[rifles].Attr[kSoftAttack] = 9;
  Type[rifles].Text = "Foot soldiers";
  platform.QueueAnswer("1");
  d.CopyButton();
  EXPECT_EQ(Type[5].Name, "Rifles");
  EXPECT_EQ(Type[5].Attr[kSoftAttack], 9);
  EXPECT_EQ(Type[5].Text, "Foot soldiers");
  d.DeleteButton();
  EXPECT_EQ(Game.TypeCount, 4);
  EXPECT_EQ(Type[5].Name, "");
  EXPECT_EQ(d.selected, 0);  // the selected type was the one deleted
  EXPECT_TRUE(Messages().empty());
  for (int i = 0; i < 4; ++i) d.DeleteButton();
  EXPECT_TRUE(Messages().empty());
  d.DeleteButton();
  EXPECT_EQ(Messages(), (Lines{"No types to delete"}));
  Game.TypeCount = 500;
  d.NewButton();
  EXPECT_EQ(Messages().back(), "To many types allready");
  EXPECT_EQ(Game.TypeCount, 500);
}

TEST_F(TypesDialogTest, TheProductionLines) {
  Type[rifles].Living[2] = 1;
  Type[rifles].Owning[1] = 1;
  d.Refill();
  EXPECT_EQ(d.livingRows, (Lines{"NOT IF Hillfolk", "IF Rivermen"}));
  EXPECT_EQ(d.owningRows, (Lines{"IF Hillfolk", "NOT IF Rivermen"}));
  EXPECT_EQ(d.researchLine, "No research needed");
  Research[7].Name = "Drill";
  d.SetResearch("7");
  EXPECT_EQ(d.researchLine, "IF Drill");
  d.ToggleLiving(1);
  d.ToggleOwning(1);
  EXPECT_EQ(Type[rifles].Living[1], 1);
  EXPECT_EQ(Type[rifles].Owning[1], 0);
  EXPECT_EQ(d.livingRows, (Lines{"IF Hillfolk", "IF Rivermen"}));
}

TEST_F(TypesDialogTest, EngineerSkillIsAskedBeforeTheClassAndZeroAlwaysPasses) {
  ASSERT_TRUE(d.Select(blank, &why));  // class 0
  EXPECT_FALSE(d.SetAttr(kEngineerSkill, "1"));
  EXPECT_EQ(Messages().back(), "Only infantry can have engineer skill.");
  EXPECT_FALSE(d.SetAttr(kWeight, "1"));
  EXPECT_EQ(Messages().back(),
            "You can't assign any attributes untill you give a valid type 1-4 1=inf,war,fig 2=mob,car,trn "
            "3=art,car,bom 4=arm,sub,*");
  // A wrong value left over from another class can be cleared with 0.
  Type[blank].Attr[kEngineerSkill] = 3;
  const std::size_t before = Messages().size();
  EXPECT_TRUE(d.SetAttr(kEngineerSkill, "0"));
  EXPECT_TRUE(d.SetAttr(kDogfight, "0"));
  EXPECT_EQ(Messages().size(), before);
  EXPECT_EQ(Type[blank].Attr[kEngineerSkill], 0);
  EXPECT_FALSE(d.SetAttr(21, "1"));
  EXPECT_EQ(Messages().back(), "Not known typedata");
}

TEST_F(TypesDialogTest, TheBoxesTakeWhatFitsAndRefuseTheRest) {
  d.SetTheater("3");
  EXPECT_EQ(Messages().back(), "Theater is 0 for land, 1 for sea or 2 for air.");
  EXPECT_EQ(Type[rifles].Theater, kLandTheater);
  d.SetClass("5");
  EXPECT_EQ(Messages().back(), "Class is 1 to 4, or 0 for none.");
  d.SetTheater("1");
  EXPECT_EQ(d.rows.front(), "1) War Rifles");
  d.SetCost("-5");
  EXPECT_EQ(Type[rifles].Cost, 0);
  d.SetName("Marines");
  EXPECT_EQ(d.rows.front(), "1) War Marines");
  platform.QueueAnswer("201");
  d.SpriteButton();
  EXPECT_EQ(Type[rifles].Sprite, 0);
  platform.QueueAnswer("200");
  d.SpriteButton();
  EXPECT_EQ(Type[rifles].Sprite, 200);
  EXPECT_EQ(d.spriteLabel, "Sprite: 200");
}

}  // namespace
}  // namespace mf::test
