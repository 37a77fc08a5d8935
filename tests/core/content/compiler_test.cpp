// The content compiler on small sources made in the test: what it builds,
// and the faults it finds, word for word.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "compile_command.h"
#include "compile_content.h"
#include "content_test_util.h"
#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;

// A 10 x 10 map: regime 1 owns columns 1..5, regime 2 columns 6..9, column 10 is sea.
std::string BaseSource() {
  std::string land, owner;
  for (int y = 1; y <= 10; ++y) {
    std::string l, o;
    for (int x = 1; x <= 10; ++x) {
      const bool town = (x == 2 && y == 2) || (x == 8 && y == 8);
      l += x == 10 ? "~ " : town ? "o " : ". ";
      o += x == 10 ? "~ " : x <= 5 ? "1 " : "2 ";
    }
    land += l + "\n";
    owner += o + "\n";
  }
  return "[scenario]\n"
         "Seed = 7\n"
         "GameEndPop = 4000\n"
         "ScenarioStory =\n"
         "| A test of the compiler.\n"
         "| Second line.\n"
         "[map]\nWidth = 10\nHeight = 10\n"
         "[land]\n" +
         land + "[owner]\n" + owner +
         "[people 1]\n"
         "Name = Testfolk\n"
         "FirstNames = Ana, Bo\n"
         "LastNames =\n"
         "| Cole\n"
         "| Dunn\n"
         "[research 1]\nName = Wheels\nCost = 5\nText = Round things.\n"
         "[type 1]\n"
         "Name = Foot; Theater = land; Class = 1; Sprite = 1; Cost = 100\n"
         "Weight = 10; Soft Attack = 5; Hit Points = 20; Frontsize = 1; Movement Cap = 3; Supply Need = 1\n"
         "[type 2]\n"
         "Name = Carts; Theater = land; Class = 2; Sprite = 2; Cost = 150; Research = Wheels; Living = none\n"
         "Weight = 5; Carry Cap = 30; Hit Points = 10; Frontsize = 1; Movement Cap = 5; Supply Need = 1\n"
         "[regime 1]\nName = Westland\nHexSprite = 2\nOwnPeople = Testfolk\nPortraitSet = 2\nResearch = Wheels\n"
         "Intro =\n| Take the east.\n"
         "[regime 2]\nName = Eastland\nHexSprite = 4\nOwnPeople = 1\nPortraitSet = 1\nAI = 1\nIntro =\n| Hold.\n"
         "[diplomacy]\n1-2 = war 50\n"
         "[town Alpha] At = 2,2; Pop = 2500; Prod = Foot; ProdSHQ = s1\n"
         "[town Omega] At = 8,8; Pop = 1500; Prod = PP; ProdSHQ = s2\n"
         "[unit s1] Name = SHQ Alpha; Regime = 1; At = 2,2; Shq = yes; SupplyStock = 300; Stock = Carts x 5, Foot x 7\n"
         "[unit t1] Name = First Corps; Regime = Westland; At = 3,2; Thq = yes; Boss = s1\n"
         "Inf = Foot x 40; Mob = Carts x 3; Experience = 50\n"
         "[unit] Name = 1st Foot; Regime = 1; At = 3,2; Boss = t1; Inf = Foot x 20\n"
         "Officer = Ana Dunn; Officer.Land = 7; Officer.Pic = 45\n"
         "[unit s2] Name = SHQ Omega; Regime = 2; At = 8,8; Shq = yes\n"
         "[unit] Name = Guard; Regime = 2; At = 7,8; Boss = s2; Inf = type:Foot x 25; Officer = none\n"
         "[officer] Regime = 2; Name = Bo Cole\n"
         "[event 1]\nTurnMin = 2\nType = 4\nShowReg1 = 1\nSprite = 3\n"
         "DataText[1] = Yes\nDataText[2] = No\nData[1] = 5\nData[6] = 1\n"
         "Story =\n| Choose.\n";
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string all;
  for (const auto& l : lines) all += l + "\n";
  return all;
}

class Compiler : public CoreTest {
 protected:
  std::string Write(const std::string& text, const std::string& name = "test.mfc") {
    const std::string path = TempPath(name);
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  // Compiles text; the faults found.
  std::vector<std::string> Compile(const std::string& text) {
    path_ = Write(text);
    std::vector<std::string> errors;
    const bool ok = content::CompileContent(path_, &errors);
    EXPECT_EQ(ok, errors.empty());
    return errors;
  }
  // "path:N" of the first line of text that contains marker.
  std::string At(const std::string& text, const std::string& marker) const {
    std::istringstream in(text);
    std::string line;
    for (int n = 1; std::getline(in, line); ++n) {
      if (line.find(marker) != std::string::npos) return path_ + ":" + std::to_string(n);
    }
    ADD_FAILURE() << "no line with " << marker;
    return "";
  }
  static std::string Replace(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos) text.replace(at, from.size(), to);
    return text;
  }
  std::string path_;
};

