// Battle set-up and the figures of one engagement: who fights whom, in what
// kind of battle, on how wide a front, and with which modifiers.
#include <cmath>
#include <cstdio>

#include "combat/battle_state.h"
#include "combat/battle_window.h"
#include "combat/command_figures.h"
#include "combat/frontage.h"
#include "model/arith.h"
#include "model/cleared_with_tables.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"
#include "model/type_lookup.h"
#include "orders/movement.h"
#include "platform/platform.h"

namespace mf {

BattleState TheBattle;

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { TheBattle = BattleState{}; });
}  // namespace

namespace {

constexpr int kSoundAttackInfantry = 21;
constexpr int kSoundAttackArtillery = 22;
constexpr int kSoundAttackShip = 25;

bool OnMap(HexXY h) { return ValidHex(h.x, h.y); }

// A command group of the attack or of the defence: units of one boss coming
// from different sides work together.
struct CommandGroup {
  Long boss = 0;
  int count = 0;
  int lastSide = 0;
};

// Counts a unit into the groups. A group of its boss takes it when the unit
// comes from another side than the group's last; otherwise it opens the
// first group whose boss is still zero, if `thirdMayOpen` allows the third.
void CountIntoGroups(CommandGroup g[4], Long boss, int side, bool thirdMayOpen) {
  for (int k = 1; k <= 3; ++k) {
    if (g[k].boss == boss && g[k].lastSide != side) {
      g[k].count += 1;
      g[k].lastSide = side;
      return;
    }
  }
  for (int k = 1; k <= 3; ++k) {
    if (g[k].boss != 0) continue;
    if (k == 3 && !thirdMayOpen) return;
    g[k].boss = boss;
    g[k].count = 1;
    g[k].lastSide = side;
    return;
  }
}

int HighestCount(const CommandGroup g[4]) {
  int best = 0;
  for (int k = 1; k <= 3; ++k)
    if (g[k].count > best) best = g[k].count;
  return best;
}

bool IsHq(int u) { return Unit[u].Thq > 0 || Unit[u].Shq > 0; }

double Range(long artType) { return AttrOf(artType, kArtilleryRange); }

// The share of a class that fights on the front it was given.
double Scale(double frontage, double product) { return frontage < product ? frontage / product : 1.0; }

std::string Percent(long long v) { return NumText(v) + "%"; }

}  // namespace

int HighestSlot(int x, int y) {
  if (!ValidHex(x, y)) return 0;
  for (int s = kStackSlots; s >= 1; --s)
    if (Hex[x][y].Unit[s] != 0) return s;
  return 0;
}

int AttackerUnit(int i) {
  if (i < 1 || i > kAttackerCap) return 0;
  if (TheBattle.landing) {
    const long u = UI.AttackerSlot[i];
    return ValidUnit(static_cast<int>(u)) ? static_cast<int>(u) : 0;
  }
  const int x = static_cast<int>(UI.AttackerX[i]);
  const int y = static_cast<int>(UI.AttackerY[i]);
  const int s = static_cast<int>(UI.AttackerSlot[i]);
  if (!ValidHex(x, y) || s < 1 || s > kStackSlots) return 0;
  const long u = Hex[x][y].Unit[s];
  return ValidUnit(static_cast<int>(u)) ? static_cast<int>(u) : 0;
}

