// A scenario as JSON, for people and tools that want to read or change a
// scenario without the file layout:
//
//   {
//     "format": "marrowfield-scenario",
//     "fileVersion": 111,
//     "fields": {
//       "Game.FileVersion": 111,
//       "Game.FogOfWar": 0,
//       ...
//     }
//   }
//
// "fields" holds every saved field once, by its registry name, in file order;
// numbers are JSON numbers, booleans JSON true/false, texts JSON strings.
// Both directions walk the same field sequence as the file reader and
// writer, so what one writes the other reads.
#include "files/json_io.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "files/scenario_schema.h"
#include "model/arith.h"
#include "model/game_state.h"

namespace mf {
namespace {

using nlohmann::json;

constexpr const char* kFormatName = "marrowfield-scenario";

void AppendJsonString(std::string& out, const std::string& s) {
  bool plain = true;
  for (char c : s) {
    const auto b = static_cast<unsigned char>(c);
    if (b < 0x20 || b >= 0x80 || c == '"' || c == '\\') {
      plain = false;
      break;
    }
  }
  if (plain) {
    out += '"';
    out += s;
    out += '"';
    return;
  }
  // Escapes, and a '?'-like replacement for bytes that are not UTF-8.
  out += json(s).dump(-1, ' ', false, json::error_handler_t::replace);
}

class ExportVisitor {
 public:
  explicit ExportVisitor(std::string& out) : out_(out) {}

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    if (Open(n)) Number(value);
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    if (Open(n)) Number(value);
    return value;
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    if (Open(n)) out_ += ref != 0 ? "true" : "false";
    return ref != 0 ? kTrue : kFalse;
  }
  void Text(const FieldName& n, std::string& ref) {
    if (Open(n)) AppendJsonString(out_, ref);
  }
  void LongText(const FieldName& n, std::string& ref) {
    if (Open(n)) AppendJsonString(out_, ref);
  }
  void Assign(const FieldName&, mf::Long&, mf::Long) {}
  bool HeadHasFog(mf::Long) { return true; }
  bool Proceed(mf::Long) { return true; }

 private:
  // Starts a member "name": and says whether to write its value; a repeated
  // field of the file has its one entry already.
  bool Open(const FieldName& n) {
    if (n.repeat) return false;
    out_ += first_ ? "\n    " : ",\n    ";
    first_ = false;
    // Field names are plain letters, digits and brackets: written as they
    // are, straight into the text.
    out_ += '"';
    n.AppendTo(out_);
    out_ += "\": ";
    return true;
  }
  void Number(mf::Long value) {
    char buf[16];
    const auto end = std::to_chars(buf, buf + sizeof(buf), value).ptr;
    out_.append(buf, static_cast<std::size_t>(end - buf));
  }

  std::string& out_;
  bool first_ = true;
};

// The members of the "fields" object as the parser meets them, kept flat:
// names and texts in one run of characters, numbers as the parser gave them.
// A name given twice keeps its last value, as a JSON object does.
struct FieldValue {
  enum Kind : std::uint8_t { kNull, kBool, kInteger, kUnsigned, kFloat, kText, kList, kObject };
  Kind kind = kNull;
  bool on = false;
  std::int64_t integer = 0;
  std::uint64_t whole = 0;
  double real = 0;
  std::uint32_t textAt = 0, textSize = 0;
};

struct FieldEntry {
  std::uint32_t nameAt = 0, nameSize = 0;
  FieldValue value;
  bool superseded = false;  // the same name comes again later
  bool found = false;       // the walk asked for it
};

class FieldTable {
 public:
  std::vector<FieldEntry> entries;
  std::string chars;

  void Clear() {
    entries.clear();
    chars.clear();
    slots_.assign(slots_.size(), HashSlot{});
    used_ = 0;
  }

  std::string_view Name(const FieldEntry& e) const { return {chars.data() + e.nameAt, e.nameSize}; }
  std::string Text(const FieldValue& v) const { return std::string(chars.data() + v.textAt, v.textSize); }

  std::uint32_t Keep(std::string_view text) {
    const auto at = static_cast<std::uint32_t>(chars.size());
    chars.append(text);
    return at;
  }

