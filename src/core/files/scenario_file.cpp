// Scenario files: the writer and reader of the field sequence that
// scenario_schema.h describes, the byte scrambling, and the menu flows of
// saving, loading and importing.
//
// A file holds one field a line. The reader is a stream tokenizer in the
// manner of the old BASIC "Input #": a number ends at a blank, a comma or the
// line end; a text ends at a comma or the line end. So a name written with a
// comma in it is read back cut at the comma, and everything after it slips
// one field on. That is the format, and the reader keeps it.
#include "files/scenario_file.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>

#include "engine/turn_cycle.h"
#include "files/scenario_schema.h"
#include "files/text_codec.h"
#include "model/arith.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "platform/file_io.h"
#include "platform/paths.h"
#include "platform/platform.h"
#include "view/counter.h"
#include "view/sprite_table.h"

namespace fs = std::filesystem;

namespace mf {
namespace {

// Where the newer-version message sends a player.
constexpr const char* kDownloadAddress = "https://marrowfield.example.org/download";

constexpr const char* kLongTextBreak = "//x//";

// ---------------------------------------------------------------------------
// Reading fields

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

class FieldReader {
 public:
  explicit FieldReader(std::string_view text) : s_(text) {}

  // A number: leading blanks are skipped, the number ends at a blank, a
  // comma or the line end; trailing blanks and then one comma or one line
  // end are consumed. Whatever is not a number reads as 0. The value is
  // rounded to a whole number (halves to even) and held inside 32 bits.
  Long Number() {
    SkipBlanks();
    const std::size_t start = p_;
    while (p_ < s_.size() && !IsBlank(s_[p_]) && s_[p_] != ',' && !IsLineEnd(s_[p_])) ++p_;
    const std::string_view token = s_.substr(start, p_ - start);
    SkipBlanks();
    if (p_ < s_.size() && s_[p_] == ',') {
      ++p_;
    } else {
      EatLineEnd();
    }
    return ToLong(token);
  }

  // A text: leading blanks are skipped; a leading double quote opens a
  // quoted field that runs to the next double quote (or the line end), and
  // anything after the closing quote up to the delimiter is dropped;
  // otherwise the field runs to a comma or the line end and its trailing
  // blanks are dropped. The delimiter is consumed. Bytes of the file.
  std::string_view Text() {
    SkipBlanks();
    std::string_view field;
    if (p_ < s_.size() && s_[p_] == '"') {
      ++p_;
      const std::size_t start = p_;
      while (p_ < s_.size() && s_[p_] != '"' && !IsLineEnd(s_[p_])) ++p_;
      field = s_.substr(start, p_ - start);
      if (p_ < s_.size() && s_[p_] == '"') ++p_;
      while (p_ < s_.size() && s_[p_] != ',' && !IsLineEnd(s_[p_])) ++p_;
    } else {
      const std::size_t start = p_;
      while (p_ < s_.size() && s_[p_] != ',' && !IsLineEnd(s_[p_])) ++p_;
      std::size_t end = p_;
      while (end > start && IsBlank(s_[end - 1])) --end;
      field = s_.substr(start, end - start);
    }
    if (p_ < s_.size() && s_[p_] == ',') {
      ++p_;
    } else {
      EatLineEnd();
    }
    return field;
  }

  // The rest of the line as it stands; the line end is consumed.
  std::string_view Line() {
    const std::size_t start = p_;
    while (p_ < s_.size() && !IsLineEnd(s_[p_])) ++p_;
    const std::string_view line = s_.substr(start, p_ - start);
    EatLineEnd();
    return line;
  }

