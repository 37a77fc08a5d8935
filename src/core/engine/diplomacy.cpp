#include "engine/diplomacy.h"

#include <cstdint>
#include <limits>

#include "engine/diplomatics_dialog.h"
#include "model/arith.h"
#include "model/game_state.h"

namespace mf {
namespace {

// The next price after a change. A price never wraps round into a cheap or
// negative one, however often a pair changes sides.
Long Doubled(Long cost) {
  const std::int64_t twice = static_cast<std::int64_t>(cost) * 2;
  if (twice > std::numeric_limits<Long>::max()) return std::numeric_limits<Long>::max();
  if (twice < std::numeric_limits<Long>::min()) return std::numeric_limits<Long>::min();
  return static_cast<Long>(twice);
}

// The regime a dialog opened now speaks for: the one whose turn it is, or in
// the editor the owner of the selected hex.
int Speaker(bool editing) {
  if (!editing) return static_cast<int>(Game.CurRegime);
  if (!ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY))) return 0;
  return static_cast<int>(Hex[UI.SelX][UI.SelY].Owner);
}

}  // namespace

bool AtPeace(int a, int b) {
  if (!ValidRegime(a) || !ValidRegime(b)) return false;
  return Dip[a][b].Relation == 1;
}

void DipChangeRelation(int speaker, int other) {
  if (!ValidRegime(speaker) || !ValidRegime(other) || speaker == other) return;
  DipRec& mine = Dip[speaker][other];
  DipRec& theirs = Dip[other][speaker];
  if (mine.Relation == 1) {
    Plat().ShowMessage("WAR IS DECLARED !!! You are now at WAR with " + Regime[other].Name, "");
    mine.Relation = 0;
    theirs.Relation = 0;
  } else {
    Plat().ShowMessage("PEACE IS MADE!!! You are now at peace with " + Regime[other].Name, "");
    mine.Relation = 1;
    theirs.Relation = 1;
  }
  Regime[speaker].PP = AddSat(Regime[speaker].PP, -static_cast<std::int64_t>(mine.Cost));
  mine.Cost = Doubled(mine.Cost);
  theirs.Cost = Doubled(theirs.Cost);
  mine.LastTurn = Game.Turn;
  theirs.LastTurn = Game.Turn;
  // The points shown beside the map have changed.
  UI.PanelDirty = true;
}

void DipEditPair(int speaker, int other) {
  if (!ValidRegime(speaker) || !ValidRegime(other) || speaker == other) return;
  const Long relation =
      ValLong(Plat().InputPrompt("Current relation 0=war, 1=peace ?", "", NumText(Dip[speaker][other].Relation)));
  const Long cost = ValLong(Plat().InputPrompt("Change Cost in PP?", "", NumText(Dip[speaker][other].Cost)));
  Dip[speaker][other].Relation = relation;
  Dip[other][speaker].Relation = relation;
  Dip[speaker][other].Cost = cost;
  Dip[other][speaker].Cost = cost;
}

void OpenDiplomaticsDialog() {
  const bool editing = UI.EditMode == 1;
  const int speaker = Speaker(editing);
  if (!ValidRegime(speaker)) return;
  DiplomaticsDialog dialog;
  dialog.Prepare(speaker, editing);
  Plat().RunDialog(dialog);
  UI.PanelDirty = true;
}

}  // namespace mf
