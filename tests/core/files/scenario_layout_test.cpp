// The plain text the writer produces, fixed byte for byte.
#include <string>

#include "files/scenario_file.h"
#include "files/scenario_schema.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class ScenarioLayout : public CoreTest {};

// A 10 x 10 map with one regime and one town, built for the golden text.
void BuildGoldenScenario() {
  world::NewMap(10, 10);
  Game.BookVarCount = 200;
  Game.FogOfWar = 1;
  Game.GameEndPop = 5000;
  Game.ScenarioStory = "Two rivers\r\nmeet here.";
  world::AddRegime("Red");
  Hex[1][2].Pop = 2500;
  Hex[1][2].Land = kUrban;
  Hex[1][2].People = 1;
  Hex[1][2].UrbanName = "Port Ash";
  Hex[1][2].Owner = 1;
  Hex[1][2].Prod = -1;
  Hex[1][2].ProdPts = 7;
  Hex[1][2].Seen[1] = 1;
  Hex[1][2].Road = 1;
  Hex[1][2].River[1] = 1;
  Hex[1][2].Entrench[1] = 2;
  Hex[1][2].River[6] = 1;
  Hex[1][2].Damage = 15;
}

TEST_F(ScenarioLayout, GoldenPlainTextOfASmallMap) {
  BuildGoldenScenario();
  ASSERT_EQ(EngineVar[616].Value, 20);  // the default stock width after a full clear

  TextBuilder e;
  // Head, written out field by field.
  e.s += " 111 \r\n";              // FileVersion
  e.s += " 1 \r\n";                // FogOfWar
  e.s += " 0 \r\n";                // FogOfExploration
  e.s += " 0 \r\n";                // UsePasswords
  e.s += " 5000 \r\n";             // GameEndPop
  e.s += " 0 \r\n";                // GameWinner
  e.s += " 0 \r\n";                // WinnerPop
  e.s += " 0 \r\n";                // CurPop
  e.s += " 0 \r\n";                // Turn
  e.s += " 0 \r\n";                // CurRegime
  e.s += " 10 \r\n";               // MapW
  e.s += " 10 \r\n";               // MapH
  e.s += " 0 \r\n 0 \r\n 0 \r\n";  // SpareScalar1..3
  e.s += "\\default\\map\r\n";
  e.s += "\\default\\colorcode\r\n";
  e.s += "\\default\\sound\r\n";
  e.s += "\\default\\type\r\n";
  e.s += " 0 \r\n";  // GraphicsDirty
  e.s += "\\default\\officer\r\n";
  e.s += " 0 \r\n";  // PBEM
  e.s += "False\r\nFalse\r\nFalse\r\n";
  e.s += "Two rivers//x//meet here.\r\n";
  e.s += " 1 \r\n";  // RegimeCount
  e.s += " 0 \r\n";  // AIProdBonus
  e.s += " 0 \r\n";  // EventCount
  e.s += " 200 \r\n";  // BookVarCount
  e.Ns(200, 0);
  // Map, x outer, y inner; hex (1,2) is the town, written out by hand.
  const std::string emptyHex =
      " 0 \r\n 1 \r\n 0 \r\n\r\n"                     // Pop, Land, People, UrbanName
      " 0 \r\n 0 \r\n 0 \r\n"                          // Unit[1..3]
      " 0 \r\n 0 \r\n 0 \r\n 0 \r\n"                   // Owner, Prod, ProdPts, ProdSHQ
      " 0 \r\n"                                        // Vis
      " 0 \r\n"                                        // Seen[1]
      " 0 \r\n"                                        // Road
      " 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n"     // River/Entrench sides 1..3
      " 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n"     // sides 4..6
      " 0 \r\n";                                       // Damage
  const std::string townHex =
      " 2500 \r\n 3 \r\n 1 \r\nPort Ash\r\n"
      " 0 \r\n 0 \r\n 0 \r\n"
      " 1 \r\n-1 \r\n 7 \r\n 0 \r\n"
      " 0 \r\n"
      " 1 \r\n"
      " 1 \r\n"
      " 1 \r\n 2 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n"
      " 0 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n"
      " 15 \r\n";
  for (int x = 1; x <= 10; ++x) {
    for (int y = 1; y <= 10; ++y) e.s += (x == 1 && y == 2) ? townHex : emptyHex;
  }
  e.N(0);   // PeopleCount
  e.N(0);   // OfficerCount
  e.N(20);  // stock width, engine variable 616
  e.N(1);   // RegimeCount again
  // Regime 1: its relation to itself, then its own fields.
  e.N(0);
  e.N(999);
  e.N(0);
  e.N(0);
  e.T("Red");
  e.N(0);
  e.T("");
  e.N(0);
  e.T("&Hffffff");
  e.N(0);
  e.T("Bataljon");
  e.N(0);
  e.T("");
  e.N(0);
  e.Ns(200, 0);  // Research
  e.Ns(50, 0);   // ThqBadgeUnit
  e.Ns(50 * (20 * 2 + 2), 0);  // 50 SHQs of 20 stock slots, Unit and Carry
  e.Ns(24, 0);   // Losses and Kills
  for (int n = 1; n <= 1000; ++n) {
    e.N(0);
    e.T("");
    e.N(0);
    e.N(0);
    e.N(0);
  }
  for (int i = 1; i <= 100; ++i) e.N(i == 2 ? 1 : 0);  // Seen of regime 1, x then y
  e.N(0);   // PortraitSet
  e.T("");  // Intro
  e.N(0);   // UnitCount
  for (int f = 1; f <= 200; ++f) {
    e.T("");
    e.N(0);
    e.N(0);
    e.N(0);
    e.T("");
  }
  e.N(0);  // TypeCount
  for (int i = 1; i <= 1000; ++i) e.N(EngineVar[i].Value);

  const std::string plain = SerializeScenario();
  EXPECT_EQ(plain, e.s);

  // The first lines and the rules at the end, checked on their own.
  const auto lines = SplitLines(plain);
  ASSERT_GE(lines.size(), 30u);
  EXPECT_EQ(lines[0], " 111 ");
  EXPECT_EQ(lines[1], " 1 ");
  EXPECT_EQ(lines[4], " 5000 ");
  EXPECT_EQ(lines[10], " 10 ");
  EXPECT_EQ(lines[15], "\\default\\map");
  EXPECT_EQ(lines[22], "False");
  EXPECT_EQ(lines[25], "Two rivers//x//meet here.");
  EXPECT_EQ(lines[lines.size() - 1000], " 1 ");       // engine variable 1, grass 1
  EXPECT_EQ(lines[lines.size() - 1000 + 3], " 999 ");  // engine variable 4, sea 999
  EXPECT_EQ(lines[lines.size() - 1000 + 532], " 3 ");  // engine variable 533, 3 rounds
  EXPECT_EQ(lines[lines.size() - 1000 + 615], " 20 ");  // engine variable 616
}

