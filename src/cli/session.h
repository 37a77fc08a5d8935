// What every marrowfield-cli command starts from, and the file helpers the
// subcommands share.
#pragma once

#include <cstdint>
#include <string>

namespace mf::cli {

// The state the game program opens in: zeroed tables, engine-variable labels
// and defaults, the generator seeded with a fixed number (so that a script
// repeats itself exactly unless it seeds on its own), an empty map in editing
// mode with the editor panel hidden, and the map window laid out.
void StartFresh(std::uint32_t seed = 1);

// Reads a whole regular file of a sane size; false, with the reason ("it is
// a folder", ...), for anything else.
bool ReadBytes(const std::string& path, std::string* bytes, std::string* why = nullptr);
// Writes a whole file atomically (the old file stays on any failure); false
// with the reason.
bool WriteBytes(const std::string& path, const std::string& bytes, std::string* why = nullptr);

// The two numbers of a map size as a person types them ("12", "10"); false,
// with a reason, when either is not a whole number.
bool MapSizeWords(const std::string& w, const std::string& h, std::string* why);

// A scenario file's state on disk, decided as a load decides it: the first
// number of the file is 0 when the bytes are scrambled (no real file starts
// with 0, and scrambled bytes form no number).
bool LooksScrambled(const std::string& bytes);
// Flips the top bit of every byte, as the file transform does on disk.
std::string FlipBytes(std::string bytes);

// The folder that holds this executable (from /proc/self/exe); "" if unknown.
std::string ExecutableDir();

}  // namespace mf::cli
