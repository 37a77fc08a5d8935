// The Urban Production dialog: its lists and labels, the estimate, the
// buttons and when they are on, the close rule, the editor's view, and the
// dialog run through the platform as the [P]roduction button runs it.
#include "engine/urban_production_dialog.h"

#include "econ_test_util.h"

namespace mf::test {
namespace {

class UrbanProductionTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(10, 10, {"Red", "Blue"});
    OwnAll(1);
    Regime[1].OwnPeople = 3;
    first = AddShq(1, 1, 1, 1, "First Army");
    fourth = AddShq(1, 2, 1, 4, "Fourth Army");
    AddTown(5, 5, 1, 300, 0);
    Hex[5][5].UrbanName = "Marrowby";
    Hex[5][5].People = 2;
    rifles = Makeable("Rifles", kLandTheater, 100);
    tanks = Makeable("Tanks", kLandTheater, 1000);
    Type[tanks].Research = 7;
    elephants = Makeable("War Elephants", kLandTheater, 200);
    Type[elephants].Living[2] = 0;  // Marrowby's people cannot make them
    guards = Makeable("Guards", kLandTheater, 300);
    Type[guards].Owning[3] = 0;  // Red's people may not own them
    destroyers = Makeable("Destroyers", kSeaTheater, 600);
    costless = Makeable("Free lunch", kLandTheater, 0);
    longName = Makeable("Very Heavy Railway Guns", kLandTheater, 2500);
  }
  // A type that Marrowby's people can make and Red's people may own.
  static int Makeable(const std::string& name, int theater, int cost) {
    const int t = world::AddType(name, theater, 1);
    Type[t].Cost = cost;
    Type[t].Living[2] = 1;
    Type[t].Owning[3] = 1;
    return t;
  }
  UrbanProductionDialog Open() {
    UrbanProductionDialog d;
    d.Prepare(5, 5);
    return d;
  }

  int first = 0, fourth = 0;
  int rifles = 0, tanks = 0, elephants = 0, guards = 0, destroyers = 0, costless = 0, longName = 0;
  std::string why;
};

TEST_F(UrbanProductionTest, TheListHoldsWhatThisTownMayMakeNamesPaddedToTwenty) {
  UrbanProductionDialog d = Open();
  EXPECT_EQ(d.typeOfRow, (std::vector<int>{rifles, longName}));
  EXPECT_EQ(d.typeRows, (std::vector<std::string>{"Rifles              100", "Very Heavy Railway Guns2500"}));
  // Research done, the sea beside the town: tanks and destroyers join.
  Regime[1].Research[7] = 1;
  Put(6, 5, kSea, 0);
  d = Open();
  EXPECT_EQ(d.typeOfRow, (std::vector<int>{rifles, tanks, destroyers, longName}));
  EXPECT_EQ(d.typeRows[1], "Tanks               1000");
  EXPECT_EQ(d.typeRows[2], "Destroyers          600");
}

TEST_F(UrbanProductionTest, TheLabelsOnOpening) {
  UrbanProductionDialog d = Open();
  EXPECT_EQ(d.townText, "Marrowby");
  EXPECT_EQ(d.prodText, "Political Points");
  EXPECT_EQ(d.shqText, "None");
  EXPECT_EQ(d.shqRows, (std::vector<std::string>{"First Army", "Fourth Army"}));
  EXPECT_EQ(d.shqNumberOfRow, (std::vector<int>{1, 4}));
  EXPECT_STREQ(UrbanProductionDialog::kTypesTitle, "Production options:");
  EXPECT_STREQ(UrbanProductionDialog::kShqsTitle, "Strategic HQ: options:");
  EXPECT_STREQ(UrbanProductionDialog::kSelectedLabel, "Selected:");
  EXPECT_STREQ(UrbanProductionDialog::kEstimateLabel, "Estimated production:");
  Hex[5][5].Prod = -1;
  Hex[5][5].ProdSHQ = fourth;
  d = Open();
  EXPECT_EQ(d.prodText, "Extra Supply");
  EXPECT_EQ(d.shqText, "Fourth Army");
  Hex[5][5].Prod = rifles;
  d = Open();
  EXPECT_EQ(d.prodText, "Rifles");
}

TEST_F(UrbanProductionTest, TheFirstRowsStandSelectedButTheChangeButtonsWaitForAClick) {
  UrbanProductionDialog d = Open();
  EXPECT_EQ(d.typeRow, 0);
  EXPECT_EQ(d.shqRow, 0);
  EXPECT_FALSE(d.changeProdEnabled);
  EXPECT_FALSE(d.changeShqEnabled);
  EXPECT_EQ(d.selectedType, "");
  EXPECT_FALSE(d.ChangeProduction(&why));
  EXPECT_EQ(why, "\"Change Production to selection\" is off until a type is clicked");
  EXPECT_FALSE(d.ChangeDelivery(&why));
  EXPECT_EQ(why, "\"Change delivery to selected SHQ\" is off until an SHQ is clicked");
  EXPECT_EQ(Hex[5][5].Prod, 0);
  EXPECT_EQ(Hex[5][5].ProdSHQ, 0);
}

