#include "ai/ai_state.h"

#include "files/field_registry.h"
#include "model/cleared_with_tables.h"

namespace mf {

AIRec AI;

void ResetAIState() { AI = AIRec{}; }

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { ResetAIState(); });
}  // namespace

namespace {

// Scripts and tests read and write the working tables by name, as AI.AreaX[a].
#define AIF(F) Plugged(#F, AI.F)
[[maybe_unused]] const bool kNamed = [] {
  AddFieldRecord("AI", {AIF(AreaCount), AIF(LandmassCount), AIF(FrontCount), AIF(ListCount), AIF(SupplyRatio),
                        AIF(AreaX), AIF(AreaY), AIF(AreaValue), AIF(AreaLandmass), AIF(AreaSide),
                        AIF(AreaOwnStrength), AIF(AreaEnemyStrength), AIF(AreaContact), AIF(AreaShq),
                        AIF(AreaLandBorder), AIF(AreaSeaBorder), AIF(AreaCoastBorder), AIF(AreaLandDist),
                        AIF(AreaSeaDist), AIF(FrontOwnArea), AIF(FrontEnemyArea), AIF(FrontWeight),
                        AIF(FrontShare), AIF(FrontStrength), AIF(FrontStance), AIF(FrontLineHexes),
                        AIF(FrontLineUnits), AIF(FrontBalance), AIF(ListA), AIF(ListB), AIF(ListScore),
                        AIF(ShqNeedsLand), AIF(BestType), AIF(TypeShare)});
  return true;
}();
#undef AIF

}  // namespace
}  // namespace mf
