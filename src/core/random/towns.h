// The towns of a random map: the names they are given and the two towns
// each island gets, one on its shore and one inland.
#pragma once

#include <string>

namespace mf {

// The list of town names. The draw reaches only the first 99 of them, so
// the last one ("Dunkers City") never appears on a random map.
constexpr int kTownNameCount = 100;
constexpr int kTownNamesDrawn = 99;
const std::string& TownName(int n);  // 1..100; "" outside

// Names drawn without repeats for one map.
class TownNameDraw {
 public:
  // Draws Int(Rnd() * 99 + 1) until a name not yet used comes up, and marks
  // it used. When all 99 are used (more towns than any map the dialog
  // allows) the name is "" and nothing is drawn.
  std::string Draw();
  int UsedCount() const { return used_count_; }

 private:
  bool used_[kTownNameCount + 1] = {};
  int used_count_ = 0;
};

// The shore town of the island just grown (Hex.Work > 0 marks it): the
// best of its hexes by the island's wave number, with 100 more for a land
// hex with two or more sea neighbours and 100 less beside a town. Urban,
// population 500..2400 in hundreds, no owner, people 2. False when the
// island gave no candidate.
bool PlaceShoreTown(TownNameDraw& names);
// The inland town: the early waves first, 100 less for a land hex with two
// or more sea neighbours or a town beside it. Population as the shore town,
// one time in twenty a city of 2000..3900; people 1..3 by a draw.
bool PlaceInlandTown(TownNameDraw& names);

}  // namespace mf
