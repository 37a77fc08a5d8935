// The shipped Ashfall campaign played from its first file to its end: the
// player's choices, the formations its events raise, the towns whose capture
// loads the next file, and "end". The computer regimes do nothing but end
// their turns.
#include <functional>
#include <string>
#include <vector>

#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "core/content/content_test_util.h"
#include "events_test_util.h"
#include "model/invariants.h"

namespace mf::test {
namespace {

class AshfallCampaign : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPlatform(&watcher);
    SetTurnStepWatcher([this](const std::string& step) {
      if (step.rfind("DoShowEvent ", 0) == 0) shownEvents.push_back(std::stoi(step.substr(12)));
      if (onShow && step.rfind("DoShowEvent ", 0) == 0) onShow(std::stoi(step.substr(12)));
      // The player's points just before and just after the events of a turn.
      if (step == "RunEvents") pointsBeforeEvents = Regime[1].PP;
      if (step == "RunNewTurnDialog") pointsAfterEvents = Regime[1].PP;
    });
  }
  void TearDown() override {
    SetTurnStepWatcher(nullptr);
    InstallPlatform(nullptr);
    CoreTest::TearDown();
  }

  // Ends the player's turn and lets the timer run the computer's, until the
  // player moves again or a file has been loaded (`until` says so).
  template <typename Until>
  void EndTurnAndWait(Until until) {
    EndCurrentTurn();
    for (int tick = 0; tick < 20 && !until(); ++tick) TimerTick();
  }
  void PlayTurn() {
    const long turn = Game.Turn;
    EndTurnAndWait([turn] { return Game.Turn > turn && Game.CurRegime == 1 && !UI.BusyPointer; });
    ASSERT_EQ(Game.Turn, turn + 1);
    ASSERT_EQ(Game.CurRegime, 1);
    ASSERT_EQ(CheckInvariants(), "");
  }

  // The player's troops take a town: the defenders are gone and one of the
  // player's formations stands in it, so that the enemy cannot walk back in.
  static void Take(int x, int y) {
    for (int s = 1; s <= kStackSlots; ++s) {
      const int u = Hex[x][y].Unit[s];
      if (u > 0) Unit[u].Regime = 0;
      Hex[x][y].Unit[s] = 0;
    }
    int mover = 0;
    for (int hx = 1; hx <= Game.MapW && mover == 0; ++hx) {
      for (int hy = 1; hy <= Game.MapH && mover == 0; ++hy) {
        Long* stack = Hex[hx][hy].Unit;
        for (int s = 1; s <= kStackSlots && mover == 0; ++s) {
          const int u = stack[s];
          if (u <= 0 || Unit[u].Regime != 1 || Unit[u].Shq != 0 || Unit[u].Thq != 0) continue;
          if (Unit[u].Theater != kLandTheater) continue;
          mover = u;
          for (int k = s; k < kStackSlots; ++k) stack[k] = stack[k + 1];
          stack[kStackSlots] = 0;
        }
      }
    }
    ASSERT_GT(mover, 0);
    Hex[x][y].Unit[1] = mover;
    Hex[x][y].Owner = 1;
    // The computer fights back in its turn; the town must hold until the
    // events of the next game turn see it, so the enemy is worn down to one
    // piece of infantry a formation, too weak to take it back.
    for (int u = 1; u <= kUnitCap; ++u) {
      if (Unit[u].Regime != 2) continue;
      Unit[u].MP = 0;
      if (Unit[u].InfQty > 0) Unit[u].InfQty = 1;
    }
  }

  // The file event of the player's victory: the load event waiting for a town.
  static int VictoryLoadEvent() {
    for (int e = 1; e <= Game.EventCount; ++e)
      if (Event[e].Type == kEventLoadFile && Event[e].HexOwner == 1 && Event[e].HexX > 0) return e;
    return 0;
  }

  // A formation of the player named `name`, 0 if there is none.
  static int PlayersFormation(const std::string& name) {
    for (int u = 1; u <= Game.UnitCount; ++u)
      if (Unit[u].Regime == 1 && Unit[u].Name == name) return u;
    return 0;
  }

  EventWatchingPlatform watcher;
  std::vector<int> shownEvents;
  std::function<void(int)> onShow;
  long pointsBeforeEvents = 0, pointsAfterEvents = 0;
};

