// Start-up layout and the clears of the Clear / New Game dialog.
#include <gtest/gtest.h>

#include "model/engine_vars.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
namespace world = test::world;

class ResetTest : public CoreTest {};

// ---- laying out the map window ---------------------------------------------

TEST_F(ResetTest, MapWindowLayoutOfA10x10MapNeedsNoScrollBars) {
  Game.MapW = 10;
  Game.MapH = 10;
  LayOutMapWindow();
  EXPECT_EQ(UI.PictureW, 490);   // 10 x 42 + 70
  EXPECT_EQ(UI.PictureH, 370);   // 10 x 30 + 70
  EXPECT_EQ(UI.ScrollMaxX, 0);   // 490 - 958 is below 0
  EXPECT_EQ(UI.ScrollMaxY, 0);   // 370 - 448 is below 0
  EXPECT_FALSE(UI.ShowScrollX);
  EXPECT_FALSE(UI.ShowScrollY);
  EXPECT_EQ(UI.ScrollLargeX, 300);
  EXPECT_EQ(UI.ScrollLargeY, 300);
  EXPECT_EQ(UI.ScrollSmall, 100);
}

TEST_F(ResetTest, MapWindowLayoutOfA40x30Map) {
  Game.MapW = 40;
  Game.MapH = 30;
  LayOutMapWindow();
  EXPECT_EQ(UI.PictureW, 1750);  // 40 x 42 + 70
  EXPECT_EQ(UI.PictureH, 970);   // 30 x 30 + 70
  EXPECT_EQ(UI.ScrollMaxX, 792);  // 1750 - 958
  EXPECT_EQ(UI.ScrollMaxY, 522);  // 970 - 448
  EXPECT_TRUE(UI.ShowScrollX);
  EXPECT_TRUE(UI.ShowScrollY);
  EXPECT_EQ(UI.ScrollLargeX, 379);  // 300 + Int(79.2)
  EXPECT_EQ(UI.ScrollLargeY, 352);  // 300 + Int(52.2)
  EXPECT_EQ(UI.ScrollSmall, 100);
}

TEST_F(ResetTest, MapWindowLayoutOfA100x100Map) {
  Game.MapW = 100;
  Game.MapH = 100;
  LayOutMapWindow();
  EXPECT_EQ(UI.PictureW, 4270);
  EXPECT_EQ(UI.PictureH, 3070);
  EXPECT_EQ(UI.ScrollMaxX, 3312);
  EXPECT_EQ(UI.ScrollMaxY, 2622);
  EXPECT_TRUE(UI.ShowScrollX);
  EXPECT_TRUE(UI.ShowScrollY);
  EXPECT_EQ(UI.ScrollLargeX, 631);  // 300 + Int(331.2)
  EXPECT_EQ(UI.ScrollLargeY, 562);  // 300 + Int(262.2)
}

TEST_F(ResetTest, MapWindowLayoutShowsOnlyTheBarThatIsNeeded) {
  // 23 x 42 + 70 = 1036 is 78 wider than the window; 12 x 30 + 70 = 430 fits.
  Game.MapW = 23;
  Game.MapH = 12;
  LayOutMapWindow();
  EXPECT_EQ(UI.ScrollMaxX, 78);
  EXPECT_EQ(UI.ScrollMaxY, 0);
  EXPECT_TRUE(UI.ShowScrollX);
  EXPECT_FALSE(UI.ShowScrollY);
  EXPECT_EQ(UI.ScrollLargeX, 307);  // 300 + Int(7.8)
}

TEST_F(ResetTest, MapWindowLayoutHoldsTheScrollPositionsToTheNewMaximum) {
  Game.MapW = 40;
  Game.MapH = 30;
  UI.ScrollX = 3000;
  UI.ScrollY = 100;
  LayOutMapWindow();
  EXPECT_EQ(UI.ScrollX, 792);
  EXPECT_EQ(UI.ScrollY, 100);
}

TEST_F(ResetTest, EditorPanelShowsUnlessHiddenOrTheWindowIsNarrow) {
  Game.MapW = 10;
  Game.MapH = 10;
  UI.HideEditor = false;
  UI.WindowWidth = 1024;
  LayOutMapWindow();
  EXPECT_TRUE(UI.ShowEditorPanel);
  UI.WindowWidth = 820;
  LayOutMapWindow();
  EXPECT_TRUE(UI.ShowEditorPanel);
  UI.WindowWidth = 819;
  LayOutMapWindow();
  EXPECT_FALSE(UI.ShowEditorPanel);
  UI.WindowWidth = 1024;
  UI.HideEditor = true;
  LayOutMapWindow();
  EXPECT_FALSE(UI.ShowEditorPanel);
}

