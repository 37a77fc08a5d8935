// The towns' output at a regime's turn start: political points with their
// chance, production points and finished pieces into the SHQ's stock, and
// what the stock can carry.
#include "econ_test_util.h"
#include "model/rnd.h"

namespace mf::test {
namespace {

class ProductionTest : public EconTest {
 protected:
  void SetUp() override {
    EconTest::SetUp();
    MakeWorld(10, 10, {"Red", "Blue"});
    OwnAll(1);
    shq = AddShq(1, 1, 1, 2);
    tanks = LandType("Tanks", 4, 0, 0, 5, 1, 1000);
    Type[tanks].Attr[kCarryCap] = 5;
    AddTown(5, 5, 1, 3000, shq);
    // The town lies at cost 4 from its SHQ, reached overland this turn.
    Hex[5][5].ShqDist[2] = 4;
  }
  HexRec& town() { return Hex[5][5]; }

  // A seed whose first draw is below (or not below) the given chance.
  static unsigned SeedWhere(float chance, bool below) {
    for (unsigned seed = 1; seed < 100000; ++seed) {
      SeedRnd(seed);
      if ((Rnd() < chance) == below) return seed;
    }
    ADD_FAILURE() << "no seed found";
    return 0;
  }

  int shq = 0;
  int tanks = 0;
};

// ---- Political points -------------------------------------------------------

TEST_F(ProductionTest, WIsOneAndAnEighthOnePointSureAndOneByChance) {
  town().Damage = 25;  // W = 0.75 x 3000 / 2000 = 1.125
  SeedRnd(SeedWhere(0.125f, true));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 2);
  Regime[1].PP = 0;
  SeedRnd(SeedWhere(0.125f, false));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 1);
}

TEST_F(ProductionTest, BelowOnePointOnlyTheChanceRemains) {
  town().Pop = 500;  // W = 0.25
  SeedRnd(SeedWhere(0.25f, false));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 0);
  SeedRnd(SeedWhere(0.25f, true));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 1);
}

TEST_F(ProductionTest, TheComputerWithTheBonusEarnsDouble) {
  town().Damage = 25;  // 2 x 1.125 = 2.25
  Regime[1].AI = 1;
  Game.AIProdBonus = 1;
  SeedRnd(SeedWhere(0.25f, false));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 2);
  SeedRnd(SeedWhere(0.25f, true));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 5);
}

TEST_F(ProductionTest, EveryTownTakesExactlyOneDraw) {
  town().Pop = 4000;  // W = 2 exactly: the draw is taken and cannot win
  SeedRnd(77);
  Rnd();
  const float second = Rnd();
  SeedRnd(77);
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 2);
  EXPECT_EQ(Rnd(), second);
}

// ---- Unit pieces -----------------------------------------------------------------

TEST_F(ProductionTest, APopulationAboveTheCostMakesSeveralPiecesAndKeepsTheRest) {
  town().Prod = tanks;
  town().Pop = 2500;
  town().ProdPts = 300;
  TownOutput(5, 5);
  // 300 + 2500 = 2800: two pieces, 800 left; into the first empty slot.
  EXPECT_EQ(town().ProdPts, 800);
  EXPECT_EQ(Shq[1][2].StockType[1], tanks);
  EXPECT_EQ(Shq[1][2].StockQty[1], 2);
  EXPECT_EQ(Regime[1].PP, 0);
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 300);
  EXPECT_EQ(Shq[1][2].StockQty[1], 5);
}

TEST_F(ProductionTest, PiecesJoinTheLastSlotOfTheirType) {
  town().Prod = tanks;
  town().Pop = 1000;
  Shq[1][2].StockType[2] = tanks;
  Shq[1][2].StockQty[2] = 1;
  Shq[1][2].StockType[5] = tanks;
  Shq[1][2].StockQty[5] = 4;
  TownOutput(5, 5);
  EXPECT_EQ(Shq[1][2].StockQty[2], 1);
  EXPECT_EQ(Shq[1][2].StockQty[5], 5);
  EXPECT_EQ(Shq[1][2].StockType[1], 0);
}

TEST_F(ProductionTest, WithAFullStockThePointsAreSpentAndThePiecesLost) {
  EngineVar[616].Value = 3;
  town().Prod = tanks;
  town().Pop = 2000;
  for (int k = 1; k <= 3; ++k) {
    Shq[1][2].StockType[k] = 100 + k;
    Shq[1][2].StockQty[k] = 1;
  }
  // A slot beyond the width in use is not looked at.
  Shq[1][2].StockType[4] = tanks;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 0);
  // Slot 0 of the table stays empty.
  EXPECT_EQ(Shq[1][2].StockQty[0], 0);
  EXPECT_EQ(Shq[1][2].StockType[0], 0);
  EXPECT_EQ(Shq[1][2].StockQty[4], 0);
  for (int k = 1; k <= 3; ++k) EXPECT_EQ(Shq[1][2].StockQty[k], 1);
}

