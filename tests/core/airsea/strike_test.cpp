// What a flight meets over the target and what it does there: the
// anti-aircraft guns, strategic bombing of towns, and interdiction of land,
// sea and air formations.
#include "airsea_test_util.h"
#include "engine/news.h"
#include "engine/supply_flood.h"
#include "orders/new_units.h"

namespace mf::test {
namespace {

class StrikeTest : public AirSeaTest {
 protected:
  // A strike from (2, 5) slot 1 at hex (tx, ty), slot tslot.
  static void Strike(bool strategic, int tx, int ty, int tslot) {
    UI.Order.InterdictOrder = strategic ? 0 : 1;
    UI.Order.StratBombOrder = strategic ? 1 : 0;
    Origin(2, 5, 1);
    Select(tx, ty, tslot);
    FlyAirMission();
  }
  int Wing(int fighters, int bombers) {
    const int w = Put(red, 2, 5, "Red Wing");
    if (fighters > 0) Give(w, 1, fighter, fighters);
    if (bombers > 0) Give(w, 3, bomber, bombers);
    return w;
  }
};

// ---- Anti-aircraft fire ----------------------------------------------------------

// Guns count from all around the target within engine variable 502, for the
// target's regime and the hex's owner, never for the regime to move, and
// never from the bottom row of the map.
TEST_F(StrikeTest, GunsAroundTheTargetButNotOnTheBottomRow) {
  const int green = world::AddRegime("Green");
  auto gun = [this](int r, int x, int y, int n) {
    const int u = Put(r, x, y, "Flak");
    Give(u, 3, flak, n);
    return u;
  };
  gun(blue, 5, 9, 2);   // on the target: 4
  gun(blue, 5, 8, 3);   // next to it: 6
  gun(blue, 5, 10, 5);  // next to it on the bottom row: left out
  gun(blue, 7, 9, 1);   // two hexes off: 2 with a reach of 2
  gun(red, 4, 9, 4);    // the regime to move has no guns here
  gun(green, 6, 9, 4);  // a third regime's guns stand by
  gun(blue, 9, 9, 7);   // four hexes off, outside the 7 x 7 square
  EXPECT_EQ(AntiAirPoints(5, 9, blue, blue), 10);
  EngineVar[502].Value = 2;
  EXPECT_EQ(AntiAirPoints(5, 9, blue, blue), 12);
  // However far engine variable 502 reaches, the square ends three hexes off.
  EngineVar[502].Value = 5;
  EXPECT_EQ(AntiAirPoints(5, 9, blue, blue), 12);
  // The target's regime and the hex's owner both count.
  EXPECT_EQ(AntiAirPoints(5, 9, blue, green), 20);
  EXPECT_EQ(AntiAirPoints(5, 9, 0, green), 8);
  // A target on the bottom row: even its own guns are left out.
  EngineVar[502].Value = 1;
  EXPECT_EQ(AntiAirPoints(5, 10, blue, blue), 4);

  // In a mission, the guns the log reports.
  Wing(0, 3);
  Strike(false, 5, 9, 1);
  EXPECT_TRUE(LogHas("Defender has 10 AA pts gathered in and around hex.")) << Log().at(1);
}

// The guns fire at the classes that have a type, transports aside: a flight
// of transports alone passes untouched, and transports of a strike are never
// shot at. The kills go to the regime whose guns fired.
TEST_F(StrikeTest, WhatTheGunsFireAt) {
  const int battery = Put(blue, 6, 5, "Blue Battery");
  Give(battery, 3, flak, 50);  // 100 points
  const int lifter = Put(red, 2, 5, "Red Lift");
  Give(lifter, 2, airlifter, 10);
  UI.Order.AirliftOrder = 1;
  Origin(2, 5, 1);
  Select(6, 5, 1);
  FlyAirMission();
  EXPECT_EQ(Log().front(), "AirLift/Drop");
  EXPECT_TRUE(LogHas("Defender has 100 AA pts gathered in and around hex."));
  EXPECT_TRUE(LogLines("Attacker lost").empty());
  EXPECT_EQ(Unit[lifter].MobQty, 10);

  // With fighters along the transports are open too: c = 2 - 1 = 1.
  // 100 / 20 = 5 fighters; 100 / 25 = 4 transports.
  Give(lifter, 1, fighter, 8);
  UI.Order.AirliftOrder = 0;
  UI.Order.AirSupplyOrder = 1;
  FlyAirMission();
  EXPECT_EQ(Log().front(), "AirSupply");
  EXPECT_EQ(LogLines("Attacker lost"), (std::vector<std::string>{"Attacker lost 5 fighters due to AA.",
                                                                   "Attacker lost 4 transporters due to AA"}));
  EXPECT_EQ(Regime[blue].Kills[9], 5);
  EXPECT_EQ(Regime[blue].Kills[10], 4);

  // A strike with transports along: they draw no fire, and take none of it.
  // Fighters and bombers share 100: 50 / 20 = 2, 50 / 30 = 1.
  const int strike = Put(red, 2, 6, "Red Strike");
  Give(strike, 1, fighter, 5);
  Give(strike, 2, airlifter, 5);
  Give(strike, 3, bomber, 5);
  UI.Order.AirSupplyOrder = 0;
  UI.Order.InterdictOrder = 1;
  Origin(2, 6, 1);
  FlyAirMission();
  EXPECT_EQ(LogLines("Attacker lost"), (std::vector<std::string>{"Attacker lost 2 fighters due to AA.",
                                                                   "Attacker lost 1 bombers due to AA."}));
  EXPECT_EQ(Unit[strike].MobQty, 5);
}

// ---- Strategic bombing -------------------------------------------------------------

TEST_F(StrikeTest, BombingWithNoPowerStillTeachesTheCrews) {
  HexRec& town = Hex[7][5];
  town.Land = kUrban;
  town.Pop = 2000;
  town.Damage = 30;
  const int w = Wing(3, 0);  // fighters carry no bombs
  Unit[w].Experience = 74;
  Strike(true, 7, 5, 0);
  EXPECT_EQ(Log().front(), "Strategic Bombing");
  EXPECT_TRUE(LogHas("Strategic bombardment caused 0% dammage."));
  EXPECT_EQ(town.Damage, 30);
  EXPECT_EQ(Unit[w].Experience, 79);
  // From 75 on the crews learn nothing more by it.
  Strike(true, 7, 5, 0);
  EXPECT_EQ(Unit[w].Experience, 79);
  Unit[w].Experience = 75;
  Strike(true, 7, 5, 0);
  EXPECT_EQ(Unit[w].Experience, 75);
}

// A raid destroys at most half a town, and the damage stops at 100. The
// town then sends its SHQ less supply.
TEST_F(StrikeTest, BombsDamageTheTownAndItsOutput) {
  HexRec& town = Hex[7][5];
  town.Land = kUrban;
  town.Pop = 3000;
  EXPECT_EQ(TownSupply(7, 5), 300);  // 30 x 100 / 10
  // 4 bombers of 40: 160; readiness 80: 128; experience 100: 128.
  // 128 x 100 / 3000 = 4.27, stored as 4.
  const int w = Wing(0, 4);
  Unit[w].Readiness = 80;
  Strike(true, 7, 5, 0);
  EXPECT_TRUE(LogHas("Strategic bombardment caused 4% dammage."));
  EXPECT_EQ(town.Damage, 4);
  EXPECT_EQ(TownSupply(7, 5), 288);  // 30 x 96 / 10
  EXPECT_EQ(Unit[w].Experience, 100);

  // A village of 100: 160 is cut to 50, a rise of 50, and 70 + 50 stops at 100.
  HexRec& village = Hex[7][6];
  village.Land = kUrban;
  village.Pop = 100;
  village.Damage = 70;
  Unit[w].Readiness = 100;
  Strike(true, 7, 6, 0);
  EXPECT_TRUE(LogHas("Strategic bombardment caused 50% dammage."));
  EXPECT_EQ(village.Damage, 100);
  EXPECT_EQ(TownSupply(7, 6), 0);

  // Ruins without people: nothing to destroy.
  HexRec& ruins = Hex[7][7];
  ruins.Land = kUrban;
  Strike(true, 7, 7, 0);
  EXPECT_TRUE(LogHas("Strategic bombardment caused 0% dammage."));
  EXPECT_EQ(ruins.Damage, 0);
}

// ---- Interdiction of land formations --------------------------------------------------

// 1 fighter (soft 4, hard 2) and 3 bombers (soft 30, hard 12): 94 soft, 38
// hard. All four classes: w = 3 + 1 + 3 + 3 = 10; 940 and 380.
// Rifles: 94 / 80 = 1 (a third of 30 is 9). Trucks: 282 / 20 = 14. Flak:
// 282 / (30 + 2) = 8. Tanks: 114 / 60 = 1.
// The column's 20 AA points must not thin the flight first: its aircraft
// are built for it here (1000 hit points: chances of 0.02, which draws 1
// and 7 after seed 12345, 0.9296 and 0.2046, miss).
TEST_F(StrikeTest, EachClassDrawsTheStrikeByItsWeight) {
  Type[fighter].Attr[kHitPoints] = 1000;
  Type[bomber].Attr[kHitPoints] = 1000;
  SeedRnd(12345);
  const int target = Put(blue, 6, 5, "Blue Column");
  Give(target, 1, rifle, 30);
  Give(target, 2, truck, 20);
  Give(target, 3, flak, 10);
  Give(target, 4, tank, 3);
  Wing(1, 3);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"),
            (std::vector<std::string>{"Defender lost 1 infantry.", "Defender lost 14 trucks.",
                                      "Defender lost 8 artillery.", "Defender lost 1 armour."}));
  EXPECT_EQ(Unit[target].InfQty, 29);
  EXPECT_EQ(Unit[target].MobQty, 6);
  EXPECT_EQ(Unit[target].ArtQty, 2);
  EXPECT_EQ(Unit[target].ArmQty, 2);
  // The owner's map marks the air attack.
  EXPECT_EQ(News[blue][1].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][1].Mark, 8);

