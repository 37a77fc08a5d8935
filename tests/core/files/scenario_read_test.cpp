// How the reader takes the fields of a file: the tokenizer, the repeated
// fields, the version repairs.
#include <string>

#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class ScenarioRead : public CoreTest {
 protected:
  // A 10 x 10 map with two regimes, saved; the lines of its plain text.
  void SmallScenario() {
    world::NewMap(10, 10);
    Game.BookVarCount = 200;
    world::AddRegime("Red");
    world::AddRegime("Blue");
    Dip[1][2].Cost = 120;
  }
  // Replaces the line of a field (the n-th copy of the name) in the text.
  static void SetLine(std::vector<std::string>& lines, const std::string& name, const std::string& text,
                      std::size_t copy = 0) {
    const auto at = LinesOf(name);
    ASSERT_GT(at.size(), copy) << name;
    lines[at[copy]] = text;
  }
};

TEST_F(ScenarioRead, CommaInANameBreaksTheFieldsAfterIt) {
  SmallScenario();
  Regime[1].Name = "Red, Army";
  Regime[1].AI = 1;
  Regime[1].Password = "pw";
  Regime[1].PP = 42;
  Regime[1].TextColor = "&H00ff00";
  const std::string plain = SerializeScenario();
  // The writer does not check: the comma stands in the file.
  EXPECT_EQ(SplitLines(plain)[LinesOf("Regime[1].Name")[0]], "Red, Army");
  ClearForLoad();
  ParseScenario(plain);
  EXPECT_EQ(Regime[1].Name, "Red");
  EXPECT_EQ(Regime[1].AI, 0);          // read " Army" on the name's line
  EXPECT_EQ(Regime[1].Password, "1");  // read the AI line " 1 "
  EXPECT_EQ(Regime[1].PP, 0);          // read the password line "pw"
  EXPECT_EQ(Regime[1].TextColor, "42");  // read the PP line
}

TEST_F(ScenarioRead, StoryWithLineBreaksIsOneLineAndReadsBackIdentically) {
  SmallScenario();
  Game.EventCount = 1;
  Event[1].Story = "First line\r\nSecond line\r\n\r\nAfter a blank line";
  Event[1].Sprite = 12;
  const std::string plain = SerializeScenario();
  const auto lines = SplitLines(plain);
  const auto story = LinesOf("Event[1].Story");
  ASSERT_EQ(story.size(), 1u);
  EXPECT_EQ(lines[story[0]], "First line//x//Second line//x////x//After a blank line");
  EXPECT_EQ(lines[story[0] + 1], " 12 ");  // the next field follows on the next line
  ClearForLoad();
  ParseScenario(plain);
  EXPECT_EQ(Event[1].Story, "First line\r\nSecond line\r\n\r\nAfter a blank line");
  EXPECT_EQ(Event[1].Sprite, 12);
}

TEST_F(ScenarioRead, SeenIsReadPerHexInTheMapAndXThenYInTheRegimeBlock) {
  SmallScenario();
  Hex[2][3].Seen[2] = 1;
  const std::string plain = SerializeScenario();
  auto lines = SplitLines(plain);
  // In the map block: hex (x, y) holds Seen[1], Seen[2] one after the other.
  const auto inMap = LinesOf("Hex[2,3].Seen[1]");
  ASSERT_EQ(inMap.size(), 2u);
  EXPECT_EQ(LinesOf("Hex[2,3].Seen[2]")[0], inMap[0] + 1);
  EXPECT_EQ(lines[inMap[0] + 1], " 1 ");
  // In regime 2's block: position (x - 1) * MapH + (y - 1) after the first.
  const auto first = LinesOf("Hex[1,1].Seen[2]")[1];
  const auto inBlock = LinesOf("Hex[2,3].Seen[2]")[1];
  EXPECT_EQ(inBlock, first + (2 - 1) * 10 + (3 - 1));
  EXPECT_EQ(lines[inBlock], " 1 ");

  // The block is read last and is what counts.
  lines[inMap[0] + 1] = " 0 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Hex[2][3].Seen[2], 1);

  lines[inMap[0] + 1] = " 1 ";
  lines[inBlock] = " 0 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Hex[2][3].Seen[2], 0);
}

