// The JSON export and import give, on the benchmark's largest scenario and
// on every shipped scenario, exactly the text and the tables recorded before
// they were made faster; and JSON that is wrong in any of the ways a person
// or a tool gets it wrong is refused with the same words, or read the same.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "control/scenario_flow.h"
#include "core/content/content_test_util.h"
#include "core/golden/golden_support.h"
#include "files/json_io.h"
#include "files/scenario_file.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "support/bench_worlds.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;
using test::Digest;
using test::GoldenFile;

std::string TextDigest(const std::string& text) {
  Digest d;
  d.Add(text);
  return d.Hex();
}

// A clear as before every load, so that an import starts from nothing.
void ClearAll() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
}

// The export of the current game, then its import into cleared tables, then
// the saved file and the export of what the import made.
void RecordRoundTrip(const std::string& world, GoldenFile& golden) {
  const std::string exported = ExportJson();
  golden.Put(world + " export", TextDigest(exported));
  ClearAll();
  std::string why;
  ASSERT_TRUE(ImportJson(exported, &why)) << world << ": " << why;
  golden.Put(world + " import saved", TextDigest(SerializeScenario()));
  golden.Put(world + " import exported", TextDigest(ExportJson()));
}

class JsonGolden : public CoreTest {};

TEST_F(JsonGolden, RoundTripsOfTheLargestScenarioAndEveryShippedScenario) {
  GoldenFile golden("json_golden.txt");
  bench::BuildFullScenario();
  RecordRoundTrip("largest", golden);
  for (const std::string& name : test::ShippedScenarios()) {
    const std::string path = test::CopyShipped(name, tempDir);
    ASSERT_FALSE(path.empty());
    ClearAll();
    ASSERT_TRUE(ReadFile(path)) << name;
    RecordRoundTrip(name, golden);
  }
  golden.Check();
}

