// The flows around the file: scrambling, save, load, import, the campaign
// rules and the menu scenarios, with their messages.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "files/scenario_file.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "platform/paths.h"
#include "support/core_test.h"

namespace fs = std::filesystem;

namespace mf::test {
namespace {

// The scripted platform, also noting the filter and folder of file dialogs.
class DialogNotingPlatform : public ScriptedPlatform {
 public:
  std::string OpenFileDialog(const std::string& title, const std::string& filter,
                             const std::string& startDir) override {
    lastFilter = filter;
    lastDir = startDir;
    return ScriptedPlatform::OpenFileDialog(title, filter, startDir);
  }
  std::string SaveFileDialog(const std::string& title, const std::string& filter,
                             const std::string& startDir) override {
    lastFilter = filter;
    lastDir = startDir;
    return ScriptedPlatform::SaveFileDialog(title, filter, startDir);
  }
  std::string lastFilter;
  std::string lastDir;
};

class ScenarioFlow : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPlatform(&dialogs);
  }
  std::vector<std::string> Shown() const { return dialogs.Messages(); }
  std::string LastTitle() const {
    for (auto it = dialogs.Events().rbegin(); it != dialogs.Events().rend(); ++it) {
      if (it->kind == PlatformEvent::kMessage) return it->title;
    }
    return "";
  }
  // A small scenario saved (scrambled) to a file; returns its path.
  std::string SavedScenario(const std::string& name, int turn = 0) {
    world::NewMap(12, 10);
    Game.BookVarCount = 200;
    world::AddRegime("Red");
    world::AddRegime("Blue");
    const int t = world::AddType("Rifles", kLandTheater, 1);
    Type[t].Attr[kFrontsize] = 1;
    world::AddUnit(1, 2, 2, "1st Rifles", t, 10);
    world::AddUnit(2, 8, 8, "2nd Rifles", t, 12);
    Hex[2][2].UrbanName = "Redtown";
    Game.Turn = turn;
    Game.CurRegime = turn > 0 ? 2 : 0;
    const std::string path = TempPath(name);
    EXPECT_TRUE(WriteFile(path));
    return path;
  }

  DialogNotingPlatform dialogs;
};

TEST_F(ScenarioFlow, TransformOfAMissingFile) {
  EXPECT_FALSE(Transform(TempPath("missing.mf1")));
  EXPECT_EQ(Shown(), std::vector<std::string>{"Cancelled, error in encryption. argh."});
  EXPECT_EQ(LastTitle(), "Marrowfield");
}

