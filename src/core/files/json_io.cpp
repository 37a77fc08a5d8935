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

#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>

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
    if (Open(n)) out_ += std::to_string(value);
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    const mf::Long value = SavedValue(n, ref, c);
    if (Open(n)) out_ += std::to_string(value);
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
    AppendJsonString(out_, n.Format());
    out_ += ": ";
    return true;
  }

  std::string& out_;
  bool first_ = true;
};

// Fills the tables from the "fields" object; a name that is missing reads as
// 0 or empty, like a field beyond the end of a short file. A value of the
// wrong kind is refused with its path, and so (after the walk) is a name
// that no field of a scenario with these counts has.
class ImportVisitor {
 public:
  explicit ImportVisitor(const json& fields) : fields_(fields) {}

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
    const json* j = Find(n);
    bool on = false;
    if (j != nullptr) {
      if (j->is_boolean()) on = j->get<bool>();
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

  // The first name of the object that the walk never asked for.
  std::string FirstUnknownName() const {
    if (found_.size() == fields_.size()) return {};
    for (const auto& [name, value] : fields_.items())
      if (found_.count(name) == 0) return name;
    return {};
  }

 private:
  const json* Find(const FieldName& n) {
    std::string name = n.Format();
    const auto it = fields_.find(name);
    if (it == fields_.end()) return nullptr;
    found_.insert(std::move(name));
    return &*it;
  }
  static const char* KindOf(const json& j) {
    if (j.is_string()) return "a text";
    if (j.is_boolean()) return "true or false";
    if (j.is_number()) return "a number";
    if (j.is_null()) return "null";
    if (j.is_array()) return "a list";
    return "an object";
  }
  void Refuse(const FieldName& n, const char* wanted, const json& j) {
    if (!error.empty()) return;
    error = "fields.\"" + n.Format() + "\": expected " + wanted + ", found " + KindOf(j);
  }
  mf::Long Number(const FieldName& n, std::int64_t lo, std::int64_t hi, const char* width) {
    const json* j = Find(n);
    if (j == nullptr) return 0;
    if (!j->is_number()) {
      Refuse(n, "a number", *j);
      return 0;
    }
    bool fits = true;
    mf::Long value = 0;
    if (j->is_number_unsigned()) {
      const auto u = j->get<std::uint64_t>();
      fits = u <= static_cast<std::uint64_t>(hi);
      if (fits) value = static_cast<mf::Long>(u);
    } else if (j->is_number_integer()) {
      const auto i = j->get<std::int64_t>();
      fits = i >= lo && i <= hi;
      if (fits) value = static_cast<mf::Long>(i);
    } else {
      const std::int64_t i = CInt(j->get<double>());
      fits = i >= lo && i <= hi;
      if (fits) value = static_cast<mf::Long>(i);
    }
    if (!fits && error.empty())
      error = "fields.\"" + n.Format() + "\": " + j->dump() + " does not fit a " + width + " field";
    return value;
  }
  std::string TextOf(const FieldName& n) {
    const json* j = Find(n);
    if (j == nullptr) return {};
    if (j->is_string()) return j->get<std::string>();
    Refuse(n, "a text", *j);
    return {};
  }

  const json& fields_;
  std::set<std::string> found_;
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
  json doc;
  try {
    doc = json::parse(text);
  } catch (const json::parse_error& e) {
    // The library's own words after its position, without its tag.
    std::string detail = e.what();
    const std::size_t at = detail.find(": ", detail.find("parse error"));
    detail = at == std::string::npos ? std::string("syntax error") : detail.substr(at + 2);
    // e.byte counts from 1 and names the byte after the last one read.
    return fail("not valid JSON: " + LineAndColumn(text, e.byte > 0 ? e.byte - 1 : 0) + ": " + detail);
  }
  if (!doc.is_object()) return fail("not a JSON object");
  const auto format = doc.find("format");
  if (format == doc.end() || !format->is_string() || format->get<std::string>() != kFormatName) {
    return fail(std::string("\"format\" is not \"") + kFormatName + "\"");
  }
  const auto fields = doc.find("fields");
  if (fields == doc.end() || !fields->is_object()) return fail("no \"fields\" object");
  ImportVisitor v(*fields);
  WalkScenario(v);
  if (!v.error.empty()) return fail(v.error);
  const std::string unknown = v.FirstUnknownName();
  if (!unknown.empty())
    return fail("fields.\"" + unknown + "\": no such field in a scenario with these counts and this map");
  return true;
}

}  // namespace mf
