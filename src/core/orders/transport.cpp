#include "orders/transport.h"

#include <string>

#include "combat/air_mission.h"
#include "combat/attack.h"
#include "model/arith.h"
#include "model/cleared_with_tables.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/stack.h"
#include "model/type_lookup.h"
#include "orders/flood.h"
#include "orders/move_allowance.h"
#include "orders/movement.h"
#include "orders/new_units.h"
#include "orders/order_buttons.h"
#include "orders/sight.h"
#include "platform/platform.h"
#include "platform/say.h"

namespace mf {

int AirliftUnit = 0;
int AirliftDrop = 0;
int AirSupplyShq = 0;

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { AirliftUnit = AirliftDrop = AirSupplyShq = 0; });
}  // namespace

namespace {

constexpr int kSoundFighter = 13;  // "att_fighter.wav"
constexpr Short kOutOfReach = 999;


void Sound(int slot) {
  if (UI.SoundOff == 0) Plat().PlaySound(slot);
}

int UnitAt(long x, long y, long slot) {
  if (!ValidHex(static_cast<int>(x), static_cast<int>(y)) || slot < 1 || slot > kStackSlots) return 0;
  const long u = Hex[x][y].Unit[slot];
  return ValidUnit(static_cast<int>(u)) && Unit[u].Regime != 0 ? static_cast<int>(u) : 0;
}
int SelectedUnit() { return UnitAt(UI.SelX, UI.SelY, UI.SelSlot); }
int OriginUnit() { return UnitAt(UI.OrdX, UI.OrdY, UI.OrdSlot); }

int SlotOf(int x, int y, int unit) {
  if (!ValidHex(x, y) || unit == 0) return 0;
  for (int s = 1; s <= kStackSlots; ++s)
    if (Hex[x][y].Unit[s] == unit) return s;
  return 0;
}


Long ReadinessLess(Long readiness, long loss) {
  const long r = readiness - loss;
  return static_cast<Long>(r < 10 ? 10 : r);
}

// The end of every transport order: the selection goes back to the
// formation the order started from (it may have moved down its stack, or
// be gone), and the buttons come back for it.
void EndOrder(int originUnit) {
  const int x = static_cast<int>(UI.OrdX);
  const int y = static_cast<int>(UI.OrdY);
  const int slot = SlotOf(x, y, originUnit);
  if (slot != 0) {
    UI.OrdSlot = slot;
  } else if (ValidHex(x, y)) {
    const int count = StackCount(x, y);
    if (UI.OrdSlot > count) UI.OrdSlot = count;
  }
  ReturnSelectionToOrigin();
  RefreshButtons();
  Buttons.doButton.enabled = false;
  Buttons.orderLineShown = false;
  Buttons.cancel.enabled = false;
  Helper();
}

// A formation that is no more leaves the chain of command and the map.
void Destroy(int x, int y, int unit) {
  if (Unit[unit].Thq > 0) DropThq(unit);
  if (Unit[unit].Shq > 0) DropShq(unit);
  LeaveStack(x, y, unit);
  Unit[unit].Regime = 0;
}

// The wing pays the movement of its flight, down to 0.
void PayFlight(int wing, long cost) {
  const long mp = Unit[wing].MP - cost;
  Unit[wing].MP = static_cast<Long>(mp < 0 ? 0 : mp);
}

// The share of the transport aircraft that came through.
double Surviving(long before, long after) { return before > 0 ? static_cast<double>(after) / before : 0.0; }

}  // namespace

void LandingBattle(int unit, int tx, int ty) {
  const Long ordX = UI.OrdX, ordY = UI.OrdY, ordSlot = UI.OrdSlot;
  const Long landing = UI.Order.LandingOrder;
  UI.Order.LandingOrder = 1;
  for (int i = 0; i <= kAttackerCap; ++i) {
    UI.AttackerX[i] = 0;
    UI.AttackerY[i] = 0;
    UI.AttackerSlot[i] = 0;
  }
  UI.AttackerCount = 1;
  UI.AttackerX[1] = tx;
  UI.AttackerY[1] = ty;
  // Still aboard or in the air: the entry holds the unit itself.
  UI.AttackerSlot[1] = unit;
  UI.OrdX = tx;
  UI.OrdY = ty;
  doAttack();
  for (int i = 0; i <= kAttackerCap; ++i) {
    UI.AttackerX[i] = 0;
    UI.AttackerY[i] = 0;
    UI.AttackerSlot[i] = 0;
  }
  UI.AttackerCount = 0;
  UI.OrdX = ordX;
  UI.OrdY = ordY;
  UI.OrdSlot = ordSlot;
  UI.Order.LandingOrder = landing;
}

