// What follows each engagement: obliteration, break-off, retreat and
// destruction, the lists closing up, the end of the battle, its tallies and
// the news it leaves.
#include "combat_test_util.h"
#include "engine/news.h"
#include "model/arith.h"
#include "model/invariants.h"

namespace mf::test {
namespace {

class AftermathTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    Game.FogOfWar = 0;
  }
  // A wall that neither fires nor falls: sandbags of 1000 hit points.
  int Sandbags(int r, int x, int y, const std::string& name, int qty) {
    if (sandbag == 0) {
      sandbag = NewType("Sandbags", kLandTheater, 1);
      SetAttr(sandbag, {{kHitPoints, 1000}, {kFrontsize, 1}, {kWeight, 1}});
    }
    const int u = Put(r, x, y, name);
    Give(u, 1, sandbag, qty);
    return u;
  }
  int sandbag = 0;
  int Rifles(int r, int x, int y, const std::string& name, int qty) {
    const int u = Put(r, x, y, name);
    Give(u, 1, rifle, qty);
    return u;
  }
  // The names of the units engaging, in log order, within round `round`.
  static std::vector<std::string> EngagementsOfRound(int round) {
    std::vector<std::string> out;
    const std::string heading = "______________________________Battle Round " + Str(round);
    const std::string next = "______________________________Battle Round " + Str(round + 1);
    bool in = false;
    for (const auto& line : Log()) {
      if (line == heading) in = true;
      else if (line == next) in = false;
      else if (in && line.rfind("_____________", 0) == 0) out.push_back(line.substr(13));
    }
    return out;
  }
};

// Trucks and guns of range 1 attack 10 rifles. Guns: soft 6 x 3 = 18, hard
// 4 x 3 = 12. Draws after seed 12345: 0.9296 thrown away, 0.8902 the slot,
// 0.3164 < 18 / 40 hits one rifle, five draws for its loss. Without
// infantry and armour the guns break off: MP 10 - 2 = 8, held to 1; trucks
// floor(0.5677 x 4) + 1 = 3, and with row 650 at 1 no draw can cancel
// (0.5321 x 1 is not above 1); five draws for the loss; guns floor(0.9237 x
// 3) + 1 = 3, 0.7489 x 1 cancels nothing either.
TEST_F(AftermathTest, TrucksAndGunsBreakOffAtOnce) {
  EngineVar[650].Value = 1;
  EngineVar[651].Value = 1;
  const int guns = Put(red, 5, 5, "Red Guns");
  Give(guns, 2, truck, 4);
  Give(guns, 3, fieldGun, 3);
  const int guard = Rifles(blue, 6, 5, "Blue Rifles", 10);
  Target(6, 5);
  Join(5, 5, 1);
  SeedRnd(12345);
  doAttack();
  const std::vector<std::string> expected = {
      "COMBAT ROUND  1 RESULT:",
      "Defender lost  1 infantry.",
      "ATTACKING UNIT RETREATS",
      "Lost 3 transport vehicles while retreating.",
      "Lost 3 artillery pieces while retreating.",
      "ATTACK / OFFENSIVE IS ABORTED DUE TO LOSSES.",
      " ",
      "ATTACKER lost:",
      "Trucks: 3",
      "Artillery: 3",
      " ",
      "DEFENDER lost:",
      "Infantery: 1",
  };
  EXPECT_EQ(LogFrom("COMBAT ROUND  1 RESULT:"), expected);
  EXPECT_TRUE(LogHas("SOFT ATTACK:        18"));
  EXPECT_TRUE(LogHas("HARD ATTACK:        12"));
  EXPECT_EQ(Unit[guns].MobQty, 1);
  EXPECT_EQ(Unit[guns].ArtQty, 0);
  EXPECT_EQ(Unit[guns].MP, 1);
  EXPECT_EQ(Unit[guns].Readiness, 80);   // 80% of 100
  EXPECT_EQ(Unit[guns].Disruption, 20);  // row 547
  EXPECT_EQ(Unit[guns].FromX, 0);
  EXPECT_EQ(Unit[guns].Regime, red);
  EXPECT_EQ(Hex[5][5].Unit[1], guns);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(Unit[guard].InfQty, 9);
  EXPECT_EQ(Hex[6][5].Owner, blue);
  EXPECT_EQ(Regime[blue].Kills[2], 3);
  EXPECT_EQ(Regime[blue].Kills[3], 3);
  EXPECT_EQ(CheckInvariants(), "");
}

