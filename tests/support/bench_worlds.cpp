#include "support/bench_worlds.h"

#include <algorithm>
#include <random>
#include <string>

#include "engine/production.h"
#include "engine/recovery.h"
#include "engine/supply.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "orders/flood.h"
#include "orders/movement.h"

namespace mf::bench {
namespace {

constexpr int kPerShq = 20;  // one THQ and 19 formations under each SHQ

int PutUnit(int r, int x, int y, const std::string& name) {
  HexRec& h = Hex[x][y];
  int slot = 1;
  while (slot <= kStackSlots && h.Unit[slot] != 0) ++slot;
  if (slot > kStackSlots) return 0;
  const int u = NewUnitNumber();
  Unit[u] = UnitRec{};
  Unit[u].Name = name;
  Unit[u].Regime = r;
  Unit[u].Readiness = 60;
  Unit[u].Experience = 20;
  h.Unit[slot] = u;
  return u;
}

}  // namespace

void BuildTurnWorld() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  ClearGame(true, 100, 100);
  EngineVar[230].Value = 50;
  std::mt19937 gen(11);
  auto pick = [&gen](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen); };

  Game.RegimeCount = 2;
  for (int r = 1; r <= 2; ++r) SetNewRegimeDefaults(r);
  Regime[1].Name = "Red";
  Regime[2].Name = "Blue";
  // At peace: the capture pass looks at every hex but takes nothing, so
  // every repetition does the same work.
  Dip[1][2].Relation = Dip[2][1].Relation = 1;
  Game.CurRegime = 1;
  Game.Turn = 3;
  UI.EditMode = 0;

  // Types: rifles, trucks, guns, tanks.
  Game.TypeCount = 4;
  const int weight[5] = {0, 1, 0, 3, 0}, carry[5] = {0, 0, 5, 0, 0}, move[5] = {0, 3, 8, 2, 5};
  for (int t = 1; t <= 4; ++t) {
    Type[t].Name = "Type " + std::to_string(t);
    Type[t].Class = t;
    Type[t].Cost = 300 * t;
    Type[t].Attr[kWeight] = weight[t];
    Type[t].Attr[kCarryCap] = carry[t];
    Type[t].Attr[kMovementCap] = move[t];
    Type[t].Attr[kSupplyNeed] = t;
  }

  // Red holds the west 85 columns, Blue the rest; forest, swamp, some
  // mountains and roads, and a lake with a port on each shore.
  for (int x = 1; x <= 100; ++x) {
    for (int y = 1; y <= 100; ++y) {
      HexRec& h = Hex[x][y];
      const int roll = pick(1, 100);
      h.Land = roll <= 65 ? kGrass : roll <= 85 ? kForest : roll <= 93 ? kSwamp : kMountain;
      if (x >= 40 && x <= 46 && y >= 40 && y <= 60) h.Land = kSea;
      if (h.Land != kSea) h.Owner = x <= 85 ? 1 : 2;
      if (h.Land != kSea && pick(0, 4) == 0) h.Road = 1;
    }
  }
  for (int y : {45, 55}) {
    Hex[39][y].Land = kUrban;
    Hex[47][y].Land = kUrban;
  }

  // SHQs on a grid of 5 x 4, each with its THQ and formations around it.
  int made = 0;
  for (int i = 0; i < 5; ++i) {
    for (int j = 0; j < 4; ++j) {
      const int sx = 8 + 16 * i, sy = 12 + 25 * j;
      Hex[sx][sy].Land = kGrass;
      const int shq = PutUnit(1, sx, sy, "SHQ");
      const int number = ++made;
      Unit[shq].Shq = number;
      Unit[shq].SupplyPct = 500;
      Shq[1][number].Unit = shq;
      const int thq = PutUnit(1, sx + 1, sy, "THQ");
      Unit[thq].Thq = 1;
      Unit[thq].Boss = shq;
      Unit[thq].InfType = 1;
      Unit[thq].InfQty = 2;
      for (int k = 1; k < kPerShq; ++k) {
        int u = 0;
        while (u == 0) {
          const int x = std::clamp(sx + pick(-8, 8), 1, 85), y = std::clamp(sy + pick(-10, 10), 1, 100);
          if (Hex[x][y].Land == kSea) continue;
          u = PutUnit(1, x, y, "Formation");
        }
        Unit[u].Boss = k % 2 == 0 ? thq : shq;
        Unit[u].InfType = 1;
        Unit[u].InfQty = pick(5, 20);
        Unit[u].MobType = 2;
        Unit[u].MobQty = pick(0, 4);
        Unit[u].ArtType = 3;
        Unit[u].ArtQty = pick(0, 3);
        Unit[u].Disruption = pick(0, 30);
      }
      // Five towns for each SHQ: political points, units and extra supply.
      for (int k = 0; k < 5; ++k) {
        const int x = std::clamp(sx + pick(-12, 12), 1, 85), y = std::clamp(sy + pick(-12, 12), 1, 100);
        HexRec& h = Hex[x][y];
        if (h.Land == kSea) continue;
        h.Land = kUrban;
        h.Owner = 1;
        h.Pop = pick(500, 5000);
        h.ProdSHQ = shq;
        h.Prod = k == 0 ? -1 : (k % 2 == 0 ? 0 : 1 + k % 4);
      }
    }
  }
}

