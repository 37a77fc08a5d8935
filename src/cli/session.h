// Small helpers the subcommands share: map sizes as a person types them and
// the folder of the executable. Every command starts from StartFresh (model/reset.h).
#pragma once

#include <string>

namespace mf::cli {

// The two numbers of a map size as a person types them ("12", "10"); false,
// with a reason, when either is not a whole number.
bool MapSizeWords(const std::string& w, const std::string& h, std::string* why);

// The folder that holds this executable (from /proc/self/exe); "" if unknown.
std::string ExecutableDir();

}  // namespace mf::cli
