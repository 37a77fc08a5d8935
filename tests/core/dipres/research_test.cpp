// The Research dialog: the two lists, the details, buying with its refusals,
// and the editor's buttons.
#include "engine/research.h"

#include "dipres_test_util.h"

namespace mf::test {
namespace {

using Strings = std::vector<std::string>;
using Fields = std::vector<int>;

const char* const kAlready = "You already have this research field";
const char* const kNoPoints = "Not enough PP";
const char* const kNeed1 = "You dont have Resneed1";
const char* const kNeed2 = "You dont have Resneed2";
const char* const kGained = "You gained a research field";
const char* const kOutOfRange = "between 1 and resmax plz.. exiting sub";

void Field(int f, const std::string& name, int cost, int need1 = 0, int need2 = 0, const std::string& text = "") {
  Research[f].Name = name;
  Research[f].Cost = cost;
  Research[f].Need1 = need1;
  Research[f].Need2 = need2;
  Research[f].Text = text;
}

class ResearchTest : public DipResTest {
 protected:
  void SetUp() override {
    DipResTest::SetUp();
    Regimes({"Red", "Blue"});
    Game.CurRegime = 1;
    Regime[1].PP = 100;
    Field(1, "Rifles", 20, 0, 0, "Better rifles for the line.");
    Field(2, "Tanks", 50, 1);
    Field(3, "Heavy Tanks", 80, 2, 4, "Slow and hard.");
    Field(4, "Radio", 30);
    Field(5, "Secret Weapon", 0);  // named, but not on offer
    Field(6, "Rockets", 100);
    Field(7, "Jets", 60, 4, 1);
    Field(8, "Gas", -5);           // below 0: not on offer either
    Regime[1].Research[4] = 1;     // Red holds Radio
  }
  ResearchDialog Open(bool editing = false) {
    ResearchDialog d;
    d.Prepare(static_cast<int>(Game.CurRegime), editing);
    return d;
  }
  // Selects and buys, as a person does.
  void Buy(ResearchDialog& d, int field) {
    std::string why;
    ASSERT_TRUE(d.Act("field", std::to_string(field), &why)) << why;
    ASSERT_TRUE(d.Act("buy", "", &why)) << why;
  }
};

TEST_F(ResearchTest, KnownAndOfferedLists) {
  const ResearchDialog d = Open();
  EXPECT_EQ(d.DialogName(), "research");
  EXPECT_EQ(d.knownFields, Fields{4});
  EXPECT_EQ(d.knownRows, Strings{"Radio"});
  // Cost above 0 and not held; a star where a needed field is missing:
  // Tanks needs Rifles, Heavy Tanks needs Tanks, Jets needs Rifles second.
  EXPECT_EQ(d.offerFields, (Fields{1, 2, 3, 6, 7}));
  EXPECT_EQ(d.offerRows,
            (Strings{"Rifles (20)", "***Tanks (50)", "***Heavy Tanks (80)", "Rockets (100)", "***Jets (60)"}));
  EXPECT_EQ(d.pointsLabel, "(100pp available)");
  EXPECT_EQ(d.knownIndex, -1);
  EXPECT_EQ(d.offerIndex, -1);
  EXPECT_EQ(d.detailNumber, "");
  EXPECT_FALSE(d.editButtonsShown);
}

TEST_F(ResearchTest, ACostOf0HidesAFieldFromTheOfferEvenWithAName) {
  ResearchDialog d = Open();
  for (int f : d.offerFields) {
    EXPECT_NE(f, 5);
    EXPECT_NE(f, 8);
  }
  std::string why;
  EXPECT_FALSE(d.Act("field", "5", &why));
  EXPECT_EQ(why, "field 5 is in neither list");
  // A held field stays in the known list whatever its price.
  Regime[1].Research[5] = 1;
  d.Refill();
  EXPECT_EQ(d.knownFields, (Fields{4, 5}));
  EXPECT_EQ(d.knownRows, (Strings{"Radio", "Secret Weapon"}));
}

TEST_F(ResearchTest, DetailsOfASelectedField) {
  ResearchDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("field", "3", &why)) << why;
  EXPECT_EQ(d.selected, 3);
  EXPECT_EQ(d.offerIndex, 2);
  EXPECT_EQ(d.knownIndex, -1);
  EXPECT_EQ(d.detailText, "Slow and hard.");
  EXPECT_EQ(d.detailName, "Heavy Tanks (80)");
  EXPECT_EQ(d.detailNeed1, "NEED1: Tanks");
  EXPECT_EQ(d.detailNeed2, "NEED2: Radio");
  EXPECT_EQ(d.detailNumber, "NR: 3");
  // A field that needs nothing shows no need lines.
  ASSERT_TRUE(d.Act("field", "1", &why)) << why;
  EXPECT_EQ(d.detailText, "Better rifles for the line.");
  EXPECT_EQ(d.detailName, "Rifles (20)");
  EXPECT_EQ(d.detailNeed1, "");
  EXPECT_EQ(d.detailNeed2, "");
  EXPECT_EQ(d.detailNumber, "NR: 1");
  // Only a second need: only its line.
  Field(9, "Flak", 10, 0, 1);
  d.Refill();
  ASSERT_TRUE(d.Act("field", "9", &why)) << why;
  EXPECT_EQ(d.detailNeed1, "");
  EXPECT_EQ(d.detailNeed2, "NEED2: Rifles");
  // The known list selects too.
  ASSERT_TRUE(d.Act("field", "4", &why)) << why;
  EXPECT_EQ(d.knownIndex, 0);
  EXPECT_EQ(d.offerIndex, -1);
  EXPECT_EQ(d.detailName, "Radio (30)");
  EXPECT_EQ(d.detailNumber, "NR: 4");
}

TEST_F(ResearchTest, BuyingWithoutASelectionDoesNothing) {
  ResearchDialog d = Open();
  std::string why;
  ASSERT_TRUE(d.Act("buy", "", &why)) << why;
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Regime[1].PP, 100);
  EXPECT_EQ(d.knownFields, Fields{4});
}