TEST_F(ProductionTest, ProductionPointsAreRoundedHalvesToEven) {
  town().Prod = tanks;
  town().Damage = 75;
  struct Case {
    int pop, before, after;
  };
  // W = Pop / 4.
  for (const Case c : {Case{9, 0, 2}, Case{10, 0, 2}, Case{14, 0, 4}, Case{10, 1, 4}, Case{11, 0, 3}}) {
    town().Pop = c.pop;
    town().ProdPts = c.before;
    TownOutput(5, 5);
    EXPECT_EQ(town().ProdPts, c.after) << "pop " << c.pop << ", points " << c.before;
  }
}

TEST_F(ProductionTest, TheComputerWithTheBonusMakesDoublePoints) {
  town().Prod = tanks;
  town().Pop = 300;
  Regime[1].AI = 1;
  Game.AIProdBonus = 1;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 600);
}

TEST_F(ProductionTest, ATownOverseasFromItsSHQEarnsNoPointsButKeepsWhatItHas) {
  town().Prod = tanks;
  town().ProdPts = 300;
  Hex[5][5].ShqPrev1[2] = 2;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 300);
  // Points already there still finish a piece.
  town().ProdPts = 1500;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 500);
  EXPECT_EQ(Shq[1][2].StockQty[1], 1);
  // Political points are earned overseas as at home.
  town().Prod = 0;
  SeedRnd(SeedWhere(0.5f, false));
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 1);
}

TEST_F(ProductionTest, ATownCutOffFromItsSHQEarnsNothingAndKeepsItsPoints) {
  town().Prod = tanks;
  town().ProdPts = 700;
  Hex[5][5].ShqDist[2] = 999;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 700);
  town().Prod = 0;
  SeedRnd(3);
  const float first = Rnd();
  SeedRnd(3);
  TownOutput(5, 5);
  EXPECT_EQ(Regime[1].PP, 0);
  EXPECT_EQ(Rnd(), first);  // no draw was taken
  // The edge of the range still delivers.
  Hex[5][5].ShqDist[2] = 30;
  TownOutput(5, 5);
  EXPECT_GE(Regime[1].PP, 1);
}

TEST_F(ProductionTest, NoSHQDeadSHQForeignTownOrExtraSupplyMakeNothingHere) {
  town().Prod = tanks;
  town().ProdPts = 200;
  town().ProdSHQ = 0;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 200);
  // Its SHQ is gone: the unit is no SHQ any more.
  town().ProdSHQ = shq;
  Unit[shq].Shq = 0;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 200);
  Unit[shq].Shq = 2;
  // Blue's town, in Red's turn.
  town().Owner = 2;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 200);
  town().Owner = 1;
  town().Prod = -1;
  TownOutput(5, 5);
  EXPECT_EQ(town().ProdPts, 200);
  EXPECT_EQ(Regime[1].PP, 0);
}

TEST_F(ProductionTest, ProducedCountIsTheWholeNumberOfPieces) {
  EXPECT_EQ(ProducedCount(tanks, 2999), 2);
  EXPECT_EQ(ProducedCount(tanks, 999), 0);
  EXPECT_EQ(ProducedCount(tanks, 3000), 3);
  Type[tanks].Cost = 0;
  EXPECT_EQ(ProducedCount(tanks, 3000), 0);
}

// ---- Carrying capacity of the stock ---------------------------------------------------

TEST_F(ProductionTest, TheStockCarriesByLandAndBySea) {
  const int cargo = world::AddType("Cargo ships", kSeaTheater, 2);
  Type[cargo].Attr[kCarryCap] = 100;
  const int planes = world::AddType("Transports", kAirTheater, 2);
  Type[planes].Attr[kCarryCap] = 50;
  ShqRec& s = Shq[1][2];
  s.StockType[1] = tanks;  // 5 each
  s.StockQty[1] = 3;
  s.StockType[2] = cargo;
  s.StockQty[2] = 2;
  s.StockType[3] = planes;
  s.StockQty[3] = 1;
  s.Carry = 999;
  s.CarrySea = 999;
  // Blue's SHQ is left alone in Red's turn.
  const int blueShq = AddShq(2, 9, 9, 1);
  Hex[9][9].Owner = 2;
  Shq[2][1].StockType[1] = tanks;
  Shq[2][1].StockQty[1] = 9;
  Shq[2][1].Carry = 7;
  PoolTransport();
  EXPECT_EQ(s.Carry, 15);
  EXPECT_EQ(s.CarrySea, 200);
  EXPECT_EQ(Shq[2][1].Carry, 7);
  EXPECT_GT(blueShq, 0);
}

}  // namespace
}  // namespace mf::test
