// The side panel: every text, picture and colour that Refresh works out for
// a hex and its formations.
#include "view/panel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "recording_canvas.h"
#include "support/core_test.h"
#include "view/canvas.h"
#include "view/counter.h"

namespace mf {
namespace {

using test::CoreTest;
using test::RecordingCanvas;
using Ops = std::vector<std::string>;

class PanelTest : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    InstallPanelHexCanvas(&hexPicture);
    test::world::NewMap(10, 10);
    red = test::world::AddRegime("Red");
    blue = test::world::AddRegime("Blue");
    Regime[red].HexSprite = 3;
    Regime[blue].HexSprite = 7;
    Regime[red].PP = 120;
    Game.CurRegime = red;
    Game.Turn = 4;
    UI.EditMode = 0;
    for (int x = 1; x <= 10; ++x) {
      for (int y = 1; y <= 10; ++y) {
        Hex[x][y].Mark = 999;
        Hex[x][y].Vis = 3;
        for (int s = 1; s <= kShqCap; ++s) Hex[x][y].ShqDist[s] = 999;
      }
    }
    rifles = test::world::AddType("Rifles", kLandTheater, 1);
    Type[rifles].Sprite = 1;
  }
  void TearDown() override {
    InstallPanelHexCanvas(nullptr);
    CoreTest::TearDown();
  }

  void Select(int x, int y, int slot) {
    UI.SelX = x;
    UI.SelY = y;
    UI.SelSlot = slot;
  }

  RecordingCanvas hexPicture;
  int red = 0, blue = 0, rifles = 0;
};

// ---- Status labels and the empty panel --------------------------------------------

TEST_F(PanelTest, StatusLabelsOfTheCurrentRegime) {
  Refresh(3, 3);
  EXPECT_EQ(Panel.regimeText, "Red");
  EXPECT_EQ(Panel.turnText, "4");
  EXPECT_EQ(Panel.ppText, "120");
  EXPECT_EQ(UI.RegimeLabel, "Red");
  EXPECT_EQ(UI.TurnLabel, "4");
}

TEST_F(PanelTest, OffTheMapOnlyTheStatusLabels) {
  Hex[3][3].Land = kForest;
  Refresh(0, 3);
  EXPECT_EQ(Panel.regimeText, "Red");
  EXPECT_FALSE(Panel.hexShown);
  EXPECT_EQ(Panel.landText, "");
  EXPECT_EQ(Panel.supplyText, "");
  EXPECT_EQ(Panel.supplyIcon, 0);
  EXPECT_FALSE(Panel.hexPictureShown);
  EXPECT_TRUE(hexPicture.Ops().empty());
  Refresh(11, 3);
  EXPECT_FALSE(Panel.hexShown);
}

TEST_F(PanelTest, InTheEditorTheLabelsKeepWhatTheEditorWrote) {
  Game.CurRegime = 0;
  UI.RegimeLabel = "Editing";
  UI.TurnLabel = "0";
  Refresh(3, 3);
  EXPECT_EQ(Panel.regimeText, "Editing");
  EXPECT_EQ(Panel.ppText, "");
  EXPECT_EQ(UI.RegimeLabel, "Editing");
}

TEST_F(PanelTest, ClearPanelsBlanksEverything) {
  Hex[3][3].Owner = red;
  test::world::AddUnit(red, 3, 3, "Rifles", rifles, 10);
  Select(3, 3, 1);
  Refresh(3, 3);
  ASSERT_TRUE(Panel.unitShown);
  ClearPanels();
  EXPECT_FALSE(Panel.hexShown);
  EXPECT_FALSE(Panel.unitShown);
  EXPECT_FALSE(Panel.stack[1].shown);
  EXPECT_EQ(Panel.unitName, "");
  EXPECT_EQ(Panel.regimeText, "");
  EXPECT_EQ(Panel.troops[1].typeText, "");
}

// ---- Supply of the hex --------------------------------------------------------------

class PanelSupplyTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    Shq[red][1].Unit = 50;
  }
  // Supply of (3, 3) reached by SHQ number 1 at cost h.
  void Reach(int h, int sea = 0, int port = 0) {
    Hex[3][3].ShqDist[1] = static_cast<Short>(h);
    Hex[3][3].ShqPrev1[1] = static_cast<Short>(sea);
    Hex[3][3].ShqPrev3[1] = static_cast<Short>(port);
    Refresh(3, 3);
  }
};

