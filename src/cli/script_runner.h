// marrowfield-cli run: executes a script, one command a line, against the
// same core routines the game's menus and dialogs call. Every message box,
// prompt, file dialog and dialog action is printed as it happens; a failed
// check prints one line "SCRIPT:LINE: why" and ends the run.
#pragma once

#include <iosfwd>
#include <string>

namespace mf::cli {

// Runs a script file; relative paths in it are taken from the script's folder.
// Returns the exit code: 0 when every command succeeded, 1 otherwise.
int RunScriptFile(const std::string& path, std::ostream& out, std::ostream& err);

// Runs script text. name is shown in failure lines; baseDir is the folder
// relative paths are taken from.
int RunScriptText(const std::string& text, const std::string& name, const std::string& baseDir,
                  std::ostream& out, std::ostream& err);

}  // namespace mf::cli
