// What the editors read from their boxes and list filters, in one place:
// whole numbers typed by a designer or a script, "I:TEXT" pairs, and the
// filter boxes that narrow a long list as one types.
#pragma once

#include <string>

namespace mf {

// A whole number with an optional minus sign and blanks around it, at most
// nine digits; false for anything else.
bool WholeNumber(const std::string& text, long* n);
// "I:TEXT": the whole number before the first colon and the text after it.
bool IndexAndText(const std::string& value, long* i, std::string* text);
// True when the filter is empty (after trimming), when `number` written out
// begins with it, or when `text` holds it, letters of either case alike.
bool FilterMatches(const std::string& filter, long number, const std::string& text);

}  // namespace mf
