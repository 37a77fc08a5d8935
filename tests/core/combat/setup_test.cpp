// Battle set-up: directions and command groups, the defence line, land
// factors, battle kinds, the target slot, frontage, figures, riders and the
// modifiers with the log of an engagement.
#include <cmath>

#include "combat/command_figures.h"
#include "combat_test_util.h"
#include "model/hex_geometry.h"

namespace mf::test {
namespace {

// The target hex is (6, 5), an odd row. Its sides: 1 (6,4), 2 (7,4),
// 3 (7,5), 4 (7,6), 5 (6,6), 6 (5,5).
class SetupTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    Game.FogOfWar = 0;
    guard = Put(blue, 6, 5, "Blue Guard");
    Give(guard, 1, rifle, 10);
    Target(6, 5);
  }

  // The once-per-battle figures for the list as it stands.
  static void Prepare() {
    TheBattle = BattleState{};
    TheBattle.tx = static_cast<int>(UI.OrdX);
    TheBattle.ty = static_cast<int>(UI.OrdY);
    TheBattle.landing = UI.Order.LandingOrder == 1;
    PrepareBattle();
  }

  // The first steps of entry `pass` in round 1: target and kind.
  static Engagement Engage(int pass) {
    Prepare();
    TheBattle.round = 1;
    Engagement e;
    e.index = pass;
    e.attacker = AttackerUnit(pass);
    e.ax = static_cast<int>(UI.AttackerX[pass]);
    e.ay = static_cast<int>(UI.AttackerY[pass]);
    e.aslot = static_cast<int>(UI.AttackerSlot[pass]);
    ChooseTarget(e);
    DecideKind(e);
    return e;
  }

  int Thq(int x, int y, const std::string& name) {
    const int u = Put(red, x, y, name);
    Unit[u].Thq = 1;
    return u;
  }
  int Rifles(int r, int x, int y, const std::string& name, int qty, int boss = 0) {
    const int u = Put(r, x, y, name);
    Give(u, 1, rifle, qty);
    Unit[u].Boss = boss;
    return u;
  }

  int guard = 0;
};

// ---- Attack directions and command groups ------------------------------------

TEST_F(SetupTest, TwoSidesOfOneBossCoordinate) {
  const int hq = Thq(1, 1, "Red THQ");
  Rifles(red, 5, 5, "A", 10, hq);
  Rifles(red, 6, 4, "B", 10, hq);
  Join(5, 5, 1);
  Join(6, 4, 1);
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 2);
  EXPECT_EQ(TheBattle.attackCoordination, 2);
}

TEST_F(SetupTest, TwoUnitsOfOneBossFromOneSideKeepCoordinationOne) {
  const int hq = Thq(1, 1, "Red THQ");
  Rifles(red, 5, 5, "A", 10, hq);
  Rifles(red, 5, 5, "B", 10, hq);
  Join(5, 5, 1);
  Join(5, 5, 2);
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 1);
  EXPECT_EQ(TheBattle.attackCoordination, 1);
  // The second unit opened a second group for the same boss.
  EXPECT_EQ(TheBattle.attackGroupBoss[1], hq);
  EXPECT_EQ(TheBattle.attackGroupBoss[2], hq);
  EXPECT_EQ(TheBattle.attackGroupBoss[3], 0);
}

TEST_F(SetupTest, UnitsWithoutBossCountInTheFirstGroupWhileItHasNone) {
  Rifles(red, 6, 4, "A", 10);
  Rifles(red, 5, 5, "B", 10);
  Join(5, 5, 1);
  Join(6, 4, 1);
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 2);
  EXPECT_EQ(TheBattle.attackCoordination, 2);

  // A unit with a boss from side 3 takes the first group over before B of
  // side 6 is counted; B then counts alone in the second group.
  const int hq = Thq(1, 1, "Red THQ");
  Rifles(red, 7, 5, "C", 10, hq);
  Join(7, 5, 1);
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 3);
  EXPECT_EQ(TheBattle.attackCoordination, 1);
}

TEST_F(SetupTest, HeadquartersCountSidesButNotGroups) {
  const int hq = Thq(5, 5, "Red THQ");
  Give(hq, 1, rifle, 10);
  Rifles(red, 6, 4, "A", 10);
  Join(5, 5, 1);
  Join(6, 4, 1);
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 2);
  EXPECT_EQ(TheBattle.attackCoordination, 1);
}

TEST_F(SetupTest, AFourthBossFindsNoGroup) {
  int boss[5];
  for (int k = 1; k <= 4; ++k) boss[k] = Thq(1, k, "THQ " + std::to_string(k));
  // Sides 1..5, the last two of the fourth boss.
  Rifles(red, 6, 4, "A", 10, boss[1]);
  Rifles(red, 7, 4, "B", 10, boss[2]);
  Rifles(red, 7, 5, "C", 10, boss[3]);
  Rifles(red, 7, 6, "D", 10, boss[4]);
  Rifles(red, 6, 6, "E", 10, boss[4]);
  for (const auto& [x, y] : {std::pair{6, 4}, {7, 4}, {7, 5}, {7, 6}, {6, 6}}) Join(x, y, 1);
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 5);
  EXPECT_EQ(TheBattle.attackCoordination, 1);
}