long UnitLoadWeight(int unit) { return UnitAttrTotal(unit, kWeight); }

long ShipCapacity(int ship, int load) {
  if (!ValidUnit(ship) || !ValidUnit(load)) return 0;
  if (Unit[load].Theater == kAirTheater) return AttrOf(Unit[ship].ArtType, kCarryCap) * Unit[ship].ArtQty;
  return AttrOf(Unit[ship].MobType, kCarryCap) * Unit[ship].MobQty;
}

int FirstFreeSlot(int x, int y) {
  if (!ValidHex(x, y)) return 0;
  for (int s = 1; s <= kStackSlots; ++s)
    if (Hex[x][y].Unit[s] == 0) return s;
  return 0;
}

bool LeaveStack(int x, int y, int unit) {
  const int slot = SlotOf(x, y, unit);
  if (slot == 0) return false;
  for (int s = slot; s < kStackSlots; ++s) Hex[x][y].Unit[s] = Hex[x][y].Unit[s + 1];
  Hex[x][y].Unit[kStackSlots] = 0;
  return true;
}

// ---- Ships --------------------------------------------------------------------

void doUnloadTown() {
  const int ship = SelectedUnit();
  if (ship == 0) return;
  const int cargo = static_cast<int>(Unit[ship].Cargo);
  if (!ValidUnit(cargo) || Unit[cargo].Regime == 0) return;
  const int x = static_cast<int>(UI.SelX);
  const int y = static_cast<int>(UI.SelY);
  // A full harbour takes nobody, and says nothing.
  const int slot = FirstFreeSlot(x, y);
  if (slot == 0) return;
  Hex[x][y].Unit[slot] = cargo;
  Unit[cargo].MP = 0;
  Unit[ship].Cargo = 0;
  UI.SelCount = StackCount(x, y);
  UI.PanelDirty = true;
  RequestRedraw(1);
  RefreshButtons();
}

void doLoad() {
  const int ship = OriginUnit();
  const int load = SelectedUnit();
  if (ship == 0 || load == 0) return;
  const UnitRec& l = Unit[load];
  // Every refusal is silent; the order stays for another choice.
  if (l.Regime != Game.CurRegime) return;
  if (l.Theater == kSeaTheater) return;
  if (l.MP < 1) return;
  if (Unit[ship].Cargo > 0) return;
  if (l.Shq > 0) return;
  if (UnitLoadWeight(load) > ShipCapacity(ship, load)) return;
  LeaveStack(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY), load);
  Unit[ship].Cargo = load;
  UI.Order.LoadOrder = 0;
  RequestRedraw(2);
  EndOrder(ship);
}

void doLanding() {
  const int ship = OriginUnit();
  const int cargo = ship != 0 ? static_cast<int>(Unit[ship].Cargo) : 0;
  if (!ValidUnit(cargo) || Unit[cargo].Regime == 0) {
    // Nothing aboard to put ashore.
    UI.Order.LandingOrder = 0;
    EndOrder(ship);
    return;
  }
  const int tx = static_cast<int>(UI.SelX);
  const int ty = static_cast<int>(UI.SelY);
  if (!ValidHex(tx, ty)) return;
  HexRec& h = Hex[tx][ty];
  UnitRec& c = Unit[cargo];
  if (c.Theater == kAirTheater) {
    Say("You can only unload an air unit inside a town.");
    return;
  }
  if (h.Land == kSea) {
    Say("You can only unload on a land hex. Select a land hex to unload.");
    return;
  }
  if (Distance(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY), tx, ty) > 1) {
    Say("Distance must be 1");
    return;
  }
  const long owner = h.Owner;
  const long cur = Game.CurRegime;
  if (owner != 0 && owner != cur && ValidRegime(static_cast<int>(owner)) && ValidRegime(static_cast<int>(cur)) &&
      Dip[cur][owner].Relation == 1) {
    Say("You can't invade a regime you are at peace with.");
    return;
  }
  // No landing on a mountain; nothing is said.
  if (h.Land == kMountain) return;

  if (owner == cur) {
    // Own shore: the troops walk off the ships.
    const int slot = FirstFreeSlot(tx, ty);
    if (slot == 0) return;
    h.Unit[slot] = cargo;
    Unit[ship].Cargo = 0;
    c.MP = 0;
    c.Readiness = ReadinessLess(c.Readiness, 30);
  } else {
    for (int s = 1; s <= kStackSlots; ++s) {
      const long u = h.Unit[s];
      if (ValidUnit(static_cast<int>(u)) && Unit[u].Theater == kSeaTheater && Unit[u].InfQty > 0) {
        Say("You cannot invade town with warships in port");
        return;
      }
    }
    LandingBattle(cargo, tx, ty);
    Unit[ship].Cargo = 0;
    if (c.Regime != 0) {
      if (h.Unit[1] == 0) {
        h.Unit[1] = cargo;
        // An empty shore was taken without a fight: a town there stops what
        // it made for its old owner, as any town that changes hands.
        TakeHex(tx, ty);
        c.MP = 0;
        c.Readiness = ReadinessLess(c.Readiness, 30);
      } else {
        // The beach still held when the fighting stopped: the troops that
        // are left go back aboard rather than stand nowhere.
        Unit[ship].Cargo = cargo;
      }
    }
  }
  SightPass();
  RequestRedraw(2);
  UI.PanelDirty = true;
  UI.Order.LandingOrder = 0;
  EndOrder(ship);
}