TEST_F(ScenarioFlow, TransformFlipsTheTopBitOfEveryByteAndIsItsOwnInverse) {
  const std::string path = TempPath("bytes.bin");
  const std::string original("\x00\x41\x7F\x80\xC1\xFF\r\n", 8);
  WriteBytes(path, original);
  ASSERT_TRUE(Transform(path));
  EXPECT_EQ(ReadBytes(path), std::string("\x80\xC1\xFF\x00\x41\x7F\x8D\x8A", 8));
  ASSERT_TRUE(Transform(path));
  EXPECT_EQ(ReadBytes(path), original);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(ScenarioFlow, SaveCommandSavesScrambledWithItsMessages) {
  world::NewMap(10, 10);
  UI.HideEditor = true;
  const std::string path = TempPath("saved.mf1");
  dialogs.QueueFile(path);
  SaveCommand();
  EXPECT_EQ(Shown(), std::vector<std::string>{"Saved"});
  EXPECT_EQ(LastTitle(), "File I/O");
  EXPECT_EQ(dialogs.lastFilter, "Marrowfield (.mf1) files|*.mf1");
  // Saves start in the player's own folder, never in the install folder.
  EXPECT_EQ(dialogs.lastDir, UserGameDir());
  EXPECT_EQ(Flipped(ReadBytes(path)), SerializeScenario());
  EXPECT_FALSE(fs::exists(path + ".tmp"));

  // With the editor panel showing, the hidden campaign files are offered too.
  UI.HideEditor = false;
  dialogs.QueueFile(TempPath("campaign.mf2"));
  SaveCommand();
  EXPECT_EQ(dialogs.lastFilter, "Marrowfield (.mf1) files|*.mf1|Hidden Campaign Files|*.mf2");
  EXPECT_TRUE(fs::exists(TempPath("campaign.mf2")));
}

TEST_F(ScenarioFlow, SaveCommandCancelledOrFailing) {
  world::NewMap(10, 10);
  SaveCommand();  // nothing queued: the dialog is cancelled
  EXPECT_EQ(Shown(), std::vector<std::string>{"Save canceled"});
  EXPECT_EQ(LastTitle(), "File I/O");
  dialogs.QueueFile(TempPath("no/such/folder/x.mf1"));
  SaveCommand();
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Save canceled", "Save canceled"}));
  EXPECT_EQ(LastTitle(), "File I/O");
}

TEST_F(ScenarioFlow, ASaveLeavesAFileOfThePlayersNamedLikeATemporaryFileAlone) {
  const std::string path = SavedScenario("keep.mf1");
  const std::string old = ReadBytes(path);
  Regime[1].Name = "Changed";
  // Something else holds the name a careless save would take for itself.
  WriteBytes(path + ".tmp", "the player's own notes");
  fs::create_directories(path + ".tmp-1/inner");
  EXPECT_TRUE(WriteFile(path));
  EXPECT_NE(ReadBytes(path), old);
  EXPECT_EQ(ReadBytes(path + ".tmp"), "the player's own notes");
  EXPECT_TRUE(fs::is_directory(path + ".tmp-1/inner"));
}

// Names in a folder that a save's temporary files have (".NAME.tmp-...").
int TemporaryFilesIn(const std::string& dir) {
  int n = 0;
  for (const auto& e : fs::directory_iterator(dir))
    if (e.path().filename().string().find(".tmp-") != std::string::npos) ++n;
  return n;
}

TEST_F(ScenarioFlow, InterruptedSaveLeavesTheOldFileIntact) {
  // The rename cannot replace the target: a folder with files stands there.
  SavedScenario("keep.mf1");
  const std::string folder = TempPath("folder.mf1");
  fs::create_directories(folder + "/inside");
  WriteBytes(folder + "/inside/old.txt", "old");
  EXPECT_FALSE(WriteFile(folder));
  dialogs.QueueFile(folder);
  SaveCommand();
  EXPECT_EQ(Shown().back(), "Save canceled");
  EXPECT_EQ(ReadBytes(folder + "/inside/old.txt"), "old");
  EXPECT_EQ(TemporaryFilesIn(tempDir), 0);  // the temporary file is cleaned up
}

// The save runs as a player without write permission on the folder: as
// itself when it is not root, else in a child process that has become the
// user nobody (root writes anywhere, so it proves nothing itself).
TEST_F(ScenarioFlow, SaveIntoAFolderWithoutWritePermission) {
  const std::string path = SavedScenario("keep.mf1");
  const std::string old = ReadBytes(path);
  Regime[1].Name = "Changed";
  const std::string locked = TempPath("locked");
  fs::create_directories(locked);
  const std::string lockedFile = locked + "/game.mf1";
  WriteBytes(lockedFile, old);
  fs::permissions(tempDir, fs::perms::owner_all | fs::perms::others_exec | fs::perms::group_exec);
  int saved = -1;
  if (geteuid() != 0) {
    fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
    saved = WriteFile(lockedFile) ? 1 : 0;
  } else {
    constexpr uid_t kNobody = 65534;
    ASSERT_EQ(chown(lockedFile.c_str(), kNobody, kNobody), 0);
    ASSERT_EQ(chown(locked.c_str(), kNobody, kNobody), 0);
    fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      const bool dropped = setgid(kNobody) == 0 && setuid(kNobody) == 0;
      _exit(!dropped ? 3 : WriteFile(lockedFile) ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    saved = WEXITSTATUS(status);
  }
  EXPECT_EQ(saved, 0) << "1: the save went through; 3: the child could not become nobody";
  EXPECT_EQ(ReadBytes(lockedFile), old);
  EXPECT_EQ(TemporaryFilesIn(locked), 0);
  fs::permissions(locked, fs::perms::owner_all);
}

// A scrambled file is read in memory: neither its bytes nor its time change,
// and a plain one is scrambled after reading.
TEST_F(ScenarioFlow, AScrambledFileIsLeftUntouchedAndAPlainOneEndsScrambled) {
  const std::string path = SavedScenario("game.mf1");
  const std::string scrambled = ReadBytes(path);
  const auto past = fs::last_write_time(path) - std::chrono::hours(24 * 400);
  fs::last_write_time(path, past);
  ClearForLoad();
  ASSERT_TRUE(ReadFile(path));
  EXPECT_EQ(Unit[2].Name, "2nd Rifles");
  EXPECT_EQ(ReadBytes(path), scrambled);
  EXPECT_EQ(fs::last_write_time(path), past);
  ASSERT_TRUE(ImportFile(path));
  EXPECT_EQ(ReadBytes(path), scrambled);
  EXPECT_EQ(fs::last_write_time(path), past);

  const std::string plainPath = TempPath("plain.mf1");
  WriteBytes(plainPath, Flipped(scrambled));
  fs::permissions(plainPath, fs::perms::owner_read | fs::perms::owner_write);
  ClearForLoad();
  ASSERT_TRUE(ReadFile(plainPath));
  EXPECT_EQ(Unit[2].Name, "2nd Rifles");
  EXPECT_EQ(ReadBytes(plainPath), scrambled);
  EXPECT_EQ(fs::status(plainPath).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// A path that stands but is no readable file is refused before the load
// clears anything, and so is its import.
TEST_F(ScenarioFlow, AFolderOrADeviceIsRefusedAndTheGameKept) {
  SavedScenario("game.mf1");
  const std::string folder = TempPath("folder.mf1");
  fs::create_directories(folder);
  dialogs.Clear();
  EXPECT_FALSE(LoadGameFile(folder));
  EXPECT_FALSE(LoadGameFile("/dev/null"));
  EXPECT_FALSE(ImportFile(folder));
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Cannot read " + folder + ": it is a folder.",
                                              "Cannot read /dev/null: it is not a regular file.",
                                              "Cannot read " + folder + ": it is a folder."}));
  EXPECT_EQ(Game.MapW, 12);
  EXPECT_EQ(Unit[2].Name, "2nd Rifles");
  EXPECT_EQ(Type[1].Name, "Rifles");
}

// A damaged file with a negative price, a frontsize limit far beyond what a
// file holds (read as a million, then doubled as an older file's) and
// political points at the very bottom, loaded and
// played for two turns: nothing wraps round (the sanitizer build of the
// suite would report it), and the values stay where the rules keep them.
TEST_F(ScenarioFlow, ADamagedFileWithExtremeValuesPlaysTwoTurns) {
  SavedScenario("x.mf1");
  // A town of each side that makes political points for its SHQ every turn.
  for (const auto& [r, x, y] : {std::tuple{1, 2, 2}, std::tuple{2, 8, 8}}) {
    Hex[x][y].Land = kUrban;
    Hex[x][y].Pop = 20000;
    Hex[x][y].Owner = r;
    Hex[x][y].ProdSHQ = world::AddShq(r, x, y, 1, "SHQ");
  }
  auto lines = SplitLines(SerializeScenario());
  auto set = [&lines](const std::string& name, const std::string& value) {
    const auto at = LinesOf(name);
    ASSERT_FALSE(at.empty()) << name;
    lines[at[0]] = value;
  };
  lines[0] = " 110 ";  // an older file: engine variable 538 is doubled on load
  set("Dip[1,2].Cost", "-5 ");
  set("Dip[2,1].Cost", "-5 ");
  set("EngineVar[538]", " 2147483647 ");
  set("Regime[1].PP", "-2147483648 ");
  set("Regime[2].PP", " 2147483647 ");
  const std::string path = TempPath("damaged.mf1");
  WriteBytes(path, Flipped(JoinLines(lines)));
  ASSERT_TRUE(LoadGameFile(path));
  EXPECT_EQ(Dip[1][2].Cost, 999);
  EXPECT_EQ(EngineVar[538].Value, 2000000);
  EXPECT_EQ(Regime[1].PP, -2147483647 - 1);
  for (int r = 1; r <= Game.RegimeCount; ++r) Regime[r].AI = 0;
  UI.EditMode = 0;
  UI.HideEditor = true;
  NextTurn();
  ASSERT_EQ(Game.Turn, 1);
  for (int k = 0; k < 2 * Game.RegimeCount; ++k) EndCurrentTurn();
  EXPECT_EQ(Game.Turn, 3);
  EXPECT_GT(Regime[1].PP, -2147483647 - 1);  // its town's points were added
  EXPECT_EQ(Regime[2].PP, 2147483647);       // its town's points stop at the end
  EXPECT_EQ(Dip[1][2].Cost, 999);
}

TEST_F(ScenarioFlow, ReadFileOfNoPathOrAMissingFile) {
  EXPECT_FALSE(ReadFile(""));
  EXPECT_FALSE(ReadFile(TempPath("nothing.mf1")));
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Aborted", "File does not exist"}));
}

TEST_F(ScenarioFlow, PlainFileIsReadAndLeavesTheDiskScrambled) {
  SavedScenario("x.mf1");
  const std::string plain = SerializeScenario();
  const std::string path = TempPath("plain.mf1");
  WriteBytes(path, plain);
  ClearForLoad();
  dialogs.Clear();
  UI.EditMode = 1;
  ASSERT_TRUE(ReadFile(path));
  EXPECT_EQ(Shown(), std::vector<std::string>{"Loaded"});
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_EQ(Unit[1].Name, "1st Rifles");
  EXPECT_EQ(ReadBytes(path), Flipped(plain));
}

TEST_F(ScenarioFlow, ScrambledFileFirstReadsAsZero) {
  SavedScenario("x.mf1");
  const std::string scrambled = Flipped(SerializeScenario());
  ClearForLoad();
  EXPECT_EQ(ParseScenario(scrambled), 0);
  EXPECT_EQ(Game.FileVersion, 0);
  EXPECT_EQ(Game.MapW, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
}

TEST_F(ScenarioFlow, PlainFileStartingWithZeroIsMistakenForAScrambledOne) {
  SavedScenario("x.mf1");
  auto lines = SplitLines(SerializeScenario());
  lines[0] = " 0 ";
  const std::string plain = JoinLines(lines);
  const std::string path = TempPath("zero.mf1");
  WriteBytes(path, plain);
  ClearForLoad();
  dialogs.Clear();
  // It is transformed, read as scrambled bytes (which form no fields), and
  // transformed back: the load goes through with nothing read.
  EXPECT_TRUE(ReadFile(path));
  EXPECT_EQ(Shown(), std::vector<std::string>{"Loaded"});
  EXPECT_EQ(Game.FileVersion, 0);
  EXPECT_EQ(Game.MapW, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(Regime[1].Name, "");
  EXPECT_EQ(EngineVar[544].Value, 50);  // the repairs still apply to the zeros read
  EXPECT_EQ(ReadBytes(path), plain);
}

TEST_F(ScenarioFlow, NewerVersionIsRefusedAndTheFileLeftPlain) {
  SavedScenario("x.mf1");
  auto lines = SplitLines(SerializeScenario());
  lines[0] = " 112 ";
  lines[1] = " 1 ";
  const std::string plain = JoinLines(lines);
  const std::vector<std::string> refusal = {
      "Please, you have to get a newer version of Marrowfield on the internet: "
      "https://marrowfield.example.org/download",
      "Aborted."};

  const std::string plainPath = TempPath("newer.mf1");
  WriteBytes(plainPath, plain);
  ClearForLoad();
  dialogs.Clear();
  EXPECT_FALSE(ReadFile(plainPath));
  EXPECT_EQ(Shown(), refusal);
  EXPECT_EQ(ReadBytes(plainPath), plain);
  EXPECT_EQ(Game.FileVersion, 112);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.RegimeCount, 0);  // nothing after the head's first fields

  // A scrambled newer file is unscrambled for reading and stays so.
  const std::string scrambledPath = TempPath("newer2.mf1");
  WriteBytes(scrambledPath, Flipped(plain));
  dialogs.Clear();
  EXPECT_FALSE(ReadFile(scrambledPath));
  EXPECT_EQ(Shown(), refusal);
  EXPECT_EQ(ReadBytes(scrambledPath), plain);
}

TEST_F(ScenarioFlow, CampaignFileLoadsSilentlyAndRepairsApply) {
  SavedScenario("x.mf1");
  EngineVar[704].Value = 1;
  EngineVar[544].Value = 0;
  EngineVar[123].Value = 0;
  EngineVar[235].Value = 0;
  EngineVar[538].Value = 50;
  const std::string path = TempPath("campaign.mf2");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  dialogs.Clear();
  ASSERT_TRUE(ReadFile(path));
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(EngineVar[544].Value, 50);
  EXPECT_EQ(EngineVar[123].Value, 30);   // not its start default of 40
  EXPECT_EQ(EngineVar[235].Value, 4000);
  EXPECT_EQ(EngineVar[538].Value, 50);   // a version-111 file is not doubled
}

TEST_F(ScenarioFlow, DoGoLoadOfAMapToEdit) {
  const std::string path = SavedScenario("edit.mf1");
  // Left-overs of an earlier game that the file does not hold are cleared.
  Game.UnitCount = 60;
  Unit[50].Regime = 1;
  Unit[50].Name = "Ghost";
  UI.SelX = 7;
  UI.SelY = 8;
  dialogs.Clear();
  ASSERT_TRUE(LoadGameFile(path));
  EXPECT_EQ(Shown(), std::vector<std::string>{"Loaded"});
  EXPECT_EQ(Game.UnitCount, 2);
  EXPECT_EQ(Unit[50].Regime, 0);
  EXPECT_EQ(Unit[50].Name, "");
  EXPECT_EQ(Game.MapW, 12);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.HelpText, "You have loaded a game. You can now edit it or select start in the menu.");
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(UI.SelY, 1);
  EXPECT_FALSE(UI.ResumeTurn);
  EXPECT_EQ(UI.PictureW, 12 * 42 + 70);  // the layout sized the map picture for the file
}

TEST_F(ScenarioFlow, DoGoLoadOfASavedGame) {
  const std::string path = SavedScenario("game.mf1", 3);
  ClearForLoad();
  ASSERT_TRUE(LoadGameFile(path));
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_EQ(UI.HelpText, "Welcome back to your game.");
  EXPECT_EQ(UI.RegimeLabel, "Blue");
  EXPECT_EQ(UI.TurnLabel, "3");
  EXPECT_FALSE(UI.ResumeTurn);  // not a PBEM game: no driver
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Game.Turn, 3);
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(UI.SelY, 1);
}

