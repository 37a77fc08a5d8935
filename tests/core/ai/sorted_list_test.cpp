// The computer player's sorted list and its quirks, which decide its ties.
#include <gtest/gtest.h>

#include "ai/ai_state.h"
#include "ai/sorted_list.h"

namespace mf {
namespace {

TEST(SortedList, EqualScoresKeepTheOrderTheyWereAddedIn) {
  ListClear();
  ListAdd(1, 10, 5);
  ListAdd(2, 20, 7);
  ListAdd(3, 30, 5);
  EXPECT_EQ(AI.ListCount, 3);
  EXPECT_EQ(AI.ListA[1], 2);
  EXPECT_EQ(AI.ListScore[1], 7);
  EXPECT_EQ(AI.ListA[2], 1);
  EXPECT_EQ(AI.ListB[2], 10);
  EXPECT_EQ(AI.ListA[3], 3);
  EXPECT_EQ(AI.ListB[3], 30);
}

TEST(SortedList, TheFirstEntryIsStoredWhateverItsScore) {
  ListClear();
  ListAdd(4, 5, -12);
  EXPECT_EQ(AI.ListCount, 1);
  EXPECT_EQ(AI.ListA[1], 4);
  EXPECT_EQ(AI.ListScore[1], -12);
}

TEST(SortedList, ANegativeSecondScoreLeavesABlankEntry) {
  ListClear();
  ListAdd(1, 1, 5);
  ListAdd(2, 2, -3);
  EXPECT_EQ(AI.ListCount, 2);
  EXPECT_EQ(AI.ListA[2], 0);
  EXPECT_EQ(AI.ListB[2], 0);
  EXPECT_EQ(AI.ListScore[2], 0);
}

TEST(SortedList, AFullListLosesItsLowestEntry) {
  ListClear();
  for (int i = 1; i <= kListCap; ++i) ListAdd(i, 0, 2000 - i);  // scores 1999 down to 1000
  EXPECT_EQ(AI.ListCount, kListCap);
  EXPECT_EQ(AI.ListA[kListCap], kListCap);
  ListAdd(5000, 0, 1500);
  EXPECT_EQ(AI.ListCount, kListCap);
  EXPECT_EQ(AI.ListA[500], 500);     // score 1500 added first stays in front
  EXPECT_EQ(AI.ListA[501], 5000);
  EXPECT_EQ(AI.ListA[kListCap], kListCap - 1);  // the old last (score 1000) fell away
  ListAdd(6000, 0, 3);               // lower than all: carried past the end
  EXPECT_EQ(AI.ListA[kListCap], kListCap - 1);
}

TEST(SortedList, ClearEmptiesEveryEntry) {
  ListAdd(9, 9, 9);
  ListClear();
  EXPECT_EQ(AI.ListCount, 0);
  EXPECT_EQ(AI.ListA[1], 0);
  EXPECT_EQ(AI.ListScore[1], 0);
}

}  // namespace
}  // namespace mf
