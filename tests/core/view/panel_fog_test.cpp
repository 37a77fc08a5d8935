// Nothing leaks through fog: over every hex of a fogged game of three
// regimes, the side panel and the map's hover tip tell the current player
// only what his sight and exploration allow.
#include <gtest/gtest.h>

#include <string>

#include "model/game_state.h"
#include "orders/sight.h"
#include "recording_canvas.h"
#include "support/core_test.h"
#include "view/canvas.h"
#include "view/draw_hex.h"
#include "view/panel.h"

namespace mf {
namespace {

using test::CoreTest;

// Every text of a panel, joined, to look for names that must not be there.
std::string AllTexts(const PanelContent& p) {
  std::string s = p.landText + "|" + p.ownerText + "|" + p.hexCaption + "|" + p.urbanName + "|" + p.urbanPop +
                  "|" + p.urbanProd + "|" + p.urbanShq + "|" + p.urbanDistance + "|" + p.unitName + "|" +
                  p.officerText + "|" + p.thqName + "|" + p.shqName + "|" + p.kcapText;
  for (int c = 1; c <= 4; ++c) s += "|" + p.troops[c].typeText + "|" + p.troops[c].qtyText;
  return s;
}

class PanelFogTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPanelHexCanvas(&hexPicture);
    test::world::NewMap(24, 16);
    red = test::world::AddRegime("Red");
    blue = test::world::AddRegime("Blue");
    green = test::world::AddRegime("Green");
    for (int x = 1; x <= 24; ++x) {
      for (int y = 1; y <= 16; ++y) {
        Hex[x][y].Owner = x <= 8 ? red : x <= 16 ? blue : green;
        Hex[x][y].Mark = 999;
        for (int s = 1; s <= kShqCap; ++s) Hex[x][y].ShqDist[s] = 999;
      }
    }
    rifles = test::world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Attr[kSoftAttack] = 10;
    Type[rifles].Attr[kHitPoints] = 20;
    // Towns of each regime, each with an SHQ and a formation in it.
    Town(3, 8, "Redford", red, "Red Command");
    Town(13, 4, "Blueport", blue, "Blue Command");
    Town(21, 12, "Greenhill", green, "Green Command");
    // Red's front line near Blue's border, so that some of Blue is seen.
    test::world::AddUnit(red, 8, 8, "Red Rifles", rifles, 30);
    test::world::AddUnit(red, 8, 9, "Red Guards", rifles, 30);
    // Blue formations, one next to Red's line and one far off.
    test::world::AddUnit(blue, 9, 8, "Blue Pickets", rifles, 10);
    test::world::AddUnit(blue, 15, 14, "Blue Reserve", rifles, 10);
    test::world::AddUnit(green, 23, 2, "Green Rangers", rifles, 10);
    Hex[13][4].Prod = rifles;
    Hex[21][12].Prod = -1;
    Game.FogOfWar = 1;
    Game.FogOfExploration = 1;
    Game.Turn = 3;
    Game.CurRegime = red;
    UI.EditMode = 0;
    UI.MapShown = true;
    // Red scouted Blue's port and the reserve's camp on an earlier turn.
    Hex[13][4].Seen[red] = 1;
    Hex[15][14].Seen[red] = 1;
    SightPass();
  }
  void TearDown() override {
    InstallPanelHexCanvas(nullptr);
    CoreTest::TearDown();
  }
  void Town(int x, int y, const std::string& name, int r, const std::string& shq) {
    Hex[x][y].Land = kUrban;
    Hex[x][y].Pop = 500;
    Hex[x][y].UrbanName = name;
    const int u = test::world::AddShq(r, x, y, 1, shq);
    Hex[x][y].ProdSHQ = u;
    test::world::AddUnit(r, x, y, name + " Guard", rifles, 5);
  }
  test::RecordingCanvas hexPicture;
  int red = 0, blue = 0, green = 0, rifles = 0;
};

