#include "combat/losses.h"

#include <cmath>

#include "engine/news.h"
#include "model/arith.h"
#include "model/cleared_with_tables.h"
#include "model/rnd.h"
#include "model/type_lookup.h"
#include "orders/transport.h"

namespace mf {

Long AttackerLost[kLossClasses + 1] = {};
Long DefenderLost[kLossClasses + 1] = {};

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables(ZeroBattleTallies);
}  // namespace

void ZeroBattleTallies() {
  for (int i = 0; i <= kLossClasses; ++i) {
    AttackerLost[i] = 0;
    DefenderLost[i] = 0;
  }
}

namespace {

long long TypeCost(long type) { return ValidType(static_cast<int>(type)) ? Type[type].Cost : 0; }

// What a formation is worth in production points: cost times quantity of
// every class it still has.
double Worth(int u) {
  double worth = 0;
  for (int cls = 1; cls <= 4; ++cls) {
    const long qty = UnitSlotQty(u, cls);
    if (qty > 0) worth += static_cast<double>(TypeCost(UnitSlotType(u, cls))) * qty;
  }
  return worth;
}

bool IsUnitOpponent(int opponent) { return opponent > 0 && opponent < kRegimeFire && ValidUnit(opponent); }

int RegimeOfOpponent(int opponent) {
  if (IsUnitOpponent(opponent)) return Unit[opponent].Regime;
  if (opponent > kRegimeFire) return opponent - kRegimeFire;
  return 0;
}

// o / a, with nothing to weigh against giving nothing (only fire of no one
// unit can meet an empty side here).
double Ratio(double num, double den) { return den > 0 ? num / den : 0; }

// The engine variable row of the first modifier (readiness loss of the
// victim) by the victim's theater and the loss kind; the next three rows are
// the opponent's readiness loss and the victim's and the opponent's
// experience gain. 0: no modifier.
int ModifierRow(long theater, int kind) {
  if (theater == kLandTheater) {
    switch (kind) {
      case kLossInterdiction: return 401;
      case kLossLandFight: return 405;
      case kLossArtillery: return 409;
      default: return 0;
    }
  }
  if (theater == kSeaTheater) {
    switch (kind) {
      case kLossInterdiction: return 413;
      case kLossLandFight: return 417;
      case kLossSeaBattle: return 421;
      case kLossArtillery: return 425;
      default: return 0;
    }
  }
  if (theater == kAirTheater) {
    switch (kind) {
      case kLossInterdiction: return 429;
      case kLossDogfight: return 433;
      case kLossLandFight: return 437;
      case kLossArtillery: return 441;
      default: return 0;
    }
  }
  return 0;
}

// Hundredths of a point become whole points: a hundred or more are simply
// divided, less is a chance of one point.
long long WholePoints(double hundredths) {
  if (hundredths < 100) return static_cast<double>(Rnd()) * 100.0 < hundredths ? 1 : 0;
  return Int(hundredths / 100.0);
}

// Experience grows more slowly the more a unit already has.
Long GainExperience(Long experience, long long gain) {
  if (experience < 75) return static_cast<Long>(experience + gain);
  if (experience < 100) return static_cast<Long>(experience + Int(static_cast<double>(gain) * EV(451) / 100.0));
  if (experience < 150) return static_cast<Long>(experience + Int(static_cast<double>(gain) * EV(452) / 100.0));
  return experience;
}

// Worn-out units lose readiness more slowly; nobody falls below 10.
Long LoseReadiness(Long readiness, long long points) {
  long long r;
  if (readiness < 30)
    r = Int(readiness - EV(453) / 100.0 * static_cast<double>(points));
  else if (readiness < 60)
    r = Int(readiness - EV(454) / 100.0 * static_cast<double>(points));
  else
    r = readiness - points;
  if (r < 10) r = 10;
  return static_cast<Long>(r);
}

void AwardFame(int u) {
  const int boss = Unit[u].Boss;
  const int top = ValidUnit(boss) ? static_cast<int>(Unit[boss].Boss) : 0;
  const int own = Unit[u].Officer;
  const int bossOfficer = ValidUnit(boss) ? static_cast<int>(Unit[boss].Officer) : 0;
  const int topOfficer = ValidUnit(top) ? static_cast<int>(Unit[top].Officer) : 0;
  // A level of the chain counts only when every level below it counts.
  int pool = 0;
  if (own > 0) {
    pool = 3;
    if (bossOfficer > 0) {
      pool += 2;
      if (topOfficer > 0) pool += 1;
    }
  }
  const long long r = Int(static_cast<double>(Rnd()) * pool + 1);
  int officer = 0;
  if (r >= 1 && r <= 3) officer = own;
  else if (r >= 4 && r <= 5) officer = bossOfficer;
  else if (r == 6) officer = topOfficer;
  if (officer >= 1 && officer <= kOfficerCap) Officer[officer].Fame = AddSat(Officer[officer].Fame, 1);
}

}  // namespace