// With the default rows the second draws cancel the losses: 0.5321 x 3 and
// 0.7489 x 2 are above 1, and the lines say 0.
TEST_F(AftermathTest, BreakingOffCanCostNothing) {
  const int guns = Put(red, 5, 5, "Red Guns");
  Give(guns, 2, truck, 4);
  Give(guns, 3, fieldGun, 3);
  Rifles(blue, 6, 5, "Blue Rifles", 10);
  Target(6, 5);
  Join(5, 5, 1);
  SeedRnd(12345);
  doAttack();
  EXPECT_TRUE(LogHas("Lost 0 transport vehicles while retreating."));
  EXPECT_TRUE(LogHas("Lost 0 artillery pieces while retreating."));
  EXPECT_EQ(Unit[guns].MobQty, 4);
  EXPECT_EQ(Unit[guns].ArtQty, 3);
}

// The same guns in a landing are obliterated: what remains of them is lost,
// the list is empty, and the landing's limit of 999 lets one empty round
// 1000 follow.
TEST_F(AftermathTest, TrucksAndGunsAreObliteratedInALanding) {
  const int guns = world::AddUnit(red, 1, 1, "Red Landing Guns");
  Hex[1][1].Unit[1] = 0;
  Unit[guns].Experience = 100;
  Give(guns, 2, truck, 4);
  Give(guns, 3, fieldGun, 3);
  const int guard = Rifles(blue, 6, 5, "Blue Rifles", 10);
  UI.Order.LandingOrder = 1;
  Target(6, 5);
  Join(6, 5, guns);
  SeedRnd(12345);
  doAttack();
  const std::vector<std::string> expected = {
      "COMBAT ROUND  1 RESULT:",
      "Defender lost  1 infantry.",
      "Red Landing Guns is obliterated.",
      "ATTACK / OFFENSIVE IS ABORTED DUE TO LOSSES.",
      "",
      "______________________________Battle Round  1000",
      "",
      " ",
      "ATTACKER lost:",
      "Trucks: 4",
      "Artillery: 3",
      " ",
      "DEFENDER lost:",
      "Infantery: 1",
  };
  EXPECT_EQ(LogFrom("COMBAT ROUND  1 RESULT:"), expected);
  // Soft defence 100 doubled on a landing beach, hard attack halved.
  EXPECT_TRUE(LogHas("SOFT DEFENSE:        200"));
  EXPECT_TRUE(LogHas("HARD ATTACK:        6"));
  EXPECT_TRUE(LogHas("Land Type Soft Mod: 100%"));
  EXPECT_TRUE(LogHas("Land Type Hard Mod: -50%"));
  EXPECT_EQ(Unit[guns].Regime, 0);
  EXPECT_EQ(Unit[guns].MobQty, 0);
  EXPECT_EQ(Unit[guns].ArtQty, 0);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(UI.AttackerSlot[1], 0);
  EXPECT_EQ(Unit[guard].InfQty, 9);
  EXPECT_EQ(CheckInvariants(), "");
}

// Shells destroy the last rifleman: the unit is gone, but nobody came to
// grips, so the hex stays Blue's. The battery is never fired at and never
// breaks off.
TEST_F(AftermathTest, ShellingNeverTakesTheHex) {
  const int battery = Put(red, 4, 5, "Red Battery");
  Give(battery, 3, longGun, 4);
  const int guard = Rifles(blue, 6, 5, "Blue Picket", 1);
  Target(6, 5);
  Join(4, 5, 1);
  doAttack();
  const std::vector<std::string> expected = {
      "_____________Red Battery Bombards Blue Picket",
      "",
      "Artillery attack from distance versus Land Unit",
      " ",
      "COMBAT ROUND  1 RESULT:",
      "Defender lost  1 infantery.",
      "OFFENSIVE SUCCESFULL",
      " ",
      "ATTACKER lost:",
      " ",
      "DEFENDER lost:",
      "Infantery: 1",
  };
  EXPECT_EQ(LogFrom("_____________Red Battery Bombards Blue Picket"), expected);
  EXPECT_EQ(Unit[guard].Regime, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], 0);
  EXPECT_EQ(Hex[6][5].Owner, blue);
  EXPECT_EQ(Unit[battery].ArtQty, 4);
  EXPECT_EQ(UI.AttackerCount, 1);
  // Blue's news: the shelling mark (7), the destroyed mark (9), the lost unit.
  EXPECT_EQ(News[blue][1].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][1].Mark, 7);
  EXPECT_EQ(News[blue][2].Mark, 9);
  EXPECT_EQ(News[blue][2].X, 6);
  EXPECT_EQ(News[blue][2].Y, 5);
  EXPECT_EQ(News[blue][3].Type, kNewsLost);
  EXPECT_EQ(News[blue][3].Text, "Blue Picket");
}

