#include "model/counter_pic.h"

#include "model/game_state.h"
#include "model/type_lookup.h"

namespace mf {

namespace {

const RegimeRec& RegimeOf(Long r) { return ValidRegime(r) ? Regime[r] : Regime[0]; }

// Family of a formation that is no HQ, no ship and no aircraft, decided by
// what its troops cost: trucks first, then long-range guns, armour, and the
// infantry last, so a tie goes to the class tested first.
int TroopFamily(int u) {
  const UnitRec& un = Unit[u];
  const double mob = static_cast<double>(TypeOf(un.MobType).Cost) * un.MobQty;
  // Field guns that fire only at the front do not make an artillery counter.
  const double art =
      AttrOf(un.ArtType, kArtilleryRange) > 1 ? static_cast<double>(TypeOf(un.ArtType).Cost) * un.ArtQty : 0.0;
  const double arm = static_cast<double>(TypeOf(un.ArmType).Cost) * un.ArmQty;
  const double inf = static_cast<double>(TypeOf(un.InfType).Cost) * un.InfQty;

  // The deciding type may bring a counter of its own; it is always one of
  // the classes held in strength, so Counter's override of held classes,
  // which comes after, has the last word on it.
  int family = kFamilyInfantry;
  double best = 0;
  if (mob > best) { best = mob; family = kFamilyInfantry; }
  if (art > best) { best = art; family = kFamilyArtillery; }
  if (arm > best) { best = arm; family = kFamilyArmour; }
  if (inf > best) { best = inf; family = kFamilyInfantry; }

  // More to carry than the trucks and tanks can take: the troops march.
  if (family == kFamilyInfantry) {
    const double load = static_cast<double>(AttrOf(un.InfType, kWeight)) * un.InfQty +
                        static_cast<double>(AttrOf(un.ArtType, kWeight)) * un.ArtQty;
    const double carry = static_cast<double>(AttrOf(un.MobType, kCarryCap)) * un.MobQty +
                         static_cast<double>(AttrOf(un.ArmType, kCarryCap)) * un.ArmQty;
    if ((load + 1) / (carry + 1) > 1) family = kFamilyFoot;
  }
  return family;
}

// The THQ badge of a THQ: the one it holds among its regime's badges 1..30,
// or else the first free one, which it then holds. 0 when all are taken.
Long ThqBadgeOf(int thq) {
  const Long r = Unit[thq].Regime;
  if (!ValidRegime(r)) return 0;
  for (int b = 1; b <= kBadgesGiven; ++b) {
    if (Regime[r].ThqBadgeUnit[b] == thq) return b;
  }
  for (int b = 1; b <= kBadgesGiven; ++b) {
    if (Regime[r].ThqBadgeUnit[b] == 0) {
      Regime[r].ThqBadgeUnit[b] = thq;
      return b;
    }
  }
  return 0;
}

}  // namespace

void Counter(int u) {
  if (!ValidUnit(u)) return;
  UnitRec& un = Unit[u];

  int family;
  if (un.Shq > 0) {
    family = kFamilyShq;
  } else if (un.Thq > 0) {
    family = kFamilyThq;
  } else if (un.Theater == kSeaTheater) {
    family = kFamilyShip;
  } else if (un.Theater == kAirTheater) {
    family = kFamilyAircraft;
  } else {
    family = TroopFamily(u);
  }

  // Any type held in strength may bring its own counter; the last held slot
  // with one, in the order infantry, mobile, artillery, armour, wins.
  const Long types[4] = {un.InfType, un.MobType, un.ArtType, un.ArmType};
  const Long qtys[4] = {un.InfQty, un.MobQty, un.ArtQty, un.ArmQty};
  for (int k = 0; k < 4; ++k) {
    if (types[k] > 0 && qtys[k] > 0 && TypeOf(types[k]).Override > 0) family = TypeOf(types[k]).Override;
  }

  if (family >= kCounterOwnSprite) {
    un.CounterPic = family;
  } else {
    Long colour = RegimeOf(un.Regime).HexSprite;
    // The player's own formations tell him what is wrong with them: cut off
    // from the chain of command, and (which shows over it) out of supply.
    if (un.Regime == Game.CurRegime && UI.EditMode == 0) {
      if (un.Shq <= 0 && un.Boss <= 0) colour = kCounterNoChain;
      if (un.Shq <= 0 && un.SupplyPct == 0) colour = kCounterNoSupply;
    }
    // A colour beyond the table reads as no picture rather than a wrapped number.
    const long long pic = 180 + 20LL * family + colour;
    un.CounterPic = pic >= 0 && pic <= 2100 ? static_cast<Long>(pic) : 0;
  }

  if (un.Thq > 0) {
    un.ThqBadge = ThqBadgeOf(u);
  } else if (ValidUnit(un.Boss) && Unit[un.Boss].Thq > 0 && Unit[un.Boss].Regime == un.Regime) {
    un.ThqBadge = ThqBadgeOf(un.Boss);
    Unit[un.Boss].ThqBadge = un.ThqBadge;
  } else {
    un.ThqBadge = 0;
  }
}

}  // namespace mf
