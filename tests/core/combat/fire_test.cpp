// The fire of one engagement: casualty counts, the four lines of a land
// fight with frontage and riders, shelling by target theater, fights against
// ships and aircraft, and the sea battle with its submarines.
#include "combat_test_util.h"

namespace mf::test {
namespace {

class FireTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    TheBattle = BattleState{};
    TheBattle.tx = 6;
    TheBattle.ty = 5;
    TheBattle.round = 1;
    TheBattleWindow().lines.clear();
  }
  static Engagement Shot(int attacker, int target, int kind) {
    Engagement e;
    e.index = 1;
    e.attacker = attacker;
    e.target = target;
    e.targetSlot = 1;
    e.kind = kind;
    e.bombarding = kind <= 3;
    return e;
  }
  static void SkipDraws(int n) {
    for (int i = 0; i < n; ++i) Rnd();
  }
};

// ---- The casualty count ---------------------------------------------------------

// Draws after seed 12345: 0.9296 0.8902 0.3164 0.1307 0.1839 ...
TEST_F(FireTest, ASmallFireIsAChanceOfOneHit) {
  SeedRnd(12345);
  EXPECT_EQ(CasualtyCount(5, 1, 20), 0);  // 0.25 is not above 0.9296
  SeedRnd(12345);
  SkipDraws(3);
  EXPECT_EQ(CasualtyCount(5, 1, 20), 1);  // 0.25 is above 0.1307
  // A whole hit needs no draw.
  SeedRnd(12345);
  EXPECT_EQ(CasualtyCount(130, 2, 40), 1);  // floor(65 / 40)
  EXPECT_FLOAT_EQ(Rnd(), 0.9296160f);
  // The chance is that of the undivided fire: 30 / 40 = 0.75 against
  // 0.3164, although 30 / 3 / 40 = 0.25 would not have hit.
  SeedRnd(12345);
  SkipDraws(2);
  EXPECT_EQ(CasualtyCount(30, 3, 40), 1);
}

TEST_F(FireTest, TheChanceOfOneHitIsFireOverHitPoints) {
  SeedRnd(99);
  int hits = 0;
  const int trials = 20000;
  for (int i = 0; i < trials; ++i) hits += static_cast<int>(CasualtyCount(5, 1, 20));
  EXPECT_NEAR(static_cast<double>(hits) / trials, 0.25, 0.01);
}

// ---- A land fight -----------------------------------------------------------------

class LandFireTest : public FireTest {
 protected:
  void SetUp() override {
    FireTest::SetUp();
    attacker = Put(red, 5, 5, "Red Rifles");
    Give(attacker, 1, rifle, 10);
    Give(attacker, 2, truck, 3);
    Give(attacker, 3, fieldGun, 2);
    Give(attacker, 4, tank, 2);
    target = Put(blue, 6, 5, "Blue Rifles");
    Give(target, 1, rifle, 20);
    Give(target, 2, truck, 4);
    Give(target, 4, tank, 3);
    // Frontages wide enough not to bind.
    TheBattle.attInfFront = 20;
    TheBattle.defInfFront = 20;
    TheBattle.attArmFront = 10;
    TheBattle.defArmFront = 10;
  }
  int attacker = 0, target = 0;
};

// Soft 130 on rifles of 40: 3; soft defence 90: 2; hard 130 on tanks of 60:
// 2; hard defence 70: 1. Trucks and guns are not hit.
TEST_F(LandFireTest, FourLinesOfFire) {
  Engagement e = Shot(attacker, target, 4);
  e.softAttack = 130;
  e.softDefence = 90;
  e.hardAttack = 130;
  e.hardDefence = 70;
  Fire(e);
  const std::vector<std::string> expected = {"Defender lost  3 infantry.", "Attacker lost  2 infantry.",
                                             "Defender lost  2 armour.", "Attacker lost  1 armour."};
  EXPECT_EQ(Log(), expected);
  EXPECT_EQ(Unit[target].InfQty, 17);
  EXPECT_EQ(Unit[attacker].InfQty, 8);
  EXPECT_EQ(Unit[target].ArmQty, 1);
  EXPECT_EQ(Unit[attacker].ArmQty, 1);
  EXPECT_EQ(Unit[target].MobQty, 4);
  EXPECT_EQ(Unit[attacker].MobQty, 3);
  EXPECT_EQ(Unit[attacker].ArtQty, 2);
  EXPECT_EQ(AttackerLost[1], 2);
  EXPECT_EQ(AttackerLost[4], 1);
  EXPECT_EQ(DefenderLost[1], 3);
  EXPECT_EQ(DefenderLost[4], 2);
}

