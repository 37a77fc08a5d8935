// The Event! dialog: story, picture, OK or the choice buttons, and what
// pressing them does.
#include "events_test_util.h"

namespace mf::test {
namespace {

using EventDialogTest = EventsTest;

int ChoiceEvent(int r) {
  const int e = static_cast<int>(++Game.EventCount);
  Event[e] = EventRec{};
  Event[e].Story = "The council asks how the army shall be filled.";
  Event[e].Type = kEventChoice;
  Event[e].ShowReg1 = r;
  Event[e].Sprite = 8;
  for (int c = 1; c <= 5; ++c) {
    Event[e].Data[c] = c;        // choice c raises book variable c
    Event[e].Data[c + 5] = 10 * c;  // by 10 c
  }
  Event[e].DataText[1] = "Call up the valley farmers";
  Event[e].DataText[2] = "Raise a war tax instead";
  Event[e].DataText[3] = "";
  Event[e].DataText[4] = "X";  // one character: no button
  Event[e].DataText[5] = "Do nothing";
  return e;
}

TEST_F(EventDialogTest, AStoryWithItsPictureAndOk) {
  const int e = AddEvent("The cantons rise.\r\nBonfires burn on every hill.");
  Event[e].Sprite = 2;
  EventDialog d;
  d.Prepare(e);
  EXPECT_TRUE(d.IsOpen());
  EXPECT_EQ(d.DialogName(), "event");
  EXPECT_EQ(d.caption, "Event!");
  EXPECT_EQ(d.story, "The cantons rise.\r\nBonfires burn on every hill.");
  EXPECT_EQ(d.picture, 2002);
  EXPECT_EQ(d.okCaption, "OK");
  EXPECT_TRUE(d.okEnabled);
  EXPECT_FALSE(d.mainWindowEnabled);
  for (int c = 0; c < EventDialog::kChoices; ++c) EXPECT_FALSE(d.choiceShown[c]) << c;
  EXPECT_EQ(d.DefaultAction(), "ok");
  std::string why;
  EXPECT_TRUE(d.Act("ok", "", &why));
  EXPECT_FALSE(d.IsOpen());
  EXPECT_TRUE(d.mainWindowEnabled);
  EXPECT_EQ(d.chosen, 0);
}

TEST_F(EventDialogTest, PictureNumbersRunFromEventOneToEventHundred) {
  const int e = AddEvent();
  EventDialog d;
  Event[e].Sprite = 0;
  d.Prepare(e);
  EXPECT_EQ(d.picture, 0);
  Event[e].Sprite = 100;
  d.Prepare(e);
  EXPECT_EQ(d.picture, 2100);
  Event[e].Sprite = 101;
  d.Prepare(e);
  EXPECT_EQ(d.picture, 0);
}

TEST_F(EventDialogTest, AChoiceEventShowsItsAnswersAndNoOk) {
  const int e = ChoiceEvent(red);
  EventDialog d;
  d.Prepare(e);
  EXPECT_FALSE(d.okEnabled);
  const bool shown[5] = {true, true, false, false, true};
  for (int c = 0; c < 5; ++c) EXPECT_EQ(d.choiceShown[c], shown[c]) << c + 1;
  EXPECT_EQ(d.choiceCaption[0], "Call up the valley farmers");
  EXPECT_EQ(d.choiceCaption[1], "Raise a war tax instead");
  EXPECT_EQ(d.choiceCaption[4], "Do nothing");
  EXPECT_EQ(d.picture, 2008);
  EXPECT_EQ(d.DefaultAction(), "choice=1");
}

TEST_F(EventDialogTest, OkCannotCloseAChoice) {
  const int e = ChoiceEvent(red);
  EventDialog d;
  d.Prepare(e);
  std::string why;
  EXPECT_FALSE(d.Act("ok", "", &why));
  EXPECT_EQ(why, "the button OK is disabled: the event waits for one of its choices");
  EXPECT_TRUE(d.IsOpen());
}

TEST_F(EventDialogTest, AChoiceButtonAppliesItsChoiceAndCloses) {
  const int e = ChoiceEvent(red);
  EventDialog d;
  d.Prepare(e);
  std::string why;
  EXPECT_TRUE(d.Act("choice", "5", &why)) << why;
  EXPECT_FALSE(d.IsOpen());
  EXPECT_EQ(d.chosen, 5);
  EXPECT_EQ(Game.BookVar[5], 50);
  EXPECT_EQ(Game.BookVar[1], 0);
}

TEST_F(EventDialogTest, OnlyShownAnswersCanBeChosen) {
  const int e = ChoiceEvent(red);
  EventDialog d;
  d.Prepare(e);
  std::string why;
  EXPECT_FALSE(d.Act("choice", "4", &why));
  EXPECT_EQ(why, "the event offers no choice 4");
  EXPECT_FALSE(d.Act("choice", "3", &why));
  EXPECT_FALSE(d.Act("choice", "6", &why));
  EXPECT_EQ(why, "choice takes a number 1..5, not \"6\"");
  EXPECT_FALSE(d.Act("choice", "", &why));
  EXPECT_FALSE(d.Act("maybe", "", &why));
  EXPECT_EQ(why, "no action \"maybe\" in the Event! dialog (ok, choice=N)");
  EXPECT_TRUE(d.IsOpen());
  for (int b = 0; b <= 5; ++b) EXPECT_EQ(Game.BookVar[b], 0) << b;
}

TEST_F(EventDialogTest, TheDefaultIsTheFirstAnswerShown) {
  const int e = ChoiceEvent(red);
  Event[e].DataText[1] = "";
  EventDialog d;
  d.Prepare(e);
  EXPECT_EQ(d.DefaultAction(), "choice=2");
  std::string why;
  EXPECT_TRUE(d.Act(d.DefaultAction(), "", &why)) << why;
  EXPECT_EQ(Game.BookVar[2], 20);
}

TEST_F(EventDialogTest, AChoiceEventWithoutAnswersKeepsOk) {
  const int e = ChoiceEvent(red);
  for (int c = 1; c <= 5; ++c) Event[e].DataText[c] = "";
  EventDialog d;
  d.Prepare(e);
  EXPECT_TRUE(d.okEnabled);
  EXPECT_EQ(d.DefaultAction(), "ok");
  std::string why;
  EXPECT_TRUE(d.Act("ok", "", &why));
  for (int b = 0; b <= 5; ++b) EXPECT_EQ(Game.BookVar[b], 0) << b;
}

TEST_F(EventDialogTest, OtherTypesShowOkEvenWithButtonTexts) {
  const int e = AddEvent();
  Event[e].Type = kEventLoadFile;
  Event[e].DataText[1] = "ashfall2.mf2";
  EventDialog d;
  d.Prepare(e);
  EXPECT_TRUE(d.okEnabled);
  for (int c = 0; c < EventDialog::kChoices; ++c) EXPECT_FALSE(d.choiceShown[c]) << c;
}

TEST_F(EventDialogTest, DoShowEventTakesThePlayersChoice) {
  const int e = ChoiceEvent(red);
  watcher.QueueDialog("event", {{"choice", "2"}});
  DoShowEvent(e);
  ASSERT_EQ(ShownEvents(), std::vector<int>{e});
  EXPECT_EQ(Game.BookVar[2], 20);
  EXPECT_EQ(Game.BookVar[1], 0);
  EXPECT_EQ(UI.PendingFile, "");
}

TEST_F(EventDialogTest, DoShowEventWithNothingQueuedTakesTheFirstChoice) {
  const int e = ChoiceEvent(red);
  DoShowEvent(e);
  EXPECT_EQ(Game.BookVar[1], 10);
}

TEST_F(EventDialogTest, AFileEventNamesTheNextFileWhenShown) {
  const int e = AddEvent("Cinderbridge has fallen!");
  Event[e].Type = kEventLoadFile;
  Event[e].DataText[1] = "ashfall2.mf2";
  DoShowEvent(e);
  EXPECT_EQ(UI.PendingFile, "ashfall2.mf2");
  // Shown again later it names it again; other types leave it alone.
  UI.PendingFile.clear();
  const int story = AddEvent();
  DoShowEvent(story);
  EXPECT_EQ(UI.PendingFile, "");
}

}  // namespace
}  // namespace mf::test