  // A new member; an earlier one of the same name gives way to it.
  void Add(std::string_view name, const FieldValue& value) {
    FieldEntry e;
    e.nameAt = Keep(name);
    e.nameSize = static_cast<std::uint32_t>(name.size());
    e.value = value;
    entries.push_back(e);
    const auto index = static_cast<std::uint32_t>(entries.size());  // from 1; 0 is an empty slot
    if (2 * (used_ + 1) > slots_.size()) Grow();
    const std::size_t hash = Hash(name);
    HashSlot& slot = Slot(name, hash);
    if (slot.index != 0) {
      entries[slot.index - 1].superseded = true;
    } else {
      ++used_;
      slot.hash = static_cast<std::uint32_t>(hash);
    }
    slot.index = index;
  }

  // The member of that name, or nullptr. The walk asks for the names in the
  // order an export writes them, so the next member is tried first.
  FieldEntry* Find(std::string_view name) {
    while (next_ < entries.size() && entries[next_].superseded) ++next_;
    if (next_ < entries.size() && Name(entries[next_]) == name) return &entries[next_++];
    if (slots_.empty()) return nullptr;
    const HashSlot& slot = Slot(name, Hash(name));
    if (slot.index == 0) return nullptr;
    next_ = slot.index;
    return &entries[slot.index - 1];
  }

  std::size_t Count() const { return used_; }

 private:
  static std::size_t Hash(std::string_view text) { return std::hash<std::string_view>{}(text); }

  // A slot of the table of names: the member's index from 1 (0 for an empty
  // slot) and the low half of its name's hash, which settles most probes
  // without looking at the name.
  struct HashSlot {
    std::uint32_t index = 0;
    std::uint32_t hash = 0;
  };

  HashSlot& Slot(std::string_view name, std::size_t hash) {
    const std::size_t mask = slots_.size() - 1;
    const auto low = static_cast<std::uint32_t>(hash);
    std::size_t i = hash & mask;
    while (slots_[i].index != 0 && (slots_[i].hash != low || Name(entries[slots_[i].index - 1]) != name))
      i = (i + 1) & mask;
    return slots_[i];
  }
  void Grow() {
    std::vector<HashSlot> old = std::move(slots_);
    slots_.assign(old.empty() ? 1024 : 2 * old.size(), HashSlot{});
    const std::size_t mask = slots_.size() - 1;
    for (const HashSlot& h : old) {
      if (h.index == 0) continue;
      // Names in the table are all different: the first empty slot is theirs.
      std::size_t i = h.hash & mask;
      while (slots_[i].index != 0) i = (i + 1) & mask;
      slots_[i] = h;
    }
  }

  std::vector<HashSlot> slots_;
  std::size_t used_ = 0;
  std::size_t next_ = 0;
};

// Reads a scenario's JSON in one pass without building the document: the
// members of the top object that matter ("format" and "fields") and the
// members of "fields". Anything else is checked by the parser and passed
// over. Errors of the text are the parser's own, thrown as it throws them.
class ScenarioSax {
 public:
  explicit ScenarioSax(FieldTable& table) : table_(table) {}

  bool topIsObject = false;
  bool formatIsText = false;
  std::string format;
  bool hasFields = false;
  bool fieldsIsObject = false;

  bool null() { return Scalar(FieldValue{}); }
  bool boolean(bool val) {
    FieldValue v;
    v.kind = FieldValue::kBool;
    v.on = val;
    return Scalar(v);
  }
  bool number_integer(std::int64_t val) {
    FieldValue v;
    v.kind = FieldValue::kInteger;
    v.integer = val;
    return Scalar(v);
  }
  bool number_unsigned(std::uint64_t val) {
    FieldValue v;
    v.kind = FieldValue::kUnsigned;
    v.whole = val;
    return Scalar(v);
  }
  bool number_float(double val, const std::string&) {
    FieldValue v;
    v.kind = FieldValue::kFloat;
    v.real = val;
    return Scalar(v);
  }
  bool string(std::string& val) {
    if (depth_ == 1 && key_ == "format") {
      formatIsText = true;
      format = val;
      return true;
    }
    if (depth_ != 2 || !inFields_) return Scalar(FieldValue{});
    FieldValue v;
    v.kind = FieldValue::kText;
    v.textAt = table_.Keep(val);
    v.textSize = static_cast<std::uint32_t>(val.size());
    return Member(v);
  }
  bool binary(nlohmann::json::binary_t&) { return Scalar(FieldValue{}); }
  bool start_object(std::size_t) { return Open(FieldValue::kObject); }
  bool end_object() { return Close(); }
  bool start_array(std::size_t) { return Open(FieldValue::kList); }
  bool end_array() { return Close(); }
  bool key(std::string& val) {
    if (depth_ == 1) key_ = val;
    else if (depth_ == 2 && inFields_) member_ = val;
    return true;
  }
  template <class Exception>
  bool parse_error(std::size_t, const std::string&, const Exception& ex) {
    throw ex;
  }

