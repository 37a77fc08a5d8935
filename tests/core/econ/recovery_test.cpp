// Readiness, experience and movement points at a regime's turn start, one
// formation at a time, with the default rules.
#include "econ_test_util.h"

namespace mf::test {
namespace {

class RecoveryTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(10, 10, {"Red"});
    OwnAll(1);
    // Rifles walk 4 and weigh 1; nothing carries them.
    rifles = LandType("Rifles", 1, 1, 0, 4, 1);
  }
  // A formation of ten rifles at (x, y) with the given state.
  int Rifles(int x, int y, int readiness, int experience, int supply) {
    const int u = AddFormation(1, x, y, 0, rifles, 10);
    Unit[u].Readiness = readiness;
    Unit[u].Experience = experience;
    Unit[u].SupplyPct = supply;
    return u;
  }
  int rifles = 0;
};

TEST_F(RecoveryTest, OutOfSupplyReadinessFallsByTwentyDownToTen) {
  const int u = Rifles(3, 3, 60, 0, 0);
  std::vector<int> readiness, experience;
  for (int turn = 0; turn < 4; ++turn) {
    RecoveryPass(3, 3, 1);
    readiness.push_back(Unit[u].Readiness);
    experience.push_back(Unit[u].Experience);
  }
  // 60 - 20 = 40, 20, then 0 held at 10; in the fourth turn experience 18
  // gives Int(18 / 15) = 1, still below 10.
  EXPECT_EQ(readiness, (std::vector<int>{40, 20, 10, 10}));
  // Experience grows by 6 a turn up to 50 all the same.
  EXPECT_EQ(experience, (std::vector<int>{6, 12, 18, 24}));
}

TEST_F(RecoveryTest, InSupplyReadinessFiveComesUpToThirtyThenGains) {
  const int u = Rifles(3, 3, 5, 0, 100);
  RecoveryPass(3, 3, 1);
  // 5 - 10 = -5, to 10, to 30, then + (0 + 30) x 100 / 100.
  EXPECT_EQ(Unit[u].Readiness, 60);
  const int half = Rifles(4, 4, 5, 0, 50);
  RecoveryPass(4, 4, 1);
  // To 30, then + Int(30 x 50 / 100).
  EXPECT_EQ(Unit[half].Readiness, 45);
}

TEST_F(RecoveryTest, AFullySuppliedFormationOfExperienceThirtyNetsTwentyEight) {
  const int u = Rifles(3, 3, 50, 30, 100);
  RecoveryPass(3, 3, 1);
  // - 10, + 30 / 15 = 2, + (30 / 5 + 30) = 36.
  EXPECT_EQ(Unit[u].Readiness, 78);
  EXPECT_EQ(Unit[u].Experience, 36);
}

TEST_F(RecoveryTest, ReadinessStopsAtAHundred) {
  const int u = Rifles(3, 3, 95, 30, 100);
  RecoveryPass(3, 3, 1);
  EXPECT_EQ(Unit[u].Readiness, 100);
}

TEST_F(RecoveryTest, PartSupplyGainsInProportion) {
  const int u = Rifles(3, 3, 50, 22, 37);
  RecoveryPass(3, 3, 1);
  // 50 - 10 + Int(22 / 15) = 41; + Int((Int(22 / 5) + 30) x 37 / 100) = Int(12.58).
  EXPECT_EQ(Unit[u].Readiness, 53);
}

TEST_F(RecoveryTest, ReadinessFiftyWithAnAllowanceOfFourGivesTwoMP) {
  const int u = Rifles(3, 3, 70, 0, 0);  // 70 - 20 = 50
  RecoveryPass(3, 3, 1);
  ASSERT_EQ(Unit[u].Readiness, 50);
  // Int(50 / 100 x (4 + 0.5)) = Int(2.25).
  EXPECT_EQ(Unit[u].MP, 2);
  const int fresh = Rifles(4, 4, 72, 30, 100);  // comes up to 100
  RecoveryPass(4, 4, 1);
  ASSERT_EQ(Unit[fresh].Readiness, 100);
  EXPECT_EQ(Unit[fresh].MP, 4);  // Int(4.5)
}

TEST_F(RecoveryTest, ASuppliedLandFormationKeepsTwoMPToAttack) {
  Type[rifles].Attr[kMovementCap] = 1;
  const int u = Rifles(3, 3, 30, 0, 1);  // 20, to 30, + Int(30 x 1 / 100) = 30
  RecoveryPass(3, 3, 1);
  ASSERT_EQ(Unit[u].Readiness, 30);
  EXPECT_EQ(Unit[u].MP, 2);  // Int(0.3 x 1.5) = 0, raised to 2
  // Out of supply it stays at 0.
  const int dry = Rifles(4, 4, 50, 0, 0);
  RecoveryPass(4, 4, 1);
  ASSERT_EQ(Unit[dry].Readiness, 30);
  EXPECT_EQ(Unit[dry].MP, 0);
  // Without troops: nothing to attack with.
  const int empty = Rifles(5, 5, 30, 0, 1);
  Unit[empty].InfQty = 0;
  RecoveryPass(5, 5, 1);
  EXPECT_EQ(Unit[empty].MP, 0);
  // An air formation is not raised.
  const int planes = Rifles(6, 6, 30, 0, 1);
  Unit[planes].Theater = kAirTheater;
  RecoveryPass(6, 6, 1);
  EXPECT_EQ(Unit[planes].MP, 0);
}

