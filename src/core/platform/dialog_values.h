// The values that scripts hand to dialogs: check boxes as 0 or 1, and lists
// of one entry per regime separated by commas.
#pragma once

#include <string>
#include <vector>

namespace mf {

// A check box value: "1" or "0". Anything else is refused with a reason.
bool BoxValue(const std::string& value, bool* on, std::string* why);

// Splits "a,b,,c" at the commas, keeping empty entries.
std::vector<std::string> SplitCommas(const std::string& text);

}  // namespace mf
