#include "control/computer_game.h"

#include <algorithm>

#include "control/turn_cycle.h"
#include "model/arith.h"
#include "model/bounds.h"

namespace mf {
namespace {

void EveryRegimeComputerRun() {
  for (int r = 1; r <= LastRegime(); ++r) Regime[r].AI = 1;
}

}  // namespace

bool StartComputerGame(std::string* why) {
  if (EV(701) == 1) {
    *why = "The AI is not allowed to play in this scenario.";
    return false;
  }
  if (LastRegime() == 0) {
    *why = "the scenario has no regimes";
    return false;
  }
  EveryRegimeComputerRun();
  Game.FogOfWar = 0;
  Game.FogOfExploration = 0;
  Game.PBEM = 0;
  Game.UsePasswords = 0;
  Game.SpareFlag = kFalse;
  UI.EditMode = 0;
  UI.ShowEditorPanel = false;
  UI.MapControlsShown = false;
  return true;
}

bool PlayComputerRegimeTurn() {
  if (Game.Turn == 0) {
    // The Start Game dialog's start: the driver begins turn 1 with regime 1.
    if (Game.CurRegime != 0 || LastRegime() == 0) return false;
    NextTurn();
    return Game.Turn > 0;
  }
  const Long turn = Game.Turn, regime = Game.CurRegime;
  TimerTick();
  if (Game.Turn == 0) return false;
  if (Game.Turn == turn && Game.CurRegime == regime) {
    // The timer leaves a person's turn alone: a campaign's next scenario
    // gives regime 1 back to a player. The computer takes it over.
    EveryRegimeComputerRun();
    Game.FogOfWar = 0;
    pubendturn();
  }
  return Game.Turn > 0;
}

bool RoundComplete() { return Game.Turn > 0 && Game.CurRegime == LastRegime(); }

RegimeHoldings HoldingsOf(int regime) {
  RegimeHoldings h;
  if (!ValidRegime(regime)) return h;
  for (int x = 1; x <= Game.MapW && x <= kMapCap; ++x)
    for (int y = 1; y <= Game.MapH && y <= kMapCap; ++y)
      if (Hex[x][y].Owner == regime && Hex[x][y].Pop > 0) ++h.towns;
  for (int u = 1; u <= kUnitCap; ++u)
    if (Unit[u].Regime == regime && Unit[u].Shq == 0 && Unit[u].Thq == 0) ++h.formations;
  h.pp = Regime[regime].PP;
  return h;
}

std::string RoundLine() {
  std::string line = "Turn " + NumText(Game.Turn);
  for (int r = 1; r <= LastRegime(); ++r) {
    const RegimeHoldings h = HoldingsOf(r);
    line += " | " + Regime[r].Name + ": towns " + NumText(h.towns) + ", formations " + NumText(h.formations) +
            ", pp " + NumText(h.pp);
  }
  return line;
}

}  // namespace mf