// Armour riders: 10 lost with 4 riders gives 6; 3 lost with 4 gives 0.
TEST_F(LandFireTest, RidersAreSpared) {
  Engagement e = Shot(attacker, target, 4);
  e.attRiders = 4;
  e.softDefence = 400;  // 400 / 40 = 10
  Fire(e);
  EXPECT_EQ(Log()[1], "Attacker lost  6 infantry.");
  EXPECT_EQ(Unit[attacker].InfQty, 4);
  TheBattleWindow().lines.clear();
  Unit[attacker].InfQty = 10;
  e.softDefence = 120;  // 3
  Fire(e);
  EXPECT_EQ(Log()[1], "Attacker lost  0 infantry.");
  EXPECT_EQ(Unit[attacker].InfQty, 10);
}

// The frontage caps the count: 10 hits on a front of 4.5 men are 4; an
// armour front of 5 with tanks of frontsize 3 stops at floor(5 / 3) = 1.
TEST_F(LandFireTest, FrontageCapsTheCount) {
  Engagement e = Shot(attacker, target, 4);
  e.softAttack = 400;
  e.hardAttack = 300;
  TheBattle.defInfFront = 4.5;
  TheBattle.defArmFront = 5;
  Fire(e);
  EXPECT_EQ(Log()[0], "Defender lost  4 infantry.");
  EXPECT_EQ(Log()[2], "Defender lost  1 armour.");
}

// Soft attack 5 on conscripts of 20 hit points: one man with chance 5/20,
// and a front of 0 cuts him away again; a front of half a man gives him back
// with chance 0.5. The attacker has only tanks, so the first line's draws
// come first: skipped three, 0.1307 hits, then 0.1839 is the frontage draw.
TEST_F(FireTest, AFrontOfNothingCutsTheLuckyHitAway) {
  const int conscripts = NewType("Conscripts", kLandTheater, 1);
  SetAttr(conscripts, {{kHitPoints, 20}, {kFrontsize, 1}, {kWeight, 10}});
  const int a = Put(red, 5, 5, "Red Tanks");
  Give(a, 4, tank, 2);
  const int t = Put(blue, 6, 5, "Blue Conscripts");
  Give(t, 1, conscripts, 10);
  Engagement e = Shot(a, t, 4);
  e.softAttack = 5;
  TheBattle.defInfFront = 0;
  SeedRnd(12345);
  SkipDraws(3);
  Fire(e);
  EXPECT_EQ(Log()[0], "Defender lost  0 infantry.");
  TheBattleWindow().lines.clear();
  TheBattle.defInfFront = 0.5;
  SeedRnd(12345);
  SkipDraws(3);
  Fire(e);
  EXPECT_EQ(Log()[0], "Defender lost  1 infantry.");
  EXPECT_EQ(Unit[t].InfQty, 9);
}

// ---- Shelling -----------------------------------------------------------------------

// Four classes share 960: 240 each. Rifles 240 / 40 = 6, trucks 240 / 20 =
// 12 of 5, guns 240 / 30 = 8, tanks 240 / (2 x 60) = 2.
TEST_F(FireTest, ShellingLandTroops) {
  const int a = Put(red, 4, 5, "Red Battery");
  Give(a, 3, longGun, 4);
  const int t = Put(blue, 6, 5, "Blue Column");
  Give(t, 1, rifle, 20);
  Give(t, 2, truck, 5);
  Give(t, 3, fieldGun, 10);
  Give(t, 4, tank, 5);
  Engagement e = Shot(a, t, 1);
  e.softAttack = 960;
  Fire(e);
  const std::vector<std::string> expected = {"Defender lost  6 infantery.", "Defender lost  5 trucks.",
                                             "Defender lost  8 artillery.", "Defender lost  2 armour."};
  EXPECT_EQ(Log(), expected);
  EXPECT_EQ(Unit[a].ArtQty, 4);  // shelling is never answered
  EXPECT_EQ(DefenderLost[3], 8);
}

