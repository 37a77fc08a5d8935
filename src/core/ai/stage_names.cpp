#include "ai/stage_names.h"

#include "ai/areas.h"
#include "ai/fronts.h"
#include "ai/headquarters.h"
#include "ai/logistics.h"
#include "ai/operations.h"
#include "ai/production.h"
#include "ai/reshape.h"
#include "ai/stock.h"

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
    {"AIOperations", &AIOperations},
    {"AIUnitSplitMerge", &AIUnitSplitMerge},
    {"AIMergeNaval", &AIMergeNaval},
    {"AIAreasToShq", &AIAreasToShq},
    {"AIResearch", &AIResearch},
    {"AITownsToShq", &AITownsToShq},
    {"AIProduction", &AIProduction},
    {"AINewShq", &AINewShq},
    {"AINewThq", &AINewThq},
    {"AIStockInf", &AIStockInf},
    {"AIStockArt", &AIStockArt},
    {"AIStockMob", &AIStockMob},
    {"AIStockArm", &AIStockArm},
    {"AIBuildNaval", &AIBuildNaval},
    {"AIBuildAir", &AIBuildAir},
    {"AIBuildAir2", &AIBuildAir2},
    {"AIShqToShq", &AIShqToShq},
    {"AINewLandUnits", &AINewLandUnits},
    {"AIAssignBoss", &AIAssignBoss},
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
