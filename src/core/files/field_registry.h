// Every saved field and the working fields tests need, addressed by the name
// the rules give it: "Game.Turn", "Hex[3,4].Owner", "Hex[3,4].Unit[2]",
// "Unit[7].Readiness", "Type[2].Attr[4]", "Dip[1,2].Cost",
// "Shq[1,2].StockQty[3]", "News[1,5].Text", "People[1].FirstName[3]",
// "EngineVar[533]", "UI.SelX". Used by scripts, the JSON files and editors.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace mf {

// Reads a field as text (numbers without a leading blank). False with a
// reason for an unknown name or an index outside the table.
bool GetField(const std::string& name, std::string* value, std::string* why);
// Writes a field; numbers are taken by Val. False with a reason as above.
bool SetField(const std::string& name, const std::string& value, std::string* why);
// The record and field names known, as "Unit[].Readiness", for help texts.
std::vector<std::string> FieldPatterns();

// Tables that live above the scenario codec (the computer player's working
// tables) are named by plugging them in: a record without indices whose
// fields are plain numbers or tables of one or two indices. A one-index table
// is read 0..N-1 and written 1..N-1; a two-index one 0-based in both.
enum class PluggedKind { kLong, kShort, kDouble };
struct PluggedField {
  std::string name;
  PluggedKind kind = PluggedKind::kLong;
  int ndims = 0;
  int extent[2] = {0, 0};
  void* base = nullptr;
  std::size_t elemSize = 0;
};
// Adds (or replaces) a record of plugged-in fields.
void AddFieldRecord(const std::string& record, const std::vector<PluggedField>& fields);

// A field of a plugged-in record from a number or a table of numbers.
template <class T>
PluggedField Plugged(const char* name, T& table) {
  using E = std::remove_all_extents_t<T>;
  static_assert(std::is_same_v<E, std::int32_t> || std::is_same_v<E, std::int16_t> || std::is_same_v<E, double>,
                "a plugged-in field is a long, a short or a double");
  PluggedField f;
  f.name = name;
  f.kind = std::is_same_v<E, std::int16_t> ? PluggedKind::kShort
           : std::is_same_v<E, double>     ? PluggedKind::kDouble
                                           : PluggedKind::kLong;
  f.ndims = static_cast<int>(std::rank_v<T>);
  static_assert(std::rank_v<T> <= 2, "a plugged-in field has at most two indices");
  if constexpr (std::rank_v<T> >= 1) f.extent[0] = static_cast<int>(std::extent_v<T, 0>);
  if constexpr (std::rank_v<T> == 2) f.extent[1] = static_cast<int>(std::extent_v<T, 1>);
  f.base = static_cast<void*>(&table);
  f.elemSize = sizeof(E);
  return f;
}

}  // namespace mf
