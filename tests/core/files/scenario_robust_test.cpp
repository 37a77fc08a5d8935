// Bad files: sizes and counts far out of range, indices naming nothing,
// truncated files and random bytes. The reader never leaves an index that
// points outside its table, and never crashes.
#include <random>
#include <string>

#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class ScenarioRobust : public CoreTest {
 protected:
  void SmallScenario() {
    world::NewMap(10, 10);
    Game.BookVarCount = 200;
    world::AddRegime("Red");
    world::AddRegime("Blue");
    const int t = world::AddType("Rifles", kLandTheater, 1);
    Type[t].Attr[kFrontsize] = 1;
    world::AddUnit(1, 2, 2, "A", t, 5);
    world::AddUnit(2, 3, 3, "B", t, 5);
  }
};

// Puts value on the line of the named field in a save's lines.
void SetLine(std::vector<std::string>& lines, const std::string& name, const std::string& value) {
  const auto at = LinesOf(name);
  ASSERT_FALSE(at.empty()) << name;
  lines[at[0]] = value;
}

bool In(long v, long lo, long hi) { return v >= lo && v <= hi; }

// "" when every count and every index field is inside its table; else the first that is not.
std::string RangeProblem() {
  if (!In(Game.MapW, 0, kMapCap) || !In(Game.MapH, 0, kMapCap)) return "map size";
  if (!In(Game.UnitCount, 0, kUnitCap)) return "UnitCount";
  if (!In(Game.TypeCount, 0, kTypeCap)) return "TypeCount";
  if (!In(Game.RegimeCount, 0, kRegimeCap)) return "RegimeCount";
  if (!In(Game.PeopleCount, 0, kPeopleCap)) return "PeopleCount";
  if (!In(Game.OfficerCount, 0, kOfficerCap)) return "OfficerCount";
  if (!In(Game.EventCount, 0, kEventCap)) return "EventCount";
  if (!In(Game.BookVarCount, 0, kBookVarCap)) return "BookVarCount";
  if (!In(Game.CurRegime, 0, kRegimeCap)) return "CurRegime";
  if (!In(EngineVar[616].Value, 0, kStockCap)) return "stock width";
  for (int x = 0; x <= kMapCap; ++x) {
    for (int y = 0; y <= kMapCap; ++y) {
      const HexRec& h = Hex[x][y];
      for (int s = 1; s <= kStackSlots; ++s) {
        if (!In(h.Unit[s], 0, kUnitCap)) return "Hex.Unit";
      }
      if (!In(h.Owner, 0, kRegimeCap) || !In(h.People, 0, kPeopleCap) || !In(h.Prod, -1, kTypeCap) ||
          !In(h.ProdSHQ, 0, kUnitCap)) {
        return "Hex index";
      }
    }
  }
  for (int u = 0; u <= kUnitCap; ++u) {
    const UnitRec& n = Unit[u];
    if (!In(n.Boss, 0, kUnitCap) || !In(n.Cargo, 0, kUnitCap) || !In(n.Officer, 0, kOfficerCap) ||
        !In(n.Regime, 0, kRegimeCap) || !In(n.Shq, 0, kShqCap) || !In(n.ThqBadge, 0, kBadgeCap) ||
        !In(n.InfType, 0, kTypeCap) || !In(n.MobType, 0, kTypeCap) || !In(n.ArtType, 0, kTypeCap) ||
        !In(n.ArmType, 0, kTypeCap) || n.Disruption < 0) {
      return "Unit " + std::to_string(u);
    }
  }
  for (int r = 0; r <= kRegimeCap; ++r) {
    if (!In(Regime[r].OwnPeople, 0, kPeopleCap)) return "OwnPeople";
    for (int b = 1; b <= kBadgeCap; ++b) {
      if (!In(Regime[r].ThqBadgeUnit[b], 0, kUnitCap)) return "ThqBadgeUnit";
    }
    for (int s = 0; s <= kShqCap; ++s) {
      if (!In(Shq[r][s].Unit, 0, kUnitCap)) return "Shq.Unit";
      for (int k = 1; k <= kStockCap; ++k) {
        if (!In(Shq[r][s].StockType[k], 0, kTypeCap)) return "Shq.StockType";
      }
    }
  }
  for (int o = 0; o <= kOfficerCap; ++o) {
    if (!In(Officer[o].Regime, 0, kRegimeCap) || !In(Officer[o].Pic, 0, kPortraitCap)) return "Officer";
  }
  for (int f = 0; f <= kResearchCap; ++f) {
    if (!In(Research[f].Need1, 0, kResearchCap) || !In(Research[f].Need2, 0, kResearchCap)) return "Research";
  }
  for (int t = 0; t <= kTypeCap; ++t) {
    if (!In(Type[t].Research, 0, kResearchCap)) return "Type.Research";
  }
  for (int e = 0; e <= kEventCap; ++e) {
    if (!In(Event[e].BookVar, 0, kBookVarCap)) return "Event.BookVar";
  }
  return "";
}

