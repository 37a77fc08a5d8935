// The JSON form of a scenario: every field once, by name, in file order;
// JSON to tables to file gives the bytes of the file it came from.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "control/scenario_flow.h"
#include "files/json_io.h"
#include "files/scenario_file.h"
#include "files/scenario_schema.h"
#include "files_test_util.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class JsonIo : public CoreTest {};

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t n = 0;
  for (std::size_t p = text.find(what); p != std::string::npos; p = text.find(what, p + 1)) ++n;
  return n;
}

TEST_F(JsonIo, ExportIsAnObjectOfFieldsInFileOrder) {
  BuildRichScenario();
  const std::string json = ExportJson();
  EXPECT_EQ(json.rfind("{\n  \"format\": \"marrowfield-scenario\",\n  \"fileVersion\": 111,\n  \"fields\": {\n", 0),
            0u);
  EXPECT_NE(json.find("\n    \"Game.FileVersion\": 111,\n    \"Game.FogOfWar\": 1,\n"), std::string::npos);
  EXPECT_NE(json.find("\"Game.ShowAIMoves\": true,\n    \"Game.AIAnalysis\": false,"), std::string::npos);
  EXPECT_NE(json.find("\"Game.ScenarioStory\": \"The rivers rise.\\r\\nTwo armies wait.\\r\\n\\r\\nWho crosses first?\""),
            std::string::npos);
  EXPECT_NE(json.find("\"People[1].Name\": \"Zoë Brontë\""), std::string::npos);
  EXPECT_NE(json.find("\"Regime[2].PP\": -5,"), std::string::npos);
  EXPECT_NE(json.find("\"Hex[2,3].UrbanName\": \"Ærøskøbing\""), std::string::npos);
  EXPECT_NE(json.find("\"Event[2].DataText[1]\": \"scenarios\\\\part2.mf2\""), std::string::npos);
  EXPECT_NE(json.find("\"EngineVar[1000]\": 0\n  }\n}\n"), std::string::npos);
  // Each name once, also for the fields the file holds twice.
  EXPECT_EQ(Count(json, "\"Hex[2,3].Seen[1]\""), 1u);
  EXPECT_EQ(Count(json, "\"Game.RegimeCount\""), 1u);
  EXPECT_EQ(Count(json, "\"Game.PeopleCount\""), 1u);
  EXPECT_EQ(Count(json, "\"EngineVar[616]\""), 1u);
  // File order.
  const char* order[] = {"\"Game.FileVersion\"", "\"Game.AIProdBonus\"", "\"Event[1].TurnMin\"",
                         "\"Game.BookVar[1]\"", "\"Hex[1,1].Pop\"", "\"Hex[20,15].Damage\"",
                         "\"People[1].Name\"", "\"Officer[1].Pic\"", "\"EngineVar[616]\"",
                         "\"Dip[1,1].Relation\"", "\"Regime[1].Name\"", "\"News[3,1000].Mark\"",
                         "\"Regime[3].Intro\"", "\"Game.UnitCount\"", "\"Unit[6].GenSupply\"",
                         "\"Research[200].Text\"", "\"Type[4].Override\"", "\"EngineVar[1]\""};
  std::size_t last = 0;
  for (const char* name : order) {
    const std::size_t at = json.find(name);
    ASSERT_NE(at, std::string::npos) << name;
    EXPECT_GT(at, last) << name;
    last = at;
  }
}

TEST_F(JsonIo, FileToJsonToFileIsLossless) {
  BuildRichScenario();
  const std::string path = TempPath("rich.mf1");
  ASSERT_TRUE(WriteFile(path));
  ClearForLoad();
  ASSERT_TRUE(ReadFile(path));
  const std::string loaded = SerializeScenario();
  const std::string json = ExportJson();
  ClearForLoad();
  std::string why;
  ASSERT_TRUE(ImportJson(json, &why)) << why;
  EXPECT_EQ(SerializeScenario(), loaded);
  EXPECT_EQ(People[2].Name, "?ód?");
  EXPECT_EQ(Event[1].Story, "Reinforcements arrive.\r\nThey are tired.");
  EXPECT_EQ(Game.ShowAIMoves, kTrue);
  // And the JSON of the imported tables is the JSON it came from.
  EXPECT_EQ(ExportJson(), json);
}

