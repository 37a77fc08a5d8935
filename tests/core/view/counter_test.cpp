// Counter pictures, THQ badges and the figures printed on counters, with
// numbers worked out by hand.
#include "view/counter.h"

#include <gtest/gtest.h>

#include <string>

#include "model/rnd.h"
#include "support/core_test.h"
#include "view/canvas.h"

namespace mf {
namespace {

using test::CoreTest;

class CounterTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    test::world::NewMap(10, 10);
    mine = test::world::AddRegime("Red");
    other = test::world::AddRegime("Blue");
    Regime[mine].HexSprite = 2;
    Regime[other].HexSprite = 4;
    Game.CurRegime = mine;
    Game.Turn = 1;
    UI.EditMode = 0;

    rifles = Make("Rifles", kLandTheater, 1, 10);
    Type[rifles].Attr[kWeight] = 1;
    trucks = Make("Trucks", kLandTheater, 2, 20);
    Type[trucks].Attr[kCarryCap] = 10;
    guns = Make("Howitzers", kLandTheater, 3, 50);
    Type[guns].Attr[kArtilleryRange] = 3;
    fieldGuns = Make("Field guns", kLandTheater, 3, 50);
    Type[fieldGuns].Attr[kArtilleryRange] = 1;
    tanks = Make("Tanks", kLandTheater, 4, 100);
  }

  int Make(const std::string& name, int theater, int cls, int cost) {
    const int t = test::world::AddType(name, theater, cls);
    Type[t].Cost = cost;
    return t;
  }

  // A formation of Blue, seen as the foreign formation it is but without fog.
  int Foreign(int x = 5, int y = 5) { return test::world::AddUnit(other, x, y, "Blue formation"); }

  void Troops(int u, int inf, int infQty, int mob, int mobQty, int art, int artQty, int arm, int armQty) {
    Unit[u].InfType = inf;
    Unit[u].InfQty = infQty;
    Unit[u].MobType = mob;
    Unit[u].MobQty = mobQty;
    Unit[u].ArtType = art;
    Unit[u].ArtQty = artQty;
    Unit[u].ArmType = arm;
    Unit[u].ArmQty = armQty;
  }

  int mine = 0, other = 0;
  int rifles = 0, trucks = 0, guns = 0, fieldGuns = 0, tanks = 0;
};

// ---- Families --------------------------------------------------------------------

TEST_F(CounterTest, HeadquartersShipsAndAircraft) {
  // Blue's colour 4: family f is 180 + 20 f + 4.
  const int shq = Foreign();
  Unit[shq].Shq = 1;
  Unit[shq].Theater = kSeaTheater;  // an SHQ is an SHQ first
  Counter(shq);
  EXPECT_EQ(Unit[shq].CounterPic, 244);
  const int thq = Foreign();
  Unit[thq].Thq = 1;
  Counter(thq);
  EXPECT_EQ(Unit[thq].CounterPic, 224);
  const int ship = Foreign();
  Unit[ship].Theater = kSeaTheater;
  Counter(ship);
  EXPECT_EQ(Unit[ship].CounterPic, 324);
  const int wing = Foreign(6, 6);
  Unit[wing].Theater = kAirTheater;
  Counter(wing);
  EXPECT_EQ(Unit[wing].CounterPic, 344);
}

TEST_F(CounterTest, TheCostliestClassDecides) {
  const int u = Foreign();
  // Rifles 10 x 10 = 100 against trucks 20 x 5 = 100: the tie goes to the
  // trucks, tested first, family 1. Load 10 x 1 + 1 over carry 5 x 10 + 1 is
  // below 1: they ride.
  Troops(u, rifles, 10, trucks, 5, 0, 0, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 204);
  // Howitzers 50 x 3 = 150: artillery, family 5.
  Troops(u, rifles, 10, trucks, 5, guns, 3, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 284);
  // Tanks 100 x 2 = 200: armour, family 6.
  Troops(u, rifles, 10, trucks, 5, guns, 3, tanks, 2);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 304);
}