TEST_F(ResearchTest, AHeldFieldIsNotBoughtAgain) {
  ResearchDialog d = Open();
  Buy(d, 4);
  EXPECT_EQ(Messages(), Strings{kAlready});
  EXPECT_EQ(Regime[1].PP, 100);
}

TEST_F(ResearchTest, NotEnoughPointsComesFirst) {
  Regime[1].PP = 19;
  ResearchDialog d = Open();
  Buy(d, 1);  // 20 points
  // Heavy Tanks is too dear and lacks both needs: the points are named.
  Buy(d, 3);
  EXPECT_EQ(Messages(), (Strings{kNoPoints, kNoPoints}));
  EXPECT_EQ(Regime[1].PP, 19);
  EXPECT_EQ(Regime[1].Research[1], 0);
}

TEST_F(ResearchTest, AStarredFieldCanBeSelectedAndBuyingItNamesTheMissingNeed) {
  ResearchDialog d = Open();
  Buy(d, 2);  // needs Rifles first
  EXPECT_EQ(d.offerIndex, 1);
  EXPECT_EQ(d.offerRows[1], "***Tanks (50)");
  Buy(d, 3);  // needs Tanks first and Radio second: the first is named
  Buy(d, 7);  // has Radio first, lacks Rifles second
  EXPECT_EQ(Messages(), (Strings{kNeed1, kNeed1, kNeed2}));
  EXPECT_EQ(Regime[1].PP, 100);
  EXPECT_EQ(Regime[1].Research[2], 0);
  EXPECT_EQ(Regime[1].Research[3], 0);
  EXPECT_EQ(Regime[1].Research[7], 0);
}

