// The content compiler: turns the readable sources under content/ (rules,
// unit types, peoples, research, maps drawn as rows of characters, towns,
// units, officers and events) into the tables of a scenario. The tables are
// built through the game's own routines and the field registry, exactly as
// an author would build them in the editor; the caller saves them. The
// source format is described in docs/content-format.md.
#pragma once

#include <string>
#include <vector>

namespace mf::content {

// Clears the game and fills the tables from the source file at path (and the
// files it includes). False, with one "FILE:LINE: why" line per fault in
// errors, when the source is malformed or the scenario it describes breaks a
// rule of the game (a type attribute the type editor refuses, a unit on a
// hex its regime does not own, a text the file cannot hold ...).
bool CompileContent(const std::string& path, std::vector<std::string>* errors);

// The same for source text held in memory rather than on disk; name stands
// for its file in the faults, and its includes are looked for beside it.
bool CompileContentText(const std::string& text, const std::string& name, std::vector<std::string>* errors);

}  // namespace mf::content
