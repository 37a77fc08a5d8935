// The whole-number arithmetic every rule uses, and the one random generator.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <limits>
#include <vector>

#include "model/arith.h"
#include "model/rnd.h"
#include "support/core_test.h"

namespace mf {
namespace {

TEST(Arith, IntIsTheFloorAlsoForNegatives) {
  EXPECT_EQ(Int(2.7), 2);
  EXPECT_EQ(Int(2.0), 2);
  EXPECT_EQ(Int(-2.5), -3);
  EXPECT_EQ(Int(-0.1), -1);
  EXPECT_EQ(Int(-3.0), -3);
  EXPECT_EQ(Int(79.2), 79);
}

TEST(Arith, IntAndCIntHoldNoNumberAndHugeValuesAtTheEnds) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Int(nan), 0);
  EXPECT_EQ(CInt(nan), 0);
  EXPECT_EQ(Int(inf), INT64_MAX);
  EXPECT_EQ(CInt(-inf), INT64_MIN);
  EXPECT_EQ(Int(1e300), INT64_MAX);
  EXPECT_EQ(CInt(-1e300), INT64_MIN);
  EXPECT_EQ(Int(9.3e18), INT64_MAX);
  EXPECT_EQ(CInt(-9.3e18), INT64_MIN);
  // The last doubles inside the range convert as they are.
  EXPECT_EQ(Int(-9223372036854775808.0), INT64_MIN);
  EXPECT_EQ(CInt(9223372036854774784.0), 9223372036854774784);
}

TEST(Arith, Clamp32AndAddSatStopAtTheEndsOfALong) {
  EXPECT_EQ(Clamp32(5), 5);
  EXPECT_EQ(Clamp32(3000000000LL), INT32_MAX);
  EXPECT_EQ(Clamp32(-3000000000LL), INT32_MIN);
  EXPECT_EQ(AddSat(10, 5), 15);
  EXPECT_EQ(AddSat(10, -15), -5);
  EXPECT_EQ(AddSat(INT32_MAX - 2, 5), INT32_MAX);
  EXPECT_EQ(AddSat(INT32_MIN, -1), INT32_MIN);
  EXPECT_EQ(AddSat(INT32_MIN, 999), INT32_MIN + 999);
  EXPECT_EQ(AddSat(0, INT64_MAX), INT32_MAX);
  EXPECT_EQ(AddSat(0, INT64_MIN), INT32_MIN);
  EXPECT_EQ(AddSat(INT32_MAX, INT64_MIN), INT32_MIN);
}

TEST(Arith, AddSat64StopsAtTheEndsOfA64BitTotal) {
  EXPECT_EQ(AddSat64(10, -15), -5);
  EXPECT_EQ(AddSat64(INT64_MAX - 2, 5), INT64_MAX);
  EXPECT_EQ(AddSat64(INT64_MIN + 2, -5), INT64_MIN);
  EXPECT_EQ(AddSat64(INT64_MAX, INT64_MIN), -1);
  EXPECT_EQ(AddSat64(INT64_MIN, INT64_MIN), INT64_MIN);
}

TEST(Arith, CIntRoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(0.5), 0);
  EXPECT_EQ(CInt(1.5), 2);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(-3.5), -4);
  EXPECT_EQ(CInt(-0.5), 0);
  EXPECT_EQ(CInt(2.6), 3);
  EXPECT_EQ(CInt(2.4), 2);
  EXPECT_EQ(CInt(-2.6), -3);
  EXPECT_EQ(CInt(-2.4), -2);
}

TEST(Arith, WholeDivisionTruncates) {
  EXPECT_EQ(IDiv(7, 2), 3);
  EXPECT_EQ(IDiv(-7, 2), -3);
  EXPECT_EQ(IDiv(7, -2), -3);
  EXPECT_EQ(IDiv(-7, -2), 3);
  EXPECT_EQ(IDiv(5, 0), 0);
}

TEST(Arith, ModKeepsTheSignOfTheDividend) {
  EXPECT_EQ(Mod(7, 3), 1);
  EXPECT_EQ(Mod(-7, 3), -1);
  EXPECT_EQ(Mod(7, -3), 1);
  EXPECT_EQ(Mod(-7, -3), -1);
  EXPECT_EQ(Mod(-30, 21), -9);
  EXPECT_EQ(Mod(5, 0), 0);
}

TEST(Arith, StrHasALeadingBlankWhenNotNegative) {
  EXPECT_EQ(Str(5), " 5");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-5), "-5");
  EXPECT_EQ(Str(2000), " 2000");
  EXPECT_EQ(NumText(5), "5");
  EXPECT_EQ(NumText(-5), "-5");
}

TEST(Arith, ValTakesTheLeadingNumber) {
  EXPECT_EQ(Val("12abc"), 12);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("  42"), 42);
  EXPECT_EQ(Val(" -3.5x"), -3.5);
  EXPECT_EQ(Val("1 2"), 1);
  EXPECT_EQ(Val("-"), 0);
  EXPECT_EQ(Val(".5"), 0.5);
}

TEST(Arith, ValLongTruncatesAndHoldsToALong) {
  EXPECT_EQ(ValLong("7.9"), 7);
  EXPECT_EQ(ValLong("-7.9"), -7);
  EXPECT_EQ(ValLong("12abc"), 12);
  EXPECT_EQ(ValLong("99999999999"), INT32_MAX);
  EXPECT_EQ(ValLong("-99999999999"), INT32_MIN);
}

TEST(Arith, TrimRemovesOuterBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim(" 5"), "5");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim(Str(2000)), "2000");
}

std::vector<float> Draws(int n) {
  std::vector<float> v;
  for (int i = 0; i < n; ++i) v.push_back(Rnd());
  return v;
}

TEST(Rnd, ARepeatedSeedRepeatsTheSequence) {
  SeedRnd(42);
  const auto first = Draws(200);
  SeedRnd(42);
  const auto second = Draws(200);
  EXPECT_EQ(first, second);
  SeedRnd(43);
  const auto other = Draws(200);
  EXPECT_NE(first, other);
}

TEST(Rnd, DrawsLieInZeroUpToButNotIncludingOne) {
  SeedRnd(7);
  double sum = 0;
  int below = 0;
  const int n = 100000;
  for (int i = 0; i < n; ++i) {
    const float r = Rnd();
    ASSERT_GE(r, 0.0f);
    ASSERT_LT(r, 1.0f);
    sum += r;
    if (r < 0.1f) ++below;
  }
  // Spread over the whole range, not stuck in a corner of it.
  EXPECT_NEAR(sum / n, 0.5, 0.01);
  EXPECT_NEAR(below, n / 10, n / 100);
}

}  // namespace
}  // namespace mf

namespace mf {
namespace {

TEST(TextLength, CountsCharactersNotBytes) {
  EXPECT_EQ(Len(""), 0u);
  EXPECT_EQ(Len("Ærø"), 3u);  // six bytes, three characters
  EXPECT_EQ(Len("Guards"), 6u);
  EXPECT_EQ(Left("Zoë Brontë", 3), "Zoë");
  EXPECT_EQ(Left("Zoë", 0), "");
  EXPECT_EQ(Left("Zoë", 10), "Zoë");
}

}  // namespace
}  // namespace mf
