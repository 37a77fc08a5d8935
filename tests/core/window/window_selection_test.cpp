// Selecting hexes and walking through stacks with presses on the map.
#include <gtest/gtest.h>

#include "control/selection.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class SelectionTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(40, 40);
    red = world::AddRegime("Red");
    UI.RedrawRequest = 0;
    UI.PanelDirty = false;
  }
  int red = 0;
};

TEST_F(SelectionTest, StackCountCountsTheSlotsInUse) {
  EXPECT_EQ(StackCount(5, 5), 0);
  world::AddUnit(red, 5, 5, "A");
  EXPECT_EQ(StackCount(5, 5), 1);
  world::AddUnit(red, 5, 5, "B");
  world::AddUnit(red, 5, 5, "C");
  EXPECT_EQ(StackCount(5, 5), 3);
  EXPECT_EQ(StackCount(0, 5), 0);
  EXPECT_EQ(StackCount(41, 5), 0);
}

TEST_F(SelectionTest, APressOnAnEmptyHexSelectsItWithoutAFormation) {
  ClickMap(7, 9, kLeftButton);
  EXPECT_EQ(UI.SelX, 7);
  EXPECT_EQ(UI.SelY, 9);
  EXPECT_EQ(UI.SelSlot, 0);
  EXPECT_EQ(UI.SelCount, 0);
  EXPECT_EQ(UI.PrevSelX, 7);
  EXPECT_EQ(UI.PrevSelY, 9);
  EXPECT_TRUE(UI.PanelDirty);
  EXPECT_EQ(UI.RedrawRequest, 1);
  ASSERT_EQ(platform.Sounds().size(), 1u);
  EXPECT_EQ(platform.Sounds()[0], 1);  // click.wav
}

TEST_F(SelectionTest, NoClickSoundWhenSoundIsSwitchedOff) {
  UI.SoundOff = 1;
  ClickMap(7, 9, kLeftButton);
  EXPECT_EQ(UI.SelX, 7);
  EXPECT_TRUE(platform.Sounds().empty());
}

TEST_F(SelectionTest, RepeatedPressesWalkThroughAStackOfThree) {
  world::AddUnit(red, 4, 6, "A");
  world::AddUnit(red, 4, 6, "B");
  world::AddUnit(red, 4, 6, "C");
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelCount, 3);
  EXPECT_EQ(UI.SelSlot, 1);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 2);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 3);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);  // wraps after the last formation
  EXPECT_EQ(platform.Sounds().size(), 4u);
}

TEST_F(SelectionTest, AStackOfTwoWrapsAfterTheSecond) {
  world::AddUnit(red, 4, 6, "A");
  world::AddUnit(red, 4, 6, "B");
  ClickMap(4, 6, kLeftButton);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 2);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);
}

TEST_F(SelectionTest, ALoneFormationStaysSelected) {
  world::AddUnit(red, 4, 6, "A");
  ClickMap(4, 6, kLeftButton);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.SelCount, 1);
}

TEST_F(SelectionTest, APressOnAnotherHexStartsAtTheTopOfItsStack) {
  world::AddUnit(red, 4, 6, "A");
  world::AddUnit(red, 4, 6, "B");
  world::AddUnit(red, 5, 6, "C");
  world::AddUnit(red, 5, 6, "D");
  ClickMap(4, 6, kLeftButton);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 2);
  ClickMap(5, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.PrevSelX, 5);
  // Back on the first hex: the walk starts again from the top.
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);
}

TEST_F(SelectionTest, NoWalkingWhileAMoveIsUnderWay) {
  world::AddUnit(red, 4, 6, "A");
  world::AddUnit(red, 4, 6, "B");
  ClickMap(4, 6, kLeftButton);
  UI.Order.SelOrderMove = 1;
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);
  ClickMap(4, 6, kRightButton);
  EXPECT_EQ(UI.SelSlot, 1);
}

TEST_F(SelectionTest, ARightPressSelectsAndWalksToo) {
  world::AddUnit(red, 4, 6, "A");
  world::AddUnit(red, 4, 6, "B");
  ClickMap(4, 6, kRightButton);
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.SelSlot, 1);
  ClickMap(4, 6, kRightButton);
  EXPECT_EQ(UI.SelSlot, 2);
}

TEST_F(SelectionTest, TheStackIsCountedAgainOnEveryPress) {
  world::AddUnit(red, 4, 6, "A");
  world::AddUnit(red, 4, 6, "B");
  ClickMap(4, 6, kLeftButton);
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 2);
  // The second formation leaves the hex between two presses.
  Hex[4][6].Unit[2] = 0;
  ClickMap(4, 6, kLeftButton);
  EXPECT_EQ(UI.SelCount, 1);
  EXPECT_EQ(UI.SelSlot, 1);
}

TEST_F(SelectionTest, PressesOffTheMapAreIgnored) {
  ClickMap(3, 3, kLeftButton);
  platform.Clear();
  UI.PanelDirty = false;
  ClickMap(0, 5, kLeftButton);
  ClickMap(5, 0, kLeftButton);
  ClickMap(41, 5, kLeftButton);
  ClickMap(5, 41, kLeftButton);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 3);
  EXPECT_FALSE(UI.PanelDirty);
  EXPECT_TRUE(platform.Sounds().empty());
}

TEST_F(SelectionTest, AFarAwayOldSelectionAsksForTheWholeMap) {
  ClickMap(1, 1, kLeftButton);
  UI.RedrawRequest = 0;
  // 15 hexes each way are inside the square around the new selection.
  ClickMap(16, 16, kLeftButton);
  EXPECT_EQ(UI.RedrawRequest, 1);
  UI.RedrawRequest = 0;
  // 16 hexes away the old highlight lies outside it.
  ClickMap(32, 16, kLeftButton);
  EXPECT_EQ(UI.RedrawRequest, 2);
}

}  // namespace
}  // namespace mf

namespace mf {
namespace {

class StackSlotTest : public test::CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    test::world::NewMap(12, 12);
    const int r = test::world::AddRegime("Blue");
    test::world::AddUnit(r, 2, 2, "A");
    test::world::AddUnit(r, 2, 2, "B");
  }
};

TEST_F(StackSlotTest, APressOnAPanelCounterSelectsThatFormation) {
  ClickMap(2, 2, kLeftButton);
  UI.PanelDirty = false;
  UI.RedrawRequest = 0;
  EXPECT_TRUE(SelectStackSlot(2));
  EXPECT_EQ(UI.SelSlot, 2);
  EXPECT_TRUE(UI.PanelDirty);
  EXPECT_EQ(UI.RedrawRequest, 1);
  // The next press on the map walks on from there.
  ClickMap(2, 2, kLeftButton);
  EXPECT_EQ(UI.SelSlot, 1);
}

TEST_F(StackSlotTest, AnEmptySlotOrNoSelectionSelectsNothing) {
  EXPECT_FALSE(SelectStackSlot(1));  // no hex selected yet
  ClickMap(2, 2, kLeftButton);
  EXPECT_FALSE(SelectStackSlot(3));
  EXPECT_FALSE(SelectStackSlot(0));
  EXPECT_EQ(UI.SelSlot, 1);
}

}  // namespace
}  // namespace mf