TEST_F(Compiler, BuildsTheTables) {
  const auto errors = Compile(BaseSource());
  ASSERT_TRUE(errors.empty()) << errors[0];
  EXPECT_EQ(Game.MapW, 10);
  EXPECT_EQ(Game.MapH, 10);
  EXPECT_EQ(Game.GameEndPop, 4000);
  EXPECT_EQ(Game.ScenarioStory, "A test of the compiler.\r\nSecond line.");
  EXPECT_EQ(Game.RegimeCount, 2);
  EXPECT_EQ(Game.TypeCount, 2);
  EXPECT_EQ(Game.PeopleCount, 1);
  EXPECT_EQ(People[1].FirstName[2], "Bo");
  EXPECT_EQ(People[1].LastName[2], "Dunn");
  EXPECT_EQ(Research[1].Name, "Wheels");
  EXPECT_EQ(Type[1].Attr[kSoftAttack], 5);
  EXPECT_EQ(Type[2].Research, 1);
  EXPECT_EQ(Type[1].Living[1], 1);  // a type named for no people is open to all
  EXPECT_EQ(Type[2].Living[1], 0);
  EXPECT_EQ(Type[2].Owning[1], 1);
  EXPECT_EQ(Regime[1].Research[1], 1);
  EXPECT_EQ(Regime[1].FormationName, "Bataljon");
  EXPECT_EQ(Regime[2].AI, 1);
  // Every pair of regimes, itself included, has a cost that reads back as written.
  EXPECT_EQ(Dip[1][2].Cost, 50);
  EXPECT_EQ(Dip[2][1].Cost, 50);
  EXPECT_EQ(Dip[1][2].Relation, 0);
  EXPECT_EQ(Dip[1][1].Cost, 999);
  EXPECT_EQ(Hex[10][1].Land, kSea);
  EXPECT_EQ(Hex[2][2].Land, kUrban);
  EXPECT_EQ(Hex[5][5].Owner, 1);
  EXPECT_EQ(Hex[6][5].Owner, 2);
  EXPECT_EQ(Hex[10][5].Owner, 0);
  EXPECT_EQ(Hex[2][2].UrbanName, "Alpha");
  EXPECT_EQ(Hex[2][2].Pop, 2500);
  EXPECT_EQ(Hex[2][2].People, 1);
  EXPECT_EQ(Hex[2][2].Prod, 1);
  EXPECT_EQ(Hex[2][2].ProdSHQ, 1);
  EXPECT_EQ(Hex[8][8].Prod, 0);
  // Units in the order given; HQs registered, pools filled, bosses linked.
  EXPECT_EQ(Game.UnitCount, 5);
  EXPECT_EQ(Unit[1].Shq, 1);
  EXPECT_EQ(Shq[1][1].Unit, 1);
  EXPECT_EQ(Shq[2][1].Unit, 4);
  EXPECT_EQ(Unit[1].SupplyPct, 300);
  EXPECT_EQ(Unit[1].Readiness, 25);
  EXPECT_EQ(Shq[1][1].StockType[1], 2);
  EXPECT_EQ(Shq[1][1].StockQty[1], 5);
  EXPECT_EQ(Shq[1][1].StockType[2], 1);
  EXPECT_EQ(Shq[1][1].StockQty[2], 7);
  EXPECT_EQ(Shq[1][1].Carry, 5 * 30);
  EXPECT_EQ(Unit[2].Thq, 1);
  EXPECT_EQ(Unit[2].Boss, 1);
  EXPECT_EQ(Unit[2].InfQty, 40);
  EXPECT_EQ(Unit[2].MobType, 2);
  EXPECT_EQ(Unit[2].Experience, 50);
  EXPECT_EQ(Unit[2].Readiness, 100);
  EXPECT_EQ(Unit[3].Boss, 2);
  EXPECT_EQ(Unit[3].Experience, 25);
  EXPECT_EQ(Hex[3][2].Unit[1], 2);
  EXPECT_EQ(Hex[3][2].Unit[2], 3);
  EXPECT_EQ(Hex[2][2].Unit[1], 1);
  EXPECT_EQ(Unit[5].Officer, 0);
  // Officers: drawn from the people's names with a portrait of the regime's
  // set (set 2 is pictures 41..80), or named in the source.
  EXPECT_EQ(Game.OfficerCount, 5);
  EXPECT_EQ(Unit[1].Officer, 1);
  EXPECT_EQ(Officer[1].Regime, 1);
  EXPECT_EQ(Officer[1].InPool, 0);
  EXPECT_EQ(Officer[1].Pic, 41);
  EXPECT_EQ(Officer[2].Pic, 42);
  const std::string drawn = Officer[1].Name;
  EXPECT_TRUE(drawn == "Ana Cole" || drawn == "Ana Dunn" || drawn == "Bo Cole" || drawn == "Bo Dunn") << drawn;
  EXPECT_EQ(Unit[3].Officer, 3);
  EXPECT_EQ(Officer[3].Name, "Ana Dunn");
  EXPECT_EQ(Officer[3].Land, 7);
  EXPECT_EQ(Officer[3].Pic, 45);
  EXPECT_EQ(Officer[4].Regime, 2);
  EXPECT_EQ(Officer[4].Pic, 1);
  EXPECT_EQ(Officer[5].Name, "Bo Cole");
  EXPECT_EQ(Officer[5].InPool, 1);
  EXPECT_EQ(Officer[5].Regime, 2);
  for (int o = 1; o <= 5; ++o) {
    EXPECT_GE(Officer[o].Retreat, 20);
    EXPECT_LE(Officer[o].Retreat, 79);
  }
  // Regime serials go on after the formations and THQs the scenario gives.
  EXPECT_EQ(Regime[1].UnitSerial, 2);
  EXPECT_EQ(Regime[2].UnitSerial, 1);
  EXPECT_EQ(Game.EventCount, 1);
  EXPECT_EQ(Event[1].Type, 4);
  EXPECT_EQ(Event[1].DataText[2], "No");
  EXPECT_EQ(Event[1].Data[1], 5);
  EXPECT_EQ(Event[1].Story, "Choose.");
}

