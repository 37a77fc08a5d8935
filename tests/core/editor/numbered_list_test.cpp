// The numbered lists of the editors: picking an entry by number, a new
// entry at the end up to the list's cap, deleting the last entry, and the
// prompt that asks which entry to copy from.
#include "editor/numbered_list.h"

#include "support/core_test.h"

namespace mf::test {
namespace {

using Lines = std::vector<std::string>;

class NumberedListTest : public CoreTest {
 protected:
  std::string why;
};

TEST_F(NumberedListTest, APickOutsideTheListSaysWhatTheListHoldsAndKeepsTheChoice) {
  int selected = 2;
  EXPECT_TRUE(PickEntry(3, 3, "regime", &selected, &why));
  EXPECT_EQ(selected, 3);
  EXPECT_FALSE(PickEntry(4, 3, "regime", &selected, &why));
  EXPECT_EQ(why, "there is no regime 4 (the list holds 1..3)");
  EXPECT_FALSE(PickEntry(0, 3, "people", &selected, &why));
  EXPECT_EQ(why, "there is no people 0 (the list holds 1..3)");
  EXPECT_EQ(selected, 3);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(NumberedListTest, ANewEntryGoesOnAtTheEndUntilTheCap) {
  EXPECT_EQ(NewEntry(0, 10, "full"), 1);
  EXPECT_EQ(NewEntry(9, 10, "full"), 10);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(NewEntry(10, 10, "To many regimes allready"), 0);
  EXPECT_EQ(Messages(), (Lines{"To many regimes allready"}));
}

TEST_F(NumberedListTest, OnlyTheLastEntryIsDeletedAndAnEmptyListSaysSo) {
  EXPECT_EQ(EntryToDelete(7, "none"), 7);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(EntryToDelete(0, "No types to delete"), 0);
  EXPECT_EQ(Messages(), (Lines{"No types to delete"}));
}

TEST_F(NumberedListTest, TheCopyPromptTakesOnlyAnotherEntryOfTheList) {
  platform.QueueAnswer("4");
  EXPECT_EQ(AskCopySource("Copy which #", "0", 1, 5, 2), 4);
  ASSERT_FALSE(platform.Events().empty());
  EXPECT_EQ(platform.Events().back().kind, PlatformEvent::kPrompt);
  EXPECT_EQ(platform.Events().back().text, "Copy which #");
  platform.QueueAnswer("2");  // the entry itself: nothing to copy
  EXPECT_EQ(AskCopySource("Copy which #", "0", 1, 5, 2), 0);
  platform.QueueAnswer("6");
  EXPECT_EQ(AskCopySource("Copy which #", "0", 1, 5, 2), 0);
  platform.QueueAnswer("cancel");
  EXPECT_EQ(AskCopySource("Copy which #", "0", 1, 5, 2), 0);
  // Nothing typed: the prompt's default, 0, is no entry.
  EXPECT_EQ(AskCopySource("Copy which #", "0", 1, 5, 2), 0);
  EXPECT_EQ(AskCopySource("Copy which #", "5", 1, 5, 2), 5);
}

}  // namespace
}  // namespace mf::test