 private:
  void SkipBlanks() {
    while (p_ < s_.size() && IsBlank(s_[p_])) ++p_;
  }
  // CR LF, a lone LF or a lone CR.
  void EatLineEnd() {
    if (p_ >= s_.size()) return;
    if (s_[p_] == '\r') {
      ++p_;
      if (p_ < s_.size() && s_[p_] == '\n') ++p_;
    } else if (s_[p_] == '\n') {
      ++p_;
    }
  }
  static Long ToLong(std::string_view token) {
    // Plain whole numbers are what every file holds; take them directly.
    long long whole = 0;
    const char* first = token.data();
    const char* last = token.data() + token.size();
    if (!token.empty() && token.front() == '+') ++first;
    const auto [ptr, ec] = std::from_chars(first, last, whole);
    if (ec == std::errc() && ptr == last) {
      if (whole > std::numeric_limits<Long>::max()) return std::numeric_limits<Long>::max();
      if (whole < std::numeric_limits<Long>::min()) return std::numeric_limits<Long>::min();
      return static_cast<Long>(whole);
    }
    double d = Val(token);
    if (!std::isfinite(d)) d = d > 0 ? 1e300 : -1e300;
    if (d >= static_cast<double>(std::numeric_limits<Long>::max())) return std::numeric_limits<Long>::max();
    if (d <= static_cast<double>(std::numeric_limits<Long>::min())) return std::numeric_limits<Long>::min();
    return static_cast<Long>(CInt(d));
  }

  std::string_view s_;
  std::size_t p_ = 0;
};

Short ToShort(Long v) {
  if (v > std::numeric_limits<Short>::max()) return std::numeric_limits<Short>::max();
  if (v < std::numeric_limits<Short>::min()) return std::numeric_limits<Short>::min();
  return static_cast<Short>(v);
}

std::string DecodeLongText(std::string_view line) {
  std::string out;
  out.reserve(line.size());
  std::size_t p = 0;
  while (p < line.size()) {
    const std::size_t hit = line.find(kLongTextBreak, p);
    if (hit == std::string_view::npos) {
      out.append(line.substr(p));
      break;
    }
    out.append(line.substr(p, hit - p));
    out += "\r\n";
    p = hit + std::strlen(kLongTextBreak);
  }
  return Cp1252ToUtf8(out);
}

// Reads a file into the tables; with importOnly, keeps only the rule set
// (folders, peoples, research, types, engine variables) and reads every other
// field into nothing, following the file's counts all the same.
class ReadVisitor {
 public:
  ReadVisitor(std::string_view plain, bool importOnly) : in_(plain), importOnly_(importOnly) {}

  mf::Long version = 0;

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    const mf::Long value = ApplyCheck(in_.Number(), c);
    if (Keep(n)) ref = value;
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    const mf::Long value = ApplyCheck(ToShort(in_.Number()), c);
    if (Keep(n)) ref = static_cast<mf::Short>(value);
    return value;
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    const mf::Long value = in_.Text() == "True" ? kTrue : kFalse;
    if (Keep(n)) ref = value;
    return value;
  }
  void Text(const FieldName& n, std::string& ref) {
    const std::string_view raw = in_.Text();
    if (Keep(n)) ref = Cp1252ToUtf8(raw);
  }
  void LongText(const FieldName& n, std::string& ref) {
    const std::string_view raw = in_.Line();
    if (Keep(n)) ref = DecodeLongText(raw);
  }
  void Assign(const FieldName& n, mf::Long& ref, mf::Long value) {
    if (Keep(n)) ref = value;
  }
  bool HeadHasFog(mf::Long v) {
    version = v;
    // The import has always asked for "above 10" where the load asks for
    // "10 or more"; a version-10 file therefore imports one field askew.
    return importOnly_ ? v > 10 : v >= 10;
  }
  bool Proceed(mf::Long v) { return importOnly_ || v <= kFileVersion; }

 private:
  bool Keep(const FieldName& n) const {
    if (!importOnly_) return true;
    switch (n.rec) {
      case FieldRec::kPeople:
      case FieldRec::kResearch:
      case FieldRec::kType:
        return true;
      case FieldRec::kEngineVar:
        // The stock width ahead of the regimes belongs to the SHQ stocks;
        // the rule itself comes with the other engine variables at the end.
        return !(n.role == FieldRole::kStockWidth && !n.repeat);
      case FieldRec::kGame:
        for (const char* kept : {"DirMap", "DirColorCode", "DirSound", "DirType", "GraphicsDirty", "DirOfficer",
                                 "PeopleCount", "TypeCount"}) {
          if (std::strcmp(n.field, kept) == 0) return true;
        }
        return false;
      default:
        return false;
    }
  }

