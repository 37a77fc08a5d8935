// The windows of the New Unit, Officerpool and Transfer dialogs on the
// offscreen platform: they show the dialogs' captions and states and forward
// the clicks, and closing them by the frame counts as their cancel or close.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "dialog_views.h"
#include "engine/officers.h"
#include "model/game_state.h"
#include "orders/new_units.h"
#include "orders/transfer.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class OrgsViewsTest : public AppTest {
 protected:
  void SetUp() override {
    AppTest::SetUp();
    world::NewMap(12, 12);
    red = world::AddRegime("Red");
    Game.CurRegime = red;
    Game.Turn = 1;
    UI.EditMode = 0;
    for (int x = 1; x <= 12; ++x)
      for (int y = 1; y <= 12; ++y) {
        Hex[x][y].Owner = red;
        Hex[x][y].Land = kGrass;
      }
    Regime[red].PP = 4;
    rifle = world::AddType("Rifles", kLandTheater, 1);
    Type[rifle].Attr[kWeight] = 1;
    Type[rifle].Cost = 10;
  }

  // Runs the view of `name`; `inside` runs once its window is up. A window
  // still open after two seconds is closed so that a failure cannot hang.
  void RunView(mf::HumbleDialog& dialog, const char* windowName, std::function<void(QDialog*)> inside) {
    RunDialogView(dialog, window.get(), windowName, inside);
  }

  int red = 0, rifle = 0;
};