TEST_F(ScenarioRead, PeopleCountStandsBeforeTheListAndAtTheStartOfEachPeople) {
  SmallScenario();
  Game.PeopleCount = 2;
  People[1].Name = "Northmen";
  People[2].Name = "Southmen";
  const int t = world::AddType("Rifles", kLandTheater, 1);
  Type[t].Attr[kFrontsize] = 1;
  Type[t].Living[1] = 1;
  Type[t].Owning[1] = 1;
  Type[t].Living[2] = 2;
  Type[t].Owning[2] = 8;
  Type[t].Theater = 0;
  Type[t].Research = 3;
  const std::string plain = SerializeScenario();
  auto lines = SplitLines(plain);
  const auto counts = LinesOf("Game.PeopleCount");
  ASSERT_EQ(counts.size(), 3u);
  EXPECT_EQ(lines[counts[0]], " 2 ");
  EXPECT_EQ(lines[counts[1]], " 2 ");
  EXPECT_EQ(lines[counts[1] + 1], "Northmen");
  EXPECT_EQ(lines[counts[2]], " 2 ");
  EXPECT_EQ(lines[counts[2] + 1], "Southmen");
  EXPECT_EQ(counts[2] - counts[1], 1u + 1 + 600 + 1);

  // The copy in a record overwrites the count; the list still runs to the
  // first count, and the types then hold one Living/Owning pair.
  lines[counts[2]] = " 1 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Game.PeopleCount, 1);
  EXPECT_EQ(People[2].Name, "Southmen");
  EXPECT_EQ(Type[1].Living[1], 1);
  EXPECT_EQ(Type[1].Owning[1], 1);
  EXPECT_EQ(Type[1].Theater, 2);   // the Living[2] line
  EXPECT_EQ(Type[1].Research, 8);  // the Owning[2] line
}

TEST_F(ScenarioRead, TokenizerTakesLineEndsBlanksCommasAndQuotes) {
  SmallScenario();
  const std::string plain = SerializeScenario();
  auto lines = SplitLines(plain);
  SetLine(lines, "Game.GameEndPop", "   6000   ");        // blanks around a number
  SetLine(lines, "Game.CurPop", "12abc");                 // the leading number counts
  SetLine(lines, "Game.WinnerPop", "abc");                // no number: 0
  SetLine(lines, "Game.SpareScalar1", "2.5");             // halves go to even
  SetLine(lines, "Game.SpareScalar2", "3.5");
  SetLine(lines, "Game.SpareScalar3", "99999999999");     // held inside 32 bits
  SetLine(lines, "Game.DirMap", "   \\maps\\north   ");  // outer blanks go
  SetLine(lines, "Game.DirColorCode", "\"quoted, with comma\" tail");
  SetLine(lines, "Game.DirSound", "\"unclosed quote");
  SetLine(lines, "Game.ShowAIMoves", "True");
  SetLine(lines, "Game.AIAnalysis", "true");              // only the exact word is true
  SetLine(lines, "Regime[1].Name", "Reds   ");
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Game.GameEndPop, 6000);
  EXPECT_EQ(Game.CurPop, 12);
  EXPECT_EQ(Game.WinnerPop, 0);
  EXPECT_EQ(Game.SpareScalar1, 2);
  EXPECT_EQ(Game.SpareScalar2, 4);
  EXPECT_EQ(Game.SpareScalar3, 2147483647);
  EXPECT_EQ(Game.DirMap, "\\maps\\north");
  EXPECT_EQ(Game.DirColorCode, "quoted, with comma");
  EXPECT_EQ(Game.DirSound, "unclosed quote");
  EXPECT_EQ(Game.ShowAIMoves, kTrue);
  EXPECT_EQ(Game.AIAnalysis, kFalse);
  EXPECT_EQ(Regime[1].Name, "Reds");
  EXPECT_EQ(Dip[1][2].Cost, 120);  // and everything after still in step
  EXPECT_EQ(Game.MapW, 10);
}