TEST_F(ResearchTest, BuyingAField) {
  ResearchDialog d = Open();
  UI.PanelDirty = false;
  Buy(d, 1);
  EXPECT_EQ(Messages(), Strings{kGained});
  EXPECT_EQ(Regime[1].PP, 80);
  EXPECT_EQ(Regime[1].Research[1], 1);
  EXPECT_TRUE(UI.PanelDirty);
  // Lists and label refreshed; Tanks lost its star, the selection moved along.
  EXPECT_EQ(d.knownFields, (Fields{1, 4}));
  EXPECT_EQ(d.knownRows, (Strings{"Rifles", "Radio"}));
  EXPECT_EQ(d.offerRows, (Strings{"Tanks (50)", "***Heavy Tanks (80)", "Rockets (100)", "Jets (60)"}));
  EXPECT_EQ(d.pointsLabel, "(80pp available)");
  EXPECT_EQ(d.knownIndex, 0);
  EXPECT_EQ(d.offerIndex, -1);
  // Now the chain goes on: Tanks (80 - 50 = 30), then Heavy Tanks is too dear.
  Buy(d, 2);
  Buy(d, 3);
  EXPECT_EQ(Messages(), (Strings{kGained, kGained, kNoPoints}));
  EXPECT_EQ(Regime[1].PP, 30);
  EXPECT_EQ(d.pointsLabel, "(30pp available)");
  EXPECT_EQ(d.offerRows, (Strings{"Heavy Tanks (80)", "Rockets (100)", "Jets (60)"}));
  // Another regime's holdings are its own.
  EXPECT_EQ(Regime[2].Research[1], 0);
}

TEST_F(ResearchTest, ACostEqualToThePointsIsAllowed) {
  ResearchDialog d = Open();
  Buy(d, 6);
  EXPECT_EQ(Messages(), Strings{kGained});
  EXPECT_EQ(Regime[1].PP, 0);
  EXPECT_EQ(d.pointsLabel, "(0pp available)");
}

TEST_F(ResearchTest, EditModeSkipsCostAndNeeds) {
  Regime[1].PP = 0;
  ResearchDialog d = Open(true);
  EXPECT_TRUE(d.editButtonsShown);
  Buy(d, 3);  // 80 points with none to spend, and Tanks, the first need, missing
  EXPECT_EQ(Messages(), Strings{kGained});
  EXPECT_EQ(Regime[1].Research[3], 1);
  EXPECT_EQ(Regime[1].PP, 0);
  // A held field is still refused.
  Buy(d, 3);
  EXPECT_EQ(Messages(), (Strings{kGained, kAlready}));
}

TEST_F(ResearchTest, EditingButtonsAreTheEditorsOnly) {
  ResearchDialog d = Open();
  std::string why;
  for (const char* action : {"delete", "number", "name", "need1", "need2", "wipe", "cost", "text"}) {
    EXPECT_FALSE(d.Act(action, "1", &why)) << action;
    EXPECT_EQ(why, "\"" + std::string(action) + "\" is a button of the editor only");
  }
  EXPECT_FALSE(d.Act("research", "", &why));
  EXPECT_TRUE(keeper.Events().empty());
  EXPECT_EQ(d.DefaultAction(), "close");
  EXPECT_TRUE(d.Act("close", "", &why));
  EXPECT_FALSE(d.IsOpen());
}

TEST_F(ResearchTest, DeleteTakesAHeldFieldAway) {
  ResearchDialog d = Open(true);
  std::string why;
  // An offered field is not held: nothing to delete.
  ASSERT_TRUE(d.Act("field", "1", &why)) << why;
  ASSERT_TRUE(d.Act("delete", "", &why)) << why;
  EXPECT_TRUE(Messages().empty());
  ASSERT_TRUE(d.Act("field", "4", &why)) << why;
  ASSERT_TRUE(d.Act("delete", "", &why)) << why;
  EXPECT_EQ(Messages(), Strings{"Deleted"});
  EXPECT_EQ(Regime[1].Research[4], 0);
  EXPECT_TRUE(d.knownFields.empty());
  EXPECT_EQ(d.offerRows, (Strings{"Rifles (20)", "***Tanks (50)", "***Heavy Tanks (80)", "Radio (30)",
                                  "Rockets (100)", "***Jets (60)"}));
  EXPECT_EQ(Regime[1].PP, 100);
}

