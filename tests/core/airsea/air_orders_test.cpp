// Interdiction and strategic bombing through the order buttons: the start,
// the wing aboard a carrier, the do button's refusals and what follows a
// mission.
#include "airsea_test_util.h"
#include "control/keyboard.h"

namespace mf::test {
namespace {

class AirOrderTest : public AirSeaTest {
 protected:
  void SetUp() override {
    AirSeaTest::SetUp();
    bombers = Put(red, 3, 5, "Red Bombers");
    Give(bombers, 3, bomber, 4);
    post = Put(blue, 6, 5, "Blue Post");
    Give(post, 1, rifle, 10);
    town = &Hex[7][3];
    town->Land = kUrban;
    town->Pop = 1000;
  }
  std::vector<std::string> Said() const { return platform.Messages(); }
  static bool Start(int button, int x = 3, int y = 5) {
    Select(x, y, 1);
    return PressOrderButton(button);
  }
  static void Target(int x, int y) { Select(x, y, Hex[x][y].Unit[1] != 0 ? 1 : 0); }
  int bombers = 0, post = 0;
  HexRec* town = nullptr;
};

TEST_F(AirOrderTest, AWingNeedsTwoMovementPointsToStart) {
  Unit[bombers].MP = 1;
  ASSERT_TRUE(Start(kBtnInterdict));
  EXPECT_FALSE(OrderUnderWay());
  ASSERT_TRUE(Start(kBtnStrategic));
  EXPECT_FALSE(OrderUnderWay());
  EXPECT_TRUE(Said().empty());
  Unit[bombers].MP = 2;
  ASSERT_TRUE(Start(kBtnInterdict));
  EXPECT_EQ(UI.Order.InterdictOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO INTERDICT");
  EXPECT_EQ(UI.HelpText,
            "You have selected an Air Formation to interdict. Now select a target formation and press do interdict.");
  // The reach is the wing's movement: two hexes.
  EXPECT_EQ(Hex[5][5].Mark, 2);
  EXPECT_EQ(Hex[6][5].Mark, 999);
  DoCancel();
  ASSERT_TRUE(Start(kBtnStrategic));
  EXPECT_EQ(UI.Order.StratBombOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO STRATEGIC BOMBING");
  EXPECT_EQ(UI.HelpText,
            "You have selected an Air Formation to Bomb a town. Now select a town and press do strategic bombing.");
}

// The do button does nothing out of reach, on an own hex, against an SHQ,
// or with no formation to strike; with fewer than 2 MP it says so.
TEST_F(AirOrderTest, InterdictRefusals) {
  const int hq = Put(blue, 6, 6, "Blue HQ");
  Give(hq, 2, truck, 2);
  Unit[hq].Shq = 1;
  Shq[blue][1].Unit = hq;
  Unit[bombers].MP = 4;
  ASSERT_TRUE(Start(kBtnInterdict));
  Target(8, 5);  // five hexes off
  DoButton();
  Target(4, 5);  // Red's own
  DoButton();
  Target(6, 6);  // the SHQ
  DoButton();
  Target(6, 4);  // nobody there
  DoButton();
  EXPECT_TRUE(Log().empty());
  EXPECT_TRUE(Said().empty());
  EXPECT_EQ(UI.Order.InterdictOrder, 1);
  Unit[bombers].MP = 1;
  Target(6, 5);
  DoButton();
  EXPECT_EQ(Said(), (std::vector<std::string>{"Unit does not have 2 MP left."}));
  EXPECT_EQ(UI.Order.InterdictOrder, 1);
  EXPECT_TRUE(Log().empty());
}

// The strike itself: the mission is flown, the reach is forgotten, and
// the selection goes back to the wing. Enter does what the button does.
TEST_F(AirOrderTest, AnInterdictionFlown) {
  ASSERT_TRUE(Start(kBtnInterdict));
  Target(6, 5);
  EXPECT_TRUE(KeyDown(kKeyEnter));
  EXPECT_EQ(Log().front(), "Interdict");
  // 4 bombers of soft 30: 120 / 80 = 1 rifle.
  EXPECT_TRUE(LogHas("Defender lost 1 infantry."));
  EXPECT_EQ(Unit[post].InfQty, 9);
  EXPECT_EQ(Unit[bombers].MP, 1);
  EXPECT_EQ(UI.Order.InterdictOrder, 0);
  EXPECT_EQ(Hex[6][5].Mark, 999);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_FALSE(Buttons.cancel.enabled);
}

TEST_F(AirOrderTest, OnlyTownsAreBombedStrategically) {
  ASSERT_TRUE(Start(kBtnStrategic));
  Target(6, 5);
  DoButton();
  EXPECT_EQ(Said(), (std::vector<std::string>{"You can only strategicly bomb Towns!"}));
  EXPECT_EQ(UI.Order.StratBombOrder, 1);
  // An empty town: no formation is needed. 4 x 40 = 160 of 1000: 16%.
  Target(7, 3);
  DoButton();
  EXPECT_EQ(Log().front(), "Strategic Bombing");
  EXPECT_TRUE(LogHas("Strategic bombardment caused 16% dammage."));
  EXPECT_EQ(town->Damage, 16);
  EXPECT_EQ(UI.Order.StratBombOrder, 0);
  EXPECT_EQ(Unit[bombers].MP, 1);
  // An own town is no target.
  Unit[bombers].MP = 10;
  Hex[4][4].Land = kUrban;
  Hex[4][4].Pop = 800;
  ASSERT_TRUE(Start(kBtnStrategic));
  Target(4, 4);
  DoButton();
  EXPECT_EQ(Hex[4][4].Damage, 0);
  EXPECT_EQ(UI.Order.StratBombOrder, 1);
}

// A wing aboard a carrier flies from the carrier's slot: its own reach
// shows while the order starts, the carrier stays in the stack, and the
// carrier must have the 2 MP for the strike.
TEST_F(AirOrderTest, AWingAboardACarrier) {
  Hex[3][7].Land = kSea;
  Hex[3][7].Owner = 0;
  const int carrier = Put(red, 3, 7, "Red Carrier");
  Give(carrier, 3, carrierShip, 1);
  Unit[carrier].MP = 1;
  const int deck = Spare(red, "Red Deck Wing");
  Give(deck, 3, bomber, 3);
  Unit[carrier].Cargo = deck;
  ASSERT_TRUE(Start(kBtnInterdict, 3, 7));
  ASSERT_EQ(UI.Order.InterdictOrder, 1);
  EXPECT_EQ(Hex[3][7].Unit[1], carrier);
  EXPECT_EQ(Hex[6][5].Mark, 4);  // the wing's 10 MP, not the carrier's 1
  Target(6, 5);
  DoButton();
  EXPECT_EQ(Said(), (std::vector<std::string>{"Unit does not have 2 MP left."}));
  Unit[carrier].MP = 2;
  DoButton();
  EXPECT_EQ(Log().front(), "Interdict");
  EXPECT_EQ(Unit[deck].MP, 1);
  EXPECT_EQ(Unit[carrier].MP, 2);
  EXPECT_EQ(Unit[carrier].Cargo, deck);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 7);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(AirOrderTest, CancelForgetsTheReach) {
  ASSERT_TRUE(Start(kBtnInterdict));
  Target(6, 5);
  EXPECT_TRUE(KeyDown(kKeyEscape));
  EXPECT_EQ(UI.Order.InterdictOrder, 0);
  EXPECT_EQ(Hex[4][5].Mark, 999);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(Unit[post].InfQty, 10);
}

}  // namespace
}  // namespace mf::test
