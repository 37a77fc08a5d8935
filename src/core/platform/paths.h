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

// The program folder for an executable in `exeDir`: the executable's own
// folder when default/ lies beside it (a build), else the installed data
// folder share/marrowfield under the install prefix (exeDir/../share/
// marrowfield). The executable's folder when neither has the pictures.
std::string FindProgramDir(const std::string& exeDir);

// The player's own game folder, where saves and play-by-mail files go:
// $XDG_DATA_HOME/marrowfield (~/.local/share/marrowfield), made when first
// asked for. The game never needs to write into its install folder.
std::string UserGameDir();

}  // namespace mf