// ---- Make it so -------------------------------------------------------------

TEST_F(ResetTest, MapSizesAreHeldTo10Through100) {
  ClearGame(true, 5, 250);
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 100);
  ClearGame(false, 250, 5);
  EXPECT_EQ(Game.MapW, 100);
  EXPECT_EQ(Game.MapH, 10);
  ClearGame(false, MapSizeFromText("37"), MapSizeFromText("12abc"));
  EXPECT_EQ(Game.MapW, 37);
  EXPECT_EQ(Game.MapH, 12);
  ClearGame(false, MapSizeFromText("abc"), MapSizeFromText("-40"));
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  // A fraction is rounded as any number stored in a whole field: 20.5 to the
  // even 20, 20.6 to 21.
  ClearGame(false, MapSizeFromText("20.5"), MapSizeFromText("20.6"));
  EXPECT_EQ(Game.MapW, 20);
  EXPECT_EQ(Game.MapH, 21);
  // A number far beyond any map is held like any other.
  EXPECT_EQ(MapSizeFromText("99999999999"), 99999999999);
  ClearGame(false, MapSizeFromText("99999999999"), MapSizeFromText(" 14"));
  EXPECT_EQ(Game.MapW, 100);
  EXPECT_EQ(Game.MapH, 14);
}

TEST_F(ResetTest, ANewMapIsAllGrass) {
  ClearGame(true, 12, 11);
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 11; ++y) EXPECT_EQ(Hex[x][y].Land, kGrass) << x << "," << y;
  // Outside the map nothing was made.
  EXPECT_EQ(Hex[13][1].Land, 0);
  EXPECT_EQ(Hex[1][12].Land, 0);
}

TEST_F(ResetTest, AClearLeavesTheSoundSwitchAndTheHiddenEditor) {
  UI.SoundOff = 1;
  UI.HideEditor = true;
  ClearGame(true, 10, 10);
  EXPECT_EQ(UI.SoundOff, 1);
  EXPECT_TRUE(UI.HideEditor);
  UI.SoundOff = 0;
  UI.HideEditor = false;
  ClearGame(false, 10, 10);
  EXPECT_EQ(UI.SoundOff, 0);
  EXPECT_FALSE(UI.HideEditor);
}

TEST_F(ResetTest, HexesBeyondTheOldMapKeepTheirDataExceptLand) {
  world::NewMap(20, 20);
  Hex[15][15].Land = kSea;
  Hex[15][15].Owner = 3;
  Hex[15][15].Pop = 500;
  Hex[15][15].Unit[1] = 9;
  Hex[5][5].Land = kForest;
  Hex[5][5].Owner = 2;
  // Shrink: the old 20 x 20 map is cleared, hex (15,15) with it.
  ClearGame(false, 10, 10);
  EXPECT_EQ(Hex[15][15].Owner, 0);
  EXPECT_EQ(Hex[15][15].Land, kGrass);
  EXPECT_EQ(Hex[5][5].Owner, 0);
  EXPECT_EQ(Hex[5][5].Land, kGrass);
  // Data beyond the 10 x 10 map now survives the next clear.
  Hex[15][15].Land = kSea;
  Hex[15][15].Owner = 3;
  Hex[15][15].Pop = 500;
  Hex[15][15].Unit[1] = 9;
  Hex[15][15].Mark = 7;
  ClearGame(false, 20, 20);
  EXPECT_EQ(Hex[15][15].Owner, 3);
  EXPECT_EQ(Hex[15][15].Pop, 500);
  EXPECT_EQ(Hex[15][15].Unit[1], 9);
  EXPECT_EQ(Hex[15][15].Mark, 7);
  EXPECT_EQ(Hex[15][15].Land, kGrass);  // the last step makes every new hex grass
}

