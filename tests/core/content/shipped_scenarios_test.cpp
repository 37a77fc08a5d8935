// Every scenario the build ships: it loads, saves back to the same bytes,
// keeps the invariants, and holds what a playable scenario needs.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "content_test_util.h"
#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "editor/type_rules.h"
#include "files/scenario_file.h"
#include "model/game_state.h"
#include "model/invariants.h"
#include "model/labels.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CopyShipped;
using test::CoreTest;
using test::FileBytes;

class ShippedScenario : public CoreTest, public ::testing::WithParamInterface<std::string> {
 protected:
  // Reads the shipped file as the menu's load does; the path of the copy read.
  std::string Load() {
    const std::string path = CopyShipped(GetParam(), tempDir);
    if (path.empty()) return "";
    original_ = FileBytes(path);
    EXPECT_TRUE(ReadFile(path));
    return path;
  }
  std::string original_;
};

TEST_P(ShippedScenario, LoadsAndSavesBackByteForByte) {
  const std::string path = Load();
  ASSERT_FALSE(path.empty());
  // Campaign files load without a word; all others say so.
  const auto messages = Messages();
  if (EV(704) == 1) {
    EXPECT_TRUE(messages.empty());
  } else {
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0], "Loaded");
  }
  // A load leaves the file as it found it: scrambled.
  EXPECT_EQ(FileBytes(path), original_);
  EXPECT_EQ(original_[0] & 0x80, 0x80);
  const std::string again = TempPath("again.mf1");
  ASSERT_TRUE(WriteFile(again));
  EXPECT_TRUE(FileBytes(again) == original_) << "the save differs from the shipped file";
}

TEST_P(ShippedScenario, KeepsTheInvariants) {
  ASSERT_FALSE(Load().empty());
  EXPECT_EQ(CheckInvariants(), "");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.CurRegime, 0);
}

TEST_P(ShippedScenario, EveryTypeObeysTheTypeEditor) {
  ASSERT_FALSE(Load().empty());
  ASSERT_GE(Game.TypeCount, 30);
  for (int t = 1; t <= Game.TypeCount; ++t) {
    for (const auto& br : BrokenTypeRules(t)) {
      ADD_FAILURE() << "type " << t << " " << Type[t].Name << ", " << TypeAttrLabel(br.attr) << ": " << br.message;
    }
    // Battles divide by the frontsize and hit points of every class they meet.
    EXPECT_GT(Type[t].Attr[kFrontsize], 0) << Type[t].Name;
    EXPECT_GT(Type[t].Attr[kHitPoints], 0) << Type[t].Name;
    EXPECT_GT(Type[t].Attr[kWeight], 0) << Type[t].Name;
    EXPECT_GT(Type[t].Attr[kMovementCap], 0) << Type[t].Name;
    EXPECT_GT(Type[t].Attr[kSupplyNeed], 0) << Type[t].Name;
    EXPECT_GT(Type[t].Cost, 0) << Type[t].Name;
    EXPECT_GE(Type[t].Sprite, 1) << Type[t].Name;
    EXPECT_LE(Type[t].Sprite, 30) << Type[t].Name;
    EXPECT_LE(Type[t].Research, 200) << Type[t].Name;
    if (Type[t].Research > 0) {
      EXPECT_GT(Research[Type[t].Research].Cost, 0) << Type[t].Name;
    }
  }
  // The random generator hands out types 1 and 2.
  EXPECT_EQ(Type[1].Theater, kLandTheater);
  EXPECT_EQ(Type[1].Class, 1);
  EXPECT_EQ(Type[1].Research, 0);
  EXPECT_EQ(Type[2].Theater, kLandTheater);
  EXPECT_EQ(Type[2].Class, 2);
  EXPECT_EQ(Type[2].Research, 0);
  EXPECT_GT(Type[2].Attr[kCarryCap], 0);
}

TEST_P(ShippedScenario, EverySHQIsRegistered) {
  ASSERT_FALSE(Load().empty());
  std::set<int> regimesWithShq;
  for (int u = 1; u <= Game.UnitCount; ++u) {
    const UnitRec& un = Unit[u];
    if (un.Regime == 0 || un.Shq == 0) continue;
    EXPECT_EQ(Shq[un.Regime][un.Shq].Unit, u) << un.Name;
    regimesWithShq.insert(un.Regime);
  }
  for (int r = 1; r <= Game.RegimeCount; ++r) {
    EXPECT_TRUE(regimesWithShq.count(r)) << Regime[r].Name << " has no SHQ";
    for (int s = 1; s <= kShqCap; ++s) {
      const int u = Shq[r][s].Unit;
      if (u == 0) continue;
      EXPECT_EQ(Unit[u].Regime, r);
      EXPECT_EQ(Unit[u].Shq, s);
    }
  }
}

