// Words of a script line: blanks split, double quotes keep blanks, # starts a comment.
#include "script_tokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mf::cli {
namespace {

using Words = std::vector<std::string>;

Words Split(const std::string& line) {
  Words words;
  std::string why;
  EXPECT_TRUE(TokenizeLine(line, &words, &why)) << line << ": " << why;
  return words;
}

TEST(ScriptTokenizer, BlanksAndTabsSplitWords) {
  EXPECT_EQ(Split("set  Game.Turn\t5"), (Words{"set", "Game.Turn", "5"}));
  EXPECT_EQ(Split("   "), Words{});
  EXPECT_EQ(Split(""), Words{});
  EXPECT_EQ(Split("expect Hex[3,4].Owner 2\r"), (Words{"expect", "Hex[3,4].Owner", "2"}));
}

TEST(ScriptTokenizer, BlanksInsideAFieldNamesBracketsBelongToIt) {
  EXPECT_EQ(Split("print Unit[ 1 ].Readiness"), (Words{"print", "Unit[ 1 ].Readiness"}));
  EXPECT_EQ(Split("set Hex[ 3, 4 ].Unit[ 2 ] 7"), (Words{"set", "Hex[ 3, 4 ].Unit[ 2 ]", "7"}));
  // A closing bracket without an opening one splits as before.
  EXPECT_EQ(Split("a] b"), (Words{"a]", "b"}));
}

TEST(ScriptTokenizer, QuotesKeepBlanks) {
  EXPECT_EQ(Split("expect-msg \"File does not exist\""), (Words{"expect-msg", "File does not exist"}));
  EXPECT_EQ(Split("set Unit[1].Name \"  Ærø Bataljon \""), (Words{"set", "Unit[1].Name", "  Ærø Bataljon "}));
}

TEST(ScriptTokenizer, AnEmptyQuoteIsAnEmptyWord) {
  EXPECT_EQ(Split("load \"\""), (Words{"load", ""}));
  EXPECT_EQ(Split("answer \"\" no"), (Words{"answer", "", "no"}));
}

TEST(ScriptTokenizer, QuotesInsideAWordJoinIt) {
  EXPECT_EQ(Split("on newturn password=\"abc def\" login"), (Words{"on", "newturn", "password=abc def", "login"}));
  EXPECT_EQ(Split("a\"b c\"d"), (Words{"ab cd"}));
}

TEST(ScriptTokenizer, TwoQuotesInsideQuotesAreOneQuote) {
  EXPECT_EQ(Split("expect-msg \"He said \"\"go\"\"\""), (Words{"expect-msg", "He said \"go\""}));
}

TEST(ScriptTokenizer, HashStartsACommentOutsideQuotes) {
  EXPECT_EQ(Split("# a whole line"), Words{});
  EXPECT_EQ(Split("seed 7   # the usual seed"), (Words{"seed", "7"}));
  EXPECT_EQ(Split("seed 7#no blank needed"), (Words{"seed", "7"}));
  EXPECT_EQ(Split("set Unit[1].Name \"No. #1\""), (Words{"set", "Unit[1].Name", "No. #1"}));
}

TEST(ScriptTokenizer, BackslashesStandAsTheyAre) {
  EXPECT_EQ(Split("set Game.DirMap \\default\\map"), (Words{"set", "Game.DirMap", "\\default\\map"}));
}

TEST(ScriptTokenizer, AnUnclosedQuoteIsRefused) {
  Words words;
  std::string why;
  EXPECT_FALSE(TokenizeLine("expect-msg \"Loaded", &words, &why));
  EXPECT_EQ(why, "a double quote is not closed");
  EXPECT_FALSE(TokenizeLine("x \"a\"\"", &words, &why));
  EXPECT_EQ(why, "a double quote is not closed");
}

}  // namespace
}  // namespace mf::cli
