#include "engine/events.h"

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include "engine/event_dialog.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/counter_pic.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"
#include "orders/new_units.h"
#include "platform/platform.h"
#include "platform/text_case.h"

namespace mf {
namespace {

// A regime named by event data: one of the scenario's regimes, else 0.
int RegimeOf(long r) {
  const int last = LastRegime();
  return r >= 1 && r <= last ? static_cast<int>(r) : 0;
}

bool ValidBookVar(long b) { return b >= 1 && b <= kBookVarCap; }

void RaiseBookVar(long b, long by) {
  if (ValidBookVar(b)) Game.BookVar[b] = Clamp32(static_cast<std::int64_t>(Game.BookVar[b]) + by);
}



// ---- Conditions -------------------------------------------------------------

// The relation of the event's regime (Event.ShowReg1) towards `other`, for
// the war and peace tests; false when either regime is not in the game.
bool PairOf(const EventRec& ev, long other, const DipRec** dip) {
  const int r = RegimeOf(ev.ShowReg1);
  const int o = RegimeOf(other);
  if (r == 0 || o == 0) return false;
  *dip = &Dip[r][o];
  return true;
}

// "IFWARWITH": the pair is at war; with DIPLASTTURN a fresh war, declared
// last turn or this one. A LastTurn of 0 means the relation never changed,
// and that counts as fresh too.
bool WarTestPasses(const EventRec& ev) {
  if (ev.IfWar <= 0) return true;
  const DipRec* dip = nullptr;
  if (!PairOf(ev, ev.IfWar, &dip)) return false;
  if (ev.DipLastTurn <= 0) return dip->Relation == 0;
  if (dip->Relation != 0) return false;
  if (Game.Turn == 1) return false;
  return dip->LastTurn >= Game.Turn - 1 || dip->LastTurn == 0;
}

// "IFPEACEWITH": the same for peace, except that here the value that stands
// for a relation never changed is 1, not 0.
bool PeaceTestPasses(const EventRec& ev) {
  if (ev.IfPeace <= 0) return true;
  const DipRec* dip = nullptr;
  if (!PairOf(ev, ev.IfPeace, &dip)) return false;
  if (ev.DipLastTurn <= 0) return dip->Relation == 1;
  if (dip->Relation != 1) return false;
  if (Game.Turn == 1) return false;
  return dip->LastTurn >= Game.Turn - 1 || dip->LastTurn == 1;
}

bool ComputerTestPasses(const EventRec& ev) {
  if (ev.IfAI <= 0) return true;
  return RunByComputer(RegimeOf(ev.IfAI));
}

bool BookTestPasses(const EventRec& ev) {
  if (ev.BookVar <= 0) return true;
  const Long value = ValidBookVar(ev.BookVar) ? Game.BookVar[ev.BookVar] : 0;
  if (ev.BookMin > 0 && value < ev.BookMin) return false;
  if (ev.BookMax > 0 && value > ev.BookMax) return false;
  return true;
}

bool TurnTestPasses(const EventRec& ev) {
  if (ev.TurnMin > 0 && Game.Turn < ev.TurnMin) return false;
  if (ev.TurnMax > 0 && Game.Turn > ev.TurnMax) return false;
  return true;
}

bool WinnerTestPasses(const EventRec& ev) {
  if (ev.Winner > 0 && Game.GameWinner != ev.Winner) return false;
  if (ev.NotWinner > 0 && Game.GameWinner == ev.NotWinner) return false;
  return true;
}

bool OnceTestPasses(const EventRec& ev) { return ev.Once <= 0 || ev.FiredTurn == 0; }

// "X,Y=OWNER": a hex off the map has no owner to compare, and fails.
bool HexTestPasses(const EventRec& ev) {
  if (ev.HexX <= 0 || ev.HexY <= 0) return true;
  if (!ValidHex(ev.HexX, ev.HexY)) return false;
  return Hex[ev.HexX][ev.HexY].Owner == ev.HexOwner;
}

// "RANDOM100": one draw, taken whenever the event asks for chance at all,
// so that the draws of a turn do not depend on the other conditions.
bool RandomTestPasses(const EventRec& ev) {
  if (ev.Random <= 0) return true;
  return Int(static_cast<double>(Rnd()) * 100.0) <= ev.Random;
}

bool ConditionsHold(const EventRec& ev) {
  bool pass = WarTestPasses(ev);
  pass = PeaceTestPasses(ev) && pass;
  pass = ComputerTestPasses(ev) && pass;
  pass = BookTestPasses(ev) && pass;
  pass = TurnTestPasses(ev) && pass;
  pass = WinnerTestPasses(ev) && pass;
  pass = OnceTestPasses(ev) && pass;
  pass = HexTestPasses(ev) && pass;
  pass = RandomTestPasses(ev) && pass;
  return pass;
}

// ---- Type 1: a formation appears --------------------------------------------

bool SlotFree(int x, int y, int slot) { return Hex[x][y].Unit[slot] == 0; }

bool Rough(int x, int y) { return Hex[x][y].Land == kSea || Hex[x][y].Land == kMountain; }

// No formation of another regime stands in the hex, so that a newcomer
// never shares a stack with a foreign one.
bool NoStranger(int x, int y, int r) {
  const int u = Hex[x][y].Unit[1];
  return u == 0 || !ValidUnit(u) || Unit[u].Regime == r;
}

// Where the formation of a type 1 event stands: its own hex when the
// regime holds it and there is room, else the first neighbour with room;
// in foreign or neutral land only with "OVERRIDE ENM HEX", and then the hex
// it takes becomes the regime's. False when it finds no place.
bool PlaceOfNewFormation(const EventRec& ev, int r, int* px, int* py) {
  const int x = static_cast<int>(ev.Data[1]);
  const int y = static_cast<int>(ev.Data[2]);
  if (!ValidHex(x, y)) return false;
  if (Hex[x][y].Owner == r) {
    if (SlotFree(x, y, kStackSlots)) {
      *px = x;
      *py = y;
      return true;
    }
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(x, y, d);
      if (!ValidHex(n.x, n.y) || Rough(n.x, n.y)) continue;
      if (SlotFree(n.x, n.y, kStackSlots) && NoStranger(n.x, n.y, r)) {
        *px = n.x;
        *py = n.y;
        return true;
      }
    }
    return false;
  }
  if (ev.Data[14] != 1) return false;
  int tx = 0, ty = 0;
  if (SlotFree(x, y, 1)) {
    tx = x;
    ty = y;
  } else {
    for (int d = 1; d <= kHexSides && tx == 0; ++d) {
      const HexXY n = Neighbour(x, y, d);
      if (!ValidHex(n.x, n.y) || Rough(n.x, n.y)) continue;
      if (SlotFree(n.x, n.y, 1)) {
        tx = n.x;
        ty = n.y;
      }
    }
  }
  if (tx == 0) return false;
  Hex[tx][ty].Owner = r;
  if (Hex[tx][ty].ProdSHQ != 0) Hex[tx][ty].ProdSHQ = 0;
  *px = tx;
  *py = ty;
  return true;
}

// The THQ of the regime nearest the place by the sum of the two coordinate
// differences; of equals the first in map order.
int NearestThq(int r, int px, int py) {
  int best = 0;
  long bestScore = std::numeric_limits<long>::min();
  const int w = MapW();
  const int h = MapH();
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      for (int s = 1; s <= kStackSlots; ++s) {
        const int u = Hex[x][y].Unit[s];
        if (!ValidUnit(u) || Unit[u].Regime != r || Unit[u].Thq != 1) continue;
        const long score = 100 - (std::labs(x - px) + std::labs(y - py));
        if (score > bestScore) {
          bestScore = score;
          best = u;
        }
      }
    }
  }
  return best;
}

