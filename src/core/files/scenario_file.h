// Reading and writing scenario files (.mf1, hidden campaign files .mf2). A
// save never leaves a half-written file: the bytes go to a temporary file in
// the same folder that is renamed into place. The menu flows around them
// (load, import, save with their messages) are in control/scenario_flow.h.
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
// the reading after the head's first fields. With importOnly the text is
// read as an import reads it: only the rule set is kept.
long ParseScenario(const std::string& plain, bool importOnly = false);

// True when something exists at path.
bool FileExists(const std::string& path);
// File bytes held in memory made plain as a load makes them: when their first
// number is 0 they are scrambled (no real file starts with 0, and scrambled
// bytes form no number) and are flipped back. True when they were scrambled.
bool UnscrambleBytes(std::string* bytes);
// Reads the bytes of a file to be loaded (false, with the reason, for what
// is no readable regular file) and unscrambles them in memory when the first
// number is 0. The file on disk is not touched: the end state the rules ask
// for is reached without it (a scrambled file, transformed twice, is what it
// was), a file on a read-only disk or in the install folder loads in full,
// and a file is never left plain by a load that stops half way.
bool ReadPlainBytes(const std::string& path, std::string* bytes, bool* wasScrambled, std::string* why);
// A plain file is left scrambled after its read, as every read leaves a
// file, by an atomic rewrite that keeps links and permissions; where it
// cannot be written (a read-only disk, the install folder) it stays as it is.
void LeaveScrambled(const std::string& path, std::string plain);

// Writes the current game to path, scrambled, through a temporary file.
// False on an I/O failure; the old file is then untouched.
bool WriteFile(const std::string& path);

}  // namespace mf