TEST_F(ResetTest, HexesOfTheOldMapLoseEverySavedAndWorkingField) {
  world::NewMap(12, 12);
  HexRec& h = Hex[12][12];
  h.Land = kMountain;
  h.Pop = 3000;
  h.People = 2;
  h.UrbanName = "Oldtown";
  h.Unit[1] = 4;
  h.Owner = 1;
  h.Prod = -1;
  h.ProdPts = 55;
  h.ProdSHQ = 3;
  h.Vis = 3;
  h.Seen[10] = 1;
  h.Road = 1;
  h.River[6] = 1;
  h.Entrench[3] = 2;
  h.Damage = 40;
  h.Mark = 5;
  h.Wave = 2;
  h.ShqDist[50] = 7;
  h.NewsMark[1] = 1;
  h.Route[1][3] = 4;
  ClearGame(false, 12, 12);
  EXPECT_EQ(h.Land, kGrass);
  EXPECT_EQ(h.Pop, 0);
  EXPECT_EQ(h.People, 0);
  EXPECT_EQ(h.UrbanName, "");
  EXPECT_EQ(h.Unit[1], 0);
  EXPECT_EQ(h.Owner, 0);
  EXPECT_EQ(h.Prod, 0);
  EXPECT_EQ(h.ProdPts, 0);
  EXPECT_EQ(h.ProdSHQ, 0);
  EXPECT_EQ(h.Vis, 0);
  EXPECT_EQ(h.Seen[10], 0);
  EXPECT_EQ(h.Road, 0);
  EXPECT_EQ(h.River[6], 0);
  EXPECT_EQ(h.Entrench[3], 0);
  EXPECT_EQ(h.Damage, 0);
  EXPECT_EQ(h.Mark, 0);
  EXPECT_EQ(h.Wave, 0);
  EXPECT_EQ(h.ShqDist[50], 0);
  EXPECT_EQ(h.NewsMark[1], 0);
  EXPECT_EQ(h.Route[1][3], 0);
}

TEST_F(ResetTest, AClearOfEventsReachesEvents1To200Only) {
  Event[1].Story = "First";
  Event[1].Data[30] = 4;
  Event[200].TurnMin = 3;
  Event[200].DataText[5] = "x";
  Event[201].Story = "Kept";
  Event[500].TurnMax = 9;
  Game.EventCount = 201;
  ClearGame(true, 10, 10);
  EXPECT_EQ(Event[1].Story, "");
  EXPECT_EQ(Event[1].Data[30], 0);
  EXPECT_EQ(Event[200].TurnMin, 0);
  EXPECT_EQ(Event[200].DataText[5], "");
  EXPECT_EQ(Event[201].Story, "Kept");
  EXPECT_EQ(Event[500].TurnMax, 9);
  EXPECT_EQ(Game.EventCount, 0);
}

TEST_F(ResetTest, BookVariables1To200AreZeroedAndTheCountIs200) {
  Game.BookVar[1] = 5;
  Game.BookVar[200] = 6;
  Game.BookVar[201] = 7;
  Game.BookVarCount = 0;
  ClearGame(false, 10, 10);
  EXPECT_EQ(Game.BookVar[1], 0);
  EXPECT_EQ(Game.BookVar[200], 0);
  EXPECT_EQ(Game.BookVar[201], 7);
  EXPECT_EQ(Game.BookVarCount, 200);
}

