// Counters of units on the map: which picture a formation shows, its THQ
// badge, and the attack and defence figures printed on it.
#pragma once

#include <string>

namespace mf {

class Canvas;

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

// The counter's figures after readiness, experience and the divider of
// engine variable 301, each at most 99.
struct CounterNumbers {
  long attack = 0;
  long defence = 0;
  long artillery = 0;      // third figure, for artillery of range above 1
  bool hasArtillery = false;
  double softAttack = 0;   // weighted soft attack before readiness and the divider
  double attackSum = 0;    // weighted soft + hard attack before readiness and the divider
};
CounterNumbers CounterFigures(int u);

// The texts printed on a counter. Under fog of war a foreign formation shows
// only an estimate in `attack`, "+-" and a number, and `defence` and
// `artillery` stay empty. Working out the estimate reseeds the one random
// generator with Game.CurRegime + Game.Turn + Unit.Readiness + u, so that
// the estimate stays put for that formation through a turn.
struct CounterTexts {
  std::string attack;
  std::string defence;
  std::string artillery;
};
CounterTexts CounterFigureTexts(int u);

// True when the current player sees formation u as it is: his own, the
// editor, or a game without fog of war.
bool SeesUnitFully(int u);

// Prints the figures of formation u on a counter whose picture stands at
// (left, top), in "Small Fonts" and the text colour of u's regime.
void DrawCounterFigures(Canvas& canvas, int u, int left, int top);

// Where the figures stand on the 43 x 41 counter.
// The figures stand in the band of the counter's card under its symbol box
// (art.md has the layout), so that they read against the counter's own colour.
constexpr int kFigureFontSize = 6;
constexpr int kAttackTextX = 8, kDefenceTextX = 24, kFigureTextY = 21;
constexpr int kArtilleryTextX = 15, kArtilleryTextY = 2;

}  // namespace mf
