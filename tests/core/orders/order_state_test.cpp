// The order state machine: buttons, starts, the do button, cancel, keys.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "control/keyboard.h"
#include "control/order_state.h"
#include "control/selection.h"
#include "control/turn_cycle.h"
#include "model/reset.h"
#include "orders/movement.h"
#include "orders/transport.h"
#include "orders_test_util.h"

namespace mf {
namespace {

namespace world = test::world;

class OrderStateTest : public test::OrdersTest {
 protected:
  void SetUp() override {
    OrdersTest::SetUp();
    MakeMap(10, 10);
    Buttons = ButtonState{};
  }
  void TearDown() override {
    AirliftUnit = AirliftDrop = AirSupplyShq = 0;
    OrdersTest::TearDown();
  }
  // The order buttons that are enabled, by script name, in table order.
  static std::string Enabled() {
    std::string s;
    for (int i = 0; i < kOrderButtonCount; ++i) {
      if (!Buttons.order[i].enabled) continue;
      if (!s.empty()) s += ' ';
      s += OrderButtonOf(i).name;
    }
    return s;
  }
  void Press(int x, int y) { ClickMap(x, y, kLeftButton); }
  const PlatformEvent& LastEvent() { return platform.Events().back(); }
};

// ---- Buttons at rest ------------------------------------------------------

TEST_F(OrderStateTest, AnOwnFormationOnOwnGrass) {
  Infantry(red, 3, 3, "1st", 3);
  Press(3, 3);
  EXPECT_EQ(Enabled(), "move command newunit transfer officerpool research diplomatics disband entrench");
  EXPECT_EQ(Buttons.order[kBtnMove].caption, "[M]ove");
  EXPECT_EQ(Buttons.order[kBtnAirSupply].caption, "Airtransfer [Y]");
  EXPECT_TRUE(Buttons.nextTurn.enabled);
  EXPECT_EQ(Buttons.nextTurn.caption, "Next turn");
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_FALSE(Buttons.cancel.enabled);
}

TEST_F(OrderStateTest, AnOwnTownAndAFullHex) {
  Hex[3][3].Land = kUrban;
  Hex[3][3].Pop = 500;
  for (const char* n : {"A", "B", "C"}) Infantry(red, 3, 3, n, 3);
  Press(3, 3);
  EXPECT_EQ(Enabled(), "move production command transfer officerpool research diplomatics disband entrench");
  // An empty own hex: no formation to order, but the regime's own buttons.
  Press(5, 5);
  EXPECT_EQ(Enabled(), "newunit officerpool research diplomatics");
}

TEST_F(OrderStateTest, AnSHQOrATroopLessFormationCannotEntrench) {
  const int u = world::AddUnit(red, 3, 3, "Army");
  Press(3, 3);
  EXPECT_FALSE(Buttons.order[kBtnEntrench].enabled);
  Unit[u].InfType = rifle;
  Unit[u].InfQty = 5;
  Unit[u].Shq = 1;
  Press(4, 4);
  Press(3, 3);
  EXPECT_FALSE(Buttons.order[kBtnEntrench].enabled);
}

TEST_F(OrderStateTest, AnEnemyAtWarCanOnlyBeAttacked) {
  Hex[5][5].Owner = blue;
  Infantry(blue, 5, 5, "Enemy", 3);
  Press(5, 5);
  EXPECT_EQ(Enabled(), "attack");
  Dip[red][blue].Relation = 1;
  Press(5, 5);
  EXPECT_EQ(Enabled(), "");
}

TEST_F(OrderStateTest, AFormationAtSeaIsItsRegimesSelection) {
  Hex[5][5].Land = kSea;
  Hex[5][5].Owner = 0;
  const int s = Ship(red, 5, 5, "Fleet", 3);
  Hex[5][5].Owner = 0;
  // The hex is nobody's, so the ship's regime owns the selection: even
  // "[N]ew Unit" is on (the New Unit dialog then offers what the hex allows).
  Press(5, 5);
  EXPECT_EQ(Enabled(), "move command newunit transfer officerpool research diplomatics disband load");
  Unit[s].Cargo = Infantry(red, 9, 9, "Cargo", 0);
  Press(5, 5);
  EXPECT_EQ(Enabled(), "move command newunit transfer officerpool research diplomatics disband load unload");
  // A wing on board gives the ship the air orders.
  Unit[s].Cargo = Wing(red, 9, 8, "Deck wing", 3);
  Press(5, 5);
  EXPECT_EQ(Enabled(), "move command newunit transfer officerpool research diplomatics disband load unload "
                       "interdict strategic airlift airsupply");
  // An enemy ship at sea.
  Unit[s].Regime = blue;
  Press(5, 5);
  EXPECT_EQ(Enabled(), "attack");
}

TEST_F(OrderStateTest, AnAirWingHasTheAirOrders) {
  Wing(red, 3, 3, "Wing", 3);
  Press(3, 3);
  EXPECT_EQ(Enabled(), "move command newunit transfer officerpool research diplomatics disband interdict strategic "
                       "airlift airsupply");
}

TEST_F(OrderStateTest, NothingIsEnabledDuringTheComputersTurn) {
  Infantry(red, 3, 3, "1st", 3);
  Regime[red].AI = 1;
  SetAIPhase(2, 7);
  Press(3, 3);
  EXPECT_EQ(Enabled(), "");
  EXPECT_TRUE(Buttons.nextTurn.enabled);
  EXPECT_EQ(Buttons.nextTurn.caption, "");
  Game.AIAnalysis = kTrue;
  RefreshButtons();
  EXPECT_EQ(Buttons.nextTurn.caption, "AI PHASE 2/7");
}

TEST_F(OrderStateTest, TheEditorEnablesItsFewButtonsWithItsPanelShowing) {
  Hex[3][3].Pop = 100;
  Infantry(red, 3, 3, "1st", 0);
  UI.EditMode = 1;
  UI.ShowEditorPanel = true;
  Press(3, 3);
  EXPECT_EQ(Enabled(), "move production command newunit");
  EXPECT_TRUE(Buttons.paintControls);
  EXPECT_FALSE(Buttons.nextTurn.enabled);
  // An unowned hex with a formation in slot 1 gets no new unit.
  Hex[3][3].Owner = 0;
  Press(3, 3);
  EXPECT_EQ(Enabled(), "move production command");
  Press(6, 6);
  Hex[6][6].Owner = 0;
  RefreshButtons();
  EXPECT_EQ(Enabled(), "newunit");
  UI.ShowEditorPanel = false;
  Press(3, 3);
  EXPECT_EQ(Enabled(), "");
  EXPECT_FALSE(Buttons.paintControls);
}

TEST_F(OrderStateTest, WhilePaintingTheEditorLeavesTheButtonsAlone) {
  UI.EditMode = 1;
  UI.ShowEditorPanel = true;
  Infantry(red, 3, 3, "1st", 0);
  Press(3, 3);
  UI.Order.RegimePaint = 2;
  Buttons.doButton.enabled = true;
  Press(5, 5);
  EXPECT_EQ(Enabled(), "move command newunit");  // as they were at (3, 3)
  EXPECT_TRUE(Buttons.doButton.enabled);
  // The do button ends the painting.
  DoButton();
  EXPECT_EQ(UI.Order.RegimePaint, 0);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_EQ(Enabled(), "newunit");
}

TEST_F(OrderStateTest, TheGuidingLineAtRest) {
  Helper();
  EXPECT_EQ(UI.HelpText, "Red, please give your orders. Press Next Turn Button if you are finished.");
  Regime[red].AI = 1;
  Helper();
  EXPECT_EQ(UI.HelpText, "The AI for Red is doing it's turn.");
  UI.EditMode = 1;
  Helper();
  EXPECT_EQ(UI.HelpText, "You are in the editing mode. If you want to play this scenario select start in the menu.");
}

TEST_F(OrderStateTest, ADisabledButtonDoesNothing) {
  Hex[5][5].Owner = blue;
  Infantry(blue, 5, 5, "Enemy", 3);
  Press(5, 5);
  EXPECT_FALSE(PressOrderButton(kBtnMove));
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_FALSE(PressOrderButton(-1));
  EXPECT_FALSE(PressOrderButton(kOrderButtonCount));
  EXPECT_EQ(OrderButtonByName("airsupply"), kBtnAirSupply);
  EXPECT_EQ(OrderButtonByName("fly"), -1);
}

// ---- Move -----------------------------------------------------------------

TEST_F(OrderStateTest, MoveStartsWithTheFloodAndItsCaption) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  ASSERT_TRUE(PressOrderButton(kBtnMove));
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  EXPECT_EQ(UI.OrdX, 3);
  EXPECT_EQ(UI.OrdY, 3);
  EXPECT_EQ(UI.OrdSlot, 1);
  EXPECT_EQ(Hex[5][3].Mark, 2);
  EXPECT_EQ(Hex[6][3].Mark, 999);
  EXPECT_EQ(Enabled(), "");
  EXPECT_EQ(Buttons.doButton.caption, "DON'T MOVE");
  EXPECT_TRUE(Buttons.doButton.enabled);
  EXPECT_EQ(Buttons.cancel.caption, "CANCEL ORDER");
  EXPECT_TRUE(Buttons.cancel.enabled);
  EXPECT_TRUE(Buttons.orderLineShown);
  EXPECT_EQ(UI.HelpText, "You are moving a formation. Click on a highlighted hex to move it there.");
  // A press elsewhere leaves the buttons off while the move is under way.
  ClickMap(5, 3, kRightButton);
  EXPECT_EQ(Enabled(), "");
}

TEST_F(OrderStateTest, APressOnAHighlightedHexMovesTheFormation) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  platform.Clear();
  Press(5, 3);
  EXPECT_EQ(Hex[5][3].Unit[1], u);
  EXPECT_EQ(Unit[u].MP, 0);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(Hex[5][3].Mark, 999);  // the flood is forgotten
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_FALSE(Buttons.cancel.enabled);
  EXPECT_FALSE(Buttons.orderLineShown);
  EXPECT_EQ(UI.RedrawRequest, 2);
  EXPECT_TRUE(UI.PanelDirty);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{1, 11}));  // click, mov_inf.wav
  EXPECT_EQ(Enabled(), "move command newunit transfer officerpool research diplomatics disband entrench");
  EXPECT_EQ(UI.HelpText, "Red, please give your orders. Press Next Turn Button if you are finished.");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(OrderStateTest, TheMoveSoundTellsWhatMoved) {
  // Troops that all ride: mov_arm.wav.
  Motorised(red, 3, 3, "Motor", 2);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  platform.Clear();
  Press(4, 3);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{1, 12}));
  // A fleet: mov_ship.wav.
  for (int x = 1; x <= 2; ++x) {
    Hex[x][1].Land = kSea;
    Hex[x][1].Owner = 0;
  }
  Ship(red, 1, 1, "Fleet", 2);
  Hex[1][1].Owner = 0;
  Press(1, 1);
  PressOrderButton(kBtnMove);
  platform.Clear();
  Press(2, 1);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{1, 15}));
  // An air wing rebasing: att_bomb.wav.
  Wing(red, 8, 8, "Wing", 2);
  Press(8, 8);
  PressOrderButton(kBtnMove);
  platform.Clear();
  Press(9, 8);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{1, 14}));
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
}

