// Air supply through the order buttons: the SHQ that pays, the refusals, and
// what a drop of supply does to a formation that is cut off.
#include "airsea_test_util.h"

namespace mf::test {
namespace {

constexpr int kSoundFighter = 13;

class AirSupplyTest : public AirSeaTest {
 protected:
  void SetUp() override {
    AirSeaTest::SetUp();
    hq = Put(red, 1, 1, "Red HQ");
    Give(hq, 2, truck, 1);
    Unit[hq].Shq = 1;
    Shq[red][1].Unit = hq;
    Unit[hq].SupplyPct = 500;  // the stock
    corps = Put(red, 1, 2, "Red Corps");
    Give(corps, 1, rifle, 1);
    Unit[corps].Thq = 1;
    Unit[corps].Boss = hq;
    wing = Put(red, 3, 5, "Red Cargo Wing");
    Give(wing, 2, airlifter, 4);  // lifts 200
    Unit[wing].Boss = corps;
    Hex[3][5].ShqDist[1] = 4;
    // Cut off on (4, 8), three hexes from the airfield: 20 rifles (2 each)
    // and 10 trucks (1 each) need 50.
    pocket = Put(red, 4, 8, "Red Pocket");
    Give(pocket, 1, rifle, 20);
    Give(pocket, 2, truck, 10);
    Unit[pocket].SupplyPct = 0;
    Unit[pocket].Readiness = 40;
    Unit[pocket].Experience = 50;
    Unit[pocket].MP = 0;
  }
  std::vector<std::string> Said() const { return platform.Messages(); }
  static bool Start() {
    Select(3, 5, 1);
    return PressOrderButton(kBtnAirSupply);
  }
  static void Drop(int x, int y) {
    Select(x, y, Hex[x][y].Unit[1] != 0 ? 1 : 0);
    DoButton();
  }
  int hq = 0, corps = 0, wing = 0, pocket = 0;
};

// The SHQ is the wing's boss, or its boss's boss; the wing's airfield must
// lie within that SHQ's supply reach. Otherwise the order does not start.
TEST_F(AirSupplyTest, TheSHQThatPays) {
  Hex[3][5].ShqDist[1] = 999;
  ASSERT_TRUE(Start());
  EXPECT_FALSE(OrderUnderWay());
  Hex[3][5].ShqDist[1] = 4;
  Unit[corps].Boss = 0;
  ASSERT_TRUE(Start());
  EXPECT_FALSE(OrderUnderWay());
  Unit[wing].Boss = 0;
  ASSERT_TRUE(Start());
  EXPECT_FALSE(OrderUnderWay());
  EXPECT_TRUE(Said().empty());

  Unit[wing].Boss = hq;
  ASSERT_TRUE(Start());
  EXPECT_EQ(UI.Order.AirSupplyOrder, 1);
  EXPECT_EQ(AirSupplyShq, hq);
  EXPECT_EQ(Buttons.doButton.caption, "DO AIRSUPPLY FROM Red Cargo Wing");
  EXPECT_EQ(UI.HelpText,
            "You have selected an Air Formation to provide Air supply. Select the receiving unit and press do "
            "airsupply.");
  DoCancel();
  Unit[wing].Boss = corps;
  Unit[corps].Boss = hq;
  ASSERT_TRUE(Start());
  EXPECT_EQ(AirSupplyShq, hq);
  // Only the regime's own land can be supplied from the air.
  EXPECT_EQ(Hex[4][8].Mark, 3);
  EXPECT_EQ(Hex[6][5].Mark, 999);
}

TEST_F(AirSupplyTest, Refusals) {
  ASSERT_TRUE(Start());
  Drop(6, 5);  // Blue's: out of the reach
  EXPECT_EQ(Said().back(), "You cannot do this from a hex that is out of supply.");
  Hex[6][6].Mark = 2;  // were Blue's hex in reach, nothing would happen
  const int blues = Put(blue, 6, 6, "Blue Rifles");
  Give(blues, 1, rifle, 5);
  Drop(6, 6);
  EXPECT_EQ(Said().size(), 1u);
  Unit[pocket].SupplyPct = 5;
  Drop(4, 8);
  EXPECT_EQ(Said().back(), "You can only use airsupply to supply units that are fully out of supply.");
  Unit[pocket].SupplyPct = 0;
  Unit[hq].SupplyPct = 0;  // the SHQ has nothing to send
  Drop(4, 8);
  EXPECT_EQ(Said().size(), 2u);
  Unit[hq].SupplyPct = 500;
  Unit[wing].MobQty = 0;
  Give(wing, 1, fighter, 4);
  Drop(4, 8);
  EXPECT_EQ(Said().back(), "You can only use cargo aircraft to airsupply.");
  // An SHQ keeps its stock in the same field: it is no formation to supply.
  Drop(1, 1);
  EXPECT_EQ(Said().size(), 3u);
  EXPECT_EQ(UI.Order.AirSupplyOrder, 1);
  EXPECT_TRUE(Log().empty());
  EXPECT_EQ(Unit[pocket].Readiness, 40);
}

// Enough stock, enough lift, no enemy in the air: all 50 arrive. Y = 1:
// readiness 40 + (30 + 50 / 5) = 80; MP 6 (the trucks carry all) x 0.8 =
// 4. The wing pays 3 / 3 + 1 = 2 MP.
TEST_F(AirSupplyTest, AFullDrop) {
  ASSERT_TRUE(Start());
  Drop(4, 8);
  EXPECT_EQ(Log().front(), "AirSupply");
  EXPECT_EQ(Unit[hq].SupplyPct, 450);
  EXPECT_EQ(Unit[pocket].SupplyPct, 100);
  EXPECT_EQ(Unit[pocket].Readiness, 80);
  EXPECT_EQ(Unit[pocket].MP, 4);
  EXPECT_EQ(Unit[wing].MP, 8);
  EXPECT_EQ(Unit[wing].MobQty, 4);
  EXPECT_EQ(platform.Sounds().back(), kSoundFighter);
  EXPECT_EQ(UI.Order.AirSupplyOrder, 0);
  EXPECT_EQ(AirSupplyShq, 0);
  EXPECT_EQ(Hex[4][8].Mark, 999);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_TRUE(Said().empty());
}

// The SHQ has only 20 of the 50: Y = 0.4. Readiness 40 + (12 + 10) x 0.4 =
// 48.8 -> 48; MP 6 x 0.48 = 2. The share is 40%, and still the formation
// stands at full supply after a drop.
TEST_F(AirSupplyTest, AShortStockGivesAShareButFullSupply) {
  Unit[hq].SupplyPct = 20;
  ASSERT_TRUE(Start());
  Drop(4, 8);
  EXPECT_EQ(Unit[hq].SupplyPct, 0);
  EXPECT_EQ(Unit[pocket].Readiness, 48);
  EXPECT_EQ(Unit[pocket].MP, 2);
  EXPECT_EQ(Unit[pocket].SupplyPct, 100);
}

// One transport lifts 50 of a need of 90 (40 rifles and 10 trucks): the SHQ
// pays 50, and readiness rises by the whole 30 + 10. MP: 400 weight on 400
// of trucks, all ride: 6 x 0.8 = 4.
TEST_F(AirSupplyTest, TheLiftCapsTheLoad) {
  Unit[wing].MobQty = 1;
  Unit[pocket].InfQty = 40;
  ASSERT_TRUE(Start());
  Drop(4, 8);
  EXPECT_EQ(Unit[hq].SupplyPct, 450);
  EXPECT_EQ(Unit[pocket].Readiness, 80);
  EXPECT_EQ(Unit[pocket].MP, 4);
  EXPECT_EQ(Unit[pocket].SupplyPct, 100);
}

// Blue Hawks (5 fighters at experience 50: 25 dogfight) take one transport
// a round: 1 of 4 gets through, and 50 x 0.25 = 12 arrive.
TEST_F(AirSupplyTest, WhatTheFightersLeave) {
  const int hawks = Put(blue, 7, 8, "Blue Hawks");
  Give(hawks, 1, fighter, 5);
  Unit[hawks].Experience = 50;
  ASSERT_TRUE(Start());
  Drop(4, 8);
  EXPECT_EQ(LogCount("Attacker lost 1 transporters due to Intercept"), 3);
  EXPECT_EQ(Unit[wing].MobQty, 1);
  EXPECT_EQ(Unit[hq].SupplyPct, 488);
  EXPECT_EQ(Unit[pocket].Readiness, 80);
  EXPECT_EQ(Unit[pocket].SupplyPct, 100);
}

TEST_F(AirSupplyTest, DisasterWhenNothingGetsThrough) {
  const int hawks = Put(blue, 7, 8, "Blue Hawks");
  Give(hawks, 1, fighter, 20);  // 100: four transports in the first round
  Unit[hawks].Experience = 50;
  ASSERT_TRUE(Start());
  Drop(4, 8);
  EXPECT_EQ(Said(), (std::vector<std::string>{"Disaster! All transport and cargo lost."}));
  EXPECT_EQ(Unit[hq].SupplyPct, 500);
  EXPECT_EQ(Unit[pocket].SupplyPct, 0);
  EXPECT_EQ(Unit[pocket].Readiness, 40);
  EXPECT_EQ(Unit[wing].Regime, 0);
  EXPECT_EQ(Hex[3][5].Unit[1], 0);
  EXPECT_EQ(UI.Order.AirSupplyOrder, 0);
  EXPECT_EQ(CheckInvariants(), "");
}

// A formation that needs nothing gets nothing, and the flight reads as a
// disaster although no aircraft was lost.
TEST_F(AirSupplyTest, NothingNeededIsADisasterToo) {
  const int ghost = world::AddType("Ghosts", kLandTheater, 1);
  Unit[pocket].InfType = ghost;
  Unit[pocket].MobQty = 0;
  ASSERT_TRUE(Start());
  Drop(4, 8);
  EXPECT_EQ(Said(), (std::vector<std::string>{"Disaster! All transport and cargo lost."}));
  EXPECT_EQ(Unit[wing].MobQty, 4);
  EXPECT_EQ(Unit[hq].SupplyPct, 500);
}

}  // namespace
}  // namespace mf::test
