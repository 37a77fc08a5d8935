#include "engine/recovery.h"

#include <algorithm>
#include <cstdint>

#include "model/arith.h"
#include "model/game_state.h"
#include "orders/move_allowance.h"

namespace mf {
namespace {


// Largest whole number not above a / b; 0 for a zero divisor, as a rule set
// with a divider of 0 gives no gain rather than a fault.
std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  if (b == 0) return 0;
  std::int64_t q = a / b;
  if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
  return q;
}

bool HasTroops(const UnitRec& f) { return f.InfQty > 0 || f.MobQty > 0 || f.ArtQty > 0 || f.ArmQty > 0; }

// Steps 2 to 8: the formation tires or rests by its supply and gains
// experience. `inStack` is false for a formation riding in another, which
// follows neither the air rule nor the SHQ rules.
void RestAndTrain(UnitRec& f, bool inStack) {
  const bool shq = inStack && f.Shq > 0;
  std::int64_t ready = f.Readiness;
  const std::int64_t supply = f.SupplyPct;
  const std::int64_t xp = f.Experience;
  // 2. Attrition.
  if (supply > 0) ready -= EV(221);
  if (supply == 0) ready -= EV(222);
  // 3. Experience always helps.
  ready += FloorDiv(xp, EV(223));
  // 4. and 5. The floors.
  if (ready < EV(224)) ready = EV(224);
  if (supply > 0 && ready < EV(225)) ready = EV(225);
  // 6. Rest by supply, more for the experienced.
  ready += FloorDiv((FloorDiv(xp, EV(227)) + EV(226)) * supply, 100);
  // 7.
  if (ready > 100) ready = 100;
  if (shq) ready = 25;
  f.Readiness = Clamp32(ready);
  // 8. Experience comes by itself up to a level; aircrews train to twice it.
  if (!shq) {
    const std::int64_t limit = (inStack && f.Theater == kAirTheater) ? 2 * static_cast<std::int64_t>(EV(228)) : EV(228);
    if (f.Experience < limit) f.Experience = Clamp32(static_cast<std::int64_t>(f.Experience) + EV(229));
  }
}

}  // namespace

void RecoveryPass(int x, int y, int slot) {
  if (!ValidHex(x, y) || slot < 1 || slot > kStackSlots) return;
  const int u = Hex[x][y].Unit[slot];
  if (!ValidUnit(u)) return;
  UnitRec& f = Unit[u];
  // 1. The selection follows the pass.
  UI.SelX = x;
  UI.SelY = y;

  RestAndTrain(f, true);

  // 9. Movement points: the allowance, cut by readiness.
  UnitMaxMove(x, y, slot, false);
  f.MP = Clamp32(FloorDiv(static_cast<std::int64_t>(f.Readiness) * (2 * static_cast<std::int64_t>(f.MP) + 1), 200));
  if (f.Shq > 0) f.MP = 1;
  // 10. A supplied land formation can always attack.
  if (f.Theater == kLandTheater && f.Shq == 0 && f.SupplyPct > 0 && HasTroops(f) && f.MP < 2) f.MP = 2;

  // 11. The formation it carries rests with it, without the half point.
  if (f.Cargo > 0 && ValidUnit(f.Cargo)) {
    UnitRec& c = Unit[f.Cargo];
    RestAndTrain(c, false);
    UnitMaxMoveOf(f.Cargo, false);
    c.MP = Clamp32(FloorDiv(static_cast<std::int64_t>(c.Readiness) * c.MP, 100));
  }
}

}  // namespace mf
