// Small worlds for the organisation suite: a grass map owned by Red (the
// player, regime 1) with Blue (2) beside it, a people with names and a
// portrait set for each, unit types with round numbers, and helpers for the
// chain of command SHQ -> THQ -> formation.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "control/order_state.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::test {

class OrgsTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    UI.EditMode = 0;
  }

  // A w x h grass map, every hex Red's, turn 1 with Red to move.
  void MakeMap(int w = 12, int h = 12) {
    world::NewMap(w, h);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Game.Turn = 1;
    Game.CurRegime = red;
    UI.EditMode = 0;
    for (int x = 1; x <= w; ++x)
      for (int y = 1; y <= h; ++y) {
        Hex[x][y].Land = kGrass;
        Hex[x][y].Owner = red;
        Hex[x][y].Vis = 3;
      }
    // People 1 and 2 with two names each; portraits 1..40 are set 1, 41..80 set 2.
    Game.PeopleCount = 2;
    People[1].Name = "Redfolk";
    People[1].FirstName[1] = "Anna";
    People[1].FirstName[2] = "Bert";
    People[1].LastName[1] = "Stone";
    People[1].LastName[2] = "Marsh";
    People[2].Name = "Bluefolk";
    People[2].FirstName[1] = "Cora";
    People[2].LastName[1] = "Vale";
    Regime[red].OwnPeople = 1;
    Regime[red].PortraitSet = 1;
    Regime[blue].OwnPeople = 2;
    Regime[blue].PortraitSet = 2;
    for (int p = 1; p <= 40; ++p) OfficerPicSet[p] = 1;
    for (int p = 41; p <= 80; ++p) OfficerPicSet[p] = 2;
    MakeTypes();
  }

  // Rifles: weight 1, cost 10, 3 MP, engineer skill 30. Trucks: carry 100,
  // cost 20, 6 MP. Guns: weight 5, cost 50, 2 MP. Tanks: weight 20, cost
  // 100, 4 MP. Destroyers (sea, class 1): weight 100, cost 200. Fighters
  // (air, class 1): weight 10, cost 150. Cargo ships (sea, class 2): carry 500.
  void MakeTypes() {
    rifle = world::AddType("Rifles", kLandTheater, 1);
    Type[rifle].Attr[kWeight] = 1;
    Type[rifle].Attr[kMovementCap] = 3;
    Type[rifle].Attr[kEngineerSkill] = 30;
    Type[rifle].Cost = 10;
    truck = world::AddType("Trucks", kLandTheater, 2);
    Type[truck].Attr[kCarryCap] = 100;
    Type[truck].Attr[kMovementCap] = 6;
    Type[truck].Cost = 20;
    gun = world::AddType("Guns", kLandTheater, 3);
    Type[gun].Attr[kWeight] = 5;
    Type[gun].Attr[kMovementCap] = 2;
    Type[gun].Cost = 50;
    tank = world::AddType("Tanks", kLandTheater, 4);
    Type[tank].Attr[kWeight] = 20;
    Type[tank].Attr[kMovementCap] = 4;
    Type[tank].Cost = 100;
    destroyer = world::AddType("Destroyers", kSeaTheater, 1);
    Type[destroyer].Attr[kWeight] = 100;
    Type[destroyer].Attr[kMovementCap] = 8;
    Type[destroyer].Cost = 200;
    fighter = world::AddType("Fighters", kAirTheater, 1);
    Type[fighter].Attr[kWeight] = 10;
    Type[fighter].Attr[kMovementCap] = 10;
    Type[fighter].Cost = 150;
    cargo = world::AddType("Cargo ships", kSeaTheater, 2);
    Type[cargo].Attr[kCarryCap] = 500;
    Type[cargo].Attr[kMovementCap] = 8;
    Type[cargo].Cost = 100;
  }

  // An SHQ of regime r with SHQ number `number` on (x, y), stock `stock`.
  int AddShq(int r, int x, int y, int number, const std::string& name = "First Army", int stock = 0) {
    const int u = world::AddShq(r, x, y, number, name);
    Unit[u].SupplyPct = stock;
    Unit[u].Readiness = 25;
    Unit[u].Experience = 25;
    return u;
  }
  int AddThq(int r, int x, int y, int boss, const std::string& name = "THQ 1st") {
    return world::AddThq(r, x, y, boss, name);
  }
  // A land formation with `qty` rifles under `boss`.
  int AddFormation(int r, int x, int y, int boss, int qty = 100, const std::string& name = "1st Bataljon") {
    const int u = world::AddUnit(r, x, y, name, rifle, qty);
    Unit[u].Boss = boss;
    Unit[u].MP = 3;
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

  // Prompts seen so far: "text -> answer".
  std::vector<std::string> Prompts() const {
    std::vector<std::string> out;
    for (const auto& e : platform.Events())
      if (e.kind == PlatformEvent::kPrompt) out.push_back("[" + e.title + "] " + e.text + " -> " + e.answer);
    return out;
  }

  int red = 0, blue = 0;
  int rifle = 0, truck = 0, gun = 0, tank = 0, destroyer = 0, fighter = 0, cargo = 0;
};

}  // namespace mf::test