TEST_F(SetupTest, ALandingHasNoDirectionsButADefenceLine) {
  // Blue: 20 rifles of occupation power 2 x 8 x 20 = 320 at the target and
  // as many next to it on Blue land.
  Give(guard, 1, rifle, 20);
  Rifles(blue, 7, 5, "Blue Reserve", 20);
  const int marines = world::AddUnit(red, 1, 1, "Red Marines");
  Hex[1][1].Unit[1] = 0;
  Give(marines, 1, rifle, 20);
  UI.Order.LandingOrder = 1;
  Join(6, 5, 0);
  UI.AttackerSlot[1] = marines;
  Prepare();
  EXPECT_EQ(TheBattle.attackDirections, 0);
  EXPECT_EQ(TheBattle.attackCoordination, 0);
  EXPECT_EQ(TheBattle.defenceLine, 2);
  EXPECT_EQ(TheBattle.defenceCoordination, 2);
  EXPECT_EQ(TheBattle.roundLimit, 999);
  EXPECT_DOUBLE_EQ(TheBattle.softDefenceLandFactor, 2.0);  // 100% x 200%
  EXPECT_DOUBLE_EQ(TheBattle.hardAttackLandFactor, 0.5);   // 100% x 50%
  EXPECT_EQ(AttackerUnit(1), marines);
}

TEST_F(SetupTest, DefenceLine) {
  Give(guard, 1, rifle, 20);                       // 320: counts
  const int d1 = Thq(9, 9, "Blue THQ");
  Unit[d1].Regime = blue;
  Unit[guard].Boss = d1;
  Rifles(blue, 7, 5, "Strong", 20, d1);           // side 3: counts, same boss
  Rifles(blue, 7, 4, "Weak", 10);                 // 160: below row 101
  Rifles(red, 5, 5, "Red", 30);                    // Red land: not looked at
  Prepare();
  EXPECT_EQ(TheBattle.defenceLine, 2);
  EXPECT_EQ(TheBattle.defenceCoordination, 2);
  // Only the first strong unit of a hex adds to the line.
  Rifles(blue, 7, 5, "Strong 2", 20);
  Prepare();
  EXPECT_EQ(TheBattle.defenceLine, 2);
}

TEST_F(SetupTest, TheThirdDefenceGroupOpensOnlyWithoutAThirdAttackGroup) {
  Give(guard, 1, rifle, 20);
  int dboss[4];
  for (int k = 1; k <= 3; ++k) {
    dboss[k] = Thq(9, k, "Blue THQ " + std::to_string(k));
    Unit[dboss[k]].Regime = blue;
  }
  Unit[guard].Boss = dboss[1];
  Rifles(blue, 7, 5, "D2", 20, dboss[2]);  // side 3
  Rifles(blue, 7, 6, "D3", 20, dboss[3]);  // side 4
  Rifles(blue, 6, 6, "D3b", 20, dboss[3]);  // side 5
  Prepare();
  EXPECT_EQ(TheBattle.defenceLine, 4);
  EXPECT_EQ(TheBattle.defenceCoordination, 2);  // the third group: two sides

  // Three attack groups: the third defence group can no longer open.
  int aboss[4];
  for (int k = 1; k <= 3; ++k) aboss[k] = Thq(1, k, "Red THQ " + std::to_string(k));
  Hex[6][4].Owner = red;
  Hex[7][4].Owner = red;
  Rifles(red, 6, 4, "A1", 10, aboss[1]);
  Rifles(red, 7, 4, "A2", 10, aboss[2]);
  Rifles(red, 5, 5, "A3", 10, aboss[3]);
  Join(6, 4, 1);
  Join(7, 4, 1);
  Join(5, 5, 1);
  Prepare();
  EXPECT_EQ(TheBattle.attackGroupBoss[3], aboss[3]);
  EXPECT_EQ(TheBattle.defenceLine, 4);
  EXPECT_EQ(TheBattle.defenceCoordination, 1);
}

TEST_F(SetupTest, LandFactors) {
  Prepare();
  EXPECT_DOUBLE_EQ(TheBattle.softDefenceLandFactor, 1.0);
  EXPECT_DOUBLE_EQ(TheBattle.hardAttackLandFactor, 1.0);
  EXPECT_EQ(TheBattle.roundLimit, 3);
  Hex[6][5].Land = kForest;
  Prepare();
  EXPECT_DOUBLE_EQ(TheBattle.softDefenceLandFactor, 1.3);
  Hex[6][5].Land = kSwamp;
  Prepare();
  EXPECT_DOUBLE_EQ(TheBattle.softDefenceLandFactor, 1.3);
  EXPECT_DOUBLE_EQ(TheBattle.hardAttackLandFactor, 0.2);
  Hex[6][5].Land = kUrban;
  Prepare();
  EXPECT_DOUBLE_EQ(TheBattle.softDefenceLandFactor, 1.6);
}

