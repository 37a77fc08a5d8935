#include "combat/frontage.h"

namespace mf {
namespace {
double FrontsizeTimesQty(Long type, Long qty) {
  return ValidType(type) ? static_cast<double>(Type[type].Attr[kFrontsize]) * qty : 0.0;
}
}  // namespace

void FillFrontage(FrontShares& f, double remaining, long long limit, double pInf, double pArt, double pArm,
                  bool gunsInLine) {
  for (long long k = 1; k <= limit && remaining > 0; ++k) {
    if (pInf >= f.inf) {
      f.inf += 1;
      remaining -= 1;
    }
    if (gunsInLine && pArt >= f.art) {
      f.art += 1;
      remaining -= 1;
    }
    if (pArm >= f.arm) {
      f.arm += 1;
      remaining -= 1;
    }
  }
}

FrontShares LoneFrontageOf(const UnitRec& u, long long limit) {
  FrontShares f;
  const double third = static_cast<double>(limit) / 3.0;
  double remaining = static_cast<double>(limit);
  const double pInf = FrontsizeTimesQty(u.InfType, u.InfQty);
  const double pArt = FrontsizeTimesQty(u.ArtType, u.ArtQty);
  const double pArm = FrontsizeTimesQty(u.ArmType, u.ArmQty);
  // Guns that reach beyond the next hex stand behind the line.
  const bool gunsInLine = !ValidType(u.ArtType) || Type[u.ArtType].Attr[kArtilleryRange] < 2;
  if (u.InfQty > 0) {
    f.inf = pInf < third ? pInf : third;
    remaining -= f.inf;
  }
  if (u.ArtQty > 0 && gunsInLine) {
    f.art = pArt < third ? pArt : third;
    remaining -= f.art;
  }
  if (u.ArmQty > 0) {
    f.arm = pArm < third ? pArm : third;
    remaining -= f.arm;
  }
  FillFrontage(f, remaining, limit, pInf, pArt, pArm, gunsInLine);
  return f;
}

}  // namespace mf