// Submarines cannot be shelled: the fire of 400 is shared by the two other
// classes only. Warships 200 / 50 = 4, cargo ships 200 / 40 = 5 of 4.
TEST_F(FireTest, ShellingShips) {
  const int a = Put(red, 4, 5, "Red Battery");
  Give(a, 3, longGun, 4);
  Hex[6][5].Land = kSea;
  const int t = Put(blue, 6, 5, "Blue Squadron");
  Give(t, 1, destroyer, 5);
  Give(t, 2, cargoShip, 4);
  Give(t, 4, sub, 3);
  Engagement e = Shot(a, t, 2);
  e.softAttack = 400;
  Fire(e);
  const std::vector<std::string> expected = {"Defender lost  4 warships.", "Defender lost  4 cargoships."};
  EXPECT_EQ(Log(), expected);
  EXPECT_EQ(Unit[t].ArmQty, 3);
  EXPECT_EQ(DefenderLost[5], 4);
  EXPECT_EQ(DefenderLost[6], 4);
}

// The divider for aircraft: fighters with bombers alone count 1, so each
// class takes the whole 120: fighters 120 / 20 = 6, bombers 120 / 30 = 4.
TEST_F(FireTest, ShellingAircraft) {
  const int a = Put(red, 4, 5, "Red Battery");
  Give(a, 3, longGun, 4);
  const int t = Put(blue, 6, 5, "Blue Wing");
  Give(t, 1, fighter, 10);
  Give(t, 3, bomber, 5);
  Engagement e = Shot(a, t, 3);
  e.softAttack = 120;
  Fire(e);
  EXPECT_EQ(Log(), (std::vector<std::string>{"Defender lost  6 fighters.", "Defender lost  4 bombers."}));
  // With transports beside the bombers the divider is 2: 60 / 30 = 2
  // bombers, 60 / 25 = 2 transports; with all three it is 3.
  TheBattleWindow().lines.clear();
  Unit[t].InfType = 0;
  Unit[t].InfQty = 0;
  Give(t, 2, airlifter, 5);
  Give(t, 3, bomber, 5);
  Fire(e);
  EXPECT_EQ(Log(), (std::vector<std::string>{"Defender lost  2 transporters.", "Defender lost  2 bombers."}));
  TheBattleWindow().lines.clear();
  Give(t, 1, fighter, 5);
  Give(t, 2, airlifter, 5);
  Give(t, 3, bomber, 5);
  e.softAttack = 240;  // 80 each: 80 / 20 = 4 fighters, 80 / 25 = 3 transports, 80 / 30 = 2 bombers
  Fire(e);
  EXPECT_EQ(Log(), (std::vector<std::string>{"Defender lost  4 fighters.", "Defender lost  3 transporters.",
                                             "Defender lost  2 bombers."}));
}

// ---- Land troops against ships in harbour and aircraft on the ground -------------------

TEST_F(FireTest, LandTroopsAgainstShipsInHarbour) {
  const int a = Put(red, 5, 5, "Red Rifles");
  Give(a, 1, rifle, 10);
  const int t = Put(blue, 6, 5, "Blue Squadron");
  Give(t, 1, destroyer, 4);
  Give(t, 4, sub, 2);
  Engagement e = Shot(a, t, 5);
  e.softAttack = 200;  // two classes: 100 each; 100 / 50 = 2 warships, 100 / 30 = 3 of 2 subs
  e.softDefence = 999;  // ships in harbour do not fire back at troops
  Fire(e);
  EXPECT_EQ(Log(), (std::vector<std::string>{"Defender lost  2 warships.", "Defender lost  2 subs."}));
  EXPECT_EQ(Unit[a].InfQty, 10);
}

TEST_F(FireTest, LandTroopsAgainstAircraftOnTheGround) {
  const int a = Put(red, 5, 5, "Red Rifles");
  Give(a, 1, rifle, 10);
  const int t = Put(blue, 6, 5, "Blue Wing");
  Give(t, 1, fighter, 5);
  Give(t, 2, airlifter, 3);
  Engagement e = Shot(a, t, 6);
  e.softAttack = 100;  // 50 each: 2 fighters, 2 transports
  Fire(e);
  EXPECT_EQ(Log(), (std::vector<std::string>{"Defender lost  2 fighters.", "Defender lost  2 transporters."}));
}

