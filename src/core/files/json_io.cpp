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

// Names of fields as the walk meets them. The fields of one record come one
// after another, so the record's part of the name ("Hex[3,4].") is made once
// for all of them.
class NameCache {
 public:
  void AppendTo(const FieldName& n, std::string& out) {
    if (!any_ || !n.SameRecord(last_)) {
      record_.clear();
      n.AppendRecordTo(record_);
      last_ = n;
      any_ = true;
    }
    out += record_;
    n.AppendFieldTo(out);
  }
  // The name, valid until the next call.
  std::string_view Of(const FieldName& n) {
    name_.clear();
    AppendTo(n, name_);
    return name_;
  }

 private:
  FieldName last_;
  bool any_ = false;
  std::string record_;
  std::string name_;
};

// Counts what an export writes, to make room for it at once: the text of a
// large scenario runs to many megabytes, and a text that grows as it is
// written is copied over and over.
class SizeVisitor {
 public:
  std::size_t fields = 0;
  std::size_t textBytes = 0;

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    fields += n.repeat ? 0 : 1;
    return SavedValue(n, ref, c);
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    fields += n.repeat ? 0 : 1;
    return SavedValue(n, ref, c);
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    fields += n.repeat ? 0 : 1;
    return ref != 0 ? kTrue : kFalse;
  }
  void Text(const FieldName& n, std::string& ref) {
    fields += n.repeat ? 0 : 1;
    textBytes += ref.size();
  }
  void LongText(const FieldName& n, std::string& ref) { Text(n, ref); }
  void Assign(const FieldName&, mf::Long&, mf::Long) {}
  bool HeadHasFog(mf::Long) { return true; }
  bool Proceed(mf::Long) { return true; }
};

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
    if (Open(n)) {
      if (ref != 0) out_.append("true", 4);
      else out_.append("false", 5);
    }
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
    if (first_) out_.append("\n    \"", 6);
    else out_.append(",\n    \"", 7);
    first_ = false;
    // Field names are plain letters, digits and brackets: written as they
    // are, straight into the text.
    names_.AppendTo(n, out_);
    out_.append("\": ", 3);
    return true;
  }
  void Number(mf::Long value) {
    char buf[16];
    const auto end = std::to_chars(buf, buf + sizeof(buf), value).ptr;
    out_.append(buf, static_cast<std::size_t>(end - buf));
  }

  std::string& out_;
  NameCache names_;
  bool first_ = true;
};

// The members of the "fields" object as the reader meets them, kept flat:
// names and texts where they stand in the JSON text when they need no
// decoding, otherwise decoded into one run of characters; numbers as read.
// A name given twice keeps its last value, as a JSON object does.
// A scenario has about a million members, so a member is kept small: its
// value is one of a number, a switch or a text, by its kind.
struct FieldValue {
  enum Kind : std::uint8_t { kNull, kBool, kInteger, kUnsigned, kFloat, kText, kList, kObject };
  Kind kind = kNull;
  bool on = false;
  std::uint32_t textSize = 0;
  union {
    std::int64_t integer = 0;
    std::uint64_t whole;
    double real;
    const char* text;
  };
};

struct FieldEntry {
  const char* name = nullptr;
  std::uint32_t nameSize = 0;
  std::uint32_t hash = 0;   // its name's hash
  FieldValue value;
  bool superseded = false;  // the same name comes again later
  bool found = false;       // the walk asked for it
};
static_assert(sizeof(FieldEntry) <= 40);

class FieldTable {
 public:
  std::vector<FieldEntry> entries;
  std::size_t superseded = 0;  // members another of the same name comes after

  // Room for the decoded texts of a JSON text of this size: no decoded text
  // is longer than it was written, so they never move once kept.
  void Reserve(std::size_t textSize) {
    chars_.reserve(textSize + 1);
    entries.reserve(textSize / 16 + 16);
  }
  void Clear() {
    entries.clear();
    chars_.clear();
    slots_.clear();
    superseded = next_ = lastAgain_ = strideAgain_ = 0;
  }

