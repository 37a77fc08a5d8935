// Whole battles, seeded, checked line by line against logs worked out by hand.
// The unit types cost nothing, so every loss takes its five draws (four
// chances at zero points and the fame draw) without moving experience or
// readiness; only the draws named in each comment decide anything.
//
// Draws after seed 12345:
//    1 0.9296   2 0.8902   3 0.3164   4 0.1307   5 0.1839   6 0.0398
//    7 0.2046   8 0.8264   9 0.5677  10 0.5321  11 0.5955  12 0.9563
//   13 0.9645  14 0.4619  15 0.6532  16 0.9237  17 0.7489  18 0.3739
//   19 0.6536  20 0.1550  21 0.7477  22 0.8923  23 0.9613  24 0.0268
//   25 0.0084  26 0.2915  27 0.1064  28 0.3987  29 0.2987  30 0.8073
#include "combat_test_util.h"
#include "engine/news.h"
#include "model/arith.h"
#include "model/invariants.h"

namespace mf::test {
namespace {

class BattleTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    Game.FogOfWar = 0;
    // The table above is what the generator gives; the tests rest on it.
    const std::vector<float> table = {0.9296, 0.8902, 0.3164, 0.1307, 0.1839, 0.0398, 0.2046, 0.8264,
                                      0.5677, 0.5321, 0.5955, 0.9563, 0.9645, 0.4619, 0.6532, 0.9237,
                                      0.7489, 0.3739, 0.6536, 0.1550, 0.7477, 0.8923, 0.9613, 0.0268,
                                      0.0084, 0.2915, 0.1064, 0.3987, 0.2987, 0.8073};
    const std::vector<float> draws = DrawsAfterSeed(12345, static_cast<int>(table.size()));
    for (std::size_t i = 0; i < table.size(); ++i) EXPECT_NEAR(draws[i], table[i], 0.00006) << "draw " << i + 1;
  }
  static std::vector<std::string> Neutral(const std::string& side) {
    return {side,
            "Readiness Mod:      0%",
            "Experience Mod:     0%",
            "Leadership Mod:     0%",
            "Disruption Mod:     0%"};
  }
  static void Add(std::vector<std::string>& log, const std::vector<std::string>& lines) {
    log.insert(log.end(), lines.begin(), lines.end());
  }
};

