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

mf::Long ClampToLong(double d) {
  if (!std::isfinite(d)) return 0;
  if (d >= static_cast<double>(std::numeric_limits<mf::Long>::max())) return std::numeric_limits<mf::Long>::max();
  if (d <= static_cast<double>(std::numeric_limits<mf::Long>::min())) return std::numeric_limits<mf::Long>::min();
  return static_cast<mf::Long>(CInt(d));
}

// Fills the tables from the "fields" object; a name that is missing reads as
// 0 or empty, like a field beyond the end of a short file.
class ImportVisitor {
 public:
  explicit ImportVisitor(const json& fields) : fields_(fields) {}

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    mf::Long value = 0;
    // JSON written by hand may leave out the version; it means the current layout.
    if (n.role == FieldRole::kFileVersion && Find(n) == nullptr) value = kFileVersion;
    else value = Number(n);
    value = ApplyCheck(value, c);
    ref = value;
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    mf::Long value = Number(n);
    if (value > std::numeric_limits<mf::Short>::max()) value = std::numeric_limits<mf::Short>::max();
    if (value < std::numeric_limits<mf::Short>::min()) value = std::numeric_limits<mf::Short>::min();
    value = ApplyCheck(value, c);
    ref = static_cast<mf::Short>(value);
    return value;
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    const json* j = Find(n);
    bool on = false;
    if (j != nullptr) {
      if (j->is_boolean()) on = j->get<bool>();
      else if (j->is_number()) on = j->get<double>() != 0;
      else if (j->is_string()) on = j->get_ref<const std::string&>() == "True";
    }
    ref = on ? kTrue : kFalse;
    return ref;
  }
  void Text(const FieldName& n, std::string& ref) { ref = TextOf(n); }
  void LongText(const FieldName& n, std::string& ref) { ref = TextOf(n); }
  void Assign(const FieldName&, mf::Long& ref, mf::Long value) { ref = value; }
  bool HeadHasFog(mf::Long v) { return v >= 10; }
  bool Proceed(mf::Long) { return true; }

 private:
  const json* Find(const FieldName& n) const {
    const auto it = fields_.find(n.Format());
    return it == fields_.end() ? nullptr : &*it;
  }
  mf::Long Number(const FieldName& n) const {
    const json* j = Find(n);
    if (j == nullptr) return 0;
    if (j->is_number_integer()) {
      if (j->is_number_unsigned()) {
        const auto u = j->get<std::uint64_t>();
        return u > static_cast<std::uint64_t>(std::numeric_limits<mf::Long>::max())
                   ? std::numeric_limits<mf::Long>::max()
                   : static_cast<mf::Long>(u);
      }
      const auto i = j->get<std::int64_t>();
      if (i > std::numeric_limits<mf::Long>::max()) return std::numeric_limits<mf::Long>::max();
      if (i < std::numeric_limits<mf::Long>::min()) return std::numeric_limits<mf::Long>::min();
      return static_cast<mf::Long>(i);
    }
    if (j->is_number_float()) return ClampToLong(j->get<double>());
    if (j->is_boolean()) return j->get<bool>() ? kTrue : kFalse;
    if (j->is_string()) return ClampToLong(Val(j->get_ref<const std::string&>()));
    return 0;
  }
  std::string TextOf(const FieldName& n) const {
    const json* j = Find(n);
    if (j == nullptr) return {};
    if (j->is_string()) return j->get<std::string>();
    if (j->is_number_integer()) return j->dump();
    return {};
  }

  const json& fields_;
};

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
  const json doc = json::parse(text, nullptr, false);
  auto fail = [why](const std::string& reason) {
    if (why != nullptr) *why = reason;
    return false;
  };
  if (doc.is_discarded()) return fail("not valid JSON");
  if (!doc.is_object()) return fail("not a JSON object");
  const auto format = doc.find("format");
  if (format == doc.end() || !format->is_string() || format->get<std::string>() != kFormatName) {
    return fail(std::string("\"format\" is not \"") + kFormatName + "\"");
  }
  const auto fields = doc.find("fields");
  if (fields == doc.end() || !fields->is_object()) return fail("no \"fields\" object");
  ImportVisitor v(*fields);
  WalkScenario(v);
  return true;
}

}  // namespace mf
