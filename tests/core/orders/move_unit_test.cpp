// Carrying out a move, the occupation power, and the turn-start capture.
#include <gtest/gtest.h>

#include "control/turn_cycle.h"
#include "orders/movement.h"
#include "orders_test_util.h"

namespace mf {
namespace {

namespace world = test::world;

class MoveUnitTest : public test::OrdersTest {
 protected:
  // The flood from (x, y), then the target selected: the move as the
  // computer player makes it (no move flag, origin in UI.OrdX ..).
  int FloodAndMove(int x, int y, int slot, int tx, int ty) {
    Origin(x, y, slot);
    MoveFlood(true);
    Select(tx, ty);
    return MoveUnit(true);
  }
};

TEST_F(MoveUnitTest, AMoveChargesMPAndAPartOfTheReadiness) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 3);
  Unit[u].FromX = 4;
  Unit[u].FromY = 4;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 5, 2), kMoveDone);
  // (5, 2) costs 2 of 3 MP: readiness Int(100 x (100 - 10 x 2 / 3) / 100) = 93.
  EXPECT_EQ(Hex[5][2].Unit[1], u);
  EXPECT_EQ(Hex[3][3].Unit[1], 0);
  EXPECT_EQ(Unit[u].MP, 1);
  EXPECT_EQ(Unit[u].Readiness, 93);
  EXPECT_EQ(Unit[u].FromX, 0);
  EXPECT_EQ(Unit[u].FromY, 0);
  EXPECT_EQ(UI.OrdX, 5);
  EXPECT_EQ(UI.OrdY, 2);
  EXPECT_EQ(UI.OrdSlot, 1);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.SelCount, 0);  // counted before the formation came in
}

TEST_F(MoveUnitTest, UsingEveryMPCostsATenthOfTheReadiness) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 2);
  Unit[u].Readiness = 75;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 5, 3), kMoveDone);
  // Int(75 x (100 - 10 x 2 / 2) / 100) = Int(67.5) = 67.
  EXPECT_EQ(Unit[u].Readiness, 67);
  EXPECT_EQ(Unit[u].MP, 0);
}

TEST_F(MoveUnitTest, TheFreeReturnCostsNothing) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 0);
  Unit[u].FromX = 4;
  Unit[u].FromY = 3;
  Unit[u].Readiness = 80;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 4, 3), kMoveDone);
  EXPECT_EQ(Hex[4][3].Unit[1], u);
  EXPECT_EQ(Unit[u].Readiness, 80);
  EXPECT_EQ(Unit[u].MP, 0);
  EXPECT_EQ(Unit[u].FromX, 0);
}

TEST_F(MoveUnitTest, TooFewMPAndOutOfReachAreRefusedUnchanged) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 1);
  Hex[2][3].Land = kMountain;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 5, 3), kMoveShortOfMP);  // 999
  EXPECT_EQ(FloodAndMove(3, 3, 1, 2, 3), kMoveShortOfMP);  // mountain
  EXPECT_EQ(Hex[3][3].Unit[1], u);
  EXPECT_EQ(Unit[u].MP, 1);
  EXPECT_EQ(Unit[u].Readiness, 100);
  EXPECT_EQ(UI.OrdX, 3);
  // A mark above the MP left is refused, as a move after the flood would be.
  Origin(3, 3);
  MoveFlood(true);
  Unit[u].MP = 0;
  Select(4, 3);
  EXPECT_EQ(MoveUnit(true), kMoveShortOfMP);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
}

TEST_F(MoveUnitTest, AFullHexRefusesWithTheSecondResult) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 3);
  for (const char* n : {"A", "B", "C"}) Infantry(red, 4, 3, n, 0);
  EXPECT_EQ(FloodAndMove(3, 3, 1, 4, 3), kMoveHexFull);
  EXPECT_EQ(UI.SelCount, 3);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
}

