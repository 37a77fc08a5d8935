// Airlift and airdrop through the order buttons: which formation is lifted,
// the flight through the enemy's fighters, and the landing or the jump.
#include "airsea_test_util.h"
#include "control/keyboard.h"

namespace mf::test {
namespace {

constexpr int kSoundFighter = 13;

class AirliftTest : public AirSeaTest {
 protected:
  void SetUp() override {
    AirSeaTest::SetUp();
    // Red's airfield on (3, 5): the transport wing and a battalion of
    // paratroops (160 weight) under its 10 transports (500).
    lift = Put(red, 3, 5, "Red Lift");
    Give(lift, 2, airlifter, 10);
    paras = Put(red, 3, 5, "Red Paras");
    Give(paras, 1, para, 20);
  }
  std::vector<std::string> Said() const { return platform.Messages(); }
  const PlatformEvent& LastEvent() const { return platform.Events().back(); }
  static bool StartLift() {
    Select(3, 5, 1);
    return PressOrderButton(kBtnAirlift);
  }
  static void Target(int x, int y) { Select(x, y, Hex[x][y].Unit[1] != 0 ? 1 : 0); }
  static bool AllOutOfReach() {
    for (int x = 1; x <= 10; ++x)
      for (int y = 1; y <= 10; ++y)
        if (Hex[x][y].Mark != 999) return false;
    return true;
  }
  int lift = 0, paras = 0;
};

TEST_F(AirliftTest, NobodyToLift) {
  Hex[3][5].Unit[2] = 0;
  Unit[paras].Regime = 0;
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(Said(), (std::vector<std::string>{"No unit in hex thats eligable for transport."}));
  EXPECT_EQ(LastEvent().title, "Not possible");
  EXPECT_FALSE(OrderUnderWay());
}

// Two formations on the airfield: the question names both; Yes lifts the
// first, No the second, and a Cancel on the question counts as No.
TEST_F(AirliftTest, TwoFormationsAskWhichOne) {
  const int rifles = Put(red, 3, 5, "Red Rifles");
  Give(rifles, 1, rifle, 10);
  ASSERT_TRUE(StartLift());  // nothing queued: the question is cancelled
  EXPECT_EQ(LastEvent().kind, PlatformEvent::kQuestion);
  EXPECT_EQ(LastEvent().title, "Airlift which unit");
  EXPECT_EQ(LastEvent().text, "[Yes = transport Red Paras]   [No = transport Red Rifles]");
  EXPECT_EQ(AirliftUnit, rifles);
  EXPECT_EQ(AirliftDrop, 1);  // rifles cannot jump
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "SELCECT AIRLIFT/AIRDROP DESTINATION FOR Red Rifles");
  EXPECT_EQ(UI.HelpText,
            "You have selected an Air Formation to do an Air lift. Now select a target hex to drop or land the "
            "transported formation.");
  DoCancel();
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  EXPECT_TRUE(AllOutOfReach());

