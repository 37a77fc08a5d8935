// marrowfield-cli compile: the content compiler (src/content) run on a
// source file, with the scenario it builds saved where the author asks.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace mf::cli {

// marrowfield-cli compile SOURCE -o FILE: compiles and saves. Exit code 0 on
// success; 1 with the faults on err otherwise. The saved file must read back
// to the very same bytes.
int CompileCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace mf::cli