  // Infantry goes to ground: of 3 rifles not one is caught, however hard
  // the strike (a third of 3 is 0).
  const int squad = Put(blue, 7, 5, "Blue Squad");
  Give(squad, 1, rifle, 3);
  Unit[Hex[2][5].Unit[1]].ArtQty = 30;
  Strike(false, 7, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"), (std::vector<std::string>{"Defender lost 0 infantry."}));
  EXPECT_EQ(Unit[squad].InfQty, 3);
}

// Draws after seed 7: 1 0.0763, 7 0.7235, 13 0.5011, 19 0.4999.
//
// Strafers (soft 70, hard 15) against 30 rifles and 5 tanks: w = 1 + 3 = 4.
// The guns: none, but the strafers' type is open (0 points: draw 1, 2-6).
// Rifles: 70 / 80 = 0.875, no whole man; the chance draw 7 (0.7235) is
// taken and would hit, but the whole number 0 is what it is compared with:
// none (draws 8-12). Tanks: 45 / 60 = 0.75 beats draw 13: one (draws 14-18).
TEST_F(StrikeTest, InfantryNeverGetsAChanceHitButArmourDoes) {
  const int strafer = world::AddType("Strafers", kAirTheater, 1);
  SetAttr(strafer, {{kSoftAttack, 70}, {kHardAttack, 15}, {kHitPoints, 20}});
  const int target = Put(blue, 6, 5, "Blue Column");
  Give(target, 1, rifle, 30);
  Give(target, 4, tank, 5);
  const int w = Put(red, 2, 5, "Red Strafers");
  Give(w, 1, strafer, 1);
  const std::vector<float> d = DrawsAfterSeed(7, 19);
  ASSERT_NEAR(d[6], 0.7235f, 0.00006);
  ASSERT_NEAR(d[12], 0.5011f, 0.00006);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"),
            (std::vector<std::string>{"Defender lost 0 infantry.", "Defender lost 1 armour."}));
  EXPECT_NEAR(Rnd(), d[18], 0.00006) << "18 draws, the rifles' chance draw among them";
}

