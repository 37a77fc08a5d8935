// The random map: islands, towns and names, start forces, roads, and whole
// maps made through the dialog.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "ai/ai_state.h"
#include "files/scenario_file.h"
#include "model/hex_geometry.h"
#include "model/invariants.h"
#include "model/rnd.h"
#include "random/generator.h"
#include "random/islands.h"
#include "random/regime_shq.h"
#include "random/roads.h"
#include "random/start_forces.h"
#include "random/towns.h"
#include "random_test_util.h"

namespace mf::test {
namespace {

// ---- Counts of a map ----------------------------------------------------------

TEST(RandomCounts, IslandsAndWaves) {
  EXPECT_EQ(IslandCount(100, 100), 20);
  EXPECT_EQ(GrowthWaves(100, 100), 30);
  EXPECT_EQ(IslandCount(10, 10), 2);
  EXPECT_EQ(GrowthWaves(10, 10), -2);
  EXPECT_EQ(IslandCount(40, 50), 9);
  EXPECT_EQ(GrowthWaves(40, 50), 10);  // 10 - 5 + 5
  EXPECT_EQ(IslandCount(35, 47), 8);   // 82 / 10
  EXPECT_EQ(GrowthWaves(35, 47), 7);   // 8 - 5 + 4
}

// ---- Names --------------------------------------------------------------------

class RandomNamesTest : public CoreTest {};

TEST_F(RandomNamesTest, NinetyNineNamesWithoutRepeatsAndNeverTheLast) {
  EXPECT_EQ(TownName(1), "Leeds");
  EXPECT_EQ(TownName(8), "Los Angelos");
  EXPECT_EQ(TownName(99), "Lovetown");
  EXPECT_EQ(TownName(100), "Dunkers City");
  EXPECT_EQ(TownName(101), "");
  TownNameDraw names;
  std::set<std::string> seen;
  for (int i = 1; i <= 99; ++i) {
    const std::string n = names.Draw();
    EXPECT_TRUE(seen.insert(n).second) << n << " twice";
  }
  EXPECT_EQ(seen.size(), 99u);
  EXPECT_EQ(seen.count("Dunkers City"), 0u);
  for (int i = 1; i <= 99; ++i) EXPECT_EQ(seen.count(TownName(i)), 1u) << TownName(i);
  // With every name used no name is left, and no draw is made.
  SeedRnd(3);
  const float next = Rnd();
  SeedRnd(3);
  EXPECT_EQ(names.Draw(), "");
  EXPECT_EQ(Rnd(), next);
}

// ---- Islands ------------------------------------------------------------------

class RandomIslandTest : public CoreTest {
 protected:
  void SeaMap(int size) {
    world::NewMap(size, size);
    for (int x = 1; x <= size; ++x)
      for (int y = 1; y <= size; ++y) Hex[x][y].Land = kSea;
  }
};

TEST_F(RandomIslandTest, NoWavesGrowNoLandButMarkTheSeed) {
  SeaMap(10);
  GrowIsland(-2);
  int marked = 0;
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      EXPECT_EQ(Hex[x][y].Land, kSea);
      if (Hex[x][y].Work != 0) {
        ++marked;
        EXPECT_EQ(Hex[x][y].Work, 1);
        EXPECT_GE(x, 2);
        EXPECT_LE(x, 8);  // Int(draw * 7) + 2
      }
    }
  EXPECT_EQ(marked, 1);
}

TEST_F(RandomIslandTest, OneWaveMakesTheSeedLandAndMarksAllItsNeighbours) {
  SeaMap(12);
  GrowIsland(1);
  // Growth in wave 1 of 1 is sure: Int(draw * 1) = 0 < 1 + 1 - 1.
  int land = 0;
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) {
      if (Hex[x][y].Land == kSea) continue;
      ++land;
      EXPECT_EQ(Hex[x][y].Work, 1);
      for (int d = 1; d <= 6; ++d) {
        const HexXY n = Neighbour(x, y, d);
        EXPECT_EQ(Hex[n.x][n.y].Work, 2);
        EXPECT_EQ(Hex[n.x][n.y].Land, kSea);  // the next wave never came
      }
    }
  EXPECT_EQ(land, 1);
}