void PrepareBattle() {
  BattleState& b = TheBattle;
  b.stackSize = HighestSlot(b.tx, b.ty);

  // Attack directions and coordination: from how many sides, and how many
  // units of one boss from different sides.
  b.attackDirections = 0;
  b.attackCoordination = 0;
  CommandGroup attack[4];
  if (!b.landing) {
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(b.tx, b.ty, d);
      if (!OnMap(n)) continue;
      bool firstOfSide = true;
      for (int i = 1; i <= UI.AttackerCount && i <= kAttackerCap; ++i) {
        if (UI.AttackerX[i] != n.x || UI.AttackerY[i] != n.y) continue;
        const int u = AttackerUnit(i);
        if (u == 0) continue;
        if (firstOfSide) {
          b.attackDirections += 1;
          firstOfSide = false;
        }
        if (IsHq(u)) continue;
        CountIntoGroups(attack, Unit[u].Boss, d, true);
      }
    }
    b.attackCoordination = HighestCount(attack);
  }
  for (int k = 1; k <= 3; ++k) b.attackGroupBoss[k] = attack[k].boss;

  // Defence line and coordination: the target and its neighbours of the
  // same owner that hold a unit strong enough to take land. The third
  // defence group opens only while the third attack group has no boss.
  b.defenceLine = 0;
  CommandGroup defence[4];
  const Long owner = Hex[b.tx][b.ty].Owner;
  for (int p = 0; p <= kHexSides; ++p) {
    const HexXY h = p == 0 ? HexXY{b.tx, b.ty} : Neighbour(b.tx, b.ty, p);
    if (!OnMap(h) || Hex[h.x][h.y].Owner != owner) continue;
    bool firstOfHex = true;
    for (int s = 1; s <= kStackSlots; ++s) {
      const long u = Hex[h.x][h.y].Unit[s];
      if (!ValidUnit(static_cast<int>(u))) continue;
      if (UnitOccupyPower(static_cast<int>(u)) < EV(101)) continue;
      if (firstOfHex) {
        b.defenceLine += 1;
        firstOfHex = false;
      }
      if (IsHq(static_cast<int>(u))) continue;
      CountIntoGroups(defence, Unit[u].Boss, p, b.attackGroupBoss[3] == 0);
    }
  }
  b.defenceCoordination = HighestCount(defence);

  // The lie of the land.
  const long land = Hex[b.tx][b.ty].Land;
  const int row = land >= 1 && land <= 6 ? static_cast<int>(land) : 0;
  b.softDefenceLandFactor = row > 0 ? EV(510 + row) / 100.0 : 0.0;
  b.hardAttackLandFactor = row > 0 ? EV(520 + row) / 100.0 : 0.0;
  b.roundLimit = static_cast<int>(EV(533));
  if (b.landing) {
    b.softDefenceLandFactor *= EV(531) / 100.0;
    b.hardAttackLandFactor *= EV(532) / 100.0;
    b.roundLimit = 999;
  }
}

void ChooseTarget(Engagement& e) {
  const BattleState& b = TheBattle;
  const UnitRec& a = Unit[e.attacker];
  e.distance = b.landing ? 1 : Distance(e.ax, e.ay, b.tx, b.ty);
  e.direction = 0;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(b.tx, b.ty, d);
    if (n.x == e.ax && n.y == e.ay && OnMap(n)) {
      e.direction = d;
      break;
    }
  }

  e.targetSlot = static_cast<int>(Int(static_cast<double>(Rnd()) * b.stackSize)) + 1;
  const HexRec& t = Hex[b.tx][b.ty];
  const bool indirect =
      (a.Theater == kLandTheater && Range(a.ArtType) > 1 && t.Land != kSea) || a.Theater == kSeaTheater;
  if (!indirect) {
    // Direct fire seeks out the strategic HQ.
    for (int s = 1; s <= kStackSlots; ++s)
      if (ValidUnit(static_cast<int>(t.Unit[s])) && Unit[t.Unit[s]].Shq > 0) e.targetSlot = s;
  } else if (e.targetSlot >= 1 && e.targetSlot <= kStackSlots && ValidUnit(static_cast<int>(t.Unit[e.targetSlot])) &&
             Unit[t.Unit[e.targetSlot]].Shq > 0) {
    // Guns and ships spare an HQ that has troops with it.
    for (int s = kStackSlots; s >= 1; --s) {
      const long u = t.Unit[s];
      if (s != e.targetSlot && ValidUnit(static_cast<int>(u)) && Unit[u].Shq <= 0) {
        e.targetSlot = s;
        break;
      }
    }
  }
  e.target = (e.targetSlot >= 1 && e.targetSlot <= kStackSlots) ? static_cast<int>(t.Unit[e.targetSlot]) : 0;
  if (!ValidUnit(e.target)) e.target = 0;
}