TEST_F(PanelSupplyTest, OverLandByTheCostOfTheRoute) {
  // Row 230 at 30: the steps lie above 15, 18, 21, 24 and 27.
  const struct { int h; const char* text; Colour colour; } cases[] = {
      {0, "100%", kColourGreen},  {15, "100%", kColourGreen}, {16, "80%", kColourGreen},
      {18, "80%", kColourGreen},  {19, "65%", kColourYellow}, {21, "65%", kColourYellow},
      {22, "50%", kColourYellow}, {24, "50%", kColourYellow}, {25, "35%", kColourRed},
      {27, "35%", kColourRed},    {28, "20%", kColourRed},    {30, "20%", kColourRed},
  };
  for (const auto& c : cases) {
    Reach(c.h);
    EXPECT_EQ(Panel.supplyIcon, 842) << c.h;
    EXPECT_EQ(Panel.supplyText, c.text) << c.h;
    EXPECT_EQ(Panel.supplyColour, c.colour) << c.h;
  }
}

TEST_F(PanelSupplyTest, OverOpenShoreTheLowerSeries) {
  const struct { int h; const char* text; Colour colour; } cases[] = {
      {0, "50%", kColourGreen}, {16, "40%", kColourGreen}, {20, "32%", kColourYellow},
      {22, "25%", kColourYellow}, {25, "17%", kColourRed}, {28, "10%", kColourRed},
  };
  for (const auto& c : cases) {
    Reach(c.h, 3, -1);
    EXPECT_EQ(Panel.supplyIcon, 841) << c.h;
    EXPECT_EQ(Panel.supplyText, c.text) << c.h;
    EXPECT_EQ(Panel.supplyColour, c.colour) << c.h;
  }
}

TEST_F(PanelSupplyTest, OverTheSeaThroughAPort) {
  Reach(10, 2, 7);
  EXPECT_EQ(Panel.supplyIcon, 844);
  EXPECT_EQ(Panel.supplyText, "100%");
  EXPECT_EQ(Panel.supplyColour, kColourGreen);
}

TEST_F(PanelSupplyTest, TheNearestSupplyHeadquartersCounts) {
  Shq[red][2].Unit = 51;
  Hex[3][3].ShqDist[2] = 10;  // over land
  Reach(20, 3, -1);           // SHQ 1 over open shore
  EXPECT_EQ(Panel.supplyIcon, 842);
  EXPECT_EQ(Panel.supplyText, "100%");
  // A number without an SHQ does not count, whatever its plane holds.
  Hex[3][3].ShqDist[3] = 0;
  Hex[3][3].ShqDist[2] = 25;
  Refresh(3, 3);
  EXPECT_EQ(Panel.supplyIcon, 841);
  EXPECT_EQ(Panel.supplyText, "32%");
  // The planes hold the current regime's SHQ numbers: Blue, which has no
  // SHQ, reads no supply from them.
  Game.CurRegime = blue;
  Refresh(3, 3);
  EXPECT_EQ(Panel.supplyIcon, 843);
}

TEST_F(PanelSupplyTest, NoSupplyHeadquartersReaches) {
  Reach(999);
  EXPECT_EQ(Panel.supplyIcon, 843);
  // The label follows the cost as it stands.
  EXPECT_EQ(Panel.supplyText, "20%");
  EXPECT_EQ(Panel.supplyColour, kColourRed);
  Shq[red][1].Unit = 0;
  Reach(5);
  EXPECT_EQ(Panel.supplyIcon, 843);
}

TEST_F(PanelSupplyTest, TheStepsFollowRow230) {
  EngineVar[230].Value = 40;
  // Above 20, 24, 28, 32 and 36.
  Reach(22);
  EXPECT_EQ(Panel.supplyText, "80%");
  EXPECT_EQ(Panel.supplyColour, kColourGreen);
  Reach(25);
  EXPECT_EQ(Panel.supplyText, "65%");
  EXPECT_EQ(Panel.supplyColour, kColourYellow);
  Reach(33);
  EXPECT_EQ(Panel.supplyText, "35%");
  EXPECT_EQ(Panel.supplyColour, kColourRed);
}