TEST_F(StrikeTest, CoverAndFortificationsProtect) {
  // 10 bombers: 300. Forest halves it: 150. Sides of level 1 (90) and 2
  // (60): the weakest, 60, counts: 90. 90 / 80 = 1 rifle.
  Hex[6][5].Land = kForest;
  Hex[6][5].Entrench[2] = 1;
  Hex[6][5].Entrench[5] = 2;
  const int target = Put(blue, 6, 5, "Blue Woods");
  Give(target, 1, rifle, 30);
  Wing(0, 10);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Landscape"), (std::vector<std::string>{"Landscape gives defenders 50% extra protection."}));
  EXPECT_EQ(LogLines("Fortifications"), (std::vector<std::string>{"Fortifications give defender 40% protection."}));
  EXPECT_EQ(LogLines("Defender lost"), (std::vector<std::string>{"Defender lost 1 infantry."}));

  // A town gives the same cover; no fortification, no line. 150 / 80 = 1.
  Hex[7][5].Land = kUrban;
  const int town = Put(blue, 7, 5, "Blue Town Guard");
  Give(town, 1, rifle, 30);
  Strike(false, 7, 5, 1);
  EXPECT_TRUE(LogHas("Landscape gives defenders 50% extra protection."));
  EXPECT_TRUE(LogLines("Fortifications").empty());
  // Open grass: neither. 300 / 80 = 3.
  const int open = Put(blue, 8, 5, "Blue Open");
  Give(open, 1, rifle, 30);
  Strike(false, 8, 5, 1);
  EXPECT_TRUE(LogLines("Landscape").empty());
  EXPECT_EQ(LogLines("Defender lost"), (std::vector<std::string>{"Defender lost 3 infantry."}));
}

