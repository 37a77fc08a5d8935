// The weight and cost of a transfer: the ten rules of WorkOutCost, the
// labels, and the mixing of experience, readiness and disruption.
#include "orders/transfer.h"
#include "orgs_test_util.h"

namespace mf::test {
namespace {

class TransferCostTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
    shq = AddShq(red, 2, 2, 1, "First Army", 500);
    thq = AddThq(red, 2, 3, shq);
    dest = AddFormation(red, 2, 8, thq, 100);
    // Rifles, guns and tanks wait in the pool; its trucks carry 2000.
    Stock(1, rifle, 900);
    Stock(2, gun, 40);
    Stock(3, tank, 30);
    Shq[red][1].Carry = 2000;
    Shq[red][1].CarrySea = 300;
    // No flood has run: every hex reads out of reach until a test says so.
    for (int x = 1; x <= Game.MapW; ++x)
      for (int y = 1; y <= Game.MapH; ++y) Hex[x][y].Mark = 999;
    Hex[2][2].Mark = 0;
  }

  static void Stock(int slot, int type, int qty) {
    Shq[1][1].StockType[slot] = type;
    Shq[1][1].StockQty[slot] = qty;
  }
  // The route the flood found to (x, y): cost, land and sea hexes, port.
  static void Route(int x, int y, int mark, int land, int sea = 0, int portX = 0) {
    Hex[x][y].Mark = static_cast<Short>(mark);
    Hex[x][y].PathLand = static_cast<Short>(land);
    Hex[x][y].PathSea = static_cast<Short>(sea);
    Hex[x][y].PathPortX = static_cast<Short>(portX);
    Hex[x][y].PathPortY = static_cast<Short>(portX == -1 ? -1 : portX == 0 ? 0 : 5);
  }
  // Opens the record from the unit at (sx, sy) to the one at (dx, dy).
  void Open(int sx, int sy, int dx, int dy, int sslot = 1, int dslot = 1) {
    Origin(sx, sy, sslot);
    Select(dx, dy, dslot);
    d.Prepare(false);
    ASSERT_TRUE(d.IsOpen());
  }
  bool Do(const std::string& action, const std::string& value = "") {
    std::string why;
    const bool ok = d.Act(action, value, &why);
    last = why;
    return ok;
  }

  TransferDialog d;
  std::string last;
  int shq = 0, thq = 0, dest = 0;
};

TEST_F(TransferCostTest, NineHundredFootOverSixLandHexesCost1800) {
  Route(2, 8, 6, 6);
  Open(2, 2, 2, 8);
  EXPECT_EQ(d.distance, 6);
  EXPECT_EQ(d.rows[1].type, rifle);
  EXPECT_EQ(d.rows[1].available, 900);
  ASSERT_TRUE(Do("inf", "900"));
  // W1 = 900 x 1; Int(900 x 6 / 3) = 1800.
  EXPECT_EQ(d.LandCost, 1800);
  EXPECT_EQ(d.SeaCost, 0);
  EXPECT_EQ(d.landCostText, "1800");
  EXPECT_EQ(d.seaCostText, "0");
  EXPECT_EQ(d.landCapText, "2000");
  EXPECT_EQ(d.seaCapText, "300");
  EXPECT_EQ(d.MessageText, "");
}

TEST_F(TransferCostTest, ArmourAloneOverLandIsFree) {
  UnitSlotType(dest, 4) = tank;
  UnitSlotQty(dest, 4) = 1;
  Route(2, 8, 6, 6);
  Open(2, 2, 2, 8);
  ASSERT_TRUE(Do("arm", "30"));
  // Tanks drive on their own: W1 = 0.
  EXPECT_EQ(d.LandCost, 0);
  EXPECT_EQ(d.SeaCost, 0);
  // Guns ride: 5 x 10 over 6 hexes, Int(300 / 3) = 100.
  UnitSlotType(dest, 3) = gun;
  UnitSlotQty(dest, 3) = 1;
  Open(2, 2, 2, 8);
  Do("art", "10");
  Do("arm", "30");
  EXPECT_EQ(d.LandCost, 100);
}

TEST_F(TransferCostTest, TheSameHexCostsNothing) {
  const int here = AddFormation(red, 2, 2, thq, 10, "Guards");
  Open(2, 2, 2, 2, 1, 2);
  ASSERT_EQ(d.dest, here);
  Do("inf", "900");
  EXPECT_EQ(d.LandCost, 0);
  EXPECT_EQ(d.SeaCost, 0);
}

