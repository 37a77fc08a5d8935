// The menu flows around scenario files: saving, loading and importing, with
// their messages, and what the game does after a load (counters and
// sprites worked out again, a game in play going on at the turn it was
// saved in).
#include "control/scenario_flow.h"

#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "control/turn_cycle.h"
#include "files/scenario_file.h"
#include "files/scenario_schema.h"
#include "model/arith.h"
#include "model/counter_pic.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "platform/file_io.h"
#include "platform/paths.h"
#include "platform/platform.h"
#include "view/sprite_table.h"

namespace mf {
namespace {

// Where the newer-version message sends a player.
constexpr const char* kDownloadAddress = "https://marrowfield.example.org/download";

void RecomputeCountersAndSprites() {
  for (int u = 1; u <= Game.UnitCount && u <= kUnitCap; ++u) {
    if (Unit[u].Regime > 0) Counter(u);
  }
  LoadSprites();
}

// The two refusals a load and an import share, with their messages.
bool CanOpenForReading(const std::string& path) {
  if (path.empty()) {
    Plat().ShowMessage("Aborted", "");
    return false;
  }
  if (!FileExists(path)) {
    Plat().ShowMessage("File does not exist", "");
    return false;
  }
  return true;
}

// A file that stands but cannot be read is refused before anything of the
// game is touched, with its name and the reason.
void RefuseUnreadable(const std::string& path, const std::string& why) {
  Plat().ShowMessage("Cannot read " + path + ": " + why + ".", "File I/O");
}

}  // namespace

bool ReadFile(const std::string& path) {
  if (!CanOpenForReading(path)) return false;
  std::string bytes, why;
  bool scrambled = false;
  if (!ReadPlainBytes(path, &bytes, &scrambled, &why)) {
    RefuseUnreadable(path, why);
    return false;
  }
  UI.EditMode = 0;
  const long version = ParseScenario(bytes);
  if (version > kFileVersion) {
    // A newer file is left plain on disk, as a refused load has always left
    // it: nothing turns it back.
    if (scrambled) ReplaceFileAtomically(path, bytes);
    Plat().ShowMessage(std::string("Please, you have to get a newer version of Marrowfield on the internet: ") +
                           kDownloadAddress,
                       "");
    Plat().ShowMessage("Aborted.", "");
    return false;
  }
  // Whatever state the file was in, it ends scrambled.
  if (!scrambled) LeaveScrambled(path, std::move(bytes));
  if (EV(704) == 0) Plat().ShowMessage("Loaded", "");
  RepairEngineVarsAfterLoad(version, false);
  RecomputeCountersAndSprites();
  return true;
}

bool LoadGameFile(const std::string& path) {
  // A file that stands but cannot be read (a folder, a device, no
  // permission) is refused before the game in memory is cleared.
  std::string why;
  if (!path.empty() && FileExists(path) && !CanReadFile(path, &why)) {
    RefuseUnreadable(path, why);
    return false;
  }
  ClearForLoad();
  if (!ReadFile(path)) return false;
  if (Game.Turn > 0) {
    UI.EditMode = 0;
    UI.RegimeLabel = ValidRegime(Game.CurRegime) ? Regime[Game.CurRegime].Name : std::string();
    UI.TurnLabel = NumText(Game.Turn);
    UI.HelpText = "Welcome back to your game.";
  } else {
    UI.EditMode = 1;
    UI.HelpText = "You have loaded a game. You can now edit it or select start in the menu.";
  }
  LayOutMapWindow();
  if (Game.PBEM == 1 && Game.Turn > 0) {
    UI.ResumeTurn = true;
    NextTurn();
  }
  UI.SelX = 1;
  UI.SelY = 1;
  return true;
}

bool ImportFile(const std::string& path) {
  if (!CanOpenForReading(path)) return false;
  std::string bytes, why;
  bool scrambled = false;
  if (!ReadPlainBytes(path, &bytes, &scrambled, &why)) {
    RefuseUnreadable(path, why);
    return false;
  }
  UI.EditMode = 1;
  const long version = ParseScenario(bytes, true);
  if (!scrambled) LeaveScrambled(path, std::move(bytes));
  RepairEngineVarsAfterLoad(version, true);
  RecomputeCountersAndSprites();
  return true;
}

bool ImportRulesOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return false;
  // A scrambled file begins with a byte of the top half; a plain one with a digit.
  if (!bytes.empty() && static_cast<unsigned char>(bytes[0]) >= 0x80u)
    for (char& c : bytes) c = static_cast<char>(static_cast<unsigned char>(c) ^ 0x80u);
  const long version = ParseScenario(bytes, true);
  RepairEngineVarsAfterLoad(version, true);
  RecomputeCountersAndSprites();
  return true;
}

