// The computer player's turn as the driver runs it: its steps, yields,
// flags, draw, memory and sound, inside the real turn cycle.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ai/ai_state.h"
#include "ai/ai_turn.h"
#include "ai/areas.h"
#include "ai/fronts.h"
#include "ai_world.h"
#include "control/turn_cycle.h"
#include "engine/start_game_dialog.h"
#include "files/scenario_file.h"
#include "model/engine_vars.h"
#include "model/invariants.h"
#include "model/rnd.h"
#include "orders/movement.h"
#include "orders/order_buttons.h"

namespace mf {
namespace {

using namespace test::ai;
using Lines = std::vector<std::string>;

// Notes what the window would show at every yield of the computer's turn.
class WatchingPlatform : public ScriptedPlatform {
 public:
  void YieldEvents() override {
    help.push_back(UI.HelpText);
    caption.push_back(OrderButtonsCaption());
    showMoves.push_back(Game.ShowAIMoves);
    // The order registers as the computer's stages find them.
    registers.push_back({UI.Order.SelOrderMove, UI.Order.AttackOrder, UI.OrdX, UI.AttackerCount, UI.AttackerX[1]});
  }
  static std::string OrderButtonsCaption() { return Buttons.nextTurn.caption; }
  std::vector<std::string> help, caption;
  std::vector<long> showMoves;
  std::vector<std::vector<long>> registers;
};

class DriverTest : public test::CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    ResetAIState();
    InstallPlatform(&watcher);
  }
  void TearDown() override {
    InstallPlatform(&platform);
    CoreTest::TearDown();
  }
  // The three-front world of the analysis tests: A (computer) against B.
  void ThreeFronts() {
    RowMap("TTgTTg", "211211");
    test::world::AddRegime("A");
    test::world::AddRegime("B");
    Game.GameEndPop = 1000;
    Town(1, "Brill", 400);
    Town(2, "Ashby", 100);
    Town(4, "Cole", 200);
    Town(5, "Dunn", 300);
    u1 = Soldiers(1, 2, "u1", 10);
    u2 = Soldiers(1, 2, "u2", 10);
    u3 = Soldiers(1, 2, "u3", 10);
    u4 = Soldiers(1, 3, "u4", 10);
    u5 = Soldiers(1, 6, "u5", 10);
    u6 = Soldiers(1, 4, "u6", 40);
    Regime[1].AI = 1;
    Game.CurRegime = 1;
    Game.Turn = 1;
  }
  // Saves the game to text and reads it back into cleared tables, working
  // tables included, as a save and a later load would.
  void SaveAndLoad() {
    const std::string text = SerializeScenario();
    ZeroAllTables();
    ResetAIState();
    FillEngineVarLabels();
    ParseScenario(text);
  }
  WatchingPlatform watcher;
  int u1 = 0, u2 = 0, u3 = 0, u4 = 0, u5 = 0, u6 = 0;
};