// ---- Battle kinds ---------------------------------------------------------------

TEST_F(SetupTest, KindsOnLand) {
  const int a = Rifles(red, 5, 5, "A", 10);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  EXPECT_EQ(e.kind, 4);
  EXPECT_FALSE(e.bombarding);
  EXPECT_EQ(e.direction, 6);
  EXPECT_EQ(e.distance, 1);

  // Guns that reach further than one hex always shell, even next door.
  Give(a, 3, longGun, 2);
  e = Engage(1);
  EXPECT_EQ(e.kind, 1);
  EXPECT_TRUE(e.bombarding);
  // Guns of range 1 fight in the line.
  Give(a, 3, fieldGun, 2);
  e = Engage(1);
  EXPECT_EQ(e.kind, 4);
  EXPECT_FALSE(e.bombarding);

  // Against aircraft on the ground and ships in harbour.
  Give(guard, 1, fighter, 5);
  e = Engage(1);
  EXPECT_EQ(e.kind, 6);
  Give(guard, 1, destroyer, 5);
  e = Engage(1);
  EXPECT_EQ(e.kind, 5);
  Give(a, 3, longGun, 2);
  e = Engage(1);
  EXPECT_EQ(e.kind, 2);
  EXPECT_TRUE(e.bombarding);
  Give(guard, 1, fighter, 5);
  e = Engage(1);
  EXPECT_EQ(e.kind, 3);
}

TEST_F(SetupTest, KindsAcrossTheShore) {
  // A land unit on the shore against ships at sea: shelling.
  Hex[6][5].Land = kSea;
  Give(guard, 1, destroyer, 3);
  Rifles(red, 5, 5, "Shore", 10);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  EXPECT_EQ(e.kind, 2);
  EXPECT_TRUE(e.bombarding);

  // Ships in harbour against ships at sea: a sea battle.
  const int port = Put(red, 5, 5, "Harbour Fleet");
  Give(port, 1, destroyer, 3);
  Target(6, 5);
  Join(5, 5, 2);
  e = Engage(1);
  EXPECT_EQ(e.kind, 7);
  EXPECT_FALSE(e.bombarding);
}

TEST_F(SetupTest, KindsFromTheSea) {
  Hex[5][5].Land = kSea;
  const int fleet = Put(red, 5, 5, "Fleet");
  Give(fleet, 1, destroyer, 3);
  Join(5, 5, 1);
  // Ships at sea against land troops: shore bombardment.
  Engagement e = Engage(1);
  EXPECT_EQ(e.kind, 1);
  EXPECT_TRUE(e.bombarding);
  // Against ships in harbour: shelled from the sea too.
  Give(guard, 1, destroyer, 3);
  e = Engage(1);
  EXPECT_EQ(e.kind, 2);
  EXPECT_TRUE(e.bombarding);
  // Against aircraft on an airfield by the shore.
  Give(guard, 1, fighter, 3);
  e = Engage(1);
  EXPECT_EQ(e.kind, 3);
}

TEST_F(SetupTest, KindsAtSea) {
  Hex[5][5].Land = kSea;
  Hex[6][5].Land = kSea;
  Hex[4][5].Land = kSea;
  Give(guard, 1, destroyer, 3);
  const int fleet = Put(red, 5, 5, "Fleet");
  Give(fleet, 1, destroyer, 3);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  EXPECT_EQ(e.kind, 7);
  EXPECT_FALSE(e.bombarding);
  // Two hexes off, a sea battle becomes fire from afar, without the shelling flag.
  const int far = Put(red, 4, 5, "Far Fleet");
  Give(far, 1, destroyer, 3);
  Target(6, 5);
  Join(4, 5, 1);
  e = Engage(1);
  EXPECT_EQ(e.distance, 2);
  EXPECT_EQ(e.kind, 2);
  EXPECT_FALSE(e.bombarding);
}

TEST_F(SetupTest, KindOfShipsInHarbourAgainstLand) {
  // A fleet in a town's harbour (a land hex) against land troops next door.
  Hex[5][5].Land = kUrban;
  const int fleet = Put(red, 5, 5, "Harbour Fleet");
  Give(fleet, 1, destroyer, 3);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  EXPECT_EQ(e.kind, 1);
  EXPECT_FALSE(e.bombarding);
}

TEST_F(SetupTest, KindTitles) {
  EXPECT_EQ(KindTitle(1), "Artillery attack from distance versus Land Unit");
  EXPECT_EQ(KindTitle(2), "Artillery attack from distance versus Sea Unit");
  EXPECT_EQ(KindTitle(3), "Artillery attack from distance versus Air Unit");
  EXPECT_EQ(KindTitle(4), "Land attack versus Land Unit");
  EXPECT_EQ(KindTitle(5), "Land attack versus Sea Unit");
  EXPECT_EQ(KindTitle(6), "Land attack versus Air Unit");
  EXPECT_EQ(KindTitle(7), "Sea Battle");
  EXPECT_EQ(KindTitle(0), "");
}

