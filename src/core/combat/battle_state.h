// The working state of the battle being fought, shared by the combat files:
// what is worked out once per battle, and the figures of one engagement (one
// attacker against one target unit in one round).
#pragma once

#include <string>

#include "model/game_state.h"

namespace mf {

// Battle kinds.
constexpr int kKindArtilleryLand = 1;
constexpr int kKindArtillerySea = 2;
constexpr int kKindArtilleryAir = 3;
constexpr int kKindLandVsLand = 4;
constexpr int kKindLandVsSea = 5;
constexpr int kKindLandVsAir = 6;
constexpr int kKindSeaBattle = 7;

struct BattleState {
  bool landing = false;        // an invasion from the sea or an airdrop
  bool shown = false;          // the display flag
  int delay = 0;               // milliseconds after each log line
  int tx = 0, ty = 0;          // the target hex
  int stackSize = 0;           // highest occupied slot of the target hex
  int roundLimit = 0;
  int round = 0;
  int engagements = 0;         // direct engagements of the round

  int attackDirections = 0;
  int attackCoordination = 0;
  int defenceLine = 0;
  int defenceCoordination = 0;
  Long attackGroupBoss[4] = {};  // the bosses of the three attack groups

  double softDefenceLandFactor = 1;
  double hardAttackLandFactor = 1;

  // Written once each, in round 1, by join index and by target slot; they
  // stay with the index, not with the unit, when the lists are compacted.
  Long initialAttacker[kAttackerCap + 1] = {};
  Long initialDefender[kStackSlots + 1] = {};

  // Frontage: the limit of the last direct engagement and the six class
  // figures, which carry over to the next engagement wherever a class is
  // not worked out again. The defender's armour is a whole number.
  long long frontLimit = 0;
  double attInfFront = 0, attArtFront = 0, attArmFront = 0;
  double defInfFront = 0, defArtFront = 0;
  Long defArmFront = 0;
};

extern BattleState TheBattle;

struct Engagement {
  int index = 0;               // join index in the attackers' list
  int attacker = 0;
  int ax = 0, ay = 0, aslot = 0;
  int target = 0;
  int targetSlot = 0;
  int distance = 0;
  int direction = 0;           // side of the target the attacker stands on, 0 none
  int kind = 0;
  bool bombarding = false;

  double softAttack = 0, hardAttack = 0;
  double softDefence = 0, hardDefence = 0;
  double fullSoftAttack = 0, fullHardAttack = 0;
  double fullSoftDefence = 0, fullHardDefence = 0;
  long long attRiders = 0, defRiders = 0;

  double attLeadership = 1, attDisruption = 1;
  double defLeadership = 1, defDisruption = 1;
  // Modifiers as the log shows them, 0 when they do not apply.
  long long riverShown = 0;
  long long tacticalShown = 0;
  long long coordinationShown = 0;
  long long entrenchShown = 0;
  long long lineShown = 0;
  long long defCoordinationShown = 0;
};

// ---- Set-up and modifiers --------------------------------------------------

// Highest occupied slot of a hex, 0 when empty.
int HighestSlot(int x, int y);
// Attack directions and coordination, defence line and coordination, land
// factors and the round limit, for TheBattle's target hex.
void PrepareBattle();
// The unit of attackers' list entry i: the slot's occupant, or in a landing
// the unit number the entry holds.
int AttackerUnit(int i);
// Steps 4 to 6 of an attacker's turn: distance, target slot, battle kind.
void ChooseTarget(Engagement& e);
void DecideKind(Engagement& e);
// The kind's log title; "" for kind 0.
std::string KindTitle(int kind);
// Frontage, attack and defence figures, riders, initial strengths.
void WorkFigures(Engagement& e);
// Readiness, experience, leadership, disruption, land, river, tactical,
// coordination, defence line and entrenchment, in that order.
void ApplyModifiers(Engagement& e);
// The figures of a direct engagement for the log, then the round heading.
void LogEngagement(const Engagement& e);

// Current strengths for the morale tests, as the kind computes its full
// figures; a unit without infantry type starts from the modified figures of
// the engagement.
double CurrentAttackStrength(const Engagement& e);
double CurrentDefenceStrength(const Engagement& e);

// ---- Fire ------------------------------------------------------------------

// Casualties of fire power p split c ways on hit points h.
long long CasualtyCount(double p, double c, double h);
// The losses of one engagement, logged.
void Fire(const Engagement& e);

// ---- Aftermath -------------------------------------------------------------

// Steps after the fire. `pass` is the pass index of the attackers' list and
// may step back. True when the engagement ended the round's pass.
bool Aftermath(const Engagement& e, int& pass);
// The closing lines with the tallies of both sides.
void LogTallies();

// A plain number as the log prints it: whole numbers without decimals,
// others with as many as they need.
std::string LogNumber(double value);
// Plays a sound when the battle is shown and sound is on.
void BattleSound(int slot);

}  // namespace mf
