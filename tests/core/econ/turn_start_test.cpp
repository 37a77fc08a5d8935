// The economy in the next-turn driver: supply, recovery and towns at each
// regime's turn start, for a human and for a computer regime, over several
// turns, with the invariants checked after every turn start.
#include "control/turn_cycle.h"
#include "econ_test_util.h"

namespace mf::test {
namespace {

class TurnStartTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(20, 10, {"Red", "Blue"});
    for (int x = 1; x <= 20; ++x)
      for (int y = 1; y <= 10; ++y) Hex[x][y].Owner = x <= 10 ? 1 : 2;
    rifles = LandType("Rifles", 1, 1, 0, 3, 1);
    // Red: an SHQ with its town, a THQ, a formation under the THQ and one
    // directly under the SHQ.
    redShq = AddShq(1, 2, 5, 1, "Red SHQ");
    AddTown(3, 5, 1, 2000, redShq);
    redThq = AddThq(1, 5, 5, redShq, "Red THQ");
    // A THQ with nobody in it would be disbanded at the end of a turn.
    Unit[redThq].InfType = rifles;
    Unit[redThq].InfQty = 1;
    a = AddFormation(1, 6, 5, redThq, rifles, 10, "Red A");
    Unit[a].Readiness = 50;
    Unit[a].Experience = 30;
    b = AddFormation(1, 8, 8, redShq, rifles, 5, "Red B");
    // Blue, played by the computer: an SHQ, its town and one formation.
    Regime[2].AI = 1;
    blueShq = AddShq(2, 18, 5, 1, "Blue SHQ");
    AddTown(17, 5, 2, 1000, blueShq);
    c = AddFormation(2, 16, 5, blueShq, rifles, 10, "Blue C");
    Unit[c].Readiness = 100;
    Game.GameEndPop = 1000000;
    Game.Turn = 0;
    Game.CurRegime = 0;
    UI.EditMode = 0;
    ppBefore = Regime[1].PP;
  }

  int rifles = 0, redShq = 0, redThq = 0, a = 0, b = 0, blueShq = 0, c = 0;
  long ppBefore = 0;
};

TEST_F(TurnStartTest, RedsFirstTurnStart) {
  NextTurn();
  ASSERT_EQ(Game.CurRegime, 1);
  EXPECT_EQ(CheckInvariants(), "");
  // The town gives 2000 / 100 x 100 / 10 = 200; A asks 10 x 60 / 100 = 6,
  // B 5 x 10 / 100 = 0.
  EXPECT_EQ(Unit[redShq].GenSupply, 200);
  EXPECT_EQ(Unit[a].GenSupply, 6);
  EXPECT_EQ(Unit[b].GenSupply, 0);
  EXPECT_EQ(Unit[redShq].SupplyDemand, 6);
  EXPECT_EQ(Unit[redShq].SupplyPct, 194);
  EXPECT_EQ(Unit[a].SupplyPct, 100);
  EXPECT_EQ(Unit[b].SupplyPct, 100);
  // A: 50 - 10 + 2 + 36 = 78, experience 36, MP Int(0.78 x 3.5).
  EXPECT_EQ(Unit[a].Readiness, 78);
  EXPECT_EQ(Unit[a].Experience, 36);
  EXPECT_EQ(Unit[a].MP, 2);
  // B: 100 - 10 + 1 + 35, held at 100; MP Int(3.5).
  EXPECT_EQ(Unit[b].Readiness, 100);
  EXPECT_EQ(Unit[b].MP, 3);
  // The SHQ: readiness and experience 25, one MP.
  EXPECT_EQ(Unit[redShq].Readiness, 25);
  EXPECT_EQ(Unit[redShq].Experience, 25);
  EXPECT_EQ(Unit[redShq].MP, 1);
  // The town: W = 2000 / 2000 = 1, one point.
  EXPECT_EQ(Regime[1].PP, ppBefore + 1);
  // Blue waits at 0, its SHQ untouched.
  EXPECT_EQ(Unit[c].SupplyPct, 0);
  EXPECT_EQ(Unit[blueShq].GenSupply, 0);
  // The scratch is clear, the SHQ's reach kept.
  EXPECT_EQ(Hex[6][5].Mark, 999);
  EXPECT_EQ(Hex[6][5].ShqDist[1], 4);
  EXPECT_EQ(Hex[12][5].ShqDist[1], 999);
}

