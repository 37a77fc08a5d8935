// The window of the Urban Production dialog on the offscreen platform: it
// shows the lists in a fixed-pitch font, keeps the change buttons off until a
// row is clicked, forwards the clicks, and closes by the dialog's close rule.
#include <QApplication>
#include <QDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "dialog_views.h"
#include "engine/urban_production_dialog.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class EconViewsTest : public AppTest {
 protected:
  void SetUp() override {
    AppTest::SetUp();
    world::NewMap(10, 10);
    world::AddRegime("Red");
    Game.CurRegime = 1;
    Game.Turn = 2;
    UI.EditMode = 0;
    Regime[1].OwnPeople = 1;
    for (const char* name : {"Rifles", "Tanks"}) {
      const int t = world::AddType(name, kLandTheater, 1);
      Type[t].Cost = t == 1 ? 100 : 1000;
      Type[t].Living[1] = 1;
      Type[t].Owning[1] = 1;
    }
    Hex[5][5].Land = kUrban;
    Hex[5][5].Owner = 1;
    Hex[5][5].Pop = 300;
    Hex[5][5].People = 1;
    Hex[5][5].UrbanName = "Marrowby";
    shq = world::AddUnit(1, 2, 2, "First Army");
    Unit[shq].Shq = 1;
    Shq[1][1].Unit = shq;
  }

  // Runs the view; `inside` runs once the window is up. A window still open
  // after two seconds is closed so that a failure cannot hang.
  void RunView(mf::UrbanProductionDialog& dialog, std::function<void(QDialog*)> inside) {
    RunDialogView(dialog, window.get(), "urbanProductionDialog", inside);
  }

  int shq = 0;
};

TEST_F(EconViewsTest, TheProductionWindowShowsTheTownAndChangesItsProduction) {
  mf::UrbanProductionDialog dialog;
  dialog.Prepare(5, 5);
  RunView(dialog, [&](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Urban Production");
    auto* town = d->findChild<QLabel*>("town");
    auto* prod = d->findChild<QLabel*>("prod");
    auto* types = d->findChild<QListWidget*>("types");
    auto* changeProd = d->findChild<QPushButton*>("changeProd");
    auto* estimate = d->findChild<QLabel*>("estimate");
    auto* close = d->findChild<QPushButton*>("close");
    ASSERT_TRUE(town && prod && types && changeProd && estimate && close);
    EXPECT_EQ(town->text(), "Marrowby");
    EXPECT_EQ(prod->text(), "Political Points");
    ASSERT_EQ(types->count(), 2);
    EXPECT_EQ(types->item(0)->text(), "Rifles              100");
    EXPECT_EQ(types->item(1)->text(), "Tanks               1000");
    // The rows are padded for a fixed-pitch font: narrow and wide letters
    // take the same room.
    const QFontMetrics metrics(types->font());
    EXPECT_EQ(metrics.horizontalAdvance("iiiiiiiiii"), metrics.horizontalAdvance("MMMMMMMMMM"));
    EXPECT_EQ(types->currentRow(), 0);
    EXPECT_FALSE(changeProd->isEnabled());
    // A click on Tanks: the estimate, and the button comes on.
    types->setCurrentRow(1);
    EXPECT_EQ(estimate->text(), "4 turns");
    EXPECT_TRUE(changeProd->isEnabled());
    changeProd->click();
    EXPECT_EQ(prod->text(), "Tanks");
    close->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Hex[5][5].Prod, 2);
  // The close rule gave the town the first SHQ.
  EXPECT_EQ(Hex[5][5].ProdSHQ, shq);
}

TEST_F(EconViewsTest, ClosingTheWindowByItsFrameKeepsTheCloseRule) {
  mf::UrbanProductionDialog dialog;
  dialog.Prepare(5, 5);
  RunView(dialog, [](QDialog* d) { d->reject(); });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Hex[5][5].ProdSHQ, shq);
}

}  // namespace
}  // namespace mf::app::test
