#include "editor/regimes_dialog.h"

#include <algorithm>
#include <cstdio>

#include "editor/edit_input.h"
#include "editor/numbered_list.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/reset.h"

namespace mf {
namespace {

// The editor stops at ten regimes: the sight tables hold ten.
constexpr int kEditorRegimes = 10;
constexpr int kPortraitSets = 6;
constexpr long kFirstOverrule = 811;
constexpr long kLastOverrule = 830;

}  // namespace

std::string ColourText(long bgr) {
  char digits[16];
  std::snprintf(digits, sizeof digits, "%lx", static_cast<unsigned long>(bgr & 0xFFFFFF));
  return std::string("&H") + digits;
}

void RegimesDialog::Prepare() {
  open = true;
  selected = LastRegime() >= 1 ? 1 : 0;
  selectedPeople = LastPeople() >= 1 ? 1 : 0;
  Refill();
}

void RegimesDialog::Refill() {
  if (selected > LastRegime()) selected = 0;
  if (selectedPeople > LastPeople()) selectedPeople = 0;
  regimeRows.clear();
  for (int r = 1; r <= LastRegime(); ++r) regimeRows.push_back(NumText(r) + ") " + Regime[r].Name);
  regimeRow = selected - 1;
  nameValue = hexColorValue = peopleValue = ppValue = formationValue = emailValue = setsValue = introValue = "";
  textColorValue = peopleName = "";
  aiValue = false;
  if (selected > 0) {
    const RegimeRec& g = Regime[selected];
    nameValue = g.Name;
    hexColorValue = NumText(g.HexSprite);
    peopleValue = NumText(g.OwnPeople);
    ppValue = NumText(g.PP);
    formationValue = g.FormationName;
    emailValue = g.Email;
    setsValue = NumText(g.PortraitSet);
    introValue = g.Intro;
    textColorValue = g.TextColor;
    aiValue = g.AI > 0;
    if (g.OwnPeople >= 1 && g.OwnPeople <= kPeopleCap) peopleName = People[g.OwnPeople].Name;
  }

  peopleRows.clear();
  for (int p = 1; p <= LastPeople(); ++p) peopleRows.push_back(NumText(p) + ") " + People[p].Name);
  peopleRow = selectedPeople - 1;
  peopleNameValue = overruleValue = "";
  firstNames.clear();
  lastNames.clear();
  if (selectedPeople > 0) {
    const PeopleRec& p = People[selectedPeople];
    peopleNameValue = p.Name;
    overruleValue = NumText(p.Overrule);
    firstNames.assign(p.FirstName + 1, p.FirstName + kPeopleNames + 1);
    lastNames.assign(p.LastName + 1, p.LastName + kPeopleNames + 1);
  }
}

bool RegimesDialog::Select(int r, std::string* why) {
  if (!PickEntry(r, LastRegime(), "regime", &selected, why)) return false;
  Refill();
  return true;
}

void RegimesDialog::NewButton() {
  const int r = NewEntry(LastRegime(), kEditorRegimes, "To many regimes allready");
  if (r == 0) return;
  Game.RegimeCount = r;
  Regime[r] = RegimeRec{};
  SetNewRegimeDefaults(r);
  Regime[r].Name = "Regime " + NumText(r);
  // A new regime starts at war with everybody, at a price nobody can pay.
  for (int o = 1; o <= kRegimeCap; ++o) {
    Dip[r][o] = DipRec{};
    Dip[o][r] = DipRec{};
    Dip[r][o].Cost = 999;
    Dip[o][r].Cost = 999;
  }
  selected = r;
  Refill();
}

void RegimesDialog::DeleteButton() {
  const int r = EntryToDelete(LastRegime(), "No regimes to delete");
  if (r == 0) return;
  if (selected != r) {
    Plat().ShowMessage("You can only delete the last player for now.    I know !!!!", "");
    return;
  }
  Regime[r] = RegimeRec{};
  for (int o = 0; o <= kRegimeCap; ++o) {
    Dip[r][o] = DipRec{};
    Dip[o][r] = DipRec{};
  }
  for (int s = 0; s <= kShqCap; ++s) Shq[r][s] = ShqRec{};
  for (int n = 0; n <= kNewsCap; ++n) News[r][n] = NewsRec{};
  Game.RegimeCount = r - 1;
  selected = r - 1;
  Refill();
}

void RegimesDialog::SetName(const std::string& text) {
  if (selected == 0) return;
  if (Len(text) > 13) {
    Plat().ShowMessage("Max 13 characters", "");
    return;
  }
  Regime[selected].Name = text;
  Refill();
}

void RegimesDialog::SetHexColor(const std::string& value) {
  if (selected == 0) return;
  long n = 0;
  if (!WholeNumber(value, &n) || n < 1 || n > kHexColours) {
    Plat().ShowMessage("There are only 15 hexcolors", "");
    return;
  }
  Regime[selected].HexSprite = n;
  RequestRedraw(2);
  Refill();
}

void RegimesDialog::SetPeople(const std::string& value) {
  if (selected == 0) return;
  if (LastPeople() == 0) {
    Plat().ShowMessage("make ppl first.", "");
    return;
  }
  long n = 0;
  if (!WholeNumber(value, &n) || n < 1 || n > kEditorRegimes || n > LastPeople()) {
    Plat().ShowMessage("Pick a people between 1-10", "");
    return;
  }
  Regime[selected].OwnPeople = n;
  Refill();
}

void RegimesDialog::ColourButton() {
  if (selected == 0) return;
  long rgb = 0;
  if (!Plat().PickColor(&rgb)) {
    Plat().ShowMessage("Color pick cancelled", "");
    return;
  }
  // The picker speaks red-green-blue; the table keeps blue-green-red.
  const long bgr = ((rgb & 0xFF) << 16) | (rgb & 0xFF00) | ((rgb >> 16) & 0xFF);
  Regime[selected].TextColor = ColourText(bgr);
  RequestRedraw(2);
  Refill();
}

void RegimesDialog::SetPortraitSets(const std::string& value) {
  if (selected == 0) return;
  long n = 0;
  // 0 leaves the regime's officers without portraits of a set.
  if (!WholeNumber(value, &n) || n < 0 || n > kPortraitSets) {
    Plat().ShowMessage("U can only use max 6 different sets. for filename convention=> 1=a 2=b 3=c 4=d 5=e 6=f", "");
    return;
  }
  Regime[selected].PortraitSet = n;
  Refill();
}

void RegimesDialog::SetAI(bool computer) {
  if (selected == 0) return;
  Regime[selected].AI = computer ? 1 : 0;
  Refill();
}

void RegimesDialog::SetPP(const std::string& value) {
  if (selected == 0) return;
  Regime[selected].PP = std::max<Long>(0, ValLong(value));
  Refill();
}

void RegimesDialog::SetFormation(const std::string& text) {
  if (selected == 0) return;
  Regime[selected].FormationName = text;
  Refill();
}

void RegimesDialog::SetEmail(const std::string& text) {
  if (selected == 0) return;
  Regime[selected].Email = text;
  Refill();
}

void RegimesDialog::SetIntro(const std::string& text) {
  if (selected == 0) return;
  Regime[selected].Intro = text;
  Refill();
}

bool RegimesDialog::SelectPeople(int p, std::string* why) {
  if (!PickEntry(p, LastPeople(), "people", &selectedPeople, why)) return false;
  Refill();
  return true;
}

void RegimesDialog::NewPeopleButton() {
  const int p = NewEntry(LastPeople(), kPeopleCap, "There can be no more than 20 peoples.");
  if (p == 0) return;
  Game.PeopleCount = p;
  People[p] = PeopleRec{};
  People[p].Name = "People " + NumText(p);
  selectedPeople = p;
  Refill();
}

void RegimesDialog::SetPeopleName(const std::string& text) {
  if (selectedPeople == 0) {
    Plat().ShowMessage("No people selected", "");
    return;
  }
  People[selectedPeople].Name = text;
  Refill();
}

void RegimesDialog::SetOverrule(const std::string& value) {
  if (selectedPeople == 0) {
    Plat().ShowMessage("No people selected", "");
    return;
  }
  long n = 0;
  // 0 takes the override away again.
  const bool ok = WholeNumber(value, &n) && (n == 0 || (n >= kFirstOverrule && n <= kLastOverrule));
  if (!ok) {
    Plat().ShowMessage("Give value between 811-830 for people urban overrule sprites.", "");
    return;
  }
  People[selectedPeople].Overrule = n;
  RequestRedraw(2);
  Refill();
}

void RegimesDialog::SetFirstName(int i, const std::string& text) {
  if (selectedPeople == 0) {
    Plat().ShowMessage("No people selected", "");
    return;
  }
  if (i < 1 || i > kPeopleNames) return;
  People[selectedPeople].FirstName[i] = text;
  Refill();
}

void RegimesDialog::SetLastName(int i, const std::string& text) {
  if (selectedPeople == 0) {
    Plat().ShowMessage("No people selected", "");
    return;
  }
  if (i < 1 || i > kPeopleNames) return;
  People[selectedPeople].LastName[i] = text;
  Refill();
}

bool RegimesDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  long n = 0;
  std::string text;
  if (action == "select" || action == "peopleselect") {
    if (!WholeNumber(value, &n)) {
      *why = action + " takes a number, not \"" + value + "\"";
      return false;
    }
    return action == "select" ? Select(static_cast<int>(n), why) : SelectPeople(static_cast<int>(n), why);
  }
  if (action == "new") {
    NewButton();
    return true;
  }
  if (action == "delete") {
    DeleteButton();
    return true;
  }
  if (action == "newpeople") {
    NewPeopleButton();
    return true;
  }
  if (action == "close") {
    CloseButton();
    return true;
  }
  if (action == "peoplename") {
    SetPeopleName(value);
    return true;
  }
  if (action == "overrule") {
    SetOverrule(value);
    return true;
  }
  if (action == "firstname" || action == "lastname") {
    if (!IndexAndText(value, &n, &text) || n < 1 || n > kPeopleNames) {
      *why = action + " takes I:TEXT with I 1..300, not \"" + value + "\"";
      return false;
    }
    if (action == "firstname") SetFirstName(static_cast<int>(n), text);
    if (action == "lastname") SetLastName(static_cast<int>(n), text);
    return true;
  }
  const bool regimeField = action == "name" || action == "hexcolor" || action == "people" || action == "colour" ||
                           action == "sets" || action == "ai" || action == "pp" || action == "formation" ||
                           action == "email" || action == "intro";
  if (!regimeField) {
    *why = "no action \"" + action +
           "\" in the Regimes dialog (select=N, new, delete, name=TEXT, hexcolor=N, people=N, colour, sets=N, "
           "ai=0/1, pp=N, formation=TEXT, email=TEXT, intro=TEXT, newpeople, peopleselect=N, peoplename=TEXT, "
           "overrule=V, firstname=I:TEXT, lastname=I:TEXT, close)";
    return false;
  }
  if (selected == 0) {
    *why = "no regime is selected";
    return false;
  }
  if (action == "name") SetName(value);
  if (action == "hexcolor") SetHexColor(value);
  if (action == "people") SetPeople(value);
  if (action == "colour") ColourButton();
  if (action == "sets") SetPortraitSets(value);
  if (action == "ai") SetAI(Trim(value) == "1");
  if (action == "pp") SetPP(value);
  if (action == "formation") SetFormation(value);
  if (action == "email") SetEmail(value);
  if (action == "intro") SetIntro(value);
  return true;
}

void OpenRegimesDialog() {
  RegimesDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  UI.PanelDirty = true;
  RequestRedraw(2);
}

}  // namespace mf
