// Fixture of the diplomacy and research tests: a small world of named
// regimes, and a platform that keeps a copy of each Diplomatics and Research
// dialog as it opened and as it closed.
#pragma once

#include <string>
#include <vector>

#include "engine/diplomatics_dialog.h"
#include "engine/research_dialog.h"
#include "support/core_test.h"

namespace mf::test {

class DialogKeepingPlatform : public ScriptedPlatform {
 public:
  void RunDialog(HumbleDialog& dialog) override {
    auto* dip = dynamic_cast<DiplomaticsDialog*>(&dialog);
    auto* res = dynamic_cast<ResearchDialog*>(&dialog);
    if (dip) dipOpened.push_back(*dip);
    if (res) resOpened.push_back(*res);
    ScriptedPlatform::RunDialog(dialog);
    if (dip) dipClosed.push_back(*dip);
    if (res) resClosed.push_back(*res);
  }
  std::vector<DiplomaticsDialog> dipOpened, dipClosed;
  std::vector<ResearchDialog> resOpened, resClosed;
};

class DipResTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPlatform(&keeper);
    world::NewMap(10, 10);
    UI.EditMode = 0;
    Game.Turn = 1;
  }
  // Regimes by name, all human, every pair at war and fixed (price 999).
  void Regimes(const std::vector<std::string>& names) {
    for (const auto& n : names) world::AddRegime(n);
  }
  // Sets a pair in both directions, as a scenario or an event leaves it.
  static void Pair(int a, int b, int relation, int cost, int lastTurn = 0) {
    Dip[a][b].Relation = Dip[b][a].Relation = relation;
    Dip[a][b].Cost = Dip[b][a].Cost = cost;
    Dip[a][b].LastTurn = Dip[b][a].LastTurn = lastTurn;
  }
  std::vector<std::string> Messages() const { return keeper.Messages(); }
  // The prompts asked so far, as "text -> answer".
  std::vector<std::string> Prompts() const {
    std::vector<std::string> out;
    for (const auto& e : keeper.Events())
      if (e.kind == PlatformEvent::kPrompt) out.push_back(e.text + " -> " + e.answer);
    return out;
  }

  DialogKeepingPlatform keeper;
};

}  // namespace mf::test