// Wrong and odd JSON: each text is imported into cleared tables and its
// answer, reason and resulting tables are recorded.
TEST_F(JsonGolden, WrongAndOddJson) {
  GoldenFile golden("json_odd_golden.txt");
  test::world::NewMap(12, 10);
  test::world::AddRegime("North");
  test::world::AddRegime("South");
  test::world::AddUnit(1, 3, 4, "First", 0, 0);
  Game.Turn = 4;
  const std::string base = ExportJson();
  const std::string open = "\"fields\": {";
  const std::string close = "\n  }\n}\n";
  ASSERT_NE(base.find(open), std::string::npos);
  ASSERT_EQ(base.rfind(close), base.size() - close.size());
  // The base with members put first in "fields", or last.
  auto first = [&](const std::string& members) {
    std::string s = base;
    s.replace(s.find(open), open.size(), open + "\n    " + members + ",");
    return s;
  };
  auto last = [&](const std::string& members) {
    std::string s = base;
    s.replace(s.size() - close.size(), close.size(), ",\n    " + members + close);
    return s;
  };
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"empty", ""},
      {"blank", "   \n "},
      {"open brace", "{"},
      {"a list", "[1, 2]"},
      {"a number", "42"},
      {"no format", "{\"fields\": {}}"},
      {"wrong format", "{\"format\": \"other\", \"fields\": {}}"},
      {"format a number", "{\"format\": 3, \"fields\": {}}"},
      {"no fields", "{\"format\": \"marrowfield-scenario\"}"},
      {"fields a list", "{\"format\": \"marrowfield-scenario\", \"fields\": []}"},
      {"fields null", "{\"format\": \"marrowfield-scenario\", \"fields\": null}"},
      {"empty fields", "{\"format\": \"marrowfield-scenario\", \"fields\": {}}"},
      {"only the turn", "{\"format\": \"marrowfield-scenario\", \"fields\": {\"Game.Turn\": 7}}"},
      {"two formats, the last right", "{\"format\": \"x\", \"format\": \"marrowfield-scenario\", \"fields\": {}}"},
      {"two formats, the last wrong", "{\"format\": \"marrowfield-scenario\", \"format\": \"x\", \"fields\": {}}"},
      {"two fields, the last a list",
       "{\"format\": \"marrowfield-scenario\", \"fields\": {\"Game.Turn\": 7}, \"fields\": []}"},
      {"two fields, the last right",
       "{\"format\": \"marrowfield-scenario\", \"fields\": [], \"fields\": {\"Game.Turn\": 7}}"},
      {"two fields objects",
       "{\"format\": \"marrowfield-scenario\", \"fields\": {\"Game.Turn\": 7}, \"fields\": {\"Game.Turn\": 9}}"},
      {"more members", "{\"format\": \"marrowfield-scenario\", \"note\": [1, {\"a\": null}], \"fields\": {}}"},
      {"the base", base},
      {"trailing text", base + "x"},
      {"trailing object", base + "{}"},
      {"cut short", base.substr(0, base.size() / 2)},
      {"bad byte", first("\"Game.Turn\": 1\x01")},
      {"bad escape", first("\"Game.ScenarioStory\": \"a\\qb\"")},
      {"bad utf8", first("\"Game.ScenarioStory\": \"a\xff b\"")},
      {"text first", first("\"Game.Turn\": \"abc\"")},
      {"text last", last("\"Game.Turn\": \"abc\"")},
      {"true last", last("\"Game.Turn\": true")},
      {"null last", last("\"Game.Turn\": null")},
      {"list last", last("\"Game.Turn\": [1, 2]")},
      {"object last", last("\"Game.Turn\": {\"a\": [1, {}]}")},
      {"number for a switch", last("\"Game.FogOfWar\": 1")},
      {"text for a switch", last("\"Game.FogOfWar\": \"yes\"")},
      {"switch on", last("\"Game.FogOfWar\": true")},
      {"number for a text", last("\"Game.ScenarioStory\": 5")},
      {"escaped text", last("\"Game.ScenarioStory\": \"caf\\u00e9 \\\"x\\\" \\n\\t\\\\ \\ud83d\\ude00\"")},
      {"too big", last("\"Game.Turn\": 3000000000")},
      {"too small", last("\"Game.Turn\": -3000000000")},
      {"huge", last("\"Game.Turn\": 1e300")},
      {"fraction", last("\"Game.Turn\": 3.5")},
      {"fraction up", last("\"Game.Turn\": 4.5")},
      {"negative fraction", last("\"Game.Turn\": -2.5")},
      {"exponent", last("\"Game.Turn\": 2E1")},
      {"negative zero", last("\"Game.Turn\": -0")},
      {"short too big", last("\"Hex[3,4].Damage\": 40000")},
      {"short negative", last("\"Hex[3,4].Damage\": -5")},
      {"index out of range", last("\"Hex[3,4].Unit[1]\": 99999")},
      {"unknown names", last("\"Zulu.Field\": 1, \"Alpha.Field\": 2, \"Game.Nothing\": 3")},
      {"unknown and wrong", last("\"Zulu.Field\": 1, \"Game.Turn\": \"abc\"")},
      {"hex beyond the map", last("\"Hex[50,50].Land\": 2")},
      {"two wrong, first text", last("\"Game.Turn\": \"abc\", \"Game.Round\": [1]")},
      {"no version", [&] {
         std::string s = base;
         const std::string v = "\"Game.FileVersion\": 111,";
         const auto at = s.find(v);
         if (at != std::string::npos) s.erase(at, v.size());
         return s;
       }()},
      {"older version", [&] {
         std::string s = base;
         const std::string v = "\"Game.FileVersion\": 111";
         const auto at = s.find(v);
         if (at != std::string::npos) s.replace(at, v.size(), "\"Game.FileVersion\": 9");
         return s;
       }()},
  };
  for (const auto& [name, text] : cases) {
    ClearAll();
    std::string why;
    const bool ok = ImportJson(text, &why);
    Digest d;
    d.Add(ok ? 1 : 0);
    d.Add(why);
    d.Add(SerializeScenario());
    golden.Put(name, d.Hex());
  }
  golden.Check();
}

}  // namespace
}  // namespace mf
