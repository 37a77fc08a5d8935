// The script runner, run in-process: what it prints, and every way a script
// fails with its one line on the error stream.
#include "script_fixture.h"
#include "script_runner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "model/game_state.h"
#include "platform/paths.h"
#include "support/core_test.h"

namespace fs = std::filesystem;

namespace mf::cli {
namespace {

class ScriptRunnerTest : public ScriptTest {};

TEST_F(ScriptRunnerTest, CommentsAndBlankLinesDoNothing) {
  EXPECT_EQ(Run("# nothing here\n\n   \n# still nothing\n"), 0);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(err.str(), "");
}

TEST_F(ScriptRunnerTest, EveryRunStartsFromTheOpenedProgram) {
  Game.Turn = 9;
  UI.HideEditor = false;
  EXPECT_EQ(Run("expect Game.Turn 0\n"
                "expect UI.EditMode 1\n"
                "expect UI.HideEditor -1\n"
                "expect EngineVar[533] 3\n"   // "Number of combat rounds" at its default
                "expect EngineVar[616] 20\n"),
            0)
      << err.str();
}

TEST_F(ScriptRunnerTest, SetAndPrint) {
  EXPECT_EQ(Run("new 12 10\n"
                "set Hex[3,4].Owner 2\n"
                "set Unit[1].Name \"Ærø Bataljon\"\n"
                "print Hex[3,4].Owner\n"
                "print Unit[1].Name\n"
                "print Game.MapW\n"),
            0)
      << err.str();
  EXPECT_EQ(out.str(), "Hex[3,4].Owner = 2\nUnit[1].Name = Ærø Bataljon\nGame.MapW = 12\n");
  EXPECT_EQ(Hex[3][4].Owner, 2);
}

TEST_F(ScriptRunnerTest, AFieldNameMayHoldBlanksInsideItsBrackets) {
  EXPECT_EQ(Run("new 12 10\n"
                "set Unit[ 1 ].Readiness 40\n"
                "print Unit[ 1 ].Readiness\n"
                "expect Hex[ 3 , 4 ].Owner 0\n"),
            0)
      << err.str();
  EXPECT_EQ(out.str(), "Unit[ 1 ].Readiness = 40\n");
}

TEST_F(ScriptRunnerTest, SetRefusesWhatIsNotAPlainNumber) {
  EXPECT_EQ(Run("set Game.Turn 1e10\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: \"Game.Turn\": value \"1e10\" is not a number\n");
  EXPECT_EQ(Run("set Game.Turn 3000000000\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: \"Game.Turn\": value 3000000000 does not fit a long field\n");
  EXPECT_EQ(Run("set Dip[1,2].Cost -5\n"), 1);
  EXPECT_EQ(err.str(),
            "t.mfs:1: \"Dip[1,2].Cost\": value -5 is outside what a scenario file holds there (0 or more)\n");
}

TEST_F(ScriptRunnerTest, NewAndClearmapRefuseAMapSizeThatIsNoNumber) {
  EXPECT_EQ(Run("new abc def\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: new: \"abc def\" is not a map size (two whole numbers, width and height)\n");
  EXPECT_EQ(Run("new 12 10\nclearmap 12x 10\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:2: clearmap: \"12x 10\" is not a map size (two whole numbers, width and height)\n");
  EXPECT_EQ(Game.MapW, 12);
  // Sizes outside 10..100 are still the dialog's to bring into range.
  EXPECT_EQ(Run("new 5 500\nexpect Game.MapW 10\nexpect Game.MapH 100\n"), 0) << err.str();
}

TEST_F(ScriptRunnerTest, AnEmptyProgramFolderIsACancelledChoice) {
  const std::string before = ProgramDir();
  const fs::path cwd = fs::current_path();
  fs::current_path(tempDir);
  const int rc = Run("programdir \"\"\nexpect-msg \"nothing\"\n");
  fs::current_path(cwd);
  // The run went on past programdir (and failed only at the expect-msg),
  // and no scenarios folder was made in the current folder.
  EXPECT_EQ(rc, 1);
  EXPECT_EQ(err.str(), "t.mfs:2: expect-msg: no message \"nothing\" was shown\n");
  EXPECT_FALSE(fs::exists(fs::path(tempDir) / "scenarios"));
  EXPECT_EQ(ProgramDir(), before);
}

TEST_F(ScriptRunnerTest, AFailedExpectStopsTheScript) {
  EXPECT_EQ(Run("new 12 10\n"
                "expect Game.MapW 11\n"
                "print Game.MapH\n"),
            1);
  EXPECT_EQ(err.str(), "t.mfs:2: expect Game.MapW: expected \"11\", got \"12\"\n");
  EXPECT_EQ(out.str(), "");
}

TEST_F(ScriptRunnerTest, ExpectOfTextComparesTheWholeText) {
  EXPECT_EQ(Run("set Regime[1].Name \"Red  Army\"\n"
                "expect Regime[1].Name \"Red Army\"\n"),
            1);
  EXPECT_EQ(err.str(), "t.mfs:2: expect Regime[1].Name: expected \"Red Army\", got \"Red  Army\"\n");
}

TEST_F(ScriptRunnerTest, RefusalsOfTheRegistryFailTheScript) {
  EXPECT_EQ(Run("set Unit[0].Name x\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: \"Unit[0].Name\": slot 0 of Unit always stays zero and cannot be written\n");
  EXPECT_EQ(Run("\nprint Nope.Field\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:2: \"Nope.Field\": unknown record \"Nope\"\n");
  EXPECT_EQ(Run("expect Unit[2001].MP 0\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: \"Unit[2001].MP\": index 2001 is outside Unit[0..2000]\n");
}

TEST_F(ScriptRunnerTest, BadLinesFailWithTheirReason) {
  EXPECT_EQ(Run("frobnicate 3\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: unknown command: frobnicate\n");
  EXPECT_EQ(Run("set Game.Turn\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: usage: set FIELD VALUE\n");
  EXPECT_EQ(Run("new 12\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: usage: new W H\n");
  EXPECT_EQ(Run("expect-msg \"Loaded\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: a double quote is not closed\n");
  EXPECT_EQ(Run("seed abc\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: seed: \"abc\" is not a whole number 0..4294967295\n");
  EXPECT_EQ(Run("seed 4294967296\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: seed: \"4294967296\" is not a whole number 0..4294967295\n");
  EXPECT_EQ(Run("seed 4294967295\n"), 0) << err.str();
}

TEST_F(ScriptRunnerTest, LoadingAMissingFileShowsTheRefusal) {
  const std::string path = (fs::path(tempDir) / "nothere.mf1").string();
  EXPECT_EQ(Run("load nothere.mf1\n"
                "expect-msg \"File does not exist\"\n"),
            0)
      << err.str();
  EXPECT_EQ(out.str(), "FILE [Load] open -> " + path + "\nMSG [Marrowfield] File does not exist\n");
}

TEST_F(ScriptRunnerTest, ExpectMsgConsumesTheMessagesItPasses) {
  EXPECT_EQ(Run("load nothere.mf1\n"
                "load \"\"\n"
                "expect-msg \"Load canceled\"\n"
                "expect-msg \"File does not exist\"\n"),
            1);
  EXPECT_EQ(err.str(), "t.mfs:4: expect-msg: no message \"File does not exist\" was shown\n");
  EXPECT_EQ(out.str(),
            "FILE [Load] open -> " + (fs::path(tempDir) / "nothere.mf1").string() +
                "\nMSG [Marrowfield] File does not exist\n"
                "FILE [Load] open -> \nMSG [Marrowfield] Load canceled\n");
}

TEST_F(ScriptRunnerTest, ExpectMsgWithoutAnyMessageFails) {
  EXPECT_EQ(Run("new 12 10\nexpect-msg \"Loaded\"\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:2: expect-msg: no message \"Loaded\" was shown\n");
}

TEST_F(ScriptRunnerTest, SaveAndLoadGoThroughTheMenuFlows) {
  EXPECT_EQ(Run("new 12 10\n"
                "set Hex[3,4].Owner 2\n"
                "set Hex[12,10].UrbanName \"Ærø\"\n"
                "save saved.mf1\n"
                "expect-msg Saved\n"
                "new 20 20\n"
                "expect Hex[3,4].Owner 0\n"
                "load saved.mf1\n"
                "expect-msg Loaded\n"
                "expect Game.MapW 12\n"
                "expect Game.MapH 10\n"
                "expect Hex[3,4].Owner 2\n"
                "expect Hex[12,10].UrbanName Ærø\n"
                "expect UI.HelpText \"You have loaded a game. You can now edit it or select start in the menu.\"\n"),
            0)
      << err.str();
  const std::string path = (fs::path(tempDir) / "saved.mf1").string();
  EXPECT_TRUE(fs::exists(path));
  EXPECT_EQ(out.str(),
            "FILE [Save] save -> " + path + "\nMSG [File I/O] Saved\n" +
            "FILE [Load] open -> " + path + "\nMSG [Marrowfield] Loaded\n");
}

TEST_F(ScriptRunnerTest, TmpPathsLiveInAScratchFolderThatIsRemoved) {
  EXPECT_EQ(Run("new 12 10\nsave $TMP/a.mf1\nexpect-msg Saved\nload $TMP/a.mf1\nexpect-msg Loaded\n"), 0)
      << err.str();
  const std::string printed = out.str();
  const std::string head = "FILE [Save] save -> ";
  ASSERT_EQ(printed.rfind(head, 0), 0u) << printed;
  const std::string path = printed.substr(head.size(), printed.find('\n') - head.size());
  EXPECT_EQ(fs::path(path).filename().string(), "a.mf1");
  EXPECT_NE(fs::path(path).parent_path(), fs::path(tempDir));
  EXPECT_FALSE(fs::exists(path));
  EXPECT_FALSE(fs::exists(fs::path(path).parent_path()));
}

TEST_F(ScriptRunnerTest, ScriptFilesTakePathsFromTheirFolder) {
  fs::create_directories(fs::path(tempDir) / "sub");
  const std::string script = (fs::path(tempDir) / "sub" / "s.mfs").string();
  {
    std::ofstream f(script, std::ios::binary);
    f << "new 12 10\r\nsave here.mf1\r\nexpect Game.MapW 12   # CR LF lines work too\r\n";
  }
  std::ostringstream o, e;
  EXPECT_EQ(RunScriptFile(script, o, e), 0) << e.str();
  EXPECT_TRUE(fs::exists(fs::path(tempDir) / "sub" / "here.mf1"));

  EXPECT_EQ(RunScriptFile((fs::path(tempDir) / "missing.mfs").string(), o, e), 1);
  EXPECT_EQ(e.str(), "cannot read script " + (fs::path(tempDir) / "missing.mfs").string() + ": it does not exist\n");
}

TEST_F(ScriptRunnerTest, AFailureNamesTheScriptFile) {
  const std::string script = (fs::path(tempDir) / "f.mfs").string();
  {
    std::ofstream f(script);
    f << "# a check that does not hold\nexpect Game.Turn 1\n";
  }
  std::ostringstream o, e;
  EXPECT_EQ(RunScriptFile(script, o, e), 1);
  EXPECT_EQ(e.str(), script + ":2: expect Game.Turn: expected \"1\", got \"0\"\n");
}

}  // namespace
}  // namespace mf::cli