TEST_F(RandomIslandTest, TheBorderNeverGrowsAndLandIsOfThreeKinds) {
  SeaMap(30);
  GrowIsland(12);
  for (int i = 1; i <= 30; ++i) {
    EXPECT_EQ(Hex[1][i].Land, kSea);
    EXPECT_EQ(Hex[30][i].Land, kSea);
    EXPECT_EQ(Hex[i][1].Land, kSea);
    EXPECT_EQ(Hex[i][30].Land, kSea);
  }
  int land = 0;
  for (int x = 1; x <= 30; ++x)
    for (int y = 1; y <= 30; ++y) {
      const Long l = Hex[x][y].Land;
      EXPECT_TRUE(l == kSea || l == kGrass || l == kForest || l == kMountain);
      land += l != kSea;
      if (l != kSea) {
        EXPECT_GE(Hex[x][y].Work, 1);
        EXPECT_LE(Hex[x][y].Work, 13);
      }
    }
  EXPECT_GT(land, 7);
}

TEST_F(RandomIslandTest, EarlierLandStaysAsItIs) {
  SeaMap(20);
  for (int x = 2; x <= 19; ++x)
    for (int y = 2; y <= 19; ++y) Hex[x][y].Land = kSwamp;
  GrowIsland(8);
  for (int x = 2; x <= 19; ++x)
    for (int y = 2; y <= 19; ++y) EXPECT_EQ(Hex[x][y].Land, kSwamp);
}

// ---- Towns of an island ---------------------------------------------------------

class RandomTownTest : public RandomIslandTest {
 protected:
  // An island of grass on a 10 x 10 sea: the row y = 5 from x = 3 to 7,
  // marked with the waves 3, 2, 1, 2, 3 from west to east.
  void Island() {
    SeaMap(10);
    const int work[] = {3, 2, 1, 2, 3};
    for (int i = 0; i < 5; ++i) {
      Hex[3 + i][5].Land = kGrass;
      Hex[3 + i][5].Work = work[i];
    }
  }
};

TEST_F(RandomTownTest, TheShoreTownTakesTheLatestWaveOnTheShore) {
  Island();
  TownNameDraw names;
  ASSERT_TRUE(PlaceShoreTown(names));
  // Every hex of a one-row island has 4 sea neighbours (+100): the best is
  // the first listed of the two at wave 3, (3, 5), score 103.
  EXPECT_EQ(AI.ListScore[1], 103);
  EXPECT_EQ(AI.ListA[1], 3);
  EXPECT_EQ(AI.ListB[1], 5);
  const HexRec& t = Hex[3][5];
  EXPECT_EQ(t.Land, kUrban);
  EXPECT_EQ(t.Owner, 0);
  EXPECT_EQ(t.People, 2);
  EXPECT_GE(t.Pop, 500);
  EXPECT_LE(t.Pop, 2400);
  EXPECT_EQ(t.Pop % 100, 0);
  EXPECT_FALSE(t.UrbanName.empty());
  EXPECT_EQ(names.UsedCount(), 1);
}

TEST_F(RandomTownTest, ATownBesideCostsTheShoreHundred) {
  Island();
  Hex[2][5].Land = kUrban;  // west of (3, 5)
  TownNameDraw names;
  ASSERT_TRUE(PlaceShoreTown(names));
  // (3, 5): the town sets the count to -100 and later sea neighbours add on,
  // so it stays below 0: 3 - 100 < 0, not listed. (7, 5) at 103 wins.
  EXPECT_EQ(AI.ListA[1], 7);
  EXPECT_EQ(Hex[7][5].Land, kUrban);
  EXPECT_EQ(Hex[3][5].Land, kGrass);
}

