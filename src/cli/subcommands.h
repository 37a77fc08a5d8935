// The subcommands of marrowfield-cli. Each returns the exit code (0 success,
// 1 failure) and writes one line saying why to err when it fails.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace mf::cli {

using Args = std::vector<std::string>;  // the words after the subcommand's name

int NewCommand(const Args& args, std::ostream& out, std::ostream& err);
int DumpCommand(const Args& args, std::ostream& out, std::ostream& err);
int ExportCommand(const Args& args, std::ostream& out, std::ostream& err);
int ImportJsonCommand(const Args& args, std::ostream& out, std::ostream& err);
int ScrambleCommand(const Args& args, bool scramble, std::ostream& out, std::ostream& err);
int RunCommand(const Args& args, std::ostream& out, std::ostream& err);
int RandomCommand(const Args& args, std::ostream& out, std::ostream& err);

// Dispatches argv[1..] to a subcommand; the usage text for none or an unknown one.
int CliMain(const Args& argv, std::ostream& out, std::ostream& err);

}  // namespace mf::cli