  FieldReader in_;
  bool importOnly_;
};

// ---------------------------------------------------------------------------
// Writing fields

class WriteVisitor {
 public:
  explicit WriteVisitor(std::string& out) : out_(out) {}

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    PutNumber(value);
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    PutNumber(value);
    return value;
  }
  mf::Long Bool(const FieldName&, mf::Long& ref) {
    out_ += ref != 0 ? "True\r\n" : "False\r\n";
    return ref != 0 ? kTrue : kFalse;
  }
  // A line break cannot live inside a one-line field; it is written as a blank.
  void Text(const FieldName&, std::string& ref) {
    const std::size_t start = out_.size();
    out_ += Utf8ToCp1252(ref);
    for (std::size_t i = start; i < out_.size(); ++i) {
      if (IsLineEnd(out_[i])) out_[i] = ' ';
    }
    out_ += "\r\n";
  }
  // Every line break (CR LF, and a lone CR or LF as an editor may leave it)
  // becomes "//x//", which a reader turns back into CR LF.
  void LongText(const FieldName&, std::string& ref) {
    const std::string bytes = Utf8ToCp1252(ref);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const char c = bytes[i];
      if (c == '\r') {
        if (i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
        out_ += kLongTextBreak;
      } else if (c == '\n') {
        out_ += kLongTextBreak;
      } else {
        out_ += c;
      }
    }
    out_ += "\r\n";
  }
  void Assign(const FieldName&, mf::Long&, mf::Long) {}
  bool HeadHasFog(mf::Long) { return true; }
  bool Proceed(mf::Long) { return true; }

 private:
  // " 5 " or "-5 ": one leading blank when not negative, one trailing blank.
  void PutNumber(mf::Long v) {
    char buf[16];
    char* p = buf;
    if (v >= 0) *p++ = ' ';
    p = std::to_chars(p, buf + sizeof(buf), v).ptr;
    out_.append(buf, static_cast<std::size_t>(p - buf));
    out_ += " \r\n";
  }

  std::string& out_;
};

// ---------------------------------------------------------------------------
// Files on disk

void FlipTopBits(std::string& bytes) {
  for (char& c : bytes) c = static_cast<char>(static_cast<unsigned char>(c) ^ 0x80u);
}

// Overwrites a file in place; the fallback of the scrambling transform when
// no temporary file can be made next to it.
bool OverwriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream f(path, std::ios::binary | std::ios::trunc);
  if (!f) return false;
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  f.flush();
  return static_cast<bool>(f);
}

// The first number of a file's bytes, as the reader would take it. A
// scrambled file has no blank, comma or line end in its first field, so its
// bytes form no number and read as 0.
Long FirstNumber(std::string_view bytes) { return FieldReader(bytes).Number(); }

bool FileExists(const std::string& path) {
  std::error_code ec;
  return fs::exists(path, ec);
}

// Reads the bytes of a file to be loaded and unscrambles them in memory when
// the first number is 0. The file on disk is not touched: the end state the
// rules ask for is reached without it (a scrambled file, transformed twice,
// is what it was), a file on a read-only disk or in the install folder loads
// in full, and a file is never left plain by a load that stops half way.
bool ReadPlainBytes(const std::string& path, std::string* bytes, bool* wasScrambled, std::string* why) {
  if (!ReadWholeFile(path, bytes, why)) return false;
  *wasScrambled = FirstNumber(*bytes) == 0;
  if (*wasScrambled) FlipTopBits(*bytes);
  return true;
}

// A plain file is left scrambled by being read, as every read leaves a file.
// The file keeps its links and permissions; where it cannot be written (a
// read-only disk, the install folder) it stays as it is, and the load stands.
void LeaveScrambled(const std::string& path, std::string plain) {
  FlipTopBits(plain);
  ReplaceFileAtomically(path, plain);
}

