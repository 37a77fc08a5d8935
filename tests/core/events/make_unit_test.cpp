// Type 1: a formation appears, with its place, its troops, its officer and
// its THQ as the event's data say; an event that finds no place stays
// unfired.
#include "events_test_util.h"
#include "model/hex_geometry.h"
#include "model/invariants.h"
#include "orders/new_units.h"

namespace mf::test {
namespace {

class MakeUnitEvent : public EventsTest {
 protected:
  // A type 1 event for Red at (5, 5) with every label filled in.
  int UnitEvent() {
    const int e = AddEvent("Twenty farmers muster with their fathers' rifles.");
    EventRec& ev = Event[e];
    ev.Type = kEventMakeUnit;
    ev.Data[1] = 5;       // "X"
    ev.Data[2] = 5;       // "Y"
    ev.Data[4] = 0;       // "THEATER"
    ev.Data[5] = 70;      // "READINESS"
    ev.Data[6] = 30;      // "XP"
    ev.Data[7] = 12;      // "GEN SPRITE"
    ev.Data[8] = 7;       // "GEN LAND"
    ev.Data[9] = 3;       // "GEN AIR"
    ev.Data[10] = 2;      // "GEN SEA"
    ev.Data[11] = 40;     // "GEN RETREAT"
    ev.Data[12] = 5;      // "GEN FAME"
    ev.Data[13] = red;    // "REGIME OF UNIT"
    ev.Data[20] = rifle;  // "INFTYP"
    ev.Data[21] = 20;     // "INFQTY"
    ev.Data[22] = truck;  // "MOBTYP"
    ev.Data[23] = 4;      // "MOBQTY"
    ev.Data[24] = gun;    // "ARTTYP"
    ev.Data[25] = 2;      // "ARTQTY"
    ev.Data[26] = tank;   // "ARMTYP"
    ev.Data[27] = 1;      // "ARMQTY"
    ev.DataText[1] = "Valley Levy";  // "NAME OF FORM"
    ev.DataText[2] = "Hugo Brand";   // "NAME OF GEN"
    return e;
  }
  // The formation of a fired event: the last unit made.
  static int Made() { return static_cast<int>(Game.UnitCount); }
};

TEST_F(MakeUnitEvent, TheFormationAsTheDataDescribeIt) {
  const int e = UnitEvent();
  Game.CurRegime = 0;  // the first start of a game
  Regime[red].PP = 4;
  RunEvents();
  ASSERT_EQ(Event[e].FiredTurn, 1);
  const int u = Hex[5][5].Unit[1];
  ASSERT_GT(u, 0);
  const UnitRec& un = Unit[u];
  EXPECT_EQ(un.Name, "Valley Levy");
  EXPECT_EQ(un.Regime, red);
  EXPECT_EQ(un.Theater, kLandTheater);
  EXPECT_EQ(un.Readiness, 70);
  EXPECT_EQ(un.Experience, 30);
  EXPECT_EQ(un.InfType, rifle);
  EXPECT_EQ(un.InfQty, 20);
  EXPECT_EQ(un.MobType, truck);
  EXPECT_EQ(un.MobQty, 4);
  EXPECT_EQ(un.ArtType, gun);
  EXPECT_EQ(un.ArtQty, 2);
  EXPECT_EQ(un.ArmType, tank);
  EXPECT_EQ(un.ArmQty, 1);
  EXPECT_EQ(un.Thq, 0);
  EXPECT_EQ(un.Shq, 0);
  // The new-unit routine's own doing: no MP, the disruption of a new unit
  // (engine variable 545, 25) and its price (engine variable 611, 1 point).
  EXPECT_EQ(un.MP, 0);
  EXPECT_EQ(un.Disruption, 25);
  EXPECT_EQ(Regime[red].PP, 3);
  // Its officer.
  ASSERT_GT(un.Officer, 0);
  const OfficerRec& of = Officer[un.Officer];
  EXPECT_EQ(of.Name, "Hugo Brand");
  EXPECT_EQ(of.Regime, red);
  EXPECT_EQ(of.InPool, 0);
  EXPECT_EQ(of.Pic, 12);
  EXPECT_EQ(of.Land, 7);
  EXPECT_EQ(of.Air, 3);
  EXPECT_EQ(of.Sea, 2);
  EXPECT_EQ(of.Retreat, 40);
  EXPECT_EQ(of.Fame, 5);
  // The regime to move is back, the selection stands on the new formation.
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_EQ(CheckInvariants(), "");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(MakeUnitEvent, TheRegimeToMoveIsBorrowedOnlyForTheCreation) {
  const int e = UnitEvent();
  Event[e].Data[13] = blue;
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) Hex[x][y].Owner = blue;
  Game.CurRegime = 3;  // after the last regime, as the driver has it when the turn rises
  RunEvents();
  const int u = Hex[5][5].Unit[1];
  ASSERT_GT(u, 0);
  EXPECT_EQ(Unit[u].Regime, blue);
  EXPECT_EQ(Officer[Unit[u].Officer].Regime, blue);
  EXPECT_EQ(Game.CurRegime, 3);
}

TEST_F(MakeUnitEvent, TheFormationJoinsItsStack) {
  UnitEvent();
  AddFormation(red, 5, 5, "1st Guards");
  AddFormation(red, 5, 5, "2nd Guards");
  RunEvents();
  ASSERT_EQ(StackSize(5, 5), 3);
  EXPECT_EQ(Unit[Hex[5][5].Unit[3]].Name, "Valley Levy");
}

TEST_F(MakeUnitEvent, ATheaterOfTheDataAndALandFormationForAnyOther) {
  const int e = UnitEvent();
  Event[e].Data[4] = kAirTheater;
  RunEvents();
  EXPECT_EQ(Unit[Made()].Theater, kAirTheater);
  Event[e].Data[4] = 7;
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Unit[Made()].Theater, kLandTheater);
}

TEST_F(MakeUnitEvent, AFullHexSendsItToTheFirstNeighbourInDirectionOrder) {
  UnitEvent();
  Fill(red, 5, 5);
  // Around (5, 5), an odd row: 1 (5,4), 2 (6,4), 3 (6,5), 4 (6,6), 5 (5,6), 6 (4,5).
  Hex[5][4].Land = kSea;
  Hex[6][4].Land = kMountain;
  Fill(red, 6, 5);
  AddFormation(red, 6, 6, "Already there");
  RunEvents();
  ASSERT_EQ(StackSize(6, 6), 2);
  EXPECT_EQ(Unit[Hex[6][6].Unit[2]].Name, "Valley Levy");
  EXPECT_EQ(UI.SelX, 6);
  EXPECT_EQ(UI.SelY, 6);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(MakeUnitEvent, TheNeighbourOfAFullOwnHexNeedNotBeOwned) {
  UnitEvent();
  Fill(red, 5, 5);
  Hex[5][4].Owner = 0;  // direction 1, neutral and empty
  RunEvents();
  ASSERT_EQ(StackSize(5, 4), 1);
  EXPECT_EQ(Unit[Hex[5][4].Unit[1]].Name, "Valley Levy");
  // Only the override takes the ground.
  EXPECT_EQ(Hex[5][4].Owner, 0);
}

TEST_F(MakeUnitEvent, ANeighbourHeldByAForeignFormationIsPassedBy) {
  UnitEvent();
  Fill(red, 5, 5);
  Hex[5][4].Owner = blue;
  AddFormation(blue, 5, 4, "Thorn Rifles");
  RunEvents();
  EXPECT_EQ(StackSize(5, 4), 1);
  ASSERT_EQ(StackSize(6, 4), 1);
  EXPECT_EQ(Unit[Hex[6][4].Unit[1]].Name, "Valley Levy");
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(MakeUnitEvent, NoPlaceAroundAFullHexLeavesTheEventUnfired) {
  const int e = UnitEvent();
  Fill(red, 5, 5);
  Hex[5][4].Land = kSea;
  Hex[6][4].Land = kMountain;
  Fill(red, 6, 5);
  Fill(red, 6, 6);
  Hex[5][6].Land = kMountain;
  Hex[4][5].Land = kSea;
  const long units = Game.UnitCount;
  Regime[red].PP = 4;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  EXPECT_EQ(Game.UnitCount, units);
  EXPECT_EQ(Regime[red].PP, 4);
}

TEST_F(MakeUnitEvent, ForeignGroundWithoutOverrideLeavesTheEventUnfired) {
  const int e = UnitEvent();
  Hex[5][5].Owner = blue;
  Event[e].Data[14] = 2;  // only 1 overrides
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  EXPECT_EQ(StackSize(5, 5), 0);
  EXPECT_EQ(Hex[5][5].Owner, blue);
  // Neutral ground is not the regime's either.
  Hex[5][5].Owner = 0;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  EXPECT_EQ(StackSize(5, 5), 0);
}

TEST_F(MakeUnitEvent, OverrideTakesAnEmptyForeignHex) {
  const int e = UnitEvent();
  Event[e].Data[14] = 1;  // "OVERRIDE ENM HEX"
  Hex[5][5].Owner = blue;
  Hex[5][5].ProdSHQ = 4;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 1);
  ASSERT_EQ(StackSize(5, 5), 1);
  EXPECT_EQ(Unit[Hex[5][5].Unit[1]].Regime, red);
  EXPECT_EQ(Hex[5][5].Owner, red);
  EXPECT_EQ(Hex[5][5].ProdSHQ, 0);
}

TEST_F(MakeUnitEvent, OverrideBesideAnOccupiedHexTakesTheFirstEmptyNeighbour) {
  const int e = UnitEvent();
  Event[e].Data[14] = 1;
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) Hex[x][y].Owner = blue;
  AddFormation(blue, 5, 5, "Thorn Rifles");
  Hex[5][4].Land = kSea;
  Hex[6][4].Land = kMountain;
  AddFormation(blue, 6, 5, "Thorn Guns");
  Hex[6][6].ProdSHQ = 2;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 1);
  ASSERT_EQ(StackSize(6, 6), 1);
  EXPECT_EQ(Unit[Hex[6][6].Unit[1]].Name, "Valley Levy");
  EXPECT_EQ(Hex[6][6].Owner, red);
  EXPECT_EQ(Hex[6][6].ProdSHQ, 0);
  // The occupied hex stays as it was.
  EXPECT_EQ(Hex[5][5].Owner, blue);
  EXPECT_EQ(StackSize(5, 5), 1);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(MakeUnitEvent, OverrideWithNoEmptyNeighbourLeavesTheEventUnfired) {
  const int e = UnitEvent();
  Event[e].Data[14] = 1;
  Hex[5][5].Owner = blue;
  AddFormation(blue, 5, 5, "Thorn Rifles");
  for (int d = 1; d <= 6; ++d) {
    const HexXY n = Neighbour(5, 5, d);
    Hex[n.x][n.y].Owner = blue;
    AddFormation(blue, n.x, n.y, "Thorn Picket");
  }
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  EXPECT_EQ(Hex[5][5].Owner, blue);
}

TEST_F(MakeUnitEvent, OnceWithAFailedPlacementIsTriedAgainNextTurn) {
  const int e = UnitEvent();
  Event[e].Once = 1;
  Hex[5][5].Owner = blue;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  // The canton army takes the hex back before the next game turn.
  Hex[5][5].Owner = red;
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 2);
  EXPECT_EQ(StackSize(5, 5), 1);
  // And once is once.
  Game.Turn = 3;
  RunEvents();
  EXPECT_EQ(StackSize(5, 5), 1);
  EXPECT_EQ(Event[e].FiredTurn, 2);
}