TEST_F(RandomTownTest, TheInlandTownTakesTheEarliestWaveAwayFromTheShore) {
  SeaMap(10);
  // A block of grass x 3..7, y 3..7, the waves counting out from (5, 5).
  for (int x = 3; x <= 7; ++x)
    for (int y = 3; y <= 7; ++y) {
      Hex[x][y].Land = kGrass;
      Hex[x][y].Work = Distance(x, y, 5, 5) + 1;
    }
  TownNameDraw names;
  ASSERT_TRUE(PlaceInlandTown(names));
  // (5, 5) is inland with wave 1: score 19.
  EXPECT_EQ(AI.ListScore[1], 19);
  const HexRec& t = Hex[5][5];
  EXPECT_EQ(t.Land, kUrban);
  EXPECT_GE(t.People, 1);
  EXPECT_LE(t.People, 3);
  EXPECT_TRUE((t.Pop >= 500 && t.Pop <= 2400) || (t.Pop >= 2000 && t.Pop <= 3900));
}

TEST_F(RandomTownTest, NoMarkedHexNoTown) {
  SeaMap(10);
  TownNameDraw names;
  EXPECT_FALSE(PlaceShoreTown(names));
  EXPECT_FALSE(PlaceInlandTown(names));
  EXPECT_EQ(names.UsedCount(), 0);
}

TEST_F(RandomTownTest, OneInTwentyInlandTownsIsACity) {
  // Many draws: the city share is near 5%, cities are 2000..3900.
  int cities = 0;
  const int runs = 2000;
  SeedRnd(99);
  world::NewMap(10, 10);  // grass: (5, 5) is inland
  for (int i = 0; i < runs; ++i) {
    Hex[5][5].Land = kGrass;
    Hex[5][5].Work = 1;
    TownNameDraw names;
    ASSERT_TRUE(PlaceInlandTown(names));
    const Long pop = Hex[5][5].Pop;
    ASSERT_EQ(pop % 100, 0);
    if (pop > 2400) ++cities;
    ASSERT_LE(pop, 3900);
  }
  // A city of 2000..2400 reads as a town here: 5% x 15/20 = 3.75% show.
  EXPECT_GT(cities, runs * 2 / 100);
  EXPECT_LT(cities, runs * 55 / 1000);
}

// ---- Start towns ------------------------------------------------------------------

class RandomStartTest : public RandomIslandTest {};

TEST_F(RandomStartTest, OnlyPlainsWithNoTownBeside) {
  SeaMap(12);
  Hex[6][6].Land = kGrass;
  Hex[3][3].Land = kGrass;
  Hex[3][4].Land = kUrban;  // beside (3, 3)
  long tries = 0;
  const StartTown t = ChooseStartTown(nullptr, 0, tries);
  EXPECT_EQ(t.x, 6);
  EXPECT_EQ(t.y, 6);
  EXPECT_GE(tries, 20);
  EXPECT_LT(tries, kStartTownStrictTries);
}

TEST_F(RandomStartTest, FarthestOfTwentyFromTheEarlierTowns) {
  SeaMap(30);
  for (int x = 1; x <= 30; ++x)
    for (int y = 1; y <= 30; ++y) Hex[x][y].Land = kGrass;
  SeedRnd(5);
  long tries = 0;
  const StartTown earlier[] = {{2, 2}, {28, 28}};
  const StartTown t = ChooseStartTown(earlier, 2, tries);
  EXPECT_EQ(tries, 20);  // every try on plains is taken
  // Redo the same twenty candidates by hand: the first with the greatest least distance.
  SeedRnd(5);
  int best = 0;
  StartTown want;
  for (int c = 0; c < 20; ++c) {
    const int x = static_cast<int>(Rnd() * 29.0) + 1;
    const int y = static_cast<int>(Rnd() * 29.0) + 1;
    const int d = std::min(Distance(x, y, 2, 2), Distance(x, y, 28, 28));
    if (d > best) {
      best = d;
      want = {x, y};
    }
  }
  EXPECT_EQ(t.x, want.x);
  EXPECT_EQ(t.y, want.y);
}

