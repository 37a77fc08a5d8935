// The New Turn dialog: headline, lists, password, play-by-mail button, leaving,
// and the notices after it closes.
#include "control/new_turn_dialog.h"

#include <filesystem>

#include "engine/news.h"
#include "engine_test_util.h"

namespace mf::test {
namespace {

class NewTurnDialogTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue", "Green"});
    Game.Turn = 3;
    Game.CurRegime = 1;
    Game.GameEndPop = 5000;
    Game.CurPop = 1200;
  }
  NewTurnDialog Open() {
    NewTurnDialog d;
    d.Prepare();
    return d;
  }
};

// ---- Headline ------------------------------------------------------------------

TEST_F(NewTurnDialogTest, WithoutAWinnerTheHeadlineIsTheTurn) {
  const NewTurnDialog d = Open();
  EXPECT_TRUE(d.open);
  EXPECT_EQ(d.caption, "Red");
  EXPECT_EQ(d.proceedCaption, "Start turn 3");
  EXPECT_EQ(d.exitCaption, "Exit Game");
  EXPECT_EQ(d.headlineTitle, "Red TURN 3");
  EXPECT_EQ(d.headlineText,
            "Red you are ready to start turn 3 at your command. The Victory condition is 5000 population under your "
            "control. You control 1200 population.");
}

TEST_F(NewTurnDialogTest, TheWinnerReadsHisVictoryWithHisPopulation) {
  Game.GameWinner = 1;
  Game.WinnerPop = 5200;
  const NewTurnDialog d = Open();
  EXPECT_EQ(d.headlineTitle, "YOU WON THE GAME");
  EXPECT_EQ(d.headlineText,
            "VICTORY. You are Victorious! You control 5200 population. The Victory condition was 5000 population "
            "under your control.");
}

TEST_F(NewTurnDialogTest, AVictoryWithoutPopulationHasTheShortText) {
  Game.GameWinner = 1;
  Game.WinnerPop = 0;
  EXPECT_EQ(Open().headlineText, "VICTORY. You are victorious!");
}

TEST_F(NewTurnDialogTest, TheOthersReadTheirDefeat) {
  Game.GameWinner = 2;
  Game.WinnerPop = 5200;
  NewTurnDialog d = Open();
  EXPECT_EQ(d.headlineTitle, "YOU LOST THE GAME");
  EXPECT_EQ(d.headlineText,
            "DEFEAT. Blue has won the game. They control 5200 population. The Victory condition was 5000 population "
            "under your control.");
  Game.WinnerPop = 0;
  d = Open();
  EXPECT_EQ(d.headlineTitle, "YOU LOST THE GAME");
  EXPECT_EQ(d.headlineText, "DEFEAT. Blue has won the game.");
}

TEST_F(NewTurnDialogTest, VictoryByAnEventLeavesWinnerPopZeroAndTheShortTextShows) {
  // An end-game event hands the game to Blue before turn 1 starts.
  world::NewMap(10, 10);
  world::AddRegime("Red");
  world::AddRegime("Blue");
  Hex[5][5].Owner = 2;
  Hex[5][5].Pop = 9000;
  Game.GameEndPop = 5000;
  ReadyToStart();
  onStep = [](const std::string& step) {
    if (step == "RunEvents") Game.GameWinner = 2;
  };
  NextTurn();
  EndCurrentTurn();
  EXPECT_EQ(Game.GameWinner, 2);
  EXPECT_EQ(Game.WinnerPop, 0);
  EXPECT_EQ(Game.CurPop, 9000);
  ASSERT_EQ(platform.newTurns.size(), 2u);
  EXPECT_EQ(platform.newTurns[0].headlineText, "DEFEAT. Blue has won the game.");
  EXPECT_EQ(platform.newTurns[1].headlineTitle, "YOU WON THE GAME");
  EXPECT_EQ(platform.newTurns[1].headlineText, "VICTORY. You are victorious!");
}

// ---- Lists -----------------------------------------------------------------------

TEST_F(NewTurnDialogTest, EmptyListsSayNone) {
  const NewTurnDialog d = Open();
  EXPECT_EQ(d.newsTitle, "FORMATION LOSSES + NEWS:");
  EXPECT_EQ(d.lossesTitle, "LOSSES:");
  EXPECT_EQ(d.killsTitle, "CASUALTIES INFLICTED:");
  EXPECT_EQ(d.briefingTitle, "Start briefing:");
  EXPECT_EQ(d.newsRows, std::vector<std::string>{"None"});
  EXPECT_EQ(d.lossRows, std::vector<std::string>{"None"});
  EXPECT_EQ(d.killRows, std::vector<std::string>{"None"});
  EXPECT_EQ(d.briefing, "");
}

