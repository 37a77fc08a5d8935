// The Start Game dialog and the start of play.
#include "engine/start_game_dialog.h"

#include "engine_test_util.h"

namespace mf::test {
namespace {

const char* const kOneHuman = "No PBEM possible with only 1 human player.";
const char* const kNoAddress = "One of human email adresses not known. Not possible in PBEM.";
const char* const kShowMoves = "You cannot show AI moves if Fog Of War is on";
const char* const kAnalysis = "You cannot do Analysis is Fog of War is on";

class StartGameTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue", "Green"});
    Game.GameEndPop = 100000;
    Game.ScenarioStory = "Three rivers, three peoples.";
    UI.EditMode = 1;
  }
  StartGameDialog Open() {
    StartGameDialog d;
    d.Prepare();
    return d;
  }
};

TEST_F(StartGameTest, TheDialogShowsTheStoredValues) {
  Game.FogOfWar = 1;
  Game.FogOfExploration = 0;
  Game.PBEM = 1;
  Game.UsePasswords = 0;
  Game.AIProdBonus = 1;
  Regime[2].AI = 1;
  Regime[1].Email = "red@example.org";
  const StartGameDialog d = Open();
  EXPECT_EQ(d.story, "Three rivers, three peoples.");
  EXPECT_EQ(d.gameOptionsTitle, "GAME OPTIONS");
  EXPECT_EQ(d.fogOptionsTitle, "FOG OF WAR OPTIONS");
  EXPECT_EQ(d.fogLabel, "Fog of War");
  EXPECT_EQ(d.explorationLabel, "Fog of Exploration");
  EXPECT_EQ(d.pbemLabel, "Play By Email");
  EXPECT_EQ(d.passwordsLabel, "Use Passwords");
  EXPECT_EQ(d.aiBonusLabel, "AI gets production bonus");
  EXPECT_EQ(d.humanLabel, "Human");
  EXPECT_TRUE(d.fog);
  EXPECT_FALSE(d.exploration);
  EXPECT_TRUE(d.pbem);
  EXPECT_FALSE(d.passwords);
  EXPECT_TRUE(d.aiBonus);
  for (int r = 1; r <= 3; ++r) EXPECT_TRUE(d.rows[r].shown) << r;
  for (int r = 4; r <= kStartRows; ++r) EXPECT_FALSE(d.rows[r].shown) << r;
  EXPECT_EQ(d.rows[2].name, "Blue");
  EXPECT_TRUE(d.rows[1].human);
  EXPECT_FALSE(d.rows[2].human);
  EXPECT_EQ(d.rows[1].email, "red@example.org");
  EXPECT_EQ(d.DialogName(), "startgame");
}

TEST_F(StartGameTest, ExplorationOnTurnsFogOnAndFogOffTurnsExplorationOff) {
  StartGameDialog d = Open();
  d.SetFog(false);
  d.SetExploration(true);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_TRUE(d.fog);
  d.SetFog(false);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(Game.FogOfExploration, 0);
  EXPECT_FALSE(d.exploration);
  // Fog on by itself leaves exploration as it is; exploration off leaves fog.
  d.SetFog(true);
  EXPECT_EQ(Game.FogOfExploration, 0);
  d.SetExploration(true);
  d.SetExploration(false);
  EXPECT_EQ(Game.FogOfWar, 1);
}

TEST_F(StartGameTest, TheOtherBoxesWriteTheirSwitches) {
  StartGameDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("pbem", "1", &why));
  ASSERT_TRUE(d.Act("passwords", "1", &why));
  ASSERT_TRUE(d.Act("aibonus", "1", &why));
  EXPECT_EQ(Game.PBEM, 1);
  EXPECT_EQ(Game.UsePasswords, 1);
  EXPECT_EQ(Game.AIProdBonus, 1);
  ASSERT_TRUE(d.Act("aibonus", "0", &why));
  EXPECT_EQ(Game.AIProdBonus, 0);
  EXPECT_FALSE(d.Act("pbem", "yes", &why));
  EXPECT_EQ(why, "a box takes 0 or 1, not \"yes\"");
}

TEST_F(StartGameTest, RowsChooseTheComputerOrAHumanAndTakeAddresses) {
  StartGameDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("ai", "0,1,1", &why)) << why;
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Regime[3].AI, 1);
  EXPECT_FALSE(d.rows[2].human);
  ASSERT_TRUE(d.Act("email", "a@x.org,,c@x.org", &why)) << why;
  EXPECT_EQ(Regime[1].Email, "a@x.org");
  EXPECT_EQ(Regime[2].Email, "");
  EXPECT_EQ(Regime[3].Email, "c@x.org");
  // A hidden row cannot be set.
  EXPECT_FALSE(d.Act("ai", "0,0,0,1", &why));
  EXPECT_EQ(why, "there is no row for regime 4");
  EXPECT_FALSE(d.SetEmail(4, "d@x.org", &why));
}

TEST_F(StartGameTest, WhenTheScenarioForbidsTheComputerEveryRowStaysHuman) {
  EngineVar[701].Value = 1;
  StartGameDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.SetHuman(2, false, &why));
  EXPECT_EQ(Regime[2].AI, 0);
  EXPECT_TRUE(d.rows[2].human);
  EXPECT_EQ(Messages(), std::vector<std::string>{"The AI is not allowed to play in this scenario."});
  EXPECT_EQ(platform.Events()[0].title, "Marrowfield");
  // Even a row that the file had as computer is put back to human.
  Regime[3].AI = 1;
  ASSERT_TRUE(d.SetHuman(3, false, &why));
  EXPECT_EQ(Regime[3].AI, 0);
}

