// The content compiler's frame: the order of the sections, the lookups and
// value checks they share, and the last touches once every table is filled.
#include "content_compiler.h"

#include <algorithm>
#include <set>
#include <utility>

#include "compile_content.h"
#include "editor/type_rules.h"
#include "files/field_registry.h"
#include "files/text_codec.h"
#include "model/hex_geometry.h"
#include "model/invariants.h"
#include "model/labels.h"
#include "model/reset.h"
#include "view/counter.h"

namespace mf::content {

namespace {

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

}  // namespace

void Compiler::Error(const std::string& where, const std::string& why) { errors_->push_back(where + ": " + why); }

std::vector<const Block*> Compiler::All(const std::string& kind) const {
  std::vector<const Block*> out;
  for (const Block& b : blocks_) {
    if (b.kind == kind) out.push_back(&b);
  }
  return out;
}

const Block* Compiler::Single(const std::string& kind, bool required) {
  const auto all = All(kind);
  if (all.size() > 1) Error(all[1]->where, "a second [" + kind + "] block");
  if (all.empty()) {
    if (required) errors_->push_back("the source has no [" + kind + "] block");
    return nullptr;
  }
  return all[0];
}

const Entry* Compiler::Find(const Block& b, const std::string& key) {
  for (const Entry& e : b.entries) {
    if (e.key == key) return &e;
  }
  return nullptr;
}

bool Compiler::Whole(const Entry& e, long long* v, long long lo, long long hi) {
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
int Compiler::BlockNumber(const Block& b, int cap) {
  long long n = 0;
  if (!ParseWhole(b.label, &n) || n < 1 || n > cap) {
    Error(b.where, "[" + b.kind + " N] needs a number 1.." + std::to_string(cap) + ", not \"" + b.label + "\"");
    return 0;
  }
  return static_cast<int>(n);
}

// Numbered blocks of one kind, checked to run 1..n without gaps or repeats.
std::map<int, const Block*> Compiler::Numbered(const std::string& kind, int cap) {
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

void Compiler::Set(const std::string& field, const std::string& value, const std::string& where) {
  std::string why;
  if (!SetField(field, value, &why)) Error(where, why);
}

void Compiler::SetNum(const std::string& field, long long value, const std::string& where) {
  Set(field, std::to_string(value), where);
}

// A text as the file can hold it: Windows-1252, one line unless it is a
// long text, no comma (the reader would cut the field there) and no
// leading double quote (the reader would take it as a quoted field).
bool Compiler::CheckText(const Entry& e, bool longText) {
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
bool Compiler::Number(const Entry& e, unsigned kinds, long long* v) { return NumberText(e.value, kinds, e, v); }

bool Compiler::NumberText(const std::string& text, unsigned kinds, const Entry& e, long long* v) {
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
void Compiler::SetGeneric(const std::string& record, const std::string& prefix, const Entry& e) {
  const std::string field = BareField(e.key);
  if (IsTextField(record, field)) {
    if (CheckText(e, IsLongTextField(record, field))) Set(prefix + e.key, e.value, e.where);
    return;
  }
  long long v = 0;
  if (Number(e, kSymAll, &v)) SetNum(prefix + e.key, v, e.where);
}

// A list of names or numbers separated by commas (or line breaks).
std::vector<std::string> Compiler::List(const Entry& e) {
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
int Compiler::UnitRef(const Entry& e) {
  long long v = 0;
  if (!Number(e, kSymUnit, &v)) return 0;
  for (const UnitSource& s : units_) {
    if (s.u == v) return s.u;
  }
  Error(e.where, e.key + ": no unit of this scenario is " + e.value);
  return 0;
}

bool Compiler::HexAt(const Entry& e, int* x, int* y) {
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

bool Compiler::Yes(const std::string& v) {
  const std::string l = Lower(TrimAll(v));
  return l == "yes" || l == "1" || l == "true";
}

std::string Compiler::XY(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

bool Compiler::TheaterValue(const Entry& e, long long* v) {
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

bool Compiler::Run() {
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

void Compiler::Finish() {
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

const Block* Compiler::RegimeBlock(int r) {
  for (const Block* b : All("regime")) {
    long long n = 0;
    if (ParseWhole(b->label, &n) && n == r) return b;
  }
  return &empty_;
}

bool CompileContent(const std::string& path, std::vector<std::string>* errors) {
  std::vector<Block> blocks;
  ParseSourceFile(path, &blocks, errors);
  // A source that does not read as blocks builds nothing.
  return errors->empty() && Compiler(blocks, errors).Run();
}

bool CompileContentText(const std::string& text, const std::string& name, std::vector<std::string>* errors) {
  std::vector<Block> blocks;
  ParseSourceText(text, name, &blocks, errors);
  return errors->empty() && Compiler(blocks, errors).Run();
}

}  // namespace mf::content
