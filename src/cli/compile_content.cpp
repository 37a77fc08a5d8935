#include "compile_content.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <ostream>
#include <set>
#include <utility>

#include "editor/type_rules.h"
#include "files/field_registry.h"
#include "files/scenario_file.h"
#include "files/text_codec.h"
#include "model/arith.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/invariants.h"
#include "model/labels.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/file_io.h"
#include "platform/scripted_platform.h"
#include "session.h"
#include "view/counter.h"

namespace fs = std::filesystem;

namespace mf::cli {
namespace {

// Portraits come in sets of forty, a1..a40 for set 1, b1..b40 for set 2 and
// so on, and the sprite loader numbers them on without gaps: portrait n of
// set s is picture (s - 1) x 40 + n.
constexpr int kPortraitsPerSet = 40;
constexpr int kPortraitSets = 5;
constexpr int kMaxIncludeDepth = 8;

// ---------------------------------------------------------------------------
// Source text

struct Entry {
  std::string key;
  std::string value;  // a multi-line value has its lines joined by CR LF
  bool multi = false;
  std::string where;
};

struct Row {
  std::string text;
  std::string where;
};

struct Block {
  std::string kind;  // lower case
  std::string label;
  std::string where;
  std::vector<Entry> entries;
  std::vector<Row> rows;  // the map layers
};

std::string Lower(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return s;
}

bool IsLayer(const std::string& kind) { return kind == "land" || kind == "owner" || kind == "roads"; }

std::string TrimRight(std::string s) {
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.pop_back();
  return s;
}

std::string TrimAll(const std::string& s) {
  std::size_t a = 0;
  while (a < s.size() && (s[a] == ' ' || s[a] == '\t' || s[a] == '\r')) ++a;
  return TrimRight(s.substr(a));
}

std::vector<std::string> Split(const std::string& s, char sep) {
  std::vector<std::string> parts;
  std::string cur;
  for (char c : s) {
    if (c == sep) {
      parts.push_back(cur);
      cur.clear();
    } else {
      cur += c;
    }
  }
  parts.push_back(cur);
  return parts;
}

// Reads the source files into blocks. Lines: "# comment", "include PATH",
// "[kind label] Key = v; Key = v", "Key = value", "| text line" (a line of
// the multi-line value of the key above, which was left empty), and map rows.
class Parser {
 public:
  explicit Parser(std::vector<std::string>* errors) : errors_(errors) {}

  void ParseFile(const fs::path& path, int depth) {
    if (depth > kMaxIncludeDepth) {
      Error(path.string(), "includes nest deeper than " + std::to_string(kMaxIncludeDepth));
      return;
    }
    std::string bytes, why;
    if (!ReadWholeFile(path.string(), &bytes, &why)) {
      Error(path.string(), "cannot read the file: " + why);
      return;
    }
    if (bytes.rfind("\xEF\xBB\xBF", 0) == 0) bytes.erase(0, 3);
    const std::vector<std::string> lines = Split(bytes, '\n');
    Block* cur = nullptr;
    Entry* openText = nullptr;  // the entry that takes "|" lines
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const std::string where = path.string() + ":" + std::to_string(i + 1);
      const std::string line = TrimRight(lines[i]);
      const std::string t = TrimAll(line);
      if (t.empty() || t[0] == '#') continue;
      if (t[0] == '|') {
        if (openText == nullptr) {
          Error(where, "a text line \"|\" must follow a key whose value is left empty");
          continue;
        }
        std::string text = t.substr(1);
        if (!text.empty() && text[0] == ' ') text.erase(0, 1);
        if (openText->multi) openText->value += "\r\n";
        openText->value += text;
        openText->multi = true;
        continue;
      }
      openText = nullptr;
      if (t.rfind("include ", 0) == 0) {
        const fs::path inc = path.parent_path() / TrimAll(t.substr(8));
        ParseFile(inc, depth + 1);
        cur = nullptr;
        continue;
      }
      if (t[0] == '[') {
        const std::size_t close = t.find(']');
        if (close == std::string::npos) {
          Error(where, "a block header needs its closing \"]\"");
          cur = nullptr;
          continue;
        }
        Block b;
        const std::string head = TrimAll(t.substr(1, close - 1));
        const std::size_t blank = head.find(' ');
        b.kind = Lower(head.substr(0, blank));
        b.label = blank == std::string::npos ? "" : TrimAll(head.substr(blank + 1));
        b.where = where;
        const std::string rest = TrimAll(t.substr(close + 1));
        if (!rest.empty()) {
          if (IsLayer(b.kind)) {
            Error(where, "a map layer starts on the line after its header");
          } else {
            AddPairs(b, rest, where);
          }
        }
        blocks.push_back(std::move(b));
        cur = &blocks.back();
        continue;
      }
      if (cur == nullptr) {
        Error(where, "a line outside any block: " + t);
        continue;
      }
      if (IsLayer(cur->kind)) {
        std::string row;
        for (char c : t) {
          if (c != ' ' && c != '\t') row += c;
        }
        cur->rows.push_back({row, where});
        continue;
      }
      if (AddPairs(*cur, t, where) && cur->entries.back().value.empty()) openText = &cur->entries.back();
    }
  }

  std::vector<Block> blocks;

 private:
  // "Key = v; Key = v" holds several pairs when every part after a ";"
  // begins with a key and "="; otherwise the ";" belongs to the value.
  bool AddPairs(Block& b, const std::string& text, const std::string& where) {
    const std::vector<std::string> parts = Split(text, ';');
    bool several = parts.size() > 1;
    for (std::size_t k = 1; k < parts.size() && several; ++k) several = StartsWithKey(parts[k]);
    if (!several) return AddPair(b, text, where);
    bool ok = true;
    for (const std::string& part : parts) {
      if (!TrimAll(part).empty()) ok = AddPair(b, part, where) && ok;
    }
    return ok;
  }

  static bool StartsWithKey(const std::string& part) {
    const std::string t = TrimAll(part);
    std::size_t i = 0;
    if (t.empty() || !std::isalpha(static_cast<unsigned char>(t[0]))) return false;
    // Keys are words such as "Hit Points", "Officer.Land" or "Data[20]".
    while (i < t.size() && (std::isalnum(static_cast<unsigned char>(t[i])) || t[i] == ' ' || t[i] == '_' ||
                            t[i] == '-' || t[i] == '.' || t[i] == '[' || t[i] == ']')) {
      ++i;
    }
    return i < t.size() && t[i] == '=';
  }

  bool AddPair(Block& b, const std::string& text, const std::string& where) {
    const std::size_t eq = text.find('=');
    if (eq == std::string::npos) {
      Error(where, "expected \"Key = value\": " + TrimAll(text));
      return false;
    }
    Entry e;
    e.key = TrimAll(text.substr(0, eq));
    e.value = TrimAll(text.substr(eq + 1));
    e.where = where;
    if (e.key.empty()) {
      Error(where, "a key is missing before \"=\"");
      return false;
    }
    b.entries.push_back(std::move(e));
    return true;
  }

  void Error(const std::string& where, const std::string& why) { errors_->push_back(where + ": " + why); }
  std::vector<std::string>* errors_;
};

// ---------------------------------------------------------------------------
// Values

bool ParseWhole(const std::string& text, long long* value) {
  const std::string s = TrimAll(text);
  if (s.empty()) return false;
  std::size_t i = 0;
  bool negative = false;
  if (s[0] == '-' || s[0] == '+') {
    negative = s[0] == '-';
    i = 1;
  }
  if (i >= s.size()) return false;
  long long v = 0;
  for (; i < s.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(s[i]))) return false;
    v = v * 10 + (s[i] - '0');
    if (v > 4000000000LL) return false;
  }
  *value = negative ? -v : v;
  return true;
}