// The officer of an event's formation as the scenario describes him.
void ShapeOfficer(const EventRec& ev, int u) {
  const long o = Unit[u].Officer;
  if (o < 1 || o > kOfficerCap) return;
  OfficerRec& of = Officer[o];
  const std::string& name = ev.DataText[2];
  if (Lower(name) != "random" && Len(name) > 1) of.Name = name;
  of.Land = ev.Data[8];
  of.Air = ev.Data[9];
  of.Sea = ev.Data[10];
  of.Retreat = ev.Data[11];
  of.Fame = ev.Data[12];
  if (ev.Data[7] > 0) of.Pic = ev.Data[7];
}

// False when the formation could not be made; the event then stays unfired.
bool MakeEventUnit(const EventRec& ev) {
  const int r = RegimeOf(ev.Data[13]);
  if (r == 0) return false;
  int x = 0, y = 0;
  if (!PlaceOfNewFormation(ev, r, &x, &y)) return false;

  // The new-unit routine raises a formation for the regime to move at the
  // selected hex; the event borrows both for the time of the creation.
  const Long mover = Game.CurRegime;
  Game.CurRegime = r;
  UI.SelX = x;
  UI.SelY = y;
  const int u = NewFormation(static_cast<int>(ev.Data[4]));
  Game.CurRegime = mover;
  if (u == 0) return false;

  UnitRec& unit = Unit[u];
  unit.Readiness = ev.Data[5];
  unit.Experience = ev.Data[6];
  if (!ev.DataText[1].empty()) unit.Name = ev.DataText[1];
  ShapeOfficer(ev, u);
  unit.Regime = r;
  unit.InfType = ev.Data[20];
  unit.InfQty = ev.Data[21];
  unit.MobType = ev.Data[22];
  unit.MobQty = ev.Data[23];
  unit.ArtType = ev.Data[24];
  unit.ArtQty = ev.Data[25];
  unit.ArmType = ev.Data[26];
  unit.ArmQty = ev.Data[27];
  unit.Boss = NearestThq(r, x, y);
  Counter(u);
  UI.PanelDirty = true;
  RequestRedraw(2);
  return true;
}

