#include "script_runner.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <ostream>
#include <random>
#include <sstream>
#include <vector>

#include "ai/ai_turn.h"
#include "ai/stage_names.h"
#include "combat/battle_window.h"
#include "control/editor_menu.h"
#include "control/keyboard.h"
#include "control/order_state.h"
#include "control/scenario_flow.h"
#include "control/selection.h"
#include "control/turn_cycle.h"
#include "editor/map_paint.h"
#include "engine/show_supply.h"
#include "files/field_registry.h"
#include "model/arith.h"
#include "model/game_state.h"
#include "model/invariants.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "orders/command.h"
#include "platform/file_io.h"
#include "platform/paths.h"
#include "platform/scripted_platform.h"
#include "control/random_flow.h"
#include "random/random_dialog.h"
#include "script_tokenizer.h"
#include "session.h"

namespace fs = std::filesystem;

namespace mf::cli {
namespace {

using Words = std::vector<std::string>;

// One run of a script: its platform, where it reads and writes files, and
// how far expect-msg has consumed the printed messages.
struct Run {
  std::string name;
  std::string baseDir;
  std::ostream& out;
  ScriptedPlatform platform;
  std::size_t msgCursor = 0;
  std::size_t reportCursor = 0;
  std::string tempDir;  // made on the first use of $TMP, removed at the end

  Run(std::string n, std::string dir, std::ostream& o) : name(std::move(n)), baseDir(std::move(dir)), out(o) {}
  ~Run() {
    if (!tempDir.empty()) {
      std::error_code ec;
      fs::remove_all(tempDir, ec);
    }
  }