// Kinds of names a number may be given by.
enum SymbolKind : unsigned {
  kSymType = 1,
  kSymResearch = 2,
  kSymPeople = 4,
  kSymRegime = 8,
  kSymUnit = 16,
  kSymAll = 31,
};

struct SymbolPrefix {
  const char* prefix;
  SymbolKind kind;
  const char* word;
};
constexpr SymbolPrefix kPrefixes[] = {
    {"type:", kSymType, "unit type"},  {"research:", kSymResearch, "research field"},
    {"people:", kSymPeople, "people"}, {"regime:", kSymRegime, "regime"},
    {"unit:", kSymUnit, "unit"},
};

// Fields of the registry that hold text; every other field is a number.
bool IsTextField(const std::string& record, const std::string& field) {
  static const std::set<std::string> kText = {
      "Game.DirMap",        "Game.DirColorCode", "Game.DirSound",    "Game.DirType",     "Game.DirOfficer",
      "Game.ScenarioStory", "Regime.Name",       "Regime.Password",  "Regime.TextColor", "Regime.FormationName",
      "Regime.Email",       "Regime.Intro",      "Event.Story",      "Event.DataText",   "Unit.Name",
      "Officer.Name",       "Hex.UrbanName",     "Type.Name",        "Type.Text",        "Research.Name",
      "Research.Text",      "People.Name",       "People.FirstName", "People.LastName",
  };
  return kText.count(record + "." + field) > 0;
}

// Long texts keep their line breaks in the file; all other texts are one line.
bool IsLongTextField(const std::string& record, const std::string& field) {
  static const std::set<std::string> kLong = {"Game.ScenarioStory", "Regime.Intro", "Event.Story", "Research.Text"};
  return kLong.count(record + "." + field) > 0;
}

// The field name without its index: "DataText[2]" -> "DataText".
std::string BareField(const std::string& key) {
  const std::size_t b = key.find('[');
  return TrimAll(key.substr(0, b));
}

// ---------------------------------------------------------------------------
// The compiler

struct UnitSource {
  const Block* block = nullptr;
  int u = 0;
  int regime = 0;
  int theater = 0;
  bool shq = false;
  bool thq = false;
  bool placed = false;
};

class Compiler {
 public:
  Compiler(const std::vector<Block>& blocks, std::vector<std::string>* errors) : blocks_(blocks), errors_(errors) {}

  bool Run() {
    const Block* scenario = Single("scenario", true);
    const Block* map = Single("map", true);
    if (scenario == nullptr || map == nullptr) return false;
    for (const Block& b : blocks_) {
      static const std::set<std::string> kKinds = {"scenario", "map",    "land",     "owner", "roads",  "rivers",
                                                   "rules",    "people", "research", "type",  "regime", "diplomacy",
                                                   "town",     "unit",   "officer",  "event"};
      if (kKinds.count(b.kind) == 0) Error(b.where, "unknown block [" + b.kind + "]");
    }

    long long seed = 1;
    if (const Entry* e = Find(*scenario, "Seed")) Whole(*e, &seed, 0, 4000000000LL);
    long long w = 0, h = 0;
    const Entry* we = Find(*map, "Width");
    const Entry* he = Find(*map, "Height");
    if (we == nullptr || he == nullptr) {
      Error(map->where, "[map] needs Width and Height");
      return false;
    }
    if (!Whole(*we, &w, kMapMin, kMapCap) || !Whole(*he, &h, kMapMin, kMapCap)) return false;
    for (const Entry& e : map->entries) {
      if (e.key != "Width" && e.key != "Height") Error(e.where, "[map] knows only Width and Height, not " + e.key);
    }

    // A scenario starts from a full clear with the rules at their defaults.
    StartFresh(static_cast<std::uint32_t>(seed));
    MakeItSo(true, std::to_string(w), std::to_string(h));
    UI.EditMode = 1;

    Rules();
    Peoples();
    ResearchFields();
    Types();
    GameFields(*scenario);
    Regimes();
    Diplomacy();
    Map();
    Units();
    Towns();
    PoolOfficers();
    Events();
    if (!errors_->empty()) return false;
    Finish();
    return errors_->empty();
  }

 private:
  // ---- helpers ----
  void Error(const std::string& where, const std::string& why) { errors_->push_back(where + ": " + why); }

  std::vector<const Block*> All(const std::string& kind) const {
    std::vector<const Block*> out;
    for (const Block& b : blocks_) {
      if (b.kind == kind) out.push_back(&b);
    }
    return out;
  }

  const Block* Single(const std::string& kind, bool required) {
    const auto all = All(kind);
    if (all.size() > 1) Error(all[1]->where, "a second [" + kind + "] block");
    if (all.empty()) {
      if (required) errors_->push_back("the source has no [" + kind + "] block");
      return nullptr;
    }
    return all[0];
  }

  static const Entry* Find(const Block& b, const std::string& key) {
    for (const Entry& e : b.entries) {
      if (e.key == key) return &e;
    }
    return nullptr;
  }

  bool Whole(const Entry& e, long long* v, long long lo, long long hi) {
    if (e.multi || !ParseWhole(e.value, v)) {
      Error(e.where, e.key + ": \"" + e.value + "\" is not a whole number");
      return false;
    }
    if (*v < lo || *v > hi) {
      Error(e.where, e.key + ": " + e.value + " is outside " + std::to_string(lo) + ".." + std::to_string(hi));
      return false;
    }
    return true;
  }

  // The number of a block header such as [type 12], within 1..cap.
  int BlockNumber(const Block& b, int cap) {
    long long n = 0;
    if (!ParseWhole(b.label, &n) || n < 1 || n > cap) {
      Error(b.where, "[" + b.kind + " N] needs a number 1.." + std::to_string(cap) + ", not \"" + b.label + "\"");
      return 0;
    }
    return static_cast<int>(n);
  }

  // Numbered blocks of one kind, checked to run 1..n without gaps or repeats.
  std::map<int, const Block*> Numbered(const std::string& kind, int cap) {
    std::map<int, const Block*> out;
    for (const Block* b : All(kind)) {
      const int n = BlockNumber(*b, cap);
      if (n == 0) continue;
      if (out.count(n)) {
        Error(b->where, "[" + kind + " " + std::to_string(n) + "] is given twice");
        continue;
      }
      out[n] = b;
    }
    int expect = 1;
    for (const auto& [n, b] : out) {
      if (n != expect) {
        Error(b->where,
              "[" + kind + "] numbers must run from 1 without gaps; " + std::to_string(expect) + " is missing");
        break;
      }
      ++expect;
    }
    return out;
  }

  void Set(const std::string& field, const std::string& value, const std::string& where) {
    std::string why;
    if (!SetField(field, value, &why)) Error(where, why);
  }
  void SetNum(const std::string& field, long long value, const std::string& where) {
    Set(field, std::to_string(value), where);
  }