TEST_F(CounterTest, TiesGoToTheClassTestedFirst) {
  const int u = Foreign();
  // Howitzers 50 x 2 = 100 against tanks 100 x 1 = 100: artillery is tested before armour.
  Troops(u, 0, 0, 0, 0, guns, 2, tanks, 1);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 284);
  // Tanks 100 against rifles 10 x 10 = 100: armour before infantry.
  Troops(u, rifles, 10, 0, 0, 0, 0, tanks, 1);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 304);
}

TEST_F(CounterTest, ShortRangeGunsDoNotMakeAnArtilleryCounter) {
  const int u = Foreign();
  // Field guns 50 x 3 = 150 would outweigh the rifles, but range 1 does not count.
  Troops(u, rifles, 10, trucks, 5, fieldGuns, 3, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 204);
}

TEST_F(CounterTest, FootTroopsWhenTheLoadOutweighsTheTransport) {
  const int u = Foreign();
  Type[rifles].Attr[kWeight] = 2;
  // Load 10 x 2 = 20, carry 2 x 10 = 20: (20 + 1) / (20 + 1) = 1, not above 1.
  Troops(u, rifles, 10, trucks, 2, 0, 0, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 204);
  // Load 11 x 2 = 22: 23 / 21 is above 1: foot, family 4.
  Troops(u, rifles, 11, trucks, 2, 0, 0, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 264);
  // Artillery is load too: field guns of weight 3, one piece: (20 + 3 + 1) / 21.
  Type[fieldGuns].Attr[kWeight] = 3;
  Troops(u, rifles, 10, trucks, 2, fieldGuns, 1, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 264);
  // Tanks carry as well: rifles 11 (cost 110, deciding) of weight 2 = 22,
  // one tank of carry 22: 23 / 23 = 1.
  Type[tanks].Attr[kCarryCap] = 22;
  Troops(u, rifles, 11, 0, 0, 0, 0, tanks, 1);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 204);
  // No troops at all: 1 / 1, family 1.
  Troops(u, 0, 0, 0, 0, 0, 0, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 204);
}

TEST_F(CounterTest, OverrideOfAHeldClassReplacesTheFamily) {
  const int u = Foreign();
  Type[rifles].Override = 3;
  Troops(u, rifles, 10, trucks, 5, 0, 0, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 244);
  // The last held class with an override, in the order infantry, mobile,
  // artillery, armour, wins: tanks' family 9 -> 180 + 180 + 4.
  Type[tanks].Override = 9;
  Troops(u, rifles, 10, trucks, 5, 0, 0, tanks, 1);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 364);
  // A class with a type but no pieces holds nothing.
  Troops(u, rifles, 10, trucks, 5, 0, 0, tanks, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 244);
  // Ships and aircraft take it as well.
  const int ship = Foreign(6, 6);
  Unit[ship].Theater = kSeaTheater;
  const int cruiser = Make("Cruiser", kSeaTheater, 1, 300);
  Type[cruiser].Override = 8;
  Troops(ship, cruiser, 2, 0, 0, 0, 0, 0, 0);
  Counter(ship);
  EXPECT_EQ(Unit[ship].CounterPic, 344);
}

TEST_F(CounterTest, OverrideFromFourHundredUpIsTheSpriteItself) {
  const int u = Foreign();
  Type[guns].Override = 404;  // extra counter 4, rocket artillery
  Troops(u, rifles, 10, 0, 0, guns, 1, 0, 0);
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 404);
  Type[guns].Override = 528;  // a type picture
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 528);
}

