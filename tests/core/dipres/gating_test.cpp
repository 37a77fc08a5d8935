// Unit types that name a research field are made only by regimes that hold it.
#include "engine/research.h"
#include "engine/urban_production_dialog.h"

#include "dipres_test_util.h"

namespace mf::test {
namespace {

class GatingTest : public DipResTest {
 protected:
  void SetUp() override {
    DipResTest::SetUp();
    Regimes({"Red", "Blue"});
    rifles = world::AddType("Rifle Infantry", kLandTheater, 1);
    tank = world::AddType("Heavy Tank", kLandTheater, 4);
    Type[tank].Research = 12;
    Research[12].Name = "Heavy Armour";
    Research[12].Cost = 40;
  }
  int rifles = 0;
  int tank = 0;
};

TEST_F(GatingTest, ATypeWithoutAFieldIsFreeToAll) {
  EXPECT_TRUE(TypeResearchKnown(1, rifles));
  EXPECT_TRUE(TypeResearchKnown(2, rifles));
}

TEST_F(GatingTest, ATypeWithAFieldNeedsTheFieldHeld) {
  EXPECT_FALSE(TypeResearchKnown(1, tank));
  Regime[2].Research[12] = 1;
  EXPECT_FALSE(TypeResearchKnown(1, tank));
  EXPECT_TRUE(TypeResearchKnown(2, tank));
  // Any value above 0 counts as held.
  Regime[1].Research[12] = 3;
  EXPECT_TRUE(TypeResearchKnown(1, tank));
  Regime[1].Research[12] = -1;
  EXPECT_FALSE(TypeResearchKnown(1, tank));
}

TEST_F(GatingTest, BuyingTheFieldOpensTheType) {
  Game.CurRegime = 1;
  Regime[1].PP = 40;
  keeper.QueueDialog("research", {{"field", "12"}, {"buy", ""}});
  EXPECT_FALSE(TypeResearchKnown(1, tank));
  OpenResearchDialog();
  EXPECT_EQ(keeper.Messages(), std::vector<std::string>{"You gained a research field"});
  EXPECT_EQ(Regime[1].PP, 0);
  EXPECT_TRUE(TypeResearchKnown(1, tank));
  EXPECT_FALSE(TypeResearchKnown(2, tank));
}

// The production list of a town takes the gate as it stands.
TEST_F(GatingTest, BuyingTheFieldPutsTheTypeOnTheProductionList) {
  Game.CurRegime = 1;
  Regime[1].PP = 40;
  Regime[1].OwnPeople = 1;
  Hex[3][3].Land = kUrban;
  Hex[3][3].Pop = 1000;
  Hex[3][3].People = 1;
  Hex[3][3].Owner = 1;
  Hex[3][3].UrbanName = "Eastford";
  for (int t : {rifles, tank}) {
    Type[t].Living[1] = 1;
    Type[t].Owning[1] = 1;
    Type[t].Cost = 100;
  }
  UrbanProductionDialog before;
  before.Prepare(3, 3);
  EXPECT_EQ(before.typeOfRow, std::vector<int>{rifles});
  keeper.QueueDialog("research", {{"field", "12"}, {"buy", ""}});
  OpenResearchDialog();
  UrbanProductionDialog after;
  after.Prepare(3, 3);
  EXPECT_EQ(after.typeOfRow, (std::vector<int>{rifles, tank}));
}

TEST_F(GatingTest, DataOutsideTheTablesOpensNothing) {
  // A field beyond the 200 of the table, or below 1, is held by nobody.
  Type[tank].Research = -1;
  EXPECT_FALSE(TypeResearchKnown(1, tank));
  Type[tank].Research = 201;
  Regime[1].Research[200] = 1;
  EXPECT_FALSE(TypeResearchKnown(1, tank));
  Type[tank].Research = 200;
  EXPECT_TRUE(TypeResearchKnown(1, tank));
  // No regime, or no such type.
  EXPECT_FALSE(TypeResearchKnown(0, tank));
  EXPECT_FALSE(TypeResearchKnown(21, tank));
  EXPECT_FALSE(TypeResearchKnown(1, 0));
  EXPECT_FALSE(TypeResearchKnown(1, 501));
}

}  // namespace
}  // namespace mf::test
