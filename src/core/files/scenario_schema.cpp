#include "files/scenario_schema.h"

#include <charconv>
#include <map>
#include <utility>

#include "model/arith.h"

namespace mf {
namespace {

const char* RecName(FieldRec r) {
  switch (r) {
    case FieldRec::kGame: return "Game";
    case FieldRec::kEvent: return "Event";
    case FieldRec::kHex: return "Hex";
    case FieldRec::kPeople: return "People";
    case FieldRec::kOfficer: return "Officer";
    case FieldRec::kRegime: return "Regime";
    case FieldRec::kDip: return "Dip";
    case FieldRec::kShq: return "Shq";
    case FieldRec::kNews: return "News";
    case FieldRec::kUnit: return "Unit";
    case FieldRec::kResearch: return "Research";
    case FieldRec::kType: return "Type";
    case FieldRec::kEngineVar: return "EngineVar";
  }
  return "";
}

bool TwoIndices(FieldRec r) {
  return r == FieldRec::kHex || r == FieldRec::kDip || r == FieldRec::kShq || r == FieldRec::kNews;
}

// Lists the fields a save would write, without touching the tables: the
// values it would write for the version and the stock width come from
// SavedValue, exactly as the writer computes them.
class ListVisitor {
 public:
  std::vector<ListedField> out;

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    Add(n, NumText(value));
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    Add(n, NumText(value));
    return value;
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    const mf::Long value = ref != 0 ? kTrue : kFalse;
    Add(n, NumText(value));
    return value;
  }
  void Text(const FieldName& n, std::string& ref) { Add(n, ref); }
  void LongText(const FieldName& n, std::string& ref) { Add(n, ref); }
  void Assign(const FieldName&, mf::Long&, mf::Long) {}
  bool HeadHasFog(mf::Long) { return true; }
  bool Proceed(mf::Long) { return true; }

 private:
  void Add(const FieldName& n, std::string value) { out.push_back({n.Format(), std::move(value), n.repeat}); }
};

// Collects the reader's check of every field by record and field name. Every
// count it is asked for is 1 and the version the newest, so that one short
// walk reaches every field the file can hold.
class CheckCollector {
 public:
  std::map<std::pair<FieldRec, std::string>, Check> checks;

  mf::Long Long(const FieldName& n, mf::Long&, Check c = {}) { return Add(n, c); }
  mf::Long Short(const FieldName& n, mf::Short&, Check c = {}) { return Add(n, c); }
  mf::Long Bool(const FieldName&, mf::Long&) { return 1; }
  void Text(const FieldName&, std::string&) {}
  void LongText(const FieldName&, std::string&) {}
  void Assign(const FieldName&, mf::Long&, mf::Long) {}
  bool HeadHasFog(mf::Long) { return true; }
  bool Proceed(mf::Long) { return true; }

 private:
  mf::Long Add(const FieldName& n, Check c) {
    const std::string field = n.rec == FieldRec::kEngineVar ? std::to_string(n.i) : std::string(n.field);
    checks.emplace(std::make_pair(n.rec, field), c);
    return n.role == FieldRole::kFileVersion ? kFileVersion : 1;
  }
};

const std::map<std::pair<FieldRec, std::string>, Check>& AllChecks() {
  static const auto checks = [] {
    CheckCollector c;
    WalkScenario(c);
    return std::move(c.checks);
  }();
  return checks;
}

}  // namespace

Check SchemaCheckOf(FieldRec rec, const std::string& field) {
  const auto& checks = AllChecks();
  const auto it = checks.find({rec, field});
  return it == checks.end() ? Check{} : it->second;
}

bool FieldRecOf(const std::string& name, FieldRec* rec) {
  for (int r = 0; r <= static_cast<int>(FieldRec::kEngineVar); ++r) {
    if (name == RecName(static_cast<FieldRec>(r))) {
      *rec = static_cast<FieldRec>(r);
      return true;
    }
  }
  return false;
}

std::string FieldName::Format() const {
  std::string s;
  s.reserve(32);
  AppendTo(s);
  return s;
}

void FieldName::AppendTo(std::string& s) const {
  AppendRecordTo(s);
  AppendFieldTo(s);
}

namespace {
void AppendNumber(std::string& s, int v) {
  char buf[16];
  const auto end = std::to_chars(buf, buf + sizeof(buf), v).ptr;
  s.append(buf, static_cast<std::size_t>(end - buf));
}
}  // namespace

void FieldName::AppendRecordTo(std::string& s) const {
  s += RecName(rec);
  if (rec == FieldRec::kEngineVar) {
    s += '[';
    AppendNumber(s, i);
    s += ']';
    return;
  }
  if (rec != FieldRec::kGame) {
    s += '[';
    AppendNumber(s, i);
    if (TwoIndices(rec)) {
      s += ',';
      AppendNumber(s, j);
    }
    s += ']';
  }
  s += '.';
}

void FieldName::AppendFieldTo(std::string& s) const {
  if (rec == FieldRec::kEngineVar) return;
  s += field;
  if (k != 0) {
    s += '[';
    AppendNumber(s, k);
    s += ']';
  }
}

std::vector<ListedField> ListScenarioFields() {
  ListVisitor v;
  WalkScenario(v);
  return std::move(v.out);
}

}  // namespace mf