TEST_F(OrderStateTest, AfterAMoveTheNextMoveStartsAtOnce) {
  const int u = Infantry(red, 3, 3, "1st", 3);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  Press(4, 3);
  EXPECT_EQ(UI.SelCount, 1);  // counted again with the newcomer
  EXPECT_EQ(UI.SelSlot, 1);
  ASSERT_TRUE(KeyDown('M'));
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  EXPECT_EQ(UI.OrdX, 4);
  EXPECT_EQ(Hex[6][3].Mark, 2);
  Press(6, 3);
  EXPECT_EQ(Hex[6][3].Unit[1], u);
  EXPECT_EQ(Unit[u].MP, 0);
}

TEST_F(OrderStateTest, FunctionKeysAreNoLetters) {
  Hex[3][3].Pop = 100;
  Infantry(red, 3, 3, "1st", 3);
  Press(3, 3);
  // F3 (114) would read as a small r, F4 (115) as a small s.
  EXPECT_FALSE(KeyDown(114));
  EXPECT_FALSE(KeyDown(115));
  EXPECT_FALSE(OrderUnderWay());
  EXPECT_TRUE(platform.Events().empty());
}

TEST_F(OrderStateTest, NoSoundWhenSoundIsOff) {
  Infantry(red, 3, 3, "1st", 2);
  UI.SoundOff = 1;
  Press(3, 3);
  PressOrderButton(kBtnMove);
  Press(4, 3);
  EXPECT_TRUE(platform.Sounds().empty());
}