TEST_F(OrgsViewsTest, NewUnitWindowShowsPricesAndMakesAFormation) {
  UI.SelX = 5;
  UI.SelY = 5;
  Regime[red].FormationName = "Bataljon";
  mf::NewUnitDialog dialog;
  dialog.Prepare();
  RunView(dialog, "newUnitDialog", [&](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Create what kind of unit?");
    auto* land = d->findChild<QPushButton*>("land");
    auto* navy = d->findChild<QPushButton*>("navy");
    auto* thq = d->findChild<QPushButton*>("thq");
    auto* shq = d->findChild<QPushButton*>("shq");
    auto* cancel = d->findChild<QPushButton*>("cancel");
    ASSERT_TRUE(land && navy && thq && shq && cancel);
    EXPECT_EQ(land->text(), "Land Formation = 1pp");
    EXPECT_EQ(thq->text(), "THQ = 3pp");
    EXPECT_EQ(shq->text(), "SHQ = 5pp");
    EXPECT_EQ(cancel->text(), "CANCEL");
    // Four points: the THQ can be had, the SHQ cannot; no port here.
    EXPECT_TRUE(thq->isEnabled());
    EXPECT_FALSE(shq->isEnabled());
    EXPECT_FALSE(navy->isEnabled());
    land->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
  ASSERT_GT(dialog.made, 0);
  EXPECT_EQ(Unit[dialog.made].Name, "1st Bataljon");
  EXPECT_EQ(Regime[red].PP, 3);
}

TEST_F(OrgsViewsTest, NewUnitWindowClosedByItsFrameMakesNothing) {
  UI.SelX = 5;
  UI.SelY = 5;
  mf::NewUnitDialog dialog;
  dialog.Prepare();
  RunView(dialog, "newUnitDialog", [](QDialog* d) { d->reject(); });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.made, 0);
  EXPECT_EQ(Hex[5][5].Unit[1], 0);
}

TEST_F(OrgsViewsTest, OfficerPoolWindowListsThePoolAndAssigns) {
  const int u = world::AddUnit(red, 4, 4, "1st Bataljon", rifle, 10);
  Unit[u].SupplyPct = 50;
  Unit[u].Readiness = 60;
  for (int o : {1, 2}) {
    Officer[o].Regime = red;
    Officer[o].InPool = o == 1 ? 0 : 1;
    Officer[o].Name = o == 1 ? "Hans Meier" : "Olga Brandt";
    Officer[o].Land = 5;
  }
  Unit[u].Officer = 1;
  UI.SelX = 4;
  UI.SelY = 4;
  UI.SelSlot = 1;
  mf::OfficerPoolDialog dialog;
  dialog.Prepare(false);
  RunView(dialog, "officerPoolDialog", [&](QDialog* d) {
    auto* points = d->findChild<QLabel*>("points");
    auto* pool = d->findChild<QListWidget*>("pool");
    auto* unitLines = d->findChild<QLabel*>("unitLines");
    auto* assign = d->findChild<QPushButton*>("assign");
    auto* fire = d->findChild<QPushButton*>("fire");
    auto* edit = d->findChild<QWidget*>("editPart");
    auto* close = d->findChild<QPushButton*>("close");
    ASSERT_TRUE(points && pool && unitLines && assign && fire && edit && close);
    EXPECT_EQ(points->text(), "(4pp available)");
    ASSERT_EQ(pool->count(), 1);
    EXPECT_EQ(pool->item(0)->text(), "Olga Brandt");
    EXPECT_EQ(unitLines->text(), "Hans Meier\nLAND: 5\nSEA: 0\nAIR: 0\nFAME: 0\nRETREAT: 0");
    EXPECT_FALSE(fire->isEnabled());
    EXPECT_FALSE(edit->isVisible());
    pool->setCurrentRow(0);
    EXPECT_TRUE(fire->isEnabled());
    assign->click();
    EXPECT_EQ(unitLines->text().section('\n', 0, 0), "Olga Brandt");
    ASSERT_EQ(pool->count(), 1);
    EXPECT_EQ(pool->item(0)->text(), "Hans Meier");
    close->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Unit[u].Officer, 2);
  EXPECT_EQ(Unit[u].Readiness, 45);
}

TEST_F(OrgsViewsTest, TransferWindowShowsCostsAndTransfers) {
  const int shq = world::AddUnit(red, 2, 2, "First Army");
  Unit[shq].Shq = 1;
  Shq[red][1].Unit = shq;
  Shq[red][1].StockType[1] = rifle;
  Shq[red][1].StockQty[1] = 900;
  Shq[red][1].Carry = 2000;
  const int thq = world::AddUnit(red, 2, 3, "Group");
  Unit[thq].Thq = 1;
  Unit[thq].Boss = shq;
  const int dest = world::AddUnit(red, 2, 8, "1st Bataljon", rifle, 100);
  Unit[dest].Boss = thq;
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y) Hex[x][y].Mark = 999;
  Hex[2][8].Mark = 6;
  Hex[2][8].PathLand = 6;
  UI.OrdX = 2;
  UI.OrdY = 2;
  UI.OrdSlot = 1;
  UI.SelX = 2;
  UI.SelY = 8;
  UI.SelSlot = 1;
  UI.Order.TransferOrder = 1;
  mf::TransferDialog dialog;
  dialog.Prepare(false);
  RunView(dialog, "transferDialog", [&](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "TRANSFER");
    auto* stock = d->findChild<QListWidget*>("stock");
    auto* inf = d->findChild<QSlider*>("inf");
    auto* landCost = d->findChild<QLabel*>("landCost");
    auto* landCap = d->findChild<QLabel*>("landCap");
    auto* message = d->findChild<QLabel*>("message");
    auto* transfer = d->findChild<QPushButton*>("transfer");
    ASSERT_TRUE(stock && inf && landCost && landCap && message && transfer);
    ASSERT_EQ(stock->count(), 1);
    EXPECT_EQ(stock->item(0)->text(), "900x Rifles");
    EXPECT_EQ(inf->maximum(), 900);
    EXPECT_EQ(landCap->text(), "2000");
    inf->setValue(900);
    EXPECT_EQ(landCost->text(), "1800");
    EXPECT_EQ(message->text(), "");
    Shq[red][1].Carry = 1000;
    dialog.LandCap = 1000;
    inf->setValue(899);
    inf->setValue(900);
    EXPECT_EQ(landCost->text(), "N/A");
    EXPECT_EQ(message->text(), "You selected too much for transfer!");
    transfer->click();  // refused without a word
    EXPECT_TRUE(dialog.IsOpen());
    inf->setValue(400);  // Int(400 x 6 / 3) = 800
    EXPECT_EQ(landCost->text(), "800");
    transfer->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Unit[dest].InfQty, 500);
  EXPECT_EQ(Shq[red][1].StockQty[1], 500);
  EXPECT_EQ(Shq[red][1].Carry, 200);
  EXPECT_EQ(UI.Order.TransferOrder, 0);
}

TEST_F(OrgsViewsTest, TransferWindowClosedByItsFrameCancels) {
  const int shq = world::AddUnit(red, 2, 2, "First Army");
  Unit[shq].Shq = 1;
  Shq[red][1].Unit = shq;
  const int other = world::AddUnit(red, 2, 2, "Second Army");
  Unit[other].Shq = 2;
  Shq[red][2].Unit = other;
  UI.OrdX = 2;
  UI.OrdY = 2;
  UI.OrdSlot = 1;
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 2;
  UI.Order.TransferOrder = 1;
  mf::TransferDialog dialog;
  dialog.Prepare(false);
  RunView(dialog, "transferDialog", [](QDialog* d) { d->reject(); });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(UI.Order.TransferOrder, 0);
}


TEST_F(OrgsViewsTest, DoubleClickOnTheFormationsNameRenamesIt) {
  const int u = world::AddUnit(red, 4, 4, "1st Bataljon", rifle, 10);
  UI.SelX = 4;
  UI.SelY = 4;
  UI.PrevSelX = 4;
  UI.PrevSelY = 4;
  UI.SelSlot = 1;
  UI.SelCount = 1;
  UI.PanelDirty = true;
  window->SyncWithGame();
  Settle();
  auto* name = window->findChild<QLabel*>("unitName");
  ASSERT_NE(name, nullptr);
  EXPECT_EQ(name->text(), "1st Bataljon");
  platform.QueueAnswer("Iron Guard");
  const QPointF at(2, 2);
  QMouseEvent twice(QEvent::MouseButtonDblClick, at, name->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(name, &twice);
  Settle();
  EXPECT_EQ(Unit[u].Name, "Iron Guard");
  EXPECT_EQ(name->text(), "Iron Guard");
}

}  // namespace
}  // namespace mf::app::test
