#include "combat/command_figures.h"

#include <cmath>

#include "model/arith.h"
#include "model/game_state.h"

namespace mf {
namespace {

bool ValidOfficer(long o) { return o >= 1 && o <= kOfficerCap; }

long Rating(long officer, long theater) {
  if (!ValidOfficer(officer)) return 0;
  const OfficerRec& o = Officer[officer];
  if (theater == kSeaTheater) return o.Sea;
  if (theater == kAirTheater) return o.Air;
  return o.Land;
}

double FameTerm(long officer) {
  if (!ValidOfficer(officer)) return 0;
  const long fame = Officer[officer].Fame;
  return fame > 0 ? std::sqrt(static_cast<double>(fame)) / 5.0 : 0.0;
}

long OfficerOf(long u) { return ValidUnit(static_cast<int>(u)) ? Unit[u].Officer : 0; }
long BossOf(long u) { return ValidUnit(static_cast<int>(u)) ? Unit[u].Boss : 0; }
bool IsThq(long u) { return ValidUnit(static_cast<int>(u)) && Unit[u].Thq > 0; }
bool IsShq(long u) { return ValidUnit(static_cast<int>(u)) && Unit[u].Shq > 0; }

// The THQ and SHQ above a unit. A land THQ heads its own chain; every other
// unit looks to its boss, and above the boss to the boss's boss.
struct Chain {
  long thq = 0;  // 0 when that level has no HQ with an officer
  long shq = 0;
};

Chain ChainOf(int u) {
  Chain c;
  const UnitRec& unit = Unit[u];
  long first;
  if (unit.Theater == kLandTheater)
    first = unit.Thq > 0 ? u : unit.Boss;
  else
    first = unit.Boss;
  if (IsThq(first) && OfficerOf(first) > 0) c.thq = first;
  const long second = BossOf(first);
  if (IsShq(second) && OfficerOf(second) > 0) c.shq = second;
  return c;
}

}  // namespace

double Leadership(int u) {
  if (!ValidUnit(u)) return 1;
  const UnitRec& unit = Unit[u];
  if (unit.Shq > 0) return 1;
  double own = 1, thq = 1, shq = 1;
  if (unit.Thq <= 0 && ValidOfficer(unit.Officer))
    own += Rating(unit.Officer, unit.Theater) / 10.0 + FameTerm(unit.Officer);
  const Chain c = ChainOf(u);
  if (c.thq > 0) {
    const long o = OfficerOf(c.thq);
    thq += Rating(o, unit.Theater) / 10.0 + FameTerm(o);
  }
  if (c.shq > 0) {
    const long o = OfficerOf(c.shq);
    if (unit.Theater == kLandTheater) {
      shq += Rating(o, unit.Theater) / 10.0 + FameTerm(o);
    } else {
      // Fleets and air wings read the rating of the officer numbered a tenth
      // of their SHQ officer's number, and take it whole; so it has always been.
      const long other = static_cast<long>(CInt(o / 10.0));
      shq += static_cast<double>(Rating(other, unit.Theater)) + FameTerm(o);
    }
  }
  if (own < 1) own = 1;
  if (thq < 1) thq = 1;
  if (shq < 1) shq = 1;
  const double m = (3 * own + 2 * thq + shq) / 6.0;
  return 1 + (m - 1) / 2.0;
}

double DisruptionFactor(int u) {
  if (!ValidUnit(u)) return 1;
  const UnitRec& unit = Unit[u];
  const double own = unit.Disruption;
  const long boss = unit.Boss;
  const double b = ValidUnit(static_cast<int>(boss)) ? Unit[boss].Disruption : 0;
  if (unit.Shq > 0) return 1 - own / 100.0;
  if (unit.Thq > 0) {
    double x = (2 * own + b) / 3.0;
    if (x > 100) x = 100;
    return 1 - x / 100.0;
  }
  const long top = BossOf(boss);
  const double c = ValidUnit(static_cast<int>(top)) ? Unit[top].Disruption : 0;
  const double x = (3 * own + 2 * b + c) / 6.0;
  return 1 - x / 100.0;
}

int OfficerRetreatLevel(int u) {
  if (!ValidUnit(u)) return 0;
  const UnitRec& unit = Unit[u];
  if (unit.Shq > 0) return ValidOfficer(unit.Officer) ? static_cast<int>(Officer[unit.Officer].Retreat) : 0;
  long own = 0, thq = 0, shq = 0;
  if (unit.Thq <= 0 && ValidOfficer(unit.Officer)) own = Officer[unit.Officer].Retreat;
  const Chain c = ChainOf(u);
  if (c.thq > 0) thq = Officer[OfficerOf(c.thq)].Retreat;
  if (c.shq > 0) shq = Officer[OfficerOf(c.shq)].Retreat;
  // An empty level takes a filled one: the unit's own from its THQ, else
  // from its SHQ; the THQ's from the unit's own as it now stands.
  if (own == 0) own = thq != 0 ? thq : shq;
  if (thq == 0) thq = own;
  if (own < 1) own = 50;
  if (thq < 1) thq = 50;
  if (shq < 1) shq = 50;
  return static_cast<int>(Int((3.0 * own + 2.0 * thq + shq) / 6.0));
}

}  // namespace mf
