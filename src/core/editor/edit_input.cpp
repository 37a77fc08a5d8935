#include "editor/edit_input.h"

#include <cctype>

#include "model/arith.h"

namespace mf {

bool WholeNumber(const std::string& text, long* n) {
  const std::string t = Trim(text);
  if (t.empty() || t.size() > 10) return false;
  std::size_t i = (t[0] == '-') ? 1 : 0;
  if (i == t.size() || t.size() - i > 9) return false;
  for (; i < t.size(); ++i)
    if (t[i] < '0' || t[i] > '9') return false;
  *n = std::stol(t);
  return true;
}

bool IndexAndText(const std::string& value, long* i, std::string* text) {
  const std::size_t colon = value.find(':');
  if (colon == std::string::npos || !WholeNumber(value.substr(0, colon), i)) return false;
  *text = value.substr(colon + 1);
  return true;
}

bool FilterMatches(const std::string& filter, long number, const std::string& text) {
  auto lower = [](std::string s) {
    for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
  };
  const std::string f = lower(Trim(filter));
  if (f.empty()) return true;
  if (NumText(number).rfind(f, 0) == 0) return true;
  return lower(text).find(f) != std::string::npos;
}

}  // namespace mf