void DecideKind(Engagement& e) {
  const BattleState& b = TheBattle;
  const UnitRec& a = Unit[e.attacker];
  const long attackerLand = ValidHex(e.ax, e.ay) ? Hex[e.ax][e.ay].Land : 0;
  const long targetLand = Hex[b.tx][b.ty].Land;
  const long targetTheater = Unit[e.target].Theater;
  const bool seaToLand = attackerLand == kSea && targetLand != kSea;
  const bool acrossShore = (targetLand == kSea && attackerLand != kSea) || seaToLand;

  int kind = 0;
  bool bombarding = false;
  if (acrossShore) {
    if (targetTheater == kLandTheater) {
      kind = kKindArtilleryLand;
      bombarding = true;
    } else if (targetTheater == kSeaTheater) {
      if (a.Theater == kSeaTheater && !seaToLand) {
        kind = kKindSeaBattle;
      } else {
        kind = kKindArtillerySea;
        bombarding = true;
      }
    } else if (targetTheater == kAirTheater) {
      kind = kKindArtilleryAir;
      bombarding = true;
    }
  } else if (targetLand == kSea) {
    kind = kKindSeaBattle;
  } else if (a.Theater == kSeaTheater) {
    kind = kKindArtilleryLand;
  } else if (targetTheater == kLandTheater) {
    kind = kKindLandVsLand;
  } else if (targetTheater == kSeaTheater) {
    kind = kKindLandVsSea;
  } else if (targetTheater == kAirTheater) {
    kind = kKindLandVsAir;
  }

  const double range = Range(a.ArtType);
  if (a.ArtQty > 0 && range >= e.distance && range > 1) bombarding = true;
  if (kind == kKindSeaBattle && e.distance > 1) kind = kKindArtillerySea;
  if (bombarding && kind >= kKindLandVsLand && kind <= kKindLandVsAir) kind -= 3;
  e.kind = kind;
  e.bombarding = bombarding;
}

std::string KindTitle(int kind) {
  switch (kind) {
    case kKindArtilleryLand: return "Artillery attack from distance versus Land Unit";
    case kKindArtillerySea: return "Artillery attack from distance versus Sea Unit";
    case kKindArtilleryAir: return "Artillery attack from distance versus Air Unit";
    case kKindLandVsLand: return "Land attack versus Land Unit";
    case kKindLandVsSea: return "Land attack versus Sea Unit";
    case kKindLandVsAir: return "Land attack versus Air Unit";
    case kKindSeaBattle: return "Sea Battle";
    default: return "";
  }
}