TEST_F(NewTurnDialogTest, TheListsShowLostFormationsNoticesAndClassCounts) {
  News[1][1] = {1, "3rd Bataljon", 0, 0, 0};
  News[1][2] = {2, "", 4, 4, 7};           // a map mark: not listed
  News[1][3] = {150, "A quiet note", 0, 0, 0};  // 900 and below: not listed
  News[1][5] = {991, "Blue surrendered.", 0, 0, 0};
  News[1][9] = {901, "Spies report", 0, 0, 0};
  Regime[1].Losses[1] = 5;
  Regime[1].Losses[6] = 2;
  Regime[1].Losses[4] = 0;
  Regime[1].Kills[12] = 1;
  Regime[1].Kills[9] = 30;
  Regime[1].Intro = "Hold the river.";
  const NewTurnDialog d = Open();
  EXPECT_EQ(d.newsRows, (std::vector<std::string>{"3rd Bataljon", "Blue surrendered.", "Spies report"}));
  EXPECT_EQ(d.lossRows, (std::vector<std::string>{"Infantry: 5", "Cargoships: 2"}));
  EXPECT_EQ(d.killRows, (std::vector<std::string>{"Fighters: 30", "Rockets: 1"}));
  EXPECT_EQ(d.briefing, "Hold the river.");
}

TEST_F(NewTurnDialogTest, AllTwelveClassLabels) {
  for (int c = 1; c <= 12; ++c) Regime[1].Losses[c] = c;
  const NewTurnDialog d = Open();
  const std::vector<std::string> want{"Infantry: 1", "Trucks: 2",       "Artillery: 3", "Armour: 4",
                                      "Warships: 5", "Cargoships: 6",   "Carriers: 7",  "Subs: 8",
                                      "Fighters: 9", "Transporters: 10", "Bombers: 11",  "Rockets: 12"};
  EXPECT_EQ(d.lossRows, want);
}

// ---- Password --------------------------------------------------------------------