  static std::string_view Name(const FieldEntry& e) { return {e.name, e.nameSize}; }
  static std::string Text(const FieldValue& v) { return std::string(v.text, v.textSize); }

  // A decoded text, kept.
  const char* Keep(std::string_view text) {
    const char* at = chars_.data() + chars_.size();
    chars_.append(text);
    return at;
  }

  // A new member, in the order of the text.
  void Add(std::string_view name, const FieldValue& value) {
    FieldEntry e;
    e.name = name.data();
    e.nameSize = static_cast<std::uint32_t>(name.size());
    e.value = value;
    entries.push_back(e);
  }

  // Makes the table of names once all members are in: an earlier member of a
  // name gives way to a later one. The slots are far apart in memory, so
  // each is asked for a few members ahead of its use.
  void Index() {
    std::size_t size = 1024;
    while (size < 2 * entries.size()) size *= 2;
    slots_.assign(size, HashSlot{});
    const std::size_t mask = size - 1;
    for (FieldEntry& e : entries) e.hash = Hash(Name(e));
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (i + kAhead < entries.size()) __builtin_prefetch(&slots_[entries[i + kAhead].hash & mask]);
      const std::string_view name = Name(entries[i]);
      HashSlot& slot = Slot(name, entries[i].hash);
      if (slot.index != 0) {
        entries[slot.index - 1].superseded = true;
        ++superseded;
      } else {
        slot.hash = entries[i].hash;
      }
      slot.index = static_cast<std::uint32_t>(i + 1);
    }
  }

  // The member of that name, or nullptr. The walk asks for the names in the
  // order an export writes them, so the next member is tried first. A field
  // asked for once more (a regime's sight, read again after its news) was
  // written with the first asking: the walk goes on after the member it had
  // reached, and the member asked for again is first looked for as far on
  // from the last one asked for again as that was from the one before, so
  // that a run of them, hex by hex, finds each at the first try.
  FieldEntry* Find(std::string_view name, bool again) {
    if (again) {
      const std::size_t guess = lastAgain_ + strideAgain_;
      std::size_t at = 0;
      if (guess < entries.size() && !entries[guess].superseded && Name(entries[guess]) == name) {
        at = guess + 1;
      } else {
        if (slots_.empty()) return nullptr;
        at = Slot(name, Hash(name)).index;
        if (at == 0) return nullptr;
      }
      strideAgain_ = at - 1 - lastAgain_;
      lastAgain_ = at - 1;
      // The next two guesses, fetched ahead: the member, and its name.
      if (lastAgain_ + 2 * strideAgain_ < entries.size()) {
        __builtin_prefetch(&entries[lastAgain_ + 2 * strideAgain_]);
        __builtin_prefetch(entries[lastAgain_ + strideAgain_].name);
      }
      return &entries[at - 1];
    }
    while (next_ < entries.size() && entries[next_].superseded) ++next_;
    // The names stand in the text, read long before: the ones the walk will
    // ask for next are fetched ahead.
    if (next_ + kAhead < entries.size()) __builtin_prefetch(entries[next_ + kAhead].name);
    if (next_ < entries.size() && Name(entries[next_]) == name) return &entries[next_++];
    if (slots_.empty()) return nullptr;
    const HashSlot& slot = Slot(name, Hash(name));
    if (slot.index == 0) return nullptr;
    next_ = slot.index;
    return &entries[slot.index - 1];
  }

 private:
  // How far ahead the slots and the names are fetched.
  static constexpr std::size_t kAhead = 16;

  static std::uint32_t Hash(std::string_view text) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
  }

  // A slot of the table of names: the member's index from 1 (0 for an empty
  // slot) and its name's hash, which settles most probes without looking at
  // the name.
  struct HashSlot {
    std::uint32_t index = 0;
    std::uint32_t hash = 0;
  };

  HashSlot& Slot(std::string_view name, std::uint32_t hash) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = hash & mask;
    while (slots_[i].index != 0 && (slots_[i].hash != hash || Name(entries[slots_[i].index - 1]) != name))
      i = (i + 1) & mask;
    return slots_[i];
  }

  std::string chars_;
  std::vector<HashSlot> slots_;
  std::size_t next_ = 0;
  std::size_t lastAgain_ = 0, strideAgain_ = 0;
};