TEST_F(TransferCostTest, OutOfReach) {
  Open(2, 2, 2, 8);
  EXPECT_EQ(d.LandCost, 99999999);
  EXPECT_EQ(d.SeaCost, 99999999);
  EXPECT_EQ(d.MessageText, "Hex you want to transfer to is out of reach.");
  EXPECT_EQ(d.landCostText, "N/A");
  EXPECT_EQ(d.seaCostText, "N/A");
}

TEST_F(TransferCostTest, OverseasByOpenShoreIsRefused) {
  // Two land hexes to the port, two sea hexes, then ashore on open shore.
  Route(2, 8, 5, 1, 2, -1);
  Open(2, 2, 2, 8);
  Do("inf", "10");
  EXPECT_EQ(d.MessageText, "Hex is overseas and is not connected to a reachable port.");
  EXPECT_EQ(d.LandCost, 99999999);
  EXPECT_EQ(d.SeaCost, 99999999);
  EXPECT_EQ(d.landCostText, "N/A");
  // "Transfer" does nothing then, and the dialog stays.
  ASSERT_TRUE(Do("transfer"));
  EXPECT_TRUE(d.IsOpen());
  EXPECT_EQ(Shq[red][1].StockQty[1], 900);
  EXPECT_EQ(Unit[dest].InfQty, 100);
}

TEST_F(TransferCostTest, OverseasThroughAPort) {
  Route(2, 8, 5, 1, 2, 4);
  Open(2, 2, 2, 8);
  Do("inf", "100");
  // W2 = 100; E = 5 - 1 - 2 = 2 land hexes after the sea.
  // Land: Int(100 x 1 / 3) + 100 x 2 / 1 = 33 + 200; sea: Int(100 x 2 / 3) + 200 = 66 + 200.
  EXPECT_EQ(d.LandCost, 233);
  EXPECT_EQ(d.SeaCost, 266);
  EXPECT_EQ(d.MessageText, "");
  EXPECT_EQ(d.seaCostText, "266");
  // With 200 of shipping in the pool the sea leg is too much.
  Shq[red][1].CarrySea = 200;
  Open(2, 2, 2, 8);
  Do("inf", "100");
  EXPECT_EQ(d.MessageText, "You selected too much for transfer!");
  EXPECT_EQ(d.landCostText, "N/A");
  EXPECT_EQ(d.seaCostText, "N/A");
}

TEST_F(TransferCostTest, OnTheQuayNoLandTransport) {
  // Mark = sea hexes + 1: the hex of the landing itself.
  Route(2, 8, 3, 0, 2, 4);
  Open(2, 2, 2, 8);
  Do("inf", "100");
  // Sea: Int(100 x 2 / 3) + 100 x (3 - 0 - 2) / 1 = 66 + 100.
  EXPECT_EQ(d.LandCost, 0);
  EXPECT_EQ(d.SeaCost, 166);
  EXPECT_EQ(d.MessageText, "");
}

TEST_F(TransferCostTest, ALittleTransportIsStillTransport) {
  EngineVar[603].Value = 3;
  Route(2, 8, 3, 0, 1, 4);
  Open(2, 2, 2, 8);
  Do("inf", "1");
  // W2 = 1, E = 2: land 0 + 2/3, sea Int(1/3) + 2/3: both 0.67, made 1.
  EXPECT_EQ(d.LandCost, 1);
  EXPECT_EQ(d.SeaCost, 1);
  // Over land the whole cost is cut first: Int(1 x 2 / 3) = 0 stays 0.
  Route(2, 8, 2, 2);
  Open(2, 2, 2, 8);
  Do("inf", "1");
  EXPECT_EQ(d.LandCost, 0);
}

TEST_F(TransferCostTest, ShipsAndAircraftAloneTravelFree) {
  // A fleet in port takes destroyers from the pool.
  const int fleet = world::AddUnit(red, 3, 8, "1st Fleet", destroyer, 2);
  Unit[fleet].Theater = kSeaTheater;
  Unit[fleet].Boss = thq;
  Stock(4, destroyer, 5);
  Stock(5, fighter, 5);
  Route(3, 8, 7, 7);
  Open(2, 2, 3, 8);
  // Only types of the fleet's element are listed.
  EXPECT_EQ(d.stockRows, std::vector<std::string>{"5x Destroyers"});
  Do("inf", "5");
  EXPECT_EQ(d.LandCost, 0);
  EXPECT_EQ(d.SeaCost, 0);
}