TEST_F(TurnStartTest, TheComputersTurnStartRunsTheSameEconomy) {
  NextTurn();
  EXPECT_EQ(CheckInvariants(), "");
  // The computer then plays its turn and may march C off: its readiness is
  // read as the turn start left it, just before the computer's turn.
  long readinessAtTurnStart = -1;
  SetTurnStepWatcher([&](const std::string& step) {
    if (step == "AITurn") readinessAtTurnStart = Unit[c].Readiness;
  });
  EndCurrentTurn();
  SetTurnStepWatcher(nullptr);
  ASSERT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(CheckInvariants(), "");
  EXPECT_EQ(Unit[blueShq].GenSupply, 100);
  EXPECT_EQ(Unit[c].GenSupply, 1);  // 10 x 10 / 100
  EXPECT_EQ(Unit[c].SupplyPct, 100);
  EXPECT_EQ(Unit[blueShq].SupplyPct, 99);
  // C: 100 - 10 + 1 + 35, held at 100.
  EXPECT_EQ(readinessAtTurnStart, 100);
  // Blue's flood replaced Red's under SHQ number 1.
  EXPECT_EQ(Hex[6][5].ShqDist[1], 999);
  EXPECT_EQ(Hex[16][5].ShqDist[1], 2);
  // While Blue moves, Red's formations read 0.
  EXPECT_EQ(Unit[a].SupplyPct, 0);
  EXPECT_EQ(Unit[b].SupplyPct, 0);
  // Red's stock stays as it was.
  EXPECT_EQ(Unit[redShq].SupplyPct, 194);
}

TEST_F(TurnStartTest, SeveralTurnsKeepTheEconomyGoing) {
  NextTurn();
  ASSERT_EQ(CheckInvariants(), "");
  EndCurrentTurn();  // Blue, the computer, plays inside the driver
  ASSERT_EQ(CheckInvariants(), "");
  TimerTick();   // ends Blue's turn: Red's second
  ASSERT_EQ(Game.Turn, 2);
  ASSERT_EQ(Game.CurRegime, 1);
  ASSERT_EQ(CheckInvariants(), "");
  // A now asks 10 x 32 / 100 = 3: the stock 194 + 200 - 3.
  EXPECT_EQ(Unit[a].GenSupply, 3);
  EXPECT_EQ(Unit[redShq].SupplyPct, 391);
  // A: 78 - 10 + 2 + 37, held at 100; experience 42; MP 3.
  EXPECT_EQ(Unit[a].Readiness, 100);
  EXPECT_EQ(Unit[a].Experience, 42);
  EXPECT_EQ(Unit[a].MP, 3);
  EXPECT_EQ(Regime[1].PP, ppBefore + 2);
  for (int k = 0; k < 6; ++k) {
    if (Game.CurRegime == 1) {
      EndCurrentTurn();
    } else {
      TimerTick();
    }
    ASSERT_EQ(CheckInvariants(), "") << "after regime turn " << k;
  }
  EXPECT_EQ(Game.Turn, 5);
  EXPECT_EQ(Game.CurRegime, 1);
  // Turns 3, 4 and 5: A at 100 asks 1 each time; the stock grows by 199 a
  // turn and is held to 2 x 200 once above 1000: 391, 590, 789, 988.
  EXPECT_EQ(Unit[redShq].SupplyPct, 988);
  EXPECT_EQ(Regime[1].PP, ppBefore + 5);
  EndCurrentTurn();
  TimerTick();
  ASSERT_EQ(CheckInvariants(), "");
  // 988 + 199 = 1187: above 1000 and above 400, cut to 400.
  EXPECT_EQ(Unit[redShq].SupplyPct, 400);
}

TEST_F(TurnStartTest, ARegimeWithoutSHQAttritsOutOfSupply) {
  // Red's SHQ is gone.
  Unit[redShq].Regime = 0;
  Unit[redShq].Shq = 0;
  Shq[1][1].Unit = 0;
  Hex[2][5].Unit[1] = 0;
  Unit[b].Readiness = 60;
  Unit[b].Experience = 0;
  NextTurn();
  ASSERT_EQ(CheckInvariants(), "");
  EXPECT_EQ(Unit[a].SupplyPct, 0);
  EXPECT_EQ(Unit[b].SupplyPct, 0);
  EXPECT_EQ(Unit[b].Readiness, 40);
  EXPECT_EQ(Regime[1].PP, ppBefore);
}

}  // namespace
}  // namespace mf::test
