// The all-computer soak: whole games with the computer on every side, over
// the shipped scenarios and over maps of the random scenario generator, on
// several seeds, with every invariant of the tables checked after every
// regime turn. A crash, a broken invariant or a game that stops going round
// fails it. The long form is scripts/soak.sh.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "control/computer_game.h"
#include "control/random_flow.h"
#include "control/scenario_flow.h"
#include "core/content/content_test_util.h"
#include "model/invariants.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "random/random_dialog.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

namespace fs = std::filesystem;

// One whole game: a shipped scenario, or (file null) the generator's map of
// the given size, land and regimes made on `seed`; the game is played on
// `seed` too.
struct SoakGame {
  const char* file;
  unsigned seed;
  int rounds;
  int size = 0, land = 0, regimes = 0;
};

SoakGame Shipped(const char* file, unsigned seed) { return {file, seed, 30}; }
SoakGame Generated(int size, int land, int regimes, unsigned seed, int rounds) {
  return {nullptr, seed, rounds, size, land, regimes};
}

std::string MapName(const SoakGame& g) {
  if (g.file != nullptr) return fs::path(g.file).stem().string();
  return "random" + std::to_string(g.size) + "_land" + std::to_string(g.land) + "_regimes" +
         std::to_string(g.regimes);
}

void PrintTo(const SoakGame& g, std::ostream* os) { *os << MapName(g) << " seed " << g.seed << ", " << g.rounds << " rounds"; }

std::string PrintName(const ::testing::TestParamInfo<SoakGame>& info) {
  std::string name = MapName(info.param) + "_seed" + std::to_string(info.param.seed);
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

class Soak : public CoreTest, public ::testing::WithParamInterface<SoakGame> {
 protected:
  // Loads the shipped scenario from a copy (a load rewrites the file it reads).
  void LoadShipped(const char* file) {
    const std::string copy = CopyShipped(file, tempDir);
    ASSERT_FALSE(copy.empty());
    onlyclear();
    ASSERT_TRUE(ReadFile(copy));
    setup();
  }

  // Makes the generator's map as the File menu's Random Scenario does, from
  // the base scenario's rules in this test's own program folder.
  void Generate(const SoakGame& g) {
    ASSERT_FALSE(CopyShipped(kRandomBaseFile, tempDir).empty());
    std::vector<DialogAction> actions;
    std::string why;
    ASSERT_TRUE(RandomDialogActions({"size=" + std::to_string(g.size), "land=" + std::to_string(g.land),
                                     "regimes=" + std::to_string(g.regimes), "seed=" + std::to_string(g.seed)},
                                    &actions, &why))
        << why;
    actions.push_back({"start", ""});
    platform.QueueDialog("random", std::move(actions));
    std::string refusal;
    ASSERT_TRUE(MakeRandomScenario(&refusal)) << refusal;
    setup();
    ASSERT_EQ(Game.RegimeCount, g.regimes);
    ASSERT_EQ(Game.MapW, g.size);
  }
};

TEST_P(Soak, WholeRoundsWithEveryInvariantKeptAfterEveryRegimeTurn) {
  const SoakGame& g = GetParam();
  if (g.file != nullptr) {
    ASSERT_NO_FATAL_FAILURE(LoadShipped(g.file));
  } else {
    ASSERT_NO_FATAL_FAILURE(Generate(g));
  }
  std::string why;
  ASSERT_TRUE(StartComputerGame(&why)) << why;
  SeedRnd(g.seed);
  ASSERT_EQ(CheckInvariants(), "") << "as loaded";

  int rounds = 0, regimeTurns = 0;
  while (rounds < g.rounds) {
    ASSERT_TRUE(PlayComputerRegimeTurn()) << "the game stopped at turn " << Game.Turn;
    ++regimeTurns;
    ASSERT_EQ(CheckInvariants(), "") << "after the turn of regime " << Game.CurRegime << " in turn " << Game.Turn;
    platform.Clear();
    if (RoundComplete()) ++rounds;
    ASSERT_LE(regimeTurns, g.rounds * kRegimeCap) << "the regimes no longer go round";
  }
  EXPECT_EQ(Game.Turn, g.rounds);
  EXPECT_EQ(regimeTurns, g.rounds * Game.RegimeCount);
}

// Twenty games of thirty rounds: the five shipped scenarios, and the
// generator's maps at three sizes, each on seeds of its own.
INSTANTIATE_TEST_SUITE_P(
    ShippedScenariosAndGeneratedMaps, Soak,
    ::testing::Values(Shipped("2PL_Two_Rivers.mf1", 1), Shipped("2PL_Two_Rivers.mf1", 2),
                      Shipped("2PL_Two_Rivers.mf1", 3), Shipped("scenario1.mf1", 1), Shipped("scenario1.mf1", 2),
                      Shipped("scenario1.mf1", 3), Shipped("scenario2.mf1", 1), Shipped("scenario2.mf1", 2),
                      Shipped("scenario2.mf1", 3), Shipped("scenario3.mf1", 1), Shipped("scenario3.mf1", 2),
                      Shipped("scenario4.mf1", 1), Shipped("scenario4.mf1", 2), Shipped("scenario4.mf1", 3),
                      Generated(40, 60, 4, 1, 30), Generated(40, 60, 4, 2, 30), Generated(40, 50, 4, 5, 30),
                      Generated(60, 60, 6, 4, 30), Generated(60, 40, 6, 6, 30), Generated(100, 60, 10, 8, 30)),
    PrintName);

// Five all-computer rounds on three generated maps of 40 x 40 with 60% land
// and 4 regimes: the generator's maps are games the computer can play.
INSTANTIATE_TEST_SUITE_P(GeneratedMapsFiveRounds, Soak,
                         ::testing::Values(Generated(40, 60, 4, 3, 5), Generated(40, 60, 4, 7, 5),
                                           Generated(40, 60, 4, 11, 5)),
                         PrintName);

}  // namespace
}  // namespace mf::test
