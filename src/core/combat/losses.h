// Every loss of the game's battles passes through ApplyLoss: it takes the men
// or machines away, counts them for both sides, moves experience and
// readiness on both sides and may make an officer famous.
#pragma once

#include "model/game_state.h"

namespace mf {

// Loss kinds.
constexpr int kLossInterdiction = 10;
constexpr int kLossDogfight = 20;
constexpr int kLossLandFight = 30;
constexpr int kLossSeaBattle = 31;
constexpr int kLossArtillery = 40;  // also anti-aircraft fire and losses on the way

// Opponent code of fire that comes from no one unit (anti-aircraft fire):
// this plus the regime number.
constexpr int kRegimeFire = 10000;

// The tallies of the fight in progress, by class index 1..12 (class + 4 x
// theater of the unit that lost them): the side of the regime to move, and
// the other side. Zeroed at the start of each battle and air mission.
extern Long AttackerLost[kLossClasses + 1];
extern Long DefenderLost[kLossClasses + 1];
void ZeroBattleTallies();

// Takes `amount` of class `cls` (1 Inf, 2 Mob, 3 Art, 4 Arm) from `victim`.
// `opponent` is the unit that fired, kRegimeFire + regime for fire of no one
// unit, or 0 for none. The amount is cut to what the victim has.
void ApplyLoss(int victim, int opponent, int kind, int cls, long long amount);

// After a ship lost some of its classes: cargo that the remaining ships can
// no longer carry is lost, a tenth of each class at a time, and cargo with
// nothing left is gone.
void CheckCargo(int carrier);

}  // namespace mf