  platform.QueueAnswer("yes");
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(AirliftUnit, paras);
  EXPECT_EQ(AirliftDrop, 0);
  EXPECT_EQ(Buttons.doButton.caption, "SELCECT AIRLIFT/AIRDROP DESTINATION FOR Red Paras");
}

TEST_F(AirliftTest, TheLiftedFormationNeedsMovementAndMustNotBeTooHeavy) {
  Unit[paras].MP = 1;
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(Said(), (std::vector<std::string>{"Unit has not enough MP. Should have at least 2mp."}));
  EXPECT_FALSE(OrderUnderWay());
  Unit[paras].MP = 2;
  Unit[lift].MobQty = 3;  // 150 against 160: silently not
  ASSERT_TRUE(StartLift());
  EXPECT_FALSE(OrderUnderWay());
  EXPECT_EQ(Said().size(), 1u);
  Unit[lift].MobQty = 4;  // 200
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
}

// A formation must land when any of its classes with troops cannot jump.
TEST_F(AirliftTest, WhoMustLand) {
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(AirliftDrop, 0);
  DoCancel();
  Give(paras, 2, truck, 2);  // trucks cannot jump
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(AirliftDrop, 1);
  DoCancel();
  Unit[paras].MobQty = 0;  // a type without troops does not count
  ASSERT_TRUE(StartLift());
  EXPECT_EQ(AirliftDrop, 0);
}

// A landing on an own airfield: no fight on the ground, the formation
// moves there, and the wing pays the hexes flown.
TEST_F(AirliftTest, LandingOnAnOwnField) {
  ASSERT_TRUE(StartLift());
  Target(1, 5);
  EXPECT_EQ(Hex[1][5].Mark, 2);
  DoButton();
  EXPECT_EQ(Log().front(), "AirLift/Drop");
  EXPECT_EQ(Hex[1][5].Unit[1], paras);
  EXPECT_EQ(Hex[3][5].Unit[2], 0);
  EXPECT_EQ(Unit[paras].MP, 0);
  EXPECT_EQ(Unit[paras].Readiness, 80);
  EXPECT_EQ(Unit[paras].InfQty, 20);
  EXPECT_EQ(Unit[lift].MP, 8);
  EXPECT_EQ(Unit[lift].MobQty, 10);  // a lift costs no movement of its own otherwise
  const std::vector<int> sounds = platform.Sounds();
  EXPECT_EQ(sounds.back(), kSoundFighter);
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  EXPECT_EQ(AirliftUnit, 0);
  EXPECT_TRUE(AllOutOfReach());
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(CheckInvariants(), "");
}

// The do button does nothing on a hex out of reach, on a hex whose owner's
// number is the turn number (a test of the turn, not of the regime), or
// with nothing lifted.
TEST_F(AirliftTest, TargetsThatDoNothing) {
  Unit[lift].MP = 2;
  ASSERT_TRUE(StartLift());
  Target(6, 5);  // three hexes off
  DoButton();
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
  EXPECT_EQ(Hex[3][5].Unit[2], paras);
  Game.Turn = red;  // turn 1: Red's own hexes cannot be reached
  Target(5, 5);
  DoButton();
  EXPECT_EQ(Hex[3][5].Unit[2], paras);
  Game.Turn = blue;  // turn 2: Blue's
  Hex[4][4].Owner = blue;
  Target(4, 4);
  DoButton();
  EXPECT_EQ(Hex[3][5].Unit[2], paras);
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
  EXPECT_TRUE(Log().empty());
  Game.Turn = 3;
  DoButton();
  EXPECT_EQ(Hex[4][4].Unit[1], paras);
  EXPECT_EQ(Hex[4][4].Owner, red);
}

// A jump into an empty enemy town: it changes hands and stops what it made.
TEST_F(AirliftTest, AJumpIntoAnEmptyTown) {
  HexRec& town = Hex[6][5];
  town.Land = kUrban;
  town.Pop = 1500;
  town.Prod = 5;
  town.ProdSHQ = 77;
  ASSERT_TRUE(StartLift());
  Target(6, 5);
  DoButton();
  EXPECT_EQ(town.Unit[1], paras);
  EXPECT_EQ(town.Owner, red);
  EXPECT_EQ(town.Prod, 0);
  EXPECT_EQ(town.ProdSHQ, 0);
  EXPECT_EQ(Unit[lift].MP, 7);
}

// A jump onto the enemy: the paratroops fight alone in the landing form of
// the battle; winners take the hex, losers are gone from the airfield.
TEST_F(AirliftTest, AJumpOntoTheEnemy) {
  const int picket = Put(blue, 6, 5, "Blue Picket");
  Give(picket, 1, rifle, 1);
  ASSERT_TRUE(StartLift());
  Target(6, 5);
  DoButton();
  EXPECT_EQ(Log().front(), "Initiating Battle");  // the flight's log gave way to the battle's
  EXPECT_TRUE(LogHas("Land Type Hard Mod: -50%"));
  EXPECT_EQ(Unit[picket].Regime, 0);
  EXPECT_EQ(Hex[6][5].Unit[1], paras);
  EXPECT_EQ(Hex[6][5].Owner, red);
  EXPECT_EQ(Hex[3][5].Unit[2], 0);
  EXPECT_EQ(Unit[paras].MP, 0);
  EXPECT_EQ(Unit[paras].Readiness, 80);
  EXPECT_EQ(Unit[lift].MP, 7);
  EXPECT_EQ(UI.Order.LandingOrder, 0);
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  EXPECT_EQ(CheckInvariants(), "");

  // Two paratroops against a wall of thirty rifles.
  const int few = Put(red, 3, 5, "Red Few");
  Give(few, 1, para, 2);
  const int wall = Put(blue, 7, 5, "Blue Wall");
  Give(wall, 1, rifle, 30);
  Select(3, 5, 1);
  ASSERT_TRUE(PressOrderButton(kBtnAirlift));  // one candidate: no question
  ASSERT_EQ(AirliftUnit, few);
  Target(7, 5);
  DoButton();
  EXPECT_TRUE(LogHas("Red Few is obliterated."));
  EXPECT_EQ(Unit[few].Regime, 0);
  EXPECT_EQ(Hex[3][5].Unit[2], 0);
  EXPECT_EQ(Hex[7][5].Unit[1], wall);
  EXPECT_EQ(CheckInvariants(), "");
}

// Blue Hawks (5 fighters, 50 dogfight) meet the unescorted transports:
// 50 / 25 = 2 in each of three rounds, 6 of 10; the 20 paratroops arrive as
// 20 x 0.4 = 8.
TEST_F(AirliftTest, OnlyTheShareThatGetsThroughArrives) {
  const int hawks = Put(blue, 8, 5, "Blue Hawks");
  Give(hawks, 1, fighter, 5);
  ASSERT_TRUE(StartLift());
  Target(4, 5);
  DoButton();
  EXPECT_EQ(LogCount("Attacker lost 2 transporters due to Intercept"), 3);
  EXPECT_EQ(Unit[lift].MobQty, 4);
  EXPECT_EQ(Hex[4][5].Unit[1], paras);
  EXPECT_EQ(Unit[paras].InfQty, 8);
  EXPECT_EQ(Unit[hawks].InfQty, 5);
}

// Every transport shot down: the troops are lost with them.
TEST_F(AirliftTest, AllAircraftShotDownLoseTheTroops) {
  const int hawks = Put(blue, 8, 5, "Blue Hawks");
  Give(hawks, 1, fighter, 13);  // 130 / 25 = 5 a round
  const int rifles = Put(red, 3, 5, "Red Rifles");
  Give(rifles, 1, rifle, 5);
  platform.QueueAnswer("yes");
  ASSERT_TRUE(StartLift());
  Target(4, 5);
  DoButton();
  EXPECT_EQ(Said().back(), "All troops in airlift destroyed.");
  EXPECT_EQ(Unit[paras].Regime, 0);
  EXPECT_EQ(Unit[lift].Regime, 0);
  EXPECT_EQ(Hex[3][5].Unit[1], rifles);
  EXPECT_EQ(Hex[3][5].Unit[2], 0);
  EXPECT_EQ(Hex[4][5].Unit[1], 0);
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(CheckInvariants(), "");
}

// Enter and Space finish most orders, but not an airlift: that takes the
// button.
TEST_F(AirliftTest, OnlyTheButtonFinishesALift) {
  ASSERT_TRUE(StartLift());
  Target(2, 5);
  EXPECT_FALSE(KeyDown(kKeyEnter));
  EXPECT_FALSE(KeyDown(kKeySpace));
  EXPECT_EQ(Hex[3][5].Unit[2], paras);
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
}

}  // namespace
}  // namespace mf::test