TEST_F(NewTurnDialogTest, WithoutPasswordsTheReportShowsAtOnce) {
  NewTurnDialog d = Open();
  EXPECT_FALSE(d.passwordShown);
  EXPECT_TRUE(d.reportShown);
  EXPECT_TRUE(d.accepted);
  std::string why;
  EXPECT_FALSE(d.Act("login", "", &why));
  EXPECT_TRUE(d.Act("proceed", "", &why));
  EXPECT_FALSE(d.open);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(NewTurnDialogTest, OnTurnOneThePlayerSetsHisPassword) {
  Game.UsePasswords = 1;
  Game.Turn = 1;
  NewTurnDialog d = Open();
  EXPECT_TRUE(d.passwordShown);
  EXPECT_FALSE(d.reportShown);
  EXPECT_EQ(d.passwordLabel, "Password:");
  EXPECT_EQ(d.passwordButtonCaption, "Set this as your password");
  std::string why;
  ASSERT_TRUE(d.Act("password", "sesame", &why));
  ASSERT_TRUE(d.Act("login", "", &why));
  EXPECT_EQ(Regime[1].Password, "sesame");
  EXPECT_TRUE(d.reportShown);
  EXPECT_TRUE(d.open);
  ASSERT_TRUE(d.Act("proceed", "", &why));
  EXPECT_FALSE(d.open);
  EXPECT_TRUE(d.accepted);
}

TEST_F(NewTurnDialogTest, AfterTurnOneThePlayerLogsInWithoutALimitOfAttempts) {
  Game.UsePasswords = 1;
  Game.Turn = 2;
  Regime[1].Password = "sesame";
  NewTurnDialog d = Open();
  EXPECT_EQ(d.passwordButtonCaption, "Log in");
  std::string why;
  for (int attempt = 0; attempt < 12; ++attempt) {
    d.SetPasswordText("sesam" + std::to_string(attempt));
    EXPECT_FALSE(d.PasswordButton(&why));
    EXPECT_EQ(why, "Wrong Password");
    EXPECT_FALSE(d.reportShown);
    EXPECT_TRUE(d.open);
  }
  EXPECT_EQ(Messages(), std::vector<std::string>(12, "Wrong Password"));
  EXPECT_EQ(platform.Events()[0].title, "Marrowfield");
  EXPECT_EQ(Regime[1].Password, "sesame");  // after turn 1 the button never sets it
  d.SetPasswordText("sesame");
  EXPECT_TRUE(d.PasswordButton(&why));
  EXPECT_TRUE(d.reportShown);
}

TEST_F(NewTurnDialogTest, ProceedComparesThePasswordAgain) {
  Game.UsePasswords = 1;
  Regime[1].Password = "sesame";
  NewTurnDialog d = Open();
  std::string why;
  d.SetPasswordText("sesame");
  ASSERT_TRUE(d.PasswordButton(&why));
  d.SetPasswordText("changed");
  EXPECT_FALSE(d.ProceedButton(&why));
  EXPECT_EQ(why, "Wrong Password");
  EXPECT_TRUE(d.open);
  d.SetPasswordText("sesame");
  EXPECT_TRUE(d.ProceedButton(&why));
  EXPECT_FALSE(d.open);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Wrong Password"});
}

TEST_F(NewTurnDialogTest, AMatchingPasswordAtProceedIsEnoughWithoutLoggingIn) {
  Game.UsePasswords = 1;
  Regime[1].Password = "sesame";
  NewTurnDialog d = Open();
  std::string why;
  d.SetPasswordText("sesame");
  EXPECT_TRUE(d.ProceedButton(&why));
  EXPECT_TRUE(d.accepted);
  EXPECT_FALSE(d.reportShown);
}

// ---- Play by mail ----------------------------------------------------------------

TEST_F(NewTurnDialogTest, OutsidePlayByMailThereIsNoSaveButton) {
  NewTurnDialog d = Open();
  EXPECT_FALSE(d.pbemShown);
  std::string why;
  EXPECT_FALSE(d.Act("savepbem", TempPath("x.mf1"), &why));
  EXPECT_TRUE(d.open);
}

TEST_F(NewTurnDialogTest, TheAddressIsTheNextHumansFromTheCurrentRegimeOn) {
  Game.PBEM = 1;
  Regime[1].Email = "red@example.org";
  Regime[2].Email = "blue@example.org";
  Regime[3].Email = "green@example.org";
  Regime[2].AI = 1;
  // The search starts at the current regime itself.
  Game.CurRegime = 3;
  EXPECT_EQ(NextHumanEmail(), "green@example.org");
  NewTurnDialog d = Open();
  EXPECT_TRUE(d.pbemShown);
  EXPECT_EQ(d.pbemCaption, "Save PBEM & Exit this game\n(Dont forget to mail it to green@example.org)");
  // From a computer regime it goes upward ...
  Game.CurRegime = 2;
  EXPECT_EQ(NextHumanEmail(), "green@example.org");
  // ... and wraps round to 1.
  Regime[3].AI = 1;
  EXPECT_EQ(NextHumanEmail(), "red@example.org");
  Regime[1].AI = 1;
  EXPECT_EQ(NextHumanEmail(), "");
}

TEST_F(NewTurnDialogTest, SavePbemWritesTheGameAndLeaves) {
  Game.PBEM = 1;
  Game.CurRegime = 2;
  NewTurnDialog d = Open();
  std::string why;
  const std::string path = TempPath("hand-over.mf1");
  ASSERT_TRUE(d.Act("savepbem", path, &why)) << why;
  EXPECT_FALSE(d.open);
  EXPECT_TRUE(d.leave);
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Saved"});
  EXPECT_EQ(platform.Events()[0].title, "File I/O");
}

TEST_F(NewTurnDialogTest, SavePbemAsksForAFileAndACancelKeepsTheDialogOpen) {
  Game.PBEM = 1;
  NewTurnDialog d = Open();
  std::string why;
  platform.QueueFile("");
  EXPECT_FALSE(d.SavePbemButton("", &why));
  EXPECT_TRUE(d.open);
  EXPECT_FALSE(d.leave);
  ASSERT_EQ(platform.Events().size(), 2u);
  EXPECT_EQ(platform.Events()[0].kind, PlatformEvent::kFileDialog);
  EXPECT_EQ(platform.Events()[0].text, "save");
  EXPECT_EQ(platform.Events()[1].text, "Save canceled");
  EXPECT_EQ(platform.Events()[1].title, "File I/O");
  const std::string path = TempPath("chosen.mf1");
  platform.QueueFile(path);
  EXPECT_TRUE(d.SavePbemButton("", &why));
  EXPECT_TRUE(d.leave);
  EXPECT_TRUE(std::filesystem::exists(path));
}

// ---- Leaving ---------------------------------------------------------------------

TEST_F(NewTurnDialogTest, ExitGameAsksFirst) {
  NewTurnDialog d = Open();
  std::string why;
  platform.QueueAnswer("no");
  EXPECT_TRUE(d.ExitButton(&why));
  EXPECT_TRUE(d.open);
  EXPECT_FALSE(d.leave);
  platform.QueueAnswer("yes");
  EXPECT_TRUE(d.ExitButton(&why));
  EXPECT_FALSE(d.open);
  EXPECT_TRUE(d.leave);
  ASSERT_EQ(platform.Events().size(), 2u);
  EXPECT_EQ(platform.Events()[0].kind, PlatformEvent::kQuestion);
  EXPECT_EQ(platform.Events()[0].title, "Quit game");
  EXPECT_EQ(platform.Events()[0].text, "Are you sure you want to Quit?");
}

TEST_F(NewTurnDialogTest, TheFormSetsTheLeaveRequest) {
  platform.QueueAnswer("yes");
  QueueNewTurn({{"exit", ""}});
  RunNewTurnDialog();
  EXPECT_TRUE(UI.ExitAfterTurnForm);
}

// ---- Notices after closing ----------------------------------------------------------

const char* const kSurrenderNotice =
    "The last human player has surrendered. Technicaly you have not attained the Victory Condition yet, but you may "
    "consider this a victory because your last human opponent deemed you the winner.";
const char* const kResignNotice =
    "Just a reminder that a human player has resigned. But at least one other, next to you is left. However this is "
    "an important step towards your victory.";

TEST_F(NewTurnDialogTest, ASurrenderLineGivesTheSurrenderNotice) {
  AddNews(1, 0, 991, "Blue surrendered.", 0, 0, 0);
  RunNewTurnDialog();
  EXPECT_EQ(Messages(), std::vector<std::string>{kSurrenderNotice});
  EXPECT_FALSE(UI.ExitAfterTurnForm);
}

TEST_F(NewTurnDialogTest, AWinnerGetsNoSurrenderNotice) {
  Game.GameWinner = 1;
  AddNews(1, 0, 991, "Blue surrendered.", 0, 0, 0);
  RunNewTurnDialog();
  EXPECT_TRUE(Messages().empty());
}

TEST_F(NewTurnDialogTest, AResignationLineGivesTheReminderEvenToTheWinner) {
  Game.GameWinner = 1;
  AddNews(1, 0, 992, "Blue surrendered.", 0, 0, 0);
  RunNewTurnDialog();
  EXPECT_EQ(Messages(), std::vector<std::string>{kResignNotice});
}

TEST_F(NewTurnDialogTest, OfSeveralNoticeLinesTheLastCounts) {
  AddNews(1, 0, 991, "Blue surrendered.", 0, 0, 0);
  AddNews(1, 0, 992, "Green surrendered.", 0, 0, 0);
  RunNewTurnDialog();
  EXPECT_EQ(Messages(), std::vector<std::string>{kResignNotice});
  platform.Clear();
  News[1][1].Type = 992;
  News[1][2].Type = 991;
  RunNewTurnDialog();
  EXPECT_EQ(Messages(), std::vector<std::string>{kSurrenderNotice});
}

TEST_F(NewTurnDialogTest, NoNoticeWhenThePlayerLeaves) {
  AddNews(1, 0, 991, "Blue surrendered.", 0, 0, 0);
  platform.QueueAnswer("yes");
  QueueNewTurn({{"exit", ""}});
  RunNewTurnDialog();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Are you sure you want to Quit?"});
}

TEST_F(NewTurnDialogTest, UnknownActionsAreRefused) {
  NewTurnDialog d = Open();
  std::string why;
  EXPECT_FALSE(d.Act("dance", "", &why));
  EXPECT_EQ(why,
            "no action \"dance\" in the New Turn dialog (password=TEXT, login, proceed, savepbem=FILE, exit)");
  EXPECT_EQ(d.DialogName(), "newturn");
  EXPECT_EQ(d.DefaultAction(), "proceed");
}

TEST_F(NewTurnDialogTest, ARefusedDefaultProceedIsReportedToTheScript) {
  Game.UsePasswords = 1;
  Regime[1].Password = "sesame";
  RunNewTurnDialog();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Wrong Password"});
  EXPECT_EQ(platform.lastError, "dialog newturn: default proceed: Wrong Password");
}

}  // namespace
}  // namespace mf::test