TEST_F(MoveUnitTest, TheStacksPackOnBothSides) {
  MakeMap(10, 10);
  const int a = Infantry(red, 3, 3, "A", 3);
  const int b = Infantry(red, 3, 3, "B", 3);
  const int c = Infantry(red, 3, 3, "C", 3);
  const int d = Infantry(red, 4, 3, "D", 3);
  EXPECT_EQ(FloodAndMove(3, 3, 1, 4, 3), kMoveDone);
  EXPECT_EQ(Hex[3][3].Unit[1], b);
  EXPECT_EQ(Hex[3][3].Unit[2], c);
  EXPECT_EQ(Hex[3][3].Unit[3], 0);
  EXPECT_EQ(Hex[4][3].Unit[1], d);
  EXPECT_EQ(Hex[4][3].Unit[2], a);
  EXPECT_EQ(UI.SelSlot, 2);
  EXPECT_EQ(UI.OrdSlot, 2);
  // A human's move leaves the move flag on the unit that moved; the next
  // move, of the lower one of the two left behind, is the computer's way.
  EXPECT_EQ(UI.Order.SelOrderMove, a);
  UI.Order.SelOrderMove = 0;
  EXPECT_EQ(FloodAndMove(3, 3, 2, 4, 3), kMoveDone);
  EXPECT_EQ(Hex[3][3].Unit[1], b);
  EXPECT_EQ(Hex[3][3].Unit[2], 0);
  EXPECT_EQ(Hex[4][3].Unit[3], c);
}

TEST_F(MoveUnitTest, ALandMoveTakesTheTargetAndTheHexesOnTheWay) {
  // Row 3 east of (2, 3) is neutral; (4, 3) a town making type 5 for SHQ 7.
  MakeMap(10, 10);
  for (int x = 3; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = 0;
  Hex[4][3].Land = kUrban;
  Hex[4][3].Pop = 100;
  Hex[4][3].Prod = 5;
  Hex[4][3].ProdPts = 40;
  Hex[4][3].ProdSHQ = 7;
  const int u = Infantry(red, 2, 3, "1st", 4);
  Origin(2, 3);
  MoveFlood(true);
  // Foreign hexes cost 1 more: (3, 3) 2, (4, 3) 4, left in waves 1 and 2.
  EXPECT_EQ(Hex[3][3].Mark, 2);
  EXPECT_EQ(Hex[4][3].Mark, 4);
  EXPECT_EQ(Hex[4][3].Wave, 3);
  Select(4, 3);
  EXPECT_EQ(MoveUnit(true), kMoveDone);
  EXPECT_EQ(Hex[4][3].Owner, red);
  EXPECT_EQ(Hex[4][3].Prod, 0);
  EXPECT_EQ(Hex[4][3].ProdSHQ, 0);
  EXPECT_EQ(Hex[4][3].ProdPts, 40);
  EXPECT_EQ(Hex[3][3].Owner, red);
  EXPECT_EQ(Hex[3][2].Owner, 0);
  EXPECT_EQ(Hex[5][3].Owner, 0);
  // Int(100 x (100 - 10 x 4 / 4) / 100) = 90.
  EXPECT_EQ(Unit[u].Readiness, 90);
  EXPECT_EQ(Unit[u].MP, 0);
}

TEST_F(MoveUnitTest, AnOwnTownKeepsItsProduction) {
  MakeMap(10, 10);
  Hex[4][3].Land = kUrban;
  Hex[4][3].Pop = 100;
  Hex[4][3].Prod = 5;
  Hex[4][3].ProdSHQ = 7;
  Infantry(red, 3, 3, "1st", 3);
  EXPECT_EQ(FloodAndMove(3, 3, 1, 4, 3), kMoveDone);
  EXPECT_EQ(Hex[4][3].Prod, 5);
  EXPECT_EQ(Hex[4][3].ProdSHQ, 7);
}

TEST_F(MoveUnitTest, ShipsTakeNoHexes) {
  MakeMap(10, 10);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) {
      Hex[x][y].Land = kSea;
      Hex[x][y].Owner = 0;
    }
  const int s = Ship(red, 3, 3, "Fleet", 4);
  Hex[3][3].Owner = 0;
  Unit[s].Readiness = 60;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 5, 3), kMoveDone);
  EXPECT_EQ(Hex[5][3].Owner, 0);
  EXPECT_EQ(Hex[4][3].Owner, 0);
  // Int(60 x (100 - 10 x 2 / 4) / 100) = 57.
  EXPECT_EQ(Unit[s].Readiness, 57);
  EXPECT_EQ(Unit[s].MP, 2);
}