// ---- Land, town and owner -------------------------------------------------------------

TEST_F(PanelTest, LandLabelByLandscape) {
  const struct { Long land; Long owner; const char* text; } cases[] = {
      {kGrass, 1, "Plains"}, {kForest, 1, "Forest"}, {kSwamp, 2, "Swamp"}, {kMountain, 1, "Mountains"},
      {kSea, 0, "Sea"},      {kGrass, 0, "Plains"},  {kUrban, 0, "Neutral Territory"}, {kUrban, 1, ""},
  };
  for (const auto& c : cases) {
    Hex[3][3].Land = c.land;
    Hex[3][3].Owner = c.owner;
    Refresh(3, 3);
    EXPECT_EQ(Panel.landText, c.text) << c.land << " " << c.owner;
  }
}

class PanelTownTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    Hex[3][3].Land = kUrban;
    Hex[3][3].Pop = 4500;
    Hex[3][3].UrbanName = "Tollham";
    Hex[3][3].Owner = red;
    Type[rifles].Cost = 1000;
    shq = test::world::AddUnit(red, 5, 5, "Army HQ");
    Unit[shq].Shq = 1;
    Hex[3][3].ProdSHQ = shq;
  }
  int shq = 0;
};

TEST_F(PanelTownTest, NamePopulationProductionAndItsShq) {
  Hex[3][3].Prod = rifles;
  Refresh(3, 3);
  EXPECT_TRUE(Panel.urbanShown);
  EXPECT_EQ(Panel.urbanName, "Tollham");
  EXPECT_EQ(Panel.urbanPop, "4500");
  // 4500 / 1000 = 4 pieces a turn.
  EXPECT_EQ(Panel.urbanProd, "4x Rifles");
  EXPECT_EQ(Panel.urbanShq, "SHQ: Army HQ");
  // (3, 3) to (5, 5): three hexes.
  EXPECT_EQ(Panel.urbanDistance, "3 hex");
  EXPECT_EQ(Panel.urbanDamage, "");
}

TEST_F(PanelTownTest, SupplyAndPoliticalPointsWithDamage) {
  Hex[3][3].Damage = 20;
  Hex[3][3].Prod = -1;
  Refresh(3, 3);
  // Int(4500 / 100 x 80 / 10) = 360, times row 237 (3).
  EXPECT_EQ(Panel.urbanProd, "1080 Extra Supply Points");
  EXPECT_EQ(Panel.urbanDamage, "(20% DAM)");
  Hex[3][3].Prod = 0;
  Refresh(3, 3);
  // 0.8 x 4500 / 2000 = 1.8: one point.
  EXPECT_EQ(Panel.urbanProd, "1 Political Point(s)");
}

TEST_F(PanelTownTest, WithoutAnShq) {
  Hex[3][3].ProdSHQ = 0;
  Refresh(3, 3);
  EXPECT_EQ(Panel.urbanShq, "SHQ: None");
  EXPECT_EQ(Panel.urbanDistance, "");
}

TEST_F(PanelTownTest, AForeignTownUnderFogKeepsItsProductionHidden) {
  Hex[3][3].Owner = blue;
  Hex[3][3].Prod = rifles;
  Game.FogOfWar = 1;
  Refresh(3, 3);
  EXPECT_EQ(Panel.urbanName, "Tollham");
  EXPECT_EQ(Panel.urbanPop, "4500");
  EXPECT_EQ(Panel.urbanProd, "N/A");
  EXPECT_EQ(Panel.urbanShq, "SHQ: N/A");
  Game.FogOfWar = 0;
  Refresh(3, 3);
  EXPECT_EQ(Panel.urbanProd, "4x Rifles");
}

TEST_F(PanelTest, NoTownNoTownLines) {
  Refresh(3, 3);
  EXPECT_FALSE(Panel.urbanShown);
  EXPECT_EQ(Panel.urbanName, "");
}