TEST_F(OrderStateTest, ARefusedMoveKeepsTheOrder) {
  const int u = Infantry(red, 3, 3, "1st", 1);
  for (const char* n : {"A", "B", "C"}) Infantry(red, 4, 3, n, 0);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  Press(5, 3);
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Not enough movementpoints"}));
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  EXPECT_EQ(Hex[3][2].Mark, 1);  // the reach still stands
  Press(4, 3);
  EXPECT_EQ(Messages().back(), "To many units in target hex");
  EXPECT_EQ(LastEvent().title, "Marrowfield");
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
  // A move elsewhere still works after a refusal.
  Press(3, 2);
  EXPECT_EQ(Hex[3][2].Unit[1], u);
}

TEST_F(OrderStateTest, APressOnTheOriginEndsTheMoveWithoutAWord) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Infantry(red, 3, 3, "2nd", 2);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  // A second press on the stack does not walk it while a move is under way:
  // it is the press that finishes the move, here on its origin.
  Press(3, 3);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
  EXPECT_EQ(Unit[u].MP, 2);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Hex[4][3].Mark, 999);
  // At rest the same press walks on.
  Press(3, 3);
  EXPECT_EQ(UI.SelSlot, 2);
}

TEST_F(OrderStateTest, ARightPressDuringAMoveOnlySelects) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  ClickMap(4, 3, kRightButton);
  EXPECT_EQ(UI.SelX, 4);
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
  Press(4, 3);
  EXPECT_EQ(Hex[4][3].Unit[1], u);
}

TEST_F(OrderStateTest, TheDoButtonSaysDontMoveAndMeansIt) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  platform.Clear();
  DoButton();
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_FALSE(Buttons.cancel.enabled);
  EXPECT_FALSE(Buttons.orderLineShown);
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{1}));
  EXPECT_TRUE(Buttons.order[kBtnMove].enabled);
}

TEST_F(OrderStateTest, CancellingAMovePutsTheSelectionBack) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  PressOrderButton(kBtnMove);
  ClickMap(5, 5, kRightButton);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 3);
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(Hex[3][3].Unit[1], u);
  EXPECT_FALSE(Buttons.cancel.enabled);
}

TEST_F(OrderStateTest, TheMoveCostLine) {
  Infantry(red, 3, 3, "1st", 2);
  HoverMap(4, 3);
  EXPECT_EQ(Buttons.orderLine, "");  // no move under way: nothing
  Press(3, 3);
  PressOrderButton(kBtnMove);
  HoverMap(5, 3);
  EXPECT_EQ(Buttons.orderLine, "Move Cost = 2");
  HoverMap(3, 3);
  EXPECT_EQ(Buttons.orderLine, "Move Cost = 0");
  HoverMap(9, 9);
  EXPECT_EQ(Buttons.orderLine, "No Move possible.");
  Hex[9][9].Mark = 9999;
  HoverMap(9, 9);
  EXPECT_EQ(Buttons.orderLine, "No Move possible.");
}