TEST_F(RandomStartTest, FromTheFiveThousandthTryAnyLandWillDo) {
  SeaMap(12);
  long tries = kStartTownStrictTries - 1;
  const StartTown t = ChooseStartTown(nullptr, 0, tries);
  // The first try already counts as the 5000th: it is taken, sea or not.
  EXPECT_EQ(tries, kStartTownStrictTries + 19);
  EXPECT_EQ(Hex[t.x][t.y].Land, kSea);
}

// ---- Roads ----------------------------------------------------------------------

class RandomRoadTest : public RandomIslandTest {
 protected:
  void Town(int x, int y) {
    Hex[x][y].Land = kUrban;
    Hex[x][y].Pop = 1000;
  }
};

TEST_F(RandomRoadTest, NeighbouringTownsOverLandAreJoined) {
  world::NewMap(12, 12);  // grass
  Town(3, 3);
  Town(3, 7);
  BuildRoads();
  EXPECT_EQ(AI.AreaCount, 2);
  EXPECT_EQ(AI.AreaLandBorder[1][2], 1);
  EXPECT_EQ(AI.AreaLandBorder[2][1], 1);
  // The road: both towns and a way of 4 steps between, no more.
  EXPECT_EQ(Hex[3][3].Road, 1);
  EXPECT_EQ(Hex[3][7].Road, 1);
  int roads = 0;
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) roads += Hex[x][y].Road;
  EXPECT_EQ(roads, 5);
  // Each road hex but the towns touches two others of the road.
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) {
      if (Hex[x][y].Road == 0 || Hex[x][y].Land == kUrban) continue;
      int next = 0;
      for (int d = 1; d <= 6; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (n.x > 0 && n.y > 0 && Hex[n.x][n.y].Road) ++next;
      }
      EXPECT_GE(next, 2) << x << "," << y;
    }
}

TEST_F(RandomRoadTest, SeaAndMountainsSeparate) {
  world::NewMap(12, 12);
  for (int y = 1; y <= 12; ++y) Hex[6][y].Land = kSea;
  for (int y = 1; y <= 12; ++y) Hex[9][y].Land = kMountain;
  Town(3, 5);
  Town(8, 5);
  Town(11, 5);
  BuildRoads();
  EXPECT_EQ(AI.AreaCount, 3);
  EXPECT_EQ(AI.AreaLandBorder[1][2], 0);
  EXPECT_EQ(AI.AreaLandBorder[2][3], 0);
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) EXPECT_EQ(Hex[x][y].Road, 0) << x << "," << y;
}

TEST_F(RandomRoadTest, TooFarForTheWavesGivesNoRoad) {
  // A strip of land one hex wide along y = 2: 5 per step, the way to a town
  // 21 steps off needs 21 waves, more than 19.
  world::NewMap(30, 5);
  for (int x = 1; x <= 30; ++x)
    for (int y = 1; y <= 5; ++y) Hex[x][y].Land = y == 2 ? kGrass : kSea;
  Town(2, 2);
  Town(23, 2);
  Town(27, 2);
  BuildRoads();
  EXPECT_EQ(AI.AreaLandBorder[1][2], 1);
  EXPECT_EQ(AI.AreaLandBorder[2][3], 1);
  EXPECT_EQ(AI.AreaLandBorder[1][3], 0);
  // 23 to 27 is 4 steps: joined. 2 to 23 is 21 steps: not.
  for (int x = 23; x <= 27; ++x) EXPECT_EQ(Hex[x][2].Road, 1) << x;
  for (int x = 2; x <= 22; ++x) EXPECT_EQ(Hex[x][2].Road, 0) << x;
}