TEST_F(MoveUnitTest, RebasingLeavesAnAirWingHardlyReady) {
  MakeMap(10, 10);
  const int w = Wing(red, 3, 3, "Wing", 5);
  Unit[w].Disruption = 90;
  Hex[4][3].Owner = 0;  // flown over, not taken
  EXPECT_EQ(FloodAndMove(3, 3, 1, 5, 3), kMoveDone);
  EXPECT_EQ(Unit[w].Readiness, 10);
  EXPECT_EQ(Unit[w].Disruption, 100);
  EXPECT_EQ(Unit[w].MP, 3);
  EXPECT_EQ(Hex[4][3].Owner, 0);
}

TEST_F(MoveUnitTest, TheComputerEndsWithoutAMoveFlagAndAHumanWithTheUnit) {
  MakeMap(10, 10);
  const int u = Infantry(red, 3, 3, "1st", 3);
  UI.Order.SelOrderMove = u;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 4, 3), kMoveDone);
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  Regime[red].AI = 1;
  EXPECT_EQ(FloodAndMove(4, 3, 1, 5, 3), kMoveDone);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(UI.OrdX, 5);
}

TEST_F(MoveUnitTest, InTheEditorAFormationGoesAnywhereForFreeAndTakesItsOwnersLand) {
  MakeMap(10, 10, 0);
  const int u = Infantry(blue, 3, 3, "Blue 1st", 0);
  UI.EditMode = 1;
  Game.CurRegime = 0;
  Hex[8][8].Land = kMountain;
  EXPECT_EQ(FloodAndMove(3, 3, 1, 8, 8), kMoveDone);
  EXPECT_EQ(Hex[8][8].Unit[1], u);
  EXPECT_EQ(Hex[8][8].Owner, blue);
  EXPECT_EQ(Unit[u].MP, 0);
  EXPECT_EQ(Unit[u].Readiness, 100);
}

