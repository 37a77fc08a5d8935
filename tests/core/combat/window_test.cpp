// The battle window: shown for a person's battles and, on request, for the
// computer's; the pace of its lines; the wait for OK; the log either way.
#include "combat_test_util.h"

namespace mf::test {
namespace {

// The scripted platform, with the pauses after log lines written down.
class PacedPlatform : public ScriptedPlatform {
 public:
  void SleepMs(int ms) override { sleeps.push_back(ms); }
  std::vector<int> sleeps;
};

class WindowTest : public CombatTest {
 protected:
  void SetUp() override {
    CombatTest::SetUp();
    InstallPlatform(&paced);
    EngineVar[533].Value = 0;
    const int a = Put(red, 5, 5, "Red Rifles");
    Give(a, 1, rifle, 20);
    const int d = Put(blue, 6, 5, "Blue Rifles");
    Give(d, 1, rifle, 20);
    Target(6, 5);
    Join(5, 5, 1);
    SetBattleWindowHook([this](BattleWindowChange change) {
      const BattleWindow& w = TheBattleWindow();
      switch (change) {
        case BattleWindowChange::kOpened:
          seen.push_back(std::string("opened ") + (w.visible ? "shown" : "hidden") +
                         (w.mainWindowEnabled ? " main on" : " main off"));
          break;
        case BattleWindowChange::kLine:
          ++lines;
          if (!w.mainWindowEnabled) ++linesWhileMainOff;
          break;
        case BattleWindowChange::kFinished:
          seen.push_back("finished " + w.status + (w.okEnabled ? " ok on" : " ok off"));
          break;
        case BattleWindowChange::kClosed:
          seen.push_back(std::string("closed ") + (w.visible ? "shown" : "hidden") +
                         (w.mainWindowEnabled ? " main on" : " main off"));
          break;
      }
    });
  }
  void TearDown() override {
    InstallPlatform(&platform);
    CombatTest::TearDown();
  }
  std::vector<std::string> Dialogs() const {
    std::vector<std::string> out;
    for (const auto& e : paced.Events())
      if (e.kind == PlatformEvent::kDialogAction) out.push_back(e.title + ": " + e.text);
    return out;
  }
  // Lines of the closing tallies: from the blank before "ATTACKER lost:".
  static std::size_t TallyLines() {
    const auto& log = Log();
    for (std::size_t i = 0; i + 1 < log.size(); ++i)
      if (log[i + 1] == "ATTACKER lost:") return log.size() - i;
    return 0;
  }

  PacedPlatform paced;
  std::vector<std::string> seen;
  int lines = 0;
  int linesWhileMainOff = 0;
};

TEST_F(WindowTest, APersonsBattleIsShownAndWaitsForOk) {
  doAttack();
  EXPECT_EQ(seen, (std::vector<std::string>{"opened shown main off", "finished Finished. ok on",
                                            "closed hidden main on"}));
  EXPECT_EQ(Dialogs(), std::vector<std::string>{"battle: ok (default)"});
  EXPECT_EQ(lines, static_cast<int>(Log().size()));
  EXPECT_EQ(linesWhileMainOff, lines);
  // Every line waits 50 ms, but the blank after an engagement's heading; the
  // closing tallies 5 ms each.
  const std::size_t tally = TallyLines();
  ASSERT_GT(tally, 0u);
  ASSERT_EQ(paced.sleeps.size(), Log().size() - 1);
  for (std::size_t i = 0; i < paced.sleeps.size(); ++i)
    EXPECT_EQ(paced.sleeps[i], i + tally >= paced.sleeps.size() ? 5 : 50) << "pause " << i;
  EXPECT_EQ(paced.Sounds(), std::vector<int>{21});
  EXPECT_FALSE(TheBattleWindow().visible);
  EXPECT_FALSE(TheBattleWindow().IsOpen());
}

TEST_F(WindowTest, TheSpaceBarClosesItToo) {
  paced.QueueDialog("battle", {{"space", ""}});
  doAttack();
  EXPECT_EQ(Dialogs(), std::vector<std::string>{"battle: space"});
  EXPECT_TRUE(paced.lastError.empty());
}

TEST_F(WindowTest, OkIsRefusedWhileTheBattleIsFought) {
  BattleWindow& w = TheBattleWindow();
  OpenBattleWindow(true);
  w.waiting = true;
  std::string why;
  EXPECT_FALSE(w.Act("ok", "", &why));
  EXPECT_EQ(why, "OK is not enabled while the battle is fought");
  EXPECT_FALSE(w.Act("retreat", "", &why));
  EXPECT_EQ(why, "the battle window has no action \"retreat\"");
  w.okEnabled = true;
  EXPECT_TRUE(w.Act("ok", "", &why));
  EXPECT_FALSE(w.IsOpen());
  EXPECT_EQ(w.DialogName(), "battle");
  EXPECT_EQ(w.DefaultAction(), "ok");
}

// The computer's battle, its moves not shown: the log is written all the
// same, without pauses, sounds or a window.
TEST_F(WindowTest, AComputersBattleIsNotShown) {
  Regime[red].AI = 1;
  Game.ShowAIMoves = kFalse;
  doAttack();
  EXPECT_EQ(seen, (std::vector<std::string>{"opened hidden main off", "closed hidden main on"}));
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_TRUE(paced.sleeps.empty());
  EXPECT_TRUE(paced.Sounds().empty());
  EXPECT_GT(Log().size(), 30u);
  EXPECT_EQ(lines, static_cast<int>(Log().size()));
  EXPECT_EQ(Log().front(), "Initiating Battle");
}

// With the computer's moves shown the window opens and a person must press OK.
TEST_F(WindowTest, AComputersBattleShownToAPerson) {
  Regime[red].AI = 1;
  Game.ShowAIMoves = kTrue;
  doAttack();
  EXPECT_EQ(seen.front(), "opened shown main off");
  EXPECT_EQ(Dialogs(), std::vector<std::string>{"battle: ok (default)"});
  EXPECT_FALSE(paced.sleeps.empty());
}

// When the computer plays every regime nobody is there to press OK.
TEST_F(WindowTest, NoWaitWhenEveryRegimeIsComputerRun) {
  Regime[red].AI = 1;
  Regime[blue].AI = 1;
  Game.ShowAIMoves = kTrue;
  doAttack();
  EXPECT_EQ(seen, (std::vector<std::string>{"opened shown main off", "finished Finished. ok on",
                                            "closed hidden main on"}));
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(paced.sleeps.size(), Log().size() - 1);
}

TEST_F(WindowTest, NoSoundWhenSwitchedOff) {
  UI.SoundOff = 1;
  doAttack();
  EXPECT_TRUE(paced.Sounds().empty());
}

// Each battle starts a fresh log.
TEST_F(WindowTest, EachBattleStartsAFreshLog) {
  doAttack();
  const std::size_t first = Log().size();
  Target(6, 5);
  Join(5, 5, 1);
  doAttack();
  EXPECT_EQ(Log().front(), "Initiating Battle");
  EXPECT_EQ(LogCount("Initiating Battle"), 1);
  EXPECT_LE(Log().size(), first + 5);
}

}  // namespace
}  // namespace mf::test
