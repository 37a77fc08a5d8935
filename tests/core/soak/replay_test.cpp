// A computer game depends on nothing but its saved file, the seed and the
// clock: a saved game loaded again in the same program, on the same seed and
// with the clock started afresh, plays the very same round, however much was
// played before it. Whatever the computer player keeps between turns (its
// working tables, anything it may keep to be faster) must not carry one game
// into the next.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "control/computer_game.h"
#include "control/random_flow.h"
#include "control/scenario_flow.h"
#include "core/content/content_test_util.h"
#include "files/scenario_file.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "random/random_dialog.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class Replay : public CoreTest {
 protected:
  // The game after each regime turn of the next round, as it would be saved.
  std::vector<std::string> PlayRound() {
    std::vector<std::string> after;
    do {
      if (!PlayComputerRegimeTurn()) {
        ADD_FAILURE() << "the game stopped at turn " << Game.Turn;
        break;
      }
      after.push_back(SerializeScenario());
    } while (!RoundComplete());
    return after;
  }

  // Loads the saved game with a platform of its own, so that the clock the
  // officers are drawn from starts again at the same tick.
  std::vector<std::string> LoadAndPlayRound(const std::string& path) {
    clocks.push_back(std::make_unique<ScriptedPlatform>());
    clocks.back()->keepAnalysis = false;
    InstallPlatform(clocks.back().get());
    onlyclear();
    EXPECT_TRUE(ReadFile(path));
    setup();
    std::string why;
    EXPECT_TRUE(StartComputerGame(&why)) << why;
    SeedRnd(7);
    return PlayRound();
  }

  std::vector<std::unique_ptr<ScriptedPlatform>> clocks;
};

TEST_F(Replay, ASavedComputerGameLoadedAgainPlaysTheSameRound) {
  // The generator's 40 x 40 map with 4 regimes, played for 5 rounds first.
  ASSERT_FALSE(CopyShipped(kRandomBaseFile, tempDir).empty());
  std::vector<DialogAction> actions;
  std::string why;
  ASSERT_TRUE(RandomDialogActions({"size=40", "land=60", "regimes=4", "seed=7"}, &actions, &why)) << why;
  actions.push_back({"start", ""});
  platform.QueueDialog("random", std::move(actions));
  ASSERT_TRUE(MakeRandomScenario());
  setup();
  ASSERT_TRUE(StartComputerGame(&why)) << why;
  SeedRnd(7);
  int rounds = 0;
  while (rounds < 5) {
    ASSERT_TRUE(PlayComputerRegimeTurn());
    platform.Clear();
    if (RoundComplete()) ++rounds;
  }
  const std::string path = TempPath("after_five_rounds.mf1");
  ASSERT_TRUE(WriteFile(path));

  const std::vector<std::string> first = LoadAndPlayRound(path);
  // Another game in between leaves its traces in every working table.
  PlayRound();
  PlayRound();
  const std::vector<std::string> second = LoadAndPlayRound(path);
  InstallPlatform(&platform);

  ASSERT_EQ(first.size(), 4u);
  ASSERT_EQ(second.size(), first.size());
  for (std::size_t t = 0; t < first.size(); ++t)
    EXPECT_TRUE(first[t] == second[t]) << "the game differs after the turn of regime " << t + 1 << " of round 6";
  // The round did something: the game after it is not the game before it.
  onlyclear();
  ASSERT_TRUE(ReadFile(path));
  setup();
  EXPECT_NE(SerializeScenario(), first.back());
}

}  // namespace
}  // namespace mf::test