namespace {

// The frontage of one side: each class first gets at most a third of the
// limit, then the rest is handed out one point a round, class by class, to
// every class whose troops still fill their frontage.
void AttackerFrontage(const UnitRec& a) {
  BattleState& b = TheBattle;
  const double third = static_cast<double>(b.frontLimit) / 3.0;
  double remaining = static_cast<double>(b.frontLimit);
  const double inf = AttrOf(a.InfType, kFrontsize) * a.InfQty;
  const double art = AttrOf(a.ArtType, kFrontsize) * a.ArtQty;
  const double arm = AttrOf(a.ArmType, kFrontsize) * a.ArmQty;
  const bool gunsInLine = Range(a.ArtType) < 2;
  if (a.InfQty > 0) {
    b.attInfFront = inf < third ? inf : third;
    remaining -= b.attInfFront;
  }
  if (a.ArtQty > 0 && gunsInLine) {
    b.attArtFront = art < third ? art : third;
    remaining -= b.attArtFront;
  }
  if (a.ArmQty > 0) {
    b.attArmFront = arm < third ? arm : third;
    remaining -= b.attArmFront;
  }
  FrontShares f{b.attInfFront, b.attArtFront, b.attArmFront};
  FillFrontage(f, remaining, b.frontLimit, inf, art, arm, gunsInLine);
  b.attInfFront = f.inf;
  b.attArtFront = f.art;
  b.attArmFront = f.arm;
}

// The defender's frontage, the same but for its armour: a whole number, and
// armour that does not fill its third writes its product into the
// attacker's armour frontage instead. That is how the battle has always
// been fought, and it stays.
void DefenderFrontage(const UnitRec& t) {
  BattleState& b = TheBattle;
  const double third = static_cast<double>(b.frontLimit) / 3.0;
  double remaining = static_cast<double>(b.frontLimit);
  const double inf = AttrOf(t.InfType, kFrontsize) * t.InfQty;
  const double art = AttrOf(t.ArtType, kFrontsize) * t.ArtQty;
  const double arm = AttrOf(t.ArmType, kFrontsize) * t.ArmQty;
  const bool gunsInLine = Range(t.ArtType) < 2;
  if (t.InfQty > 0) {
    b.defInfFront = inf < third ? inf : third;
    remaining -= b.defInfFront;
  }
  if (t.ArtQty > 0 && gunsInLine) {
    b.defArtFront = art < third ? art : third;
    remaining -= b.defArtFront;
  }
  if (t.ArmQty > 0) {
    if (arm < third)
      b.attArmFront = arm;
    else
      b.defArmFront = static_cast<Long>(CInt(third));
    remaining -= b.defArmFront;
  }
  FrontShares f{b.defInfFront, b.defArtFront, static_cast<double>(b.defArmFront)};
  FillFrontage(f, remaining, b.frontLimit, inf, art, arm, gunsInLine);
  b.defInfFront = f.inf;
  b.defArtFront = f.art;
  b.defArmFront = static_cast<Long>(f.arm);
}

void Frontage(const Engagement& e) {
  BattleState& b = TheBattle;
  if (e.kind >= kKindLandVsLand && e.kind <= kKindLandVsAir) {
    long long direct = 0;
    if (b.landing) {
      const UnitRec& a = Unit[e.attacker];
      if (a.ArtQty <= 0 || Range(a.ArtType) <= 1) direct = 1;
    } else {
      for (int i = 1; i <= UI.AttackerCount && i <= kAttackerCap; ++i) {
        const UnitRec& u = Unit[AttackerUnit(i)];
        if (u.ArtQty <= 0 || Range(u.ArtType) <= 1) direct += 1;
      }
    }
    if (direct < 1) direct = 1;
    b.frontLimit = Int(static_cast<double>(EV(538)) / static_cast<double>(direct));
  }
  AttackerFrontage(Unit[e.attacker]);
  DefenderFrontage(Unit[e.target]);
}

// Attack figures of classes Inf, Art, Arm on their frontages.
void LandAttackFigures(Engagement& e) {
  const BattleState& b = TheBattle;
  const int u = e.attacker;
  const int classes[3] = {1, 3, 4};
  const double fronts[3] = {b.attInfFront, b.attArtFront, b.attArmFront};
  for (int k = 0; k < 3; ++k) {
    const long type = UnitSlotType(u, classes[k]);
    if (type <= 0) continue;
    const double qty = UnitSlotQty(u, classes[k]);
    const double scale = Scale(fronts[k], AttrOf(type, kFrontsize) * qty);
    e.softAttack += static_cast<double>(Int(AttrOf(type, kSoftAttack) * qty * scale));
    e.hardAttack += static_cast<double>(Int(AttrOf(type, kHardAttack) * qty * scale));
    e.fullSoftAttack += AttrOf(type, kSoftAttack) * qty;
    e.fullHardAttack += AttrOf(type, kHardAttack) * qty;
  }
}

// Defence figures of classes Inf, Arm, Art on their frontages.
void LandDefenceFigures(Engagement& e) {
  const BattleState& b = TheBattle;
  const int u = e.target;
  const int classes[3] = {1, 4, 3};
  const double fronts[3] = {b.defInfFront, static_cast<double>(b.defArmFront), b.defArtFront};
  for (int k = 0; k < 3; ++k) {
    const long type = UnitSlotType(u, classes[k]);
    if (type <= 0) continue;
    const double qty = UnitSlotQty(u, classes[k]);
    const double scale = Scale(fronts[k], AttrOf(type, kFrontsize) * qty);
    e.softDefence += static_cast<double>(Int(AttrOf(type, kSoftDefense) * qty * scale));
    e.hardDefence += static_cast<double>(Int(AttrOf(type, kHardDefense) * qty * scale));
    e.fullSoftDefence += AttrOf(type, kSoftDefense) * qty;
    e.fullHardDefence += AttrOf(type, kHardDefense) * qty;
  }
}

// Guns of all classes but the cargo: the fire of a sea battle.
double ShipGuns(const UnitRec& u) {
  return static_cast<double>(AttrOf(u.InfType, kArtilleryAttack)) * u.InfQty +
         static_cast<double>(AttrOf(u.ArtType, kArtilleryAttack)) * u.ArtQty +
         static_cast<double>(AttrOf(u.ArmType, kArtilleryAttack)) * u.ArmQty;
}

// Infantry that rides into battle in the armour's carriers is spared the
// infantry's losses.
long long Riders(const UnitRec& u, double armourFront) {
  const double product = AttrOf(u.ArmType, kFrontsize) * u.ArmQty;
  const double capacity = AttrOf(u.ArmType, kCarryCap) * u.ArmQty * Scale(armourFront, product);
  const double weight = AttrOf(u.InfType, kWeight);
  if (weight <= 0 || capacity <= 0) return 0;
  long long riders = Int(capacity / weight);
  if (riders > u.InfQty) riders = u.InfQty;
  return riders;
}

}  // namespace