TEST_F(CounterTest, OwnFormationsShowChainAndSupplyMarks) {
  // Red's colour 2; Red is the current regime.
  const int shq = test::world::AddUnit(mine, 2, 2, "Army HQ");
  Unit[shq].Shq = 1;
  Unit[shq].SupplyPct = 0;  // an empty stock, not a percentage
  const int u = test::world::AddUnit(mine, 3, 3, "Rifles");
  Troops(u, rifles, 10, trucks, 5, 0, 0, 0, 0);

  // Linked and supplied: the regime colour.
  Unit[u].Boss = shq;
  Unit[u].SupplyPct = 100;
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 202);
  // Without a boss: not coloured, 180 + 20 + 20.
  Unit[u].Boss = 0;
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 220);
  // Out of supply: 180 + 20 + 19.
  Unit[u].Boss = shq;
  Unit[u].SupplyPct = 0;
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 219);
  // Both: the supply mark shows.
  Unit[u].Boss = 0;
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 219);
  // The SHQ heads the chain and its field is a stock: no marks.
  Counter(shq);
  EXPECT_EQ(Unit[shq].CounterPic, 242);
  // A THQ without a boss: 180 + 40 + 20.
  const int thq = test::world::AddUnit(mine, 4, 4, "II Corps");
  Unit[thq].Thq = 1;
  Counter(thq);
  EXPECT_EQ(Unit[thq].CounterPic, 240);

  // The editor shows the regime colour.
  UI.EditMode = 1;
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 202);
  // Other regimes' formations never carry the marks.
  UI.EditMode = 0;
  Game.CurRegime = other;
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 202);
}

// ---- Badges ------------------------------------------------------------------------

TEST_F(CounterTest, ThqTakesTheFirstFreeBadgeAndKeepsIt) {
  const int thq = test::world::AddUnit(mine, 2, 2, "II Corps");
  Unit[thq].Thq = 1;
  Regime[mine].ThqBadgeUnit[1] = 777;
  Regime[mine].ThqBadgeUnit[2] = 778;
  Counter(thq);
  EXPECT_EQ(Unit[thq].ThqBadge, 3);
  EXPECT_EQ(Regime[mine].ThqBadgeUnit[3], thq);
  // Badge 1 comes free; the THQ keeps its 3.
  Regime[mine].ThqBadgeUnit[1] = 0;
  Counter(thq);
  EXPECT_EQ(Unit[thq].ThqBadge, 3);
  EXPECT_EQ(Regime[mine].ThqBadgeUnit[1], 0);
  // A THQ holding badge 12 in the table keeps 12 whatever its own field says.
  const int thq2 = test::world::AddUnit(mine, 3, 3, "III Corps");
  Unit[thq2].Thq = 2;
  Regime[mine].ThqBadgeUnit[12] = thq2;
  Unit[thq2].ThqBadge = 5;
  Counter(thq2);
  EXPECT_EQ(Unit[thq2].ThqBadge, 12);
}

TEST_F(CounterTest, BadgesOfOneRegimeAreItsOwn) {
  Regime[other].ThqBadgeUnit[1] = 900;
  const int thq = test::world::AddUnit(mine, 2, 2, "II Corps");
  Unit[thq].Thq = 1;
  Counter(thq);
  EXPECT_EQ(Unit[thq].ThqBadge, 1);
}

TEST_F(CounterTest, NoBadgeWhenAllThirtyAreTaken) {
  for (int b = 1; b <= 30; ++b) Regime[mine].ThqBadgeUnit[b] = 1000 + b;
  const int thq = test::world::AddUnit(mine, 2, 2, "II Corps");
  Unit[thq].Thq = 1;
  Counter(thq);
  EXPECT_EQ(Unit[thq].ThqBadge, 0);
  // Badges above 30 are never handed out.
  EXPECT_EQ(Regime[mine].ThqBadgeUnit[31], 0);
}

TEST_F(CounterTest, UnitsWearTheirThqsBadge) {
  Regime[mine].ThqBadgeUnit[1] = 555;
  const int shq = test::world::AddUnit(mine, 2, 2, "Army HQ");
  Unit[shq].Shq = 1;
  const int thq = test::world::AddUnit(mine, 2, 2, "II Corps");
  Unit[thq].Thq = 1;
  Unit[thq].Boss = shq;
  const int u = test::world::AddUnit(mine, 3, 3, "Rifles");
  Unit[u].Boss = thq;
  // The formation may be counted before its THQ: the THQ's badge is settled first.
  Counter(u);
  EXPECT_EQ(Unit[u].ThqBadge, 2);
  EXPECT_EQ(Unit[thq].ThqBadge, 2);
  // Directly under the SHQ: none.
  Unit[u].Boss = shq;
  Counter(u);
  EXPECT_EQ(Unit[u].ThqBadge, 0);
  Counter(shq);
  EXPECT_EQ(Unit[shq].ThqBadge, 0);
  // Without a boss: none.
  Unit[u].Boss = 0;
  Unit[u].ThqBadge = 9;
  Counter(u);
  EXPECT_EQ(Unit[u].ThqBadge, 0);
}

