#include "platform/dialog_values.h"

namespace mf {

bool BoxValue(const std::string& value, bool* on, std::string* why) {
  if (value == "1" || value == "0") {
    *on = value == "1";
    return true;
  }
  *why = "a box takes 0 or 1, not \"" + value + "\"";
  return false;
}

std::vector<std::string> SplitCommas(const std::string& text) {
  std::vector<std::string> parts;
  std::string::size_type start = 0;
  while (true) {
    const auto comma = text.find(',', start);
    parts.push_back(text.substr(start, comma == std::string::npos ? std::string::npos : comma - start));
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return parts;
}

}  // namespace mf
