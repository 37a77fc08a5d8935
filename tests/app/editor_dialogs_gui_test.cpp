// The windows of the four editors on the offscreen platform: each shows
// what its dialog holds, forwards the designer's edits, and is on the Edit
// menu only while a map is being edited.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

#include "app_fixture.h"
#include "editor/current_unit_dialog.h"
#include "editor/general_dialog.h"
#include "editor/regimes_dialog.h"
#include "editor/types_dialog.h"
#include "model/game_state.h"
#include "support/core_test.h"
#include "view_runner.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

void Enter(QLineEdit* edit, const QString& text) {
  edit->setFocus();
  edit->setText(text);
  edit->setModified(true);
  emit edit->editingFinished();
}

class EditorDialogsTest : public AppTest {
 protected:
  void SmallWorld() {
    world::NewMap(10, 10);
    world::AddRegime("Red");
    rifles = world::AddType("Rifles", kLandTheater, 1);
    frigate = world::AddType("Frigate", kSeaTheater, 1);
    Game.PeopleCount = 1;
    People[1].Name = "Hillfolk";
    unit = world::AddUnit(1, 3, 3, "Guards", rifles, 10);
    UI.EditMode = 1;
    Game.Turn = 0;
  }
  int rifles = 0, frigate = 0, unit = 0;
};