TEST_F(ScenarioFlow, DoGoLoadOfAPbemGameResumesTheSavedRegime) {
  SavedScenario("x.mf1", 3);
  Game.PBEM = 1;
  Regime[1].Email = "red@example.org";
  Regime[2].Email = "blue@example.org";
  const std::string path = TempPath("pbem.mf1");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  ASSERT_TRUE(LoadGameFile(path));
  // The driver resumes the regime of the file instead of advancing.
  EXPECT_EQ(Game.Turn, 3);
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Game.PBEM, 1);
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(UI.SelY, 1);
}

TEST_F(ScenarioFlow, DoGoLoadStopsWhenTheReadFails) {
  world::NewMap(30, 30);
  EXPECT_FALSE(LoadGameFile(TempPath("gone.mf1")));
  EXPECT_EQ(Shown(), std::vector<std::string>{"File does not exist"});
  EXPECT_EQ(Game.MapW, 10);  // the clear before the read has happened
}

TEST_F(ScenarioFlow, LoadCommandCancelled) {
  UI.HideEditor = true;
  LoadCommand();
  EXPECT_EQ(Shown(), std::vector<std::string>{"Load canceled"});
  EXPECT_EQ(dialogs.lastFilter, "Marrowfield (.mf1) files|*.mf1");
  EXPECT_EQ(dialogs.lastDir, ScenariosDir());
}

