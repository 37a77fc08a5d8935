// Many random battles, each seeded: whatever happens, no quantity goes below
// 0, readiness stays within 10..100, experience at most 150, the stacks stay
// packed and every invariant of the tables holds.
#include <cstdio>
#include <random>

#include "combat_test_util.h"
#include "model/engine_vars.h"
#include "model/hex_geometry.h"
#include "model/invariants.h"

namespace mf::test {
namespace {

class RandomBattleTest : public CombatTest {
 protected:
  std::mt19937 gen;
  int shqNext[3] = {0, 0, 0};
  int Pick(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen); }
  bool Chance(int percent) { return Pick(1, 100) <= percent; }

  void RandomTypes() {
    for (int t = 1; t <= Game.TypeCount; ++t) {
      Type[t].Cost = Chance(30) ? 0 : Pick(50, 3000);
      for (int a : {kSoftAttack, kSoftDefense, kHardAttack, kHardDefense, kArtilleryAttack})
        if (Chance(70)) Type[t].Attr[a] = Pick(0, 30);
      Type[t].Attr[kHitPoints] = Pick(0, 80);
      Type[t].Attr[kFrontsize] = Pick(0, 4);
      Type[t].Attr[kWeight] = Pick(0, 40);
      Type[t].Attr[kCarryCap] = Pick(0, 120);
      Type[t].Attr[kSubskills] = Pick(0, 100);
    }
    Type[longGun].Attr[kArtilleryRange] = Pick(2, 3);
    Type[destroyer].Attr[kArtilleryRange] = Pick(1, 3);
  }

  // A unit of regime r at (x, y) of the theater the hex allows.
  int RandomUnit(int r, int x, int y) {
    const bool sea = Hex[x][y].Land == kSea;
    const int u = Put(r, x, y, (r == red ? "Red " : "Blue ") + std::to_string(Pick(1, 999)));
    if (u == 0) return 0;
    if (sea || (Chance(10) && Hex[x][y].Land == kUrban)) {
      if (Chance(80)) Give(u, 1, destroyer, Pick(1, 8));
      if (Chance(40)) Give(u, 2, cargoShip, Pick(1, 5));
      if (Chance(20)) Give(u, 3, carrierShip, Pick(1, 2));
      if (Chance(40)) Give(u, 4, sub, Pick(1, 6));
      Unit[u].Theater = kSeaTheater;
    } else if (Chance(8)) {
      if (Chance(70)) Give(u, 1, fighter, Pick(1, 10));
      if (Chance(40)) Give(u, 3, bomber, Pick(1, 6));
      Unit[u].Theater = kAirTheater;
    } else {
      if (Chance(85)) Give(u, 1, rifle, Pick(0, 60));
      if (Chance(40)) Give(u, 2, truck, Pick(0, 10));
      if (Chance(35)) Give(u, 3, Chance(50) ? fieldGun : longGun, Pick(0, 8));
      if (Chance(35)) Give(u, 4, tank, Pick(0, 8));
      Unit[u].Theater = kLandTheater;
      if (Chance(5) && shqNext[r] < kShqCap) {
        Unit[u].Shq = ++shqNext[r];
        Shq[r][Unit[u].Shq].Unit = u;
        if (Chance(50)) {
          Shq[r][Unit[u].Shq].StockType[1] = rifle;
          Shq[r][Unit[u].Shq].StockQty[1] = Pick(0, 30);
        }
      } else if (Chance(10)) {
        Unit[u].Thq = 1;
      }
    }
    Unit[u].Readiness = Pick(10, 100);
    Unit[u].Experience = Pick(0, 150);
    Unit[u].Disruption = Pick(0, 100);
    Unit[u].MP = Pick(0, 12);
    if (Chance(40)) {
      const int o = Pick(1, 60);
      Officer[o].Regime = r;
      Officer[o].Land = Pick(1, 9);
      Officer[o].Sea = Pick(1, 9);
      Officer[o].Air = Pick(1, 9);
      Officer[o].Fame = Pick(0, 50);
      Officer[o].Retreat = Pick(0, 95);
      Unit[u].Officer = o;
    }
    return u;
  }

