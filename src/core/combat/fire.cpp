// The fire of one engagement: the figures of the set-up become losses.
#include "combat/battle_state.h"
#include "combat/battle_window.h"
#include "combat/losses.h"
#include "model/arith.h"
#include "model/rnd.h"
#include "model/type_lookup.h"

namespace mf {
namespace {

// A type without hit points is hit as one of a single point.
double HitPoints(long type) {
  const double h = AttrOf(type, kHitPoints);
  return h > 0 ? h : 1.0;
}

// Takes the loss and logs it with the number actually lost.
void Lose(int victim, int opponent, int kind, int cls, long long n, const std::string& who,
          const std::string& what) {
  const long before = UnitSlotQty(victim, cls);
  ApplyLoss(victim, opponent, kind, cls, n);
  const long after = UnitSlotQty(victim, cls);
  AddBattleLine(who + Str(before - after) + what, TheBattle.delay);
}

// One line of fire of a direct land fight, held to the victim's frontage;
// infantry riding in the armour is spared.
void LineOfFire(int victim, int opponent, int cls, double p, double front, long long riders,
                const std::string& who, const std::string& what) {
  const long type = UnitSlotType(victim, cls);
  if (type <= 0) return;
  long long n = CasualtyCount(p, 1, HitPoints(type));
  const double size = AttrOf(type, kFrontsize);
  if (size > 0) {
    const long long cap = Int(front / size);
    if (n > cap) {
      n = cap;
      if (n == 0 && static_cast<double>(Rnd()) < front / size) n = 1;
    }
  }
  if (cls == 1) n = n > riders ? n - riders : 0;
  Lose(victim, opponent, kLossLandFight, cls, n, who, what);
}

int TypesSet(int u, bool inf, bool mob, bool art, bool arm) {
  const UnitRec& x = Unit[u];
  return (inf && x.InfType > 0) + (mob && x.MobType > 0) + (art && x.ArtType > 0) + (arm && x.ArmType > 0);
}

// Shelling: the fire is split over the classes the target has.
void Bombard(const Engagement& e) {
  const int t = e.target;
  const int a = e.attacker;
  const UnitRec& tu = Unit[t];
  const double p = e.softAttack;
  const std::string who = "Defender lost ";
  if (tu.Theater == kLandTheater) {
    const double c = TypesSet(t, true, true, true, true);
    if (tu.InfType > 0) Lose(t, a, kLossArtillery, 1, CasualtyCount(p, c, HitPoints(tu.InfType)), who, " infantery.");
    if (tu.MobType > 0) Lose(t, a, kLossArtillery, 2, CasualtyCount(p, c, HitPoints(tu.MobType)), who, " trucks.");
    if (tu.ArtType > 0) Lose(t, a, kLossArtillery, 3, CasualtyCount(p, c, HitPoints(tu.ArtType)), who, " artillery.");
    // Armour takes twice the hits of anything else.
    if (tu.ArmType > 0)
      Lose(t, a, kLossArtillery, 4, CasualtyCount(p, c, 2 * HitPoints(tu.ArmType)), who, " armour.");
  } else if (tu.Theater == kSeaTheater) {
    // Submarines cannot be hit from afar.
    const double c = TypesSet(t, true, true, true, false);
    if (tu.InfType > 0) Lose(t, a, kLossArtillery, 1, CasualtyCount(p, c, HitPoints(tu.InfType)), who, " warships.");
    if (tu.MobType > 0) Lose(t, a, kLossArtillery, 2, CasualtyCount(p, c, HitPoints(tu.MobType)), who, " cargoships.");
    if (tu.ArtType > 0) Lose(t, a, kLossArtillery, 3, CasualtyCount(p, c, HitPoints(tu.ArtType)), who, " carriers.");
    if (c > 0) CheckCargo(t);
  } else if (tu.Theater == kAirTheater) {
    double c = 0;
    const bool inf = tu.InfType > 0, mob = tu.MobType > 0, art = tu.ArtType > 0;
    if (inf && mob && art)
      c = 3;
    else if ((inf && mob) || (art && mob))
      c = 2;
    else if (inf || mob || art)
      c = 1;
    if (inf) Lose(t, a, kLossArtillery, 1, CasualtyCount(p, c, HitPoints(tu.InfType)), who, " fighters.");
    if (mob) Lose(t, a, kLossArtillery, 2, CasualtyCount(p, c, HitPoints(tu.MobType)), who, " transporters.");
    if (art) Lose(t, a, kLossArtillery, 3, CasualtyCount(p, c, HitPoints(tu.ArtType)), who, " bombers.");
  }
}

// Land troops against ships in harbour or aircraft on the ground: only the
// target suffers.
void LandAgainstSeaOrAir(const Engagement& e) {
  const int t = e.target;
  const int a = e.attacker;
  const UnitRec& tu = Unit[t];
  const double c = TypesSet(t, true, true, true, true);
  if (c <= 0) return;
  const double p = e.softAttack;
  const std::string who = "Defender lost ";
  if (tu.Theater == kSeaTheater) {
    if (tu.InfType > 0) Lose(t, a, kLossLandFight, 1, CasualtyCount(p, c, HitPoints(tu.InfType)), who, " warships.");
    if (tu.MobType > 0) Lose(t, a, kLossLandFight, 2, CasualtyCount(p, c, HitPoints(tu.MobType)), who, " cargoships.");
    if (tu.ArtType > 0) Lose(t, a, kLossLandFight, 3, CasualtyCount(p, c, HitPoints(tu.ArtType)), who, " carriers.");
    if (tu.ArmType > 0) Lose(t, a, kLossLandFight, 4, CasualtyCount(p, c, HitPoints(tu.ArmType)), who, " subs.");
    CheckCargo(t);
  } else {
    if (tu.InfType > 0) Lose(t, a, kLossLandFight, 1, CasualtyCount(p, c, HitPoints(tu.InfType)), who, " fighters.");
    if (tu.MobType > 0) Lose(t, a, kLossLandFight, 2, CasualtyCount(p, c, HitPoints(tu.MobType)), who, " transporters.");
    if (tu.ArtType > 0) Lose(t, a, kLossLandFight, 3, CasualtyCount(p, c, HitPoints(tu.ArtType)), who, " bombers.");
  }
}

// One side of a sea battle firing at the other's ships.
void Broadside(int victim, int opponent, double p, const std::string& who, const std::string& evade) {
  const UnitRec& v = Unit[victim];
  const double c = TypesSet(victim, true, true, true, true);
  if (c <= 0) return;
  if (v.InfType > 0) Lose(victim, opponent, kLossSeaBattle, 1, CasualtyCount(p, c, HitPoints(v.InfType)), who, " warships.");
  if (v.MobType > 0) Lose(victim, opponent, kLossSeaBattle, 2, CasualtyCount(p, c, HitPoints(v.MobType)), who, " cargoships.");
  if (v.ArtType > 0) Lose(victim, opponent, kLossSeaBattle, 3, CasualtyCount(p, c, HitPoints(v.ArtType)), who, " carriers.");
  if (v.ArmType > 0) {
    long long n = CasualtyCount(p, c, HitPoints(v.ArmType));
    if (Int(static_cast<double>(Rnd()) * 100) < AttrOf(v.ArmType, kSubskills)) {
      AddBattleLine(evade, TheBattle.delay);
      n = 0;
    }
    // The subs' line names the defender on both sides of a sea battle.
    Lose(victim, opponent, kLossSeaBattle, 4, n, "Defender lost ", " subs.");
  }
  CheckCargo(victim);
}

}  // namespace

long long CasualtyCount(double p, double c, double h) {
  if (h <= 0) h = 1;
  if (c <= 0) c = 1;
  const double q = (p / c) / h;
  long long n = q >= 1e15 ? static_cast<long long>(1e15) : Int(q);
  if (n < 0) n = 0;
  // One hit is always possible: the chance is that of the whole fire on
  // one man, however many classes it was split over.
  if (n == 0 && static_cast<float>(p / h) > Rnd()) n = 1;
  return n;
}

void Fire(const Engagement& e) {
  const int a = e.attacker;
  const int t = e.target;
  const BattleState& b = TheBattle;
  if (e.kind >= kKindArtilleryLand && e.kind <= kKindArtilleryAir) {
    Bombard(e);
  } else if (e.kind >= kKindLandVsLand && e.kind <= kKindLandVsAir) {
    if (Unit[t].Theater == kLandTheater) {
      LineOfFire(t, a, 1, e.softAttack, b.defInfFront, e.defRiders, "Defender lost ", " infantry.");
      LineOfFire(a, t, 1, e.softDefence, b.attInfFront, e.attRiders, "Attacker lost ", " infantry.");
      LineOfFire(t, a, 4, e.hardAttack, static_cast<double>(b.defArmFront), 0, "Defender lost ", " armour.");
      LineOfFire(a, t, 4, e.hardDefence, b.attArmFront, 0, "Attacker lost ", " armour.");
    } else {
      LandAgainstSeaOrAir(e);
    }
  } else if (e.kind == kKindSeaBattle) {
    if (Unit[t].Theater == kSeaTheater)
      Broadside(t, a, e.softAttack, "Defender lost ", "Defending subs evade attacks...");
    if (Unit[a].Theater == kSeaTheater)
      Broadside(a, t, e.softDefence, "Attacker lost ", "Attacking subs evade defensive attacks...");
  }
}

}  // namespace mf
