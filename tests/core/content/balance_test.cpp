// The balance of the default rule set under the real rules: counters of the
// default formations, seeded battles between them fought through doAttack
// and FlyAirMission, and turn starts of the shipped scenarios through the real
// driver. The battle tests run many seeds and assert a property with a
// tolerance, so that a change of the numbers that breaks the balance fails
// here; each prints what it measured (docs/content-format.md quotes them).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "combat/air_mission.h"
#include "combat/attack.h"
#include "combat/battle_window.h"
#include "combat/losses.h"
#include "content_test_util.h"
#include "control/scenario_flow.h"
#include "control/turn_cycle.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "orders/movement.h"
#include "support/core_test.h"
#include "view/counter.h"

namespace mf {
namespace {

using test::CopyShipped;
using test::CoreTest;

// One class of troops: a type by name and a quantity.
struct Troop {
  std::string type;
  int qty = 0;
};

// A formation to put on the map: its troops, experience and readiness.
struct Formation {
  std::vector<Troop> troops;
  long experience = 25;
  long readiness = 100;
};

// What many seeded battles of one set-up came to.
struct Outcome {
  int battles = 0;
  int won = 0;                 // the target hex changed hands; at sea, the target fleet went down
  double attackerLost = 0;     // share of the attackers' fighting pieces lost, mean
  double defenderLost = 0;     // share of the defenders' fighting pieces lost, mean
  double attackerReadiness = 0;  // mean over the battles in which any attacker lived
  double defenderReadiness = 0;  // mean over the battles in which any defender lived
  double WinRate() const { return battles > 0 ? static_cast<double>(won) / battles : 0; }
};

class Balance : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    const std::string path = CopyShipped("2PL_Two_Rivers.mf1", tempDir);
    ASSERT_FALSE(path.empty());
    ASSERT_TRUE(ReadFile(path));
  }

  int TypeNamed(const std::string& name) const {
    for (int t = 1; t <= Game.TypeCount; ++t) {
      if (Type[t].Name == name) return t;
    }
    ADD_FAILURE() << "no type " << name;
    return 0;
  }

  // A fresh 14 x 14 battlefield of one landscape, keeping the rule set: Red
  // (1) on the west, Blue (2) on the east, at war, both run by the computer
  // with its moves hidden, so no battle waits for a person.
  void NewField() {
    ClearGame(false, 14, 14);
    red_ = test::world::AddRegime("Red");
    blue_ = test::world::AddRegime("Blue");
    for (int r : {red_, blue_}) {
      Regime[r].AI = 1;
      Regime[r].OwnPeople = 1;
    }
    Game.ShowAIMoves = kFalse;
    Game.FogOfWar = 0;
    Game.Turn = 1;
    Game.CurRegime = red_;
    for (int x = 1; x <= 14; ++x) {
      for (int y = 1; y <= 14; ++y) Hex[x][y].Owner = x <= 5 ? red_ : blue_;
    }
    Game.OfficerCount = 0;
    // Each side's formations serve one THQ far from the fight.
    redThq_ = Place(red_, 1, 1, Formation{}, 0);
    Unit[redThq_].Thq = 1;
    blueThq_ = Place(blue_, 14, 14, Formation{}, 0);
    Unit[blueThq_].Thq = 1;
  }

  // A formation of regime r in the first free slot of (x, y), with nothing
  // but its troops: no officer, no boss.
  int PlaceBare(int r, int x, int y, const Formation& f) {
    if (Hex[x][y].Land != kSea) Hex[x][y].Owner = r;
    const int u = test::world::AddUnit(r, x, y, "Formation");
    if (u == 0) return 0;
    if (Hex[x][y].Land == kSea) Hex[x][y].Owner = 0;  // the sea is nobody's
    for (const Troop& t : f.troops) {
      const int type = TypeNamed(t.type);
      UnitSlotType(u, Type[type].Class) = type;
      UnitSlotQty(u, Type[type].Class) = t.qty;
      Unit[u].Theater = Type[type].Theater;
    }
    Unit[u].Experience = f.experience;
    Unit[u].Readiness = f.readiness;
    Unit[u].MP = 10;
    return u;
  }

  // The same led by an officer of middling skill who falls back at half
  // strength, under its side's THQ (or the boss given).
  int Place(int r, int x, int y, const Formation& f, int boss = -1) {
    const int u = PlaceBare(r, x, y, f);
    if (u == 0) return 0;
    Unit[u].Boss = boss >= 0 ? boss : (r == red_ ? redThq_ : blueThq_);
    const int o = static_cast<int>(++Game.OfficerCount);
    Officer[o] = OfficerRec{};
    Officer[o].Regime = r;
    Officer[o].Name = "Officer";
    Officer[o].Land = 4;
    Officer[o].Sea = 4;
    Officer[o].Air = 4;
    Officer[o].Retreat = 50;
    Unit[u].Officer = o;
    return u;
  }

