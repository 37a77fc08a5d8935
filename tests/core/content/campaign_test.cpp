// The Ashfall campaign: three files chained by events that load the next
// one, the campaign rows of the engine variables, and the later files'
// refusal to be opened from the menu.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "content_test_util.h"
#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "model/game_state.h"
#include "model/invariants.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CopyShipped;
using test::CoreTest;

class Campaign : public CoreTest {
 protected:
  bool Read(const std::string& name) {
    const std::string path = CopyShipped(name, tempDir);
    return !path.empty() && ReadFile(path);
  }
  // The files named by this file's load events (type 5), in event order.
  static std::vector<std::string> NextFiles() {
    std::vector<std::string> next;
    for (int e = 1; e <= Game.EventCount; ++e) {
      if (Event[e].Type == 5 && Event[e].Story.size() > 1) next.push_back(Event[e].DataText[1]);
    }
    return next;
  }
};

TEST_F(Campaign, FilesCarryTheCampaignRows) {
  struct Expect {
    const char* file;
    long block;  // 706: the later files may only be loaded by the campaign itself
  };
  for (const Expect& x : {Expect{"scenario4.mf1", 0}, Expect{"ashfall2.mf2", 1}, Expect{"ashfall3.mf2", 1}}) {
    ASSERT_TRUE(Read(x.file)) << x.file;
    EXPECT_EQ(EV(704), 1) << x.file;
    EXPECT_EQ(EV(705), 1) << x.file;  // the campaign is fought under fog of exploration
    EXPECT_EQ(EV(706), x.block) << x.file;
    // The campaign player is regime 1, against the computer.
    EXPECT_EQ(Regime[1].AI, 0) << x.file;
    for (int r = 2; r <= Game.RegimeCount; ++r) EXPECT_EQ(Regime[r].AI, 1) << x.file;
  }
  // Campaign files load silently.
  EXPECT_TRUE(Messages().empty());
}

TEST_F(Campaign, EventsChainTheFilesAndTheLastEndsTheGame) {
  ASSERT_TRUE(Read("scenario4.mf1"));
  EXPECT_EQ(NextFiles(), (std::vector<std::string>{"ashfall2.mf2", "end"}));
  ASSERT_TRUE(Read("ashfall2.mf2"));
  EXPECT_EQ(NextFiles(), (std::vector<std::string>{"ashfall3.mf2", "end"}));
  ASSERT_TRUE(Read("ashfall3.mf2"));
  EXPECT_EQ(NextFiles(), (std::vector<std::string>{"end", "end"}));
}

// Every load event is shown to the campaign player (who alone can press
// its button), fires once, and waits for a condition: a town taken, or the
// turn by which the campaign is lost.
TEST_F(Campaign, LoadEventsAreShownToTheCampaignPlayer) {
  for (const char* file : {"scenario4.mf1", "ashfall2.mf2", "ashfall3.mf2"}) {
    ASSERT_TRUE(Read(file)) << file;
    int loads = 0;
    for (int e = 1; e <= Game.EventCount; ++e) {
      const EventRec& ev = Event[e];
      if (ev.Type != 5 || ev.Story.size() <= 1) continue;
      ++loads;
      EXPECT_EQ(ev.ShowReg1, 1) << file << " event " << e;
      EXPECT_EQ(ev.Once, 1) << file << " event " << e;
      const bool byHex = ev.HexX > 0 && ev.HexY > 0 && ev.HexOwner == 1;
      const bool byWinner = ev.Winner > 1;
      EXPECT_TRUE(byHex || byWinner) << file << " event " << e;
      if (byHex) {
        EXPECT_GT(Hex[ev.HexX][ev.HexY].Pop, 0) << file << " event " << e << " waits for a town";
        EXPECT_NE(Hex[ev.HexX][ev.HexY].Owner, 1) << file << " event " << e << " would fire at once";
      }
    }
    EXPECT_EQ(loads, 2) << file;
  }
}

TEST_F(Campaign, LaterFilesAreRefusedFromTheMenu) {
  for (const char* file : {"ashfall2.mf2", "ashfall3.mf2"}) {
    const std::string path = CopyShipped(file, tempDir);
    ASSERT_FALSE(path.empty());
    platform.Clear();
    UI.HideEditor = true;
    platform.QueueFile(path);
    LoadCommand();
    const auto messages = Messages();
    ASSERT_EQ(messages.size(), 1u) << file;
    EXPECT_EQ(messages[0], "You are not allowed to load this file.");
    // The refusal clears the game, rules and all.
    EXPECT_EQ(EV(704), 0);
    EXPECT_EQ(Game.RegimeCount, 0);
  }
}

TEST_F(Campaign, TheFirstFileStartsTheCampaignFromTheMenu) {
  const std::string path = CopyShipped("scenario4.mf1", tempDir);
  ASSERT_FALSE(path.empty());
  UI.HideEditor = true;
  platform.QueueFile(path);
  LoadCommand();
  EXPECT_EQ(EV(704), 1);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  for (const std::string& m : Messages()) EXPECT_NE(m, "You are not allowed to load this file.");
}

// An author with the editor panel showing opens a later file as a map to edit.
TEST_F(Campaign, AnAuthorMayOpenALaterFile) {
  const std::string path = CopyShipped("ashfall3.mf2", tempDir);
  ASSERT_FALSE(path.empty());
  UI.HideEditor = false;
  platform.QueueFile(path);
  LoadCommand();
  EXPECT_EQ(EV(706), 1);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_GE(Game.RegimeCount, 2);
}

// The whole chain of the first part: the campaign starts from the menu,
// Cinderbridge changes hands, the load event fires at the next game turn and
// shows itself to the player, and the timer loads the second part. The turn
// engine runs all of it.
TEST_F(Campaign, TakingCinderbridgeLoadsTheSecondPart) {
  const std::string first = CopyShipped("scenario4.mf1", tempDir);
  ASSERT_FALSE(CopyShipped("ashfall2.mf2", tempDir).empty());
  ASSERT_FALSE(first.empty());
  UI.HideEditor = true;
  platform.QueueFile(first);
  LoadCommand();
  ASSERT_GT(Game.Turn, 0) << "the campaign did not start";
  ASSERT_EQ(Game.CurRegime, 1);
  // The garrison is gone and the canton banner flies over the bridge town.
  HexRec& bridge = Hex[13][9];
  ASSERT_EQ(bridge.UrbanName, "Cinderbridge");
  for (int s = 1; s <= 3; ++s) {
    if (bridge.Unit[s] > 0) Unit[bridge.Unit[s]].Regime = 0;
    bridge.Unit[s] = 0;
  }
  bridge.Owner = 1;
  EndCurrentTurn();
  // The computer's turns end on the timer; the load waits for it too.
  for (int tick = 0; tick < 20 && Game.MapW != 28; ++tick) TimerTick();
  ASSERT_EQ(Game.MapW, 28) << "the second part was not loaded (turn " << Game.Turn << ")";
  EXPECT_EQ(Game.MapH, 20);
  EXPECT_EQ(EV(706), 1);
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(Hex[20][10].UrbanName, "Irongate");
  EXPECT_EQ(CheckInvariants(), "");
}

}  // namespace
}  // namespace mf
