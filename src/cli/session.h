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

// The two numbers of a map size as a person types them ("12", "10"); false,
// with a reason, when either is not a whole number.
bool MapSizeWords(const std::string& w, const std::string& h, std::string* why);

// The folder that holds this executable (from /proc/self/exe); "" if unknown.
std::string ExecutableDir();

}  // namespace mf::cli
