// The all-computer soak: whole games with the computer on every side, over
// the shipped scenarios on several seeds, with every invariant of the tables
// checked after every regime turn. A crash, a broken invariant or a game that
// stops going round fails it. The long form is scripts/soak.sh.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>

#include "control/computer_game.h"
#include "control/scenario_flow.h"
#include "model/invariants.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 30;

struct SoakGame {
  const char* file;
  unsigned seed;
};

void PrintTo(const SoakGame& g, std::ostream* os) { *os << g.file << " seed " << g.seed; }

std::string PrintName(const ::testing::TestParamInfo<SoakGame>& info) {
  std::string name = fs::path(info.param.file).stem().string() + "_seed" + std::to_string(info.param.seed);
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

class Soak : public CoreTest, public ::testing::WithParamInterface<SoakGame> {};

TEST_P(Soak, ThirtyRoundsWithEveryInvariantKeptAfterEveryRegimeTurn) {
  const char* dir = std::getenv("MF_CONTENT_DIR");
  ASSERT_NE(dir, nullptr) << "MF_CONTENT_DIR is not set; run the suite through ctest";
  const fs::path from = fs::path(dir) / GetParam().file;
  ASSERT_TRUE(fs::exists(from)) << "the build did not make " << from.string();
  // A load rewrites the file it reads: the game is played from a copy.
  const fs::path copy = fs::path(tempDir) / GetParam().file;
  fs::copy_file(from, copy, fs::copy_options::overwrite_existing);

  ClearForLoad();
  ASSERT_TRUE(ReadFile(copy.string()));
  LayOutMapWindow();
  std::string why;
  ASSERT_TRUE(StartComputerGame(&why)) << why;
  SeedRnd(GetParam().seed);
  ASSERT_EQ(CheckInvariants(), "") << "as loaded";

  int rounds = 0, regimeTurns = 0;
  while (rounds < kRounds) {
    ASSERT_TRUE(PlayComputerRegimeTurn()) << "the game stopped at turn " << Game.Turn;
    ++regimeTurns;
    ASSERT_EQ(CheckInvariants(), "") << "after the turn of regime " << Game.CurRegime << " in turn " << Game.Turn;
    platform.Clear();
    if (RoundComplete()) ++rounds;
    ASSERT_LE(regimeTurns, kRounds * kRegimeCap) << "the regimes no longer go round";
  }
  EXPECT_EQ(Game.Turn, kRounds);
  EXPECT_EQ(regimeTurns, kRounds * Game.RegimeCount);
}

INSTANTIATE_TEST_SUITE_P(ShippedScenarios, Soak,
                         ::testing::Values(SoakGame{"2PL_Two_Rivers.mf1", 1}, SoakGame{"2PL_Two_Rivers.mf1", 2},
                                           SoakGame{"2PL_Two_Rivers.mf1", 3}, SoakGame{"2PL_Two_Rivers.mf1", 4},
                                           SoakGame{"scenario1.mf1", 1}, SoakGame{"scenario1.mf1", 2},
                                           SoakGame{"scenario1.mf1", 3}, SoakGame{"scenario1.mf1", 4},
                                           SoakGame{"scenario2.mf1", 1}, SoakGame{"scenario2.mf1", 2},
                                           SoakGame{"scenario2.mf1", 3}, SoakGame{"scenario2.mf1", 4},
                                           SoakGame{"scenario3.mf1", 1}, SoakGame{"scenario3.mf1", 2},
                                           SoakGame{"scenario3.mf1", 3}, SoakGame{"scenario3.mf1", 4},
                                           SoakGame{"scenario4.mf1", 1}, SoakGame{"scenario4.mf1", 2},
                                           SoakGame{"scenario4.mf1", 3}, SoakGame{"scenario4.mf1", 4}),
                         PrintName);

}  // namespace
}  // namespace mf::test
