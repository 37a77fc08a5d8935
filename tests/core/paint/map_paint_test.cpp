// Painting the map in the editor: the three buttons and their messages,
// what each brush changes and leaves alone, the town questions, strokes by
// dragging, and undo and redo.
#include "editor/map_paint.h"

#include "model/game_state.h"
#include "control/order_state.h"
#include "support/core_test.h"
#include "control/selection.h"

namespace mf::test {
namespace {

class MapPaintTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    world::NewMap(12, 12);
    red = world::AddRegime("Red");
    blue = world::AddRegime("Blue");
    UI.EditMode = 1;
    UI.ShowEditorPanel = true;
    PaintTools = PaintToolsRec{};
    ForgetPaintStrokes();
    for (int x = 1; x <= 12; ++x)
      for (int y = 1; y <= 12; ++y) Hex[x][y].Owner = red;
    Hex[6][6].Land = kSea;
    Hex[6][6].Owner = 0;
  }
  void TearDown() override {
    EndPainting();
    ForgetPaintStrokes();
    CoreTest::TearDown();
  }
  void Regime(const std::string& box) {
    SetPaintRegimeBox(box);
    PressRegimePaint();
  }
  void Type(int row) {
    SelectPaintRow(row);
    PressTypePaint();
  }
  // A press and release on a hex, as the map gives it.
  void Click(int x, int y) {
    ClickMap(x, y, kLeftButton);
    EndPaintStroke();
  }
  // A town on (x, y): all the fields a brush clears.
  void Town(int x, int y) {
    HexRec& h = Hex[x][y];
    h.Land = kUrban;
    h.Pop = 3000;
    h.Prod = 2;
    h.People = 3;
    h.ProdSHQ = 7;
    h.UrbanName = "Harbour";
  }
  int red = 0, blue = 0;
};

// ---- The regime brush ------------------------------------------------------------

TEST_F(MapPaintTest, TheRegimeButtonWantsAValidNumber) {
  EXPECT_EQ(RegimePaintCaption(), "PAINT REGIME");
  for (const char* bad : {"", "0", "3", "abc", "2.5", "100", "-1"}) {
    platform.Clear();
    Regime(bad);
    ASSERT_EQ(Messages().size(), 1u) << bad;
    EXPECT_EQ(Messages()[0], "Type a valid regime # in the box above or use 99 to paint neutral ownership.");
    EXPECT_EQ(UI.Order.RegimePaint, 0);
    EXPECT_EQ(RegimePaintCaption(), "PAINT REGIME");
  }
  platform.Clear();
  Regime("2");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(UI.Order.RegimePaint, 2);
  EXPECT_EQ(RegimePaintCaption(), "END REGIME PAINTING");
  EXPECT_EQ(BrushLabel(), "Owner: Blue");
  // Pressed again, it ends.
  PressRegimePaint();
  EXPECT_EQ(UI.Order.RegimePaint, 0);
  EXPECT_EQ(RegimePaintCaption(), "PAINT REGIME");
  EXPECT_EQ(BrushLabel(), "");
}

TEST_F(MapPaintTest, AClickOwnsTheHexAndOnlyThatHex) {
  Regime("2");
  UI.RedrawRequest = 0;
  Click(3, 4);
  EXPECT_EQ(Hex[3][4].Owner, blue);
  EXPECT_GE(UI.RedrawRequest, 1);
  for (int x = 1; x <= 12; ++x)
    for (int y = 1; y <= 12; ++y)
      if (!(x == 3 && y == 4) && !(x == 6 && y == 6)) {
        EXPECT_EQ(Hex[x][y].Owner, red) << x << "," << y;
      }
  EXPECT_EQ(UndoDepth(), 1);
  // Already Blue's: nothing changes, no stroke is kept.
  Click(3, 4);
  EXPECT_EQ(UndoDepth(), 1);
}

TEST_F(MapPaintTest, NinetyNinePaintsNeutral) {
  Regime("99");
  EXPECT_EQ(BrushLabel(), "Owner: neutral");
  Click(2, 2);
  EXPECT_EQ(Hex[2][2].Owner, 0);
}