  // The pieces that stand in the line and take the losses of a fight:
  // infantry and armour (trucks and guns fall only to shelling and retreat).
  static long Pieces(int u) {
    if (Unit[u].Theater != kLandTheater) return Unit[u].InfQty + Unit[u].MobQty + Unit[u].ArtQty + Unit[u].ArmQty;
    return Unit[u].InfQty + Unit[u].ArmQty;
  }

  // Attackers stand on the given sides of the target (6, 7) (1 north-west
  // .. 6 west; several formations may share a side), the bombarding guns two
  // hexes west of it. The defenders hold the target
  // alone, with their own land behind them to fall back on.
  struct Attack {
    std::vector<std::pair<int, Formation>> direct;  // side, formation
    std::vector<Formation> guns;                     // bombard from two hexes away
    std::vector<Formation> defenders;
    int land = kGrass;
    // Landscape of the attackers' side hexes (sea for a fleet or a shore bombardment).
    int attackerLand = kGrass;
    // Formations of the defender on the target's north-east and south-west
    // sides: the target is part of a line.
    std::vector<Formation> line;
  };

  Outcome Fight(const Attack& a, int seeds) {
    Outcome out;
    int attLived = 0, defLived = 0;
    constexpr int tx = 6, ty = 7;
    for (int seed = 1; seed <= seeds; ++seed) {
      NewField();
      Hex[tx][ty].Land = a.land;
      if (a.land == kSea) Hex[tx][ty].Owner = 0;
      for (int side = 1; side <= 6; ++side) {
        if (a.attackerLand == kGrass) break;
        const HexXY n = Neighbour(tx, ty, side);
        Hex[n.x][n.y].Land = a.attackerLand;
        if (a.attackerLand == kSea) Hex[n.x][n.y].Owner = 0;
      }
      std::vector<int> defenders;
      for (const Formation& f : a.defenders) defenders.push_back(Place(blue_, tx, ty, f));
      for (std::size_t i = 0; i < a.line.size(); ++i) {
        const HexXY n = Neighbour(tx, ty, i % 2 == 0 ? 2 : 5);
        Place(blue_, n.x, n.y, a.line[i]);
      }
      struct Joined {
        int u, x, y, slot;
      };
      std::vector<Joined> joined;
      for (const Formation& f : a.guns) {
        const int x = tx - 2, y = ty;
        const int u = Place(red_, x, y, f);
        joined.push_back({u, x, y, SlotOf(u, x, y)});
      }
      for (const auto& [side, f] : a.direct) {
        const HexXY n = Neighbour(tx, ty, side);
        const int u = Place(red_, n.x, n.y, f);
        joined.push_back({u, n.x, n.y, SlotOf(u, n.x, n.y)});
      }
      long attackersBefore = 0, defendersBefore = 0;
      for (const Joined& j : joined) attackersBefore += Pieces(j.u);
      for (int u : defenders) defendersBefore += Pieces(u);

      UI.OrdX = tx;
      UI.OrdY = ty;
      UI.AttackerCount = 0;
      for (const Joined& j : joined) {
        const int n = static_cast<int>(++UI.AttackerCount);
        UI.AttackerX[n] = j.x;
        UI.AttackerY[n] = j.y;
        UI.AttackerSlot[n] = j.slot;
      }
      SeedRnd(static_cast<std::uint32_t>(seed * 7919));
      doAttack();

      ++out.battles;
      if (a.land == kSea) {
        bool gone = true;
        for (int u : defenders) gone = gone && Unit[u].Regime != blue_;
        if (gone) ++out.won;
      } else if (Hex[tx][ty].Owner == red_) {
        ++out.won;
      }
      long attackersAfter = 0, defendersAfter = 0;
      double attR = 0, defR = 0;
      int attAlive = 0, defAlive = 0;
      for (const Joined& j : joined) {
        if (Unit[j.u].Regime != red_) continue;
        attackersAfter += Pieces(j.u);
        attR += Unit[j.u].Readiness;
        ++attAlive;
      }
      for (int u : defenders) {
        if (Unit[u].Regime != blue_) continue;
        defendersAfter += Pieces(u);
        defR += Unit[u].Readiness;
        ++defAlive;
      }
      if (attackersBefore > 0) out.attackerLost += 1.0 - static_cast<double>(attackersAfter) / attackersBefore;
      if (defendersBefore > 0) out.defenderLost += 1.0 - static_cast<double>(defendersAfter) / defendersBefore;
      if (attAlive > 0) {
        out.attackerReadiness += attR / attAlive;
        ++attLived;
      }
      if (defAlive > 0) {
        out.defenderReadiness += defR / defAlive;
        ++defLived;
      }
    }
    out.attackerLost /= out.battles;
    out.defenderLost /= out.battles;
    out.attackerReadiness = attLived > 0 ? out.attackerReadiness / attLived : 0;
    out.defenderReadiness = defLived > 0 ? out.defenderReadiness / defLived : 0;
    return out;
  }

