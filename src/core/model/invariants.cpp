#include "model/invariants.h"

#include <vector>

#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {
namespace {

std::string HexName(int x, int y) { return "Hex[" + std::to_string(x) + "," + std::to_string(y) + "]"; }

std::string SlotName(int x, int y, int slot) { return HexName(x, y) + ".Unit[" + std::to_string(slot) + "]"; }

std::string N(long n) { return std::to_string(n); }

}  // namespace

std::string CheckInvariants() {
  // Which living unit carries which: cargo belongs in no stack. A free unit
  // slot may still hold an old Cargo number; only living carriers count.
  std::vector<int> carrier(kUnitCap + 1, 0);
  for (int u = 1; u <= kUnitCap; ++u) {
    const int c = Unit[u].Cargo;
    if (Unit[u].Regime != 0 && c >= 1 && c <= kUnitCap) carrier[c] = u;
  }

  // Where each unit has been seen so far, to find a unit in two slots.
  struct Place {
    int x = 0, y = 0, slot = 0;
  };
  std::vector<Place> seen(kUnitCap + 1);

  const int w = MapW();
  const int h = MapH();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      const HexRec& hex = Hex[x][y];
      for (int s = 1; s <= kStackSlots; ++s) {
        const long u = hex.Unit[s];
        if (u == 0) continue;
        if (u < 1 || u > kUnitCap) return "unit number out of range: " + SlotName(x, y, s) + " = " + N(u);
        if (s > 1 && hex.Unit[s - 1] == 0)
          return "stack not packed: " + SlotName(x, y, s) + " = " + N(u) + " while " +
                 SlotName(x, y, s - 1) + " is empty";
        if (Unit[u].Regime == 0) return "free unit in a stack: " + SlotName(x, y, s) + " = " + N(u) + " has Regime 0";
        if (carrier[u] != 0)
          return "cargo in a stack: " + SlotName(x, y, s) + " = " + N(u) + " is the Cargo of unit " + N(carrier[u]);
        if (seen[u].slot != 0)
          return "unit in two stack slots: unit " + N(u) + " in " + SlotName(seen[u].x, seen[u].y, seen[u].slot) +
                 " and " + SlotName(x, y, s);
        seen[u] = {x, y, s};
        const long first = hex.Unit[1];
        if (s > 1 && Unit[u].Regime != Unit[first].Regime)
          return "mixed regimes in a stack: " + HexName(x, y) + " unit " + N(first) + " of regime " +
                 N(Unit[first].Regime) + " and unit " + N(u) + " of regime " + N(Unit[u].Regime);
      }
    }
  }

  // Every SHQ is the unit its regime's SHQ table names under its number.
  for (int u = 1; u <= kUnitCap; ++u) {
    const long r = Unit[u].Regime;
    const long s = Unit[u].Shq;
    if (r == 0 || s <= 0) continue;
    if (r < 1 || r > kRegimeCap || s > kShqCap)
      return "SHQ table mismatch: Unit[" + N(u) + "] of regime " + N(r) + " has Shq " + N(s) +
             " outside the table";
    if (Shq[r][s].Unit != u)
      return "SHQ table mismatch: Unit[" + N(u) + "].Shq = " + N(s) + " but Shq[" + N(r) + "," + N(s) +
             "].Unit = " + N(Shq[r][s].Unit);
  }
  return "";
}

}  // namespace mf