TEST_F(RecoveryTest, AnSHQStaysAtReadinessTwentyFiveAndOneMP) {
  const int shq = AddShq(1, 3, 3, 1);
  Unit[shq].Readiness = 80;
  Unit[shq].Experience = 30;
  Unit[shq].SupplyPct = 700;  // its stock, not a percentage
  Unit[shq].MP = 0;
  RecoveryPass(3, 3, 1);
  EXPECT_EQ(Unit[shq].Readiness, 25);
  EXPECT_EQ(Unit[shq].MP, 1);
  // It gains no experience by itself.
  EXPECT_EQ(Unit[shq].Experience, 30);
  EXPECT_EQ(Unit[shq].SupplyPct, 700);
}

TEST_F(RecoveryTest, AircrewsTrainToTwiceTheLevel) {
  struct Case {
    int theater, before, after;
  };
  const std::vector<Case> cases{{kAirTheater, 60, 66},  {kAirTheater, 99, 105}, {kAirTheater, 100, 100},
                                {kLandTheater, 49, 55}, {kLandTheater, 50, 50}, {kSeaTheater, 44, 50}};
  int x = 1;
  for (const Case& c : cases) {
    const int u = Rifles(x, 2, 50, c.before, 100);
    Unit[u].Theater = c.theater;
    RecoveryPass(x, 2, 1);
    EXPECT_EQ(Unit[u].Experience, c.after) << "theater " << c.theater << ", experience " << c.before;
    ++x;
  }
}

TEST_F(RecoveryTest, TheSelectionFollowsThePass) {
  Rifles(7, 4, 50, 0, 0);
  UI.SelX = UI.SelY = 1;
  RecoveryPass(7, 4, 1);
  EXPECT_EQ(UI.SelX, 7);
  EXPECT_EQ(UI.SelY, 4);
}

TEST_F(RecoveryTest, ACarriedFormationRestsWithoutTheHalfPointOrTheAirRule) {
  const int carrier = Rifles(3, 3, 50, 0, 100);
  const int fighters = world::AddType("Fighters", kAirTheater, 1);
  Type[fighters].Attr[kMovementCap] = 10;
  const int cargo = NewUnitNumber();
  Unit[cargo].Regime = 1;
  Unit[cargo].Name = "Crated fighters";
  Unit[cargo].Theater = kAirTheater;
  Unit[cargo].InfType = fighters;
  Unit[cargo].InfQty = 4;
  Unit[cargo].Readiness = 50;
  Unit[cargo].Experience = 60;
  Unit[cargo].SupplyPct = 100;
  Unit[carrier].Cargo = cargo;
  RecoveryPass(3, 3, 1);
  // 50 - 10 + Int(60 / 15) = 44; + (Int(60 / 5) + 30) = 86.
  EXPECT_EQ(Unit[cargo].Readiness, 86);
  // The land limit of 50, not the aircrews' 100.
  EXPECT_EQ(Unit[cargo].Experience, 60);
  // Int(86 / 100 x 10); with the half point it would be 9.
  EXPECT_EQ(Unit[cargo].MP, 8);
  EXPECT_EQ(CheckInvariants(), "");
}

TEST_F(RecoveryTest, ACarriedLandFormationIsNotRaisedToTwoMP) {
  Type[rifles].Attr[kMovementCap] = 1;
  const int carrier = Rifles(3, 3, 50, 0, 100);
  const int cargo = NewUnitNumber();
  Unit[cargo].Regime = 1;
  Unit[cargo].Name = "Passengers";
  Unit[cargo].InfType = rifles;
  Unit[cargo].InfQty = 10;
  Unit[cargo].Readiness = 30;
  Unit[cargo].SupplyPct = 1;
  Unit[carrier].Cargo = cargo;
  RecoveryPass(3, 3, 1);
  ASSERT_EQ(Unit[cargo].Readiness, 30);
  EXPECT_EQ(Unit[cargo].MP, 0);  // Int(30 / 100 x 1)
  EXPECT_EQ(Unit[carrier].MP, 2);
}

TEST_F(RecoveryTest, TheRulesComeFromTheEngineVariables) {
  EngineVar[221].Value = 5;   // attrition in supply
  EngineVar[223].Value = 10;  // experience / 10
  EngineVar[225].Value = 40;  // floor in supply
  EngineVar[226].Value = 20;  // basic gain
  EngineVar[227].Value = 4;   // bonus experience / 4
  EngineVar[228].Value = 25;
  EngineVar[229].Value = 3;
  const int u = Rifles(3, 3, 20, 24, 50);
  RecoveryPass(3, 3, 1);
  // 20 - 5 + 2 = 17, to 40, + Int((6 + 20) x 50 / 100) = 13.
  EXPECT_EQ(Unit[u].Readiness, 53);
  EXPECT_EQ(Unit[u].Experience, 27);
}

}  // namespace
}  // namespace mf::test
