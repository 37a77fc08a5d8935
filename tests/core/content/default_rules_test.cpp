// The default rule set as the random generator takes it from its base
// scenario: types, research tree, peoples, and the numbers that make its
// economy work under the default engine variables.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "content_test_util.h"
#include "control/scenario_flow.h"
#include "model/arith.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CopyShipped;
using test::CoreTest;
using test::FileBytes;

class DefaultRules : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    const std::string path = CopyShipped("2PL_Two_Rivers.mf1", tempDir);
    ASSERT_FALSE(path.empty());
    ASSERT_TRUE(ReadFile(path));
  }
  int TypeNamed(const std::string& name) const {
    for (int t = 1; t <= Game.TypeCount; ++t) {
      if (Type[t].Name == name) return t;
    }
    ADD_FAILURE() << "no type " << name;
    return 0;
  }
};

TEST_F(DefaultRules, EngineVariablesAreAtTheirDefaults) {
  for (int i = 1; i <= 1000; ++i) {
    if (i == 616) continue;  // the stock width grows with the type count when saved
    EXPECT_EQ(EV(i), EngineVarDefault(i)) << "row " << i;
  }
  EXPECT_EQ(EV(616), Game.TypeCount);
  EXPECT_EQ(EV(701), 0);  // the computer may play every regime of a random game
  EXPECT_EQ(EV(704), 0);
}

// A town of 2500 feeds its SHQ: its supply is Int((2500 / 100) x 100 / 10) =
// 250 a turn. The THQ the generator hands out (40 infantry, 3 trucks) needs
// 40 x 2 + 3 x 1 = 83 points, times (100 + 10 - readiness) / 100: 91 at the
// very worst (readiness 0), 8 when rested (readiness 100, factor 10 / 100).
TEST_F(DefaultRules, ATownOf2500FeedsTheGeneratorsStartingForce) {
  EXPECT_EQ(EV(201), 10);
  EXPECT_EQ(EV(221), 10);
  const long supply = static_cast<long>(Int((2500 / 100.0) * (100 - 0) / EV(201)));
  EXPECT_EQ(supply, 250);
  EXPECT_EQ(Type[1].Attr[kSupplyNeed], 2);
  EXPECT_EQ(Type[2].Attr[kSupplyNeed], 1);
  const long need = 40L * Type[1].Attr[kSupplyNeed] + 3L * Type[2].Attr[kSupplyNeed];
  EXPECT_EQ(need, 83);
  const long worst = static_cast<long>(Int(need * (100 + EV(221) - 0) / 100.0));
  const long rested = static_cast<long>(Int(need * (100 + EV(221) - 100) / 100.0));
  EXPECT_EQ(worst, 91);
  EXPECT_EQ(rested, 8);
  EXPECT_LE(worst, supply);
  // A computer regime gets one more formation of 40 infantry and 4 trucks: 84 more at worst
  // Int(84 x 1.1) = 92, and the two together still fit: 91 + 92 = 183.
  const long second = static_cast<long>(Int((40L * 2 + 4L * 1) * 110 / 100.0));
  EXPECT_EQ(second, 92);
  EXPECT_LE(worst + second, supply);
}

// Occupation power of a land formation: infantry (Hit Points / 20) x Soft
// Attack x quantity + mobile Soft Attack x quantity + ... For 40 rifle
// infantry (80 hit points, soft attack 40) and 3 trucks (soft attack 0):
// (80 / 20) x 40 x 40 + 0 x 3 = 6400, well past row 101's 250.
TEST_F(DefaultRules, TheGeneratorsTHQCanOccupyLand) {
  EXPECT_EQ(EV(101), 250);
  EXPECT_EQ(Type[1].Attr[kHitPoints], 80);
  EXPECT_EQ(Type[1].Attr[kSoftAttack], 40);
  EXPECT_EQ(Type[2].Attr[kSoftAttack], 0);
  const double power =
      Type[1].Attr[kHitPoints] / 20.0 * Type[1].Attr[kSoftAttack] * 40 + Type[2].Attr[kSoftAttack] * 3.0;
  EXPECT_EQ(power, 6400.0);
  EXPECT_GE(power, EV(101));
  // Two riflemen are the least that can take land: 4 x 40 x 2 = 320; one gives 160.
  EXPECT_GE(4 * 40 * 2, EV(101));
  EXPECT_LT(4 * 40 * 1, EV(101));
}

