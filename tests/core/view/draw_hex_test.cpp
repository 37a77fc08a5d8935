// The layers of a hex as DrawHex and TerrainDraw paint them, checked call by
// call on a recording canvas; and the whole-map and partial redraws, and the
// centring of the view.
#include "view/draw_hex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/hex_geometry.h"
#include "model/reset.h"
#include "support/core_test.h"
#include "view/canvas.h"
#include "view/counter.h"
#include "recording_canvas.h"

namespace mf {
namespace {

using test::CoreTest;
using test::RecordingCanvas;
using Ops = std::vector<std::string>;

class DrawHexTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallMapCanvas(&map);
    InstallPanelHexCanvas(&panel);
  }
  void TearDown() override {
    InstallMapCanvas(nullptr);
    InstallPanelHexCanvas(nullptr);
    CoreTest::TearDown();
  }

  // A w x h map of neutral grass in play for regime 1 (Red, colour 3) against
  // regime 2 (Blue, colour 7), everything in sight, no range shown, view at
  // the upper left corner.
  void Play(int w, int h) {
    test::world::NewMap(w, h);
    red = test::world::AddRegime("Red");
    blue = test::world::AddRegime("Blue");
    Regime[red].HexSprite = 3;
    Regime[blue].HexSprite = 7;
    Game.CurRegime = red;
    Game.Turn = 1;
    UI.EditMode = 0;
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= h; ++y) {
        Hex[x][y].Mark = 999;
        Hex[x][y].Vis = 3;
      }
    }
    LayOutMapWindow();
    UI.ScrollX = 0;
    UI.ScrollY = 0;
  }

  // A formation of regime r in the next free slot of (x, y), on a hex it
  // leaves neutral.
  int Add(int r, int x, int y, const std::string& name) {
    const Long owner = Hex[x][y].Owner;
    const int u = test::world::AddUnit(r, x, y, name);
    Hex[x][y].Owner = owner;
    return u;
  }

  Ops Terrain(int x, int y, bool dark = false) {
    map.Reset();
    const PixelXY c = HexToPixelForTest(x, y);
    TerrainDraw(x, y, c.x - 21, c.y - 20, dark, 1);
    return map.Ops();
  }
  static PixelXY HexToPixelForTest(int x, int y) {
    return PixelXY{x * 42 + (y % 2 != 0 ? 21 : 0) - UI.ScrollX, y * 30 - UI.ScrollY};
  }
  Ops Draw(int x, int y) {
    map.Reset();
    DrawHex(x, y);
    return map.Ops();
  }

  RecordingCanvas map;
  RecordingCanvas panel;
  int red = 0;
  int blue = 0;
};

// ---- TerrainDraw -------------------------------------------------------------

TEST_F(DrawHexTest, PlainGrassIsTheBaseHexAlone) {
  Play(10, 10);
  // Hex (1, 1): centre (63, 30), picture corner (42, 10).
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10"}));
  // Hex (2, 2): even row, centre (84, 60).
  EXPECT_EQ(Terrain(2, 2), (Ops{"blit 1 63 40"}));
}

TEST_F(DrawHexTest, EachLandscapeOnItsBase) {
  Play(10, 10);
  Hex[1][1].Land = kForest;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10", "blit 1500 42 10"}));
  Hex[1][1].Land = kSwamp;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10", "blit 1601 42 10"}));
  Hex[1][1].Land = kMountain;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10", "blit 1611 42 10"}));
  Hex[1][1].Land = kSea;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 4 42 10"}));
  // An urban hex without people shows only its plain base.
  Hex[1][1].Land = kUrban;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10"}));
  // Value 7 stands on the plain hex as well.
  Hex[1][1].Land = 7;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10"}));
}

