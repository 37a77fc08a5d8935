// The script commands of the map window: click, press, key and panel, run
// in-process on a small world built by the script itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "model/game_state.h"
#include "script_fixture.h"
#include "script_runner.h"
#include "support/core_test.h"

namespace mf::cli {
namespace {

class OrderCommandsTest : public ScriptTest {};

// Red and Blue at one machine, no fog; Red's rifles (weight 1, soft attack
// 10, hit points 20, 3 MP) at (3, 3) on Red's land, 3 MP left after start.
const char* const kWorld =
    "new 10 10\n"
    "set Game.RegimeCount 2\n"
    "set Regime[1].Name Red\n"
    "set Regime[2].Name Blue\n"
    "set Game.GameEndPop 99999\n"
    "set Game.TypeCount 1\n"
    "set Type[1].Name Rifles\n"
    "set Type[1].Class 1\n"
    "set Type[1].Attr[1] 1\n"
    "set Type[1].Attr[3] 3\n"
    "set Type[1].Attr[4] 10\n"
    "set Type[1].Attr[15] 20\n"
    "set Game.UnitCount 2\n"
    "set Unit[1].Name 1st\n"
    "set Unit[1].Regime 1\n"
    "set Unit[1].InfType 1\n"
    "set Unit[1].InfQty 30\n"
    "set Unit[1].Readiness 100\n"
    "set Unit[1].MP 3\n"
    "set Hex[3,3].Unit[1] 1\n"
    "set Hex[3,3].Owner 1\n"
    "set Hex[3,2].Owner 1\n"
    "set Hex[4,3].Owner 1\n"
    "set Hex[5,3].Owner 1\n"
    "set Unit[2].Name Guard\n"
    "set Unit[2].Regime 2\n"
    "set Unit[2].InfType 1\n"
    "set Unit[2].InfQty 30\n"
    "set Hex[8,8].Unit[1] 2\n"
    "set Hex[8,8].Owner 2\n"
    "start fog=0\n";

TEST_F(OrderCommandsTest, ClickPressAndClickAgainMoveAFormation) {
  EXPECT_EQ(Run(std::string(kWorld) +
                "set Unit[1].MP 3\n"
                "click 3 3\n"
                "expect UI.SelSlot 1\n"
                "press move\n"
                "expect UI.SelOrderMove 1\n"
                "expect Hex[5,3].Mark 2\n"
                "click 5 3\n"
                "expect Hex[5,3].Unit[1] 1\n"
                "expect Hex[3,3].Unit[1] 0\n"
                "expect Unit[1].MP 1\n"
                "expect UI.SelOrderMove 0\n"),
            0)
      << err.str();
}

TEST_F(OrderCommandsTest, ARightClickOnlySelectsAndEscCancels) {
  EXPECT_EQ(Run(std::string(kWorld) +
                "click 3 3\n"
                "key m\n"
                "click 4 3 right\n"
                "expect UI.SelX 4\n"
                "expect Hex[3,3].Unit[1] 1\n"
                "key Esc\n"
                "expect UI.SelOrderMove 0\n"
                "expect UI.SelX 3\n"),
            0)
      << err.str();
}

TEST_F(OrderCommandsTest, TheMessagesOfARefusedMoveArePrinted) {
  EXPECT_EQ(Run(std::string(kWorld) +
                "set Unit[1].MP 1\n"
                "click 3 3\n"
                "press move\n"
                "click 6 3\n"
                "expect-msg \"Not enough movementpoints\"\n"
                "press do\n"
                "expect UI.SelOrderMove 0\n"),
            0)
      << err.str();
  EXPECT_NE(out.str().find("MSG [Marrowfield] Not enough movementpoints\n"), std::string::npos);
}

TEST_F(OrderCommandsTest, PressingADisabledButtonFails) {
  const std::string world(kWorld);
  const int lines = static_cast<int>(std::count(world.begin(), world.end(), '\n'));
  const std::string next = "t.mfs:" + std::to_string(lines + 1) + ": ";
  EXPECT_EQ(Run(world + "click 8 8\npress move\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:" + std::to_string(lines + 2) + ": press move: the button \"[M]ove\" is disabled\n");
  EXPECT_EQ(Run(world + "press do\n"), 1);
  EXPECT_EQ(err.str(), next + "press do: the button \"\" is disabled\n");
  EXPECT_EQ(Run(world + "press cancel\n"), 1);
  EXPECT_EQ(err.str(), next + "press cancel: the button \"CANCEL ORDER\" is disabled\n");
}

TEST_F(OrderCommandsTest, AnAttackIsPreparedWithThePanel) {
  EXPECT_EQ(Run(std::string(kWorld) +
                "set Hex[8,8].Unit[1] 0\n"
                "set Hex[4,3].Unit[1] 2\n"
                "set Hex[4,3].Owner 2\n"
                "click 4 3\n"
                "press attack\n"
                "expect UI.AttackOrder 1\n"
                "click 3 3 right\n"
                "panel 1\n"
                "expect UI.AttackerCount 1\n"
                "expect UI.AttackerX[1] 3\n"
                "panel 1\n"
                "expect UI.AttackerCount 0\n"
                "key Enter\n"
                "expect UI.AttackOrder 0\n"),
            0)
      << err.str();
}

TEST_F(OrderCommandsTest, BadWordsFailWithTheirReason) {
  EXPECT_EQ(Run("click 3 x\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: click: \"3 x\" is not a hex (two whole numbers)\n");
  EXPECT_EQ(Run("click 3 3 middle\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: click: \"middle\" is neither left nor right\n");
  EXPECT_EQ(Run("press fly\n"), 1);
  EXPECT_EQ(err.str().rfind("t.mfs:1: press: no button \"fly\" (move, attack, ", 0), 0u);
  EXPECT_EQ(Run("key F5\n"), 1);
  EXPECT_EQ(err.str(),
            "t.mfs:1: key: \"F5\" is not a key (a letter, Enter, Space, Esc, F1, F2, F11, F12, Left, Right, Up, "
            "Down)\n");
  EXPECT_EQ(Run("panel 4\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: panel: \"4\" is not a stack slot 1..3\n");
  EXPECT_EQ(Run("panel 1\n"), 1);
  EXPECT_EQ(err.str(), "t.mfs:1: panel 1: no formation stands in that slot of the selected hex\n");
  // A press off the map is ignored, as the game ignores it.
  EXPECT_EQ(Run("click 0 5\nclick 50 50\nexpect UI.SelX 0\n"), 0) << err.str();
}

TEST_F(OrderCommandsTest, KeysReachTheGame) {
  EXPECT_EQ(Run("key F1\n"
                "expect-msg \"Sound is switched off\"\n"
                "expect UI.SoundOff 1\n"
                "key f1\n"
                "expect UI.SoundOff 0\n"
                "key Space\n"
                "key Left\n"),
            0)
      << err.str();
}

TEST_F(OrderCommandsTest, ShowSupplySwitchesTheFigures) {
  EXPECT_EQ(Run(std::string(kWorld) +
                "press showsupply\n"
                "expect UI.ShowSupply 1\n"
                "press showsupply\n"
                "expect UI.ShowSupply 0\n"),
            0)
      << err.str();
}

}  // namespace
}  // namespace mf::cli