TEST_F(ScenarioRead, LfAndCrLineEndsReadLikeCrLf) {
  SmallScenario();
  Game.ScenarioStory = "A\r\nB";
  Regime[2].PP = 77;
  const std::string crlf = SerializeScenario();
  std::string lf, cr;
  for (std::size_t i = 0; i < crlf.size(); ++i) {
    if (crlf[i] == '\r' && i + 1 < crlf.size() && crlf[i + 1] == '\n') {
      lf += '\n';
      cr += '\r';
      ++i;
    } else {
      lf += crlf[i];
      cr += crlf[i];
    }
  }
  for (const std::string* text : {&lf, &cr}) {
    ClearForLoad();
    EXPECT_EQ(ParseScenario(*text), 111);
    EXPECT_EQ(Game.ScenarioStory, "A\r\nB");
    EXPECT_EQ(Regime[2].PP, 77);
    EXPECT_EQ(Regime[2].Name, "Blue");
    EXPECT_EQ(SerializeScenario(), crlf);
  }
}

TEST_F(ScenarioRead, TwoNumbersOnOneLineAreTwoFields) {
  SmallScenario();
  auto lines = SplitLines(SerializeScenario());
  // "1 1" on the FogOfWar line: the second number is FogOfExploration, and
  // the FogOfExploration line then goes to UsePasswords.
  const auto fog = LinesOf("Game.FogOfWar")[0];
  lines[fog] = " 1 1";
  lines[fog + 1] = " 1 ";
  lines.erase(lines.begin() + static_cast<long>(fog) + 2);
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(Game.UsePasswords, 1);
  EXPECT_EQ(Game.MapW, 10);
}

TEST_F(ScenarioRead, VersionRepairsOfTheNewestLayout) {
  SmallScenario();
  const int inf = world::AddType("Rifles", kLandTheater, 1);
  const int mob = world::AddType("Trucks", kLandTheater, 2);
  const int art = world::AddType("Guns", kLandTheater, 3);
  const int arm = world::AddType("Tanks", kLandTheater, 4);
  const int ship = world::AddType("Destroyer", kSeaTheater, 1);
  const int wide = world::AddType("Wide", kLandTheater, 1);
  Type[wide].Attr[kFrontsize] = 5;
  const int u = world::AddUnit(1, 3, 3, "Shaken", inf, 10);
  Unit[u].Disruption = -5;
  Dip[2][1].Cost = 0;
  const std::string plain = SerializeScenario();
  ClearForLoad();
  ParseScenario(plain);
  EXPECT_EQ(Unit[u].Disruption, 0);
  EXPECT_EQ(Dip[2][1].Cost, 999);
  EXPECT_EQ(Dip[1][2].Cost, 120);
  EXPECT_EQ(Type[inf].Attr[kFrontsize], 1);
  EXPECT_EQ(Type[mob].Attr[kFrontsize], 0);  // class 2 has no size of its own
  EXPECT_EQ(Type[art].Attr[kFrontsize], 10);
  EXPECT_EQ(Type[arm].Attr[kFrontsize], 20);
  EXPECT_EQ(Type[ship].Attr[kFrontsize], 0);  // not a land type
  EXPECT_EQ(Type[wide].Attr[kFrontsize], 5);
}

