// The next-turn driver: advancing, population and victory, the human and the
// computer path, and the turn-start work in its order.
#include "engine_test_util.h"

namespace mf::test {
namespace {

class DriverTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue"});
    inf = world::AddType("Rifles", kLandTheater, 1);
    Game.GameEndPop = 100000;
    ReadyToStart();
  }
  int inf = 0;
};

// ---- Advancing ---------------------------------------------------------------

TEST_F(DriverTest, TheFirstStartIsTurnOneRegimeOneWithEvents) {
  NextTurn();
  EXPECT_EQ(Game.Turn, 1);
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(Count("RunEvents"), 1);
  // Events run before regime 1 sees anything.
  EXPECT_LT(IndexOf("RunEvents"), IndexOf("RunNewTurnDialog"));
}

TEST_F(DriverTest, RegimesFollowInNumberOrderAndEventsRunOnceAGameTurn) {
  world::AddRegime("Green");
  NextTurn();  // turn 1, regime 1
  std::vector<std::pair<int, int>> seen{{Game.Turn, Game.CurRegime}};
  for (int i = 0; i < 6; ++i) {
    EndCurrentTurn();
    seen.push_back({Game.Turn, Game.CurRegime});
    EXPECT_EQ(CheckInvariants(), "");
  }
  const std::vector<std::pair<int, int>> want{{1, 1}, {1, 2}, {1, 3}, {2, 1}, {2, 2}, {2, 3}, {3, 1}};
  EXPECT_EQ(seen, want);
  EXPECT_EQ(Count("RunEvents"), 3);
  // Each game turn's events come right before regime 1's dialog.
  std::vector<std::string> order;
  for (const auto& s : steps)
    if (s == "RunEvents" || s == "RunNewTurnDialog") order.push_back(s);
  const std::vector<std::string> wantOrder{"RunEvents",     "RunNewTurnDialog", "RunNewTurnDialog", "RunNewTurnDialog",
                                           "RunEvents",     "RunNewTurnDialog", "RunNewTurnDialog", "RunNewTurnDialog",
                                           "RunEvents",     "RunNewTurnDialog"};
  EXPECT_EQ(order, wantOrder);
}

TEST_F(DriverTest, TheRegimeThatFinishedStartsItsReportAfresh) {
  NextTurn();
  News[1][1].Type = 1;
  News[1][1].Text = "Lost one";
  News[1][1000].Type = 991;
  Regime[1].Losses[1] = 4;
  Regime[1].Kills[12] = 2;
  News[2][1].Type = 1;
  News[2][1].Text = "Blue's loss";
  Regime[2].Losses[3] = 7;
  EndCurrentTurn();
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(News[1][1].Type, 0);
  EXPECT_EQ(News[1][1].Text, "");
  EXPECT_EQ(News[1][1000].Type, 0);
  EXPECT_EQ(Regime[1].Losses[1], 0);
  EXPECT_EQ(Regime[1].Kills[12], 0);
  // The regime that now moves reads its report first.
  EXPECT_EQ(News[2][1].Text, "Blue's loss");
  EXPECT_EQ(Regime[2].Losses[3], 7);
}

TEST_F(DriverTest, AResumedTurnDoesNotAdvance) {
  Game.Turn = 3;
  Game.CurRegime = 2;
  News[2][1].Type = 1;
  News[2][1].Text = "Kept";
  UI.ResumeTurn = true;
  NextTurn();
  EXPECT_EQ(Game.Turn, 3);
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Count("RunEvents"), 0);
  EXPECT_EQ(News[2][1].Text, "Kept");
  EXPECT_FALSE(UI.ResumeTurn);
  EXPECT_EQ(Count("RunNewTurnDialog"), 1);
  EXPECT_EQ(Count("HexCapture"), 1);
}

TEST_F(DriverTest, ThePendingFileIsEmptiedAndTheEditorPanelHidden) {
  UI.PendingFile = "x";  // a single letter names no file
  UI.ShowEditorPanel = true;
  NextTurn();
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_FALSE(UI.ShowEditorPanel);
}

// ---- Population and victory ----------------------------------------------------