TEST_F(Compiler, TheSameSourceGivesTheSameFile) {
  ASSERT_TRUE(Compile(BaseSource()).empty());
  const std::string first = TempPath("first.mf1");
  ASSERT_TRUE(WriteFile(first));
  ASSERT_TRUE(Compile(BaseSource()).empty());
  const std::string second = TempPath("second.mf1");
  ASSERT_TRUE(WriteFile(second));
  EXPECT_TRUE(test::FileBytes(first) == test::FileBytes(second));
}

TEST_F(Compiler, RiversLieOnBothHexesOfTheirSide) {
  const auto errors = Compile(BaseSource() + "[rivers]\nBrook = 4,4:5,4 4,4:4,5\n");
  ASSERT_TRUE(errors.empty()) << errors[0];
  EXPECT_EQ(Hex[4][4].River[3], 1);  // east
  EXPECT_EQ(Hex[5][4].River[6], 1);  // west
  // (4,4) is an even row: its south-east neighbour is (4,5), which sees it to the north-west.
  EXPECT_EQ(Hex[4][4].River[4], 1);
  EXPECT_EQ(Hex[4][5].River[1], 1);
  EXPECT_EQ(Hex[4][4].River[1], 0);
}

TEST_F(Compiler, IncludesAreReadFromTheirOwnFolder) {
  std::filesystem::create_directories(TempPath("rules"));
  Write("[research 1]\nName = Wheels\nCost = 5\nText = Round things.\n", "rules/more.mfc");
  std::string source = BaseSource();
  source = Replace(source, "[research 1]\nName = Wheels\nCost = 5\nText = Round things.\n", "include rules/more.mfc\n");
  const auto errors = Compile(source);
  ASSERT_TRUE(errors.empty()) << errors[0];
  EXPECT_EQ(Research[1].Name, "Wheels");
}

