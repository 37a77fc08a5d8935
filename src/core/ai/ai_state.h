// The computer player's working tables. They are rebuilt on every computer
// turn, never saved, and global to the program like the rest of the game
// state, so that the move routine can carry Hex.Area over to a hex it takes.
// What a regime remembers from one computer turn to the next lives in the
// unit record (Unit.Front, Unit.AIX, Unit.AIY), not here.
//
// Scripts and tests read and write these tables by name as AI.AreaX[a],
// AI.FrontStance[f], AI.ListScore[i] and so on.
#pragma once

#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {

constexpr int kAreaCap = 100;     // areas: towns and pockets; nothing guards the bound in play
constexpr int kFrontCap = 1000;   // fronts
constexpr int kListCap = 1000;    // entries of the sorted list
constexpr int kAITheaters = 3;    // BestType and the wants: theater 0..2
constexpr int kAIClasses = 4;     // and class 1..4

struct AIRec {
  // Counts in use.
  Long AreaCount = 0;
  Long LandmassCount = 0;
  Long FrontCount = 0;

  // Areas 1..AreaCount.
  Long AreaX[kAreaCap + 1] = {};
  Long AreaY[kAreaCap + 1] = {};
  Long AreaValue[kAreaCap + 1] = {};
  Long AreaLandmass[kAreaCap + 1] = {};
  Long AreaSide[kAreaCap + 1] = {};           // 1 own, 2 other
  Long AreaOwnStrength[kAreaCap + 1] = {};
  Long AreaEnemyStrength[kAreaCap + 1] = {};
  Long AreaContact[kAreaCap + 1] = {};
  Long AreaShq[kAreaCap + 1] = {};            // not cleared by AIClear

  // Area pairs [a][b].
  Short AreaLandBorder[kAreaCap + 1][kAreaCap + 1] = {};
  Short AreaSeaBorder[kAreaCap + 1][kAreaCap + 1] = {};
  Short AreaCoastBorder[kAreaCap + 1][kAreaCap + 1] = {};
  Short AreaLandDist[kAreaCap + 1][kAreaCap + 1] = {};
  Short AreaSeaDist[kAreaCap + 1][kAreaCap + 1] = {};

  // Fronts 1..FrontCount.
  Long FrontOwnArea[kFrontCap + 1] = {};
  Long FrontEnemyArea[kFrontCap + 1] = {};    // 0: garrison front
  Long FrontWeight[kFrontCap + 1] = {};
  Long FrontShare[kFrontCap + 1] = {};
  Long FrontStrength[kFrontCap + 1] = {};
  Long FrontStance[kFrontCap + 1] = {};       // 0..4; 99 marks a sea front while fronts are assigned
  Long FrontLineHexes[kFrontCap + 1] = {};
  Long FrontLineUnits[kFrontCap + 1] = {};
  Long FrontBalance[kFrontCap + 1] = {};

  // The sorted list, kept in falling order of score.
  Long ListCount = 0;
  Long ListA[kListCap + 1] = {};
  Long ListB[kListCap + 1] = {};
  Long ListScore[kListCap + 1] = {};

  // Kept in memory from one computer turn to the next; never saved.
  double SupplyRatio = 0;

  // The player is quitting the program: a computer turn under way stops
  // after the stage it is in.
  bool StopRequested = false;

  // Logistics and production.
  Long ShqNeedsLand[kShqCap + 1] = {};
  Long BestType[kAITheaters][kAIClasses + 1] = {};
  float TypeWant[kAITheaters][kAIClasses + 1] = {};
  Long TypeShare[kAITheaters][kAIClasses + 1] = {};
};

extern AIRec AI;

// The highest area and front numbers in play, held inside the tables so that
// a loop over them never reads past one.
inline int LastArea() { return Held(AI.AreaCount, kAreaCap); }
inline int LastFront() { return Held(AI.FrontCount, kFrontCap); }

// An area number the tables have room for, whether found this turn or not.
inline bool ValidArea(long a) { return a >= 1 && a <= kAreaCap; }
// A front number in use.
inline bool AIValidFront(long f) { return f >= 1 && f <= LastFront(); }

// Zeroes every working table, the remembered supply ratio included: a clear
// of the game starts the computer player afresh.
void ResetAIState();

}  // namespace mf
