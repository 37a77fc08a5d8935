// A fresh game is fresh: the clear that zeroes the tables puts every other
// global of one game back to its start too, so that two scripts run one after
// the other in one process give what each gives alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <sys/wait.h>

#include <cstdio>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ai/ai_state.h"
#include "combat/battle_state.h"
#include "combat/losses.h"
#include "editor/map_paint.h"
#include "model/game_state.h"
#include "orders/flood.h"
#include "orders/order_buttons.h"
#include "orders/transfer.h"
#include "orders/transport.h"
#include "script_runner.h"
#include "view/panel.h"

namespace mf::cli {
namespace {

TEST(FreshGame, TheClearOfTheTablesClearsEveryGlobalOfOneGame) {
  // A game left in the middle of things: a battle being fought, an order
  // under way, a transfer and an airlift chosen, a flood's box, the
  // computer player's tables and the paint tools in use.
  TheBattle.round = 3;
  TheBattle.tx = 4;
  AttackerLost[1] = 7;
  DefenderLost[2] = 5;
  Buttons.doButton.enabled = true;
  Buttons.doButton.caption = "DO ATTACK";
  Buttons.orderLine = "Move Cost = 3";
  Panel.hexShown = true;
  Panel.regimeText = "Westland";
  TransferRequest.Qty[1] = 12;
  TransferRequest.Supply = 40;
  AirliftUnit = 9;
  AirliftDrop = 1;
  AirSupplyShq = 2;
  FloodMinX = FloodMinY = 2;
  FloodMaxX = FloodMaxY = 8;
  AI.AreaCount = 6;
  AI.FrontCount = 2;
  PaintTools.regimeBox = "3";
  PaintTools.listRow = 4;

  ZeroAllTables();

  EXPECT_EQ(TheBattle.round, 0);
  EXPECT_EQ(TheBattle.tx, 0);
  EXPECT_EQ(AttackerLost[1], 0);
  EXPECT_EQ(DefenderLost[2], 0);
  EXPECT_FALSE(Buttons.doButton.enabled);
  EXPECT_EQ(Buttons.doButton.caption, "");
  EXPECT_EQ(Buttons.orderLine, "");
  EXPECT_FALSE(Panel.hexShown);
  EXPECT_EQ(Panel.regimeText, "");
  EXPECT_EQ(TransferRequest.Qty[1], 0);
  EXPECT_EQ(TransferRequest.Supply, 0);
  EXPECT_EQ(AirliftUnit, 0);
  EXPECT_EQ(AirliftDrop, 0);
  EXPECT_EQ(AirSupplyShq, 0);
  EXPECT_EQ(FloodMinX, 0);
  EXPECT_EQ(FloodMaxY, 0);
  EXPECT_EQ(AI.AreaCount, 0);
  EXPECT_EQ(AI.FrontCount, 0);
  EXPECT_EQ(PaintTools.regimeBox, "");
  EXPECT_EQ(PaintTools.listRow, 0);
}

// What a script printed and its exit code, with the names of the scratch
// folders each run makes for itself taken out.
std::string Result(const std::string& out, const std::string& err, int code) {
  const std::regex scratch("mfscript_[0-9]+");
  return std::regex_replace(out + err, scratch, "mfscript_N") + "exit " + std::to_string(code) + "\n";
}

std::string ScriptPath(const std::string& name) { return std::string(MF_CLI_SCRIPTS) + "/" + name + ".mfs"; }

// The script run alone, by the program in a process of its own.
std::string Alone(const std::string& name) {
  const std::string command = std::string(MF_CLI_EXE) + " run " + ScriptPath(name) + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return "cannot start " + command;
  std::string out;
  char buffer[4096];
  std::size_t n = 0;
  while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0) out.append(buffer, n);
  const int status = pclose(pipe);
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return Result(out, "", code);
}

// The script run in this process, after whatever ran in it before.
std::string InProcess(const std::string& name) {
  std::ostringstream out, err;
  const int code = RunScriptFile(ScriptPath(name), out, err);
  return Result(out.str(), err.str(), code);
}

// Pairs of scripts of different parts of the game: battles and an editor,
// the computer player and map painting, transfers and an air landing.
class TwoScripts : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(TwoScripts, GiveInOneProcessInBothOrdersWhatEachGivesAlone) {
  const std::string a = GetParam().first;
  const std::string b = GetParam().second;
  const std::string aloneA = Alone(a);
  const std::string aloneB = Alone(b);
  // Both pass on their own, so that a difference below is the leak's.
  ASSERT_NE(aloneA.find("exit 0\n"), std::string::npos) << aloneA;
  ASSERT_NE(aloneB.find("exit 0\n"), std::string::npos) << aloneB;
  EXPECT_EQ(InProcess(a), aloneA);
  EXPECT_EQ(InProcess(b), aloneB);
  EXPECT_EQ(InProcess(b), aloneB);
  EXPECT_EQ(InProcess(a), aloneA);
}

INSTANTIATE_TEST_SUITE_P(Scripts, TwoScripts,
                         testing::Values(std::make_pair("combat_attack", "editor_types"),
                                         std::make_pair("turn_computer", "paint_map"),
                                         std::make_pair("orgs_transfer", "airsea_paradrop")));

}  // namespace
}  // namespace mf::cli