// A version-100 file written by hand in the layout of that version: no
// AIProdBonus, events, book variables, entrenchment, diplomacy, disruption,
// attack origin or generated supply.
std::string Version100File() {
  TextBuilder f;
  f.N(100);  // FileVersion
  f.N(1);    // FogOfWar
  f.N(0);
  f.N(1);     // UsePasswords
  f.N(9000);  // GameEndPop
  f.N(0);
  f.N(0);
  f.N(0);
  f.N(4);   // Turn
  f.N(1);   // CurRegime
  f.N(10);  // MapW
  f.N(10);  // MapH
  f.Ns(3, 0);
  f.T("\\old\\map");
  f.T("\\old\\colorcode");
  f.T("\\old\\sound");
  f.T("\\old\\type");
  f.N(1);   // GraphicsDirty: the folders above are the file's own and survive the load
  f.T("\\old\\officer");
  f.N(0);
  f.B(false);
  f.B(false);
  f.B(true);
  f.T("An old story//x//in two lines");
  f.N(2);  // RegimeCount
  for (int x = 1; x <= 10; ++x) {
    for (int y = 1; y <= 10; ++y) {
      const bool town = x == 4 && y == 5;
      f.N(town ? 1500 : 0);
      f.N(town ? 3 : 1);
      f.N(0);
      f.T(town ? "Oldtown" : "");
      f.N(town ? 1 : 0);  // Unit[1]
      f.N(0);
      f.N(0);
      f.N(town ? 2 : 0);  // Owner
      f.N(0);
      f.N(0);
      f.N(0);
      f.N(0);             // Vis
      f.N(0);             // Seen[1]
      f.N(town ? 1 : 0);  // Seen[2]
      f.N(0);             // Road
      for (int side = 1; side <= 6; ++side) f.N(town && side == 3 ? 1 : 0);  // River only
      f.N(0);  // Damage
    }
  }
  f.N(0);  // PeopleCount
  f.N(0);  // OfficerCount
  f.N(3);  // stock width
  f.N(2);  // RegimeCount again
  for (int r = 1; r <= 2; ++r) {
    f.T(r == 1 ? "Old Red" : "Old Blue");
    f.N(r == 1 ? 0 : 1);  // AI
    f.T("");
    f.N(r * 10);  // PP
    f.T("&Hffffff");
    f.N(0);
    f.T("Bataljon");
    f.N(r);
    f.T("");
    f.N(0);
    f.Ns(200, 0);
    f.Ns(50, 0);
    for (int s = 1; s <= 50; ++s) {
      for (int k = 1; k <= 3; ++k) {
        f.N(s == 1 && k == 2 && r == 2 ? 1 : 0);
        f.N(s == 1 && k == 2 && r == 2 ? 44 : 0);
      }
      f.N(0);
      f.N(0);
    }
    f.Ns(24, 0);
    for (int n = 1; n <= 1000; ++n) {
      f.N(0);
      f.T("");
      f.N(0);
      f.N(0);
      f.N(0);
    }
    for (int i = 1; i <= 100; ++i) f.N(r == 2 && i == (4 - 1) * 10 + 5 ? 1 : 0);
    f.N(0);
    f.T("");
  }
  f.N(1);  // UnitCount
  f.T("Old Guard");
  f.N(0);
  f.N(0);
  f.N(0);
  f.N(1);   // InfType
  f.N(12);  // InfQty
  f.Ns(6, 0);
  f.N(2);    // Regime
  f.N(100);  // SupplyPct
  f.N(0);
  f.N(0);
  f.N(30);  // Experience
  f.N(3);   // MP
  f.N(88);  // Readiness
  f.N(0);
  f.N(0);
  f.N(0);
  f.N(0);
  f.N(0);
  f.N(0);  // AIY: the last unit field of version 100
  for (int r = 1; r <= 200; ++r) {
    f.T(r == 1 ? "Old Engines" : "");
    f.N(r == 1 ? 30 : 0);
    f.N(0);
    f.N(0);
    f.T(r == 1 ? "Two//x//lines" : "");  // long text since version 100
  }
  f.N(3);  // TypeCount
  for (int t = 1; t <= 3; ++t) {
    f.T(t == 1 ? "Old Rifles" : t == 2 ? "Old Guns" : "Old Boats");
    f.N(t == 2 ? 3 : 1);  // Class
    f.Ns(20, 0);          // Frontsize 0: repaired for land types
    f.T("");
    f.N(0);
    f.N(5);
    f.N(t == 3 ? 1 : 0);  // Theater
    f.N(0);
    f.N(0);
  }
  for (int i = 1; i <= 1000; ++i) f.N(i == 538 ? 25 : i == 544 ? 0 : i == 533 ? 3 : 1);
  return f.s;
}

