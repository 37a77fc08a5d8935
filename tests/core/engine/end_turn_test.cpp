// The end of a regime turn: EndCurrentTurn and the End Turn command.
#include "engine_test_util.h"

namespace mf::test {
namespace {

class EndTurnTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    MakeWorld({"Red", "Blue"});
    inf = world::AddType("Rifles", kLandTheater, 1);
  }
  // A game in play at turn 4, regime 1 to move.
  void InPlay() {
    Game.Turn = 4;
    Game.CurRegime = 1;
    UI.EditMode = 0;
  }
  int inf = 0;
};

TEST_F(EndTurnTest, EmptyUnitsOfEveryRegimeAreDisbandedAndTheStackClosesUp) {
  InPlay();
  // (2,2): an empty Blue THQ with an officer, a Red formation, an empty Blue formation.
  const int thq = world::AddUnit(2, 2, 2, "Blue THQ");
  const int red = world::AddUnit(1, 2, 2, "Red Rifles", inf, 3);
  const int blueEmpty = world::AddUnit(2, 2, 2, "Blue remnant");
  Unit[thq].Thq = 1;
  Unit[thq].Officer = 5;
  Officer[5].Regime = 2;
  Officer[5].InPool = 0;
  Game.OfficerCount = 5;
  // (6,3): an empty Red formation of the regime that ends its turn, too.
  const int redEmpty = world::AddUnit(1, 6, 3, "Red remnant");

  EndCurrentTurn();

  EXPECT_EQ(Hex[2][2].Unit[1], red);
  EXPECT_EQ(Hex[2][2].Unit[2], 0);
  EXPECT_EQ(Hex[2][2].Unit[3], 0);
  EXPECT_EQ(Hex[6][3].Unit[1], 0);
  EXPECT_EQ(Unit[thq].Regime, 0);
  EXPECT_EQ(Unit[thq].Officer, 0);
  EXPECT_EQ(Officer[5].InPool, 1);
  EXPECT_EQ(Officer[5].Regime, 2);  // back in the pool of its own regime
  EXPECT_EQ(Unit[blueEmpty].Regime, 0);
  EXPECT_EQ(Unit[redEmpty].Regime, 0);
  EXPECT_EQ(Unit[red].Regime, 1);
  EXPECT_EQ(Count("DropThq " + std::to_string(thq)), 1);
  EXPECT_EQ(StepsLike("DropThq").size(), 1u);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(EndTurnTest, TwoEmptyUnitsOneAboveTheOtherBothGo) {
  InPlay();
  const int a = world::AddUnit(2, 4, 4, "A");
  const int b = world::AddUnit(2, 4, 4, "B");
  const int c = world::AddUnit(2, 4, 4, "C", inf, 1);
  EndCurrentTurn();
  EXPECT_EQ(Unit[a].Regime, 0);
  EXPECT_EQ(Unit[b].Regime, 0);
  EXPECT_EQ(Hex[4][4].Unit[1], c);
  EXPECT_EQ(Hex[4][4].Unit[2], 0);
}

TEST_F(EndTurnTest, AnEmptyShqNeverVanishes) {
  InPlay();
  const int shq = world::AddUnit(2, 3, 3, "Blue SHQ");
  Unit[shq].Shq = 1;
  Shq[2][1].Unit = shq;
  EndCurrentTurn();
  EXPECT_EQ(Unit[shq].Regime, 2);
  EXPECT_EQ(Hex[3][3].Unit[1], shq);
  EXPECT_TRUE(StepsLike("DropThq").empty());
}

TEST_F(EndTurnTest, AnyClassWithOnePieceKeepsAFormation) {
  InPlay();
  const int mob = world::AddUnit(1, 1, 1, "Trucks");
  Unit[mob].MobQty = 1;
  const int art = world::AddUnit(1, 1, 1, "Guns");
  Unit[art].ArtQty = 1;
  const int arm = world::AddUnit(1, 1, 1, "Tanks");
  Unit[arm].ArmQty = 1;
  EndCurrentTurn();
  EXPECT_EQ(Unit[mob].Regime, 1);
  EXPECT_EQ(Unit[art].Regime, 1);
  EXPECT_EQ(Unit[arm].Regime, 1);
}

TEST_F(EndTurnTest, DeadUnitsLoseTypesQuantitiesAndCargo) {
  InPlay();
  // A unit that died in battle: gone from the map, its records still there.
  const int dead = 7;
  Game.UnitCount = 7;
  Unit[dead].Name = "Sunk";
  Unit[dead].InfType = inf;
  Unit[dead].InfQty = 5;
  Unit[dead].MobType = inf;
  Unit[dead].MobQty = 2;
  Unit[dead].ArtType = inf;
  Unit[dead].ArtQty = 3;
  Unit[dead].ArmType = inf;
  Unit[dead].ArmQty = 4;
  Unit[dead].Cargo = 9;
  EndCurrentTurn();
  EXPECT_EQ(Unit[dead].InfType, 0);
  EXPECT_EQ(Unit[dead].InfQty, 0);
  EXPECT_EQ(Unit[dead].MobType, 0);
  EXPECT_EQ(Unit[dead].MobQty, 0);
  EXPECT_EQ(Unit[dead].ArtType, 0);
  EXPECT_EQ(Unit[dead].ArtQty, 0);
  EXPECT_EQ(Unit[dead].ArmType, 0);
  EXPECT_EQ(Unit[dead].ArmQty, 0);
  EXPECT_EQ(Unit[dead].Cargo, 0);
  EXPECT_EQ(Unit[dead].Name, "Sunk");
}

TEST_F(EndTurnTest, TheClickSoundPlaysUnlessSoundIsOff) {
  InPlay();
  EndCurrentTurn();
  EXPECT_EQ(platform.Sounds(), std::vector<int>{1});
  UI.SoundOff = 1;
  EndCurrentTurn();
  EXPECT_EQ(platform.Sounds(), std::vector<int>{1});
}

TEST_F(EndTurnTest, BeforeTheFirstTurnNoDriverRuns) {
  Game.Turn = 0;
  const int empty = world::AddUnit(1, 2, 2, "Empty");
  EndCurrentTurn();
  EXPECT_TRUE(steps.empty());
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Unit[empty].Regime, 0);
  EXPECT_FALSE(UI.BusyPointer);
}