TEST_F(OrderStateTest, TheEditorMovesAnyFormationAnywhereWithoutSight) {
  const int u = Infantry(blue, 3, 3, "Blue 1st", 0);
  Hex[3][3].Owner = 0;
  UI.EditMode = 1;
  UI.ShowEditorPanel = true;
  Game.CurRegime = 0;
  Press(3, 3);
  ASSERT_TRUE(PressOrderButton(kBtnMove));
  Hex[9][9].Vis = 0;
  Press(9, 9);
  EXPECT_EQ(Hex[9][9].Unit[1], u);
  EXPECT_EQ(Hex[9][9].Owner, blue);
  EXPECT_EQ(Hex[9][9].Vis, 0);  // no sight pass in the editor
  EXPECT_EQ(platform.Sounds(), (std::vector<int>{1, 1}));
}

// ---- Attack ---------------------------------------------------------------

class AttackTest : public OrderStateTest {
 protected:
  void SetUp() override {
    OrderStateTest::SetUp();
    Hex[5][5].Owner = blue;
    enemy = Infantry(blue, 5, 5, "Enemy", 3);
  }
  void StartAttack() {
    Press(5, 5);
    ASSERT_TRUE(PressOrderButton(kBtnAttack));
  }
  // Presses the picture of the formation in slot `slot` of hex (x, y).
  void Join(int x, int y, int slot = 1) {
    ClickMap(x, y, kRightButton);
    PanelPress(slot);
  }
  int enemy = 0;
};

TEST_F(AttackTest, TheStartTestsAndTheirMessages) {
  Hex[6][6].Owner = blue;
  Press(6, 6);
  AttackButton();
  EXPECT_EQ(Messages().back(),
            "There are no enemy units in the hex you selected. You dont have to attack. You can use move to take it.");
  Dip[red][blue].Relation = 1;
  Press(5, 5);
  AttackButton();
  EXPECT_EQ(Messages().back(), "You cannot attack units from a player you are at peace with");
  Infantry(red, 3, 3, "1st", 3);
  Press(3, 3);
  AttackButton();
  EXPECT_EQ(Messages().back(), "You cannot attack your own units. Select an enemy unit and press Attack again.");
  EXPECT_EQ(UI.Order.AttackOrder, 0);
  EXPECT_EQ(Messages().size(), 3u);
}

TEST_F(AttackTest, TheAttackStartsOnTheTargetHex) {
  UI.AttackerCount = 7;
  UI.AttackerX[33] = 4;
  StartAttack();
  EXPECT_EQ(UI.Order.AttackOrder, 1);
  EXPECT_EQ(UI.OrdX, 5);
  EXPECT_EQ(UI.OrdY, 5);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(UI.AttackerX[33], 0);
  EXPECT_EQ(Buttons.doButton.caption, "DO ATTACK");
  EXPECT_TRUE(Buttons.doButton.enabled);
  EXPECT_TRUE(Buttons.cancel.enabled);
  EXPECT_EQ(UI.HelpText,
            "You have targeted a hex for attack. Now you must select units to join this attack and press do attack.");
  EXPECT_EQ(Enabled(), "");
}

TEST_F(AttackTest, PressingAttackAgainOnlyRepeatsTheHexTests) {
  const int a = Infantry(red, 4, 5, "1st", 3);
  StartAttack();
  Join(4, 5);
  ASSERT_EQ(UI.AttackerCount, 1);
  ClickMap(4, 5, kRightButton);
  AttackButton();
  EXPECT_EQ(Messages().back(), "You cannot attack your own units. Select an enemy unit and press Attack again.");
  ClickMap(5, 5, kRightButton);
  AttackButton();
  EXPECT_EQ(UI.AttackerCount, 1);
  EXPECT_EQ(UI.AttackerSlot[1], 1);
  EXPECT_EQ(UI.Order.AttackOrder, 1);
  EXPECT_EQ(Hex[4][5].Unit[1], a);
}

TEST_F(AttackTest, NeighboursWithTwoMPJoinAndLeave) {
  // (5, 5) odd row: (4, 5) to the west, (5, 4) north-west, (5, 6) south-west.
  Infantry(red, 4, 5, "A", 2);
  Infantry(red, 5, 4, "B", 3);
  Infantry(red, 5, 6, "C", 3);
  StartAttack();
  Join(4, 5);
  Join(5, 4);
  Join(5, 6);
  ASSERT_EQ(UI.AttackerCount, 3);
  EXPECT_EQ(UI.AttackerX[1], 4);
  EXPECT_EQ(UI.AttackerY[2], 4);
  // Taking the first out moves the last into its place.
  Join(4, 5);
  EXPECT_EQ(UI.AttackerCount, 2);
  EXPECT_EQ(UI.AttackerX[1], 5);
  EXPECT_EQ(UI.AttackerY[1], 6);
  EXPECT_EQ(UI.AttackerY[2], 4);
  EXPECT_EQ(UI.AttackerX[3], 0);
  EXPECT_TRUE(Messages().empty());
  EXPECT_TRUE(UI.PanelDirty);
}

TEST_F(AttackTest, AirWingsAndTiredFormationsAreRefusedWithAWord) {
  Wing(red, 4, 5, "Wing", 5);
  Infantry(red, 5, 4, "Tired", 1);
  StartAttack();
  Join(4, 5);
  EXPECT_EQ(Messages().back(), "Air Units Cannot join attack. Use interdict to use them seperatly.");
  Join(5, 4);
  EXPECT_EQ(Messages().back(), "Unit does not have 2 MP left. This is needed to do an attack.");
  EXPECT_EQ(UI.AttackerCount, 0);
}

