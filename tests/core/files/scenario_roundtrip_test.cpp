// Write, read, write again: the same bytes, and the tables as they were.
#include <string>

#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class ScenarioRoundTrip : public CoreTest {};

// The lines of a plain text without the counter fields that a load recomputes.
std::vector<std::string> WithoutCounters(const std::string& plain) {
  auto lines = SplitLines(plain);
  std::vector<bool> drop(lines.size(), false);
  const auto fields = ListScenarioFields();
  for (std::size_t i = 0; i < fields.size() && i < lines.size(); ++i) {
    const std::string& n = fields[i].name;
    if (n.rfind("Unit[", 0) == 0 &&
        (n.find(".CounterPic") != std::string::npos || n.find(".ThqBadge") != std::string::npos)) {
      drop[i] = true;
    }
  }
  std::vector<std::string> kept;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!drop[i]) kept.push_back(lines[i]);
  }
  return kept;
}

TEST_F(ScenarioRoundTrip, EmptyTenByTenMap) {
  world::NewMap(10, 10);
  Game.BookVarCount = 200;
  const std::string first = SerializeScenario();
  ClearForLoad();
  EXPECT_EQ(ParseScenario(first), 111);
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(SerializeScenario(), first);
}

TEST_F(ScenarioRoundTrip, RichScenarioKeepsEveryField) {
  BuildRichScenario();
  const std::string first = SerializeScenario();
  ClearForLoad();
  ASSERT_EQ(Game.UnitCount, 0);
  ASSERT_EQ(ParseScenario(first), 111);

  // Head.
  EXPECT_EQ(Game.FileVersion, 111);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(Game.UsePasswords, 1);
  EXPECT_EQ(Game.GameEndPop, 12000);
  EXPECT_EQ(Game.CurPop, 3400);
  EXPECT_EQ(Game.Turn, 3);
  EXPECT_EQ(Game.CurRegime, 2);
  EXPECT_EQ(Game.MapW, 20);
  EXPECT_EQ(Game.MapH, 15);
  EXPECT_EQ(Game.SpareScalar2, -7);
  EXPECT_EQ(Game.GraphicsDirty, 1);
  EXPECT_EQ(Game.ShowAIMoves, kTrue);
  EXPECT_EQ(Game.AIAnalysis, kFalse);
  EXPECT_EQ(Game.SpareFlag, kTrue);
  EXPECT_EQ(Game.AIProdBonus, 1);
  EXPECT_EQ(Game.ScenarioStory, "The rivers rise.\r\nTwo armies wait.\r\n\r\nWho crosses first?");
  EXPECT_EQ(Game.DirMap, "\\default\\map");
  EXPECT_EQ(Game.DirOfficer, "\\default\\officer");

  // Events and book variables.
  EXPECT_EQ(Game.EventCount, 2);
  EXPECT_EQ(Event[1].TurnMin, 2);
  EXPECT_EQ(Event[1].TurnMax, 5);
  EXPECT_EQ(Event[1].HexOwner, 1);
  EXPECT_EQ(Event[1].Story, "Reinforcements arrive.\r\nThey are tired.");
  EXPECT_EQ(Event[1].Data[30], -4);
  EXPECT_EQ(Event[1].DataText[1], "Relief Column");
  EXPECT_EQ(Event[1].DataText[5], "Zoë");
  EXPECT_EQ(Event[1].IfAI, 2);
  EXPECT_EQ(Event[1].IfWar, 2);
  EXPECT_EQ(Event[1].DipLastTurn, 1);
  EXPECT_EQ(Event[2].Type, 5);
  EXPECT_EQ(Event[2].DataText[1], "scenarios\\part2.mf2");
  EXPECT_EQ(Event[2].FiredTurn, 1);
  EXPECT_EQ(Game.BookVarCount, 200);
  EXPECT_EQ(Game.BookVar[1], 5);
  EXPECT_EQ(Game.BookVar[200], -1);

  // Map.
  EXPECT_EQ(Hex[2][3].Pop, 2500);
  EXPECT_EQ(Hex[2][3].Land, kUrban);
  EXPECT_EQ(Hex[2][3].UrbanName, "Ærøskøbing");
  EXPECT_EQ(Hex[2][3].Unit[1], 1);
  EXPECT_EQ(Hex[2][3].Unit[2], 2);
  EXPECT_EQ(Hex[2][3].Unit[3], 0);
  EXPECT_EQ(Hex[2][3].Prod, 1);
  EXPECT_EQ(Hex[2][3].ProdPts, 17);
  EXPECT_EQ(Hex[2][3].ProdSHQ, 1);
  EXPECT_EQ(Hex[2][3].Vis, 3);
  EXPECT_EQ(Hex[2][3].Damage, 20);
  EXPECT_EQ(Hex[2][3].Seen[1], 1);
  EXPECT_EQ(Hex[5][6].Seen[2], 1);
  EXPECT_EQ(Hex[20][15].Seen[3], 1);
  EXPECT_EQ(Hex[20][15].Seen[1], 0);
  EXPECT_EQ(Hex[5][6].Prod, -1);
  EXPECT_EQ(Hex[5][6].Unit[1], 4);
  EXPECT_EQ(Hex[5][6].Unit[2], 5);
  EXPECT_EQ(Hex[9][9].Unit[1], 0);
  EXPECT_EQ(Hex[7][1].Land, kSea);
  EXPECT_EQ(Hex[20][15].Road, 1);
  EXPECT_EQ(Hex[3][3].River[2], 1);
  EXPECT_EQ(Hex[3][3].Entrench[5], 3);

  // Peoples: the name with characters outside Windows-1252 comes back with '?'.
  EXPECT_EQ(Game.PeopleCount, 2);
  EXPECT_EQ(People[1].Name, "Zoë Brontë");
  EXPECT_EQ(People[1].FirstName[1], "Ærø");
  EXPECT_EQ(People[1].LastName[1], "Brontë");
  EXPECT_EQ(People[1].FirstName[300], "Last");
  EXPECT_EQ(People[1].LastName[300], "Of All");
  EXPECT_EQ(People[1].Overrule, 2);
  EXPECT_EQ(People[2].Name, "?ód?");
  EXPECT_EQ(People[2].FirstName[2], "Jürgen");

  // Officers.
  EXPECT_EQ(Game.OfficerCount, 3);
  EXPECT_EQ(Officer[1].Name, "Gen. Zoë");
  EXPECT_EQ(Officer[2].Pic, 7);
  EXPECT_EQ(Officer[2].Regime, 2);
  EXPECT_EQ(Officer[2].Sea, 8);
  EXPECT_EQ(Officer[2].Fame, 11);
  EXPECT_EQ(Officer[2].Retreat, 95);

  // Regimes, diplomacy, SHQ stocks, news.
  EXPECT_EQ(Game.RegimeCount, 3);
  EXPECT_EQ(Regime[1].Name, "Red Coalition");
  EXPECT_EQ(Regime[2].Name, "Ærø Union");
  EXPECT_EQ(Regime[3].Name, "Zoë Brontë League");
  EXPECT_EQ(Regime[1].Password, "secret");
  EXPECT_EQ(Regime[1].PP, 120);
  EXPECT_EQ(Regime[2].PP, -5);
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Regime[1].TextColor, "&Hffffff");
  EXPECT_EQ(Regime[1].FormationName, "Bataljon");
  EXPECT_EQ(Regime[1].Email, "red@example.org");
  EXPECT_EQ(Regime[3].OwnPeople, 2);
  EXPECT_EQ(Regime[1].Research[7], 1);
  EXPECT_EQ(Regime[2].Research[200], 1);
  EXPECT_EQ(Regime[1].ThqBadgeUnit[2], 2);
  EXPECT_EQ(Regime[1].Losses[3], 40);
  EXPECT_EQ(Regime[2].Kills[12], 2);
  EXPECT_EQ(Regime[3].PortraitSet, 2);
  EXPECT_EQ(Regime[1].Intro, "Hold the fords.\r\nDo not lose the capital.");
  EXPECT_EQ(Dip[1][2].Cost, 150);
  EXPECT_EQ(Dip[1][2].LastTurn, 2);
  EXPECT_EQ(Dip[2][3].Relation, 1);
  EXPECT_EQ(Dip[2][3].Spare, 9);
  EXPECT_EQ(Dip[3][1].Cost, 999);
  EXPECT_EQ(Shq[1][1].Unit, 1);
  EXPECT_EQ(Shq[1][1].StockType[1], 1);
  EXPECT_EQ(Shq[1][1].StockQty[1], 30);
  EXPECT_EQ(Shq[1][1].StockType[4], 4);
  EXPECT_EQ(Shq[1][1].StockQty[4], 2);
  EXPECT_EQ(Shq[1][1].Carry, 600);
  EXPECT_EQ(News[1][1].Type, 1);
  EXPECT_EQ(News[1][1].Text, "3rd Rifles lost");
  EXPECT_EQ(News[1][2].X, 5);
  EXPECT_EQ(News[1][2].Y, 6);
  EXPECT_EQ(News[1][2].Mark, 2);
  EXPECT_EQ(News[1][1000].Text, "Last line");
  EXPECT_EQ(News[2][1].Type, 991);

  // Units, the free slot included.
  EXPECT_EQ(Game.UnitCount, 6);
  EXPECT_EQ(Unit[1].Name, "1st Army HQ");
  EXPECT_EQ(Unit[1].Shq, 1);
  EXPECT_EQ(Unit[1].SupplyPct, 2500);
  EXPECT_EQ(Unit[2].Thq, 1);
  EXPECT_EQ(Unit[2].Boss, 1);
  EXPECT_EQ(Unit[2].ThqBadge, 2);
  EXPECT_EQ(Unit[3].Regime, 0);
  EXPECT_EQ(Unit[3].Name, "");
  EXPECT_EQ(Unit[4].Name, "3rd Rifles");
  EXPECT_EQ(Unit[4].InfType, 1);
  EXPECT_EQ(Unit[4].InfQty, 9);
  EXPECT_EQ(Unit[4].ArtType, 2);
  EXPECT_EQ(Unit[4].ArtQty, 2);
  EXPECT_EQ(Unit[4].Regime, 2);
  EXPECT_EQ(Unit[4].MP, 4);
  EXPECT_EQ(Unit[4].Readiness, 77);
  EXPECT_EQ(Unit[4].Experience, 25);
  EXPECT_EQ(Unit[4].Officer, 2);
  EXPECT_EQ(Unit[4].Front, 2);
  EXPECT_EQ(Unit[4].AIX, 9);
  EXPECT_EQ(Unit[4].AIY, 10);
  EXPECT_EQ(Unit[4].Disruption, 25);
  EXPECT_EQ(Unit[4].FromX, 4);
  EXPECT_EQ(Unit[4].FromY, 6);
  EXPECT_EQ(Unit[4].GenSupply, 12);
  EXPECT_EQ(Unit[5].Theater, kSeaTheater);
  EXPECT_EQ(Unit[5].Cargo, 6);
  EXPECT_EQ(Unit[6].Name, "Marines");

  // Research and types.
  EXPECT_EQ(Research[1].Name, "Engines");
  EXPECT_EQ(Research[1].Cost, 50);
  EXPECT_EQ(Research[1].Text, "Faster trucks.\r\nMore supply.");
  EXPECT_EQ(Research[7].Need1, 1);
  EXPECT_EQ(Research[7].Need2, 2);
  EXPECT_EQ(Research[200].Name, "Last");
  EXPECT_EQ(Game.TypeCount, 4);
  EXPECT_EQ(Type[1].Name, "Rifles");
  EXPECT_EQ(Type[1].Class, 1);
  EXPECT_EQ(Type[1].Attr[kSoftAttack], 12);
  EXPECT_EQ(Type[1].Attr[kFrontsize], 1);
  EXPECT_EQ(Type[1].Text, "Plain foot soldiers");
  EXPECT_EQ(Type[1].Sprite, 101);
  EXPECT_EQ(Type[1].Cost, 10);
  EXPECT_EQ(Type[1].Living[1], 1);
  EXPECT_EQ(Type[1].Owning[2], 1);
  EXPECT_EQ(Type[3].Theater, kSeaTheater);
  EXPECT_EQ(Type[3].Override, 55);
  EXPECT_EQ(Type[3].Attr[kHitPoints], 400);
  EXPECT_EQ(Type[4].Research, 7);

  // Rules.
  EXPECT_EQ(EngineVar[533].Value, 4);
  EXPECT_EQ(EngineVar[999].Value, -12);
  EXPECT_EQ(EngineVar[616].Value, 20);

  // And the second save is the first, byte for byte.
  EXPECT_EQ(SerializeScenario(), first);
}

