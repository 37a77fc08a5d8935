// Research, the best type of each cell, the wants and shares of an SHQ and
// the new orders of its towns under seeded draws, on maps worked by hand.
#include <gtest/gtest.h>

#include "ai/production.h"
#include "logistics_test_util.h"
#include "model/rnd.h"

namespace mf::test {
namespace {

class Production : public LogisticsTest {
 protected:
  // The types of every cell the computer builds from, with round figures.
  void MakeTypes() {
    rifles = MakeType("Rifles", kLandTheater, 1);
    Type[rifles].Attr[kWeight] = 1;
    Type[rifles].Attr[kSoftAttack] = 10;
    trucks = MakeType("Trucks", kLandTheater, 2);
    Type[trucks].Attr[kCarryCap] = 10;
    guns = MakeType("Guns", kLandTheater, 3);
    Type[guns].Attr[kArtilleryAttack] = 20;
    tanks = MakeType("Tanks", kLandTheater, 4);
    Type[tanks].Attr[kHardAttack] = 30;
    warships = MakeType("Warships", kSeaTheater, 1);
    Type[warships].Attr[kHitPoints] = 50;
    cargo = MakeType("Cargoships", kSeaTheater, 2);
    Type[cargo].Attr[kCarryCap] = 10;
    fighters = MakeType("Fighters", kAirTheater, 1);
    Type[fighters].Attr[kDogfight] = 40;
    bombers = MakeType("Bombers", kAirTheater, 3);
    Type[bombers].Attr[kSoftAttack] = 25;
  }
  int rifles = 0, trucks = 0, guns = 0, tanks = 0, warships = 0, cargo = 0, fighters = 0, bombers = 0;
};

// ---- Research ----------------------------------------------------------------

class Research_ : public Production {
 protected:
  void SetUp() override {
    Production::SetUp();
    MakeMap(10, 10);
    Research[1].Cost = 5;
    Research[2].Cost = 50;
    Research[3].Cost = 0;  // not on offer
    Research[4].Cost = 1;
    Regime[us].Research[4] = 1;  // known
    Research[5].Cost = 20;
    Research[5].Need1 = 2;  // needs field 2, which is not asked
    Regime[us].PP = 60;
  }
};

TEST_F(Research_, WithNeutralTownsLeftNothingIsResearched) {
  Town(5, 5, 0, "Freeburg", 400);
  SeedRnd(4);  // a first draw of 0.967
  AIResearch();
  EXPECT_EQ(Regime[us].PP, 60);
  EXPECT_EQ(Regime[us].Research[1], 0);
}

TEST_F(Research_, ADrawBelowFourFifthsBuysNothing) {
  SeedRnd(1);  // a first draw of 0.417
  AIResearch();
  EXPECT_EQ(Regime[us].PP, 60);
  EXPECT_EQ(Regime[us].Research[1], 0);
}

TEST_F(Research_, OtherwiseEveryFieldItCanPayWithTenToSpareIsBought) {
  SeedRnd(4);  // 0.967
  AIResearch();
  // Field 1: 5 + 10 < 60, paid: 55 left. Field 2: 60 is not below 55.
  // Field 5: 30 < 55, paid although field 2 is missing: 35 left.
  EXPECT_EQ(Regime[us].Research[1], 1);
  EXPECT_EQ(Regime[us].Research[2], 0);
  EXPECT_EQ(Regime[us].Research[3], 0);
  EXPECT_EQ(Regime[us].Research[5], 1);
  EXPECT_EQ(Regime[us].PP, 35);
}

// ---- Best types -------------------------------------------------------------

TEST_F(Production, BestTypeTakesTheGreatestFigureAndTheFirstOfEquals) {
  MakeMap(10, 10);
  auto land1 = [&](const std::string& name, int soft) {
    const int t = MakeType(name, kLandTheater, 1);
    Type[t].Attr[kSoftAttack] = soft;
    return t;
  };
  land1("Levy", 10);
  const int locked = land1("Guard", 12);
  Type[locked].Research = 7;  // not known
  const int foreign = land1("Legion", 12);
  Type[foreign].Owning[1] = 0;  // our people may not own it
  const int first = land1("Rifles", 11);
  land1("Carbines", 11);
  // Artillery counts its range a thousandfold on land.
  const int howitzer = MakeType("Howitzer", kLandTheater, 3);
  Type[howitzer].Attr[kArtilleryAttack] = 20;
  Type[howitzer].Attr[kArtilleryRange] = 1;
  const int mortar = MakeType("Mortar", kLandTheater, 3);
  Type[mortar].Attr[kArtilleryAttack] = 500;
  const int fighter = MakeType("Fighter", kAirTheater, 1);
  Type[fighter].Attr[kDogfight] = 3;

  AIBestType();
  const std::vector<std::string>& log = platform.AnalysisLines();
  ASSERT_EQ(log.size(), 12u);
  EXPECT_EQ(log[0], "Theater= 0, Type= 1 = Rifles");
  EXPECT_EQ(log[2], "Theater= 0, Type= 3 = Howitzer");
  EXPECT_EQ(log[5], "Theater= 1, Type= 2 = ");
  EXPECT_EQ(log[8], "Theater= 2, Type= 1 = Fighter");
  EXPECT_EQ(AI.BestType[0][1], first);
  EXPECT_EQ(AI.BestType[0][3], howitzer);  // 1020 against 500
  EXPECT_EQ(AI.BestType[2][1], fighter);
  EXPECT_EQ(AI.BestType[1][2], 0);
  EXPECT_EQ(AI.BestType[0][2], 0);
}

// ---- Wants and shares ---------------------------------------------------------

class Wants : public Production {
 protected:
  // Area 1 (columns 1-4) is ours with the SHQ; area 2 (5-8) is Theirland's
  // across a land border; area 3 (9-12) is Theirland's on another landmass.
  void SetUp() override {
    Production::SetUp();
    MakeMap(12, 8);
    MakeTypes();
    for (int x = 5; x <= 12; ++x)
      for (int y = 1; y <= 8; ++y) Hex[x][y].Owner = them;
    Area(1, 1, 4, 1, 8);
    Area(2, 5, 8, 1, 8);
    Area(3, 9, 12, 1, 8);
    AI.AreaLandmass[1] = AI.AreaLandmass[2] = 1;
    AI.AreaLandmass[3] = 2;
    AI.AreaLandBorder[1][2] = AI.AreaLandBorder[2][1] = 3;
    AI.AreaX[3] = 10, AI.AreaY[3] = 4;
    q = world::AddShq(us, 1, 1, 1, "SHQ Home");
    AI.AreaShq[1] = q;
    Town(2, 2, us, "Ourtown", 1000);
  }
  int q = 0;
};

TEST_F(Wants, OneShqWithALandAndASeaFront) {
  Front(1, 2, 600, 100, 3);
  Front(1, 3, 400, 50, 3);
  // Easy target across the water and no transports at all: sea plan 1.
  AI.AreaEnemyStrength[3] = 10;
  AI.AreaOwnStrength[1] = 100;
  // Ten riflemen of the land front on foot: carrying percent 100 x 1 / 11 = 9.
  const int foot = world::AddUnit(us, 3, 3, "1st Corps", rifles, 10);
  Unit[foot].Front = 1;
  // Theirland flies 10 fighters and 4 bombers.
  const int wing = world::AddUnit(them, 6, 6, "Their Wing", fighters, 10);
  Unit[wing].Theater = kAirTheater;
  Unit[wing].ArtType = bombers;
  Unit[wing].ArtQty = 4;
  // No new orders: the town is skipped by a supply ratio of 0.
  AI.SupplyRatio = 0;

  AIProduction();
  // Land front, stance 3, W 600: infantry 200, armour 200, bombers 120, guns 120.
  // Sea front, plan 1, W 400: transports 4000; the regime's 10 weight of land
  // troops is more than three times its lift of 0, so they stay.
  // Fighters: (12 - 0) x (5 + 12 / 3) = 108. Trucks: 600 / 4 for the walkers.
  // Total 4898.
  EXPECT_FLOAT_EQ(AI.TypeWant[0][1], 200);
  EXPECT_FLOAT_EQ(AI.TypeWant[0][2], 150);
  EXPECT_FLOAT_EQ(AI.TypeWant[0][3], 120);
  EXPECT_FLOAT_EQ(AI.TypeWant[0][4], 200);
  EXPECT_FLOAT_EQ(AI.TypeWant[1][2], 4000);
  EXPECT_FLOAT_EQ(AI.TypeWant[2][1], 108);
  EXPECT_FLOAT_EQ(AI.TypeWant[2][3], 120);
  EXPECT_EQ(AI.TypeShare[0][1], 40);   // 200000 / 4898 = 40.8
  EXPECT_EQ(AI.TypeShare[0][2], 30);   // 30.6
  EXPECT_EQ(AI.TypeShare[0][3], 24);   // 24.5
  EXPECT_EQ(AI.TypeShare[0][4], 40);
  EXPECT_EQ(AI.TypeShare[1][1], 0);
  EXPECT_EQ(AI.TypeShare[1][2], 816);  // 816.7
  EXPECT_EQ(AI.TypeShare[2][1], 22);   // 22.05
  EXPECT_EQ(AI.TypeShare[2][3], 24);
  EXPECT_EQ(Hex[2][2].Prod, 0);
  // After the twelve best types, a line for each cell that is wanted.
  const std::vector<std::string>& log = platform.AnalysisLines();
  ASSERT_EQ(log.size(), 19u);
  EXPECT_EQ(std::vector<std::string>(log.begin() + 12, log.end()),
            (std::vector<std::string>{"Typ=Rifles, C=40%%", "Typ=Trucks, C=30%%", "Typ=Guns, C=24%%",
                                      "Typ=Tanks, C=40%%", "Typ=Cargoships, C=816%%", "Typ=Fighters, C=22%%",
                                      "Typ=Bombers, C=24%%"}));
}

TEST_F(Wants, FightersAreCappedAt200AndBombersAskForEscorts) {
  Front(1, 2, 100, 100, 1);
  const int wing = world::AddUnit(them, 6, 6, "Their Wing", fighters, 30);
  Unit[wing].Theater = kAirTheater;
  // Own bombers in our area with 1 fighter: 30 > 1 foreign; 8 > 4 x 1.
  const int ours = world::AddUnit(us, 2, 3, "1st Corps", fighters, 1);
  Unit[ours].Theater = kAirTheater;
  Unit[ours].ArtType = bombers;
  Unit[ours].ArtQty = 8;
  AI.SupplyRatio = 0;
  AIProduction();
  // (30 - 1) x (5 + 10) = 435, + 100, held to 200.
  EXPECT_FLOAT_EQ(AI.TypeWant[2][1], 200);
}

TEST_F(Wants, AnShqWithoutFrontsWantsNothingAndEndsProductionForTheShqsAfterIt) {
  // A second SHQ further east serves area 2 with a front; ours, found first,
  // has no front of its own.
  for (int x = 5; x <= 8; ++x)
    for (int y = 1; y <= 8; ++y) Hex[x][y].Owner = us;
  const int east = world::AddShq(us, 6, 1, 2, "SHQ East");
  AI.AreaShq[2] = east;
  Town(7, 3, us, "Easton", 800);
  Hex[7][3].Prod = rifles;
  Front(2, 3, 500, 100, 1);
  AI.SupplyRatio = 1;
  SeedRnd(5);
  const float first = Rnd();
  SeedRnd(5);

  AIProduction();
  for (int t = 0; t < kAITheaters; ++t)
    for (int c = 1; c <= kAIClasses; ++c) EXPECT_EQ(AI.TypeShare[t][c], 0);
  EXPECT_EQ(Hex[7][3].Prod, rifles);
  // Not a single draw was made.
  EXPECT_EQ(Rnd(), first);
}

// ---- New orders -----------------------------------------------------------------

class Orders : public Wants {
 protected:
  // A land front in stance 4 with weight 400: infantry 100, armour 200,
  // bombers 100, guns 40 of 440: shares 227, 454, 227 and 90. Three towns of
  // 3000 people in all: Keep is well on with rifles and takes 1000 x 1000 /
  // 3000 = 333 off the infantry share, which stops at 0; the sum is then 771.
  void SetUp() override {
    Wants::SetUp();
    Hex[2][2] = HexRec{};
    Hex[2][2].Land = kGrass;
    Hex[2][2].Owner = us;
    Hex[2][2].Area = 1;
    Front(1, 2, 400, 100, 4);
    Town(2, 1, us, "Keep", 1000);
    Hex[2][1].ProdPts = 1500;
    Hex[2][1].Prod = rifles;
    Town(2, 4, us, "Ash", 800);
    Town(3, 2, us, "Birch", 1200);
    Hex[3][2].Prod = warships;
    Town(12, 8, 0, "Freeburg", 100);  // neutral
    AI.SupplyRatio = 0.5;
  }
};

TEST_F(Orders, ATownWellOnItsWayKeepsItsOrderAndTheDrawsPickTheRest) {
  // Draws of seed 3: 0.551 (Ash: not below the ratio 0.5, no order), 0.071
  // (Birch: an order), 0.708 (above 0.1), 0.840: 0.840 x 771 = 647.6 lies
  // beyond guns (90) and armour (544) in the bombers' cell (771).
  SeedRnd(3);
  AIProduction();
  EXPECT_EQ(Hex[2][1].Prod, rifles);
  EXPECT_EQ(Hex[2][4].Prod, 0);
  EXPECT_EQ(Hex[3][2].Prod, bombers);
  EXPECT_EQ(platform.AnalysisLines().back(), "Birch, Prod = Bombers");
  EXPECT_EQ(AI.TypeShare[0][1], 0);
  EXPECT_EQ(AI.TypeShare[0][3], 90);
  EXPECT_EQ(AI.TypeShare[0][4], 454);
  // Birch's 1200 take 400 off the bombers' 227.
  EXPECT_EQ(AI.TypeShare[2][3], 0);
}

TEST_F(Orders, NeutralTownsKeepTheComputerBuildingWhateverTheSecondDraw) {
  // Seed 10: 0.771 (Ash: none), 0.299 (Birch: an order), 0.021 (not above
  // 0.1, but Freeburg is still neutral), 0.495 x 771 = 381 lands in armour.
  SeedRnd(10);
  AIProduction();
  EXPECT_EQ(Hex[3][2].Prod, tanks);
  EXPECT_EQ(AI.TypeShare[0][4], 54);  // 454 - 400
}

TEST_F(Orders, WithoutNeutralTownsALowSecondDrawMakesPoliticalPoints) {
  Hex[12][8] = HexRec{};
  Hex[12][8].Land = kGrass;
  Hex[12][8].Owner = them;
  SeedRnd(10);
  AIProduction();
  EXPECT_EQ(Hex[3][2].Prod, 0);
  EXPECT_EQ(platform.AnalysisLines().back(), "Birch, Prod = PP");
}

TEST_F(Orders, TheComputerBuildsOnlyWhileItHasMoreThanTenPoints) {
  Regime[us].PP = 10;
  SeedRnd(3);
  AIProduction();
  EXPECT_EQ(Hex[3][2].Prod, 0);

  Hex[3][2].Prod = warships;
  Regime[us].PP = 11;
  SeedRnd(3);
  AIProduction();
  EXPECT_EQ(Hex[3][2].Prod, bombers);
}

TEST_F(Orders, AnShqNeedingLandTroopsMakesItsNextTownBuildInfantry) {
  AI.ShqNeedsLand[1] = 1;
  SeedRnd(3);
  AIProduction();
  EXPECT_EQ(Hex[3][2].Prod, rifles);
  // The log tells the choice before the call for infantry overrode it.
  EXPECT_EQ(platform.AnalysisLines().back(), "Birch, Prod = Bombers");
  EXPECT_EQ(AI.ShqNeedsLand[1], 0);
  // The infantry's share was 0 already; the bombers' stays.
  EXPECT_EQ(AI.TypeShare[2][3], 227);
}

TEST_F(Orders, APeopleThatCannotMakeTheTypeMakesTheFirstInfantryItCan) {
  // Birch's people (2) can make neither bombers nor rifles; the first land
  // infantry type they can make and we may own is the levy.
  Type[bombers].Living[2] = 0;
  Type[rifles].Living[2] = 0;
  const int militia = MakeType("Militia", kLandTheater, 1);
  Type[militia].Owning[1] = 0;
  const int levy = MakeType("Levy", kLandTheater, 1);
  MakeType("Yeomen", kLandTheater, 1);
  Hex[3][2].People = 2;
  SeedRnd(3);
  AIProduction();
  EXPECT_EQ(Hex[3][2].Prod, levy);
}

class Port : public Wants {
 protected:
  // Column 1 is sea beside Port (2, 4). A land front in stance 1 (weight 300)
  // wants infantry 300; a sea front (weight 100) with one transport (lift 10)
  // against 100 weight of troops wants transports 100 (plan 0): shares 750
  // and 250.
  void SetUp() override {
    Wants::SetUp();
    Hex[2][2] = HexRec{};
    Hex[2][2].Land = kGrass;
    Hex[2][2].Owner = us;
    Hex[2][2].Area = 1;
    for (int y = 1; y <= 8; ++y) Hex[1][y].Land = kSea;
    Hex[1][1].Land = kGrass;  // the SHQ's hex
    Front(1, 2, 300, 100, 1);
    const int sea = Front(1, 3, 100, 50, 3);
    const int ship = world::AddUnit(us, 1, 3, "1st Fleet");
    Unit[ship].Theater = kSeaTheater;
    Unit[ship].MobType = cargo;
    Unit[ship].MobQty = 1;
    Unit[ship].Front = sea;
    world::AddUnit(us, 3, 3, "1st Corps", rifles, 100);
    Town(2, 4, us, "Port", 500);
    AI.SupplyRatio = 1;
  }
};

TEST_F(Port, APortTakesShipsFirst) {
  // Seed 2: 0.436 (an order), 0.185 (above 0.1), 0.026 x 1000 = 26: among the
  // sea cells the transports' (250) reach it.
  SeedRnd(2);
  AIProduction();
  EXPECT_EQ(Hex[2][4].Prod, cargo);
  // Port holds all the SHQ's people: the transports' share falls to 0.
  EXPECT_EQ(AI.TypeShare[0][1], 750);
  EXPECT_EQ(AI.TypeShare[1][2], 0);
}

TEST_F(Port, APortTakesLandTypesFromTheSixthTry) {
  // Seed 7: 0.076, 0.227, then 780, 319, 438, 978, 724: all beyond the 250 of
  // the sea cells in the first five tries; the sixth, 456, falls in infantry.
  SeedRnd(7);
  AIProduction();
  EXPECT_EQ(Hex[2][4].Prod, rifles);
}

// ---- Sea plan and sea lift ------------------------------------------------------

TEST_F(Wants, SeaPlanByLiftAndWeight) {
  const int f = Front(1, 3, 100, 50, 3);
  // No lift, a soft target: 1.
  AI.AreaEnemyStrength[3] = 10;
  AI.AreaOwnStrength[1] = 51;
  EXPECT_EQ(AISeaPlan(f), 1);
  // No lift, no soft target, no weight: 0 is not above 0, and 0 not above 0: 2.
  AI.AreaOwnStrength[1] = 50;
  EXPECT_EQ(AISeaPlan(f), 2);
  // A transport of lift 10 in the area and 31 weight of troops: 0.
  const int ship = world::AddUnit(us, 4, 8, "1st Fleet");
  Unit[ship].Theater = kSeaTheater;
  Unit[ship].MobType = cargo;
  Unit[ship].MobQty = 1;
  const int foot = world::AddUnit(us, 3, 3, "1st Corps", rifles, 31);
  EXPECT_EQ(AISeaPlan(f), 0);
  // 30: not above three times the lift, but above it: 3.
  Unit[foot].InfQty = 30;
  EXPECT_EQ(AISeaPlan(f), 3);
  // 10: 2.
  Unit[foot].InfQty = 10;
  EXPECT_EQ(AISeaPlan(f), 2);
}

TEST_F(Wants, SeaLiftTurnsTheWishForTransportsIntoTroopsAndAircraft) {
  const int ship = world::AddUnit(us, 4, 8, "1st Fleet");
  Unit[ship].Theater = kSeaTheater;
  Unit[ship].MobType = cargo;
  Unit[ship].MobQty = 1;
  const int foot = world::AddUnit(us, 3, 3, "1st Corps", rifles, 30);
  AI.TypeWant[1][2] = 100;
  AI.TypeWant[0][1] = 5;
  AISeaLift();  // 30 weight against 3 x 10 lift
  EXPECT_FLOAT_EQ(AI.TypeWant[0][1], 80);
  EXPECT_FLOAT_EQ(AI.TypeWant[0][2], 25);
  EXPECT_FLOAT_EQ(AI.TypeWant[2][3], 50);
  EXPECT_FLOAT_EQ(AI.TypeWant[1][2], 0);

  Unit[foot].InfQty = 31;
  AI.TypeWant[1][2] = 100;
  AISeaLift();
  EXPECT_FLOAT_EQ(AI.TypeWant[1][2], 100);
}

}  // namespace
}  // namespace mf::test
