// The menu flows around scenario files: load, import and save with their
// messages, and the set-up of the game after a load.
#pragma once

#include <string>

namespace mf {

// Reads a file with all the rules of a load (messages, scrambled-file
// detection, newer-version refusal, repairs, leaving the file scrambled).
bool ReadFile(const std::string& path);
// Clear, read, and set the game up to go on.
bool LoadGameFile(const std::string& path);
// Takes the rule set of a file into the current game.
bool ImportFile(const std::string& path);
// The same rule set taken from a file that stays as it is on disk (it may
// lie in a read-only program folder, or be read by two programs at once):
// no messages, no transform. False when the file cannot be read.
bool ImportRulesOf(const std::string& path);

// The menu commands: they ask the platform for a path, then run the flow
// with its messages ("Saved", "Save canceled", "Load canceled", ...).
bool SaveCommand();
// The save of the menu once a path is known: "Saved", or "Save canceled"
// for an empty path or a failed write. True when the file was written.
bool SaveToPath(const std::string& path);
void LoadCommand();
void ImportCommand();
// The four fixed menu entries "scenario1" .. "scenario4".
void LoadMenuScenario(int n);

// File filters of the dialogs.
std::string ScenarioFilter();   // with the hidden campaign filter when the editor panel shows
std::string ImportFilter();

}  // namespace mf