void WorkFigures(Engagement& e) {
  BattleState& b = TheBattle;
  const UnitRec& a = Unit[e.attacker];
  const UnitRec& t = Unit[e.target];
  e.softAttack = e.hardAttack = e.softDefence = e.hardDefence = 0;
  e.fullSoftAttack = e.fullHardAttack = e.fullSoftDefence = e.fullHardDefence = 0;

  Frontage(e);

  // Attack.
  if (e.kind >= kKindLandVsLand && e.kind <= kKindLandVsAir) {
    BattleSound(kSoundAttackInfantry);
    LandAttackFigures(e);
  } else if (e.kind >= kKindArtilleryLand && e.kind <= kKindArtilleryAir) {
    if (a.Theater == kLandTheater) {
      BattleSound(kSoundAttackArtillery);
      if (a.ArtType > 0) e.softAttack = AttrOf(a.ArtType, kArtilleryAttack) * a.ArtQty;
    } else if (a.Theater == kSeaTheater && a.InfType > 0) {
      BattleSound(kSoundAttackShip);
      e.softAttack = AttrOf(a.InfType, kArtilleryAttack) * a.InfQty;
      // Ships in a town's harbour fire poorly. The hex looked at is the one
      // selected at the moment, as it always was.
      if (ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)) && Hex[UI.SelX][UI.SelY].Land == kUrban)
        e.softAttack *= 0.33;
    }
    e.fullSoftAttack = e.softAttack;
    e.hardAttack = 0;
  } else if (e.kind == kKindSeaBattle) {
    BattleSound(kSoundAttackShip);
    e.softAttack = ShipGuns(a);
    e.fullSoftAttack = e.softAttack;
  }

  // Defence: only a direct fight is answered.
  if (e.kind >= kKindLandVsLand && e.kind <= kKindLandVsAir) {
    if (t.Theater == kLandTheater) {
      LandDefenceFigures(e);
    } else if (t.Theater == kSeaTheater && t.InfType > 0) {
      e.softDefence = AttrOf(t.InfType, kArtilleryAttack) * t.InfQty;
      e.fullSoftDefence = e.softDefence;
    }
  } else if (e.kind == kKindSeaBattle) {
    e.softDefence = ShipGuns(t);
    e.fullSoftDefence = e.softDefence;
  }

  e.attRiders = a.Theater == kLandTheater ? Riders(a, b.attArmFront) : 0;
  e.defRiders = t.Theater == kLandTheater ? Riders(t, static_cast<double>(b.defArmFront)) : 0;

  // What each side stood at when it first met the other: the measure of
  // its morale later on.
  if (b.round == 1) {
    if (!e.bombarding && e.index >= 1 && e.index <= kAttackerCap && b.initialAttacker[e.index] < 1)
      b.initialAttacker[e.index] = static_cast<Long>(CInt(e.fullSoftAttack + e.fullHardAttack));
    if (e.targetSlot >= 1 && e.targetSlot <= kStackSlots && b.initialDefender[e.targetSlot] < 1)
      b.initialDefender[e.targetSlot] = static_cast<Long>(CInt(e.fullSoftDefence + e.fullHardDefence));
  }
}

