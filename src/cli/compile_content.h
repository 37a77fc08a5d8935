// The content compiler: turns the readable sources under content/ (rules,
// unit types, peoples, research, maps drawn as rows of characters, towns,
// units, officers and events) into a scenario file. The tables are built
// through the game's own routines and the field registry, exactly as an
// author would build them in the editor, and then saved. The source format
// is described in docs/content-format.md.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace mf::cli {

// Clears the game and fills the tables from the source file at path (and the
// files it includes). False, with one "FILE:LINE: why" line per fault in
// errors, when the source is malformed or the scenario it describes breaks a
// rule of the game (a type attribute the type editor refuses, a unit on a
// hex its regime does not own, a text the file cannot hold ...).
bool CompileContent(const std::string& path, std::vector<std::string>* errors);

// marrowfield-cli compile SOURCE -o FILE: compiles and saves. Exit code 0 on
// success; 1 with the faults on err otherwise.
int CompileCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace mf::cli