TEST_F(JsonIo, ExportDoesNotChangeTheTables) {
  world::NewMap(10, 10);
  Game.FileVersion = 100;
  EngineVar[616].Value = 2;
  for (int t = 1; t <= 5; ++t) world::AddType("T", kLandTheater, 1);
  const std::string json = ExportJson();
  EXPECT_EQ(Game.FileVersion, 100);
  EXPECT_EQ(EngineVar[616].Value, 2);
  // It shows what a save writes: the current version and the raised width.
  EXPECT_NE(json.find("\"Game.FileVersion\": 111,"), std::string::npos);
  EXPECT_NE(json.find("\"EngineVar[616]\": 5,"), std::string::npos);
  EXPECT_EQ(Count(json, "\"Shq[1,50].StockType[5]\""), 0u);  // no regimes, no stocks
}

TEST_F(JsonIo, MissingNamesReadAsZeroOrEmpty) {
  BuildRichScenario();
  const std::string json = R"({"format": "marrowfield-scenario", "fields": {
      "Game.MapW": 12, "Game.MapH": 11, "Game.RegimeCount": 1,
      "Regime[1].Name": "Solo", "Dip[1,1].Cost": 0, "Hex[3,3].Land": 4,
      "Game.ShowAIMoves": true, "Game.UnitCount": 1, "Unit[1].Name": "Lone", "Unit[1].Regime": 1,
      "Unit[1].Readiness": 55.5, "Unit[1].MP": 7, "Game.TypeCount": 1, "Type[1].Name": "Foot", "Type[1].Class": 1}})";
  std::string why;
  ASSERT_TRUE(ImportJson(json, &why)) << why;
  EXPECT_EQ(Game.FileVersion, 111);  // no version given: the current layout
  EXPECT_EQ(Game.FogOfWar, 0);       // was 1
  EXPECT_EQ(Game.Turn, 0);           // was 3
  EXPECT_EQ(Game.MapW, 12);
  EXPECT_EQ(Game.MapH, 11);
  EXPECT_EQ(Hex[3][3].Land, 4);
  EXPECT_EQ(Hex[1][1].Land, 0);
  EXPECT_EQ(Game.DirMap, "");
  EXPECT_EQ(Game.ShowAIMoves, kTrue);
  EXPECT_EQ(Game.RegimeCount, 1);
  EXPECT_EQ(Regime[1].Name, "Solo");
  EXPECT_EQ(Regime[1].PP, 0);
  EXPECT_EQ(Dip[1][1].Cost, 999);  // a 0 cost reads as 999, as from a file
  EXPECT_EQ(Game.UnitCount, 1);
  EXPECT_EQ(Unit[1].Name, "Lone");
  EXPECT_EQ(Unit[1].Readiness, 56);  // halves to even
  EXPECT_EQ(Unit[1].MP, 7);
  EXPECT_EQ(Unit[1].Shq, 0);
  EXPECT_EQ(Type[1].Name, "Foot");
  EXPECT_EQ(Type[1].Attr[kFrontsize], 1);  // the frontsize repair of a reader
  EXPECT_EQ(Game.PeopleCount, 0);
  EXPECT_EQ(EngineVar[533].Value, 0);
}

TEST_F(JsonIo, ImportJsonRefusesWhatIsNotAScenario) {
  std::string why;
  EXPECT_FALSE(ImportJson("{ not json", &why));
  EXPECT_EQ(why.rfind("not valid JSON: line 1, column 4: ", 0), 0u) << why;
  EXPECT_FALSE(ImportJson("[1, 2]", &why));
  EXPECT_EQ(why, "not a JSON object");
  EXPECT_FALSE(ImportJson(R"({"format": "something else", "fields": {}})", &why));
  EXPECT_EQ(why, "\"format\" is not \"marrowfield-scenario\"");
  EXPECT_FALSE(ImportJson(R"({"format": "marrowfield-scenario"})", &why));
  EXPECT_EQ(why, "no \"fields\" object");
  EXPECT_FALSE(ImportJson(R"({"format": "marrowfield-scenario", "fields": []})", &why));
  EXPECT_EQ(why, "no \"fields\" object");
}