TEST_F(DrawHexTest, UrbanPictureBySizeRows) {
  Play(10, 10);
  Hex[1][1].Land = kUrban;
  // Rows 461..465 at their defaults 750, 1250, 2000, 3500, 6000; each test is "above".
  const struct { Long pop; int sprite; } cases[] = {
      {6001, 1521}, {6000, 1522}, {3501, 1522}, {3500, 1523}, {2001, 1523}, {2000, 1524},
      {1251, 1524}, {1250, 1525}, {751, 1525}, {750, 1526}, {1, 1526},
  };
  for (const auto& c : cases) {
    Hex[1][1].Pop = c.pop;
    EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10", "blit " + std::to_string(c.sprite) + " 42 10"})) << c.pop;
  }
  // The rows are read from the largest down.
  EngineVar[465].Value = 100;
  Hex[1][1].Pop = 800;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10", "blit 1521 42 10"}));
}

TEST_F(DrawHexTest, OwnerColoursTheBaseAndDarkFormAddsAThousand) {
  Play(10, 10);
  Hex[1][1].Owner = red;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 23 42 10"}));
  EXPECT_EQ(Terrain(1, 1, true), (Ops{"blit 1023 42 10"}));
  Hex[1][1].Owner = blue;
  Hex[1][1].Land = kForest;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 27 42 10", "blit 1500 42 10"}));
  Hex[1][1].Owner = 0;
  Hex[1][1].Land = kSea;
  EXPECT_EQ(Terrain(1, 1, true), (Ops{"blit 1004 42 10"}));
}

TEST_F(DrawHexTest, OwnerNinetyNineIsRepairedToNeutral) {
  Play(10, 10);
  Hex[1][1].Owner = 99;
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 1 42 10"}));
  EXPECT_EQ(Hex[1][1].Owner, 0);
}

TEST_F(DrawHexTest, RiversBySideWithTheirDarkForm) {
  Play(10, 10);
  // Hex (5, 5): centre (231, 150), corner (210, 130).
  Hex[5][5].River[2] = 1;
  Hex[5][5].River[5] = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1542 210 130", "blit 1545 210 130"}));
  EXPECT_EQ(Terrain(5, 5, true), (Ops{"blit 1001 210 130", "blit 1562 210 130", "blit 1565 210 130"}));
  // Sea shows no river.
  Hex[5][5].Land = kSea;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 4 210 130"}));
}

TEST_F(DrawHexTest, RiversDarkenWhileARangeReachesTheSelectedHex) {
  Play(10, 10);
  Hex[5][5].River[3] = 1;
  Hex[5][4].Land = kSea;  // side 1 of (5, 5) is coast
  UI.Order.SelOrderMove = 1;
  UI.SelX = 7;
  UI.SelY = 7;
  Hex[7][7].Mark = 3;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1563 210 130", "blit 1561 210 130"}));
  // The selected hex out of reach: the light form.
  Hex[7][7].Mark = 999;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1543 210 130", "blit 1541 210 130"}));
  // No range shown: the light form, whatever the selection's mark.
  UI.Order.SelOrderMove = 0;
  Hex[7][7].Mark = 3;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1543 210 130", "blit 1541 210 130"}));
}

TEST_F(DrawHexTest, RoadsRunTowardsNeighboursWithARoad) {
  Play(10, 10);
  // Neighbours of (5, 5), an odd row: 1 (5,4), 2 (6,4), 3 (6,5), 4 (6,6), 5 (5,6), 6 (4,5).
  Hex[5][5].Road = 1;
  Hex[6][4].Road = 1;
  Hex[4][5].Road = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1622 210 130", "blit 1626 210 130"}));
  // Neighbours with a road but none here: nothing.
  Hex[5][5].Road = 0;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130"}));
  // A town draws no road of its own; its neighbours lead into it.
  Hex[5][5].Road = 1;
  Hex[5][5].Land = kUrban;
  Hex[5][5].Pop = 100;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1526 210 130"}));
  Hex[4][5].Land = kGrass;
  Hex[4][5].Road = 1;
  // Hex (4, 5) sees the town's road on side 3.
  EXPECT_EQ(Terrain(4, 5), (Ops{"blit 1 168 130", "blit 1623 168 130"}));
}

