#include "support/core_test.h"

#include <filesystem>
#include <random>

#include "control/turn_cycle.h"
#include "model/engine_vars.h"
#include "model/invariants.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/paths.h"

namespace fs = std::filesystem;

namespace mf::test {

void CoreTest::SetUp() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  InstallPlatform(&platform);
  SeedRnd(12345);
  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  std::random_device rd;
  tempDir = (fs::temp_directory_path() /
             ("mftest_" + std::string(info->test_suite_name()) + "_" + info->name() + "_" +
              std::to_string(rd())))
                .string();
  fs::create_directories(tempDir);
  SetProgramDir(tempDir);
  // Every game a test plays keeps the game's invariants after every turn.
  SetTurnEndWatcher([] {
    const std::string problem = CheckInvariants();
    if (!problem.empty())
      ADD_FAILURE() << "when the turn of regime " << Game.CurRegime << " in game turn " << Game.Turn
                    << " ended: " << problem;
  });
}

void CoreTest::TearDown() {
  SetTurnEndWatcher({});
  InstallPlatform(nullptr);
  std::error_code ec;
  fs::remove_all(tempDir, ec);
}

std::string CoreTest::TempPath(const std::string& name) const { return (fs::path(tempDir) / name).string(); }

namespace world {

void NewMap(int w, int h) {
  ClearGame(true, w, h);
}

int AddRegime(const std::string& name) {
  const int r = ++Game.RegimeCount;
  SetNewRegimeDefaults(r);
  Regime[r].Name = name;
  for (int b = 1; b <= kRegimeCap; ++b) {
    Dip[r][b].Cost = 999;
    Dip[b][r].Cost = 999;
  }
  return r;
}

int AddType(const std::string& name, int theater, int cls) {
  const int t = ++Game.TypeCount;
  Type[t].Name = name;
  Type[t].Theater = theater;
  Type[t].Class = cls;
  return t;
}

int AddUnit(int r, int x, int y, const std::string& name, int infType, int infQty) {
  int slot = 1;
  while (slot <= kStackSlots && Hex[x][y].Unit[slot] != 0) ++slot;
  if (slot > kStackSlots) return 0;
  const int u = NewUnitNumber();
  if (u == 0) return 0;
  Unit[u] = UnitRec{};
  Unit[u].Name = name;
  Unit[u].Regime = r;
  Unit[u].InfType = infType;
  Unit[u].InfQty = infQty;
  Unit[u].Readiness = 100;
  Unit[u].Experience = 25;
  Unit[u].SupplyPct = 100;
  Hex[x][y].Unit[slot] = u;
  if (Hex[x][y].Owner == 0) Hex[x][y].Owner = r;
  return u;
}

int AddShq(int r, int x, int y, int number, const std::string& name) {
  const int u = AddUnit(r, x, y, name);
  if (u == 0) return 0;
  Unit[u].Shq = number;
  Unit[u].SupplyPct = 0;
  Shq[r][number].Unit = u;
  return u;
}

int AddThq(int r, int x, int y, int boss, const std::string& name) {
  const int u = AddUnit(r, x, y, name);
  if (u == 0) return 0;
  Unit[u].Thq = 1;
  Unit[u].Boss = boss;
  return u;
}

}  // namespace world
}  // namespace mf::test
