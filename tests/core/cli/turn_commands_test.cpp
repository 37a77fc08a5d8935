// The script commands of the turn cycle: start, endturn, surrender, tick and
// the New Turn dialog's actions, run in-process.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "model/game_state.h"
#include "script_fixture.h"
#include "script_runner.h"
#include "support/core_test.h"

namespace mf::cli {
namespace {

class TurnCommandsTest : public ScriptTest {};

const char* const kTwoRegimes =
    "new 10 10\n"
    "set Game.RegimeCount 2\n"
    "set Regime[1].Name Red\n"
    "set Regime[2].Name Blue\n"
    "set Game.GameEndPop 1000\n";

TEST_F(TurnCommandsTest, StartSetsTheBoxesAndPressesStart) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) +
                "start fog=0 aibonus=1 ai=0,1\n"
                "expect Game.Turn 1\n"
                "expect Game.CurRegime 1\n"
                "expect Game.FogOfWar 0\n"
                "expect Game.AIProdBonus 1\n"
                "expect Regime[2].AI 1\n"
                "expect UI.EditMode 0\n"),
            0)
      << err.str();
  EXPECT_EQ(out.str(),
            "DIALOG [startgame] fog=0\n"
            "DIALOG [startgame] aibonus=1\n"
            "DIALOG [startgame] ai=0,1\n"
            "DIALOG [startgame] start\n"
            "DIALOG [newturn] proceed (default)\n");
}

TEST_F(TurnCommandsTest, ABareStartTakesTheActionsQueuedForTheDialog) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) +
                "on startgame exploration=1\n"
                "start\n"
                "expect Game.FogOfWar 1\n"
                "expect Game.FogOfExploration 1\n"
                "expect Game.Turn 1\n"),
            0)
      << err.str();
  EXPECT_EQ(out.str(),
            "DIALOG [startgame] exploration=1\n"
            "DIALOG [startgame] start (default)\n"
            "DIALOG [newturn] proceed (default)\n");
}

TEST_F(TurnCommandsTest, ARefusedStartPrintsItsMessageAndFails) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) + "start pbem=1 ai=0,1 email=red@example.org\n"), 1);
  EXPECT_EQ(out.str(),
            "DIALOG [startgame] pbem=1\n"
            "DIALOG [startgame] ai=0,1\n"
            "DIALOG [startgame] email=red@example.org\n"
            "DIALOG [startgame] start\n"
            "MSG [Marrowfield] No PBEM possible with only 1 human player.\n"
            "DIALOG [startgame] cancel (default)\n");
  EXPECT_EQ(err.str(), "t.mfs:6: dialog startgame: start: No PBEM possible with only 1 human player.\n");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.EditMode, 1);
}

TEST_F(TurnCommandsTest, ARefusedSettingCancelsTheDialogBeforeAnythingStarts) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) + "start fog=2 ai=0,1\n"), 1);
  EXPECT_EQ(out.str(), "DIALOG [startgame] fog=2\n");
  EXPECT_EQ(err.str(), "t.mfs:6: dialog startgame: fog: a box takes 0 or 1, not \"2\"\n");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(Regime[2].AI, 0);  // the settings after the refused one were never made

  EXPECT_EQ(Run(std::string(kTwoRegimes) + "start ai=abc fog=1\n"), 1);
  EXPECT_EQ(out.str(), "DIALOG [startgame] ai=abc\n");
  EXPECT_EQ(err.str(), "t.mfs:6: dialog startgame: ai: a box takes 0 or 1, not \"abc\"\n");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.FogOfWar, 0);
}

TEST_F(TurnCommandsTest, StartRefusesUnknownSettings) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) + "start fogg=1\n"), 1);
  EXPECT_EQ(err.str(),
            "t.mfs:6: start: \"fogg=1\" is not one of fog=, exploration=, pbem=, passwords=, aibonus=, ai=, email=\n");
  EXPECT_EQ(Run(std::string(kTwoRegimes) + "start fog\n"), 1);
  EXPECT_EQ(Run(std::string(kTwoRegimes) + "start ai=0,0,0\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:6: dialog startgame: ai: there is no row for regime 3\n");
}

TEST_F(TurnCommandsTest, EndTurnIsTheCommandAnsweredYesAheadOfOtherAnswers) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) +
                "start fog=0\n"
                "answer no\n"           // for the Exit question of Blue's dialog
                "on newturn exit proceed\n"
                "endturn\n"
                "expect Game.CurRegime 2\n"
                "expect Game.Turn 1\n"),
            0)
      << err.str();
  const std::string printed = out.str();
  EXPECT_NE(printed.find("ASK [End Turn] Are you sure you want to end your turn? -> yes\n"
                         "DIALOG [newturn] exit\n"
                         "ASK [Quit game] Are you sure you want to Quit? -> no\n"
                         "DIALOG [newturn] proceed\n"),
            std::string::npos)
      << printed;
}

TEST_F(TurnCommandsTest, EndTurnInEditingModeOnlyShowsTheRefusal) {
  EXPECT_EQ(Run("endturn\n"
                "expect-msg \"You are in editing mode\"\n"
                "answer no\n"
                "on newturn exit\n"
                "expect Game.Turn 0\n"),
            0)
      << err.str();
  EXPECT_EQ(out.str(), "MSG [Marrowfield] You are in editing mode\n");
}

TEST_F(TurnCommandsTest, TickRunsTheTimer) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) +
                "start ai=1,1\n"
                "expect Game.CurRegime 1\n"
                "tick\n"
                "expect Game.CurRegime 2\n"
                "tick 3\n"
                "expect Game.Turn 3\n"
                "expect Game.CurRegime 1\n"
                "tick 0\n"
                "expect Game.CurRegime 1\n"),
            0)
      << err.str();
  EXPECT_EQ(Run("tick many\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: tick: \"many\" is not a whole number 0..999999\n");
}

TEST_F(TurnCommandsTest, SurrenderOfTheLastHumanEndsTheGame) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) +
                "start ai=0,1\n"
                "surrender\n"
                "expect-msg \"You lost the game. Mercy on your soul and the people you abandoned.\"\n"
                "expect Game.Turn 0\n"
                "expect UI.EditMode 1\n"),
            0)
      << err.str();
}

TEST_F(TurnCommandsTest, AWrongPasswordFailsTheScript) {
  EXPECT_EQ(Run(std::string(kTwoRegimes) +
                "set Regime[1].Password secret\n"
                "on newturn password=guess proceed\n"
                "start passwords=1\n"),
            1);
  EXPECT_NE(out.str().find("MSG [Marrowfield] Wrong Password\n"), std::string::npos) << out.str();
  // The queued proceed is refused, and so is the default proceed after it.
  EXPECT_EQ(err.str(), "t.mfs:8: dialog newturn: default proceed: Wrong Password\n");
}

}  // namespace
}  // namespace mf::cli
