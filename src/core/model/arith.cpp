#include "model/arith.h"

#include <climits>
#include <cmath>

namespace mf {

std::int64_t Int(double x) { return static_cast<std::int64_t>(std::floor(x)); }

std::int64_t CInt(double x) {
  const double lower = std::floor(x);
  const double diff = x - lower;
  auto r = static_cast<std::int64_t>(lower);
  if (diff > 0.5) return r + 1;
  if (diff < 0.5) return r;
  // Exactly half way: take the even neighbour.
  return (r % 2 == 0) ? r : r + 1;
}

std::int64_t IDiv(std::int64_t a, std::int64_t b) {
  if (b == 0) return 0;
  return a / b;  // C++ truncates towards zero
}

std::int64_t Mod(std::int64_t a, std::int64_t b) {
  if (b == 0) return 0;
  return a % b;  // C++ keeps the sign of the dividend
}

std::string Str(std::int64_t n) {
  if (n < 0) return std::to_string(n);
  return " " + std::to_string(n);
}

std::string NumText(std::int64_t n) { return std::to_string(n); }

double Val(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
    negative = text[i] == '-';
    ++i;
  }
  double value = 0;
  bool any = false;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
    value = value * 10 + (text[i] - '0');
    any = true;
    ++i;
  }
  if (i < text.size() && text[i] == '.') {
    ++i;
    double scale = 0.1;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
      value += (text[i] - '0') * scale;
      scale /= 10;
      any = true;
      ++i;
    }
  }
  if (!any) return 0;
  return negative ? -value : value;
}

std::int32_t ValLong(std::string_view text) {
  const double v = std::trunc(Val(text));
  if (v > static_cast<double>(INT32_MAX)) return INT32_MAX;
  if (v < static_cast<double>(INT32_MIN)) return INT32_MIN;
  return static_cast<std::int32_t>(v);
}

std::string Trim(std::string_view text) {
  std::size_t b = 0, e = text.size();
  while (b < e && text[b] == ' ') ++b;
  while (e > b && text[e - 1] == ' ') --e;
  return std::string(text.substr(b, e - b));
}

std::size_t Len(std::string_view text) {
  std::size_t n = 0;
  for (unsigned char c : text)
    if ((c & 0xC0) != 0x80) ++n;  // continuation bytes belong to the character before
  return n;
}

std::string Left(std::string_view text, std::size_t n) {
  std::size_t seen = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
      if (seen == n) return std::string(text.substr(0, i));
      ++seen;
    }
  }
  return std::string(text);
}

}  // namespace mf