TEST_F(JsonIo, ASyntaxErrorNamesItsLineAndColumn) {
  std::string why;
  EXPECT_FALSE(ImportJson("{\n  \"format\": \"marrowfield-scenario\",\n  \"fields\": {\"Game.Turn\": 3,,}\n}", &why));
  EXPECT_EQ(why.rfind("not valid JSON: line 3, column 29: ", 0), 0u) << why;
  // Columns count characters, not the bytes of a UTF-8 letter.
  EXPECT_FALSE(ImportJson("{\"Ærø\": x}", &why));
  EXPECT_EQ(why.rfind("not valid JSON: line 1, column 9: ", 0), 0u) << why;
}

TEST_F(JsonIo, AValueOfTheWrongKindIsRefusedWithItsPath) {
  auto refusal = [](const std::string& fields) {
    std::string why;
    EXPECT_FALSE(ImportJson(R"({"format": "marrowfield-scenario", "fields": {)" + fields + "}}", &why)) << fields;
    return why;
  };
  EXPECT_EQ(refusal(R"("Game.MapW": 12, "Game.MapH": 10, "Game.Turn": "7")"),
            "fields.\"Game.Turn\": expected a number, found a text");
  EXPECT_EQ(refusal(R"("Game.DirMap": 5)"), "fields.\"Game.DirMap\": expected a text, found a number");
  EXPECT_EQ(refusal(R"("Game.ShowAIMoves": 1)"), "fields.\"Game.ShowAIMoves\": expected true or false, found a number");
  EXPECT_EQ(refusal(R"("Game.Turn": [1])"), "fields.\"Game.Turn\": expected a number, found a list");
  EXPECT_EQ(refusal(R"("Game.Turn": null)"), "fields.\"Game.Turn\": expected a number, found null");
  EXPECT_EQ(refusal(R"("Game.Turn": 3000000000)"), "fields.\"Game.Turn\": 3000000000 does not fit a long field");
  EXPECT_EQ(refusal(R"("Game.Turn": 1e10)"), "fields.\"Game.Turn\": 10000000000.0 does not fit a long field");
  EXPECT_EQ(refusal(R"("Game.MapW": 10, "Game.MapH": 10, "Hex[1,1].Vis": 40000)"),
            "fields.\"Hex[1,1].Vis\": 40000 does not fit a short field");
}

TEST_F(JsonIo, AnUnknownFieldNameIsRefusedWithItsPath) {
  std::string why;
  const std::string head = R"({"format": "marrowfield-scenario", "fields": {"Game.MapW": 10, "Game.MapH": 10, )";
  EXPECT_FALSE(ImportJson(head + R"("Game.Turnn": 3}})", &why));
  EXPECT_EQ(why, "fields.\"Game.Turnn\": no such field in a scenario with these counts and this map");
  // A field beyond the counts the file gives is as unknown as a misspelt one.
  EXPECT_FALSE(ImportJson(head + R"("Game.UnitCount": 1, "Unit[2].Name": "Extra"}})", &why));
  EXPECT_EQ(why, "fields.\"Unit[2].Name\": no such field in a scenario with these counts and this map");
  EXPECT_FALSE(ImportJson(head + R"("Hex[11,1].Land": 1}})", &why));
  EXPECT_EQ(why, "fields.\"Hex[11,1].Land\": no such field in a scenario with these counts and this map");
  EXPECT_TRUE(ImportJson(head + R"("Game.UnitCount": 1, "Unit[1].Name": "Lone"}})", &why)) << why;
}

TEST_F(JsonIo, OutOfRangeValuesAreCheckedAsInAFile) {
  const std::string json = R"({"format": "marrowfield-scenario", "fields": {
      "Game.MapW": 5000, "Game.MapH": 10, "Game.UnitCount": 99999, "Hex[1,1].Unit[1]": 7000,
      "Hex[1,2].Unit[1]": 1e9, "Game.TypeCount": -3}})";
  std::string why;
  ASSERT_TRUE(ImportJson(json, &why)) << why;
  EXPECT_EQ(Game.MapW, 100);
  EXPECT_EQ(Game.UnitCount, 2000);
  EXPECT_EQ(Hex[1][1].Unit[1], 0);
  EXPECT_EQ(Hex[1][2].Unit[1], 0);
  EXPECT_EQ(Game.TypeCount, 0);
}

}  // namespace
}  // namespace mf::test