TEST_F(TransferCostTest, AFormationsWarshipsCarryThemselves) {
  // A formation of 30 rifles that also holds warships hands both over.
  const int src = AddFormation(red, 2, 5, thq, 30, "Odd one");
  UnitSlotType(src, 4) = destroyer;
  UnitSlotQty(src, 4) = 2;
  UnitSlotType(src, 2) = truck;
  UnitSlotQty(src, 2) = 5;
  Unit[src].MP = 3;
  Route(2, 8, 6, 6);
  Open(2, 5, 2, 8);
  EXPECT_FALSE(d.listShown);
  EXPECT_EQ(d.LandCap, 500);  // 5 trucks x 100
  EXPECT_EQ(d.SeaCap, 0);
  Do("inf", "30");
  EXPECT_EQ(d.LandCost, 60);  // Int(30 x 6 / 3)
  Do("arm", "2");
  // X = 200 of warships comes off both: 60 - 200 is 0.
  EXPECT_EQ(d.LandCost, 0);
  Type[destroyer].Attr[kWeight] = 10;
  Do("arm", "1");
  Do("arm", "2");
  EXPECT_EQ(d.LandCost, 40);  // 60 - 20
}

TEST_F(TransferCostTest, FormationWithoutMovementCarriesNothing) {
  const int src = AddFormation(red, 2, 5, thq, 30, "Tired");
  UnitSlotType(src, 2) = truck;
  UnitSlotQty(src, 2) = 5;
  Unit[src].MP = 0;
  Route(2, 8, 3, 3);
  Open(2, 5, 2, 8);
  EXPECT_EQ(d.LandCap, 0);
  Do("inf", "30");
  EXPECT_EQ(d.LandCost, 30);
  EXPECT_EQ(d.landCostText, "N/A");
  EXPECT_EQ(d.seaCostText, "N/A");
  EXPECT_EQ(d.MessageText, "You selected too much for transfer!");
}

TEST_F(TransferCostTest, TheDestinationHasAMaximumWeight) {
  UnitSlotQty(dest, 1) = 49950;
  Route(2, 8, 1, 1);
  Open(2, 2, 2, 8);
  Do("inf", "50");
  EXPECT_EQ(d.MessageText, "");  // 50000 is the limit itself
  Do("inf", "51");
  EXPECT_EQ(d.LandCost, 99999999);
  EXPECT_EQ(d.SeaCost, 99999999);
  EXPECT_EQ(d.MessageText, "The destination unit has reached its maximum weight.");
}

TEST_F(TransferCostTest, SupplyBetweenShqsWeighs) {
  const int other = AddShq(red, 2, 8, 2, "Second Army", 0);
  Route(2, 8, 6, 6);
  Open(2, 2, 2, 8, 1, 2);
  ASSERT_EQ(d.dest, other);
  EXPECT_TRUE(d.supplyShown);
  EXPECT_EQ(d.supplyAvailable, 500);
  // Into an SHQ every type may go; the rows start empty.
  EXPECT_EQ(d.stockRows, (std::vector<std::string>{"900x Rifles", "40x Guns", "30x Tanks"}));
  EXPECT_EQ(d.rows[1].type, 0);
  ASSERT_TRUE(Do("supply", "100"));
  EXPECT_EQ(d.LandCost, 200);  // 100 x 1 x 6 / 3
  ASSERT_TRUE(Do("add", std::to_string(tank)));
  ASSERT_TRUE(Do("arm", "30"));
  EXPECT_EQ(d.LandCost, 200);  // tanks drive
  EXPECT_FALSE(Do("supply", "501"));
  EXPECT_EQ(last, "the supply slider goes from 0 to 500");
}