TEST_F(ResetTest, SelectionsOrdersAttackersAndGameSwitchesAreZeroed) {
  UI.SelX = 3;
  UI.SelY = 4;
  UI.SelSlot = 2;
  UI.SelCount = 3;
  UI.PrevSelX = 1;
  UI.PrevSelY = 1;
  UI.OrdX = 5;
  UI.OrdY = 6;
  UI.OrdSlot = 1;
  UI.Order.SelOrderMove = 17;
  UI.Order.AttackOrder = 1;
  UI.Order.BossOrder = 2;
  UI.Order.LandscapePaint = 4;
  UI.AttackerCount = 40;
  UI.AttackerX[40] = 2;
  UI.AttackerY[1] = 3;
  UI.AttackerSlot[20] = 1;
  UI.EditMode = 1;
  UI.ResumeTurn = true;
  Game.FogOfWar = 1;
  Game.FogOfExploration = 1;
  Game.UsePasswords = 1;
  Game.PBEM = 1;
  Game.AIProdBonus = 1;
  Game.GameEndPop = 9000;
  Game.GameWinner = 2;
  Game.WinnerPop = 9100;
  Game.CurPop = 800;
  Game.SpareScalar1 = 1;
  Game.SpareScalar2 = 2;
  Game.SpareScalar3 = 3;
  Game.ShowAIMoves = kTrue;
  Game.AIAnalysis = kTrue;
  Game.SpareFlag = kTrue;
  Game.ScenarioStory = "Once upon a time";
  Game.Turn = 12;
  Game.CurRegime = 2;
  Game.GraphicsDirty = 1;
  Game.DirMap = "\\mine\\map";
  Game.DirSound = "\\mine\\sound";
  ClearGame(false, 10, 10);
  EXPECT_EQ(UI.SelX, 0);
  EXPECT_EQ(UI.SelY, 0);
  EXPECT_EQ(UI.SelSlot, 0);
  EXPECT_EQ(UI.SelCount, 0);
  EXPECT_EQ(UI.PrevSelX, 0);
  EXPECT_EQ(UI.PrevSelY, 0);
  EXPECT_EQ(UI.OrdX, 0);
  EXPECT_EQ(UI.OrdY, 0);
  EXPECT_EQ(UI.OrdSlot, 0);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(UI.Order.AttackOrder, 0);
  EXPECT_EQ(UI.Order.BossOrder, 0);
  EXPECT_EQ(UI.Order.LandscapePaint, 0);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(UI.AttackerX[40], 0);
  EXPECT_EQ(UI.AttackerY[1], 0);
  EXPECT_EQ(UI.AttackerSlot[20], 0);
  EXPECT_EQ(UI.EditMode, 0);
  EXPECT_FALSE(UI.ResumeTurn);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(Game.FogOfExploration, 0);
  EXPECT_EQ(Game.UsePasswords, 0);
  EXPECT_EQ(Game.PBEM, 0);
  EXPECT_EQ(Game.AIProdBonus, 0);
  EXPECT_EQ(Game.GameEndPop, 0);
  EXPECT_EQ(Game.GameWinner, 0);
  EXPECT_EQ(Game.WinnerPop, 0);
  EXPECT_EQ(Game.CurPop, 0);
  EXPECT_EQ(Game.SpareScalar1, 0);
  EXPECT_EQ(Game.SpareScalar2, 0);
  EXPECT_EQ(Game.SpareScalar3, 0);
  EXPECT_EQ(Game.ShowAIMoves, kFalse);
  EXPECT_EQ(Game.AIAnalysis, kFalse);
  EXPECT_EQ(Game.SpareFlag, kFalse);
  EXPECT_EQ(Game.ScenarioStory, "");
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Game.GraphicsDirty, 0);
  EXPECT_EQ(Game.DirMap, "\\default\\map");
  EXPECT_EQ(Game.DirColorCode, "\\default\\colorcode");
  EXPECT_EQ(Game.DirSound, "\\default\\sound");
  EXPECT_EQ(Game.DirType, "\\default\\type");
  EXPECT_EQ(Game.DirOfficer, "\\default\\officer");
}

TEST_F(ResetTest, OverlaysThePendingFileAndTheWindowStay) {
  UI.Overlay.ShowGrid = 1;
  UI.Overlay.ShowSupply = 1;
  UI.PendingFile = "next";
  UI.WindowWidth = 900;
  Game.FileVersion = 111;
  ClearGame(true, 10, 10);
  EXPECT_EQ(UI.Overlay.ShowGrid, 1);
  EXPECT_EQ(UI.Overlay.ShowSupply, 1);
  EXPECT_EQ(UI.PendingFile, "next");
  EXPECT_EQ(UI.WindowWidth, 900);
  EXPECT_EQ(Game.FileVersion, 111);
}