TEST_F(AttackTest, FromAfarOnlyGunsInRangeJoinAndOthersSilentlyNot) {
  // (3, 5) and (7, 5) are two hexes from the target.
  Infantry(red, 3, 5, "Rifles", 3);
  const int g = Infantry(red, 7, 5, "Guns", 3);
  Unit[g].ArtType = gun;
  Unit[g].ArtQty = 4;
  StartAttack();
  Join(3, 5);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_TRUE(Messages().empty());
  Join(7, 5);
  EXPECT_EQ(UI.AttackerCount, 1);
  // Out of range at three hexes.
  const int far = Infantry(red, 8, 5, "Far guns", 3);
  Unit[far].ArtType = gun;
  Unit[far].ArtQty = 4;
  Join(8, 5);
  EXPECT_EQ(UI.AttackerCount, 1);
  // A warship fires with its warships' range.
  Hex[8][6].Land = kSea;
  Ship(red, 8, 6, "Fleet", 3);
  Join(8, 6);
  EXPECT_EQ(UI.AttackerCount, 2);
}

TEST_F(AttackTest, MoreThanTwentyIsTheLimitSoATwentyFirstCanJoin) {
  for (int i = 1; i <= 20; ++i) {
    UI.AttackerX[i] = 9;
    UI.AttackerY[i] = 9;
    UI.AttackerSlot[i] = 1;
  }
  Infantry(red, 4, 5, "A", 3);
  Infantry(red, 5, 4, "B", 3);
  StartAttack();
  UI.AttackerCount = 20;
  Join(4, 5);
  EXPECT_EQ(UI.AttackerCount, 21);
  EXPECT_TRUE(Messages().empty());
  Join(5, 4);
  EXPECT_EQ(Messages().back(), "You can only select a maximum of 20 units for an attack.");
  EXPECT_EQ(UI.AttackerCount, 21);
  // Not even the twenty-first can leave again.
  Join(4, 5);
  EXPECT_EQ(UI.AttackerCount, 21);
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(AttackTest, OnlyOwnFormationsJoin) {
  Hex[4][5].Owner = blue;
  Infantry(blue, 4, 5, "Other enemy", 3);
  StartAttack();
  Join(4, 5);
  Join(5, 5);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(AttackTest, ThePanelPressSelectsTheSlotItJoins) {
  Infantry(red, 4, 5, "A", 3);
  Infantry(red, 4, 5, "B", 3);
  StartAttack();
  ClickMap(4, 5, kRightButton);
  EXPECT_TRUE(PanelPress(2));
  EXPECT_EQ(UI.SelSlot, 2);
  EXPECT_EQ(UI.AttackerCount, 1);
  EXPECT_EQ(UI.AttackerSlot[1], 2);
  EXPECT_FALSE(PanelPress(3));  // an empty slot
  EXPECT_EQ(UI.AttackerCount, 1);
}

TEST_F(AttackTest, TheDoButtonSendsTheAttackOff) {
  Infantry(red, 4, 5, "A", 3);
  StartAttack();
  Join(4, 5);
  Game.FogOfWar = 1;
  DoButton();
  EXPECT_EQ(UI.Order.AttackOrder, 0);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_FALSE(Buttons.cancel.enabled);
  EXPECT_EQ(UI.RedrawRequest, 2);
  // The fog was worked out again: under fog of war the hexes the regime
  // sees read 1, where before the attack every hex read 3.
  EXPECT_EQ(Hex[4][5].Vis, 1);
  EXPECT_EQ(UI.HelpText, "Red, please give your orders. Press Next Turn Button if you are finished.");
}

TEST_F(AttackTest, CancellingClearsTheListAndGoesBackToTheTarget) {
  Infantry(red, 4, 5, "A", 3);
  StartAttack();
  Join(4, 5);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.AttackOrder, 0);
  EXPECT_EQ(UI.AttackerCount, 0);
  EXPECT_EQ(UI.AttackerX[1], 0);
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(UI.SelY, 5);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_EQ(UI.RedrawRequest, 2);
  EXPECT_EQ(Enabled(), "attack");
}

// ---- Change of command, transfer ------------------------------------------

TEST_F(OrderStateTest, AFormationWithMPIsAskedAbout) {
  Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  platform.QueueAnswer("no");
  PressOrderButton(kBtnCommand);
  EXPECT_EQ(LastEvent().kind, PlatformEvent::kQuestion);
  EXPECT_EQ(LastEvent().text, "Unit still has Movement Points. Are you sure?");
  EXPECT_EQ(LastEvent().title, "WARNING");
  EXPECT_EQ(UI.Order.BossOrder, 0);
  platform.QueueAnswer("yes");
  PressOrderButton(kBtnCommand);
  EXPECT_EQ(UI.Order.BossOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO NEW THQ FOR 1st");
  EXPECT_EQ(UI.HelpText, "You want to change the boss of the selected Formation. Select the new boss and press the "
                         "do new thq/shq button.");
}

TEST_F(OrderStateTest, AnSHQHasNoBossAndATHQChoosesAnSHQ) {
  const int shq = world::AddUnit(red, 3, 3, "Army");
  Unit[shq].Shq = 1;
  Unit[shq].MP = 1;
  Press(3, 3);
  platform.QueueAnswer("yes");
  PressOrderButton(kBtnCommand);
  EXPECT_EQ(Messages().back(), "You cannot assign a Boss for a SHQ. A SHQ is the top dog.");
  EXPECT_EQ(UI.Order.BossOrder, 0);
  const int thq = world::AddUnit(red, 4, 4, "Corps");
  Unit[thq].Thq = 1;
  Press(4, 4);
  PressOrderButton(kBtnCommand);
  EXPECT_EQ(UI.Order.BossOrder, 2);
  EXPECT_EQ(Buttons.doButton.caption, "DO NEW SHQ FOR Corps");
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(OrderStateTest, ABossOrderOnItselfOrOnNothingEndsSilently) {
  Infantry(red, 3, 3, "1st", 0);
  Press(3, 3);
  PressOrderButton(kBtnCommand);
  ASSERT_EQ(UI.Order.BossOrder, 1);
  Press(7, 7);  // an empty hex
  DoButton();
  EXPECT_EQ(UI.Order.BossOrder, 0);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 3);
  PressOrderButton(kBtnCommand);
  KeyDown(kKeyEnter);  // the formation itself is selected
  EXPECT_EQ(UI.Order.BossOrder, 0);
  PressOrderButton(kBtnCommand);
  Press(7, 7);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.BossOrder, 0);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(Buttons.doButton.enabled);
}

TEST_F(OrderStateTest, TransferNamesItsSourceInCapitals) {
  Infantry(red, 3, 3, "1st Rifles", 2);
  Press(3, 3);
  ASSERT_TRUE(PressOrderButton(kBtnTransfer));
  EXPECT_EQ(UI.Order.TransferOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO TRANSFER FROM 1ST RIFLES");
  EXPECT_EQ(UI.HelpText,
            "You have selected a unit to transfer. Now select the target formation and press do transfer");
  // M does nothing while a transfer is under way, nor do the other letters.
  EXPECT_FALSE(KeyDown('M'));
  EXPECT_FALSE(KeyDown('T'));
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  // The source itself as destination ends the order.
  KeyDown(kKeySpace);
  EXPECT_EQ(UI.Order.TransferOrder, 0);
  EXPECT_EQ(Hex[4][3].Mark, 999);
  PressOrderButton(kBtnTransfer);
  Press(8, 8);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.TransferOrder, 0);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(UI.SelY, 3);
}

// ---- Ships and air wings --------------------------------------------------

class NavalAirTest : public OrderStateTest {
 protected:
  void SetUp() override {
    OrderStateTest::SetUp();
    for (int y = 1; y <= 10; ++y) {
      Hex[1][y].Land = kSea;
      Hex[1][y].Owner = 0;
    }
  }
};

TEST_F(NavalAirTest, LoadAndUnloadOnAShore) {
  const int s = Ship(red, 1, 5, "Fleet", 3);
  Hex[1][5].Owner = 0;
  Press(1, 5);
  ASSERT_TRUE(PressOrderButton(kBtnLoad));
  EXPECT_EQ(UI.Order.LoadOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO LOAD INTO Fleet");
  EXPECT_EQ(UI.HelpText,
            "You have selected a Naval Formation to load another Formation. Select this formation and press do load.");
  Press(2, 5);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.LoadOrder, 0);
  EXPECT_EQ(UI.SelX, 1);
  Unit[s].Cargo = Infantry(red, 9, 9, "Cargo", 0);
  Press(1, 5);
  ASSERT_TRUE(PressOrderButton(kBtnUnload));
  EXPECT_EQ(UI.Order.LandingOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO UNLOAD ON SELECTED HEX");
  EXPECT_EQ(UI.HelpText, "You want to unload from your Naval Formation. Select a neighbouring hex to unload.");
  Press(2, 5);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.LandingOrder, 0);
  EXPECT_EQ(UI.SelX, 1);
  EXPECT_EQ(UI.SelY, 5);
}

TEST_F(NavalAirTest, InAPortTheCargoLandsWithoutAnOrder) {
  Hex[2][5].Land = kUrban;
  const int s = Ship(red, 2, 5, "Fleet", 3);
  Unit[s].Cargo = Infantry(red, 9, 9, "Cargo", 0);
  Press(2, 5);
  ASSERT_TRUE(PressOrderButton(kBtnUnload));
  EXPECT_EQ(UI.Order.LandingOrder, 0);
  EXPECT_FALSE(Buttons.doButton.enabled);
}

TEST_F(NavalAirTest, InterdictionNeedsTwoMPAndFloodsTheWingsReach) {
  const int w = Wing(red, 5, 5, "Wing", 1);
  Press(5, 5);
  PressOrderButton(kBtnInterdict);
  EXPECT_EQ(UI.Order.InterdictOrder, 0);
  EXPECT_TRUE(Messages().empty());
  Unit[w].MP = 2;
  PressOrderButton(kBtnInterdict);
  EXPECT_EQ(UI.Order.InterdictOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO INTERDICT");
  EXPECT_EQ(UI.HelpText,
            "You have selected an Air Formation to interdict. Now select a target formation and press do interdict.");
  EXPECT_EQ(Hex[7][5].Mark, 2);
  EXPECT_EQ(Hex[8][5].Mark, 999);
  Press(7, 5);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.InterdictOrder, 0);
  EXPECT_EQ(UI.SelX, 5);
  EXPECT_EQ(Hex[7][5].Mark, 999);
  PressOrderButton(kBtnStrategic);
  EXPECT_EQ(UI.Order.StratBombOrder, 1);
  EXPECT_EQ(Buttons.doButton.caption, "DO STRATEGIC BOMBING");
  EXPECT_EQ(UI.HelpText,
            "You have selected an Air Formation to Bomb a town. Now select a town and press do strategic bombing.");
  DoCancel();
  EXPECT_EQ(UI.Order.StratBombOrder, 0);
}

TEST_F(NavalAirTest, AWingOnBoardFliesFromTheShipsSlot) {
  const int s = Ship(red, 1, 5, "Carrier", 0);
  Hex[1][5].Owner = 0;
  const int w = Wing(red, 9, 9, "Deck wing", 3);
  Hex[9][9].Unit[1] = 0;  // aboard, in no stack
  Unit[s].Cargo = w;
  Press(1, 5);
  ASSERT_TRUE(PressOrderButton(kBtnInterdict));
  EXPECT_EQ(Hex[1][5].Unit[1], s);
  EXPECT_EQ(Hex[4][5].Mark, 3);  // air costs over sea and land alike
  EXPECT_EQ(UI.Order.InterdictOrder, 1);
}

TEST_F(NavalAirTest, AnAirliftNeedsAFormationThatCanFly) {
  const int w = Wing(red, 5, 5, "Wing", 4);
  Press(5, 5);
  PressOrderButton(kBtnAirlift);
  EXPECT_EQ(LastEvent().text, "No unit in hex thats eligable for transport.");
  EXPECT_EQ(LastEvent().title, "Not possible");
  const int a = Infantry(red, 5, 5, "Paras", 1);
  Select(5, 5, 1);  // the wing
  PressOrderButton(kBtnAirlift);
  EXPECT_EQ(LastEvent().text, "Unit has not enough MP. Should have at least 2mp.");
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  // 30 rifles weigh 30; the wing carries nothing yet.
  Unit[a].MP = 2;
  const std::size_t before = platform.Events().size();
  PressOrderButton(kBtnAirlift);
  EXPECT_EQ(platform.Events().size(), before);
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  Unit[w].MobType = transport;
  Unit[w].MobQty = 1;  // 50
  PressOrderButton(kBtnAirlift);
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
  EXPECT_EQ(AirliftUnit, a);
  EXPECT_EQ(AirliftDrop, 1);  // rifles without ParadropCap must land
  EXPECT_EQ(Buttons.doButton.caption, "SELCECT AIRLIFT/AIRDROP DESTINATION FOR Paras");
  EXPECT_EQ(UI.HelpText, "You have selected an Air Formation to do an Air lift. Now select a target hex to drop or "
                         "land the transported formation.");
  EXPECT_EQ(Hex[5][5].Unit[1], w);
  EXPECT_EQ(Hex[9][5].Mark, 4);
  // Enter does not finish an airlift.
  EXPECT_FALSE(KeyDown(kKeyEnter));
  EXPECT_EQ(UI.Order.AirliftOrder, 1);
  Press(9, 5);
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.AirliftOrder, 0);
  EXPECT_EQ(Hex[9][5].Mark, 999);
  EXPECT_EQ(UI.SelX, 5);
}