  // A path of the script: "" stays "" (a cancelled file dialog), "$TMP/x" is
  // x in this run's own scratch folder, a relative path is taken from the
  // script's folder.
  std::string Path(const std::string& p) {
    if (p.empty()) return p;
    if (p == "$TMP" || p.rfind("$TMP/", 0) == 0) {
      if (tempDir.empty()) {
        std::random_device rd;
        tempDir = (fs::temp_directory_path() / ("mfscript_" + std::to_string(rd()) + std::to_string(rd()))).string();
        std::error_code ec;
        fs::create_directories(tempDir, ec);
      }
      return (fs::path(tempDir) / p.substr(p.size() > 4 ? 5 : 4)).lexically_normal().string();
    }
    const fs::path path(p);
    if (path.is_absolute()) return p;
    return (fs::path(baseDir) / path).lexically_normal().string();
  }
};

using Handler = bool (*)(Run&, const Words& args, std::string* why);

struct Command {
  const char* name;
  int minArgs;
  int maxArgs;  // -1: any number
  const char* usage;
  Handler run;
};

bool IsWholeNumber(const std::string& s) {
  if (s.empty() || s.size() > 10) return false;
  for (char c : s)
    if (c < '0' || c > '9') return false;
  return true;
}

bool Seed(Run&, const Words& a, std::string* why) {
  if (!IsWholeNumber(a[0]) || std::stoull(a[0]) > 0xFFFFFFFFull) {
    *why = "seed: \"" + a[0] + "\" is not a whole number 0..4294967295";
    return false;
  }
  SeedRnd(static_cast<std::uint32_t>(std::stoull(a[0])));
  return true;
}

bool NewScenario(Run&, const Words& a, std::string* why) {
  if (!MapSizeWords(a[0], a[1], why)) {
    *why = "new: " + *why;
    return false;
  }
  ClearGame(true, MapSizeFromText(a[0]), MapSizeFromText(a[1]));
  AfterClearCommand(true);
  return true;
}

bool ClearMap(Run&, const Words& a, std::string* why) {
  if (!MapSizeWords(a[0], a[1], why)) {
    *why = "clearmap: " + *why;
    return false;
  }
  ClearGame(false, MapSizeFromText(a[0]), MapSizeFromText(a[1]));
  AfterClearCommand(false);
  return true;
}

bool Load(Run& run, const Words& a, std::string*) {
  run.platform.QueueFile(run.Path(a[0]));
  LoadCommand();
  return true;
}

bool Save(Run& run, const Words& a, std::string*) {
  run.platform.QueueFile(run.Path(a[0]));
  SaveCommand();
  return true;
}

bool Import(Run& run, const Words& a, std::string*) {
  run.platform.QueueFile(run.Path(a[0]));
  ImportCommand();
  return true;
}

bool Set(Run&, const Words& a, std::string* why) { return SetField(a[0], a[1], why); }

bool Print(Run& run, const Words& a, std::string* why) {
  std::string value;
  if (!GetField(a[0], &value, why)) return false;
  run.out << a[0] << " = " << value << "\n";
  return true;
}

bool Expect(Run&, const Words& a, std::string* why) {
  std::string value;
  if (!GetField(a[0], &value, why)) return false;
  if (value != a[1]) {
    *why = "expect " + a[0] + ": expected \"" + a[1] + "\", got \"" + value + "\"";
    return false;
  }
  return true;
}

// A message box, a question or a prompt: what expect-msg looks at.
bool IsBox(const PlatformEvent& e) {
  return e.kind == PlatformEvent::kMessage || e.kind == PlatformEvent::kQuestion || e.kind == PlatformEvent::kPrompt;
}

bool ExpectMsg(Run& run, const Words& a, std::string* why) {
  const auto& events = run.platform.Events();
  for (std::size_t i = run.msgCursor; i < events.size(); ++i) {
    const auto& e = events[i];
    if (IsBox(e) && e.text == a[0]) {
      run.msgCursor = i + 1;
      return true;
    }
  }
  *why = "expect-msg: no message \"" + a[0] + "\" was shown";
  return false;
}

// Fails when a message box, question or prompt with that text was shown
// since the last expect-msg that matched; consumes nothing.
bool ExpectNoMsg(Run& run, const Words& a, std::string* why) {
  const auto& events = run.platform.Events();
  for (std::size_t i = run.msgCursor; i < events.size(); ++i) {
    const auto& e = events[i];
    if (IsBox(e) && e.text == a[0]) {
      *why = "expect-no-msg: the message \"" + a[0] + "\" was shown";
      return false;
    }
  }
  return true;
}

// Consumes printed report lines up to the first that reads TEXT.
bool ExpectReport(Run& run, const Words& a, std::string* why) {
  const auto& events = run.platform.Events();
  for (std::size_t i = run.reportCursor; i < events.size(); ++i) {
    if (events[i].kind == PlatformEvent::kReport && events[i].text == a[0]) {
      run.reportCursor = i + 1;
      return true;
    }
  }
  *why = "expect-report: no report line \"" + a[0] + "\" was shown";
  return false;
}

// A dialog of the menus, opened as its menu entry opens it.
bool Open(Run&, const Words& a, std::string* why) { return OpenMenuDialog(a[0], why); }

bool Answer(Run& run, const Words& a, std::string*) {
  for (const auto& answer : a) run.platform.QueueAnswer(answer);
  return true;
}

// "key=value" as a dialog action and its value; a word without "=" is an action alone.
DialogAction SplitAction(const std::string& word) {
  const std::size_t eq = word.find('=');
  if (eq == std::string::npos) return {word, ""};
  return {word.substr(0, eq), word.substr(eq + 1)};
}

bool On(Run& run, const Words& a, std::string*) {
  std::vector<DialogAction> actions;
  for (std::size_t i = 1; i < a.size(); ++i) {
    DialogAction action = SplitAction(a[i]);
    // The play-by-mail save of the New Turn dialog names a file of the script.
    if (a[0] == "newturn" && action.action == "savepbem") action.value = run.Path(action.value);
    actions.push_back(std::move(action));
  }
  run.platform.QueueDialog(a[0], std::move(actions));
  return true;
}

// The Start Game dialog with its boxes set as given, then Start. With no
// settings nothing is queued, so that actions queued by "on startgame" are
// the ones taken. A refused Start fails the script (the dialog's own report).
bool Start(Run& run, const Words& a, std::string* why) {
  static const char* const kKeys[] = {"fog", "exploration", "pbem", "passwords", "aibonus", "ai", "email"};
  std::vector<DialogAction> actions;
  for (const auto& word : a) {
    DialogAction action = SplitAction(word);
    bool known = false;
    for (const char* key : kKeys) known = known || action.action == key;
    if (!known || word.find('=') == std::string::npos) {
      *why = "start: \"" + word + "\" is not one of fog=, exploration=, pbem=, passwords=, aibonus=, ai=, email=";
      return false;
    }
    actions.push_back(std::move(action));
  }
  if (!actions.empty()) {
    actions.push_back({"start", ""});
    run.platform.QueueDialog("startgame", std::move(actions));
  }
  StartCommand();
  return true;
}

// The Random Scenario dialog with its fields set as given, then Start
// Random Game; a made map is laid out and its first turn begins, as from the
// File menu. With no settings nothing is queued, so that "on random" actions
// (or the dialog's default, Start) are taken. A refused start fails the
// script with the dialog's message.
bool RandomGame(Run& run, const Words& a, std::string* why) {
  std::vector<DialogAction> actions;
  if (!RandomDialogActions(a, &actions, why)) {
    *why = "random: " + *why;
    return false;
  }
  if (!actions.empty()) {
    actions.push_back({"start", ""});
    run.platform.QueueDialog("random", std::move(actions));
  }
  StartRandomGame();
  return true;
}

// The End Turn command answered Yes (in editing mode it refuses by itself).
bool EndTurn(Run& run, const Words&, std::string*) {
  if (EndTurnAsks()) run.platform.QueueAnswerFirst("yes");
  EndTurnCommand();
  return true;
}

bool Surrender(Run&, const Words&, std::string*) {
  SurrenderCommand();
  return true;
}

bool Tick(Run&, const Words& a, std::string* why) {
  long n = 1;
  if (!a.empty()) {
    if (!IsWholeNumber(a[0]) || a[0].size() > 6) {
      *why = "tick: \"" + a[0] + "\" is not a whole number 0..999999";
      return false;
    }
    n = std::stol(a[0]);
  }
  for (long i = 0; i < n; ++i) TimerTick();
  return true;
}

// The computer player for Game.CurRegime: "ai turn" plays its whole turn,
// "ai AIClear AIFindAreas ..." runs those stages in that order. Every name
// is checked before anything runs.
bool AIStages(Run&, const Words& a, std::string* why) {
  if (a.size() == 1 && a[0] == "turn") {
    AITurn();
    return true;
  }
  const std::vector<std::string> known = AIStageNames();
  for (const std::string& name : a) {
    if (std::find(known.begin(), known.end(), name) != known.end()) continue;
    *why = "ai: no stage \"" + name + "\" (turn, or stages among:";
    for (const std::string& k : known) *why += " " + k;
    *why += ")";
    return false;
  }
  for (const std::string& name : a) RunAIStage(name);
  return true;
}

// A whole number of a script word, within lo..hi.
bool WholeNumberIn(const std::string& word, long lo, long hi, long* n) {
  if (!IsWholeNumber(word)) return false;
  const unsigned long long v = std::stoull(word);
  if (v < static_cast<unsigned long long>(lo) || v > static_cast<unsigned long long>(hi)) return false;
  *n = static_cast<long>(v);
  return true;
}

// A press on hex (X, Y) of the map, the left button unless "right" is given.
// A hex off the map is a press outside it, which the game ignores.
bool Click(Run&, const Words& a, std::string* why) {
  long x = 0, y = 0;
  if (!WholeNumberIn(a[0], 0, 999, &x) || !WholeNumberIn(a[1], 0, 999, &y)) {
    *why = "click: \"" + a[0] + " " + a[1] + "\" is not a hex (two whole numbers)";
    return false;
  }
  int button = kLeftButton;
  if (a.size() > 2) {
    if (a[2] != "right" && a[2] != "left") {
      *why = "click: \"" + a[2] + "\" is neither left nor right";
      return false;
    }
    if (a[2] == "right") button = kRightButton;
  }
  ClickMap(static_cast<int>(x), static_cast<int>(y), button);
  return true;
}

// A press on a button of the map window. A person cannot press a disabled
// button, so a script that tries is told so and fails.
bool Press(Run&, const Words& a, std::string* why) {
  const std::string& name = a[0];
  RefreshButtons();
  auto disabled = [&](const std::string& caption) {
    *why = "press " + name + ": the button \"" + caption + "\" is disabled";
    return false;
  };
  if (name == "do") {
    if (!Buttons.doButton.enabled) return disabled(Buttons.doButton.caption);
    DoButton();
    return true;
  }
  if (name == "cancel") {
    if (!Buttons.cancel.enabled) return disabled("CANCEL ORDER");
    DoCancel();
    return true;
  }
  if (name == "showsupply") {
    ShowSupplyCommand();
    return true;
  }
  const int id = OrderButtonByName(name);
  if (id < 0) {
    *why = "press: no button \"" + name + "\" (move, attack, production, command, newunit, transfer, officerpool, "
           "research, diplomatics, disband, entrench, load, unload, interdict, strategic, airlift, airsupply, do, "
           "cancel, showsupply)";
    return false;
  }
  if (!PressOrderButton(id)) return disabled(OrderButtonOf(id).label);
  return true;
}

// A key of the main window by its name: a letter, Enter, Space, Esc, F1,
// F2, F11, F12 or an arrow. A key that does nothing now is no failure.
bool Key(Run&, const Words& a, std::string* why) {
  std::string k;
  for (char c : a[0]) k += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  static const std::pair<const char*, int> kNames[] = {
      {"ENTER", kKeyEnter}, {"SPACE", kKeySpace}, {"ESC", kKeyEscape}, {"ESCAPE", kKeyEscape},
      {"F1", kKeyF1},       {"F2", kKeyF2},       {"F11", kKeyF11},    {"F12", kKeyF12},
      {"LEFT", kKeyLeft},   {"RIGHT", kKeyRight}, {"UP", kKeyUp},      {"DOWN", kKeyDown}};
  int code = 0;
  if (k.size() == 1 && k[0] >= 'A' && k[0] <= 'Z') code = k[0];
  for (const auto& [n, c] : kNames)
    if (k == n) code = c;
  if (code == 0) {
    *why = "key: \"" + a[0] + "\" is not a key (a letter, Enter, Space, Esc, F1, F2, F11, F12, Left, Right, Up, Down)";
    return false;
  }
  KeyDown(code);
  return true;
}

// A press on the picture of the formation in stack slot 1..3 in the side panel.
bool Panel(Run&, const Words& a, std::string* why) {
  long slot = 0;
  if (!WholeNumberIn(a[0], 1, 3, &slot)) {
    *why = "panel: \"" + a[0] + "\" is not a stack slot 1..3";
    return false;
  }
  if (!PanelPress(static_cast<int>(slot))) {
    *why = "panel " + a[0] + ": no formation stands in that slot of the selected hex";
    return false;
  }
  return true;
}

// A double click on the selected formation's name in the side panel: the
// rename prompt, answered from `answer`.
bool Rename(Run&, const Words&, std::string*) {
  doRename();
  return true;
}

// The program folder moves to P for the rest of the run, so that a campaign
// made by the script finds its next files in P's scenarios folder (made if
// missing). A folder without pictures of its own borrows those of the
// program folder it replaces, so that officers still find their portraits.
bool ProgramDirCommand(Run& run, const Words& a, std::string* why) {
  // An empty name is a cancelled folder choice: the program folder stays.
  if (a[0].empty()) return true;
  const fs::path dir = fs::path(run.Path(a[0])).lexically_normal();
  std::error_code ec;
  fs::create_directories(dir / "scenarios", ec);
  if (ec || !fs::is_directory(dir / "scenarios", ec)) {
    *why = "programdir: cannot make the folder " + (dir / "scenarios").string();
    return false;
  }
  const fs::path art = fs::path(ProgramDir()) / "default";
  if (!fs::exists(dir / "default", ec) && fs::is_directory(art, ec))
    fs::create_directory_symlink(fs::absolute(art, ec), dir / "default", ec);
  SetProgramDir(dir.string());
  return true;
}

// The editor's painting tools: "paint regime N" types N in the regime box
// and presses the regime button (an empty N shows the game's message),
// "paint land ENTRY" selects the landscape list's row ENTRY (its number or
// its text) and presses the type button, "paint urban" presses the urban
// button for the selected hex (the questions take queued answers), "paint
// end" ends the brush. A button whose brush is on already is pressed twice,
// so that the new choice takes over. "paint drag X Y" drags the held
// button onto a hex, "paint release" lets it go, "paint undo" and "paint
// redo" are Ctrl+Z and Ctrl+Y; undo or redo with nothing to take back fails.
bool Paint(Run&, const Words& a, std::string* why) {
  const std::string& what = a[0];
  auto arity = [&](std::size_t n, const char* usage) {
    if (a.size() == n) return true;
    *why = std::string("usage: ") + usage;
    return false;
  };
  if (what == "regime") {
    if (a.size() > 2) return arity(2, "paint regime [N]");
    if (mf::UI.Order.RegimePaint > 0) PressRegimePaint();
    SetPaintRegimeBox(a.size() == 2 ? a[1] : std::string());
    PressRegimePaint();
    return true;
  }
  if (what == "land") {
    if (!arity(2, "paint land ENTRY")) return false;
    int row = -1;
    for (int r = 0; r <= kPaintListRows; ++r)
      if (a[1] == std::to_string(r) || (!PaintListEntry(r).empty() && a[1] == PaintListEntry(r))) row = r;
    if (row < 0) {
      *why = "paint land: \"" + a[1] + "\" is no row of the landscape list (0..16 or an entry's text)";
      return false;
    }
    if (mf::UI.Order.LandscapePaint > 0) PressTypePaint();
    SelectPaintRow(row);
    PressTypePaint();
    return true;
  }
  if (what == "urban") {
    if (!arity(1, "paint urban")) return false;
    PressUrban();
    return true;
  }
  if (what == "end") {
    if (!arity(1, "paint end")) return false;
    EndPainting();
    return true;
  }
  if (what == "drag") {
    long x = 0, y = 0;
    if (!arity(3, "paint drag X Y")) return false;
    if (!WholeNumberIn(a[1], 0, 999, &x) || !WholeNumberIn(a[2], 0, 999, &y)) {
      *why = "paint drag: \"" + a[1] + " " + a[2] + "\" is not a hex (two whole numbers)";
      return false;
    }
    if (PaintStrokeOpen() && ValidHex(static_cast<int>(x), static_cast<int>(y))) {
      SelectHex(static_cast<int>(x), static_cast<int>(y));
      PaintDragTo(static_cast<int>(x), static_cast<int>(y));
    }
    return true;
  }
  if (what == "release") {
    if (!arity(1, "paint release")) return false;
    EndPaintStroke();
    return true;
  }
  if (what == "undo" || what == "redo") {
    if (!arity(1, "paint undo|redo")) return false;
    if (!(what == "undo" ? UndoPaint() : RedoPaint())) {
      *why = "paint " + what + ": there is no stroke to " + what;
      return false;
    }
    return true;
  }
  *why = "paint: \"" + what + "\" is not one of regime, land, urban, end, drag, release, undo, redo";
  return false;
}

// The script's commands. A command without a handler belongs to a part of the
// game that is not built yet: it fails loudly, so that a script never passes
// by skipping what it asked for.
const Command kCommands[] = {
    {"seed", 1, 1, "seed N", &Seed},
    {"new", 2, 2, "new W H", &NewScenario},
    {"clearmap", 2, 2, "clearmap W H", &ClearMap},
    {"load", 1, 1, "load PATH", &Load},
    {"save", 1, 1, "save PATH", &Save},
    {"import", 1, 1, "import PATH", &Import},
    {"set", 2, 2, "set FIELD VALUE", &Set},
    {"print", 1, 1, "print FIELD", &Print},
    {"expect", 2, 2, "expect FIELD VALUE", &Expect},
    {"expect-msg", 1, 1, "expect-msg \"TEXT\"", &ExpectMsg},
    {"expect-no-msg", 1, 1, "expect-no-msg \"TEXT\"", &ExpectNoMsg},
    {"expect-report", 1, 1, "expect-report \"TEXT\"", &ExpectReport},
    {"open", 1, 1, "open NAME", &Open},
    {"answer", 1, -1, "answer A [A ...]", &Answer},
    {"on", 1, -1, "on DIALOG ACTION ...", &On},
    {"tick", 0, 1, "tick [N]", &Tick},
    {"ai", 1, -1, "ai turn | ai NAME [NAME ...]", &AIStages},
    {"start", 0, -1,
     "start [fog=0/1] [exploration=0/1] [pbem=0/1] [passwords=0/1] [aibonus=0/1] [ai=1,0,..] [email=a,b,..]",
     &Start},
    {"random", 0, -1,
     "random [size=N] [land=L] [regimes=R] [humans=1,0,..] [email=a,b,..] [seed=S] [realstart=0/1] [fog=0/1] "
     "[exploration=0/1] [pbem=0/1] [passwords=0/1] [aibonus=0/1] [allied=0/1]",
     &RandomGame},
    {"paint", 1, 3, "paint regime [N] | land ENTRY | urban | end | drag X Y | release | undo | redo", &Paint},
    {"endturn", 0, 0, "endturn", &EndTurn},
    {"surrender", 0, 0, "surrender", &Surrender},
    {"click", 2, 3, "click X Y [right]", &Click},
    {"press", 1, 1, "press NAME", &Press},
    {"key", 1, 1, "key NAME", &Key},
    {"panel", 1, 1, "panel SLOT", &Panel},
    {"rename", 0, 0, "rename", &Rename},
    {"programdir", 1, 1, "programdir PATH", &ProgramDirCommand},
};

// Runs one command line; false with a reason when it failed.
bool RunLine(Run& run, const std::string& line, std::string* why) {
  Words words;
  if (!TokenizeLine(line, &words, why)) return false;
  if (words.empty()) return true;
  const std::string cmd = words[0];
  const Words args(words.begin() + 1, words.end());
  for (const auto& c : kCommands) {
    if (cmd != c.name) continue;
    const int n = static_cast<int>(args.size());
    if (n < c.minArgs || (c.maxArgs >= 0 && n > c.maxArgs)) {
      *why = "usage: " + std::string(c.usage);
      return false;
    }
    run.platform.lastError.clear();
    if (!c.run(run, args, why)) return false;
    if (!run.platform.lastError.empty()) {
      *why = run.platform.lastError;
      return false;
    }
    return true;
  }
  *why = "unknown command: " + cmd;
  return false;
}

// Prints every line of a battle's log as it is written, "BATTLE " + line,
// shown battle or not; the hook goes when the run ends.
struct BattleLogPrinter {
  explicit BattleLogPrinter(std::ostream& out) {
    SetBattleWindowHook([&out](BattleWindowChange change) {
      if (change == BattleWindowChange::kLine) out << "BATTLE " << TheBattleWindow().lines.back() << "\n";
    });
  }
  ~BattleLogPrinter() { SetBattleWindowHook({}); }
};

// Puts the program folder back however the run ends (a script may move it).
struct ProgramDirGuard {
  ProgramDirGuard() : dir(ProgramDir()) {}
  ~ProgramDirGuard() { SetProgramDir(dir); }
  std::string dir;
};

// With MF_CHECK_INVARIANTS set (the test suite sets it), every end of a
// regime's turn checks the game's invariants, and the first broken one fails
// the script at the line that played the turn.
struct InvariantWatch {
  std::string problem;
  InvariantWatch() {
    const char* on = std::getenv("MF_CHECK_INVARIANTS");
    if (on == nullptr || *on == '\0' || std::string(on) == "0") return;
    SetTurnEndWatcher([this] {
      if (!problem.empty()) return;
      const std::string p = CheckInvariants();
      if (!p.empty())
        problem = "invariant broken when the turn of regime " + std::to_string(Game.CurRegime) + " in game turn " +
                  std::to_string(Game.Turn) + " ended: " + p;
    });
  }
  ~InvariantWatch() { SetTurnEndWatcher({}); }
};

// Puts the platform back to the built-in one however the run ends.
struct PlatformGuard {
  explicit PlatformGuard(Platform* p) { InstallPlatform(p); }
  ~PlatformGuard() { InstallPlatform(nullptr); }
};

}  // namespace

int RunScriptText(const std::string& text, const std::string& name, const std::string& baseDir,
                  std::ostream& out, std::ostream& err) {
  Run run(name, baseDir, out);
  run.platform.printer = [&out](const PlatformEvent& e) { out << FormatEvent(e) << "\n"; };
  PlatformGuard guard(&run.platform);
  ProgramDirGuard programDir;
  BattleLogPrinter battleLog(out);
  InvariantWatch invariants;
  StartFresh();

  std::istringstream lines(text);
  std::string line;
  int number = 0;
  while (std::getline(lines, line)) {
    ++number;
    std::string why;
    bool ok = false;
    try {
      ok = RunLine(run, line, &why);
    } catch (const std::exception& e) {
      why = std::string("internal error: ") + e.what();
    }
    if (ok && !invariants.problem.empty()) {
      ok = false;
      why = invariants.problem;
    }
    if (!ok) {
      out.flush();
      err << name << ":" << number << ": " << why << "\n";
      return 1;
    }
  }
  out.flush();
  return 0;
}

int RunScriptFile(const std::string& path, std::ostream& out, std::ostream& err) {
  std::string text, why;
  if (!ReadWholeFile(path, &text, &why)) {
    err << "cannot read script " << path << ": " << why << "\n";
    return 1;
  }
  const fs::path p(path);
  const std::string dir = p.has_parent_path() ? p.parent_path().string() : std::string(".");
  return RunScriptText(text, path, dir, out, err);
}

}  // namespace mf::cli
