// The keys of the main window.
#include <gtest/gtest.h>

#include "control/keyboard.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class KeyboardTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(40, 30);
    UI.EditMode = 1;
    LayOutMapWindow();  // picture 1750 x 970, scroll ranges 792 and 522
  }
  void Play(int turn) {
    UI.EditMode = 0;
    Game.Turn = turn;
  }
};

TEST_F(KeyboardTest, F1SwitchesTheSoundOffAndOnWithItsMessages) {
  EXPECT_TRUE(KeyDown(kKeyF1));
  EXPECT_EQ(UI.SoundOff, 1);
  EXPECT_TRUE(KeyDown(kKeyF1));
  EXPECT_EQ(UI.SoundOff, 0);
  const auto& events = platform.Events();
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].text, "Sound is switched off");
  EXPECT_EQ(events[0].title, "Marrowfield");
  EXPECT_EQ(events[1].text, "Sound is switched on");
}

TEST_F(KeyboardTest, F1WorksWhileEditingAndInAGame) {
  KeyDown(kKeyF1);
  Play(4);
  KeyDown(kKeyF1);
  EXPECT_EQ(UI.SoundOff, 0);
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(KeyboardTest, F11IsNotForTheEditor) {
  EXPECT_FALSE(KeyDown(kKeyF11));
  EXPECT_FALSE(UI.AILogShown);
}

TEST_F(KeyboardTest, F11ShowsAndHidesTheAnalysisLogInAGame) {
  Play(2);
  EXPECT_TRUE(KeyDown(kKeyF11));
  EXPECT_TRUE(UI.AILogShown);
  EXPECT_TRUE(KeyDown(kKeyF11));
  EXPECT_FALSE(UI.AILogShown);
}

TEST_F(KeyboardTest, F12IsNotForTheEditor) {
  EXPECT_FALSE(KeyDown(kKeyF12));
  EXPECT_TRUE(platform.Events().empty());
}

TEST_F(KeyboardTest, F12SetsTheTurnFromThePrompt) {
  Play(5);
  platform.QueueAnswer("12");
  EXPECT_TRUE(KeyDown(kKeyF12));
  ASSERT_EQ(platform.Events().size(), 1u);
  EXPECT_EQ(platform.Events()[0].kind, PlatformEvent::kPrompt);
  EXPECT_EQ(platform.Events()[0].text, "Set current Turn please (debug only):");
  EXPECT_EQ(Game.Turn, 12);
  EXPECT_EQ(UI.TurnLabel, "12");
}

TEST_F(KeyboardTest, F12OffersTheTurnAsItStands) {
  Play(5);
  KeyDown(kKeyF12);  // nothing queued: the prompt keeps its default
  ASSERT_EQ(platform.Events().size(), 1u);
  EXPECT_EQ(platform.Events()[0].answer, "5");
  EXPECT_EQ(Game.Turn, 5);
}

TEST_F(KeyboardTest, ACancelledF12PromptLeavesTheTurn) {
  Play(5);
  platform.QueueAnswer("cancel");
  KeyDown(kKeyF12);
  EXPECT_EQ(Game.Turn, 5);
}

TEST_F(KeyboardTest, RightAndLeftScrollByHalfAScreenUpToTheEdges) {
  // The visible part is 1750 - 792 = 958 wide; half of it is 479.
  UI.RedrawRequest = 0;
  EXPECT_TRUE(KeyDown(kKeyRight));
  EXPECT_EQ(UI.ScrollX, 479);
  EXPECT_EQ(UI.RedrawRequest, 2);
  EXPECT_TRUE(KeyDown(kKeyRight));
  EXPECT_EQ(UI.ScrollX, 792);  // 958 would pass the edge
  UI.RedrawRequest = 0;
  EXPECT_FALSE(KeyDown(kKeyRight));
  EXPECT_EQ(UI.ScrollX, 792);
  EXPECT_EQ(UI.RedrawRequest, 0);  // nothing moved, nothing to draw
  EXPECT_TRUE(KeyDown(kKeyLeft));
  EXPECT_EQ(UI.ScrollX, 313);
  EXPECT_TRUE(KeyDown(kKeyLeft));
  EXPECT_EQ(UI.ScrollX, 0);
  EXPECT_FALSE(KeyDown(kKeyLeft));
  EXPECT_EQ(UI.ScrollY, 0);
}

TEST_F(KeyboardTest, UpAndDownScrollByHalfAScreenToo) {
  // The visible part is 970 - 522 = 448 high; half of it is 224.
  EXPECT_TRUE(KeyDown(kKeyDown));
  EXPECT_EQ(UI.ScrollY, 224);
  EXPECT_TRUE(KeyDown(kKeyDown));
  EXPECT_EQ(UI.ScrollY, 448);
  EXPECT_TRUE(KeyDown(kKeyDown));
  EXPECT_EQ(UI.ScrollY, 522);
  EXPECT_TRUE(KeyDown(kKeyUp));
  EXPECT_EQ(UI.ScrollY, 298);
  EXPECT_EQ(UI.ScrollX, 0);
}

TEST_F(KeyboardTest, TheWindowsOwnViewSizeDecidesHalfAScreen) {
  // A wider window: the window narrows the scroll range to what it shows.
  UI.ScrollMaxX = 550;  // 1200 of the 1750 are visible
  KeyDown(kKeyRight);
  EXPECT_EQ(UI.ScrollX, 550);  // 600 would pass the edge
  UI.ScrollX = 0;
  UI.ScrollMaxX = 1000;  // 750 visible
  KeyDown(kKeyRight);
  EXPECT_EQ(UI.ScrollX, 375);
}

TEST_F(KeyboardTest, ASmallMapDoesNotScroll) {
  world::NewMap(10, 10);
  LayOutMapWindow();
  EXPECT_FALSE(KeyDown(kKeyRight));
  EXPECT_FALSE(KeyDown(kKeyDown));
  EXPECT_EQ(UI.ScrollX, 0);
  EXPECT_EQ(UI.ScrollY, 0);
}

TEST_F(KeyboardTest, OrderLettersAndEnterAreLeftToTheOrders) {
  EXPECT_FALSE(KeyDown('M'));
  EXPECT_FALSE(KeyDown(kKeyEnter));
  EXPECT_FALSE(KeyDown(kKeyF2));
  EXPECT_TRUE(platform.Events().empty());
  EXPECT_EQ(UI.ScrollX, 0);
}

}  // namespace
}  // namespace mf
