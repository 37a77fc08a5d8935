// Small worlds for the computer player's logistics and production: a grass
// map held by Ourland (regime 1, the computer) beside Theirland (2), people
// 1 living everywhere, and the area, front and reach tables set by hand, so
// that each stage can be checked on its own against numbers worked out on
// paper.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "ai/ai_state.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::test {

class LogisticsTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    ResetAIState();
  }

  // A w x h grass map, every hex Ourland's, turn 3 with Ourland to move, no
  // SHQ reaching anywhere yet.
  void MakeMap(int w, int h) {
    world::NewMap(w, h);
    us = world::AddRegime("Ourland");
    them = world::AddRegime("Theirland");
    Regime[us].OwnPeople = 1;
    Regime[them].OwnPeople = 2;
    Regime[us].AI = 1;
    Regime[us].FormationName = "Corps";
    Regime[us].PP = 20;
    Game.PeopleCount = 2;
    Game.Turn = 3;
    Game.CurRegime = us;
    UI.EditMode = 0;
    for (int x = 1; x <= w; ++x)
      for (int y = 1; y <= h; ++y) {
        Hex[x][y].Land = kGrass;
        Hex[x][y].Owner = us;
      }
    NoReach();
  }

  // Every SHQ number reaches nowhere, as before the SHQs are served.
  static void NoReach() {
    for (int x = 1; x <= kMapCap; ++x)
      for (int y = 1; y <= kMapCap; ++y)
        for (int s = 0; s <= kShqCap; ++s) {
          Hex[x][y].ShqDist[s] = 999;
          Hex[x][y].ShqPrev1[s] = 0;
        }
  }

  // A type that both peoples may make and own, with a cost of 100.
  static int MakeType(const std::string& name, int theater, int cls) {
    const int t = world::AddType(name, theater, cls);
    Type[t].Cost = 100;
    for (int p = 1; p <= 2; ++p) {
      Type[t].Living[p] = 1;
      Type[t].Owning[p] = 1;
    }
    return t;
  }

  // A town of regime r (0 for neutral) with a name and population.
  static void Town(int x, int y, int r, const std::string& name, int pop) {
    Hex[x][y].Land = kUrban;
    Hex[x][y].Owner = r;
    Hex[x][y].UrbanName = name;
    Hex[x][y].Pop = pop;
    Hex[x][y].People = 1;
  }

  // Hex.Area of the block x1..x2, y1..y2.
  static void Area(int a, int x1, int x2, int y1, int y2) {
    for (int x = x1; x <= x2; ++x)
      for (int y = y1; y <= y2; ++y) Hex[x][y].Area = static_cast<Short>(a);
    if (a > AI.AreaCount) AI.AreaCount = a;
  }

  // A front between two areas with its weight, share and stance.
  static int Front(int own, int other, int weight, int share, int stance) {
    const int f = ++AI.FrontCount;
    AI.FrontOwnArea[f] = own;
    AI.FrontEnemyArea[f] = other;
    AI.FrontWeight[f] = weight;
    AI.FrontShare[f] = share;
    AI.FrontStance[f] = stance;
    return f;
  }

  int us = 0, them = 0;
};

}  // namespace mf::test