// Red attacks Blue's guard of 20 rifles and 2 tanks on (6, 5) from two
// sides in one round: 24 rifles from the west (side 6) across a river, and
// 10 rifles with 4 tanks from the north-west (side 1) against a level-1
// fortification. Both units serve one THQ: two sides, coordination 2, n = 2.
//
// Direct attackers 2: frontage limit floor(50 / 2) = 25, a third 8.333.
//
// Red Rifles: infantry 8.333, filled to 23.333 (artillery and armour, empty,
// take 1 each); scale 23.333 / 24: soft floor(186.67) = 186, hard 46.
// The guard: infantry 8.333 filled to 17.333; its 2 tanks (6 < 8.333) write
// 6 into the attacker's armour frontage; its own armour fills to 7.
// Defence floor(200 x 17.333 / 20) + 16 = 189, floor(34.67) + 24 = 58.
// River x 0.3: 55.8 and 13.8; tactical: 55.8 + floor(55.8 x 1.3) = 127.8,
// 13.8 + floor(17.94) = 30.8.
// Fire: 127.8 / 40 = 3 rifles, all spared as riders of the guard's tanks
// (20 x 2 / 10 = 4); 189 / 40 = 4 of Red's rifles; 30.8 / 60 is a chance
// of 0.513 on draw 13 (0.9645): none. Red Rifles has no armour.
//
// Red Armour: infantry 8.333 filled to 10.333, armour 8.333 filled to
// 12.333, then cut to 6 by the guard's tanks again: scale 0.5 for the tanks.
// Soft 80 + floor(6 x 4 x 0.5) = 92, hard 20 + 20 = 40; tactical 92 + 119 =
// 211 and 40 + 52 = 92; fortification x 0.9: 189 and 82.
// The guard: infantry 8.333 filled to 18.333 (its armour keeps 7, as
// 6 < 7): floor(183.3) + 16 = 199, floor(36.7) + 24 = 60.
// Fire: 189 / 40 = 4 rifles, spared as riders; 199 / 40 = 4, spared by Red
// Armour's riders (20 x 4 x 0.5 / 10 = 4); 82 / 60 = 1 tank; 60 / 60 = 1 tank.
TEST_F(BattleTest, LandAttackFromTwoSidesOverARiverAndAFortification) {
  EngineVar[533].Value = 0;
  const int hq = Put(red, 1, 1, "Red Command");
  Unit[hq].Thq = 1;
  const int rifles = Put(red, 5, 5, "Red Rifles");
  Give(rifles, 1, rifle, 24);
  Unit[rifles].Boss = hq;
  Hex[6][4].Owner = red;
  const int armour = Put(red, 6, 4, "Red Armour");
  Give(armour, 1, rifle, 10);
  Give(armour, 4, tank, 4);
  Unit[armour].Boss = hq;
  const int guard = Put(blue, 6, 5, "Blue Guard");
  Give(guard, 1, rifle, 20);
  Give(guard, 4, tank, 2);
  Hex[6][5].River[6] = 1;
  Hex[6][5].Entrench[1] = 1;
  Target(6, 5);
  Join(5, 5, 1);
  Join(6, 4, 1);
  SeedRnd(12345);
  doAttack();

  std::vector<std::string> log = {"Initiating Battle", "", "______________________________Battle Round  1", "",
                                  "_____________Red Rifles Engages Blue Guard", "", "Land attack versus Land Unit",
                                  "GENERAL:", "FrontSize Limit: 25", " "};
  Add(log, Neutral("ATTACKER:"));
  Add(log, {"Land Type Hard Mod: 0%", "River penalty Mod:  -70%", "Tactical Bonus Mod: 15%",
            "Coordination Bonus: 15%", "SOFT ATTACK:        127.8", "HARD ATTACK:        30.8", " "});
  Add(log, Neutral("DEFENDER:"));
  Add(log, {"Land Type Soft Mod: 0%", "SOFT DEFENSE:        189", "HARD DEFENSE:        58", " ",
            "COMBAT ROUND  1 RESULT:", "Defender lost  0 infantry.", "Attacker lost  4 infantry.",
            "Defender lost  0 armour.",
            "_____________Red Armour Engages Blue Guard", "", "Land attack versus Land Unit", "GENERAL:",
            "FrontSize Limit: 25", " "});
  Add(log, Neutral("ATTACKER:"));
  Add(log, {"Land Type Hard Mod: 0%", "Tactical Bonus Mod: 15%", "Coordination Bonus: 15%",
            "Enemy Entrench Penalty: -10%", "SOFT ATTACK:        189", "HARD ATTACK:        82", " "});
  Add(log, Neutral("DEFENDER:"));
  Add(log, {"Land Type Soft Mod: 0%", "SOFT DEFENSE:        199", "HARD DEFENSE:        60", " ",
            "COMBAT ROUND  1 RESULT:", "Defender lost  0 infantry.", "Attacker lost  0 infantry.",
            "Defender lost  1 armour.", "Attacker lost  1 armour.", " ", "ATTACKER lost:", "Infantery: 4",
            "Armour: 1", " ", "DEFENDER lost:", "Armour: 1"});
  EXPECT_EQ(Log(), log);

  EXPECT_EQ(Unit[rifles].InfQty, 20);
  EXPECT_EQ(Unit[armour].InfQty, 10);
  EXPECT_EQ(Unit[armour].ArmQty, 3);
  EXPECT_EQ(Unit[guard].InfQty, 20);
  EXPECT_EQ(Unit[guard].ArmQty, 1);
  // Nobody broke off or fled: 20 rifles are 200 of 240; the guard stands at
  // 260 of 280.
  EXPECT_EQ(UI.AttackerCount, 2);
  EXPECT_EQ(Hex[6][5].Unit[1], guard);
  EXPECT_EQ(Hex[6][5].Owner, blue);
  EXPECT_EQ(Unit[rifles].MP, 10);  // a one-round battle never reaches the MP charge
  // Blue's report: Red's losses are its kills, its own tank its loss; its
  // map shows the attacks from sides 6 and 1.
  EXPECT_EQ(Regime[blue].Kills[1], 4);
  EXPECT_EQ(Regime[blue].Kills[4], 1);
  EXPECT_EQ(Regime[blue].Losses[4], 1);
  EXPECT_EQ(News[blue][1].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][1].Mark, 6);
  EXPECT_EQ(News[blue][2].Mark, 1);
  EXPECT_EQ(News[blue][3].Type, 0);
  EXPECT_EQ(CheckInvariants(), "");
}