  static int SlotOf(int u, int x, int y) {
    for (int s = 1; s <= kStackSlots; ++s) {
      if (Hex[x][y].Unit[s] == u) return s;
    }
    return 0;
  }

  // One air wing of Red, based three hexes west of the target (6, 7), flies
  // an interdiction at Blue's formation there, or bombs the town there; Blue
  // may have a fighter wing two hexes east of the target.
  struct Raid {
    Formation wing;
    Formation target;
    std::vector<Formation> interceptors;
    bool strategic = false;  // a town of 2500 on the target hex is bombed
  };
  struct RaidOutcome {
    double wingLost = 0;    // share of the wing's aircraft lost, mean
    double targetLost = 0;  // share of the target's pieces (all classes) lost, mean
    double damage = 0;      // town damage, mean
  };

  static long AllPieces(int u) { return Unit[u].InfQty + Unit[u].MobQty + Unit[u].ArtQty + Unit[u].ArmQty; }

  RaidOutcome Fly(const Raid& raid, int seeds) {
    RaidOutcome out;
    constexpr int tx = 6, ty = 7;
    for (int seed = 1; seed <= seeds; ++seed) {
      NewField();
      const int wing = Place(red_, tx - 3, ty, raid.wing);
      int target = 0;
      if (raid.strategic) {
        Hex[tx][ty].Land = kUrban;
        Hex[tx][ty].Pop = 2500;
        Hex[tx][ty].People = 1;
      }
      if (!raid.target.troops.empty()) target = Place(blue_, tx, ty, raid.target);
      for (const Formation& f : raid.interceptors) Place(blue_, tx + 2, ty, f);
      const long wingBefore = AllPieces(wing);
      const long targetBefore = target > 0 ? AllPieces(target) : 0;
      UI.OrdX = tx - 3;
      UI.OrdY = ty;
      UI.OrdSlot = 1;
      UI.SelX = tx;
      UI.SelY = ty;
      UI.SelSlot = target > 0 ? 1 : 0;
      UI.Order = OrderFlags{};
      if (raid.strategic) {
        UI.Order.StratBombOrder = 1;
      } else {
        UI.Order.InterdictOrder = 1;
      }
      SeedRnd(static_cast<std::uint32_t>(seed * 7919));
      FlyAirMission();
      UI.Order = OrderFlags{};
      const long wingAfter = Unit[wing].Regime == red_ ? AllPieces(wing) : 0;
      out.wingLost += 1.0 - static_cast<double>(wingAfter) / wingBefore;
      if (targetBefore > 0) {
        const long targetAfter = Unit[target].Regime == blue_ ? AllPieces(target) : 0;
        out.targetLost += 1.0 - static_cast<double>(targetAfter) / targetBefore;
      }
      out.damage += Hex[tx][ty].Damage;
    }
    out.wingLost /= seeds;
    out.targetLost /= seeds;
    out.damage /= seeds;
    return out;
  }

  static void Print(const std::string& what, const RaidOutcome& o) {
    std::printf("  %-62s wing lost %3.0f%%  target lost %3.0f%%  town damage %3.0f%%\n", what.c_str(),
                100 * o.wingLost, 100 * o.targetLost, o.damage);
  }

  static void Print(const std::string& what, const Outcome& o) {
    std::printf("  %-62s won %3.0f%%  lost att %3.0f%% def %3.0f%%  readiness att %3.0f def %3.0f\n",
                what.c_str(), 100 * o.WinRate(), 100 * o.attackerLost, 100 * o.defenderLost, o.attackerReadiness,
                o.defenderReadiness);
  }

  // A land battle of direct attackers (side, formation) against the
  // defenders, many seeds; printed.
  Outcome Land(const std::string& what, std::vector<std::pair<int, Formation>> direct,
               std::vector<Formation> defenders, int landscape = kGrass, std::vector<Formation> guns = {},
               std::vector<Formation> line = {}) {
    Attack a;
    a.direct = std::move(direct);
    a.guns = std::move(guns);
    a.defenders = std::move(defenders);
    a.land = landscape;
    a.line = std::move(line);
    const Outcome o = Fight(a, kSeeds);
    Print(what, o);
    return o;
  }

  // A fleet on the sea west of the target attacks what is there: ships on
  // the sea, or troops on the shore.
  Outcome Sea(const std::string& what, const Formation& fleet, const Formation& target, int landscape = kSea) {
    Attack a;
    a.direct = {{6, fleet}};
    a.defenders = {target};
    a.land = landscape;
    a.attackerLand = kSea;
    const Outcome o = Fight(a, kSeeds);
    Print(what, o);
    return o;
  }

  RaidOutcome Air(const std::string& what, const Raid& raid) {
    const RaidOutcome o = Fly(raid, kSeeds);
    Print(what, o);
    return o;
  }