TEST_F(TransferCostTest, RowsOfTheDestinationAndTheAddButton) {
  // The formation holds rifles and tanks; artillery and trucks are empty.
  UnitSlotType(dest, 4) = tank;
  UnitSlotQty(dest, 4) = 3;
  UnitSlotType(dest, 3) = gun;  // a type with nobody left is no row
  UnitSlotQty(dest, 3) = 0;
  Route(2, 8, 6, 6);
  Open(2, 2, 2, 8);
  EXPECT_EQ(d.rows[1].type, rifle);
  EXPECT_EQ(d.rows[3].type, 0);
  EXPECT_EQ(d.rows[4].type, tank);
  EXPECT_EQ(d.rows[4].available, 30);
  EXPECT_EQ(d.rowText[1], "Rifles");
  EXPECT_EQ(d.rowText[3], "");
  EXPECT_FALSE(Do("art", "1"));
  EXPECT_EQ(last, "the Artillery row is empty");
  ASSERT_TRUE(Do("add", std::to_string(gun)));
  EXPECT_EQ(d.rows[3].type, gun);
  EXPECT_EQ(d.rows[3].available, 40);
  EXPECT_EQ(d.rows[3].chosen, 0);
  EXPECT_FALSE(Do("inf", "901"));
  EXPECT_EQ(last, "the Infantry slider goes from 0 to 900");
  // A formation keeps one type per class.
  const int militia = world::AddType("Militia", kLandTheater, 1);
  Stock(6, militia, 10);
  Open(2, 2, 2, 8);
  EXPECT_FALSE(Do("add", std::to_string(militia)));
  EXPECT_EQ(last, "the Infantry row holds another type");
}

TEST_F(TransferCostTest, AvailableStopsAt32000) {
  Stock(1, rifle, 40000);
  Route(2, 8, 1, 1);
  Open(2, 2, 2, 8);
  EXPECT_EQ(d.rows[1].available, 32000);
}

TEST_F(TransferCostTest, MixingIntoAFormation) {
  // D: 100 rifles (cost 10), experience 50, readiness 80, disruption 10.
  Unit[dest].Experience = 50;
  Unit[dest].Readiness = 80;
  Unit[dest].Disruption = 10;
  const int src = AddFormation(red, 2, 9, thq, 50, "Weak");
  Unit[src].Experience = 20;
  Unit[src].Readiness = 40;
  Unit[src].Disruption = 40;
  Route(2, 8, 1, 1);
  Open(2, 9, 2, 8);
  Do("inf", "50");
  d.MixIncomingFigures();
  // G = 500, H = 1000.
  EXPECT_EQ(Unit[src].Experience, 25);                     // raised for good
  EXPECT_EQ(Unit[dest].Experience, 41);                    // Int((500 x 25 + 1000 x 50) / 1500) = Int(41.7)
  EXPECT_EQ(Unit[dest].Disruption, 20);                    // Int((500 x 40 + 1000 x 10) / 1500)
  EXPECT_EQ(Unit[dest].Readiness, 66);                     // Int((500 x 40 + 1000 x 80) / 1500) = Int(66.7)
  // A calmer source leaves the disruption as it is.
  Unit[src].Disruption = 5;
  d.MixIncomingFigures();
  EXPECT_EQ(Unit[dest].Disruption, 20);
}

TEST_F(TransferCostTest, MixingNeverBelow25AndTrucksBringNothing) {
  Unit[dest].Experience = 10;
  Unit[dest].Readiness = 10;
  const int src = AddFormation(red, 2, 9, thq, 0, "Drivers");
  UnitSlotType(src, 2) = truck;
  UnitSlotQty(src, 2) = 4;
  Unit[src].Experience = 90;
  Unit[src].Readiness = 90;
  Route(2, 8, 1, 1);
  Open(2, 9, 2, 8);
  Do("mob", "4");
  d.MixIncomingFigures();
  // G = 0 (trucks do not count), H = 1000: D keeps its own, raised to 25.
  EXPECT_EQ(Unit[dest].Experience, 25);
  EXPECT_EQ(Unit[dest].Readiness, 25);
}

TEST_F(TransferCostTest, AnShqReceivingIsSetTo25) {
  const int other = AddShq(red, 2, 8, 2, "Second Army", 0);
  Unit[other].Experience = 70;
  Unit[other].Readiness = 90;
  Route(2, 8, 1, 1);
  Open(2, 2, 2, 8, 1, 2);
  d.MixIncomingFigures();
  EXPECT_EQ(Unit[other].Experience, 25);
  EXPECT_EQ(Unit[other].Readiness, 25);
}

}  // namespace
}  // namespace mf::test
