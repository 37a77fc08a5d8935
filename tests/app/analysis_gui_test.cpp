// The analysis list beside the map: the lines of the computer player's
// turns are appended as they are written, F11 shows and hides it outside the
// editor, and its lines can be selected and copied.
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include "ai/analysis_log.h"
#include "analysis_panel.h"
#include "app_fixture.h"
#include "map_widget.h"
#include "model/game_state.h"

namespace mf::app::test {
namespace {

class AnalysisPanelTest : public AppTest {
 protected:
  AnalysisPanel* Panel() { return window->findChild<AnalysisPanel*>("aiLog"); }
};

TEST_F(AnalysisPanelTest, LinesAreAppendedTurnAfterTurn) {
  AnalysisPanel* panel = Panel();
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(panel->count(), 0);
  mf::AILog("**************");
  mf::AILog("AI: Red");
  mf::AILog("FRONT (27) :Ashby <--> Brill");
  mf::AILog("AI: Blue");
  ASSERT_EQ(panel->count(), 4);
  EXPECT_EQ(panel->item(1)->text(), "AI: Red");
  EXPECT_EQ(panel->item(3)->text(), "AI: Blue");
}

TEST_F(AnalysisPanelTest, F11ShowsItBesideTheMapOutsideTheEditor) {
  AnalysisPanel* panel = Panel();
  ASSERT_NE(panel, nullptr);
  UI.EditMode = 0;
  window->SyncWithGame();
  Settle();
  EXPECT_FALSE(panel->isVisible());
  PressKey(Qt::Key_F11);
  Settle();
  ASSERT_TRUE(panel->isVisible());
  // Beside the map, not under it: the two share a row.
  const QRect map = window->mapWidget()->geometry();
  const QRect list = panel->geometry();
  EXPECT_GE(list.left(), map.right());
  EXPECT_LT(list.top(), map.bottom());
  EXPECT_GT(list.height(), map.height() / 2);
  PressKey(Qt::Key_F11);
  Settle();
  EXPECT_FALSE(panel->isVisible());
}

TEST_F(AnalysisPanelTest, SelectedLinesAreCopiedInTheirOrder) {
  AnalysisPanel* panel = Panel();
  ASSERT_NE(panel, nullptr);
  for (const char* line : {"OPERATIONS:", "Fr(909/1000) :Ashby<>Brill", "FULL OFFENSIVE", "->1st( 909"})
    mf::AILog(line);
  panel->item(3)->setSelected(true);
  panel->item(1)->setSelected(true);
  EXPECT_EQ(panel->SelectedText(), "Fr(909/1000) :Ashby<>Brill\n->1st( 909");
  QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
  QApplication::sendEvent(panel, &copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "Fr(909/1000) :Ashby<>Brill\n->1st( 909");
  panel->clearSelection();
  panel->CopySelection();
  EXPECT_EQ(QApplication::clipboard()->text(), "OPERATIONS:\nFr(909/1000) :Ashby<>Brill\nFULL OFFENSIVE\n->1st( 909");
}

}  // namespace
}  // namespace mf::app::test