TEST_P(ShippedScenario, EveryOfficerHasANameAndAPortraitOfHisRegimesSet) {
  ASSERT_FALSE(Load().empty());
  int officers = 0;
  for (int o = 1; o <= Game.OfficerCount; ++o) {
    const OfficerRec& of = Officer[o];
    if (of.Regime == 0) continue;
    ++officers;
    EXPECT_GT(of.Name.size(), 3u) << o;
    const int set = Regime[of.Regime].PortraitSet;
    ASSERT_GE(set, 1) << Regime[of.Regime].Name;
    ASSERT_LE(set, 5) << Regime[of.Regime].Name;
    // Forty portraits a set: set 1 is pictures 1..40, set 2 41..80, ...
    EXPECT_GE(of.Pic, (set - 1) * 40 + 1) << of.Name;
    EXPECT_LE(of.Pic, set * 40) << of.Name;
    for (int s : {of.Land, of.Sea, of.Air}) {
      EXPECT_GE(s, 1) << of.Name;
      EXPECT_LE(s, 9) << of.Name;
    }
    EXPECT_LE(of.Retreat, 95) << of.Name;
  }
  EXPECT_GT(officers, 0);
  // Every unit is led by an officer of its own regime, and no officer leads two.
  std::set<int> leading;
  for (int u = 1; u <= Game.UnitCount; ++u) {
    const UnitRec& un = Unit[u];
    if (un.Regime == 0) continue;
    ASSERT_GT(un.Officer, 0) << un.Name;
    EXPECT_EQ(Officer[un.Officer].Regime, un.Regime) << un.Name;
    EXPECT_EQ(Officer[un.Officer].InPool, 0) << un.Name;
    EXPECT_TRUE(leading.insert(un.Officer).second) << un.Name;
  }
}

TEST_P(ShippedScenario, IsAPlayableScenario) {
  ASSERT_FALSE(Load().empty());
  EXPECT_GT(Game.ScenarioStory.size(), 100u);
  ASSERT_GE(Game.RegimeCount, 2);
  long total = 0;
  for (int x = 1; x <= Game.MapW; ++x) {
    for (int y = 1; y <= Game.MapH; ++y) {
      const HexRec& h = Hex[x][y];
      total += h.Pop;
      if (h.Pop > 0) {
        EXPECT_GE(h.People, 1);
        EXPECT_LE(h.People, Game.PeopleCount);
        EXPECT_FALSE(h.UrbanName.empty());
      }
      // An owned town has its production set and an SHQ of its owner to deliver to.
      if (h.Pop > 0 && h.Owner > 0) {
        ASSERT_GT(h.ProdSHQ, 0) << h.UrbanName;
        EXPECT_EQ(Unit[h.ProdSHQ].Regime, h.Owner) << h.UrbanName;
        EXPECT_GT(Unit[h.ProdSHQ].Shq, 0) << h.UrbanName;
      }
      if (h.Land == kSea) {
        EXPECT_EQ(h.Owner, 0);
      }
    }
  }
  EXPECT_GT(Game.GameEndPop, 0);
  EXPECT_LT(Game.GameEndPop, total);
  for (int r = 1; r <= Game.RegimeCount; ++r) {
    EXPECT_GT(Regime[r].Intro.size(), 50u) << Regime[r].Name;
    EXPECT_GE(Regime[r].OwnPeople, 1);
    EXPECT_LE(Regime[r].OwnPeople, Game.PeopleCount);
    // The portrait sets a..e belong to the peoples 1..5.
    EXPECT_EQ(Regime[r].PortraitSet, Regime[r].OwnPeople) << Regime[r].Name;
    int thqs = 0, formations = 0;
    long pop = 0;
    for (int u = 1; u <= Game.UnitCount; ++u) {
      if (Unit[u].Regime != r) continue;
      if (Unit[u].Thq > 0) ++thqs;
      if (Unit[u].Thq == 0 && Unit[u].Shq == 0) ++formations;
    }
    for (int x = 1; x <= Game.MapW; ++x) {
      for (int y = 1; y <= Game.MapH; ++y) {
        if (Hex[x][y].Owner == r) pop += Hex[x][y].Pop;
      }
    }
    EXPECT_GE(thqs, 1) << Regime[r].Name;
    EXPECT_GE(formations, 1) << Regime[r].Name;
    // Nobody has won before the first turn.
    EXPECT_LT(pop, Game.GameEndPop) << Regime[r].Name;
    for (int b = 1; b <= Game.RegimeCount; ++b) EXPECT_GE(Dip[r][b].Cost, 1);
  }
  // A few story events, one of them a choice with at least two answers.
  int stories = 0, choices = 0;
  for (int e = 1; e <= Game.EventCount; ++e) {
    const EventRec& ev = Event[e];
    if (ev.Story.size() <= 1) continue;
    ++stories;
    EXPECT_GE(ev.Sprite, 1);
    EXPECT_LE(ev.Sprite, 12);
    if (ev.Type == 4) {
      int answers = 0;
      for (int k = 1; k <= 5; ++k) answers += ev.DataText[k].size() > 1 ? 1 : 0;
      if (answers >= 2) ++choices;
    }
  }
  EXPECT_GE(stories, 3);
  EXPECT_GE(choices, 1);
}