TEST_F(PanelTest, OwnerFlagAndTheHexPictureOfAnEmptyHex) {
  Hex[3][3].Owner = red;
  Hex[3][3].Land = kForest;
  Refresh(3, 3);
  EXPECT_EQ(Panel.ownerFlag, 23);
  EXPECT_EQ(Panel.ownerText, "Red");
  EXPECT_TRUE(Panel.hexPictureShown);
  EXPECT_FALSE(Panel.unitPictureShown);
  EXPECT_EQ(Panel.hexCaption, "Red hex");
  // The hex is drawn into the panel by the terrain layer, pass 2.
  EXPECT_EQ(hexPicture.Ops(), (Ops{"clear", "blit 23 0 0", "blit 1500 0 0"}));
}

TEST_F(PanelTest, NeutralAndSeaHexes) {
  Refresh(3, 3);
  EXPECT_EQ(Panel.ownerFlag, 0);
  EXPECT_EQ(Panel.ownerText, "Neutral hex");
  EXPECT_EQ(Panel.hexCaption, "Neutral hex");
  Hex[3][3].Land = kSea;
  Refresh(3, 3);
  EXPECT_EQ(Panel.ownerText, "Sea hex");
  EXPECT_EQ(Panel.hexCaption, "Sea hex");
}

// ---- Formations --------------------------------------------------------------------------

class PanelUnitTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    Hex[3][3].Owner = red;
    shq = test::world::AddUnit(red, 5, 5, "Army HQ");
    Unit[shq].Shq = 1;
    Shq[red][1].Unit = shq;
    thq = test::world::AddUnit(red, 5, 5, "II Corps");
    Unit[thq].Thq = 1;
    Unit[thq].Boss = shq;
    u = test::world::AddUnit(red, 3, 3, "3rd Rifles", rifles, 10);
    Unit[u].Boss = thq;
    Unit[u].Readiness = 80;
    Unit[u].Experience = 50;
    Unit[u].SupplyPct = 75;
    Unit[u].MP = 6;
    Officer[4].Name = "Col. Amsel";
    Officer[4].Pic = 12;
    Unit[u].Officer = 4;
    Select(3, 3, 1);
  }
  int shq = 0, thq = 0, u = 0;
};

TEST_F(PanelUnitTest, OwnFormationShowsItsValues) {
  Refresh(3, 3);
  EXPECT_TRUE(Panel.unitShown);
  EXPECT_EQ(Panel.unit, u);
  EXPECT_EQ(Panel.unitName, "3rd Rifles");
  EXPECT_EQ(Panel.readinessText, "80");
  EXPECT_EQ(Panel.experienceText, "50");
  EXPECT_EQ(Panel.supplyPctText, "75%");
  EXPECT_EQ(Panel.mpText, "6");
  EXPECT_EQ(Panel.officerText, "Col. Amsel");
  EXPECT_EQ(Panel.officerPicture, 1812);
  EXPECT_TRUE(Panel.unitPictureShown);
  EXPECT_EQ(Panel.unitPicture, Unit[u].CounterPic);
  EXPECT_FALSE(Panel.hexPictureShown);
  EXPECT_TRUE(hexPicture.Ops().empty());
  EXPECT_EQ(Panel.troops[1].typeText, "Rifles");
  EXPECT_EQ(Panel.troops[1].qtyText, "x 10");
  EXPECT_EQ(Panel.troops[1].picture, 501);
}

TEST_F(PanelUnitTest, WithoutOfficer) {
  Unit[u].Officer = 0;
  Refresh(3, 3);
  EXPECT_EQ(Panel.officerText, "None");
  EXPECT_EQ(Panel.officerPicture, 0);
}

TEST_F(PanelUnitTest, ShqShowsItsStockAndPoolTransport) {
  Unit[shq].SupplyPct = 2500;
  Shq[red][1].Carry = 12500;
  Select(5, 5, 1);
  Refresh(5, 5);
  EXPECT_EQ(Panel.unitName, "Army HQ");
  EXPECT_EQ(Panel.supplyPctText, "2500");
  // Int(12500 / 1000).
  EXPECT_EQ(Panel.kcapText, "12Kcap");
  Shq[red][1].Carry = 999;
  Refresh(5, 5);
  EXPECT_EQ(Panel.kcapText, "0Kcap");
  // Formations carry no pool.
  Select(5, 5, 2);
  Refresh(5, 5);
  EXPECT_EQ(Panel.unitName, "II Corps");
  EXPECT_EQ(Panel.kcapText, "");
}