TEST_F(ScenarioRobust, HugeMapSizeIsClampedToTheTable) {
  SmallScenario();
  auto lines = SplitLines(SerializeScenario());
  lines[LinesOf("Game.MapW")[0]] = " 5000 ";
  lines[LinesOf("Game.MapH")[0]] = "-7 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Game.MapW, 100);
  EXPECT_EQ(Game.MapH, 0);
  EXPECT_EQ(RangeProblem(), "");
  ListScenarioFields();  // the tables as read can be walked again
}

TEST_F(ScenarioRobust, UnitCountsOutsideTheTable) {
  SmallScenario();
  const std::string plain = SerializeScenario();
  const auto at = LinesOf("Game.UnitCount")[0];
  auto lines = SplitLines(plain);

  lines[at] = "-3 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Game.UnitCount, 0);
  EXPECT_EQ(RangeProblem(), "");

  lines[at] = " 99999 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Game.UnitCount, 2000);
  EXPECT_EQ(Unit[1].Name, "A");  // the units before the end of the file are read
  EXPECT_EQ(RangeProblem(), "");
}

TEST_F(ScenarioRobust, OtherCountsOutsideTheirTables) {
  SmallScenario();
  const std::string plain = SerializeScenario();
  for (const char* name : {"Game.RegimeCount", "Game.PeopleCount", "Game.OfficerCount", "Game.TypeCount",
                           "Game.EventCount", "Game.BookVarCount", "EngineVar[616]"}) {
    for (const char* value : {"-3 ", " 99999 "}) {
      SmallScenario();
      auto lines = SplitLines(plain);
      for (auto at : LinesOf(name)) lines[at] = value;
      ClearForLoad();
      ParseScenario(JoinLines(lines));
      EXPECT_EQ(RangeProblem(), "") << name << " = " << value;
    }
  }
}

TEST_F(ScenarioRobust, StockWidthOf9999IsHeldTo500) {
  SmallScenario();
  auto lines = SplitLines(SerializeScenario());
  const auto width = LinesOf("EngineVar[616]");
  ASSERT_EQ(width.size(), 2u);
  lines[width[0]] = " 9999 ";
  lines[width[1]] = " 9999 ";
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(RangeProblem(), "");
  EXPECT_LE(EngineVar[616].Value, 500);
}