TEST_F(RandomRoadTest, LaterPairsFollowEarlierRoads) {
  world::NewMap(12, 12);
  Town(2, 6);
  Town(6, 6);
  Town(10, 6);
  BuildRoads();
  // Towns 1-2 and 2-3 border; the straight row y = 6 is the cheapest way.
  for (int x = 2; x <= 10; ++x) EXPECT_EQ(Hex[x][6].Road, 1) << x;
  int roads = 0;
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) roads += Hex[x][y].Road;
  EXPECT_EQ(roads, 9);
}

// ---- Whole maps ------------------------------------------------------------------

class RandomMapTest : public RandomTest {
 protected:
  void SetUp() override {
    RandomTest::SetUp();
    ASSERT_TRUE(CopyBase());
  }
  bool Make(const std::string& size, const std::string& land, int regimes, const std::string& seed,
            const std::string& humans = "1") {
    return Generate({{"size", size},
                     {"land", land},
                     {"regimes", std::to_string(regimes)},
                     {"humans", humans},
                     {"seed", seed},
                     {"start", ""}});
  }
  std::string SaveBytes(const std::string& name) {
    const std::string path = TempPath(name);
    EXPECT_TRUE(WriteFile(path));
    std::ifstream in(path, std::ios::binary);
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
  }
};

TEST_F(RandomMapTest, ASmallSeededMapByHand) {
  ASSERT_TRUE(Make("30", "50", 3, "5"));
  EXPECT_EQ(CheckInvariants(), "");
  EXPECT_EQ(Game.MapW, 30);
  EXPECT_EQ(Game.MapH, 30);
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Game.RegimeCount, 3);
  EXPECT_EQ(UI.SelX, 0);
  EXPECT_EQ(UI.SelY, 0);

  std::set<std::string> names;
  double pop = 0;
  int towns = 0;
  std::map<int, std::pair<int, int>> capital;
  for (int x = 1; x <= 30; ++x)
    for (int y = 1; y <= 30; ++y) {
      const HexRec& h = Hex[x][y];
      pop += h.Pop;
      if (h.Land != kUrban) continue;
      ++towns;
      EXPECT_TRUE(names.insert(h.UrbanName).second) << h.UrbanName << " twice";
      bool listed = false;
      for (int n = 1; n <= 99; ++n) listed = listed || TownName(n) == h.UrbanName;
      EXPECT_TRUE(listed) << h.UrbanName;
      if (h.Owner != 0) capital[static_cast<int>(h.Owner)] = {x, y};
    }
  EXPECT_LE(towns, 2 * IslandCount(30, 50) + 3);
  EXPECT_EQ(Game.GameEndPop, static_cast<Long>(pop * 0.8));

  ASSERT_EQ(capital.size(), 3u);
  for (int a = 1; a <= 3; ++a) {
    const auto [x, y] = capital[a];
    const HexRec& town = Hex[x][y];
    EXPECT_EQ(town.Pop, 2500);
    EXPECT_EQ(town.People, Regime[a].OwnPeople);
    const int shq = static_cast<int>(town.Unit[1]);
    ASSERT_NE(shq, 0);
    EXPECT_EQ(Unit[shq].Name, RegimeShqName(town.UrbanName));
    EXPECT_LE(Unit[shq].Name.size(), 16u);
    EXPECT_EQ(Unit[shq].CounterPic, Regime[a].HexSprite + 240);
    EXPECT_EQ(Unit[shq].Shq, 1);
    EXPECT_EQ(Shq[a][1].Unit, shq);
    EXPECT_EQ(Unit[shq].Readiness, 0);
    EXPECT_NE(Unit[shq].Officer, 0);
    EXPECT_EQ(town.ProdSHQ, shq);
    EXPECT_EQ(town.Prod, 1);
    EXPECT_EQ(town.Unit[2], 0);

    const HexRec& camp = Hex[x + 1][y];
    EXPECT_EQ(camp.Owner, a);
    EXPECT_TRUE(camp.Land == kGrass || camp.Land == kUrban);
    const int thq = static_cast<int>(camp.Unit[1]);
    ASSERT_NE(thq, 0);
    const UnitRec& t = Unit[thq];
    EXPECT_EQ(t.Thq, 1);
    EXPECT_EQ(t.Regime, a);
    EXPECT_EQ(t.InfType, 1);
    EXPECT_EQ(t.InfQty, 40);
    EXPECT_EQ(t.MobType, 2);
    EXPECT_EQ(t.MobQty, 3);
    EXPECT_EQ(t.Readiness, 100);
    EXPECT_EQ(t.Experience, 50);
    EXPECT_EQ(t.Disruption, 0);
    EXPECT_EQ(t.Boss, shq);
    EXPECT_EQ(t.Name, "THQ 1st");
    EXPECT_NE(t.Officer, 0);

    const int extra = static_cast<int>(camp.Unit[2]);
    if (Regime[a].AI == 0) {
      EXPECT_EQ(extra, 0);
      EXPECT_EQ(Regime[a].PP, 17);  // the THQ's price
    } else {
      ASSERT_NE(extra, 0);
      const UnitRec& f = Unit[extra];
      EXPECT_EQ(f.Name, "2nd Bataljon");
      EXPECT_EQ(f.Thq, 0);
      EXPECT_EQ(f.InfQty, 40);
      EXPECT_EQ(f.MobType, 2);
      EXPECT_EQ(f.MobQty, 4);
      EXPECT_EQ(f.Readiness, 100);
      EXPECT_EQ(f.Experience, 50);
      EXPECT_EQ(f.Disruption, 0);
      EXPECT_EQ(f.Boss, thq);
      EXPECT_EQ(Regime[a].PP, 16);
    }
  }
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
}

