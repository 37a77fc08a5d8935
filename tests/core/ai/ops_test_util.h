// Small worlds for the computer player's operations, built in code with the
// analysis tables set by hand, so that every figure of a test can be worked
// out on paper. Red (1) is the computer regime to move, Blue (2) its enemy,
// at war. Units are of one rifle type whose worth works out round:
// 100 rifles at readiness and experience 100 are worth 10 in attack, 8 in
// defence, 9 on the mean (and 2250 on the scaled mean).
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ai/ai_state.h"
#include "ai/unit_worth.h"
#include "combat/battle_window.h"
#include "combat/losses.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::test {

class OpsTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    ResetAIState();
    TheBattleWindow().lines.clear();
  }

  // A w x h map of grass, Red owning the columns up to `redUpTo` and Blue
  // the rest, everything in sight, no fog, nothing shown of the computer's
  // moves. The rules the tests reckon with are set here, whatever the
  // defaults say. Maps smaller than the smallest a player can make keep the
  // figures few: every routine reads the size from Game.MapW and Game.MapH.
  void MakeWorld(int w, int h, int redUpTo) {
    world::NewMap(w < 10 ? 10 : w, h < 10 ? 10 : h);
    Game.MapW = w;
    Game.MapH = h;
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Regime[red].AI = 1;
    Game.Turn = 2;
    Game.CurRegime = red;
    Game.FogOfWar = 0;
    Game.ShowAIMoves = kFalse;
    UI.EditMode = 0;
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= h; ++y) {
        Hex[x][y].Owner = x <= redUpTo ? red : blue;
        Hex[x][y].Vis = 1;
      }
    }
    const std::pair<int, long> rules[] = {{1, 1},     {2, 2},     {3, 1},     {4, 999},   {5, 2},   {6, 999},
                                          {8, 2},     {9, 1},     {10, 1},    {11, 1},    {12, 1},  {101, 250},
                                          {102, 50000}, {121, 90}, {122, 60}, {123, 40},  {201, 10}, {230, 30},
                                          {301, 250}, {512, 130}, {513, 160}, {515, 130}, {536, 30}, {537, 15}};
    for (const auto& [n, v] : rules) EngineVar[n].Value = v;
    MakeTypes();
  }

  void MakeTypes() {
    rifle = world::AddType("Rifles", kLandTheater, 1);
    Set(rifle, {{kWeight, 10}, {kMovementCap, 6}, {kSoftAttack, 20}, {kHardAttack, 5}, {kSoftDefense, 15},
                {kHardDefense, 5}, {kHitPoints, 40}, {kFrontsize, 1}});
    gun = world::AddType("Guns", kLandTheater, 3);
    Set(gun, {{kWeight, 20}, {kMovementCap, 4}, {kArtilleryAttack, 30}, {kArtilleryRange, 3}, {kHitPoints, 30},
              {kFrontsize, 2}});
    warship = world::AddType("Destroyers", kSeaTheater, 1);
    Set(warship, {{kMovementCap, 8}, {kArtilleryAttack, 10}, {kArtilleryRange, 1}, {kHitPoints, 50}});
    cargo = world::AddType("Cargo Ships", kSeaTheater, 2);
    Set(cargo, {{kMovementCap, 8}, {kCarryCap, 100}, {kHitPoints, 40}});
    fighter = world::AddType("Fighters", kAirTheater, 1);
    Set(fighter, {{kMovementCap, 6}, {kDogfight, 10}, {kSoftAttack, 4}, {kNavalInterdict, 3}, {kHitPoints, 20}});
  }

  static void Set(int type, std::initializer_list<std::pair<int, int>> values) {
    for (const auto& [attr, value] : values) Type[type].Attr[attr] = value;
  }

  // A unit of regime r with `qty` rifles: readiness and experience 100,
  // no disruption, 6 MP, serving front `front`.
  int Rifles(int r, int x, int y, int qty, int front = 0, const std::string& name = "") {
    const int u = world::AddUnit(r, x, y, name.empty() ? "Rifles" + std::to_string(++made) : name, rifle, qty);
    Unit[u].Experience = 100;
    Unit[u].MP = 6;
    Unit[u].Front = front;
    return u;
  }

  // Area a with centre (cx, cy) and side (1 own, 2 other).
  void Area(int a, int cx, int cy, int side) {
    if (AI.AreaCount < a) AI.AreaCount = a;
    AI.AreaX[a] = cx;
    AI.AreaY[a] = cy;
    AI.AreaSide[a] = side;
  }
  // Every hex of column x joins `area` with worth `value`.
  void Column(int x, int area, long value) {
    for (int y = 1; y <= Game.MapH; ++y) {
      Hex[x][y].Area = static_cast<Short>(area);
      Hex[x][y].AreaValue = value;
    }
  }
  int Front(int own, int other, long stance) {
    const int f = static_cast<int>(++AI.FrontCount);
    AI.FrontOwnArea[f] = own;
    AI.FrontEnemyArea[f] = other;
    AI.FrontStance[f] = stance;
    return f;
  }

  // The land front of six columns and two rows: Red holds columns 1-3
  // (area 1, centre the town (1,1)), Blue columns 4-6 (area 2, centre
  // (6,1)); area worths by column 55, 75, 95 | 43, 70, 100.
  int LandFront(long stance) {
    MakeWorld(6, 2, 3);
    Area(1, 1, 1, 1);
    Area(2, 6, 1, 2);
    const long worth[7] = {0, 55, 75, 95, 43, 70, 100};
    for (int x = 1; x <= 6; ++x) Column(x, x <= 3 ? 1 : 2, worth[x]);
    Hex[1][1].Land = kUrban;
    AI.AreaLandBorder[1][2] = AI.AreaLandBorder[2][1] = 3;
    return Front(1, 2, stance);
  }

  // Hex.Work by rows, y = 1 first.
  std::vector<std::vector<long>> WorkGrid() const {
    std::vector<std::vector<long>> g;
    for (int y = 1; y <= Game.MapH; ++y) {
      std::vector<long> row;
      for (int x = 1; x <= Game.MapW; ++x) row.push_back(Hex[x][y].Work);
      g.push_back(row);
    }
    return g;
  }

  bool BattleLogHas(const std::string& text) const {
    for (const auto& line : TheBattleWindow().lines)
      if (line.find(text) != std::string::npos) return true;
    return false;
  }

  int red = 0, blue = 0;
  int rifle = 0, gun = 0, warship = 0, cargo = 0, fighter = 0;
  int made = 0;
};

}  // namespace mf::test
