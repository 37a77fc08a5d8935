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
#include <cstring>
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

// Whether a text goes into JSON as it stands: printable ASCII without
// quotes or backslashes.
bool IsPlain(const std::string& s) {
  for (char c : s) {
    const auto b = static_cast<unsigned char>(c);
    if (b < 0x20 || b >= 0x80 || c == '"' || c == '\\') return false;
  }
  return true;
}

void AppendJsonString(std::string& out, const std::string& s) {
  if (IsPlain(s)) {
    out += '"';
    out += s;
    out += '"';
    return;
  }
  // Escapes, and a '?'-like replacement for bytes that are not UTF-8.
  out += json(s).dump(-1, ' ', false, json::error_handler_t::replace);
}

// The letters of a field's name ("Unit"; none for an engine variable).
std::size_t FieldLetters(const FieldName& n) { return n.rec == FieldRec::kEngineVar ? 0 : std::strlen(n.field); }

// Copies a few characters and gives the end of the copy: names and their
// parts are short, and a call to copy each would cost more than the copy.
char* CopyShort(char* out, const char* from, std::size_t size) {
  for (; size >= 8; out += 8, from += 8, size -= 8) std::memcpy(out, from, 8);
  for (; size > 0; --size) *out++ = *from++;
  return out;
}

// Writes the field's part of a name ("Unit[2]") at out, as
// FieldName::AppendFieldTo spells it, and gives its end. It takes the field's
// letters and at most 13 more.
char* WriteFieldPart(const FieldName& n, std::size_t letters, char* out) {
  out = CopyShort(out, n.field, letters);
  if (n.k != 0 && n.rec != FieldRec::kEngineVar) {
    *out++ = '[';
    out = std::to_chars(out, out + 11, n.k).ptr;
    *out++ = ']';
  }
  return out;
}

// Names of fields as the walk meets them. The fields of one record come one
// after another, so the record's part of the name ("Hex[3,4].") is made once
// for all of them.
class NameCache {
 public:
  // The record's part of the name.
  const std::string& RecordOf(const FieldName& n) {
    if (!any_ || !n.SameRecord(last_)) {
      record_.clear();
      n.AppendRecordTo(record_);
      last_ = n;
      any_ = true;
      copied_ = false;
    }
    return record_;
  }
  // The name, valid until the next call: the record's part stays in place
  // and only the field's part is written after it.
  std::string_view Of(const FieldName& n) {
    const std::size_t letters = FieldLetters(n);
    const std::string& record = RecordOf(n);
    const std::size_t room = record.size() + letters + 13;
    if (name_.size() < room) {
      name_.resize(2 * room);
      copied_ = false;
    }
    if (!copied_) {
      std::memcpy(name_.data(), record.data(), record.size());
      copied_ = true;
    }
    char* const end = WriteFieldPart(n, letters, name_.data() + record.size());
    return std::string_view(name_.data(), static_cast<std::size_t>(end - name_.data()));
  }

