// New formations, THQs and SHQs, the New Unit dialog, and headquarters
// leaving the chain of command.
#include "orders/new_units.h"
#include "orgs_test_util.h"
#include "view/counter.h"

namespace mf::test {
namespace {

class NewUnitTest : public OrgsTest {
 protected:
  void SetUp() override {
    OrgsTest::SetUp();
    MakeMap();
    Regime[red].PP = 10;
    Select(5, 5);
  }
  bool Do(NewUnitDialog& d, const std::string& action) {
    std::string why;
    const bool ok = d.Act(action, "", &why);
    last = why;
    return ok;
  }
  std::string last;
};

TEST_F(NewUnitTest, Ordinals) {
  EXPECT_EQ(Ordinal(1), "1st");
  EXPECT_EQ(Ordinal(2), "2nd");
  EXPECT_EQ(Ordinal(3), "3th");
  EXPECT_EQ(Ordinal(11), "11th");
  EXPECT_EQ(Ordinal(21), "21th");
  EXPECT_EQ(Ordinal(22), "22th");
}

TEST_F(NewUnitTest, CaptionsCarryThePrices) {
  NewUnitDialog d;
  d.Prepare();
  EXPECT_EQ(NewUnitDialog::kCaption, std::string("Create what kind of unit?"));
  EXPECT_EQ(d.caption[NewUnitDialog::kLand], "Land Formation = 1pp");
  EXPECT_EQ(d.caption[NewUnitDialog::kNavy], "Navy Fleet = 1pp");
  EXPECT_EQ(d.caption[NewUnitDialog::kAir], "Air Wing = 1pp");
  EXPECT_EQ(d.caption[NewUnitDialog::kThq], "THQ = 3pp");
  EXPECT_EQ(d.caption[NewUnitDialog::kShq], "SHQ = 5pp");
  EngineVar[614].Value = 12;
  d.Prepare();
  EXPECT_EQ(d.caption[NewUnitDialog::kThq], "THQ = 12pp");
}

TEST_F(NewUnitTest, WithFourPointsTheShqButtonIsOffAndTheThqButtonOn) {
  Regime[red].PP = 4;
  NewUnitDialog d;
  d.Prepare();
  EXPECT_TRUE(d.enabled[NewUnitDialog::kLand]);
  EXPECT_FALSE(d.enabled[NewUnitDialog::kNavy]);  // grass, no port
  EXPECT_TRUE(d.enabled[NewUnitDialog::kAir]);    // grass
  EXPECT_TRUE(d.enabled[NewUnitDialog::kThq]);
  EXPECT_FALSE(d.enabled[NewUnitDialog::kShq]);
  Regime[red].PP = 5;
  d.Prepare();
  EXPECT_TRUE(d.enabled[NewUnitDialog::kShq]);
  Regime[red].PP = 2;
  d.Prepare();
  EXPECT_FALSE(d.enabled[NewUnitDialog::kThq]);
  EXPECT_TRUE(d.enabled[NewUnitDialog::kLand]);
  Regime[red].PP = 0;
  d.Prepare();
  EXPECT_FALSE(d.enabled[NewUnitDialog::kLand]);
  EXPECT_FALSE(d.enabled[NewUnitDialog::kAir]);
}

TEST_F(NewUnitTest, FleetsComeFromPortsAndWingsFromOpenGroundOrTowns) {
  Hex[5][5].Land = kUrban;
  NewUnitDialog d;
  d.Prepare();
  EXPECT_FALSE(d.enabled[NewUnitDialog::kNavy]);  // a town with no sea beside it
  EXPECT_TRUE(d.enabled[NewUnitDialog::kAir]);
  Hex[5][4].Land = kSea;  // direction 1 of (5, 5)
  d.Prepare();
  EXPECT_TRUE(d.enabled[NewUnitDialog::kNavy]);
  Hex[5][5].Land = kForest;
  d.Prepare();
  EXPECT_FALSE(d.enabled[NewUnitDialog::kNavy]);
  EXPECT_FALSE(d.enabled[NewUnitDialog::kAir]);
  EXPECT_TRUE(d.enabled[NewUnitDialog::kLand]);
  Hex[5][5].Land = kMountain;
  d.Prepare();
  EXPECT_FALSE(d.enabled[NewUnitDialog::kAir]);
}

TEST_F(NewUnitTest, AFullHexTakesNobody) {
  for (int i = 0; i < 3; ++i) AddFormation(red, 5, 5, 0, 10, "F" + std::to_string(i));
  Select(5, 5);
  NewUnitDialog d;
  d.Prepare();
  for (int k = 0; k < NewUnitDialog::kKinds; ++k) EXPECT_FALSE(d.enabled[k]) << k;
  EXPECT_FALSE(Do(d, "land"));
  EXPECT_EQ(last, "the button \"Land Formation = 1pp\" is disabled");
  const long units = Game.UnitCount;
  EXPECT_EQ(NewFormation(kLandTheater), 0);
  EXPECT_EQ(Regime[red].UnitSerial, 0);
  EXPECT_EQ(Regime[red].PP, 10);
  EXPECT_EQ(Unit[units + 1].Regime, 0);
  // And the map button is off there too.
  RefreshButtons();
  EXPECT_FALSE(Buttons.order[kBtnNewUnit].enabled);
}

TEST_F(NewUnitTest, NewFormationIsNamedPricedAndCommanded) {
  const int u = NewFormation(kLandTheater);
  ASSERT_GT(u, 0);
  EXPECT_EQ(Hex[5][5].Unit[1], u);
  EXPECT_EQ(Unit[u].Name, "1st Bataljon");
  EXPECT_EQ(Unit[u].Regime, red);
  EXPECT_EQ(Unit[u].Theater, kLandTheater);
  EXPECT_EQ(Unit[u].MP, 0);
  EXPECT_EQ(Unit[u].Readiness, 50);
  EXPECT_EQ(Unit[u].Experience, 25);
  EXPECT_EQ(Unit[u].SupplyPct, 0);
  EXPECT_EQ(Unit[u].Disruption, 25);
  EXPECT_EQ(Unit[u].InfQty + Unit[u].MobQty + Unit[u].ArtQty + Unit[u].ArmQty, 0);
  EXPECT_EQ(Unit[u].Boss, 0);
  EXPECT_EQ(Regime[red].PP, 9);
  EXPECT_EQ(Regime[red].UnitSerial, 1);
  ASSERT_GT(Unit[u].Officer, 0);
  EXPECT_EQ(Officer[Unit[u].Officer].InPool, 0);
  EXPECT_EQ(Officer[Unit[u].Officer].Regime, red);
  // Its counter is the regime's, in the colour of a formation cut off from supply.
  EXPECT_EQ(Unit[u].CounterPic, 180 + 20 * kFamilyInfantry + kCounterNoSupply);
  // The selection is on it.
  EXPECT_EQ(UI.SelSlot, 1);
  EXPECT_EQ(UI.SelCount, 1);

  const int v = NewFormation(kSeaTheater);
  EXPECT_EQ(Unit[v].Name, "2nd Bataljon");
  EXPECT_EQ(Unit[v].Theater, kSeaTheater);
  EXPECT_EQ(Hex[5][5].Unit[2], v);
  EngineVar[613].Value = 4;
  const int w = NewFormation(kAirTheater);
  EXPECT_EQ(Unit[w].Name, "3th Bataljon");
  EXPECT_EQ(Unit[w].Theater, kAirTheater);
  EXPECT_EQ(Regime[red].PP, 10 - 1 - 1 - 4);
}

TEST_F(NewUnitTest, AFreedNumberStartsClean) {
  const int old = world::AddUnit(red, 9, 9, "Old", rifle, 40);
  Unit[old].Cargo = 7;
  Unit[old].Officer = 9;
  Unit[old].Regime = 0;  // disbanded
  Hex[9][9].Unit[1] = 0;
  const int u = NewFormation(kLandTheater);
  ASSERT_EQ(u, old);
  EXPECT_EQ(Unit[u].InfQty, 0);
  EXPECT_EQ(Unit[u].InfType, 0);
  EXPECT_EQ(Unit[u].Cargo, 0);
  EXPECT_NE(Unit[u].Officer, 9);
}

TEST_F(NewUnitTest, EditorMakesUnitsFreeAndUndisrupted) {
  UI.EditMode = 1;
  const int u = NewFormation(kLandTheater);
  EXPECT_EQ(Unit[u].Disruption, 0);
  EXPECT_EQ(Regime[red].PP, 10);
}

TEST_F(NewUnitTest, ThqIsNamedByThePlayer) {
  platform.QueueAnswer("Northern Group");
  const int u = NewThq();
  ASSERT_GT(u, 0);
  EXPECT_EQ(Prompts(), std::vector<std::string>{
                           "[Marrowfield] Give a name to the new Tactical HQ. -> Northern Group"});
  EXPECT_EQ(Unit[u].Name, "Northern Group");
  EXPECT_EQ(Unit[u].Thq, 1);
  EXPECT_EQ(Unit[u].Shq, 0);
  EXPECT_EQ(Unit[u].Readiness, 50);
  EXPECT_EQ(Unit[u].Experience, 25);
  EXPECT_EQ(Unit[u].Disruption, 25);
  EXPECT_EQ(Regime[red].PP, 7);
  EXPECT_EQ(Regime[red].UnitSerial, 1);
  // It wears the regime's first free badge.
  EXPECT_EQ(Unit[u].ThqBadge, 1);
  EXPECT_EQ(Regime[red].ThqBadgeUnit[1], u);
  EXPECT_GT(Unit[u].Officer, 0);
}

TEST_F(NewUnitTest, ThqNameOfferedAndItsLimits) {
  Regime[red].UnitSerial = 1;
  // The offer taken as it stands.
  int u = NewThq();
  EXPECT_EQ(Unit[u].Name, "THQ 2nd");
  // Seventeen characters are cut to sixteen.
  platform.QueueAnswer("Seventeen letters");
  u = NewThq();
  EXPECT_EQ(Unit[u].Name, "Seventeen letter");
  // One character cancels: no unit, no point, no serial.
  const long pp = Regime[red].PP;
  platform.QueueAnswer("X");
  EXPECT_EQ(NewThq(), 0);
  EXPECT_EQ(Regime[red].PP, pp);
  EXPECT_EQ(Regime[red].UnitSerial, 3);
  EXPECT_EQ(Hex[5][5].Unit[3], 0);
  EXPECT_EQ(Prompts().back(), "[Marrowfield] Give a name to the new Tactical HQ. -> X");
  // A cancelled prompt as well; two characters are enough.
  platform.QueueAnswer("cancel");
  EXPECT_EQ(NewThq(), 0);
  platform.QueueAnswer("AB");
  u = NewThq();
  EXPECT_EQ(Unit[u].Name, "AB");
  // The computer takes the offer without a prompt.
  Select(7, 7);
  const std::size_t prompts = Prompts().size();
  u = NewThq(false);
  EXPECT_EQ(Unit[u].Name, "THQ 5th");
  EXPECT_EQ(Prompts().size(), prompts);
}

TEST_F(NewUnitTest, ShqTakesTheNextNumberAndAnEmptyPool) {
  const int first = AddShq(red, 1, 1, 1);
  Shq[red][2].StockType[1] = rifle;  // left over from an SHQ long gone
  Shq[red][2].StockQty[1] = 40;
  Shq[red][2].Carry = 99;
  platform.QueueAnswer("Second Army");
  const int u = NewShq();
  ASSERT_GT(u, 0);
  EXPECT_EQ(Prompts(), std::vector<std::string>{"[Marrowfield] Give a name to the new Strategic HQ. -> Second Army"});
  EXPECT_EQ(Unit[u].Shq, 2);
  EXPECT_EQ(Shq[red][2].Unit, u);
  EXPECT_EQ(Shq[red][1].Unit, first);
  EXPECT_EQ(Shq[red][2].StockQty[1], 0);
  EXPECT_EQ(Shq[red][2].Carry, 0);
  EXPECT_EQ(Unit[u].Name, "Second Army");
  EXPECT_EQ(Unit[u].MP, 0);
  EXPECT_EQ(Unit[u].Readiness, 0);
  EXPECT_EQ(Unit[u].Experience, 0);
  EXPECT_EQ(Unit[u].Theater, kLandTheater);
  EXPECT_EQ(Unit[u].Disruption, 25);
  EXPECT_EQ(Unit[u].SupplyPct, 0);
  EXPECT_EQ(Regime[red].PP, 5);
  EXPECT_GT(Unit[u].Officer, 0);
  // The offered name is the ordinal of the number.
  Select(6, 6);
  const int v = NewShq(false);
  EXPECT_EQ(Unit[v].Name, "SHQ 3th");
}

TEST_F(NewUnitTest, NoShqNumberNoShq) {
  // Fifty SHQs of Red (standing nowhere in particular).
  for (int s = 1; s <= kShqCap; ++s) {
    Unit[100 + s].Regime = red;
    Unit[100 + s].Shq = s;
    Shq[red][s].Unit = 100 + s;
  }
  const long pp = Regime[red].PP;
  EXPECT_EQ(NewShq(false), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"This is a bug. To many SHQs for this player. Game will go beserk now"});
  EXPECT_EQ(Regime[red].PP, pp);
  EXPECT_EQ(Hex[5][5].Unit[1], 0);
}

TEST_F(NewUnitTest, NoUnitNumberNoUnit) {
  for (int u = 1; u <= kUnitCap; ++u) Unit[u].Regime = blue;
  EXPECT_EQ(NewFormation(kLandTheater), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{
                            "You are playing a scenario that has exceed  2000 units. An error has just occured. It is not "
                            "possible to create another unit either for you or for the AI."});
  EXPECT_EQ(Regime[red].UnitSerial, 0);
}

TEST_F(NewUnitTest, DialogThroughTheButton) {
  platform.QueueDialog("newunit", {{"land", ""}});
  ASSERT_TRUE(PressOrderButton(kBtnNewUnit));
  EXPECT_TRUE(platform.lastError.empty()) << platform.lastError;
  const int u = static_cast<int>(Hex[5][5].Unit[1]);
  ASSERT_GT(u, 0);
  EXPECT_EQ(Unit[u].Name, "1st Bataljon");
  // Nothing queued: the dialog is cancelled.
  ASSERT_TRUE(PressOrderButton(kBtnNewUnit));
  EXPECT_EQ(Hex[5][5].Unit[2], 0);
  EXPECT_EQ(platform.Events().back().text, "cancel (default)");
}

TEST_F(NewUnitTest, DialogInTheEditorServesTheHexOwner) {
  UI.EditMode = 1;
  Game.CurRegime = 0;
  Game.Turn = 0;
  Hex[5][5].Owner = blue;
  Regime[blue].PP = 0;
  NewUnitDialog check;
  Game.CurRegime = blue;
  check.Prepare();
  EXPECT_TRUE(check.enabled[NewUnitDialog::kShq]);  // no points needed in the editor
  Game.CurRegime = 0;
  platform.QueueDialog("newunit", {{"shq", ""}});
  NewCommand();
  const int u = static_cast<int>(Hex[5][5].Unit[1]);
  ASSERT_GT(u, 0);
  EXPECT_EQ(Unit[u].Regime, blue);
  EXPECT_EQ(Unit[u].Shq, 1);
  EXPECT_EQ(Shq[blue][1].Unit, u);
  EXPECT_EQ(Unit[u].Disruption, 0);
  EXPECT_EQ(Regime[blue].PP, 0);
  EXPECT_EQ(Game.CurRegime, 0);
}

TEST_F(NewUnitTest, DropThqFreesTheBadgeAndTheFormations) {
  const int shq = AddShq(red, 1, 1, 1);
  const int thq = AddThq(red, 2, 2, shq);
  const int a = AddFormation(red, 3, 3, thq);
  const int b = AddFormation(red, 3, 3, thq, 50, "2nd Bataljon");
  const int other = AddFormation(red, 4, 4, shq, 50, "3th Bataljon");
  Counter(thq);
  Counter(a);
  Counter(b);
  ASSERT_EQ(Unit[a].ThqBadge, 1);
  ASSERT_EQ(Regime[red].ThqBadgeUnit[1], thq);
  DropThq(thq);
  EXPECT_EQ(Regime[red].ThqBadgeUnit[1], 0);
  EXPECT_EQ(Unit[thq].ThqBadge, 0);
  for (int f : {a, b}) {
    EXPECT_EQ(Unit[f].Boss, 0);
    EXPECT_EQ(Unit[f].ThqBadge, 0);
    // Own formations without a boss show it on their counter.
    EXPECT_EQ(Unit[f].CounterPic, 180 + 20 * kFamilyFoot + kCounterNoChain);
  }
  EXPECT_EQ(Unit[other].Boss, shq);
  EXPECT_EQ(Unit[thq].Boss, shq);
  EXPECT_EQ(UI.RedrawRequest, 2);
}

TEST_F(NewUnitTest, DropShqFreesItsNumberAndThoseDirectlyUnder) {
  const int shq = AddShq(red, 1, 1, 4);
  const int thq = AddThq(red, 2, 2, shq);
  const int f = AddFormation(red, 3, 3, thq);
  const int direct = AddFormation(red, 4, 4, shq, 10, "Guards");
  DropShq(shq);
  EXPECT_EQ(Shq[red][4].Unit, 0);
  EXPECT_EQ(Unit[thq].Boss, 0);
  EXPECT_EQ(Unit[direct].Boss, 0);
  EXPECT_EQ(Unit[f].Boss, thq);
}

}  // namespace
}  // namespace mf::test
