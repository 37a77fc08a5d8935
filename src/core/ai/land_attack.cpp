#include "ai/land_attack.h"

#include "ai/ai_orders.h"
#include "ai/ai_state.h"
#include "ai/sorted_list.h"
#include "ai/unit_worth.h"
#include "engine/diplomacy.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {
namespace {



// A unit next to the target that can join an attack on it.
bool Attacker(int u) {
  return ValidUnit(u) && Unit[u].Regime == Game.CurRegime && Unit[u].Theater == kLandTheater && Unit[u].MP >= 2 &&
         !AIIsHq(u);
}

double Percent(int ev) { return static_cast<double>(EV(ev)) / 100.0; }

}  // namespace

AIAttackOdds AIWeighAttack(int x, int y) {
  AIAttackOdds odds;
  const HexRec& h = Hex[x][y];
  // Defence: every unit counts one, a land unit its defence worth besides.
  double q = 0;
  for (int s = 1; s <= kStackSlots; ++s) {
    const int u = static_cast<int>(h.Unit[s]);
    if (!ValidUnit(u) || h.Unit[s] == 0) continue;
    q += 1;
    if (Unit[u].Theater == kLandTheater) q += AIUnitWorth(x, y, u, 2);
  }
  if (h.Land == kForest) q *= Percent(512);
  if (h.Land == kUrban) q *= Percent(513);
  if (h.Land == kSwamp) q *= Percent(515);
  int backing = 0;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(x, y, d);
    if (n.x <= 0 || n.y <= 0) continue;
    if (Hex[n.x][n.y].Owner == h.Owner && Hex[n.x][n.y].Unit[1] != 0) ++backing;
  }
  q = q * (backing * static_cast<double>(EV(537)) + 100) / 100;
  odds.Q = q;

  // Attack: the worth of every own land unit next to it that can still fight.
  double a = 0;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(x, y, d);
    if (n.x <= 0 || n.y <= 0) continue;
    const HexRec& nh = Hex[n.x][n.y];
    if (nh.Owner != Game.CurRegime) continue;
    for (int s = 1; s <= kStackSlots; ++s) {
      const int u = static_cast<int>(nh.Unit[s]);
      if (!Attacker(u)) continue;
      double w = AIUnitWorth(n.x, n.y, u, 1);
      if (h.River[d] == 1) w *= Percent(536);
      const long level = h.Entrench[d];
      if (level > 0 && level <= 3) w *= Percent(static_cast<int>(120 + level));
      a += w;
    }
  }
  odds.A = a;
  return odds;
}

void AILandAttack(int f, double D) {
  if (!AIValidFront(f)) return;
  const long own = AI.FrontOwnArea[f];
  const long other = AI.FrontEnemyArea[f];
  if (other <= 0) return;
  const int r = CurrentRegime();
  ListClear();
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      const HexRec& h = Hex[x][y];
      if (h.Area != other || h.Owner == Game.CurRegime || h.Unit[1] == 0) continue;
      if (h.Owner != 0 && AtPeace(r, static_cast<int>(h.Owner))) continue;
      const AIAttackOdds odds = AIWeighAttack(x, y);
      if (odds.Q > 0 && odds.A > 0 && odds.A > odds.Q * D) ListAdd(x, y, static_cast<Long>(CInt(odds.A - odds.Q)));
    }
  }
  const int tx = static_cast<int>(AI.ListA[1]);
  const int ty = static_cast<int>(AI.ListB[1]);
  if (!ValidHex(tx, ty)) return;

  // Those of the front's own area go in.
  UI.AttackerCount = 0;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(tx, ty, d);
    if (n.x <= 0 || n.y <= 0) continue;
    const HexRec& nh = Hex[n.x][n.y];
    if (nh.Owner != Game.CurRegime || nh.Area != own) continue;
    for (int s = 1; s <= kStackSlots && UI.AttackerCount < 18; ++s) {
      if (!Attacker(static_cast<int>(nh.Unit[s]))) continue;
      const long i = ++UI.AttackerCount;
      UI.AttackerX[i] = n.x;
      UI.AttackerY[i] = n.y;
      UI.AttackerSlot[i] = s;
    }
  }
  if (UI.AttackerCount == 0) return;
  const Short area = Hex[UI.AttackerX[1]][UI.AttackerY[1]].Area;
  AIFight(tx, ty);
  if (Hex[tx][ty].Owner == Game.CurRegime) Hex[tx][ty].Area = area;
}

}  // namespace mf
