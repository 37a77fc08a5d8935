// Text in a scenario file is Windows-1252; in memory it is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace mf {

// UTF-8 to Windows-1252; a character the code page lacks becomes '?', and so
// does a malformed UTF-8 sequence.
std::string Utf8ToCp1252(std::string_view utf8);
// Windows-1252 to UTF-8. The five bytes the code page leaves unassigned map to
// the C1 control of the same number, so every byte survives a round trip.
std::string Cp1252ToUtf8(std::string_view bytes);

}  // namespace mf