  // A text as the file can hold it: Windows-1252, one line unless it is a
  // long text, no comma (the reader would cut the field there) and no
  // leading double quote (the reader would take it as a quoted field).
  bool CheckText(const Entry& e, bool longText) {
    if (e.multi && !longText) {
      Error(e.where, e.key + ": this text is one line in the file; \"|\" lines are for long texts");
      return false;
    }
    if (Cp1252ToUtf8(Utf8ToCp1252(e.value)) != e.value) {
      Error(e.where, e.key + ": a character the file's code page (Windows-1252) cannot hold");
      return false;
    }
    if (!longText && e.value.find(',') != std::string::npos) {
      Error(e.where, e.key + ": a comma would cut this text in the file");
      return false;
    }
    if (!e.value.empty() && e.value[0] == '"') {
      Error(e.where, e.key + ": a text may not begin with a double quote");
      return false;
    }
    if (longText && e.value.find("//x//") != std::string::npos) {
      Error(e.where, e.key + ": \"//x//\" is the file's own line break mark");
      return false;
    }
    return true;
  }

  // A number given as digits or by a name: of a unit type, research field,
  // people, regime or unit label (those allowed by kinds). "type:Name" and
  // the like pick the table when a name is ambiguous.
  bool Number(const Entry& e, unsigned kinds, long long* v) { return NumberText(e.value, kinds, e, v); }

  bool NumberText(const std::string& text, unsigned kinds, const Entry& e, long long* v) {
    if (e.multi) {
      Error(e.where, e.key + ": a number takes one line");
      return false;
    }
    if (ParseWhole(text, v)) return true;
    std::string name = TrimAll(text);
    for (const SymbolPrefix& p : kPrefixes) {
      if (Lower(name).rfind(p.prefix, 0) == 0) {
        if ((kinds & p.kind) == 0) {
          Error(e.where, e.key + ": takes no " + p.word);
          return false;
        }
        kinds = p.kind;
        name = TrimAll(name.substr(std::string(p.prefix).size()));
        break;
      }
    }
    const std::string key = Lower(name);
    std::vector<std::pair<const char*, int>> hits;
    auto look = [&](unsigned kind, const std::map<std::string, int>& table, const char* word) {
      if ((kinds & kind) == 0) return;
      auto it = table.find(key);
      if (it != table.end()) hits.emplace_back(word, it->second);
    };
    look(kSymType, types_, "unit type");
    look(kSymResearch, research_, "research field");
    look(kSymPeople, peoples_, "people");
    look(kSymRegime, regimes_, "regime");
    look(kSymUnit, unitLabels_, "unit");
    if (hits.empty()) {
      Error(e.where, e.key + ": \"" + name + "\" is neither a number nor a known name");
      return false;
    }
    if (hits.size() > 1) {
      Error(e.where, e.key + ": \"" + name + "\" names both a " + hits[0].first + " and a " + hits[1].first +
                         "; write type:, research:, people:, regime: or unit: before it");
      return false;
    }
    *v = hits[0].second;
    return true;
  }

  // A field of a record by its rules name: "Regime[2]." + "PP".
  void SetGeneric(const std::string& record, const std::string& prefix, const Entry& e) {
    const std::string field = BareField(e.key);
    if (IsTextField(record, field)) {
      if (CheckText(e, IsLongTextField(record, field))) Set(prefix + e.key, e.value, e.where);
      return;
    }
    long long v = 0;
    if (Number(e, kSymAll, &v)) SetNum(prefix + e.key, v, e.where);
  }

  // A list of names or numbers separated by commas (or line breaks).
  std::vector<std::string> List(const Entry& e) {
    std::string all = e.value;
    std::replace(all.begin(), all.end(), '\r', ',');
    std::replace(all.begin(), all.end(), '\n', ',');
    std::vector<std::string> out;
    for (const std::string& part : Split(all, ',')) {
      const std::string t = TrimAll(part);
      if (!t.empty()) out.push_back(t);
    }
    return out;
  }

  // A unit named by its label (or number) that the source made; 0 with a fault otherwise.
  int UnitRef(const Entry& e) {
    long long v = 0;
    if (!Number(e, kSymUnit, &v)) return 0;
    for (const UnitSource& s : units_) {
      if (s.u == v) return s.u;
    }
    Error(e.where, e.key + ": no unit of this scenario is " + e.value);
    return 0;
  }

  bool HexAt(const Entry& e, int* x, int* y) {
    const auto parts = Split(e.value, ',');
    long long a = 0, b = 0;
    if (e.multi || parts.size() != 2 || !ParseWhole(parts[0], &a) || !ParseWhole(parts[1], &b)) {
      Error(e.where, e.key + ": expected \"x,y\", not \"" + e.value + "\"");
      return false;
    }
    if (!ValidHex(static_cast<int>(a), static_cast<int>(b))) {
      Error(e.where, e.key + ": " + e.value + " is off the map");
      return false;
    }
    *x = static_cast<int>(a);
    *y = static_cast<int>(b);
    return true;
  }

  static bool Yes(const std::string& v) {
    const std::string l = Lower(TrimAll(v));
    return l == "yes" || l == "1" || l == "true";
  }

  // ---- engine variables ----
  void Rules() {
    for (const Block* b : All("rules")) {
      for (const Entry& e : b->entries) {
        if (BareField(e.key) != "EngineVar") {
          Error(e.where, "[rules] takes EngineVar[n] = value, not " + e.key);
          continue;
        }
        long long v = 0;
        if (Number(e, 0, &v)) SetNum(e.key, v, e.where);
      }
    }
  }

  // ---- peoples ----
  void Peoples() {
    const auto peoples = Numbered("people", kPeopleCap);
    SetNum("Game.PeopleCount", static_cast<long long>(peoples.size()), "peoples");
    for (const auto& [p, b] : peoples) {
      const std::string prefix = "People[" + std::to_string(p) + "].";
      for (const Entry& e : b->entries) {
        if (e.key == "FirstNames" || e.key == "LastNames") {
          const auto names = List(e);
          if (static_cast<int>(names.size()) > kPeopleNames) {
            Error(e.where, e.key + ": at most " + std::to_string(kPeopleNames) + " names");
            continue;
          }
          std::set<std::string> seen;
          for (std::size_t k = 0; k < names.size(); ++k) {
            Entry one{e.key, names[k], false, e.where};
            if (names[k].size() < 2) Error(e.where, e.key + ": \"" + names[k] + "\" is too short to count as a name");
            if (!seen.insert(names[k]).second) Error(e.where, e.key + ": \"" + names[k] + "\" is given twice");
            if (CheckText(one, false)) {
              const char* field = e.key == "FirstNames" ? "FirstName" : "LastName";
              Set(prefix + field + "[" + std::to_string(k + 1) + "]", names[k], e.where);
            }
          }
          continue;
        }
        SetGeneric("People", prefix, e);
      }
      if (People[p].Name.size() < 2) Error(b->where, "a people needs a Name");
    }
    for (const auto& [p, b] : peoples) peoples_[Lower(People[p].Name)] = p;
  }

  // ---- research ----
  void ResearchFields() {
    const auto fields = Numbered("research", kResearchCap);
    for (const auto& [f, b] : fields) {
      const Entry* name = Find(*b, "Name");
      if (name == nullptr) {
        Error(b->where, "a research field needs a Name");
        continue;
      }
      research_[Lower(name->value)] = f;
    }
    for (const auto& [f, b] : fields) {
      const std::string prefix = "Research[" + std::to_string(f) + "].";
      for (const Entry& e : b->entries) {
        if (e.key == "Need1" || e.key == "Need2") {
          long long v = 0;
          if (Number(e, kSymResearch, &v)) SetNum(prefix + e.key, v, e.where);
          continue;
        }
        SetGeneric("Research", prefix, e);
      }
    }
  }