  static constexpr int kSeeds = 200;
  int red_ = 0, blue_ = 0;
  int redThq_ = 0, blueThq_ = 0;
};

Formation Of(std::vector<Troop> troops, long experience) { return {std::move(troops), experience, 100}; }
// The line formation of the scenarios: riflemen with a few trucks.
Formation Rifles(int n, long experience) { return Of({{"Rifle Infantry", n}, {"Trucks", 3}}, experience); }

// ---- Counters ----------------------------------------------------------------

// Forty riflemen (attack 40 + hard 8, defence 45 + 8, 80 hit points, so
// weighed by 80 / 20 = 4) with three trucks (defence 2 + 2), at readiness 100:
// attack 48 x 4 x 40 = 7680, defence 53 x 4 x 40 + 4 x 3 = 8492. Through
// readiness (x 100 / 100), experience and the divider of row 301 (250):
// experience 25: Int(7680 x 25 / 100) = 1920, / 250 = 7; Int(8492 x 0.25) =
// 2123, / 250 = 8. Experience 50 (the random generator's THQ): 3840 / 250 =
// 15 and 4246 / 250 = 16.
TEST_F(Balance, FortyRiflemenShowTheirStrengthOnTheCounter) {
  NewField();
  const int fresh = PlaceBare(red_, 3, 3, Of({{"Rifle Infantry", 40}, {"Trucks", 3}}, 25));
  CounterNumbers n = CounterFigures(fresh);
  EXPECT_EQ(n.attack, 7);
  EXPECT_EQ(n.defence, 8);
  EXPECT_EQ(CounterFigureTexts(fresh).attack, "7");
  const int veteran = PlaceBare(red_, 3, 4, Of({{"Rifle Infantry", 40}, {"Trucks", 3}}, 50));
  n = CounterFigures(veteran);
  EXPECT_EQ(n.attack, 15);
  EXPECT_EQ(n.defence, 16);
  // Half ready, the fresh formation shows half: Int(7680 x 0.5) = 3840,
  // Int(3840 x 0.25) = 960, / 250 = 3.
  Unit[fresh].Readiness = 50;
  EXPECT_EQ(CounterFigures(fresh).attack, 3);
  // Six light tanks weigh 400 / 200 = 2 each: (80 + 120) x 2 x 6 = 2400,
  // Int(2400 x 0.25) = 600, / 250 = 2.
  const int tanks = PlaceBare(red_, 3, 5, Of({{"Light Tanks", 6}}, 25));
  EXPECT_EQ(CounterFigures(tanks).attack, 2);
}

// The occupation power of riflemen is (80 / 20) x 40 = 160 a man: one cannot
// take land (160 < row 101's 250, and his counter reads "Low"), two can (320).
TEST_F(Balance, TwoRiflemenCanTakeLandOneCannot) {
  NewField();
  EXPECT_EQ(EV(101), 250);
  const int one = PlaceBare(red_, 3, 3, Of({{"Rifle Infantry", 1}}, 25));
  const int two = PlaceBare(red_, 3, 4, Of({{"Rifle Infantry", 2}}, 25));
  EXPECT_EQ(UnitOccupyPower(one), 160.0);
  EXPECT_EQ(UnitOccupyPower(two), 320.0);
  EXPECT_EQ(CounterFigureTexts(one).attack, "Low");
  EXPECT_EQ(CounterFigureTexts(two).attack, "0");
  // Guns and trucks alone never take land.
  const int guns = PlaceBare(red_, 3, 5, Of({{"Trucks", 4}, {"Long Guns", 6}}, 25));
  EXPECT_EQ(UnitOccupyPower(guns), 0.0);
}

// ---- What one loss costs -------------------------------------------------------

// A rifleman costs 400: a loss of one is worth V = 400 x 1 x row 702 (150) /
// 100 = 600. Between equal formations (thirty riflemen and three trucks a
// side, o / a = 1) the victim, not the side to move, loses Int(600 x 250 /
// row 707 (350)) = 428 hundredths: 4 readiness; the side to move, which
// fired, Int(CInt(600 x 50 x 1.33) / 350) = Int(39900 / 350) = 114: 1
// readiness, and gains Int(600 x 120 / 350) = 205: 2 experience.
TEST_F(Balance, ARiflemanLostCostsAHandfulOfReadiness) {
  NewField();
  const int victim = PlaceBare(blue_, 8, 8, Rifles(30, 25));
  const int shooter = PlaceBare(red_, 3, 3, Rifles(30, 25));
  ApplyLoss(victim, shooter, kLossLandFight, 1, 1);
  EXPECT_EQ(Unit[victim].InfQty, 29);
  EXPECT_EQ(Unit[victim].Readiness, 96);
  EXPECT_EQ(Unit[shooter].Readiness, 99);
  EXPECT_EQ(Unit[shooter].Experience, 27);
  // The side to move pays a third more for its own losses: 600 x 250 x
  // 1.33 = 199500, weighed by o / a = sqrt(29 x 400 + 1200) / sqrt(30 x 400 +
  // 1200) = 0.9847 now that the other side is a man short: Int(196453 / 350)
  // = 561, 5 readiness a man.
  ApplyLoss(shooter, victim, kLossLandFight, 1, 1);
  EXPECT_EQ(Unit[shooter].Readiness, 94);
}

