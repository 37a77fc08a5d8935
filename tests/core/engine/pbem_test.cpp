// A play-by-mail game passed from player to player through real files.
#include <filesystem>

#include "control/scenario_flow.h"
#include "engine_test_util.h"
#include "files/scenario_file.h"

namespace mf::test {
namespace {

class PbemTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue"});
    rifles = world::AddType("Rifles", kLandTheater, 1);
    red = world::AddUnit(1, 2, 2, "Red Rifles", rifles, 4);
    blue = world::AddUnit(2, 8, 8, "Blue Rifles", rifles, 4);
    Game.GameEndPop = 100000;
    UI.EditMode = 1;
  }
  int rifles = 0, red = 0, blue = 0;
};

TEST_F(PbemTest, TheTurnPassesThroughTheFileToTheNextPlayer) {
  // Machine of Red: the game is started and Red plays turn 1.
  platform.QueueDialog("startgame", {{"pbem", "1"},
                                     {"passwords", "1"},
                                     {"fog", "0"},
                                     {"email", "red@example.org,blue@example.org"},
                                     {"start", ""}});
  QueueNewTurn({{"password", "rosebud"}, {"login", ""}, {"proceed", ""}});
  StartCommand();
  ASSERT_EQ(platform.lastError, "");
  ASSERT_EQ(Game.Turn, 1);
  ASSERT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Regime[1].Password, "rosebud");
  EXPECT_EQ(CheckInvariants(), "");

  // Red ends his turn; Blue's dialog opens on Red's machine, and Red saves
  // the game for Blue and leaves.
  Unit[blue].FromX = 7;
  Unit[blue].SupplyPct = 60;
  const std::string file = TempPath("turn1-blue.mf1");
  platform.Clear();
  platform.newTurns.clear();
  steps.clear();
  QueueNewTurn({{"savepbem", file}});
  platform.QueueAnswer("yes");
  EndTurnCommand();
  ASSERT_EQ(platform.lastError, "");
  ASSERT_EQ(platform.newTurns.size(), 1u);
  const NewTurnDialog& handOver = platform.newTurns[0];
  EXPECT_EQ(handOver.caption, "Blue");
  EXPECT_TRUE(handOver.passwordShown);
  EXPECT_FALSE(handOver.reportShown);
  EXPECT_EQ(handOver.pbemCaption, "Save PBEM & Exit this game\n(Dont forget to mail it to blue@example.org)");
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Are you sure you want to end your turn?", "Saved"}));
  EXPECT_TRUE(std::filesystem::exists(file));
  // The game is gone from Red's machine, and none of Blue's turn was done there.
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(Count("HexCapture"), 0);

  // Machine of Blue: loading resumes Blue's turn without advancing.
  Long fromXAtDialog = -1, supplyAtDialog = -1, regimeAtDialog = -1, turnAtDialog = -1;
  onStep = [&](const std::string& step) {
    if (step != "RunNewTurnDialog") return;
    fromXAtDialog = Unit[blue].FromX;
    supplyAtDialog = Unit[blue].SupplyPct;
    regimeAtDialog = Game.CurRegime;
    turnAtDialog = Game.Turn;
  };
  platform.Clear();
  platform.newTurns.clear();
  steps.clear();
  QueueNewTurn({{"password", "tulip"}, {"login", ""}, {"proceed", ""}});
  ASSERT_TRUE(LoadGameFile(file));
  ASSERT_EQ(platform.lastError, "");
  EXPECT_EQ(regimeAtDialog, 2);
  EXPECT_EQ(turnAtDialog, 1);
  EXPECT_EQ(fromXAtDialog, 7);
  EXPECT_EQ(supplyAtDialog, 60);
  ASSERT_EQ(platform.newTurns.size(), 1u);
  EXPECT_TRUE(platform.newTurns[0].passwordShown);
  EXPECT_EQ(platform.newTurns[0].passwordButtonCaption, "Set this as your password");
  EXPECT_EQ(Count("RunEvents"), 0);
  EXPECT_EQ(steps.front(), "RunNewTurnDialog");
  EXPECT_LT(IndexOf("RunNewTurnDialog"), IndexOf("HexCapture"));
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Unit[blue].FromX, 0);
  EXPECT_EQ(Unit[blue].SupplyPct, 0);
  EXPECT_EQ(Regime[2].Password, "tulip");
  EXPECT_EQ(Regime[1].Password, "rosebud");
  EXPECT_EQ(UI.HelpText, "Your turn 1 has started in this Play by Email Game.");
  EXPECT_EQ(CheckInvariants(), "");

  // Blue ends his turn and mails it back; Red logs in for turn 2.
  const std::string back = TempPath("turn2-red.mf1");
  QueueNewTurn({{"savepbem", back}});
  platform.QueueAnswer("yes");
  steps.clear();
  EndTurnCommand();
  EXPECT_EQ(Count("RunEvents"), 1);  // the new game turn began on Blue's machine
  platform.Clear();
  platform.newTurns.clear();
  QueueNewTurn({{"password", "tulip"}, {"login", ""}, {"password", "rosebud"}, {"login", ""}, {"proceed", ""}});
  ASSERT_TRUE(LoadGameFile(back));
  EXPECT_EQ(Game.Turn, 2);
  EXPECT_EQ(Game.CurRegime, 1);
  ASSERT_EQ(platform.newTurns.size(), 1u);
  EXPECT_EQ(platform.newTurns[0].passwordButtonCaption, "Log in");
  EXPECT_EQ(platform.newTurns[0].pbemCaption,
            "Save PBEM & Exit this game\n(Dont forget to mail it to red@example.org)");
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Loaded", "Wrong Password"}));
  EXPECT_EQ(platform.lastError, "dialog newturn: login: Wrong Password");
  EXPECT_EQ(UI.HelpText, "Your turn 2 has started in this Play by Email Game.");
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(PbemTest, AComputerRegimeBetweenTwoHumansIsPlayedOnTheMachineOfThePlayerWhoEnds) {
  world::AddRegime("Green");
  Regime[2].AI = 1;
  Regime[1].Email = "red@example.org";
  Regime[3].Email = "green@example.org";
  Game.PBEM = 1;
  Game.Turn = 0;
  Game.CurRegime = 0;
  UI.EditMode = 0;
  NextTurn();
  const std::string file = TempPath("to-green.mf1");
  platform.QueueAnswer("yes");
  EndTurnCommand();  // Blue, the computer, plays inside the driver
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Count("AITurn"), 1);
  QueueNewTurn({{"savepbem", file}});
  TimerTick();  // ends Blue's turn and opens Green's dialog
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(Game.Turn, 0);
  ASSERT_EQ(platform.newTurns.size(), 2u);
  EXPECT_EQ(platform.newTurns[1].caption, "Green");
  platform.newTurns.clear();
  ASSERT_TRUE(LoadGameFile(file));
  EXPECT_EQ(Game.CurRegime, 3);
  EXPECT_EQ(Count("AITurn"), 1);
}

TEST_F(PbemTest, AGameThatIsNotByMailGoesOnWithoutTheDriver) {
  Game.Turn = 3;
  Game.CurRegime = 2;
  UI.EditMode = 0;
  const std::string file = TempPath("hotseat.mf1");
  ASSERT_TRUE(WriteFile(file));
  steps.clear();
  ASSERT_TRUE(LoadGameFile(file));
  EXPECT_TRUE(steps.empty());
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(UI.HelpText, "Welcome back to your game.");
}

}  // namespace
}  // namespace mf::test