TEST_F(DrawHexTest, ForestEdgesOnGrassAndTownsButNotAcrossRivers) {
  Play(10, 10);
  Hex[6][5].Land = kForest;  // side 3 of (5, 5)
  Hex[5][6].Land = kForest;  // side 5
  Hex[5][5].River[5] = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1545 210 130", "blit 1503 210 130"}));
  Hex[5][5].Land = kUrban;
  Hex[5][5].Pop = 100;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1526 210 130", "blit 1545 210 130", "blit 1503 210 130"}));
  // Swamp, mountain and forest take no edges.
  Hex[5][5].Land = kSwamp;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1601 210 130", "blit 1545 210 130"}));
}

TEST_F(DrawHexTest, CoastOnEverySideWithSea) {
  Play(10, 10);
  Hex[5][4].Land = kSea;  // side 1
  Hex[4][5].Land = kSea;  // side 6
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1541 210 130", "blit 1546 210 130"}));
  EXPECT_EQ(Terrain(5, 5, true), (Ops{"blit 1001 210 130", "blit 1561 210 130", "blit 1566 210 130"}));
  // Open sea takes the water edge too, towards each sea neighbour.
  Hex[5][5].Land = kSea;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 4 210 130", "blit 1541 210 130", "blit 1546 210 130"}));
}

TEST_F(DrawHexTest, EntrenchmentOnlyWhereTheRegimeSeesNow) {
  Play(10, 10);
  Hex[5][5].Entrench[2] = 1;
  Hex[5][5].Entrench[4] = 3;
  Hex[5][5].Vis = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130", "blit 1102 210 130", "blit 1124 210 130"}));
  Hex[5][5].Vis = 0;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 1 210 130"}));
}

TEST_F(DrawHexTest, TerrainLayersInTheirOrder) {
  Play(10, 10);
  Hex[5][5].Owner = red;
  Hex[5][5].River[6] = 1;
  Hex[5][5].Road = 1;
  Hex[6][4].Road = 1;        // side 2
  Hex[6][5].Land = kForest;  // side 3
  Hex[5][4].Land = kSea;     // side 1
  Hex[5][5].Entrench[4] = 2;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 23 210 130", "blit 1546 210 130", "blit 1622 210 130", "blit 1503 210 130",
                                "blit 1541 210 130", "blit 1114 210 130"}));
}

TEST_F(DrawHexTest, FogOfExplorationShowsTheWhiteHexAndNothingElse) {
  Play(10, 10);
  Game.FogOfExploration = 1;
  Hex[5][5].Owner = blue;
  Hex[5][5].Land = kForest;
  Hex[5][5].River[1] = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 804 210 130"}));
  // Once seen, the hex is drawn.
  Hex[5][5].Seen[red] = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 27 210 130", "blit 1500 210 130", "blit 1541 210 130"}));
  // The editor sees everything.
  Hex[5][5].Seen[red] = 0;
  UI.EditMode = 1;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 27 210 130", "blit 1500 210 130", "blit 1541 210 130"}));
  // Without the option, never-seen hexes are drawn.
  UI.EditMode = 0;
  Game.FogOfExploration = 0;
  EXPECT_EQ(Terrain(5, 5), (Ops{"blit 27 210 130", "blit 1500 210 130", "blit 1541 210 130"}));
}

TEST_F(DrawHexTest, NumbersBeyondTheSpriteTableDrawNothing) {
  Play(10, 10);
  Hex[1][1].Owner = red;
  Regime[red].HexSprite = 2147483000;
  Hex[1][1].Entrench[3] = 2000000000;
  Hex[1][1].Entrench[4] = 4;  // a level the rules never reach still has a number
  EXPECT_EQ(Terrain(1, 1), (Ops{"blit 0 42 10", "blit 0 42 10", "blit 1134 42 10"}));
  const int u = Add(red, 1, 1, "Rifles");
  Unit[u].Boss = 5;  // in the chain and supplied: the regime's colour is used
  Counter(u);
  EXPECT_EQ(Unit[u].CounterPic, 0);
}

