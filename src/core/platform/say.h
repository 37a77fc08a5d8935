// A message to the player with no title of its own (the program's title
// stands for it).
#pragma once

#include <string>

#include "platform/platform.h"

namespace mf {

inline void Say(const std::string& text) { Plat().ShowMessage(text, ""); }

}  // namespace mf
