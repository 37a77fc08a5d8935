// Surrender, the end of a game, and the timer: computer turns, the deferred
// scroll redraw, and the chaining of a campaign.
#include <filesystem>

#include "engine/news.h"
#include "files/scenario_file.h"
#include "model/reset.h"
#include "engine_test_util.h"

namespace mf::test {
namespace {

const char* const kLost1 = "You lost the game. Mercy on your soul and the people you abandoned.";
const char* const kLost2 =
    "You lost the game. Mercy on your soul and the people you abandoned. If this is a PBEM game dont forget to mail.";
const char* const kLost3 =
    "You lost the game. Mercy on your soul and the people you abandoned. There are still at least 2 other human "
    "player active so dont forget to mail this file to them if this is a PBEM game.";
const char* const kSurrenderNotice =
    "The last human player has surrendered. Technicaly you have not attained the Victory Condition yet, but you may "
    "consider this a victory because your last human opponent deemed you the winner.";
const char* const kResignNotice =
    "Just a reminder that a human player has resigned. But at least one other, next to you is left. However this is "
    "an important step towards your victory.";

class SurrenderTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue", "Green"});
    Game.GameEndPop = 100000;
    ReadyToStart();
  }
};

TEST_F(SurrenderTest, TheLastHumanLosesAndTheGameEnds) {
  Regime[2].AI = Regime[3].AI = 1;
  NextTurn();
  platform.Clear();
  SurrenderCommand();
  EXPECT_EQ(Messages(), std::vector<std::string>{kLost1});
  EXPECT_EQ(platform.Events()[0].title, "Marrowfield");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_FALSE(UI.MapShown);
  EXPECT_FALSE(UI.MapControlsShown);
  EXPECT_FALSE(UI.PanelsShown);
}

TEST_F(SurrenderTest, OneOfTwoHumansHandsTheGameToTheOther) {
  Regime[3].AI = 1;
  NextTurn();  // Red's turn 1
  platform.Clear();
  steps.clear();
  SurrenderCommand();
  EXPECT_EQ(Regime[1].AI, 1);  // the computer takes over Red
  // Blue got the line and now reads the notice after its dialog.
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(News[2][1].Type, 991);
  EXPECT_EQ(News[2][1].Text, "Red surrendered.");
  EXPECT_EQ(News[3][1].Type, 0);  // the computer's regime is not told
  ASSERT_EQ(platform.newTurns.size(), 2u);
  EXPECT_EQ(platform.newTurns[1].newsRows, std::vector<std::string>{"Red surrendered."});
  EXPECT_EQ(Messages(), (std::vector<std::string>{kLost2, kSurrenderNotice}));
}

TEST_F(SurrenderTest, WithThreeHumansTheOthersGetAResignationLine) {
  NextTurn();
  platform.Clear();
  SurrenderCommand();
  EXPECT_EQ(Regime[1].AI, 1);
  EXPECT_EQ(News[2][1].Type, 992);
  EXPECT_EQ(News[2][1].Text, "Red surrendered.");
  EXPECT_EQ(News[3][1].Type, 992);
  EXPECT_EQ(News[3][1].Text, "Red surrendered.");
  EXPECT_EQ(Messages(), (std::vector<std::string>{kLost3, kResignNotice}));
  // Green reads it in its turn too; Red, now the computer's, plays on the ticks.
  platform.Clear();
  EndCurrentTurn();
  EXPECT_EQ(Game.CurRegime, 3);
  EXPECT_EQ(Messages(), std::vector<std::string>{kResignNotice});
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(SurrenderTest, InEditingModeSurrenderIsIgnored) {
  NextTurn();
  platform.Clear();
  UI.EditMode = 1;
  SurrenderCommand();
  EXPECT_TRUE(platform.Events().empty());
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Regime[1].AI, 0);
}

