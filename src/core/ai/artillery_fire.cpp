#include "ai/artillery_fire.h"

#include "ai/ai_orders.h"
#include "ai/ai_state.h"
#include "engine/diplomacy.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {
namespace {


// An occupied hex of a regime at war with the one to move.
bool Target(int x, int y) {
  if (!ValidHex(x, y)) return false;
  const HexRec& h = Hex[x][y];
  const int r = static_cast<int>(Game.CurRegime);
  if (h.Owner <= 0 || h.Owner == r || h.Unit[1] == 0) return false;
  return !AtPeace(r, static_cast<int>(h.Owner));
}

bool Gun(int u) {
  if (!ValidUnit(u) || Unit[u].Regime != Game.CurRegime || Unit[u].MP < 2) return false;
  return AILongRange(u);
}

}  // namespace

AITarget AIArtilleryTarget(int x, int y, long range) {
  for (int d1 = 1; d1 <= kHexSides; ++d1) {
    const HexXY r1 = Neighbour(x, y, d1);
    if (r1.x > 0 && r1.y > 0 && Target(r1.x, r1.y)) return {r1.x, r1.y};
  }
  for (int d1 = 1; d1 <= kHexSides; ++d1) {
    const HexXY r1 = Neighbour(x, y, d1);
    if (r1.x <= 0 || r1.y <= 0) continue;
    for (int d2 = 1; d2 <= kHexSides; ++d2) {
      const HexXY r2 = Neighbour(r1.x, r1.y, d2);
      if (r2.x > 0 && r2.y > 0 && Target(r2.x, r2.y)) return {r2.x, r2.y};
    }
  }
  if (range <= 2) return {};
  for (int d1 = 1; d1 <= kHexSides; ++d1) {
    const HexXY r1 = Neighbour(x, y, d1);
    if (r1.x <= 0 || r1.y <= 0) continue;
    for (int d2 = 1; d2 <= kHexSides; ++d2) {
      const HexXY r2 = Neighbour(r1.x, r1.y, d2);
      if (r2.x <= 0 || r2.y <= 0) continue;
      // The third ring is searched around the column of the second ring's
      // hex and the row of the first ring's: the computer's gunners have
      // always aimed so.
      for (int d3 = 1; d3 <= kHexSides; ++d3) {
        const HexXY r3 = Neighbour(r2.x, r1.y, d3);
        if (r3.x > 0 && r3.y > 0 && Target(r3.x, r3.y)) return {r3.x, r3.y};
      }
    }
  }
  return {};
}

void AIArtilleryFire(int f) {
  if (!AIValidFront(f)) return;
  const long own = AI.FrontOwnArea[f];
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      if (Hex[x][y].Area != own) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = static_cast<int>(Hex[x][y].Unit[s]);
        if (!Gun(u)) continue;
        const AITarget t = AIArtilleryTarget(x, y, Type[Unit[u].ArtType].Attr[kArtilleryRange]);
        if (t.x == 0) continue;
        UI.AttackerCount = 1;
        UI.AttackerX[1] = x;
        UI.AttackerY[1] = y;
        UI.AttackerSlot[1] = s;
        AIFight(t.x, t.y);
      }
    }
  }
}

}  // namespace mf
