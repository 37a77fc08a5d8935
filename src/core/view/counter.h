// Counters of units on the map: which picture a formation shows, its THQ
// badge, and the attack and defence figures printed on it.
#pragma once

#include <string>

#include "model/counter_pic.h"

namespace mf {

class Canvas;

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