TEST_F(PanelUnitTest, ForeignFormationUnderFogIsMasked) {
  Unit[u].Regime = blue;
  Hex[3][3].Owner = blue;
  Game.FogOfWar = 1;
  Hex[3][3].Vis = 1;
  Refresh(3, 3);
  EXPECT_TRUE(Panel.unitShown);
  EXPECT_EQ(Panel.unitName, "3rd Rifles");
  EXPECT_EQ(Panel.readinessText, "N/A");
  EXPECT_EQ(Panel.experienceText, "N/A");
  EXPECT_EQ(Panel.supplyPctText, "N/A");
  EXPECT_EQ(Panel.mpText, "N/A");
  EXPECT_EQ(Panel.officerText, "N/A");
  EXPECT_EQ(Panel.officerPicture, 0);
  EXPECT_EQ(Panel.thqName, "N/A");
  EXPECT_EQ(Panel.shqName, "N/A");
  EXPECT_EQ(Panel.troops[1].typeText, "Rifles");
  EXPECT_EQ(Panel.troops[1].qtyText, "x N/A");
  EXPECT_EQ(Panel.troops[1].extraText, "");
  EXPECT_EQ(Panel.stack[1].mp, -1);
  // Without fog of war all is shown.
  Game.FogOfWar = 0;
  Refresh(3, 3);
  EXPECT_EQ(Panel.readinessText, "80");
  EXPECT_EQ(Panel.troops[1].qtyText, "x 10");
  EXPECT_EQ(Panel.thqName, "II Corps");
  EXPECT_EQ(Panel.stack[1].mp, 6);
  // And the editor sees everything.
  Game.FogOfWar = 1;
  UI.EditMode = 1;
  Refresh(3, 3);
  EXPECT_EQ(Panel.readinessText, "80");
}

TEST_F(PanelUnitTest, UnitsOutOfSightAreNotShown) {
  Unit[u].Regime = blue;
  Hex[3][3].Owner = blue;
  Game.FogOfWar = 1;
  Hex[3][3].Vis = 0;
  Refresh(3, 3);
  EXPECT_FALSE(Panel.unitShown);
  EXPECT_FALSE(Panel.unitPictureShown);
  EXPECT_FALSE(Panel.stack[1].shown);
  EXPECT_EQ(Panel.unitName, "");
  EXPECT_TRUE(Panel.hexPictureShown);
  EXPECT_EQ(Panel.hexCaption, "Blue hex");
  EXPECT_EQ(hexPicture.Ops(), (Ops{"clear", "blit 27 0 0"}));
}

TEST_F(PanelUnitTest, ChainOfCommand) {
  Refresh(3, 3);
  EXPECT_EQ(Panel.thqText, "THQ");
  EXPECT_EQ(Panel.thqName, "II Corps");
  EXPECT_EQ(Panel.shqText, "SHQ");
  EXPECT_EQ(Panel.shqName, "Army HQ");
  EXPECT_EQ(Panel.playerText, "PLA");
  EXPECT_EQ(Panel.playerName, "HUMAN");
  // Directly under the SHQ.
  Unit[u].Boss = shq;
  Refresh(3, 3);
  EXPECT_EQ(Panel.thqName, "None assigned");
  EXPECT_EQ(Panel.shqName, "Army HQ");
  // No boss at all.
  Unit[u].Boss = 0;
  Refresh(3, 3);
  EXPECT_EQ(Panel.thqName, "None assigned");
  EXPECT_EQ(Panel.shqName, "None assigned");
  // A THQ names its SHQ.
  Select(5, 5, 2);
  Refresh(5, 5);
  EXPECT_EQ(Panel.thqName, "None assigned");
  EXPECT_EQ(Panel.shqName, "Army HQ");
  // A computer regime's formation.
  Regime[red].AI = 1;
  Refresh(5, 5);
  EXPECT_EQ(Panel.playerName, "AI");
}