 private:
  // A value that is no object or list.
  bool Scalar(const FieldValue& v) {
    if (depth_ == 0) return true;  // the whole text is no object
    if (depth_ == 1) {
      if (key_ == "format") formatIsText = false;
      if (key_ == "fields") FieldsAre(false);
      return true;
    }
    if (depth_ == 2 && inFields_) return Member(v);
    return true;
  }
  bool Member(const FieldValue& v) {
    table_.Add(member_, v);
    return true;
  }
  void FieldsAre(bool object) {
    hasFields = true;
    fieldsIsObject = object;
    table_.Clear();
  }
  bool Open(FieldValue::Kind kind) {
    if (depth_ == 0) {
      topIsObject = kind == FieldValue::kObject;
    } else if (depth_ == 1) {
      if (key_ == "format") formatIsText = false;
      if (key_ == "fields") {
        FieldsAre(kind == FieldValue::kObject);
        inFields_ = kind == FieldValue::kObject;
      }
    } else if (depth_ == 2 && inFields_) {
      FieldValue v;
      v.kind = kind;
      Member(v);
    }
    ++depth_;
    return true;
  }
  bool Close() {
    --depth_;
    if (depth_ == 1) inFields_ = false;
    return true;
  }

  FieldTable& table_;
  int depth_ = 0;
  bool inFields_ = false;
  std::string key_;
  std::string member_;
};

// Fills the tables from the "fields" object; a name that is missing reads as
// 0 or empty, like a field beyond the end of a short file. A value of the
// wrong kind is refused with its path, and so (after the walk) is a name
// that no field of a scenario with these counts has.
class ImportVisitor {
 public:
  explicit ImportVisitor(FieldTable& fields) : fields_(fields) {}

  std::string error;  // the first refusal, "" when none

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    mf::Long value = 0;
    // JSON written by hand may leave out the version; it means the current layout.
    if (n.role == FieldRole::kFileVersion && Find(n) == nullptr) value = kFileVersion;
    else value = Number(n, std::numeric_limits<mf::Long>::min(), std::numeric_limits<mf::Long>::max(), "long");
    value = ApplyCheck(value, c);
    ref = value;
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    mf::Long value = Number(n, std::numeric_limits<mf::Short>::min(), std::numeric_limits<mf::Short>::max(), "short");
    value = ApplyCheck(value, c);
    ref = static_cast<mf::Short>(value);
    return value;
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    const FieldValue* j = Find(n);
    bool on = false;
    if (j != nullptr) {
      if (j->kind == FieldValue::kBool) on = j->on;
      else Refuse(n, "true or false", *j);
    }
    ref = on ? kTrue : kFalse;
    return ref;
  }
  void Text(const FieldName& n, std::string& ref) { ref = TextOf(n); }
  void LongText(const FieldName& n, std::string& ref) { ref = TextOf(n); }
  void Assign(const FieldName&, mf::Long& ref, mf::Long value) { ref = value; }
  bool HeadHasFog(mf::Long v) { return v >= 10; }
  bool Proceed(mf::Long) { return true; }

  // The first name of the object, in the order of names, that the walk never
  // asked for.
  std::string FirstUnknownName() const {
    std::string_view first;
    bool any = false;
    for (const FieldEntry& e : fields_.entries) {
      if (e.superseded || e.found) continue;
      const std::string_view name = fields_.Name(e);
      if (!any || name < first) first = name;
      any = true;
    }
    return any ? std::string(first) : std::string();
  }