TEST_F(RandomMapTest, OverrideFiveTwiceGivesTheSameFileBytes) {
  // Officers are drawn with the clock; the scripted platform's clock starts
  // the same for each run as a fresh program's would.
  ScriptedPlatform first;
  InstallPlatform(&first);
  first.QueueDialog("random", {{"seed", "5"}, {"regimes", "3"}, {"start", ""}});
  ASSERT_TRUE(MakeRandomScenario());
  const std::string a = SaveBytes("a.mf1");
  ScriptedPlatform second;
  InstallPlatform(&second);
  SeedRnd(777);  // whatever came before does not matter
  second.QueueDialog("random", {{"seed", "5"}, {"regimes", "3"}, {"start", ""}});
  ASSERT_TRUE(MakeRandomScenario());
  const std::string b = SaveBytes("b.mf1");
  InstallPlatform(&platform);
  EXPECT_GT(a.size(), 10000u);
  EXPECT_TRUE(a == b);
  // Another seed gives another map.
  ScriptedPlatform third;
  InstallPlatform(&third);
  third.QueueDialog("random", {{"seed", "6"}, {"regimes", "3"}, {"start", ""}});
  ASSERT_TRUE(MakeRandomScenario());
  EXPECT_TRUE(SaveBytes("c.mf1") != a);
  InstallPlatform(&platform);
}

TEST_F(RandomMapTest, RealRandomStartTownsStillKeepTheIslands) {
  auto land = [] {
    std::string s;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) s += static_cast<char>('0' + (Hex[x][y].Owner == 0 && Hex[x][y].Land != kGrass ? Hex[x][y].Land : 0));
    return s;
  };
  ASSERT_TRUE(Generate({{"seed", "9"}, {"regimes", "2"}, {"realstart", "1"}, {"start", ""}}));
  EXPECT_EQ(CheckInvariants(), "");
  const std::string first = land();
  ASSERT_TRUE(Generate({{"seed", "9"}, {"regimes", "2"}, {"realstart", "1"}, {"start", ""}}));
  EXPECT_EQ(CheckInvariants(), "");
  // The islands (all but plains, whose towns and camps move) are the same.
  int same = 0;
  const std::string second = land();
  for (std::size_t i = 0; i < first.size(); ++i) same += first[i] == second[i];
  EXPECT_GT(same, static_cast<int>(first.size()) - 10);
}