TEST_F(MapPaintTest, SeaIsNeverOwnedAndAUnitKeepsItsHex) {
  Regime("2");
  Click(6, 6);
  EXPECT_EQ(Hex[6][6].Owner, 0);
  world::AddUnit(red, 8, 8, "Guard");
  Click(8, 8);
  EXPECT_EQ(Hex[8][8].Owner, red);
  EXPECT_EQ(UndoDepth(), 0);
}

// ---- The landscape brush ---------------------------------------------------------

TEST_F(MapPaintTest, TheListHasItsNumberedEntriesAndEmptyLines) {
  const char* rows[] = {"Grass", "Forest", "", "Sea", "Swamp/Marsh", "Mountain", "Road", "", "", "",
                        "River /-", "River -\\", "River -|", "River _/", "River \\_", "River |-"};
  for (int r = 1; r <= 16; ++r) EXPECT_EQ(PaintListEntry(r), rows[r - 1]) << r;
  EXPECT_EQ(PaintListEntry(0), "");
  EXPECT_EQ(PaintListEntry(17), "");
}

TEST_F(MapPaintTest, TheTypeButtonWantsALandscape) {
  EXPECT_EQ(TypePaintCaption(), "PAINT TYPE");
  for (int row : {0, 3, 8, 9, 10}) {
    platform.Clear();
    Type(row);
    ASSERT_EQ(Messages().size(), 1u) << row;
    EXPECT_EQ(Messages()[0], "Select a landscape type in the listbox right of the pressed button first.");
    EXPECT_EQ(UI.Order.LandscapePaint, 0);
  }
  Type(2);
  EXPECT_EQ(UI.Order.LandscapePaint, 2);
  EXPECT_EQ(TypePaintCaption(), "END TYPE PAINTING");
  EXPECT_EQ(BrushLabel(), "Forest");
  // The regime button ends the type brush before it starts its own.
  Regime("1");
  EXPECT_EQ(UI.Order.LandscapePaint, 0);
  EXPECT_EQ(UI.Order.RegimePaint, 1);
  // The do button of the order machine ends any brush.
  DoButton();
  EXPECT_EQ(UI.Order.RegimePaint, 0);
  EXPECT_EQ(RegimePaintCaption(), "PAINT REGIME");
}

TEST_F(MapPaintTest, ALandBrushSetsTheLandAndClearsTheTown) {
  for (int brush : {1, 2, 5, 6}) {
    Town(4, 4);
    Hex[4][4].Owner = blue;
    EndPainting();
    Type(brush);
    Click(4, 4);
    const HexRec& h = Hex[4][4];
    EXPECT_EQ(h.Land, brush);
    EXPECT_EQ(h.Pop, 0);
    EXPECT_EQ(h.Prod, 0);
    EXPECT_EQ(h.People, 0);
    EXPECT_EQ(h.ProdSHQ, 0);
    EXPECT_EQ(h.Owner, blue);  // only the sea brush takes the owner
  }
}

TEST_F(MapPaintTest, TheSeaBrushTakesTheOwnerButNotUnderAUnit) {
  Type(4);
  Click(2, 3);
  EXPECT_EQ(Hex[2][3].Land, kSea);
  EXPECT_EQ(Hex[2][3].Owner, 0);
  world::AddUnit(red, 5, 5, "Guard");
  Click(5, 5);
  EXPECT_EQ(Hex[5][5].Land, kGrass);
  EXPECT_EQ(Hex[5][5].Owner, red);
  // Other landscape may go under a unit.
  EndPainting();
  Type(6);
  Click(5, 5);
  EXPECT_EQ(Hex[5][5].Land, kMountain);
}

TEST_F(MapPaintTest, TheSameLandscapeLeavesTheHexAlone) {
  Town(4, 4);
  Hex[4][4].Land = kForest;  // a town on forest keeps its people when forest is painted
  Type(2);
  Click(4, 4);
  EXPECT_EQ(Hex[4][4].Pop, 3000);
  EXPECT_EQ(Hex[4][4].People, 3);
  EXPECT_EQ(UndoDepth(), 0);
}