// ---- The effects --------------------------------------------------------------

// Carries out the effect of event e; false only when a formation found no place.
bool TakeEffect(int e) {
  const EventRec& ev = Event[e];
  switch (ev.Type) {
    case kEventMakeUnit:
      return MakeEventUnit(ev);
    case kEventPoints: {
      const int r = RegimeOf(ev.Data[1]);
      if (ev.Data[1] > 0 && r != 0) {
        const std::int64_t pp = static_cast<std::int64_t>(Regime[r].PP) + ev.Data[2];
        Regime[r].PP = pp < 0 ? 0 : Clamp32(pp);
        UI.PanelDirty = true;
      }
      return true;
    }
    case kEventBookVars:
      if (ev.Data[1] > 0) RaiseBookVar(ev.Data[1], ev.Data[2]);
      if (ev.Data[3] > 0) RaiseBookVar(ev.Data[3], ev.Data[4]);
      if (ev.Data[5] > 0 && ValidBookVar(ev.Data[5])) Game.BookVar[ev.Data[5]] = ev.Data[6];
      if (ev.Data[7] > 0 && ValidBookVar(ev.Data[7])) Game.BookVar[ev.Data[7]] = ev.Data[8];
      return true;
    case kEventChoice: {
      // The computer answers at once; a person answers in the dialog.
      if (ev.ShowReg1 > 0 && RunByComputer(RegimeOf(ev.ShowReg1))) ApplyChoice(e, static_cast<int>(ev.Data[30]));
      return true;
    }
    case kEventDiplomacy: {
      const int a = RegimeOf(ev.Data[1]);
      const int b = RegimeOf(ev.Data[2]);
      if (ev.Data[1] > 0 && ev.Data[2] > 0 && a != 0 && b != 0) {
        for (DipRec* dip : {&Dip[a][b], &Dip[b][a]}) {
          dip->Relation = ev.Data[3];
          dip->LastTurn = Game.Turn;
          dip->Cost = ev.Data[4];
        }
      }
      return true;
    }
    case kEventGameWinner:
      if (ev.Data[1] > 0) Game.GameWinner = ev.Data[1];
      return true;
    default:
      // Type 0 is the story alone; type 5 acts when the event is shown.
      return true;
  }
}

}  // namespace

void RunEvents() {
  const int last = Held(Game.EventCount, kEventCap);
  for (int e = 1; e <= last; ++e) {
    if (Len(Event[e].Story) <= 1) continue;
    if (!ConditionsHold(Event[e])) continue;
    if (!TakeEffect(e)) continue;
    Event[e].FiredTurn = Game.Turn;
  }
}

void ApplyChoice(int event, int choice) {
  if (event < 1 || event > kEventCap) return;
  if (choice == 0) choice = 1;
  if (choice < 1 || choice > EventDialog::kChoices) return;
  const EventRec& ev = Event[event];
  if (ev.Data[choice] > 0) RaiseBookVar(ev.Data[choice], ev.Data[choice + 5]);
  if (ev.Data[choice + 10] > 0) RaiseBookVar(ev.Data[choice + 10], ev.Data[choice + 15]);
}

void DoShowEvent(int event) {
  if (event < 1 || event > kEventCap) return;
  EventDialog dialog;
  dialog.Prepare(event);
  Plat().RunDialog(dialog);
  // The campaign goes on with the file the event names; the timer loads it.
  if (Event[event].Type == kEventLoadFile) UI.PendingFile = Event[event].DataText[1];
}

}  // namespace mf