TEST_F(MakeUnitEvent, APlaceOffTheMapOrARegimeOutsideTheGameFails) {
  const int e = UnitEvent();
  Event[e].Data[1] = 13;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  Event[e].Data[1] = 5;
  Event[e].Data[13] = 3;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  Event[e].Data[13] = 0;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 0);
  EXPECT_EQ(StackSize(5, 5), 0);
}

TEST_F(MakeUnitEvent, ARandomOrShortOfficerNameKeepsTheDrawnOne) {
  const int e = UnitEvent();
  for (const char* name : {"random", "RaNdOm", "H", ""}) {
    Event[e].DataText[2] = name;
    Game.Turn += 1;
    RunEvents();
    ASSERT_EQ(Event[e].FiredTurn, Game.Turn) << name;
    // Red's people has one first and one last name.
    EXPECT_EQ(Officer[Unit[Made()].Officer].Name, "Anna Stone") << name;
  }
  Event[e].DataText[2] = "Jo";
  Game.Turn += 1;
  RunEvents();
  EXPECT_EQ(Officer[Unit[Made()].Officer].Name, "Jo");
}

TEST_F(MakeUnitEvent, NoPortraitNumberKeepsTheDrawnPortrait) {
  const int e = UnitEvent();
  Event[e].Data[7] = 0;
  RunEvents();
  // The first free portrait of Red's set.
  EXPECT_EQ(Officer[Unit[Made()].Officer].Pic, 1);
}