TEST_F(SurrenderTest, TheEndOfAGameLeavesAnEmptyMapInEditingMode) {
  NextTurn();
  Game.FogOfWar = 1;
  UI.WindowTitle = "Marrowfield - Red";
  UI.ShowScrollX = UI.ShowScrollY = true;
  UI.BusyPointer = true;
  UI.PanelsShown = UI.MapControlsShown = true;
  EndGameToEmptyMap();
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.WindowTitle, "");
  EXPECT_FALSE(UI.ShowScrollX);
  EXPECT_FALSE(UI.ShowScrollY);
  EXPECT_FALSE(UI.PanelsShown);
  EXPECT_FALSE(UI.MapControlsShown);
  EXPECT_FALSE(UI.BusyPointer);
  EXPECT_TRUE(UI.MapShown);
  EXPECT_EQ(UI.RedrawRequest, 2);
}

class TimerTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue"});
    Game.GameEndPop = 100000;
    ReadyToStart();
  }
};

TEST_F(TimerTest, ADraggedScrollBarIsRedrawnWhenTheButtonIsUp) {
  UI.ScrollPending = 1;
  UI.RedrawRequest = 0;
  platform.mouseDown = true;
  TimerTick();
  EXPECT_EQ(UI.ScrollPending, 1);
  EXPECT_EQ(UI.RedrawRequest, 0);
  platform.mouseDown = false;
  TimerTick();
  EXPECT_EQ(UI.ScrollPending, 0);
  EXPECT_EQ(UI.RedrawRequest, 2);
}

TEST_F(TimerTest, EachTickEndsOneFinishedComputerTurn) {
  Regime[2].AI = 1;
  NextTurn();  // Red, human
  TimerTick();
  EXPECT_EQ(Game.CurRegime, 1);  // a human's turn is his own
  platform.QueueAnswer("yes");
  EndTurnCommand();
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Count("AITurn"), 1);
  EXPECT_EQ(CheckInvariants(), "");
  TimerTick();
  EXPECT_EQ(Game.Turn, 2);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Count("RunNewTurnDialog"), 2);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(TimerTest, WhileTheDriverIsBusyTheTickLeavesTheComputerAlone) {
  Regime[1].AI = 1;
  NextTurn();
  steps.clear();
  UI.BusyPointer = true;
  TimerTick();
  EXPECT_TRUE(steps.empty());
  EXPECT_EQ(Game.CurRegime, 1);
  UI.BusyPointer = false;
  TimerTick();
  EXPECT_EQ(Game.CurRegime, 2);
}

TEST_F(TimerTest, ATickNeverReentersTheDriverFromInsideAComputerTurn) {
  Regime[1].AI = 1;
  Regime[2].AI = 1;
  // A tick that arrives while the computer plays (as the event loop does
  // when the computer yields) must not start another turn.
  int nested = 0;
  onStep = [&](const std::string& step) {
    if (step == "AITurn" && nested == 0) {
      ++nested;
      TimerTick();
    }
  };
  NextTurn();
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Count("AITurn"), 1);
}

TEST_F(TimerTest, AnAllComputerGameRunsByItselfOnTicks) {
  world::AddRegime("Green");
  for (int r = 1; r <= 3; ++r) Regime[r].AI = 1;
  const int t = world::AddType("Rifles", kLandTheater, 1);
  world::AddUnit(1, 2, 2, "Red Rifles", t, 3);
  world::AddUnit(2, 8, 8, "Blue Rifles", t, 3);
  const int empty = world::AddUnit(3, 5, 5, "Green remnant");
  platform.QueueDialog("startgame", {{"ai", "1,1,1"}, {"start", ""}});
  UI.EditMode = 1;
  StartCommand();
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(CheckInvariants(), "");
  std::vector<std::pair<int, int>> seen;
  for (int i = 0; i < 7; ++i) {
    TimerTick();
    seen.push_back({Game.Turn, Game.CurRegime});
    EXPECT_EQ(CheckInvariants(), "") << "after tick " << i + 1;
  }
  const std::vector<std::pair<int, int>> want{{1, 2}, {1, 3}, {2, 1}, {2, 2}, {2, 3}, {3, 1}, {3, 2}};
  EXPECT_EQ(seen, want);
  EXPECT_EQ(Count("AITurn"), 8);
  EXPECT_EQ(Count("RunEvents"), 3);
  EXPECT_EQ(Count("RunNewTurnDialog"), 0);
  // A game that plays itself rings (2) at the end of every computer turn;
  // every end of turn clicks (1).
  std::vector<int> sounds{2};
  for (int i = 0; i < 7; ++i) sounds.insert(sounds.end(), {1, 2});
  EXPECT_EQ(platform.Sounds(), sounds);
  EXPECT_EQ(Unit[empty].Regime, 0);
  EXPECT_FALSE(UI.BusyPointer);
}