TEST_F(MoveUnitTest, TakenHexesJoinTheAreaOfTheOrigin) {
  MakeMap(10, 10);
  for (int x = 3; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = 0;
  Hex[2][3].Area = 4;
  Infantry(red, 2, 3, "1st", 4);
  EXPECT_EQ(FloodAndMove(2, 3, 1, 4, 3), kMoveDone);
  EXPECT_EQ(Hex[4][3].Area, 4);
  EXPECT_EQ(Hex[3][3].Area, 4);
  EXPECT_EQ(Hex[5][3].Area, 0);
}

TEST_F(MoveUnitTest, OccupationPowerByTheater) {
  MakeMap(10, 10);
  // Land: rifles 20/20 x 10 x 30 = 300; trucks carry soft attack 4 x 2 = 8;
  // guns 6 x 3 = 18; armour 40/20 x 7 x 2 = 28.
  const int tank = world::AddType("Tank", kLandTheater, 4);
  Type[tank].Attr[kHitPoints] = 40;
  Type[tank].Attr[kSoftAttack] = 7;
  Type[truck].Attr[kSoftAttack] = 4;
  Type[gun].Attr[kSoftAttack] = 6;
  const int u = Infantry(red, 3, 3, "Mixed", 0);
  Unit[u].MobType = truck;
  Unit[u].MobQty = 2;
  Unit[u].ArtType = gun;
  Unit[u].ArtQty = 3;
  Unit[u].ArmType = tank;
  Unit[u].ArmQty = 2;
  EXPECT_DOUBLE_EQ(UnitOccupyPower(u), 300 + 8 + 18 + 28);
  // A class without quantity counts nothing, whatever its type.
  Unit[u].ArmQty = 0;
  EXPECT_DOUBLE_EQ(UnitOccupyPower(u), 326);
  // Sea: hit points x quantity of every class: 50 x 2.
  const int s = Ship(red, 5, 5, "Fleet", 0);
  EXPECT_DOUBLE_EQ(UnitOccupyPower(s), 100);
  // Air: fighters by dogfight, transports by soft attack, bombers by bombing.
  const int bomber = world::AddType("Bomber", kAirTheater, 3);
  Type[bomber].Attr[kStrategicBombing] = 9;
  Type[transport].Attr[kSoftAttack] = 2;
  const int w = Wing(red, 6, 6, "Wing", 0);
  Unit[w].MobType = transport;
  Unit[w].MobQty = 3;
  Unit[w].ArtType = bomber;
  Unit[w].ArtQty = 4;
  EXPECT_DOUBLE_EQ(UnitOccupyPower(w), 10 * 5 + 2 * 3 + 9 * 4);
}

class HexCaptureTest : public test::OrdersTest {};

TEST_F(HexCaptureTest, NeutralLandSpreadsOneRingATurn) {
  MakeMap(10, 10, 0);
  Hex[5][5].Owner = red;
  Hex[6][5].Land = kSea;
  HexCapture();
  // The six neighbours of (5, 5) but the sea; then marks stay as they were set.
  EXPECT_EQ(Hex[5][4].Owner, red);
  EXPECT_EQ(Hex[6][4].Owner, red);
  EXPECT_EQ(Hex[6][6].Owner, red);
  EXPECT_EQ(Hex[5][6].Owner, red);
  EXPECT_EQ(Hex[4][5].Owner, red);
  EXPECT_EQ(Hex[6][5].Owner, 0);
  EXPECT_EQ(Hex[7][5].Owner, 0);
  EXPECT_EQ(Hex[6][5].Mark, 0);
  EXPECT_EQ(Hex[5][4].Mark, 1);
  EXPECT_EQ(Hex[5][5].Mark, 0);
  HexCapture();
  EXPECT_EQ(Hex[7][4].Owner, red);  // next to (6, 4)
  EXPECT_EQ(Hex[6][5].Owner, 0);    // the sea stays neutral for ever
  // (7, 5) is two hexes away, but behind the sea: none of its neighbours
  // was Red's when the turn began.
  EXPECT_EQ(Hex[7][5].Owner, 0);
  EXPECT_EQ(Hex[8][4].Owner, 0);
  int owned = 0;
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y)
      if (Hex[x][y].Owner == red) ++owned;
  // The centre, five of the first ring, eleven of the second.
  EXPECT_EQ(owned, 1 + 5 + 11);
}

TEST_F(HexCaptureTest, RowSevenHundredThreeKeepsNeutralLandNeutral) {
  MakeMap(10, 10, 0);
  Hex[5][5].Owner = red;
  EngineVar[703].Value = 1;
  HexCapture();
  EXPECT_EQ(Hex[5][4].Owner, 0);
}