TEST_F(DriverTest, PopulationCountsOwnTownsAndTheyHeal) {
  // Engine variable 233 heals 5 points a turn.
  ASSERT_EQ(EV(233), 5);
  Hex[2][2].Owner = 1;
  Hex[2][2].Pop = 500;
  Hex[2][2].Damage = 12;
  Hex[3][5].Owner = 1;
  Hex[3][5].Pop = 300;
  Hex[3][5].Damage = 3;
  Hex[7][7].Owner = 2;
  Hex[7][7].Pop = 900;
  Hex[7][7].Damage = 40;
  Hex[8][8].Owner = 1;
  Hex[8][8].Pop = 0;
  Hex[8][8].Damage = 50;
  NextTurn();
  EXPECT_EQ(Game.CurPop, 800);
  EXPECT_EQ(Hex[2][2].Damage, 7);
  EXPECT_EQ(Hex[3][5].Damage, 0);
  EXPECT_EQ(Hex[7][7].Damage, 40);  // only own towns, only in their owner's turn
  EXPECT_EQ(Hex[8][8].Damage, 50);  // no population, no town
  EXPECT_EQ(Game.GameWinner, 0);
}

TEST_F(DriverTest, ReachingTheVictoryPopulationWinsAtTheTurnStart) {
  Hex[2][2].Owner = 1;
  Hex[2][2].Pop = 500;
  Hex[3][5].Owner = 1;
  Hex[3][5].Pop = 300;
  Game.GameEndPop = 800;
  NextTurn();
  EXPECT_EQ(Game.GameWinner, 1);
  EXPECT_EQ(Game.WinnerPop, 800);
}

TEST_F(DriverTest, OneShortOfTheVictoryPopulationIsNoVictory) {
  Hex[2][2].Owner = 1;
  Hex[2][2].Pop = 799;
  Game.GameEndPop = 800;
  NextTurn();
  EXPECT_EQ(Game.GameWinner, 0);
  EXPECT_EQ(Game.WinnerPop, 0);
}

TEST_F(DriverTest, GameEndPopZeroMakesRegimeOneTheWinnerAtItsFirstTurnStart) {
  Game.GameEndPop = 0;
  NextTurn();
  EXPECT_EQ(Game.GameWinner, 1);
  EXPECT_EQ(Game.WinnerPop, 0);
  EXPECT_EQ(Game.CurPop, 0);
  ASSERT_EQ(platform.newTurns.size(), 1u);
  EXPECT_EQ(platform.newTurns[0].headlineTitle, "YOU WON THE GAME");
  EXPECT_EQ(platform.newTurns[0].headlineText, "VICTORY. You are victorious!");
  // Regime 2 reaches 0 too, but the first winner stays, and Blue reads its defeat.
  EndCurrentTurn();
  EXPECT_EQ(Game.GameWinner, 1);
  ASSERT_EQ(platform.newTurns.size(), 2u);
  EXPECT_EQ(platform.newTurns[1].headlineTitle, "YOU LOST THE GAME");
  EXPECT_EQ(platform.newTurns[1].headlineText, "DEFEAT. Red has won the game.");
}

TEST_F(DriverTest, AWinnerIsKeptWhenAnotherRegimeLaterHasMore) {
  Game.GameWinner = 2;
  Game.WinnerPop = 0;
  Hex[2][2].Owner = 1;
  Hex[2][2].Pop = 200000;
  NextTurn();
  EXPECT_EQ(Game.GameWinner, 2);
  EXPECT_EQ(Game.WinnerPop, 0);
  EXPECT_EQ(Game.CurPop, 200000);
}

// ---- The human path ---------------------------------------------------------------