TEST_F(PanelFogTest, EveryHexTellsOnlyWhatTheCurrentPlayerMayKnow) {
  int unexplored = 0, hidden = 0, foreignSeen = 0, foreignTowns = 0;
  for (int x = 1; x <= Game.MapW; ++x) {
    for (int y = 1; y <= Game.MapH; ++y) {
      SCOPED_TRACE("hex " + std::to_string(x) + "," + std::to_string(y));
      UI.SelX = x;
      UI.SelY = y;
      UI.SelSlot = Hex[x][y].Unit[1] > 0 ? 1 : 0;
      const PanelContent p = PanelOf(x, y);
      const std::string tip = HexTipText(x, y);
      const HexRec& h = Hex[x][y];
      ASSERT_TRUE(p.hexShown);

      if (HexUnexplored(x, y)) {
        ++unexplored;
        // A hex never seen: the white hex and nothing of what is there.
        EXPECT_TRUE(p.hexPictureShown);
        EXPECT_EQ(p.hexCaption, "Unexplored hex");
        EXPECT_EQ(p.landText, "");
        EXPECT_EQ(p.ownerText, "");
        EXPECT_FALSE(p.urbanShown);
        EXPECT_FALSE(p.unitShown);
        for (int s = 1; s <= 3; ++s) EXPECT_FALSE(p.stack[s].shown);
        EXPECT_EQ(tip, "Hex " + std::to_string(x) + ", " + std::to_string(y) + "\nUnexplored hex");
        continue;
      }
      if (h.Vis < 1) {
        // Explored but not in sight now: the land, never the formations.
        if (h.Unit[1] > 0) ++hidden;
        EXPECT_FALSE(p.unitShown);
        for (int s = 1; s <= 3; ++s) EXPECT_FALSE(p.stack[s].shown);
        for (int s = 1; s <= 3; ++s) {
          if (h.Unit[s] > 0) {
            EXPECT_EQ(AllTexts(p).find(Unit[h.Unit[s]].Name), std::string::npos);
            EXPECT_EQ(tip.find(Unit[h.Unit[s]].Name), std::string::npos);
          }
        }
      }
      if (p.urbanShown && h.Owner != red) {
        ++foreignTowns;
        // What a foreign town makes and whom it serves stays unknown.
        EXPECT_EQ(p.urbanProd, "N/A");
        EXPECT_EQ(p.urbanShq, "SHQ: N/A");
        EXPECT_EQ(p.urbanDistance, "");
        EXPECT_EQ(tip.find("Command"), std::string::npos);
        EXPECT_EQ(tip.find("Extra Supply"), std::string::npos);
      }
      for (int s = 1; s <= 3; ++s) {
        if (!p.stack[s].shown) continue;
        EXPECT_GE(h.Vis, 1);
        if (Unit[p.stack[s].unit].Regime != red) {
          EXPECT_EQ(p.stack[s].mp, -1);
        }
      }
      if (p.unitShown && Unit[p.unit].Regime != red) {
        ++foreignSeen;
        EXPECT_EQ(p.readinessText, "N/A");
        EXPECT_EQ(p.experienceText, "N/A");
        EXPECT_EQ(p.supplyPctText, "N/A");
        EXPECT_EQ(p.mpText, "N/A");
        EXPECT_EQ(p.officerText, "N/A");
        EXPECT_EQ(p.thqName, "N/A");
        EXPECT_EQ(p.shqName, "N/A");
        EXPECT_EQ(p.kcapText, "");
        for (int c = 1; c <= 4; ++c) {
          if (!p.troops[c].qtyText.empty()) {
            EXPECT_EQ(p.troops[c].qtyText, "x N/A");
          }
        }
        EXPECT_EQ(tip.find("MP "), std::string::npos);
      }
    }
  }
  // The walk met every kind of hex the rules hide something on.
  EXPECT_GT(unexplored, 0);
  EXPECT_GT(hidden, 0);
  EXPECT_GT(foreignSeen, 0);
  EXPECT_GT(foreignTowns, 0);
}

TEST_F(PanelFogTest, WhileTheMapIsPutAwayThePanelShowsNothing) {
  // A computer regime at work, or a turn changing hands: the map is hidden.
  Regime[blue].AI = 1;
  Game.CurRegime = blue;
  UI.RegimeLabel = "Blue (AI)";
  UI.MapShown = false;
  for (int x = 1; x <= Game.MapW; ++x) {
    for (int y = 1; y <= Game.MapH; ++y) {
      Refresh(x, y);
      ASSERT_FALSE(Panel.hexShown);
      EXPECT_EQ(Panel.ppText, "");
      EXPECT_EQ(Panel.regimeText, "Blue (AI)");
      EXPECT_EQ(HexTipText(x, y), "");
    }
  }
}

}  // namespace
}  // namespace mf
