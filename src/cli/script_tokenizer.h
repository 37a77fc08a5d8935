// Splitting one line of a marrowfield-cli script into words.
#pragma once

#include <string>
#include <vector>

namespace mf::cli {

// Splits a line at blanks and tabs. A double quote opens text that keeps its
// blanks up to the next double quote; inside it, two double quotes stand for
// one. Quotes may sit inside a word (password="my word" is one word,
// password=my word). A # outside quotes starts a comment that runs to the end
// of the line. "" is an empty word. Blanks inside the brackets of a word
// belong to it, so a field name may be written Unit[ 1 ].Readiness. False
// with a reason for an unclosed quote.
bool TokenizeLine(const std::string& line, std::vector<std::string>* words, std::string* why);

}  // namespace mf::cli