TEST_F(RandomMapTest, TheLargestMapWithTenRegimes) {
  ASSERT_TRUE(Make("100", "100", 10, "3"));
  EXPECT_EQ(CheckInvariants(), "");
  int owned = 0, land = 0;
  for (int x = 1; x <= 100; ++x)
    for (int y = 1; y <= 100; ++y) {
      if (Hex[x][y].Land == kUrban && Hex[x][y].Owner != 0) ++owned;
      if (Hex[x][y].Land != kSea) ++land;
    }
  EXPECT_EQ(owned, 10);
  EXPECT_GT(land, 2000);
  // Nine computer regimes with one more formation each, one human without.
  int units = 0;
  for (int u = 1; u <= kUnitCap; ++u) units += Unit[u].Regime != 0;
  EXPECT_EQ(units, 10 * 2 + 9);
}

TEST_F(RandomMapTest, SizeTenLandTenGrowsNoLandAndStartsOnTheSea) {
  // The dialog refuses any regime for 10 and 10; the map itself can still be
  // made, and shows what the rules make of it.
  platform.QueueDialog("random", {{"cancel", ""}});
  MakeRandomScenario();
  Game.RegimeCount = 1;
  SeedRnd(4);
  ASSERT_TRUE(MakeRandomMap(10, 10, 0, false));
  EXPECT_EQ(CheckInvariants(), "");
  int grown = 0, grass = 0;
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      grown += Hex[x][y].Land == kForest || Hex[x][y].Land == kMountain;
      grass += Hex[x][y].Land == kGrass;
    }
  EXPECT_EQ(grown, 0);
  EXPECT_LE(grass, 1);  // only the camp east of the start town
  int capitals = 0;
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y)
      if (Hex[x][y].Owner == 1 && Hex[x][y].Land == kUrban) ++capitals;
  EXPECT_EQ(capitals, 1);
}

TEST_F(RandomMapTest, ManyMapsKeepTheInvariants) {
  const char* sizes[] = {"20", "35", "60", "80"};
  const char* lands[] = {"40", "70", "25", "90"};
  for (int i = 0; i < 4; ++i) {
    const int most = std::min(10, (std::stoi(sizes[i]) + std::stoi(lands[i])) / 10 - 2);
    ASSERT_TRUE(Make(sizes[i], lands[i], most, std::to_string(11 + i))) << sizes[i];
    EXPECT_EQ(CheckInvariants(), "") << sizes[i];
    EXPECT_EQ(Game.RegimeCount, most);
  }
}

TEST_F(RandomMapTest, RunningOutOfUnitNumbersEndsThePlacing) {
  platform.QueueDialog("random", {{"cancel", ""}});
  MakeRandomScenario();
  Game.RegimeCount = 2;
  world::NewMap(20, 20);
  Game.RegimeCount = 2;
  // Every unit number in use: the first SHQ cannot be made.
  for (int u = 1; u <= kUnitCap; ++u) Unit[u].Regime = 15;
  platform.Clear();
  TownNameDraw names;
  EXPECT_FALSE(PlaceStartForces(3, false, names));
  // Regime 1's town was laid out, nothing else; the generator itself adds no
  // word to the search's own.
  int owned = 0;
  for (int x = 1; x <= 20; ++x)
    for (int y = 1; y <= 20; ++y) owned += Hex[x][y].Owner != 0;
  EXPECT_EQ(owned, 1);
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0].rfind("You are playing a scenario that has exceed", 0), 0u);
}

}  // namespace
}  // namespace mf::test