  // ---- unit types ----
  void Types() {
    const auto types = Numbered("type", kTypeCap);
    SetNum("Game.TypeCount", static_cast<long long>(types.size()), "types");
    for (const auto& [t, b] : types) {
      const Entry* name = Find(*b, "Name");
      if (name == nullptr) {
        Error(b->where, "a unit type needs a Name");
        continue;
      }
      if (types_.count(Lower(name->value))) Error(name->where, "a second unit type named " + name->value);
      types_[Lower(name->value)] = t;
    }
    for (const auto& [t, b] : types) {
      const std::string prefix = "Type[" + std::to_string(t) + "].";
      bool living = false, owning = false;
      for (const Entry& e : b->entries) {
        int attr = 0;
        for (int a = 1; a <= kTypeAttrs; ++a) {
          if (Lower(TypeAttrLabel(a)) == Lower(e.key)) attr = a;
        }
        if (attr > 0) {
          long long v = 0;
          if (Number(e, 0, &v)) SetNum(prefix + "Attr[" + std::to_string(attr) + "]", v, e.where);
        } else if (e.key == "Theater") {
          long long v = 0;
          if (TheaterValue(e, &v)) SetNum(prefix + "Theater", v, e.where);
        } else if (e.key == "Class") {
          long long v = 0;
          if (Whole(e, &v, 1, 4)) SetNum(prefix + "Class", v, e.where);
        } else if (e.key == "Research") {
          long long v = 0;
          if (Number(e, kSymResearch, &v)) SetNum(prefix + "Research", v, e.where);
        } else if (e.key == "Living" || e.key == "Owning") {
          (e.key == "Living" ? living : owning) = true;
          PeopleFlags(prefix + e.key, e);
        } else {
          SetGeneric("Type", prefix, e);
        }
      }
      // A type no people is named for is open to every people.
      for (int p = 1; p <= Game.PeopleCount; ++p) {
        if (!living) Type[t].Living[p] = 1;
        if (!owning) Type[t].Owning[p] = 1;
      }
      if (Type[t].Class < 1) Error(b->where, "a unit type needs a Class 1..4");
    }
  }

  bool TheaterValue(const Entry& e, long long* v) {
    const std::string l = Lower(e.value);
    if (l == "land")
      *v = kLandTheater;
    else if (l == "sea")
      *v = kSeaTheater;
    else if (l == "air")
      *v = kAirTheater;
    else
      return Whole(e, v, 0, 2);
    return true;
  }

  // "all", "none" or a list of peoples by name or number.
  void PeopleFlags(const std::string& field, const Entry& e) {
    const std::string l = Lower(e.value);
    for (int p = 1; p <= Game.PeopleCount; ++p)
      SetNum(field + "[" + std::to_string(p) + "]", l == "all" ? 1 : 0, e.where);
    if (l == "all" || l == "none") return;
    for (const std::string& item : List(e)) {
      long long p = 0;
      if (!NumberText(item, kSymPeople, e, &p)) continue;
      if (p < 1 || p > Game.PeopleCount) {
        Error(e.where, e.key + ": there is no people " + item);
        continue;
      }
      SetNum(field + "[" + std::to_string(p) + "]", 1, e.where);
    }
  }

  // ---- the game's own fields ----
  void GameFields(const Block& b) {
    for (const Entry& e : b.entries) {
      if (e.key == "Seed") continue;
      SetGeneric("Game", "Game.", e);
    }
    if (Game.ScenarioStory.size() < 2) Error(b.where, "a scenario needs its ScenarioStory");
  }

  // ---- regimes ----
  void Regimes() {
    const auto regimes = Numbered("regime", kSightRegimes);
    SetNum("Game.RegimeCount", static_cast<long long>(regimes.size()), "regimes");
    for (const auto& [r, b] : regimes) {
      SetNewRegimeDefaults(r);
      const std::string prefix = "Regime[" + std::to_string(r) + "].";
      for (const Entry& e : b->entries) {
        if (e.key == "Research") {
          for (const std::string& item : List(e)) {
            long long f = 0;
            if (NumberText(item, kSymResearch, e, &f))
              SetNum(prefix + "Research[" + std::to_string(f) + "]", 1, e.where);
          }
        } else if (e.key == "OwnPeople") {
          long long p = 0;
          if (Number(e, kSymPeople, &p)) SetNum(prefix + e.key, p, e.where);
        } else {
          SetGeneric("Regime", prefix, e);
        }
      }
      const RegimeRec& re = Regime[r];
      if (re.Name.size() < 2) Error(b->where, "a regime needs a Name");
      if (re.OwnPeople < 1 || re.OwnPeople > Game.PeopleCount) Error(b->where, "a regime needs its OwnPeople");
      if (re.PortraitSet < 1 || re.PortraitSet > kPortraitSets) {
        Error(b->where, "a regime needs a PortraitSet 1.." + std::to_string(kPortraitSets));
      }
      if (re.HexSprite < 1 || re.HexSprite > 15) Error(b->where, "a regime needs a HexSprite (its colour) 1..15");
      if (re.Intro.size() < 2) Error(b->where, "a regime needs its briefing, Intro");
      regimes_[Lower(re.Name)] = r;
    }
  }

  // Every pair of regimes starts at war with a relation that cannot be
  // changed (a stored cost of 0 would read back as 999, so the 999 is
  // written out); [diplomacy] lines "1-2 = peace 40" set both directions.
  void Diplomacy() {
    for (int a = 1; a <= Game.RegimeCount; ++a) {
      for (int c = 1; c <= Game.RegimeCount; ++c) {
        Dip[a][c] = DipRec{};
        Dip[a][c].Cost = 999;
      }
    }
    for (const Block* b : All("diplomacy")) {
      for (const Entry& e : b->entries) {
        const auto pair = Split(e.key, '-');
        long long a = 0, c = 0;
        if (pair.size() != 2 || !ParseWhole(pair[0], &a) || !ParseWhole(pair[1], &c) || a < 1 || c < 1 ||
            a > Game.RegimeCount || c > Game.RegimeCount || a == c) {
          Error(e.where, "expected two different regimes \"A-B\", not " + e.key);
          continue;
        }
        const auto words = Split(TrimAll(e.value), ' ');
        const std::string rel = Lower(words[0]);
        long long cost = 999;
        if ((rel != "war" && rel != "peace") || words.size() > 2 ||
            (words.size() == 2 && (!ParseWhole(words[1], &cost) || cost < 1 || cost > 999))) {
          Error(e.where, "expected \"war\" or \"peace\" and a cost 1..999, not \"" + e.value + "\"");
          continue;
        }
        for (int k = 0; k < 2; ++k) {
          DipRec& d = k == 0 ? Dip[a][c] : Dip[c][a];
          d.Relation = rel == "peace" ? 1 : 0;
          d.Cost = static_cast<Long>(cost);
        }
      }
    }
  }

