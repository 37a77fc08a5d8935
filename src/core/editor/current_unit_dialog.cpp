#include "editor/current_unit_dialog.h"

#include <algorithm>

#include "editor/edit_input.h"
#include "editor/numbered_list.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/labels.h"

namespace mf {
namespace {

const char* const kClassNames[4][2] = {
    {"INFTYPE", "INFQTY"}, {"MOBTYPE", "MOBQTY"}, {"ARTTYPE", "ARTQTY"}, {"ARMTYPE", "ARMQTY"}};

// The plain fields, with the values the game gives them meaning for.
struct PlainField {
  const char* name;
  Long UnitRec::*member;
  long lo, hi;
  bool editable;
};
const PlainField kPlain[] = {
    {"Shq", &UnitRec::Shq, 0, kShqCap, false},
    {"Thq", &UnitRec::Thq, 0, 1, false},
    {"Boss", &UnitRec::Boss, 0, kUnitCap, true},
    {"Regime", &UnitRec::Regime, 0, kRegimeCap, false},
    {"SupplyPct", &UnitRec::SupplyPct, 0, 100, true},
    {"CounterPic", &UnitRec::CounterPic, 0, 9999, true},
    {"ThqBadge", &UnitRec::ThqBadge, 0, 30, true},
    {"Experience", &UnitRec::Experience, 0, 999, true},
    {"MP", &UnitRec::MP, 0, 999, true},
    {"Readiness", &UnitRec::Readiness, 0, 100, true},
    {"Theater", &UnitRec::Theater, 0, 2, true},
    {"Cargo", &UnitRec::Cargo, 0, kUnitCap, false},
    {"Officer", &UnitRec::Officer, 0, kOfficerCap, true},
    {"Front", &UnitRec::Front, 0, 9999, true},
    {"AIX", &UnitRec::AIX, 0, kMapCap, true},
    {"AIY", &UnitRec::AIY, 0, kMapCap, true},
    {"Disruption", &UnitRec::Disruption, 0, 75, true},
    {"FromX", &UnitRec::FromX, 0, kMapCap, true},
    {"FromY", &UnitRec::FromY, 0, kMapCap, true},
    {"GenSupply", &UnitRec::GenSupply, 0, 999999999, true},
};

// A unit that stands on the map in the editor.
bool Exists(long u) { return ValidUnit(u) && Unit[u].Regime > 0; }

}  // namespace

void CurrentUnitDialog::Prepare(int u) {
  unit = u;
  open = Exists(u);
  pickedType = 0;
  quantity.clear();
  Refill();
}

void CurrentUnitDialog::Refill() {
  classLines.clear();
  typeRows.clear();
  fields.clear();
  numberLine.clear();
  stockLine.clear();
  stockEnabled = false;
  typeRow = pickedType - 1;
  for (int t = 1; t <= LastType(); ++t) {
    const std::string& word = ClassWord(Type[t].Theater, Type[t].Class);
    typeRows.push_back(NumText(t) + ") " + (word.empty() ? std::string("n/a") : word) + " " + Type[t].Name);
  }
  if (!Exists(unit)) return;
  const UnitRec& un = Unit[unit];
  numberLine = "Unit # = " + NumText(unit);
  for (int c = 1; c <= 4; ++c) {
    const Long t = UnitSlotType(unit, c);
    std::string line = std::string(kClassNames[c - 1][0]) + " = " + NumText(t);
    if (ValidType(t) && t != 0) line += " (" + Type[t].Name + ")";
    classLines.push_back(line);
    classLines.push_back(std::string(kClassNames[c - 1][1]) + " = " + NumText(UnitSlotQty(unit, c)));
  }
  // For an SHQ the supply field is its stock, set through its own prompt.
  stockEnabled = un.Shq > 0;
  if (stockEnabled) stockLine = "Supply stock = " + NumText(un.SupplyPct);
  fields.push_back({"Name", un.Name, 0, 0, true, true});
  for (const auto& f : kPlain) {
    const bool editable = f.editable && !(stockEnabled && std::string(f.name) == "SupplyPct");
    fields.push_back({f.name, NumText(un.*f.member), f.lo, f.hi, false, editable});
  }
}

bool CurrentUnitDialog::PickType(int t, std::string* why) {
  if (!PickEntry(t, LastType(), "type", &pickedType, why)) return false;
  Refill();
  return true;
}

void CurrentUnitDialog::SetClassButton(const std::string& qty) {
  quantity = qty;
  if (!Exists(unit) || pickedType == 0) return;
  const TypeRec& ty = Type[pickedType];
  if (ty.Theater != Unit[unit].Theater) {
    Plat().ShowMessage("Selected type is not of the same theater as the unit selected.", "");
    return;
  }
  if (ty.Class < 1 || ty.Class > 4) {
    Plat().ShowMessage("Selected type has no class yet: give it one in the Types dialog.", "");
    return;
  }
  UnitSlotType(unit, ty.Class) = pickedType;
  UnitSlotQty(unit, ty.Class) = std::max<Long>(0, ValLong(qty));
  RequestRedraw(1);
  Refill();
}

void CurrentUnitDialog::CopyFromButton() {
  if (!Exists(unit)) return;
  const Long from = ValLong(Plat().InputPrompt("Copy from #", "", ""));
  if (!Exists(from) || from == unit) return;
  for (int c = 1; c <= 4; ++c) {
    UnitSlotType(unit, c) = UnitSlotType(from, c);
    UnitSlotQty(unit, c) = UnitSlotQty(from, c);
  }
  RequestRedraw(1);
  Refill();
}

void CurrentUnitDialog::StockButton() {
  if (!Exists(unit) || Unit[unit].Shq <= 0) return;
  const Long v = ValLong(Plat().InputPrompt("Set Supply Stock", "", NumText(Unit[unit].SupplyPct)));
  if (v > 0 && v < 10000) Unit[unit].SupplyPct = v;
  Refill();
}

bool CurrentUnitDialog::SetField(const std::string& name, const std::string& value, std::string* why) {
  if (!Exists(unit)) return false;
  if (name == "Name") {
    Unit[unit].Name = value;
    UI.PanelDirty = true;
    Refill();
    return true;
  }
  for (const auto& f : kPlain) {
    if (name != f.name) continue;
    if (!f.editable || (name == "SupplyPct" && Unit[unit].Shq > 0)) {
      *why = "the field " + name + " cannot be edited here";
      return false;
    }
    long v = 0;
    if (!WholeNumber(value, &v) || v < f.lo || v > f.hi) {
      Plat().ShowMessage(name + " takes a whole number from " + NumText(f.lo) + " to " + NumText(f.hi) + ".", "");
      return true;
    }
    Unit[unit].*f.member = static_cast<Long>(v);
    RequestRedraw(1);
    UI.PanelDirty = true;
    Refill();
    return true;
  }
  *why = "the unit record has no field \"" + name + "\"";
  return false;
}

bool CurrentUnitDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  long n = 0;
  std::string text;
  if (action == "type") {
    if (!WholeNumber(value, &n)) {
      *why = "type takes a type number, not \"" + value + "\"";
      return false;
    }
    return PickType(static_cast<int>(n), why);
  }
  if (action == "qty") {
    if (pickedType == 0) {
      *why = "no type is picked";
      return false;
    }
    SetClassButton(value);
    return true;
  }
  if (action == "copyfrom") {
    CopyFromButton();
    return true;
  }
  if (action == "stock") {
    if (!stockEnabled) {
      *why = std::string("\"") + kStock + "\" is for an SHQ only";
      return false;
    }
    StockButton();
    return true;
  }
  if (action == "field") {
    const std::size_t colon = value.find(':');
    if (colon == std::string::npos) {
      *why = "field takes NAME:VALUE, not \"" + value + "\"";
      return false;
    }
    return SetField(value.substr(0, colon), value.substr(colon + 1), why);
  }
  if (action == "close") {
    CloseButton();
    return true;
  }
  *why = "no action \"" + action +
         "\" in the Current Unit dialog (type=T, qty=Q, copyfrom, stock, field=NAME:VALUE, close)";
  return false;
}

void OpenCurrentUnitDialog() {
  const int u = [] {
    if (!ValidHex(UI.SelX, UI.SelY) || UI.SelSlot < 1 || UI.SelSlot > kStackSlots) return 0;
    return static_cast<int>(Hex[UI.SelX][UI.SelY].Unit[UI.SelSlot]);
  }();
  CurrentUnitDialog dialog;
  dialog.Prepare(u);
  if (!dialog.IsOpen()) return;
  Plat().RunDialog(dialog);
  UI.PanelDirty = true;
  RequestRedraw(1);
}

}  // namespace mf
