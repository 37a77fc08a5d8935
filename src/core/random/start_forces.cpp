#include "random/start_forces.h"

#include "model/arith.h"
#include "model/capacity.h"
#include "model/counter_pic.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"
#include "orders/new_units.h"
#include "random/regime_shq.h"

namespace mf {
namespace {

bool TownBeside(int x, int y) {
  for (int d = 1; d <= 6; ++d) {
    const HexXY n = Neighbour(x, y, d);
    if (n.x >= 1 && n.y >= 1 && Hex[n.x][n.y].Land == kUrban) return true;
  }
  return false;
}

// The troops every regime starts with: 40 of type 1 and `mob` of type 2,
// fresh and seasoned, under `boss`.
void StartTroops(int u, Long mob, int boss) {
  UnitRec& un = Unit[u];
  un.InfType = 1;
  un.InfQty = 40;
  un.MobType = 2;
  un.MobQty = mob;
  un.Readiness = 100;
  un.Experience = 50;
  un.Disruption = 0;
  un.Boss = boss;
  Counter(u);
}

}  // namespace

StartTown ChooseStartTown(const StartTown* earlier, int earlierCount, long& tries) {
  const int w = static_cast<int>(Game.MapW);
  const int h = static_cast<int>(Game.MapH);
  int best = 0;
  StartTown kept;
  StartTown first;
  for (int c = 1; c <= 20; ++c) {
    int x = 0, y = 0;
    for (;;) {
      x = static_cast<int>(Int(Rnd() * static_cast<double>(w - 1))) + 1;
      y = static_cast<int>(Int(Rnd() * static_cast<double>(h - 1))) + 1;
      ++tries;
      if (tries >= kStartTownLastResortTries) break;
      if (Hex[x][y].Land != kGrass && tries < kStartTownStrictTries) continue;
      if (TownBeside(x, y)) continue;
      break;
    }
    if (c == 1) first = {x, y};
    int d = 999;
    for (int e = 0; e < earlierCount; ++e) {
      const int de = Distance(x, y, earlier[e].x, earlier[e].y);
      if (de < d) d = de;
    }
    if (d > best) {
      best = d;
      kept = {x, y};
    }
  }
  // Every candidate on an earlier town itself: the first one stands.
  return best > 0 ? kept : first;
}

bool PlaceStartForces(int seed, bool realRandom, TownNameDraw& names) {
  StartTown towns[kRegimeCap + 1];
  long tries = 0;
  const int count = static_cast<int>(Game.RegimeCount);
  for (int a = 1; a <= count && a <= kRegimeCap; ++a) {
    if (realRandom && seed > 0) {
      SeedRndFromClock();
    } else {
      SeedRnd(static_cast<std::uint32_t>(seed));
    }
    const StartTown t = ChooseStartTown(towns + 1, a - 1, tries);
    towns[a] = t;
    HexRec& town = Hex[t.x][t.y];
    town.Land = kUrban;
    town.Pop = 2500;
    town.Owner = a;
    town.People = Regime[a].OwnPeople;
    town.UrbanName = names.Draw();

    Game.CurRegime = a;
    UI.SelX = t.x;
    UI.SelY = t.y;
    const int shq = MakeRegimeShq(a, t.x, t.y, 1);
    if (shq == 0) return false;
    town.ProdSHQ = shq;
    town.Prod = 1;

    // East of the town: open ground of the regime with its THQ.
    HexRec& camp = Hex[t.x + 1][t.y];
    if (camp.Land != kUrban) camp.Land = kGrass;
    camp.Owner = a;
    UI.SelX = t.x + 1;
    UI.SelY = t.y;
    const bool computer = Regime[a].AI != 0;
    const Long savedAI = Regime[a].AI;
    Regime[a].AI = 1;  // the computer's way: the THQ takes its offered name
    const int thq = NewThq(false);
    Regime[a].AI = savedAI;
    if (thq == 0) return false;
    StartTroops(thq, 3, shq);
    if (computer) {
      const int extra = NewFormation(kLandTheater);
      if (extra == 0) return false;
      StartTroops(extra, 4, thq);
    }
    Game.CurRegime = 0;
  }
  return true;
}

}  // namespace mf