// ---- The target slot ---------------------------------------------------------------

// Three units on the target; the first draw after seed 12345 is 0.9296:
// floor(0.9296 x 3) + 1 = 3.
TEST_F(SetupTest, TargetSlotIsDrawn) {
  const int second = Rifles(blue, 6, 5, "Second", 5);
  const int third = Rifles(blue, 6, 5, "Third", 5);
  Rifles(red, 5, 5, "A", 10);
  Join(5, 5, 1);
  SeedRnd(12345);
  Engagement e = Engage(1);
  EXPECT_EQ(e.targetSlot, 3);
  EXPECT_EQ(e.target, third);
  // The next draw, 0.8902: slot 3 again; then 0.3164: slot 1.
  e = Engage(1);
  EXPECT_EQ(e.targetSlot, 3);
  e = Engage(1);
  EXPECT_EQ(e.targetSlot, 1);
  EXPECT_EQ(e.target, guard);
  (void)second;
}

TEST_F(SetupTest, DirectFireSeeksTheLastHq) {
  const int shq = Put(blue, 6, 5, "Blue SHQ");
  Unit[shq].Shq = 1;
  Rifles(blue, 6, 5, "Third", 5);
  Rifles(red, 5, 5, "A", 10);
  Join(5, 5, 1);
  for (int i = 0; i < 5; ++i) {
    const Engagement e = Engage(1);
    EXPECT_EQ(e.targetSlot, 2);
    EXPECT_EQ(e.target, shq);
  }
  Unit[Hex[6][5].Unit[3]].Shq = 2;
  EXPECT_EQ(Engage(1).targetSlot, 3);
}

// Guns spare an HQ standing with troops: the draw 0.9296 hits slot 3, the
// SHQ; the highest slot with other troops is 2.
TEST_F(SetupTest, IndirectFireSparesTheHq) {
  Rifles(blue, 6, 5, "Second", 5);
  const int shq = Put(blue, 6, 5, "Blue SHQ");
  Unit[shq].Shq = 1;
  const int battery = Put(red, 4, 5, "Battery");
  Give(battery, 3, longGun, 4);
  Join(4, 5, 1);
  SeedRnd(12345);
  Engagement e = Engage(1);
  EXPECT_EQ(e.targetSlot, 2);
  EXPECT_TRUE(e.bombarding);
  // Alone, the HQ is shelled all the same.
  Hex[6][5].Unit[1] = shq;
  Hex[6][5].Unit[2] = 0;
  Hex[6][5].Unit[3] = 0;
  e = Engage(1);
  EXPECT_EQ(e.target, shq);
}

// ---- Frontage ---------------------------------------------------------------------

// A lone attacker of 20 rifles against 12 rifles and 3 tanks, limit 50,
// a third 16.667. Attacker: infantry 16.667, then one point a round:
// 17.667 with artillery and armour (empty, 0 >= 0) taking 1 each, then
// 18.667 .. 20.667, where 20 < 20.667 stops it.
// Defender: infantry 12, armour 9 < 16.667 goes into the attacker's armour
// frontage; filling: infantry 13, artillery 1, armour 1 .. 10.
TEST_F(SetupTest, FrontageOfALoneAttacker) {
  Give(guard, 1, rifle, 12);
  Give(guard, 4, tank, 3);
  Rifles(red, 5, 5, "A", 20);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.frontLimit, 50);
  EXPECT_NEAR(TheBattle.attInfFront, 20.6667, 1e-3);
  EXPECT_DOUBLE_EQ(TheBattle.attArtFront, 1);
  EXPECT_DOUBLE_EQ(TheBattle.attArmFront, 9);
  EXPECT_DOUBLE_EQ(TheBattle.defInfFront, 13);
  EXPECT_DOUBLE_EQ(TheBattle.defArtFront, 1);
  EXPECT_EQ(TheBattle.defArmFront, 10);
  // All classes fight whole: 8 x 20, 2 x 20; defence 10 x 12 + 8 x 3, 2 x 12 + 12 x 3.
  EXPECT_DOUBLE_EQ(e.softAttack, 160);
  EXPECT_DOUBLE_EQ(e.hardAttack, 40);
  EXPECT_DOUBLE_EQ(e.softDefence, 144);
  EXPECT_DOUBLE_EQ(e.hardDefence, 60);
}