// Reads a scenario's JSON in one pass without building the document: the
// members of the top object that matter ("format" and "fields") and the
// members of "fields". Anything else is checked by the parser and passed
// over. Errors of the text are the parser's own, kept as it tells them.
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
    v.text = table_.Keep(val);
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
  // The parser stops at the first error of the text: a syntax error, or a
  // number too large for any number (1e999). Both are kept here and told as
  // the text's error; neither may leave the reader as an exception.
  template <class Exception>
  bool parse_error(std::size_t position, const std::string&, const Exception& ex) {
    failed = true;
    failedAt = position;
    failedWhat = ex.what();
    return false;
  }

  bool failed = false;
  std::size_t failedAt = 0;  // from 1, the byte after the last one read
  std::string failedWhat;

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
    table_.Add(std::string_view(table_.Keep(member_), member_.size()), v);
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


// Reads the JSON an export writes, and only that, straight from the text: an
// object of "format" (a text), "fileVersion" (a whole number) and "fields"
// (an object of texts, whole numbers, true, false and null), in that order,
// with any white space. The members of "fields" go into the table; names and
// texts that need no decoding stay where they stand in the text. On anything
// else, right or wrong, it gives up and the library reads the text instead,
// so that every other text is read, and every error told, as the library
// reads and tells it.
class NarrowReader {
 public:
  NarrowReader(const std::string& text, FieldTable& table)
      : p_(text.data()), end_(text.data() + text.size()), table_(table) {}

  bool Read(std::string& format) {
    std::string_view name;
    FieldValue v;
    if (!Skip('{') || !Key(name) || name != "format" || !Text(v)) return false;
    format.assign(v.text, v.textSize);
    if (!Skip(',') || !Key(name) || name != "fileVersion" || !Scalar(v) || !IsWhole(v)) return false;
    if (!Skip(',') || !Key(name) || name != "fields" || !Skip('{')) return false;
    SkipBlank();
    if (p_ < end_ && *p_ == '}') {
      ++p_;
    } else {
      for (;;) {
        if (!Key(name) || !Scalar(v)) return false;
        table_.Add(name, v);
        SkipBlank();
        if (p_ >= end_) return false;
        const char c = *p_++;
        if (c == '}') break;
        if (c != ',') return false;
      }
    }
    if (!Skip('}')) return false;
    SkipBlank();
    return p_ == end_;
  }

 private:
  static bool IsWhole(const FieldValue& v) { return v.kind == FieldValue::kInteger || v.kind == FieldValue::kUnsigned; }

  void SkipBlank() {
    while (p_ < end_ && (*p_ == ' ' || *p_ == '\n' || *p_ == '\r' || *p_ == '\t')) ++p_;
  }
  bool Skip(char c) {
    SkipBlank();
    if (p_ >= end_ || *p_ != c) return false;
    ++p_;
    return true;
  }
  // "name": with the colon.
  bool Key(std::string_view& name) {
    FieldValue v;
    if (!Text(v) || !Skip(':')) return false;
    name = std::string_view(v.text, v.textSize);
    return true;
  }