TEST_F(ScenarioLayout, EmptyMapWithoutRegimesHasNoUnitRecords) {
  world::NewMap(10, 10);
  Game.BookVarCount = 200;
  const auto lines = SplitLines(SerializeScenario());
  // Head 28, EventCount 1, BookVarCount 1 + 200, map 100 x 26, PeopleCount,
  // OfficerCount, stock width, RegimeCount, UnitCount, research 200 x 5,
  // TypeCount, rules 1000.
  EXPECT_EQ(lines.size(), 28u + 1 + 201 + 2600 + 1 + 1 + 1 + 1 + 1 + 1000 + 1 + 1000);
  // UnitCount 0 sits right after the regime count, with no unit after it.
  EXPECT_EQ(lines[28 + 1 + 201 + 2600 + 3], " 0 ");
  EXPECT_EQ(lines[28 + 1 + 201 + 2600 + 4], " 0 ");
  EXPECT_EQ(lines[28 + 1 + 201 + 2600 + 5], "");  // research field 1's name
}

TEST_F(ScenarioLayout, NumbersAndBooleansAsTheFileWritesThem) {
  world::NewMap(10, 10);
  Game.GameEndPop = -5;
  Game.ShowAIMoves = kTrue;
  Game.AIAnalysis = 1;  // any value other than 0 is written as true
  const auto lines = SplitLines(SerializeScenario());
  EXPECT_EQ(lines[4], "-5 ");
  EXPECT_EQ(lines[22], "True");
  EXPECT_EQ(lines[23], "True");
  EXPECT_EQ(lines[24], "False");
}

TEST_F(ScenarioLayout, SavingRaisesTheStockWidthToTheTypeCountAndSetsTheVersion) {
  world::NewMap(10, 10);
  Game.FileVersion = 100;
  EngineVar[616].Value = 2;
  for (int t = 1; t <= 25; ++t) world::AddType("T" + std::to_string(t), kLandTheater, 1);
  const std::string plain = SerializeScenario();
  EXPECT_EQ(EngineVar[616].Value, 25);
  EXPECT_EQ(Game.FileVersion, 111);
  const auto lines = SplitLines(plain);
  const auto at = LinesOf("EngineVar[616]");
  ASSERT_EQ(at.size(), 2u);  // the stock width ahead of the regimes, and the rule at the end
  EXPECT_EQ(lines[at[0]], " 25 ");
  EXPECT_EQ(lines[at[1]], " 25 ");
  EXPECT_EQ(at[1], lines.size() - 1000 + 615);

  // A width above the type count stays as it is.
  EngineVar[616].Value = 40;
  SerializeScenario();
  EXPECT_EQ(EngineVar[616].Value, 40);
}