TEST_F(EditorDialogsTest, TheTypesWindowFiltersAndRefusesWhatTheRulesForbid) {
  SmallWorld();
  mf::TypesDialog dialog;
  dialog.Prepare();
  RunDialogView(dialog, window.get(), "typesDialog", [&](QDialog* d) {
    auto* list = d->findChild<QListWidget*>("types");
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), "1) Inf Rifles");
    d->findChild<QLineEdit*>("filter")->setText("fri");
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), "2) War Frigate");
    list->setCurrentRow(0);
    EXPECT_EQ(dialog.selected, frigate);
    // A warship may not have soft attack: the box springs back.
    auto* soft = d->findChild<QLineEdit*>("attr4");
    Enter(soft, "5");
    EXPECT_EQ(soft->text(), "0");
    EXPECT_EQ(platform.Messages().back(), "Naval unittype types don't use soft att, soft def, hard att, hard def.");
    Enter(d->findChild<QLineEdit*>("attr15"), "12");
    EXPECT_EQ(mf::Type[frigate].Attr[15], 12);
    d->findChild<QLineEdit*>("filter")->setText("");
    KeepPicture(d, "types.png");
    d->findChild<QPushButton*>("new")->click();
    EXPECT_EQ(Game.TypeCount, 3);
    EXPECT_EQ(list->count(), 3);
    d->findChild<QPushButton*>("close")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EditorDialogsTest, TheRegimesWindowChecksTheNameAndEditsPeoples) {
  SmallWorld();
  mf::RegimesDialog dialog;
  dialog.Prepare();
  RunDialogView(dialog, window.get(), "regimesDialog", [&](QDialog* d) {
    auto* name = d->findChild<QLineEdit*>("name");
    EXPECT_EQ(name->text(), "Red");
    Enter(name, "A Very Long Name");
    EXPECT_EQ(platform.Messages().back(), "Max 13 characters");
    EXPECT_EQ(name->text(), "Red");
    Enter(d->findChild<QLineEdit*>("hexcolor"), "4");
    EXPECT_EQ(mf::Regime[1].HexSprite, 4);
    platform.QueueAnswer("#00ff00");
    d->findChild<QPushButton*>("colour")->click();
    EXPECT_EQ(mf::Regime[1].TextColor, "&Hff00");
    EXPECT_EQ(d->findChild<QLabel*>("colourText")->text(), "&Hff00");
    auto* first = d->findChild<QListWidget*>("firstnames");
    ASSERT_EQ(first->count(), 300);
    first->item(4)->setText("Edda");
    EXPECT_EQ(mf::People[1].FirstName[5], "Edda");
    KeepPicture(d, "regimes.png");
    d->findChild<QPushButton*>("close")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EditorDialogsTest, TheCurrentUnitWindowSetsAClassAndAField) {
  SmallWorld();
  mf::CurrentUnitDialog dialog;
  dialog.Prepare(unit);
  RunDialogView(dialog, window.get(), "currentUnitDialog", [&](QDialog* d) {
    EXPECT_EQ(d->findChild<QLabel*>("number")->text(), QString("Unit # = %1").arg(unit));
    auto* classes = d->findChild<QListWidget*>("classes");
    ASSERT_EQ(classes->count(), 8);
    EXPECT_EQ(classes->item(0)->text(), "INFTYPE = 1 (Rifles)");
    d->findChild<QListWidget*>("types")->setCurrentRow(0);
    d->findChild<QLineEdit*>("qty")->setText("25");
    d->findChild<QPushButton*>("setclass")->click();
    EXPECT_EQ(mf::Unit[unit].InfQty, 25);
    EXPECT_EQ(classes->item(1)->text(), "INFQTY = 25");
    EXPECT_FALSE(d->findChild<QPushButton*>("stock")->isEnabled());
    auto* table = d->findChild<QTableWidget*>("fields");
    int readiness = -1;
    for (int r = 0; r < table->rowCount(); ++r)
      if (table->item(r, 0)->text() == "Readiness") readiness = r;
    ASSERT_GE(readiness, 0);
    table->item(readiness, 1)->setText("42");
    EXPECT_EQ(mf::Unit[unit].Readiness, 42);
    QCoreApplication::processEvents();
    KeepPicture(d, "current_unit.png");
    d->findChild<QPushButton*>("close")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EditorDialogsTest, TheGeneralWindowMarksChangedVariablesAndFilters) {
  SmallWorld();
  EngineVar[533].Value = 5;
  mf::GeneralDialog dialog;
  dialog.Prepare();
  RunDialogView(dialog, window.get(), "generalDialog", [&](QDialog* d) {
    auto* list = d->findChild<QListWidget*>("engineVars");
    d->findChild<QLineEdit*>("filter")->setText("combat rounds");
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), "------------------- 12-------------------");
    EXPECT_EQ(list->item(1)->text(), "* 5     Number of combat rounds  (default 3)");
    d->findChild<QLineEdit*>("filter")->setText("");
    KeepPicture(d, "general.png");
    auto* event = d->findChild<QLineEdit*>("event");
    event->setText("250");
    emit event->returnPressed();
    EXPECT_EQ(platform.Messages().back(), "Please fill in a valid number.");
    event->setText("3");
    emit event->returnPressed();
    EXPECT_EQ(dialog.event, 3);
    EXPECT_EQ(d->findChild<QListWidget*>("data")->item(0)->text(), "1) = 0");
    d->findChild<QPushButton*>("close")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EditorDialogsTest, TheEditMenuHoldsTheEditorsWhileAMapIsEdited) {
  SmallWorld();
  window->SyncWithGame();
  for (const char* name : {"general", "regimes", "types"}) {
    ASSERT_NE(window->action(name), nullptr) << name;
    EXPECT_TRUE(window->action(name)->isEnabled()) << name;
  }
  // The unit editor needs a selected formation.
  EXPECT_FALSE(window->action("currentunit")->isEnabled());
  UI.SelX = 3;
  UI.SelY = 3;
  UI.SelSlot = 1;
  window->SyncWithGame();
  EXPECT_TRUE(window->action("currentunit")->isEnabled());
  // In play the editors are off, the reports on.
  UI.EditMode = 0;
  Game.Turn = 1;
  window->SyncWithGame();
  EXPECT_FALSE(window->action("types")->isEnabled());
  EXPECT_TRUE(window->action("status")->isEnabled());
}

}  // namespace
}  // namespace mf::app::test