TEST_F(DrawHexTest, PassTwoPaintsThePanelHexPicture) {
  Play(10, 10);
  Hex[5][5].Land = kMountain;
  TerrainDraw(5, 5, 0, 0, false, 2);
  EXPECT_EQ(panel.Ops(), (Ops{"blit 1 0 0", "blit 1611 0 0"}));
  EXPECT_TRUE(map.Ops().empty());
}

TEST_F(DrawHexTest, OffTheMapNothing) {
  Play(10, 10);
  TerrainDraw(11, 5, 0, 0, false, 1);
  TerrainDraw(0, 5, 0, 0, false, 1);
  DrawHex(5, 11);
  EXPECT_TRUE(map.Ops().empty());
}

// ---- DrawHex -------------------------------------------------------------------

TEST_F(DrawHexTest, DarkWithinReachButNotInTheEditor) {
  Play(10, 10);
  Hex[1][1].Mark = 5;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1001 42 10"}));
  UI.EditMode = 1;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10"}));
  UI.EditMode = 0;
  Hex[1][1].Mark = 999;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10"}));
}

TEST_F(DrawHexTest, HexesOutsideTheWindowAreSkipped) {
  Play(40, 40);
  UI.ScrollX = 500;
  // (1, 1) has its centre at 63 - 500 = -437, beyond -42.
  EXPECT_TRUE(Draw(1, 1).empty());
  // (12, 1): 12 x 42 + 21 - 500 = 25.
  EXPECT_EQ(Draw(12, 1), (Ops{"blit 1 4 10"}));
  UI.ScrollX = 0;
  // (24, 2): centre x 1008, beyond 1000; (23, 2): 966.
  EXPECT_TRUE(Draw(24, 2).empty());
  EXPECT_EQ(Draw(23, 2), (Ops{"blit 1 945 40"}));
  // Row 17: centre y 510, beyond 488; row 16: 480.
  EXPECT_TRUE(Draw(2, 17).empty());
  EXPECT_EQ(Draw(2, 16), (Ops{"blit 1 63 460"}));
}

class StackOrderTest : public DrawHexTest {
 protected:
  // Three formations of Blue on (2, 2), corner (63, 40), seen without fog:
  // slot 1 infantry (207), slot 2 a THQ (227, badge 1 = sprite 851), slot 3
  // an SHQ (247).
  void MakeStack(int count) {
    Play(10, 10);
    inf = Add(blue, 2, 2, "Rifles");
    if (count >= 2) {
      thq = Add(blue, 2, 2, "II Corps");
      Unit[thq].Thq = 1;
    }
    if (count >= 3) {
      shq = Add(blue, 2, 2, "Army HQ");
      Unit[shq].Shq = 1;
    }
  }
  Ops Blits() {
    map.Reset();
    DrawHex(2, 2);
    return map.Only("blit");
  }
  int inf = 0, thq = 0, shq = 0;
};

TEST_F(StackOrderTest, ThreeUnitsNoSelectionDrawThreeTwoOne) {
  MakeStack(3);
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 247 62 39", "blit 227 63 40", "blit 851 63 40", "blit 207 64 41"}));
}

TEST_F(StackOrderTest, SlotOneSelectedDrawsThreeTwoOne) {
  MakeStack(3);
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 1;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 247 62 39", "blit 227 63 40", "blit 851 63 40", "blit 207 64 41"}));
}

TEST_F(StackOrderTest, SlotTwoSelectedDrawsOneThreeTwo) {
  MakeStack(3);
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 2;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 207 62 39", "blit 247 63 40", "blit 227 64 41", "blit 851 64 41"}));
}