TEST_F(ScenarioRoundTrip, ThroughScrambledFilesOnDisk) {
  BuildRichScenario();
  const std::string path = TempPath("rich.mf1");
  ASSERT_TRUE(WriteFile(path));
  const std::string onDisk = ReadBytes(path);
  const std::string plain = SerializeScenario();
  EXPECT_EQ(onDisk, Flipped(plain));  // saved scrambled: every top bit flipped

  ClearForLoad();
  platform.Clear();
  ASSERT_TRUE(ReadFile(path));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Loaded"});
  EXPECT_EQ(ReadBytes(path), onDisk);  // read twice transformed: scrambled again
  // Loading the sprites from the file's own folders clears its folder flag.
  EXPECT_EQ(Game.GraphicsDirty, 0);
  Game.GraphicsDirty = 1;
  // A load recomputes the counters of the units; every other line is the same.
  EXPECT_EQ(WithoutCounters(SerializeScenario()), WithoutCounters(plain));
  EXPECT_EQ(Unit[4].Name, "3rd Rifles");
  EXPECT_EQ(People[1].Name, "Zoë Brontë");

  const std::string second = TempPath("second.mf1");
  ASSERT_TRUE(WriteFile(second));
  EXPECT_EQ(Flipped(ReadBytes(second)), SerializeScenario());
}

}  // namespace
}  // namespace mf::test
