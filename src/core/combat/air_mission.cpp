#include "combat/air_mission.h"

#include "combat/battle_state.h"
#include "combat/battle_window.h"
#include "combat/losses.h"
#include "engine/news.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"
#include "model/type_lookup.h"
#include "orders/new_units.h"
#include "orders/transport.h"

namespace mf {
namespace {

constexpr int kSoundFighter = 23;    // "att_fighter.wav"
constexpr int kSoundArtillery = 22;  // "att_art.wav"
constexpr int kSoundBomb = 24;       // "att_bomb.wav"
constexpr int kMarkAirAttack = 8;
constexpr int kMarkDestroyed = 9;
constexpr int kInterceptRounds = 3;
// Guns are looked for this far each way around the target, whatever
// engine variable 502 allows.
constexpr int kAntiAirSquare = 3;

enum class Mission { kNone, kInterdict, kStrategic, kSupply, kLift };

Mission MissionUnderWay() {
  const OrderFlags& o = UI.Order;
  if (o.InterdictOrder > 0) return Mission::kInterdict;
  if (o.StratBombOrder > 0) return Mission::kStrategic;
  if (o.AirSupplyOrder > 0) return Mission::kSupply;
  if (o.AirliftOrder > 0) return Mission::kLift;
  return Mission::kNone;
}

// The flight under way.
struct Flight {
  Mission mission = Mission::kNone;
  bool bombing = false;   // interdict or strategic bombing
  bool lift = false;      // air supply or airlift
  int unit = 0;           // the mission unit
  int carrier = 0;        // the ship it took off from; 0 when it flew from its own slot
  int bx = 0, by = 0;     // its base hex
  int tx = 0, ty = 0;     // the target hex
  int target = 0;         // the target formation, 0 for none
  int delay = 0;
  // The mission unit's dogfight power: assigned from its fighters while it
  // has a fighter type, otherwise kept as it last stood.
  double dogfight = 0;
};

// A type without hit points is hit as one of a single point.
double HitPoints(long type) {
  const double h = AttrOf(type, kHitPoints);
  return h > 0 ? h : 1.0;
}


bool AtWarWithMover(long regime) {
  const long cur = Game.CurRegime;
  return ValidRegime(static_cast<int>(regime)) && ValidRegime(static_cast<int>(cur)) && Dip[cur][regime].Relation == 0;
}

// Readiness and experience both weigh on a figure, each floored.
double Worn(double figure, const UnitRec& u) {
  figure = static_cast<double>(Int(figure * u.Readiness / 100.0));
  return static_cast<double>(Int(figure * u.Experience / 100.0));
}

// Takes a loss and logs it with the number actually lost.
void Lose(int victim, int opponent, int kind, int cls, long long n, const std::string& who, const std::string& what,
          int delay) {
  const long before = UnitSlotQty(victim, cls);
  ApplyLoss(victim, opponent, kind, cls, n);
  AddBattleLine(who + NumText(before - UnitSlotQty(victim, cls)) + what, delay);
}

// A unit that is no more leaves the stack of hex (x, y), where it stood.
void OutOfStack(int x, int y, int unit) {
  if (ValidHex(x, y)) LeaveStack(x, y, unit);
}

// ---- Interception ------------------------------------------------------------

void Intercept(Flight& f, int interceptor, int carrier, int x, int y) {
  UnitRec& i = Unit[interceptor];
  UnitRec& m = Unit[f.unit];
  AddBattleLine("Attack intercepted by " + i.Name, f.delay);
  for (int round = 1; round <= kInterceptRounds; ++round) {
    // 1. Both sides' dogfight power.
    const double ip = Worn(AttrOf(i.InfType, kDogfight) * i.InfQty, i);
    if (m.InfType > 0) f.dogfight = AttrOf(m.InfType, kDogfight) * m.InfQty;
    f.dogfight = Worn(f.dogfight, m);

    // 2. The classes of the flight the interceptor can get at: escorts and
    // the planes the mission is about.
    int c = (m.MobQty > 0) + (m.InfQty > 0) + (m.ArtQty > 0);
    if (f.bombing && m.MobType > 0) c -= 1;
    if (f.lift && m.ArtQty > 0) c -= 1;
    if (f.lift && m.InfQty > 0 && m.MobType > 0) c -= 1;
    if (f.bombing && m.InfQty > 0 && m.ArtType > 0) c -= 1;

    // 3. The flight's losses. Fighters screen the others while one lives.
    if (c > 0) {
      if (m.InfQty > 0)
        Lose(f.unit, interceptor, kLossDogfight, 1, CasualtyCount(ip, c, HitPoints(m.InfType)), "Attacker lost ",
             " fighters due to Intercept.", f.delay);
      if (f.lift && m.InfQty == 0 && m.MobQty > 0)
        Lose(f.unit, interceptor, kLossDogfight, 2, CasualtyCount(ip, c, HitPoints(m.MobType)), "Attacker lost ",
             " transporters due to Intercept", f.delay);
      if (f.bombing && m.InfQty < 1 && m.ArtQty > 0)
        Lose(f.unit, interceptor, kLossDogfight, 3, CasualtyCount(ip, c, HitPoints(m.ArtType)), "Attacker lost ",
             " bombers due to Intercept.", f.delay);
    }

    // 4. The flight's fighters fire back.
    Lose(interceptor, f.unit, kLossDogfight, 1, CasualtyCount(f.dogfight, 1, HitPoints(i.InfType)),
         "Defender (interceptor) lost ", " fighters.", f.delay);

    // 5. An interceptor with nothing left is gone.
    const bool dead = NoTroops(i);
    if (dead) {
      if (carrier != 0) {
        Unit[carrier].Cargo = 0;
      } else {
        const int owner = static_cast<int>(Hex[x][y].Owner);
        AddNews(owner, interceptor, kNewsLost, "", x, y, 0);
        AddNews(owner, 0, kNewsMapMark, "", x, y, kMarkDestroyed);
        OutOfStack(x, y, interceptor);
      }
      i.Regime = 0;
      i.Officer = 0;
    }

    // 6.
    if (TheBattle.shown) {
      BattleSound(kSoundFighter);
      AddBattleLine("", 500);
    }
    // A wing that is gone fights no further rounds.
    if (dead) break;
  }
}

void Interception(Flight& f) {
  for (int x = 1; x <= Game.MapW && x <= kMapCap; ++x) {
    for (int y = 1; y <= Game.MapH && y <= kMapCap; ++y) {
      // The slot is read afresh each time: a wing shot down closes up its
      // stack, and the scan goes on from the next slot number.
      for (int s = 1; s <= kStackSlots; ++s) {
        const long u = Hex[x][y].Unit[s];
        if (!ValidUnit(static_cast<int>(u))) continue;
        const UnitRec& unit = Unit[u];
        if (unit.Regime == 0 || unit.Regime == Game.CurRegime || !AtWarWithMover(unit.Regime)) continue;
        int wing = static_cast<int>(u);
        int carrier = 0;
        // A carrier's wing takes off in its place.
        if (unit.Theater == kSeaTheater && ValidUnit(static_cast<int>(unit.Cargo)) &&
            Unit[unit.Cargo].Theater == kAirTheater) {
          wing = static_cast<int>(unit.Cargo);
          carrier = static_cast<int>(u);
        }
        const UnitRec& w = Unit[wing];
        if (w.Regime == 0 || w.Theater != kAirTheater || w.InfQty <= 0) continue;
        if (Distance(x, y, f.tx, f.ty) > EV(501)) continue;
        if (w.Readiness <= EV(661)) continue;
        Intercept(f, wing, carrier, x, y);
      }
    }
  }
}

// ---- Anti-aircraft fire --------------------------------------------------------

void AntiAircraft(Flight& f) {
  const long owner = Hex[f.tx][f.ty].Owner;
  const long side = f.target != 0 ? Unit[f.target].Regime : owner;
  const long long a = AntiAirPoints(f.tx, f.ty, f.target != 0 ? Unit[f.target].Regime : 0, owner);
  AddBattleLine("Defender has " + NumText(a) + " AA pts gathered in and around hex.", f.delay);
  if (a > 0 && TheBattle.shown) {
    BattleSound(kSoundArtillery);
    AddBattleLine("", 1000);
  }
  const UnitRec& m = Unit[f.unit];
  // Transport aircraft draw no fire of their own: a flight of transports
  // alone passes untouched.
  int c = (m.InfType > 0) + (m.MobType > 0) + (m.ArtType > 0) + (m.ArmType > 0);
  if (m.MobType > 0) c -= 1;
  if (c <= 0) return;
  const double p = static_cast<double>(a);
  const int guns = kRegimeFire + static_cast<int>(side);
  if (m.InfType > 0)
    Lose(f.unit, guns, kLossArtillery, 1, CasualtyCount(p, c, HitPoints(m.InfType)), "Attacker lost ",
         " fighters due to AA.", f.delay);
  if (m.MobType > 0 && !f.bombing)
    Lose(f.unit, guns, kLossArtillery, 2, CasualtyCount(p, c, HitPoints(m.MobType)), "Attacker lost ",
         " transporters due to AA", f.delay);
  if (m.ArtType > 0)
    Lose(f.unit, guns, kLossArtillery, 3, CasualtyCount(p, c, HitPoints(m.ArtType)), "Attacker lost ",
         " bombers due to AA.", f.delay);
}

// ---- Strategic bombing -----------------------------------------------------------

void StrategicBombing(Flight& f) {
  UnitRec& m = Unit[f.unit];
  HexRec& h = Hex[f.tx][f.ty];
  double power = Worn(AttrOf(m.ArtType, kStrategicBombing) * m.ArtQty, m);
  // A town can lose at most half of itself to one raid.
  const double most = static_cast<double>(Int(h.Pop * 0.5));
  if (power > most) power = most;
  const long long rise = h.Pop > 0 ? CInt(power * 100.0 / h.Pop) : 0;
  long long damage = h.Damage + rise;
  if (damage > 100) damage = 100;
  h.Damage = static_cast<Short>(damage);
  BattleSound(kSoundBomb);
  AddBattleLine("Strategic bombardment caused " + NumText(rise) + "% dammage.", TheBattle.shown ? 1000 : 0);
  // Crews learn on every raid until they are seasoned.
  if (m.Experience < 75) m.Experience += 5;
}

// ---- Interdiction ------------------------------------------------------------------

// The weakest fortification of the target hex's sides, from 100.
long long Fortification(const HexRec& h) {
  long long value = 100;
  for (int d = 1; d <= kHexSides; ++d) {
    if (h.Entrench[d] <= 0) continue;
    const long long row = EV(static_cast<int>(120 + h.Entrench[d]));
    if (row < value) value = row;
  }
  return value;
}

// Strikes at troops on the ground: the weight of each class decides how
// much of the strike it draws.
void StrikeLand(const Flight& f, double s, double h) {
  const int t = f.target;
  const UnitRec& u = Unit[t];
  const int w = (u.MobQty > 0 ? 3 : 0) + (u.InfQty > 0 ? 1 : 0) + (u.ArtQty > 0 ? 3 : 0) + (u.ArmQty > 0 ? 3 : 0);
  if (w == 0) return;
  s *= w;
  h *= w;
  const std::string who = "Defender lost ";
  if (u.InfQty > 0) {
    long long n = Int((s * (1.0 / w)) / (2 * HitPoints(u.InfType)));
    // The chance of a single man compares the whole number with the draw:
    // the draw is taken, and it never hits.
    if (n == 0 && static_cast<float>(n) > Rnd()) n = 1;
    // Infantry goes to ground: at most a third is caught.
    const long long most = Int(u.InfQty * 0.33);
    if (n > most) n = most;
    Lose(t, f.unit, kLossInterdiction, 1, n, who, " infantry.", f.delay);
  }
  if (u.MobQty > 0)
    Lose(t, f.unit, kLossInterdiction, 2, Int((s * (3.0 / w)) / HitPoints(u.MobType)), who, " trucks.", f.delay);
  if (u.ArtQty > 0) {
    double divider = AttrOf(u.ArtType, kHitPoints) + AttrOf(u.ArtType, kAntiAirCap);
    if (divider <= 0) divider = 1;
    Lose(t, f.unit, kLossInterdiction, 3, Int((s * (3.0 / w)) / divider), who, " artillery.", f.delay);
  }
  if (u.ArmQty > 0) {
    const double v = (h * (3.0 / w)) / HitPoints(u.ArmType);
    long long n = Int(v);
    if (n == 0 && static_cast<float>(v) > Rnd()) n = 1;
    Lose(t, f.unit, kLossInterdiction, 4, n, who, " armour.", f.delay);
  }
}

void StrikeSea(const Flight& f, double s) {
  const int t = f.target;
  const UnitRec& u = Unit[t];
  const double c = (u.InfType > 0) + (u.MobType > 0) + (u.ArtType > 0) + (u.ArmType > 0);
  if (c > 0) {
    const std::string who = "Defender lost ";
    if (u.InfType > 0)
      Lose(t, f.unit, kLossInterdiction, 1, CasualtyCount(s, c, HitPoints(u.InfType)), who, " warships.", f.delay);
    if (u.MobType > 0)
      Lose(t, f.unit, kLossInterdiction, 2, CasualtyCount(s, c, HitPoints(u.MobType)), who, " cargoships.", f.delay);
    if (u.ArtType > 0)
      Lose(t, f.unit, kLossInterdiction, 3, CasualtyCount(s, c, HitPoints(u.ArtType)), who, " carriers.", f.delay);
    if (u.ArmType > 0) {
      long long n = CasualtyCount(s, c, HitPoints(u.ArmType));
      const double divider = EV(503) != 0 ? static_cast<double>(EV(503)) : 1.0;
      if (static_cast<double>(Rnd()) * 100 < AttrOf(u.ArmType, kSubskills) / divider) {
        AddBattleLine("Defending subs dive quick enough...", f.delay);
        n = 0;
      }
      Lose(t, f.unit, kLossInterdiction, 4, n, who, " subs.", f.delay);
    }
  }
  CheckCargo(t);
}

void StrikeAir(const Flight& f, double s) {
  const int t = f.target;
  const UnitRec& u = Unit[t];
  const bool inf = u.InfType > 0, mob = u.MobType > 0, art = u.ArtType > 0;
  double c = 0;
  if (inf && mob && art)
    c = 3;
  else if ((inf && mob) || (art && mob))
    c = 2;
  else if (inf || mob || art)
    c = 1;
  const std::string who = "Defender lost ";
  if (inf) Lose(t, f.unit, kLossInterdiction, 1, CasualtyCount(s, c, HitPoints(u.InfType)), who, " fighters.", f.delay);
  if (mob)
    Lose(t, f.unit, kLossInterdiction, 2, CasualtyCount(s, c, HitPoints(u.MobType)), who, " transporters.", f.delay);
  if (art) Lose(t, f.unit, kLossInterdiction, 3, CasualtyCount(s, c, HitPoints(u.ArtType)), who, " bombers.", f.delay);
}

void Interdiction(Flight& f) {
  const HexRec& hex = Hex[f.tx][f.ty];
  // 1. The owner will see where the aircraft struck.
  AddNews(static_cast<int>(hex.Owner), 0, kNewsMapMark, "", f.tx, f.ty, kMarkAirAttack);
  // A target that rose to intercept and was shot down is no longer there.
  if (f.target == 0 || Unit[f.target].Regime == 0) return;
  const UnitRec& m = Unit[f.unit];
  const UnitRec& t = Unit[f.target];

  // 2. Soft and hard strike power.
  double s = 0, h = 0;
  if (t.Theater == kSeaTheater) {
    s = static_cast<double>(AttrOf(m.InfType, kNavalInterdict)) * m.InfQty +
        static_cast<double>(AttrOf(m.ArtType, kNavalInterdict)) * m.ArtQty;
  } else {
    s = static_cast<double>(AttrOf(m.InfType, kSoftAttack)) * m.InfQty +
        static_cast<double>(AttrOf(m.ArtType, kSoftAttack)) * m.ArtQty;
    h = static_cast<double>(AttrOf(m.InfType, kHardAttack)) * m.InfQty +
        static_cast<double>(AttrOf(m.ArtType, kHardAttack)) * m.ArtQty;
  }
  s = Worn(s, m);
  h = Worn(h, m);

  // 3. Cover of forests and towns.
  if (hex.Land == kForest || hex.Land == kUrban) {
    s = static_cast<double>(Int(s * 0.5));
    h = static_cast<double>(Int(h * 0.5));
    AddBattleLine("Landscape gives defenders 50% extra protection.", f.delay);
  }
  // 4. Fortifications.
  const long long value = Fortification(hex);
  if (value < 100) {
    s = static_cast<double>(Int(s * static_cast<double>(value) / 100.0));
    h = static_cast<double>(Int(h * static_cast<double>(value) / 100.0));
    AddBattleLine("Fortifications give defender " + NumText(100 - value) + "% protection.", f.delay);
  }
  // 5.
  BattleSound(kSoundBomb);

  // 6 to 8.
  if (t.Theater == kSeaTheater) {
    StrikeSea(f, s);
  } else if (t.Theater == kAirTheater) {
    StrikeAir(f, s);
  } else {
    StrikeLand(f, s, h);
  }

  // 9. A formation with nothing left is gone; an SHQ stays, whatever it lost.
  UnitRec& target = Unit[f.target];
  if (target.Regime != 0 && target.Shq <= 0 && NoTroops(target)) {
    const int owner = static_cast<int>(hex.Owner);
    AddNews(static_cast<int>(target.Regime), f.target, kNewsLost, "", f.tx, f.ty, 0);
    AddNews(owner, 0, kNewsMapMark, "", f.tx, f.ty, kMarkDestroyed);
    if (target.Thq > 0) DropThq(f.target);
    // A ship's cargo sinks with it.
    if (ValidUnit(static_cast<int>(target.Cargo)) && Unit[target.Cargo].Regime != 0) {
      AddNews(static_cast<int>(Unit[target.Cargo].Regime), static_cast<int>(target.Cargo), kNewsLost, "", 0, 0, 0);
      Unit[target.Cargo].Regime = 0;
    }
    target.Cargo = 0;
    OutOfStack(f.tx, f.ty, f.target);
    target.Regime = 0;
  }
}

// ---- The end of the flight ----------------------------------------------------------

void MissionUnitFate(const Flight& f) {
  UnitRec& m = Unit[f.unit];
  if (m.Regime == 0 || !NoTroops(m)) return;
  if (f.carrier != 0) {
    Unit[f.carrier].Cargo = 0;
  } else {
    OutOfStack(f.bx, f.by, f.unit);
  }
  m.Regime = 0;
}

}  // namespace

int AirMissionUnit() {
  const int x = static_cast<int>(UI.OrdX);
  const int y = static_cast<int>(UI.OrdY);
  const int s = static_cast<int>(UI.OrdSlot);
  if (!ValidHex(x, y) || s < 1 || s > kStackSlots) return 0;
  const long u = Hex[x][y].Unit[s];
  if (!ValidUnit(static_cast<int>(u))) return 0;
  const long cargo = Unit[u].Cargo;
  if (Unit[u].Theater == kSeaTheater && ValidUnit(static_cast<int>(cargo)) && Unit[cargo].Theater == kAirTheater)
    return static_cast<int>(cargo);
  return static_cast<int>(u);
}

std::string AirMissionTitle() {
  switch (MissionUnderWay()) {
    case Mission::kInterdict: return "Interdict";
    case Mission::kStrategic: return "Strategic Bombing";
    case Mission::kSupply: return "AirSupply";
    case Mission::kLift: return "AirLift/Drop";
    case Mission::kNone: break;
  }
  return "";
}

long long AntiAirPoints(int tx, int ty, long side, long owner) {
  long long points = 0;
  for (int x = tx - kAntiAirSquare; x <= tx + kAntiAirSquare; ++x) {
    for (int y = ty - kAntiAirSquare; y <= ty + kAntiAirSquare; ++y) {
      // The bottom row of the map is left out of the square: so the guns
      // have always been counted.
      if (x < 1 || y < 1 || x > Game.MapW || y >= Game.MapH || x > kMapCap || y > kMapCap) continue;
      if (Distance(x, y, tx, ty) > EV(502)) continue;
      for (int s = 1; s <= kStackSlots; ++s) {
        const long u = Hex[x][y].Unit[s];
        if (!ValidUnit(static_cast<int>(u))) continue;
        const long r = Unit[u].Regime;
        if (r == 0 || r == Game.CurRegime || (r != side && r != owner)) continue;
        for (int cls = 1; cls <= 4; ++cls)
          points += static_cast<long long>(AttrOf(UnitSlotType(static_cast<int>(u), cls), kAntiAirCap)) *
                    UnitSlotQty(static_cast<int>(u), cls);
      }
    }
  }
  return points;
}

void FlyAirMission() {
  Flight f;
  f.mission = MissionUnderWay();
  f.bombing = f.mission == Mission::kInterdict || f.mission == Mission::kStrategic;
  f.lift = f.mission == Mission::kSupply || f.mission == Mission::kLift;
  f.unit = AirMissionUnit();
  f.tx = static_cast<int>(UI.SelX);
  f.ty = static_cast<int>(UI.SelY);
  if (f.mission == Mission::kNone || f.unit == 0 || !ValidHex(f.tx, f.ty)) return;
  f.bx = static_cast<int>(UI.OrdX);
  f.by = static_cast<int>(UI.OrdY);
  const long base = Hex[f.bx][f.by].Unit[UI.OrdSlot];
  if (base != f.unit) f.carrier = static_cast<int>(base);
  if (UI.SelSlot >= 1 && UI.SelSlot <= kStackSlots) {
    const long t = Hex[f.tx][f.ty].Unit[UI.SelSlot];
    if (ValidUnit(static_cast<int>(t)) && Unit[t].Regime != 0) f.target = static_cast<int>(t);
  }

  // 1. The battle window, as for a battle.
  BattleState& b = TheBattle;
  b = BattleState{};
  b.tx = f.tx;
  b.ty = f.ty;
  b.shown = !(ComputerToMove() && Game.ShowAIMoves == 0);
  b.delay = b.shown ? 200 : 0;
  f.delay = b.delay;
  ZeroBattleTallies();
  OpenBattleWindow(b.shown);
  AddBattleLine(AirMissionTitle(), f.delay);

  // 2. A strike costs the wing its movement as a battle does.
  UnitRec& m = Unit[f.unit];
  if (f.bombing) {
    m.MP = static_cast<Long>(m.MP - EV(534));
    if (m.MP > EV(535)) m.MP = EV(535);
  }

  // 3, 4. The gauntlet.
  Interception(f);
  AntiAircraft(f);

  // 5. The strike.
  if (f.mission == Mission::kStrategic) StrategicBombing(f);
  if (f.mission == Mission::kInterdict) Interdiction(f);

  // 6.
  MissionUnitFate(f);
  LogTallies();
  CloseBattleWindow(b.shown);
}

}  // namespace mf
