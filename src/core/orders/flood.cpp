#include "orders/flood.h"

#include "model/bounds.h"
#include "model/cleared_with_tables.h"
#include "model/game_state.h"

namespace mf {

int FloodMinX = 0, FloodMinY = 0, FloodMaxX = 0, FloodMaxY = 0;

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { FloodMinX = FloodMinY = FloodMaxX = FloodMaxY = 0; });
}  // namespace

void ClearFlood() {
  const int w = MapW();
  const int h = MapH();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      HexRec& hex = Hex[x][y];
      hex.Mark = 999;
      hex.PathSea = 0;
      hex.PathLand = 0;
      hex.PathPortX = 0;
      hex.PathPortY = 0;
      hex.ScratchRecon = 0;
    }
  }
}

}  // namespace mf
