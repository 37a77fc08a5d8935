// The computer player's stages by their routine names, so that a script or
// a test can run one stage, or a few in a row, for the regime to move.
#pragma once

#include <string>
#include <vector>

namespace mf {

// Runs the stage of that name ("AIClear", "AIFindFronts", ...) for
// Game.CurRegime; false when no stage has that name.
bool RunAIStage(const std::string& name);
// The names RunAIStage knows, in the order of a turn.
std::vector<std::string> AIStageNames();

}  // namespace mf