TEST_F(ResetTest, AllRegimeSlotsAndTheirTablesAreCleared) {
  world::NewMap(10, 10);
  const int r = world::AddRegime("North");
  Regime[r].PP = 40;
  Regime[r].Research[200] = 1;
  Regime[r].ThqBadgeUnit[50] = 3;
  Regime[r].Losses[12] = 4;
  Regime[r].Kills[1] = 5;
  Regime[r].Intro = "Go";
  Regime[20].Name = "Twentieth";
  Dip[1][20].Relation = 1;
  Dip[20][1].Cost = 5;
  Shq[r][50].Unit = 3;
  Shq[r][50].StockType[500] = 2;
  Shq[r][50].StockQty[500] = 9;
  Shq[r][1].Carry = 4;
  Shq[r][1].CarrySea = 4;
  News[r][1000].Type = 101;
  News[20][1].Text = "old";
  ClearGame(false, 10, 10);
  EXPECT_EQ(Regime[r].Name, "");
  EXPECT_EQ(Regime[r].FormationName, "");
  EXPECT_EQ(Regime[r].TextColor, "");
  EXPECT_EQ(Regime[r].PP, 0);
  EXPECT_EQ(Regime[r].Research[200], 0);
  EXPECT_EQ(Regime[r].ThqBadgeUnit[50], 0);
  EXPECT_EQ(Regime[r].Losses[12], 0);
  EXPECT_EQ(Regime[r].Kills[1], 0);
  EXPECT_EQ(Regime[r].Intro, "");
  EXPECT_EQ(Regime[20].Name, "");
  EXPECT_EQ(Dip[1][20].Relation, 0);
  EXPECT_EQ(Dip[20][1].Cost, 0);
  EXPECT_EQ(Dip[r][2].Cost, 0);
  EXPECT_EQ(Shq[r][50].Unit, 0);
  EXPECT_EQ(Shq[r][50].StockType[500], 0);
  EXPECT_EQ(Shq[r][50].StockQty[500], 0);
  EXPECT_EQ(Shq[r][1].Carry, 0);
  EXPECT_EQ(Shq[r][1].CarrySea, 0);
  EXPECT_EQ(News[r][1000].Type, 0);
  EXPECT_EQ(News[20][1].Text, "");
  EXPECT_EQ(Game.RegimeCount, 0);
}

TEST_F(ResetTest, UnitsAndOfficersInUseAreCleared) {
  world::NewMap(10, 10);
  const int r = world::AddRegime("North");
  const int u = world::AddUnit(r, 2, 2, "1st");
  Unit[u].SupplyDemand = 5;
  Unit[u].Reserved = 6;
  Unit[2000].Regime = 1;
  Unit[2000].Name = "Last";
  Game.UnitCount = 2000;
  Officer[3].Name = "Smit";
  Officer[3].Regime = 1;
  Officer[4].Name = "Beyond the count";
  Game.OfficerCount = 3;
  ClearGame(false, 10, 10);
  EXPECT_EQ(Unit[u].Name, "");
  EXPECT_EQ(Unit[u].Regime, 0);
  EXPECT_EQ(Unit[u].SupplyDemand, 0);
  EXPECT_EQ(Unit[u].Reserved, 0);
  EXPECT_EQ(Unit[2000].Regime, 0);
  EXPECT_EQ(Unit[2000].Name, "");
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(Officer[3].Name, "");
  EXPECT_EQ(Officer[3].Regime, 0);
  // Officers are cleared up to the count in use only.
  EXPECT_EQ(Officer[4].Name, "Beyond the count");
  EXPECT_EQ(Game.OfficerCount, 0);
}

// Rules, types, peoples and research of a scenario as the editor makes them.
void MakeSomeRules() {
  EngineVar[533].Value = 7;
  EngineVar[13].Value = 8;  // a row without a description
  Type[1].Name = "Rifles";
  Type[1].Attr[20] = 3;
  Type[1].Living[20] = 1;
  Type[1].Owning[1] = 1;
  Type[500].Name = "Last type";
  Game.TypeCount = 1;
  People[1].Name = "Folk";
  People[1].FirstName[300] = "Jan";
  People[20].LastName[1] = "Smit";
  Game.PeopleCount = 1;
  Research[1].Name = "Roads";
  Research[1].Cost = 10;
  Research[1].Need1 = 2;
  Research[1].Need2 = 3;
  Research[1].Text = "Better roads.";
  Research[200].Name = "Last field";
}

TEST_F(ResetTest, AClearKeepingRulesKeepsRulesTypesPeoplesAndResearch) {
  world::NewMap(10, 10);
  MakeSomeRules();
  ClearGame(false, 10, 10);
  EXPECT_EQ(EngineVar[533].Value, 7);
  EXPECT_EQ(EngineVar[13].Value, 8);
  EXPECT_EQ(Type[1].Name, "Rifles");
  EXPECT_EQ(Type[1].Attr[20], 3);
  EXPECT_EQ(Game.TypeCount, 1);
  EXPECT_EQ(People[1].FirstName[300], "Jan");
  EXPECT_EQ(Game.PeopleCount, 1);
  EXPECT_EQ(Research[1].Name, "Roads");
  EXPECT_EQ(Research[1].Cost, 10);
  // The stock width goes to 0 with the SHQ tables, even when rules are kept.
  EXPECT_EQ(EngineVar[616].Value, 0);
}

