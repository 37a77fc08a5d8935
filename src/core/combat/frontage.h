// Frontage: how much of a formation stands in the line of a battle. Each
// class first takes at most a third of the limit; the rest of the front is
// then handed out one point a round to every class whose troops still fill
// their frontage. Battles and the side panel's "COV:" line share it.
#pragma once

#include "model/game_state.h"

namespace mf {

struct FrontShares {
  double inf = 0, art = 0, arm = 0;
};

// The filling step: at most `limit` times, while `remaining` is above 0,
// infantry, then artillery (only with guns in the line), then armour rise by
// 1 when their Frontsize x quantity is at least their frontage, so a class
// can end one point above what it fills.
void FillFrontage(FrontShares& f, double remaining, long long limit, double pInf, double pArt, double pArm,
                  bool gunsInLine);

// The frontage of a unit attacking alone with this limit, from frontages of 0.
FrontShares LoneFrontageOf(const UnitRec& u, long long limit);

}  // namespace mf