TEST_F(TimerTest, EndInAnyCaseEndsTheCampaign) {
  NextTurn();
  UI.PendingFile = "EnD";
  TimerTick();
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_FALSE(UI.MapShown);
  EXPECT_FALSE(UI.PanelsShown);
  EXPECT_FALSE(UI.MapControlsShown);
  // And the next tick has nothing left to do.
  steps.clear();
  TimerTick();
  EXPECT_TRUE(steps.empty());
}

// A campaign's next scenario in the program's scenarios folder.
void WriteCampaignFile(const std::string& path, long fogOfExploration) {
  world::NewMap(12, 12);
  world::AddRegime("Hero");
  world::AddRegime("Villain");
  world::AddRegime("Bystander");
  Regime[2].AI = 0;
  EngineVar[704].Value = 1;
  EngineVar[705].Value = fogOfExploration;
  Game.GameEndPop = 100000;
  ASSERT_TRUE(WriteFile(path));
}

TEST_F(TimerTest, ThePendingFileOfACampaignIsLoadedAndPlayedOn) {
  std::filesystem::create_directories(TempPath("scenarios"));
  WriteCampaignFile(TempPath("scenarios/part2.mf2"), 1);
  // The first part, in play.
  world::NewMap(10, 10);
  world::AddRegime("Hero");
  world::AddRegime("Villain");
  Game.GameEndPop = 100000;
  ReadyToStart();
  NextTurn();
  platform.Clear();
  platform.newTurns.clear();
  steps.clear();
  UI.PendingFile = "part2.mf2";
  TimerTick();
  EXPECT_EQ(Game.MapW, 12);
  EXPECT_EQ(Game.RegimeCount, 3);
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Regime[3].AI, 1);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_EQ(Count("RunNewTurnDialog"), 1);
  EXPECT_TRUE(Messages().empty());  // a campaign file loads silently
  ASSERT_EQ(platform.newTurns.size(), 1u);
  EXPECT_EQ(platform.newTurns[0].caption, "Hero");
}

TEST_F(TimerTest, TheCampaignFileMayBeNamedWithoutItsExtension) {
  std::filesystem::create_directories(TempPath("scenarios"));
  WriteCampaignFile(TempPath("scenarios/part3.mf2"), 7);
  world::NewMap(10, 10);
  Game.FogOfExploration = 1;
  UI.PendingFile = "part3";
  TimerTick();
  EXPECT_EQ(Game.MapW, 12);
  EXPECT_EQ(Game.Turn, 1);
  // Engine variable 705 outside 0 and 1 leaves the fog of exploration as the file had it.
  EXPECT_EQ(Game.FogOfExploration, 0);
}

TEST_F(TimerTest, AMissingCampaignFileEndsTheGame) {
  NextTurn();
  platform.Clear();
  UI.PendingFile = "nowhere.mf2";
  TimerTick();
  EXPECT_EQ(Messages(), std::vector<std::string>{"File does not exist"});
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.EditMode, 1);
  platform.Clear();
  TimerTick();
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace mf::test
