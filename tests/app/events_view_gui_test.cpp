// The window of the Event! dialog on the offscreen platform: the story, the
// event's picture, OK or the answers, and the player's press forwarded.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "app_fixture.h"
#include "view_runner.h"
#include "dialog_views.h"
#include "engine/event_dialog.h"
#include "engine/events.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::app::test {
namespace {

namespace world = mf::test::world;

class EventViewTest : public AppTest {
 protected:
  // Runs the view of the dialog; `inside` runs once the window is up. A
  // window still open after two seconds is closed so that a failure cannot hang.
  void RunView(mf::HumbleDialog& dialog, std::function<void(QDialog*)> inside) {
    RunDialogView(dialog, window.get(), "eventDialog", inside);
  }
  int AddEvent(const std::string& story) {
    const int e = static_cast<int>(++Game.EventCount);
    Event[e] = EventRec{};
    Event[e].Story = story;
    return e;
  }
  void SetUp() override {
    AppTest::SetUp();
    world::NewMap(10, 10);
    world::AddRegime("Cantons");
  }
};

TEST_F(EventViewTest, AStoryWithItsPictureClosesWithOk) {
  const int e = AddEvent("The cantons rise.\r\nBonfires burn on every hill.");
  Event[e].Sprite = 2;
  mf::EventDialog dialog;
  dialog.Prepare(e);
  RunView(dialog, [](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Event!");
    auto* story = d->findChild<QPlainTextEdit*>("eventStory");
    ASSERT_NE(story, nullptr);
    EXPECT_EQ(story->toPlainText(), "The cantons rise.\nBonfires burn on every hill.");
    auto* picture = d->findChild<QLabel*>("eventPicture");
    ASSERT_NE(picture, nullptr);
    EXPECT_FALSE(picture->isHidden());
    // The town picture the build drew as event2.bmp.
    EXPECT_FALSE(picture->pixmap().isNull());
    for (int c = 1; c <= 5; ++c) EXPECT_EQ(d->findChild<QPushButton*>(QString("choice%1").arg(c)), nullptr);
    auto* ok = d->findChild<QPushButton*>("eventOk");
    ASSERT_NE(ok, nullptr);
    EXPECT_EQ(ok->text(), "OK");
    EXPECT_TRUE(ok->isEnabled());
    const std::filesystem::path dir(MF_SCREENSHOT_DIR);
    std::filesystem::create_directories(dir);
    EXPECT_TRUE(d->grab().toImage().save(QString::fromStdString((dir / "event_story.png").string()), "PNG"));
    ok->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.chosen, 0);
}

TEST_F(EventViewTest, AnEventWithoutAPictureShowsNone) {
  const int e = AddEvent("News without a picture.");
  mf::EventDialog dialog;
  dialog.Prepare(e);
  RunView(dialog, [](QDialog* d) {
    auto* picture = d->findChild<QLabel*>("eventPicture");
    ASSERT_NE(picture, nullptr);
    EXPECT_TRUE(picture->isHidden());
    d->findChild<QPushButton*>("eventOk")->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(EventViewTest, AChoiceIsAnsweredByItsButton) {
  const int e = AddEvent("How shall the army be filled?");
  Event[e].Type = mf::kEventChoice;
  Event[e].Sprite = 8;
  Event[e].Data[2] = 6;   // the second answer raises book variable 6
  Event[e].Data[7] = 11;  // by 11
  Event[e].DataText[1] = "Call up the valley farmers";
  Event[e].DataText[2] = "Raise a war tax instead";
  Event[e].DataText[3] = "-";  // one character: no button
  mf::EventDialog dialog;
  dialog.Prepare(e);
  RunView(dialog, [](QDialog* d) {
    auto* ok = d->findChild<QPushButton*>("eventOk");
    ASSERT_NE(ok, nullptr);
    EXPECT_FALSE(ok->isEnabled());
    // The frame's close button answers nothing.
    d->reject();
    EXPECT_TRUE(d->isVisible());
    auto* first = d->findChild<QPushButton*>("choice1");
    auto* second = d->findChild<QPushButton*>("choice2");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(first->text(), "Call up the valley farmers");
    EXPECT_EQ(second->text(), "Raise a war tax instead");
    EXPECT_EQ(d->findChild<QPushButton*>("choice3"), nullptr);
    const std::filesystem::path dir(MF_SCREENSHOT_DIR);
    std::filesystem::create_directories(dir);
    EXPECT_TRUE(d->grab().toImage().save(QString::fromStdString((dir / "event_choice.png").string()), "PNG"));
    second->click();
  });
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.chosen, 2);
  EXPECT_EQ(Game.BookVar[6], 11);
}

}  // namespace
}  // namespace mf::app::test