  // A text, after blanks.
  bool Text(FieldValue& v) {
    SkipBlank();
    if (p_ >= end_ || *p_ != '"') return false;
    const char* const start = ++p_;
    // Most texts are plain: printable ASCII without escapes.
    while (p_ < end_) {
      const auto b = static_cast<unsigned char>(*p_);
      if (b == '"' || b == '\\' || b < 0x20 || b >= 0x80) break;
      ++p_;
    }
    if (p_ >= end_) return false;
    if (*p_ == '"') {
      v.kind = FieldValue::kText;
      v.text = start;
      v.textSize = static_cast<std::uint32_t>(p_ - start);
      ++p_;
      return true;
    }
    // Otherwise it is decoded into the table's characters.
    std::string& out = scratch_;
    out.assign(start, p_);
    while (p_ < end_) {
      const auto b = static_cast<unsigned char>(*p_);
      if (b == '"') {
        ++p_;
        v.kind = FieldValue::kText;
        v.text = table_.Keep(out);
        v.textSize = static_cast<std::uint32_t>(out.size());
        return true;
      }
      if (b < 0x20) return false;
      if (b == '\\') {
        if (!Escape(out)) return false;
      } else if (b >= 0x80) {
        if (!Utf8(out)) return false;
      } else {
        out += static_cast<char>(b);
        ++p_;
      }
    }
    return false;
  }
  int HexDigit(char c) const {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
  }
  // Four hex digits after "\u".
  bool Code(unsigned& code) {
    if (end_ - p_ < 6 || p_[0] != '\\' || p_[1] != 'u') return false;
    code = 0;
    for (int i = 2; i < 6; ++i) {
      const int d = HexDigit(p_[i]);
      if (d < 0) return false;
      code = code * 16 + static_cast<unsigned>(d);
    }
    p_ += 6;
    return true;
  }
  bool Escape(std::string& out) {
    if (end_ - p_ < 2) return false;
    const char c = p_[1];
    const char* plain = nullptr;
    switch (c) {
      case '"': plain = "\""; break;
      case '\\': plain = "\\"; break;
      case '/': plain = "/"; break;
      case 'b': plain = "\b"; break;
      case 'f': plain = "\f"; break;
      case 'n': plain = "\n"; break;
      case 'r': plain = "\r"; break;
      case 't': plain = "\t"; break;
      case 'u': break;
      default: return false;
    }
    if (plain != nullptr) {
      out += *plain;
      p_ += 2;
      return true;
    }
    unsigned code = 0;
    if (!Code(code)) return false;
    if (code >= 0xDC00 && code <= 0xDFFF) return false;
    if (code >= 0xD800 && code <= 0xDBFF) {
      unsigned low = 0;
      if (!Code(low) || low < 0xDC00 || low > 0xDFFF) return false;
      code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
    }
    if (code < 0x80) {
      out += static_cast<char>(code);
    } else if (code < 0x800) {
      out += static_cast<char>(0xC0 | (code >> 6));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
      out += static_cast<char>(0xE0 | (code >> 12));
      out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (code >> 18));
      out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (code & 0x3F));
    }
    return true;
  }
  // One character of two to four bytes, well formed.
  bool Utf8(std::string& out) {
    const auto b0 = static_cast<unsigned char>(*p_);
    int more = 0;
    unsigned char lo = 0x80, hi = 0xBF;
    if (b0 >= 0xC2 && b0 <= 0xDF) {
      more = 1;
    } else if (b0 >= 0xE0 && b0 <= 0xEF) {
      more = 2;
      if (b0 == 0xE0) lo = 0xA0;
      if (b0 == 0xED) hi = 0x9F;
    } else if (b0 >= 0xF0 && b0 <= 0xF4) {
      more = 3;
      if (b0 == 0xF0) lo = 0x90;
      if (b0 == 0xF4) hi = 0x8F;
    } else {
      return false;
    }
    if (end_ - p_ <= more) return false;
    for (int i = 1; i <= more; ++i) {
      const auto b = static_cast<unsigned char>(p_[i]);
      if (b < lo || b > hi) return false;
      lo = 0x80;
      hi = 0xBF;
    }
    out.append(p_, static_cast<std::size_t>(more + 1));
    p_ += more + 1;
    return true;
  }

  // A text, a whole number, true, false or null, after blanks. Numbers with
  // a fraction or an exponent, and those too long to be sure of, are left to
  // the library.
  bool Scalar(FieldValue& v) {
    SkipBlank();
    if (p_ >= end_) return false;
    const char c = *p_;
    if (c == '"') return Text(v);
    if (c == 't') return Word("true", v, FieldValue::kBool, true);
    if (c == 'f') return Word("false", v, FieldValue::kBool, false);
    if (c == 'n') return Word("null", v, FieldValue::kNull, false);
    const bool negative = c == '-';
    const char* q = p_ + (negative ? 1 : 0);
    const char* const digits = q;
    std::uint64_t n = 0;
    while (q < end_ && *q >= '0' && *q <= '9') n = n * 10 + static_cast<std::uint64_t>(*q++ - '0');
    const std::ptrdiff_t count = q - digits;
    if (count == 0 || count > 18 || (count > 1 && *digits == '0')) return false;
    if (q < end_ && (*q == '.' || *q == 'e' || *q == 'E')) return false;
    p_ = q;
    v = FieldValue{};
    if (negative) {
      v.kind = FieldValue::kInteger;
      v.integer = -static_cast<std::int64_t>(n);
    } else {
      v.kind = FieldValue::kUnsigned;
      v.whole = n;
    }
    return true;
  }
  bool Word(std::string_view word, FieldValue& v, FieldValue::Kind kind, bool on) {
    if (static_cast<std::size_t>(end_ - p_) < word.size() || std::string_view(p_, word.size()) != word) return false;
    p_ += word.size();
    v = FieldValue{};
    v.kind = kind;
    v.on = on;
    return true;
  }

  const char* p_;
  const char* const end_;
  FieldTable& table_;
  std::string scratch_;
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
    // Every member the walk asked for, or given again later: nothing to look for.
    if (found_ + fields_.superseded == fields_.entries.size()) return {};
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
    FieldEntry* e = fields_.Find(names_.Of(n), n.repeat);
    if (e == nullptr) return nullptr;
    if (!e->found) ++found_;
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
  NameCache names_;
  std::size_t found_ = 0;  // members asked for
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
  SizeVisitor size;
  WalkScenario(size);
  std::string out;
  // A member takes about 20 characters besides its text; texts with
  // characters to escape grow, and then the text grows once more.
  out.reserve(256 + 24 * size.fields + size.textBytes + size.textBytes / 8);
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
  fields.Reserve(text.size());
  ScenarioSax sax(fields);
  std::string format;
  // An export's own text is read straight; anything else by the library.
  const bool narrow = NarrowReader(text, fields).Read(format);
  if (narrow) {
    sax.topIsObject = sax.formatIsText = sax.hasFields = sax.fieldsIsObject = true;
    sax.format = std::move(format);
  } else {
    fields.Clear();
  }
  if (!narrow && !json::sax_parse(text, &sax) && sax.failed) {
    // The library's own words, without its tag and, for a syntax error, its
    // own position, which is told below as line and column.
    const std::string& what = sax.failedWhat;
    std::string detail = "syntax error";
    const std::size_t syntax = what.find("parse error");
    const std::size_t tagEnd = what.find("] ");
    if (syntax != std::string::npos) {
      const std::size_t colon = what.find(": ", syntax);
      if (colon != std::string::npos) detail = what.substr(colon + 2);
    } else if (tagEnd != std::string::npos) {
      detail = what.substr(tagEnd + 2);
    }
    return fail("not valid JSON: " + LineAndColumn(text, sax.failedAt > 0 ? sax.failedAt - 1 : 0) + ": " + detail);
  }
  if (!sax.topIsObject) return fail("not a JSON object");
  if (!sax.formatIsText || sax.format != kFormatName) {
    return fail(std::string("\"format\" is not \"") + kFormatName + "\"");
  }
  if (!sax.hasFields || !sax.fieldsIsObject) return fail("no \"fields\" object");
  fields.Index();
  ImportVisitor v(fields);
  WalkScenario(v);
  if (!v.error.empty()) return fail(v.error);
  const std::string unknown = v.FirstUnknownName();
  if (!unknown.empty())
    return fail("fields.\"" + unknown + "\": no such field in a scenario with these counts and this map");
  return true;
}

}  // namespace mf