  // ---- the map ----
  const std::vector<Row>* Layer(const char* kind, bool required) {
    const Block* b = Single(kind, required);
    if (b == nullptr) return nullptr;
    if (static_cast<int>(b->rows.size()) != Game.MapH) {
      Error(b->where, std::string("[") + kind + "] has " + std::to_string(b->rows.size()) + " rows; the map is " +
                          std::to_string(Game.MapH) + " high");
      return nullptr;
    }
    for (const Row& r : b->rows) {
      if (static_cast<int>(r.text.size()) != Game.MapW) {
        Error(r.where, std::string("[") + kind + "] row of " + std::to_string(r.text.size()) + " hexes; the map is " +
                           std::to_string(Game.MapW) + " wide");
        return nullptr;
      }
    }
    return &b->rows;
  }

  void Map() {
    if (const auto* land = Layer("land", true)) {
      for (int y = 1; y <= Game.MapH; ++y) {
        const Row& row = (*land)[static_cast<std::size_t>(y - 1)];
        for (int x = 1; x <= Game.MapW; ++x) {
          const char c = row.text[static_cast<std::size_t>(x - 1)];
          const std::string legend = ".fo~s^";
          const std::size_t at = legend.find(c);
          if (at == std::string::npos) {
            Error(row.where, std::string("unknown landscape '") + c + "' (. f o ~ s ^)");
            continue;
          }
          Hex[x][y].Land = static_cast<Long>(at + 1);
        }
      }
    }
    if (const auto* owner = Layer("owner", false)) {
      for (int y = 1; y <= Game.MapH; ++y) {
        const Row& row = (*owner)[static_cast<std::size_t>(y - 1)];
        for (int x = 1; x <= Game.MapW; ++x) {
          const char c = row.text[static_cast<std::size_t>(x - 1)];
          int r = -1;
          if (c == '.' || c == '~')
            r = 0;
          else if (c >= '1' && c <= '9')
            r = c - '0';
          else if (c == 'A' || c == 'a')
            r = 10;
          if (r < 0 || r > Game.RegimeCount) {
            Error(row.where, std::string("owner '") + c + "' at " + XY(x, y) + " is no regime of this scenario");
            continue;
          }
          if (r > 0 && Hex[x][y].Land == kSea) {
            Error(row.where, "sea is never owned: " + XY(x, y));
            continue;
          }
          Hex[x][y].Owner = r;
        }
      }
    }
    if (const auto* roads = Layer("roads", false)) {
      for (int y = 1; y <= Game.MapH; ++y) {
        const Row& row = (*roads)[static_cast<std::size_t>(y - 1)];
        for (int x = 1; x <= Game.MapW; ++x) {
          const char c = row.text[static_cast<std::size_t>(x - 1)];
          if (c == '.' || c == '~') continue;
          if (c != '=') {
            Error(row.where, std::string("unknown road mark '") + c + "' (= or .)");
            continue;
          }
          if (Hex[x][y].Land == kSea) {
            Error(row.where, "no road runs over sea: " + XY(x, y));
            continue;
          }
          Hex[x][y].Road = 1;
        }
      }
    }
    for (const Block* b : All("rivers")) {
      for (const Entry& e : b->entries) {
        std::string all = e.value;
        std::replace(all.begin(), all.end(), '\r', ' ');
        std::replace(all.begin(), all.end(), '\n', ' ');
        for (const std::string& item : Split(all, ' ')) {
          if (item.empty()) continue;
          River(item, e.where);
        }
      }
    }
  }

  static std::string XY(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

  // One river side "x,y:x,y" between two neighbouring land hexes; both hexes
  // carry it, each on its own side.
  void River(const std::string& item, const std::string& where) {
    const auto ends = Split(item, ':');
    int pts[4] = {0, 0, 0, 0};
    bool ok = ends.size() == 2;
    for (std::size_t k = 0; ok && k < 2; ++k) {
      const auto xy = Split(ends[k], ',');
      long long a = 0, b = 0;
      ok = xy.size() == 2 && ParseWhole(xy[0], &a) && ParseWhole(xy[1], &b) &&
           ValidHex(static_cast<int>(a), static_cast<int>(b));
      pts[2 * k] = static_cast<int>(a);
      pts[2 * k + 1] = static_cast<int>(b);
    }
    if (!ok) {
      Error(where, "a river side is \"x,y:x,y\" of two hexes on the map, not \"" + item + "\"");
      return;
    }
    int dir = 0;
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(pts[0], pts[1], d);
      if (n.x == pts[2] && n.y == pts[3]) dir = d;
    }
    if (dir == 0) {
      Error(where, "river side " + item + ": the hexes are not neighbours");
      return;
    }
    if (Hex[pts[0]][pts[1]].Land == kSea || Hex[pts[2]][pts[3]].Land == kSea) {
      Error(where, "river side " + item + ": rivers run between land hexes");
      return;
    }
    Hex[pts[0]][pts[1]].River[dir] = 1;
    Hex[pts[2]][pts[3]].River[(dir + 2) % kHexSides + 1] = 1;
  }

  // ---- units ----
  void Units() {
    std::vector<UnitSource>& units = units_;
    // First every unit gets its number, so that bosses and cargo can be named
    // before or after the unit that names them.
    int autoLabel = 0;
    for (const Block* b : All("unit")) {
      UnitSource s;
      s.block = b;
      const Entry* re = Find(*b, "Regime");
      long long r = 0;
      if (re == nullptr) {
        Error(b->where, "a unit needs its Regime");
        continue;
      }
      if (!Number(*re, kSymRegime, &r)) continue;
      if (r < 1 || r > Game.RegimeCount) {
        Error(re->where, "Regime: there is no regime " + re->value);
        continue;
      }
      s.regime = static_cast<int>(r);
      s.u = NewUnitNumber();
      if (s.u == 0) {
        Error(b->where, "no free unit number");
        return;
      }
      Unit[s.u].Regime = s.regime;
      const std::string label = b->label.empty() ? "#" + std::to_string(++autoLabel) : b->label;
      if (unitLabels_.count(Lower(label))) Error(b->where, "a second unit labelled " + label);
      unitLabels_[Lower(label)] = s.u;
      units.push_back(s);
    }
    for (UnitSource& s : units) UnitFields(s);
    for (UnitSource& s : units) UnitLinks(s);
    for (UnitSource& s : units) UnitOfficer(s);
  }

  // The four strength slots of a unit by their keys.
  static const std::map<std::string, int>& Slots() {
    static const std::map<std::string, int> slots = {{"Inf", 1}, {"Mob", 2}, {"Art", 3}, {"Arm", 4}};
    return slots;
  }