TEST_F(ScenarioRead, Version100FileReadsWithItsOwnLayoutAndRepairs) {
  const std::string path = TempPath("old100.mf1");
  WriteBytes(path, Version100File());
  ASSERT_TRUE(ReadFile(path));
  EXPECT_EQ(Game.FileVersion, 100);
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.UsePasswords, 1);
  EXPECT_EQ(Game.GameEndPop, 9000);
  EXPECT_EQ(Game.Turn, 4);
  EXPECT_EQ(Game.DirMap, "\\old\\map");
  EXPECT_EQ(Game.SpareFlag, kTrue);
  EXPECT_EQ(Game.ScenarioStory, "An old story\r\nin two lines");
  EXPECT_EQ(Game.RegimeCount, 2);
  EXPECT_EQ(Game.EventCount, 0);
  EXPECT_EQ(Hex[4][5].UrbanName, "Oldtown");
  EXPECT_EQ(Hex[4][5].Pop, 1500);
  EXPECT_EQ(Hex[4][5].Unit[1], 1);
  EXPECT_EQ(Hex[4][5].Owner, 2);
  EXPECT_EQ(Hex[4][5].River[3], 1);
  EXPECT_EQ(Hex[4][5].Entrench[3], 0);
  EXPECT_EQ(Hex[4][5].Seen[2], 1);
  EXPECT_EQ(Hex[10][10].Land, 1);
  // No diplomacy in the file: every relation of both regimes is fixed.
  EXPECT_EQ(Dip[1][2].Cost, 999);
  EXPECT_EQ(Dip[2][1].Cost, 999);
  EXPECT_EQ(Dip[1][20].Cost, 999);
  EXPECT_EQ(Regime[1].Name, "Old Red");
  EXPECT_EQ(Regime[2].AI, 1);
  EXPECT_EQ(Regime[2].PP, 20);
  EXPECT_EQ(Regime[2].HexSprite, 2);
  EXPECT_EQ(Shq[2][1].StockType[2], 1);
  EXPECT_EQ(Shq[2][1].StockQty[2], 44);
  EXPECT_EQ(Game.UnitCount, 1);
  EXPECT_EQ(Unit[1].Name, "Old Guard");
  EXPECT_EQ(Unit[1].InfQty, 12);
  EXPECT_EQ(Unit[1].Regime, 2);
  EXPECT_EQ(Unit[1].Experience, 30);
  EXPECT_EQ(Unit[1].Readiness, 88);
  EXPECT_EQ(Research[1].Name, "Old Engines");
  EXPECT_EQ(Research[1].Cost, 30);
  EXPECT_EQ(Research[1].Text, "Two\r\nlines");
  EXPECT_EQ(Game.TypeCount, 3);
  EXPECT_EQ(Type[1].Attr[kFrontsize], 1);   // land, class 1
  EXPECT_EQ(Type[2].Attr[kFrontsize], 10);  // land, class 3
  EXPECT_EQ(Type[3].Attr[kFrontsize], 0);   // sea
  EXPECT_EQ(Type[2].Cost, 5);
  EXPECT_EQ(EngineVar[533].Value, 3);
  EXPECT_EQ(EngineVar[538].Value, 50);  // doubled for a file older than 111
  EXPECT_EQ(EngineVar[544].Value, 50);  // a 0 repaired
  EXPECT_EQ(EngineVar[616].Value, 1);   // the rule at the end is what stays
}

