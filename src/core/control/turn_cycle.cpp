#include "control/turn_cycle.h"

#include "view/draw_hex.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "ai/ai_turn.h"
#include "control/new_turn_dialog.h"
#include "control/scenario_flow.h"
#include "engine/events.h"
#include "engine/news.h"
#include "engine/production.h"
#include "engine/recovery.h"
#include "engine/start_game_dialog.h"
#include "engine/supply.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/reset.h"
#include "model/type_lookup.h"
#include "orders/flood.h"
#include "orders/movement.h"
#include "orders/new_units.h"
#include "orders/sight.h"
#include "platform/paths.h"
#include "platform/platform.h"
#include "platform/text_case.h"

namespace mf {
namespace {

TurnStepWatcher& Watcher() {
  static TurnStepWatcher watcher;
  return watcher;
}

TurnEndWatcher& EndWatcher() {
  static TurnEndWatcher watcher;
  return watcher;
}

void Step(const std::string& name) {
  if (Watcher()) Watcher()(name);
}

void Step(const char* name, int a, int b = -1, int c = -1) {
  if (!Watcher()) return;
  std::string text = std::string(name) + " " + std::to_string(a);
  if (b >= 0) text += "," + std::to_string(b);
  if (c >= 0) text += "," + std::to_string(c);
  Watcher()(text);
}

// The busy pointer tells the player to wait, and tells the timer that the
// driver is running so that it leaves computer turns alone.
void SetBusyPointer(bool busy) {
  UI.BusyPointer = busy;
  Plat().SetBusy(busy);
}

// The events that fired this game turn and concern the current regime, in
// event number order.
void ShowEventsOfThisTurn() {
  const int last = Held(Game.EventCount, kEventCap);
  for (int e = 1; e <= last; ++e) {
    const EventRec& ev = Event[e];
    if (ev.FiredTurn != Game.Turn) continue;
    if (ev.ShowAll > 0 || ev.ShowReg1 == Game.CurRegime || ev.ShowReg2 == Game.CurRegime) {
      Step("DoShowEvent", e);
      DoShowEvent(e);
    }
  }
}

// The regime that has just finished starts its next report afresh.
void ClearReportOf(int r) {
  for (int n = 1; n <= kNewsCap; ++n) News[r][n] = NewsRec{};
  for (int c = 1; c <= kLossClasses; ++c) {
    Regime[r].Losses[c] = 0;
    Regime[r].Kills[c] = 0;
  }
}

// Step 2 of the driver: the regime's towns heal and are counted for victory.
void CountPopulation() {
  const int r = CurrentRegime();
  std::int64_t sum = 0;
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      HexRec& h = Hex[x][y];
      if (h.Owner != r || h.Pop <= 0) continue;
      sum += h.Pop;
      if (h.Damage > 0) {
        const Long healed = h.Damage - EV(233);
        h.Damage = static_cast<Short>(healed < 0 ? 0 : healed);
      }
    }
  }
  Game.CurPop = static_cast<Long>(std::min<std::int64_t>(sum, INT32_MAX));
  if (Game.GameWinner == 0 && Game.CurPop >= Game.GameEndPop) {
    Game.GameWinner = Game.CurRegime;
    Game.WinnerPop = Game.CurPop;
  }
}

// Step 6: the marks of this regime's news go on the map.
void PlaceNewsMarks() {
  for (int x = 1; x <= MapW(); ++x)
    for (int y = 1; y <= MapH(); ++y)
      for (int m = 1; m <= kSightRegimes; ++m) Hex[x][y].NewsMark[m] = 0;
  const int r = CurrentRegime();
  for (int n = 1; n <= kNewsCap; ++n) {
    const NewsRec& line = News[r][n];
    if (line.Type < 2 || line.Type > 99 || line.X <= 0 || line.Y <= 0) continue;
    if (!ValidHex(line.X, line.Y) || line.Mark < 1 || line.Mark > kSightRegimes) continue;
    Hex[line.X][line.Y].NewsMark[line.Mark] = 1;
  }
}

