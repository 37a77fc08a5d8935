#include "model/arith.h"

#include <climits>
#include <cmath>

namespace mf {

namespace {

// 2^63 as a double; every double below it in size converts to a 64-bit whole number.
constexpr double kInt64Edge = 9223372036854775808.0;

// NaN and values beyond the 64-bit range, or false when x converts as it is.
bool OutOfRange(double x, std::int64_t* clamped) {
  if (std::isnan(x)) {
    *clamped = 0;
    return true;
  }
  if (x >= kInt64Edge) {
    *clamped = INT64_MAX;
    return true;
  }
  if (x < -kInt64Edge) {
    *clamped = INT64_MIN;
    return true;
  }
  return false;
}

}  // namespace

std::int64_t Int(double x) {
  std::int64_t clamped = 0;
  if (OutOfRange(x, &clamped)) return clamped;
  return static_cast<std::int64_t>(std::floor(x));
}

std::int64_t CInt(double x) {
  std::int64_t clamped = 0;
  if (OutOfRange(x, &clamped)) return clamped;
  const double lower = std::floor(x);
  const double diff = x - lower;
  auto r = static_cast<std::int64_t>(lower);
  if (diff > 0.5) return r + 1;
  if (diff < 0.5) return r;
  // Exactly half way: take the even neighbour.
  return (r % 2 == 0) ? r : r + 1;
}

std::int32_t Clamp32(std::int64_t v) {
  if (v > INT32_MAX) return INT32_MAX;
  if (v < INT32_MIN) return INT32_MIN;
  return static_cast<std::int32_t>(v);
}

std::int32_t AddSat(std::int32_t total, std::int64_t amount) {
  // Both fit in 64 bits with room to spare unless amount is near its own end.
  if (amount > INT32_MAX) amount = static_cast<std::int64_t>(INT32_MAX) * 2;
  if (amount < INT32_MIN) amount = static_cast<std::int64_t>(INT32_MIN) * 2;
  return Clamp32(static_cast<std::int64_t>(total) + amount);
}

std::int64_t AddSat64(std::int64_t total, std::int64_t amount) {
  std::int64_t sum = 0;
  if (!__builtin_add_overflow(total, amount, &sum)) return sum;
  return amount > 0 ? INT64_MAX : INT64_MIN;
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