// ---- Land battles ---------------------------------------------------------------

// A lone attacker has the whole frontage of row 538, 50 points; thirty
// riflemen (frontsize 1) and six light tanks (frontsize 2, 12 points) fit in
// it and fight at full strength. Without officers or bosses, at readiness 100
// and experience 25 on grass: soft attack 40 x 30 + 80 x 6 = 1680, x 0.25 =
// 420; hard 8 x 30 + 120 x 6 = 960, x 0.25 = 240. The defender's thirty
// riflemen: soft defence 45 x 30 = 1350, x 0.25 = Int(337.5) = 337; hard 8 x
// 30 x 0.25 = 60.
TEST_F(Balance, TanksFightAtFullStrengthBesideTheirInfantry) {
  NewField();
  const int attacker = PlaceBare(red_, 5, 7, Of({{"Rifle Infantry", 30}, {"Trucks", 3}, {"Light Tanks", 6}}, 25));
  PlaceBare(blue_, 6, 7, Rifles(30, 25));
  UI.OrdX = 6;
  UI.OrdY = 7;
  UI.AttackerCount = 1;
  UI.AttackerX[1] = 5;
  UI.AttackerY[1] = 7;
  UI.AttackerSlot[1] = SlotOf(attacker, 5, 7);
  doAttack();
  const auto& log = TheBattleWindow().lines;
  auto has = [&](const std::string& line) { return std::find(log.begin(), log.end(), line) != log.end(); };
  EXPECT_TRUE(has("FrontSize Limit: 50"));
  EXPECT_TRUE(has("SOFT ATTACK:        420"));
  EXPECT_TRUE(has("HARD ATTACK:        240"));
  EXPECT_TRUE(has("SOFT DEFENSE:        337"));
  EXPECT_TRUE(has("HARD DEFENSE:        60"));
}

TEST_F(Balance, TwoToOneTakesTheHexOnOpenGround) {
  for (long exp : {25L, 50L}) {
    const Formation r30 = Rifles(30, exp);
    const std::string at = " (experience " + std::to_string(exp) + ")";
    // Two formations from one side: no bonus for directions or coordination.
    const Outcome stacked = Land("2 x 30 rifles from one side vs 30, grass" + at, {{6, r30}, {6, r30}}, {r30});
    EXPECT_GE(stacked.WinRate(), 0.8) << exp;
    // The winners are worn but not spent.
    EXPECT_GE(stacked.attackerReadiness, 35) << exp;
    EXPECT_LE(stacked.attackerLost, 0.4) << exp;
    // The usual front: two sides against a formation with neighbours in line.
    const Outcome front =
        Land("2 x 30 rifles from two sides vs 30 in a line" + at, {{6, r30}, {1, r30}}, {r30}, kGrass, {}, {r30, r30});
    EXPECT_GE(front.WinRate(), 0.8) << exp;
    // Forty-five riflemen in one formation do it as well.
    EXPECT_GE(Land("45 rifles vs 30, grass" + at, {{6, Rifles(45, exp)}}, {r30}).WinRate(), 0.8) << exp;
  }
}

TEST_F(Balance, AnAttackAtEvenOddsFails) {
  for (long exp : {25L, 50L}) {
    const Formation r30 = Rifles(30, exp);
    const std::string at = " (experience " + std::to_string(exp) + ")";
    const Outcome even = Land("30 rifles vs 30, grass" + at, {{6, r30}}, {r30});
    EXPECT_LE(even.WinRate(), 0.2) << exp;
    // The defender's soft defence (45) outweighs the attack (40): the
    // attacker loses the larger share.
    EXPECT_GT(even.attackerLost, even.defenderLost) << exp;
    // A lone formation against a line is thrown back.
    EXPECT_LE(Land("30 rifles vs 30 in a line" + at, {{6, r30}}, {r30}, kGrass, {}, {r30, r30}).WinRate(), 0.2) << exp;
  }
}

// Soft defence counts 160 % in a town (row 513) and 130 % in a forest (512).
TEST_F(Balance, TownsHoldAgainstTwoToOne) {
  const Formation r30 = Rifles(30, 25);
  EXPECT_LE(Land("2 x 30 rifles from one side vs 30, town", {{6, r30}, {6, r30}}, {r30}, kUrban).WinRate(), 0.2);
  EXPECT_LE(Land("2 x 30 rifles from one side vs 30, forest", {{6, r30}, {6, r30}}, {r30}, kForest).WinRate(), 0.2);
  // Battle tanks break into the town.
  const Formation armour = Of({{"Rifle Infantry", 30}, {"Trucks", 3}, {"Battle Tanks", 6}}, 25);
  EXPECT_GE(Land("30 rifles + 6 battle tanks vs 30, town", {{6, armour}}, {r30}, kUrban).WinRate(), 0.6);
}