// A battery of 6 long guns (20 each) at readiness 80 shells (6, 5) from two
// hexes off for two rounds. Blue's tanks stand in slot 1, a rifle company
// with trucks in slot 2. The hex has a level-2 side (row 122, 60) and a
// level-1 side (row 121, 90): the weakest, 60, counts against shells.
// Soft 120 x 0.8 = 96, x 0.6 = 57.6 -> 57 every round.
// Round 1: draw 2, 0.8902 x 2: slot 2. Two classes share the fire: rifles
// 28.5 / 40 is no whole man, but 57 / 40 beats draw 3: one; trucks 28.5 / 20
// = 1.
// Round 2: MP 10 - 2 = 8, held to 1. Draw 14, 0.4619 x 2: slot 1, the tanks.
// 57 / 120 (armour counts double) is a chance of 0.475 on draw 15 (0.6532):
// none.
TEST_F(BattleTest, ArtilleryBombardment) {
  EngineVar[533].Value = 1;
  const int battery = Put(red, 4, 5, "Red Battery");
  Give(battery, 2, truck, 2);
  Give(battery, 3, longGun, 6);
  Unit[battery].Readiness = 80;
  const int tanks = Put(blue, 6, 5, "Blue Tanks");
  Give(tanks, 4, tank, 3);
  const int company = Put(blue, 6, 5, "Blue Rifles");
  Give(company, 1, rifle, 10);
  Give(company, 2, truck, 2);
  Hex[6][5].Entrench[2] = 2;
  Hex[6][5].Entrench[4] = 1;
  Target(6, 5);
  Join(4, 5, 1);
  SeedRnd(12345);
  doAttack();

  const std::vector<std::string> log = {
      "Initiating Battle",
      "",
      "______________________________Battle Round  1",
      "",
      "_____________Red Battery Bombards Blue Rifles",
      "",
      "Artillery attack from distance versus Land Unit",
      "Fortifications give defender 40% protection.",
      " ",
      "COMBAT ROUND  1 RESULT:",
      "Defender lost  1 infantery.",
      "Defender lost  1 trucks.",
      "",
      "______________________________Battle Round  2",
      "",
      "_____________Red Battery Bombards Blue Tanks",
      "",
      "Artillery attack from distance versus Land Unit",
      "Fortifications give defender 40% protection.",
      " ",
      "COMBAT ROUND  2 RESULT:",
      "Defender lost  0 armour.",
      " ",
      "ATTACKER lost:",
      " ",
      "DEFENDER lost:",
      "Infantery: 1",
      "Trucks: 1",
  };
  EXPECT_EQ(Log(), log);
  EXPECT_EQ(Unit[company].InfQty, 9);
  EXPECT_EQ(Unit[company].MobQty, 1);
  EXPECT_EQ(Unit[tanks].ArmQty, 3);
  EXPECT_EQ(Unit[battery].ArtQty, 6);
  EXPECT_EQ(Unit[battery].MP, 1);
  EXPECT_EQ(Unit[battery].FromX, 6);
  EXPECT_EQ(Unit[battery].FromY, 5);
  EXPECT_EQ(Unit[battery].Readiness, 80);
  EXPECT_EQ(Hex[6][5].Owner, blue);
  EXPECT_EQ(Regime[blue].Losses[1], 1);
  EXPECT_EQ(Regime[blue].Losses[2], 1);
  // One shelling mark, made in round 1 only.
  EXPECT_EQ(News[blue][1].Mark, 7);
  EXPECT_EQ(News[blue][2].Type, 0);
  // Guns sound for each engagement of a shown battle.
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{22, 22}));
}

