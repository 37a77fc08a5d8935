#include "ai/move_all.h"

#include <vector>

#include "ai/ai_orders.h"
#include "ai/ai_state.h"
#include "ai/sorted_list.h"
#include "ai/unit_worth.h"
#include "ai/value_field.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "orders/flood.h"

namespace mf {
namespace {


bool SeaNeighbour(int x, int y) {
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(x, y, d);
    if (n.x > 0 && n.y > 0 && Hex[n.x][n.y].Land == kSea) return true;
  }
  return false;
}

// Does the unit on (x, y) move in this class?
bool InClass(int u, int unitClass, int x, int y) {
  const UnitRec& un = Unit[u];
  if (un.Theater == kAirTheater) {
    // Aircraft rebase only from a port town.
    return unitClass == kAIAirClass && Hex[x][y].Land == kUrban && SeaNeighbour(x, y);
  }
  if (un.Theater != kLandTheater) return false;
  switch (unitClass) {
    case kAILineClass: return !AIIsHq(u) && !AILongRange(u);
    case kAIStaffClass: return un.Thq > 0 || (un.Shq == 0 && AILongRange(u));
    case kAIShqClass: return un.Shq > 0;
    default: return false;
  }
}

}  // namespace

void AIMoveAll(int f, int unitClass) {
  std::vector<bool> moved(kUnitCap + 1, false);
  const bool noLandBorder = AINoLandBorder(f);
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      if (Hex[x][y].Land == kSea) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = static_cast<int>(Hex[x][y].Unit[s]);
        if (!ValidUnit(u) || Unit[u].Regime != Game.CurRegime || moved[u]) continue;
        if (!InClass(u, unitClass, x, y)) continue;
        if (Unit[u].Shq == 0 && Unit[u].Front != f) continue;

        AIFloodFrom(x, y, s);
        ListClear();
        for (int tx = 1; tx <= MapW(); ++tx) {
          for (int ty = 1; ty <= MapH(); ++ty) {
            const HexRec& t = Hex[tx][ty];
            if (t.Work <= 0 || t.Mark >= 999 || (tx == x && ty == y)) continue;
            long score = t.Work - 3L * t.Mark;
            // Across the water a port with two units in it is full enough.
            if (noLandBorder && t.Owner == Game.CurRegime && t.Land == kUrban && t.Unit[2] != 0) score = 0;
            ListAdd(tx, ty, static_cast<Long>(score));
          }
        }
        const int bx = static_cast<int>(AI.ListA[1]);
        const int by = static_cast<int>(AI.ListB[1]);
        const long worth = 2L * AIUnitWorth(x, y, u, 3);
        if (AI.ListScore[1] > 0 && ValidHex(bx, by) && Hex[bx][by].Work - Hex[x][y].Work + worth > 4) {
          if (AIMoveUnitTo(x, y, s, bx, by)) {
            moved[u] = true;
            Hex[bx][by].Work -= static_cast<Long>(worth);
            Hex[x][y].Work += static_cast<Long>(worth);
          }
        }
        ClearFlood();
      }
    }
  }
}

}  // namespace mf
