#include "combat/attack.h"

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

namespace mf {

namespace {

constexpr int kMarkBombardment = 7;

// Steps 1 to 3 of an attacker's turn in a round: who it is, what the
// second round costs it, and what a fight over a town does to the town.
bool StartTurn(Engagement& e, int pass) {
  BattleState& b = TheBattle;
  e.index = pass;
  e.attacker = AttackerUnit(pass);
  if (e.attacker == 0) return false;  // an entry whose slot has emptied
  e.ax = static_cast<int>(UI.AttackerX[pass]);
  e.ay = static_cast<int>(UI.AttackerY[pass]);
  e.aslot = static_cast<int>(UI.AttackerSlot[pass]);
  UnitRec& a = Unit[e.attacker];
  if (b.round == 2) {
    a.MP = static_cast<Long>(a.MP - EV(534));
    if (a.MP > EV(535)) a.MP = EV(535);
    a.FromX = b.tx;
    a.FromY = b.ty;
  }
  // Every round of fighting over a town lowers its damage figure; the
  // rules have it so.
  HexRec& h = Hex[b.tx][b.ty];
  if (b.round > 1 && h.Pop > 0) h.Damage = static_cast<Short>(Int(h.Damage * 0.85));
  return true;
}

}  // namespace

void doAttack() {
  if (UI.AttackerCount < 1) return;
  if (!ValidHex(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY))) return;

  BattleState& b = TheBattle;
  b = BattleState{};
  b.landing = UI.Order.LandingOrder == 1;
  b.tx = static_cast<int>(UI.OrdX);
  b.ty = static_cast<int>(UI.OrdY);
  b.shown = !(ComputerToMove() && Game.ShowAIMoves == 0);
  b.delay = b.shown ? 50 : 0;
  ZeroBattleTallies();
  OpenBattleWindow(b.shown);

  Rnd();  // one draw is thrown away before every battle
  PrepareBattle();
  AddBattleLine("Initiating Battle", b.delay);

  b.round = 0;
  while (b.round <= b.roundLimit && b.stackSize > 0) {
    b.round += 1;
    AddBattleLine("", b.delay);
    AddBattleLine("______________________________Battle Round " + Str(b.round), b.delay);
    AddBattleLine("", b.delay);
    b.engagements = 0;
    // The pass runs to the count of the round's start: entries behind a
    // shrunken list still act with what they hold.
    const int countAtStart = static_cast<int>(UI.AttackerCount);
    for (int pass = 1; pass <= countAtStart && pass <= kAttackerCap; ++pass) {
      Engagement e;
      if (!StartTurn(e, pass)) continue;
      ChooseTarget(e);
      DecideKind(e);
      if (b.round == 1)
        AddNews(static_cast<int>(Hex[b.tx][b.ty].Owner), 0, kNewsMapMark, "", b.tx, b.ty,
                e.bombarding ? kMarkBombardment : e.direction);
      if (e.kind == 0 || e.target == 0) continue;

      const UnitRec& a = Unit[e.attacker];
      const UnitRec& t = Unit[e.target];
      if (e.bombarding) {
        AddBattleLine("_____________" + a.Name + " Bombards " + t.Name, b.delay);
      } else {
        AddBattleLine("_____________" + a.Name + " Engages " + t.Name, b.delay);
        b.engagements += 1;
      }
      AddBattleLine("", 0);
      AddBattleLine(KindTitle(e.kind), b.delay);

      WorkFigures(e);
      ApplyModifiers(e);
      LogEngagement(e);
      Fire(e);
      if (Aftermath(e, pass)) break;
    }
  }

  LogTallies();
  CloseBattleWindow(b.shown);
}

bool GunsInSlotReachTarget(int slot) {
  if (!ValidHex(UI.SelX, UI.SelY) || slot < 1 || slot > kStackSlots) return false;
  const long u = Hex[UI.SelX][UI.SelY].Unit[slot];
  if (!ValidUnit(static_cast<int>(u))) return false;
  const UnitRec& unit = Unit[u];
  const int d = Distance(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY), static_cast<int>(UI.OrdX),
                         static_cast<int>(UI.OrdY));
  if (unit.Theater == kSeaTheater) {
    return AttrOf(unit.InfType, kArtilleryRange) >= d;
  }
  if (!ValidType(static_cast<int>(unit.ArtType)) || unit.ArtQty <= 0) return false;
  return Type[unit.ArtType].Attr[kArtilleryRange] >= d;
}

bool GunsReachTarget() { return GunsInSlotReachTarget(static_cast<int>(UI.SelSlot)); }

}  // namespace mf