TEST_F(PanelUnitTest, StackOfThreeSmallCounters) {
  const int second = test::world::AddUnit(red, 3, 3, "4th Rifles", rifles, 5);
  const int third = test::world::AddUnit(red, 3, 3, "Corps HQ");
  Unit[third].Thq = 2;
  Unit[second].Boss = third;
  Unit[second].MP = 2;
  Regime[red].ThqBadgeUnit[1] = thq;
  Select(3, 3, 2);
  Refresh(3, 3);
  EXPECT_EQ(Panel.unitName, "4th Rifles");
  for (int s = 1; s <= 3; ++s) EXPECT_TRUE(Panel.stack[s].shown) << s;
  EXPECT_EQ(Panel.stack[1].unit, u);
  EXPECT_EQ(Panel.stack[2].unit, second);
  EXPECT_EQ(Panel.stack[3].unit, third);
  EXPECT_FALSE(Panel.stack[1].selected);
  EXPECT_TRUE(Panel.stack[2].selected);
  EXPECT_FALSE(Panel.stack[3].selected);
  EXPECT_EQ(Panel.stack[2].picture, Unit[second].CounterPic);
  EXPECT_EQ(Panel.stack[2].mp, 2);
  // The corps HQ takes badge 2 (1 is II Corps'), and its formation wears it.
  EXPECT_EQ(Panel.stack[3].badge, 852);
  EXPECT_EQ(Panel.stack[2].badge, 852);
  // The first formation is under II Corps, which holds badge 1.
  EXPECT_EQ(Panel.stack[1].badge, 851);
}

TEST_F(PanelTest, EmptyClassesNamedByTheater) {
  const int land = test::world::AddUnit(red, 3, 3, "Land");
  Select(3, 3, 1);
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[1].typeText, "Soldier type");
  EXPECT_EQ(Panel.troops[2].typeText, "Mobile type");
  EXPECT_EQ(Panel.troops[3].typeText, "Artillery type");
  EXPECT_EQ(Panel.troops[4].typeText, "Armour type");
  EXPECT_EQ(Panel.troops[1].qtyText, "");
  EXPECT_EQ(Panel.troops[1].picture, 0);
  Unit[land].Theater = kSeaTheater;
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[1].typeText, "Warship type");
  EXPECT_EQ(Panel.troops[2].typeText, "Cargo type");
  EXPECT_EQ(Panel.troops[3].typeText, "Carrier type");
  EXPECT_EQ(Panel.troops[4].typeText, "Submarine type");
  Unit[land].Theater = kAirTheater;
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[1].typeText, "Fighter type");
  EXPECT_EQ(Panel.troops[2].typeText, "Transport type");
  EXPECT_EQ(Panel.troops[3].typeText, "Bomber type");
  EXPECT_EQ(Panel.troops[4].typeText, "n/a");
}

// ---- Frontage and guns ---------------------------------------------------------------------

class PanelFrontTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    EngineVar[538].Value = 60;  // a third is 20
    Type[rifles].Attr[kFrontsize] = 1;
    Type[rifles].Attr[kWeight] = 2;
    tanks = test::world::AddType("Tanks", kLandTheater, 4);
    Type[tanks].Attr[kFrontsize] = 10;
    Type[tanks].Attr[kCarryCap] = 15;
    fieldGuns = test::world::AddType("Field guns", kLandTheater, 3);
    Type[fieldGuns].Attr[kFrontsize] = 10;
    Type[fieldGuns].Attr[kArtilleryRange] = 1;
    heavyGuns = test::world::AddType("Heavy guns", kLandTheater, 3);
    Type[heavyGuns].Attr[kFrontsize] = 10;
    Type[heavyGuns].Attr[kArtilleryRange] = 3;
    u = test::world::AddUnit(red, 3, 3, "Kampfgruppe", rifles, 40);
    Unit[u].ArmType = tanks;
    Unit[u].ArmQty = 3;
    Select(3, 3, 1);
  }
  int tanks = 0, fieldGuns = 0, heavyGuns = 0, u = 0;
};

