// Where the game's files are. Paths in game data use backslashes
// ("\default\map"); they are resolved under the program folder, the folder
// that holds default/ and scenarios/ next to the executables.
#pragma once

#include <string>

namespace mf {

void SetProgramDir(const std::string& dir);
const std::string& ProgramDir();
// Resolves a game path ("\default\map", "default/map" or an absolute path)
// to a file-system path. Backslashes become slashes; when the exact name is
// missing, each part is looked up without regard to case, so user-made
// folders named in another case still work.
std::string ResolveGamePath(const std::string& gamePath);
// The program's "\scenarios" folder.
std::string ScenariosDir();

}  // namespace mf