namespace mf::test {
namespace {

// What an import gives: its answer, its reason and the saved file of the
// tables it filled, starting from cleared tables.
struct Imported {
  bool ok = false;
  std::string why;
  std::string saved;
};

Imported ImportFresh(const std::string& json) {
  ClearForLoad();
  Imported r;
  r.ok = ImportJson(json, &r.why);
  r.saved = SerializeScenario();
  return r;
}

// The member of that name as written, "name": value, up to the comma or the
// line end after it; "" when there is none.
std::string MemberOf(const std::string& json, const std::string& name) {
  const std::string key = "\"" + name + "\": ";
  const std::size_t at = json.find(key);
  if (at == std::string::npos) return "";
  const std::size_t end = json.find_first_of(",\n", at + key.size());
  return json.substr(at, end - at);
}

// The text with one member written otherwise; unchanged when it has none.
std::string Replaced(std::string json, const std::string& name, const std::string& member) {
  const std::string old = MemberOf(json, name);
  if (!old.empty()) json.replace(json.find(old), old.size(), member);
  return json;
}

// The text with its first member of "fields" (the version, without a comma
// in it) moved to the end, blanks and all: the walk's first ask then finds
// another name, so the text is read through the table of names rather than
// in the walk's order.
std::string FirstMemberLast(const std::string& json) {
  const std::string open = "\"fields\": {";
  const std::size_t start = json.find(open) + open.size();
  const std::size_t comma = json.find(',', start);
  const std::string first = json.substr(start, comma - start);
  std::string s = json;
  s.erase(start, comma + 1 - start);
  s.insert(s.rfind('}', s.rfind('}') - 1), "," + first);
  return s;
}

TEST_F(JsonIo, ATextInTheWalksOrderReadsAsTheSameTextInAnotherOrder) {
  BuildRichScenario();
  const std::string json = ExportJson();
  const std::string turn = MemberOf(json, "Game.Turn");
  const std::string sight = MemberOf(json, "Hex[2,3].Seen[1]");
  const std::string units = MemberOf(json, "Game.UnitCount");
  const std::string peoples = MemberOf(json, "Game.PeopleCount");
  ASSERT_FALSE(turn.empty());
  ASSERT_FALSE(sight.empty());
  ASSERT_FALSE(units.empty());
  ASSERT_FALSE(peoples.empty());
  auto blanks = [](std::string s) {
    // Raw line ends stand only between members: texts write theirs as \n.
    for (std::size_t at = s.find('\n'); at != std::string::npos; at = s.find('\n', at + 6)) s.replace(at, 1, "\n\t \r\n ");
    return s;
  };
  const std::string close = "\n  }\n}\n";
  auto atEnd = [&](const std::string& members) {
    std::string s = json;
    s.insert(s.rfind(close), ",\n    " + members);
    return s;
  };
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"the export", json},
      {"other blanks", blanks(json)},
      {"a name with escapes", Replaced(json, "Game.Turn", "\"Game.Tur\\u006e\": 6")},
      {"a sight's name with escapes", Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen\\u005b1]\": 3")},
      {"a text for a number", Replaced(json, "Game.Turn", "\"Game.Turn\": \"late\"")},
      {"a text for a sight", Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen[1]\": \"x\"")},
      {"a text with escapes for a sight", Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen[1]\": \"\\u0078\"")},
      {"a sight too big", Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen[1]\": 70000")},
      {"a fraction", Replaced(json, "Game.Turn", "\"Game.Turn\": 4.5")},
      {"a name twice, the last at the end", atEnd("\"Game.Turn\": 99")},
      {"a count twice, the last smaller", Replaced(json, "Game.UnitCount", units + ",\n    \"Game.UnitCount\": 2")},
      {"a count twice, the first smaller", Replaced(json, "Game.UnitCount", "\"Game.UnitCount\": 2,\n    " + units)},
      {"a name left out", Replaced(json, "Game.Turn", "\"Game.Turn\": 5,\n    \"Game.Turm\": 5")},
      {"an unknown name at the end", atEnd("\"Game.Nothing\": 1")},
      {"fewer peoples", Replaced(json, "Game.PeopleCount", "\"Game.PeopleCount\": 1")},
      {"no peoples", Replaced(json, "Game.PeopleCount", "\"Game.PeopleCount\": 0")},
      {"an old version", Replaced(json, "Game.FileVersion", "\"Game.FileVersion\": 99")},
  };
  for (const auto& [what, text] : cases) {
    const Imported inOrder = ImportFresh(text);
    const Imported moved = ImportFresh(FirstMemberLast(text));
    EXPECT_EQ(inOrder.ok, moved.ok) << what;
    EXPECT_EQ(inOrder.why, moved.why) << what;
    EXPECT_TRUE(inOrder.saved == moved.saved) << what;
  }
  {
    const Imported inOrder = ImportFresh(json + "{}");
    const Imported moved = ImportFresh(FirstMemberLast(json) + "{}");
    EXPECT_EQ(inOrder.ok, moved.ok);
    EXPECT_EQ(inOrder.why, moved.why);
    EXPECT_TRUE(inOrder.saved == moved.saved);
    EXPECT_EQ(inOrder.why.rfind("not valid JSON: ", 0), 0u) << inOrder.why;
  }
  // And what each of them means.
  EXPECT_TRUE(ImportFresh(json).ok);
  EXPECT_EQ(ExportJson(), json);
  EXPECT_TRUE(ImportFresh(blanks(json)).ok);
  EXPECT_EQ(ExportJson(), json);
  EXPECT_TRUE(ImportFresh(Replaced(json, "Game.Turn", "\"Game.Tur\\u006e\": 6")).ok);
  EXPECT_EQ(Game.Turn, 6);
  EXPECT_TRUE(ImportFresh(Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen\\u005b1]\": 3")).ok);
  EXPECT_EQ(Hex[2][3].Seen[1], 3);
  EXPECT_EQ(ImportFresh(Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen[1]\": \"x\"")).why,
            "fields.\"Hex[2,3].Seen[1]\": expected a number, found a text");
  EXPECT_EQ(ImportFresh(Replaced(json, "Hex[2,3].Seen[1]", "\"Hex[2,3].Seen[1]\": 70000")).why,
            "fields.\"Hex[2,3].Seen[1]\": 70000 does not fit a short field");
  EXPECT_TRUE(ImportFresh(atEnd("\"Game.Turn\": 99")).ok);
  EXPECT_EQ(Game.Turn, 99);  // the last value of a name written twice
  EXPECT_TRUE(ImportFresh(Replaced(json, "Game.UnitCount", "\"Game.UnitCount\": 2,\n    " + units)).ok);
  EXPECT_EQ(ExportJson(), json);
  EXPECT_EQ(ImportFresh(Replaced(json, "Game.UnitCount", units + ",\n    \"Game.UnitCount\": 2")).why,
            "fields.\"Unit[3].AIX\": no such field in a scenario with these counts and this map");
  EXPECT_EQ(Game.UnitCount, 2);
  EXPECT_EQ(ImportFresh(Replaced(json, "Game.Turn", "\"Game.Turn\": 5,\n    \"Game.Turm\": 5")).why,
            "fields.\"Game.Turm\": no such field in a scenario with these counts and this map");
}

