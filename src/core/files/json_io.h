// A scenario as JSON: every saved field by its rules name, in file order.
// Export then import then save gives the same bytes as the file it came from.
#pragma once

#include <string>

namespace mf {

std::string ExportJson();
// Fills the tables from JSON text as a load does; fields that are missing
// read as 0 or empty. False with a reason on malformed JSON.
bool ImportJson(const std::string& json, std::string* why);

}  // namespace mf