TEST_F(CounterTest, BadUnitNumbersAreHarmless) {
  Counter(0);
  Counter(-3);
  Counter(2001);
  EXPECT_EQ(Unit[0].CounterPic, 0);
  const CounterNumbers n = CounterFigures(0);
  EXPECT_EQ(n.attack, 0);
  EXPECT_TRUE(CounterFigureTexts(5000).attack.empty());
}

// ---- Figures -----------------------------------------------------------------------

class CounterFigureTest : public CounterTest {
 protected:
  void SetUp() override {
    CounterTest::SetUp();
    inf = Make("Grenadiers", kLandTheater, 1, 10);
    Type[inf].Attr[kSoftAttack] = 10;
    Type[inf].Attr[kHardAttack] = 2;
    Type[inf].Attr[kSoftDefense] = 8;
    Type[inf].Attr[kHardDefense] = 4;
    Type[inf].Attr[kHitPoints] = 20;
    mob = Make("Lorries", kLandTheater, 2, 10);
    Type[mob].Attr[kSoftAttack] = 1;
    Type[mob].Attr[kSoftDefense] = 1;
    Type[mob].Attr[kHardDefense] = 1;
    arm = Make("Panzers", kLandTheater, 4, 10);
    Type[arm].Attr[kSoftAttack] = 30;
    Type[arm].Attr[kHardAttack] = 40;
    Type[arm].Attr[kSoftDefense] = 20;
    Type[arm].Attr[kHardDefense] = 30;
    Type[arm].Attr[kHitPoints] = 200;
    art = Make("Heavy guns", kLandTheater, 3, 10);
    Type[art].Attr[kArtilleryRange] = 3;
    Type[art].Attr[kArtilleryAttack] = 25;
    Type[art].Attr[kAntiAirCap] = 5;
  }
  // 100 grenadiers, 20 lorries, 10 panzers, readiness 80, experience 50.
  int Battalion(int r) {
    const int u = test::world::AddUnit(r, 5, 5, "Kampfgruppe");
    Troops(u, inf, 100, mob, 20, 0, 0, arm, 10);
    Unit[u].Readiness = 80;
    Unit[u].Experience = 50;
    return u;
  }
  int inf = 0, mob = 0, arm = 0, art = 0;
};

TEST_F(CounterFigureTest, AttackAndDefenceThroughReadinessExperienceAndDivider) {
  const int u = Battalion(mine);
  // Attack: grenadiers (10 + 2) x 100 x 20/20 = 1200, lorries 1 x 20 = 20,
  // panzers (30 + 40) x 10 x 200/200 = 700: 1920. x 80/100 = 1536,
  // x 50/100 = 768, / 250 = 3.072 -> 3.
  // Defence: 1200 + 40 + 500 = 1740 -> 1392 -> 696 -> 2.784 -> 2.
  CounterNumbers n = CounterFigures(u);
  EXPECT_EQ(n.attack, 3);
  EXPECT_EQ(n.defence, 2);
  EXPECT_FALSE(n.hasArtillery);
  // Weighted soft attack: 1000 + 20 + 300.
  EXPECT_DOUBLE_EQ(n.softAttack, 1320.0);
  // Divider 10: 76 and 69.
  EngineVar[301].Value = 10;
  n = CounterFigures(u);
  EXPECT_EQ(n.attack, 76);
  EXPECT_EQ(n.defence, 69);
  // Divider 5: 153 and 139, held at 99.
  EngineVar[301].Value = 5;
  n = CounterFigures(u);
  EXPECT_EQ(n.attack, 99);
  EXPECT_EQ(n.defence, 99);
}