// A direct attack that clears the hex takes it, and the town's production
// goes.
TEST_F(AftermathTest, ADirectAttackTakesTheHex) {
  Hex[6][5].Pop = 500;
  Hex[6][5].Prod = 3;
  Hex[6][5].ProdSHQ = 77;
  const int a = Rifles(red, 5, 5, "Red Rifles", 30);
  Rifles(blue, 6, 5, "Blue Picket", 1);
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_TRUE(LogHas("OFFENSIVE SUCCESFULL"));
  EXPECT_EQ(Hex[6][5].Owner, red);
  EXPECT_EQ(Hex[6][5].Prod, 0);
  EXPECT_EQ(Hex[6][5].ProdSHQ, 0);
  EXPECT_EQ(Hex[5][5].Unit[1], a);  // the attackers do not move in
  EXPECT_EQ(Hex[6][5].Unit[1], 0);
  // The battle was shown, so the victory sounds.
  const auto sounds = platform.Sounds();
  EXPECT_EQ(sounds.back(), 32);
}

// An SHQ with stock, attacked directly, retreats in round 1. Draws: 0.9296
// thrown, 0.8902 the slot, 0.3164 for the attacker's lucky hit (none, the
// SHQ has no fire), five for the loss, then floor(0.5677 x 6) + 1 = 4: side
// 4, (7, 6), Blue's and empty. The stock line of 10 gives m = 4 to the
// tallies and loses exactly 1.
TEST_F(AftermathTest, AnHqWithStockRetreatsInRoundOne) {
  const int hq = Put(blue, 6, 5, "Blue HQ");
  Unit[hq].Shq = 1;
  Shq[blue][1].Unit = hq;
  Shq[blue][1].StockType[1] = rifle;
  Shq[blue][1].StockQty[1] = 10;
  const int a = Rifles(red, 5, 5, "Red Rifles", 20);
  Target(6, 5);
  Join(5, 5, 1);
  SeedRnd(12345);
  doAttack();
  const std::vector<std::string> expected = {
      "COMBAT ROUND  1 RESULT:",
      "Attacker lost  0 infantry.",
      "Blue HQ attempting to retreat",
      "Lost 4Rifles while retreating.",
      "DEFENDING UNIT HAS RETREATED.",
      "OFFENSIVE SUCCESFULL",
      " ",
      "ATTACKER lost:",
      " ",
      "DEFENDER lost:",
      "Infantery: 4",
  };
  EXPECT_EQ(LogFrom("COMBAT ROUND  1 RESULT:"), expected);
  EXPECT_EQ(Shq[blue][1].StockQty[1], 9);
  EXPECT_EQ(Regime[red].Kills[1], 4);
  EXPECT_EQ(Regime[blue].Losses[1], 4);
  EXPECT_EQ(Hex[7][6].Unit[1], hq);
  EXPECT_EQ(Hex[6][5].Unit[1], 0);
  EXPECT_EQ(Unit[hq].Readiness, 66);
  EXPECT_EQ(Unit[hq].Disruption, 20);
  EXPECT_EQ(Hex[6][5].Owner, red);
  EXPECT_EQ(Unit[a].InfQty, 20);
  EXPECT_EQ(CheckInvariants(), "");
}

// Without stock the SHQ stands in round 1 and dies in round 2; its units
// lose their boss and its number is free.
TEST_F(AftermathTest, AnHqWithoutStockDiesInRoundTwo) {
  const int hq = Put(blue, 6, 5, "Blue HQ");
  Unit[hq].Shq = 1;
  Shq[blue][1].Unit = hq;
  const int follower = Rifles(blue, 9, 9, "Blue Follower", 5);
  Unit[follower].Boss = hq;
  Rifles(red, 5, 5, "Red Rifles", 20);
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_FALSE(LogHas("Blue HQ attempting to retreat"));
  EXPECT_EQ(LogCount("_____________Red Rifles Engages Blue HQ"), 2);
  EXPECT_TRUE(LogHas("______________________________Battle Round  2"));
  EXPECT_FALSE(LogHas("______________________________Battle Round  3"));
  EXPECT_TRUE(LogHas("OFFENSIVE SUCCESFULL"));
  EXPECT_EQ(Unit[hq].Regime, 0);
  EXPECT_EQ(Shq[blue][1].Unit, 0);
  EXPECT_EQ(Unit[follower].Boss, 0);
  EXPECT_EQ(Hex[6][5].Owner, red);
  EXPECT_EQ(News[blue][2].Mark, 9);
  EXPECT_EQ(News[blue][3].Text, "Blue HQ");
  EXPECT_EQ(CheckInvariants(), "");
}