TEST_F(ScenarioFlow, CampaignFileThatOnlyACampaignMayLoadIsRefused) {
  SavedScenario("x.mf1");
  EngineVar[704].Value = 1;
  EngineVar[706].Value = 1;
  const std::string path = TempPath("chapter2.mf2");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  dialogs.Clear();
  UI.HideEditor = true;
  dialogs.QueueFile(path);
  LoadCommand();
  EXPECT_EQ(Shown(), std::vector<std::string>{"You are not allowed to load this file."});
  // The map is cleared with the rules.
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(Unit[1].Regime, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(Regime[1].Name, "");
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  EXPECT_EQ(EngineVar[704].Value, 0);
  EXPECT_EQ(EngineVar[706].Value, 0);
  EXPECT_EQ(Game.TypeCount, 0);
}

TEST_F(ScenarioFlow, CampaignFileWithTheEditorPanelShowingLoadsAsAMap) {
  SavedScenario("x.mf1");
  EngineVar[704].Value = 1;
  EngineVar[706].Value = 1;
  const std::string path = TempPath("chapter2.mf2");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  dialogs.Clear();
  UI.HideEditor = false;
  dialogs.QueueFile(path);
  LoadCommand();
  EXPECT_TRUE(Shown().empty());  // a campaign file loads silently and is not refused
  EXPECT_EQ(Game.UnitCount, 2);
  EXPECT_EQ(Regime[1].Name, "Red");
  EXPECT_EQ(Regime[2].AI, 0);
  EXPECT_EQ(Game.MapW, 12);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(Game.FogOfWar, 0);
}

TEST_F(ScenarioFlow, FirstCampaignFileStartsTheCampaignAtOnce) {
  SavedScenario("x.mf1");
  world::AddRegime("Green");
  EngineVar[704].Value = 1;
  EngineVar[705].Value = 1;
  EngineVar[706].Value = 0;
  const std::string path = TempPath("chapter1.mf2");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  UI.HideEditor = true;
  dialogs.QueueFile(path);
  LoadCommand();
  EXPECT_EQ(Regime[1].AI, 0);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Regime[3].AI, 1);
  EXPECT_EQ(Regime[4].AI, 0);  // no regime 4 in this game
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_FALSE(UI.ShowEditorPanel);
}