TEST_F(CounterFigureTest, HitPointsWeighInfantryByTwentyAndArmourByTwoHundred) {
  const int u = Battalion(mine);
  EngineVar[301].Value = 50;
  // Grenadiers of 40 hit points count twice: attack 2400 + 20 + 700 = 3120
  // -> 2496 -> 1248 -> 24.96 -> 24; defence 2400 + 40 + 500 = 2940 -> 2352
  // -> 1176 -> 23.52 -> 23.
  Type[inf].Attr[kHitPoints] = 40;
  CounterNumbers n = CounterFigures(u);
  EXPECT_EQ(n.attack, 24);
  EXPECT_EQ(n.defence, 23);
  // Panzers of 400 hit points count twice: attack 1200 + 20 + 1400 = 2620
  // -> 2096 -> 1048 -> 20.96 -> 20; defence 1200 + 40 + 1000 = 2240 -> 1792
  // -> 896 -> 17.92 -> 17.
  Type[inf].Attr[kHitPoints] = 20;
  Type[arm].Attr[kHitPoints] = 400;
  n = CounterFigures(u);
  EXPECT_EQ(n.attack, 20);
  EXPECT_EQ(n.defence, 17);
}

TEST_F(CounterFigureTest, EachStepTruncates) {
  const int u = test::world::AddUnit(mine, 5, 5, "Squad");
  Type[mob].Attr[kSoftAttack] = 3;
  Troops(u, 0, 0, mob, 1, 0, 0, 0, 0);
  Unit[u].Readiness = 50;
  Unit[u].Experience = 200;
  EngineVar[301].Value = 1;
  // 3 x 50/100 = 1.5 -> 1; x 200/100 = 2; / 1 = 2 (untruncated it would be 3).
  EXPECT_EQ(CounterFigures(u).attack, 2);
}

TEST_F(CounterFigureTest, LongRangeArtilleryGivesAThirdFigure) {
  const int u = Battalion(mine);
  EngineVar[301].Value = 10;
  Troops(u, inf, 100, mob, 20, art, 8, arm, 10);
  // (25 + 5) x 8 = 240 -> 192 -> 96 -> 9.6 -> 9. The guns have no attack values
  // of their own, so the two figures stay 76 and 69.
  CounterNumbers n = CounterFigures(u);
  EXPECT_TRUE(n.hasArtillery);
  EXPECT_EQ(n.artillery, 9);
  EXPECT_EQ(n.attack, 76);
  EXPECT_EQ(n.defence, 69);
  const CounterTexts t = CounterFigureTexts(u);
  EXPECT_EQ(t.attack, "76");
  EXPECT_EQ(t.defence, "69");
  EXPECT_EQ(t.artillery, "9");
  // Range 1: no third figure.
  Type[art].Attr[kArtilleryRange] = 1;
  EXPECT_FALSE(CounterFigures(u).hasArtillery);
  EXPECT_EQ(CounterFigureTexts(u).artillery, "");
}

TEST_F(CounterFigureTest, OwnForeignWithoutFogAndEditorSeeTheNumbers) {
  EngineVar[301].Value = 10;
  const int own = Battalion(mine);
  CounterTexts t = CounterFigureTexts(own);
  EXPECT_EQ(t.attack, "76");
  EXPECT_EQ(t.defence, "69");
  const int foe = Battalion(other);
  t = CounterFigureTexts(foe);
  EXPECT_EQ(t.attack, "76");
  EXPECT_EQ(t.defence, "69");
  Game.FogOfWar = 1;
  UI.EditMode = 1;
  t = CounterFigureTexts(foe);
  EXPECT_EQ(t.attack, "76");
  EXPECT_EQ(t.defence, "69");
  UI.EditMode = 0;
  t = CounterFigureTexts(own);
  EXPECT_EQ(t.attack, "76");
}

