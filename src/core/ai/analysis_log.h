// The computer player's analysis log: the lines in which every stage says
// what it saw and decided. They go out through the platform as they are
// written, whatever the flags say: the window lists them, the headless
// program prints them as "AI <line>", tests read them back.
#pragma once

#include <string>

namespace mf {

// Appends one line to the analysis log.
void AILog(const std::string& line);

}  // namespace mf