TEST_F(ScenarioLayout, TextLineBreaksAndNonAsciiInTheFile) {
  world::NewMap(10, 10);
  world::AddRegime("Zoë Brontë");
  Regime[1].Intro = "One\r\nTwo\nThree";  // a lone LF from an editor is a break too
  Regime[1].Email = "a\r\nb";              // a one-line field cannot hold a break
  const auto lines = SplitLines(SerializeScenario());
  const auto name = LinesOf("Regime[1].Name");
  ASSERT_EQ(name.size(), 1u);
  EXPECT_EQ(lines[name[0]], "Zo\xEB Bront\xEB");
  EXPECT_EQ(lines[LinesOf("Regime[1].Intro")[0]], "One//x//Two//x//Three");
  EXPECT_EQ(lines[LinesOf("Regime[1].Email")[0]], "a  b");
}

TEST_F(ScenarioLayout, ListerNamesEveryLineInFileOrder) {
  BuildRichScenario();
  const std::string plain = SerializeScenario();
  const auto lines = SplitLines(plain);
  const auto fields = ListScenarioFields();
  ASSERT_EQ(fields.size(), lines.size());
  EXPECT_EQ(fields[0].name, "Game.FileVersion");
  EXPECT_EQ(fields[0].value, "111");
  EXPECT_EQ(fields[1].name, "Game.FogOfWar");
  EXPECT_EQ(fields[1].value, "1");
  EXPECT_EQ(fields[22].name, "Game.ShowAIMoves");
  EXPECT_EQ(fields[22].value, "-1");
  EXPECT_EQ(fields[25].name, "Game.ScenarioStory");
  EXPECT_EQ(fields[25].value, Game.ScenarioStory);
  // The first event record starts right after the count.
  EXPECT_EQ(fields[28].name, "Game.EventCount");
  EXPECT_EQ(fields[29].name, "Event[1].TurnMin");
  EXPECT_EQ(fields[29].value, "2");
  // Some names of every record, each found once (or twice when repeated).
  EXPECT_EQ(LinesOf("Hex[2,3].Unit[2]").size(), 1u);
  EXPECT_EQ(LinesOf("Hex[2,3].Seen[1]").size(), 2u);
  EXPECT_EQ(LinesOf("Unit[4].Readiness").size(), 1u);
  EXPECT_EQ(LinesOf("Type[2].Attr[4]").size(), 1u);
  EXPECT_EQ(LinesOf("Type[2].Living[1]").size(), 1u);
  EXPECT_EQ(LinesOf("Regime[1].PP").size(), 1u);
  EXPECT_EQ(LinesOf("Regime[1].Research[12]").size(), 1u);
  EXPECT_EQ(LinesOf("Dip[1,2].Cost").size(), 1u);
  EXPECT_EQ(LinesOf("Shq[1,2].StockQty[3]").size(), 1u);
  EXPECT_EQ(LinesOf("Shq[1,2].Unit").size(), 1u);
  EXPECT_EQ(LinesOf("News[1,5].Text").size(), 1u);
  EXPECT_EQ(LinesOf("People[1].FirstName[3]").size(), 1u);
  EXPECT_EQ(LinesOf("Officer[2].Fame").size(), 1u);
  EXPECT_EQ(LinesOf("Research[3].Cost").size(), 1u);
  EXPECT_EQ(LinesOf("Event[2].Data[30]").size(), 1u);
  EXPECT_EQ(LinesOf("Event[2].DataText[1]").size(), 1u);
  EXPECT_EQ(LinesOf("Game.BookVar[7]").size(), 1u);
  EXPECT_EQ(LinesOf("EngineVar[533]").size(), 1u);
  EXPECT_EQ(LinesOf("Game.RegimeCount").size(), 2u);
  EXPECT_EQ(LinesOf("Game.PeopleCount").size(), 3u);  // once, then once per people
  // The value of a field is its line without the blanks.
  const auto fame = LinesOf("Officer[2].Fame")[0];
  EXPECT_EQ(fields[fame].value, "11");
  EXPECT_EQ(lines[fame], " 11 ");
  // Repeats are marked; the first copy of every name is not.
  std::size_t repeats = 0;
  for (const auto& f : fields) repeats += f.repeat ? 1 : 0;
  // 3 regimes x 20 x 15 sight values, 2 people counts, the regime count, the rule 616.
  EXPECT_EQ(repeats, 3u * 300 + 2 + 1 + 1);
  EXPECT_FALSE(fields[LinesOf("Hex[2,3].Seen[1]")[0]].repeat);
  EXPECT_TRUE(fields[LinesOf("Hex[2,3].Seen[1]")[1]].repeat);
}

}  // namespace
}  // namespace mf::test