// Values a rule divides by, pays from or counts with are held where the
// rules keep them: a negative price cannot pay a regime for changing sides.
TEST_F(ScenarioRobust, ValuesOutsideTheirRangeReadAsTheRulesKeepThem) {
  SmallScenario();
  Game.TypeCount = 1;
  auto lines = SplitLines(SerializeScenario());
  auto set = [&lines](const std::string& name, const std::string& value) { SetLine(lines, name, value); };
  set("Dip[1,2].Cost", "-5 ");
  set("Dip[2,1].Cost", " 0 ");
  set("Dip[1,2].Relation", " 7 ");
  set("Unit[1].Readiness", " 150 ");
  set("Unit[2].Readiness", "-20 ");
  set("Unit[1].InfQty", "-5 ");
  set("Unit[1].Experience", "-1 ");
  set("Unit[1].SupplyPct", "-30 ");
  set("Unit[1].Theater", " 3 ");
  set("Hex[2,2].Land", " 9 ");
  set("Hex[2,2].Damage", " 250 ");
  set("Hex[2,2].Entrench[3]", " 8 ");
  set("Hex[2,2].River[1]", " 2 ");
  set("Hex[2,2].Pop", "-100 ");
  set("Shq[1,1].StockQty[1]", "-9 ");
  set("Research[1].Cost", "-50 ");
  set("Type[1].Cost", "-1 ");
  set("Type[1].Class", " 5 ");
  set("Game.FogOfWar", " 2 ");
  set("Game.Turn", "-3 ");
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Dip[1][2].Cost, 999);
  EXPECT_EQ(Dip[2][1].Cost, 999);
  EXPECT_EQ(Dip[1][2].Relation, 0);
  EXPECT_EQ(Unit[1].Readiness, 100);
  EXPECT_EQ(Unit[2].Readiness, 0);
  EXPECT_EQ(Unit[1].InfQty, 0);
  EXPECT_EQ(Unit[1].Experience, 0);
  EXPECT_EQ(Unit[1].SupplyPct, 0);
  EXPECT_EQ(Unit[1].Theater, 0);
  EXPECT_EQ(Hex[2][2].Land, 0);
  EXPECT_EQ(Hex[2][2].Damage, 100);
  EXPECT_EQ(Hex[2][2].Entrench[3], 3);
  EXPECT_EQ(Hex[2][2].River[1], 0);
  EXPECT_EQ(Hex[2][2].Pop, 0);
  EXPECT_EQ(Shq[1][1].StockQty[1], 0);
  EXPECT_EQ(Research[1].Cost, 0);
  EXPECT_EQ(Type[1].Cost, 0);
  EXPECT_EQ(Type[1].Class, 0);
  EXPECT_EQ(Game.FogOfWar, 0);
  EXPECT_EQ(Game.Turn, 0);
  // What is in range stays as it was.
  EXPECT_EQ(Unit[2].InfQty, 5);
  EXPECT_EQ(Hex[3][3].Land, 1);
}

// A regime colour names one of the fifteen coloured hexes; any other number
// reads as none, so that nothing made from it (an SHQ's counter is the
// colour + 240) can run past the end of a number.
TEST_F(ScenarioRobust, RegimeColourOutsideTheFifteenReadsAsNone) {
  SmallScenario();
  Regime[1].HexSprite = 4;
  Regime[2].HexSprite = 15;
  auto lines = SplitLines(SerializeScenario());
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Regime[1].HexSprite, 4);
  EXPECT_EQ(Regime[2].HexSprite, 15);
  SetLine(lines, "Regime[1].HexSprite", " 2147483647 ");
  SetLine(lines, "Regime[2].HexSprite", " 16 ");
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Regime[1].HexSprite, 0);
  EXPECT_EQ(Regime[2].HexSprite, 0);
}