TEST_F(StackOrderTest, SlotThreeSelectedDrawsTwoOneThree) {
  MakeStack(3);
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 3;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 227 62 39", "blit 851 62 39", "blit 207 63 40", "blit 247 64 41"}));
}

TEST_F(StackOrderTest, ASelectionOnAnotherHexDoesNotReorder) {
  MakeStack(3);
  UI.SelX = 3;
  UI.SelY = 2;
  UI.SelSlot = 3;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 247 62 39", "blit 227 63 40", "blit 851 63 40", "blit 207 64 41"}));
}

TEST_F(StackOrderTest, TwoUnitsAtMinusOneAndZero) {
  MakeStack(2);
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 227 62 39", "blit 851 62 39", "blit 207 63 40"}));
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 2;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 207 62 39", "blit 227 63 40", "blit 851 63 40"}));
}

TEST_F(StackOrderTest, OneUnitAtItsPlace) {
  MakeStack(1);
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 207 63 40"}));
}

TEST_F(StackOrderTest, FiguresArePrintedOnceForTheTopUnit) {
  MakeStack(3);
  Unit[inf].Readiness = 100;
  Unit[inf].Experience = 100;
  UI.SelX = 2;
  UI.SelY = 2;
  UI.SelSlot = 2;  // the THQ ends on top, at (64, 41)
  map.Reset();
  DrawHex(2, 2);
  // A THQ without troops: no attack at all, defence 0; Blue's text colour &Hffffff.
  EXPECT_EQ(map.Only("text"), (Ops{"text \"   0\" 72 62 Small Fonts 6 16777215", "text 0 88 62 Small Fonts 6 16777215"}));
  // The figures come after the last counter and its badge.
  EXPECT_EQ(map.Ops().back(), "text 0 88 62 Small Fonts 6 16777215");
}

TEST_F(StackOrderTest, FogOfWarHidesTheUnitsOfHexesOutOfSight) {
  MakeStack(3);
  Game.FogOfWar = 1;
  Hex[2][2].Vis = 0;
  Unit[inf].CounterPic = 0;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40"}));
  EXPECT_TRUE(map.Only("text").empty());
  // The counters are worked out all the same.
  EXPECT_EQ(Unit[inf].CounterPic, 207);
  Hex[2][2].Vis = 1;
  EXPECT_EQ(Blits(), (Ops{"blit 1 63 40", "blit 247 62 39", "blit 227 63 40", "blit 851 63 40", "blit 207 64 41"}));
}

TEST_F(DrawHexTest, BadgeFollowsEachCounterOfItsThq) {
  Play(10, 10);
  const int thq = Add(blue, 5, 5, "II Corps");
  Unit[thq].Thq = 1;
  Regime[blue].ThqBadgeUnit[1] = 999;  // someone else's
  const int rifles = Add(blue, 5, 5, "Rifles");
  Unit[rifles].Boss = thq;
  // Order 2, 1: the rifles (badge 2 of their THQ) below, the THQ on top.
  map.Reset();
  DrawHex(5, 5);
  EXPECT_EQ(map.Only("blit"), (Ops{"blit 1 210 130", "blit 207 209 129", "blit 852 209 129", "blit 227 210 130",
                                   "blit 852 210 130"}));
}

TEST_F(DrawHexTest, UrbanStateOfTheRegimesOwnTowns) {
  Play(10, 10);
  Hex[1][1].Land = kUrban;
  Hex[1][1].Pop = 500;
  Hex[1][1].Owner = red;
  Hex[1][1].Damage = 10;
  Hex[1][1].ProdSHQ = 0;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 23 42 10", "blit 1526 42 10", "blit 805 42 10", "blit 803 42 10"}));
  Hex[1][1].Damage = 0;
  Hex[1][1].ProdSHQ = 4;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 23 42 10", "blit 1526 42 10"}));
  // Another regime's town shows nothing of it.
  Hex[1][1].Owner = blue;
  Hex[1][1].Damage = 10;
  Hex[1][1].ProdSHQ = 0;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 27 42 10", "blit 1526 42 10"}));
  // Nor does the editor.
  Hex[1][1].Owner = red;
  UI.EditMode = 1;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 23 42 10", "blit 1526 42 10"}));
}