 private:
  const FieldValue* Find(const FieldName& n) {
    FieldEntry* e = fields_.Find(n.Format());
    if (e == nullptr) return nullptr;
    e->found = true;
    return &e->value;
  }
  static const char* KindOf(const FieldValue& j) {
    switch (j.kind) {
      case FieldValue::kText: return "a text";
      case FieldValue::kBool: return "true or false";
      case FieldValue::kInteger:
      case FieldValue::kUnsigned:
      case FieldValue::kFloat: return "a number";
      case FieldValue::kNull: return "null";
      case FieldValue::kList: return "a list";
      case FieldValue::kObject: break;
    }
    return "an object";
  }
  static bool IsNumber(const FieldValue& j) {
    return j.kind == FieldValue::kInteger || j.kind == FieldValue::kUnsigned || j.kind == FieldValue::kFloat;
  }
  // The number as JSON writes it.
  static std::string Dump(const FieldValue& j) {
    if (j.kind == FieldValue::kUnsigned) return json(j.whole).dump();
    if (j.kind == FieldValue::kInteger) return json(j.integer).dump();
    return json(j.real).dump();
  }
  void Refuse(const FieldName& n, const char* wanted, const FieldValue& j) {
    if (!error.empty()) return;
    error = "fields.\"" + n.Format() + "\": expected " + wanted + ", found " + KindOf(j);
  }
  mf::Long Number(const FieldName& n, std::int64_t lo, std::int64_t hi, const char* width) {
    const FieldValue* j = Find(n);
    if (j == nullptr) return 0;
    if (!IsNumber(*j)) {
      Refuse(n, "a number", *j);
      return 0;
    }
    bool fits = true;
    mf::Long value = 0;
    if (j->kind == FieldValue::kUnsigned) {
      const auto u = j->whole;
      fits = u <= static_cast<std::uint64_t>(hi);
      if (fits) value = static_cast<mf::Long>(u);
    } else if (j->kind == FieldValue::kInteger) {
      const auto i = j->integer;
      fits = i >= lo && i <= hi;
      if (fits) value = static_cast<mf::Long>(i);
    } else {
      const std::int64_t i = CInt(j->real);
      fits = i >= lo && i <= hi;
      if (fits) value = static_cast<mf::Long>(i);
    }
    if (!fits && error.empty())
      error = "fields.\"" + n.Format() + "\": " + Dump(*j) + " does not fit a " + width + " field";
    return value;
  }
  std::string TextOf(const FieldName& n) {
    const FieldValue* j = Find(n);
    if (j == nullptr) return {};
    if (j->kind == FieldValue::kText) return fields_.Text(*j);
    Refuse(n, "a text", *j);
    return {};
  }

  FieldTable& fields_;
};

// Line and column (from 1) of a byte offset of a text.
std::string LineAndColumn(const std::string& text, std::size_t offset) {
  std::size_t line = 1, column = 1;
  for (std::size_t i = 0; i < offset && i < text.size(); ++i) {
    if (text[i] == '\n') {
      ++line;
      column = 1;
    } else if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
      ++column;  // a character, not a byte of one
    }
  }
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

}  // namespace

std::string ExportJson() {
  std::string out;
  out.reserve(1 << 20);
  out += "{\n  \"format\": \"";
  out += kFormatName;
  out += "\",\n  \"fileVersion\": ";
  out += std::to_string(kFileVersion);
  out += ",\n  \"fields\": {";
  ExportVisitor v(out);
  WalkScenario(v);
  out += "\n  }\n}\n";
  return out;
}

bool ImportJson(const std::string& text, std::string* why) {
  auto fail = [why](const std::string& reason) {
    if (why != nullptr) *why = reason;
    return false;
  };
  FieldTable fields;
  // About one member to every forty characters of an export.
  fields.entries.reserve(text.size() / 40);
  fields.chars.reserve(text.size() / 2);
  ScenarioSax sax(fields);
  try {
    json::sax_parse(text, &sax);
  } catch (const json::parse_error& e) {
    // The library's own words after its position, without its tag.
    std::string detail = e.what();
    const std::size_t at = detail.find(": ", detail.find("parse error"));
    detail = at == std::string::npos ? std::string("syntax error") : detail.substr(at + 2);
    // e.byte counts from 1 and names the byte after the last one read.
    return fail("not valid JSON: " + LineAndColumn(text, e.byte > 0 ? e.byte - 1 : 0) + ": " + detail);
  }
  if (!sax.topIsObject) return fail("not a JSON object");
  if (!sax.formatIsText || sax.format != kFormatName) {
    return fail(std::string("\"format\" is not \"") + kFormatName + "\"");
  }
  if (!sax.hasFields || !sax.fieldsIsObject) return fail("no \"fields\" object");
  ImportVisitor v(fields);
  WalkScenario(v);
  if (!v.error.empty()) return fail(v.error);
  const std::string unknown = v.FirstUnknownName();
  if (!unknown.empty())
    return fail("fields.\"" + unknown + "\": no such field in a scenario with these counts and this map");
  return true;
}

}  // namespace mf