TEST_F(CounterFigureTest, FogEstimateReseedsTheGeneratorForTheTurn) {
  EngineVar[301].Value = 10;
  const int foe = Battalion(other);
  ASSERT_EQ(foe, 1);
  Game.FogOfWar = 1;
  Game.CurRegime = mine;  // 1
  Game.Turn = 106;
  // Seed 1 + 106 + 80 + 1 = 188, whose first draw is 0.511977613.
  // a = Int((76 + 69) / 2) = 72; 72 + 0.2 x 72 = 86.4;
  // 86.4 - 0.511977613 x 86.4 x 0.4 = 86.4 - 17.694 = 68.706 -> 68.
  CounterTexts t = CounterFigureTexts(foe);
  EXPECT_EQ(t.attack, "+-68");
  EXPECT_EQ(t.defence, "");
  EXPECT_EQ(t.artillery, "");
  // The one generator now runs on from that seed: its second draw.
  EXPECT_FLOAT_EQ(Rnd(), 0.604089737f);
  // The same turn gives the same estimate, however often it is drawn.
  Rnd();
  EXPECT_EQ(CounterFigureTexts(foe).attack, "+-68");
  // Next turn: seed 189, first draw 0.422709227: 86.4 - 14.609 = 71.79 -> 71.
  Game.Turn = 107;
  EXPECT_EQ(CounterFigureTexts(foe).attack, "+-71");
}

TEST_F(CounterFigureTest, WeakLandUnitsShowLow) {
  EngineVar[301].Value = 10;
  const int u = test::world::AddUnit(mine, 5, 5, "Militia");
  Type[inf].Attr[kSoftAttack] = 2;
  Type[inf].Attr[kHardAttack] = 0;
  Troops(u, inf, 100, 0, 0, 0, 0, 0, 0);
  Unit[u].Readiness = 80;
  Unit[u].Experience = 50;
  // Soft attack 2 x 100 x 20/20 = 200, below row 101 (250).
  CounterTexts t = CounterFigureTexts(u);
  EXPECT_EQ(t.attack, "Low");
  // Defence 1200 -> 960 -> 480 -> 48.
  EXPECT_EQ(t.defence, "48");
  // 125 men make 250: not below, the number shows: 250 -> 200 -> 100 -> 10.
  Unit[u].InfQty = 125;
  EXPECT_EQ(CounterFigureTexts(u).attack, "10");
  // A ship with the same weak guns shows its number.
  Unit[u].InfQty = 100;
  Unit[u].Theater = kSeaTheater;
  EXPECT_EQ(CounterFigureTexts(u).attack, "8");
  // Under fog a weak foreign land unit shows "Low" in place of the estimate.
  Unit[u].Theater = kLandTheater;
  Unit[u].Regime = other;
  Game.FogOfWar = 1;
  EXPECT_EQ(CounterFigureTexts(u).attack, "Low");
}

TEST_F(CounterFigureTest, NoAttackAtAllShowsBlankZero) {
  const int u = test::world::AddUnit(mine, 5, 5, "Pioneers");
  Troops(u, 0, 0, mob, 10, 0, 0, 0, 0);
  Type[mob].Attr[kSoftAttack] = 0;
  Unit[u].Readiness = 100;
  Unit[u].Experience = 100;
  EngineVar[301].Value = 1;
  // Land: below the occupation row too, but no attack at all says "   0".
  CounterTexts t = CounterFigureTexts(u);
  EXPECT_EQ(t.attack, "   0");
  // Defence (1 + 1) x 10 = 20.
  EXPECT_EQ(t.defence, "20");
  Unit[u].Theater = kAirTheater;
  EXPECT_EQ(CounterFigureTexts(u).attack, "   0");
}

TEST_F(CounterFigureTest, StrategicHeadquartersShowShq) {
  const int u = Battalion(mine);
  Unit[u].Shq = 1;
  EXPECT_EQ(CounterFigureTexts(u).attack, "SHQ");
  Unit[u].Regime = other;
  Game.FogOfWar = 1;
  EXPECT_EQ(CounterFigureTexts(u).attack, "SHQ");
}

TEST_F(CounterFigureTest, TextColourOfTheRegime) {
  EXPECT_EQ(ParseTextColour("&Hffffff"), 0xFFFFFF);
  EXPECT_EQ(ParseTextColour("&H0000FF"), 255);
  EXPECT_EQ(ParseTextColour("&hff00"), 65280);
  EXPECT_EQ(ParseTextColour("65535"), 65535);
  EXPECT_EQ(ParseTextColour("&H0"), 0);
  EXPECT_EQ(ParseTextColour(""), 0xFFFFFF);
  EXPECT_EQ(ParseTextColour("red"), 0xFFFFFF);
}

}  // namespace
}  // namespace mf
