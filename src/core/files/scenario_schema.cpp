#include "files/scenario_schema.h"

#include <charconv>

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

}  // namespace

std::string FieldName::Format() const {
  std::string s;
  s.reserve(32);
  s += RecName(rec);
  char buf[16];
  auto number = [&s, &buf](int v) {
    const auto end = std::to_chars(buf, buf + sizeof(buf), v).ptr;
    s.append(buf, static_cast<std::size_t>(end - buf));
  };
  if (rec == FieldRec::kEngineVar) {
    s += '[';
    number(i);
    s += ']';
    return s;
  }
  if (rec != FieldRec::kGame) {
    s += '[';
    number(i);
    if (TwoIndices(rec)) {
      s += ',';
      number(j);
    }
    s += ']';
  }
  s += '.';
  s += field;
  if (k != 0) {
    s += '[';
    number(k);
    s += ']';
  }
  return s;
}

std::vector<ListedField> ListScenarioFields() {
  ListVisitor v;
  WalkScenario(v);
  return std::move(v.out);
}

}  // namespace mf
