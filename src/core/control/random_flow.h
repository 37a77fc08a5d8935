// The File menu's Random Scenario: the game cleared onto the base
// scenario's rules, the dialog run, and a made map laid out and started.
#pragma once

#include <string>

namespace mf {

// What opening the dialog does before it shows: the game cleared, the base
// scenario's rule set taken (the file is only read), the ten default
// regimes, each with a portrait set. A missing or unreadable base is said in
// a message naming the file and the folder (also into `refusal`), nothing
// is changed, and false comes back.
bool PrepareRandomGame(std::string* refusal = nullptr);

// Opens the dialog as PrepareRandomGame leaves the game and runs it. True
// when a map was made; the game then stands at turn 0, not yet started.
// `refusal`, when given, receives the last message that kept the map from
// being made (a refused Start Random Game, or the missing base), "" for a
// plain cancel.
bool MakeRandomScenario(std::string* refusal = nullptr);

// The File menu's "Random Scenario": the dialog, and when a map was made the
// window laid out for it and the first turn begun. Its result is whether a
// game was made.
bool StartRandomGame();

}  // namespace mf
