#include "files/text_codec.h"

#include <cstdint>

namespace mf {
namespace {

// Code points of the bytes 0x80..0x9F. The five bytes the code page leaves
// unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the C1 control of the
// same number, so that any byte of an old file comes back unchanged on save.
constexpr char32_t kHighTable[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80..87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88..8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90..97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98..9F
};

char32_t ByteToCodePoint(unsigned char b) {
  if (b >= 0x80 && b <= 0x9F) return kHighTable[b - 0x80];
  return b;  // ASCII and 0xA0..0xFF are Latin-1
}

// The byte of a code point, or -1 when the code page has none.
int CodePointToByte(char32_t c) {
  if (c < 0x80) return static_cast<int>(c);
  if (c >= 0xA0 && c <= 0xFF) return static_cast<int>(c);
  for (int i = 0; i < 32; ++i) {
    if (kHighTable[i] == c) return 0x80 + i;
  }
  return -1;
}

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    // Everything the code page holds lies in the Basic Multilingual Plane.
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

bool IsContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

}  // namespace

std::string Utf8ToCp1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  const std::size_t n = utf8.size();
  std::size_t i = 0;
  while (i < n) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
      out += static_cast<char>(lead);
      ++i;
      continue;
    }
    int need = 0;
    char32_t c = 0;
    char32_t min = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
      need = 1;
      c = lead & 0x1F;
      min = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
      need = 2;
      c = lead & 0x0F;
      min = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
      need = 3;
      c = lead & 0x07;
      min = 0x10000;
    } else {
      // A stray continuation byte or a lead byte that never starts a
      // well-formed sequence.
      out += '?';
      ++i;
      continue;
    }
    int got = 0;
    while (got < need && i + 1 + got < n && IsContinuation(static_cast<unsigned char>(utf8[i + 1 + got]))) {
      c = (c << 6) | (static_cast<unsigned char>(utf8[i + 1 + got]) & 0x3F);
      ++got;
    }
    i += 1 + got;
    if (got < need || c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
      out += '?';  // cut short, overlong, a surrogate or beyond Unicode
      continue;
    }
    const int b = CodePointToByte(c);
    out += b < 0 ? '?' : static_cast<char>(b);
  }
  return out;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (char ch : bytes) {
    const auto b = static_cast<unsigned char>(ch);
    if (b < 0x80) {
      out += ch;
    } else {
      AppendUtf8(out, ByteToCodePoint(b));
    }
  }
  return out;
}

}  // namespace mf