TEST_F(NavalAirTest, TwoFormationsOnTheAirfieldAskWhichOne) {
  const int w = Wing(red, 5, 5, "Wing", 4);
  Unit[w].MobType = transport;
  Unit[w].MobQty = 2;
  Type[rifle].Attr[kParadropCap] = 1;
  Infantry(red, 5, 5, "First", 2);
  const int b = Infantry(red, 5, 5, "Second", 2);
  Press(5, 5);
  platform.QueueAnswer("no");
  PressOrderButton(kBtnAirlift);
  EXPECT_EQ(platform.Events()[0].kind, PlatformEvent::kQuestion);
  EXPECT_EQ(platform.Events()[0].text, "[Yes = transport First]   [No = transport Second]");
  EXPECT_EQ(platform.Events()[0].title, "Airlift which unit");
  EXPECT_EQ(AirliftUnit, b);
  EXPECT_EQ(AirliftDrop, 0);  // paratroops can jump
}

TEST_F(NavalAirTest, AirSupplyNeedsAnSHQThatReachesTheWing) {
  const int w = Wing(red, 5, 5, "Wing", 4);
  Press(5, 5);
  PressOrderButton(kBtnAirSupply);
  EXPECT_EQ(UI.Order.AirSupplyOrder, 0);  // no boss at all
  const int shq = world::AddUnit(red, 8, 8, "Army");
  Unit[shq].Shq = 3;
  const int thq = world::AddUnit(red, 8, 7, "Corps");
  Unit[thq].Thq = 1;
  Unit[thq].Boss = shq;
  Unit[w].Boss = thq;
  Hex[5][5].ShqDist[3] = 999;
  PressOrderButton(kBtnAirSupply);
  EXPECT_EQ(UI.Order.AirSupplyOrder, 0);
  Hex[5][5].ShqDist[3] = 4;
  PressOrderButton(kBtnAirSupply);
  EXPECT_EQ(UI.Order.AirSupplyOrder, 1);
  EXPECT_EQ(AirSupplyShq, shq);
  EXPECT_EQ(Buttons.doButton.caption, "DO AIRSUPPLY FROM Wing");
  EXPECT_EQ(UI.HelpText, "You have selected an Air Formation to provide Air supply. Select the receiving unit and "
                         "press do airsupply.");
  EXPECT_EQ(Hex[1][5].Mark, 999);  // the sea gets no supply drop
  EXPECT_EQ(Hex[2][5].Mark, 3);
  DoCancel();
  EXPECT_EQ(UI.Order.AirSupplyOrder, 0);
  EXPECT_EQ(Hex[2][5].Mark, 999);
  EXPECT_TRUE(Messages().empty());
}