TEST_F(MapPaintTest, RoadAndRiverBrushesToggle) {
  Type(7);
  EXPECT_EQ(BrushLabel(), "Road");
  Click(3, 3);
  EXPECT_EQ(Hex[3][3].Road, 1);
  EXPECT_EQ(Hex[3][3].Land, kGrass);
  Click(3, 3);
  EXPECT_EQ(Hex[3][3].Road, 0);
  for (int brush = 11; brush <= 16; ++brush) {
    EndPainting();
    Type(brush);
    Click(7, 7);
    for (int side = 1; side <= 6; ++side) EXPECT_EQ(Hex[7][7].River[side], side <= brush - 10 ? 1 : 0);
  }
  Click(7, 7);  // brush 16 again: side 6 off
  EXPECT_EQ(Hex[7][7].River[6], 0);
  EXPECT_EQ(Hex[7][7].River[5], 1);
}

TEST_F(MapPaintTest, AChangedListChoiceChangesTheBrushThatIsOn) {
  Type(1);
  SelectPaintRow(6);
  EXPECT_EQ(UI.Order.LandscapePaint, 6);
  SelectPaintRow(3);  // an empty line keeps the brush
  EXPECT_EQ(UI.Order.LandscapePaint, 6);
  EndPainting();
  Regime("1");
  SetPaintRegimeBox("2");
  EXPECT_EQ(UI.Order.RegimePaint, 2);
  SetPaintRegimeBox("x");
  EXPECT_EQ(UI.Order.RegimePaint, 2);
}

TEST_F(MapPaintTest, NothingOutsideTheEditor) {
  UI.EditMode = 0;
  Regime("1");
  Type(2);
  EXPECT_EQ(UI.Order.RegimePaint, 0);
  EXPECT_EQ(UI.Order.LandscapePaint, 0);
  EXPECT_TRUE(Messages().empty());
}

// ---- Towns -------------------------------------------------------------------------

TEST_F(MapPaintTest, TheThreeTownQuestionsAndTheirCuts) {
  SelectHex(4, 5);
  platform.QueueAnswer("Abcdefghijklmnopqrstu");  // 21 characters
  platform.QueueAnswer("300000");
  platform.QueueAnswer("2");
  PressUrban();
  const HexRec& h = Hex[4][5];
  EXPECT_EQ(h.Land, kUrban);
  EXPECT_EQ(h.UrbanName, "Abcdefghijklmnopqrst");
  EXPECT_EQ(h.Pop, 250000);
  EXPECT_EQ(h.People, 2);
  const auto& events = platform.Events();
  std::vector<std::string> asked;
  for (const auto& e : events)
    if (e.kind == PlatformEvent::kPrompt) asked.push_back(e.text);
  ASSERT_EQ(asked.size(), 3u);
  EXPECT_EQ(asked[0], "Urban Name");
  EXPECT_EQ(asked[1], "Population");
  EXPECT_EQ(asked[2], "People?");
  EXPECT_EQ(UndoDepth(), 1);
}

TEST_F(MapPaintTest, PopulationZeroTurnsTheTownBackToGrass) {
  Town(4, 5);
  SelectHex(4, 5);
  platform.QueueAnswer("Harbour");
  platform.QueueAnswer("-5");
  platform.QueueAnswer("3");
  PressUrban();
  const HexRec& h = Hex[4][5];
  EXPECT_EQ(h.Land, kGrass);
  EXPECT_EQ(h.Pop, 0);
  EXPECT_EQ(h.UrbanName, "");
  EXPECT_EQ(h.People, 0);
}

TEST_F(MapPaintTest, APeopleBelowOneIsTheFirst) {
  SelectHex(4, 5);
  platform.QueueAnswer("Mill");
  platform.QueueAnswer("1200");
  platform.QueueAnswer("0");
  PressUrban();
  EXPECT_EQ(Hex[4][5].People, 1);
  EXPECT_EQ(Hex[4][5].Pop, 1200);
}

TEST_F(MapPaintTest, NoTownAtSeaAndACancelledQuestionChangesNothing) {
  SelectHex(6, 6);
  PressUrban();
  EXPECT_TRUE(platform.Events().empty());
  EXPECT_EQ(Hex[6][6].Land, kSea);
  Town(4, 5);
  SelectHex(4, 5);
  platform.QueueAnswer("New name");
  platform.QueueAnswer("cancel");
  PressUrban();
  EXPECT_EQ(Hex[4][5].UrbanName, "Harbour");
  EXPECT_EQ(Hex[4][5].Pop, 3000);
}

