// Events in the turn cycle: fired once a game turn, shown to the right
// regimes at the right moment, and the campaign going on to its next file
// or ending through the timer.
#include <algorithm>
#include <filesystem>

#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "events_test_util.h"
#include "files/scenario_file.h"
#include "model/engine_vars.h"
#include "model/invariants.h"
#include "model/reset.h"

namespace mf::test {
namespace {

class EventShowing : public EventsTest {
 protected:
  void SetUp() override {
    EventsTest::SetUp();
    SetTurnStepWatcher([this](const std::string& step) { steps.push_back(step); });
    Regime[blue].AI = 0;  // two people at one machine unless a test says otherwise
    Game.Turn = 0;
    Game.CurRegime = 0;
    Game.GameEndPop = 1000000;
  }
  void TearDown() override {
    SetTurnStepWatcher(nullptr);
    EventsTest::TearDown();
  }

  int IndexOf(const std::string& step) const {
    auto it = std::find(steps.begin(), steps.end(), step);
    return it == steps.end() ? -1 : static_cast<int>(it - steps.begin());
  }
  bool Called(const std::string& step) const { return IndexOf(step) >= 0; }

  // A next file of a campaign in the program's scenarios folder: a 14 x 11
  // map of two regimes whose file makes both human and leaves fog off, an
  // event that welcomes the player, and engine variable 705 as given.
  void WriteNextFile(const std::string& name, long fogOfExploration) {
    world::NewMap(14, 11);
    world::AddRegime("Cantons");
    world::AddRegime("Dominion");
    Regime[1].AI = 1;
    Regime[2].AI = 0;
    Game.FogOfWar = 0;
    Game.FogOfExploration = 1;
    EngineVar[704].Value = 1;
    EngineVar[705].Value = fogOfExploration;
    EngineVar[706].Value = 1;
    const int e = AddEvent("The march to the hills begins.");
    Event[e].ShowReg1 = 1;
    namespace fs = std::filesystem;
    fs::create_directories(fs::path(tempDir) / "scenarios");
    ASSERT_TRUE(WriteFile((fs::path(tempDir) / "scenarios" / name).string()));
    ZeroAllTables();
    FillEngineVarLabels();
    SetEngineVarDefaults();
    MakeWorld();
    Regime[blue].AI = 0;
    Game.Turn = 0;
    Game.CurRegime = 0;
    Game.GameEndPop = 1000000;
  }

