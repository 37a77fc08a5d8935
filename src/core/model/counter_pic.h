// The picture a formation's counter shows and its THQ badge, kept in the
// unit's record (Unit.CounterPic, Unit.ThqBadge) and worked out again
// whenever what decides them changes.
#pragma once

namespace mf {

// Counter families; the picture of family f in regime colour c is sprite
// 180 + 20 f + c. A type's Override below 400 names a family, from 400 up a
// sprite of its own (extra counters, type pictures).
enum CounterFamily : int {
  kFamilyInfantry = 1,  // also the mobile family: trucks lead the counter
  kFamilyThq = 2,
  kFamilyShq = 3,
  kFamilyFoot = 4,      // more to carry than the trucks can take: troops march
  kFamilyArtillery = 5,
  kFamilyArmour = 6,
  kFamilyShip = 7,
  kFamilyAircraft = 8,
};
// Colour slots of a counter family beyond the 15 regime colours.
constexpr int kCounterNoSupply = 19;  // own formation with SupplyPct 0
constexpr int kCounterNoChain = 20;   // own formation without a boss
constexpr int kCounterOwnSprite = 400;  // family numbers from here up are sprites
constexpr int kBadgeSpriteBase = 850;   // badge n is sprite 850 + n

// Computes Unit.CounterPic and Unit.ThqBadge of a unit. A THQ without a
// badge takes the first free of its regime's badges 1..30 and enters itself
// in Regime.ThqBadgeUnit.
void Counter(int u);

}  // namespace mf
