// What every fuzz target shares: a fresh game as the program opens it, a
// platform that answers every box with its default and prints nothing, and
// a scratch folder of this process for the files a target must write.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace mf::fuzz {

// Installs the silent platform (once) and starts from the opened program.
void FreshGame();
// The bytes of one input as text.
std::string AsText(const std::uint8_t* data, std::size_t size);
// This process's own scratch folder, made on first use.
const std::string& ScratchDir();
// Writes bytes to a file in the scratch folder and returns its path.
std::string WriteScratch(const std::string& name, const std::string& bytes);

}  // namespace mf::fuzz