// 20 rifles lose 300 / 40 = 7 against 30 rifles: 130 is below 0.7 x 200,
// and they break off. Under an officer of retreat 30 (level (90 + 60 + 50) /
// 6 = 33) they hold on.
TEST_F(AftermathTest, TheOfficerSetsTheBreakOffThreshold) {
  EngineVar[533].Value = 0;
  const int a = Rifles(red, 5, 5, "Red Rifles", 20);
  Rifles(blue, 6, 5, "Blue Rifles", 30);
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_EQ(Unit[a].InfQty, 13);
  EXPECT_TRUE(LogHas("ATTACKING UNIT RETREATS"));

  Unit[a].InfQty = 20;
  Unit[a].Readiness = 100;
  Unit[a].Disruption = 0;
  Unit[a].Officer = 1;
  Officer[1].Regime = red;
  Officer[1].Retreat = 30;
  Unit[Hex[6][5].Unit[1]].InfQty = 30;
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_EQ(Unit[a].InfQty, 13);
  EXPECT_FALSE(LogHas("ATTACKING UNIT RETREATS"));
  EXPECT_EQ(UI.AttackerCount, 1);
}

// A unit without an infantry type measures its strength from the modified
// figures of the engagement, plus its other classes: 4 tanks at readiness 50
// attack with floor(24 x 0.5) = 12 and floor(40 x 0.5) = 20; losing 2 of
// them to a hard defence of 120 leaves 12 + 20 + 12 + 20 = 64, not below
// 0.7 x 64, and they fight on (the tanks' own 32 alone would have broken).
TEST_F(AftermathTest, WithoutAnInfantryTypeTheModifiedFiguresCount) {
  EngineVar[533].Value = 0;
  const int a = Put(red, 5, 5, "Red Tanks");
  Give(a, 4, tank, 4);
  Unit[a].Readiness = 50;
  const int d = Put(blue, 6, 5, "Blue Tanks");
  Give(d, 4, tank, 10);
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_TRUE(LogHas("SOFT ATTACK:        12"));
  EXPECT_TRUE(LogHas("HARD ATTACK:        20"));
  EXPECT_TRUE(LogHas("HARD DEFENSE:        120"));
  EXPECT_TRUE(LogHas("Attacker lost  2 armour."));
  EXPECT_EQ(Unit[a].ArmQty, 2);
  EXPECT_FALSE(LogHas("ATTACKING UNIT RETREATS"));
  EXPECT_EQ(UI.AttackerCount, 1);
  (void)d;
}

// A THQ that is destroyed leaves its formations without boss and badge,
// and its badge is free again; so does one that is obliterated attacking.
TEST_F(AftermathTest, ADestroyedThqIsTakenOutOfTheChain) {
  EngineVar[533].Value = 0;
  Rifles(red, 5, 5, "Red Rifles", 30);
  const int thq = Rifles(blue, 6, 5, "Blue THQ", 1);
  Unit[thq].Thq = 1;
  Unit[thq].ThqBadge = 4;
  Regime[blue].ThqBadgeUnit[4] = thq;
  const int follower = Rifles(blue, 9, 9, "Blue Follower", 5);
  Unit[follower].Boss = thq;
  Unit[follower].ThqBadge = 4;
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_EQ(Unit[thq].Regime, 0);
  EXPECT_EQ(Unit[follower].Boss, 0);
  EXPECT_EQ(Unit[follower].ThqBadge, 0);
  EXPECT_EQ(Regime[blue].ThqBadgeUnit[4], 0);
}