TEST_F(EndTurnTest, TheMapIsPutAwayAndTheNextRegimeStarts) {
  InPlay();
  UI.MapControlsShown = true;
  UI.ShowScrollX = UI.ShowScrollY = true;
  UI.ScrollMaxX = 500;
  UI.ScrollMaxY = 0;
  bool controlsAtDialog = true, scrollAtDialog = true, busyAtDialog = false;
  onStep = [&](const std::string& step) {
    if (step != "RunNewTurnDialog") return;
    controlsAtDialog = UI.MapControlsShown;
    scrollAtDialog = UI.ShowScrollX || UI.ShowScrollY;
    busyAtDialog = UI.BusyPointer;
  };
  EndCurrentTurn();
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Game.Turn, 4);
  EXPECT_EQ(Count("RunNewTurnDialog"), 1);
  EXPECT_FALSE(controlsAtDialog);
  EXPECT_FALSE(scrollAtDialog);
  EXPECT_TRUE(busyAtDialog);
  // The human's map comes back with the bars its size needs.
  EXPECT_TRUE(UI.MapControlsShown);
  EXPECT_TRUE(UI.ShowScrollX);
  EXPECT_FALSE(UI.ShowScrollY);
  EXPECT_FALSE(UI.BusyPointer);
}

TEST_F(EndTurnTest, TheCommandAsksAndEndsTheTurnOnYes) {
  InPlay();
  platform.QueueAnswer("no");
  EndTurnCommand();
  EXPECT_EQ(Game.CurRegime, 1);
  ASSERT_EQ(platform.Events().size(), 1u);
  EXPECT_EQ(platform.Events()[0].kind, PlatformEvent::kQuestion);
  EXPECT_EQ(platform.Events()[0].title, "End Turn");
  EXPECT_EQ(platform.Events()[0].text, "Are you sure you want to end your turn?");

  platform.QueueAnswer("yes");
  EndTurnCommand();
  EXPECT_EQ(Game.CurRegime, 2);
}

TEST_F(EndTurnTest, InEditingModeTheCommandRefuses) {
  InPlay();
  UI.EditMode = 1;
  platform.QueueAnswer("yes");
  EndTurnCommand();
  EXPECT_EQ(Messages(), std::vector<std::string>{"You are in editing mode"});
  EXPECT_EQ(platform.Events()[0].title, "Marrowfield");
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_FALSE(EndTurnAsks());
}

TEST_F(EndTurnTest, WhileTheDriverRunsTheCommandIsIgnored) {
  InPlay();
  UI.BusyPointer = true;
  platform.QueueAnswer("yes");
  EndTurnCommand();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Game.CurRegime, 1);
  EXPECT_FALSE(EndTurnAsks());
  UI.BusyPointer = false;
  EXPECT_TRUE(EndTurnAsks());
}

}  // namespace
}  // namespace mf::test
