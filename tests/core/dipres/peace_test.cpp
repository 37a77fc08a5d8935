// Peace closes a regime's land to the other's formations and shields its
// formations from attack.
#include "control/order_state.h"
#include "control/selection.h"
#include "engine/diplomacy.h"

#include "dipres_test_util.h"

namespace mf::test {
namespace {

class PeaceTest : public DipResTest {
 protected:
  void SetUp() override {
    DipResTest::SetUp();
    Regimes({"Red", "Blue"});
    Game.CurRegime = 1;
    Game.Turn = 2;
    const int rifles = world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Attr[kSoftAttack] = 10;
    Type[rifles].Attr[kHitPoints] = 20;
    Type[rifles].Attr[kMovementCap] = 4;
    for (int x = 1; x <= 10; ++x)
      for (int y = 1; y <= 10; ++y) Hex[x][y].Vis = 1;
    // Red at (3,3) on its own land, with its own hex (3,2) above; Blue
    // holds (3,4) below it, and a Blue formation stands in (4,3).
    Hex[3][3].Owner = 1;
    Hex[3][2].Owner = 1;
    Hex[3][4].Owner = 2;
    Hex[4][3].Owner = 2;
    red = world::AddUnit(1, 3, 3, "Red Guards", rifles, 10);
    Unit[red].MP = 5;
    blue = world::AddUnit(2, 4, 3, "Blue Guards", rifles, 10);
    Pair(1, 2, 1, 100);
  }
  int red = 0;
  int blue = 0;
};

TEST_F(PeaceTest, APeaceHexIsClosedToMovement) {
  ASSERT_TRUE(AtPeace(1, 2));
  ClickMap(3, 3, kLeftButton);
  ASSERT_EQ(UI.SelSlot, 1);
  ASSERT_TRUE(PressOrderButton(kBtnMove));
  ASSERT_EQ(UI.Order.SelOrderMove, red);
  // Grass costs engine variable 1 on own land; Blue's land is out of reach.
  EXPECT_EQ(Hex[3][2].Mark, EV(1));
  EXPECT_EQ(Hex[3][4].Mark, 999);
  ClickMap(3, 4, kLeftButton);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Not enough movementpoints"});
  // Nothing moved and nothing was taken; the order waits for another target.
  EXPECT_EQ(Hex[3][3].Unit[1], red);
  EXPECT_EQ(Hex[3][4].Unit[1], 0);
  EXPECT_EQ(Hex[3][4].Owner, 2);
  EXPECT_EQ(Unit[red].MP, 5);
  EXPECT_EQ(UI.Order.SelOrderMove, red);
}

TEST_F(PeaceTest, AnAttackOnARegimeAtPeaceIsRefused) {
  ClickMap(4, 3, kLeftButton);
  ASSERT_EQ(UI.SelSlot, 1);
  // At peace the button is not even offered; its handler refuses as well.
  RefreshButtons();
  EXPECT_FALSE(Buttons.order[kBtnAttack].enabled);
  AttackButton();
  EXPECT_EQ(Messages(), std::vector<std::string>{"You cannot attack units from a player you are at peace with"});
  EXPECT_EQ(UI.Order.AttackOrder, 0);
  // Once war is declared the same press starts the attack.
  Pair(1, 2, 0, 200);
  RefreshButtons();
  EXPECT_TRUE(Buttons.order[kBtnAttack].enabled);
  AttackButton();
  EXPECT_EQ(UI.Order.AttackOrder, 1);
  EXPECT_EQ(Messages().size(), 1u);
}

}  // namespace
}  // namespace mf::test