  void UnitFields(UnitSource& s) {
    const Block& b = *s.block;
    const int u = s.u;
    const std::string prefix = "Unit[" + std::to_string(u) + "].";
    UnitRec& un = Unit[u];
    const Entry* theater = Find(b, "Theater");
    s.shq = Find(b, "Shq") != nullptr && Yes(Find(b, "Shq")->value);
    s.thq = Find(b, "Thq") != nullptr && Yes(Find(b, "Thq")->value);
    if (s.shq && s.thq) Error(b.where, "a unit is either an SHQ or a THQ");
    // A scenario's troops start rested; experience is that of a new unit.
    un.Readiness = s.shq ? 25 : 100;
    un.Experience = 25;
    int typeTheater = -1;
    for (const Entry& e : b.entries) {
      auto slot = Slots().find(e.key);
      if (slot == Slots().end()) continue;
      long long t = 0, q = 0;
      if (!TypeAndQty(e.value, e, &t, &q)) continue;
      if (Type[t].Class != slot->second) {
        Error(e.where, e.key + ": " + Type[t].Name + " is of class " + std::to_string(Type[t].Class) +
                           ", this slot takes class " + std::to_string(slot->second));
        continue;
      }
      if (typeTheater >= 0 && Type[t].Theater != typeTheater) Error(e.where, "the troops of a unit share one theater");
      typeTheater = Type[t].Theater;
      UnitSlotType(u, slot->second) = static_cast<Long>(t);
      UnitSlotQty(u, slot->second) = static_cast<Long>(q);
    }
    long long th = typeTheater < 0 ? kLandTheater : typeTheater;
    if (theater != nullptr) {
      long long given = 0;
      if (TheaterValue(*theater, &given) && typeTheater >= 0 && given != typeTheater) {
        Error(theater->where, "Theater: the troops of this unit are of another theater");
      }
      th = given;
    }
    if ((s.shq || s.thq) && th != kLandTheater) Error(b.where, "HQs are land units");
    s.theater = static_cast<int>(th);
    un.Theater = s.theater;
    if (s.shq) {
      Game.CurRegime = s.regime;
      const int n = NewShqNumber();
      Game.CurRegime = 0;
      if (n == 0) {
        Error(b.where, "no free SHQ number");
      } else {
        un.Shq = n;
        SetNum("Shq[" + std::to_string(s.regime) + "," + std::to_string(n) + "].Unit", u, b.where);
      }
    }
    if (s.thq) un.Thq = 1;
    const bool troopsGiven = Find(b, "Inf") || Find(b, "Mob") || Find(b, "Art") || Find(b, "Arm");
    if (!s.shq && !s.thq && !troopsGiven) Error(b.where, "a formation needs troops (Inf, Mob, Art or Arm)");

    static const std::set<std::string> kSpecial = {"Regime", "Theater", "Shq",         "Thq",    "Inf",
                                                   "Mob",    "Art",     "Arm",         "At",     "Boss",
                                                   "Cargo",  "Stock",   "SupplyStock", "Officer"};
    for (const Entry& e : b.entries) {
      if (kSpecial.count(e.key) || e.key.rfind("Officer.", 0) == 0) continue;
      SetGeneric("Unit", prefix, e);
    }
    if (Find(b, "Name") == nullptr) Error(b.where, "a unit needs a Name");
    if (const Entry* e = Find(b, "SupplyStock")) {
      long long v = 0;
      if (!s.shq)
        Error(e->where, "SupplyStock is the stock of an SHQ");
      else if (Whole(*e, &v, 0, 1000000))
        un.SupplyPct = static_cast<Long>(v);
    }
    if (const Entry* e = Find(b, "Stock")) {
      if (!s.shq)
        Error(e->where, "Stock is the pool of an SHQ");
      else
        Stock(s, *e);
    }
    if (const Entry* e = Find(b, "At")) {
      int x = 0, y = 0;
      if (HexAt(*e, &x, &y)) Place(s, x, y, *e);
    }
  }

  // "Rifle Infantry x 40": a unit type and a quantity of at least 1.
  bool TypeAndQty(const std::string& text, const Entry& e, long long* t, long long* q) {
    const std::size_t x = Lower(text).rfind(" x ");
    if (x == std::string::npos) {
      Error(e.where, e.key + ": expected \"Type name x quantity\", not \"" + text + "\"");
      return false;
    }
    if (!NumberText(text.substr(0, x), kSymType, e, t)) return false;
    if (*t < 1 || *t > Game.TypeCount) {
      Error(e.where, e.key + ": there is no unit type " + std::to_string(*t));
      return false;
    }
    if (!ParseWhole(text.substr(x + 3), q) || *q < 1 || *q > 100000) {
      Error(e.where, e.key + ": the quantity of \"" + text + "\" is not a whole number 1..100000");
      return false;
    }
    return true;
  }

  // "Trucks x 20, Rifle Infantry x 10": the pool of an SHQ.
  void Stock(const UnitSource& s, const Entry& e) {
    int slot = 0;
    for (const std::string& item : List(e)) {
      long long t = 0, q = 0;
      if (!TypeAndQty(item, e, &t, &q)) continue;
      ++slot;
      const std::string shq = "Shq[" + std::to_string(s.regime) + "," + std::to_string(Unit[s.u].Shq) + "].";
      SetNum(shq + "StockType[" + std::to_string(slot) + "]", t, e.where);
      SetNum(shq + "StockQty[" + std::to_string(slot) + "]", q, e.where);
    }
  }

  void Place(UnitSource& s, int x, int y, const Entry& e) {
    HexRec& h = Hex[x][y];
    const std::string at = "At " + XY(x, y) + ": ";
    if (s.theater == kSeaTheater) {
      bool port = false;
      for (int d = 1; d <= kHexSides; ++d) {
        const HexXY n = Neighbour(x, y, d);
        if (n.x > 0 && n.y > 0 && Hex[n.x][n.y].Land == kSea) port = true;
      }
      if (h.Land != kSea && !(h.Land == kUrban && port)) Error(e.where, at + "ships lie at sea or in a port");
    } else if (s.theater == kAirTheater) {
      if (h.Land != kGrass && h.Land != kUrban) Error(e.where, at + "air wings stand on grass or in a town");
    } else if (h.Land == kSea) {
      Error(e.where, at + "land units cannot stand at sea");
    }
    if (h.Land != kSea && h.Owner != s.regime) Error(e.where, at + "the hex is not owned by the unit's regime");
    int slot = 1;
    while (slot <= kStackSlots && h.Unit[slot] != 0) ++slot;
    if (slot > kStackSlots) {
      Error(e.where, at + "three units stand there already");
      return;
    }
    if (slot > 1 && Unit[h.Unit[1]].Regime != s.regime) Error(e.where, at + "units of another regime stand there");
    h.Unit[slot] = s.u;
    s.placed = true;
  }

  void UnitLinks(const UnitSource& s) {
    const Block& b = *s.block;
    UnitRec& un = Unit[s.u];
    if (const Entry* e = Find(b, "Boss")) {
      const int boss = UnitRef(*e);
      if (boss > 0) {
        const UnitRec& bu = Unit[boss];
        if (bu.Regime != s.regime)
          Error(e->where, "Boss: the boss serves another regime");
        else if (s.shq)
          Error(e->where, "Boss: an SHQ has no boss");
        else if (s.thq && bu.Shq == 0)
          Error(e->where, "Boss: a THQ reports to an SHQ");
        else if (bu.Shq == 0 && bu.Thq == 0)
          Error(e->where, "Boss: a formation reports to a THQ or an SHQ");
        else
          un.Boss = boss;
      }
    } else if (!s.shq) {
      Error(b.where, "every unit but an SHQ needs a Boss");
    }
    if (const Entry* e = Find(b, "Cargo")) {
      const int c = UnitRef(*e);
      if (c == 0) return;
      const UnitSource* cargo = nullptr;
      for (const UnitSource& o : units_) {
        if (o.u == c) cargo = &o;
      }
      const UnitRec& cu = Unit[c];
      if (s.theater != kSeaTheater) {
        Error(e->where, "Cargo: only ships carry cargo");
      } else if (cu.Regime != s.regime || c == s.u) {
        Error(e->where, "Cargo: the cargo must be another unit of the same regime");
      } else if (Find(*cargo->block, "At") != nullptr) {
        Error(e->where, "Cargo: a unit on board has no At");
      } else if (cu.Theater == kSeaTheater || cu.Shq > 0) {
        Error(e->where, "Cargo: ships and SHQs are not carried");
      } else if (cargoOf_.count(c)) {
        Error(e->where, "Cargo: the unit is on board another ship already");
      } else {
        long long weight = 0;
        for (int k = 1; k <= 4; ++k)
          weight += static_cast<long long>(Type[UnitSlotType(c, k)].Attr[kWeight]) * UnitSlotQty(c, k);
        const int by = cu.Theater == kAirTheater ? 3 : 2;
        const long long cap =
            static_cast<long long>(Type[UnitSlotType(s.u, by)].Attr[kCarryCap]) * UnitSlotQty(s.u, by);
        if (weight > cap) {
          Error(e->where, "Cargo: weighs " + std::to_string(weight) + ", the ships carry " + std::to_string(cap));
        } else {
          un.Cargo = c;
          cargoOf_[c] = s.u;
        }
      }
    }
  }