TEST_F(ResearchTest, TheFieldNumberPromptChecks1To200) {
  ResearchDialog d = Open(true);
  std::string why;
  for (const char* answer : {"0", "201", "-3", "abc"}) {
    keeper.QueueAnswer(answer);
    ASSERT_TRUE(d.Act("number", "", &why)) << why;
  }
  EXPECT_EQ(Messages(), (Strings{kOutOfRange, kOutOfRange, kOutOfRange, kOutOfRange}));
  EXPECT_EQ(d.selected, 0);
  // Both ends are fields; an unlisted field can be picked for editing.
  keeper.QueueAnswer("200");
  ASSERT_TRUE(d.Act("number", "", &why)) << why;
  EXPECT_EQ(d.selected, 200);
  EXPECT_EQ(d.detailNumber, "NR: 200");
  keeper.QueueAnswer("1");
  ASSERT_TRUE(d.Act("number", "", &why)) << why;
  EXPECT_EQ(d.selected, 1);
  EXPECT_EQ(d.offerIndex, 0);
  keeper.QueueAnswer("5");
  ASSERT_TRUE(d.Act("number", "", &why)) << why;
  EXPECT_EQ(d.detailName, "Secret Weapon (0)");
  EXPECT_EQ(d.offerIndex, -1);
  EXPECT_EQ(Messages().size(), 4u);
  EXPECT_EQ(Prompts().back(), "Research field # -> 5");
}

TEST_F(ResearchTest, NameAndNeedPrompts) {
  ResearchDialog d = Open(true);
  std::string why;
  keeper.QueueAnswer("150");
  ASSERT_TRUE(d.Act("number", "", &why)) << why;
  keeper.QueueAnswer("Jet Engines");
  ASSERT_TRUE(d.Act("name", "", &why)) << why;
  keeper.QueueAnswer("7");
  ASSERT_TRUE(d.Act("need1", "", &why)) << why;
  keeper.QueueAnswer("4");
  ASSERT_TRUE(d.Act("need2", "", &why)) << why;
  EXPECT_EQ(Prompts(), (Strings{"Research field # -> 150", "Research field name -> Jet Engines",
                                "Field needed 1 -> 7", "Field needed 2 -> 4"}));
  EXPECT_EQ(Research[150].Name, "Jet Engines");
  EXPECT_EQ(Research[150].Need1, 7);
  EXPECT_EQ(Research[150].Need2, 4);
  EXPECT_EQ(d.detailNeed1, "NEED1: Jets");
  EXPECT_EQ(d.detailNeed2, "NEED2: Radio");
  // A need beyond the table is refused; 0 takes the need away.
  keeper.QueueAnswer("201");
  ASSERT_TRUE(d.Act("need1", "", &why)) << why;
  EXPECT_EQ(Messages(), Strings{kOutOfRange});
  EXPECT_EQ(Research[150].Need1, 7);
  keeper.QueueAnswer("0");
  ASSERT_TRUE(d.Act("need2", "", &why)) << why;
  EXPECT_EQ(Research[150].Need2, 0);
  EXPECT_EQ(d.detailNeed2, "");
  // Price and text are plain edits; with a price the field comes on offer.
  ASSERT_TRUE(d.Act("cost", "75", &why)) << why;
  ASSERT_TRUE(d.Act("text", "Faster than anything.", &why)) << why;
  EXPECT_EQ(Research[150].Cost, 75);
  EXPECT_EQ(Research[150].Text, "Faster than anything.");
  EXPECT_EQ(d.offerRows.back(), "***Jet Engines (75)");
  EXPECT_EQ(d.offerIndex, static_cast<int>(d.offerRows.size()) - 1);
  // A cancelled name keeps the name; the prompts offer the present values.
  keeper.QueueAnswer("cancel");
  ASSERT_TRUE(d.Act("name", "", &why)) << why;
  EXPECT_EQ(Research[150].Name, "Jet Engines");
  ASSERT_TRUE(d.Act("need1", "", &why)) << why;
  EXPECT_EQ(Prompts().back(), "Field needed 1 -> 7");
  EXPECT_EQ(Research[150].Need1, 7);
}