TEST_F(SetupTest, TwentyDirectAttackersGetTwoEach) {
  Rifles(red, 5, 5, "A", 20);
  for (int i = 0; i < 20; ++i) Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.frontLimit, 2);
  // Guns of range 3 are not direct attackers: 19 rifles entries and one battery.
  const int battery = Put(red, 4, 5, "Battery");
  Give(battery, 3, longGun, 2);
  UI.AttackerX[20] = 4;
  e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.frontLimit, 2);  // floor(50 / 19)
  Target(6, 5);
  for (int i = 0; i < 24; ++i) Join(5, 5, 1);
  e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.frontLimit, 2);  // floor(50 / 24)
  Target(6, 5);
  for (int i = 0; i < 26; ++i) Join(5, 5, 1);
  e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.frontLimit, 1);
}

// The defender's armour fills its third: the third is rounded to 17 and
// stored whole. 30 rifles and 10 tanks, lone attacker, limit 50:
// infantry 16.667, armour 17, remaining 16.333; then each round infantry
// and armour rise together (artillery once): 24.667 and 25 when it runs out.
TEST_F(SetupTest, DefenderArmourFrontageIsWhole) {
  Give(guard, 1, rifle, 30);
  Give(guard, 4, tank, 10);
  Rifles(red, 5, 5, "A", 20);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_NEAR(TheBattle.defInfFront, 24.6667, 1e-3);
  EXPECT_EQ(TheBattle.defArmFront, 25);
  // Scales 24.667 / 30 and 25 / 30:
  // soft floor(300 x 0.8222) + floor(80 x 0.8333) = 246 + 66; hard 49 + 100.
  EXPECT_DOUBLE_EQ(e.softDefence, 312);
  EXPECT_DOUBLE_EQ(e.hardDefence, 149);
  EXPECT_DOUBLE_EQ(e.fullSoftDefence, 380);
  EXPECT_DOUBLE_EQ(e.fullHardDefence, 180);
}

// A class that is not worked out again keeps the frontage of the
// engagement before: guns of range 3 never get one of their own.
TEST_F(SetupTest, FrontageCarriesOver) {
  Give(guard, 3, longGun, 4);  // the defender's guns: product 8, range 3
  Rifles(red, 5, 5, "A", 20);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  TheBattle.defArtFront = 4;  // left by an earlier engagement
  WorkFigures(e);
  // Defence of the guns on a front of 4 out of 8: floor(2 x 4 x 0.5), floor(1 x 4 x 0.5).
  EXPECT_DOUBLE_EQ(TheBattle.defArtFront, 4);
  EXPECT_DOUBLE_EQ(e.softDefence, 100 + 4);
  EXPECT_DOUBLE_EQ(e.hardDefence, 20 + 2);
}

// ---- Riders -----------------------------------------------------------------------

// 10 rifles (weight 10) and 2 tanks that carry 20 each: 40 / 10 = 4 riders.
// The tanks' product 6 is below the third: frontage 6, then 7, scale 1.
TEST_F(SetupTest, InfantryRidesInTheArmour) {
  const int a = Rifles(red, 5, 5, "A", 10);
  Give(a, 4, tank, 2);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(e.attRiders, 4);
  // Never more riders than infantry.
  Unit[a].InfQty = 3;
  e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(e.attRiders, 3);
  // The defender's riders ride on its own armour frontage.
  Give(guard, 4, tank, 1);
  e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(e.defRiders, 2);
}

// ---- Initial strengths --------------------------------------------------------------

TEST_F(SetupTest, InitialStrengthsAreWrittenOnceInRoundOne) {
  Rifles(red, 5, 5, "A", 20);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.initialAttacker[1], 200);  // 160 + 40
  EXPECT_EQ(TheBattle.initialDefender[1], 120);  // 100 + 20
  Unit[guard].InfQty = 5;
  WorkFigures(e);
  EXPECT_EQ(TheBattle.initialDefender[1], 120);
  TheBattle.round = 2;
  TheBattle.initialAttacker[1] = 0;
  WorkFigures(e);
  EXPECT_EQ(TheBattle.initialAttacker[1], 0);
}