TEST_F(Balance, ArmourMatters) {
  for (long exp : {25L, 50L}) {
    const Formation r30 = Rifles(30, exp);
    const std::string at = " (experience " + std::to_string(exp) + ")";
    const Outcome plain = Land("30 rifles vs 30, grass" + at, {{6, r30}}, {r30});
    const Formation mixed = Of({{"Rifle Infantry", 30}, {"Trucks", 3}, {"Light Tanks", 6}}, exp);
    const Outcome tanks = Land("30 rifles + 6 light tanks vs 30, grass" + at, {{6, mixed}}, {r30});
    EXPECT_GE(tanks.WinRate(), 0.6) << exp;
    // Riflemen's hard attack (8) hardly scratches 400 hit points of armour,
    // and the tanks' riders are spared: the attack costs far less.
    EXPECT_LE(tanks.attackerLost, 0.6 * plain.attackerLost) << exp;
    // Better tanks beat lighter ones.
    const Formation light = Of({{"Rifle Infantry", 20}, {"Trucks", 3}, {"Light Tanks", 4}}, exp);
    const Formation heavy = Of({{"Rifle Infantry", 20}, {"Trucks", 3}, {"Battle Tanks", 4}}, exp);
    const Outcome even = Land("20 rifles + 4 light tanks vs the same" + at, {{6, light}}, {light});
    const Outcome better = Land("20 rifles + 4 battle tanks vs 20 + 4 light" + at, {{6, heavy}}, {light});
    EXPECT_GE(better.WinRate(), even.WinRate() + 0.25) << exp;
  }
}

TEST_F(Balance, ArtilleryMatters) {
  for (long exp : {25L, 50L}) {
    const Formation r30 = Rifles(30, exp);
    const std::string at = " (experience " + std::to_string(exp) + ")";
    const Formation battery = Of({{"Rifle Infantry", 10}, {"Trucks", 4}, {"Long Guns", 6}}, exp);
    // Shelling alone wears the defender down without a shot back.
    const Outcome shelled = Land("6 long guns alone vs 30 rifles" + at, {}, {r30}, kGrass, {battery});
    EXPECT_GE(shelled.defenderLost, 0.08) << exp;
    EXPECT_LE(shelled.defenderReadiness, 60) << exp;
    EXPECT_EQ(shelled.attackerLost, 0.0) << exp;
    // Shelling before the assault turns an even attack into a win.
    EXPECT_GE(Land("30 rifles + 6 long guns vs 30" + at, {{6, r30}}, {r30}, kGrass, {battery}).WinRate(), 0.8) << exp;
    // Field guns fight in the line and are not shot at there.
    const Formation field = Of({{"Rifle Infantry", 30}, {"Trucks", 4}, {"Field Guns", 6}}, exp);
    EXPECT_GE(Land("30 rifles + 6 field guns vs 30" + at, {{6, field}}, {r30}).WinRate(), 0.8) << exp;
  }
}

// At sea the defender has the better of an even fight: the attacker's own
// ships stand on unowned sea like the defender's and so count in the
// defender's line when the battle is set up. A fleet attacks with
// twice the ships, or not at all.
TEST_F(Balance, FleetsAttackWithTwiceTheShips) {
  for (long exp : {25L, 50L}) {
    const std::string at = " (experience " + std::to_string(exp) + ")";
    const Formation destroyers = Of({{"Destroyers", 4}}, exp);
    const Outcome even = Sea("4 destroyers vs 4 destroyers" + at, destroyers, destroyers);
    EXPECT_GT(even.attackerLost, even.defenderLost) << exp;
    EXPECT_GE(even.defenderLost, 0.1) << exp;
    const Outcome twice = Sea("8 destroyers vs 4 destroyers" + at, Of({{"Destroyers", 8}}, exp), destroyers);
    EXPECT_GE(twice.defenderLost, 0.4) << exp;
    EXPECT_LE(twice.attackerLost, 0.3) << exp;
    // Warships make short work of unescorted freighters.
    EXPECT_GE(Sea("4 destroyers vs 4 freighters" + at, destroyers, Of({{"Freighters", 4}}, exp)).defenderLost, 0.4)
        << exp;
    // Cruisers' guns reach troops on the shore, and nothing fires back.
    const Outcome shore = Sea("2 cruisers shelling 30 rifles from the sea" + at, Of({{"Cruisers", 2}}, exp),
                              Rifles(30, exp), kGrass);
    EXPECT_GE(shore.defenderLost, 0.05) << exp;
    EXPECT_EQ(shore.attackerLost, 0.0) << exp;
  }
}

