#include "model/game_state.h"

#include <vector>

#include "model/cleared_with_tables.h"
#include "platform/platform.h"

namespace mf {

HexRec Hex[kMapCap + 1][kMapCap + 1];
UnitRec Unit[kUnitCap + 1];
TypeRec Type[kTypeCap + 1];
RegimeRec Regime[kRegimeCap + 1];
DipRec Dip[kRegimeCap + 1][kRegimeCap + 1];
ShqRec Shq[kRegimeCap + 1][kShqCap + 1];
NewsRec News[kRegimeCap + 1][kNewsCap + 1];
PeopleRec People[kPeopleCap + 1];
Long OfficerPicSet[kPortraitCap + 1];
OfficerRec Officer[kOfficerCap + 1];
ResearchRec Research[kResearchCap + 1];
EventRec Event[kEventCap + 1];
EngineVarRec EngineVar[kEngineVarCap + 1];
GameRec Game;
UIRec UI;

namespace {
Long g_scratch = 0;

// The resets registered by the owners of the other globals of one game; made
// on first use, since owners register while the program starts.
std::vector<void (*)()>& GameGlobalResets() {
  static std::vector<void (*)()> resets;
  return resets;
}
}  // namespace

Long& UnitSlotType(int u, int cls) {
  if (u < 0 || u > kUnitCap) u = 0;
  switch (cls) {
    case 1: return Unit[u].InfType;
    case 2: return Unit[u].MobType;
    case 3: return Unit[u].ArtType;
    case 4: return Unit[u].ArmType;
    default: g_scratch = 0; return g_scratch;
  }
}

Long& UnitSlotQty(int u, int cls) {
  if (u < 0 || u > kUnitCap) u = 0;
  switch (cls) {
    case 1: return Unit[u].InfQty;
    case 2: return Unit[u].MobQty;
    case 3: return Unit[u].ArtQty;
    case 4: return Unit[u].ArmQty;
    default: g_scratch = 0; return g_scratch;
  }
}

void ZeroAllTables() {
  for (auto& column : Hex)
    for (auto& h : column) h = HexRec{};
  for (auto& u : Unit) u = UnitRec{};
  for (auto& t : Type) t = TypeRec{};
  for (auto& r : Regime) r = RegimeRec{};
  for (auto& row : Dip)
    for (auto& d : row) d = DipRec{};
  for (auto& row : Shq)
    for (auto& s : row) s = ShqRec{};
  for (auto& row : News)
    for (auto& n : row) n = NewsRec{};
  for (auto& p : People) p = PeopleRec{};
  for (auto& o : OfficerPicSet) o = 0;
  for (auto& o : Officer) o = OfficerRec{};
  for (auto& r : Research) r = ResearchRec{};
  for (auto& e : Event) e = EventRec{};
  for (auto& v : EngineVar) v.Value = 0;  // descriptions and categories are fixed labels
  Game = GameRec{};
  UI = UIRec{};
  for (void (*reset)() : GameGlobalResets()) reset();
}

bool ClearedWithTables(void (*reset)()) {
  GameGlobalResets().push_back(reset);
  return true;
}

int NewUnitNumber() {
  for (int u = 1; u <= kUnitCap; ++u) {
    if (Unit[u].Regime == 0) {
      Unit[u].Thq = 0;
      Unit[u].Shq = 0;
      Unit[u].Boss = 0;
      if (u > Game.UnitCount) Game.UnitCount = u;
      return u;
    }
  }
  Plat().ShowMessage(
      "You are playing a scenario that has exceed  2000 units. An error has just occured. It is not "
      "possible to create another unit either for you or for the AI.",
      "");
  return 0;
}

int NewShqNumber() {
  const int r = Game.CurRegime;
  if (r < 1 || r > kRegimeCap) return 0;
  // A number whose unit has gone to another regime (or been freed) is free again.
  for (int s = 1; s <= kShqCap; ++s) {
    const int u = Shq[r][s].Unit;
    if (u != 0 && (u < 1 || u > kUnitCap || Unit[u].Regime != r)) Shq[r][s].Unit = 0;
  }
  int width = EV(616);
  if (width > kStockCap) width = kStockCap;
  for (int s = 1; s <= kShqCap; ++s) {
    if (Shq[r][s].Unit == 0) {
      for (int k = 1; k <= width; ++k) {
        Shq[r][s].StockType[k] = 0;
        Shq[r][s].StockQty[k] = 0;
      }
      Shq[r][s].Carry = 0;
      return s;
    }
  }
  Plat().ShowMessage("This is a bug. To many SHQs for this player. Game will go beserk now", "");
  return 0;
}

}  // namespace mf
