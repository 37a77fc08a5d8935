// Small worlds for the events suite: a grass map held by Red (regime 1, a
// person) with Blue (regime 2, the computer) beside it, peoples with names
// and portraits so that new formations get their officers, and events made
// one by one with a story, so that they exist.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/event_dialog.h"
#include "engine/events.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "support/core_test.h"

namespace mf::test {

// The scripted platform, keeping a copy of every Event! dialog as it opened.
class EventWatchingPlatform : public ScriptedPlatform {
 public:
  void RunDialog(HumbleDialog& dialog) override {
    if (auto* d = dynamic_cast<EventDialog*>(&dialog)) shown.push_back(*d);
    ScriptedPlatform::RunDialog(dialog);
  }
  std::vector<EventDialog> shown;
};

class EventsTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPlatform(&watcher);
    MakeWorld();
  }
  void TearDown() override {
    InstallPlatform(nullptr);
    CoreTest::TearDown();
  }

  // A 12 x 12 grass map, all Red's; Red a person, Blue the computer; game
  // turn 1 with Red to move, not editing.
  void MakeWorld() {
    world::NewMap(12, 12);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    Regime[blue].AI = 1;
    for (int x = 1; x <= 12; ++x)
      for (int y = 1; y <= 12; ++y) {
        Hex[x][y].Land = kGrass;
        Hex[x][y].Owner = red;
      }
    Game.Turn = 1;
    Game.CurRegime = red;
    UI.EditMode = 0;
    Game.PeopleCount = 2;
    People[1].FirstName[1] = "Anna";
    People[1].LastName[1] = "Stone";
    People[2].FirstName[1] = "Cora";
    People[2].LastName[1] = "Vale";
    Regime[red].OwnPeople = 1;
    Regime[red].PortraitSet = 1;
    Regime[blue].OwnPeople = 2;
    Regime[blue].PortraitSet = 2;
    for (int p = 1; p <= 40; ++p) OfficerPicSet[p] = 1;
    for (int p = 41; p <= 80; ++p) OfficerPicSet[p] = 2;
    rifle = world::AddType("Rifles", kLandTheater, 1);
    truck = world::AddType("Trucks", kLandTheater, 2);
    gun = world::AddType("Guns", kLandTheater, 3);
    tank = world::AddType("Tanks", kLandTheater, 4);
  }

  // A new event with a story (so that it exists) and no condition.
  int AddEvent(const std::string& story = "A story") {
    const int e = static_cast<int>(++Game.EventCount);
    Event[e] = EventRec{};
    Event[e].Story = story;
    return e;
  }

  // True when event e fired at this game turn.
  static bool Fired(int e) { return Event[e].FiredTurn == Game.Turn; }

  // Runs the events at a game turn and tells whether event e fired then.
  static bool FiresAt(int e, long turn) {
    Game.Turn = turn;
    Event[e].FiredTurn = 0;
    RunEvents();
    return Event[e].FiredTurn == turn;
  }

  // A formation of regime r on (x, y); a THQ when thq is set.
  int AddFormation(int r, int x, int y, const std::string& name, bool thq = false) {
    const int u = world::AddUnit(r, x, y, name, rifle, 10);
    Unit[u].Thq = thq ? 1 : 0;
    return u;
  }

  // Fills hex (x, y) with three formations of regime r.
  void Fill(int r, int x, int y) {
    while (Hex[x][y].Unit[3] == 0) AddFormation(r, x, y, "Filler");
  }

  int StackSize(int x, int y) const {
    int n = 0;
    while (n < kStackSlots && Hex[x][y].Unit[n + 1] != 0) ++n;
    return n;
  }

  // The Event! dialogs that opened, by their events.
  std::vector<int> ShownEvents() const {
    std::vector<int> out;
    for (const auto& d : watcher.shown) out.push_back(d.event);
    return out;
  }

  std::vector<std::string> Messages() const { return watcher.Messages(); }

  EventWatchingPlatform watcher;
  int red = 0, blue = 0;
  int rifle = 0, truck = 0, gun = 0, tank = 0;
};

}  // namespace mf::test