// Air wings train to twice the experience of land formations (row 228 x 2).
TEST_F(Balance, AirRaidsHurtAndFlakAndFightersMakeThemPay) {
  const Formation bombers = Of({{"Bombers", 6}}, 100);
  const Formation column = Of({{"Rifle Infantry", 30}, {"Trucks", 6}}, 50);
  const Formation guarded = Of({{"Rifle Infantry", 30}, {"Trucks", 6}, {"Flak Guns", 6}}, 50);
  const Formation fighters = Of({{"Fighters", 8}}, 100);
  const RaidOutcome open = Air("6 bombers interdict 30 rifles + 6 trucks", {bombers, column, {}, false});
  EXPECT_GE(open.targetLost, 0.08);
  EXPECT_LE(open.wingLost, 0.15);
  // Six flak guns bring 6 x 30 anti-air points, and 30 riflemen 30 more.
  EXPECT_GE(Air("6 bombers interdict 30 rifles + 6 trucks + 6 flak", {bombers, guarded, {}, false}).wingLost, 0.2);
  const RaidOutcome met = Air("6 bombers meet 8 fighters on the way", {bombers, column, {fighters}, false});
  EXPECT_GE(met.wingLost, 0.15);
  EXPECT_LT(met.targetLost, open.targetLost);
  // Heavy bombers damage a town of 2500 for some turns (it recovers 5 % a turn).
  const RaidOutcome town = Air("6 heavy bombers bomb a town of 2500", {Of({{"Heavy Bombers", 6}}, 100), {}, {}, true});
  EXPECT_GE(town.damage, 10);
  EXPECT_LE(town.damage, 40);
}

// ---- Turn starts of the shipped scenarios ------------------------------------

// What one regime's turn start left: its SHQs' supply, their formations'
// supply percentages, the pieces waiting in its pools.
struct TurnStart {
  int turn = 0;
  int regime = 0;
  long generated = 0;   // supply the towns delivered to its SHQs
  long demanded = 0;    // what its formations asked for
  long stock = 0;       // the SHQs' stocks after serving
  int formations = 0;
  int supplied = 0;     // formations with supply above 0
  long pool = 0;        // pieces waiting in its SHQs' pools
};

TurnStart LookAtTurnStart() {
  TurnStart t;
  t.turn = static_cast<int>(Game.Turn);
  t.regime = static_cast<int>(Game.CurRegime);
  const int r = t.regime;
  for (int s = 1; s <= kShqCap; ++s) {
    const int u = static_cast<int>(Shq[r][s].Unit);
    if (u == 0 || Unit[u].Regime != r) continue;
    t.generated += Unit[u].GenSupply;
    t.demanded += Unit[u].SupplyDemand;
    t.stock += Unit[u].SupplyPct;
    for (int k = 1; k <= kStockCap; ++k) {
      if (Shq[r][s].StockType[k] > 0) t.pool += Shq[r][s].StockQty[k];
    }
  }
  for (int u = 1; u <= Game.UnitCount; ++u) {
    if (Unit[u].Regime != r || Unit[u].Shq > 0) continue;
    ++t.formations;
    if (Unit[u].SupplyPct > 0) ++t.supplied;
  }
  return t;
}

// What every formation of regime r would ask for at readiness 0: its supply
// need x (100 + row 221 - 0) / 100.
long WorstDemand(int r) {
  long all = 0;
  for (int u = 1; u <= Game.UnitCount; ++u) {
    if (Unit[u].Regime != r || Unit[u].Shq > 0) continue;
    long need = 0;
    for (int cls = 1; cls <= 4; ++cls) {
      const long t = UnitSlotType(u, cls);
      const long qty = UnitSlotQty(u, cls);
      if (qty > 0 && ValidType(static_cast<int>(t))) need += Type[t].Attr[kSupplyNeed] * qty;
    }
    all += static_cast<long>(need * (100 + EV(221)) / 100);
  }
  return all;
}

class ScenarioTurns : public CoreTest, public ::testing::WithParamInterface<std::string> {
 protected:
  // Loads the shipped scenario, lets people play every regime (so the turns
  // run through the New Turn dialog's default) and ends `rounds` rounds of
  // turns, looking at every regime's turn start.
  std::vector<TurnStart> Play(int rounds) {
    std::vector<TurnStart> seen;
    const std::string path = CopyShipped(GetParam(), tempDir);
    if (path.empty() || !ReadFile(path)) {
      ADD_FAILURE() << "cannot read " << GetParam();
      return seen;
    }
    for (int r = 1; r <= Game.RegimeCount; ++r) {
      Regime[r].AI = 0;
      worst_[r] = WorstDemand(r);
      for (int u = 1; u <= Game.UnitCount; ++u) {
        if (Unit[u].Regime == r && Unit[u].Shq == 0) pieces_[r] += Unit[u].InfQty + Unit[u].ArtQty + Unit[u].ArmQty;
      }
    }
    UI.EditMode = 0;
    UI.HideEditor = true;
    NextTurn();
    seen.push_back(LookAtTurnStart());
    const int regimes = static_cast<int>(Game.RegimeCount);
    for (int k = 1; k < rounds * regimes && UI.PendingFile.size() < 2; ++k) {
      EndCurrentTurn();
      seen.push_back(LookAtTurnStart());
    }
    return seen;
  }
  long worst_[kRegimeCap + 1] = {};
  long pieces_[kRegimeCap + 1] = {};  // fighting pieces on the map at the start
};