TEST_F(AftermathTest, AnObliteratedThqIsTakenOutOfTheChain) {
  EngineVar[533].Value = 0;
  const int thq = Rifles(red, 5, 5, "Red THQ", 1);
  Unit[thq].Thq = 1;
  Unit[thq].ThqBadge = 2;
  Regime[red].ThqBadgeUnit[2] = thq;
  const int follower = Rifles(red, 1, 1, "Red Follower", 5);
  Unit[follower].Boss = thq;
  Unit[follower].ThqBadge = 2;
  Rifles(blue, 6, 5, "Blue Wall", 40);  // 400 / 40: the one rifleman falls
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_TRUE(LogHas("Red THQ is obliterated."));
  EXPECT_EQ(Unit[thq].Regime, 0);
  EXPECT_EQ(Unit[follower].Boss, 0);
  EXPECT_EQ(Unit[follower].ThqBadge, 0);
  EXPECT_EQ(Regime[red].ThqBadgeUnit[2], 0);
  EXPECT_EQ(Hex[5][5].Unit[1], 0);
}

// A defender ringed by enemy land, sea, a mountain and a full hex cannot get
// away. 30 rifles under an officer of retreat 100 (level (300 + 200 + 50) /
// 6 = 91) against 40 rifles:
//   round 1: loses 320 / 40 = 8 -> 22; 264 < 360 x 0.91: no escape, readiness 90
//            the attacker loses 300 / 40 = 7 -> 33
//   round 2: loses 264 / 40 = 6 -> 16; no escape, readiness 81
//            the attacker loses floor(220 x 0.9) / 40 = 4 -> 29
//   round 3: loses 232 / 40 = 5 -> 11; 132 / 125 is still above 1: no escape, 72
//            the attacker loses floor(160 x 0.81) / 40 = 3 -> 26 and, at
//            260 below 400 x 0.7, breaks off; the list is empty.
TEST_F(AftermathTest, ARingedDefenderCannotEscape) {
  const int a = Rifles(red, 5, 5, "Red Rifles", 40);
  const int d = Rifles(blue, 6, 5, "Blue Rifles", 30);
  Unit[d].Officer = 1;
  Officer[1].Regime = blue;
  Officer[1].Retreat = 100;
  Hex[6][4].Land = kSea;
  Hex[7][4].Land = kMountain;
  for (int k = 0; k < 3; ++k) {
    const int cart = Put(blue, 7, 5, "Blue Carts");
    Give(cart, 2, truck, 1);
  }
  Hex[7][6].Owner = red;
  Hex[6][6].Owner = red;
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_EQ(LogCount("could not find an escape. "), 3);
  EXPECT_EQ(LogCount("Blue Rifles attempting to retreat"), 3);
  EXPECT_EQ(Unit[d].Readiness, 72);
  EXPECT_EQ(Unit[d].InfQty, 11);
  EXPECT_EQ(Unit[a].InfQty, 26);
  EXPECT_EQ(Hex[6][5].Unit[1], d);
  const std::vector<std::string> tail = {"Defender lost  5 infantry.",  "Attacker lost  3 infantry.",
                                         "ATTACKING UNIT RETREATS",     "Blue Rifles attempting to retreat",
                                         "could not find an escape. ", "ATTACK / OFFENSIVE IS ABORTED DUE TO LOSSES."};
  EXPECT_EQ(LogFrom("Defender lost  5 infantry.", 6), tail);
  EXPECT_EQ(Unit[a].Readiness, 80);
}

// A retreat: one attacker of 30 rifles against a column of 30 rifles, 4
// trucks and 2 guns under an officer of retreat 100 (t = 0.91), with a cart
// in slot 2. One draw is taken before the battle, so the draws are: 0.8902
// thrown, 0.3164 slot 1, the column loses 240 / 40 = 6 (five draws), the
// attacker 306 / 40 = 7 (five draws); 298 < 370 x 0.91 and 298 / 125 > 1:
// the start side is floor(0.4619 x 6) + 1 = 3, (7, 5), Blue's and free.
// Trucks lost floor(0.6532 x 4) = 2, five draws, guns floor(0.7477 x 2) = 1.
TEST_F(AftermathTest, ARetreatCostsVehiclesAndGuns) {
  EngineVar[533].Value = 0;
  Rifles(red, 5, 5, "Red Rifles", 30);
  const int column = Rifles(blue, 6, 5, "Blue Column", 30);
  Give(column, 2, truck, 4);
  Give(column, 3, fieldGun, 2);
  Unit[column].Officer = 1;
  Officer[1].Regime = blue;
  Officer[1].Retreat = 100;
  const int cart = Put(blue, 6, 5, "Blue Cart");
  Give(cart, 2, truck, 1);
  Target(6, 5);
  Join(5, 5, 1);
  SeedRnd(12345);
  Rnd();
  doAttack();
  const std::vector<std::string> expected = {
      "COMBAT ROUND  1 RESULT:",
      "Defender lost  6 infantry.",
      "Attacker lost  7 infantry.",
      "Blue Column attempting to retreat",
      "Lost 2 transport vehicles while retreating.",
      "Lost 1 artillery pieces while retreating.",
      "DEFENDING UNIT HAS RETREATED.",
      " ",
      "ATTACKER lost:",
      "Infantery: 7",
      " ",
      "DEFENDER lost:",
      "Infantery: 6",
      "Trucks: 2",
      "Artillery: 1",
  };
  EXPECT_EQ(LogFrom("COMBAT ROUND  1 RESULT:"), expected);
  EXPECT_EQ(Hex[7][5].Unit[1], column);
  EXPECT_EQ(Hex[6][5].Unit[1], cart);
  EXPECT_EQ(Hex[6][5].Unit[2], 0);
  EXPECT_EQ(Unit[column].Readiness, 66);
  EXPECT_EQ(Unit[column].Disruption, 20);
  EXPECT_EQ(Unit[column].MobQty, 2);
  EXPECT_EQ(Unit[column].ArtQty, 1);
  EXPECT_EQ(Regime[blue].Losses[2], 2);
  EXPECT_EQ(Regime[red].Kills[2], 0);
  EXPECT_EQ(CheckInvariants(), "");
}