  void UnitOfficer(UnitSource& s) {
    const Block& b = *s.block;
    if (!s.placed && cargoOf_.count(s.u) == 0) Error(b.where, "a unit needs At, or to be some ship's Cargo");
    const Entry* e = Find(b, "Officer");
    const std::string how = e == nullptr ? "auto" : e->value;
    if (Lower(how) == "none") return;
    const int o = MakeOfficerFor(s.regime, Lower(how) == "auto" ? "" : how, b, e == nullptr ? b.where : e->where);
    if (o > 0) {
      Unit[s.u].Officer = o;
      Officer[o].InPool = 0;
    }
  }

  // An officer drawn as the game draws one (names from the regime's people,
  // skills by the officer ladder of the rules, retreat by its two rows), but
  // from the compiler's own seeded generator, so that every build of a
  // scenario gives the same officers; the portrait is the next free one of
  // the regime's set. Keys "Officer.Land" and so on of the block override.
  int MakeOfficerFor(int r, const std::string& name, const Block& b, const std::string& where) {
    int o = 1;
    while (o <= kOfficerCap && Officer[o].Regime != 0) ++o;
    if (o > kOfficerCap) {
      Error(where, "no free officer row");
      return 0;
    }
    const RegimeRec& re = Regime[r];
    const PeopleRec& pe = People[re.OwnPeople];
    std::vector<const std::string*> firsts, lasts;
    for (int k = 1; k <= kPeopleNames; ++k) {
      if (pe.FirstName[k].size() > 1) firsts.push_back(&pe.FirstName[k]);
      if (pe.LastName[k].size() > 1) lasts.push_back(&pe.LastName[k]);
    }
    std::string full = name;
    if (full.empty()) {
      if (firsts.empty() || lasts.empty()) {
        Error(where, "the regime's people has no names to give an officer");
        return 0;
      }
      // Two officers of one scenario do not share a name.
      for (int tries = 0; tries < 50; ++tries) {
        full = *firsts[static_cast<std::size_t>(Int(Rnd() * firsts.size()))] + " " +
               *lasts[static_cast<std::size_t>(Int(Rnd() * lasts.size()))];
        if (officerNames_.count(full) == 0) break;
      }
    }
    officerNames_.insert(full);
    Entry text{"Officer", full, false, where};
    if (!CheckText(text, false)) return 0;

    OfficerRec& of = Officer[o];
    of = OfficerRec{};
    of.Regime = r;
    of.InPool = 1;
    of.Name = full;
    of.Air = Skill();
    of.Land = Skill();
    of.Sea = Skill();
    of.Retreat = static_cast<Long>(Int(Rnd() * EV(478)) + EV(477));
    if (of.Retreat > 95) of.Retreat = 95;
    of.Fame = 0;
    const int set = static_cast<int>(re.PortraitSet);
    of.Pic = NextPortrait(set);
    if (o > Game.OfficerCount) Game.OfficerCount = o;
    const std::string prefix = "Officer[" + std::to_string(o) + "].";
    for (const Entry& e : b.entries) {
      if (e.key.rfind("Officer.", 0) != 0) continue;
      const std::string field = e.key.substr(8);
      if (field != "Land" && field != "Sea" && field != "Air" && field != "Fame" && field != "Retreat" &&
          field != "Pic") {
        Error(e.where, e.key + ": an officer's own keys are Land, Sea, Air, Fame, Retreat and Pic");
        continue;
      }
      long long v = 0;
      if (!Whole(e, &v, 0, field == "Retreat" ? 95 : field == "Pic" ? kPortraitCap : 1000)) continue;
      if (field == "Pic" && (v < (set - 1) * kPortraitsPerSet + 1 || v > set * kPortraitsPerSet)) {
        Error(e.where,
              "Officer.Pic: portrait " + std::to_string(v) + " is not of the regime's set " + std::to_string(set));
        continue;
      }
      SetNum(prefix + field, v, e.where);
    }
    return o;
  }

  // The officer ladder: engine variables 471..476 split a d100 into skills 9..1.
  Long Skill() {
    const long long d = Int(Rnd() * 100);
    if (d < EV(471)) return Rnd() > 0.8f ? 9 : 8;
    if (d < EV(472)) return 7;
    if (d < EV(473)) return 6;
    if (d < EV(474)) return 5;
    if (d < EV(475)) return 4;
    if (d < EV(476)) return Rnd() > 0.5f ? 3 : 2;
    return 1;
  }

  Long NextPortrait(int set) {
    int& next = portraitNext_[set];
    const Long pic = static_cast<Long>((set - 1) * kPortraitsPerSet + next % kPortraitsPerSet + 1);
    ++next;
    return pic;
  }

  // Officers waiting in a regime's pool.
  void PoolOfficers() {
    for (const Block* b : All("officer")) {
      const Entry* re = Find(*b, "Regime");
      long long r = 0;
      if (re == nullptr || !Number(*re, kSymRegime, &r) || r < 1 || r > Game.RegimeCount) {
        Error(b->where, "a pool officer needs the Regime whose pool he waits in");
        continue;
      }
      const Entry* ne = Find(*b, "Name");
      for (const Entry& e : b->entries) {
        if (e.key != "Regime" && e.key != "Name" && e.key.rfind("Officer.", 0) != 0) {
          Error(e.where, "[officer] takes Regime, Name and Officer.Land and the like, not " + e.key);
        }
      }
      MakeOfficerFor(static_cast<int>(r), ne == nullptr || Lower(ne->value) == "auto" ? "" : ne->value, *b, b->where);
    }
  }

