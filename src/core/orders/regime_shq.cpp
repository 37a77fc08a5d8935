#include "orders/regime_shq.h"

#include "engine/officers.h"
#include "model/arith.h"
#include "model/capacity.h"
#include "model/game_state.h"

namespace mf {

std::string RegimeShqName(const std::string& townName) { return Left("SHQ " + townName, 16); }

int MakeRegimeShq(int r, int x, int y, int slot) {
  if (!ValidRegime(r) || !ValidHex(x, y)) return 0;
  HexRec& h = Hex[x][y];
  if (slot == 0) {
    slot = 1;
    while (slot <= kStackSlots && h.Unit[slot] != 0) ++slot;
  }
  if (slot < 1 || slot > kStackSlots || h.Unit[slot] != 0) return 0;
  // The stack is packed from slot 1: a slot above an empty one would leave a hole.
  for (int s = 1; s < slot; ++s)
    if (h.Unit[s] == 0) return 0;

  const Long savedRegime = Game.CurRegime;
  Game.CurRegime = r;
  const int u = NewUnitNumber();
  const int number = u == 0 ? 0 : NewShqNumber();
  if (u == 0 || number == 0) {
    Game.CurRegime = savedRegime;
    return 0;
  }

  Unit[u] = UnitRec{};  // the number may have served a disbanded unit
  UnitRec& un = Unit[u];
  un.Name = RegimeShqName(h.UrbanName);
  un.Regime = r;
  un.Shq = number;
  un.Theater = kLandTheater;
  un.CounterPic = Regime[r].HexSprite + 240;
  h.Unit[slot] = u;
  Shq[r][number].Unit = u;
  MakeOfficer(u);
  Game.CurRegime = savedRegime;
  return u;
}

}  // namespace mf