  void Check(std::uint32_t seed) {
    for (int u = 1; u <= kUnitCap; ++u) {
      for (int cls = 1; cls <= 4; ++cls) ASSERT_GE(UnitSlotQty(u, cls), 0) << "seed " << seed << " unit " << u;
      if (Unit[u].Regime == 0) continue;
      ASSERT_GE(Unit[u].Readiness, 10) << "seed " << seed << " unit " << u;
      ASSERT_LE(Unit[u].Readiness, 100) << "seed " << seed << " unit " << u;
      ASSERT_LE(Unit[u].Experience, 150) << "seed " << seed << " unit " << u;
      ASSERT_LE(Unit[u].Disruption, 100) << "seed " << seed << " unit " << u;
    }
    for (int k = 1; k <= kLossClasses; ++k) {
      ASSERT_GE(AttackerLost[k], 0);
      ASSERT_GE(DefenderLost[k], 0);
    }
    ASSERT_GE(UI.AttackerCount, 0);
    ASSERT_LE(UI.AttackerCount, kAttackerCap);
    ASSERT_EQ(CheckInvariants(), "") << "seed " << seed;
    ASSERT_FALSE(TheBattleWindow().visible);
    ASSERT_TRUE(TheBattleWindow().mainWindowEnabled);
  }