TEST_F(DriverTest, TheTurnIsAnnouncedInTheLogAndTheHelpLabel) {
  ThreeFronts();
  Game.AIAnalysis = kTrue;
  AITurn();
  const Lines& log = watcher.AnalysisLines();
  ASSERT_GE(log.size(), 6u);
  EXPECT_EQ(log[0], "**************");
  EXPECT_EQ(log[1], "AI: A");
  EXPECT_EQ(log[2], "**************");
  EXPECT_EQ(log[3], "");
  EXPECT_EQ(log[4], "OPERATIONS:");
  // Yields at steps 2, 4, 6, 7 and 13, the label showing whose turn it is.
  EXPECT_EQ(watcher.help, Lines(5, "AI FOR A"));
  EXPECT_EQ(watcher.caption,
            (Lines{"AI PHASE 2/20", "AI PHASE 4/20", "AI PHASE 6/20", "AI PHASE 7/20", "AI PHASE 13/20"}));
  EXPECT_EQ(UI.HelpText, "");  // cleared at the end
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(DriverTest, WithoutAnalysisTheButtonCaptionIsEmpty) {
  ThreeFronts();
  AITurn();
  EXPECT_EQ(watcher.caption, Lines(5, ""));
}

// Without SHQs nothing is produced, so the only draws of the turn are the
// research stage's (no neutral town is left) and the driver's own.
TEST_F(DriverTest, TheTurnMakesExactlyOneDrawOfItsOwn) {
  ThreeFronts();
  SeedRnd(99);
  Rnd();
  Rnd();
  const float third = Rnd();
  SeedRnd(99);
  AITurn();
  EXPECT_EQ(Rnd(), third);
}

TEST_F(DriverTest, EveryUnitRemembersThePairOfAreasOfItsFront) {
  ThreeFronts();
  AITurn();
  // See the hand-worked shifting of the analysis tests: u1 and u3 went to
  // Dunn - Cole (4, 3), u2 and u4 serve Ashby - Cole (2, 3), u6 Ashby - Brill.
  // Ashby - Cole has more units than line hexes, so the reshaping after the
  // fighting merges u2 whole into u1, its first partner in the hex: u2 is no
  // more and remembers nothing.
  EXPECT_EQ(Unit[u1].AIX, 4);
  EXPECT_EQ(Unit[u1].AIY, 3);
  EXPECT_EQ(Unit[u1].InfQty, 20);
  EXPECT_EQ(Unit[u2].Regime, 0);
  EXPECT_EQ(Unit[u4].AIX, 2);
  EXPECT_EQ(Unit[u4].AIY, 3);
  EXPECT_EQ(Unit[u3].AIX, 4);
  EXPECT_EQ(Unit[u5].AIX, 4);
  EXPECT_EQ(Unit[u6].AIX, 2);
  EXPECT_EQ(Unit[u6].AIY, 1);
  EXPECT_EQ(CheckInvariants(), "");
}

// Between two computer turns the game is saved and loaded, and the front
// numbers change; the units find their fronts by their pairs of areas.
//   column   1      2      3     4     5
//   town     Ashby  Brill  Cole  Dunn  Eyre     (pop 100 each)
//   owner    A      B      A     B     A
// Fronts: Ashby-Brill 1, Cole-Brill 2, Cole-Dunn 3, Eyre-Dunn 4. Cole's two
// units remember the pairs the other way round from how the round robin
// would deal them (c1 would go to front 2 first). No front can give: each
// of Cole's units, 476 per mille of S = 21, would leave its front short.
// Then B takes Ashby: Cole-Brill becomes front 1 and Cole-Dunn front 2.
TEST_F(DriverTest, UnitsKeepTheirFrontsThroughASaveAndALoadAndRenumbering) {
  RowMap("TTTTT", "12121");
  test::world::AddRegime("A");
  test::world::AddRegime("B");
  Game.GameEndPop = 1000;
  Town(1, "Ashby", 100);
  Town(2, "Brill", 100);
  Town(3, "Cole", 100);
  Town(4, "Dunn", 100);
  Town(5, "Eyre", 100);
  const int c1 = Soldiers(1, 3, "c1", 10);
  const int c2 = Soldiers(1, 3, "c2", 10);
  Unit[c1].AIX = 3;  // Cole - Dunn
  Unit[c1].AIY = 4;
  Unit[c2].AIX = 3;  // Cole - Brill
  Unit[c2].AIY = 2;
  Regime[1].AI = 1;
  Game.CurRegime = 1;
  Game.Turn = 1;
  SaveAndLoad();
  Game.CurRegime = 1;
  AITurn();
  ASSERT_EQ(AI.FrontCount, 4);
  EXPECT_EQ(Unit[c1].Front, 3);
  EXPECT_EQ(Unit[c2].Front, 2);
  EXPECT_EQ(CheckInvariants(), "");

  SaveAndLoad();
  EXPECT_EQ(AI.FrontCount, 0);  // nothing of the working tables is saved
  EXPECT_EQ(Unit[c1].Front, 3);
  EXPECT_EQ(Unit[c1].AIX, 3);
  EXPECT_EQ(Unit[c1].AIY, 4);
  Hex[1][1].Owner = 2;  // B takes Ashby
  Game.CurRegime = 1;
  AITurn();
  ASSERT_EQ(AI.FrontCount, 3);
  EXPECT_EQ(AI.FrontOwnArea[1], 3);
  EXPECT_EQ(AI.FrontEnemyArea[1], 2);
  EXPECT_EQ(AI.FrontEnemyArea[2], 4);
  EXPECT_EQ(Unit[c1].Front, 2);
  EXPECT_EQ(Unit[c2].Front, 1);
  EXPECT_EQ(Unit[c1].AIY, 4);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(DriverTest, AGameOfComputersRingsAtTheEndOfEachComputerTurn) {
  ThreeFronts();
  Regime[2].AI = 1;
  auto rings = [&] {
    const std::vector<int> sounds = watcher.Sounds();
    return std::count(sounds.begin(), sounds.end(), 2);
  };
  AITurn();
  // The turn's last sound; the troops that went over in the reshaping
  // played theirs before it.
  ASSERT_FALSE(watcher.Sounds().empty());
  EXPECT_EQ(watcher.Sounds().back(), 2);
  EXPECT_EQ(rings(), 1);
  const std::vector<int> first = watcher.Sounds();
  UI.SoundOff = 1;
  AITurn();
  EXPECT_EQ(watcher.Sounds(), first);
  UI.SoundOff = 0;
  Regime[2].AI = 0;  // a person still plays
  AITurn();
  EXPECT_EQ(rings(), 1);
}

// The next-turn driver: a half-done order of the person before is gone, the
// moves are shown exactly when there is no fog, and the map takes no clicks.
TEST_F(DriverTest, TheNextTurnDriverPreparesAComputerTurn) {
  ThreeFronts();
  Game.CurRegime = 2;  // B, a person, ends the turn with a move half done
  Game.FogOfWar = 1;
  Game.ShowAIMoves = kTrue;  // as a file might hold it
  UI.Order.SelOrderMove = u5;
  UI.Order.AttackOrder = 1;
  UI.OrdX = 6;
  UI.OrdY = 1;
  UI.OrdSlot = 1;
  UI.AttackerCount = 2;
  UI.AttackerX[1] = 6;
  NextTurn();  // to regime 1 of turn 2, the computer
  ASSERT_EQ(Game.CurRegime, 1);
  // The computer's five yields (the driver yields once before it too).
  ASSERT_GE(watcher.showMoves.size(), 5u);
  EXPECT_EQ(std::vector<long>(watcher.showMoves.end() - 5, watcher.showMoves.end()), std::vector<long>(5, kFalse));
  // Already at the computer's first yield nothing of the order is left; its
  // own stages set the registers afresh as they give their orders.
  ASSERT_GE(watcher.registers.size(), 5u);
  EXPECT_EQ(*(watcher.registers.end() - 5), std::vector<long>(5, 0));
  EXPECT_FALSE(UI.MapShown);
  EXPECT_FALSE(UI.BusyPointer);
  EXPECT_EQ(CheckInvariants(), "");

  Game.FogOfWar = 0;
  Game.ShowAIMoves = kFalse;
  watcher.showMoves.clear();
  Game.CurRegime = 2;
  NextTurn();
  ASSERT_GE(watcher.showMoves.size(), 5u);
  EXPECT_EQ(std::vector<long>(watcher.showMoves.end() - 5, watcher.showMoves.end()), std::vector<long>(5, kTrue));
}

// A hex that a computer unit walks into during its turn belongs to the area
// it came from for the rest of the turn.
TEST_F(DriverTest, AHexTakenDuringTheTurnBelongsToTheMoversArea) {
  ThreeFronts();
  AIClear();
  AIFindAreas();
  ASSERT_EQ(Hex[3][1].Area, 2);  // Ashby's grass
  ASSERT_EQ(Hex[4][1].Area, 3);  // Cole
  // u4 on Ashby's grass walks into Cole's town, which u6 has left.
  Hex[4][1].Unit[1] = 0;
  Unit[u6].Regime = 0;
  Unit[u4].MP = 10;
  Type[Unit[u4].InfType].Attr[kMovementCap] = 100;
  EngineVar[101].Value = 0;  // any unit may take foreign land
  Hex[4][1].Vis = 1;          // as the sight pass before the turn leaves it
  UI.OrdX = 3;
  UI.OrdY = 1;
  UI.OrdSlot = 1;
  MoveFlood(true);
  UI.SelX = 4;
  UI.SelY = 1;
  ASSERT_LT(Hex[4][1].Mark, 999);
  ASSERT_EQ(MoveUnit(true), kMoveDone);
  EXPECT_EQ(Hex[4][1].Owner, 1);
  EXPECT_EQ(Hex[4][1].Area, 2);
}

// A game of two computer regimes runs on timer ticks alone, checks clean
// after every turn, and goes on from a save and load between turns with
// every unit on the front its remembered pair of areas names. The pairs
// themselves change as the computer fights: a town taken turns a front
// into a garrison.
TEST_F(DriverTest, AnAllComputerGameRunsAndKeepsItsFrontsThroughASaveAndLoad) {
  ThreeFronts();
  Soldiers(2, 1, "Brill guard", 10);
  Regime[2].AI = 1;
  Game.Turn = 0;
  Game.CurRegime = 0;
  UI.EditMode = 1;
  watcher.QueueDialog("startgame", {{"ai", "1,1"}, {"start", ""}});
  StartCommand();
  ASSERT_EQ(Game.Turn, 1);
  ASSERT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(CheckInvariants(), "");
  const int mine[] = {u1, u2, u3, u4, u5, u6};
  for (int tick = 1; tick <= 6; ++tick) {
    if (tick == 3) SaveAndLoad();
    TimerTick();
    EXPECT_EQ(CheckInvariants(), "") << "after tick " << tick;
    if (Game.CurRegime != 1) continue;
    for (const int u : mine) {
      const UnitRec& unit = Unit[u];
      // A unit merged into another in the reshaping, or lost in battle, is no more.
      if (unit.Regime == 0 || unit.Front == 0) continue;
      EXPECT_EQ(AI.FrontOwnArea[unit.Front], unit.AIX) << unit.Name << " at tick " << tick;
      EXPECT_EQ(AI.FrontEnemyArea[unit.Front], unit.AIY) << unit.Name << " at tick " << tick;
    }
  }
  EXPECT_EQ(Game.Turn, 4);
  EXPECT_FALSE(UI.BusyPointer);
}

}  // namespace
}  // namespace mf