// ---- Entrench -------------------------------------------------------------

TEST_F(OrderStateTest, EntrenchingMarksTheSixSides) {
  Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  ASSERT_TRUE(PressOrderButton(kBtnEntrench));
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
  EXPECT_EQ(MarkRows(), (std::vector<std::string>{
                            "- - - - - -",
                            "- - 0 0 - -",
                            "- 0 - 0 - -",
                            "- - 0 0 - -",
                            "- - - - - -",
                            "- - - - - -",
                        }));
  EXPECT_EQ(Buttons.doButton.caption, "DON'T ENTRENCH");
  EXPECT_EQ(UI.HelpText,
            "You are attempting to entrench a border of the selected hex. Click on a neighbour to select border.");
  // The cancel button keeps the state it had: off, as at rest.
  EXPECT_FALSE(Buttons.cancel.enabled);
  // A press further away is ignored; one on the origin ends the order.
  Press(6, 6);
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
  Press(3, 3);
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
  EXPECT_EQ(Hex[3][2].Mark, 999);
  // The do button ends it too, and the selection comes back.
  PressOrderButton(kBtnEntrench);
  Press(6, 6);
  KeyDown(kKeyEnter);
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
  EXPECT_EQ(UI.SelX, 3);
  PressOrderButton(kBtnEntrench);
  Buttons.cancel.enabled = true;
  Press(4, 3);  // a side: the fortification is the chain of command's business
  KeyDown(kKeyEscape);
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
  EXPECT_FALSE(Buttons.cancel.enabled);
  EXPECT_EQ(UI.SelX, 3);
  EXPECT_EQ(Hex[4][3].Mark, 999);
}

