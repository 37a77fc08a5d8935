#include "model/type_lookup.h"

#include "model/arith.h"

namespace mf {

std::int64_t UnitAttrTotal(int u, int attr) {
  if (!ValidUnit(u)) return 0;
  std::int64_t total = 0;
  for (int cls = 1; cls <= 4; ++cls) total = AddSat64(total, AttrOf(UnitSlotType(u, cls), attr) * UnitSlotQty(u, cls));
  return total;
}

}  // namespace mf
