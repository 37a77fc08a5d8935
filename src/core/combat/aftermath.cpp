// After each engagement: who is destroyed, who breaks off or retreats, and
// whether the battle is over. At the end, the tallies of both sides.
#include "combat/battle_state.h"
#include "combat/battle_window.h"
#include "combat/command_figures.h"
#include "combat/losses.h"
#include "engine/news.h"
#include "model/arith.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"
#include "model/type_lookup.h"
#include "orders/new_units.h"

namespace mf {
namespace {

constexpr int kSoundVictory = 32;
constexpr int kMarkDestroyed = 9;


Long CappedAdd(Long value, long long add, long long cap) {
  const long long v = value + add;
  return static_cast<Long>(v > cap ? cap : v);
}

// Readiness cut to a share of itself; a battle never leaves a unit below 10.
Long ReadinessShare(Long readiness, long long percent) {
  long long r = Int(percent / 100.0 * readiness);
  if (r < 10) r = 10;
  return static_cast<Long>(r);
}

// Closes the hole a unit leaves in a stack: the highest slot moves into it.
void FillFromTop(int x, int y, int slot) {
  const int top = HighestSlot(x, y);
  if (slot < top) {
    Hex[x][y].Unit[slot] = Hex[x][y].Unit[top];
    Hex[x][y].Unit[top] = 0;
  } else if (slot >= 1 && slot <= kStackSlots) {
    Hex[x][y].Unit[slot] = 0;
  }
}

void CopyEntry(int to, int from) {
  UI.AttackerX[to] = UI.AttackerX[from];
  UI.AttackerY[to] = UI.AttackerY[from];
  UI.AttackerSlot[to] = UI.AttackerSlot[from];
}

void ClearEntry(int i) {
  UI.AttackerX[i] = 0;
  UI.AttackerY[i] = 0;
  UI.AttackerSlot[i] = 0;
}

// An attacker that is no more leaves its stack and the attackers' list. The
// last entry takes its place and acts in this round; an entry behind the
// count keeps its stale copy until the round is over.
void RemoveAttacker(const Engagement& e, int& pass) {
  if (!TheBattle.landing && ValidHex(e.ax, e.ay)) {
    const int top = HighestSlot(e.ax, e.ay);
    if (e.aslot < top) {
      Hex[e.ax][e.ay].Unit[e.aslot] = Hex[e.ax][e.ay].Unit[top];
      Hex[e.ax][e.ay].Unit[top] = 0;
      for (int i = 1; i <= UI.AttackerCount && i <= kAttackerCap; ++i)
        if (UI.AttackerX[i] == e.ax && UI.AttackerY[i] == e.ay && UI.AttackerSlot[i] == top)
          UI.AttackerSlot[i] = e.aslot;
    } else if (e.aslot >= 1 && e.aslot <= kStackSlots) {
      Hex[e.ax][e.ay].Unit[e.aslot] = 0;
    }
  }
  Unit[e.attacker].Regime = 0;
  const int count = static_cast<int>(UI.AttackerCount);
  if (pass < count) {
    CopyEntry(pass, count);
    UI.AttackerCount = count - 1;
    pass -= 1;
  } else {
    if (pass >= 1 && pass <= kAttackerCap) ClearEntry(pass);
    UI.AttackerCount = count > 0 ? count - 1 : 0;
  }
}

// An attacker that breaks off leaves some of its trucks and guns behind.
void LoseOnTheWay(int u, int opponent, int cls, long long n, const std::string& what) {
  const long before = UnitSlotQty(u, cls);
  ApplyLoss(u, opponent, kLossArtillery, cls, n);
  AddBattleLine("Lost " + NumText(before - UnitSlotQty(u, cls)) + what, TheBattle.delay);
}

void BreakOff(const Engagement& e, int pass) {
  BattleState& b = TheBattle;
  UnitRec& a = Unit[e.attacker];
  if (b.round == 1) {
    a.MP = static_cast<Long>(a.MP - EV(534));
    if (a.MP > EV(535)) a.MP = EV(535);
  }
  AddBattleLine("ATTACKING UNIT RETREATS", b.delay);
  if (a.MobQty > 0) {
    long long n = Int(static_cast<double>(Rnd()) * a.MobQty) + 1;
    if (static_cast<double>(Rnd()) * EV(650) > 1) n = 0;
    LoseOnTheWay(e.attacker, e.target, 2, n, " transport vehicles while retreating.");
  }
  if (a.ArtQty > 0) {
    long long n = Int(static_cast<double>(Rnd()) * a.ArtQty) + 1;
    if (static_cast<double>(Rnd()) * EV(651) > 1) n = 0;
    LoseOnTheWay(e.attacker, e.target, 3, n, " artillery pieces while retreating.");
  }
  a.FromX = 0;
  a.FromY = 0;
  a.Readiness = ReadinessShare(a.Readiness, EV(541));
  a.Disruption = CappedAdd(a.Disruption, EV(547), 100);
  // The later entries move down over it; the next attacker thereby misses
  // this round, and the last entry stays behind as a stale copy.
  const int count = static_cast<int>(UI.AttackerCount);
  for (int i = pass; i < count && i < kAttackerCap; ++i) CopyEntry(i, i + 1);
  UI.AttackerCount = count > 0 ? count - 1 : 0;
}

// Step 1 to 3: a land attacker is obliterated, breaks off, or fights on.
void LandAttackerFate(const Engagement& e, int& pass) {
  const BattleState& b = TheBattle;
  UnitRec& a = Unit[e.attacker];
  const bool obliterated = NoTroops(a) || (b.landing && a.InfQty < 1 && a.ArmQty < 1);
  if (obliterated) {
    if (a.ArtQty > 0) ApplyLoss(e.attacker, e.target, kLossArtillery, 3, a.ArtQty);
    if (a.MobQty > 0) ApplyLoss(e.attacker, e.target, kLossArtillery, 2, a.MobQty);
    AddBattleLine(a.Name + " is obliterated.", b.delay);
    if (a.Thq > 0) DropThq(e.attacker);
    RemoveAttacker(e, pass);
    return;
  }
  if (e.bombarding || b.landing || e.kind >= kKindLandVsSea) return;
  if (e.index < 1 || e.index > kAttackerCap || b.initialAttacker[e.index] <= 0) return;
  double threshold = 0.7;
  if (a.Officer > 0) threshold = OfficerRetreatLevel(e.attacker) / 100.0;
  const double now = CurrentAttackStrength(e);
  const bool weakened = now < b.initialAttacker[e.index] * threshold && e.kind != kKindSeaBattle;
  if (weakened || (a.InfQty == 0 && a.ArmQty == 0)) BreakOff(e, pass);
}

bool HasStock(int u) {
  const Long regime = Unit[u].Regime;
  const Long number = Unit[u].Shq;
  if (!ValidRegime(static_cast<int>(regime)) || number < 1 || number > kShqCap) return false;
  long long lines = EV(616);
  if (lines > kStockCap) lines = kStockCap;
  for (long long k = 1; k <= lines; ++k)
    if (Shq[regime][number].StockType[k] > 0 && Shq[regime][number].StockQty[k] > 0) return true;
  return false;
}

// A retreating SHQ leaves stock behind. The tallies count what the rules of
// loss work out, while the pool itself gives up exactly one of each line.
void LoseStock(const Engagement& e) {
  const Long regime = Unit[e.target].Regime;
  const Long number = Unit[e.target].Shq;
  if (!ValidRegime(static_cast<int>(regime)) || number < 1 || number > kShqCap) return;
  ShqRec& pool = Shq[regime][number];
  const Long killer = Unit[e.attacker].Regime;
  long long lines = EV(616);
  if (lines > kStockCap) lines = kStockCap;
  for (long long k = 1; k <= lines; ++k) {
    const Long type = pool.StockType[k];
    if (type <= 0 || pool.StockQty[k] <= 0) continue;
    long long m = Int(pool.StockQty[k] * 0.4);
    if (m == 0 && static_cast<double>(Rnd()) <= 0.4) m = 1;
    if (m <= 0) continue;
    pool.StockQty[k] = AddSat(pool.StockQty[k], -1);
    if (ValidType(static_cast<int>(type))) {
      const long long index = Type[type].Class + 4LL * Type[type].Theater;
      if (index >= 1 && index <= kLossClasses) {
        DefenderLost[index] += static_cast<Long>(m);
        if (ValidRegime(static_cast<int>(killer))) Regime[killer].Kills[index] = AddSat(Regime[killer].Kills[index], m);
        Regime[regime].Losses[index] = AddSat(Regime[regime].Losses[index], m);
      }
    }
    const std::string name = ValidType(static_cast<int>(type)) ? Type[type].Name : std::string();
    AddBattleLine("Lost " + NumText(m) + name + " while retreating.", TheBattle.delay);
  }
}

void Retreat(const Engagement& e) {
  BattleState& b = TheBattle;
  UnitRec& t = Unit[e.target];
  AddBattleLine(t.Name + " attempting to retreat", b.delay);
  const Long owner = Hex[b.tx][b.ty].Owner;
  const int start = static_cast<int>(Int(static_cast<double>(Rnd()) * 6)) + 1;
  HexXY to{};
  for (int k = 1; k <= kHexSides; ++k) {
    int d = start + k - 1;
    if (d > kHexSides) d -= kHexSides;
    const HexXY n = Neighbour(b.tx, b.ty, d);
    if (!ValidHex(n.x, n.y)) continue;
    const HexRec& h = Hex[n.x][n.y];
    if (h.Owner == owner && h.Unit[3] == 0 && h.Land != kSea && h.Land != kMountain) {
      to = n;
      break;
    }
  }
  if (to.x == 0) {
    t.Readiness = ReadinessShare(t.Readiness, EV(543));
    AddBattleLine("could not find an escape. ", b.delay);
    return;
  }
  // A retreat always costs vehicles and guns, though the draw may spare them all.
  if (t.MobQty > 0)
    LoseOnTheWay(e.target, e.attacker, 2, Int(static_cast<double>(Rnd()) * t.MobQty),
                 " transport vehicles while retreating.");
  if (t.ArtQty > 0)
    LoseOnTheWay(e.target, e.attacker, 3, Int(static_cast<double>(Rnd()) * t.ArtQty),
                 " artillery pieces while retreating.");
  if (t.Shq > 0) LoseStock(e);
  const int slot = HighestSlot(to.x, to.y) + 1;
  Hex[to.x][to.y].Unit[slot] = e.target;
  FillFromTop(b.tx, b.ty, e.targetSlot);
  b.stackSize -= 1;
  t.Readiness = ReadinessShare(t.Readiness, EV(542));
  t.Disruption = CappedAdd(t.Disruption, EV(546), 100);
  AddBattleLine("DEFENDING UNIT HAS RETREATED.", b.delay);
}

// Step 4 to 8: a land target is destroyed, retreats, or stands.
void LandTargetFate(const Engagement& e) {
  BattleState& b = TheBattle;
  UnitRec& t = Unit[e.target];
  const bool destroyed = (t.Shq <= 0 && t.ArmQty < 1 && t.InfQty < 1) ||
                         (t.Shq > 0 && b.round > 1 && e.kind > kKindArtilleryAir);
  if (destroyed) {
    const int owner = static_cast<int>(Hex[b.tx][b.ty].Owner);
    AddNews(owner, 0, kNewsMapMark, "", b.tx, b.ty, kMarkDestroyed);
    if (t.MobQty > 0) ApplyLoss(e.target, e.attacker, kLossArtillery, 2, t.MobQty);
    if (t.ArtQty > 0) ApplyLoss(e.target, e.attacker, kLossArtillery, 3, t.ArtQty);
    AddNews(owner, e.target, kNewsLost, "", b.tx, b.ty, 0);
    if (t.Thq > 0) DropThq(e.target);
    if (t.Shq > 0) DropShq(e.target);
    FillFromTop(b.tx, b.ty, e.targetSlot);
    b.stackSize -= 1;
    t.Regime = 0;
    return;
  }
  if (!(e.targetSlot >= 1 && e.targetSlot <= kStackSlots && b.initialDefender[e.targetSlot] > 0) && t.Shq <= 0)
    return;
  double threshold = 0.7;
  if (t.Officer > 0) threshold = OfficerRetreatLevel(e.target) / 100.0;
  const double now = CurrentDefenceStrength(e);
  const Long initial = (e.targetSlot >= 1 && e.targetSlot <= kStackSlots) ? b.initialDefender[e.targetSlot] : 0;
  bool wants = now < initial * threshold || (t.Shq > 0 && e.kind > kKindArtilleryAir);
  if (e.kind >= kKindLandVsSea) wants = false;
  // An HQ without stock has nothing to save and stands.
  if (t.Shq > 0 && !HasStock(e.target)) wants = false;
  // A unit too weak to matter stays where it is, without a word.
  if (wants && t.Shq <= 0 && !(now / (EV(301) * 0.5) > 1)) wants = false;
  if (wants) Retreat(e);
}

}  // namespace

bool Aftermath(const Engagement& e, int& pass) {
  BattleState& b = TheBattle;
  if (Unit[e.attacker].Theater == kLandTheater) LandAttackerFate(e, pass);
  if (Unit[e.target].Theater == kLandTheater) {
    LandTargetFate(e);
  } else if (NoTroops(Unit[e.target])) {
    // Ships and aircraft do not retreat: they go down.
    UnitRec& t = Unit[e.target];
    AddNews(static_cast<int>(t.Regime), e.target, kNewsLost, "", b.tx, b.ty, 0);
    AddNews(static_cast<int>(Hex[b.tx][b.ty].Owner), 0, kNewsMapMark, "", b.tx, b.ty, kMarkDestroyed);
    FillFromTop(b.tx, b.ty, e.targetSlot);
    b.stackSize -= 1;
    t.Regime = 0;
  }
  if (Unit[e.attacker].Theater == kSeaTheater && Unit[e.attacker].Regime != 0 && NoTroops(Unit[e.attacker])) {
    AddBattleLine(Unit[e.attacker].Name + " is obliterated.", b.delay);
    RemoveAttacker(e, pass);
  }

  if (UI.AttackerCount <= 0) {
    b.round = 999;
    AddBattleLine("ATTACK / OFFENSIVE IS ABORTED DUE TO LOSSES.", b.delay);
    return true;
  }
  if (b.stackSize < 1) {
    b.round = 999;
    BattleSound(kSoundVictory);
    AddBattleLine("OFFENSIVE SUCCESFULL", b.delay);
    // Only troops that came to grips take the ground; shelling alone does not.
    if (b.engagements > 0) {
      HexRec& h = Hex[b.tx][b.ty];
      if (h.Land != kSea) h.Owner = Game.CurRegime;
      h.Prod = 0;
      h.ProdSHQ = 0;
    }
    return true;
  }
  return false;
}

void LogTallies() {
  static const char* const kNames[kLossClasses + 1] = {
      "",          "Infantery: ", "Trucks: ",  "Artillery: ",    "Armour: ",  "Warships: ", "Cargoships: ",
      "Carriers: ", "Subs: ",      "Fighters: ", "Transporters: ", "Bombers: ", "Rockets: "};
  const int delay = TheBattle.shown ? 5 : 0;
  AddBattleLine(" ", delay);
  AddBattleLine("ATTACKER lost:", delay);
  for (int k = 1; k <= kLossClasses; ++k)
    if (AttackerLost[k] > 0) AddBattleLine(kNames[k] + NumText(AttackerLost[k]), delay);
  AddBattleLine(" ", delay);
  AddBattleLine("DEFENDER lost:", delay);
  for (int k = 1; k <= kLossClasses; ++k)
    if (DefenderLost[k] > 0) AddBattleLine(kNames[k] + NumText(DefenderLost[k]), delay);
}

}  // namespace mf