TEST_F(DriverTest, AHumanSeesTheDialogBeforeAnyTurnStartWork) {
  const int u = world::AddUnit(1, 4, 4, "Red Rifles", inf, 5);
  Unit[u].FromX = 3;
  Unit[u].FromY = 3;
  Unit[u].SupplyPct = 70;
  Unit[u].SupplyDemand = 40;
  Long fromXAtDialog = -1, supplyAtDialog = -1, demandAtDialog = -1;
  bool mapAtDialog = true;
  std::string labelAtDialog, turnAtDialog;
  onStep = [&](const std::string& step) {
    if (step != "RunNewTurnDialog") return;
    fromXAtDialog = Unit[u].FromX;
    supplyAtDialog = Unit[u].SupplyPct;
    demandAtDialog = Unit[u].SupplyDemand;
    mapAtDialog = UI.MapShown;
    labelAtDialog = UI.RegimeLabel;
    turnAtDialog = UI.TurnLabel;
  };
  NextTurn();
  EXPECT_EQ(fromXAtDialog, 3);
  EXPECT_EQ(supplyAtDialog, 70);
  EXPECT_EQ(demandAtDialog, 0);  // demand is cleared before the dialog
  EXPECT_FALSE(mapAtDialog);
  EXPECT_EQ(labelAtDialog, "Red");
  EXPECT_EQ(turnAtDialog, "1");
  // And after it the work is done.
  EXPECT_EQ(Unit[u].FromX, 0);
  EXPECT_EQ(Unit[u].SupplyPct, 0);
  const std::vector<std::string> order{"RunNewTurnDialog", "HexCapture", "ServeSupply", "RecoveryPass 4,4,1",
                                       "PoolTransport", "ClearFlood", "SightPass"};
  std::vector<std::string> got(steps.begin() + 1, steps.end());  // after RunEvents
  EXPECT_EQ(got, order);
}

TEST_F(DriverTest, AHumanTurnEndsWithTheMapShown) {
  UI.MapShown = false;
  UI.PanelsShown = false;
  UI.MapControlsShown = false;
  UI.BusyPointer = true;
  UI.Order.SelOrderMove = 12;
  UI.Order.AttackOrder = 1;
  UI.RedrawRequest = 0;
  UI.PanelDirty = false;
  NextTurn();
  EXPECT_TRUE(UI.MapShown);
  EXPECT_TRUE(UI.PanelsShown);
  EXPECT_TRUE(UI.MapControlsShown);
  EXPECT_FALSE(UI.BusyPointer);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(UI.Order.AttackOrder, 0);
  EXPECT_EQ(UI.RedrawRequest, 2);
  EXPECT_TRUE(UI.PanelDirty);
  EXPECT_EQ(UI.HelpText, "Your turn 1 has started.");
  EXPECT_EQ(UI.RegimeLabel, "Red");
  EXPECT_EQ(UI.TurnLabel, "1");
}

TEST_F(DriverTest, InAPlayByMailGameTheStartLineSaysSo) {
  Game.PBEM = 1;
  Regime[1].Email = "red@example.org";
  Regime[2].Email = "blue@example.org";
  NextTurn();
  EXPECT_EQ(UI.HelpText, "Your turn 1 has started in this Play by Email Game.");
}

TEST_F(DriverTest, LeavingAtTheDialogEndsTheGame) {
  world::AddUnit(1, 4, 4, "Red Rifles", inf, 5);
  platform.QueueAnswer("yes");
  QueueNewTurn({{"exit", ""}});
  NextTurn();
  EXPECT_EQ(Messages(), std::vector<std::string>{"Are you sure you want to Quit?"});
  EXPECT_EQ(Game.Turn, 0);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Game.RegimeCount, 0);
  EXPECT_EQ(UI.EditMode, 1);
  EXPECT_FALSE(UI.ExitAfterTurnForm);
  EXPECT_EQ(Count("HexCapture"), 0);
  EXPECT_EQ(Count("SightPass"), 0);
}

TEST_F(DriverTest, EventsShowAfterTheDialogOutsideACampaign) {
  Game.EventCount = 5;
  Event[1].FiredTurn = 1;
  Event[1].ShowAll = 1;
  Event[2].FiredTurn = 1;
  Event[2].ShowReg1 = 2;  // for Blue only
  Event[3].FiredTurn = 2;  // another turn
  Event[3].ShowAll = 1;
  Event[4].FiredTurn = 1;
  Event[4].ShowReg2 = 1;
  Event[5].FiredTurn = 0;  // never fired
  Event[5].ShowAll = 1;
  NextTurn();
  EXPECT_EQ(StepsLike("DoShowEvent"), (std::vector<std::string>{"DoShowEvent 1", "DoShowEvent 4"}));
  EXPECT_LT(IndexOf("RunNewTurnDialog"), IndexOf("DoShowEvent 1"));
  EXPECT_LT(IndexOf("DoShowEvent 4"), IndexOf("HexCapture"));
  steps.clear();
  EndCurrentTurn();
  EXPECT_EQ(StepsLike("DoShowEvent"), (std::vector<std::string>{"DoShowEvent 1", "DoShowEvent 2"}));
}

