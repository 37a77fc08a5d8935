// Fixture of the turn engine's tests: a small world of named regimes, and a
// record of the routines of other subsystems that the turn cycle calls.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "control/new_turn_dialog.h"
#include "control/turn_cycle.h"
#include "engine/start_game_dialog.h"
#include "model/invariants.h"
#include "support/core_test.h"

namespace mf::test {

// The scripted platform, keeping a copy of every New Turn and Start Game
// dialog as it opened, and with a mouse button the test can hold down.
class WatchingPlatform : public ScriptedPlatform {
 public:
  void RunDialog(HumbleDialog& dialog) override {
    if (auto* d = dynamic_cast<NewTurnDialog*>(&dialog)) newTurns.push_back(*d);
    if (auto* d = dynamic_cast<StartGameDialog*>(&dialog)) startGames.push_back(*d);
    ScriptedPlatform::RunDialog(dialog);
  }
  bool MouseButtonDown() override { return mouseDown; }

  std::vector<NewTurnDialog> newTurns;
  std::vector<StartGameDialog> startGames;
  bool mouseDown = false;
};

class EngineTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPlatform(&platform);
    SetTurnStepWatcher([this](const std::string& step) {
      steps.push_back(step);
      if (onStep) onStep(step);
    });
  }
  void TearDown() override {
    SetTurnStepWatcher(nullptr);
    CoreTest::TearDown();
  }

  // A 10 x 10 map with regimes named as given, all human.
  void MakeWorld(std::vector<std::string> names) {
    world::NewMap(10, 10);
    for (const auto& n : names) world::AddRegime(n);
  }

  // The game as the Start Game dialog leaves it just before the driver:
  // no game turn yet, not editing.
  void ReadyToStart() {
    Game.Turn = 0;
    Game.CurRegime = 0;
    UI.EditMode = 0;
  }

  int Count(const std::string& step) const { return static_cast<int>(std::count(steps.begin(), steps.end(), step)); }
  // Position of the first step with that name; -1 when it was not called.
  int IndexOf(const std::string& step) const {
    auto it = std::find(steps.begin(), steps.end(), step);
    return it == steps.end() ? -1 : static_cast<int>(it - steps.begin());
  }
  // The steps starting with a prefix, in order.
  std::vector<std::string> StepsLike(const std::string& prefix) const {
    std::vector<std::string> out;
    for (const auto& s : steps)
      if (s.rfind(prefix, 0) == 0) out.push_back(s);
    return out;
  }

  std::vector<std::string> Messages() const { return platform.Messages(); }

  void QueueNewTurn(std::vector<DialogAction> actions) { platform.QueueDialog("newturn", std::move(actions)); }

  WatchingPlatform platform;  // stands in for the fixture's plain one
  std::vector<std::string> steps;
  std::function<void(const std::string&)> onStep;
};

}  // namespace mf::test