// The search turns clockwise from the drawn side: side 3 is sea and side 4
// a Red hex, so side 5, (6, 6), takes the column.
TEST_F(AftermathTest, TheRetreatSearchTurnsClockwise) {
  EngineVar[533].Value = 0;
  Rifles(red, 5, 5, "Red Rifles", 30);
  const int column = Rifles(blue, 6, 5, "Blue Column", 30);
  Unit[column].Officer = 1;
  Officer[1].Regime = blue;
  Officer[1].Retreat = 100;
  Hex[7][5].Land = kSea;
  Hex[7][6].Owner = red;
  Target(6, 5);
  Join(5, 5, 1);
  SeedRnd(12345);
  Rnd();
  doAttack();
  EXPECT_TRUE(LogHas("DEFENDING UNIT HAS RETREATED."));
  EXPECT_EQ(Hex[6][6].Unit[1], column);
}

// A weak unit that wants to retreat stays without a word: 10 rifles losing
// 5 defend with 60, and 60 / 125 is not above 1.
TEST_F(AftermathTest, AWeakUnitStaysSilently) {
  EngineVar[533].Value = 0;
  Rifles(red, 5, 5, "Red Rifles", 25);
  const int d = Rifles(blue, 6, 5, "Blue Rifles", 10);
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_EQ(Unit[d].InfQty, 5);
  EXPECT_FALSE(LogHas("Blue Rifles attempting to retreat"));
  EXPECT_EQ(Hex[6][5].Unit[1], d);
}

// An obliterated attacker: the last entry is copied over its own, the pass
// steps back so that entry acts at once, and the stale copy at the end of
// the list acts again in the same round. The scout's slot is filled by B,
// whose entry is corrected.
TEST_F(AftermathTest, ObliterationCopiesTheLastEntry) {
  EngineVar[533].Value = 0;
  const int scout = Rifles(red, 5, 5, "Red Scout", 1);
  const int b = Rifles(red, 5, 5, "Red B", 30);
  Hex[6][4].Owner = red;
  const int c = Rifles(red, 6, 4, "Red C", 30);
  Rifles(blue, 6, 5, "Blue Wall", 150);
  Target(6, 5);
  Join(5, 5, 1);
  Join(5, 5, 2);
  Join(6, 4, 1);
  doAttack();
  const std::vector<std::string> order = {"Red Scout Engages Blue Wall", "Red C Engages Blue Wall",
                                          "Red B Engages Blue Wall", "Red C Engages Blue Wall"};
  EXPECT_EQ(EngagementsOfRound(1), order);
  EXPECT_TRUE(LogHas("Red Scout is obliterated."));
  EXPECT_EQ(Unit[scout].Regime, 0);
  EXPECT_EQ(Hex[5][5].Unit[1], b);
  EXPECT_EQ(Hex[5][5].Unit[2], 0);
  EXPECT_EQ(UI.AttackerCount, 2);
  EXPECT_EQ(UI.AttackerX[1], 6);
  EXPECT_EQ(UI.AttackerY[1], 4);
  EXPECT_EQ(UI.AttackerSlot[2], 1);  // B's entry follows it down
  EXPECT_EQ(UI.AttackerSlot[3], 1);  // the stale copy of C stays behind
  EXPECT_EQ(UI.AttackerX[3], 6);
  (void)c;
  EXPECT_EQ(CheckInvariants(), "");
}