TEST_F(DriverTest, InACampaignEventsShowBeforeTheDialog) {
  EngineVar[704].Value = 1;
  Game.EventCount = 1;
  Event[1].FiredTurn = 1;
  Event[1].ShowReg1 = 1;
  NextTurn();
  EXPECT_EQ(StepsLike("DoShowEvent"), std::vector<std::string>{"DoShowEvent 1"});
  EXPECT_LT(IndexOf("DoShowEvent 1"), IndexOf("RunNewTurnDialog"));
}

TEST_F(DriverTest, AFileNamedByAnEventStopsAHumanTurnStartBeforeTheDialog) {
  EngineVar[704].Value = 1;
  Game.EventCount = 1;
  Event[1].FiredTurn = 1;
  Event[1].ShowAll = 1;
  // The Event! dialog of a file event names the next scenario.
  onStep = [](const std::string& step) {
    if (step == "DoShowEvent 1") UI.PendingFile = "part2.mf1";
  };
  NextTurn();
  EXPECT_EQ(UI.PendingFile, "part2.mf1");
  EXPECT_EQ(Count("RunNewTurnDialog"), 0);
  EXPECT_EQ(Count("HexCapture"), 0);
}

TEST_F(DriverTest, OutsideACampaignAFileEventDoesNotStopTheTurnStart) {
  Game.EventCount = 1;
  Event[1].FiredTurn = 1;
  Event[1].ShowAll = 1;
  onStep = [](const std::string& step) {
    if (step == "DoShowEvent 1") UI.PendingFile = "part2.mf1";
  };
  NextTurn();
  EXPECT_EQ(UI.PendingFile, "part2.mf1");  // the timer takes it up
  EXPECT_EQ(Count("HexCapture"), 1);
}

// ---- The computer path --------------------------------------------------------------

TEST_F(DriverTest, AComputerRegimePlaysItsTurnInsideTheDriver) {
  Regime[1].AI = 1;
  bool busyInAI = false, mapInAI = false;
  onStep = [&](const std::string& step) {
    if (step == "AITurn") {
      busyInAI = UI.BusyPointer;
      mapInAI = UI.MapShown;
    }
  };
  Game.FogOfWar = 0;
  Game.ShowAIMoves = kFalse;
  NextTurn();
  const std::vector<std::string> order{"RunEvents",     "HexCapture", "ServeSupply", "PoolTransport",
                                       "ClearFlood",    "SightPass",  "AITurn"};
  EXPECT_EQ(steps, order);
  EXPECT_TRUE(busyInAI);
  // Without fog the players watch the computer's moves on the map.
  EXPECT_TRUE(mapInAI);
  EXPECT_FALSE(UI.BusyPointer);
  EXPECT_EQ(Game.ShowAIMoves, kTrue);
  EXPECT_EQ(UI.RegimeLabel, "Red (AI)");
  EXPECT_EQ(UI.TurnLabel, "1");
  // The computer's turn stays open until the timer ends it.
  EXPECT_EQ(Game.CurRegime, 1);
}

TEST_F(DriverTest, UnderFogOfWarTheComputersMovesAreNotShown) {
  Regime[1].AI = 1;
  Game.FogOfWar = 1;
  Game.ShowAIMoves = kTrue;
  NextTurn();
  EXPECT_EQ(Game.ShowAIMoves, kFalse);
  // Nothing of the computer's turn is shown.
  EXPECT_FALSE(UI.MapShown);
}

// ---- The turn-start work ---------------------------------------------------------------

TEST_F(DriverTest, NewsMarksOfTheRegimeGoOnTheMap) {
  NextTurn();  // Red's turn; Blue's news waits for Blue
  News[2][1] = {2, "", 3, 4, 7};
  News[2][2] = {5, "", 5, 5, 9};
  News[2][3] = {1, "Lost", 6, 6, 1};    // a lost formation is no mark
  News[2][4] = {2, "", 0, 6, 2};        // no place
  News[2][5] = {991, "Red surrendered.", 7, 7, 3};
  News[1][1] = {2, "", 8, 8, 4};        // Red's own news is cleared at its end of turn
  Hex[6][6].NewsMark[3] = 1;            // last turn's mark
  EndCurrentTurn();
  EXPECT_EQ(Hex[3][4].NewsMark[7], 1);
  EXPECT_EQ(Hex[5][5].NewsMark[9], 1);
  EXPECT_EQ(Hex[6][6].NewsMark[1], 0);
  EXPECT_EQ(Hex[6][6].NewsMark[3], 0);
  EXPECT_EQ(Hex[7][7].NewsMark[3], 0);
  EXPECT_EQ(Hex[8][8].NewsMark[4], 0);
  int marks = 0;
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y)
      for (int m = 1; m <= 10; ++m) marks += Hex[x][y].NewsMark[m];
  EXPECT_EQ(marks, 2);
}

