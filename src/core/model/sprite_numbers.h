// Sprite numbers of the pictures the map is made of, and the check that
// keeps a number worked out from game data inside the sprite table.
#pragma once

namespace mf {

// Sprite numbers of the pictures the map is made of.
namespace sprite {
constexpr int kBaseHex = 1;           // plain land hex
constexpr int kSeaHex = 4;
constexpr int kRegimeHexBase = 20;    // a regime's hex is 20 + Regime.HexSprite
constexpr int kDarkShift = 1000;      // the dark form of a base hex
constexpr int kNoProduction = 803;    // own town that delivers to no SHQ
constexpr int kUnexplored = 804;      // white hex of a map never seen
constexpr int kDamage = 805;
constexpr int kNewsMark7 = 806;
constexpr int kNewsMark8 = 807;
constexpr int kHiddenHex = 808;
constexpr int kNewsMark9 = 810;
constexpr int kNewsMarkBase = 844;    // news marks 1..6 are 844 + mark
constexpr int kEntrenchBase = 1100;   // 1100 + 10 (level - 1) + side
constexpr int kForest = 1500;         // 1501..1506 forest edges towards a side
constexpr int kUrbanLargest = 1521;   // 1521..1526, largest to smallest
constexpr int kRiverBase = 1540;      // 1541..1546 river or coast on a side
constexpr int kRiverDarkShift = 20;   // 1561..1566 their dark forms
constexpr int kSwamp = 1601;
constexpr int kMountain = 1611;
constexpr int kRoadBase = 1620;       // 1621..1626 road towards a side
constexpr int kSlots = 2100;          // the sprite table holds 0..2100

// A sprite number worked out from game data, or 0 (nothing) when the data
// would point outside the table.
constexpr int Checked(long long n) { return n >= 0 && n <= kSlots ? static_cast<int>(n) : 0; }
}  // namespace sprite

}  // namespace mf