// A unit that breaks off leaves by moving the later entries down: the next
// one misses the round, the last acts twice.
TEST_F(AftermathTest, BreakingOffMovesTheLaterEntriesDown) {
  EngineVar[533].Value = 1;
  Rifles(red, 5, 5, "Red A", 60);
  const int guns = Put(red, 5, 5, "Red Guns");
  Give(guns, 2, truck, 2);
  Give(guns, 3, fieldGun, 2);
  Hex[6][4].Owner = red;
  Rifles(red, 6, 4, "Red C", 60);
  Rifles(red, 6, 4, "Red D", 60);
  Rifles(blue, 6, 5, "Blue Wall", 200);
  Target(6, 5);
  Join(5, 5, 1);
  Join(5, 5, 2);
  Join(6, 4, 1);
  Join(6, 4, 2);
  doAttack();
  EXPECT_EQ(EngagementsOfRound(1),
            (std::vector<std::string>{"Red A Engages Blue Wall", "Red Guns Engages Blue Wall",
                                      "Red D Engages Blue Wall", "Red D Engages Blue Wall"}));
  EXPECT_EQ(EngagementsOfRound(2), (std::vector<std::string>{"Red A Engages Blue Wall", "Red C Engages Blue Wall",
                                                             "Red D Engages Blue Wall"}));
  EXPECT_EQ(LogCount("ATTACKING UNIT RETREATS"), 1);
  EXPECT_EQ(UI.AttackerCount, 3);
}

// Ships go down when nothing is left of them: the hex's owner gets the
// mark, the ship's regime the lost formation; the stack closes up.
TEST_F(AftermathTest, ASunkShipLeavesItsSlot) {
  EngineVar[533].Value = 0;
  Hex[5][5].Land = kSea;
  Hex[6][5].Land = kSea;
  const int fleet = Put(red, 5, 5, "Red Fleet");
  Give(fleet, 1, destroyer, 10);  // 100 against 1 destroyer of 50 hit points
  const int boat = Put(blue, 6, 5, "Blue Boat");
  Give(boat, 1, destroyer, 1);
  Hex[6][5].Owner = 0;
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_TRUE(LogHas("Defender lost  1 warships."));
  EXPECT_TRUE(LogHas("OFFENSIVE SUCCESFULL"));
  EXPECT_EQ(Unit[boat].Regime, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], 0);
  EXPECT_EQ(Hex[6][5].Owner, 0);  // the sea is nobody's to take
  // The round-1 mark from side 6 and the sinking, both to Blue, whose ship
  // stood there; then the lost ship.
  EXPECT_EQ(News[blue][1].Mark, 6);
  EXPECT_EQ(News[blue][2].Type, kNewsLost);
  EXPECT_EQ(News[blue][2].Text, "Blue Boat");
  EXPECT_EQ(News[blue][3].Mark, 9);
}

TEST_F(AftermathTest, AnEmptiedFleetIsObliterated) {
  EngineVar[533].Value = 0;
  Hex[5][5].Land = kSea;
  Hex[6][5].Land = kSea;
  const int fleet = Put(red, 5, 5, "Red Fleet");
  Give(fleet, 1, destroyer, 1);
  const int other = Put(red, 5, 5, "Red Tender");
  Give(other, 2, cargoShip, 1);
  const int battleship = NewType("Battleships", kSeaTheater, 1);
  SetAttr(battleship, {{kArtilleryAttack, 100}, {kHitPoints, 200}});
  const int wall = Put(blue, 6, 5, "Blue Battle Line");
  Give(wall, 1, battleship, 5);  // 500 against the destroyer's 50
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_TRUE(LogHas("Attacker lost  1 warships."));
  EXPECT_TRUE(LogHas("Red Fleet is obliterated."));
  EXPECT_TRUE(LogHas("ATTACK / OFFENSIVE IS ABORTED DUE TO LOSSES."));
  EXPECT_EQ(Unit[fleet].Regime, 0);
  EXPECT_EQ(Hex[5][5].Unit[1], other);
  EXPECT_EQ(Hex[5][5].Unit[2], 0);
  EXPECT_EQ(CheckInvariants(), "");
}

