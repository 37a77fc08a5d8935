// Ships: loading a formation aboard, unloading it into a town, landing it on
// a shore, and the invasion of a held shore, all through the order buttons.
#include "airsea_test_util.h"
#include "model/hex_geometry.h"

namespace mf::test {
namespace {

class ShipTest : public AirSeaTest {
 protected:
  void SetUp() override {
    AirSeaTest::SetUp();
    // Red's port on (4, 5); the sea west of Blue's coast in column 5 below row 6.
    port = &Hex[4][5];
    port->Land = kUrban;
    port->Pop = 1000;
    for (int y = 6; y <= 10; ++y) {
      Hex[5][y].Land = kSea;
      Hex[5][y].Owner = 0;
    }
  }
  static bool Press(int id) { return PressOrderButton(id); }
  std::vector<std::string> Said() const { return platform.Messages(); }

  // A troop fleet: 2 cargo ships (carry 200).
  int Fleet(int x, int y, const std::string& name = "Red Fleet") {
    const int f = Put(red, x, y, name);
    Give(f, 2, cargoShip, 2);
    return f;
  }
  HexRec* port = nullptr;
};

TEST_F(ShipTest, WeightAndCapacity) {
  const int rifles = Put(red, 3, 5, "Red Rifles");
  Give(rifles, 1, rifle, 12);  // 120
  Give(rifles, 2, truck, 5);   // 30
  EXPECT_EQ(UnitLoadWeight(rifles), 150);
  const int wing = Put(red, 3, 5, "Red Wing");
  Give(wing, 1, fighter, 6);  // 30
  Give(wing, 3, bomber, 2);   // 20
  EXPECT_EQ(UnitLoadWeight(wing), 50);
  const int ship = Put(red, 4, 5, "Red Ships");
  Give(ship, 1, destroyer, 3);
  Give(ship, 2, cargoShip, 2);    // land formations ride on 2 x 100
  Give(ship, 3, carrierShip, 3);  // air wings on 3 x 100
  EXPECT_EQ(ShipCapacity(ship, rifles), 200);
  EXPECT_EQ(ShipCapacity(ship, wing), 300);
}

TEST_F(ShipTest, AFormationBoardsAndTheStackClosesUp) {
  const int rifles = Put(red, 4, 5, "Red Rifles");
  Give(rifles, 1, rifle, 20);  // 200: exactly what the fleet can carry
  const int fleet = Fleet(4, 5);
  Select(4, 5, 2);
  ASSERT_TRUE(Press(kBtnLoad));
  EXPECT_EQ(UI.Order.LoadOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO LOAD INTO Red Fleet");
  EXPECT_TRUE(Buttons.doButton.enabled);
  EXPECT_EQ(UI.HelpText,
            "You have selected a Naval Formation to load another Formation. Select this formation and press do load.");
  Select(4, 5, 1);
  DoButton();
  EXPECT_EQ(Unit[fleet].Cargo, rifles);
  EXPECT_EQ(Hex[4][5].Unit[1], fleet);
  EXPECT_EQ(Hex[4][5].Unit[2], 0);
  EXPECT_EQ(Unit[rifles].MP, 10);
  EXPECT_EQ(UI.Order.LoadOrder, 0);
  // The selection is back on the fleet, which moved up to slot 1.
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_TRUE(Buttons.order[kBtnUnload].enabled);
  EXPECT_TRUE(Said().empty());
  EXPECT_EQ(CheckInvariants(), "");
}

// Every refusal of a load is silent and leaves the order standing.
TEST_F(ShipTest, LoadRefusalsAreSilent) {
  const int fleet = Fleet(4, 5);
  Hex[4][6].Owner = red;
  const int heavy = Put(red, 4, 6, "Red Heavy");
  Give(heavy, 1, rifle, 21);  // 210 > 200
  const int tired = Put(red, 4, 6, "Red Tired");
  Give(tired, 1, rifle, 5);
  Unit[tired].MP = 0;
  const int other = Put(red, 4, 6, "Red Other Fleet");
  Give(other, 2, cargoShip, 1);
  Hex[3][6].Owner = red;
  const int hq = Put(red, 3, 6, "Red HQ");
  Give(hq, 2, truck, 1);
  Unit[hq].Shq = 1;
  Shq[red][1].Unit = hq;
  const int enemy = Put(blue, 6, 5, "Blue Rifles");
  Give(enemy, 1, rifle, 5);

  Select(4, 5, 1);
  ASSERT_TRUE(Press(kBtnLoad));
  auto refused = [&](int x, int y, int slot) {
    Select(x, y, slot);
    DoButton();
    return UI.Order.LoadOrder == 1 && Unit[fleet].Cargo == 0;
  };
  EXPECT_TRUE(refused(6, 5, 1));  // not Red's
  EXPECT_TRUE(refused(4, 6, 3));  // a ship
  EXPECT_TRUE(refused(4, 6, 2));  // no MP
  EXPECT_TRUE(refused(3, 6, 1));  // an SHQ
  EXPECT_TRUE(refused(4, 6, 1));  // too heavy
  EXPECT_TRUE(refused(4, 5, 0));  // nothing selected
  // A fleet with cargo takes no more.
  Unit[tired].MP = 5;
  const int spare = Spare(red, "Red Spare");
  Give(spare, 1, rifle, 1);
  Unit[fleet].Cargo = spare;
  Select(4, 6, 2);
  DoButton();
  EXPECT_EQ(UI.Order.LoadOrder, 1);
  EXPECT_EQ(Unit[fleet].Cargo, spare);
  EXPECT_EQ(Hex[4][6].Unit[2], tired);
  EXPECT_TRUE(Said().empty());
  // Cancel: the order ends and the selection goes back to the fleet.
  DoCancel();
  EXPECT_EQ(UI.Order.LoadOrder, 0);
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.SelY, 5);
}

// An air wing boards a carrier: its weight against the carriers' capacity.
TEST_F(ShipTest, AWingBoardsACarrier) {
  const int carrier = Put(red, 4, 5, "Red Carrier");
  Give(carrier, 3, carrierShip, 1);  // 100
  const int wing = Put(red, 4, 5, "Red Wing");
  Give(wing, 1, fighter, 20);  // 100
  const int rifles = Put(red, 4, 5, "Red Rifles");
  Give(rifles, 1, rifle, 1);  // no cargo ships for it
  Select(4, 5, 1);
  ASSERT_TRUE(Press(kBtnLoad));
  Select(4, 5, 3);
  DoButton();
  EXPECT_EQ(Unit[carrier].Cargo, 0);
  Select(4, 5, 2);
  DoButton();
  EXPECT_EQ(Unit[carrier].Cargo, wing);
  EXPECT_EQ(Hex[4][5].Unit[2], rifles);
  // The carrier's wing is what the air buttons now fly.
  Select(4, 5, 1);
  RefreshButtons();
  EXPECT_TRUE(Buttons.order[kBtnInterdict].enabled);
  EXPECT_TRUE(Buttons.order[kBtnAirlift].enabled);
}

// In a town the cargo goes ashore at once, without an order; with the
// town's stack full nothing happens and nothing is said.
TEST_F(ShipTest, UnloadingInATown) {
  const int fleet = Fleet(4, 5);
  const int rifles = Spare(red, "Red Rifles");
  Give(rifles, 1, rifle, 10);
  Unit[fleet].Cargo = rifles;
  const int guard = Put(red, 4, 5, "Red Guard");
  Give(guard, 1, rifle, 5);
  const int militia = Put(red, 4, 5, "Red Militia");
  Give(militia, 1, rifle, 5);
  Select(4, 5, 1);
  ASSERT_TRUE(Press(kBtnUnload));
  EXPECT_EQ(Unit[fleet].Cargo, rifles);
  EXPECT_EQ(Hex[4][5].Unit[3], militia);
  EXPECT_FALSE(OrderUnderWay());
  EXPECT_TRUE(Said().empty());

  // Room in the harbour: the troops land in the first free slot with no MP.
  Hex[4][5].Unit[3] = 0;
  Unit[militia].Regime = 0;
  ASSERT_TRUE(Press(kBtnUnload));
  EXPECT_EQ(Hex[4][5].Unit[3], rifles);
  EXPECT_EQ(Unit[rifles].MP, 0);
  EXPECT_EQ(Unit[fleet].Cargo, 0);
  EXPECT_FALSE(OrderUnderWay());
  EXPECT_EQ(UI.SelSlot, 1);
  // Nothing aboard now: the button is off.
  EXPECT_FALSE(Buttons.order[kBtnUnload].enabled);

  // An air wing leaves its carrier the same way, and only in a town.
  const int carrier = Put(red, 3, 5, "Red Carrier");
  Hex[3][5].Land = kUrban;
  Give(carrier, 3, carrierShip, 1);
  const int wing = Spare(red, "Red Wing");
  Give(wing, 1, fighter, 4);
  Unit[carrier].Cargo = wing;
  Select(3, 5, 1);
  ASSERT_TRUE(Press(kBtnUnload));
  EXPECT_EQ(Hex[3][5].Unit[2], wing);
  EXPECT_EQ(CheckInvariants(), "");
}

class LandingTest : public ShipTest {
 protected:
  void SetUp() override {
    ShipTest::SetUp();
    fleet = Fleet(5, 7);  // at sea
    troops = Spare(red, "Red Marines");
    Give(troops, 1, rifle, 20);
    Unit[troops].Readiness = 90;
    Unit[fleet].Cargo = troops;
    Select(5, 7, 1);
    PressOrderButton(kBtnUnload);
  }
  void Target(int x, int y) { Select(x, y, Hex[x][y].Unit[1] != 0 ? 1 : 0); }
  int fleet = 0, troops = 0;
};

TEST_F(LandingTest, TheOrderAndItsRefusals) {
  ASSERT_EQ(UI.Order.LandingOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO UNLOAD ON SELECTED HEX");
  EXPECT_EQ(UI.HelpText, "You want to unload from your Naval Formation. Select a neighbouring hex to unload.");

  Target(5, 8);  // sea
  DoButton();
  Target(7, 7);  // two hexes off
  DoButton();
  const int green = world::AddRegime("Green");
  Dip[red][green].Relation = 1;
  Dip[green][red].Relation = 1;
  Hex[4][7].Owner = green;
  Target(4, 7);
  DoButton();
  Hex[6][7].Land = kMountain;
  Target(6, 7);  // a mountain: nothing, not a word
  DoButton();
  EXPECT_EQ(Said(), (std::vector<std::string>{"You can only unload on a land hex. Select a land hex to unload.",
                                              "Distance must be 1",
                                              "You can't invade a regime you are at peace with."}));
  EXPECT_EQ(UI.Order.LandingOrder, 1);
  EXPECT_EQ(Unit[fleet].Cargo, troops);

  // An air wing aboard can only go ashore in a town.
  Unit[troops].Theater = kAirTheater;
  Target(4, 6);
  DoButton();
  EXPECT_EQ(Said().back(), "You can only unload an air unit inside a town.");
  EXPECT_EQ(UI.Order.LandingOrder, 1);
  Unit[troops].Theater = kLandTheater;

  // A port with warships in it cannot be stormed.
  Hex[6][8].Land = kUrban;
  const int navy = Put(blue, 6, 8, "Blue Navy");
  Give(navy, 1, destroyer, 2);
  Target(6, 8);
  DoButton();
  EXPECT_EQ(Said().back(), "You cannot invade town with warships in port");
  EXPECT_EQ(UI.Order.LandingOrder, 1);
  EXPECT_EQ(Unit[fleet].Cargo, troops);

  DoCancel();
  EXPECT_EQ(UI.Order.LandingOrder, 0);
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 7);
  EXPECT_EQ(Unit[fleet].Cargo, troops);
}

TEST_F(LandingTest, OnAnOwnShore) {
  Hex[4][7].Owner = red;
  const int there = Put(red, 4, 7, "Red Guard");
  Give(there, 1, rifle, 3);
  Target(4, 7);
  DoButton();
  EXPECT_EQ(Hex[4][7].Unit[2], troops);
  EXPECT_EQ(Hex[4][7].Owner, red);
  EXPECT_EQ(Unit[troops].MP, 0);
  EXPECT_EQ(Unit[troops].Readiness, 60);
  EXPECT_EQ(Unit[fleet].Cargo, 0);
  EXPECT_EQ(UI.Order.LandingOrder, 0);
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 7);
  EXPECT_TRUE(Said().empty());
  EXPECT_TRUE(Log().empty());  // no battle
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(LandingTest, ReadinessAfterALandingStaysAtTenAtLeast) {
  Unit[troops].Readiness = 35;
  Hex[4][7].Owner = red;
  Target(4, 7);
  DoButton();
  EXPECT_EQ(Hex[4][7].Unit[1], troops);
  EXPECT_EQ(Unit[troops].Readiness, 10);
}

// Storming a held shore: the landing form of the battle, with its own land
// factors (engine variables 531 and 532) and no round limit; the marines
// that win take the beach.
TEST_F(LandingTest, AnInvasionThatTakesTheBeach) {
  HexRec& beach = Hex[6][7];
  beach.Pop = 500;
  beach.Prod = 4;
  const int picket = Put(blue, 6, 7, "Blue Picket");
  Give(picket, 1, rifle, 1);
  Target(6, 7);
  DoButton();
  EXPECT_EQ(Log().front(), "Initiating Battle");
  EXPECT_TRUE(LogHas("Land Type Hard Mod: -50%"));
  EXPECT_TRUE(LogHas("Land Type Soft Mod: 100%"));
  EXPECT_TRUE(LogHas("OFFENSIVE SUCCESFULL"));
  EXPECT_EQ(Unit[picket].Regime, 0);
  EXPECT_EQ(beach.Unit[1], troops);
  EXPECT_EQ(beach.Owner, red);
  EXPECT_EQ(beach.Prod, 0);
  EXPECT_EQ(Unit[troops].MP, 0);
  // Nothing costs anything, so the fight itself tires nobody: 90 - 30.
  EXPECT_EQ(Unit[troops].Readiness, 60);
  EXPECT_EQ(Unit[fleet].Cargo, 0);
  EXPECT_EQ(UI.Order.LandingOrder, 0);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(CheckInvariants(), "");
}

// Two marines against thirty rifles dug in behind the doubled soft defence
// of a landing: obliterated on the beach, and the fleet is empty.
TEST_F(LandingTest, AnInvasionThrownBackIntoTheSea) {
  Unit[troops].InfQty = 2;
  const int wall = Put(blue, 6, 7, "Blue Wall");
  Give(wall, 1, rifle, 30);
  Target(6, 7);
  DoButton();
  EXPECT_TRUE(LogHas("Red Marines is obliterated."));
  EXPECT_EQ(Unit[troops].Regime, 0);
  EXPECT_EQ(Unit[fleet].Cargo, 0);
  EXPECT_EQ(Hex[6][7].Unit[1], wall);
  EXPECT_EQ(Hex[6][7].Owner, blue);
  EXPECT_EQ(CheckInvariants(), "");
}

// An empty enemy shore is taken by the landing itself: a battle with
// nobody to fight. A town there stops what it made for Blue.
TEST_F(LandingTest, AnEmptyEnemyShore) {
  Hex[6][7].Land = kUrban;
  Hex[6][7].Pop = 900;
  Hex[6][7].Prod = 3;
  Hex[6][7].ProdSHQ = 42;
  Target(6, 7);
  DoButton();
  EXPECT_EQ(Log().front(), "Initiating Battle");
  EXPECT_EQ(Hex[6][7].Unit[1], troops);
  EXPECT_EQ(Hex[6][7].Owner, red);
  EXPECT_EQ(Hex[6][7].Prod, 0);
  EXPECT_EQ(Hex[6][7].ProdSHQ, 0);
  EXPECT_EQ(Unit[troops].Readiness, 60);
  EXPECT_EQ(Unit[fleet].Cargo, 0);
}

}  // namespace
}  // namespace mf::test