TEST_F(MakeUnitEvent, AnEmptyFormationNameKeepsTheRegimesOwn) {
  const int e = UnitEvent();
  Event[e].DataText[1] = "";
  Regime[red].FormationName = "Canton Rifles";
  RunEvents();
  EXPECT_EQ(Unit[Made()].Name, "1st Canton Rifles");
}

TEST_F(MakeUnitEvent, TheNearestThqOfTheRegimeBecomesTheBoss) {
  UnitEvent();
  // Scores 100 - (|dx| + |dy|) from (5, 5): (8, 9) 93, (2, 2) 94; Blue's THQ
  // beside it does not count.
  const int far = AddFormation(red, 8, 9, "THQ far", true);
  const int near = AddFormation(red, 2, 2, "THQ near", true);
  Hex[5][6].Owner = blue;
  AddFormation(blue, 5, 6, "Blue THQ", true);
  RunEvents();
  const int u = Hex[5][5].Unit[1];
  EXPECT_EQ(Unit[u].Boss, near);
  EXPECT_NE(Unit[u].Boss, far);
}

TEST_F(MakeUnitEvent, OfTwoEqualThqsTheFirstInMapOrderIsTheBoss) {
  UnitEvent();
  // Both score 98: (7, 5) and (3, 5); x is the outer loop, so (3, 5) comes first.
  AddFormation(red, 7, 5, "THQ east", true);
  const int west = AddFormation(red, 3, 5, "THQ west", true);
  RunEvents();
  EXPECT_EQ(Unit[Hex[5][5].Unit[1]].Boss, west);
}

TEST_F(MakeUnitEvent, WithoutAThqThereIsNoBoss) {
  UnitEvent();
  AddFormation(red, 4, 4, "A formation, no THQ");
  RunEvents();
  EXPECT_EQ(Unit[Hex[5][5].Unit[1]].Boss, 0);
}

}  // namespace
}  // namespace mf::test