// ---- Strokes, undo and redo ------------------------------------------------------------

TEST_F(MapPaintTest, ADragPaintsEachCrossedHexOnce) {
  Type(7);  // the road toggles, so a second visit would show
  ClickMap(2, 2, kLeftButton);
  PaintDragTo(3, 2);
  PaintDragTo(4, 2);
  PaintDragTo(3, 2);  // back over a hex of this stroke
  PaintDragTo(2, 2);
  EndPaintStroke();
  EXPECT_EQ(Hex[2][2].Road, 1);
  EXPECT_EQ(Hex[3][2].Road, 1);
  EXPECT_EQ(Hex[4][2].Road, 1);
  EXPECT_EQ(UndoDepth(), 1);
  // A drag after the button went up paints nothing.
  PaintDragTo(5, 2);
  EXPECT_EQ(Hex[5][2].Road, 0);
  // One undo takes the whole stroke back.
  EXPECT_TRUE(UndoPaint());
  for (int x = 2; x <= 4; ++x) EXPECT_EQ(Hex[x][2].Road, 0);
  EXPECT_TRUE(RedoPaint());
  for (int x = 2; x <= 4; ++x) EXPECT_EQ(Hex[x][2].Road, 1);
  EXPECT_FALSE(RedoPaint());
}

TEST_F(MapPaintTest, UndoRestoresEverythingABrushCleared) {
  Town(4, 4);
  Hex[4][4].Owner = blue;
  Type(4);
  Click(4, 4);
  EXPECT_EQ(Hex[4][4].Land, kSea);
  ASSERT_TRUE(UndoPaint());
  const HexRec& h = Hex[4][4];
  EXPECT_EQ(h.Land, kUrban);
  EXPECT_EQ(h.Pop, 3000);
  EXPECT_EQ(h.Prod, 2);
  EXPECT_EQ(h.People, 3);
  EXPECT_EQ(h.ProdSHQ, 7);
  EXPECT_EQ(h.Owner, blue);
  EXPECT_EQ(h.UrbanName, "Harbour");
}

TEST_F(MapPaintTest, SixtyStrokesUndoAndRedoAndANewStrokeEndsRedo) {
  Type(7);
  for (int i = 0; i < 60; ++i) Click(1 + i % 12, 1 + i / 12);
  EXPECT_EQ(UndoDepth(), 60);
  for (int i = 59; i >= 0; --i) {
    ASSERT_TRUE(UndoPaint()) << i;
    EXPECT_EQ(Hex[1 + i % 12][1 + i / 12].Road, 0);
  }
  EXPECT_FALSE(UndoPaint());
  EXPECT_EQ(RedoDepth(), 60);
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(RedoPaint());
  EXPECT_EQ(Hex[10][1].Road, 1);
  EXPECT_EQ(Hex[11][1].Road, 0);
  Click(12, 12);
  EXPECT_EQ(RedoDepth(), 0);
  EXPECT_FALSE(RedoPaint());
}

TEST_F(MapPaintTest, TheOldestStrokesFallAwayBeyondAHundred) {
  Type(7);
  for (int i = 0; i < 130; ++i) Click(1 + i % 12, 1 + (i / 12) % 12);
  EXPECT_EQ(UndoDepth(), kPaintUndoDepth);
  int undone = 0;
  while (UndoPaint()) ++undone;
  EXPECT_EQ(undone, 100);
}

TEST_F(MapPaintTest, AnotherMapForgetsTheStrokes) {
  Type(7);
  Click(3, 3);
  EXPECT_EQ(UndoDepth(), 1);
  world::NewMap(20, 20);
  UI.EditMode = 1;
  EXPECT_FALSE(UndoPaint());
  EXPECT_EQ(UndoDepth(), 0);
}

TEST_F(MapPaintTest, AHexChangedSinceIsNotUndoneOver) {
  Type(7);
  Click(3, 3);
  Click(4, 4);
  // A map of the same size put in its place (a load): the road is gone.
  Hex[4][4].Road = 0;
  EXPECT_FALSE(UndoPaint());
  EXPECT_EQ(UndoDepth(), 0);
  EXPECT_EQ(Hex[3][3].Road, 1);
}

}  // namespace
}  // namespace mf::test