void ApplyLoss(int victim, int opponent, int kind, int cls, long long amount) {
  if (!ValidUnit(victim) || cls < 1 || cls > 4) return;
  UnitRec& v = Unit[victim];
  const bool unitOpponent = IsUnitOpponent(opponent);

  // 1. What both sides are worth.
  const double victimWorth = Worth(victim);
  double opponentWorth = 0;
  double opponentArtWorth = 0;
  if (unitOpponent) {
    opponentWorth = Worth(opponent);
    if (Unit[opponent].ArtQty > 0)
      opponentArtWorth = static_cast<double>(TypeCost(Unit[opponent].ArtType)) * Unit[opponent].ArtQty;
  }

  // 2. Nobody loses more than he has.
  Long& qty = UnitSlotQty(victim, cls);
  if (amount > qty) amount = qty;
  if (amount < 0) amount = 0;

  // 3. The value of the loss.
  const double value = static_cast<double>(TypeCost(UnitSlotType(victim, cls))) * static_cast<double>(amount) *
                       EV(702) / 100.0;

  // 4, 5. The weights of both sides; a rich side against a penniless one is held to 1000.
  double a = victimWorth > 0 ? std::sqrt(victimWorth) : 0;
  double o = opponentWorth > 0 ? std::sqrt(opponentWorth) : 0;
  if (unitOpponent) {
    if (a == 0) a = 1;
    if (o == 0) o = 1;
    if (a == 1 && o > 1000) o = 1000;
    if (o == 1 && a > 1000) a = 1000;
  }

  // 6. Experience gain and readiness loss, in hundredths of a point.
  const double e = EV(707) != 0 ? static_cast<double>(EV(707)) : 1.0;
  double xv = Int(Int(value * 40 * Ratio(o, a)) / e);
  double xo = Int(Int(value * 120 * Ratio(a, o)) / e);
  double rv = value * 250;
  if (v.Regime == Game.CurRegime) rv *= 1.33;
  rv = Int(Int(rv * Ratio(o, a)) / e);
  double ro = value * 50;
  if (RegimeOfOpponent(opponent) == Game.CurRegime) ro = CInt(ro * 1.33);
  ro = Int(Int(ro * Ratio(a, o)) / e);

  // 7. How much this kind of fight counts, by the victim's theater.
  const int row = ModifierRow(v.Theater, kind);
  if (row > 0) {
    rv = rv * EV(row) / 100.0;
    ro = CInt(ro * EV(row + 1) / 100.0);
    xv = xv * EV(row + 2) / 100.0;
    xo = xo * EV(row + 3) / 100.0;
  }
  // Guns that shell land troops wear themselves out by how much of the
  // battery's worth they are.
  if (v.Theater == kLandTheater && kind == kLossArtillery && unitOpponent && opponentArtWorth > 0 &&
      opponentWorth > 0) {
    ro += Unit[opponent].Readiness * 100.0 * (opponentArtWorth / opponentWorth) * EV(236) / 100.0;
  }

  // 8. The loss itself.
  qty = static_cast<Long>(qty - amount);

  // 9. Tallies: the side to move counts its losses as the attacker's, and
  // the other side is credited with the kill; the defender's losses go to
  // its own report.
  const long long index = cls + 4LL * v.Theater;
  if (index >= 1 && index <= kLossClasses) {
    if (v.Regime == Game.CurRegime) {
      AttackerLost[index] += static_cast<Long>(amount);
      const int killer = RegimeOfOpponent(opponent);
      if (ValidRegime(killer)) Regime[killer].Kills[index] = AddSat(Regime[killer].Kills[index], amount);
    } else {
      DefenderLost[index] += static_cast<Long>(amount);
      if (ValidRegime(v.Regime)) Regime[v.Regime].Losses[index] = AddSat(Regime[v.Regime].Losses[index], amount);
    }
  }

  if (opponent != 0) {
    // 10. Whole points.
    const long long wxv = WholePoints(xv);
    const long long wxo = WholePoints(xo);
    const long long wrv = WholePoints(rv);
    const long long wro = WholePoints(ro);

    // 11. The victim learns.
    if (v.Shq <= 0) v.Experience = GainExperience(v.Experience, wxv);
    // 12. So does the unit that fired, and it tires.
    if (unitOpponent && Unit[opponent].Shq <= 0) {
      UnitRec& op = Unit[opponent];
      op.Experience = GainExperience(op.Experience, wxo);
      if (op.Experience > 150) op.Experience = 150;
      op.Readiness = LoseReadiness(op.Readiness, wro);
    }
    // 13. The victim tires, an SHQ too.
    if (v.Experience > 150) v.Experience = 150;
    v.Readiness = LoseReadiness(v.Readiness, wrv);
  }

  // 14. Fame for the chain of the unit that did the damage.
  const double famePrice = static_cast<double>(EV(235));
  const bool dear = value > famePrice;
  const bool lucky = famePrice > 0 ? static_cast<double>(Rnd()) < value / famePrice : value > 0;
  if ((dear || lucky) && unitOpponent) AwardFame(opponent);
}

