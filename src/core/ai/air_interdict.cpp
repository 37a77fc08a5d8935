#include "ai/air_interdict.h"

#include "ai/ai_orders.h"
#include "combat/air_mission.h"
#include "engine/diplomacy.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "orders/flood.h"

namespace mf {
namespace {


bool Prey(const HexRec& h) {
  const int u = static_cast<int>(h.Unit[1]);
  if (h.Mark >= 999 || !ValidUnit(u) || h.Unit[1] == 0 || h.Vis <= 0) return false;
  const UnitRec& t = Unit[u];
  if (t.Regime == 0 || t.Regime == Game.CurRegime || t.Shq > 0) return false;
  return !AtPeace(static_cast<int>(Game.CurRegime), static_cast<int>(t.Regime));
}

}  // namespace

void AIAirInterdict() {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      if (Hex[x][y].Owner != Game.CurRegime) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = static_cast<int>(Hex[x][y].Unit[s]);
        if (!ValidUnit(u) || Unit[u].Regime != Game.CurRegime || Unit[u].Theater != kAirTheater) continue;
        if (Unit[u].Readiness <= 60) continue;
        UI.Order.InterdictOrder = 1;
        AIFloodFrom(x, y, s);
        int tx = 0, ty = 0;
        for (int px = 1; px <= MapW() && tx == 0; ++px) {
          for (int py = 1; py <= MapH(); ++py) {
            if (Prey(Hex[px][py])) {
              tx = px;
              ty = py;
              break;
            }
          }
        }
        if (tx != 0) {
          AIWatch(tx, ty);
          UI.OrdX = x;
          UI.OrdY = y;
          UI.OrdSlot = s;
          UI.SelX = tx;
          UI.SelY = ty;
          UI.SelSlot = 1;
          FlyAirMission();
        }
        UI.Order.InterdictOrder = 0;
        ClearFlood();
        if (tx != 0) AIShowChange(2);
      }
    }
  }
}

}  // namespace mf
