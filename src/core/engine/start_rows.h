#pragma once
// Who plays each regime, as both start dialogs (Start Game and Random
// Scenario) ask it: one row a regime with its name, the "Human" box and the
// e-mail address a play-by-email game sends the turn to. The boxes write
// straight into the regime table; the rows only show it.

#include <cstddef>
#include <string>

namespace mf {

struct RegimeRow {
  bool shown = false;  // rows above the regimes in play are hidden, and blank
  std::string name;
  bool human = false;  // the "Human" box: off means the computer plays it
  std::string email;
};

// Rows 1..count (of a 1-based array) from the regime table; regimes above
// `shown` have hidden, blank rows.
void MirrorRegimeRows(RegimeRow* rows, int count, int shown);

// Engine variable 701 is a scenario's ban on computer players. The Start
// Game dialog takes only the value 1 for a ban; the Random Scenario dialog,
// which plays on a base scenario's rules, takes any value but 0.
enum class ComputerBan { kAtOne, kUnlessZero };

// The "Human" box of regime `row`, one of the first `shown`: set, the
// regime is a person's; cleared, the computer's, unless the scenario bans
// the computer, which is said and the regime stays human. False, with a
// reason, for a row that is not shown.
bool ChooseHuman(int row, int shown, bool human, ComputerBan ban, std::string* why);

// The e-mail box of regime `row`, one of the first `shown`. With a `limit`
// an address of that many characters or more is not kept. False, with a
// reason, for a row that is not shown.
bool ChooseEmail(int row, int shown, const std::string& email, std::size_t limit, std::string* why);

}  // namespace mf