TEST_F(PanelFrontTest, LoneAttackerFrontage) {
  // Infantry 40 (front 40) and armour 3 (front 30) take a third, 20, each;
  // the 10 left go out one a round as in a battle: in the first round the
  // empty artillery class also takes a point (its 0 is at least its 0), so
  // infantry and armour reach 30 with nothing left.
  double inf = 0, art = 0, arm = 0;
  LoneFrontage(u, &inf, &art, &arm);
  EXPECT_DOUBLE_EQ(inf, 30);
  EXPECT_DOUBLE_EQ(art, 1);
  EXPECT_DOUBLE_EQ(arm, 30);
  // Field guns (front 2 x 10 = 20) stand in the line and take their third:
  // 20, 20, 20 and nothing left.
  Unit[u].ArtType = fieldGuns;
  Unit[u].ArtQty = 2;
  LoneFrontage(u, &inf, &art, &arm);
  EXPECT_DOUBLE_EQ(inf, 20);
  EXPECT_DOUBLE_EQ(art, 20);
  EXPECT_DOUBLE_EQ(arm, 20);
  // Heavy guns stand behind the line.
  Unit[u].ArtType = heavyGuns;
  LoneFrontage(u, &inf, &art, &arm);
  EXPECT_DOUBLE_EQ(inf, 30);
  EXPECT_DOUBLE_EQ(art, 0);
  EXPECT_DOUBLE_EQ(arm, 30);
  // A class may end one above what it fills: 10 infantry alone take 10, then
  // 11; the empty armour class takes its one point as in a battle.
  Unit[u].InfQty = 10;
  Unit[u].ArmQty = 0;
  LoneFrontage(u, &inf, &art, &arm);
  EXPECT_DOUBLE_EQ(inf, 11);
  EXPECT_DOUBLE_EQ(arm, 1);
}

TEST_F(PanelFrontTest, CoverOfTheInfantryInTheLine) {
  // fi = Int(100 x 30 / 40) = 75, fa = 100; c = Int(15 x 3 / 2) = 22;
  // 22 < Int(40 x 75 / 100) = 30: Int(22 / 30 x 100) = 73.
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[1].extraText, "COV: 73%");
  EXPECT_EQ(CoverText(u), "COV: 73%");
  // Four tanks (front 40): fa = Int(100 x 30 / 40) = 75; c = Int(60 / 2) = 30,
  // x 75 / 100 = 22.5; 22.5 < 30: Int(22.5 / 30 x 100) = 75.
  Unit[u].ArmQty = 4;
  EXPECT_EQ(CoverText(u), "COV: 75%");
  // Tanks of carry 20, three of them: c = 30, not below 30: all.
  Unit[u].ArmQty = 3;
  Type[tanks].Attr[kCarryCap] = 20;
  EXPECT_EQ(CoverText(u), "COV: ALL");
}

TEST_F(PanelFrontTest, FieldGunsNarrowTheLine) {
  Unit[u].ArtType = fieldGuns;
  Unit[u].ArtQty = 2;
  // Frontages 20, 20, 20: fi = 50, fa = Int(100 x 20 / 30) = 66; c = 22 x 66 / 100
  // = 14.52 below Int(40 x 50 / 100) = 20: Int(14.52 / 20 x 100) = 72.
  EXPECT_EQ(CoverText(u), "COV: 72%");
}

TEST_F(PanelFrontTest, NoArmourOrNoInfantry) {
  // Ten riflemen, no tanks: c = 0 below 10: 0%.
  Unit[u].InfQty = 10;
  Unit[u].ArmQty = 0;
  Unit[u].ArmType = 0;
  EXPECT_EQ(CoverText(u), "COV: 0%");
  // Tanks and no infantry type: nothing to carry.
  Unit[u].InfType = 0;
  Unit[u].InfQty = 0;
  Unit[u].ArmType = tanks;
  Unit[u].ArmQty = 3;
  EXPECT_EQ(CoverText(u), "COV: ALL");
  // Ships and aircraft have no such line.
  Unit[u].Theater = kSeaTheater;
  EXPECT_EQ(CoverText(u), "");
}

TEST_F(PanelFrontTest, ArtilleryPictureCarriesItsRange) {
  Unit[u].ArtType = heavyGuns;
  Unit[u].ArtQty = 2;
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[3].extraText, "RANGE: 3");
  Unit[u].ArtType = fieldGuns;
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[3].extraText, "FRONT ART");
  // No guns, no line.
  Unit[u].ArtType = 0;
  Unit[u].ArtQty = 0;
  Refresh(3, 3);
  EXPECT_EQ(Panel.troops[3].extraText, "");
}

}  // namespace
}  // namespace mf