TEST_F(AshfallCampaign, PlaysFromTheFirstFileToTheEnd) {
  const std::string first = CopyShipped("scenario4.mf1", tempDir);
  ASSERT_FALSE(first.empty());
  ASSERT_FALSE(CopyShipped("ashfall2.mf2", tempDir).empty());
  ASSERT_FALSE(CopyShipped("ashfall3.mf2", tempDir).empty());

  // The first file starts from the menu.
  UI.HideEditor = true;
  watcher.QueueFile(first);
  LoadCommand();
  ASSERT_EQ(Game.Turn, 1);
  ASSERT_EQ(Game.CurRegime, 1);
  ASSERT_EQ(Game.MapW, 24);
  EXPECT_EQ(shownEvents, std::vector<int>{1});  // the rising, before the New Turn dialog

  // Turn 2 asks how to fill the army; the player calls up the farmers, and
  // at turn 3 they muster.
  watcher.QueueDialog("event", {{"choice", "1"}});
  PlayTurn();
  EXPECT_EQ(Event[2].FiredTurn, 2);
  EXPECT_EQ(Game.BookVar[1], 1);
  EXPECT_EQ(Game.BookVar[2], 0);
  PlayTurn();
  EXPECT_EQ(Event[3].FiredTurn, 3);
  EXPECT_GT(PlayersFormation(Event[3].DataText[1]), 0);
  EXPECT_EQ(Event[4].FiredTurn, 0);  // the war tax was not chosen

  // Cinderbridge falls; at the next game turn the load event shows and the
  // timer loads the second file.
  const int victory1 = VictoryLoadEvent();
  ASSERT_GT(victory1, 0);
  ASSERT_EQ(Event[victory1].DataText[1], "ashfall2.mf2");
  Take(Event[victory1].HexX, Event[victory1].HexY);
  EndTurnAndWait([] { return Game.MapW == 28; });
  ASSERT_EQ(Game.MapW, 28);
  EXPECT_EQ(EV(706), 1);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(CheckInvariants(), "");

  // The second file: this time the player lets the smuggler buy his freedom (the
  // second answer), and at turn 4 the points come.
  PlayTurn();
  watcher.QueueDialog("event", {{"choice", "2"}});
  PlayTurn();
  EXPECT_EQ(Event[2].FiredTurn, 3);
  EXPECT_EQ(Game.BookVar[2], 1);
  PlayTurn();
  EXPECT_EQ(Event[4].FiredTurn, 4);
  EXPECT_EQ(Event[3].FiredTurn, 0);
  EXPECT_EQ(Event[4].Data[2], 5);
  EXPECT_EQ(pointsAfterEvents, pointsBeforeEvents + 5);

  const int victory2 = VictoryLoadEvent();
  ASSERT_GT(victory2, 0);
  ASSERT_EQ(Event[victory2].DataText[1], "ashfall3.mf2");
  Take(Event[victory2].HexX, Event[victory2].HexY);
  EndTurnAndWait([] { return Game.MapW == 30; });
  ASSERT_EQ(Game.MapW, 30);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(CheckInvariants(), "");

  // The third file: the player arms the people of Wrenfield, who rise at turn 4
  // beside the town even on ground the enemy holds.
  PlayTurn();
  watcher.QueueDialog("event", {{"choice", "1"}});
  PlayTurn();
  PlayTurn();
  EXPECT_EQ(Event[3].FiredTurn, 4);
  EXPECT_GT(PlayersFormation(Event[3].DataText[1]), 0);

  // The last town: victory, then "end".
  int last = 0;
  for (int e = 1; e <= Game.EventCount; ++e)
    if (Event[e].Type == kEventLoadFile && Event[e].HexOwner == 1 && Event[e].HexX > 0) last = e;
  ASSERT_GT(last, 0);
  ASSERT_EQ(Event[last].DataText[1], "end");
  long winnerWhenShown = -1;
  onShow = [&](int e) {
    if (e == last) winnerWhenShown = Game.GameWinner;
  };
  Take(Event[last].HexX, Event[last].HexY);
  EndTurnAndWait([] { return Game.Turn == 0; });
  EXPECT_EQ(winnerWhenShown, 1);
  // The campaign is over: the program stands on an empty map.
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_FALSE(UI.MapShown);
  EXPECT_FALSE(UI.MapControlsShown);
  EXPECT_TRUE(watcher.lastError.empty()) << watcher.lastError;
}

}  // namespace
}  // namespace mf::test
