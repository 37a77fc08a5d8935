// Letter case of texts the game compares without regard to case: file
// names, the names of sprites and the words of events and scripts. Only the
// letters A to Z change, so the result is the same on every system whatever
// its language settings, and a UTF-8 text keeps its other characters intact.
#pragma once

#include <string>

namespace mf {

inline std::string Lower(std::string s) {
  for (char& c : s)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return s;
}

inline std::string Upper(std::string s) {
  for (char& c : s)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return s;
}

}  // namespace mf