// The driver's steps 7 to 12 for the current regime, as far as the economy
// goes: every formation waits for its new supply, then capture, supply, one
// hex loop of recovery and towns, transport and the clearing of the flood.
void TurnStartEconomy() {
  for (int u = 1; u <= Game.UnitCount; ++u)
    if (Unit[u].Regime != 0 && Unit[u].Shq == 0) Unit[u].SupplyPct = 0;
  HexCapture();
  ServeSupply();
  const int r = Game.CurRegime;
  for (int x = 1; x <= Game.MapW; ++x) {
    for (int y = 1; y <= Game.MapH; ++y) {
      for (int slot = 1; slot <= kStackSlots; ++slot) {
        const int u = Hex[x][y].Unit[slot];
        if (u == 0 || Unit[u].Regime != r) continue;
        UI.SelX = x;
        UI.SelY = y;
        RecoveryPass(x, y, slot);
      }
      if (Hex[x][y].Owner == r && Hex[x][y].Pop > 0) TownOutput(x, y);
    }
  }
  PoolTransport();
  ClearFlood();
}

namespace {
constexpr int kRegimes = 10;
constexpr int kTypes = 100;

}  // namespace

void BuildFullScenario() {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  ClearGame(true, 100, 100);
  Game.BookVarCount = kBookVarCount;
  Game.Turn = 12;
  Game.CurRegime = 3;
  Game.ScenarioStory = "A long war.\r\nTen nations.\r\nOne map.";
  std::mt19937 gen(42);
  auto pick = [&gen](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen); };

  Game.RegimeCount = kRegimes;
  for (int r = 1; r <= kRegimes; ++r) {
    SetNewRegimeDefaults(r);
    Regime[r].Name = "Regime " + std::to_string(r);
    Regime[r].PP = pick(0, 500);
    Regime[r].Intro = "Briefing of regime " + std::to_string(r) + ".\r\nHold the line.";
    for (int b = 1; b <= kRegimes; ++b) Dip[r][b].Cost = 999;
    for (int n = 1; n <= kNewsCap; ++n) {
      News[r][n] = NewsRec{101, "Battle report " + std::to_string(n) + " of regime " + std::to_string(r),
                           static_cast<Short>(pick(1, 100)), static_cast<Short>(pick(1, 100)),
                           static_cast<Short>(pick(1, 10))};
    }
    for (int s = 1; s <= 5; ++s) {
      for (int k = 1; k <= 20; ++k) {
        Shq[r][s].StockType[k] = k;
        Shq[r][s].StockQty[k] = pick(0, 200);
      }
    }
  }
  Game.PeopleCount = 5;
  for (int p = 1; p <= 5; ++p) {
    People[p].Name = "People " + std::to_string(p);
    for (int n = 1; n <= kPeopleNames; ++n) {
      People[p].FirstName[n] = "Förname" + std::to_string(n);
      People[p].LastName[n] = "Lastname" + std::to_string(n);
    }
  }
  Game.TypeCount = kTypes;
  for (int t = 1; t <= kTypes; ++t) {
    Type[t].Name = "Type " + std::to_string(t);
    Type[t].Class = 1 + t % 4;
    for (int a = 1; a <= kTypeAttrs; ++a) Type[t].Attr[a] = pick(1, 100);
  }
  for (int x = 1; x <= 100; ++x) {
    for (int y = 1; y <= 100; ++y) {
      HexRec& h = Hex[x][y];
      h.Land = pick(1, 6);
      h.Owner = pick(0, kRegimes);
      for (int r = 1; r <= kRegimes; ++r) h.Seen[r] = static_cast<Short>(pick(0, 1));
      if (pick(0, 20) == 0) {
        h.Pop = pick(500, 8000);
        h.UrbanName = "Town " + std::to_string(x) + "-" + std::to_string(y);
      }
    }
  }
  Game.UnitCount = kUnitCap;
  for (int u = 1; u <= kUnitCap; ++u) {
    UnitRec& un = Unit[u];
    un.Name = "Unit " + std::to_string(u);
    un.Regime = 1 + u % kRegimes;
    un.InfType = pick(1, kTypes);
    un.InfQty = pick(1, 20);
    un.Readiness = pick(0, 100);
    un.Experience = 25;
    // Units stand where they fit; a hex holds three.
    const int cell = (u - 1) / 3;
    Hex[1 + cell % 100][1 + cell / 100].Unit[1 + (u - 1) % 3] = u;
  }
  Game.EventCount = 50;
  for (int e = 1; e <= 50; ++e) Event[e].Story = "Event " + std::to_string(e) + "\r\nwith a story.";
}

}  // namespace mf::bench
