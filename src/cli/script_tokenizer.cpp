#include "script_tokenizer.h"

namespace mf::cli {

bool TokenizeLine(const std::string& line, std::vector<std::string>* words, std::string* why) {
  words->clear();
  std::string word;
  bool inWord = false;   // a word has begun, even if it is still empty ("")
  bool quoted = false;
  int brackets = 0;      // "[" not yet closed in this word: a field name's indices, where blanks may stand
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted) {
      if (c == '"') {
        if (i + 1 < line.size() && line[i + 1] == '"') {
          word += '"';
          ++i;
        } else {
          quoted = false;
        }
      } else {
        word += c;
      }
      continue;
    }
    if (c == '"') {
      quoted = true;
      inWord = true;
    } else if (c == '#') {
      break;
    } else if ((c == ' ' || c == '\t') && brackets > 0) {
      word += c;
    } else if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      if (inWord) words->push_back(word);
      word.clear();
      inWord = false;
    } else {
      if (c == '[') ++brackets;
      if (c == ']' && brackets > 0) --brackets;
      word += c;
      inWord = true;
    }
  }
  if (quoted) {
    *why = "a double quote is not closed";
    return false;
  }
  if (inWord) words->push_back(word);
  return true;
}

}  // namespace mf::cli