TEST_F(ScenarioFlow, CampaignWithoutFogOfExploration) {
  SavedScenario("x.mf1");
  Game.FogOfExploration = 1;
  EngineVar[704].Value = 1;
  EngineVar[705].Value = 0;
  const std::string path = TempPath("chapter1.mf2");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  UI.HideEditor = true;
  dialogs.QueueFile(path);
  LoadCommand();
  EXPECT_EQ(Game.FogOfExploration, 0);
  EXPECT_EQ(Game.FogOfWar, 1);
}

TEST_F(ScenarioFlow, ImportIntoARunningGameKeepsUnitsAndMap) {
  // The rule set to import: other types, peoples, research, folders, rules.
  world::NewMap(10, 10);
  Game.BookVarCount = 200;
  world::AddRegime("Other");
  Game.DirMap = "\\desert\\map";
  Game.DirOfficer = "\\desert\\officer";
  Game.GraphicsDirty = 1;
  Game.Turn = 9;
  Game.PeopleCount = 1;
  People[1].Name = "Nomads";
  People[1].FirstName[1] = "Ali";
  const int camel = world::AddType("Camel Corps", kLandTheater, 2);
  Type[camel].Attr[kMovementCap] = 9;
  Type[camel].Living[1] = 1;
  const int old = world::AddType("Old Rifles", kLandTheater, 1);  // frontsize 0: repaired
  Research[5].Name = "Water";
  Research[5].Text = "Wells.\r\nOases.";
  EngineVar[533].Value = 7;
  EngineVar[235].Value = 0;
  const std::string path = TempPath("rules.mf1");
  ASSERT_TRUE(WriteFile(path));
  const std::string scrambled = ReadBytes(path);

  // The running game.
  ClearForLoad();
  world::NewMap(15, 12);
  world::AddRegime("Red");
  world::AddRegime("Blue");
  for (int t = 1; t <= 3; ++t) world::AddType("Mine " + std::to_string(t), kLandTheater, 1);
  const int u = world::AddUnit(1, 4, 4, "Guards", 3, 10);
  Hex[4][4].UrbanName = "Capital";
  Hex[4][4].Pop = 4000;
  Game.Turn = 5;
  Game.CurRegime = 1;
  Regime[1].PP = 33;
  EngineVar[704].Value = 0;
  dialogs.Clear();

  ASSERT_TRUE(ImportFile(path));
  EXPECT_TRUE(Shown().empty());
  // Kept from the running game.
  EXPECT_EQ(Game.Turn, 5);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Game.MapW, 15);
  EXPECT_EQ(Game.MapH, 12);
  EXPECT_EQ(Game.RegimeCount, 2);
  EXPECT_EQ(Regime[1].Name, "Red");
  EXPECT_EQ(Regime[1].PP, 33);
  EXPECT_EQ(Game.UnitCount, 1);
  EXPECT_EQ(Unit[u].Name, "Guards");
  EXPECT_EQ(Unit[u].InfType, 3);  // type 3 is gone under it, and that is allowed
  EXPECT_EQ(Hex[4][4].Unit[1], u);
  EXPECT_EQ(Hex[4][4].UrbanName, "Capital");
  EXPECT_EQ(Hex[4][4].Pop, 4000);
  // Taken from the file.
  EXPECT_EQ(Game.DirMap, "\\desert\\map");
  EXPECT_EQ(Game.DirOfficer, "\\desert\\officer");
  EXPECT_EQ(Game.GraphicsDirty, 0);  // taken, and cleared once the sprites came from those folders
  EXPECT_EQ(Game.PeopleCount, 1);
  EXPECT_EQ(People[1].Name, "Nomads");
  EXPECT_EQ(People[1].FirstName[1], "Ali");
  EXPECT_EQ(Game.TypeCount, 2);
  EXPECT_EQ(Type[1].Name, "Camel Corps");
  EXPECT_EQ(Type[1].Attr[kMovementCap], 9);
  EXPECT_EQ(Type[1].Living[1], 1);
  EXPECT_EQ(Type[old].Attr[kFrontsize], 1);
  EXPECT_EQ(Type[3].Name, "Mine 3");  // beyond the new count, left as it was
  EXPECT_EQ(Research[5].Name, "Water");
  EXPECT_EQ(Research[5].Text, "Wells.\r\nOases.");
  EXPECT_EQ(EngineVar[533].Value, 7);
  EXPECT_EQ(EngineVar[235].Value, 2000);  // an import repairs this row to 2000
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(ReadBytes(path), scrambled);  // unscrambled to read, scrambled again
}