TEST_F(DrawHexTest, GridIsTheSixOutlineLines) {
  Play(10, 10);
  UI.Overlay.ShowGrid = 1;
  // Centre (63, 30).
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10", "line 42 20 42 40 5592405", "line 42 40 63 50 5592405",
                             "line 63 50 84 40 5592405", "line 84 40 84 20 5592405", "line 84 20 63 10 5592405",
                             "line 63 10 42 20 5592405"}));
  UI.Overlay.ShowGrid = 0;
  EXPECT_EQ(map.Count("line"), 6);
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10"}));
}

TEST_F(DrawHexTest, HiddenOverlayOnHexesOutOfSight) {
  Play(10, 10);
  UI.Overlay.ShowSight = 1;
  Hex[1][1].Vis = 0;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10", "blit 808 42 10"}));
  Hex[1][1].Vis = 1;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10"}));
  Hex[1][1].Vis = 0;
  UI.Overlay.ShowSight = 0;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10"}));
}

TEST_F(DrawHexTest, NewsMarksByNumber) {
  Play(10, 10);
  UI.Overlay.ShowEnemy = 1;
  for (int m : {1, 6, 7, 8, 9, 10}) Hex[1][1].NewsMark[m] = 1;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10", "blit 845 42 10", "blit 850 42 10", "blit 806 42 10",
                             "blit 807 42 10", "blit 810 42 10"}));
  UI.Overlay.ShowEnemy = 0;
  EXPECT_EQ(Draw(1, 1), (Ops{"blit 1 42 10"}));
}

TEST_F(DrawHexTest, SupplyFiguresOfTheCurrentRegime) {
  Play(10, 10);
  UI.Overlay.ShowSupply = 1;
  const int shq = Add(red, 2, 2, "Army HQ");
  Unit[shq].Shq = 1;
  Unit[shq].GenSupply = 120;
  const int rifles = Add(red, 2, 2, "Rifles");
  Unit[rifles].GenSupply = 45;
  Unit[rifles].Boss = shq;
  // 120 made less 45 asked: 75, green, at (84 - 16, 60 - 6).
  map.Reset();
  DrawHex(2, 2);
  EXPECT_EQ(map.Ops().back(), "text 75 76 71 arial 9 65280");
  // More asked than made: the amount, in the default colour.
  Unit[shq].GenSupply = 10;
  Unit[rifles].GenSupply = 30;
  map.Reset();
  DrawHex(2, 2);
  EXPECT_EQ(map.Ops().back(), "text 20 76 71 arial 9 0");
  // Nothing made, nothing asked: still a figure, 0 in green.
  Unit[shq].GenSupply = 0;
  Unit[rifles].GenSupply = 0;
  map.Reset();
  DrawHex(2, 2);
  EXPECT_EQ(map.Ops().back(), "text 0 76 71 arial 9 65280");
  // Another regime's hex: none.
  const int foe = Add(blue, 5, 5, "Foes");
  Unit[foe].GenSupply = 50;
  map.Reset();
  DrawHex(5, 5);
  for (const auto& op : map.Only("text")) EXPECT_EQ(op.find("arial"), std::string::npos) << op;
  // Switched off: none.
  UI.Overlay.ShowSupply = 0;
  map.Reset();
  DrawHex(2, 2);
  for (const auto& op : map.Only("text")) EXPECT_EQ(op.find("arial"), std::string::npos) << op;
}

