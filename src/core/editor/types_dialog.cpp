#include "editor/types_dialog.h"

#include <algorithm>

#include "editor/edit_input.h"
#include "editor/numbered_list.h"
#include "engine/type_info_dialog.h"
#include "editor/type_rules.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/labels.h"

namespace mf {
namespace {

bool Listed(long t) { return t >= 1 && t <= LastType(); }

// The class word in the list and over the class box; a type without a
// valid class or theater reads "n/a".
std::string ClassLabel(long theater, long cls) {
  const std::string& word = ClassWord(static_cast<int>(theater), static_cast<int>(cls));
  return word.empty() ? "n/a" : word;
}

}  // namespace

void TypesDialog::Prepare() {
  open = true;
  selected = LastType() >= 1 ? 1 : 0;
  filter.clear();
  Refill();
}

void TypesDialog::Refill() {
  rows.clear();
  typeOfRow.clear();
  row = -1;
  if (!Listed(selected)) selected = 0;
  for (int t = 1; t <= LastType(); ++t) {
    if (!FilterMatches(filter, t, Type[t].Name)) continue;
    if (t == selected) row = static_cast<int>(rows.size());
    rows.push_back(NumText(t) + ") " + ClassLabel(Type[t].Theater, Type[t].Class) + " " + Type[t].Name);
    typeOfRow.push_back(t);
  }

  numberLabel.clear();
  nameValue.clear();
  costValue.clear();
  researchValue.clear();
  textValue.clear();
  classLabels.clear();
  classLabel.clear();
  spriteLabel.clear();
  overrideLabel.clear();
  attrRows.clear();
  attrValues.clear();
  livingRows.clear();
  owningRows.clear();
  researchLine.clear();
  theater = typeClass = 0;
  if (selected == 0) return;
  const TypeRec& ty = Type[selected];
  numberLabel = "Type # = " + NumText(selected);
  nameValue = ty.Name;
  costValue = NumText(ty.Cost);
  researchValue = NumText(ty.Research);
  textValue = ty.Text;
  theater = ty.Theater;
  typeClass = ty.Class;
  for (int c = 1; c <= 4; ++c) classLabels.push_back(ClassLabel(ty.Theater, c));
  classLabel = ClassLabel(ty.Theater, ty.Class);
  spriteLabel = "Sprite: " + NumText(ty.Sprite);
  overrideLabel = "Counter override: " + (ty.Override == 0 ? std::string("none") : NumText(ty.Override));
  for (int a = 1; a <= kTypeAttrs; ++a) {
    attrRows.push_back(TypeAttrLabel(a) + " = " + NumText(ty.Attr[a]));
    attrValues.push_back(ty.Attr[a]);
  }
  for (int p = 1; p <= LastPeople(); ++p) {
    livingRows.push_back(std::string(ty.Living[p] == 1 ? "IF " : "NOT IF ") + People[p].Name);
    owningRows.push_back(std::string(ty.Owning[p] == 1 ? "IF " : "NOT IF ") + People[p].Name);
  }
  if (ty.Research == 0) {
    researchLine = "No research needed";
  } else {
    const bool known = ty.Research >= 1 && ty.Research <= kResearchCap;
    researchLine = "IF " + (known ? Research[ty.Research].Name : NumText(ty.Research));
  }
}

bool TypesDialog::Select(int t, std::string* why) {
  if (!PickEntry(t, LastType(), "type", &selected, why)) return false;
  Refill();
  return true;
}

void TypesDialog::SetFilter(const std::string& text) {
  filter = text;
  Refill();
}

void TypesDialog::NewButton() {
  const int t = NewEntry(LastType(), kTypeCap, "To many types allready");
  if (t == 0) return;
  Game.TypeCount = t;
  Type[t] = TypeRec{};
  Type[t].Name = "Type " + NumText(t);
  selected = t;
  // The new type must show, whatever the filter held.
  filter.clear();
  Refill();
}

void TypesDialog::DeleteButton() {
  const int t = EntryToDelete(LastType(), "No types to delete");
  if (t == 0) return;
  Type[t] = TypeRec{};
  Game.TypeCount = t - 1;
  Refill();
}

void TypesDialog::CopyButton() {
  if (selected == 0) return;
  const int from = AskCopySource("Copy which # (think good here, 0=cancel)", "0", 1, LastType(), selected);
  if (from == 0) return;
  Type[selected] = Type[from];
  Refill();
}

void TypesDialog::SpriteButton() {
  if (selected == 0) return;
  const std::string answer =
      Plat().InputPrompt("Give a sprite number between 1-200 from type directory", "", NumText(Type[selected].Sprite));
  const Long n = ValLong(answer);
  if (n >= 1 && n <= 200) Type[selected].Sprite = n;
  Refill();
}

void TypesDialog::OverrideButton() {
  if (selected == 0) return;
  const std::string answer = Plat().InputPrompt("Give sprite between 1-100 from the extra files from map directory", "",
                                                NumText(Type[selected].Override));
  // 0 takes the override away again.
  const Long n = ValLong(answer);
  if (!answer.empty() && n >= 0 && n <= 100) Type[selected].Override = n;
  Refill();
}

void TypesDialog::InfoButton() {
  if (selected != 0) OpenTypeInfoDialog(selected);
}

void TypesDialog::SetName(const std::string& text) {
  if (selected == 0) return;
  Type[selected].Name = text;
  Refill();
}

void TypesDialog::SetTheater(const std::string& value) {
  if (selected == 0) return;
  long n = 0;
  if (!WholeNumber(value, &n) || n < 0 || n > 2) {
    Plat().ShowMessage("Theater is 0 for land, 1 for sea or 2 for air.", "");
    return;
  }
  Type[selected].Theater = n;
  Refill();
}

void TypesDialog::SetClass(const std::string& value) {
  if (selected == 0) return;
  long n = 0;
  if (!WholeNumber(value, &n) || n < 0 || n > 4) {
    Plat().ShowMessage("Class is 1 to 4, or 0 for none.", "");
    return;
  }
  Type[selected].Class = n;
  Refill();
}

void TypesDialog::SetCost(const std::string& value) {
  if (selected == 0) return;
  Type[selected].Cost = std::max<Long>(0, ValLong(value));
  Refill();
}

void TypesDialog::SetResearch(const std::string& value) {
  if (selected == 0) return;
  long n = 0;
  if (!WholeNumber(value, &n) || n < 0 || n > kResearchCap) {
    Plat().ShowMessage("Research field is 1 to 200, or 0 for none.", "");
    return;
  }
  Type[selected].Research = n;
  Refill();
}

void TypesDialog::SetText(const std::string& value) {
  if (selected == 0) return;
  Type[selected].Text = value;
  Refill();
}

bool TypesDialog::SetAttr(int attr, const std::string& value) {
  if (selected == 0) return false;
  const Long v = ValLong(value);
  const TypeRec& ty = Type[selected];
  const std::string refusal = TypeAttrRefusal(ty.Theater, ty.Class, attr, v);
  if (!refusal.empty()) {
    Plat().ShowMessage(refusal, "");
    return false;
  }
  Type[selected].Attr[attr] = v;
  Refill();
  return true;
}

void TypesDialog::ToggleLiving(int p) {
  if (selected == 0 || p < 1 || p > LastPeople()) return;
  Short& on = Type[selected].Living[p];
  on = on == 1 ? 0 : 1;
  Refill();
}

void TypesDialog::ToggleOwning(int p) {
  if (selected == 0 || p < 1 || p > LastPeople()) return;
  Short& on = Type[selected].Owning[p];
  on = on == 1 ? 0 : 1;
  Refill();
}

bool TypesDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  long n = 0;
  if (action == "select") {
    if (!WholeNumber(value, &n)) {
      *why = "select takes a type number, not \"" + value + "\"";
      return false;
    }
    return Select(static_cast<int>(n), why);
  }
  if (action == "filter") {
    SetFilter(value);
    return true;
  }
  if (action == "new") {
    NewButton();
    return true;
  }
  if (action == "delete") {
    DeleteButton();
    return true;
  }
  if (action == "close") {
    CloseButton();
    return true;
  }
  // The rest edit the selected type.
  const bool edit = action == "copy" || action == "sprite" || action == "override" || action == "info" ||
                    action == "name" || action == "theater" || action == "class" || action == "cost" ||
                    action == "research" || action == "text" || action == "attr" || action == "living" ||
                    action == "owning";
  if (!edit) {
    *why = "no action \"" + action +
           "\" in the Types dialog (select=N, filter=TEXT, new, delete, copy, sprite, override, info, close, "
           "name=TEXT, theater=T, class=C, cost=N, research=N, text=TEXT, attr=A:V, living=P, owning=P)";
    return false;
  }
  if (selected == 0) {
    *why = "no type is selected";
    return false;
  }
  if (action == "copy") CopyButton();
  if (action == "sprite") SpriteButton();
  if (action == "override") OverrideButton();
  if (action == "info") InfoButton();
  if (action == "name") SetName(value);
  if (action == "theater") SetTheater(value);
  if (action == "class") SetClass(value);
  if (action == "cost") SetCost(value);
  if (action == "research") SetResearch(value);
  if (action == "text") SetText(value);
  if (action == "attr") {
    // "A:V": a refusal by the rules is the game's message, not a script fault.
    const std::size_t colon = value.find(':');
    long a = 0;
    if (colon == std::string::npos || !WholeNumber(value.substr(0, colon), &a)) {
      *why = "attr takes ATTRIBUTE:VALUE, not \"" + value + "\"";
      return false;
    }
    SetAttr(static_cast<int>(a), value.substr(colon + 1));
  }
  if (action == "living" || action == "owning") {
    if (!WholeNumber(value, &n) || n < 1 || n > LastPeople()) {
      *why = action + " takes a people number 1.." + std::to_string(LastPeople()) + ", not \"" + value + "\"";
      return false;
    }
    if (action == "living") ToggleLiving(static_cast<int>(n));
    if (action == "owning") ToggleOwning(static_cast<int>(n));
  }
  return true;
}

void OpenTypesDialog() {
  TypesDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  UI.PanelDirty = true;
}

}  // namespace mf
