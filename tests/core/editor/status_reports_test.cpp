// The Status dialog's three reports and the Info dialog, each worked out by
// hand for a small world: a hex reached by two SHQs, one through a port and
// one over open shore; an order of battle; a supply report with its sums.
#include "view/status_dialog.h"
#include "engine/type_info_dialog.h"

#include "core/econ/econ_test_util.h"

namespace mf::test {
namespace {

using Lines = std::vector<std::string>;

class StatusReportTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    // A corridor along row 2 owned by Red: a hex at (x, 2) lies at cost x - 1
    // from the SHQ at (1, 2); everything else is nobody's grass.
    MakeWorld(40, 10, {"Red", "Blue"});
    Row(2, 1, 40, kGrass, 1);
    shq = AddShq(1, 1, 2, 1, "First Army");
    rifles = LandType("Rifles", 1, 1, 0, 3, 10, 100);
  }
  Lines Reports() const {
    Lines out;
    for (const auto& e : platform.Events())
      if (e.kind == PlatformEvent::kReport) out.push_back(e.text);
    return out;
  }
  int shq = 0;
  int rifles = 0;
};

// ---- The hex report ----------------------------------------------------------

TEST_F(StatusReportTest, AHexReachedThroughAPortAndOverOpenShore) {
  // Row 2: Red's grass at 1 and 2, the port Westport at 3, sea at 4..6, the
  // port Eastport at 7 and the hex asked about at 8; the rest nobody's.
  Row(2, 9, 40, kGrass, 0);
  Put(3, 2, kUrban, 1);
  Hex[3][2].UrbanName = "Westport";
  Row(2, 4, 6, kSea, 0);
  Put(7, 2, kUrban, 1);
  Hex[7][2].UrbanName = "Eastport";
  // Row 4: a second SHQ at (1, 4), Red's grass to its port at 3, sea at
  // 4..6 and open shore at (7, 4); (7, 3) joins that shore to (8, 2).
  Row(4, 1, 2, kGrass, 1);
  Put(3, 4, kUrban, 1);
  Hex[3][4].UrbanName = "Southport";
  Row(4, 4, 6, kSea, 0);
  Put(7, 4, kGrass, 1);
  Put(7, 3, kGrass, 1);
  const int second = AddShq(1, 1, 4, 2, "Second Army");
  // A range of 9: Second Army, once ashore, could walk on to Eastport, put
  // to sea there and land again in it, and a port always replaces open
  // shore; that round trip (11 and more) is out of this range.
  EngineVar[230].Value = 9;
  ServeSupply();
  UI.SelX = 8;
  UI.SelY = 2;
  // First Army: 2 over land to Westport, 3 sea hexes, 1 to land in
  // Eastport, 1 to (8, 2). Second Army: 2 to Southport, 3 sea hexes, 1 to
  // land on the shore (7, 4), 1 to (7, 3), 1 to (8, 2).
  EXPECT_EQ(HexStatusReport(), (Lines{"HEX STATUS 8,2", "Hex is supplied by First Army", "   -distance: 7",
                                  "   -supply entered through port: Eastport", "Hex is supplied by Second Army",
                                  "   -distance: 8", "   -supply did not enter through port (50% penalty)"}));
  EXPECT_EQ(Unit[second].Shq, 2);
  // A hex on the home side was reached over land only: no port line.
  UI.SelX = 2;
  EXPECT_EQ(HexStatusReport(), (Lines{"HEX STATUS 2,2", "Hex is supplied by First Army", "   -distance: 1"}));
}