void ApplyModifiers(Engagement& e) {
  const BattleState& b = TheBattle;
  const UnitRec& a = Unit[e.attacker];
  const UnitRec& t = Unit[e.target];
  const HexRec& th = Hex[b.tx][b.ty];
  e.attLeadership = Leadership(e.attacker);
  e.attDisruption = DisruptionFactor(e.attacker);
  e.defLeadership = Leadership(e.target);
  e.defDisruption = DisruptionFactor(e.target);
  e.riverShown = e.tacticalShown = e.coordinationShown = e.entrenchShown = 0;
  e.lineShown = e.defCoordinationShown = 0;

  // 1. The attacker: readiness, experience, leadership, disruption; then
  // the ground takes its share of the armour's punch.
  double soft = e.softAttack, hard = e.hardAttack;
  soft = static_cast<double>(Int(soft * a.Readiness / 100.0));
  hard = static_cast<double>(Int(hard * a.Readiness / 100.0));
  soft = static_cast<double>(Int(soft * a.Experience / 100.0));
  hard = static_cast<double>(Int(hard * a.Experience / 100.0));
  soft = static_cast<double>(Int(soft * e.attLeadership));
  hard = static_cast<double>(Int(hard * e.attLeadership));
  soft = static_cast<double>(Int(soft * e.attDisruption));
  hard = static_cast<double>(Int(hard * e.attDisruption));
  hard = hard * b.hardAttackLandFactor;

  // 2. The defender, experience before readiness; the ground shelters its
  // soft targets.
  double dsoft = e.softDefence, dhard = e.hardDefence;
  dsoft = static_cast<double>(Int(dsoft * t.Experience / 100.0));
  dhard = static_cast<double>(Int(dhard * t.Experience / 100.0));
  dsoft = static_cast<double>(Int(dsoft * t.Readiness / 100.0));
  dhard = static_cast<double>(Int(dhard * t.Readiness / 100.0));
  dsoft = dsoft * b.softDefenceLandFactor;
  dsoft = static_cast<double>(Int(dsoft * e.defLeadership));
  dhard = static_cast<double>(Int(dhard * e.defLeadership));
  dsoft = static_cast<double>(Int(dsoft * e.defDisruption));
  dhard = static_cast<double>(Int(dhard * e.defDisruption));

  // 3. Across a river.
  if (!e.bombarding && e.direction > 0 && th.Land != kSea && th.River[e.direction] == 1) {
    soft = soft * EV(536) / 100.0;
    hard = hard * EV(536) / 100.0;
    e.riverShown = EV(536) - 100;
  }

  // 4. An attack from several sides, and units of one boss working together.
  if (b.attackDirections > 1 && b.attackCoordination > 0) {
    const double n = (b.attackDirections - 1) + (b.attackCoordination - 1);
    soft = soft + static_cast<double>(Int(soft * (1 + EV(537) / 100.0 * n)));
    hard = hard + static_cast<double>(Int(hard * (1 + EV(537) / 100.0 * n)));
    e.tacticalShown = Int(static_cast<double>(b.attackDirections - 1) * EV(537));
    e.coordinationShown = Int(static_cast<double>(b.attackCoordination - 1) * EV(537));
  }

  // 5. A defence line of neighbours, at half the rate.
  if (b.defenceLine > 1 && b.defenceCoordination > 0) {
    const double n = (b.defenceLine - 1) + (b.defenceCoordination - 1);
    dsoft = dsoft + static_cast<double>(Int(dsoft * (1 + EV(537) / 200.0 * n)));
    dhard = dhard + static_cast<double>(Int(dhard * (1 + EV(537) / 200.0 * n)));
    e.lineShown = Int(static_cast<double>(b.defenceLine - 1) * EV(537) / 2.0);
    e.defCoordinationShown = Int(static_cast<double>(b.defenceCoordination - 1) * EV(537) / 2.0);
  }

  // 6. Fortifications facing the attacker.
  if (!e.bombarding && e.direction > 0 && th.Entrench[e.direction] > 0) {
    const long long row = EV(static_cast<int>(120 + th.Entrench[e.direction]));
    soft = static_cast<double>(Int(soft * static_cast<double>(row) / 100.0));
    hard = static_cast<double>(Int(hard * static_cast<double>(row) / 100.0));
    e.entrenchShown = row - 100;
  }

  // 7. Shells find the weakest protection of all six sides.
  if (e.bombarding) {
    long long value = 100;
    for (int d = 1; d <= kHexSides; ++d) {
      if (th.Entrench[d] <= 0) continue;
      const long long row = EV(static_cast<int>(120 + th.Entrench[d]));
      if (row < value) value = row;
    }
    if (value < 100) {
      soft = static_cast<double>(Int(soft * static_cast<double>(value) / 100.0));
      hard = static_cast<double>(Int(hard * static_cast<double>(value) / 100.0));
      AddBattleLine("Fortifications give defender " + NumText(100 - value) + "% protection.", b.delay);
    }
  }

  e.softAttack = soft;
  e.hardAttack = hard;
  e.softDefence = dsoft;
  e.hardDefence = dhard;
}

