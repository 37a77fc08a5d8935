// The windows of the Status and Info dialogs on the offscreen platform: they
// show the reports that core writes and forward the player's clicks; the
// Game menu and F3 open the Status dialog.
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "app_fixture.h"
#include "view/status_dialog.h"
#include "engine/type_info_dialog.h"
#include "engine/supply.h"
#include "model/game_state.h"
#include "support/core_test.h"
#include "view_runner.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

std::vector<std::string> Rows(QListWidget* list) {
  std::vector<std::string> rows;
  for (int i = 0; i < list->count(); ++i) rows.push_back(list->item(i)->text().toStdString());
  return rows;
}

class EditorViewsTest : public AppTest {
 protected:
  // Red with an SHQ, a THQ under it and a formation under the THQ.
  void SmallArmy() {
    world::NewMap(10, 10);
    world::AddRegime("Red");
    rifles = world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Cost = 100;
    Type[rifles].Attr[kWeight] = 1;
    Type[rifles].Attr[kSoftAttack] = 12;
    const int shq = world::AddShq(1, 2, 2, 1, "First Army");
    Shq[1][1].StockType[1] = rifles;
    Shq[1][1].StockQty[1] = 30;
    const int thq = world::AddThq(1, 3, 2, shq, "1st Corps");
    const int f = world::AddUnit(1, 4, 2, "Able", rifles, 10);
    Unit[f].Boss = thq;
    Game.CurRegime = 1;
    Game.Turn = 1;
    UI.EditMode = 0;
    mf::ServeSupply();
  }
  int rifles = 0;
};

TEST_F(EditorViewsTest, TheStatusWindowShowsEachReportItsButtonAsks) {
  SmallArmy();
  UI.SelX = 4;
  UI.SelY = 2;
  mf::StatusDialog dialog;
  dialog.Prepare();
  dialog.HexButton();  // the window remembers the last report: start on the hex
  RunDialogView(dialog, window.get(), "statusDialog", [&](QDialog* d) {
    auto* list = d->findChild<QListWidget*>("report");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(Rows(list), (std::vector<std::string>{"HEX STATUS 4,2", "Hex is supplied by First Army",
                                                    "   -distance: 2"}));
    auto* supply = d->findChild<QPushButton*>("supply");
    ASSERT_NE(supply, nullptr);
    EXPECT_EQ(supply->text(), "Supply&&Prod");  // shown as "Supply&Prod"
    d->findChild<QPushButton*>("oob")->click();
    EXPECT_EQ(Rows(list), (std::vector<std::string>{"YOUR ORDER OF BATTLE: (OOB)", "SHQ: First Army", "30x Rifles",
                                                    "......THQ: 1st Corps", "............: Able"}));
    KeepPicture(d, "status_oob.png");
    d->findChild<QPushButton*>("copy")->click();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), dialog.Text());
    supply->click();
    EXPECT_EQ(dialog.report, 3);
    EXPECT_EQ(Rows(list).front(), "CURRENT PRODUCTION:");
    d->findChild<QPushButton*>("exit")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EditorViewsTest, TheInfoWindowShowsTitleAndAbilities) {
  SmallArmy();
  mf::TypeInfoDialog dialog;
  dialog.Prepare(rifles);
  RunDialogView(dialog, window.get(), "infoDialog", [&](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Rifles (100)");
    EXPECT_EQ(d->findChild<QLabel*>("title")->text(), "Rifles (100)");
    EXPECT_EQ(Rows(d->findChild<QListWidget*>("lines")),
              (std::vector<std::string>{"INFANTRY", "Weight = 1", "Soft Attack = 12"}));
    KeepPicture(d, "info_rifles.png");
    d->findChild<QPushButton*>("close")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EditorViewsTest, TheGameMenuAndF3OpenTheStatusDialog) {
  SmallArmy();
  UI.SelX = 0;
  UI.SelY = 0;
  QAction* status = window->action("status");
  ASSERT_NE(status, nullptr);
  EXPECT_EQ(status->text(), "Status...");
  EXPECT_EQ(status->shortcut(), QKeySequence(Qt::Key_F3));
  Settle();
  EXPECT_TRUE(status->isEnabled());
  // Unattended, the dialog opens on the hex report and leaves by default.
  status->trigger();
  ASSERT_EQ(platform.Messages().size(), 1u);
  EXPECT_EQ(platform.Messages().back(), "No hex selected before going to status report.");
  PressKey(Qt::Key_F3);
  EXPECT_EQ(platform.Messages().size(), 2u);
}

}  // namespace
}  // namespace mf::app::test
