// The windows of the Diplomatics and Research dialogs on the offscreen
// platform: they show what the dialog holds and forward the player's clicks.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "dialog_views.h"
#include "engine/diplomatics_dialog.h"
#include "engine/research_dialog.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class DipResViewsTest : public AppTest {
 protected:
  // Runs the view of a dialog; `inside` runs once the window is up. A window
  // still open after two seconds is closed so that a failure cannot hang.
  void RunView(mf::HumbleDialog& dialog, const char* windowName, std::function<void(QDialog*)> inside) {
    RunDialogView(dialog, window.get(), windowName, inside);
  }
  void ThreeRegimes() {
    world::NewMap(10, 10);
    world::AddRegime("Red");
    world::AddRegime("Blue");
    world::AddRegime("Green");
    for (int r = 1; r <= 3; ++r) Regime[r].HexSprite = r;
  }
};

TEST_F(DipResViewsTest, TheDiplomaticsWindowShowsTheRowsAndMakesPeace) {
  ThreeRegimes();
  Game.CurRegime = 1;
  Game.Turn = 4;
  Regime[1].PP = 60;
  Dip[1][2].Cost = Dip[2][1].Cost = 40;  // at war, peace for 40
  mf::DiplomaticsDialog dialog;
  dialog.Prepare(1, false);
  RunView(dialog, "diplomaticsDialog", [&](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Diplomatics");
    EXPECT_EQ(d->findChild<QLabel*>("title")->text(), "Red relations:");
    auto* text2 = d->findChild<QLabel*>("text2");
    auto* row1 = d->findChild<QPushButton*>("row1");
    auto* row2 = d->findChild<QPushButton*>("row2");
    auto* row3 = d->findChild<QPushButton*>("row3");
    auto* row4 = d->findChild<QPushButton*>("row4");
    ASSERT_TRUE(text2 && row1 && row2 && row3 && row4);
    EXPECT_FALSE(row1->isVisible());  // Red's own place
    EXPECT_EQ(text2->text(), "At war with Blue");
    EXPECT_TRUE(row2->isVisible());
    EXPECT_EQ(row2->text(), "Make Peace for 40 PP");
    EXPECT_TRUE(row2->isEnabled());
    EXPECT_FALSE(row3->isVisible());  // Green's price is 999
    EXPECT_FALSE(row4->isVisible());  // no fourth regime
    EXPECT_FALSE(d->findChild<QLabel*>("picture2")->pixmap().isNull());
    KeepPicture(d, "diplomatics.png");
    row2->click();
    EXPECT_EQ(text2->text(), "At peace with Blue");
    EXPECT_EQ(row2->text(), "Declare War for 80 PP");
    EXPECT_FALSE(row2->isEnabled());  // 20 points left
    d->findChild<QPushButton*>("close")->click();
    EXPECT_FALSE(d->isVisible());
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Dip[2][1].Relation, 1);
  EXPECT_EQ(Regime[1].PP, 20);
  EXPECT_EQ(platform.Messages(), std::vector<std::string>{"PEACE IS MADE!!! You are now at peace with Blue"});
}

TEST_F(DipResViewsTest, TheResearchWindowSelectsAndBuys) {
  ThreeRegimes();
  Game.CurRegime = 2;
  Regime[2].PP = 70;
  Research[1].Name = "Rifles";
  Research[1].Cost = 30;
  Research[1].Text = "Better rifles.";
  Research[2].Name = "Tanks";
  Research[2].Cost = 50;
  Research[2].Need1 = 1;
  Research[3].Name = "Radio";
  Regime[2].Research[3] = 1;
  mf::ResearchDialog dialog;
  dialog.Prepare(2, false);
  RunView(dialog, "researchDialog", [&](QDialog* d) {
    auto* known = d->findChild<QListWidget*>("known");
    auto* offer = d->findChild<QListWidget*>("offer");
    auto* points = d->findChild<QLabel*>("points");
    ASSERT_TRUE(known && offer && points);
    ASSERT_EQ(known->count(), 1);
    EXPECT_EQ(known->item(0)->text(), "Radio");
    ASSERT_EQ(offer->count(), 2);
    EXPECT_EQ(offer->item(0)->text(), "Rifles (30)");
    EXPECT_EQ(offer->item(1)->text(), "***Tanks (50)");
    EXPECT_EQ(points->text(), "(70pp available)");
    EXPECT_FALSE(d->findChild<QWidget*>("editPart")->isVisible());
    offer->setCurrentRow(1);
    EXPECT_EQ(d->findChild<QLabel*>("detailName")->text(), "Tanks (50)");
    EXPECT_EQ(d->findChild<QLabel*>("detailNeed1")->text(), "NEED1: Rifles");
    EXPECT_EQ(d->findChild<QLabel*>("detailNumber")->text(), "NR: 2");
    d->findChild<QPushButton*>("buy")->click();
    offer->setCurrentRow(0);
    EXPECT_EQ(d->findChild<QLabel*>("detailText")->text(), "Better rifles.");
    d->findChild<QPushButton*>("buy")->click();
    EXPECT_EQ(points->text(), "(40pp available)");
    KeepPicture(d, "research.png");
    ASSERT_EQ(known->count(), 2);
    EXPECT_EQ(known->item(0)->text(), "Rifles");
    EXPECT_EQ(known->currentRow(), 0);
    ASSERT_EQ(offer->count(), 1);
    EXPECT_EQ(offer->item(0)->text(), "Tanks (50)");
    d->reject();  // Esc closes as Close does
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Regime[2].Research[1], 1);
  EXPECT_EQ(Regime[2].PP, 40);
  EXPECT_EQ(platform.Messages(),
            (std::vector<std::string>{"You dont have Resneed1", "You gained a research field"}));
}

TEST_F(DipResViewsTest, TheResearchWindowShowsTheEditorsButtonsInTheEditor) {
  ThreeRegimes();
  Research[7].Name = "Optics";
  Research[7].Cost = 15;
  mf::ResearchDialog dialog;
  dialog.Prepare(1, true);
  RunView(dialog, "researchDialog", [&](QDialog* d) {
    EXPECT_TRUE(d->findChild<QWidget*>("editPart")->isVisible());
    KeepPicture(d, "research_editor.png");
    auto* offer = d->findChild<QListWidget*>("offer");
    offer->setCurrentRow(0);
    auto* cost = d->findChild<QLineEdit*>("cost");
    EXPECT_EQ(cost->text(), "15");
    cost->setFocus();
    cost->selectAll();
    cost->insert("25");
    emit cost->editingFinished();
    EXPECT_EQ(offer->item(0)->text(), "Optics (25)");
    d->findChild<QPushButton*>("wipe")->click();
    EXPECT_EQ(offer->count(), 0);
    d->findChild<QPushButton*>("close")->click();
  });
  EXPECT_EQ(Research[7].Cost, 0);
  EXPECT_EQ(Research[7].Name, "");
}

}  // namespace
}  // namespace mf::app::test