 private:
  FieldName last_;
  bool any_ = false;
  bool copied_ = false;  // whether name_ begins with the record's part
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

// Writes the members of "fields" through a buffer of its own: a member is
// put together there with plain copies, and the buffer goes into the text in
// large pieces, so that the text is not grown a few characters at a time.
class ExportVisitor {
 public:
  explicit ExportVisitor(std::string& out) : out_(out), buffer_(kBuffer) { p_ = buffer_.data(); }

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
      if (ref != 0) Put("true", 4);
      else Put("false", 5);
    }
    return ref != 0 ? kTrue : kFalse;
  }
  void Text(const FieldName& n, std::string& ref) {
    if (Open(n)) String(ref);
  }
  void LongText(const FieldName& n, std::string& ref) {
    if (Open(n)) String(ref);
  }
  void Assign(const FieldName&, mf::Long&, mf::Long) {}
  bool HeadHasFog(mf::Long) { return true; }
  bool Proceed(mf::Long) { return true; }

  // Puts what the buffer holds into the text.
  void Flush() {
    out_.append(buffer_.data(), static_cast<std::size_t>(p_ - buffer_.data()));
    p_ = buffer_.data();
  }

 private:
  static constexpr std::size_t kBuffer = std::size_t{1} << 16;
  // The most a number takes.
  static constexpr std::size_t kNumber = 24;

  // Makes room in the buffer for so many characters.
  void Room(std::size_t size) {
    if (static_cast<std::size_t>(buffer_.data() + buffer_.size() - p_) >= size) return;
    Flush();
    if (buffer_.size() < size) {
      buffer_.resize(size);
      p_ = buffer_.data();
    }
  }
  void Put(const char* s, std::size_t size) {
    std::memcpy(p_, s, size);
    p_ += size;
  }
  // Starts a member "name": and says whether to write its value, with room
  // for a number after it; a repeated field of the file has its one entry
  // already. Field names are plain letters, digits and brackets: written as
  // they are, straight into the text.
  bool Open(const FieldName& n) {
    if (n.repeat) return false;
    const std::string& record = names_.RecordOf(n);
    const std::size_t letters = FieldLetters(n);
    Room(7 + record.size() + letters + 13 + 3 + kNumber);
    if (first_) Put("\n    \"", 6);
    else Put(",\n    \"", 7);
    first_ = false;
    p_ = CopyShort(p_, record.data(), record.size());
    p_ = WriteFieldPart(n, letters, p_);
    Put("\": ", 3);
    return true;
  }
  void Number(mf::Long value) { p_ = std::to_chars(p_, p_ + kNumber, value).ptr; }
  void String(const std::string& s) {
    if (IsPlain(s)) {
      Room(s.size() + 2);
      *p_++ = '"';
      Put(s.data(), s.size());
      *p_++ = '"';
      return;
    }
    Flush();
    AppendJsonString(out_, s);
  }

  std::string& out_;
  std::vector<char> buffer_;
  char* p_ = nullptr;
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


// Reads JSON as an export writes it, and only that, straight from the text:
// white space, texts (escapes, surrogate pairs and UTF-8 decoded and checked
// as the library decodes and checks them), whole numbers, true, false and
// null. Each reading says false on anything else, right or wrong, and the
// library is then left to read the whole text, so that every other text is
// read, and every error told, as the library reads and tells it. Names and
// texts that need no decoding stay where they stand in the text; the others
// are decoded into the cursor's own room, a name's and a value's apart, and
// stay there until the next member is read.
class JsonCursor {
 public:
  explicit JsonCursor(const std::string& text)
      : begin_(text.data()), p_(text.data()), end_(text.data() + text.size()) {}

  std::size_t Offset() const { return static_cast<std::size_t>(p_ - begin_); }
  void MoveTo(std::size_t offset) { p_ = begin_ + offset; }
  const char* At(std::size_t offset) const { return begin_ + offset; }
  // Whether a text read stands where it was written, not decoded.
  bool InText(const FieldValue& v) const {
    return std::greater_equal<const char*>{}(v.text, begin_) && std::less_equal<const char*>{}(v.text, end_);
  }

