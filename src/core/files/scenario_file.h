// Reading and writing scenario files (.mf1, hidden campaign files .mf2) and
// the menu flows around them. A save never leaves a half-written file: the
// bytes go to a temporary file in the same folder that is renamed into place.
#pragma once

#include <string>

namespace mf {

// Flips the top bit of every byte of a file in place; its own inverse.
// A missing file gives "Cancelled, error in encryption. argh." and false.
bool Transform(const std::string& path);

// The plain text of the current game in file layout (version 111), CR LF
// lines, Windows-1252 text. Raises engine variable 616 to Game.TypeCount first.
std::string SerializeScenario();
// Reads plain file text into the tables as a load does (no clearing, no
// messages, no engine-variable repairs; the reader's own field checks and
// repairs apply). Returns the file version read; a version above 111 stops
// the reading after the head's first fields.
long ParseScenario(const std::string& plain);

// Writes the current game to path, scrambled, through a temporary file.
// False on an I/O failure; the old file is then untouched.
bool WriteFile(const std::string& path);
// Reads a file with all the rules of a load (messages, scrambled-file
// detection, newer-version refusal, repairs, leaving the file scrambled).
bool ReadFile(const std::string& path);
// Clear, read, and set the game up to go on.
bool doGoLoad(const std::string& path);
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
