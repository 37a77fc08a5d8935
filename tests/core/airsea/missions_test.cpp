// Whole air missions, seeded, checked line by line against logs worked out
// by hand. No type costs anything, so each loss takes five draws (four
// chances at zero points and the fame draw) and moves no experience or
// readiness; only the draws named in the comments decide anything.
#include "airsea_test_util.h"
#include "engine/news.h"

namespace mf::test {
namespace {

class MissionTest : public AirSeaTest {};

// Seed 7:
//    1 0.0763   2 0.2273   3 0.7799   4 0.3190   5 0.4384   6 0.9782
//    7 0.7235   8 0.4556   9 0.9780  10 0.3080  11 0.5385  12 0.2639
//   13 0.5011  14 0.0867  15 0.0721  16 0.4194  17 0.2684  18 0.0159
//   19 0.4999  20 0.5278  21 0.6792  22 0.8688  23 0.8037  24 0.3308
//   25 0.3809  26 0.3929  27 0.0659  28 0.6743  29 0.2881  30 0.6723
//   31 0.9096  32 0.6940  33 0.2134  34 0.3460  35 0.4521  36 0.9295
//   37 0.9312  38 0.2626  39 0.0249  40 0.7508  41 0.6005  42 0.2549
//   43 0.9501  44 0.8513  45 0.2303  46 0.1741  ... 65 0.3724  66 0.9512
//
// Red Strike (4 fighters of dogfight 10, 6 bombers of soft attack 30) flies
// from (3, 5) against Blue Column on (6, 5): 20 rifles, 5 trucks, 4 flak
// guns (anti-air 2). Blue Hawks (5 fighters, readiness 80) on (8, 5) are two
// hexes from the target and intercept; Blue Flak (3 guns) on (6, 4) stands
// next to the target.
//
// MP: 10 - 2 = 8, held to 1.
// Exposed classes: fighters and bombers, less the bombers while fighters
// fly escort: c = 1 in every round.
// Round 1: Hawks 10 x 5 x 0.8 = 40 -> 2 fighters (40 / 20), draws 1-5.
//   Red 10 x 4 = 40 -> 2 hawks, draws 6-10.
// Round 2: Hawks 30 x 0.8 = 24 -> 1 fighter, draws 11-15. Red 20 -> 1 hawk,
//   draws 16-20.
// Round 3: Hawks 20 x 0.8 = 16: 16 / 20 is no whole fighter, but 0.8 beats
//   draw 21: the last fighter, draws 22-26. With no fighter left the bombers
//   are open at once: 16 / 30 = 0.533 beats draw 27: one bomber, draws
//   28-32. Red had fired with the one fighter of the round's start: 10 / 20
//   = 0.5 beats draw 33: one hawk, draws 34-38.
// AA: 4 x 2 + 3 x 2 = 14 points; c = 2 (fighters and bombers have a type).
//   Fighters 14 / 2 / 20: 0.7 beats draw 39, but none are left: 0, draws
//   40-44. Bombers 14 / 30 = 0.467 beats draw 45: one, draws 46-50.
// Strike: 30 x 4 bombers = 120 soft, 12 x 4 = 48 hard; grass, no
//   fortification. Weights: trucks 3 + rifles 1 + guns 3 = 7.
//   Rifles 120 / 80 = 1 (a third of 20 is 6), draws 51-55; trucks 360 / 20 =
//   18, cut to the 5 there are, draws 56-60; guns 360 / 32 = 11, cut to 4,
//   draws 61-65.
TEST_F(MissionTest, InterdictionWithInterceptionAndAntiAircraft) {
  const std::vector<float> seven = DrawsAfterSeed(7, 66);
  const std::vector<float> table = {0.0763f, 0.2273f, 0.7799f, 0.3190f, 0.4384f, 0.9782f};
  for (std::size_t i = 0; i < table.size(); ++i) ASSERT_NEAR(seven[i], table[i], 0.00006) << "draw " << i + 1;
  ASSERT_NEAR(seven[20], 0.6792f, 0.00006);
  ASSERT_NEAR(seven[26], 0.0659f, 0.00006);
  ASSERT_NEAR(seven[32], 0.2134f, 0.00006);
  ASSERT_NEAR(seven[38], 0.0249f, 0.00006);
  ASSERT_NEAR(seven[44], 0.2303f, 0.00006);

  const int strike = Put(red, 3, 5, "Red Strike");
  Give(strike, 1, fighter, 4);
  Give(strike, 3, bomber, 6);
  const int hawks = Put(blue, 8, 5, "Blue Hawks");
  Give(hawks, 1, fighter, 5);
  Unit[hawks].Readiness = 80;
  const int column = Put(blue, 6, 5, "Blue Column");
  Give(column, 1, rifle, 20);
  Give(column, 2, truck, 5);
  Give(column, 3, flak, 4);
  const int battery = Put(blue, 6, 4, "Blue Flak");
  Give(battery, 3, flak, 3);

  PausingPlatform pausing;
  InstallPlatform(&pausing);
  UI.Order.InterdictOrder = 1;
  Origin(3, 5, 1);
  Select(6, 5, 1);
  SeedRnd(7);
  FlyAirMission();
  const float next = Rnd();
  InstallPlatform(&platform);

  const std::vector<std::string> log = {"Interdict",
                                        "Attack intercepted by Blue Hawks",
                                        "Attacker lost 2 fighters due to Intercept.",
                                        "Defender (interceptor) lost 2 fighters.",
                                        "",
                                        "Attacker lost 1 fighters due to Intercept.",
                                        "Defender (interceptor) lost 1 fighters.",
                                        "",
                                        "Attacker lost 1 fighters due to Intercept.",
                                        "Attacker lost 1 bombers due to Intercept.",
                                        "Defender (interceptor) lost 1 fighters.",
                                        "",
                                        "Defender has 14 AA pts gathered in and around hex.",
                                        "",
                                        "Attacker lost 0 fighters due to AA.",
                                        "Attacker lost 1 bombers due to AA.",
                                        "Defender lost 1 infantry.",
                                        "Defender lost 5 trucks.",
                                        "Defender lost 4 artillery.",
                                        " ",
                                        "ATTACKER lost:",
                                        "Fighters: 4",
                                        "Bombers: 2",
                                        " ",
                                        "DEFENDER lost:",
                                        "Infantery: 1",
                                        "Trucks: 5",
                                        "Artillery: 4",
                                        "Fighters: 4"};
  EXPECT_EQ(Log(), log);
  // Every line of a shown mission waits 200 ms; the blank line after each
  // round of a dogfight 500, after the guns 1000; the tallies 5.
  const std::vector<int> pauses = {200, 200, 200, 200, 500, 200, 200, 500, 200, 200, 200, 500, 200, 1000,
                                   200, 200, 200, 200, 200, 5,   5,   5,   5,   5,   5,   5,   5,   5,   5};
  EXPECT_EQ(pausing.pauses, pauses);
  EXPECT_NEAR(next, seven[65], 0.00006) << "the mission takes 65 draws";
  // Three dogfight rounds, the guns, the bombs.
  EXPECT_EQ(pausing.Sounds(), (std::vector<int>{23, 23, 23, 22, 24}));

  EXPECT_EQ(Unit[strike].MP, 1);
  EXPECT_EQ(Unit[strike].InfQty, 0);
  EXPECT_EQ(Unit[strike].ArtQty, 4);
  EXPECT_EQ(Unit[strike].Regime, red);  // bombers are left: the wing flies home
  EXPECT_EQ(Unit[hawks].InfQty, 1);
  EXPECT_EQ(Unit[hawks].Regime, blue);
  EXPECT_EQ(Unit[column].InfQty, 19);
  EXPECT_EQ(Unit[column].MobQty, 0);
  EXPECT_EQ(Unit[column].ArtQty, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], column);
  // Blue's report: the air attack on its map, its losses, its kills.
  EXPECT_EQ(News[blue][1].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][1].Mark, 8);
  EXPECT_EQ(News[blue][1].X, 6);
  EXPECT_EQ(News[blue][1].Y, 5);
  EXPECT_EQ(News[blue][2].Type, 0);
  EXPECT_EQ(Regime[blue].Losses[1], 1);
  EXPECT_EQ(Regime[blue].Losses[2], 5);
  EXPECT_EQ(Regime[blue].Losses[3], 4);
  EXPECT_EQ(Regime[blue].Losses[9], 4);
  EXPECT_EQ(Regime[blue].Kills[9], 4);
  EXPECT_EQ(Regime[blue].Kills[11], 2);
  EXPECT_EQ(CheckInvariants(), "");
}