TEST_F(StartGameTest, EachCheckByItselfShowsItsMessage) {
  struct Case {
    const char* name;
    std::function<void()> set;
    const char* message;
  };
  const std::vector<Case> cases{
      {"one human in PBEM",
       [] {
         Game.PBEM = 1;
         Regime[2].AI = Regime[3].AI = 1;
         Regime[1].Email = "red@x.org";
       },
       kOneHuman},
      {"missing address",
       [] {
         Game.PBEM = 1;
         Regime[3].AI = 1;
         Regime[1].Email = "red@x.org";
         Regime[2].Email = "  ";
       },
       kNoAddress},
      {"AI moves shown under fog", [] { Game.ShowAIMoves = kTrue; }, kShowMoves},
      {"analysis under fog", [] { Game.AIAnalysis = kTrue; }, kAnalysis},
  };
  for (const auto& c : cases) {
    for (int r = 1; r <= 3; ++r) {
      Regime[r].AI = 0;
      Regime[r].Email.clear();
    }
    Game.PBEM = 0;
    Game.FogOfWar = 1;
    Game.ShowAIMoves = Game.AIAnalysis = kFalse;
    platform.Clear();
    c.set();
    StartGameDialog d = Open();
    std::string why;
    EXPECT_FALSE(d.StartButton(&why)) << c.name;
    EXPECT_EQ(why, c.message) << c.name;
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message}) << c.name;
    EXPECT_TRUE(d.open) << c.name;
    EXPECT_TRUE(d.refused) << c.name;
    EXPECT_EQ(d.DefaultAction(), "cancel") << c.name;
  }
}

TEST_F(StartGameTest, WhenSeveralChecksFailOnlyTheLastMessageShows) {
  Game.PBEM = 1;
  Regime[2].AI = Regime[3].AI = 1;  // one human, and without an address
  StartGameDialog d = Open();
  std::string why;
  EXPECT_FALSE(d.StartButton(&why));
  EXPECT_EQ(Messages(), std::vector<std::string>{kNoAddress});

  platform.Clear();
  Game.FogOfWar = 1;
  Game.ShowAIMoves = kTrue;
  EXPECT_FALSE(d.StartButton(&why));
  EXPECT_EQ(Messages(), std::vector<std::string>{kShowMoves});

  platform.Clear();
  Game.AIAnalysis = kTrue;
  EXPECT_FALSE(d.StartButton(&why));
  EXPECT_EQ(Messages(), std::vector<std::string>{kAnalysis});

  // Without fog the last two pass, and the address is again the last failure.
  platform.Clear();
  d.SetFog(false);
  EXPECT_FALSE(d.StartButton(&why));
  EXPECT_EQ(Messages(), std::vector<std::string>{kNoAddress});
}

TEST_F(StartGameTest, APlayByMailGameOfTwoHumansWithAddressesPasses) {
  Game.PBEM = 1;
  Regime[3].AI = 1;
  Regime[1].Email = "red@x.org";
  Regime[2].Email = "blue@x.org";
  Game.SpareFlag = kTrue;
  StartGameDialog d = Open();
  std::string why;
  EXPECT_TRUE(d.StartButton(&why)) << why;
  EXPECT_FALSE(d.open);
  EXPECT_TRUE(d.started);
  EXPECT_EQ(Game.SpareFlag, kFalse);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(StartGameTest, PlayByMailWithoutAnyHumanIsNotRefused) {
  Game.PBEM = 1;
  for (int r = 1; r <= 3; ++r) Regime[r].AI = 1;
  StartGameDialog d = Open();
  std::string why;
  EXPECT_TRUE(d.StartButton(&why));
}

TEST_F(StartGameTest, StartingSetsFogOnByDefaultAndRunsTheFirstTurn) {
  Game.FogOfWar = 0;
  UI.ShowEditorPanel = true;
  StartCommand();
  ASSERT_EQ(platform.startGames.size(), 1u);
  EXPECT_TRUE(platform.startGames[0].fog);  // the box starts ticked
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_FALSE(UI.ShowEditorPanel);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Count("RunNewTurnDialog"), 1);
  EXPECT_FALSE(UI.BusyPointer);
}

TEST_F(StartGameTest, CancelLeavesEditingWithoutFog) {
  platform.QueueDialog("startgame", {{"pbem", "1"}, {"cancel", ""}});
  StartCommand();
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_TRUE(steps.empty());
  EXPECT_EQ(Game.PBEM, 1);  // the boxes wrote straight into the game
  EXPECT_EQ(platform.lastError, "");
}

TEST_F(StartGameTest, ARefusedStartIsCancelled) {
  platform.QueueDialog("startgame", {{"pbem", "1"}, {"start", ""}});
  StartCommand();
  EXPECT_EQ(Messages(), std::vector<std::string>{kNoAddress});
  EXPECT_EQ(platform.lastError, std::string("dialog startgame: start: ") + kNoAddress);
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(Game.FogOfWar, 0);
  const auto& ev = platform.Events();
  EXPECT_EQ(ev.back().kind, PlatformEvent::kDialogAction);
  EXPECT_EQ(ev.back().text, "cancel (default)");
}

TEST_F(StartGameTest, NoStartWhileAGameIsInPlay) {
  Game.Turn = 2;
  Game.CurRegime = 1;
  StartCommand();
  EXPECT_TRUE(platform.startGames.empty());
  EXPECT_EQ(Game.Turn, 2);
}

TEST_F(StartGameTest, AComputerRegimeOneStartsTheGameWithItsTurn) {
  platform.QueueDialog("startgame", {{"ai", "1,0,0"}, {"fog", "0"}, {"start", ""}});
  StartCommand();
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Count("AITurn"), 1);
  EXPECT_EQ(Count("RunNewTurnDialog"), 0);
  EXPECT_EQ(Game.ShowAIMoves, kTrue);
}

}  // namespace
}  // namespace mf::test