TEST_F(ResetTest, AFullClearResetsRulesTypesPeoplesAndResearchButNotResearchText) {
  world::NewMap(10, 10);
  MakeSomeRules();
  ClearGame(true, 10, 10);
  EXPECT_EQ(EngineVar[533].Value, 3);
  EXPECT_EQ(EngineVar[616].Value, 20);  // set to 0, then back to its default
  EXPECT_EQ(EngineVar[13].Value, 8);    // defaults touch no other row
  EXPECT_EQ(Type[1].Name, "");
  EXPECT_EQ(Type[1].Attr[20], 0);
  EXPECT_EQ(Type[1].Living[20], 0);
  EXPECT_EQ(Type[1].Owning[1], 0);
  EXPECT_EQ(Type[500].Name, "");
  EXPECT_EQ(Game.TypeCount, 0);
  EXPECT_EQ(People[1].Name, "");
  EXPECT_EQ(People[1].FirstName[300], "");
  EXPECT_EQ(People[20].LastName[1], "");
  EXPECT_EQ(Game.PeopleCount, 0);
  EXPECT_EQ(Research[1].Name, "");
  EXPECT_EQ(Research[1].Cost, 0);
  EXPECT_EQ(Research[1].Need1, 0);
  EXPECT_EQ(Research[1].Need2, 0);
  EXPECT_EQ(Research[1].Text, "Better roads.");
  EXPECT_EQ(Research[200].Name, "");
}

TEST_F(ResetTest, ClearForLoadIsASilentFullClearToTheSmallestMap) {
  world::NewMap(30, 30);
  MakeSomeRules();
  ClearForLoad();
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  EXPECT_EQ(EngineVar[533].Value, 3);
  EXPECT_EQ(Type[1].Name, "");
  EXPECT_TRUE(platform.Events().empty());
}

TEST_F(ResetTest, AfterTheNewScenarioCommand) {
  UI.RegimeLabel = "North";
  ClearGame(true, 40, 30);
  Game.FogOfWar = 1;
  AfterClearCommand(true);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.RegimeLabel, "Editing");
  EXPECT_EQ(UI.PictureW, 1750);
  EXPECT_EQ(UI.ScrollMaxY, 522);
}

TEST_F(ResetTest, AfterTheClearMapCommandTheRegimeLabelStays) {
  UI.RegimeLabel = "North";
  ClearGame(false, 10, 10);
  AfterClearCommand(false);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_EQ(UI.RegimeLabel, "North");
  EXPECT_EQ(UI.PictureW, 490);
}

TEST_F(ResetTest, ANewRegimeStartsWithItsDefaults) {
  Regime[3].UnitSerial = 12;
  SetNewRegimeDefaults(3);
  EXPECT_EQ(Regime[3].FormationName, "Bataljon");
  EXPECT_EQ(Regime[3].TextColor, "&Hffffff");
  EXPECT_EQ(Regime[3].UnitSerial, 0);
  // Out of the table nothing is written.
  SetNewRegimeDefaults(0);
  SetNewRegimeDefaults(21);
  EXPECT_EQ(Regime[0].FormationName, "");
}

TEST_F(ResetTest, RegimeSlots11To20StayEmptyInAGameOfTen) {
  world::NewMap(10, 10);
  for (int i = 1; i <= 10; ++i) world::AddRegime("R" + std::to_string(i));
  ASSERT_EQ(Game.RegimeCount, 10);
  for (int r = 11; r <= kRegimeCap; ++r) {
    EXPECT_EQ(Regime[r].Name, "");
    EXPECT_EQ(Regime[r].FormationName, "");
    EXPECT_EQ(Shq[r][1].Unit, 0);
    EXPECT_EQ(News[r][1].Type, 0);
  }
  // The slots exist: writing and clearing them is safe.
  Regime[20].Name = "Stray";
  ClearGame(false, 10, 10);
  EXPECT_EQ(Regime[20].Name, "");
}

}  // namespace
}  // namespace mf