// Three trucks carry 3 x 40 = 120 of the 400 weight of 40 riflemen: the
// generator's THQ marches on foot at the infantry's 3; ten trucks would carry all.
TEST_F(DefaultRules, TrucksAndInfantryWeights) {
  EXPECT_EQ(Type[1].Attr[kWeight], 10);
  EXPECT_EQ(Type[2].Attr[kCarryCap], 40);
  EXPECT_EQ(Type[1].Attr[kMovementCap], 3);
  EXPECT_EQ(Type[2].Attr[kMovementCap], 6);
  EXPECT_LT(3 * Type[2].Attr[kCarryCap], 40 * Type[1].Attr[kWeight]);
  EXPECT_GE(10 * Type[2].Attr[kCarryCap], 40 * Type[1].Attr[kWeight]);
  // A town of 2500 raises six riflemen a turn (cost 400), and keeps 100
  // points towards the next.
  EXPECT_EQ(Type[1].Cost, 400);
  EXPECT_EQ(Int(2500.0 / Type[1].Cost), 6);
  EXPECT_EQ(2500 - 6 * Type[1].Cost, 100);
}

TEST_F(DefaultRules, EveryTheaterAndClassHasTypes) {
  std::map<std::pair<int, int>, int> count;
  for (int t = 1; t <= Game.TypeCount; ++t) ++count[{Type[t].Theater, Type[t].Class}];
  for (int th = 0; th <= 2; ++th) {
    for (int c = 1; c <= 4; ++c) {
      const int n = count[std::make_pair(th, c)];
      EXPECT_GE(n, 1) << "theater " << th << " class " << c;
    }
  }
  // The abilities the rules know each appear on some type.
  EXPECT_GT(Type[TypeNamed("Sappers")].Attr[kEngineerSkill], 0);
  EXPECT_GT(Type[TypeNamed("Jump Troops")].Attr[kParadropCap], 0);
  EXPECT_EQ(Type[TypeNamed("Field Guns")].Attr[kArtilleryRange], 1);
  EXPECT_GE(Type[TypeNamed("Long Guns")].Attr[kArtilleryRange], 2);
  EXPECT_GT(Type[TypeNamed("Flak Guns")].Attr[kAntiAirCap], 0);
  EXPECT_GT(Type[TypeNamed("Submarines")].Attr[kSubskills], 0);
  EXPECT_GT(Type[TypeNamed("Flattops")].Attr[kCarryCap], 0);
  EXPECT_GT(Type[TypeNamed("Freighters")].Attr[kCarryCap], 0);
  EXPECT_GT(Type[TypeNamed("Air Transports")].Attr[kCarryCap], 0);
  EXPECT_GT(Type[TypeNamed("Fighters")].Attr[kDogfight], 0);
  EXPECT_GT(Type[TypeNamed("Bombers")].Attr[kStrategicBombing], 0);
  EXPECT_GT(Type[TypeNamed("Bombers")].Attr[kNavalInterdict], 0);
  // An air transport can lift a company of ten jump troops in four aircraft: 4 x 25 >= 10 x 8.
  EXPECT_GE(4 * Type[TypeNamed("Air Transports")].Attr[kCarryCap], 10 * Type[TypeNamed("Jump Troops")].Attr[kWeight]);
  // Five freighters carry the generator's THQ: 5 x 100 >= 40 x 10 + 3 x 6 = 418.
  EXPECT_GE(5 * Type[TypeNamed("Freighters")].Attr[kCarryCap], 40 * 10 + 3 * 6);
}

