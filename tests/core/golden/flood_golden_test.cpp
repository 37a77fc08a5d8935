// The supply flood and the turn start give, on the benchmark's world and on
// every shipped scenario, exactly the results recorded before the flood was
// made faster: every plane the flood writes, for every formation of every
// regime, with and without the sea; and the whole game after each regime's
// turn-start economy.
#include <gtest/gtest.h>

#include <string>

#include "control/scenario_flow.h"
#include "core/content/content_test_util.h"
#include "core/golden/golden_support.h"
#include "engine/supply_flood.h"
#include "files/scenario_file.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "orders/flood.h"
#include "support/bench_worlds.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
using test::Digest;
using test::GoldenFile;

// Everything a flood writes: its box and the planes of every hex of the map.
std::string FloodDigest() {
  Digest d;
  d.Add(FloodMinX);
  d.Add(FloodMinY);
  d.Add(FloodMaxX);
  d.Add(FloodMaxY);
  for (int x = 0; x <= kMapCap; ++x) {
    for (int y = 0; y <= kMapCap; ++y) {
      const HexRec& h = Hex[x][y];
      d.Add(h.Mark);
      d.Add(h.Wave);
      d.Add(h.PathSea);
      d.Add(h.PathLand);
      d.Add(h.PathPortX);
      d.Add(h.PathPortY);
      d.Add(h.ScratchRecon);
    }
  }
  return d.Hex();
}

// The whole game as saved, the SHQs' reach kept for the turn, and the
// formations' working supply figures.
std::string GameDigest() {
  Digest d;
  d.Add(SerializeScenario());
  for (int x = 0; x <= kMapCap; ++x) {
    for (int y = 0; y <= kMapCap; ++y) {
      const HexRec& h = Hex[x][y];
      d.Add(h.Mark);
      d.Add(h.Wave);
      for (int s = 0; s <= kShqCap; ++s) {
        d.Add(h.ShqDist[s]);
        d.Add(h.ShqPrev1[s]);
        d.Add(h.ShqPrev2[s]);
        d.Add(h.ShqPrev3[s]);
        d.Add(h.ShqPrev4[s]);
      }
    }
  }
  for (int u = 0; u <= kUnitCap; ++u) {
    const UnitRec& un = Unit[u];
    d.Add(un.GenSupply);
    d.Add(un.SupplyDemand);
    d.Add(un.SupplyPct);
    d.Add(un.Readiness);
    d.Add(un.Disruption);
    d.Add(un.MP);
  }
  return d.Hex();
}

// Floods from every formation of every regime, in map order, first with the
// sea allowed and then without (and for all but SHQs with a reach of 12); the floods follow one another without a
// clear between them, as the game's do.
void RecordFloods(const std::string& world, GoldenFile& golden) {
  UI.EditMode = 0;
  for (int r = 1; r <= Game.RegimeCount && r <= kRegimeCap; ++r) {
    Game.CurRegime = r;
    for (int x = 1; x <= Game.MapW; ++x) {
      for (int y = 1; y <= Game.MapH; ++y) {
        for (int s = 1; s <= kStackSlots; ++s) {
          const int u = Hex[x][y].Unit[s];
          if (!ValidUnit(u) || Unit[u].Regime != r) continue;
          UI.OrdX = x;
          UI.OrdY = y;
          UI.OrdSlot = s;
          const std::string key = world + " regime " + std::to_string(r) + " unit " + std::to_string(u);
          for (int sea = 1; sea >= 0; --sea) {
            SupplyFlood(sea == 1);
            golden.Put(key + " sea " + std::to_string(sea), FloodDigest());
          }
          // A formation's own reach is its movement points, which a fresh
          // scenario often leaves at 0: once more with a longer reach.
          if (Unit[u].Shq == 0) {
            const Long mp = Unit[u].MP;
            Unit[u].MP = 12;
            SupplyFlood(true);
            golden.Put(key + " mp 12", FloodDigest());
            Unit[u].MP = mp;
          }
        }
      }
    }
  }
}

// Each regime's turn-start economy in turn, the game digested after each.
void RecordTurnStarts(const std::string& world, GoldenFile& golden) {
  UI.EditMode = 0;
  for (int r = 1; r <= Game.RegimeCount && r <= kRegimeCap; ++r) {
    Game.CurRegime = r;
    SeedRnd(1000 + static_cast<std::uint32_t>(r));
    bench::TurnStartEconomy();
    golden.Put(world + " regime " + std::to_string(r), GameDigest());
  }
}