// A file that stands but cannot be read is refused before anything of the
// game is touched, with its name and the reason.
void RefuseUnreadable(const std::string& path, const std::string& why) {
  Plat().ShowMessage("Cannot read " + path + ": " + why + ".", "File I/O");
}

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

}  // namespace

// ---------------------------------------------------------------------------

bool Transform(const std::string& path) {
  if (path.empty() || !FileExists(path)) {
    Plat().ShowMessage("Cancelled, error in encryption. argh.", "");
    return false;
  }
  std::string bytes;
  if (!ReadWholeFile(path, &bytes, nullptr)) return false;
  FlipTopBits(bytes);
  if (ReplaceFileAtomically(path, bytes)) return true;
  return OverwriteFile(path, bytes);
}

std::string SerializeScenario() {
  if (EngineVar[616].Value < Game.TypeCount) EngineVar[616].Value = Game.TypeCount;
  Game.FileVersion = kFileVersion;
  std::string out;
  out.reserve(1 << 20);
  WriteVisitor w(out);
  WalkScenario(w);
  return out;
}

long ParseScenario(const std::string& plain) {
  ReadVisitor r(plain, false);
  WalkScenario(r);
  return r.version;
}

bool WriteFile(const std::string& path) {
  if (path.empty()) return false;
  std::string bytes = SerializeScenario();
  FlipTopBits(bytes);
  return ReplaceFileAtomically(path, bytes);
}

bool ReadFile(const std::string& path) {
  if (!CanOpenForReading(path)) return false;
  std::string bytes, why;
  bool scrambled = false;
  if (!ReadPlainBytes(path, &bytes, &scrambled, &why)) {
    RefuseUnreadable(path, why);
    return false;
  }
  UI.EditMode = 0;
  ReadVisitor r(bytes, false);
  WalkScenario(r);
  if (r.version > kFileVersion) {
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
  RepairEngineVarsAfterLoad(r.version, false);
  RecomputeCountersAndSprites();
  return true;
}

bool doGoLoad(const std::string& path) {
  // A file that stands but cannot be read (a folder, a device, no
  // permission) is refused before the game in memory is cleared.
  std::string why;
  if (!path.empty() && FileExists(path) && !CanReadFile(path, &why)) {
    RefuseUnreadable(path, why);
    return false;
  }
  onlyclear();
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
  setup();
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
  ReadVisitor r(bytes, true);
  WalkScenario(r);
  if (!scrambled) LeaveScrambled(path, std::move(bytes));
  RepairEngineVarsAfterLoad(r.version, true);
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

bool SaveCommand() { return SaveToPath(Plat().SaveFileDialog("Save", ScenarioFilter(), ScenariosDir())); }

void LoadCommand() {
  const std::string path = Plat().OpenFileDialog("Load", ScenarioFilter(), ScenariosDir());
  if (path.empty()) {
    Plat().ShowMessage("Load canceled", "");
    return;
  }
  if (!doGoLoad(path)) return;
  // A campaign file opened from the menu by a player (an author with the
  // editor panel showing opens it as an ordinary map).
  if (EV(704) != 0 && Game.Turn == 0 && UI.HideEditor) {
    if (EV(706) == 1) {
      // Later files of a campaign are only for a running campaign to load.
      Plat().ShowMessage("You are not allowed to load this file.", "");
      MakeItSo(true, "0", "0");
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
  onlyclear();
  // The menu names the files without an extension; the files the build
  // makes carry ".mf1". Take the bare name when it exists, else the .mf1.
  const std::string name = "\\scenarios\\scenario" + std::to_string(n);
  std::string path = ResolveGamePath(name);
  if (!FileExists(path)) {
    const std::string withExt = ResolveGamePath(name + ".mf1");
    if (FileExists(withExt)) path = withExt;
  }
  doGoLoad(path);
}

}  // namespace mf