// Red's fleet (4 destroyers, 2 subs) meets Blue's convoy (2 destroyers, 3
// cargo ships, 2 subs) carrying 25 rifles (250 of 300) at sea.
// Soft attack 4 x 10 + 2 x 15 = 70; the convoy's guns 2 x 10 + 2 x 15 = 50.
// On the convoy, three classes share 70: 23.3 kills no whole ship of any,
// but 70 / 50, 70 / 40 and 70 / 30 each beat their draw (3, 9, 15): one of
// each; the subs do not evade, floor(0.9237 x 100) = 92 is not below 50.
// The cargo then weighs 250 on 200: 2 rifles a pass, three passes, 6 lost.
// On the fleet, two classes share 50: 50 / 50 beats draw 22 (0.8923): one
// destroyer; 50 / 30 beats draw 28, but floor(0.2987 x 100) = 29 < 50: the
// subs evade, and the line names the defender.
TEST_F(BattleTest, SeaBattleWithSubmarines) {
  EngineVar[533].Value = 0;
  Hex[5][5].Land = kSea;
  Hex[6][5].Land = kSea;
  const int fleet = Put(red, 5, 5, "Red Fleet");
  Give(fleet, 1, destroyer, 4);
  Give(fleet, 4, sub, 2);
  const int convoy = Put(blue, 6, 5, "Blue Convoy");
  Give(convoy, 1, destroyer, 2);
  Give(convoy, 2, cargoShip, 3);
  Give(convoy, 4, sub, 2);
  const int marines = world::AddUnit(blue, 9, 9, "Blue Marines");
  Hex[9][9].Unit[1] = 0;
  Give(marines, 1, rifle, 25);
  Unit[convoy].Cargo = marines;
  Target(6, 5);
  Join(5, 5, 1);
  SeedRnd(12345);
  doAttack();

  std::vector<std::string> log = {"Initiating Battle", "", "______________________________Battle Round  1", "",
                                  "_____________Red Fleet Engages Blue Convoy", "", "Sea Battle"};
  Add(log, Neutral("ATTACKER:"));
  Add(log, {"Land Type Hard Mod: 0%", "SOFT ATTACK:        70", "HARD ATTACK:        0", " "});
  Add(log, Neutral("DEFENDER:"));
  Add(log, {"Land Type Soft Mod: 0%",
            "SOFT DEFENSE:        50",
            "HARD DEFENSE:        0",
            " ",
            "COMBAT ROUND  1 RESULT:",
            "Defender lost  1 warships.",
            "Defender lost  1 cargoships.",
            "Defender lost  1 subs.",
            "Attacker lost  1 warships.",
            "Attacking subs evade defensive attacks...",
            "Defender lost  0 subs.",
            " ",
            "ATTACKER lost:",
            "Warships: 1",
            " ",
            "DEFENDER lost:",
            "Infantery: 6",
            "Warships: 1",
            "Cargoships: 1",
            "Subs: 1"});
  EXPECT_EQ(Log(), log);
  EXPECT_EQ(Unit[fleet].InfQty, 3);
  EXPECT_EQ(Unit[fleet].ArmQty, 2);
  EXPECT_EQ(Unit[convoy].InfQty, 1);
  EXPECT_EQ(Unit[convoy].MobQty, 2);
  EXPECT_EQ(Unit[convoy].ArmQty, 1);
  EXPECT_EQ(Unit[marines].InfQty, 19);
  EXPECT_EQ(Unit[convoy].Cargo, marines);
  EXPECT_EQ(Regime[blue].Losses[1], 6);
  EXPECT_EQ(Regime[blue].Losses[8], 1);
  EXPECT_EQ(Regime[blue].Kills[5], 1);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{25}));
  EXPECT_EQ(CheckInvariants(), "");
}

