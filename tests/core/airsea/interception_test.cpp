// Interception: which enemy wings rise to meet a flight, the three rounds of
// each, which classes of the flight are open to them, and what happens to
// those that are shot down.
#include <algorithm>

#include "airsea_test_util.h"
#include "engine/news.h"

namespace mf::test {
namespace {

class InterceptionTest : public AirSeaTest {
 protected:
  void SetUp() override {
    AirSeaTest::SetUp();
    armoured = world::AddType("Armoured Fighters", kAirTheater, 1);
    SetAttr(armoured, {{kMovementCap, 10}, {kDogfight, 10}, {kHitPoints, 1000}});
    post = Put(blue, 6, 5, "Blue Post");
    Give(post, 1, rifle, 10);
  }
  // An interdiction from (3, 5) slot 1 against Blue Post.
  static void Interdict() {
    UI.Order.InterdictOrder = 1;
    Origin(3, 5, 1);
    Select(6, 5, 1);
    FlyAirMission();
  }
  static int IndexOf(const std::string& line) {
    const auto& log = Log();
    return static_cast<int>(std::find(log.begin(), log.end(), line) - log.begin());
  }
  int armoured = 0;
  int post = 0;
};

// Draws after seed 12345: 6 0.0398, 24 0.0268.
//
// Red Scout (one fighter) meets Blue Wing (5 armoured fighters of 1000 hit
// points, 50 dogfight). Round 1: 50 / 20 = 2 fighters, cut to the one
// there is (draws 1-5); the scout fires back with 10, a chance of 0.01
// that draw 6 misses (draws 7-11). Rounds 2 and 3: nothing of the scout is
// open (c = 0) and it fires with 0 (draws 12-17 and 18-23). The guns of Blue
// Post (2 flak, 4 points) still fire at the fighter type: 4 / 20 = 0.2
// beats draw 24, but there is nothing to lose (draws 25-29). The strike
// has no power: 0 rifles (draw 30 taken, 31-35), 0 guns (36-40). Then the
// scout, with nothing left, leaves its stack, and the rifles below it move up.
TEST_F(InterceptionTest, AFlightShotDownPassesTheGunsWithoutLoss) {
  Give(post, 3, flak, 2);
  const int scout = Put(red, 3, 5, "Red Scout");
  Give(scout, 1, fighter, 1);
  const int rifles = Put(red, 3, 5, "Red Rifles");
  Give(rifles, 1, rifle, 5);
  const int wing = Put(blue, 8, 5, "Blue Wing");
  Give(wing, 1, armoured, 5);
  const std::vector<float> d = DrawsAfterSeed(12345, 41);
  ASSERT_NEAR(d[5], 0.0398f, 0.00006);
  ASSERT_NEAR(d[23], 0.0268f, 0.00006);

  Interdict();
  const float next = Rnd();

  const std::vector<std::string> log = {"Interdict",
                                        "Attack intercepted by Blue Wing",
                                        "Attacker lost 1 fighters due to Intercept.",
                                        "Defender (interceptor) lost 0 fighters.",
                                        "",
                                        "Defender (interceptor) lost 0 fighters.",
                                        "",
                                        "Defender (interceptor) lost 0 fighters.",
                                        "",
                                        "Defender has 4 AA pts gathered in and around hex.",
                                        "",
                                        "Attacker lost 0 fighters due to AA.",
                                        "Defender lost 0 infantry.",
                                        "Defender lost 0 artillery.",
                                        " ",
                                        "ATTACKER lost:",
                                        "Fighters: 1",
                                        " ",
                                        "DEFENDER lost:"};
  EXPECT_EQ(Log(), log);
  EXPECT_NEAR(next, d[40], 0.00006) << "40 draws";
  EXPECT_EQ(Unit[scout].Regime, 0);
  EXPECT_EQ(Hex[3][5].Unit[1], rifles);
  EXPECT_EQ(Hex[3][5].Unit[2], 0);
  EXPECT_EQ(Unit[wing].InfQty, 5);
  EXPECT_EQ(CheckInvariants(), "");
}

// A flight of fighters alone shoots back in every round; a flight with
// bombers under escort loses no bomber while a fighter lives.
TEST_F(InterceptionTest, FightersScreenTheBombersAndFireBackEveryRound) {
  const int escort = Put(red, 3, 5, "Red Escort");
  Give(escort, 1, fighter, 20);
  Give(escort, 3, bomber, 5);
  const int wing = Put(blue, 8, 5, "Blue Wing");
  Give(wing, 1, armoured, 5);
  Interdict();
  // 50 dogfight kills 2 fighters a round; the 1000-point fighters of Blue
  // Wing cannot be shot down in three rounds of at most one each.
  EXPECT_EQ(LogCount("Attacker lost 2 fighters due to Intercept."), 3);
  EXPECT_EQ(LogLines("Defender (interceptor) lost ").size(), 3u);
  EXPECT_EQ(LogLines("Attacker lost").size(), 3u + 2u);  // three rounds, then the guns
  EXPECT_TRUE(LogLines("Attacker lost ").back() == "Attacker lost 0 bombers due to AA.");
  EXPECT_EQ(Unit[escort].InfQty, 14);
  EXPECT_EQ(Unit[escort].ArtQty, 5);

  // Fighters alone: the same three rounds, each answered (against Blue
  // Wing at full strength again).
  Unit[wing].InfQty = 5;
  const int lone = Put(red, 2, 5, "Red Fighters");
  Give(lone, 1, fighter, 20);
  UI.Order.InterdictOrder = 1;
  Origin(2, 5, 1);
  Select(6, 5, 1);
  FlyAirMission();
  EXPECT_EQ(Log().front(), "Interdict");
  EXPECT_EQ(LogCount("Attacker lost 2 fighters due to Intercept."), 3);
  EXPECT_EQ(LogLines("Defender (interceptor) lost ").size(), 3u);
  EXPECT_EQ(Unit[lone].InfQty, 14);
}

// Round by round the flight's fighters are the screen: the round that
// takes the last of them opens the bombers at once, and the fire that
// opened them is the same fire.
TEST_F(InterceptionTest, TheBombersAreOpenOnceTheLastFighterFalls) {
  const int escort = Put(red, 3, 5, "Red Escort");
  Give(escort, 1, fighter, 2);
  Give(escort, 3, bomber, 5);
  const int wing = Put(blue, 8, 5, "Blue Wing");
  Give(wing, 1, armoured, 9);
  Interdict();
  // 90 / 20 = 4 fighters, cut to 2; then the bombers: 90 / 30 = 3.
  const std::vector<std::string> first = {"Attack intercepted by Blue Wing",
                                          "Attacker lost 2 fighters due to Intercept.",
                                          "Attacker lost 3 bombers due to Intercept."};
  EXPECT_EQ(std::vector<std::string>(Log().begin() + 1, Log().begin() + 4), first);
  // Rounds 2 and 3: 3 bombers, then what is left, 2.
  EXPECT_EQ(LogLines("Attacker lost ").at(2), "Attacker lost 2 bombers due to Intercept.");
  EXPECT_EQ(LogLines("Attacker lost ").size(), 3u + 2u);
  // Shot down in interception: the strike has no power left, and the
  // wing is gone.
  EXPECT_EQ(Unit[escort].Regime, 0);
  EXPECT_EQ(Hex[3][5].Unit[1], 0);
}

// Every wing that qualifies rises, in the order of the map scan (x outer,
// y inner, slots), and fights its three rounds before the next.
TEST_F(InterceptionTest, TwoInterceptorsFightThreeRoundsEachInScanOrder) {
  EngineVar[235].Value = 1;  // every loss of any worth makes an officer famous
  Type[fighter].Cost = 10;
  Type[armoured].Cost = 10;
  Type[rifle].Cost = 10;
  const int escort = Put(red, 3, 5, "Red Escort");
  Give(escort, 1, fighter, 30);
  Unit[escort].Officer = 3;
  Officer[3].Regime = red;
  const int north = Put(blue, 7, 2, "Blue North");
  Give(north, 1, armoured, 4);
  Unit[north].Officer = 1;
  Officer[1].Regime = blue;
  const int south = Put(blue, 6, 8, "Blue South");
  Give(south, 1, armoured, 4);
  Unit[south].Officer = 2;
  Officer[2].Regime = blue;
  Interdict();

  // x = 6 comes before x = 7.
  const int s = IndexOf("Attack intercepted by Blue South");
  const int n = IndexOf("Attack intercepted by Blue North");
  const int aa = static_cast<int>(std::find_if(Log().begin(), Log().end(),
                                               [](const std::string& l) { return l.rfind("Defender has", 0) == 0; }) -
                                  Log().begin());
  ASSERT_LT(s, n);
  ASSERT_LT(n, aa);
  auto blanks = [](int from, int to) {
    return static_cast<int>(std::count(Log().begin() + from, Log().begin() + to, std::string()));
  };
  auto count = [](int from, int to, const std::string& prefix) {
    int c = 0;
    for (int i = from; i < to; ++i)
      if (Log()[i].rfind(prefix, 0) == 0) ++c;
    return c;
  };
  EXPECT_EQ(blanks(s, n), 3);
  EXPECT_EQ(blanks(n, aa), 3);
  EXPECT_EQ(count(s, n, "Defender (interceptor) lost "), 3);
  EXPECT_EQ(count(n, aa, "Defender (interceptor) lost "), 3);

  // Fame goes by the losses: each loss of some worth gives the side that
  // inflicted it one point (no chain above the wings: always their own
  // officer). The wings earn by the escort's losses in their own rounds;
  // the escort by the interceptors' losses and by the strike.
  auto earned = [](int from, int to, const std::string& prefix) {
    int c = 0;
    for (int i = from; i < to; ++i)
      if (Log()[i].rfind(prefix, 0) == 0 && Log()[i].rfind(prefix + "0 ", 0) != 0) ++c;
    return c;
  };
  EXPECT_EQ(Officer[2].Fame, earned(s, n, "Attacker lost "));
  EXPECT_EQ(Officer[1].Fame, earned(n, aa, "Attacker lost "));
  EXPECT_GT(Officer[2].Fame, 0);
  EXPECT_EQ(Officer[3].Fame, earned(s, aa, "Defender (interceptor) lost ") +
                                 earned(aa, static_cast<int>(Log().size()), "Defender lost "));
  EXPECT_GT(Officer[3].Fame, 0);
}

// Dogfight losses, on both sides, are weighed by the rows of an air unit in
// a dogfight (433 to 436): with those at 0 nobody learns or tires.
TEST_F(InterceptionTest, DogfightLossesGoByTheDogfightRows) {
  Type[fighter].Cost = 1000;
  Type[armoured].Cost = 1000;
  Give(post, 3, flak, 5);
  auto fly = [this](bool rowsOn) {
    for (int row : {433, 434, 435, 436, 441, 442, 443, 444}) EngineVar[row].Value = rowsOn ? 100 : 0;
    const int escort = Put(red, 3, 5, "Red Escort");
    Give(escort, 1, fighter, 10);
    Unit[escort].Experience = 50;
    const int wing = Put(blue, 8, 5, "Blue Wing");
    Give(wing, 1, armoured, 5);
    Unit[wing].Experience = 50;
    Interdict();
    const bool moved = Unit[escort].Experience != 50 || Unit[escort].Readiness != 100 ||
                       Unit[wing].Experience != 50 || Unit[wing].Readiness != 100;
    Hex[3][5].Unit[1] = 0;
    Hex[8][5].Unit[1] = 0;
    Unit[escort].Regime = 0;
    Unit[wing].Regime = 0;
    return moved;
  };
  // The post's troops cost nothing, so the strike moves nobody, and fire of
  // no one unit (the guns) weighs nothing whatever its rows say.
  EXPECT_FALSE(fly(false));
  EXPECT_TRUE(fly(true));
}

TEST_F(InterceptionTest, OnlyArmedEnemyWingsInRangeAndReadyRise) {
  const int green = world::AddRegime("Green");
  Dip[red][green].Relation = 1;
  Dip[green][red].Relation = 1;
  const int escort = Put(red, 3, 5, "Red Escort");
  Give(escort, 1, fighter, 30);
  const int far = Put(blue, 10, 10, "Blue Far");  // 6 hexes from (6, 5)
  Give(far, 1, armoured, 3);
  const int tired = Put(blue, 8, 5, "Blue Tired");  // readiness 60 is not above 60
  Give(tired, 1, armoured, 3);
  Unit[tired].Readiness = 60;
  const int keen = Put(blue, 8, 6, "Blue Keen");  // 61 is
  Give(keen, 1, armoured, 3);
  Unit[keen].Readiness = 61;
  const int bombers = Put(blue, 8, 4, "Blue Bombers");  // no fighters
  Give(bombers, 3, bomber, 3);
  Hex[4][4].Owner = green;
  const int neutral = Put(green, 4, 4, "Green Wing");  // at peace with Red
  Give(neutral, 1, armoured, 3);
  const int own = Put(red, 4, 6, "Red Wing");
  Give(own, 1, armoured, 3);
  Hex[9][2].Land = kSea;
  const int carrier = Put(blue, 9, 2, "Blue Carrier");  // its deck wing rises in its place
  Give(carrier, 3, carrierShip, 1);
  const int deck = Spare(blue, "Blue Deck Wing");
  Give(deck, 1, armoured, 2);
  Unit[carrier].Cargo = deck;
  EngineVar[501].Value = 5;

  Interdict();
  EXPECT_EQ(LogLines("Attack intercepted by "),
            (std::vector<std::string>{"Attack intercepted by Blue Keen", "Attack intercepted by Blue Deck Wing"}));

  // A shorter reach leaves the deck wing (four hexes off) on its ship.
  EngineVar[501].Value = 3;
  Interdict();
  EXPECT_EQ(LogLines("Attack intercepted by "), (std::vector<std::string>{"Attack intercepted by Blue Keen"}));
}

// An interceptor shot down: from a hex it leaves news for the hex's owner
// and its slot, and the stack closes up; from a deck only the carrier's
// cargo is cleared. Either way it fights no further round.
TEST_F(InterceptionTest, AnInterceptorShotDownLeavesItsStackOrItsDeck) {
  const int escort = Put(red, 3, 5, "Red Escort");
  Give(escort, 1, fighter, 20);  // 200 dogfight: 10 fighters at a blow
  const int wing = Put(blue, 8, 5, "Blue Wing");
  Give(wing, 1, fighter, 1);
  Unit[wing].Officer = 4;
  const int guard = Put(blue, 8, 5, "Blue Guard");
  Give(guard, 1, rifle, 5);
  Interdict();
  EXPECT_EQ(LogLines("Defender (interceptor) lost "),
            (std::vector<std::string>{"Defender (interceptor) lost 1 fighters."}));
  EXPECT_EQ(Unit[wing].Regime, 0);
  EXPECT_EQ(Unit[wing].Officer, 0);
  EXPECT_EQ(Hex[8][5].Unit[1], guard);
  EXPECT_EQ(Hex[8][5].Unit[2], 0);
  // Blue's news: the lost wing and the mark where it fell, then the mark of
  // the air attack on the post.
  EXPECT_EQ(News[blue][1].Type, kNewsLost);
  EXPECT_EQ(News[blue][1].Text, "Blue Wing");
  EXPECT_EQ(News[blue][2].Type, kNewsMapMark);
  EXPECT_EQ(News[blue][2].Mark, 9);
  EXPECT_EQ(News[blue][2].X, 8);
  EXPECT_EQ(News[blue][2].Y, 5);
  EXPECT_EQ(News[blue][3].Mark, 8);
  EXPECT_EQ(CheckInvariants(), "");

  // From a carrier's deck.
  Hex[9][2].Land = kSea;
  const int carrier = Put(blue, 9, 2, "Blue Carrier");
  Give(carrier, 3, carrierShip, 1);
  const int deck = Spare(blue, "Blue Deck Wing");
  Give(deck, 1, fighter, 1);
  Unit[carrier].Cargo = deck;
  for (int i = 1; i <= 10; ++i) News[blue][i] = NewsRec{};
  Interdict();
  EXPECT_EQ(Unit[deck].Regime, 0);
  EXPECT_EQ(Unit[carrier].Cargo, 0);
  EXPECT_EQ(Hex[9][2].Unit[1], carrier);
  EXPECT_EQ(News[blue][1].Mark, 8);  // only the air attack
  EXPECT_EQ(News[blue][2].Type, 0);
  EXPECT_EQ(CheckInvariants(), "");
}


// A wing that is itself the target rises to meet the strike; shot down, it
// is not struck again.
TEST_F(InterceptionTest, ATargetShotDownInTheAirIsNotStruckAgain) {
  const int escort = Put(red, 3, 5, "Red Escort");
  Give(escort, 1, fighter, 20);
  const int wing = Put(blue, 7, 5, "Blue Wing");
  Give(wing, 1, fighter, 1);
  UI.Order.InterdictOrder = 1;
  Origin(3, 5, 1);
  Select(7, 5, 1);
  FlyAirMission();
  EXPECT_TRUE(LogHas("Attack intercepted by Blue Wing"));
  EXPECT_EQ(Unit[wing].Regime, 0);
  EXPECT_TRUE(LogLines("Defender lost").empty());
  EXPECT_EQ(Hex[7][5].Unit[1], 0);
  // Its loss and the mark where it fell, then the mark of the attack.
  EXPECT_EQ(News[blue][1].Type, kNewsLost);
  EXPECT_EQ(News[blue][2].Mark, 9);
  EXPECT_EQ(News[blue][3].Mark, 8);
  EXPECT_EQ(News[blue][4].Type, 0);
  EXPECT_EQ(CheckInvariants(), "");
}

}  // namespace
}  // namespace mf::test
