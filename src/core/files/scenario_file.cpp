// Scenario files: the writer and reader of the field sequence that
// scenario_schema.h describes, and the byte scrambling. The menu flows of
// saving, loading and importing that use them live in
// control/scenario_flow.cpp.
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

#include "files/scenario_schema.h"
#include "files/text_codec.h"
#include "model/arith.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "platform/file_io.h"
#include "platform/platform.h"

namespace fs = std::filesystem;

namespace mf {
namespace {

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

long ParseScenario(const std::string& plain, bool importOnly) {
  ReadVisitor r(plain, importOnly);
  WalkScenario(r);
  return r.version;
}

bool FileExists(const std::string& path) {
  std::error_code ec;
  return fs::exists(path, ec);
}

bool UnscrambleBytes(std::string* bytes) {
  if (FirstNumber(*bytes) != 0) return false;
  FlipTopBits(*bytes);
  return true;
}

bool ReadPlainBytes(const std::string& path, std::string* bytes, bool* wasScrambled, std::string* why) {
  if (!ReadWholeFile(path, bytes, why)) return false;
  *wasScrambled = UnscrambleBytes(bytes);
  return true;
}

void LeaveScrambled(const std::string& path, std::string plain) {
  FlipTopBits(plain);
  ReplaceFileAtomically(path, plain);
}

bool WriteFile(const std::string& path) {
  if (path.empty()) return false;
  std::string bytes = SerializeScenario();
  FlipTopBits(bytes);
  return ReplaceFileAtomically(path, bytes);
}

}  // namespace mf