// A formation with nothing left is gone: news for its regime and a mark for
// the owner, its slot closes up, a THQ frees its formations. An SHQ stays.
TEST_F(StrikeTest, DestroyedFormationsAndTheSHQThatStays) {
  const int convoy = Put(blue, 6, 5, "Blue Convoy");
  Give(convoy, 2, truck, 3);
  Unit[convoy].Thq = 1;
  Unit[convoy].ThqBadge = 1;
  Regime[blue].ThqBadgeUnit[1] = convoy;
  const int guard = Put(blue, 6, 5, "Blue Guard");
  Give(guard, 1, rifle, 10);
  Unit[guard].Boss = convoy;
  Unit[guard].ThqBadge = 1;
  Wing(0, 5);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"), (std::vector<std::string>{"Defender lost 3 trucks."}));
  EXPECT_EQ(Unit[convoy].Regime, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], guard);
  EXPECT_EQ(Hex[6][5].Unit[2], 0);
  EXPECT_EQ(Unit[guard].Boss, 0);
  EXPECT_EQ(Regime[blue].ThqBadgeUnit[1], 0);
  EXPECT_EQ(News[blue][1].Mark, 8);
  EXPECT_EQ(News[blue][2].Type, kNewsLost);
  EXPECT_EQ(News[blue][2].Text, "Blue Convoy");
  EXPECT_EQ(News[blue][3].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][3].Mark, 9);
  EXPECT_EQ(CheckInvariants(), "");

  // The SHQ loses its trucks and stays where it is.
  const int hq = Put(blue, 7, 5, "Blue HQ");
  Give(hq, 2, truck, 3);
  Unit[hq].Shq = 1;
  Shq[blue][1].Unit = hq;
  Strike(false, 7, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"), (std::vector<std::string>{"Defender lost 3 trucks."}));
  EXPECT_EQ(Unit[hq].MobQty, 0);
  EXPECT_EQ(Unit[hq].Regime, blue);
  EXPECT_EQ(Hex[7][5].Unit[1], hq);
  EXPECT_EQ(Shq[blue][1].Unit, hq);
  EXPECT_EQ(CheckInvariants(), "");
}

// ---- Interdiction at sea and of air wings on the ground ----------------------------------