TEST_F(ScenarioFlow, ImportLeavesTheFileScrambled) {
  world::NewMap(10, 10);
  const std::string plain = SerializeScenario();
  const std::string path = TempPath("plainrules.mf1");
  WriteBytes(path, plain);
  ASSERT_TRUE(ImportFile(path));
  EXPECT_EQ(ReadBytes(path), Flipped(plain));
  ASSERT_TRUE(ImportFile(path));
  EXPECT_EQ(ReadBytes(path), Flipped(plain));
}

TEST_F(ScenarioFlow, ImportCommandAndItsFailures) {
  ImportCommand();
  EXPECT_EQ(Shown(), std::vector<std::string>{"Import canceled"});
  EXPECT_EQ(dialogs.lastFilter, "Marrowfield (.mf1) files|*.mf1;*.ico");
  EXPECT_FALSE(ImportFile(""));
  EXPECT_FALSE(ImportFile(TempPath("none.mf1")));
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Import canceled", "Aborted", "File does not exist"}));
}

TEST_F(ScenarioFlow, MenuScenariosLoadFromTheScenariosFolder) {
  fs::create_directories(ScenariosDir());
  world::NewMap(10, 10);
  world::AddRegime("Menu Two");
  ASSERT_TRUE(WriteFile(ScenariosDir() + "/scenario2.mf1"));
  ClearForLoad();
  world::NewMap(10, 10);
  world::AddRegime("Bare Three");
  ASSERT_TRUE(WriteFile(ScenariosDir() + "/scenario3"));
  ClearForLoad();
  world::NewMap(10, 10);
  world::AddRegime("Three With Extension");
  ASSERT_TRUE(WriteFile(ScenariosDir() + "/scenario3.mf1"));

  ClearForLoad();
  dialogs.Clear();
  LoadMenuScenario(2);
  EXPECT_EQ(Regime[1].Name, "Menu Two");
  EXPECT_EQ(Shown(), std::vector<std::string>{"Loaded"});
  LoadMenuScenario(3);  // the bare name comes first when both exist
  EXPECT_EQ(Regime[1].Name, "Bare Three");
  dialogs.Clear();
  LoadMenuScenario(4);
  EXPECT_EQ(Shown(), std::vector<std::string>{"File does not exist"});
  EXPECT_EQ(Game.RegimeCount, 0);  // cleared entirely before the attempt
}

}  // namespace
}  // namespace mf::test