// Seed 99:
//    1 0.6723   2 0.7225   3 0.4881   4 0.8319   5 0.8255   6 0.7341
//    7 0.0314   8 0.7010   9 0.8080  10 0.1933  11 0.5656  12 0.9773
//   13 0.2976  14 0.5777  15 0.0467  16 0.5138  17 0.9906  18 0.8515
//   19 0.0068  20 0.3811  21 0.7698  22 0.2739  23 0.7468  24 0.6406
//   25 0.3774  26 0.4936  27 0.4941  28 0.3368  29 0.9289  30 0.6163
//   31 0.3955  32 0.3605  33 0.9740  34 0.3317  35 0.5244  36 0.6274
//   37 0.0936  38 0.6935  39 0.8133  40 0.3269  41 0.2117  42 0.4094
//   43 0.5543  44 0.7341  45 0.2923  46 0.7086  47 0.8161  48 0.2820
//   49 0.8280  50 0.9236  51 0.2216  52 0.4098
//
// Red Heavies (2 fighters, 5 bombers of strategic bombing 40; readiness 90,
// experience 70) bomb Blue's town on (7, 3): population 3000, damage 10.
// The town holds Blue Garrison (10 rifles, 2 flak guns), and Blue Battery (3
// flak guns) stands next to it on (8, 3). Blue Deck Wing (4 fighters,
// readiness 90) flies from the deck of Blue Carrier at sea on (9, 3), two
// hexes off.
//
// Red fires with 10 x 2 x 0.9 x 0.7 = 12.6 -> 12 in round 1, and with one
// fighter 6.3 -> 6 in round 2. The deck wing fires with 10 x 4 x 0.9 = 36.
// Round 1: 36 / 20 = 1 fighter, draws 1-5; 12 / 20 = 0.6 fails draw 6: no
//   hawk, draws 7-11.
// Round 2: the last fighter, draws 12-16; the bombers are open: 36 / 30 = 1
//   bomber, draws 17-21; 6 / 20 = 0.3 beats draw 22: one of the deck wing,
//   draws 23-27.
// Round 3: the deck wing fires with 3 x 10 x 0.9 = 27: 27 / 30 = 0.9 beats
//   draw 28: one bomber, draws 29-33; Red has no fighter: 0, draw 34 taken,
//   draws 35-39.
// AA: 2 x 2 + 3 x 2 = 10 points over 2 classes. Fighters 0.5 beats draw 40
//   but there are none, draws 41-45; bombers 10 / 30 = 0.333 fails draw 46,
//   draws 47-51.
// Bombs: 40 x 3 = 120 x 0.9 = 108 x 0.7 = 75.6 -> 75 (half the town, 1500,
//   is far off). 75 x 100 / 3000 = 2.5, rounded to the even 2: damage 12.
//   Experience 70 is below 75: 75.
TEST_F(MissionTest, StrategicBombingPastACarrierWingAndFlak) {
  const std::vector<float> d = DrawsAfterSeed(99, 52);
  ASSERT_NEAR(d[5], 0.7341f, 0.00006);
  ASSERT_NEAR(d[21], 0.2739f, 0.00006);
  ASSERT_NEAR(d[27], 0.3368f, 0.00006);
  ASSERT_NEAR(d[39], 0.3269f, 0.00006);
  ASSERT_NEAR(d[45], 0.7086f, 0.00006);

  HexRec& town = Hex[7][3];
  town.Land = kUrban;
  town.Pop = 3000;
  town.Damage = 10;
  town.UrbanName = "Blueford";
  Hex[9][3].Land = kSea;
  Hex[9][3].Owner = 0;
  const int heavies = Put(red, 2, 3, "Red Heavies");
  Give(heavies, 1, fighter, 2);
  Give(heavies, 3, bomber, 5);
  Unit[heavies].Readiness = 90;
  Unit[heavies].Experience = 70;
  const int garrison = Put(blue, 7, 3, "Blue Garrison");
  Give(garrison, 1, rifle, 10);
  Give(garrison, 3, flak, 2);
  const int battery = Put(blue, 8, 3, "Blue Battery");
  Give(battery, 3, flak, 3);
  const int carrier = Put(blue, 9, 3, "Blue Carrier");
  Give(carrier, 3, carrierShip, 1);
  const int deck = Spare(blue, "Blue Deck Wing");
  Give(deck, 1, fighter, 4);
  Unit[deck].Readiness = 90;
  Unit[carrier].Cargo = deck;

  UI.Order.StratBombOrder = 1;
  Origin(2, 3, 1);
  Select(7, 3, 1);
  SeedRnd(99);
  FlyAirMission();
  const float next = Rnd();

  const std::vector<std::string> log = {"Strategic Bombing",
                                        "Attack intercepted by Blue Deck Wing",
                                        "Attacker lost 1 fighters due to Intercept.",
                                        "Defender (interceptor) lost 0 fighters.",
                                        "",
                                        "Attacker lost 1 fighters due to Intercept.",
                                        "Attacker lost 1 bombers due to Intercept.",
                                        "Defender (interceptor) lost 1 fighters.",
                                        "",
                                        "Attacker lost 1 bombers due to Intercept.",
                                        "Defender (interceptor) lost 0 fighters.",
                                        "",
                                        "Defender has 10 AA pts gathered in and around hex.",
                                        "",
                                        "Attacker lost 0 fighters due to AA.",
                                        "Attacker lost 0 bombers due to AA.",
                                        "Strategic bombardment caused 2% dammage.",
                                        " ",
                                        "ATTACKER lost:",
                                        "Fighters: 2",
                                        "Bombers: 2",
                                        " ",
                                        "DEFENDER lost:",
                                        "Fighters: 1"};
  EXPECT_EQ(Log(), log);
  EXPECT_NEAR(next, d[51], 0.00006) << "the mission takes 51 draws";
  EXPECT_EQ(town.Damage, 12);
  EXPECT_EQ(Unit[heavies].Experience, 75);
  EXPECT_EQ(Unit[heavies].MP, 1);
  EXPECT_EQ(Unit[heavies].InfQty, 0);
  EXPECT_EQ(Unit[heavies].ArtQty, 3);
  EXPECT_EQ(Unit[deck].InfQty, 3);
  EXPECT_EQ(Unit[carrier].Cargo, deck);
  // Bombing a town leaves no mark on the owner's map.
  EXPECT_EQ(News[blue][1].Type, 0);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{23, 23, 23, 22, 24}));
  EXPECT_EQ(CheckInvariants(), "");
}

}  // namespace
}  // namespace mf::test