// ---- Keys and the next turn -----------------------------------------------

TEST_F(OrderStateTest, LettersPressTheirButtonsOnlyWhenNoOrderIsUnderWay) {
  const int u = Infantry(red, 3, 3, "1st", 2);
  Press(3, 3);
  EXPECT_TRUE(KeyDown('M'));
  EXPECT_EQ(UI.Order.SelOrderMove, u);
  EXPECT_FALSE(KeyDown('E'));
  EXPECT_EQ(UI.Order.EntrenchOrder, 0);
  EXPECT_TRUE(KeyDown(kKeySpace));
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  EXPECT_TRUE(KeyDown('E'));
  EXPECT_EQ(UI.Order.EntrenchOrder, 1);
  // Entrenchment does not stop the letters, but its disabled buttons do.
  EXPECT_FALSE(KeyDown('M'));
  EXPECT_EQ(UI.Order.SelOrderMove, 0);
  KeyDown(kKeyEscape);
  // A letter of a disabled button, and a letter of no button.
  EXPECT_FALSE(KeyDown('A'));
  EXPECT_FALSE(KeyDown('Z'));
  EXPECT_FALSE(KeyDown(kKeyEnter));
}

TEST_F(OrderStateTest, TheEditorTakesLettersOnlyWithItsPanelShowing) {
  Infantry(red, 3, 3, "1st", 0);
  UI.EditMode = 1;
  UI.ShowEditorPanel = false;
  Press(3, 3);
  EXPECT_FALSE(KeyDown('M'));
  UI.ShowEditorPanel = true;
  EXPECT_TRUE(KeyDown('M'));
  EXPECT_GT(UI.Order.SelOrderMove, 0);
}

TEST_F(OrderStateTest, NextTurnAsksFirst) {
  platform.QueueAnswer("no");
  NextTurnButton();
  EXPECT_EQ(LastEvent().kind, PlatformEvent::kQuestion);
  EXPECT_EQ(LastEvent().text, "Are you sure you want to end your turn?");
  EXPECT_EQ(LastEvent().title, "End Turn");
  EXPECT_EQ(Game.CurRegime, red);
  UI.EditMode = 1;
  NextTurnButton();
  EXPECT_EQ(LastEvent().kind, PlatformEvent::kMessage);
  EXPECT_EQ(LastEvent().text, "You are in editing mode");
}

TEST_F(OrderStateTest, TheOtherButtonsOpenTheirDialogs) {
  Hex[3][3].Land = kUrban;
  Hex[3][3].Pop = 500;
  Press(3, 3);
  PressOrderButton(kBtnResearch);
  PressOrderButton(kBtnDiplomatics);
  PressOrderButton(kBtnProduction);
  std::vector<std::string> dialogs;
  for (const auto& e : platform.Events())
    if (e.kind == PlatformEvent::kDialogAction) dialogs.push_back(e.title);
  ASSERT_FALSE(dialogs.empty());
  EXPECT_EQ(dialogs.front(), "research");
  EXPECT_NE(std::find(dialogs.begin(), dialogs.end(), "diplomatics"), dialogs.end());
  EXPECT_EQ(dialogs.back(), "production");
  EXPECT_FALSE(OrderUnderWay());
}

}  // namespace
}  // namespace mf