// 15 bombers of naval interdict 20: 300 over warships, cargo ships and
// subs (c = 3): 100 each. Warships 100 / 50 = 2; cargo ships 100 / 40 = 2,
// all there are, so the marines aboard go over the side; subs 100 / 30 = 3.
TEST_F(StrikeTest, ShipsAndSubsAtSea) {
  Hex[6][5].Land = kSea;
  Hex[6][5].Owner = 0;
  const int fleet = Put(blue, 6, 5, "Blue Fleet");
  Give(fleet, 1, destroyer, 4);
  Give(fleet, 2, cargoShip, 2);
  Give(fleet, 4, sub, 3);
  const int marines = Spare(blue, "Blue Marines");
  Give(marines, 1, rifle, 15);
  Unit[fleet].Cargo = marines;
  const int w = Wing(0, 15);
  // The subs' dive: draw 17 after seed 12345 (0.7489) x 100 is not below
  // their skill 50 over row 503's 2.
  const std::vector<float> d = DrawsAfterSeed(12345, 17);
  ASSERT_NEAR(d[16], 0.7489f, 0.00006);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"),
            (std::vector<std::string>{"Defender lost 2 warships.", "Defender lost 2 cargoships.",
                                      "Defender lost 3 subs."}));
  EXPECT_FALSE(LogHas("Defending subs dive quick enough..."));
  EXPECT_EQ(Unit[fleet].InfQty, 2);
  EXPECT_EQ(Unit[fleet].Regime, blue);
  EXPECT_EQ(Unit[marines].Regime, 0);
  EXPECT_EQ(Unit[fleet].Cargo, 0);
  EXPECT_TRUE(LogHas("Infantery: 15"));
  // No owner of the sea: the mark goes to the first formation's regime.
  EXPECT_EQ(News[blue][1].Mark, 8);
  EXPECT_EQ(News[blue][2].Type, kNewsLost);
  EXPECT_EQ(News[blue][2].Text, "Blue Marines");

  // Subs of skill 100 with row 503 at 1 always dive in time (draw x 100 is
  // below 100).
  Type[sub].Attr[kSubskills] = 100;
  EngineVar[503].Value = 1;
  Unit[fleet].ArmQty = 3;
  Unit[w].ArtQty = 15;
  Strike(false, 6, 5, 1);
  EXPECT_TRUE(LogHas("Defending subs dive quick enough..."));
  EXPECT_EQ(LogLines("Defender lost").back(), "Defender lost 0 subs.");
  EXPECT_EQ(Unit[fleet].ArmQty, 3);
  EXPECT_EQ(CheckInvariants(), "");
}

// A carrier group with its wing aboard: 300 on the carriers alone, 300 / 80
// = 3, all of them; the wing, with nothing left to stand on, goes down with
// the group.
TEST_F(StrikeTest, CarriersSunkWithTheirWing) {
  Hex[6][5].Land = kSea;
  Hex[6][5].Owner = 0;
  const int group = Put(blue, 6, 5, "Blue Carriers");
  Give(group, 3, carrierShip, 3);
  const int deck = Spare(blue, "Blue Deck Wing");
  Give(deck, 1, fighter, 4);
  Unit[deck].Readiness = 50;  // too tired to rise
  Unit[group].Cargo = deck;
  Wing(0, 15);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Defender lost"), (std::vector<std::string>{"Defender lost 3 carriers."}));
  EXPECT_EQ(Unit[group].Regime, 0);
  EXPECT_EQ(Unit[deck].Regime, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], 0);
  EXPECT_TRUE(LogHas("Fighters: 4"));
  EXPECT_TRUE(LogHas("Carriers: 3"));
  EXPECT_EQ(CheckInvariants(), "");
}

// A wing on the ground (too tired to rise): with fighters, transports and
// bombers, 150 soft is split three ways; fighters and bombers alone count
// as one class.
TEST_F(StrikeTest, AirWingsOnTheGround) {
  const int parked = Put(blue, 6, 5, "Blue Parked");
  Give(parked, 1, fighter, 4);
  Give(parked, 2, airlifter, 3);
  Give(parked, 3, bomber, 2);
  Unit[parked].Readiness = 50;
  Wing(0, 5);
  Strike(false, 6, 5, 1);
  // 50 / 20 = 2; 50 / 25 = 2; 50 / 30 = 1.
  EXPECT_EQ(LogLines("Defender lost"),
            (std::vector<std::string>{"Defender lost 2 fighters.", "Defender lost 2 transporters.",
                                      "Defender lost 1 bombers."}));
  const int other = Put(blue, 7, 5, "Blue Other");
  Give(other, 1, fighter, 4);
  Give(other, 3, bomber, 2);
  Unit[other].Readiness = 50;
  const int behind = Put(blue, 7, 5, "Blue Behind");
  Give(behind, 1, rifle, 5);
  Strike(false, 7, 5, 1);
  // 150 / 20 = 7, cut to 4; 150 / 30 = 5, cut to 2: nothing left.
  EXPECT_EQ(LogLines("Defender lost"),
            (std::vector<std::string>{"Defender lost 4 fighters.", "Defender lost 2 bombers."}));
  EXPECT_EQ(Unit[other].Regime, 0);
  EXPECT_EQ(Hex[7][5].Unit[1], behind);
  EXPECT_EQ(CheckInvariants(), "");
}

// ---- The flight itself ------------------------------------------------------------------------

