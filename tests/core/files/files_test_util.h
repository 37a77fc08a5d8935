// Helpers of the scenario-file tests: plain text split into its field lines,
// the line of a field found by its name, bytes on disk, and a rich scenario
// built in code.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "files/scenario_schema.h"
#include "model/game_state.h"

namespace mf::test {

// The lines of a plain file, without their CR LF.
inline std::vector<std::string> SplitLines(const std::string& plain) {
  std::vector<std::string> lines;
  std::size_t p = 0;
  while (p < plain.size()) {
    const std::size_t e = plain.find("\r\n", p);
    if (e == std::string::npos) {
      lines.push_back(plain.substr(p));
      break;
    }
    lines.push_back(plain.substr(p, e - p));
    p = e + 2;
  }
  return lines;
}

inline std::string JoinLines(const std::vector<std::string>& lines) {
  std::string s;
  for (const auto& l : lines) s += l + "\r\n";
  return s;
}

// Line numbers (0-based) of every field with this name, in file order; one
// field is one line, so the lister's order is the line order.
inline std::vector<std::size_t> LinesOf(const std::string& name) {
  std::vector<std::size_t> at;
  const auto fields = ListScenarioFields();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].name == name) at.push_back(i);
  }
  return at;
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>());
}

inline void WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream f(path, std::ios::binary | std::ios::trunc);
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string Flipped(std::string bytes) {
  for (char& c : bytes) c = static_cast<char>(static_cast<unsigned char>(c) ^ 0x80u);
  return bytes;
}

// A scenario with something in every section: three regimes, peoples with
// non-ASCII names, types, units with SHQ stocks, officers, events with
// stories over several lines, news, research, book variables.
void BuildRichScenario();

// Writes a number line as the file does: " 5 " or "-5 ".
inline std::string NumLine(long v) { return (v >= 0 ? " " : "") + std::to_string(v) + " "; }

// Builds the plain text of a file by hand, line by line.
struct TextBuilder {
  std::string s;
  void N(long v) { s += NumLine(v) + "\r\n"; }
  void T(const std::string& t) { s += t + "\r\n"; }
  void B(bool b) { s += b ? "True\r\n" : "False\r\n"; }
  void Ns(int count, long v) {
    for (int i = 0; i < count; ++i) N(v);
  }
};

}  // namespace mf::test