class Golden : public CoreTest {
 protected:
  // Loads a shipped scenario as the menu's load reads it; false when missing.
  bool LoadShipped(const std::string& name) {
    const std::string path = test::CopyShipped(name, tempDir);
    return !path.empty() && ReadFile(path);
  }
};

TEST_F(Golden, SupplyFloodsOfTheBenchmarkWorldAndEveryShippedScenario) {
  GoldenFile golden("flood_golden.txt");
  bench::BuildTurnWorld();
  RecordFloods("bench", golden);
  for (const std::string& name : test::ShippedScenarios()) {
    ASSERT_TRUE(LoadShipped(name)) << name;
    RecordFloods(name, golden);
  }
  // Every world floods from many formations of every regime.
  EXPECT_GT(golden.size(), 1000u);
  golden.Check();
}

// Floods of the benchmark world at the edges of the reach: none at all, a
// reach beyond the map, a reach as long as the out-of-reach cost and beyond
// it (where the hexes the flood never reached carry that wave's number), and
// the editor's flood.
TEST_F(Golden, SupplyFloodsAtTheEdgesOfTheReach) {
  GoldenFile golden("flood_edges_golden.txt");
  bench::BuildTurnWorld();
  UI.EditMode = 0;
  Game.CurRegime = 1;
  const int shq = Shq[1][7].Unit;
  int formation = 0;
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (u == shq || (u != 0 && formation == 0 && Unit[u].Shq == 0 && Unit[u].Thq == 0)) {
          if (u != shq) formation = u;
          if (u == shq || formation == u) {
            UI.OrdX = x;
            UI.OrdY = y;
            UI.OrdSlot = s;
            if (u != shq) {
              for (const Long mp : {-5, 0, 1, 60, 200}) {
                Unit[u].MP = mp;
                SupplyFlood(true);
                golden.Put("formation mp " + std::to_string(mp), FloodDigest());
              }
            }
          }
        }
      }
  ASSERT_NE(formation, 0);
  // The SHQ: its hex found again, then its reach from engine variable 230.
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y)
      for (int s = 1; s <= kStackSlots; ++s)
        if (Hex[x][y].Unit[s] == shq) {
          UI.OrdX = x;
          UI.OrdY = y;
          UI.OrdSlot = s;
        }
  for (const Long range : {997L, 998L, 999L, 1000L, 1003L}) {
    EngineVar[230].Value = range;
    SupplyFlood(true);
    golden.Put("shq range " + std::to_string(range), FloodDigest());
  }
  EngineVar[230].Value = 50;
  UI.EditMode = 1;
  SupplyFlood(true);
  golden.Put("editor", FloodDigest());

  // Routes over the sea that land on open shore, with a reach beyond the
  // out-of-reach cost: the islands of the second scenario.
  ASSERT_TRUE(LoadShipped("scenario2.mf1"));
  UI.EditMode = 0;
  for (const Long range : {30L, 1000L}) {
    EngineVar[230].Value = range;
    for (int r = 1; r <= Game.RegimeCount; ++r) {
      Game.CurRegime = r;
      for (int x = 1; x <= Game.MapW; ++x)
        for (int y = 1; y <= Game.MapH; ++y)
          for (int s = 1; s <= kStackSlots; ++s) {
            const int u = Hex[x][y].Unit[s];
            if (!ValidUnit(u) || Unit[u].Regime != r || Unit[u].Shq == 0) continue;
            UI.OrdX = x;
            UI.OrdY = y;
            UI.OrdSlot = s;
            SupplyFlood(true);
            golden.Put("scenario2 range " + std::to_string(range) + " shq " + std::to_string(u), FloodDigest());
          }
    }
  }
  golden.Check();
}

TEST_F(Golden, TurnStartsOfTheBenchmarkWorldAndEveryShippedScenario) {
  GoldenFile golden("turn_start_golden.txt");
  bench::BuildTurnWorld();
  RecordTurnStarts("bench", golden);
  for (const std::string& name : test::ShippedScenarios()) {
    ASSERT_TRUE(LoadShipped(name)) << name;
    RecordTurnStarts(name, golden);
  }
  EXPECT_GE(golden.size(), 2u + 2 + 2 + 3 + 6 + 2 + 2 + 2);
  golden.Check();
}

}  // namespace
}  // namespace mf
