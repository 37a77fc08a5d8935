// The distance tables between areas are found by a search per area; the
// rule writes them as a relaxation repeated as many times as there are
// areas. These tests hold the two equal, on random border tables and on the
// borders of random maps.
#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "ai/ai_state.h"
#include "ai/areas.h"
#include "support/core_test.h"

namespace mf {
namespace {

// The rule as written: row a starts at 1 for every neighbour and 999
// elsewhere, then `count` rounds of: for all b, c, if a reaches b and b
// borders c, a reaches c in one step more unless it already does better.
void Relax(const AreaPairTable& border, AreaPairTable& dist, int count) {
  for (int a = 1; a <= count; ++a) {
    for (int b = 1; b <= count; ++b) dist[a][b] = border[a][b] > 0 ? 1 : 999;
    for (int round = 1; round <= count; ++round)
      for (int b = 1; b <= count; ++b)
        for (int c = 1; c <= count; ++c)
          if (dist[a][b] > 0 && border[b][c] > 0 && dist[a][c] > dist[a][b] + 1)
            dist[a][c] = static_cast<Short>(dist[a][b] + 1);
  }
}

struct Tables {
  AreaPairTable border{};
  AreaPairTable fast{};
  AreaPairTable slow{};
};

void ExpectSame(const Tables& t, int count, const char* what, int trial) {
  for (int a = 1; a <= count; ++a)
    for (int b = 1; b <= count; ++b)
      ASSERT_EQ(t.fast[a][b], t.slow[a][b]) << what << " trial " << trial << " [" << a << "," << b << "]";
}

TEST(AreaDistances, AnAreaReachesItselfInTwoStepsAndNeverInNone) {
  auto t = std::make_unique<Tables>();
  t->border[1][2] = t->border[2][1] = 3;  // 1 - 2, and 3 alone
  AIAreaDistances(t->border, t->fast, 3);
  EXPECT_EQ(t->fast[1][1], 2);
  EXPECT_EQ(t->fast[2][2], 2);
  EXPECT_EQ(t->fast[1][2], 1);
  EXPECT_EQ(t->fast[3][3], 999);
  EXPECT_EQ(t->fast[1][3], 999);
}

TEST(AreaDistances, EqualToTheRelaxationOnRandomBorderTables) {
  std::mt19937 rng(20261125);
  auto t = std::make_unique<Tables>();
  for (int trial = 0; trial < 300; ++trial) {
    const int count = 1 + static_cast<int>(rng() % (trial < 280 ? 30 : 100));
    const bool symmetric = trial % 3 != 0;  // sea borders are counted from both sides; test one-way too
    const int density = 1 + static_cast<int>(rng() % 20);
    *t = Tables{};
    for (int a = 1; a <= count; ++a)
      for (int b = 1; b <= count; ++b) {
        if (a == b || static_cast<int>(rng() % 100) >= density) continue;
        const Short n = static_cast<Short>(1 + rng() % 4);
        t->border[a][b] = n;
        if (symmetric) t->border[b][a] = n;
      }
    AIAreaDistances(t->border, t->fast, count);
    Relax(t->border, t->slow, count);
    ExpectSame(*t, count, "table", trial);
  }
}

class AreaDistanceMapTest : public test::CoreTest {};

// Random maps of land, sea, mountains, swamps and forests, with towns of
// three owners and units standing about (which make pockets).
TEST_F(AreaDistanceMapTest, EqualToTheRelaxationOnRandomMaps) {
  std::mt19937 rng(77);
  auto t = std::make_unique<Tables>();
  for (int trial = 0; trial < 40; ++trial) {
    const int w = 10 + static_cast<int>(rng() % 21), h = 10 + static_cast<int>(rng() % 21);
    test::world::NewMap(w, h);
    for (int r = 1; r <= 3; ++r) test::world::AddRegime("R" + std::to_string(r));
    Game.CurRegime = 1 + static_cast<int>(rng() % 3);
    Game.GameEndPop = 1000;
    ResetAIState();
    for (int x = 1; x <= w; ++x)
      for (int y = 1; y <= h; ++y) {
        HexRec& hex = Hex[x][y];
        const int roll = static_cast<int>(rng() % 100);
        hex.Land = roll < 30 ? kSea : roll < 38 ? kMountain : roll < 45 ? kSwamp : roll < 55 ? kForest : kGrass;
        hex.Owner = hex.Land == kSea ? 0 : static_cast<int>(rng() % 4);
        if (hex.Land != kSea && rng() % 100 < 6) {
          hex.Land = kUrban;
          hex.Pop = 1 + static_cast<int>(rng() % 300);
        }
        if (hex.Land != kSea && hex.Owner > 0 && rng() % 100 < 4) hex.Unit[1] = 1;
      }
    AIClear();
    AIFindAreas();
    const int count = static_cast<int>(AI.AreaCount);
    ASSERT_GT(count, 0) << trial;
    for (int a = 0; a <= kAreaCap; ++a)
      for (int b = 0; b <= kAreaCap; ++b) {
        t->border[a][b] = AI.AreaLandBorder[a][b];
        t->fast[a][b] = AI.AreaLandDist[a][b];
      }
    Relax(t->border, t->slow, count);
    ExpectSame(*t, count, "land", trial);
    for (int a = 0; a <= kAreaCap; ++a)
      for (int b = 0; b <= kAreaCap; ++b) {
        t->border[a][b] = AI.AreaSeaBorder[a][b];
        t->fast[a][b] = AI.AreaSeaDist[a][b];
      }
    Relax(t->border, t->slow, count);
    ExpectSame(*t, count, "sea", trial);
  }
}

}  // namespace
}  // namespace mf