TEST_F(HexCaptureTest, UnguardedEnemyLandBehindTheFrontFalls) {
  MakeMap(10, 10, 0);
  EngineVar[703].Value = 1;
  for (int x = 4; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = blue;
  Hex[4][5].Land = kUrban;
  Hex[4][5].Pop = 200;
  Hex[4][5].Prod = 3;
  Hex[4][5].ProdSHQ = 9;
  Hex[3][5].Owner = red;
  Infantry(red, 3, 5, "1st", 0);
  HexCapture();
  // (4, 5) has no Blue formation on it or next to it on Blue land.
  EXPECT_EQ(Hex[4][5].Owner, red);
  EXPECT_EQ(Hex[4][5].Prod, 0);
  EXPECT_EQ(Hex[4][5].ProdSHQ, 0);
  EXPECT_EQ(Hex[4][4].Owner, red);  // also next to (3, 5)
  EXPECT_EQ(Hex[4][6].Owner, red);
  EXPECT_EQ(Hex[5][5].Owner, blue);  // no Red formation next to it yet
}

TEST_F(HexCaptureTest, AnEnemyFormationNextDoorHoldsTheLand) {
  MakeMap(10, 10, 0);
  EngineVar[703].Value = 1;
  for (int x = 4; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = blue;
  Hex[3][5].Owner = red;
  Infantry(red, 3, 5, "1st", 0);
  Infantry(blue, 5, 5, "Guard", 0);
  HexCapture();
  EXPECT_EQ(Hex[4][5].Owner, blue);  // (5, 5) is its neighbour
  EXPECT_EQ(Hex[4][4].Owner, red);   // (4, 4) even row: (5, 5) is no neighbour
}

TEST_F(HexCaptureTest, AnSHQTakesNoLandAndPeaceLandIsNotTaken) {
  MakeMap(10, 10, 0);
  EngineVar[703].Value = 1;
  for (int x = 4; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = blue;
  Hex[3][5].Owner = red;
  const int shq = world::AddUnit(red, 3, 5, "Army");
  Unit[shq].Shq = 1;
  HexCapture();
  EXPECT_EQ(Hex[4][5].Owner, blue);
  // A THQ is no SHQ: it takes land; at peace nothing changes hands.
  Unit[shq].Shq = 0;
  Unit[shq].Thq = 1;
  Dip[red][blue].Relation = 1;
  HexCapture();
  EXPECT_EQ(Hex[4][5].Owner, blue);
  Dip[red][blue].Relation = 0;
  HexCapture();
  EXPECT_EQ(Hex[4][5].Owner, red);
}

TEST_F(HexCaptureTest, EverythingIsMarkedBeforeAnythingChangesHands) {
  // Blue's (4, 5) falls to the 1st at (3, 5). The neutral (5, 5) lies next
  // to (4, 5) only; it is looked at after it in the scan, but it was next to
  // no Red land when the marking was done.
  MakeMap(10, 10, 0);
  Hex[3][5].Owner = red;
  Hex[4][5].Owner = blue;
  Infantry(red, 3, 5, "1st", 0);
  HexCapture();
  EXPECT_EQ(Hex[4][5].Owner, red);
  EXPECT_EQ(Hex[4][5].Mark, 1);
  EXPECT_EQ(Hex[4][4].Owner, red);
  EXPECT_EQ(Hex[5][5].Owner, 0);
  EXPECT_EQ(Hex[5][5].Mark, 0);
}

TEST_F(HexCaptureTest, AFormationStandingOnEnemyLandHoldsItForItsOwner) {
  // A formation in slot 1 holds a hex whoever it belongs to: the move that
  // put it there took the hex; the turn start does not.
  MakeMap(10, 10, 0);
  EngineVar[703].Value = 1;
  Hex[3][5].Owner = red;
  Hex[4][5].Owner = blue;
  Infantry(red, 3, 5, "1st", 0);
  Infantry(red, 4, 5, "2nd", 0);
  HexCapture();
  EXPECT_EQ(Hex[4][5].Owner, blue);
}

}  // namespace
}  // namespace mf

// The capture at the turn start as the next-turn driver runs it, before the
// supply pass.
namespace mf {
namespace {

class TurnStartCaptureTest : public test::OrdersTest {};

TEST_F(TurnStartCaptureTest, AHexTakenAtTheTurnStartIsASupplyHexThatTurn) {
  // Red's SHQ at (3, 5), a Red formation at (4, 5); Blue's (5, 5) next to it
  // is unguarded and falls before the SHQ floods, so supply reaches it;
  // Blue's (6, 5) beyond it stays Blue and out of reach.
  MakeMap(10, 10, 0);
  EngineVar[703].Value = 1;
  for (int x = 1; x <= 4; ++x) Hex[x][5].Owner = red;
  for (int x = 5; x <= 10; ++x) Hex[x][5].Owner = blue;
  const int shq = world::AddUnit(red, 3, 5, "Army");
  Unit[shq].Shq = 1;
  Unit[shq].MP = 0;
  Shq[red][1].Unit = shq;
  Infantry(red, 4, 5, "1st", 0);
  Game.Turn = 0;
  Game.CurRegime = 0;
  NextTurn();
  ASSERT_EQ(Game.CurRegime, red);
  EXPECT_EQ(Hex[5][5].Owner, red);
  EXPECT_EQ(Hex[6][5].Owner, blue);
  EXPECT_LT(Hex[5][5].ShqDist[1], 999);
  EXPECT_EQ(Hex[6][5].ShqDist[1], 999);
  // An SHQ keeps 1 MP at the turn start.
  EXPECT_EQ(Unit[shq].MP, 1);
}

}  // namespace
}  // namespace mf
