// The numbered lists the editors keep (regimes, peoples, unit types,
// events): entries 1..last, picked by number. A new entry goes on at the end
// and only the last one can be deleted, so that the numbers the rest of the
// scenario refers to never move.
#pragma once

#include <string>

namespace mf {

// Picks entry n of a list of `last` entries into `selected`; false, saying
// why, for a number the list does not hold. `noun` names one entry
// ("regime").
bool PickEntry(int n, int last, const std::string& noun, int* selected, std::string* why);

// The number of a new entry at the end of a list of `last` entries; with
// the list at its `cap`, the message `full` is shown and 0 given.
int NewEntry(int last, int cap, const std::string& full);

// The entry a Delete button takes: the last one; with none left, the
// message `none` is shown and 0 given.
int EntryToDelete(int last, const std::string& none);

// The entry to copy from into entry `into`, asked with `question` and the
// prompt's default `answer`: 0 for an answer outside first..last, or for the
// entry itself (nothing to copy).
int AskCopySource(const std::string& question, const std::string& answer, int first, int last, int into);

}  // namespace mf