TEST_F(Compiler, FaultsNameTheirLine) {
  std::string s = BaseSource() + "[rivers]\nBrook = 4,4:6,4\n";
  auto errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "Brook") + ": river side 4,4:6,4: the hexes are not neighbours");

  s = Replace(BaseSource(), "Name = 1st Foot; Regime = 1; At = 3,2", "Name = 1st Foot; Regime = 1; At = 7,2");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "1st Foot") + ": At 7,2: the hex is not owned by the unit's regime");

  s = Replace(BaseSource(), "Name = Guard", "Name = Guard, Old");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "Guard, Old") + ": Name: a comma would cut this text in the file");

  s = Replace(BaseSource(), "Weight = 10; Soft Attack = 5", "Weight = 10; Carry Cap = 4; Soft Attack = 5");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], "[type 1] Foot: Carry Cap: Only mobile and armor may have carrycap.");

  s = Replace(BaseSource(), "[land]\n. ", "[land]\nx ");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "x ") + ": unknown landscape 'x' (. f o ~ s ^)");

  s = Replace(BaseSource(), "Inf = Foot x 20", "Inf = Horse x 20");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "Horse") + ": Inf: \"Horse\" is neither a number nor a known name");

  s = Replace(BaseSource(), "[town Omega] At = 8,8", "[town Omega] At = 8,7");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 2u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "[town Omega]") + ": At 8,7: a town stands on an 'o' hex of [land]");
  EXPECT_EQ(errors[1], "the 'o' hex 8,8 of [land] has no [town]");

  s = Replace(BaseSource(), "[town Alpha] At = 2,2; Pop = 2500; Prod = Foot; ProdSHQ = s1",
              "[town Alpha] At = 2,2; Pop = 2500; Prod = Foot");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "[town Alpha]") + ": an owned town needs the SHQ it delivers to, ProdSHQ");

  s = Replace(BaseSource(), "[unit] Name = Guard; Regime = 2; At = 7,8; Boss = s2;",
              "[unit] Name = Guard; Regime = 2; At = 7,8;");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "Guard") + ": every unit but an SHQ needs a Boss");

  s = Replace(BaseSource(), "Officer.Pic = 45", "Officer.Pic = 3");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "Officer.Pic") + ": Officer.Pic: portrait 3 is not of the regime's set 2");

  s = Replace(BaseSource(), "[diplomacy]\n1-2 = war 50", "[diplomacy]\n1-2 = truce");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "truce") + ": expected \"war\" or \"peace\" and a cost 1..999, not \"truce\"");

  s = Replace(BaseSource(), "[type 2]\n", "[type 3]\n");
  errors = Compile(s);
  ASSERT_GE(errors.size(), 1u);
  EXPECT_EQ(errors[0], At(s, "[type 3]") + ": [type] numbers must run from 1 without gaps; 2 is missing");

  s = Replace(BaseSource(), "[map]\n", "[map]\nStray line\n");
  errors = Compile(s);
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  EXPECT_EQ(errors[0], At(s, "Stray line") + ": expected \"Key = value\": Stray line");
}

TEST_F(Compiler, TheCommandWritesAFileThatLoads) {
  const std::string source = Write(BaseSource());
  const std::string out = TempPath("out.mf1");
  std::ostringstream o, e;
  EXPECT_EQ(cli::CompileCommand({source, "-o", out}, o, e), 0) << e.str();
  EXPECT_EQ(o.str(), "compiled " + source + " -> " + out + "\n");
  EXPECT_EQ(e.str(), "");
  ZeroAllTables();
  ASSERT_TRUE(ReadFile(out));
  EXPECT_EQ(Game.UnitCount, 5);
  EXPECT_EQ(Hex[2][2].UrbanName, "Alpha");

  const std::string bad = Write(Replace(BaseSource(), "Experience = 50", "Experience = fifty"), "bad.mfc");
  std::ostringstream o2, e2;
  EXPECT_EQ(cli::CompileCommand({bad, "-o", TempPath("bad.mf1")}, o2, e2), 1);
  EXPECT_NE(e2.str().find(": Experience: \"fifty\" is neither a number nor a known name\n"), std::string::npos)
      << e2.str();
  EXPECT_NE(e2.str().find("compile: " + bad + ": 1 fault\n"), std::string::npos) << e2.str();

  std::ostringstream o3, e3;
  EXPECT_EQ(cli::CompileCommand({source}, o3, e3), 1);
  EXPECT_EQ(e3.str(), "usage: marrowfield-cli compile SOURCE -o FILE\n");
}

// Source held in memory compiles to the same scenario as the same source on
// disk, its faults name the given file, and its includes are found beside it.
TEST_F(Compiler, SourceInMemoryCompilesAsOnDisk) {
  ASSERT_TRUE(Compile(BaseSource()).empty());
  const std::string fromDisk = SerializeScenario();

  const std::string name = TempPath("memory.mfc");
  std::vector<std::string> errors;
  ASSERT_TRUE(content::CompileContentText(BaseSource(), name, &errors)) << Joined(errors);
  EXPECT_EQ(SerializeScenario(), fromDisk);

  const std::string s = Replace(BaseSource(), "Experience = 50", "Experience = fifty");
  errors.clear();
  EXPECT_FALSE(content::CompileContentText(s, name, &errors));
  ASSERT_EQ(errors.size(), 1u) << Joined(errors);
  path_ = name;
  EXPECT_EQ(errors[0], At(s, "Experience = fifty") + ": Experience: \"fifty\" is neither a number nor a known name");

  // The events stand in a file of their own beside the named one.
  const std::string base = BaseSource();
  const std::size_t events = base.find("[event 1]");
  Write(base.substr(events), "events.mfc");
  errors.clear();
  ASSERT_TRUE(content::CompileContentText(base.substr(0, events) + "include events.mfc\n", name, &errors))
      << Joined(errors);
  EXPECT_EQ(SerializeScenario(), fromDisk);
}

}  // namespace
}  // namespace mf
