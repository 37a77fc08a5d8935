#include "orders/move_allowance.h"

#include <algorithm>
#include <cstdint>

#include "model/game_state.h"
#include "model/type_lookup.h"

namespace mf {
namespace {

Long MoveCap(Long t) { return AttrOf(t, kMovementCap); }

// The carrying percent of a land formation is at most this.
constexpr std::int64_t kMaxCarryPct = 500;

}  // namespace

int UnitMaxMove(int x, int y, int slot, bool keep) {
  const int u = (ValidHex(x, y) && slot >= 1 && slot <= kStackSlots) ? Hex[x][y].Unit[slot] : 0;
  return UnitMaxMoveOf(u, keep);
}

int UnitMaxMoveOf(int unit, bool keep) {
  const int u = ValidUnit(unit) ? unit : 0;
  const UnitRec& f = Unit[u];
  std::int64_t allowance = 0;
  int carryPct = 100;

  if (f.Theater == kLandTheater) {
    // What must walk (infantry and the guns) against what can carry it.
    const std::int64_t artLoad = AttrOf(f.ArtType, kWeight) * f.ArtQty;
    const std::int64_t load = AttrOf(f.InfType, kWeight) * f.InfQty + artLoad;
    const std::int64_t carry = AttrOf(f.MobType, kCarryCap) * f.MobQty + AttrOf(f.ArmType, kCarryCap) * f.ArmQty;
    if (load <= carry) {
      // Everybody rides: the vehicles set the pace.
      allowance = 999;
      if (f.MobType > 0) allowance = MoveCap(f.MobType);
      if (f.ArmType > 0) allowance = std::min<std::int64_t>(allowance, MoveCap(f.ArmType));
    } else if (artLoad > carry) {
      // The guns cannot all be towed: they and the infantry march.
      allowance = MoveCap(f.ArtType);
      if (f.InfType > 0) allowance = std::min<std::int64_t>(allowance, MoveCap(f.InfType));
    } else {
      allowance = MoveCap(f.InfType);
    }
    if (f.InfQty == 0 && f.MobQty == 0 && f.ArtQty == 0 && f.ArmQty == 0) allowance = 0;
    if (f.Shq > 0) allowance = 1;
    // Int((1 / Z) x 100) with Z = (load + 1) / (carry + 1), in whole numbers.
    // Weights are never negative in a sound rule set, so load + 1 is at least 1.
    const std::int64_t num = 100 * (carry + 1), den = load + 1;
    std::int64_t pct = kMaxCarryPct;
    if (den > 0) {
      pct = num / den;
      if (num % den != 0 && num < 0) --pct;
    }
    carryPct = static_cast<int>(std::clamp<std::int64_t>(pct, INT32_MIN, kMaxCarryPct));
  } else {
    // Ships and aircraft go at the pace of their slowest class.
    allowance = 99;
    for (int cls = 1; cls <= 4; ++cls) {
      const Long t = UnitSlotType(u, cls);
      if (t > 0) allowance = std::min<std::int64_t>(allowance, MoveCap(t));
    }
  }
  if (!keep && u != 0) Unit[u].MP = static_cast<Long>(std::clamp<std::int64_t>(allowance, INT32_MIN, INT32_MAX));
  return carryPct;
}

}  // namespace mf