TEST_F(DrawHexTest, AllLayersOfOneHexInOrder) {
  Play(10, 10);
  UI.Overlay.ShowGrid = 1;
  UI.Overlay.ShowSight = 1;
  UI.Overlay.ShowEnemy = 1;
  UI.Overlay.ShowSupply = 1;
  Hex[2][2].Land = kUrban;
  Hex[2][2].Pop = 500;
  Hex[2][2].Owner = red;
  Hex[2][2].Damage = 5;
  Hex[2][2].Vis = 0;  // without fog of war the units still show
  Hex[2][2].NewsMark[2] = 1;
  const int shq = Add(red, 2, 2, "Army HQ");
  Unit[shq].Shq = 1;
  Unit[shq].GenSupply = 30;
  EXPECT_EQ(Draw(2, 2), (Ops{
                            "blit 23 63 40",
                            "blit 1526 63 40",
                            "blit 243 63 40",
                            "text SHQ 71 61 Small Fonts 6 16777215",
                            "text 0 87 61 Small Fonts 6 16777215",
                            "blit 805 63 40",
                            "blit 803 63 40",
                            "line 63 50 63 70 5592405",
                            "line 63 70 84 80 5592405",
                            "line 84 80 105 70 5592405",
                            "line 105 70 105 50 5592405",
                            "line 105 50 84 40 5592405",
                            "line 84 40 63 50 5592405",
                            "blit 808 63 40",
                            "blit 846 63 40",
                            "text 30 76 71 arial 9 65280",
                        }));
}

// ---- Redraws ---------------------------------------------------------------------

TEST_F(DrawHexTest, FullRedrawClearsAndForgetsTheReachWhenNoRangeIsShown) {
  Play(10, 10);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Mark = 5;
  DoDrawhex();
  ASSERT_FALSE(map.Ops().empty());
  EXPECT_EQ(map.Ops().front(), "clear");
  EXPECT_EQ(map.Count("clear"), 1);
  // Every hex of the map, none dark.
  EXPECT_EQ(map.Count("blit"), 100);
  for (const auto& op : map.Only("blit")) EXPECT_EQ(op.rfind("blit 1 ", 0), 0u) << op;
  EXPECT_EQ(Hex[1][1].Mark, 999);
  EXPECT_EQ(Hex[10][10].Mark, 999);
  // The hexes in the order of the map scan: x outer, y inner.
  EXPECT_EQ(map.Ops()[1], "blit 1 42 10");   // (1, 1)
  EXPECT_EQ(map.Ops()[2], "blit 1 21 40");   // (1, 2)
  EXPECT_EQ(map.Ops()[11], "blit 1 84 10");  // (2, 1)
}

TEST_F(DrawHexTest, FullRedrawKeepsTheReachOfAMove) {
  Play(10, 10);
  for (int x = 1; x <= 10; ++x)
    for (int y = 1; y <= 10; ++y) Hex[x][y].Mark = 999;
  Hex[3][3].Mark = 2;
  UI.Order.SelOrderMove = 1;
  DoDrawhex();
  EXPECT_EQ(Hex[3][3].Mark, 2);
  // (3, 3): centre (147, 90), corner (126, 70), dark.
  const Ops blits = map.Only("blit");
  EXPECT_EQ(std::count(blits.begin(), blits.end(), "blit 1001 126 70"), 1);
  int dark = 0;
  for (const auto& op : blits) dark += op.rfind("blit 1001 ", 0) == 0 ? 1 : 0;
  EXPECT_EQ(dark, 1);
}

TEST_F(DrawHexTest, PartialRedrawIsTheSquareAroundTheSelection) {
  Play(40, 40);
  for (int x = 1; x <= 40; ++x)
    for (int y = 1; y <= 40; ++y) Hex[x][y].Mark = 7;
  UI.SelX = 5;
  UI.SelY = 5;
  DoDrawhex6();
  EXPECT_EQ(map.Count("clear"), 0);
  // x 1..20, y 1..20, of which rows 1..16 lie in the window: 320 hexes.
  EXPECT_EQ(map.Count("blit"), 320);
  EXPECT_EQ(Hex[20][20].Mark, 999);
  EXPECT_EQ(Hex[1][1].Mark, 999);
  EXPECT_EQ(Hex[21][5].Mark, 7);
  EXPECT_EQ(Hex[5][21].Mark, 7);
}