TEST_F(StatusReportTest, AHexNoSHQReachesHasOnlyItsHeading) {
  ServeSupply();
  UI.SelX = 5;
  UI.SelY = 7;  // nobody's grass
  EXPECT_EQ(HexStatusReport(), (Lines{"HEX STATUS 5,7"}));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(StatusReportTest, WithoutASelectedHexTheReportRefuses) {
  UI.SelX = 0;
  UI.SelY = 0;
  EXPECT_TRUE(HexStatusReport().empty());
  EXPECT_EQ(Messages(), (Lines{"No hex selected before going to status report."}));
}

// ---- The order of battle --------------------------------------------------------

TEST_F(StatusReportTest, TheOrderOfBattleWithPoolCorpsAndALooseFormation) {
  const int tanks = LandType("Tanks", 4, 10, 0, 6, 20, 400);
  Shq[1][1].StockType[1] = rifles;
  Shq[1][1].StockQty[1] = 30;
  Shq[1][1].StockType[3] = tanks;  // slot 2 empty, slot 3 in use
  Shq[1][1].StockQty[3] = 2;
  Shq[1][1].StockType[4] = rifles;  // a slot with a type but none waiting
  const int first = AddThq(1, 3, 2, shq, "1st Corps");
  const int second = AddThq(1, 4, 2, shq, "2nd Corps");
  AddFormation(1, 5, 2, first, rifles, 10, "Able");
  AddFormation(1, 6, 2, second, rifles, 10, "Charlie");
  AddFormation(1, 7, 2, first, rifles, 10, "Baker");
  AddFormation(1, 8, 2, shq, rifles, 10, "Guards");
  AddFormation(1, 9, 2, 0, rifles, 10, "Lone");
  AddFormation(2, 9, 5, 0, rifles, 10, "Enemy");  // Blue's: not in Red's list
  EXPECT_EQ(OrderOfBattleReport(), (Lines{"YOUR ORDER OF BATTLE: (OOB)", "SHQ: First Army", "30x Rifles", "2x Tanks",
                                  "......THQ: 1st Corps", "............: Able", "............: Baker",
                                  "......THQ: 2nd Corps", "............: Charlie", "......: Guards",
                                  "........................................", "......: Lone"}));
}

TEST_F(StatusReportTest, AThqWithoutAnShqStandsBelowTheDotsWithItsFormations) {
  const int lost = AddThq(1, 3, 2, 0, "Lost Corps");
  AddFormation(1, 4, 2, lost, rifles, 1, "Straggler");
  EXPECT_EQ(OrderOfBattleReport(), (Lines{"YOUR ORDER OF BATTLE: (OOB)", "SHQ: First Army",
                                  "........................................", "......THQ: Lost Corps",
                                  "............: Straggler"}));
}

// ---- Production and supply --------------------------------------------------------

TEST_F(StatusReportTest, TheSupplyReportWithItsTownsFormationsAndSums) {
  // Marrowby makes political points: 4000 x 100 / (100 x 2000) = 2; it
  // sends 4000 / 100 x 100 / 10 = 400 supply.
  AddTown(2, 2, 1, 4000, shq, 0);
  Hex[2][2].UrbanName = "Marrowby";
  // Ironford makes extra supply: 1000 / 100 x 100 / 10 = 100, times 3 = 300.
  AddTown(3, 2, 1, 1000, shq, -1);
  Hex[3][2].UrbanName = "Ironford";
  // Gunworks makes rifles: 3000 points a turn at 100 each = 30; it sends 300.
  AddTown(4, 2, 1, 3000, shq, rifles);
  Hex[4][2].UrbanName = "Gunworks";
  const int corps = AddThq(1, 5, 2, shq, "1st Corps");
  const int able = AddFormation(1, 5, 2, corps, rifles, 10, "Able");
  const int baker = AddFormation(1, 6, 2, corps, rifles, 5, "Baker");
  // Readiness 10: P = 100 + 10 - 10 = 100, the whole need: 10 x 10 and 5 x 10.
  Unit[able].Readiness = 10;
  Unit[baker].Readiness = 10;
  ServeSupply();
  ASSERT_EQ(Unit[shq].GenSupply, 1000);
  ASSERT_EQ(Unit[shq].SupplyDemand, 150);
  EXPECT_EQ(SupplySystemReport(),
            (Lines{"CURRENT PRODUCTION:", "Marrowby produces 2 Political Point(s)",
                   "Ironford produces 300 Extra Supply Points", "Gunworks produces 30x Rifles", "",
                   "YOUR SUPPLY SYSTEM:", "SHQ: First Army", "IS SUPPLIED BY THE FOLLOWING TOWNS: ",
                   "... Marrowby SUPPLY POINTS by the town: 400", "... Ironford SUPPLY POINTS by the town: 300",
                   "... Gunworks SUPPLY POINTS by the town: 300", "HAS SUPPLIED THE FOLLOWING UNITS THIS TURN: ",
                   "... 0 SUPPLY POINTS FOR THQ: 1st Corps", "... 100 SUPPLY POINTS FOR: Able",
                   "... 50 SUPPLY POINTS FOR: Baker", "SHQ INPUT = 1000     SHQ OUTPUT = 150"}));
}

TEST_F(StatusReportTest, BeforeTheFirstTurnNothingHasBeenServed) {
  AddTown(2, 2, 1, 4000, shq, 0);
  Hex[2][2].UrbanName = "Marrowby";
  Game.Turn = 0;
  UI.EditMode = 1;
  UI.SelX = 2;
  UI.SelY = 2;  // in the editor the report is the selected hex's owner's
  EXPECT_EQ(SupplySystemReport(), (Lines{"CURRENT PRODUCTION:", "Marrowby produces 2 Political Point(s)", "",
                                     "YOUR SUPPLY SYSTEM:", "SHQ: First Army", "IS SUPPLIED BY THE FOLLOWING TOWNS: ",
                                     "HAS SUPPLIED THE FOLLOWING UNITS THIS TURN: ",
                                     "SHQ INPUT = 0     SHQ OUTPUT = 0"}));
}

// ---- The dialog ----------------------------------------------------------------

TEST_F(StatusReportTest, TheDialogOpensOnTheReportChosenLast) {
  ServeSupply();
  UI.SelX = 2;
  UI.SelY = 2;
  platform.QueueDialog("status", {{"oob", ""}, {"exit", ""}});
  DoStatus();
  // The first time on the hex, then the order of battle.
  EXPECT_EQ(Reports(), (Lines{"HEX STATUS 2,2", "Hex is supplied by First Army", "   -distance: 1",
                              "YOUR ORDER OF BATTLE: (OOB)", "SHQ: First Army"}));
  platform.Clear();
  StatusDialog d;
  d.Prepare();
  EXPECT_EQ(d.report, 2);
  EXPECT_EQ(d.lines, (Lines{"YOUR ORDER OF BATTLE: (OOB)", "SHQ: First Army"}));
  EXPECT_EQ(d.Text(), "YOUR ORDER OF BATTLE: (OOB)\nSHQ: First Army\n");
  std::string why;
  EXPECT_TRUE(d.Act("supply", "", &why));
  EXPECT_EQ(d.report, 3);
  EXPECT_TRUE(d.Act("hex", "", &why));
  EXPECT_EQ(d.lines.front(), "HEX STATUS 2,2");
  EXPECT_FALSE(d.Act("print", "", &why));
  EXPECT_EQ(why, "no action \"print\" in the Status dialog (hex, oob, supply, exit)");
  EXPECT_TRUE(d.Act("exit", "", &why));
  EXPECT_FALSE(d.IsOpen());
  EXPECT_STREQ(StatusDialog::kSupplyButton, "Supply&&Prod");
  EXPECT_STREQ(StatusDialog::kExitButton, "Exit Status Window");
}

// ---- The Info dialog -------------------------------------------------------------

TEST_F(StatusReportTest, TheInfoLinesOfATypeOfEachTheater) {
  Type[rifles].Attr[kSoftAttack] = 12;
  EXPECT_EQ(TypeInfoTitle(rifles), "Rifles (100)");
  EXPECT_EQ(TypeInfoLines(rifles),
            (Lines{"INFANTRY", "Weight = 1", "Movement Cap = 3", "Soft Attack = 12", "Supply Need = 10"}));
  const int cargo = world::AddType("Coaster", kSeaTheater, 2);
  Type[cargo].Cost = 250;
  Type[cargo].Attr[kCarryCap] = 40;
  Type[cargo].Attr[kHitPoints] = -3;  // a negative value is not 0 and is shown
  EXPECT_EQ(TypeInfoTitle(cargo), "Coaster (250)");
  EXPECT_EQ(TypeInfoLines(cargo), (Lines{"CARGOSHIP", "Carry Cap = 40", "Hit Points = -3"}));
  const int bomber = world::AddType("Heavy Bomber", kAirTheater, 3);
  Type[bomber].Attr[kStrategicBombing] = 5;
  Type[bomber].Attr[kNavalInterdict] = 2;
  EXPECT_EQ(TypeInfoTitle(bomber), "Heavy Bomber (0)");
  EXPECT_EQ(TypeInfoLines(bomber), (Lines{"BOMBER", "Strategic Bombing = 5", "Naval Interdict = 2"}));
}

TEST_F(StatusReportTest, TheClassWordsOfEveryTheater) {
  const Lines land{"INFANTRY", "MOBILE", "ARTILLERY", "ARMOR"};
  const Lines sea{"WARSHIP", "CARGOSHIP", "CARRIER", "SUB"};
  const Lines air{"FIGHTER", "TRANSPORTER", "BOMBER", ""};
  for (int c = 1; c <= 4; ++c) {
    EXPECT_EQ(TypeClassWord(kLandTheater, c), land[c - 1]);
    EXPECT_EQ(TypeClassWord(kSeaTheater, c), sea[c - 1]);
    EXPECT_EQ(TypeClassWord(kAirTheater, c), air[c - 1]);
  }
  EXPECT_EQ(TypeClassWord(kLandTheater, 0), "");
  EXPECT_EQ(TypeClassWord(3, 1), "");
}

TEST_F(StatusReportTest, TheInfoDialogShowsItsLinesAsAReport) {
  OpenTypeInfoDialog(rifles);
  EXPECT_EQ(Reports(), (Lines{"Rifles (100)", "INFANTRY", "Weight = 1", "Movement Cap = 3", "Supply Need = 10"}));
  platform.Clear();
  OpenTypeInfoDialog(Game.TypeCount + 1);  // no such type: nothing opens
  EXPECT_TRUE(platform.Events().empty());
}

}  // namespace
}  // namespace mf::test
