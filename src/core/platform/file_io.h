// Whole files in and out, the careful way: a read refuses what is not a plain
// readable file before anything is taken from it, and a write never leaves a
// half-written or vanished file behind. Every file the game and its tools
// read or write goes through here.
#pragma once

#include <cstddef>
#include <string>

namespace mf {

// The largest file any reader takes in; far above the largest scenario (a
// 100 x 100 map with every table full), its JSON form and any script.
inline constexpr std::size_t kMaxFileBytes = std::size_t{256} << 20;

// Reads a whole file into bytes. False, with the reason in plain words ("it
// does not exist", "it is a folder", "it is not a regular file", "it cannot be
// opened: Permission denied", "it is larger than 256 MB"), for anything but a
// readable regular file of at most maxBytes; bytes is then left empty. A
// symbolic link to a readable regular file is read as that file.
bool ReadWholeFile(const std::string& path, std::string* bytes, std::string* why,
                   std::size_t maxBytes = kMaxFileBytes);

// Whether path names a regular file (through links) that can be opened for
// reading; false with the reason as ReadWholeFile gives it.
bool CanReadFile(const std::string& path, std::string* why);

// Puts bytes in place of the file at path, or makes it, atomically: they go
// to a temporary file of a unique name beside the target, are flushed, and
// the temporary file is renamed over the target, so the target is always
// either the old file or the new one (a full disk leaves the old file). A
// symbolic link stays a link and the file it points at is replaced; the
// target keeps its permissions. False, with the reason, when nothing was
// changed.
bool ReplaceFileAtomically(const std::string& path, const std::string& bytes, std::string* why = nullptr);

}  // namespace mf
