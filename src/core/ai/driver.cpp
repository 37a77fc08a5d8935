// The computer player's turn, step by step. Each stage sets the same order
// registers and calls the same routines as a person's clicks do; the
// driver only puts the stages in their order, yields to the window at the
// marked steps and remembers, per unit, which pair of areas it served.
#include "ai/ai_turn.h"

#include "ai/ai_state.h"
#include "ai/analysis_log.h"
#include "ai/areas.h"
#include "ai/fronts.h"
#include "ai/headquarters.h"
#include "ai/logistics.h"
#include "ai/operations.h"
#include "ai/production.h"
#include "ai/reshape.h"
#include "ai/stock.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "orders/order_buttons.h"
#include "platform/platform.h"

namespace mf {
namespace {

// The steps of a computer turn, counted on the "Next turn" button as
// "AI PHASE p/n" when the analysis is on.
constexpr int kPhases = 20;

void Phase(int step) {
  SetAIPhase(step, kPhases);
  RefreshButtons();
}

// Lets the window paint what the turn has done so far. False when the
// player has meanwhile quit the program: the turn stops after this stage.
bool YieldToWindow() {
  Plat().YieldEvents();
  return !AI.StopRequested;
}

// Whatever a person left half done, the computer starts from clean order
// registers: its stages set what they need and nothing else.
void ClearOrderRegisters() {
  UI.Order = OrderFlags{};
  UI.OrdX = UI.OrdY = UI.OrdSlot = 0;
  UI.AttackerCount = 0;
  for (int n = 1; n <= kAttackerCap; ++n) UI.AttackerX[n] = UI.AttackerY[n] = UI.AttackerSlot[n] = 0;
}

// What the regime remembers until its next computer turn: the pair of areas
// of each unit's front, since front numbers change from turn to turn.
void RememberFronts(int r) {
  for (int u = 1; u <= kUnitCap; ++u) {
    UnitRec& unit = Unit[u];
    if (unit.Regime != r || unit.Front <= 0 || unit.Front > kFrontCap) continue;
    unit.AIX = AI.FrontOwnArea[unit.Front];
    unit.AIY = AI.FrontEnemyArea[unit.Front];
  }
}

bool EveryRegimeIsComputer() {
  const int last = LastRegime();
  int computers = 0;
  for (int r = 1; r <= last; ++r)
    if (Regime[r].AI == 1) ++computers;
  return computers == last;
}

}  // namespace

void AITurn() {
  const int r = CurrentRegime();
  ClearOrderRegisters();

  // 1. and 2. Whose turn it is, in the log and in the help label.
  Phase(1);
  AILog("**************");
  AILog("AI: " + Regime[r].Name);
  AILog("**************");
  Phase(2);
  UI.HelpText = "AI FOR " + Regime[r].Name;
  if (!YieldToWindow()) return;

  // 3. to 5. The analysis: areas, strengths, fronts, who serves where.
  Phase(3);
  AIClear();
  Phase(4);
  AIFindAreas();
  AIAreaStrength();
  AIFindFronts();
  AIAssignFronts();
  if (!YieldToWindow()) return;
  Phase(5);
  AIMoveThqFront();

  // 6. Fighting and moving, front by front.
  Phase(6);
  AIOperations();
  if (!YieldToWindow()) return;

  // 7. Reshaping units after the fighting.
  Phase(7);
  AIUnitSplitMerge();
  AIMergeNaval();
  if (!YieldToWindow()) return;

  // 8. to 12. Which SHQ serves which area and town, research, production.
  Phase(8);
  AIAreasToShq();
  Phase(9);
  AIResearch();
  Phase(10);
  AITownsToShq();
  Phase(11);
  AIProduction();
  Phase(12);
  AIAreasToShq();

  // 13. New headquarters.
  Phase(13);
  AINewShq();
  AINewThq();
  if (!YieldToWindow()) return;

  // 14. and 15. Stock handed out, ships and aircraft built up.
  Phase(14);
  AIStockInf();
  AIStockArt();
  AIStockMob();
  AIStockArm();
  Phase(15);
  AIBuildNaval();
  AIBuildAir();
  AIBuildAir2();

  // 16. The driver's only draw: in about three turns of ten, SHQs with stock
  // to spare hand it on to the SHQ that needs it most.
  Phase(16);
  if (Rnd() < 0.3f) AIShqToShq();

  // 17. New land units and their bosses.
  Phase(17);
  AINewLandUnits();
  AIAssignBoss();

  // 18. The memory of the turn.
  Phase(18);
  RememberFronts(r);

  // 19. A game that plays itself rings at the end of every turn.
  Phase(19);
  if (EveryRegimeIsComputer() && UI.SoundOff == 0) Plat().PlaySound(2);

  // 20.
  Phase(20);
  UI.HelpText.clear();
}

}  // namespace mf