TEST_F(ResearchTest, EditingButtonsNeedASelectedField) {
  ResearchDialog d = Open(true);
  std::string why;
  for (const char* action : {"name", "need1", "need2", "wipe", "delete"}) ASSERT_TRUE(d.Act(action, "", &why));
  ASSERT_TRUE(d.Act("cost", "9", &why));
  EXPECT_TRUE(keeper.Events().empty());
  EXPECT_EQ(Research[0].Cost, 0);
  EXPECT_EQ(Research[0].Name, "");
}

TEST_F(ResearchTest, WipingAField) {
  ResearchDialog d = Open(true);
  std::string why;
  ASSERT_TRUE(d.Act("field", "3", &why)) << why;
  ASSERT_TRUE(d.Act("wipe", "", &why)) << why;
  EXPECT_EQ(Research[3].Name, "");
  EXPECT_EQ(Research[3].Need1, 0);
  EXPECT_EQ(Research[3].Need2, 0);
  EXPECT_EQ(Research[3].Text, "");
  EXPECT_EQ(Research[3].Cost, 0);
  EXPECT_EQ(d.offerFields, (Fields{1, 2, 6, 7}));
  EXPECT_EQ(d.detailName, " (0)");
  EXPECT_EQ(d.detailNumber, "NR: 3");
  EXPECT_TRUE(Messages().empty());
  // Its neighbours are untouched.
  EXPECT_EQ(Research[2].Name, "Tanks");
  EXPECT_EQ(Research[4].Cost, 30);
}

TEST_F(ResearchTest, DoResBuysForTheRegimeWhoseTurnItIs) {
  keeper.QueueDialog("research", {{"field", "1"}, {"buy", ""}});
  OpenResearchDialog();
  ASSERT_EQ(keeper.resOpened.size(), 1u);
  EXPECT_EQ(keeper.resOpened[0].regime, 1);
  EXPECT_FALSE(keeper.resOpened[0].editButtonsShown);
  EXPECT_EQ(keeper.resClosed[0].pointsLabel, "(80pp available)");
  EXPECT_FALSE(keeper.resClosed[0].IsOpen());
  EXPECT_EQ(Messages(), Strings{kGained});
  EXPECT_EQ(Regime[1].Research[1], 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_TRUE(keeper.lastError.empty()) << keeper.lastError;
}

TEST_F(ResearchTest, TheEditorTakesTheRegimeFromTheSelectedFormation) {
  UI.EditMode = 1;
  Game.CurRegime = 0;
  world::AddUnit(1, 2, 2, "Red guards");
  world::AddUnit(2, 2, 2, "Blue guards");
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 2;
  keeper.QueueDialog("research", {{"field", "3"}, {"buy", ""}});
  OpenResearchDialog();
  ASSERT_EQ(keeper.resOpened.size(), 1u);
  EXPECT_EQ(keeper.resOpened[0].regime, 2);
  EXPECT_TRUE(keeper.resOpened[0].editButtonsShown);
  // Given for nothing in the editor, and the editor has no current regime afterwards.
  EXPECT_EQ(Regime[2].Research[3], 1);
  EXPECT_EQ(Regime[1].Research[3], 0);
  EXPECT_EQ(Game.CurRegime, 0);
}

TEST_F(ResearchTest, TheEditorWithoutAFormationOnlyEditsTheTree) {
  UI.EditMode = 1;
  Game.CurRegime = 0;
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 0;
  keeper.QueueAnswer("Cavalry");
  keeper.QueueDialog("research", {{"field", "1"}, {"buy", ""}, {"name", ""}});
  OpenResearchDialog();
  ASSERT_EQ(keeper.resOpened.size(), 1u);
  EXPECT_EQ(keeper.resOpened[0].regime, 0);
  EXPECT_EQ(keeper.resOpened[0].pointsLabel, "(0pp available)");
  // Nobody to buy for: the Buy button does nothing.
  EXPECT_EQ(Regime[0].Research[1], 0);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Research[1].Name, "Cavalry");
  EXPECT_EQ(Game.CurRegime, 0);
}

TEST_F(ResearchTest, NoDialogWithoutARegimeInPlay) {
  Game.CurRegime = 0;
  OpenResearchDialog();
  EXPECT_TRUE(keeper.resOpened.empty());
}

}  // namespace
}  // namespace mf::test