// Red's marines (30 rifles, 3 tanks) land from a ship on (6, 5), held by
// 11 militia (soft attack 16, soft defence 3, hard defence 1) with 20 more
// militia next door at (7, 5): a defence line of 2 with coordination 2
// (n = 2, x 1.15 on top), although a landing has no attack directions.
// Rows 531 and 532 double the defence and halve the armour's punch; the
// rounds are not limited by row 533 (set to 0, one round) but by 999.
//
// Round 1: marines infantry 16.667 filled to 30.667, armour 9 filled to
// 10: soft 240 + 18 = 258, hard 60 + 30 = 90, x 0.5 = 45. Militia: front 12
// for 11: soft 33, x 2 = 66, + floor(75.9) = 141; hard 11 + floor(12.65) = 23.
// 258 / 40 = 6 militia; 141 / 40 = 3 marines, spared as the tanks' 6 riders;
// 23 / 60 on draw 13: none. The militia want to flee (20 < 44 x 0.7) but
// are too weak (20 / 125) to try.
// Round 2: MP 10 - 2 = 8, held to 1. Militia 5, front 6: soft 15 x 2 = 30
// + floor(34.5) = 64, hard 5 + 5 = 10. 258 / 40 = 6, cut to the 5 left;
// 64 / 40 = 1 spared; 10 / 60 on draw 30 (0.8073): none. The militia are
// destroyed and Red takes the hex.
TEST_F(BattleTest, LandingFromTheSea) {
  EngineVar[533].Value = 0;
  const int militiaType = NewType("Militia", kLandTheater, 1);
  SetAttr(militiaType, {{kWeight, 10}, {kSoftAttack, 16}, {kSoftDefense, 3}, {kHardDefense, 1},
                        {kHitPoints, 40}, {kFrontsize, 1}});
  const int marines = world::AddUnit(red, 1, 1, "Red Marines");
  Hex[1][1].Unit[1] = 0;
  Give(marines, 1, rifle, 30);
  Give(marines, 4, tank, 3);
  Unit[marines].Experience = 100;
  Unit[marines].MP = 10;
  const int militia = Put(blue, 6, 5, "Blue Militia");
  Give(militia, 1, militiaType, 11);
  const int reserve = Put(blue, 7, 5, "Blue Reserve");
  Give(reserve, 1, militiaType, 20);
  UI.Order.LandingOrder = 1;
  Target(6, 5);
  Join(6, 5, marines);
  SeedRnd(12345);
  doAttack();

  auto engagement = [](int round, const std::string& softDefence, const std::string& hardDefence) {
    std::vector<std::string> lines = {"_____________Red Marines Engages Blue Militia", "",
                                      "Land attack versus Land Unit", "GENERAL:", "FrontSize Limit: 50", " "};
    Add(lines, Neutral("ATTACKER:"));
    Add(lines, {"Land Type Hard Mod: -50%", "SOFT ATTACK:        258", "HARD ATTACK:        45", " "});
    Add(lines, Neutral("DEFENDER:"));
    Add(lines, {"Defensive line Bonus: 7%", "Coordination Bonus: 7%", "Land Type Soft Mod: 100%",
                "SOFT DEFENSE:        " + softDefence, "HARD DEFENSE:        " + hardDefence, " ",
                "COMBAT ROUND " + Str(round) + " RESULT:"});
    return lines;
  };
  std::vector<std::string> log = {"Initiating Battle", "", "______________________________Battle Round  1", ""};
  Add(log, engagement(1, "141", "23"));
  Add(log, {"Defender lost  6 infantry.", "Attacker lost  0 infantry.", "Attacker lost  0 armour.", "",
            "______________________________Battle Round  2", ""});
  Add(log, engagement(2, "64", "10"));
  Add(log, {"Defender lost  5 infantry.", "Attacker lost  0 infantry.", "Attacker lost  0 armour.",
            "OFFENSIVE SUCCESFULL", " ", "ATTACKER lost:", " ", "DEFENDER lost:", "Infantery: 11"});
  EXPECT_EQ(Log(), log);

  EXPECT_EQ(Unit[militia].Regime, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], 0);
  EXPECT_EQ(Hex[6][5].Owner, red);
  // The marines are still on board: moving in is the caller's business.
  EXPECT_EQ(Unit[marines].Regime, red);
  EXPECT_EQ(Unit[marines].InfQty, 30);
  EXPECT_EQ(Unit[marines].MP, 1);
  EXPECT_EQ(Unit[marines].FromX, 6);
  EXPECT_EQ(Unit[reserve].InfQty, 20);
  // Blue's news: the landing's mark has no side (0), then the militia's end.
  EXPECT_EQ(News[blue][1].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][1].Mark, 0);
  EXPECT_EQ(News[blue][2].Mark, 9);
  EXPECT_EQ(News[blue][3].Type, kNewsLost);
  EXPECT_EQ(News[blue][3].Text, "Blue Militia");
  EXPECT_EQ(Regime[blue].Losses[1], 11);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{21, 21, 32}));
}

}  // namespace
}  // namespace mf::test