// Step 7: every unit forgets where it came from; dead units lose what the
// computer player remembered of them; every formation of every regime waits
// for the supply pass to give it a new percentage.
void SweepUnits() {
  const int last = LastUnit();
  for (int u = 1; u <= last; ++u) {
    UnitRec& unit = Unit[u];
    unit.FromX = 0;
    unit.FromY = 0;
    if (unit.Regime == 0) {
      unit.Front = unit.AIX = unit.AIY = 0;
      unit.InfType = unit.InfQty = unit.MobType = unit.MobQty = 0;
      unit.ArtType = unit.ArtQty = unit.ArmType = unit.ArmQty = 0;
      unit.Boss = 0;
    } else if (unit.Shq == 0) {
      unit.SupplyPct = 0;
    }
  }
}

// Step 10: one hex loop for the regime's formations and then its town.
void RecoveryAndTowns() {
  const int r = CurrentRegime();
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      for (int slot = 1; slot <= kStackSlots; ++slot) {
        const int u = Hex[x][y].Unit[slot];
        if (!ValidUnit(u) || r == 0 || Unit[u].Regime != r) continue;
        UI.SelX = x;
        UI.SelY = y;
        Step("RecoveryPass", x, y, slot);
        RecoveryPass(x, y, slot);
      }
      if (r != 0 && Hex[x][y].Owner == r && Hex[x][y].Pop > 0) {
        Step("TownOutput", x, y);
        TownOutput(x, y);
      }
    }
  }
}


// Step 2 of EndCurrentTurn: formations with nobody left in them are disbanded,
// whoever they belong to. An SHQ stays: it is a headquarters, not troops.
void DisbandEmptyUnits() {
  for (int x = 1; x <= MapW(); ++x) {
    for (int y = 1; y <= MapH(); ++y) {
      Long* stack = Hex[x][y].Unit;
      for (int slot = 1; slot <= kStackSlots; ++slot) {
        const int u = stack[slot];
        if (!ValidUnit(u) || Unit[u].Shq != 0 || !NoTroops(Unit[u])) continue;
        const int o = Unit[u].Officer;
        if (o >= 1 && o <= kOfficerCap) Officer[o].InPool = 1;
        Unit[u].Officer = 0;
        // The THQ's badge is its regime's: free it while the unit still has one.
        if (Unit[u].Thq != 0) {
          Step("DropThq", u);
          DropThq(u);
        }
        Unit[u].Regime = 0;
        for (int k = slot; k < kStackSlots; ++k) stack[k] = stack[k + 1];
        stack[kStackSlots] = 0;
        // The unit that moved down into this slot is looked at as well.
        --slot;
      }
    }
  }
  for (int u = 1; u <= kUnitCap; ++u) {
    UnitRec& unit = Unit[u];
    if (unit.Regime != 0) continue;
    unit.InfType = unit.InfQty = unit.MobType = unit.MobQty = 0;
    unit.ArtType = unit.ArtQty = unit.ArmType = unit.ArmQty = 0;
    unit.Cargo = 0;
  }
}

// The next scenario of a campaign, named by an event: the player is regime 1
// against the computer, under fog of war.
void ChainScenario() {
  const std::string name = UI.PendingFile;
  // Taken now, so that a file that cannot be read is not tried again every tick.
  UI.PendingFile.clear();
  std::string path = ResolveGamePath("\\scenarios\\" + name);
  std::error_code ec;
  if (!std::filesystem::exists(path, ec) && std::filesystem::path(name).extension().empty()) {
    for (const char* ext : {".mf2", ".mf1"}) {
      const std::string withExt = ResolveGamePath("\\scenarios\\" + name + ext);
      if (std::filesystem::exists(withExt, ec)) {
        path = withExt;
        break;
      }
    }
  }
  SetBusyPointer(true);
  ClearForLoad();
  if (!ReadFile(path)) {
    EndGameToEmptyMap();
    return;
  }
  for (int r = 1; r <= LastRegime(); ++r) Regime[r].AI = 1;
  Regime[1].AI = 0;
  if (EV(705) == 0 || EV(705) == 1) Game.FogOfExploration = EV(705);
  Game.FogOfWar = 1;
  UI.EditMode = 0;
  UI.MapControlsShown = false;
  LayOutMapWindow();
  NextTurn();
}

}  // namespace

void SetTurnStepWatcher(TurnStepWatcher watcher) { Watcher() = std::move(watcher); }

void SetTurnEndWatcher(TurnEndWatcher watcher) { EndWatcher() = std::move(watcher); }

