// Small worlds for the orders suite: a map of a chosen size with two regimes
// at war (Red, the player, and Blue), a handful of unit types, and the Hex.Mark
// field written out as rows of text so that a test reads like its drawing.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::test {

class OrdersTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    // The window's state as a game leaves it: buttons and help line empty.
    UI.EditMode = 0;
  }

  // A w x h map of grass, Red (1) and Blue (2) at war, Red to move in turn 1,
  // fog of war off (every hex seen, Hex.Vis 3), every hex owned by `owner`.
  void MakeMap(int w, int h, int owner = 1) {
    world::NewMap(w, h);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Game.Turn = 1;
    Game.CurRegime = red;
    UI.EditMode = 0;
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= h; ++y) {
        Hex[x][y].Owner = owner;
        Hex[x][y].Vis = 3;
      }
    }
    MakeTypes();
  }

  // Unit types: foot rifles (weight 1, soft attack 10, hit points 20, 3 MP),
  // trucks (carry 100, 6 MP), a gun (weight 5, range 2), warships (range 3),
  // fighters, transports (carry 50), a recon type.
  void MakeTypes() {
    rifle = world::AddType("Rifles", kLandTheater, 1);
    Type[rifle].Attr[kWeight] = 1;
    Type[rifle].Attr[kSoftAttack] = 10;
    Type[rifle].Attr[kHitPoints] = 20;
    Type[rifle].Attr[kMovementCap] = 3;
    truck = world::AddType("Trucks", kLandTheater, 2);
    Type[truck].Attr[kCarryCap] = 100;
    Type[truck].Attr[kMovementCap] = 6;
    gun = world::AddType("Field gun", kLandTheater, 3);
    Type[gun].Attr[kWeight] = 5;
    Type[gun].Attr[kArtilleryRange] = 2;
    Type[gun].Attr[kMovementCap] = 2;
    warship = world::AddType("Destroyer", kSeaTheater, 1);
    Type[warship].Attr[kArtilleryRange] = 3;
    Type[warship].Attr[kHitPoints] = 50;
    Type[warship].Attr[kMovementCap] = 8;
    fighter = world::AddType("Fighter", kAirTheater, 1);
    Type[fighter].Attr[kDogfight] = 10;
    Type[fighter].Attr[kMovementCap] = 10;
    transport = world::AddType("Transport plane", kAirTheater, 2);
    Type[transport].Attr[kCarryCap] = 50;
    Type[transport].Attr[kMovementCap] = 10;
    scout = world::AddType("Scouts", kLandTheater, 1);
    Type[scout].Attr[kWeight] = 1;
    Type[scout].Attr[kSoftAttack] = 10;
    Type[scout].Attr[kHitPoints] = 20;
  }

  // A land formation of 30 rifles: occupy power 20/20 x 10 x 30 = 300, above
  // the 250 of engine variable 101; foot troops (carrying 100 x 1 / 31 = 3%).
  int Infantry(int r, int x, int y, const std::string& name, int mp) {
    const int u = world::AddUnit(r, x, y, name, rifle, 30);
    Unit[u].MP = mp;
    return u;
  }
  // 30 rifles on 1 truck: everybody rides (carrying 100 x 101 / 31 = 325%).
  int Motorised(int r, int x, int y, const std::string& name, int mp) {
    const int u = Infantry(r, x, y, name, mp);
    Unit[u].MobType = truck;
    Unit[u].MobQty = 1;
    return u;
  }
  int Ship(int r, int x, int y, const std::string& name, int mp) {
    const int u = world::AddUnit(r, x, y, name, warship, 2);
    Unit[u].Theater = kSeaTheater;
    Unit[u].MP = mp;
    return u;
  }
  int Wing(int r, int x, int y, const std::string& name, int mp) {
    const int u = world::AddUnit(r, x, y, name, fighter, 5);
    Unit[u].Theater = kAirTheater;
    Unit[u].MP = mp;
    return u;
  }

  // Selects a formation as a press on the map and the panel would.
  void Select(int x, int y, int slot = 1) {
    UI.SelX = x;
    UI.SelY = y;
    UI.PrevSelX = x;
    UI.PrevSelY = y;
    int count = 0;
    while (count < kStackSlots && Hex[x][y].Unit[count + 1] != 0) ++count;
    UI.SelCount = count;
    UI.SelSlot = count == 0 ? 0 : slot;
  }
  // The origin of an order, as a start stores it.
  void Origin(int x, int y, int slot = 1) {
    Select(x, y, slot);
    UI.OrdX = x;
    UI.OrdY = y;
    UI.OrdSlot = slot;
  }

  // Hex.Mark of the corner x = 1..w, y = 1..h of the map as rows, each
  // "x=1 x=2 ..." separated by blanks: a cost, "-" for 999 and "S" for 9999.
  // (Maps are at least 10 x 10; the drawings keep to the corner that matters.)
  static std::vector<std::string> MarkRows(int w = 6, int h = 6) {
    std::vector<std::string> rows;
    for (int y = 1; y <= h; ++y) {
      std::string row;
      for (int x = 1; x <= w; ++x) {
        if (x > 1) row += ' ';
        const int m = Hex[x][y].Mark;
        row += m == 999 ? "-" : m == 9999 ? "S" : std::to_string(m);
      }
      rows.push_back(row);
    }
    return rows;
  }
  // Hexes outside the corner x = 1..w, y = 1..h whose Hex.Mark is not 999.
  static int MarksBeyond(int w = 6, int h = 6) {
    int n = 0;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y)
        if ((x > w || y > h) && Hex[x][y].Mark != 999) ++n;
    return n;
  }
  // Hex.Vis as rows, the same way.
  static std::vector<std::string> VisRows() {
    std::vector<std::string> rows;
    for (int y = 1; y <= Game.MapH; ++y) {
      std::string row;
      for (int x = 1; x <= Game.MapW; ++x) {
        if (x > 1) row += ' ';
        row += std::to_string(Hex[x][y].Vis);
      }
      rows.push_back(row);
    }
    return rows;
  }

  int red = 0, blue = 0;
  int rifle = 0, truck = 0, gun = 0, warship = 0, fighter = 0, transport = 0, scout = 0;
};

}  // namespace mf::test