void CheckCargo(int carrier) {
  if (!ValidUnit(carrier)) return;
  const int cargo = Unit[carrier].Cargo;
  if (!ValidUnit(cargo)) return;
  UnitRec& c = Unit[cargo];

  double capacity = 0;
  if (c.Theater == kLandTheater)
    capacity = static_cast<double>(AttrOf(Unit[carrier].MobType, kCarryCap)) * Unit[carrier].MobQty;
  else if (c.Theater == kAirTheater)
    capacity = static_cast<double>(AttrOf(Unit[carrier].ArtType, kCarryCap)) * Unit[carrier].ArtQty;

  auto weight = [cargo] { return static_cast<double>(UnitLoadWeight(cargo)); };

  // What the ships can no longer carry goes overboard, a tenth at a time.
  long long lost[5] = {};
  while (weight() > capacity) {
    bool any = false;
    for (int cls = 1; cls <= 4; ++cls) {
      Long& type = UnitSlotType(cargo, cls);
      Long& qty = UnitSlotQty(cargo, cls);
      if (type <= 0 || qty <= 0) continue;
      long long cut = Int(qty * 0.1);
      if (cut < 1) cut = 1;
      qty = static_cast<Long>(qty - cut);
      lost[cls] += cut;
      if (qty == 0) type = 0;
      any = true;
    }
    if (!any) break;
  }

  const int base = c.Theater == kLandTheater ? 0 : c.Theater == kAirTheater ? 8 : -1;
  if (base >= 0) {
    for (int cls = 1; cls <= 4; ++cls) {
      if (lost[cls] == 0) continue;
      if (c.Regime == Game.CurRegime) {
        AttackerLost[base + cls] += static_cast<Long>(lost[cls]);
      } else {
        DefenderLost[base + cls] += static_cast<Long>(lost[cls]);
        if (ValidRegime(c.Regime)) Regime[c.Regime].Losses[base + cls] = AddSat(Regime[c.Regime].Losses[base + cls], lost[cls]);
      }
    }
  }

  if (c.InfQty < 1 && c.MobQty < 1 && c.ArtQty < 1 && c.ArmQty < 1) {
    AddNews(c.Regime, cargo, kNewsLost, "", 0, 0, 0);
    c.Regime = 0;
    Unit[carrier].Cargo = 0;
  }
}

}  // namespace mf
