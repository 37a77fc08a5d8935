#include "ai/unit_worth.h"

#include <cmath>

#include "combat/command_figures.h"
#include "model/arith.h"
#include "model/type_lookup.h"

namespace mf {
namespace {

// The unit divider. A scenario that sets it to 0 (or below) does not divide.
double UnitDivider() { return EV(301) >= 1 ? static_cast<double>(EV(301)) : 1.0; }

// One figure through the steps that readiness and experience take, each step
// truncated to a whole number before the next.
double ReadyAndSeasoned(double v, const UnitRec& u) {
  v = std::trunc(v * u.Readiness / 100.0);
  return std::trunc(v * u.Experience / 100.0);
}

// A ship's or an aircraft's defence: the Inf class if it has one, replaced by
// the Mob class if that has one, replaced again by the Art class; then the
// Arm class is added. Only the last of the first three counts.
double LastOfThreePlusArm(const UnitRec& u, int attr) {
  double d = 0;
  if (u.InfQty > 0) d = AttrOf(u.InfType, attr) * u.InfQty;
  if (u.MobQty > 0) d = AttrOf(u.MobType, attr) * u.MobQty;
  if (u.ArtQty > 0) d = AttrOf(u.ArtType, attr) * u.ArtQty;
  if (u.ArmQty > 0) d += AttrOf(u.ArmType, attr) * u.ArmQty;
  return d;
}

Long Capped(double v) { return v > 99 ? 99 : static_cast<Long>(v); }

}  // namespace

Long AIUnitWorth(int x, int y, int unit, int kind) {
  if (!ValidUnit(unit) || kind < 1 || kind > 4) return 0;
  const UnitRec& u = Unit[unit];
  if (u.Regime == 0) return 0;
  double a = 0, d = 0;
  if (u.Theater == kLandTheater) {
    a = static_cast<double>(AttrOf(u.InfType, kSoftAttack) + AttrOf(u.InfType, kHardAttack)) * u.InfQty +
        static_cast<double>(AttrOf(u.ArmType, kSoftAttack) + AttrOf(u.ArmType, kHardAttack)) * u.ArmQty;
    d = static_cast<double>(AttrOf(u.InfType, kSoftDefense) + AttrOf(u.InfType, kHardDefense)) * u.InfQty +
        static_cast<double>(AttrOf(u.ArmType, kSoftDefense) + AttrOf(u.ArmType, kHardDefense)) * u.ArmQty;
    double r = static_cast<double>(AttrOf(u.ArtType, kAntiAirCap) + AttrOf(u.ArtType, kArtilleryAttack)) * u.ArtQty;
    const double command = Leadership(unit);
    const double disruption = DisruptionFactor(unit);
    for (double* v : {&a, &d, &r}) {
      *v = ReadyAndSeasoned(*v, u);
      *v = std::trunc(*v * command);
      *v = std::trunc(*v * disruption);
      *v = std::trunc(*v / UnitDivider());
    }
    // Guns that hit harder than they shoot down count for attack; anti-air
    // guns (and a tie) for defence.
    if (AttrOf(u.ArtType, kArtilleryAttack) > AttrOf(u.ArtType, kAntiAirCap))
      a += r;
    else
      d += r;
  } else {
    if (u.Theater == kSeaTheater) {
      a = static_cast<double>(AttrOf(u.InfType, kArtilleryAttack)) * u.InfQty +
          static_cast<double>(AttrOf(u.ArmType, kSubskills)) * u.ArmQty;
      d = LastOfThreePlusArm(u, kHitPoints);
      // A ship in port is no defence.
      if (ValidHex(x, y) && Hex[x][y].Land == kUrban) d = 0;
    } else {
      a = static_cast<double>(AttrOf(u.InfType, kDogfight)) * u.InfQty +
          static_cast<double>(AttrOf(u.MobType, kDogfight)) * u.MobQty +
          static_cast<double>(AttrOf(u.ArtType, kDogfight)) * u.ArtQty;
      d = LastOfThreePlusArm(u, kStrategicBombing);
    }
    for (double* v : {&a, &d}) {
      *v = ReadyAndSeasoned(*v, u);
      *v = std::trunc(*v / UnitDivider());
    }
  }
  const Long attack = Capped(a);
  const Long defence = Capped(d);
  switch (kind) {
    case 1:
      return attack;
    case 2:
      return defence;
    case 3:
      return static_cast<Long>(Int((attack + defence) / 2.0));
    default:
      return static_cast<Long>(Int((attack + defence) / 2.0) * UnitDivider());
  }
}

}  // namespace mf