  // The head of an export: an object of "format" (a text), "fileVersion" (a
  // whole number) and "fields" (an object), those three in that order. It
  // leaves the cursor inside "fields"; more says whether a member follows.
  bool Head(std::string& format, bool& more) {
    FieldValue name, v;
    if (!Skip('{') || !Key(name) || View(name) != "format" || !Text(v, text_)) return false;
    format.assign(v.text, v.textSize);
    if (!Skip(',') || !Key(name) || View(name) != "fileVersion" || !Scalar(v) || !IsWhole(v)) return false;
    if (!Skip(',') || !Key(name) || View(name) != "fields" || !Skip('{')) return false;
    SkipBlank();
    more = !(p_ < end_ && *p_ == '}');
    if (!more) ++p_;
    return true;
  }
  // A member of "fields", "name": value, and the comma or the closing brace
  // after it; more says which.
  bool Member(FieldValue& name, FieldValue& value, bool& more) {
    return Key(name) && Scalar(value) && EndOfMember(more);
  }
  // After "fields": the closing brace of the whole, and nothing more.
  bool Tail() {
    if (!Skip('}')) return false;
    SkipBlank();
    return p_ == end_;
  }
  // "name": with the colon.
  bool Key(FieldValue& name) { return Name(name) && Skip(':'); }
  // "name", without the colon.
  bool Name(FieldValue& name) { return Text(name, names_); }
  // Whether the next text, after blanks, is this name written as it stands;
  // if so the cursor goes past it. A name that is written otherwise (with
  // escapes) is not taken.
  bool PlainName(std::string_view name) {
    SkipBlank();
    const std::size_t size = name.size();
    if (static_cast<std::size_t>(end_ - p_) < size + 2 || *p_ != '"' || p_[size + 1] != '"') return false;
    if (!SameBytes(p_ + 1, name.data(), size)) return false;
    p_ += size + 2;
    return true;
  }
  // After a member's value: the comma or the closing brace; more says which.
  bool EndOfMember(bool& more) {
    SkipBlank();
    if (p_ >= end_) return false;
    const char c = *p_++;
    more = c == ',';
    return more || c == '}';
  }
  // The colon after a name, and the blanks after it.
  bool Colon() {
    if (!Skip(':')) return false;
    SkipBlank();
    return true;
  }
  // A text, a whole number, true, false or null, after blanks. Numbers with
  // a fraction or an exponent, and those too long to be sure of, are left to
  // the library.
  bool Scalar(FieldValue& v) {
    SkipBlank();
    if (p_ >= end_) return false;
    const char c = *p_;
    if (c == '"') return Text(v, text_);
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

  static std::string_view View(const FieldValue& t) { return {t.text, t.textSize}; }

 private:
  // Whether two short runs of bytes are the same, a word at a time.
  static bool SameBytes(const char* a, const char* b, std::size_t size) {
    for (; size >= 8; a += 8, b += 8, size -= 8) {
      std::uint64_t x = 0, y = 0;
      std::memcpy(&x, a, 8);
      std::memcpy(&y, b, 8);
      if (x != y) return false;
    }
    for (; size > 0; ++a, ++b, --size) {
      if (*a != *b) return false;
    }
    return true;
  }

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

  // A text, after blanks; decoded into out when it must be.
  bool Text(FieldValue& v, std::string& out) {
    SkipBlank();
    if (p_ >= end_ || *p_ != '"') return false;
    const char* const start = ++p_;
    // Most texts are plain: printable ASCII without escapes.
    const char* q = p_;
    while (q < end_) {
      const auto b = static_cast<unsigned char>(*q);
      if (b == '"' || b == '\\' || b < 0x20 || b >= 0x80) break;
      ++q;
    }
    p_ = q;
    if (p_ >= end_) return false;
    if (*p_ == '"') {
      v.kind = FieldValue::kText;
      v.text = start;
      v.textSize = static_cast<std::uint32_t>(p_ - start);
      ++p_;
      return true;
    }
    out.assign(start, p_);
    while (p_ < end_) {
      const auto b = static_cast<unsigned char>(*p_);
      if (b == '"') {
        ++p_;
        v.kind = FieldValue::kText;
        v.text = out.data();
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

  bool Word(std::string_view word, FieldValue& v, FieldValue::Kind kind, bool on) {
    if (static_cast<std::size_t>(end_ - p_) < word.size() || std::string_view(p_, word.size()) != word) return false;
    p_ += word.size();
    v = FieldValue{};
    v.kind = kind;
    v.on = on;
    return true;
  }

  const char* const begin_;
  const char* p_;
  const char* const end_;
  std::string names_;  // a name decoded
  std::string text_;   // a value decoded
};

// Reads an export's own text into the table, each member as it stands; see
// JsonCursor for what it gives up on.
class NarrowReader {
 public:
  NarrowReader(const std::string& text, FieldTable& table) : cursor_(text), table_(table) {}

  bool Read(std::string& format) {
    bool more = false;
    if (!cursor_.Head(format, more)) return false;
    FieldValue name, v;
    while (more) {
      if (!cursor_.Member(name, v, more)) return false;
      // What was decoded is kept with the table, as long as the table.
      Keep(name);
      if (v.kind == FieldValue::kText) Keep(v);
      table_.Add(JsonCursor::View(name), v);
    }
    return cursor_.Tail();
  }

 private:
  void Keep(FieldValue& t) {
    if (!cursor_.InText(t)) t.text = table_.Keep(JsonCursor::View(t));
  }

  JsonCursor cursor_;
  FieldTable& table_;
};

// Where the members of each record ("Hex[3,4].", "Game.") begin, for a field
// asked for once more where the walk's place does not tell. A record's
// members come in runs, one run after another member of another record.
class RecordRuns {
 public:
  // A run of n's record begins at this member.
  void Add(const FieldName& n, std::size_t member) {
    runs_.push_back(Run{n.rec, n.i, n.j, static_cast<std::uint32_t>(member)});
  }
  // The first member of n's record, of members members in all, that found
  // says is the one, or npos. It looks through every run: it is asked only
  // when the walk's place does not tell, a few times for each regime.
  template <class Found>
  std::size_t Find(const FieldName& n, std::size_t members, Found found) const {
    for (std::size_t r = 0; r < runs_.size(); ++r) {
      const Run& run = runs_[r];
      if (run.rec != n.rec || run.i != n.i || run.j != n.j) continue;
      const std::size_t end = r + 1 < runs_.size() ? runs_[r + 1].start : members;
      for (std::size_t m = run.start; m < end; ++m) {
        if (found(m)) return m;
      }
    }
    return std::string::npos;
  }

 private:
  struct Run {
    FieldRec rec;
    int i, j;
    std::uint32_t start;  // its first member
  };
  std::vector<Run> runs_;
};

// Where a member of "fields" stands in the text: its name (after the comma
// before it) and its value.
struct MemberPlace {
  std::uint32_t name = 0;
  std::uint32_t value = 0;
};

// Whether the name at the cursor is n's, and the cursor past it.
bool NameIs(JsonCursor& cursor, NameCache& names, const FieldName& n) {
  const std::string_view expected = names.Of(n);
  if (cursor.PlainName(expected)) return true;
  // A name written with escapes is compared as decoded.
  FieldValue name;
  return cursor.Name(name) && JsonCursor::View(name) == expected;
}

// An export's own text, read in two passes in the walk's order, without a
// table of names. The first pass checks and stores nothing: each member must
// have the name the walk asks for next, and when the walk ends no member may
// be left. The walk's names are all different, so then no name is written
// twice and none is unknown, and each member's value is the one the table of
// names would give; the walk takes its counts from those values as it goes.
// A field asked for once more (the count of peoples before each people, a
// regime's sight after its news) must be one of the members met before it.
// When anything differs the first pass gives up, and the text is read by the
// table of names. The second pass fills the tables from the values where the
// first one found them.
class InOrderCheck {
 public:
  static constexpr bool kStores = false;

  InOrderCheck(const JsonCursor& fields, bool more, std::vector<MemberPlace>& members,
               std::vector<FieldValue>& again)
      : cursor_(fields), other_(fields), more_(more), members_(members), again_(again) {}

  // Whether every member had the name the walk asked for, none is left, and
  // the text ends as an export ends.
  bool AllInOrder() { return !failed_ && !more_ && cursor_.Tail(); }

  const FieldValue* Find(const FieldName& n) {
    if (failed_) return nullptr;
    if (n.repeat) return FindAgain(n);
    MemberPlace place;
    place.name = static_cast<std::uint32_t>(cursor_.Offset());
    if (!more_ || !NameIs(cursor_, names_, n) || !cursor_.Colon()) return GiveUp();
    place.value = static_cast<std::uint32_t>(cursor_.Offset());
    if (!cursor_.Scalar(value_) || !cursor_.EndOfMember(more_)) return GiveUp();
    if (members_.empty() || !n.SameRecord(run_)) {
      runs_.Add(n, members_.size());
      run_ = n;
    }
    members_.push_back(place);
    return &value_;
  }

 private:
  const FieldValue* GiveUp() {
    failed_ = true;
    return nullptr;
  }
  bool NameAt(std::size_t member, const FieldName& n) {
    other_.MoveTo(members_[member].name);
    return NameIs(other_, names_, n);
  }
  // A field asked for once more is first looked for as far on from the last
  // one asked for again as that was from the one before, so that a run of
  // them, hex by hex, finds each at the first try; otherwise among the
  // members of its record.
  const FieldValue* FindAgain(const FieldName& n) {
    std::size_t at = lastAgain_ + strideAgain_;
    if (at >= members_.size() || !NameAt(at, n)) {
      // Looking through the records is for a few asks; a text that needs
      // it more often is left to the table of names.
      if (++looks_ > kLooks) return GiveUp();
      at = runs_.Find(n, members_.size(), [&](std::size_t m) { return NameAt(m, n); });
      if (at == std::string::npos) return GiveUp();
    }
    strideAgain_ = at - lastAgain_;
    lastAgain_ = at;
    // The members to come, and their texts, fetched ahead.
    const std::size_t ahead = at + 2 * strideAgain_;
    if (ahead < members_.size()) {
      const std::size_t further = ahead + 2 * strideAgain_;
      if (further < members_.size()) __builtin_prefetch(&members_[further]);
      const char* name = other_.At(members_[ahead].name);
      __builtin_prefetch(name);
      __builtin_prefetch(name + 32);
    }
    other_.MoveTo(members_[at].value);
    if (!other_.Scalar(value_)) return GiveUp();
    // A text decoded would not outlast the next read; a field asked for
    // again is a number, so such a text is left to the table of names.
    if (value_.kind == FieldValue::kText && !other_.InText(value_)) return GiveUp();
    again_.push_back(value_);
    return &value_;
  }

  // How often the records are looked through before the text is left to
  // the table of names.
  static constexpr int kLooks = 256;

  JsonCursor cursor_;  // the next member
  JsonCursor other_;   // a member met before
  bool more_;
  bool failed_ = false;
  std::vector<MemberPlace>& members_;
  std::vector<FieldValue>& again_;  // the value of each field asked for again
  RecordRuns runs_;
  int looks_ = 0;
  FieldName run_;  // the record of the last member
  NameCache names_;
  std::size_t lastAgain_ = 0, strideAgain_ = 0;
  FieldValue value_;
};

// The second pass over a text the first one found in order: each member's
// value read where the first pass found it, and each field asked for again
// as the first pass read it.
class InOrderRead {
 public:
  static constexpr bool kStores = true;

  InOrderRead(const JsonCursor& fields, const std::vector<MemberPlace>& members,
              const std::vector<FieldValue>& again)
      : cursor_(fields), members_(members), again_(again) {}

  const FieldValue* Find(const FieldName& n) {
    if (n.repeat) return nextAgain_ < again_.size() ? &again_[nextAgain_++] : nullptr;
    if (next_ >= members_.size()) return nullptr;
    cursor_.MoveTo(members_[next_++].value);
    if (!cursor_.Scalar(value_)) return nullptr;
    return &value_;
  }

 private:
  JsonCursor cursor_;
  const std::vector<MemberPlace>& members_;
  const std::vector<FieldValue>& again_;
  std::size_t next_ = 0, nextAgain_ = 0;
  FieldValue value_;
};

// The members from the table of names, for any other text.
class TableSource {
 public:
  static constexpr bool kStores = true;

  explicit TableSource(FieldTable& fields) : fields_(fields) {}

  const FieldValue* Find(const FieldName& n) {
    FieldEntry* e = fields_.Find(names_.Of(n), n.repeat);
    if (e == nullptr) return nullptr;
    if (!e->found) ++found_;
    e->found = true;
    return &e->value;
  }

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
  FieldTable& fields_;
  NameCache names_;
  std::size_t found_ = 0;  // members asked for
};

// Fills the tables from the "fields" object, its members given by a Source;
// a name that is missing reads as 0 or empty, like a field beyond the end of
// a short file. A value of the wrong kind is refused with its path, and so
// (after the walk) is a name that no field of a scenario with these counts
// has. A Source that does not store gives the walk its counts and nothing
// else.
template <class Source>
class ImportVisitor {
 public:
  explicit ImportVisitor(Source& source) : source_(source) {}

  std::string error;  // the first refusal, "" when none

  mf::Long Long(const FieldName& n, mf::Long& ref, Check c = {}) {
    const FieldValue* j = source_.Find(n);
    mf::Long value = 0;
    // JSON written by hand may leave out the version; it means the current layout.
    if (n.role == FieldRole::kFileVersion && j == nullptr) value = kFileVersion;
    else value = Number(n, j, std::numeric_limits<mf::Long>::min(), std::numeric_limits<mf::Long>::max(), "long");
    value = ApplyCheck(value, c);
    if constexpr (Source::kStores) ref = value;
    return value;
  }
  mf::Long Short(const FieldName& n, mf::Short& ref, Check c = {}) {
    mf::Long value = Number(n, source_.Find(n), std::numeric_limits<mf::Short>::min(), std::numeric_limits<mf::Short>::max(), "short");
    value = ApplyCheck(value, c);
    if constexpr (Source::kStores) ref = static_cast<mf::Short>(value);
    return value;
  }
  mf::Long Bool(const FieldName& n, mf::Long& ref) {
    const FieldValue* j = source_.Find(n);
    bool on = false;
    if (j != nullptr) {
      if (j->kind == FieldValue::kBool) on = j->on;
      else Refuse(n, "true or false", *j);
    }
    const mf::Long value = on ? kTrue : kFalse;
    if constexpr (Source::kStores) ref = value;
    return value;
  }
  void Text(const FieldName& n, std::string& ref) { StoreText(n, ref); }
  void LongText(const FieldName& n, std::string& ref) { StoreText(n, ref); }
  void Assign(const FieldName&, mf::Long& ref, mf::Long value) {
    if constexpr (Source::kStores) ref = value;
  }
  bool HeadHasFog(mf::Long v) { return v >= 10; }
  bool Proceed(mf::Long) { return true; }

 private:
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
  // The number found for n (nullptr when there is none), checked to fit.
  mf::Long Number(const FieldName& n, const FieldValue* j, std::int64_t lo, std::int64_t hi, const char* width) {
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
  void StoreText(const FieldName& n, std::string& ref) {
    const FieldValue* j = source_.Find(n);
    if (j != nullptr && j->kind != FieldValue::kText) Refuse(n, "a text", *j);
    if constexpr (Source::kStores) {
      if (j != nullptr && j->kind == FieldValue::kText) ref.assign(j->text, j->textSize);
      else ref.clear();
    }
  }

  Source& source_;
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

// Reads an export's own text in the walk's order (see InOrderCheck), and
// says whether it did, with the first refusal in error; false leaves the
// tables as they were, for the table of names.
bool ReadInOrder(const std::string& text, std::string& error) {
  // Places in the text are kept in 32 bits.
  if (text.size() >= std::numeric_limits<std::uint32_t>::max()) return false;
  JsonCursor fields(text);
  std::string format;
  bool more = false;
  if (!fields.Head(format, more) || format != kFormatName) return false;
  std::vector<MemberPlace> members;
  members.reserve(text.size() / 16 + 16);
  std::vector<FieldValue> again;
  {
    InOrderCheck check(fields, more, members, again);
    ImportVisitor first(check);
    WalkScenario(first);
    if (!check.AllInOrder()) return false;
  }
  InOrderRead read(fields, members, again);
  ImportVisitor second(read);
  WalkScenario(second);
  error = std::move(second.error);
  return true;
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
  v.Flush();
  out += "\n  }\n}\n";
  return out;
}

bool ImportJson(const std::string& text, std::string* why) {
  auto fail = [why](const std::string& reason) {
    if (why != nullptr) *why = reason;
    return false;
  };
  // An export's own text, in the walk's order, needs no table of names.
  std::string error;
  if (ReadInOrder(text, error)) return error.empty() ? true : fail(error);
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
  TableSource source(fields);
  ImportVisitor v(source);
  WalkScenario(v);
  if (!v.error.empty()) return fail(v.error);
  const std::string unknown = source.FirstUnknownName();
  if (!unknown.empty())
    return fail("fields.\"" + unknown + "\": no such field in a scenario with these counts and this map");
  return true;
}

}  // namespace mf