TEST_F(UrbanProductionTest, ChoosingATypeShowsItsEstimateAndChangesProductionKeepingThePoints) {
  Regime[1].Research[7] = 1;
  Hex[5][5].ProdPts = 700;
  UrbanProductionDialog d = Open();
  ASSERT_TRUE(d.ClickTypeRow(0, &why));
  EXPECT_EQ(d.selectedType, "Rifles");
  EXPECT_EQ(d.estimate, "3");  // 300 / 100 pieces a turn
  EXPECT_TRUE(d.changeProdEnabled);
  ASSERT_TRUE(d.ClickTypeRow(1, &why));
  EXPECT_EQ(d.selectedType, "Tanks");
  EXPECT_EQ(d.estimate, "4 turns");  // 1000 / 300: Int 3, and 1 for the rest
  ASSERT_TRUE(d.ChangeProduction(&why));
  EXPECT_EQ(Hex[5][5].Prod, tanks);
  EXPECT_EQ(d.prodText, "Tanks");
  EXPECT_EQ(Hex[5][5].ProdPts, 700);
  EXPECT_FALSE(d.ClickTypeRow(9, &why));
}

TEST_F(UrbanProductionTest, TheEstimateLooksAtPopulationOnly) {
  EXPECT_EQ(ProductionEstimate(tanks, 300), "4 turns");
  Type[tanks].Cost = 600;
  EXPECT_EQ(ProductionEstimate(tanks, 300), "2 turns");
  Type[tanks].Cost = 300;
  EXPECT_EQ(ProductionEstimate(tanks, 300), "1");
  Type[tanks].Cost = 100;
  EXPECT_EQ(ProductionEstimate(tanks, 350), "3");
  EXPECT_EQ(ProductionEstimate(tanks, 0), "");
  // Damage does not enter it.
  Hex[5][5].Damage = 90;
  UrbanProductionDialog d = Open();
  ASSERT_TRUE(d.ClickTypeRow(0, &why));
  EXPECT_EQ(d.estimate, "3");
}

TEST_F(UrbanProductionTest, PoliticalPointsAndSupplyButtons) {
  Hex[5][5].Prod = rifles;
  UrbanProductionDialog d = Open();
  ASSERT_TRUE(d.ProduceSupply(&why));
  EXPECT_EQ(Hex[5][5].Prod, -1);
  EXPECT_EQ(d.prodText, "Supply Points");
  ASSERT_TRUE(d.ProducePP(&why));
  EXPECT_EQ(Hex[5][5].Prod, 0);
  EXPECT_EQ(d.prodText, "Political Points");
}