// True when the supply pass of the current regime's turn start has run:
// its SHQs have counted what their towns delivered.
bool SupplyPassRan(int r) {
  for (int s = 1; s <= kShqCap; ++s) {
    if (Shq[r][s].Unit > 0 && Unit[Shq[r][s].Unit].GenSupply > 0) return true;
  }
  return false;
}

// Every formation of the scenarios stands within reach of its SHQ, under a
// THQ of that SHQ, with towns delivering: at its regime's turn start each is
// in supply.
void ExpectFormationsSupplied(int r, const std::string& when) {
  ASSERT_TRUE(SupplyPassRan(r)) << "the supply pass of regime " << r << " did not run " << when;
  for (int u = 1; u <= Game.UnitCount; ++u) {
    if (Unit[u].Regime != r || Unit[u].Shq > 0) continue;
    EXPECT_GT(Unit[u].SupplyPct, 0) << Unit[u].Name << " " << when;
  }
}

// Several rounds of turns of every regime, each regime's formations in
// supply at its turn start.
TEST_P(ShippedScenario, SeveralTurnsCanBeEnded) {
  ASSERT_FALSE(Load().empty());
  for (int r = 1; r <= Game.RegimeCount; ++r) Regime[r].AI = 0;
  UI.EditMode = 0;
  UI.HideEditor = true;
  NextTurn();
  ASSERT_EQ(Game.Turn, 1) << "the turn cycle did not start the game";
  EXPECT_EQ(Game.CurRegime, 1);
  ExpectFormationsSupplied(1, "at the first turn start");
  const int regimes = Game.RegimeCount;
  for (int k = 1; k <= 3 * regimes && UI.PendingFile.size() < 2; ++k) {
    EndCurrentTurn();
    ASSERT_EQ(CheckInvariants(), "") << "after regime turn " << k;
    EXPECT_EQ(Game.CurRegime, k % regimes + 1) << "after regime turn " << k;
    EXPECT_EQ(Game.Turn, 1 + k / regimes) << "after regime turn " << k;
    ExpectFormationsSupplied(Game.CurRegime, "after regime turn " + std::to_string(k));
  }
  // Nothing the turns did was a fault of the scenario. (Without the portrait
  // pictures on disk no officer can be drawn for a new unit, so that
  // complaint counts only where the sprite load found them.)
  const bool portraits = OfficerPicSet[1] > 0;
  for (const std::string& m : Messages()) {
    EXPECT_EQ(m.find("bug"), std::string::npos) << m;
    if (portraits) {
      EXPECT_EQ(m.find("portrait"), std::string::npos) << m;
    }
  }
}

// Test names from file names: "scenario1.mf1" -> "scenario1_mf1".
std::string FileTestName(const ::testing::TestParamInfo<std::string>& param) {
  std::string name;
  for (char c : param.param) name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(Content, ShippedScenario, ::testing::ValuesIn(test::ShippedScenarios()), FileTestName);

}  // namespace
}  // namespace mf