void NextTurn() {
  if (EndWatcher()) EndWatcher()();
  UI.PendingFile.clear();
  UI.ShowEditorPanel = false;

  // 1. Advance to the next regime, and after the last to the next game turn.
  // A resumed play-by-mail game is already at the regime whose turn it is.
  if (!UI.ResumeTurn) {
    if (Game.CurRegime == 0) {
      Game.Turn = 1;
      Step("RunEvents");
      RunEvents();
    }
    if (Game.CurRegime > 0 && ValidRegime(Game.CurRegime)) ClearReportOf(Game.CurRegime);
    Game.CurRegime = Game.CurRegime + 1;
    if (Game.CurRegime > LastRegime()) {
      Game.Turn = Game.Turn + 1;
      Step("RunEvents");
      RunEvents();
      Game.CurRegime = 1;
    }
  }
  const int r = CurrentRegime();

  // 2. Population and victory.
  CountPopulation();

  // 3.
  UI.ResumeTurn = false;
  Plat().YieldEvents();

  const bool human = !RunByComputer(r);
  if (human) {
    // 4. A human first reads his report; nothing of his turn is done before.
    UI.MapShown = false;
    UI.RegimeLabel = Regime[r].Name;
    UI.TurnLabel = NumText(Game.Turn);
    // Nothing of the last player's turn stays on screen behind the report.
    UI.HelpText.clear();
    UI.PanelDirty = true;
    for (int u = 1; u <= kUnitCap; ++u) Unit[u].SupplyDemand = 0;
    if (EV(704) == 1) ShowEventsOfThisTurn();
    // An event named the next scenario of the campaign: the timer loads it.
    if (UI.PendingFile.size() > 1) return;
    Step("RunNewTurnDialog");
    RunNewTurnDialog();
    if (UI.ExitAfterTurnForm) {
      UI.ExitAfterTurnForm = false;
      EndGameToEmptyMap();
      return;
    }
    if (EV(704) == 0) ShowEventsOfThisTurn();
  } else {
    // 5.
    UI.RegimeLabel = Regime[r].Name + " (AI)";
    UI.TurnLabel = NumText(Game.Turn);
  }

  // 6. to 12. The turn-start work of the regime.
  PlaceNewsMarks();
  SweepUnits();
  Step("HexCapture");
  HexCapture();
  Step("ServeSupply");
  ServeSupply();
  RecoveryAndTowns();
  Step("PoolTransport");
  PoolTransport();
  Step("ClearFlood");
  ClearFlood();
  UI.PrevSelX = UI.SelX;
  UI.PrevSelY = UI.SelY;

  if (!human) {
    // 13. The computer plays its whole turn here; the next timer tick ends it.
    UI.PanelDirty = true;
    Step("SightPass");
    SightPass();
    if (Game.FogOfWar == 0) Game.ShowAIMoves = kTrue;
    if (Game.FogOfWar == 1) Game.ShowAIMoves = kFalse;
    // Without fog the players watch the computer's moves on the map; with
    // fog they see nothing of its turn. Either way the map takes no clicks.
    UI.MapShown = Game.ShowAIMoves != kFalse;
    SetBusyPointer(true);
    Step("AITurn");
    AITurn();
    SetBusyPointer(false);
    return;
  }

  // 14. The human gets his map.
  UI.Order = OrderFlags{};
  UI.MapShown = true;
  UI.PanelsShown = true;
  UI.MapControlsShown = true;
  UI.ShowScrollX = UI.ScrollMaxX > 0;
  UI.ShowScrollY = UI.ScrollMaxY > 0;
  UI.HelpText = Game.PBEM == 1 ? "Your turn " + NumText(Game.Turn) + " has started in this Play by Email Game."
                               : "Your turn " + NumText(Game.Turn) + " has started.";
  Step("SightPass");
  SightPass();
  RequestRedraw(2);
  UI.PanelDirty = true;
  if (ValidHex(UI.SelX, UI.SelY)) CenterMap(UI.SelX, UI.SelY);
  SetBusyPointer(false);
}