TEST_F(UrbanProductionTest, ChoosingAnSHQChangesTheDelivery) {
  UrbanProductionDialog d = Open();
  ASSERT_TRUE(d.ClickShqRow(1, &why));
  EXPECT_EQ(d.selectedShq, "Fourth Army");
  EXPECT_TRUE(d.changeShqEnabled);
  ASSERT_TRUE(d.ChangeDelivery(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, fourth);
  EXPECT_EQ(d.shqText, "Fourth Army");
  ASSERT_TRUE(d.Close(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, fourth);
  EXPECT_FALSE(d.IsOpen());
  EXPECT_FALSE(d.ProducePP(&why));
  EXPECT_EQ(why, "the dialog is closed");
}

TEST_F(UrbanProductionTest, ClosingGivesATownWithoutDeliveryTheFirstSHQEntry) {
  UrbanProductionDialog d = Open();
  ASSERT_TRUE(d.Close(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, first);
  // With SHQ number 1 free the entry is 0, and so the town stays without.
  Hex[5][5].ProdSHQ = 0;
  Unit[first].Shq = 0;
  Shq[1][1].Unit = 0;
  d = Open();
  ASSERT_EQ(d.shqRows, (std::vector<std::string>{"Fourth Army"}));
  ASSERT_TRUE(d.Close(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, 0);
  // With no SHQ at all nothing is assigned either.
  Shq[1][4].Unit = 0;
  d = Open();
  EXPECT_TRUE(d.shqRows.empty());
  EXPECT_EQ(d.shqRow, -1);
  ASSERT_TRUE(d.Close(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, 0);
}

TEST_F(UrbanProductionTest, TheInfoButtonShowsTheSelectedType) {
  Type[rifles].Attr[kSoftAttack] = 12;
  UrbanProductionDialog d = Open();
  EXPECT_TRUE(d.infoEnabled);
  ASSERT_TRUE(d.ClickTypeRow(0, &why));
  platform.QueueDialog("info", {{"close", ""}});
  EXPECT_TRUE(d.ShowInfo(&why)) << why;
  std::vector<std::string> report;
  for (const auto& e : platform.Events())
    if (e.kind == PlatformEvent::kReport) report.push_back(e.text);
  EXPECT_EQ(report, (std::vector<std::string>{"Rifles (100)", "INFANTRY", "Soft Attack = 12"}));
  EXPECT_TRUE(d.IsOpen());
  EXPECT_STREQ(UrbanProductionDialog::kShowInfo, "Show Info on selected unit type");
}

TEST_F(UrbanProductionTest, InTheEditorTheListsAreTheOwners) {
  Game.CurRegime = 0;
  Game.Turn = 0;
  UI.EditMode = 1;
  UrbanProductionDialog d = Open();
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(d.typeOfRow, (std::vector<int>{rifles, longName}));
  EXPECT_EQ(d.shqRows, (std::vector<std::string>{"First Army", "Fourth Army"}));
  ASSERT_TRUE(d.ClickShqRow(1, &why));
  ASSERT_TRUE(d.ChangeDelivery(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, fourth);
  EXPECT_EQ(Game.CurRegime, 0);
  // The close rule reads the SHQ table of Game.CurRegime, which in the
  // editor is regime 0's: a town left without delivery stays so.
  Hex[5][5].ProdSHQ = 0;
  ASSERT_TRUE(d.Close(&why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, 0);
}

TEST_F(UrbanProductionTest, ScriptActionsByTypeAndUnitNumber) {
  Regime[1].Research[7] = 1;
  UrbanProductionDialog d = Open();
  EXPECT_TRUE(d.Act("type", std::to_string(tanks), &why));
  EXPECT_TRUE(d.Act("changeprod", "", &why));
  EXPECT_EQ(Hex[5][5].Prod, tanks);
  EXPECT_FALSE(d.Act("type", std::to_string(elephants), &why));
  EXPECT_EQ(why, "unit type " + std::to_string(elephants) + " is not in the production list");
  EXPECT_TRUE(d.Act("shq", std::to_string(fourth), &why));
  EXPECT_TRUE(d.Act("changeshq", "", &why));
  EXPECT_EQ(Hex[5][5].ProdSHQ, fourth);
  EXPECT_FALSE(d.Act("shq", "1999", &why));
  EXPECT_EQ(why, "unit 1999 is not in the SHQ list");
  EXPECT_FALSE(d.Act("build", "", &why));
  EXPECT_EQ(why,
            "no action \"build\" in the Urban Production dialog (type=N, changeprod, shq=U, changeshq, pp, supply, "
            "info, close)");
  EXPECT_EQ(d.DefaultAction(), "close");
  EXPECT_EQ(d.DialogName(), "production");
}

TEST_F(UrbanProductionTest, UrbanProductionRunsTheDialogForTheSelectedHex) {
  UI.SelX = 5;
  UI.SelY = 5;
  UI.RedrawRequest = 0;
  UI.PanelDirty = false;
  platform.QueueDialog("production", {{"type", std::to_string(rifles)}, {"changeprod", ""}});
  UrbanProduction();
  EXPECT_EQ(Hex[5][5].Prod, rifles);
  // Closed by its default, which hands the town to the first SHQ.
  EXPECT_EQ(Hex[5][5].ProdSHQ, first);
  EXPECT_EQ(UI.RedrawRequest, 1);
  EXPECT_TRUE(UI.PanelDirty);
  EXPECT_EQ(platform.lastError, "");
  std::vector<std::string> shown;
  for (const auto& e : platform.Events())
    if (e.kind == PlatformEvent::kDialogAction) shown.push_back(FormatEvent(e));
  EXPECT_EQ(shown, (std::vector<std::string>{"DIALOG [production] type=" + std::to_string(rifles),
                                             "DIALOG [production] changeprod", "DIALOG [production] close (default)"}));
}

TEST_F(UrbanProductionTest, AChangeRefusedInTheScriptIsReported) {
  UI.SelX = 5;
  UI.SelY = 5;
  platform.QueueDialog("production", {{"changeprod", ""}});
  UrbanProduction();
  EXPECT_EQ(platform.lastError,
            "dialog production: changeprod: \"Change Production to selection\" is off until a type is clicked");
  EXPECT_EQ(Hex[5][5].Prod, 0);
}

}  // namespace
}  // namespace mf::test