// ---- Air wings -------------------------------------------------------------------

void doAirlift() {
  const int tx = static_cast<int>(UI.SelX);
  const int ty = static_cast<int>(UI.SelY);
  if (!ValidHex(tx, ty)) return;
  HexRec& h = Hex[tx][ty];
  if (h.Mark >= kOutOfReach) return;
  // The target is tested against the turn number, not the regime: so the
  // rules stand.
  if (h.Owner == Game.Turn) return;
  const int lifted = AirliftUnit;
  if (!ValidUnit(lifted) || Unit[lifted].Regime == 0) return;
  const int origin = OriginUnit();
  const int wing = AirMissionUnit();
  if (origin == 0 || wing == 0) return;
  const int ox = static_cast<int>(UI.OrdX);
  const int oy = static_cast<int>(UI.OrdY);
  const bool emptyOrOwn = h.Unit[1] == 0 || h.Owner == Game.CurRegime;
  // A landing needs room: a full airfield, or the airfield the flight
  // starts from, takes nobody, and nothing happens.
  if (emptyOrOwn && (FirstFreeSlot(tx, ty) == 0 || (tx == ox && ty == oy))) return;

  const long before = Unit[wing].MobQty;
  FlyAirMission();
  const double share = Surviving(before, Unit[wing].MobQty);
  UnitRec& l = Unit[lifted];
  for (int cls = 1; cls <= 4; ++cls) {
    Long& qty = UnitSlotQty(lifted, cls);
    qty = static_cast<Long>(Int(qty * share));
  }

  if (Unit[wing].MobQty < 1 || NoTroops(l)) {
    Say("All troops in airlift destroyed.");
    Destroy(ox, oy, lifted);
  } else if (emptyOrOwn) {
    // A foreign town that changes hands stops what it was making.
    TakeHex(tx, ty);
    // Room was made sure of before the flight, and a flight only empties slots.
    LeaveStack(ox, oy, lifted);
    const int slot = FirstFreeSlot(tx, ty);
    if (slot != 0) h.Unit[slot] = lifted;
    l.MP = 0;
    l.Readiness = ReadinessLess(l.Readiness, 20);
    PayFlight(wing, h.Mark);
    Sound(kSoundFighter);
  } else {
    PayFlight(wing, h.Mark);
    Sound(kSoundFighter);
    // The jump into the enemy's midst.
    LandingBattle(lifted, tx, ty);
    if (l.Regime != 0) {
      l.MP = 0;
      l.Readiness = ReadinessLess(l.Readiness, 20);
      if (h.Unit[1] == 0) {
        LeaveStack(ox, oy, lifted);
        h.Unit[1] = lifted;
        TakeHex(tx, ty);
      }
      // Otherwise the fighting stopped with the ground still held: the
      // survivors stay on the airfield they took off from.
    } else {
      LeaveStack(ox, oy, lifted);
    }
  }

  SightPass();
  RequestRedraw(2);
  UI.PanelDirty = true;
  ClearFlood();
  UI.Order.AirliftOrder = 0;
  AirliftUnit = 0;
  AirliftDrop = 0;
  EndOrder(origin);
}

