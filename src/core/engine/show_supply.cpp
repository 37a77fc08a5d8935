#include "engine/show_supply.h"

#include <algorithm>
#include <cstdint>

#include "engine/supply_flood.h"
#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {
namespace {

// The figure of one SHQ: the base supply of the current regime's towns that
// deliver to it and lie strictly inside the range of the flood just run.
// Neither the computer's bonus nor the extra-supply multiplier is counted.
long ShownSupply(int shq) {
  std::int64_t sum = 0;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      const HexRec& h = Hex[x][y];
      if (h.Mark < EV(230) && h.Pop > 0 && h.Owner == Game.CurRegime && h.ProdSHQ == shq) sum += TownSupply(x, y);
    }
  }
  return static_cast<long>(std::clamp<std::int64_t>(sum, INT32_MIN, INT32_MAX));
}

}  // namespace

void ShowSupplyCommand() {
  if (UI.Overlay.ShowSupply != 0) {
    UI.Overlay.ShowSupply = 0;
    RequestRedraw(2);
    return;
  }
  UI.Overlay.ShowSupply = 1;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      for (int slot = 1; slot <= kStackSlots; ++slot) {
        const int u = Hex[x][y].Unit[slot];
        if (!ValidUnit(u) || Unit[u].Shq <= 0) continue;
        // Only the selection follows the SHQ; the flood starts from wherever
        // the last order left its origin, so the figure is a rough guide.
        UI.SelX = x;
        UI.SelY = y;
        UI.SelSlot = slot;
        SupplyFlood(true);
        Unit[u].GenSupply = ShownSupply(u);
      }
    }
  }
  RequestRedraw(2);
}

}  // namespace mf
