// A unit type looked up by a number taken from a formation, a stock or a
// file. Such a number may name no type (an empty slot, damaged data), and
// then reads as the empty type: no attributes, no cost, no name.
#pragma once

#include <cstdint>

#include "model/game_state.h"

namespace mf {

// The record of type t; a number that names no type gives the empty record 0.
inline const TypeRec& TypeOf(Long t) { return ValidType(t) ? Type[t] : Type[0]; }

// Attribute attr of type t, 0 for a number that names no type. It comes
// 64 bits wide, so an attribute times a quantity of men, guns or ships (a
// carry capacity, a weight, a supply need) is always exact; sums of such
// products over a formation are taken by UnitAttrTotal, which stops at the
// ends instead of wrapping round.
inline std::int64_t AttrOf(Long t, int attr) { return ValidType(t) ? Type[t].Attr[attr] : 0; }

// Attribute attr times quantity, summed over the four classes of formation
// u (what it weighs, what it needs in supply); 0 for a number that names no
// formation.
std::int64_t UnitAttrTotal(int u, int attr);

// A formation with no troops left in any of its four classes.
inline bool NoTroops(const UnitRec& u) { return u.InfQty < 1 && u.MobQty < 1 && u.ArtQty < 1 && u.ArmQty < 1; }

}  // namespace mf
