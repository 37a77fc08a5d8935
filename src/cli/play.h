// Whole games with the computer on every side: `play` plays one and prints a
// line per round; `balance` plays many in separate processes and prints, per
// regime, how it fared.
#pragma once

#include <iosfwd>

#include "subcommands.h"

namespace mf::cli {

// play FILE --turns N [--seed S] [-o OUT]
int PlayCommand(const Args& args, std::ostream& out, std::ostream& err);
// balance FILE --games N --turns T [--jobs J] [--csv OUT.csv]
int BalanceCommand(const Args& args, std::ostream& out, std::ostream& err);

}  // namespace mf::cli