TEST_F(SetupTest, ShellingWritesNoAttackerStrength) {
  const int battery = Put(red, 4, 5, "Battery");
  Give(battery, 3, longGun, 4);
  Join(4, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_DOUBLE_EQ(e.softAttack, 80);  // 20 x 4
  EXPECT_DOUBLE_EQ(e.softDefence, 0);
  EXPECT_EQ(TheBattle.initialAttacker[1], 0);
  EXPECT_EQ(TheBattle.initialDefender[1], 0);
}

// ---- Leadership, disruption, retreat level ---------------------------------------------

class ChainTest : public SetupTest {
 protected:
  int Officer(int n, int land, int sea, int air, int fame, int retreat) {
    OfficerRec& o = ::mf::Officer[n];
    o.Regime = red;
    o.Land = land;
    o.Sea = sea;
    o.Air = air;
    o.Fame = fame;
    o.Retreat = retreat;
    return n;
  }
};

// own 1 + 5/10 + sqrt(25)/5 = 2.5; THQ 1 + 0.3 = 1.3; SHQ 1 + 0.6 + 10/5 = 3.6.
// M = (7.5 + 2.6 + 3.6) / 6 = 2.2833; L = 1 + 1.2833 / 2 = 1.6417.
TEST_F(ChainTest, LeadershipOfALandUnit) {
  const int shq = Put(red, 1, 1, "SHQ");
  Unit[shq].Shq = 1;
  const int thq = Thq(1, 2, "THQ");
  Unit[thq].Boss = shq;
  const int u = Rifles(red, 5, 5, "A", 10, thq);
  EXPECT_DOUBLE_EQ(Leadership(u), 1.0);
  Unit[u].Officer = Officer(1, 5, 0, 0, 25, 50);
  Unit[thq].Officer = Officer(2, 3, 0, 0, 0, 50);
  Unit[shq].Officer = Officer(3, 6, 0, 0, 100, 50);
  EXPECT_NEAR(Leadership(u), 1.641667, 1e-6);
  // A THQ heads its own chain: its officer is the THQ level.
  // M = (3 + 2.6 + 3.6) / 6 = 1.5333, L = 1.2667.
  EXPECT_NEAR(Leadership(thq), 1.266667, 1e-6);
  // An SHQ leads itself at 1.
  EXPECT_DOUBLE_EQ(Leadership(shq), 1.0);
  // Reporting straight to the SHQ leaves only the unit's own level:
  // M = (7.5 + 2 + 1) / 6 = 1.75, L = 1.375.
  Unit[u].Boss = shq;
  EXPECT_NEAR(Leadership(u), 1.375, 1e-9);
}

// A fleet's SHQ level reads the rating of officer 25 / 10 = 2.5 -> 2 (to
// even), whole: own 1.4, THQ 1.2, SHQ 1 + 3 + sqrt(16) / 5 = 4.8.
// M = (4.2 + 2.4 + 4.8) / 6 = 1.9, L = 1.45.
TEST_F(ChainTest, LeadershipOfAFleetReadsAnotherOfficer) {
  const int shq = Put(red, 1, 1, "SHQ");
  Unit[shq].Shq = 1;
  const int thq = Thq(1, 2, "THQ");
  Unit[thq].Boss = shq;
  const int fleet = Put(red, 1, 3, "Fleet");
  Give(fleet, 1, destroyer, 3);
  Unit[fleet].Boss = thq;
  Unit[fleet].Officer = Officer(1, 0, 4, 0, 0, 50);
  Unit[thq].Officer = Officer(5, 9, 2, 0, 0, 50);
  Officer(2, 0, 3, 0, 0, 50);
  Unit[shq].Officer = Officer(25, 0, 7, 0, 16, 50);
  EXPECT_NEAR(Leadership(fleet), 1.45, 1e-9);
}

TEST_F(ChainTest, Disruption) {
  const int shq = Put(red, 1, 1, "SHQ");
  Unit[shq].Shq = 1;
  const int thq = Thq(1, 2, "THQ");
  Unit[thq].Boss = shq;
  const int u = Rifles(red, 5, 5, "A", 10, thq);
  Unit[u].Disruption = 30;
  Unit[thq].Disruption = 60;
  Unit[shq].Disruption = 90;
  EXPECT_DOUBLE_EQ(DisruptionFactor(u), 0.5);      // (90 + 120 + 90) / 6 = 50
  EXPECT_DOUBLE_EQ(DisruptionFactor(thq), 0.3);    // (120 + 90) / 3 = 70
  EXPECT_DOUBLE_EQ(DisruptionFactor(shq), 1 - 0.9);
  Unit[u].Boss = 0;
  EXPECT_DOUBLE_EQ(DisruptionFactor(u), 0.85);     // 90 / 6 = 15, nothing renormalised
  Unit[thq].Disruption = 100;
  Unit[shq].Disruption = 100;
  EXPECT_DOUBLE_EQ(DisruptionFactor(thq), 0.0);
}

TEST_F(ChainTest, OfficerRetreatLevel) {
  const int shq = Put(red, 1, 1, "SHQ");
  Unit[shq].Shq = 1;
  const int thq = Thq(1, 2, "THQ");
  Unit[thq].Boss = shq;
  const int u = Rifles(red, 5, 5, "A", 10, thq);
  EXPECT_EQ(OfficerRetreatLevel(u), 50);
  EXPECT_EQ(OfficerRetreatLevel(shq), 0);
  Unit[shq].Officer = Officer(3, 5, 5, 5, 0, 60);
  EXPECT_EQ(OfficerRetreatLevel(shq), 60);
  EXPECT_EQ(OfficerRetreatLevel(u), 60);  // own and THQ take the SHQ's 60
  Unit[thq].Officer = Officer(2, 5, 5, 5, 0, 30);
  Unit[shq].Officer = Officer(3, 5, 5, 5, 0, 80);
  EXPECT_EQ(OfficerRetreatLevel(u), 38);  // (90 + 60 + 80) / 6 = 38.3
  Unit[u].Officer = Officer(1, 5, 5, 5, 0, 90);
  Unit[thq].Officer = Officer(2, 5, 5, 5, 0, 60);
  Unit[shq].Officer = Officer(3, 5, 5, 5, 0, 30);
  EXPECT_EQ(OfficerRetreatLevel(u), 70);  // (270 + 120 + 30) / 6
  Unit[thq].Officer = 0;
  Unit[shq].Officer = 0;
  Unit[u].Officer = Officer(1, 5, 5, 5, 0, 40);
  EXPECT_EQ(OfficerRetreatLevel(u), 41);  // (120 + 80 + 50) / 6 = 41.7
}

// ---- Modifiers and the log of an engagement ---------------------------------------------

// 24 rifles (soft 192, hard 48) at readiness 81, experience 75, an officer
// of land 5 (L = 1.125) and disruption 30 (D = 0.85), into a forest:
//   soft 155.52 -> 155, x 0.75 -> 116, x 1.125 -> 130, x 0.85 -> 110
//   hard 38.88 -> 38, 28.5 -> 28, 31.5 -> 31, 26.35 -> 26, x 1.0
// 10 rifles defending (soft 100, hard 20) at experience 120, readiness 90:
//   soft 120, 108, x 1.3 = 140.4, -> 140; hard 24, 21.6 -> 21.
TEST_F(ChainTest, ModifiersInTheirOrder) {
  Hex[6][5].Land = kForest;
  const int a = Rifles(red, 5, 5, "Red Rifles", 24);
  Unit[a].Readiness = 81;
  Unit[a].Experience = 75;
  Unit[a].Disruption = 30;
  Unit[a].Officer = Officer(1, 5, 0, 0, 0, 50);
  Unit[guard].Experience = 120;
  Unit[guard].Readiness = 90;
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  ApplyModifiers(e);
  EXPECT_DOUBLE_EQ(e.softAttack, 110);
  EXPECT_DOUBLE_EQ(e.hardAttack, 26);
  EXPECT_DOUBLE_EQ(e.softDefence, 140);
  EXPECT_DOUBLE_EQ(e.hardDefence, 21);
  TheBattleWindow().lines.clear();
  LogEngagement(e);
  const std::vector<std::string> expected = {
      "GENERAL:",
      "FrontSize Limit: 50",
      " ",
      "ATTACKER:",
      "Readiness Mod:      -19%",
      "Experience Mod:     -25%",
      "Leadership Mod:     12%",
      "Disruption Mod:     -15%",
      "Land Type Hard Mod: 0%",
      "SOFT ATTACK:        110",
      "HARD ATTACK:        26",
      " ",
      "DEFENDER:",
      "Readiness Mod:      -10%",
      "Experience Mod:     20%",
      "Leadership Mod:     0%",
      "Disruption Mod:     0%",
      "Land Type Soft Mod: 30%",
      "SOFT DEFENSE:        140",
      "HARD DEFENSE:        21",
      " ",
      "COMBAT ROUND  1 RESULT:",
  };
  EXPECT_EQ(Log(), expected);

  // Under fog of war the defender's four modifier lines go; its totals stay.
  Game.FogOfWar = 1;
  TheBattleWindow().lines.clear();
  LogEngagement(e);
  const std::vector<std::string> fogged = {
      "GENERAL:",           "FrontSize Limit: 50",      " ",
      "ATTACKER:",          "Readiness Mod:      -19%", "Experience Mod:     -25%",
      "Leadership Mod:     12%", "Disruption Mod:     -15%", "Land Type Hard Mod: 0%",
      "SOFT ATTACK:        110", "HARD ATTACK:        26", " ",
      "DEFENDER:",          "Land Type Soft Mod: 30%",  "SOFT DEFENSE:        140",
      "HARD DEFENSE:        21", " ",                    "COMBAT ROUND  1 RESULT:",
  };
  EXPECT_EQ(Log(), fogged);
}

// River and entrenchment on the same side: soft 45 (5 men of soft attack 9)
// x 0.3 = 13.5, not floored, then floor(13.5 x 0.9) = 12 (flooring first
// would give 11).
TEST_F(SetupTest, RiverThenEntrenchmentOnOneSide) {
  const int strong = NewType("Storm Troops", kLandTheater, 1);
  SetAttr(strong, {{kSoftAttack, 9}, {kHardAttack, 3}, {kHitPoints, 40}, {kFrontsize, 1}, {kWeight, 10}});
  const int a = Put(red, 5, 5, "Storm");
  Give(a, 1, strong, 5);
  Hex[6][5].River[6] = 1;
  Hex[6][5].Entrench[6] = 1;
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  ApplyModifiers(e);
  EXPECT_DOUBLE_EQ(e.softAttack, 12);
  EXPECT_DOUBLE_EQ(e.hardAttack, 4);  // 15 x 0.3 = 4.5 -> floor(4.05)
  EXPECT_EQ(e.riverShown, -70);
  EXPECT_EQ(e.entrenchShown, -10);
  TheBattleWindow().lines.clear();
  LogEngagement(e);
  const auto from = LogFrom("Land Type Hard Mod: 0%", 5);
  const std::vector<std::string> expected = {"Land Type Hard Mod: 0%", "River penalty Mod:  -70%",
                                             "Enemy Entrench Penalty: -10%", "SOFT ATTACK:        12",
                                             "HARD ATTACK:        4"};
  EXPECT_EQ(from, expected);
}

// A river on another side, or a sea target, is no obstacle.
TEST_F(SetupTest, RiverOnlyOnTheAttackersSide) {
  Rifles(red, 5, 5, "A", 20);
  Hex[6][5].River[1] = 1;
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  ApplyModifiers(e);
  EXPECT_DOUBLE_EQ(e.softAttack, 160);
  EXPECT_EQ(e.riverShown, 0);
}

// Two sides, two units of one boss: n = 1 + 1, and the whole term
// floor(soft x 1.3) is added on top: 160 + 208 = 368, 40 + 52 = 92. The log
// shows only the increase of each: 15% and 15%.
TEST_F(SetupTest, TacticalBonusMoreThanDoubles) {
  const int hq = Thq(1, 1, "Red THQ");
  Rifles(red, 5, 5, "A", 20, hq);
  Hex[6][4].Owner = red;
  Rifles(red, 6, 4, "B", 20, hq);
  Join(5, 5, 1);
  Join(6, 4, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_EQ(TheBattle.frontLimit, 25);
  const double soft = e.softAttack, hard = e.hardAttack;
  ApplyModifiers(e);
  EXPECT_DOUBLE_EQ(e.softAttack, soft + std::floor(soft * 1.3));
  EXPECT_DOUBLE_EQ(e.hardAttack, hard + std::floor(hard * 1.3));
  EXPECT_EQ(e.tacticalShown, 15);
  EXPECT_EQ(e.coordinationShown, 15);
}

// Defence line 2 and coordination 2: n = 2 at half the rate, 1.15. The
// defender, 19 rifles on a frontage of 19.33, defends with 190:
// 190 + floor(218.5) = 408.
TEST_F(SetupTest, DefenceLineBonus) {
  Give(guard, 1, rifle, 19);
  Rifles(blue, 7, 5, "Blue Reserve", 20);
  const int hq = Thq(1, 1, "Red THQ");
  Rifles(red, 5, 5, "A", 20, hq);
  Hex[6][4].Owner = red;
  Rifles(red, 6, 4, "B", 20, hq);
  Join(5, 5, 1);
  Join(6, 4, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_DOUBLE_EQ(e.softDefence, 190);
  ApplyModifiers(e);
  EXPECT_DOUBLE_EQ(e.softDefence, 408);
  EXPECT_EQ(e.lineShown, 7);
  EXPECT_EQ(e.defCoordinationShown, 7);
  TheBattleWindow().lines.clear();
  LogEngagement(e);
  EXPECT_TRUE(LogHas("Defensive line Bonus: 7%"));
  EXPECT_EQ(LogCount("Coordination Bonus: 7%"), 1);
  EXPECT_EQ(LogCount("Coordination Bonus: 15%"), 1);
}

// Shells meet the weakest fortification of all six sides: levels 3 and 1,
// rows 123 (40) and 121 (90): 40 counts. 4 long guns: 80, floor(80 x 0.4).
TEST_F(SetupTest, FortificationsAgainstShells) {
  Hex[6][5].Entrench[2] = 3;
  Hex[6][5].Entrench[4] = 1;
  const int battery = Put(red, 4, 5, "Battery");
  Give(battery, 3, longGun, 4);
  Join(4, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  TheBattleWindow().lines.clear();
  ApplyModifiers(e);
  EXPECT_DOUBLE_EQ(e.softAttack, 32);
  EXPECT_EQ(Log(), std::vector<std::string>{"Fortifications give defender 60% protection."});
  // A shelling engagement logs no figures, only the round's result heading.
  TheBattleWindow().lines.clear();
  LogEngagement(e);
  EXPECT_EQ(Log(), (std::vector<std::string>{" ", "COMBAT ROUND  1 RESULT:"}));
}

// Ships in a harbour shoot a third as well; the hex looked at is the one
// selected at the moment.
TEST_F(SetupTest, ShipsInAnUrbanHexShootAThird) {
  Hex[5][5].Land = kSea;
  const int fleet = Put(red, 5, 5, "Fleet");
  Give(fleet, 1, destroyer, 3);
  Join(5, 5, 1);
  Engagement e = Engage(1);
  WorkFigures(e);
  EXPECT_DOUBLE_EQ(e.softAttack, 30);
  Hex[2][2].Land = kUrban;
  UI.SelX = 2;
  UI.SelY = 2;
  WorkFigures(e);
  EXPECT_NEAR(e.softAttack, 9.9, 1e-9);
}

}  // namespace
}  // namespace mf::test