void doAirsupply() {
  const int tx = static_cast<int>(UI.SelX);
  const int ty = static_cast<int>(UI.SelY);
  if (!ValidHex(tx, ty)) return;
  const HexRec& h = Hex[tx][ty];
  if (h.Mark >= kOutOfReach) {
    Say("You cannot do this from a hex that is out of supply.");
    return;
  }
  if (h.Owner != Game.CurRegime) return;
  const int target = SelectedUnit();
  // An SHQ's supply field is its stock, not a share: it is no formation to
  // drop supply to.
  if (target == 0 || Unit[target].Shq > 0) return;
  UnitRec& t = Unit[target];
  if (t.SupplyPct > 0) {
    Say("You can only use airsupply to supply units that are fully out of supply.");
    return;
  }
  const int shq = AirSupplyShq;
  if (!ValidUnit(shq) || Unit[shq].Regime == 0) return;
  Long& stock = Unit[shq].SupplyPct;
  if (stock <= 0) return;
  const int origin = OriginUnit();
  const int wing = AirMissionUnit();
  if (origin == 0 || wing == 0) return;

  // 4. What the formation needs, and what the transports can lift.
  long long need = UnitAttrTotal(target, kSupplyNeed);
  const long long fullNeed = need;
  const long long lift = AttrOf(Unit[wing].MobType, kCarryCap) * Unit[wing].MobQty;
  if (lift == 0) {
    Say("You can only use cargo aircraft to airsupply.");
    return;
  }
  if (need > lift) need = lift;

  // 5. The flight.
  const long before = Unit[wing].MobQty;
  FlyAirMission();
  const double share = Surviving(before, Unit[wing].MobQty);
  need = Int(static_cast<double>(need) * share);
  if (need == 0 || share == 0) {
    Say("Disaster! All transport and cargo lost.");
  } else {
    // 6. What the SHQ can spare.
    double y = 1;
    if (stock < need) {
      y = static_cast<double>(stock) / static_cast<double>(need);
      need = stock;
    }
    y *= (100 - t.SupplyPct) / 100.0;
    // 7. The drop.
    stock = static_cast<Long>(stock - need);
    t.SupplyPct =
        static_cast<Long>(Int(t.SupplyPct + 100.0 * static_cast<double>(need) / static_cast<double>(fullNeed)));
    long long readiness = t.Readiness + Int((30 * y + static_cast<double>(Int(t.Experience / 5.0))) * y);
    if (readiness > 100) readiness = 100;
    t.Readiness = static_cast<Long>(readiness);
    UnitMaxMoveOf(target, false);
    t.MP = static_cast<Long>(Int(t.Readiness / 100.0 * t.MP));
    // However small the load, a formation that has had an air drop stands
    // at full supply: so the game has it.
    if (t.SupplyPct < 100) t.SupplyPct = 100;
    // 8. The wing pays for the flight.
    PayFlight(wing, static_cast<long>(Int(h.Mark / 3.0) + 1));
    Sound(kSoundFighter);
  }

  ClearFlood();
  RequestRedraw(2);
  UI.PanelDirty = true;
  UI.Order.AirSupplyOrder = 0;
  AirSupplyShq = 0;
  EndOrder(origin);
}

void doAirMission() {
  const int tx = static_cast<int>(UI.SelX);
  const int ty = static_cast<int>(UI.SelY);
  if (!ValidHex(tx, ty)) return;
  const HexRec& h = Hex[tx][ty];
  const bool strategic = UI.Order.StratBombOrder > 0;
  if (h.Mark >= kOutOfReach) return;
  if (h.Owner == Game.CurRegime) return;
  const int target = SelectedUnit();
  if (!strategic) {
    // An interdiction needs a formation to strike, and not an SHQ, nor one
    // of the regime's own or of a regime at peace with it (out at sea,
    // where no hex is owned).
    if (target == 0 || Unit[target].Shq > 0) return;
    const long r = Unit[target].Regime;
    if (r == Game.CurRegime) return;
    if (ValidRegime(static_cast<int>(r)) && ValidRegime(static_cast<int>(Game.CurRegime)) &&
        Dip[Game.CurRegime][r].Relation == 1)
      return;
  }
  const int origin = OriginUnit();
  if (origin == 0 || AirMissionUnit() == 0) return;
  // A wing on board flies only while its carrier still has the movement.
  if (Unit[origin].MP < 2) {
    Say("Unit does not have 2 MP left.");
    return;
  }
  if (strategic && h.Land != kUrban) {
    Say("You can only strategicly bomb Towns!");
    return;
  }
  FlyAirMission();
  ClearFlood();
  UI.Order.InterdictOrder = 0;
  UI.Order.StratBombOrder = 0;
  RequestRedraw(2);
  UI.PanelDirty = true;
  EndOrder(origin);
}

}  // namespace mf