// A file from before version 10: no version field, the first number is the
// fog switch; no regime count in the head, no sight, and research texts are
// plain one-line texts.
std::string Version9File() {
  TextBuilder f;
  f.N(1);  // FogOfWar, and the version
  f.N(1);  // FogOfExploration
  f.N(0);
  f.N(700);  // GameEndPop
  f.Ns(4, 0);
  f.N(0);   // CurRegime
  f.N(10);  // MapW
  f.N(12);  // MapH
  f.Ns(3, 0);
  for (int i = 0; i < 4; ++i) f.T("\\default");
  f.N(0);
  f.T("\\default\\officer");
  f.N(0);
  f.B(false);
  f.B(false);
  f.B(false);
  f.T("");
  for (int x = 1; x <= 10; ++x) {
    for (int y = 1; y <= 12; ++y) {
      f.N(0);
      f.N(x == 10 && y == 12 ? 6 : 1);
      f.N(0);
      f.T("");
      f.Ns(7, 0);
      f.N(0);  // Vis
      f.N(0);  // Road
      f.Ns(6, 0);
      f.N(x == 10 && y == 12 ? 40 : 0);  // Damage
    }
  }
  f.N(1);  // PeopleCount
  f.N(1);
  f.T("Ancients");
  for (int n = 1; n <= 300; ++n) {
    f.T(n == 1 ? "Ulf" : "");
    f.T(n == 1 ? "Olafsson" : "");
  }
  f.N(0);  // Overrule
  f.N(1);  // OfficerCount
  f.N(3);
  f.T("Old General");
  f.N(1);
  f.N(1);
  f.Ns(3, 4);
  f.N(2);
  f.N(50);
  f.N(0);
  f.N(0);  // stock width 0: no stock slots
  f.N(1);  // RegimeCount
  f.T("Ancient Realm");
  f.N(0);
  f.T("");
  f.N(5);
  f.T("&Hffffff");
  f.N(0);
  f.T("Bataljon");
  f.N(0);
  f.T("");
  f.N(1);
  f.Ns(200, 0);
  f.Ns(50, 0);
  f.Ns(50 * 2, 0);
  f.Ns(24, 0);
  for (int n = 1; n <= 1000; ++n) {
    f.N(0);
    f.T("");
    f.Ns(3, 0);
  }
  f.Ns(120, 0);  // the regime's sight, read all the same
  f.N(0);
  f.T("Intro");
  f.N(0);  // UnitCount
  for (int r = 1; r <= 200; ++r) {
    f.T(r == 2 ? "Wheel" : "");
    f.N(r == 2 ? 15 : 0);
    f.N(0);
    f.N(0);
    f.T(r == 2 ? "Round things" : "");
  }
  f.N(0);  // TypeCount
  f.Ns(1000, 2);
  return f.s;
}

TEST_F(ScenarioRead, FileOlderThanVersion10StartsWithTheFogSwitch) {
  const std::string path = TempPath("old9.mf1");
  WriteBytes(path, Version9File());
  ASSERT_TRUE(ReadFile(path));
  EXPECT_EQ(Game.FileVersion, 1);  // the small number stays as the version
  EXPECT_EQ(Game.FogOfWar, 1);
  EXPECT_EQ(Game.FogOfExploration, 1);
  EXPECT_EQ(Game.GameEndPop, 700);
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 12);
  EXPECT_EQ(Game.RegimeCount, 1);
  EXPECT_EQ(Hex[10][12].Land, kMountain);
  EXPECT_EQ(Hex[10][12].Damage, 40);
  EXPECT_EQ(Game.PeopleCount, 1);
  EXPECT_EQ(People[1].Name, "Ancients");
  EXPECT_EQ(People[1].FirstName[1], "Ulf");
  EXPECT_EQ(People[1].LastName[1], "Olafsson");
  EXPECT_EQ(Officer[1].Name, "Old General");
  EXPECT_EQ(Officer[1].Fame, 2);
  EXPECT_EQ(Officer[1].Retreat, 50);
  EXPECT_EQ(Regime[1].Name, "Ancient Realm");
  EXPECT_EQ(Regime[1].PP, 5);
  EXPECT_EQ(Regime[1].OwnPeople, 1);
  EXPECT_EQ(Regime[1].Intro, "Intro");
  EXPECT_EQ(Dip[1][1].Cost, 999);
  EXPECT_EQ(Research[2].Name, "Wheel");
  EXPECT_EQ(Research[2].Cost, 15);
  EXPECT_EQ(Research[2].Text, "Round things");
  EXPECT_EQ(EngineVar[1].Value, 2);
  EXPECT_EQ(EngineVar[538].Value, 4);  // 2 doubled
}

}  // namespace
}  // namespace mf::test