TEST_F(ScenarioRobust, IndexFieldsNamingNothingReadAsZero) {
  SmallScenario();
  Game.OfficerCount = 1;
  Game.EventCount = 1;
  Event[1].Story = "An event";
  auto lines = SplitLines(SerializeScenario());
  auto set = [&lines](const std::string& name, const std::string& value) { SetLine(lines, name, value); };
  set("Hex[2,2].Unit[1]", " 7000 ");
  set("Hex[3,3].Unit[1]", "-1 ");
  set("Hex[4,4].Unit[1]", " 2000 ");  // the last unit number is a unit
  set("Hex[2,2].Owner", " 21 ");
  set("Hex[2,2].People", " 21 ");
  set("Hex[2,2].Prod", "-2 ");
  set("Hex[3,3].Prod", " 501 ");
  set("Hex[4,4].Prod", "-1 ");  // extra supply is a valid production
  set("Hex[2,2].ProdSHQ", " 2001 ");
  set("Game.CurRegime", " 21 ");
  set("Event[1].BookVar", " 501 ");
  set("Officer[1].Regime", " 99 ");
  set("Officer[1].Pic", " 201 ");
  set("Regime[1].ThqBadgeUnit[1]", " 9999 ");
  set("Regime[1].OwnPeople", " 21 ");
  set("Shq[1,1].Unit", " 2001 ");
  set("Shq[1,1].StockType[1]", "-1 ");
  set("Unit[1].Boss", " 5000 ");
  set("Unit[1].Regime", " 21 ");
  set("Unit[1].Shq", " 51 ");
  set("Unit[1].InfType", " 501 ");
  set("Unit[1].Cargo", "-4 ");
  set("Unit[1].Officer", " 2001 ");
  set("Unit[1].ThqBadge", " 51 ");
  set("Unit[2].MobType", " 500 ");  // the last type number is a type
  set("Research[1].Need1", " 201 ");
  set("Research[1].Need2", "-1 ");
  set("Type[1].Research", " 201 ");
  ClearForLoad();
  ParseScenario(JoinLines(lines));
  EXPECT_EQ(Hex[2][2].Unit[1], 0);
  EXPECT_EQ(Hex[3][3].Unit[1], 0);
  EXPECT_EQ(Hex[4][4].Unit[1], 2000);
  EXPECT_EQ(Hex[2][2].Owner, 0);
  EXPECT_EQ(Hex[2][2].People, 0);
  EXPECT_EQ(Hex[2][2].Prod, 0);
  EXPECT_EQ(Hex[3][3].Prod, 0);
  EXPECT_EQ(Hex[4][4].Prod, -1);
  EXPECT_EQ(Hex[2][2].ProdSHQ, 0);
  EXPECT_EQ(Game.CurRegime, 0);
  EXPECT_EQ(Event[1].BookVar, 0);
  EXPECT_EQ(Officer[1].Regime, 0);
  EXPECT_EQ(Officer[1].Pic, 0);
  EXPECT_EQ(Regime[1].ThqBadgeUnit[1], 0);
  EXPECT_EQ(Regime[1].OwnPeople, 0);
  EXPECT_EQ(Shq[1][1].Unit, 0);
  EXPECT_EQ(Shq[1][1].StockType[1], 0);
  EXPECT_EQ(Unit[1].Boss, 0);
  EXPECT_EQ(Unit[1].Regime, 0);
  EXPECT_EQ(Unit[1].Shq, 0);
  EXPECT_EQ(Unit[1].InfType, 0);
  EXPECT_EQ(Unit[1].Cargo, 0);
  EXPECT_EQ(Unit[1].Officer, 0);
  EXPECT_EQ(Unit[1].ThqBadge, 0);
  EXPECT_EQ(Unit[2].MobType, 500);
  EXPECT_EQ(Research[1].Need1, 0);
  EXPECT_EQ(Research[1].Need2, 0);
  EXPECT_EQ(Type[1].Research, 0);
  EXPECT_EQ(Unit[2].Name, "B");  // and the file stays in step
  EXPECT_EQ(RangeProblem(), "");
}

TEST_F(ScenarioRobust, MoreThanTenRegimesKeepTheirExtraSightToThemselves) {
  world::NewMap(10, 10);
  for (int r = 1; r <= 12; ++r) world::AddRegime("R" + std::to_string(r));
  Hex[5][5].Seen[10] = 1;
  const std::string plain = SerializeScenario();
  const auto lines = SplitLines(plain);
  EXPECT_EQ(lines[LinesOf("Hex[5,5].Seen[12]")[0]], " 0 ");
  auto edited = lines;
  for (auto at : LinesOf("Hex[5,5].Seen[11]")) edited[at] = " 1 ";
  ClearForLoad();
  ParseScenario(JoinLines(edited));
  EXPECT_EQ(Game.RegimeCount, 12);
  EXPECT_EQ(Regime[12].Name, "R12");
  EXPECT_EQ(Hex[5][5].Seen[10], 1);
  EXPECT_EQ(RangeProblem(), "");
  EXPECT_EQ(SerializeScenario(), plain);  // the eleventh plane is not kept
}