  // ---- towns ----
  void Towns() {
    std::set<std::pair<int, int>> towns;
    for (const Block* b : All("town")) {
      const Entry* at = Find(*b, "At");
      int x = 0, y = 0;
      if (at == nullptr) {
        Error(b->where, "a town needs At");
        continue;
      }
      if (!HexAt(*at, &x, &y)) continue;
      if (!towns.insert({x, y}).second) Error(b->where, "a second town at " + XY(x, y));
      HexRec& h = Hex[x][y];
      if (h.Land != kUrban) Error(at->where, "At " + XY(x, y) + ": a town stands on an 'o' hex of [land]");
      h.UrbanName = b->label;
      h.People = h.Owner > 0 ? Regime[h.Owner].OwnPeople : 1;
      const std::string prefix = "Hex[" + XY(x, y) + "].";
      bool shqGiven = false;
      for (const Entry& e : b->entries) {
        if (e.key == "At") continue;
        if (e.key == "Name") {
          if (CheckText(e, false)) h.UrbanName = e.value;
        } else if (e.key == "Prod") {
          const std::string l = Lower(e.value);
          long long v = 0;
          if (l == "pp" || l == "political points")
            v = 0;
          else if (l == "supply")
            v = -1;
          else if (!Number(e, kSymType, &v))
            continue;
          SetNum(prefix + "Prod", v, e.where);
        } else if (e.key == "ProdSHQ") {
          const int v = UnitRef(e);
          if (v == 0) continue;
          shqGiven = true;
          if (Unit[v].Shq == 0)
            Error(e.where, "ProdSHQ: " + e.value + " is no SHQ");
          else if (Unit[v].Regime != h.Owner)
            Error(e.where, "ProdSHQ: the SHQ serves another regime than the town's");
          else
            h.ProdSHQ = v;
        } else if (e.key == "People") {
          long long v = 0;
          if (Number(e, kSymPeople, &v)) {
            if (v < 1 || v > Game.PeopleCount)
              Error(e.where, "People: there is no people " + e.value);
            else
              h.People = static_cast<Long>(v);
          }
        } else if (e.key == "Pop" || e.key == "ProdPts" || e.key == "Damage") {
          long long v = 0;
          if (Whole(e, &v, 0, e.key == "Damage" ? 100 : 250000)) SetNum(prefix + e.key, v, e.where);
        } else {
          Error(e.where, "[town] takes At, Name, Pop, People, Prod, ProdSHQ, ProdPts and Damage, not " + e.key);
        }
      }
      if (h.UrbanName.empty() || h.UrbanName.size() > 20) Error(b->where, "a town's name is 1..20 characters");
      if (h.Pop < 1) Error(b->where, "a town needs its Pop");
      if (h.Owner > 0 && !shqGiven) Error(b->where, "an owned town needs the SHQ it delivers to, ProdSHQ");
      if (h.Owner == 0 && shqGiven) Error(b->where, "a neutral town delivers to nobody");
      if (h.Prod < -1 || h.Prod > Game.TypeCount)
        Error(b->where, "Prod: there is no unit type " + std::to_string(h.Prod));
    }
    for (int x = 1; x <= Game.MapW; ++x) {
      for (int y = 1; y <= Game.MapH; ++y) {
        if (Hex[x][y].Land == kUrban && towns.count({x, y}) == 0) {
          errors_->push_back("the 'o' hex " + XY(x, y) + " of [land] has no [town]");
        }
      }
    }
  }

  // ---- events ----
  void Events() {
    const auto events = Numbered("event", kEventsCleared - 1);
    SetNum("Game.EventCount", static_cast<long long>(events.size()), "events");
    for (const auto& [n, b] : events) {
      const std::string prefix = "Event[" + std::to_string(n) + "].";
      for (const Entry& e : b->entries) SetGeneric("Event", prefix, e);
      const EventRec& ev = Event[n];
      if (ev.Story.size() < 2) Error(b->where, "an event needs its Story");
      if (ev.Type < 0 || ev.Type > 7) Error(b->where, "an event's Type is 0..7");
      if (ev.Type == 5 && ev.DataText[1].size() < 2)
        Error(b->where, "an event of type 5 names the file to load in DataText[1]");
      if (ev.Type == 4) {
        int choices = 0;
        for (int k = 1; k <= kEventDataText; ++k) choices += ev.DataText[k].size() > 1 ? 1 : 0;
        if (choices == 0) Error(b->where, "an event of type 4 needs the words of its choices, DataText[1..5]");
      }
    }
  }

  // ---- last touches and checks ----
  void Finish() {
    // Counters and badges as a load computes them; a second pass lets each
    // formation take the badge its THQ got in the first.
    const Long editMode = UI.EditMode;
    UI.EditMode = 0;
    for (int pass = 0; pass < 2; ++pass) {
      for (int u = 1; u <= Game.UnitCount; ++u) {
        if (Unit[u].Regime > 0) Counter(u);
      }
    }
    UI.EditMode = editMode;
    // The pool's transport, as the turn start would count it.
    for (int r = 1; r <= Game.RegimeCount; ++r) {
      for (int s = 1; s <= kShqCap; ++s) {
        Long carry = 0;
        for (int k = 1; k <= kStockCap; ++k) {
          const int t = Shq[r][s].StockType[k];
          if (t > 0 && Type[t].Theater == kLandTheater) carry += Shq[r][s].StockQty[k] * Type[t].Attr[kCarryCap];
        }
        Shq[r][s].Carry = carry;
      }
    }
    // Regime serials go on from the formations the scenario gives each regime.
    for (const UnitSource& s : units_) {
      if (!s.shq && Find(*RegimeBlock(s.regime), "UnitSerial") == nullptr) ++Regime[s.regime].UnitSerial;
    }
    for (int t = 1; t <= Game.TypeCount; ++t) {
      for (const BrokenTypeRule& br : BrokenTypeRules(t)) {
        errors_->push_back("[type " + std::to_string(t) + "] " + Type[t].Name + ": " + TypeAttrLabel(br.attr) + ": " +
                           br.message);
      }
    }
    const std::string broken = CheckInvariants();
    if (!broken.empty()) errors_->push_back("the scenario breaks an invariant: " + broken);
  }

  const Block* RegimeBlock(int r) {
    for (const Block* b : All("regime")) {
      long long n = 0;
      if (ParseWhole(b->label, &n) && n == r) return b;
    }
    return &empty_;
  }

  const std::vector<Block>& blocks_;
  std::vector<std::string>* errors_;
  std::map<std::string, int> types_, research_, peoples_, regimes_, unitLabels_;
  std::vector<UnitSource> units_;
  std::map<int, int> cargoOf_;
  std::map<int, int> portraitNext_;
  std::set<std::string> officerNames_;
  Block empty_;
};

}  // namespace

bool CompileContent(const std::string& path, std::vector<std::string>* errors) {
  Parser parser(errors);
  parser.ParseFile(fs::path(path), 0);
  if (!errors->empty()) return false;
  Compiler compiler(parser.blocks, errors);
  return compiler.Run();
}

int CompileCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::string source, output;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "-o" && i + 1 < args.size()) {
      output = args[++i];
    } else if (source.empty() && !args[i].empty() && args[i][0] != '-') {
      source = args[i];
    } else {
      source.clear();
      break;
    }
  }
  if (source.empty() || output.empty()) {
    err << "usage: marrowfield-cli compile SOURCE -o FILE\n";
    return 1;
  }
  // Any message box a game routine shows while the tables are built is a fault of the source.
  Platform& previous = Plat();
  ScriptedPlatform platform;
  InstallPlatform(&platform);
  std::vector<std::string> errors;
  const bool ok = CompileContent(source, &errors);
  for (const std::string& m : platform.Messages()) errors.push_back(source + ": the game said: " + m);
  InstallPlatform(&previous);
  if (!ok || !errors.empty()) {
    for (const std::string& e : errors) err << e << "\n";
    err << "compile: " << source << ": " << errors.size() << " fault" << (errors.size() == 1 ? "" : "s") << "\n";
    return 1;
  }
  // What is written must read back to the very same bytes.
  const std::string plain = SerializeScenario();
  if (!WriteFile(output)) {
    err << "compile: cannot write " << output << "\n";
    return 1;
  }
  StartFresh();
  ParseScenario(plain);
  if (SerializeScenario() != plain) {
    err << "compile: " << output << " does not read back as written\n";
    return 1;
  }
  out << "compiled " << source << " -> " << output << "\n";
  return 0;
}

}  // namespace mf::cli
