// Base fixture of the core suites: every test starts on zeroed tables with
// engine variable defaults, a fresh scripted platform and a fixed seed, and
// gets its own empty program folder. Whenever a regime's turn ends in a test
// game, CheckInvariants() is run and a broken invariant fails the test.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/game_state.h"
#include "platform/scripted_platform.h"

namespace mf::test {

class CoreTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Texts of the message boxes and questions seen so far.
  std::vector<std::string> Messages() const { return platform.Messages(); }
  // A path inside this test's own folder.
  std::string TempPath(const std::string& name) const;

  ScriptedPlatform platform;
  std::string tempDir;
};

// Plain game state made in code for the tests.
namespace world {
// Full clear to a w x h map of grass, rules at their defaults.
void NewMap(int w, int h);
// Adds a regime with a name; returns its number.
int AddRegime(const std::string& name);
// Adds a unit type; returns its number.
int AddType(const std::string& name, int theater, int cls);
// Puts a new unit of regime r into the first free slot of hex (x, y) and
// returns its number (0 when the hex is full).
int AddUnit(int r, int x, int y, const std::string& name, int infType = 0, int infQty = 0);
// A new SHQ of regime r with SHQ number `number` on (x, y), registered in
// Shq[r][number].Unit, its stock (Unit.SupplyPct) empty.
int AddShq(int r, int x, int y, int number, const std::string& name);
// A new THQ of regime r on (x, y) under `boss`.
int AddThq(int r, int x, int y, int boss, const std::string& name);
}  // namespace world

}  // namespace mf::test