// The towns of every regime feed its SHQs: at each turn start the supply they
// deliver covers what the formations ask, none goes without, the stocks
// stay filled, and even formations worn to readiness 0 all at once would be
// fed from one turn's deliveries.
TEST_P(ScenarioTurns, TownsKeepTheirSHQsSupplied) {
  const std::vector<TurnStart> seen = Play(6);
  ASSERT_FALSE(seen.empty());
  std::printf("%s\n", GetParam().c_str());
  for (const TurnStart& t : seen) {
    if (t.turn > 1) continue;
    std::printf("  regime %d: towns deliver %ld a turn; formations ask %ld now, %ld at readiness 0\n", t.regime,
                t.generated, t.demanded, worst_[t.regime]);
  }
  for (const TurnStart& t : seen) {
    const std::string when = "turn " + std::to_string(t.turn) + " regime " + std::to_string(t.regime);
    EXPECT_GE(t.generated, t.demanded) << when;
    EXPECT_GT(t.stock, 0) << when;
    EXPECT_EQ(t.supplied, t.formations) << when;
    EXPECT_GE(t.generated, worst_[t.regime]) << when;
  }
}

// Production over five rounds of turns brings every regime a useful trickle
// of new pieces into its pools: at least two a turn, and not more than half
// of what it fields at the start.
TEST_P(ScenarioTurns, ProductionYieldsATrickleOfNewPieces) {
  const std::vector<TurnStart> seen = Play(6);
  ASSERT_FALSE(seen.empty());
  std::printf("%s\n", GetParam().c_str());
  std::map<int, std::pair<TurnStart, TurnStart>> span;  // first and sixth turn start of each regime
  for (const TurnStart& t : seen) {
    if (t.turn == 1) span[t.regime].first = t;
    if (t.turn == 6) span[t.regime].second = t;
  }
  ASSERT_EQ(static_cast<long>(span.size()), Game.RegimeCount);
  for (const auto& [r, s] : span) {
    ASSERT_EQ(s.second.turn, 6) << "regime " << r;
    const long gained = s.second.pool - s.first.pool;
    std::printf("  regime %d: %ld pieces in the pools after five turns (%ld fielded at the start)\n", r, gained,
                pieces_[r]);
    EXPECT_GE(gained, 10) << "regime " << r;
    EXPECT_LE(2 * gained, pieces_[r]) << "regime " << r;
  }
}

std::string FileTestName(const ::testing::TestParamInfo<std::string>& param) {
  std::string name;
  for (char c : param.param) name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(Content, ScenarioTurns, ::testing::ValuesIn(test::ShippedScenarios()), FileTestName);

// Every land formation of the shipped scenarios that has infantry or armour
// shows its strength on its counter: neither 0 nor "Low", and within the
// figures of a beginning army.
class ScenarioCounters : public CoreTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(ScenarioCounters, FormationsShowTheirStrength) {
  const std::string path = CopyShipped(GetParam(), tempDir);
  ASSERT_FALSE(path.empty());
  ASSERT_TRUE(ReadFile(path));
  int shown = 0;
  long least = 99, most = 0;
  for (int u = 1; u <= Game.UnitCount; ++u) {
    const UnitRec& un = Unit[u];
    if (un.Regime == 0 || un.Shq > 0 || un.Theater != kLandTheater) continue;
    if (un.InfQty <= 0 && un.ArmQty <= 0) continue;
    const CounterNumbers n = CounterFigures(u);
    const CounterTexts t = CounterFigureTexts(u);
    EXPECT_GE(n.attack, 1) << un.Name;
    EXPECT_LE(n.attack, 40) << un.Name;
    EXPECT_GE(n.defence, 1) << un.Name;
    EXPECT_LE(n.defence, 40) << un.Name;
    EXPECT_NE(t.attack, "Low") << un.Name;
    ++shown;
    least = std::min({least, n.attack, n.defence});
    most = std::max({most, n.attack, n.defence});
  }
  EXPECT_GT(shown, 0);
  std::printf("  %s: %d land formations, counter figures %ld to %ld\n", GetParam().c_str(), shown, least, most);
}

INSTANTIATE_TEST_SUITE_P(Content, ScenarioCounters, ::testing::ValuesIn(test::ShippedScenarios()), FileTestName);

}  // namespace
}  // namespace mf