TEST_F(ScenarioRobust, TruncatedFilesAtManyCutPoints) {
  BuildRichScenario();
  const std::string plain = SerializeScenario();
  ASSERT_GT(plain.size(), 10000u);
  std::vector<std::size_t> cuts = {0, 1, 2, 3, 5, 6, 10, 50, 100, 200, 500};
  for (std::size_t c = 1000; c < plain.size(); c += plain.size() / 150) cuts.push_back(c);
  cuts.push_back(plain.size() - 2);
  cuts.push_back(plain.size() - 1);
  for (const std::size_t cut : cuts) {
    ClearForLoad();
    ParseScenario(plain.substr(0, cut));
    ASSERT_EQ(RangeProblem(), "") << "cut at " << cut;
  }
  // Cut after the last field: all of it is read.
  ClearForLoad();
  ParseScenario(plain.substr(0, plain.size() - 2));
  EXPECT_EQ(EngineVar[999].Value, -12);
  EXPECT_EQ(SerializeScenario(), plain);
}

TEST_F(ScenarioRobust, TruncatedFileReadsWhatItHoldsAndZerosAfter) {
  SmallScenario();
  const std::string plain = SerializeScenario();
  const auto lines = SplitLines(plain);
  const auto units = LinesOf("Game.UnitCount")[0];
  std::vector<std::string> head(lines.begin(), lines.begin() + static_cast<long>(units) + 2);  // count and first name
  // Read over the tables as they are: what the file no longer holds reads as 0.
  ASSERT_EQ(Unit[1].Regime, 1);
  ASSERT_EQ(Game.TypeCount, 1);
  ParseScenario(JoinLines(head));
  EXPECT_EQ(Game.UnitCount, 2);
  EXPECT_EQ(Unit[1].Name, "A");
  EXPECT_EQ(Unit[1].Regime, 0);  // beyond the end: 0
  EXPECT_EQ(Regime[2].Name, "Blue");
  EXPECT_EQ(Game.TypeCount, 0);
  EXPECT_EQ(EngineVar[1].Value, 0);
}

TEST_F(ScenarioRobust, RandomBytesNeverLeaveABadIndex) {
  std::mt19937 gen(20240601);
  const std::string alphabet = "0123456789 -,\"\r\n\r\nTrueFalse//x//abc\xC3\xA9\x80\xFF";
  for (int round = 0; round < 60; ++round) {
    std::uniform_int_distribution<int> len(0, 30000);
    std::string bytes(static_cast<std::size_t>(len(gen)), '\0');
    const bool shaped = round % 2 == 0;
    std::uniform_int_distribution<int> any(0, 255);
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    for (char& c : bytes) c = shaped ? alphabet[pick(gen)] : static_cast<char>(any(gen));
    ClearForLoad();
    ParseScenario(bytes);
    ASSERT_EQ(RangeProblem(), "") << "round " << round;
  }
}

TEST_F(ScenarioRobust, MutatedValidFilesNeverLeaveABadIndex) {
  BuildRichScenario();
  const std::string plain = SerializeScenario();
  std::mt19937 gen(777);
  std::uniform_int_distribution<std::size_t> where(0, plain.size() - 1);
  std::uniform_int_distribution<int> digit(0, 9);
  for (int round = 0; round < 40; ++round) {
    std::string bytes = plain;
    for (int m = 0; m < 20; ++m) {
      const std::size_t p = where(gen);
      switch (m % 4) {
        case 0: bytes[p] = static_cast<char>('0' + digit(gen)); break;
        case 1: bytes.insert(p, "9999999"); break;
        case 2: bytes[p] = ','; break;
        default: bytes.erase(p, 1); break;
      }
    }
    ClearForLoad();
    ParseScenario(bytes);
    ASSERT_EQ(RangeProblem(), "") << "round " << round;
  }
}

TEST_F(ScenarioRobust, GarbageFileThroughTheWholeLoad) {
  const std::string path = TempPath("garbage.mf1");
  std::mt19937 gen(99);
  std::uniform_int_distribution<int> any(0, 255);
  std::string bytes(5000, '\0');
  for (char& c : bytes) c = static_cast<char>(any(gen));
  WriteBytes(path, bytes);
  LoadGameFile(path);
  EXPECT_EQ(RangeProblem(), "");
}

}  // namespace
}  // namespace mf::test
