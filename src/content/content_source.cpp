#include "content_source.h"

#include <cctype>
#include <filesystem>
#include <utility>

#include "platform/file_io.h"

namespace fs = std::filesystem;

namespace mf::content {

namespace {

constexpr int kMaxIncludeDepth = 8;

std::string TrimRight(std::string s) {
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.pop_back();
  return s;
}

bool IsLayer(const std::string& kind) { return kind == "land" || kind == "owner" || kind == "roads"; }

}  // namespace

std::string TrimAll(const std::string& s) {
  std::size_t a = 0;
  while (a < s.size() && (s[a] == ' ' || s[a] == '\t' || s[a] == '\r')) ++a;
  return TrimRight(s.substr(a));
}

std::string BareField(const std::string& key) {
  const std::size_t b = key.find('[');
  return TrimAll(key.substr(0, b));
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

namespace {

// Reads the source files into blocks. Lines: "# comment", "include PATH",
// "[kind label] Key = v; Key = v", "Key = value", "| text line" (a line of
// the multi-line value of the key above, which was left empty), and map rows.
class Parser {
 public:
  Parser(std::vector<Block>* blocks, std::vector<std::string>* errors) : blocks_(blocks), errors_(errors) {}

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
    ParseText(std::move(bytes), path, depth);
  }

  void ParseText(std::string bytes, const fs::path& path, int depth) {
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
        blocks_->push_back(std::move(b));
        cur = &blocks_->back();
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
  std::vector<Block>* blocks_;
  std::vector<std::string>* errors_;
};

}  // namespace

void ParseSourceFile(const std::string& path, std::vector<Block>* blocks, std::vector<std::string>* errors) {
  Parser(blocks, errors).ParseFile(fs::path(path), 0);
}

void ParseSourceText(const std::string& text, const std::string& name, std::vector<Block>* blocks,
                     std::vector<std::string>* errors) {
  Parser(blocks, errors).ParseText(text, fs::path(name), 0);
}

}  // namespace mf::content