  void OneBattle(std::uint32_t seed) {
    ZeroAllTables();
    SetEngineVarDefaults();
    MakeWorld();
    shqNext[1] = shqNext[2] = 0;
    gen.seed(seed);
    RandomTypes();
    Game.FogOfWar = Pick(0, 1);
    EngineVar[533].Value = Pick(0, 4);
    // A map of land and some sea; Red holds the west, Blue the east.
    for (int x = 1; x <= 10; ++x) {
      for (int y = 1; y <= 10; ++y) {
        const int land = Pick(1, 20);
        Hex[x][y].Land = land <= 10 ? kGrass : land <= 12 ? kForest : land <= 14 ? kUrban : land <= 16 ? kSea
                                                                     : land <= 18 ? kSwamp : kMountain;
        Hex[x][y].Pop = Hex[x][y].Land == kUrban ? Pick(100, 900) : 0;
        Hex[x][y].Damage = static_cast<Short>(Pick(0, 60));
        for (int d = 1; d <= kHexSides; ++d) {
          Hex[x][y].River[d] = static_cast<Short>(Chance(10));
          Hex[x][y].Entrench[d] = Chance(15) ? Pick(1, 3) : 0;
        }
      }
    }
    // Blue's target and its neighbours on columns 6..7, Red's attackers west of it.
    const int tx = 6, ty = Pick(2, 9);
    if (Chance(20)) {
      // Fighting at sea.
      Hex[tx][ty].Land = kSea;
      for (int x = 3; x <= 5; ++x)
        for (int y = std::max(1, ty - 2); y <= std::min(10, ty + 2); ++y)
          if (Chance(70)) Hex[x][y].Land = kSea;
    } else if (Chance(25)) {
      // A target with nowhere to go.
      for (int d = 1; d <= kHexSides; ++d) {
        const HexXY n = Neighbour(tx, ty, d);
        if (n.x > 0 && n.y > 0 && n.x > 5) Hex[n.x][n.y].Land = Chance(50) ? kMountain : kSea;
      }
    }
    const int stack = Pick(1, 3);
    for (int s = 0; s < stack; ++s) RandomUnit(blue, tx, ty);
    for (int k = 0; k < 4; ++k) {
      const int x = Pick(6, 8), y = Pick(1, 10);
      if ((x != tx || y != ty) && Chance(60)) RandomUnit(blue, x, y);
    }
    // Chains of command on both sides.
    for (int u = 1; u <= Game.UnitCount; ++u) {
      if (Unit[u].Regime == 0 || Unit[u].Shq > 0 || !Chance(50)) continue;
      for (int b = 1; b <= Game.UnitCount; ++b)
        if (b != u && Unit[b].Regime == Unit[u].Regime && (Unit[b].Thq > 0 || Unit[b].Shq > 0) && Chance(50))
          Unit[u].Boss = b;
    }
    Target(tx, ty);
    if (Chance(15) && Hex[tx][ty].Land != kSea) {
      // A landing: one unit from a ship, in no stack.
      UI.Order.LandingOrder = 1;
      const int u = Put(red, 1, 1, "Red Landing");
      Hex[1][1].Unit[1] = 0;
      Give(u, 1, rifle, Pick(1, 40));
      if (Chance(50)) Give(u, 2, truck, Pick(0, 6));
      if (Chance(50)) Give(u, 3, fieldGun, Pick(0, 6));
      if (Chance(50)) Give(u, 4, tank, Pick(0, 6));
      Unit[u].Readiness = Pick(10, 100);
      Unit[u].Experience = Pick(0, 150);
      Join(tx, ty, u);
    } else {
      const int joins = Pick(1, 8);
      for (int j = 0; j < joins; ++j) {
        const int x = Pick(3, 5), y = Pick(std::max(1, ty - 2), std::min(10, ty + 2));
        Hex[x][y].Owner = red;
        int slot = 1;
        while (slot <= 3 && Hex[x][y].Unit[slot] != 0) ++slot;
        if (slot <= 3 && Chance(70) && RandomUnit(red, x, y) == 0) continue;
        const int have = HighestSlot(x, y);
        if (have > 0) Join(x, y, Pick(1, have));
      }
      if (UI.AttackerCount == 0) {
        Hex[5][ty].Owner = red;
        if (RandomUnit(red, 5, ty) != 0 || HighestSlot(5, ty) > 0) Join(5, ty, 1);
      }
    }
    Regime[red].AI = Pick(0, 1);
    Game.ShowAIMoves = Chance(50) ? kTrue : kFalse;
    ASSERT_EQ(CheckInvariants(), "") << "seed " << seed << " before the battle";
    SeedRnd(seed);
    doAttack();
    Check(seed);
  }
};

TEST_F(RandomBattleTest, InvariantsHoldAfterManyBattles) {
  int fought = 0, taken = 0, aborted = 0, landings = 0, seaBattles = 0, shelling = 0, retreats = 0,
      obliterated = 0, breakOffs = 0, cornered = 0;
  for (std::uint32_t seed = 1; seed <= 600; ++seed) {
    OneBattle(seed);
    if (HasFatalFailure()) return;
    if (!Log().empty()) ++fought;
    if (LogHas("OFFENSIVE SUCCESFULL")) ++taken;
    if (LogHas("ATTACK / OFFENSIVE IS ABORTED DUE TO LOSSES.")) ++aborted;
    if (UI.Order.LandingOrder == 1) ++landings;
    if (LogHas("Sea Battle")) ++seaBattles;
    if (LogHas("Artillery attack from distance versus Land Unit")) ++shelling;
    if (LogHas("DEFENDING UNIT HAS RETREATED.")) ++retreats;
    if (LogHas("could not find an escape. ")) ++cornered;
    if (LogHas("ATTACKING UNIT RETREATS")) ++breakOffs;
    for (const auto& line : Log())
      if (line.size() > 16 && line.compare(line.size() - 16, 16, " is obliterated.") == 0) {
        ++obliterated;
        break;
      }
  }
  // The battles were real ones, of every kind and ending every way.
  EXPECT_EQ(fought, 600);
  EXPECT_GT(taken, 10);
  EXPECT_GT(aborted, 10);
  EXPECT_GT(landings, 10);
  EXPECT_GT(seaBattles, 10);
  EXPECT_GT(shelling, 10);
  EXPECT_GT(retreats, 5);
  EXPECT_GT(cornered, 5);
  EXPECT_GT(obliterated, 5);
  EXPECT_GT(breakOffs, 10);
  std::printf("taken %d, aborted %d, landings %d, sea battles %d, shelling %d, retreats %d, cornered %d, "
              "obliterated %d, broken off %d\n",
              taken, aborted, landings, seaBattles, shelling, retreats, cornered, obliterated, breakOffs);
}

}  // namespace
}  // namespace mf::test
