#include "engine/diplomatics_dialog.h"

#include "engine/diplomacy.h"
#include "model/arith.h"
#include "model/game_state.h"
#include "model/sprite_numbers.h"

namespace mf {

void DiplomaticsDialog::Prepare(int who, bool edit) {
  speaker = who;
  editing = edit;
  open = true;
  Refill();
}

void DiplomaticsDialog::Refill() {
  title = (ValidRegime(speaker) ? Regime[speaker].Name : std::string()) + " relations:";
  const Long points = ValidRegime(speaker) ? Regime[speaker].PP : 0;
  for (int place = 0; place < kDipRows; ++place) {
    DiplomaticsRow& row = rows[place];
    row = DiplomaticsRow{};
    const int other = place + 1;
    row.regime = other;
    if (other > Game.RegimeCount || other == speaker || !ValidRegime(speaker)) continue;
    row.shown = true;
    row.hexPicture = sprite::Checked(sprite::kRegimeHexBase + static_cast<long long>(Regime[other].HexSprite));
    const DipRec& pair = Dip[speaker][other];
    const bool peace = pair.Relation == 1;
    row.text = (peace ? "At peace with " : "At war with ") + Regime[other].Name;
    if (editing) {
      // The editor may set any pair, fixed or not.
      row.buttonCaption = "Change Rel and Costs (" + NumText(pair.Relation) + "," + NumText(pair.Cost) + ")";
      row.buttonShown = true;
      row.buttonEnabled = true;
    } else {
      row.buttonCaption = (peace ? "Declare War for " : "Make Peace for ") + NumText(pair.Cost) + " PP";
      row.buttonShown = pair.Cost != kDipFixedCost;
      row.buttonEnabled = row.buttonShown && pair.Cost <= points;
    }
  }
}

bool DiplomaticsDialog::PressRow(int regime, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (regime < 1 || regime > kDipRows || !rows[regime - 1].shown) {
    *why = "there is no row for regime " + std::to_string(regime);
    return false;
  }
  const DiplomaticsRow& row = rows[regime - 1];
  if (!row.buttonShown) {
    *why = "the relation with regime " + std::to_string(regime) + " can never change";
    return false;
  }
  if (!row.buttonEnabled) {
    *why = "\"" + row.buttonCaption + "\" is more than the points there are";
    return false;
  }
  if (editing) {
    DipEditPair(speaker, regime);
  } else {
    DipChangeRelation(speaker, regime);
  }
  Refill();
  return true;
}

bool DiplomaticsDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (action == "row") {
    const std::string t = Trim(value);
    if (t.empty() || t.size() > 3 || t.find_first_not_of("0123456789") != std::string::npos) {
      *why = "row takes a regime number, not \"" + value + "\"";
      return false;
    }
    return PressRow(std::stoi(t), why);
  }
  if (action == "close") {
    CloseButton();
    return true;
  }
  *why = "no action \"" + action + "\" in the Diplomatics dialog (row=R, close)";
  return false;
}

}  // namespace mf
