#include "ai/operations.h"

#include "ai/ai_orders.h"
#include "ai/air_interdict.h"
#include "ai/analysis_log.h"
#include "ai/ai_state.h"
#include "ai/artillery_fire.h"
#include "ai/land_attack.h"
#include "ai/move_all.h"
#include "ai/shipping.h"
#include "ai/value_field.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {
namespace {


// By stance 0 (garrison) .. 4 (full offensive); anything else reads as 0.
double ByStance(long stance, const double (&values)[5]) { return stance >= 0 && stance <= 4 ? values[stance] : values[0]; }

}  // namespace

void AISupplyRatio() {
  double made = 0;
  double wanted = 0;
  const long divider = EV(201);
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      const HexRec& h = Hex[x][y];
      if (h.Owner != Game.CurRegime) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const long u = h.Unit[s];
        if (ValidUnit(static_cast<int>(u)) && u != 0 && Unit[u].Regime != 0 && Unit[u].Shq > 0) made += Unit[u].GenSupply;
      }
      if (divider != 0) wanted += static_cast<double>(Int(static_cast<double>(h.Pop) / static_cast<double>(divider)));
    }
  }
  if (wanted > 0) {
    const double r = made / wanted;
    AI.SupplyRatio = r > 1 ? 1 : r;
  }
}

double AIPenalty(long stance, double R) {
  static const double kPenalty[5] = {40, 40, 20, 10, 0};
  return R * ByStance(stance, kPenalty);
}

double AIOddsFirst(long stance, double R) {
  static const double kOdds[5] = {1.3, 1.2, 1.1, 0.9, 0.7};
  return R * ByStance(stance, kOdds);
}

double AIOddsSecond(long stance, double R) {
  static const double kOdds[5] = {1.5, 1.3, 1.2, 1.1, 0.9};
  return R * ByStance(stance, kOdds);
}

std::string AIAreaFrontLine(int f) {
  const bool ok = f >= 1 && f <= kFrontCap;
  const long hexes = ok ? AI.FrontLineHexes[f] : 0;
  const long units = ok ? AI.FrontLineUnits[f] : 0;
  const long balance = ok ? AI.FrontBalance[f] : 0;
  return "AREAFRONT(" + Str(f) + ") : " + NumText(hexes) + "-" + NumText(units) + "=" + NumText(balance) + ")";
}

void AIOperations() {
  AISupplyRatio();
  for (int f = 1; f <= LastFront(); ++f) {
    // The player is quitting: the turn stops between two fronts.
    if (AI.StopRequested) break;
    const double R = AI.SupplyRatio;
    const long stance = AI.FrontStance[f];
    AIClearWork(f);
    const double P = AIPenalty(stance, R);
    AIHexValues(f, P, kAILineClass);

    double D = AIOddsFirst(stance, R);
    AIArtilleryFire(f);
    AILandAttack(f, D);
    AIAirInterdict();
    AILandAttack(f, D);
    AILandAttack(f, D);

    AIHexValues(f, P, kAILineClass);
    AIMoveAll(f, kAILineClass);

    D = AIOddsSecond(stance, R);
    AIArtilleryFire(f);
    AILandAttack(f, D);
    AILandAttack(f, D);
    AILandAttack(f, D);

    AIHexValues(f, P, kAILineClass);
    AIMoveAll(f, kAILineClass);

    // Headquarters, guns and aircraft follow the line at a fixed penalty.
    AIHexValues(f, 20, kAIStaffClass);
    AIMoveAll(f, kAIStaffClass);
    AIHexValues(f, 20, kAIAirClass);
    AIMoveAll(f, kAIAirClass);
    AIHexValues(f, 20, kAIShqClass);
    AIMoveAll(f, kAIShqClass);

    if (AISeaFront(f) && !AIShipping(f)) break;

    AI.FrontBalance[f] = AI.FrontLineHexes[f] - AI.FrontLineUnits[f];
    AILog(AIAreaFrontLine(f));
  }
  AIClearOrders();
}

}  // namespace mf
