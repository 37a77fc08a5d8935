// The field registry: names reach the right slot of the right table, every
// index is checked, slot 0 stays zero, and refusals say why.
#include "files/field_registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "model/game_state.h"

namespace mf {
namespace {

class RegistryTest : public ::testing::Test {
 protected:
  void SetUp() override { ZeroAllTables(); }
  void TearDown() override { ZeroAllTables(); }

  // Reads a field that must exist.
  static std::string Get(const std::string& name) {
    std::string value, why;
    EXPECT_TRUE(GetField(name, &value, &why)) << name << ": " << why;
    return value;
  }
  static void Set(const std::string& name, const std::string& value) {
    std::string why;
    EXPECT_TRUE(SetField(name, value, &why)) << name << ": " << why;
  }
  // The reason a read is refused ("" when it was accepted).
  static std::string GetRefusal(const std::string& name) {
    std::string value, why;
    if (GetField(name, &value, &why)) return "";
    return why;
  }
  static std::string SetRefusal(const std::string& name, const std::string& value) {
    std::string why;
    if (SetField(name, value, &why)) return "";
    return why;
  }
};

// ---- The names the other subsystems use ------------------------------------

TEST_F(RegistryTest, GameTurnReachesTheGameTable) {
  Set("Game.Turn", "7");
  EXPECT_EQ(Game.Turn, 7);
  EXPECT_EQ(Get("Game.Turn"), "7");
  Game.Turn = 12;
  EXPECT_EQ(Get("Game.Turn"), "12");
}

TEST_F(RegistryTest, HexFieldsAreIndexedXThenY) {
  Set("Hex[3,4].Owner", "2");
  EXPECT_EQ(Hex[3][4].Owner, 2);
  EXPECT_EQ(Hex[4][3].Owner, 0);
  EXPECT_EQ(Get("Hex[3,4].Owner"), "2");
  EXPECT_EQ(Get("Hex[4,3].Owner"), "0");

  Set("Hex[3,4].Unit[2]", "1234");
  EXPECT_EQ(Hex[3][4].Unit[2], 1234);
  EXPECT_EQ(Hex[3][4].Unit[1], 0);
  EXPECT_EQ(Hex[3][4].Unit[3], 0);
  EXPECT_EQ(Get("Hex[3,4].Unit[2]"), "1234");

  Set("Hex[3,4].River[5]", "1");
  EXPECT_EQ(Hex[3][4].River[5], 1);
  EXPECT_EQ(Hex[3][4].River[4], 0);
  EXPECT_EQ(Hex[3][4].River[6], 0);
  EXPECT_EQ(Get("Hex[3,4].River[5]"), "1");
}

TEST_F(RegistryTest, UnitTypeAndRegimeFields) {
  Set("Unit[7].Readiness", "85");
  EXPECT_EQ(Unit[7].Readiness, 85);
  EXPECT_EQ(Get("Unit[7].Readiness"), "85");
  EXPECT_EQ(Unit[6].Readiness, 0);

  Set("Type[2].Attr[4]", "16");
  EXPECT_EQ(Type[2].Attr[kSoftAttack], 16);
  EXPECT_EQ(Get("Type[2].Attr[4]"), "16");

  Set("Type[2].Living[1]", "1");
  EXPECT_EQ(Type[2].Living[1], 1);
  EXPECT_EQ(Type[2].Owning[1], 0);
  EXPECT_EQ(Get("Type[2].Living[1]"), "1");

  Set("Regime[1].PP", "-40");
  EXPECT_EQ(Regime[1].PP, -40);
  EXPECT_EQ(Get("Regime[1].PP"), "-40");

  Set("Regime[1].Research[12]", "1");
  EXPECT_EQ(Regime[1].Research[12], 1);
  EXPECT_EQ(Regime[1].Research[11], 0);
  EXPECT_EQ(Get("Regime[1].Research[12]"), "1");
}

TEST_F(RegistryTest, PairTablesKeepTheirIndexOrder) {
  Set("Dip[1,2].Cost", "999");
  EXPECT_EQ(Dip[1][2].Cost, 999);
  EXPECT_EQ(Dip[2][1].Cost, 0);
  EXPECT_EQ(Get("Dip[1,2].Cost"), "999");
  EXPECT_EQ(Get("Dip[2,1].Cost"), "0");

  // Shq is [regime, SHQ number].
  Set("Shq[1,2].StockQty[3]", "250");
  EXPECT_EQ(Shq[1][2].StockQty[3], 250);
  EXPECT_EQ(Shq[2][1].StockQty[3], 0);
  EXPECT_EQ(Shq[1][2].StockType[3], 0);
  EXPECT_EQ(Get("Shq[1,2].StockQty[3]"), "250");

  Set("News[1,5].Text", "The 3rd Bataljon was destroyed");
  EXPECT_EQ(News[1][5].Text, "The 3rd Bataljon was destroyed");
  EXPECT_EQ(News[5][1].Text, "");
  EXPECT_EQ(Get("News[1,5].Text"), "The 3rd Bataljon was destroyed");
}

TEST_F(RegistryTest, PeopleOfficerResearchEventBookAndEngineVariables) {
  Set("People[1].FirstName[3]", "Karl");
  EXPECT_EQ(People[1].FirstName[3], "Karl");
  EXPECT_EQ(People[1].LastName[3], "");
  EXPECT_EQ(Get("People[1].FirstName[3]"), "Karl");

  Set("Officer[4].Fame", "33");
  EXPECT_EQ(Officer[4].Fame, 33);
  EXPECT_EQ(Get("Officer[4].Fame"), "33");

  Set("Research[3].Cost", "120");
  EXPECT_EQ(Research[3].Cost, 120);
  EXPECT_EQ(Get("Research[3].Cost"), "120");

  Set("Event[2].Data[30]", "-9");
  EXPECT_EQ(Event[2].Data[30], -9);
  EXPECT_EQ(Get("Event[2].Data[30]"), "-9");

  Set("Game.BookVar[7]", "5");
  EXPECT_EQ(Game.BookVar[7], 5);
  EXPECT_EQ(Get("Game.BookVar[7]"), "5");

  Set("EngineVar[533]", "6");
  EXPECT_EQ(EngineVar[533].Value, 6);
  EXPECT_EQ(Get("EngineVar[533]"), "6");
  // The same row by its field name.
  EXPECT_EQ(Get("EngineVar[533].Value"), "6");
  Set("EngineVar[533].Value", "8");
  EXPECT_EQ(EngineVar[533].Value, 8);

  Set("UI.SelX", "14");
  EXPECT_EQ(UI.SelX, 14);
  EXPECT_EQ(Get("UI.SelX"), "14");
}

// ---- Every record type, read after a write straight into the table --------

TEST_F(RegistryTest, EveryRecordReadsWhatTheTableHolds) {
  Hex[100][100].UrbanName = "Far Corner";
  Unit[2000].GenSupply = 77;
  Type[500].Override = 31;
  Regime[20].Intro = "Line one";
  Dip[20][19].LastTurn = 4;
  Shq[20][50].Carry = 900;
  News[20][1000].Mark = 10;
  People[20].Overrule = 3;
  OfficerPicSet[200] = 6;
  Officer[2000].Retreat = 95;
  Research[200].Need2 = 199;
  Event[500].DipLastTurn = 2;
  EngineVar[1000].Value = -1;
  Game.AIProdBonus = 1;
  UI.TurnLabel = "Turn 3";

  EXPECT_EQ(Get("Hex[100,100].UrbanName"), "Far Corner");
  EXPECT_EQ(Get("Unit[2000].GenSupply"), "77");
  EXPECT_EQ(Get("Type[500].Override"), "31");
  EXPECT_EQ(Get("Regime[20].Intro"), "Line one");
  EXPECT_EQ(Get("Dip[20,19].LastTurn"), "4");
  EXPECT_EQ(Get("Shq[20,50].Carry"), "900");
  EXPECT_EQ(Get("News[20,1000].Mark"), "10");
  EXPECT_EQ(Get("People[20].Overrule"), "3");
  EXPECT_EQ(Get("OfficerPicSet[200]"), "6");
  EXPECT_EQ(Get("Officer[2000].Retreat"), "95");
  EXPECT_EQ(Get("Research[200].Need2"), "199");
  EXPECT_EQ(Get("Event[500].DipLastTurn"), "2");
  EXPECT_EQ(Get("EngineVar[1000]"), "-1");
  EXPECT_EQ(Get("Game.AIProdBonus"), "1");
  EXPECT_EQ(Get("UI.TurnLabel"), "Turn 3");
}

TEST_F(RegistryTest, WorkingFieldsTestsNeed) {
  Set("Hex[5,6].Mark", "999");
  EXPECT_EQ(Hex[5][6].Mark, 999);
  Set("Hex[5,6].Wave", "3");
  EXPECT_EQ(Hex[5][6].Wave, 3);
  Set("Hex[5,6].ShqDist[50]", "12");
  EXPECT_EQ(Hex[5][6].ShqDist[50], 12);
  Set("Hex[5,6].ShqPrev4[1]", "2");
  EXPECT_EQ(Hex[5][6].ShqPrev4[1], 2);
  Set("Hex[5,6].Vis", "3");
  EXPECT_EQ(Hex[5][6].Vis, 3);
  Set("Hex[5,6].Work", "-250");
  EXPECT_EQ(Hex[5][6].Work, -250);
  Set("Hex[5,6].Area", "4");
  EXPECT_EQ(Hex[5][6].Area, 4);
  Set("Hex[5,6].AreaValue", "70000");
  EXPECT_EQ(Hex[5][6].AreaValue, 70000);
  Set("Hex[5,6].Landmass", "2");
  EXPECT_EQ(Hex[5][6].Landmass, 2);
  Set("Hex[5,6].NewsMark[10]", "1");
  EXPECT_EQ(Hex[5][6].NewsMark[10], 1);
  Set("Unit[3].SupplyDemand", "45");
  EXPECT_EQ(Unit[3].SupplyDemand, 45);
  Set("Shq[2,1].CarrySea", "60");
  EXPECT_EQ(Shq[2][1].CarrySea, 60);

  Set("UI.SelSlot", "3");
  EXPECT_EQ(UI.SelSlot, 3);
  Set("UI.EditMode", "1");
  EXPECT_EQ(UI.EditMode, 1);
  Set("UI.SoundOff", "1");
  EXPECT_EQ(UI.SoundOff, 1);
  Set("UI.PendingFile", "end");
  EXPECT_EQ(UI.PendingFile, "end");
  Set("UI.HelpText", "You have loaded a game. You can now edit it or select start in the menu.");
  EXPECT_EQ(UI.HelpText, "You have loaded a game. You can now edit it or select start in the menu.");
  Set("UI.SelOrderMove", "17");
  EXPECT_EQ(UI.Order.SelOrderMove, 17);
  Set("UI.BossOrder", "2");
  EXPECT_EQ(UI.Order.BossOrder, 2);
  Set("UI.ShowSupply", "1");
  EXPECT_EQ(UI.Overlay.ShowSupply, 1);
  Set("UI.AttackerSlot[40]", "3");
  EXPECT_EQ(UI.AttackerSlot[40], 3);

  EXPECT_EQ(Get("Hex[5,6].Mark"), "999");
  EXPECT_EQ(Get("Hex[5,6].ShqDist[50]"), "12");
  EXPECT_EQ(Get("Unit[3].SupplyDemand"), "45");
  EXPECT_EQ(Get("Shq[2,1].CarrySea"), "60");
  EXPECT_EQ(Get("UI.SelOrderMove"), "17");
  EXPECT_EQ(Get("UI.PendingFile"), "end");
}

TEST_F(RegistryTest, RoutePlanesAreIndexedAsStored) {
  // Route[0, step] is the x plane and Route[1, step] the y plane, steps 0..15.
  Set("Hex[2,3].Route[0,0]", "8");
  Set("Hex[2,3].Route[1,15]", "9");
  EXPECT_EQ(Hex[2][3].Route[0][0], 8);
  EXPECT_EQ(Hex[2][3].Route[1][15], 9);
  EXPECT_EQ(Get("Hex[2,3].Route[1,15]"), "9");
  EXPECT_EQ(SetRefusal("Hex[2,3].Route[2,0]", "1"), "\"Hex[2,3].Route[2,0]\": index 2 is outside Hex.Route[0..1,0..15]");
  EXPECT_EQ(GetRefusal("Hex[2,3].Route[0,16]"), "\"Hex[2,3].Route[0,16]\": index 16 is outside Hex.Route[0..1,0..15]");
  EXPECT_EQ(GetRefusal("Hex[2,3].Route[1]"),
            "\"Hex[2,3].Route[1]\": Hex.Route takes 2 indices (Hex.Route[0..1,0..15]), not 1");
}

// ---- Numbers, booleans, text -------------------------------------------------

TEST_F(RegistryTest, NumbersReadWithoutTheLeadingBlankAndAreTakenByVal) {
  Set("Unit[1].MP", " 12");
  EXPECT_EQ(Get("Unit[1].MP"), "12");
  Set("Unit[1].MP", "7.9");  // truncated, as Val takes a whole number
  EXPECT_EQ(Unit[1].MP, 7);
  Set("Unit[1].MP", "-7.9");
  EXPECT_EQ(Unit[1].MP, -7);
  // Text that is not a plain number is refused, not read as its leading part.
  EXPECT_EQ(SetRefusal("Unit[1].MP", "12abc"), "\"Unit[1].MP\": value \"12abc\" is not a number");
  EXPECT_EQ(SetRefusal("Unit[1].MP", "abc"), "\"Unit[1].MP\": value \"abc\" is not a number");
  EXPECT_EQ(SetRefusal("Unit[1].MP", "1e10"), "\"Unit[1].MP\": value \"1e10\" is not a number");
  EXPECT_EQ(SetRefusal("Unit[1].MP", ""), "\"Unit[1].MP\": value \"\" is not a number");
  EXPECT_EQ(Unit[1].MP, -7);
  Set("Unit[1].MP", "2147483647");
  EXPECT_EQ(Unit[1].MP, 2147483647);
  EXPECT_EQ(Get("Unit[1].MP"), "2147483647");
  Set("Unit[1].MP", "-2147483648");
  EXPECT_EQ(Get("Unit[1].MP"), "-2147483648");
}

TEST_F(RegistryTest, ValuesThatDoNotFitTheirWidthAreRefused) {
  Hex[1][1].Vis = 2;
  EXPECT_EQ(SetRefusal("Hex[1,1].Vis", "40000"), "\"Hex[1,1].Vis\": value 40000 does not fit a short field");
  EXPECT_EQ(Hex[1][1].Vis, 2);
  Set("Hex[1,1].Vis", "32767");
  EXPECT_EQ(Hex[1][1].Vis, 32767);
  Set("Hex[1,1].Vis", "-32768");
  EXPECT_EQ(Hex[1][1].Vis, -32768);
  EXPECT_EQ(SetRefusal("Hex[1,1].Vis", "-32769"), "\"Hex[1,1].Vis\": value -32769 does not fit a short field");
  EXPECT_EQ(SetRefusal("Unit[1].MP", "2147483648"), "\"Unit[1].MP\": value 2147483648 does not fit a long field");
}

TEST_F(RegistryTest, BooleansReadAsMinusOneAndZero) {
  Set("Game.ShowAIMoves", "True");
  EXPECT_EQ(Game.ShowAIMoves, -1);
  EXPECT_EQ(Get("Game.ShowAIMoves"), "-1");
  Set("Game.ShowAIMoves", "false");
  EXPECT_EQ(Game.ShowAIMoves, 0);
  EXPECT_EQ(Get("Game.ShowAIMoves"), "0");
  // Any number but 0 is true and is stored as -1.
  Set("Game.AIAnalysis", "1");
  EXPECT_EQ(Game.AIAnalysis, -1);
  Set("Game.SpareFlag", "-1");
  EXPECT_EQ(Game.SpareFlag, -1);
  Set("Game.SpareFlag", "0");
  EXPECT_EQ(Game.SpareFlag, 0);

  // Flags of the running program.
  Set("UI.HideEditor", "-1");
  EXPECT_TRUE(UI.HideEditor);
  EXPECT_EQ(Get("UI.HideEditor"), "-1");
  Set("UI.HideEditor", "0");
  EXPECT_FALSE(UI.HideEditor);
  EXPECT_EQ(Get("UI.HideEditor"), "0");
  UI.ResumeTurn = true;
  EXPECT_EQ(Get("UI.ResumeTurn"), "-1");
  // What the window shows, so scripts can check it.
  UI.MapShown = false;
  EXPECT_EQ(Get("UI.MapShown"), "0");
  Set("UI.PanelsShown", "0");
  EXPECT_FALSE(UI.PanelsShown);
  Set("UI.WindowTitle", "Ashfall");
  EXPECT_EQ(UI.WindowTitle, "Ashfall");
  UI.RedrawRequest = 2;
  EXPECT_EQ(Get("UI.RedrawRequest"), "2");
  Set("UI.ExitAfterTurnForm", "TRUE");
  EXPECT_TRUE(UI.ExitAfterTurnForm);
}

TEST_F(RegistryTest, TextKeepsBlanksAndNonAscii) {
  Set("Unit[1].Name", "  3rd Panzer Bataljon ");
  EXPECT_EQ(Unit[1].Name, "  3rd Panzer Bataljon ");
  EXPECT_EQ(Get("Unit[1].Name"), "  3rd Panzer Bataljon ");
  Set("Regime[2].Name", "Ærø Øst — Straße");
  EXPECT_EQ(Regime[2].Name, "Ærø Øst — Straße");
  EXPECT_EQ(Get("Regime[2].Name"), "Ærø Øst — Straße");
  Set("Game.ScenarioStory", "First line\r\nSecond line");
  EXPECT_EQ(Game.ScenarioStory, "First line\r\nSecond line");
  Set("Event[3].DataText[5]", "12");  // a number stays text in a text field
  EXPECT_EQ(Event[3].DataText[5], "12");
  Set("Game.DirMap", "\\default\\map");
  EXPECT_EQ(Get("Game.DirMap"), "\\default\\map");
  Set("Unit[1].Name", "");
  EXPECT_EQ(Get("Unit[1].Name"), "");
}

// ---- Index bounds --------------------------------------------------------------

TEST_F(RegistryTest, SlotZeroReadsAsNoneAndCannotBeWritten) {
  EXPECT_EQ(Get("Unit[0].Readiness"), "0");
  EXPECT_EQ(Get("Unit[0].Name"), "");
  EXPECT_EQ(Get("Hex[0,0].Owner"), "0");
  EXPECT_EQ(Get("Type[2].Attr[0]"), "0");
  EXPECT_EQ(Get("EngineVar[0]"), "0");

  EXPECT_EQ(SetRefusal("Unit[0].Readiness", "50"),
            "\"Unit[0].Readiness\": slot 0 of Unit always stays zero and cannot be written");
  EXPECT_EQ(SetRefusal("Hex[0,5].Owner", "1"), "\"Hex[0,5].Owner\": slot 0 of Hex always stays zero and cannot be written");
  EXPECT_EQ(SetRefusal("Hex[5,0].Owner", "1"), "\"Hex[5,0].Owner\": slot 0 of Hex always stays zero and cannot be written");
  EXPECT_EQ(SetRefusal("Dip[0,1].Cost", "1"), "\"Dip[0,1].Cost\": slot 0 of Dip always stays zero and cannot be written");
  EXPECT_EQ(SetRefusal("Type[2].Attr[0]", "5"),
            "\"Type[2].Attr[0]\": slot 0 of Type.Attr always stays zero and cannot be written");
  EXPECT_EQ(SetRefusal("EngineVar[0]", "5"), "\"EngineVar[0]\": slot 0 of EngineVar always stays zero and cannot be written");
  EXPECT_EQ(SetRefusal("Unit[0].Name", "Ghost"), "\"Unit[0].Name\": slot 0 of Unit always stays zero and cannot be written");

  EXPECT_EQ(Unit[0].Readiness, 0);
  EXPECT_EQ(Unit[0].Name, "");
  EXPECT_EQ(Hex[0][5].Owner, 0);
  EXPECT_EQ(Type[2].Attr[0], 0);
  EXPECT_EQ(EngineVar[0].Value, 0);
}

TEST_F(RegistryTest, LastSlotIsAcceptedAndOneBeyondIsRefused) {
  Set("Unit[2000].Readiness", "1");
  EXPECT_EQ(Unit[2000].Readiness, 1);
  EXPECT_EQ(GetRefusal("Unit[2001].Readiness"), "\"Unit[2001].Readiness\": index 2001 is outside Unit[0..2000]");
  EXPECT_EQ(SetRefusal("Unit[2001].Readiness", "1"), "\"Unit[2001].Readiness\": index 2001 is outside Unit[0..2000]");

  // Hexes are checked against the table, not the map in use.
  Game.MapW = 12;
  Game.MapH = 10;
  Set("Hex[100,100].Land", "4");
  EXPECT_EQ(Hex[100][100].Land, 4);
  EXPECT_EQ(GetRefusal("Hex[101,1].Land"), "\"Hex[101,1].Land\": index 101 is outside Hex[0..100,0..100]");
  EXPECT_EQ(GetRefusal("Hex[1,101].Land"), "\"Hex[1,101].Land\": index 101 is outside Hex[0..100,0..100]");
  EXPECT_EQ(GetRefusal("Hex[-1,1].Land"), "\"Hex[-1,1].Land\": index -1 is outside Hex[0..100,0..100]");
  EXPECT_EQ(GetRefusal("Hex[1,1].Unit[4]"), "\"Hex[1,1].Unit[4]\": index 4 is outside Hex.Unit[0..3]");
  EXPECT_EQ(GetRefusal("Hex[1,1].River[7]"), "\"Hex[1,1].River[7]\": index 7 is outside Hex.River[0..6]");
  EXPECT_EQ(GetRefusal("Hex[1,1].Seen[11]"), "\"Hex[1,1].Seen[11]\": index 11 is outside Hex.Seen[0..10]");
  EXPECT_EQ(GetRefusal("Hex[1,1].ShqDist[51]"), "\"Hex[1,1].ShqDist[51]\": index 51 is outside Hex.ShqDist[0..50]");

  EXPECT_EQ(GetRefusal("Type[501].Name"), "\"Type[501].Name\": index 501 is outside Type[0..500]");
  EXPECT_EQ(GetRefusal("Type[1].Attr[21]"), "\"Type[1].Attr[21]\": index 21 is outside Type.Attr[0..20]");
  EXPECT_EQ(GetRefusal("Type[1].Owning[21]"), "\"Type[1].Owning[21]\": index 21 is outside Type.Owning[0..20]");
  EXPECT_EQ(GetRefusal("Regime[21].PP"), "\"Regime[21].PP\": index 21 is outside Regime[0..20]");
  EXPECT_EQ(GetRefusal("Regime[1].Research[201]"), "\"Regime[1].Research[201]\": index 201 is outside Regime.Research[0..200]");
  EXPECT_EQ(GetRefusal("Regime[1].Losses[13]"), "\"Regime[1].Losses[13]\": index 13 is outside Regime.Losses[0..12]");
  EXPECT_EQ(GetRefusal("Dip[1,21].Cost"), "\"Dip[1,21].Cost\": index 21 is outside Dip[0..20,0..20]");
  EXPECT_EQ(GetRefusal("Shq[21,1].Unit"), "\"Shq[21,1].Unit\": index 21 is outside Shq[0..20,0..50]");
  EXPECT_EQ(GetRefusal("Shq[1,51].Unit"), "\"Shq[1,51].Unit\": index 51 is outside Shq[0..20,0..50]");
  EXPECT_EQ(GetRefusal("Shq[1,2].StockQty[501]"), "\"Shq[1,2].StockQty[501]\": index 501 is outside Shq.StockQty[0..500]");
  Set("Shq[1,2].StockType[500]", "3");
  EXPECT_EQ(Shq[1][2].StockType[500], 3);
  EXPECT_EQ(GetRefusal("News[1,1001].Text"), "\"News[1,1001].Text\": index 1001 is outside News[0..20,0..1000]");
  EXPECT_EQ(GetRefusal("People[21].Name"), "\"People[21].Name\": index 21 is outside People[0..20]");
  EXPECT_EQ(GetRefusal("People[1].LastName[301]"), "\"People[1].LastName[301]\": index 301 is outside People.LastName[0..300]");
  EXPECT_EQ(GetRefusal("OfficerPicSet[201]"), "\"OfficerPicSet[201]\": index 201 is outside OfficerPicSet[0..200]");
  EXPECT_EQ(GetRefusal("Officer[2001].Fame"), "\"Officer[2001].Fame\": index 2001 is outside Officer[0..2000]");
  EXPECT_EQ(GetRefusal("Research[201].Cost"), "\"Research[201].Cost\": index 201 is outside Research[0..200]");
  EXPECT_EQ(GetRefusal("Event[501].Story"), "\"Event[501].Story\": index 501 is outside Event[0..500]");
  EXPECT_EQ(GetRefusal("Event[1].Data[31]"), "\"Event[1].Data[31]\": index 31 is outside Event.Data[0..30]");
  EXPECT_EQ(GetRefusal("Event[1].DataText[6]"), "\"Event[1].DataText[6]\": index 6 is outside Event.DataText[0..5]");
  EXPECT_EQ(GetRefusal("Game.BookVar[501]"), "\"Game.BookVar[501]\": index 501 is outside Game.BookVar[0..500]");
  EXPECT_EQ(GetRefusal("EngineVar[1001]"), "\"EngineVar[1001]\": index 1001 is outside EngineVar[0..1000]");
  EXPECT_EQ(GetRefusal("UI.AttackerX[41]"), "\"UI.AttackerX[41]\": index 41 is outside UI.AttackerX[0..40]");
}

// ---- Names that are refused ------------------------------------------------------

TEST_F(RegistryTest, MalformedAndUnknownNamesAreRefusedWithTheirName) {
  EXPECT_EQ(GetRefusal("Unit["), "\"Unit[\": malformed name, \"[\" without \"]\"");
  EXPECT_EQ(GetRefusal("Unit[x].Name"), "\"Unit[x].Name\": index \"x\" is not a whole number");
  EXPECT_EQ(GetRefusal("Unit[].Name"), "\"Unit[].Name\": index \"\" is not a whole number");
  EXPECT_EQ(GetRefusal("Hex[3].Owner"), "\"Hex[3].Owner\": Hex takes 2 indices (Hex[0..100,0..100]), not 1");
  EXPECT_EQ(GetRefusal("Unit[1,2].Name"), "\"Unit[1,2].Name\": Unit takes 1 index (Unit[0..2000]), not 2");
  EXPECT_EQ(GetRefusal("Unit.Name"), "\"Unit.Name\": Unit takes 1 index (Unit[0..2000]), not 0");
  EXPECT_EQ(GetRefusal("Nope.Field"), "\"Nope.Field\": unknown record \"Nope\"");
  EXPECT_EQ(GetRefusal("Unit[1].Nope"), "\"Unit[1].Nope\": unknown field \"Nope\" of Unit");
  EXPECT_EQ(GetRefusal("Game.Nope"), "\"Game.Nope\": unknown field \"Nope\" of Game");
  EXPECT_EQ(GetRefusal("Game[1].Turn"), "\"Game[1].Turn\": Game takes no index");
  EXPECT_EQ(GetRefusal("Game.Turn[1]"), "\"Game.Turn[1]\": Game.Turn takes no index");
  EXPECT_EQ(GetRefusal("Type[1].Attr"), "\"Type[1].Attr\": Type.Attr takes 1 index (Type.Attr[0..20]), not 0");
  EXPECT_EQ(GetRefusal("Unit[1]"), "\"Unit[1]\": no field named; write Unit[...].Field");
  EXPECT_EQ(GetRefusal("Game"), "\"Game\": no field named; write Game.Field");
  EXPECT_EQ(GetRefusal("Unit[1]."), "\"Unit[1].\": malformed name, no field name after \".\"");
  EXPECT_EQ(GetRefusal("Unit[1].Name x"), "\"Unit[1].Name x\": malformed name, unexpected \" x\"");
  EXPECT_EQ(GetRefusal(""), "\"\": malformed name, it must begin with a record name");
  EXPECT_EQ(GetRefusal("unit[1].Name"), "\"unit[1].Name\": unknown record \"unit\"");
  EXPECT_EQ(GetRefusal("Unit[1,2,3].Name"), "\"Unit[1,2,3].Name\": more than two indices in one bracket");
  // A refused write changes nothing.
  EXPECT_EQ(SetRefusal("Unit[x].Name", "Ghost"), "\"Unit[x].Name\": index \"x\" is not a whole number");
  for (int u = 0; u <= kUnitCap; ++u) ASSERT_EQ(Unit[u].Name, "") << u;
}

TEST_F(RegistryTest, BlanksInsideBracketsAreAllowed) {
  Set("Hex[ 3 , 4 ].Owner", "5");
  EXPECT_EQ(Hex[3][4].Owner, 5);
}

TEST_F(RegistryTest, AReasonIsOptional) {
  std::string value;
  EXPECT_FALSE(GetField("Nope.Field", &value, nullptr));
  EXPECT_FALSE(SetField("Unit[0].Name", "x", nullptr));
  EXPECT_TRUE(SetField("Unit[1].Name", "x", nullptr));
  EXPECT_EQ(Unit[1].Name, "x");
}

TEST_F(RegistryTest, PatternsNameEveryRecordAndTheWorkingFields) {
  const auto patterns = FieldPatterns();
  auto has = [&](const std::string& p) { return std::find(patterns.begin(), patterns.end(), p) != patterns.end(); };
  for (const char* p : {"Game.Turn", "Hex[,].Owner", "Hex[,].Unit[]", "Hex[,].Route[,]", "Hex[,].ShqDist[]",
                        "Unit[].Readiness", "Unit[].SupplyDemand", "Type[].Attr[]", "Regime[].Research[]",
                        "Dip[,].Cost", "Shq[,].StockQty[]", "Shq[,].CarrySea", "News[,].Text",
                        "People[].FirstName[]", "OfficerPicSet[]", "Officer[].Fame", "Research[].Cost",
                        "Event[].Data[]", "Game.BookVar[]", "EngineVar[]", "EngineVar[].Description",
                        "UI.SelX", "UI.SelOrderMove", "UI.ShowGrid", "UI.HideEditor"}) {
    EXPECT_TRUE(has(p)) << p;
  }
  // Every pattern is a name the registry accepts once its indices are filled in.
  for (std::string p : patterns) {
    std::string name;
    for (std::size_t i = 0; i < p.size(); ++i) {
      name += p[i];
      if (p[i] == '[' || (p[i] == ',' && i > 0)) name += "1";
    }
    std::string value, why;
    EXPECT_TRUE(GetField(name, &value, &why)) << p << " -> " << name << ": " << why;
  }
  EXPECT_EQ(patterns.size(), std::set<std::string>(patterns.begin(), patterns.end()).size());
}


// A saved field takes from a script only what a load of a file would keep as
// it stands; the file's own checks are the measure.
TEST_F(RegistryTest, SavedFieldsRefuseWhatAFileCouldNotHold) {
  EXPECT_EQ(SetRefusal("Dip[1,2].Cost", "-5"),
            "\"Dip[1,2].Cost\": value -5 is outside what a scenario file holds there (0 or more)");
  EXPECT_EQ(SetRefusal("Unit[1].Readiness", "101"),
            "\"Unit[1].Readiness\": value 101 is outside what a scenario file holds there (0..100)");
  EXPECT_EQ(SetRefusal("Hex[1,1].Land", "7"),
            "\"Hex[1,1].Land\": value 7 is outside what a scenario file holds there (0..6)");
  EXPECT_EQ(SetRefusal("Unit[1].Regime", "21"),
            "\"Unit[1].Regime\": value 21 is outside what a scenario file holds there (0..20)");
  EXPECT_EQ(SetRefusal("EngineVar[616]", "501"),
            "\"EngineVar[616]\": value 501 is outside what a scenario file holds there (0..500)");
  EXPECT_EQ(SetRefusal("Research[3].Cost", "-1"),
            "\"Research[3].Cost\": value -1 is outside what a scenario file holds there (0..2147483647)");
  EXPECT_EQ(Dip[1][2].Cost, 0);
  EXPECT_EQ(Unit[1].Readiness, 0);
  // The ends themselves are taken; fields without a check take any long.
  Set("Unit[1].Readiness", "100");
  EXPECT_EQ(Unit[1].Readiness, 100);
  Set("Dip[1,2].Cost", "0");
  EXPECT_EQ(Dip[1][2].Cost, 0);
  Set("Regime[1].PP", "-2147483648");
  EXPECT_EQ(Regime[1].PP, -2147483647 - 1);
  Set("EngineVar[533]", "-3");
  EXPECT_EQ(EngineVar[533].Value, -3);
}

}  // namespace
}  // namespace mf