TEST_F(JsonIo, TextsLongerThanTheWritersBufferGoThroughWhole) {
  BuildRichScenario();
  std::string plain(200000, 'a');
  for (std::size_t i = 0; i < plain.size(); i += 7) plain[i] = 'b';
  std::string escaped = plain;
  for (std::size_t i = 0; i < escaped.size(); i += 1000) escaped[i] = '"';
  Game.ScenarioStory = plain;
  Regime[1].Intro = escaped;
  const std::string json = ExportJson();
  EXPECT_NE(json.find("\"Game.ScenarioStory\": \"" + plain + "\","), std::string::npos);
  ClearForLoad();
  std::string why;
  ASSERT_TRUE(ImportJson(json, &why)) << why;
  EXPECT_EQ(Game.ScenarioStory, plain);
  EXPECT_EQ(Regime[1].Intro, escaped);
  EXPECT_EQ(ExportJson(), json);
}

// The import reads a text in the walk's order without a table of names, and
// tells a name written twice from the walk's order alone: that holds only
// while the walk asks for each name once, apart from the fields it asks for
// again.
TEST_F(JsonIo, TheWalkAsksForEachNameOnce) {
  BuildRichScenario();
  std::vector<std::string> names;
  for (const ListedField& f : ListScenarioFields()) {
    if (!f.repeat) names.push_back(f.name);
  }
  ASSERT_GT(names.size(), 1000u);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

}  // namespace
}  // namespace mf::test