// Round 2 charges each attacker its MP and notes where it attacked from;
// every round after the first lowers a town's damage figure, once for each
// attacker.
TEST_F(AftermathTest, RoundTwoChargesMovementAndTownsHeal) {
  EngineVar[533].Value = 2;
  Hex[6][5].Pop = 800;
  Hex[6][5].Damage = 40;
  const int a = Rifles(red, 5, 5, "Red A", 10);
  Hex[6][4].Owner = red;
  const int b = Rifles(red, 6, 4, "Red B", 10);
  Unit[b].MP = 2;
  Sandbags(blue, 6, 5, "Blue Wall", 5);
  Target(6, 5);
  Join(5, 5, 1);
  Join(6, 4, 1);
  doAttack();
  EXPECT_TRUE(LogHas("______________________________Battle Round  3"));
  EXPECT_EQ(Unit[a].MP, 1);  // 10 - 2 = 8, held to row 535
  EXPECT_EQ(Unit[b].MP, 0);  // 2 - 2
  EXPECT_EQ(Unit[a].FromX, 6);
  EXPECT_EQ(Unit[a].FromY, 5);
  // 40 -> 34 -> 28 in round 2, 28 -> 23 -> 19 in round 3.
  EXPECT_EQ(Hex[6][5].Damage, 19);
}

// Every attacker marks the defender's map in round 1 with its side, or 7 when
// it shells.
TEST_F(AftermathTest, RoundOneMarksForTheDefender) {
  EngineVar[533].Value = 0;
  Rifles(red, 5, 5, "Red A", 10);
  Hex[6][4].Owner = red;
  Rifles(red, 6, 4, "Red B", 10);
  const int battery = Put(red, 4, 5, "Red Battery");
  Give(battery, 3, longGun, 1);
  Sandbags(blue, 6, 5, "Blue Wall", 5);
  Target(6, 5);
  Join(5, 5, 1);
  Join(6, 4, 1);
  Join(4, 5, 1);
  doAttack();
  for (int n = 1; n <= 3; ++n) {
    EXPECT_EQ(News[blue][n].Type, kNewsMapMark);
    EXPECT_EQ(News[blue][n].X, 6);
    EXPECT_EQ(News[blue][n].Y, 5);
  }
  EXPECT_EQ(News[blue][1].Mark, 6);
  EXPECT_EQ(News[blue][2].Mark, 1);
  EXPECT_EQ(News[blue][3].Mark, 7);
  EXPECT_EQ(News[blue][4].Type, 0);
  EXPECT_EQ(News[red][1].Type, 0);
}

// The tallies print every class by its name, the side to move first.
TEST_F(AftermathTest, TheClosingTallies) {
  EngineVar[533].Value = 0;
  Rifles(red, 5, 5, "Red A", 10);
  Rifles(blue, 6, 5, "Blue Wall", 100);
  Target(6, 5);
  Join(5, 5, 1);
  AttackerLost[5] = 2;
  doAttack();  // the battle starts from zero
  EXPECT_EQ(AttackerLost[5], 0);
  ZeroBattleTallies();
  const int names[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
  for (int k : names) {
    AttackerLost[k] = k;
    DefenderLost[k] = 100 + k;
  }
  TheBattleWindow().lines.clear();
  LogTallies();
  const std::vector<std::string> expected = {
      " ",
      "ATTACKER lost:",
      "Infantery: 1",
      "Trucks: 2",
      "Artillery: 3",
      "Armour: 4",
      "Warships: 5",
      "Cargoships: 6",
      "Carriers: 7",
      "Subs: 8",
      "Fighters: 9",
      "Transporters: 10",
      "Bombers: 11",
      "Rockets: 12",
      " ",
      "DEFENDER lost:",
      "Infantery: 101",
      "Trucks: 102",
      "Artillery: 103",
      "Armour: 104",
      "Warships: 105",
      "Cargoships: 106",
      "Carriers: 107",
      "Subs: 108",
      "Fighters: 109",
      "Transporters: 110",
      "Bombers: 111",
      "Rockets: 112",
  };
  EXPECT_EQ(Log(), expected);
}

TEST_F(AftermathTest, NothingHappensWithoutAttackers) {
  Rifles(blue, 6, 5, "Blue Wall", 100);
  Target(6, 5);
  TheBattleWindow().lines = {"old"};
  doAttack();
  EXPECT_EQ(Log(), std::vector<std::string>{"old"});
  EXPECT_FLOAT_EQ(Rnd(), 0.9296160f);  // not even the thrown-away draw
}

}  // namespace
}  // namespace mf::test
