// The news list of each regime: what its player reads in the New Turn
// dialog, and the marks drawn on the map for him.
#pragma once

#include <string>

namespace mf {

// News kinds.
constexpr int kNewsLost = 1;          // a formation was lost; the line holds its name
constexpr int kNewsMapMark = 2;       // 2..99: a mark on the map at (x, y)
constexpr int kNewsTextOnly = 100;    // above this: a message in the text; 100 itself stores nothing
constexpr int kNewsSurrender = 991;   // the last other human surrendered
constexpr int kNewsResignation = 992; // a human resigned, others remain

// Adds a line to the news list of a regime.
// - A regime of 0 with a kind below 100 goes to the owner of the first unit in
//   hex (x, y); with no unit there the line has nobody to go to and is dropped.
// - The line goes into the first free line 1..1000 (News.Type 0); when all are
//   in use it is written into line 0, which is never shown.
// - Kind 1: the name of `unit`. Kind 2..99: x, y and mark. Kind above 100:
//   text. Kind 100 (and anything below 1) stores nothing.
void AddNews(int regime, int unit, int kind, const std::string& text, int x, int y, int mark);

}  // namespace mf
