#include "combat/attack.h"

#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {

// The battle itself comes with the combat rules; until then an attack is
// prepared and sent off, and nothing is fought.
void doAttack() {}

bool artyok2(int slot) {
  if (!ValidHex(UI.SelX, UI.SelY) || slot < 1 || slot > kStackSlots) return false;
  const long u = Hex[UI.SelX][UI.SelY].Unit[slot];
  if (!ValidUnit(static_cast<int>(u))) return false;
  const UnitRec& unit = Unit[u];
  const int d = Distance(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY), static_cast<int>(UI.OrdX),
                         static_cast<int>(UI.OrdY));
  if (unit.Theater == kSeaTheater) {
    const long range = ValidType(static_cast<int>(unit.InfType)) ? Type[unit.InfType].Attr[kArtilleryRange] : 0;
    return range >= d;
  }
  if (!ValidType(static_cast<int>(unit.ArtType)) || unit.ArtQty <= 0) return false;
  return Type[unit.ArtType].Attr[kArtilleryRange] >= d;
}

bool artyok() { return artyok2(static_cast<int>(UI.SelSlot)); }

}  // namespace mf
