#include "engine/research.h"

#include "engine/research_dialog.h"
#include "model/arith.h"
#include "model/game_state.h"

namespace mf {
namespace {

// A need that names a field the regime does not hold.
bool NeedMissing(int regime, Long need) {
  return ValidResearchField(need) && !FieldKnown(regime, static_cast<int>(need));
}

// The formation selected on the map, 0 for none.
int SelectedUnit() {
  if (!ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY))) return 0;
  if (UI.SelSlot < 1 || UI.SelSlot > kStackSlots) return 0;
  return static_cast<int>(Hex[UI.SelX][UI.SelY].Unit[UI.SelSlot]);
}

}  // namespace

bool FieldKnown(int regime, int field) {
  return ValidRegime(regime) && ValidResearchField(field) && Regime[regime].Research[field] > 0;
}

bool FieldNeedMissing(int regime, int field) {
  if (!ValidResearchField(field)) return false;
  return NeedMissing(regime, Research[field].Need1) || NeedMissing(regime, Research[field].Need2);
}

bool TypeResearchKnown(int regime, int type) {
  if (!ValidType(type)) return false;
  const Long field = Type[type].Research;
  if (field == 0) return true;
  return ValidResearchField(field) && FieldKnown(regime, static_cast<int>(field));
}

std::string ResearchOfferLine(int regime, int field) {
  if (!ValidResearchField(field)) return std::string();
  const ResearchRec& f = Research[field];
  return (FieldNeedMissing(regime, field) ? "***" : "") + f.Name + " (" + NumText(f.Cost) + ")";
}

bool BuyResearch(int regime, int field, bool editing) {
  // Without a selection the button does nothing; nor without a regime to
  // buy for (the editor opened on no formation).
  if (!ValidResearchField(field) || !ValidRegime(regime)) return false;
  if (FieldKnown(regime, field)) {
    Plat().ShowMessage("You already have this research field", "");
    return false;
  }
  const ResearchRec& f = Research[field];
  // The editor hands out fields for nothing and in any order.
  if (!editing) {
    if (Regime[regime].PP < f.Cost) {
      Plat().ShowMessage("Not enough PP", "");
      return false;
    }
    if (NeedMissing(regime, f.Need1)) {
      Plat().ShowMessage("You dont have Resneed1", "");
      return false;
    }
    if (NeedMissing(regime, f.Need2)) {
      Plat().ShowMessage("You dont have Resneed2", "");
      return false;
    }
    Regime[regime].PP = AddSat(Regime[regime].PP, -static_cast<std::int64_t>(f.Cost));
  }
  Regime[regime].Research[field] = 1;
  Plat().ShowMessage("You gained a research field", "");
  // The points beside the map are shown afresh.
  UI.PanelDirty = true;
  return true;
}

void OpenResearchDialog() {
  const bool editing = UI.EditMode == 1;
  if (editing) {
    const int u = SelectedUnit();
    if (u > 0 && ValidRegime(static_cast<int>(Unit[u].Regime))) Game.CurRegime = Unit[u].Regime;
  } else if (!ValidRegime(static_cast<int>(Game.CurRegime))) {
    return;
  }
  ResearchDialog dialog;
  dialog.Prepare(static_cast<int>(Game.CurRegime), editing);
  Plat().RunDialog(dialog);
  if (editing) Game.CurRegime = 0;
  UI.PanelDirty = true;
}

}  // namespace mf
