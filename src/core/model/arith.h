// Whole-number arithmetic as the rules use it. The rules were written for a
// language whose integer conversions differ from C++: everything here says
// exactly which rounding it takes, and game code uses nothing else.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mf {

// Largest whole number not above x, also for negative x. A value that is no
// number (NaN) gives 0 and one beyond the 64-bit range its nearest end, so
// that damaged data can never make a conversion undefined.
std::int64_t Int(double x);
// Nearest whole number, halves to the even neighbour (2.5 -> 2, 3.5 -> 4);
// NaN and out-of-range values as for Int.
std::int64_t CInt(double x);
// A whole number held inside a 32-bit long: beyond its ends it stays at the end.
std::int32_t Clamp32(std::int64_t v);
// The one add of every total that grows in play (political points, fame,
// kills and losses, stock quantities): it stops at the ends of a long
// instead of wrapping round.
std::int32_t AddSat(std::int32_t total, std::int64_t amount);
// The same for a 64-bit total (sums of attribute times quantity).
std::int64_t AddSat64(std::int64_t total, std::int64_t amount);
// Whole division truncating towards zero; a zero divisor gives 0 instead of a trap.
std::int64_t IDiv(std::int64_t a, std::int64_t b);
// Remainder with the sign of the dividend; a zero divisor gives 0.
std::int64_t Mod(std::int64_t a, std::int64_t b);
// Decimal text with one leading blank when not negative: Str(5) = " 5", Str(-5) = "-5".
std::string Str(std::int64_t n);
// The leading number of a text (blanks first, then sign, digits, a decimal
// fraction); 0 when there is none. "12abc" -> 12, "abc" -> 0, " -3.5x" -> -3.5.
double Val(std::string_view text);
// Val truncated towards zero and clamped into a 32-bit long.
std::int32_t ValLong(std::string_view text);
// Removes leading and trailing blanks.
std::string Trim(std::string_view text);
// The number as text without the leading blank: "5", "-5".
std::string NumText(std::int64_t n);
// Characters of a UTF-8 text (what a player counts), not its bytes.
std::size_t Len(std::string_view text);
// The first n characters of a UTF-8 text.
std::string Left(std::string_view text, std::size_t n);

}  // namespace mf