// ---- The sea battle ---------------------------------------------------------------------

class SeaFireTest : public FireTest {
 protected:
  void SetUp() override {
    FireTest::SetUp();
    Hex[5][5].Land = kSea;
    Hex[6][5].Land = kSea;
    fleet = Put(red, 5, 5, "Red Fleet");
    Give(fleet, 1, destroyer, 4);
    Give(fleet, 4, sub, 2);
    convoy = Put(blue, 6, 5, "Blue Convoy");
    Give(convoy, 4, sub, 3);
  }
  int fleet = 0, convoy = 0;
};

// Subs of skill 100 always slip away, and the line still says 0.
TEST_F(SeaFireTest, MasterfulSubsAlwaysEvade) {
  Type[sub].Attr[kSubskills] = 100;
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    SeedRnd(seed);
    TheBattleWindow().lines.clear();
    Engagement e = Shot(fleet, convoy, 7);
    e.softAttack = 900;  // 30 hits on subs of 30 hit points
    Fire(e);
    ASSERT_GE(Log().size(), 2u);
    EXPECT_EQ(Log()[0], "Defending subs evade attacks...");
    EXPECT_EQ(Log()[1], "Defender lost  0 subs.");
  }
  EXPECT_EQ(Unit[convoy].ArmQty, 3);
  // Evasion is logged although nothing would have hit.
  TheBattleWindow().lines.clear();
  Engagement e = Shot(fleet, convoy, 7);
  Fire(e);
  EXPECT_EQ(Log()[0], "Defending subs evade attacks...");
}

// Both sides fire. The convoy's soft defence 100 falls on the fleet's two
// classes: 50 / 50 = 1 warship; subs 50 / 30 = 1, and with subskills 0 they
// never evade. The line of the attacker's subs names the defender.
TEST_F(SeaFireTest, BothSidesFire) {
  Type[sub].Attr[kSubskills] = 0;
  Engagement e = Shot(fleet, convoy, 7);
  e.softAttack = 60;   // one class: 60 / 30 = 2 subs
  e.softDefence = 100;
  Fire(e);
  const std::vector<std::string> expected = {"Defender lost  2 subs.", "Attacker lost  1 warships.",
                                             "Defender lost  1 subs."};
  EXPECT_EQ(Log(), expected);
  EXPECT_EQ(Unit[convoy].ArmQty, 1);
  EXPECT_EQ(Unit[fleet].InfQty, 3);
  EXPECT_EQ(Unit[fleet].ArmQty, 1);
  EXPECT_EQ(AttackerLost[5], 1);
  EXPECT_EQ(AttackerLost[8], 1);
  EXPECT_EQ(DefenderLost[8], 2);
  EXPECT_EQ(Regime[blue].Kills[5], 1);

  Type[sub].Attr[kSubskills] = 100;
  TheBattleWindow().lines.clear();
  Fire(e);
  const std::vector<std::string> evaded = {"Defending subs evade attacks...", "Defender lost  0 subs.",
                                           "Attacker lost  1 warships.", "Attacking subs evade defensive attacks...",
                                           "Defender lost  0 subs."};
  EXPECT_EQ(Log(), evaded);
}

// A lost cargo ship puts the cargo to the test.
TEST_F(SeaFireTest, ShipsThatSinkTakeCargoWithThem) {
  Give(convoy, 2, cargoShip, 2);
  const int marines = world::AddUnit(blue, 9, 9, "Blue Marines");
  Hex[9][9].Unit[1] = 0;
  Give(marines, 1, rifle, 15);  // 150 on 200
  Unit[convoy].Cargo = marines;
  Engagement e = Shot(fleet, convoy, 7);
  e.softAttack = 160;  // two classes: 80 / 40 = 2 cargo ships; 80 / 30 = 2 subs
  Type[sub].Attr[kSubskills] = 0;
  Fire(e);
  EXPECT_EQ(Unit[convoy].MobQty, 0);
  EXPECT_EQ(Unit[marines].Regime, 0);
  EXPECT_EQ(Unit[convoy].Cargo, 0);
  EXPECT_EQ(DefenderLost[1], 15);
}

}  // namespace
}  // namespace mf::test