void LogEngagement(const Engagement& e) {
  const BattleState& b = TheBattle;
  const int delay = b.delay;
  if (e.kind > kKindArtilleryAir) {
    const UnitRec& a = Unit[e.attacker];
    const UnitRec& t = Unit[e.target];
    if (e.kind < kKindSeaBattle) {
      AddBattleLine("GENERAL:", delay);
      AddBattleLine("FrontSize Limit: " + NumText(b.frontLimit), delay);
      AddBattleLine(" ", delay);
    }
    AddBattleLine("ATTACKER:", delay);
    AddBattleLine("Readiness Mod:      " + Percent(a.Readiness - 100LL), delay);
    AddBattleLine("Experience Mod:     " + Percent(a.Experience - 100LL), delay);
    AddBattleLine("Leadership Mod:     " + Percent(Int(e.attLeadership * 100) - 100), delay);
    AddBattleLine("Disruption Mod:     " + Percent(Int(e.attDisruption * 100) - 100), delay);
    AddBattleLine("Land Type Hard Mod: " + Percent(Int(b.hardAttackLandFactor * 100) - 100), delay);
    if (e.riverShown < 0) AddBattleLine("River penalty Mod:  " + Percent(e.riverShown), delay);
    if (e.tacticalShown > 0) AddBattleLine("Tactical Bonus Mod: " + Percent(e.tacticalShown), delay);
    if (e.coordinationShown > 0) AddBattleLine("Coordination Bonus: " + Percent(e.coordinationShown), delay);
    if (e.entrenchShown < 0) AddBattleLine("Enemy Entrench Penalty: " + Percent(e.entrenchShown), delay);
    AddBattleLine("SOFT ATTACK:        " + LogNumber(e.softAttack), delay);
    AddBattleLine("HARD ATTACK:        " + LogNumber(e.hardAttack), delay);
    AddBattleLine(" ", delay);
    AddBattleLine("DEFENDER:", delay);
    // Under fog of war the attacker learns the defender's totals, not why.
    if (Game.FogOfWar == 0) {
      AddBattleLine("Readiness Mod:      " + Percent(t.Readiness - 100LL), delay);
      AddBattleLine("Experience Mod:     " + Percent(t.Experience - 100LL), delay);
      AddBattleLine("Leadership Mod:     " + Percent(Int(e.defLeadership * 100) - 100), delay);
      AddBattleLine("Disruption Mod:     " + Percent(Int(e.defDisruption * 100) - 100), delay);
    }
    if (e.lineShown > 0) AddBattleLine("Defensive line Bonus: " + Percent(e.lineShown), delay);
    if (e.defCoordinationShown > 0) AddBattleLine("Coordination Bonus: " + Percent(e.defCoordinationShown), delay);
    AddBattleLine("Land Type Soft Mod: " + Percent(Int(b.softDefenceLandFactor * 100) - 100), delay);
    AddBattleLine("SOFT DEFENSE:        " + LogNumber(e.softDefence), delay);
    AddBattleLine("HARD DEFENSE:        " + LogNumber(e.hardDefence), delay);
  }
  AddBattleLine(" ", delay);
  AddBattleLine("COMBAT ROUND " + Str(b.round) + " RESULT:", delay);
}

