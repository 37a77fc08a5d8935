#include "ai/stage_names.h"

#include "ai/areas.h"
#include "ai/fronts.h"

namespace mf {
namespace {

struct Stage {
  const char* name;
  void (*run)();
};

// In the order of a turn.
const Stage kStages[] = {
    {"AIClear", &AIClear},
    {"AIFindAreas", &AIFindAreas},
    {"AIAreaStrength", &AIAreaStrength},
    {"AIFindFronts", &AIFindFronts},
    {"AIAssignFronts", &AIAssignFronts},
    {"AIMoveThqFront", &AIMoveThqFront},
};

}  // namespace

bool RunAIStage(const std::string& name) {
  for (const Stage& s : kStages) {
    if (name == s.name) {
      s.run();
      return true;
    }
  }
  return false;
}

std::vector<std::string> AIStageNames() {
  std::vector<std::string> out;
  for (const Stage& s : kStages) out.push_back(s.name);
  return out;
}

}  // namespace mf
