#include <gtest/gtest.h>

#include <string>

#include "files/text_codec.h"

namespace mf {
namespace {

TEST(TextCodec, AsciiPassesUnchanged) {
  const std::string ascii = "Red Army, 1st Bataljon \\default\\map ~!";
  EXPECT_EQ(Utf8ToCp1252(ascii), ascii);
  EXPECT_EQ(Cp1252ToUtf8(ascii), ascii);
}

TEST(TextCodec, LatinLettersBecomeSingleBytes) {
  // ë = 0xEB, Æ = 0xC6, ø = 0xF8 in Windows-1252.
  EXPECT_EQ(Utf8ToCp1252("Zoë Brontë"), "Zo\xEB Bront\xEB");
  EXPECT_EQ(Utf8ToCp1252("Ærø"), "\xC6r\xF8");
  EXPECT_EQ(Cp1252ToUtf8("Zo\xEB Bront\xEB"), "Zoë Brontë");
  EXPECT_EQ(Cp1252ToUtf8("\xC6r\xF8"), "Ærø");
  EXPECT_EQ(Cp1252ToUtf8("\xA0\xFF"), "\u00A0\u00FF");
}

TEST(TextCodec, TheWholeHighControlRangeOfTheCodePage) {
  // Byte 0x80 + i stands for this code point.
  const char32_t expected[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  for (int i = 0; i < 32; ++i) {
    const char32_t c = expected[i];
    std::string utf8;
    if (c < 0x800) {
      utf8 += static_cast<char>(0xC0 | (c >> 6));
      utf8 += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | (c >> 12));
      utf8 += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      utf8 += static_cast<char>(0x80 | (c & 0x3F));
    }
    const std::string byte(1, static_cast<char>(0x80 + i));
    EXPECT_EQ(Cp1252ToUtf8(byte), utf8) << "byte " << (0x80 + i);
    EXPECT_EQ(Utf8ToCp1252(utf8), byte) << "byte " << (0x80 + i);
  }
  // Spot checks written out: the euro sign and the trade mark.
  EXPECT_EQ(Cp1252ToUtf8("\x80"), "€");
  EXPECT_EQ(Utf8ToCp1252("™"), "\x99");
}

TEST(TextCodec, EveryByteSurvivesARoundTrip) {
  for (int b = 0; b < 256; ++b) {
    const std::string one(1, static_cast<char>(b));
    EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(one)), one) << "byte " << b;
  }
}

TEST(TextCodec, TheFiveUnassignedBytesMapToTheirC1Controls) {
  EXPECT_EQ(Cp1252ToUtf8("\x81"), "\xC2\x81");
  EXPECT_EQ(Cp1252ToUtf8("\x8D"), "\xC2\x8D");
  EXPECT_EQ(Cp1252ToUtf8("\x8F"), "\xC2\x8F");
  EXPECT_EQ(Cp1252ToUtf8("\x90"), "\xC2\x90");
  EXPECT_EQ(Cp1252ToUtf8("\x9D"), "\xC2\x9D");
  // The other C1 controls have no byte of their own: U+0080 and U+009F.
  EXPECT_EQ(Utf8ToCp1252("\xC2\x80"), "?");
  EXPECT_EQ(Utf8ToCp1252("\xC2\x9F"), "?");
}

TEST(TextCodec, CharactersOutsideTheCodePageBecomeQuestionMarks) {
  // Ł (U+0141) and ź (U+017A) are not in Windows-1252; ó (U+00F3) is.
  EXPECT_EQ(Utf8ToCp1252("Łódź"), "?\xF3" "d?");
  // A character beyond the Basic Multilingual Plane is one question mark.
  EXPECT_EQ(Utf8ToCp1252("a\xF0\x9F\x98\x80" "b"), "a?b");
  EXPECT_EQ(Utf8ToCp1252("日本"), "??");
}

TEST(TextCodec, MalformedUtf8BecomesQuestionMarks) {
  EXPECT_EQ(Utf8ToCp1252("\xC3"), "?");            // cut short at the end
  EXPECT_EQ(Utf8ToCp1252("\xC3("), "?(");          // continuation missing
  EXPECT_EQ(Utf8ToCp1252("\xE2\x82"), "?");        // three-byte sequence cut after two
  EXPECT_EQ(Utf8ToCp1252("x\x80y"), "x?y");        // stray continuation byte
  EXPECT_EQ(Utf8ToCp1252("\xC0\xAF"), "??");       // overlong slash: bad lead, stray continuation
  EXPECT_EQ(Utf8ToCp1252("\xE0\x80\xAF"), "?");    // overlong three-byte form
  EXPECT_EQ(Utf8ToCp1252("\xED\xA0\x80"), "?");    // a surrogate
  EXPECT_EQ(Utf8ToCp1252("\xF4\x90\x80\x80"), "?");  // beyond U+10FFFF
  EXPECT_EQ(Utf8ToCp1252("\xFF"), "?");
}

}  // namespace
}  // namespace mf