  std::vector<std::string> steps;
};

TEST_F(EventShowing, AnEventOfTheGameStartIsShownWhenRegimeOneOpensTurnOne) {
  const int e = AddEvent("The cantons rise.");
  Event[e].ShowReg1 = red;
  NextTurn();
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, red);
  EXPECT_EQ(Event[e].FiredTurn, 1);
  EXPECT_EQ(ShownEvents(), std::vector<int>{e});
  EXPECT_TRUE(Called("DoShowEvent 1"));
  // Blue is not addressed.
  EndCurrentTurn();
  EXPECT_EQ(Game.CurRegime, blue);
  EXPECT_EQ(ShownEvents(), std::vector<int>{e});
}

TEST_F(EventShowing, EventsRunOnceAGameTurnBeforeRegimeOneMoves) {
  const int e = AddEvent();
  Event[e].Type = kEventBookVars;
  Event[e].Data[1] = 1;
  Event[e].Data[2] = 1;
  NextTurn();  // turn 1
  EXPECT_EQ(Game.BookVar[1], 1);
  EndCurrentTurn();  // Blue's turn 1
  EXPECT_EQ(Game.BookVar[1], 1);
  EndCurrentTurn();  // turn 2
  EXPECT_EQ(Game.Turn, 2);
  EXPECT_EQ(Game.BookVar[1], 2);
  EXPECT_EQ(Event[e].FiredTurn, 2);
}

TEST_F(EventShowing, EachRegimeSeesWhatIsAddressedToIt) {
  const int toRed = AddEvent("For Red");
  Event[toRed].ShowReg1 = red;
  const int toBlue = AddEvent("For Blue");
  Event[toBlue].ShowReg2 = blue;
  const int toAll = AddEvent("For all");
  Event[toAll].ShowAll = 1;
  const int both = AddEvent("For both");
  Event[both].ShowReg1 = blue;
  Event[both].ShowReg2 = red;
  const int nobody = AddEvent("For nobody");
  NextTurn();
  EXPECT_EQ(ShownEvents(), (std::vector<int>{toRed, toAll, both}));
  watcher.shown.clear();
  EndCurrentTurn();
  EXPECT_EQ(ShownEvents(), (std::vector<int>{toBlue, toAll, both}));
  EXPECT_EQ(Event[nobody].FiredTurn, 1);
}

TEST_F(EventShowing, OnlyEventsFiredThisGameTurnAreShown) {
  const int once = AddEvent("Only at the start");
  Event[once].Once = 1;
  Event[once].ShowAll = 1;
  const int later = AddEvent("From turn 2");
  Event[later].TurnMin = 2;
  Event[later].ShowAll = 1;
  NextTurn();
  EndCurrentTurn();
  EXPECT_EQ(ShownEvents(), (std::vector<int>{once, once}));
  watcher.shown.clear();
  EndCurrentTurn();  // turn 2, Red
  EXPECT_EQ(Game.Turn, 2);
  EXPECT_EQ(ShownEvents(), std::vector<int>{later});
}

TEST_F(EventShowing, OutsideACampaignEventsComeAfterTheNewTurnDialog) {
  const int e = AddEvent();
  Event[e].ShowAll = 1;
  EngineVar[704].Value = 0;
  NextTurn();
  ASSERT_TRUE(Called("DoShowEvent 1"));
  EXPECT_LT(IndexOf("RunNewTurnDialog"), IndexOf("DoShowEvent 1"));
  EXPECT_LT(IndexOf("DoShowEvent 1"), IndexOf("HexCapture"));
}

TEST_F(EventShowing, InACampaignEventsComeBeforeTheNewTurnDialog) {
  const int e = AddEvent();
  Event[e].ShowAll = 1;
  EngineVar[704].Value = 1;
  NextTurn();
  ASSERT_TRUE(Called("DoShowEvent 1"));
  EXPECT_LT(IndexOf("DoShowEvent 1"), IndexOf("RunNewTurnDialog"));
}

TEST_F(EventShowing, TheComputerIsShownNothing) {
  Regime[blue].AI = 1;
  const int e = AddEvent();
  Event[e].ShowAll = 1;
  NextTurn();
  EndCurrentTurn();
  EXPECT_EQ(Game.CurRegime, blue);
  EXPECT_EQ(ShownEvents(), std::vector<int>{e});
}

TEST_F(EventShowing, APersonAnswersAChoiceWhenItIsShown) {
  const int e = AddEvent("How shall the army be filled?");
  Event[e].Type = kEventChoice;
  Event[e].ShowReg1 = red;
  Event[e].Data[1] = 3;
  Event[e].Data[6] = 1;
  Event[e].Data[2] = 4;
  Event[e].Data[7] = 1;
  Event[e].DataText[1] = "Farmers";
  Event[e].DataText[2] = "Silver";
  watcher.QueueDialog("event", {{"choice", "2"}});
  NextTurn();
  EXPECT_EQ(Game.BookVar[3], 0);
  EXPECT_EQ(Game.BookVar[4], 1);
}

TEST_F(EventShowing, EachTurnStepForgetsAPendingFile) {
  UI.PendingFile = "stale.mf2";
  NextTurn();
  EXPECT_EQ(UI.PendingFile, "");
}

TEST_F(EventShowing, AFileEventStopsACampaignTurnBeforeTheNewTurnDialog) {
  EngineVar[704].Value = 1;
  const int story = AddEvent("Cinderbridge has fallen!");
  Event[story].ShowReg1 = red;
  const int file = AddEvent("On to the hills.");
  Event[file].Type = kEventLoadFile;
  Event[file].ShowReg1 = red;
  Event[file].DataText[1] = "next.mf2";
  const int after = AddEvent("Shown all the same");
  Event[after].ShowAll = 1;
  NextTurn();
  // Every event of the turn is shown, then the driver stops.
  EXPECT_EQ(ShownEvents(), (std::vector<int>{story, file, after}));
  EXPECT_EQ(UI.PendingFile, "next.mf2");
  EXPECT_FALSE(Called("RunNewTurnDialog"));
  EXPECT_FALSE(Called("HexCapture"));
  EXPECT_FALSE(Called("SightPass"));
}

TEST_F(EventShowing, OutsideACampaignAFileEventLetsTheTurnGoOn) {
  WriteNextFile("next.mf2", 1);
  EngineVar[704].Value = 0;
  const int file = AddEvent("On to the hills.");
  Event[file].Type = kEventLoadFile;
  Event[file].ShowReg1 = red;
  Event[file].DataText[1] = "next.mf2";
  NextTurn();
  EXPECT_TRUE(Called("RunNewTurnDialog"));
  EXPECT_TRUE(Called("HexCapture"));
  EXPECT_EQ(UI.PendingFile, "next.mf2");
  EXPECT_TRUE(UI.MapShown);
  // The timer takes it up.
  TimerTick();
  EXPECT_EQ(Game.MapW, 14);
  EXPECT_EQ(Game.MapH, 11);
}

TEST_F(EventShowing, TheTimerLoadsTheNextFileOfACampaign) {
  WriteNextFile("next.mf2", 1);
  EngineVar[704].Value = 1;
  const int file = AddEvent("On to the hills.");
  Event[file].Type = kEventLoadFile;
  Event[file].ShowReg1 = red;
  Event[file].DataText[1] = "next.mf2";
  NextTurn();
  ASSERT_EQ(UI.PendingFile, "next.mf2");
  watcher.shown.clear();
  steps.clear();
  TimerTick();
  // The next file is in play: regime 1 the person, the other the computer,
  // fog of war on, fog of exploration as its row 705 says.
  EXPECT_EQ(Game.MapW, 14);
  EXPECT_EQ(Game.MapH, 11);
  EXPECT_EQ(Regime[1].Name, "Cantons");
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_EQ(UI.PendingFile, "");
  // Its first turn has begun, with its own events.
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(ShownEvents(), std::vector<int>{1});
  EXPECT_TRUE(Called("RunNewTurnDialog"));
  EXPECT_EQ(UI.HelpText, "Your turn 1 has started.");
  EXPECT_FALSE(UI.BusyPointer);
  EXPECT_EQ(CheckInvariants(), "");
  // A campaign file loads without a word.
  for (const auto& m : Messages()) EXPECT_NE(m, "Loaded");
}

TEST_F(EventShowing, FogOfExplorationFollowsRow705) {
  WriteNextFile("next.mf2", 0);
  UI.PendingFile = "next.mf2";
  TimerTick();
  EXPECT_EQ(Game.MapW, 14);
  EXPECT_EQ(Game.FogOfExploration, 0);
  EXPECT_EQ(Game.FogOfWar, 1);
}

TEST_F(EventShowing, Row705OutsideZeroAndOneKeepsTheFilesFog) {
  WriteNextFile("next.mf2", 2);
  UI.PendingFile = "next.mf2";
  TimerTick();
  EXPECT_EQ(Game.MapW, 14);
  EXPECT_EQ(Game.FogOfExploration, 1);  // as the file was saved
}

TEST_F(EventShowing, EndInAnyCaseEndsTheCampaign) {
  EngineVar[704].Value = 1;
  const int file = AddEvent("The campaign is over.");
  Event[file].Type = kEventLoadFile;
  Event[file].ShowReg1 = red;
  Event[file].DataText[1] = "End";
  NextTurn();
  ASSERT_EQ(UI.PendingFile, "End");
  TimerTick();
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_FALSE(UI.MapShown);
  EXPECT_FALSE(UI.PanelsShown);
  EXPECT_FALSE(UI.MapControlsShown);
  EXPECT_FALSE(UI.BusyPointer);
  // Nothing is left for the next tick.
  TimerTick();
  EXPECT_EQ(Game.Turn, 0);
}

TEST_F(EventShowing, AMissingNextFileEndsTheGameWithTheLoadsMessage) {
  UI.PendingFile = "nowhere.mf2";
  NextTurn();
  UI.PendingFile = "nowhere.mf2";
  TimerTick();
  EXPECT_EQ(Messages().back(), "File does not exist");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.PendingFile, "");
}

TEST_F(EventShowing, FiredTurnsAreSavedWithTheGame) {
  const int e = AddEvent();
  Event[e].Once = 1;
  NextTurn();
  ASSERT_EQ(Event[e].FiredTurn, 1);
  const std::string path = TempPath("saved.mf1");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  ASSERT_EQ(Event[e].FiredTurn, 0);
  ASSERT_TRUE(ReadFile(path));
  EXPECT_EQ(Event[e].FiredTurn, 1);
  // So a "once" event that fired before the save does not fire again.
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 1);
}

}  // namespace
}  // namespace mf::test
