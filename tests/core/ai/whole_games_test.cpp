// Whole games: every shipped scenario (the campaign's later maps too)
// played by the computer for every regime, 30 rounds, on two seeds, the way
// the headless play command and the soak play them. After every regime's
// turn the tables must keep their invariants; by the end there must have
// been battles, land and towns must have changed hands, and on the island
// map troops must have come ashore from the sea.
#include <gtest/gtest.h>

#include <cctype>
#include <iostream>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "../content/content_test_util.h"
#include "combat/battle_window.h"
#include "control/computer_game.h"
#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/invariants.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

constexpr long kTurns = 30;

// The pieces of land the sea divides, numbered; 0 for the sea.
std::vector<int> LandPieces() {
  const int w = static_cast<int>(Game.MapW), h = static_cast<int>(Game.MapH);
  std::vector<int> piece((w + 1) * (h + 1), 0);
  int count = 0;
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      if (Hex[x][y].Land == kSea || piece[x * (h + 1) + y] != 0) continue;
      piece[x * (h + 1) + y] = ++count;
      std::vector<HexXY> todo{{x, y}};
      while (!todo.empty()) {
        const HexXY c = todo.back();
        todo.pop_back();
        for (int d = 1; d <= kHexSides; ++d) {
          const HexXY n = Neighbour(c.x, c.y, d);
          if (n.x <= 0 || n.y <= 0 || Hex[n.x][n.y].Land == kSea || piece[n.x * (h + 1) + n.y] != 0) continue;
          piece[n.x * (h + 1) + n.y] = count;
          todo.push_back(n);
        }
      }
    }
  }
  return piece;
}

struct Tally {
  int battles = 0;
  int hexesTaken = 0;
  int townsTaken = 0;
  int landings = 0;  // land formations that came ashore from a ship or crossed to another island
};

class WholeGame : public CoreTest, public ::testing::WithParamInterface<std::tuple<std::string, unsigned>> {
 protected:
  void TearDown() override {
    SetBattleWindowHook({});
    CoreTest::TearDown();
  }

  // Where every land formation stands, by piece of land; aboard a ship
  // counts as piece -1.
  std::map<int, int> PiecesOfUnits(const std::vector<int>& piece) const {
    std::map<int, int> at;
    const int h = static_cast<int>(Game.MapH);
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y)
        for (int s = 1; s <= kStackSlots; ++s) {
          const long u = Hex[x][y].Unit[s];
          if (u <= 0 || Unit[u].Regime == 0) continue;
          if (Unit[u].Theater == kLandTheater) at[static_cast<int>(u)] = piece[x * (h + 1) + y];
          const long c = Unit[u].Cargo;
          if (c > 0 && Unit[c].Regime != 0 && Unit[c].Theater == kLandTheater) at[static_cast<int>(c)] = kAboard;
        }
    return at;
  }
  static constexpr int kAboard = -1;

  Tally Play() {
    const auto& [file, seed] = GetParam();
    Tally t;
    const std::string path = CopyShipped(file, tempDir);
    if (path.empty()) return t;
    ClearForLoad();
    EXPECT_TRUE(ReadFile(path));
    LayOutMapWindow();
    std::string why;
    EXPECT_TRUE(StartComputerGame(&why)) << why;
    SeedRnd(seed);
    platform.keepAnalysis = false;
    SetBattleWindowHook([&t](BattleWindowChange c) {
      if (c == BattleWindowChange::kOpened) ++t.battles;
    });

    std::vector<long> owner;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) owner.push_back(Hex[x][y].Owner);
    std::vector<int> piece = LandPieces();

    std::map<int, int> before = PiecesOfUnits(piece);
    int rounds = 0, regimeTurns = 0;
    while (rounds < kTurns && regimeTurns < kTurns * kRegimeCap) {
      if (!PlayComputerRegimeTurn()) {
        ADD_FAILURE() << file << " stopped at turn " << Game.Turn;
        break;
      }
      ++regimeTurns;
      if (RoundComplete()) ++rounds;
      const std::string broken = CheckInvariants();
      if (!broken.empty()) {
        ADD_FAILURE() << file << " seed " << seed << " turn " << Game.Turn << " regime " << Game.CurRegime << ": "
                      << broken;
        break;
      }
      // A campaign may go on to its next map; landings are counted per map.
      if (static_cast<int>(piece.size()) != (Game.MapW + 1) * (Game.MapH + 1)) {
        piece = LandPieces();
        before = PiecesOfUnits(piece);
        continue;
      }
      const std::map<int, int> now = PiecesOfUnits(piece);
      for (const auto& [u, p] : now) {
        auto it = before.find(u);
        // Ashore from a ship, or on another island than before.
        if (it != before.end() && it->second != p && p != kAboard) ++t.landings;
      }
      before = now;
    }
    EXPECT_EQ(rounds, kTurns) << file;
    int i = 0;
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y, ++i) {
        if (i >= static_cast<int>(owner.size()) || Hex[x][y].Owner == owner[i]) continue;
        ++t.hexesTaken;
        if (Hex[x][y].Pop > 0) ++t.townsTaken;
      }
    return t;
  }
};

TEST_P(WholeGame, ComputerPlaysEveryRegimeForThirtyTurns) {
  const Tally t = Play();
  const std::string& file = std::get<0>(GetParam());
  EXPECT_GT(t.battles, 0) << file;
  EXPECT_GT(t.hexesTaken, 0) << file;
  EXPECT_GT(t.townsTaken, 0) << file;
  if (file == "scenario2.mf1") {
    EXPECT_GT(t.landings, 0) << "nobody came ashore on the islands";
  }
  std::cout << "[ game ] " << file << " seed " << std::get<1>(GetParam()) << ": " << t.battles << " battles, "
            << t.hexesTaken << " hexes and " << t.townsTaken << " towns changed hands, " << t.landings
            << " landings, " << Messages().size() << " messages\n";
}

INSTANTIATE_TEST_SUITE_P(Shipped, WholeGame,
                         ::testing::Combine(::testing::ValuesIn(ShippedScenarios()), ::testing::Values(11u, 2026u)),
                         [](const ::testing::TestParamInfo<std::tuple<std::string, unsigned>>& p) {
                           std::string name = std::get<0>(p.param) + "_" + std::to_string(std::get<1>(p.param));
                           for (char& c : name)
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           return name;
                         });

}  // namespace
}  // namespace mf::test