std::string ScenarioFilter() {
  if (UI.HideEditor) return "Marrowfield (.mf1) files|*.mf1";
  return "Marrowfield (.mf1) files|*.mf1|Hidden Campaign Files|*.mf2";
}

std::string ImportFilter() { return "Marrowfield (.mf1) files|*.mf1;*.ico"; }

bool SaveToPath(const std::string& path) {
  if (path.empty() || !WriteFile(path)) {
    Plat().ShowMessage("Save canceled", "File I/O");
    return false;
  }
  Plat().ShowMessage("Saved", "File I/O");
  return true;
}

// Saves go to the player's own folder: the install folder may be read-only.
bool SaveCommand() { return SaveToPath(Plat().SaveFileDialog("Save", ScenarioFilter(), UserGameDir())); }

void LoadCommand() {
  const std::string path = Plat().OpenFileDialog("Load", ScenarioFilter(), ScenariosDir());
  if (path.empty()) {
    Plat().ShowMessage("Load canceled", "");
    return;
  }
  if (!LoadGameFile(path)) return;
  // A campaign file opened from the menu by a player (an author with the
  // editor panel showing opens it as an ordinary map).
  if (EV(704) != 0 && Game.Turn == 0 && UI.HideEditor) {
    if (EV(706) == 1) {
      // Later files of a campaign are only for a running campaign to load.
      Plat().ShowMessage("You are not allowed to load this file.", "");
      ClearGame(true, 0, 0);
      return;
    }
    // The first file of a campaign starts at once: the player is regime 1
    // against the computer, without the Start Game dialog.
    for (int r = 1; r <= Game.RegimeCount && r <= kRegimeCap; ++r) Regime[r].AI = 1;
    Regime[1].AI = 0;
    if (EV(705) == 0) Game.FogOfExploration = 0;
    if (EV(705) == 1) Game.FogOfExploration = 1;
    Game.FogOfWar = 1;
    UI.EditMode = 0;
    UI.ShowEditorPanel = false;
    UI.PanelsShown = true;
    UI.MapControlsShown = false;
    UI.BusyPointer = true;
    Plat().SetBusy(true);
    NextTurn();
    return;
  }
  UI.MapControlsShown = true;
  UI.PanelsShown = true;
}

void ImportCommand() {
  const std::string path = Plat().OpenFileDialog("Import", ImportFilter(), ScenariosDir());
  if (path.empty()) {
    Plat().ShowMessage("Import canceled", "");
    return;
  }
  ImportFile(path);
}

void LoadMenuScenario(int n) {
  if (n < 1 || n > 4) return;
  ClearForLoad();
  // The menu names the files without an extension; the files the build
  // makes carry ".mf1". Take the bare name when it exists, else the .mf1.
  const std::string name = "\\scenarios\\scenario" + std::to_string(n);
  std::string path = ResolveGamePath(name);
  if (!FileExists(path)) {
    const std::string withExt = ResolveGamePath(name + ".mf1");
    if (FileExists(withExt)) path = withExt;
  }
  LoadGameFile(path);
}

}  // namespace mf