// Interdiction and bombing cost the wing its movement as a battle does;
// supply and lift flights do not. A wing aboard a carrier pays itself.
TEST_F(StrikeTest, MovementCostOfAStrike) {
  const int target = Put(blue, 6, 5, "Blue Post");
  Give(target, 1, rifle, 5);
  const int w = Wing(0, 2);
  Unit[w].MP = 3;
  Strike(false, 6, 5, 1);
  EXPECT_EQ(Unit[w].MP, 1);
  Unit[w].MP = 6;
  UI.Order.InterdictOrder = 0;
  UI.Order.AirSupplyOrder = 1;
  Origin(2, 5, 1);
  FlyAirMission();
  EXPECT_EQ(Unit[w].MP, 6);
  UI.Order.AirSupplyOrder = 0;

  Hex[3][3].Land = kSea;
  const int carrier = Put(red, 3, 3, "Red Carrier");
  Give(carrier, 3, carrierShip, 1);
  const int deck = Spare(red, "Red Deck Wing");
  Give(deck, 3, bomber, 2);
  Unit[carrier].Cargo = deck;
  UI.Order.InterdictOrder = 1;
  Origin(3, 3, 1);
  Select(6, 5, 1);
  EXPECT_EQ(AirMissionUnit(), deck);
  FlyAirMission();
  EXPECT_EQ(Unit[deck].MP, 1);
  EXPECT_EQ(Unit[carrier].MP, 10);
}

// A flight that loses everything dies when it is over: from its own slot
// it leaves the stack, from a carrier's deck only the carrier's cargo.
TEST_F(StrikeTest, AFlightShotToPiecesIsGone) {
  const int battery = Put(blue, 6, 5, "Blue Battery");
  Give(battery, 3, flak, 100);  // 200 points
  const int w = Wing(0, 2);
  const int below = Put(red, 2, 5, "Red Rifles");
  Give(below, 1, rifle, 5);
  Strike(false, 6, 5, 1);
  EXPECT_EQ(LogLines("Attacker lost"), (std::vector<std::string>{"Attacker lost 2 bombers due to AA."}));
  EXPECT_EQ(Unit[w].Regime, 0);
  EXPECT_EQ(Hex[2][5].Unit[1], below);
  EXPECT_EQ(Hex[2][5].Unit[2], 0);

  Hex[3][3].Land = kSea;
  const int carrier = Put(red, 3, 3, "Red Carrier");
  Give(carrier, 3, carrierShip, 1);
  const int deck = Spare(red, "Red Deck Wing");
  Give(deck, 3, bomber, 2);
  Unit[carrier].Cargo = deck;
  UI.Order.InterdictOrder = 1;
  Origin(3, 3, 1);
  Select(6, 5, 1);
  FlyAirMission();
  EXPECT_EQ(Unit[deck].Regime, 0);
  EXPECT_EQ(Unit[carrier].Cargo, 0);
  EXPECT_EQ(Hex[3][3].Unit[1], carrier);
  EXPECT_EQ(CheckInvariants(), "");
}

// A computer regime's mission, not shown: the log is written all the same,
// without the blank lines, sounds and pauses of a shown one.
TEST_F(StrikeTest, AComputerMissionIsNotShown) {
  Regime[red].AI = 1;
  Game.ShowAIMoves = kFalse;
  const int battery = Put(blue, 6, 5, "Blue Battery");
  Give(battery, 3, flak, 2);
  const int hawks = Put(blue, 8, 5, "Blue Hawks");
  Give(hawks, 1, fighter, 2);
  Wing(10, 2);
  PausingPlatform quiet;
  InstallPlatform(&quiet);
  Strike(false, 6, 5, 1);
  InstallPlatform(&platform);
  EXPECT_EQ(Log().front(), "Interdict");
  EXPECT_TRUE(LogHas("Attack intercepted by Blue Hawks"));
  EXPECT_TRUE(LogHas("Defender has 4 AA pts gathered in and around hex."));
  EXPECT_EQ(LogCount(""), 0);
  EXPECT_TRUE(quiet.pauses.empty());
  EXPECT_TRUE(quiet.Sounds().empty());
  EXPECT_FALSE(TheBattleWindow().visible);
  EXPECT_TRUE(TheBattleWindow().mainWindowEnabled);
}

}  // namespace
}  // namespace mf::test
