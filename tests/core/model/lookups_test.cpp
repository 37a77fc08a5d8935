// The one home of the small lookups every layer uses: the map and table
// sizes held inside the tables, the regime to move, a type's attributes and
// a formation's totals, and letter case.
#include <gtest/gtest.h>

#include <cstdint>

#include "model/bounds.h"
#include "model/type_lookup.h"
#include "platform/text_case.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;

class LookupsTest : public CoreTest {};

TEST_F(LookupsTest, MapSizeIsHeldInsideTheHexTable) {
  Game.MapW = 30;
  Game.MapH = 20;
  EXPECT_EQ(MapW(), 30);
  EXPECT_EQ(MapH(), 20);
  Game.MapW = kMapCap + 7;  // a damaged file
  Game.MapH = -4;
  EXPECT_EQ(MapW(), kMapCap);
  EXPECT_EQ(MapH(), 0);
}

TEST_F(LookupsTest, TableCountsAreHeldInsideTheirTables) {
  EXPECT_EQ(Held(-1, 10), 0);
  EXPECT_EQ(Held(7, 10), 7);
  EXPECT_EQ(Held(11, 10), 10);
  Game.RegimeCount = kRegimeCap + 1;
  Game.TypeCount = 12;
  Game.PeopleCount = -3;
  Game.UnitCount = kUnitCap * 2;
  EXPECT_EQ(LastRegime(), kRegimeCap);
  EXPECT_EQ(LastType(), 12);
  EXPECT_EQ(LastPeople(), 0);
  EXPECT_EQ(LastUnit(), kUnitCap);
}

TEST_F(LookupsTest, TheRegimeToMoveIsZeroWhenTheTurnNamesNoRegime) {
  Game.CurRegime = 3;
  EXPECT_EQ(CurrentRegime(), 3);
  Game.CurRegime = kRegimeCap + 1;
  EXPECT_EQ(CurrentRegime(), 0);
  Game.CurRegime = -2;
  EXPECT_EQ(CurrentRegime(), 0);
}

TEST_F(LookupsTest, OnlyARegimeOfTheTableWithItsComputerFlagIsRunByTheComputer) {
  Regime[2].AI = 1;
  Regime[3].AI = 0;
  EXPECT_TRUE(RunByComputer(2));
  EXPECT_FALSE(RunByComputer(3));
  EXPECT_FALSE(RunByComputer(0));
  EXPECT_FALSE(RunByComputer(kRegimeCap + 1));
  EXPECT_FALSE(RunByComputer(-1));
}

TEST_F(LookupsTest, TheComputerIsToMoveOnlyWhenTheRegimeToMoveIsItsOwn) {
  Regime[2].AI = 1;
  Regime[3].AI = 0;
  Game.CurRegime = 2;
  EXPECT_TRUE(ComputerToMove());
  Game.CurRegime = 3;
  EXPECT_FALSE(ComputerToMove());
  Game.CurRegime = kRegimeCap + 1;  // a turn that names no regime
  EXPECT_FALSE(ComputerToMove());
}

TEST_F(LookupsTest, StockWidthFollowsItsEngineVariableInsideTheTable) {
  EngineVar[616].Value = 40;
  EXPECT_EQ(StockWidth(), 40);
  EngineVar[616].Value = kStockCap + 1;
  EXPECT_EQ(StockWidth(), kStockCap);
  EngineVar[616].Value = -1;
  EXPECT_EQ(StockWidth(), 0);
}

TEST_F(LookupsTest, AnAttributeOfNoTypeIsZero) {
  Type[4].Attr[kCarryCap] = 25;
  Type[4].Name = "Lorries";
  EXPECT_EQ(AttrOf(4, kCarryCap), 25);
  EXPECT_EQ(AttrOf(0, kCarryCap), 0);
  EXPECT_EQ(AttrOf(kTypeCap + 1, kCarryCap), 0);
  EXPECT_EQ(AttrOf(-4, kCarryCap), 0);
  EXPECT_EQ(TypeOf(4).Name, "Lorries");
  EXPECT_EQ(TypeOf(kTypeCap + 1).Name, "");
}

TEST_F(LookupsTest, AnAttributeTimesAQuantityIsExactBeyondALong) {
  Type[2].Attr[kCarryCap] = INT32_MAX;
  const std::int64_t lift = AttrOf(2, kCarryCap) * Long{INT32_MAX};
  EXPECT_EQ(lift, std::int64_t{INT32_MAX} * INT32_MAX);
}

TEST_F(LookupsTest, AFormationsTotalSumsItsFourClassesAndStopsAtTheEnd) {
  Type[1].Attr[kWeight] = 2;   // riflemen
  Type[2].Attr[kWeight] = 50;  // lorries
  Type[3].Attr[kWeight] = 30;  // guns
  Unit[9].InfType = 1;
  Unit[9].InfQty = 100;
  Unit[9].MobType = 2;
  Unit[9].MobQty = 4;
  Unit[9].ArtType = 3;
  Unit[9].ArtQty = 6;
  EXPECT_EQ(UnitAttrTotal(9, kWeight), 2 * 100 + 50 * 4 + 30 * 6);
  EXPECT_EQ(UnitAttrTotal(0, kWeight), 0);
  EXPECT_EQ(UnitAttrTotal(kUnitCap + 1, kWeight), 0);

  // Four classes of the heaviest troops in the largest numbers would pass the
  // end of a 64-bit total; the sum stays at the end.
  for (int t = 1; t <= 4; ++t) Type[t].Attr[kWeight] = INT32_MAX;
  Unit[9].ArmType = 4;
  for (int cls = 1; cls <= 4; ++cls) UnitSlotQty(9, cls) = INT32_MAX;
  EXPECT_EQ(UnitAttrTotal(9, kWeight), INT64_MAX);
}

TEST(TextCase, OnlyTheLettersAToZChangeCase) {
  EXPECT_EQ(Lower("Infantry.BMP"), "infantry.bmp");
  EXPECT_EQ(Upper("1st Bataljon"), "1ST BATALJON");
  // The bytes of other characters stay as they are.
  EXPECT_EQ(Lower("\xC3\x84RMEL"), "\xC3\x84rmel");
  EXPECT_EQ(Upper("stra\xC3\x9F" "e"), "STRA\xC3\x9F" "E");
}

}  // namespace
}  // namespace mf