TEST_F(DriverTest, TheUnitSweepClearsEveryRegimesSupplyAndTheDeadsMemory) {
  const int red = world::AddUnit(1, 2, 2, "Red Rifles", inf, 5);
  const int blue = world::AddUnit(2, 3, 3, "Blue Rifles", inf, 5);
  const int blueShq = world::AddUnit(2, 3, 3, "Blue SHQ");
  Unit[blueShq].Shq = 1;
  Shq[2][1].Unit = blueShq;
  Unit[red].SupplyPct = 90;
  Unit[blue].SupplyPct = 80;
  Unit[blueShq].SupplyPct = 450;  // an SHQ's stock, not a percentage
  Unit[blue].FromX = 2;
  Unit[blue].FromY = 2;
  Unit[blue].Boss = blueShq;
  Unit[blue].Front = 3;
  // A dead unit off the map with what the computer remembered of it.
  const int dead = 9;
  Game.UnitCount = 9;
  Unit[dead].Front = 4;
  Unit[dead].AIX = 5;
  Unit[dead].AIY = 6;
  Unit[dead].Boss = blueShq;
  Unit[dead].InfType = inf;
  Unit[dead].ArmQty = 2;
  Unit[dead].FromX = 1;
  NextTurn();
  EXPECT_EQ(Unit[red].SupplyPct, 0);
  EXPECT_EQ(Unit[blue].SupplyPct, 0);
  EXPECT_EQ(Unit[blueShq].SupplyPct, 450);
  EXPECT_EQ(Unit[blue].FromX, 0);
  EXPECT_EQ(Unit[blue].FromY, 0);
  EXPECT_EQ(Unit[blue].Boss, blueShq);  // the living keep their chain
  EXPECT_EQ(Unit[blue].Front, 3);
  EXPECT_EQ(Unit[dead].Front, 0);
  EXPECT_EQ(Unit[dead].AIX, 0);
  EXPECT_EQ(Unit[dead].AIY, 0);
  EXPECT_EQ(Unit[dead].Boss, 0);
  EXPECT_EQ(Unit[dead].InfType, 0);
  EXPECT_EQ(Unit[dead].ArmQty, 0);
  EXPECT_EQ(Unit[dead].FromX, 0);
}

TEST_F(DriverTest, RecoveryAndTownsShareOneHexLoop) {
  world::AddUnit(1, 2, 3, "Red 1", inf, 1);
  world::AddUnit(1, 2, 3, "Red 2", inf, 1);
  world::AddUnit(1, 4, 1, "Red 3", inf, 1);
  world::AddUnit(2, 3, 3, "Blue 1", inf, 1);
  Hex[2][3].Pop = 100;  // Red's, from its units
  Hex[5][5].Owner = 1;  // no population: no town
  Hex[6][6].Owner = 2;
  Hex[6][6].Pop = 50;   // Blue's town
  Hex[4][9].Owner = 1;
  Hex[4][9].Pop = 10;
  NextTurn();
  std::vector<std::string> got;
  for (const auto& s : steps)
    if (s.rfind("RecoveryPass", 0) == 0 || s.rfind("TownOutput", 0) == 0) got.push_back(s);
  const std::vector<std::string> want{"RecoveryPass 2,3,1", "RecoveryPass 2,3,2", "TownOutput 2,3",
                                      "RecoveryPass 4,1,1", "TownOutput 4,9"};
  EXPECT_EQ(got, want);
  // The selection follows the loop to the last unit handled.
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.SelY, 1);
  EXPECT_EQ(UI.PrevSelX, 4);
  EXPECT_EQ(UI.PrevSelY, 1);
  EXPECT_LT(IndexOf("ServeSupply"), IndexOf("RecoveryPass 2,3,1"));
  EXPECT_LT(IndexOf("TownOutput 4,9"), IndexOf("PoolTransport"));
}

}  // namespace
}  // namespace mf::test