double CurrentAttackStrength(const Engagement& e) {
  const UnitRec& a = Unit[e.attacker];
  if (e.kind >= kKindLandVsLand && e.kind <= kKindLandVsAir) {
    double soft = e.softAttack, hard = e.hardAttack;
    if (a.InfType > 0) {
      soft = AttrOf(a.InfType, kSoftAttack) * a.InfQty;
      hard = AttrOf(a.InfType, kHardAttack) * a.InfQty;
    }
    if (a.ArtType > 0) {
      soft += AttrOf(a.ArtType, kSoftAttack) * a.ArtQty;
      hard += AttrOf(a.ArtType, kHardAttack) * a.ArtQty;
    }
    if (a.ArmType > 0) {
      soft += AttrOf(a.ArmType, kSoftAttack) * a.ArmQty;
      hard += AttrOf(a.ArmType, kHardAttack) * a.ArmQty;
    }
    return soft + hard;
  }
  if (e.kind >= kKindArtilleryLand && e.kind <= kKindArtilleryAir) {
    double soft = e.softAttack;
    if (a.Theater == kLandTheater && a.ArtType > 0) soft = AttrOf(a.ArtType, kArtilleryAttack) * a.ArtQty;
    if (a.Theater == kSeaTheater && a.InfType > 0) {
      soft = AttrOf(a.InfType, kArtilleryAttack) * a.InfQty;
      if (ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)) && Hex[UI.SelX][UI.SelY].Land == kUrban)
        soft *= 0.33;
    }
    return soft;
  }
  if (e.kind == kKindSeaBattle) return ShipGuns(a);
  return 0;
}

double CurrentDefenceStrength(const Engagement& e) {
  const UnitRec& t = Unit[e.target];
  if (e.kind >= kKindLandVsLand && e.kind <= kKindLandVsAir) {
    if (t.Theater == kLandTheater) {
      double soft = e.softDefence, hard = e.hardDefence;
      if (t.InfType > 0) {
        soft = AttrOf(t.InfType, kSoftDefense) * t.InfQty;
        hard = AttrOf(t.InfType, kHardDefense) * t.InfQty;
      }
      if (t.ArmType > 0) {
        soft += AttrOf(t.ArmType, kSoftDefense) * t.ArmQty;
        hard += AttrOf(t.ArmType, kHardDefense) * t.ArmQty;
      }
      if (t.ArtType > 0) {
        soft += AttrOf(t.ArtType, kSoftDefense) * t.ArtQty;
        hard += AttrOf(t.ArtType, kHardDefense) * t.ArtQty;
      }
      return soft + hard;
    }
    if (t.Theater == kSeaTheater) return t.InfType > 0 ? AttrOf(t.InfType, kArtilleryAttack) * t.InfQty : 0;
    return 0;
  }
  if (e.kind == kKindSeaBattle) return ShipGuns(t);
  return 0;
}

std::string LogNumber(double value) {
  if (value == std::floor(value) && std::fabs(value) < 1e15) return NumText(static_cast<long long>(value));
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", value);
  return text;
}

void BattleSound(int slot) {
  if (TheBattle.shown && UI.SoundOff == 0) Plat().PlaySound(slot);
}

}  // namespace mf