TEST_F(DrawHexTest, PartialRedrawInTheMiddleOfALargeMap) {
  Play(100, 100);
  UI.ScrollX = 30 * 42;
  UI.ScrollY = 30 * 30;
  UI.SelX = 40;
  UI.SelY = 40;
  DoDrawhex6();
  // The square is x 25..55, y 25..55. In the window, with the view at
  // (1260, 900): centre x = 42 x (+ 21 on odd rows) - 1260 from -42 to 1000
  // gives x 29..53 on both kinds of row; centre y = 30 y - 900 from -40 to
  // 488 gives y 29..46. 25 x 18 hexes.
  EXPECT_EQ(map.Count("blit"), 450);
}

TEST_F(DrawHexTest, CenterMapPutsTheHexTenAcrossAndSixDown) {
  Play(100, 100);
  // Picture 4270 x 3070; the bars run to 3312 and 2622.
  ASSERT_EQ(UI.ScrollMaxX, 3312);
  ASSERT_EQ(UI.ScrollMaxY, 2622);
  UI.RedrawRequest = 0;
  CenterMap(50, 40);
  EXPECT_EQ(UI.ScrollX, 40 * 42);
  EXPECT_EQ(UI.ScrollY, 34 * 30);
  EXPECT_EQ(UI.RedrawRequest, 2);
  // Near the upper left corner: held at 0.
  CenterMap(3, 2);
  EXPECT_EQ(UI.ScrollX, 0);
  EXPECT_EQ(UI.ScrollY, 0);
  // Near the lower right corner: held at the ends of the bars.
  CenterMap(100, 100);
  EXPECT_EQ(UI.ScrollX, 3312);
  EXPECT_EQ(UI.ScrollY, 2622);
  // Already there: no redraw asked for.
  UI.RedrawRequest = 0;
  CenterMap(99, 99);
  EXPECT_EQ(UI.RedrawRequest, 0);
}

TEST_F(DrawHexTest, CenterMapInALargerWindow) {
  Play(100, 100);
  UI.ViewW = 1600;  // 1600 / 84 = 19, less one: 18 across
  UI.ViewH = 900;   // 900 / 60 = 15, less one: 14 down
  LayOutMapWindow();
  CenterMap(50, 40);
  EXPECT_EQ(UI.ScrollX, 32 * 42);
  EXPECT_EQ(UI.ScrollY, 26 * 30);
}

TEST_F(DrawHexTest, CenterMapOnASmallMapStaysPut) {
  Play(10, 10);
  // Picture 490 x 370: smaller than the window, no scrolling at all.
  CenterMap(10, 10);
  EXPECT_EQ(UI.ScrollX, 0);
  EXPECT_EQ(UI.ScrollY, 0);
}

TEST_F(DrawHexTest, RangeModesThatShowAReach) {
  EXPECT_FALSE(RangeModeOn());
  UI.Order.SelOrderMove = 3;
  EXPECT_TRUE(RangeModeOn());
  UI.Order = OrderFlags{};
  UI.Order.TransferOrder = 1;
  EXPECT_TRUE(RangeModeOn());
  UI.Order = OrderFlags{};
  UI.Order.EntrenchOrder = 1;
  EXPECT_TRUE(RangeModeOn());
  UI.Order = OrderFlags{};
  UI.Order.AttackOrder = 1;
  EXPECT_FALSE(RangeModeOn());
  UI.Order.BossOrder = 1;
  EXPECT_FALSE(RangeModeOn());
}

}  // namespace
}  // namespace mf