void EndCurrentTurn() {
  // 1. The map is put away while the turn changes hands.
  UI.PanelDirty = true;
  UI.MapControlsShown = false;
  UI.ShowScrollX = false;
  UI.ShowScrollY = false;
  SetBusyPointer(true);

  // 2. and 3.
  DisbandEmptyUnits();

  // 4.
  if (UI.SoundOff == 0) Plat().PlaySound(1);

  // 5.
  if (Game.Turn != 0) {
    NextTurn();
  } else {
    SetBusyPointer(false);
  }
}

void EndGameToEmptyMap() {
  ClearGame(true, 0, 0);
  LayOutMapWindow();
  UI.ShowScrollX = false;
  UI.ShowScrollY = false;
  UI.ShowEditorPanel = false;
  UI.MapShown = true;  // the empty map
  RequestRedraw(2);
  UI.WindowTitle.clear();
  UI.RegimeLabel.clear();
  UI.TurnLabel.clear();
  UI.EditMode = 1;
  Game.FogOfWar = 0;
  UI.PanelsShown = false;
  UI.MapControlsShown = false;
  SetBusyPointer(false);
}

bool EndTurnAsks() { return UI.EditMode != 1 && Game.Turn > 0 && !UI.BusyPointer; }

void EndTurnCommand() {
  if (UI.EditMode == 1) {
    Plat().ShowMessage("You are in editing mode", "");
    return;
  }
  // No game, or the driver is still at work on a turn.
  if (!EndTurnAsks()) return;
  if (Plat().AskYesNo("Are you sure you want to end your turn?", "End Turn")) EndCurrentTurn();
}

void SurrenderCommand() {
  if (UI.EditMode == 1 || Game.Turn == 0 || UI.BusyPointer) return;
  int humans = 0;
  for (int r = 1; r <= LastRegime(); ++r)
    if (Regime[r].AI == 0) ++humans;
  if (humans == 1) {
    Plat().ShowMessage("You lost the game. Mercy on your soul and the people you abandoned.", "");
    EndGameToEmptyMap();
    UI.MapControlsShown = false;
    UI.MapShown = false;
    return;
  }
  if (humans < 2) return;
  const int me = CurrentRegime();
  const int kind = humans == 2 ? kNewsSurrender : kNewsResignation;
  for (int r = 1; r <= LastRegime(); ++r)
    if (r != me && Regime[r].AI == 0) AddNews(r, 0, kind, Regime[me].Name + " surrendered.", 0, 0, 0);
  if (humans == 2) {
    Plat().ShowMessage(
        "You lost the game. Mercy on your soul and the people you abandoned. If this is a PBEM game dont forget to "
        "mail.",
        "");
  } else {
    Plat().ShowMessage(
        "You lost the game. Mercy on your soul and the people you abandoned. There are still at least 2 other human "
        "player active so dont forget to mail this file to them if this is a PBEM game.",
        "");
  }
  // The computer takes over the beaten side.
  Regime[me].AI = 1;
  EndCurrentTurn();
}

void StartCommand() {
  // The menu offers start only while no game is in play.
  if (Game.Turn > 0) return;
  Game.FogOfWar = 1;
  StartGameDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  if (!dialog.started) {
    UI.EditMode = 1;
    Game.FogOfWar = 0;
    return;
  }
  BeginFirstTurn();
}

void BeginFirstTurn() {
  UI.EditMode = 0;
  UI.ShowEditorPanel = false;
  UI.MapControlsShown = false;
  SetBusyPointer(true);
  // Game.CurRegime is 0, so the driver begins turn 1 with regime 1.
  NextTurn();
}

void TimerTick() {
  // 1. A scroll bar dragged with the button held is redrawn once it is let go.
  if (UI.ScrollPending != 0 && !Plat().MouseButtonDown()) {
    RequestRedraw(2);
    UI.ScrollPending = 0;
  }
  // 2. A finished computer turn ends here; while the driver runs the pointer
  // is busy and the tick leaves it alone.
  if (Game.Turn > 0 && ComputerToMove() && !UI.BusyPointer) {
    EndCurrentTurn();
  }
  // 3. and 4. An event asked to end the campaign or to go on to its next scenario.
  if (Lower(UI.PendingFile) == "end") {
    UI.PendingFile.clear();
    EndGameToEmptyMap();
    UI.MapControlsShown = false;
    UI.PanelsShown = false;
    UI.MapShown = false;
  } else if (UI.PendingFile.size() >= 2) {
    ChainScenario();
  }
}

}  // namespace mf
