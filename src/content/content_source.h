// The readable source of a scenario as blocks of keys and values: what the
// content compiler reads before it builds any table. Lines: "# comment",
// "include PATH", "[kind label] Key = v; Key = v", "Key = value", "| text
// line" (a line of the multi-line value of the key above, which was left
// empty), and the rows of the map layers. The format is described in
// docs/content-format.md.
#pragma once

#include <string>
#include <vector>

#include "platform/text_case.h"

namespace mf::content {

struct Entry {
  std::string key;
  std::string value;  // a multi-line value has its lines joined by CR LF
  bool multi = false;
  std::string where;
};

struct Row {
  std::string text;
  std::string where;
};

struct Block {
  std::string kind;  // lower case
  std::string label;
  std::string where;
  std::vector<Entry> entries;
  std::vector<Row> rows;  // the map layers
};

// Reads the source file at path and the files it includes into blocks, in
// the order they stand. Every fault adds one "FILE:LINE: why" line to errors.
void ParseSourceFile(const std::string& path, std::vector<Block>* blocks, std::vector<std::string>* errors);
// The same for source text held in memory; name stands for its file in the
// faults, and includes are looked for beside it.
void ParseSourceText(const std::string& text, const std::string& name, std::vector<Block>* blocks,
                     std::vector<std::string>* errors);

// Small text helpers the compiler shares with the reader.
std::string TrimAll(const std::string& s);
// The field name of a key without its index: "DataText[2]" -> "DataText".
std::string BareField(const std::string& key);
std::vector<std::string> Split(const std::string& s, char sep);
// A whole number in plain digits with an optional sign, up to four billion;
// false for anything else.
bool ParseWhole(const std::string& text, long long* value);

}  // namespace mf::content
