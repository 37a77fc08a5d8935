// A transfer from the button to the last counter: the chain of command,
// the theater test, carrying out, cancelling, and the computer's way.
#include "engine/supply_flood.h"
#include "orders/flood.h"
#include "orders/transfer.h"
#include "orgs_test_util.h"

namespace mf::test {
namespace {

class TransferFlowTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
    // First Army on (2, 2) with Northern Group on (2, 3) and a battalion of
    // 100 rifles six hexes down the column at (2, 8).
    shq = AddShq(red, 2, 2, 1, "First Army", 500);
    thq = AddThq(red, 2, 3, shq, "Northern Group");
    dest = AddFormation(red, 2, 8, thq, 100);
    Unit[dest].MP = 3;
    Shq[red][1].StockType[1] = rifle;
    Shq[red][1].StockQty[1] = 900;
    Shq[red][1].StockType[2] = tank;
    Shq[red][1].StockQty[2] = 30;
    Shq[red][1].Carry = 2000;
  }

  // "[T]ransfer" on the unit at (sx, sy, sslot), a press on (dx, dy, dslot)
  // and the do button, with the dialog's actions queued.
  void TransferBy(int sx, int sy, int sslot, int dx, int dy, int dslot, std::vector<DialogAction> actions) {
    Select(sx, sy, sslot);
    ASSERT_TRUE(PressOrderButton(kBtnTransfer));
    ASSERT_EQ(UI.Order.TransferOrder, 1);
    Select(dx, dy, dslot);
    platform.QueueDialog("transfer", std::move(actions));
    DoButton();
  }
  bool DialogOpened() const {
    for (const auto& e : platform.Events())
      if (e.kind == PlatformEvent::kDialogAction && e.title == "transfer") return true;
    return false;
  }

  int shq = 0, thq = 0, dest = 0;
};