TEST_F(DefaultRules, ResearchTreeGatesTheBetterTypes) {
  int fields = 0, withNeeds = 0;
  for (int f = 1; f <= kResearchCap; ++f) {
    if (Research[f].Cost <= 0) continue;
    ++fields;
    EXPECT_GT(Research[f].Name.size(), 3u);
    EXPECT_GT(Research[f].Text.size(), 10u);
    for (int need : {Research[f].Need1, Research[f].Need2}) {
      if (need == 0) continue;
      EXPECT_GT(Research[need].Cost, 0) << Research[f].Name;
      EXPECT_NE(need, f);
    }
    if (Research[f].Need1 > 0 || Research[f].Need2 > 0) ++withNeeds;
    // No field needs itself by a longer way round.
    std::set<int> seen;
    std::vector<int> open = {f};
    while (!open.empty()) {
      const int g = open.back();
      open.pop_back();
      for (int need : {Research[g].Need1, Research[g].Need2}) {
        if (need == 0) continue;
        ASSERT_NE(need, f) << Research[f].Name << " needs itself";
        if (seen.insert(need).second) open.push_back(need);
      }
    }
  }
  EXPECT_GE(fields, 20);
  EXPECT_GE(withNeeds, 10);
  EXPECT_EQ(Type[TypeNamed("Rifle Infantry")].Research, 0);
  EXPECT_EQ(Type[TypeNamed("Field Guns")].Research, 0);
  for (const char* better : {"Battle Tanks", "Siege Tanks", "Dreadnoughts", "Heavy Bombers", "Rockets", "Flattops"}) {
    const int f = Type[TypeNamed(better)].Research;
    ASSERT_GT(f, 0) << better;
    EXPECT_GT(Research[f].Need1, 0) << better << " is opened by a field with needs";
  }
}

TEST_F(DefaultRules, FivePeoplesWithAHundredNamesEach) {
  ASSERT_EQ(Game.PeopleCount, 5);
  for (int p = 1; p <= 5; ++p) {
    std::set<std::string> firsts, lasts;
    for (int k = 1; k <= kPeopleNames; ++k) {
      if (People[p].FirstName[k].size() > 1) firsts.insert(People[p].FirstName[k]);
      if (People[p].LastName[k].size() > 1) lasts.insert(People[p].LastName[k]);
    }
    EXPECT_GE(firsts.size(), 100u) << People[p].Name;
    EXPECT_GE(lasts.size(), 100u) << People[p].Name;
    EXPECT_GT(People[p].Name.size(), 2u);
  }
  // The base scenario's two regimes use two of the five portrait sets.
  for (int r = 1; r <= Game.RegimeCount; ++r) {
    EXPECT_GE(Regime[r].PortraitSet, 1);
    EXPECT_LE(Regime[r].PortraitSet, 5);
  }
}

// Every shipped scenario carries the same rule set as the generator's base.
TEST_F(DefaultRules, EveryScenarioCarriesTheSameTypesAndResearch) {
  const std::vector<TypeRec> types(Type + 1, Type + Game.TypeCount + 1);
  const int typeCount = Game.TypeCount;
  std::vector<std::string> fields;
  for (int f = 1; f <= kResearchCap; ++f) fields.push_back(Research[f].Name);
  for (const std::string& name : test::ShippedScenarios()) {
    const std::string path = CopyShipped(name, tempDir);
    ASSERT_FALSE(path.empty());
    ASSERT_TRUE(ReadFile(path)) << name;
    ASSERT_EQ(Game.TypeCount, typeCount) << name;
    for (int t = 1; t <= typeCount; ++t) {
      EXPECT_EQ(Type[t].Name, types[t - 1].Name) << name;
      for (int a = 1; a <= kTypeAttrs; ++a) EXPECT_EQ(Type[t].Attr[a], types[t - 1].Attr[a]) << name << " " << t;
      EXPECT_EQ(Type[t].Cost, types[t - 1].Cost) << name;
      EXPECT_EQ(Type[t].Research, types[t - 1].Research) << name;
    }
    for (int f = 1; f <= kResearchCap; ++f) EXPECT_EQ(Research[f].Name, fields[f - 1]) << name;
  }
}

}  // namespace
}  // namespace mf
