// The JSON import on texts found by fuzzing: each is refused with a clear
// message, and the game it was to fill stays as it was.
#include <string>

#include "files/json_io.h"
#include "model/game_state.h"
#include "support/core_test.h"

namespace mf::test {
namespace {

class JsonImportRobust : public CoreTest {};

// A number too large for any number is an error of the text, told with its
// line and column like a syntax error (the column of its last character);
// it once ended the program.
TEST_F(JsonImportRobust, ANumberTooLargeForAnyNumberIsRefusedWithItsPlace) {
  Game.Turn = 7;
  Game.MapW = 12;
  std::string why;
  EXPECT_FALSE(ImportJson(R"({"format": "marrowfield-scenario", "fields": {"Game.MapW": 1e999}})", &why));
  EXPECT_EQ(why, "not valid JSON: line 1, column 64: number overflow parsing '1e999'");
  EXPECT_FALSE(ImportJson("{\"format\": \"marrowfield-scenario\",\n \"fields\": {\"Game.Turn\": -2E+400}}", &why));
  EXPECT_EQ(why, "not valid JSON: line 2, column 32: number overflow parsing '-2E+400'");
  // Also where no field is read: the whole text is checked.
  EXPECT_FALSE(ImportJson(R"({"x": [[1e309]], "format": "marrowfield-scenario", "fields": {}})", &why));
  EXPECT_EQ(why, "not valid JSON: line 1, column 13: number overflow parsing '1e309'");
  EXPECT_EQ(Game.Turn, 7);
  EXPECT_EQ(Game.MapW, 12);
}

// The largest numbers a double holds still read, and are refused as too
// large for the field they are given to.
TEST_F(JsonImportRobust, TheLargestFiniteNumberIsTooLargeForAField) {
  std::string why;
  EXPECT_FALSE(ImportJson(R"({"format": "marrowfield-scenario", "fields": {"Game.Turn": 1.7e308}})", &why));
  EXPECT_EQ(why.rfind("fields.\"Game.Turn\": ", 0), 0u) << why;
  EXPECT_NE(why.find(" does not fit a long field"), std::string::npos) << why;
}

}  // namespace
}  // namespace mf::test