TEST_F(TransferFlowTest, FromTheShqPoolToAFormation) {
  TransferBy(2, 2, 1, 2, 8, 1, {{"inf", "900"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  // The real supply flood: six grass hexes at 1 each, so 1800 as worked out.
  EXPECT_EQ(Unit[dest].InfQty, 1000);
  EXPECT_EQ(Shq[red][1].StockQty[1], 0);
  EXPECT_EQ(Shq[red][1].Carry, 200);
  EXPECT_EQ(Unit[dest].MP, 0);
  EXPECT_EQ(Unit[shq].SupplyPct, 500);  // no supply into a formation
  EXPECT_EQ(platform.Sounds().back(), kTransferSound);
  // The order is over and the selection is back on the SHQ.
  EXPECT_EQ(UI.Order.TransferOrder, 0);
  EXPECT_EQ(UI.SelX, 2);
  EXPECT_EQ(UI.SelY, 2);
  EXPECT_EQ(Hex[2][8].Mark, 999);
  // The stock's experience mixes in: the SHQ's 25 against the battalion's 25.
  EXPECT_EQ(Unit[dest].Experience, 25);
}

TEST_F(TransferFlowTest, TooMuchIsRefusedWithoutAWord) {
  Shq[red][1].Carry = 1799;
  TransferBy(2, 2, 1, 2, 8, 1, {{"inf", "900"}, {"transfer", ""}});
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Unit[dest].InfQty, 100);
  EXPECT_EQ(Shq[red][1].StockQty[1], 900);
  // The dialog stayed open and was cancelled by default.
  EXPECT_EQ(platform.Events().back().text, "cancel (default)");
  EXPECT_EQ(UI.Order.TransferOrder, 0);
}

TEST_F(TransferFlowTest, CancelChangesNothing) {
  TransferBy(2, 2, 1, 2, 8, 1, {{"inf", "10"}, {"cancel", ""}});
  EXPECT_EQ(Unit[dest].InfQty, 100);
  EXPECT_EQ(Unit[dest].MP, 3);
  EXPECT_EQ(Shq[red][1].StockQty[1], 900);
  EXPECT_EQ(Shq[red][1].Carry, 2000);
  EXPECT_EQ(UI.Order.TransferOrder, 0);
  EXPECT_TRUE(platform.Sounds().empty() || platform.Sounds().back() != kTransferSound);
}

TEST_F(TransferFlowTest, ArmourIntoAnEmptyClassOfTheFormation) {
  // The battalion has no tanks: their row is filled by the add button.
  TransferBy(2, 2, 1, 2, 8, 1, {{"add", std::to_string(tank)}, {"arm", "12"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  EXPECT_EQ(Unit[dest].ArmType, tank);
  EXPECT_EQ(Unit[dest].ArmQty, 12);
  EXPECT_EQ(Shq[red][1].StockQty[2], 18);
  EXPECT_EQ(Shq[red][1].Carry, 2000);  // tanks drive
}

TEST_F(TransferFlowTest, FormationToFormationUnderOneThq) {
  const int src = AddFormation(red, 2, 7, thq, 60, "2nd Bataljon");
  Unit[src].MobType = truck;
  Unit[src].MobQty = 1;
  Unit[src].MP = 6;
  TransferBy(2, 7, 1, 2, 8, 1, {{"inf", "60"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  // One hex over grass: Int(60 x 1 / 3) = 20 of the trucks' 100.
  EXPECT_EQ(Unit[dest].InfQty, 160);
  EXPECT_EQ(Unit[src].InfQty, 0);
  EXPECT_EQ(Unit[src].MP, 0);   // it transported
  EXPECT_EQ(Unit[dest].MP, 0);  // it received
}

TEST_F(TransferFlowTest, TheSourceMovesNoFasterThanWhatIsLeft) {
  // Same hex: no cost, so the source keeps its MP, limited by its slowest
  // remaining class.
  const int src = AddFormation(red, 2, 8, thq, 20, "2nd Bataljon");
  Unit[src].MobType = truck;
  Unit[src].MobQty = 2;
  Unit[src].MP = 6;
  TransferBy(2, 8, 2, 2, 8, 1, {{"mob", "2"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  EXPECT_EQ(Unit[dest].MobType, truck);
  EXPECT_EQ(Unit[dest].MobQty, 2);
  EXPECT_EQ(Unit[src].MobQty, 0);
  EXPECT_EQ(Unit[src].MP, 3);  // the rifles' 3
}

TEST_F(TransferFlowTest, FormationGivesBackToItsShq) {
  // A battalion beside its SHQ hands troops back into the pool, for nothing.
  const int g = AddFormation(red, 2, 2, thq, 100, "Guards");
  TransferBy(2, 2, 2, 2, 2, 1, {{"inf", "40"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  EXPECT_EQ(Unit[g].InfQty, 60);
  EXPECT_EQ(Shq[red][1].StockQty[1], 940);
  // The SHQ takes the receiving state of an SHQ.
  EXPECT_EQ(Unit[shq].Experience, 25);
  EXPECT_EQ(Unit[shq].Readiness, 25);
  // Into a free stock slot when the type is new to the pool.
  UnitSlotType(g, 3) = gun;
  UnitSlotQty(g, 3) = 5;
  TransferBy(2, 2, 2, 2, 2, 1, {{"art", "5"}, {"transfer", ""}});
  EXPECT_EQ(Shq[red][1].StockType[3], gun);
  EXPECT_EQ(Shq[red][1].StockQty[3], 5);
  EXPECT_EQ(Unit[g].ArtQty, 0);
}

TEST_F(TransferFlowTest, SupplyAndStockFromShqToShq) {
  const int other = AddShq(red, 2, 6, 2, "Second Army", 10);
  TransferBy(2, 2, 1, 2, 6, 1, {{"supply", "100"}, {"add", std::to_string(rifle)}, {"inf", "50"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  EXPECT_EQ(Unit[other].SupplyPct, 110);
  EXPECT_EQ(Unit[shq].SupplyPct, 400);
  EXPECT_EQ(Shq[red][2].StockType[1], rifle);
  EXPECT_EQ(Shq[red][2].StockQty[1], 50);
  EXPECT_EQ(Shq[red][1].StockQty[1], 850);
  // Four hexes: (100 + 50) x 4 / 3 = 200.
  EXPECT_EQ(Shq[red][1].Carry, 1800);
  EXPECT_EQ(Unit[other].MP, 0);
}

TEST_F(TransferFlowTest, ChainOfCommandTable) {
  const int thq2 = AddThq(red, 4, 3, shq, "Southern Group");
  const int shq2 = AddShq(red, 5, 2, 2, "Second Army");
  const int thqOther = AddThq(red, 6, 3, shq2, "Far Group");
  const int sib = AddFormation(red, 2, 9, thq, 10, "Sibling");
  const int cousin = AddFormation(red, 4, 9, thq2, 10, "Cousin");
  const int stranger = AddFormation(red, 6, 9, thqOther, 10, "Stranger");
  (void)sib;
  (void)cousin;
  (void)stranger;
  struct Case {
    int sx, sy, dx, dy;
    const char* message;
  };
  const Case cases[] = {
      // formation -> formation
      {2, 8, 4, 9, "Not a formation under same THQ"},
      // formation -> THQ
      {2, 8, 4, 3, "Not the THQ of this formation"},
      // formation -> SHQ
      {2, 8, 5, 2, "Not the SHQ of the units formations THQ"},
      // THQ -> formation
      {2, 3, 4, 9, "Not a formation under this THQ"},
      // THQ -> THQ
      {2, 3, 6, 3, "Not a THQ under the same SHQ"},
      // THQ -> SHQ
      {2, 3, 5, 2, "Not this THQs SHQ"},
      // SHQ -> formation
      {2, 2, 6, 9, "This formation is not in Chain of Command of the SHQ."},
      // SHQ -> THQ
      {2, 2, 6, 3, "This THQ is not assigned to this SHQ."},
  };
  for (const Case& c : cases) {
    platform.Clear();
    TransferBy(c.sx, c.sy, 1, c.dx, c.dy, 1, {});
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message}) << c.sx << "," << c.sy << " -> " << c.dx << "," << c.dy;
    EXPECT_FALSE(DialogOpened());
    EXPECT_EQ(UI.Order.TransferOrder, 0);  // a refusal ends the order
  }
  // And the allowed ones open the dialog (cancelled by default).
  const Case allowed[] = {
      {2, 8, 2, 9, ""},  // formations of one THQ
      {2, 8, 2, 3, ""},  // to its THQ
      {2, 8, 2, 2, ""},  // to its THQ's SHQ
      {2, 3, 2, 8, ""},  // THQ to its formation
      {2, 3, 4, 3, ""},  // THQs of one SHQ
      {2, 3, 2, 2, ""},  // THQ to its SHQ
      {2, 2, 2, 8, ""},  // SHQ to a formation two levels down
      {2, 2, 4, 3, ""},  // SHQ to its THQ
      {2, 2, 5, 2, ""},  // SHQ to any SHQ
      {5, 2, 2, 2, ""},
  };
  for (const Case& c : allowed) {
    platform.Clear();
    TransferBy(c.sx, c.sy, 1, c.dx, c.dy, 1, {});
    EXPECT_TRUE(Messages().empty()) << c.sx << "," << c.sy << " -> " << c.dx << "," << c.dy;
    EXPECT_TRUE(DialogOpened()) << c.sx << "," << c.sy << " -> " << c.dx << "," << c.dy;
    EXPECT_EQ(UI.Order.TransferOrder, 0);
  }
}

TEST_F(TransferFlowTest, FormationsWithoutAThqAreNotUnderTheSameOne) {
  Unit[dest].Boss = 0;
  AddFormation(red, 2, 9, 0, 10, "Loner");
  TransferBy(2, 8, 1, 2, 9, 1, {});
  EXPECT_EQ(Messages(), std::vector<std::string>{"Not a formation under same THQ"});
}

TEST_F(TransferFlowTest, AnotherElementOpensNothingAndTheOrderStays) {
  const int fleet = AddFormation(red, 2, 9, thq, 0, "1st Fleet");
  Unit[fleet].Theater = kSeaTheater;
  TransferBy(2, 8, 1, 2, 9, 1, {});
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(DialogOpened());
  EXPECT_EQ(UI.Order.TransferOrder, 1);
  // The player picks another target.
  AddFormation(red, 3, 8, thq, 10, "Neighbour");
  Select(3, 8);
  platform.QueueDialog("transfer", {});
  DoButton();
  EXPECT_TRUE(DialogOpened());
  EXPECT_EQ(UI.Order.TransferOrder, 0);
}

TEST_F(TransferFlowTest, TheSourceItselfEndsSilently) {
  TransferBy(2, 8, 1, 2, 8, 1, {});
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(DialogOpened());
  EXPECT_EQ(UI.Order.TransferOrder, 0);
}

TEST_F(TransferFlowTest, TheComputerTransfersWithoutADialog) {
  Origin(2, 2);
  SupplyFlood(true);
  Select(2, 8);
  TransferRequest = TransferRequestRec{};
  TransferRequest.Type[1] = rifle;
  TransferRequest.Qty[1] = 950;  // more than the 900 there are
  TransferRequest.Type[4] = tank;
  TransferRequest.Qty[4] = 5;
  Shq[red][1].Carry = 10;  // far too little, which the computer does not ask
  Unit[dest].CounterPic = 1;
  EXPECT_TRUE(RunTransfer(true));
  EXPECT_EQ(Unit[dest].InfQty, 1000);
  EXPECT_EQ(Unit[dest].ArmType, tank);
  EXPECT_EQ(Unit[dest].ArmQty, 5);
  EXPECT_EQ(Shq[red][1].StockQty[1], 0);
  EXPECT_EQ(Shq[red][1].StockQty[2], 25);
  EXPECT_EQ(Shq[red][1].Carry, 10 - 1800);
  EXPECT_FALSE(DialogOpened());
  EXPECT_TRUE(platform.Sounds().empty());
  // Counters stay as they were unless the computer's moves are shown.
  EXPECT_EQ(Unit[dest].CounterPic, 1);
  Game.ShowAIMoves = kTrue;
  TransferRequest = TransferRequestRec{};
  TransferRequest.Type[4] = tank;
  TransferRequest.Qty[4] = 1;
  Origin(2, 2);
  SupplyFlood(true);
  Select(2, 8);
  EXPECT_TRUE(RunTransfer(true));
  EXPECT_NE(Unit[dest].CounterPic, 1);
}

TEST_F(TransferFlowTest, TheComputerMovesSupplyBetweenShqs) {
  const int other = AddShq(red, 2, 6, 2, "Second Army", 0);
  Origin(2, 2);
  SupplyFlood(true);
  Select(2, 6);
  TransferRequest = TransferRequestRec{};
  TransferRequest.Supply = 700;  // there are 500
  TransferRequest.Type[1] = rifle;
  TransferRequest.Qty[1] = 100;
  EXPECT_TRUE(RunTransfer(true));
  EXPECT_EQ(Unit[other].SupplyPct, 500);
  EXPECT_EQ(Unit[shq].SupplyPct, 0);
  EXPECT_EQ(Shq[red][2].StockQty[1], 100);
}

TEST_F(TransferFlowTest, NothingToTransferBetweenWithoutADestination) {
  Origin(2, 2);
  Select(9, 9);
  EXPECT_FALSE(RunTransfer(true));
}


// Across a strait, with the real supply flood: column x = 5 is sea from top
// to bottom; the SHQ stands in its port town on (4, 6).
class OverseasTest : public TransferFlowTest {
 protected:
  void SetUp() override {
    TransferFlowTest::SetUp();
    for (int y = 1; y <= Game.MapH; ++y) {
      Hex[5][y].Land = kSea;
      Hex[5][y].Owner = 0;
    }
    Hex[4][6].Land = kUrban;
    port = AddShq(red, 4, 6, 2, "Coast Army", 0);
    coastThq = AddThq(red, 4, 7, port, "Coast Group");
    over = AddFormation(red, 7, 6, coastThq, 10, "Over There");
    Shq[red][2].StockType[1] = rifle;
    Shq[red][2].StockQty[1] = 50;
    Shq[red][2].Carry = 1000;
    Shq[red][2].CarrySea = 100;
  }
  int port = 0, coastThq = 0, over = 0;
};

TEST_F(OverseasTest, OpenShoreIsRefused) {
  TransferBy(4, 6, 1, 7, 6, 1, {{"inf", "10"}, {"transfer", ""}});
  EXPECT_EQ(Messages(), std::vector<std::string>{});
  // The flood went one sea hex out and came ashore on open grass.
  EXPECT_EQ(Unit[over].InfQty, 10);
  EXPECT_EQ(Shq[red][2].StockQty[1], 50);
  EXPECT_EQ(Shq[red][2].Carry, 1000);
  EXPECT_EQ(Shq[red][2].CarrySea, 100);
  // The dialog said why, and stayed open until cancelled by default.
  EXPECT_EQ(platform.Events().back().text, "cancel (default)");
  Origin(4, 6);
  SupplyFlood(true);
  Select(7, 6);
  // Landed on open shore, after some sea.
  EXPECT_LT(Hex[7][6].Mark, 999);
  EXPECT_GE(Hex[7][6].PathSea, 1);
  EXPECT_EQ(Hex[7][6].PathPortX, -1);
  TransferDialog d;
  d.Prepare(false);
  std::string why;
  ASSERT_TRUE(d.SetChosen(1, 10, &why));
  EXPECT_EQ(d.MessageText, "Hex is overseas and is not connected to a reachable port.");
  EXPECT_EQ(d.LandCost, 99999999);
  EXPECT_EQ(d.SeaCost, 99999999);
}

TEST_F(OverseasTest, ThroughAPortTheLandAfterTheSeaIsPaidByBoth) {
  Hex[6][6].Land = kUrban;  // a port of Red's on the far side
  TransferBy(4, 6, 1, 7, 6, 1, {{"inf", "10"}, {"transfer", ""}});
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  // M = 3, L = 0, A = 1, E = 2, W2 = 10: land 0 + 20, sea Int(10 / 3) + 20.
  EXPECT_EQ(Unit[over].InfQty, 20);
  EXPECT_EQ(Shq[red][2].Carry, 980);
  EXPECT_EQ(Shq[red][2].CarrySea, 77);
}

TEST_F(OverseasTest, OnTheQuayOnlyTheSeaIsPaid) {
  Hex[6][6].Land = kUrban;
  const int quay = AddFormation(red, 6, 6, coastThq, 10, "On The Quay");
  TransferBy(4, 6, 1, 6, 6, 1, {{"inf", "10"}, {"transfer", ""}});
  // M = 2 = A + 1: no land transport; sea Int(10 / 3) + 10 x (2 - 0 - 1).
  EXPECT_EQ(Unit[quay].InfQty, 20);
  EXPECT_EQ(Shq[red][2].Carry, 1000);
  EXPECT_EQ(Shq[red][2].CarrySea, 87);
}

}  // namespace
}  // namespace mf::test
