#include "engine/research_dialog.h"

#include <algorithm>

#include "engine/research.h"
#include "model/arith.h"
#include "model/game_state.h"

namespace mf {
namespace {

const char* const kOutOfRange = "between 1 and resmax plz.. exiting sub";

int IndexIn(const std::vector<int>& fields, int field) {
  const auto it = std::find(fields.begin(), fields.end(), field);
  return it == fields.end() ? -1 : static_cast<int>(it - fields.begin());
}

}  // namespace

void ResearchDialog::Prepare(int who, bool edit) {
  regime = who;
  editing = edit;
  editButtonsShown = edit;
  selected = 0;
  open = true;
  Refill();
}

void ResearchDialog::Refill() {
  knownFields.clear();
  knownRows.clear();
  offerFields.clear();
  offerRows.clear();
  for (int f = 1; f <= kResearchCap; ++f) {
    if (FieldKnown(regime, f)) {
      knownFields.push_back(f);
      knownRows.push_back(Research[f].Name);
    } else if (Research[f].Cost > 0) {
      offerFields.push_back(f);
      offerRows.push_back(ResearchOfferLine(regime, f));
    }
  }
  knownIndex = IndexIn(knownFields, selected);
  offerIndex = IndexIn(offerFields, selected);

  detailText.clear();
  detailName.clear();
  detailNeed1.clear();
  detailNeed2.clear();
  detailNumber.clear();
  costValue.clear();
  textValue.clear();
  if (ValidResearchField(selected)) {
    const ResearchRec& f = Research[selected];
    detailText = f.Text;
    detailName = f.Name + " (" + NumText(f.Cost) + ")";
    if (ValidResearchField(f.Need1)) detailNeed1 = "NEED1: " + Research[f.Need1].Name;
    if (ValidResearchField(f.Need2)) detailNeed2 = "NEED2: " + Research[f.Need2].Name;
    detailNumber = "NR: " + NumText(selected);
    costValue = NumText(f.Cost);
    textValue = f.Text;
  }
  pointsLabel = "(" + NumText(ValidRegime(regime) ? Regime[regime].PP : 0) + "pp available)";
}

bool ResearchDialog::SelectField(int field, std::string* why) {
  if (IndexIn(knownFields, field) < 0 && IndexIn(offerFields, field) < 0) {
    *why = "field " + std::to_string(field) + " is in neither list";
    return false;
  }
  selected = field;
  Refill();
  return true;
}

void ResearchDialog::BuyButton() {
  if (BuyResearch(regime, selected, editing)) Refill();
}

void ResearchDialog::DeleteButton() {
  if (!FieldKnown(regime, selected)) return;
  Regime[regime].Research[selected] = 0;
  Plat().ShowMessage("Deleted", "");
  UI.PanelDirty = true;
  Refill();
}

void ResearchDialog::NumberButton() {
  const std::string answer =
      Plat().InputPrompt("Research field #", "", ValidResearchField(selected) ? NumText(selected) : std::string());
  const Long field = ValLong(answer);
  if (!ValidResearchField(field)) {
    Plat().ShowMessage(kOutOfRange, "");
    return;
  }
  selected = static_cast<int>(field);
  Refill();
}

void ResearchDialog::NameButton() {
  if (!ValidResearchField(selected)) return;
  const std::string answer = Plat().InputPrompt("Research field name", "", Research[selected].Name);
  // A cancelled prompt keeps the name; Wipe is the way to empty a field.
  if (answer.empty()) return;
  Research[selected].Name = answer;
  Refill();
}

void ResearchDialog::NeedButton(int which) {
  if (!ValidResearchField(selected)) return;
  Long& need = which == 2 ? Research[selected].Need2 : Research[selected].Need1;
  const std::string answer =
      Plat().InputPrompt(which == 2 ? "Field needed 2" : "Field needed 1", "", NumText(need));
  // A need is a field number, or 0 for none.
  const Long field = ValLong(answer);
  if (field != 0 && !ValidResearchField(field)) {
    Plat().ShowMessage(kOutOfRange, "");
    return;
  }
  need = field;
  Refill();
}

void ResearchDialog::WipeButton() {
  if (!ValidResearchField(selected)) return;
  ResearchRec& f = Research[selected];
  f.Name.clear();
  f.Need1 = 0;
  f.Need2 = 0;
  f.Text.clear();
  f.Cost = 0;
  Refill();
}

void ResearchDialog::SetCost(const std::string& value) {
  if (!ValidResearchField(selected)) return;
  Research[selected].Cost = ValLong(value);
  Refill();
}

void ResearchDialog::SetText(const std::string& value) {
  if (!ValidResearchField(selected)) return;
  Research[selected].Text = value;
  Refill();
}

bool ResearchDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (action == "field") {
    const std::string t = Trim(value);
    if (t.empty() || t.size() > 4 || t.find_first_not_of("0123456789") != std::string::npos) {
      *why = "field takes a field number, not \"" + value + "\"";
      return false;
    }
    return SelectField(std::stoi(t), why);
  }
  if (action == "buy") {
    BuyButton();
    return true;
  }
  if (action == "close") {
    CloseButton();
    return true;
  }
  const bool editAction = action == "delete" || action == "number" || action == "name" || action == "need1" ||
                          action == "need2" || action == "wipe" || action == "cost" || action == "text";
  if (editAction && !editing) {
    *why = "\"" + action + "\" is a button of the editor only";
    return false;
  }
  if (action == "delete") DeleteButton();
  if (action == "number") NumberButton();
  if (action == "name") NameButton();
  if (action == "need1") NeedButton(1);
  if (action == "need2") NeedButton(2);
  if (action == "wipe") WipeButton();
  if (action == "cost") SetCost(value);
  if (action == "text") SetText(value);
  if (editAction) return true;
  *why = "no action \"" + action +
         "\" in the Research dialog (field=N, buy, close; in the editor delete, number, name, need1, need2, "
         "wipe, cost=N, text=T)";
  return false;
}

}  // namespace mf
