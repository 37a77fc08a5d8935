#include "engine/officers.h"

#include <cstdint>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "platform/say.h"

namespace mf {
namespace {


bool ValidOfficer(long o) { return o >= 1 && o <= kOfficerCap; }


// The k-th (1-based) name of a list that is longer than one character.
const std::string& NthName(const std::string (&names)[kPeopleNames + 1], long k) {
  static const std::string none;
  for (int i = 1; i <= kPeopleNames; ++i) {
    if (Len(names[i]) > 1 && --k == 0) return names[i];
  }
  return none;
}

long CountNames(const std::string (&names)[kPeopleNames + 1]) {
  long n = 0;
  for (int i = 1; i <= kPeopleNames; ++i)
    if (Len(names[i]) > 1) ++n;
  return n;
}

// One rating: the d100 draw, and the second draw only where the ladder
// splits a rung.
int DrawSkill() {
  const int d = static_cast<int>(Int(Rnd() * 100.0));
  const int rung = OfficerSkill(d, 0.0f);
  // The top rung gives 8 or 9, the low one 2 or 3.
  return rung == 8 || rung == 2 ? OfficerSkill(d, Rnd()) : rung;
}

// The first portrait of the set that no officer of any regime wears; when
// the set is used up, one of its portraits at random. 0 when the set has none.
int ChoosePortrait(long set) {
  bool used[kPortraitCap + 1] = {};
  for (int o = 1; o <= kOfficerCap; ++o) {
    const Long pic = Officer[o].Pic;
    if (Officer[o].Regime != 0 && pic >= 1 && pic <= kPortraitCap) used[pic] = true;
  }
  for (int p = 1; p <= kPortraitCap; ++p)
    if (OfficerPicSet[p] == set && !used[p]) return p;
  long count = 0;
  for (int p = 1; p <= kPortraitCap; ++p)
    if (OfficerPicSet[p] == set) ++count;
  if (count == 0) return 0;
  long k = static_cast<long>(Int(Rnd() * static_cast<double>(count))) + 1;
  for (int p = 1; p <= kPortraitCap; ++p)
    if (OfficerPicSet[p] == set && --k == 0) return p;
  return 0;
}

}  // namespace

int OfficerSkill(int d100, float further) {
  if (d100 < EV(471)) return further > 0.8f ? 9 : 8;
  if (d100 < EV(472)) return 7;
  if (d100 < EV(473)) return 6;
  if (d100 < EV(474)) return 5;
  if (d100 < EV(475)) return 4;
  if (d100 < EV(476)) return further > 0.5f ? 3 : 2;
  return 1;
}

int MakeOfficer(int unit) {
  const int u = ValidUnit(unit) ? unit : 0;
  // An officer serves the regime of the unit he takes over; one for the
  // pool serves the regime whose turn it is.
  const long r = u != 0 && ValidRegime(static_cast<int>(Unit[u].Regime)) ? Unit[u].Regime : Game.CurRegime;
  if (!ValidRegime(static_cast<int>(r))) return 0;

  // Every officer is drawn from a generator seeded from the clock. The clock
  // is mixed with the generator's own next value, so that officers made in
  // the same millisecond (a new game's whole staff) still differ.
  const auto mix = static_cast<std::uint32_t>(Rnd() * 16777216.0f);
  SeedRnd((Plat().TickCount() * 2654435761u) ^ mix);

  const int pic = ChoosePortrait(Regime[r].PortraitSet);
  if (pic == 0) {
    Say("There is no single portrait for this people.. bad scenarioset design! quiting make officer.");
    return 0;
  }

  int row = 0;
  for (int o = 1; o <= kOfficerCap && row == 0; ++o)
    if (Officer[o].Regime == 0) row = o;
  if (row == 0) {
    Say("Error.. no empty slots");
    return 0;
  }

  const long people = Regime[r].OwnPeople;
  const PeopleRec& folk = People[people >= 0 && people <= kPeopleCap ? people : 0];
  const long firsts = CountNames(folk.FirstName);
  const long lasts = CountNames(folk.LastName);
  if (firsts == 0 || lasts == 0) {
    Say("Not enough names.. Thats a bug mister scenario editor");
    return 0;
  }
  const long kf = static_cast<long>(Int(Rnd() * static_cast<double>(firsts))) + 1;
  const long kl = static_cast<long>(Int(Rnd() * static_cast<double>(lasts))) + 1;
  const std::string name = NthName(folk.FirstName, kf) + " " + NthName(folk.LastName, kl);

  if (row > Game.OfficerCount) Game.OfficerCount = row;
  OfficerRec& of = Officer[row];
  of = OfficerRec{};
  of.Pic = pic;
  of.Regime = static_cast<Long>(r);
  of.Name = name;
  of.InPool = u == 0 ? 1 : 0;
  of.Air = DrawSkill();
  of.Land = DrawSkill();
  of.Sea = DrawSkill();
  of.Fame = 0;
  long retreat = static_cast<long>(Int(Rnd() * static_cast<double>(EV(478)))) + EV(477);
  if (retreat > 95) retreat = 95;
  of.Retreat = static_cast<Long>(retreat);
  of.Spare = 0;
  if (u != 0) Unit[u].Officer = row;
  return row;
}

int PoolCount(int r) {
  if (!ValidRegime(r)) return 0;
  int n = 0;
  for (int o = 1; o <= kOfficerCap; ++o)
    if (Officer[o].Regime == r && Officer[o].InPool == 1) ++n;
  return n;
}

OfficerView ViewOfOfficer(int o, const std::string& none) {
  OfficerView v;
  if (!ValidOfficer(o) || Officer[o].Regime == 0) {
    if (!none.empty()) v.lines.push_back(none);
    return v;
  }
  const OfficerRec& of = Officer[o];
  if (of.Pic >= 1 && of.Pic <= kPortraitCap) v.picture = kPortraitSpriteBase + static_cast<int>(of.Pic);
  v.lines = {of.Name,
             "LAND: " + NumText(of.Land),
             "SEA: " + NumText(of.Sea),
             "AIR: " + NumText(of.Air),
             "FAME: " + NumText(of.Fame),
             "RETREAT: " + NumText(of.Retreat)};
  return v;
}

// ---- The Officerpool dialog --------------------------------------------------

void OfficerPoolDialog::Prepare(bool editing) {
  regime = CurrentRegime();
  editButtonsShown = editing;
  unit = 0;
  if (ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)) && UI.SelSlot >= 1 &&
      UI.SelSlot <= kStackSlots) {
    const long u = Hex[UI.SelX][UI.SelY].Unit[UI.SelSlot];
    // Only a formation of the pool's own regime can take one of its officers.
    if (ValidUnit(static_cast<int>(u)) && Unit[u].Regime == regime && regime != 0) unit = static_cast<int>(u);
  }
  poolRow = -1;
  open = true;
  Fill();
}

void OfficerPoolDialog::Fill() {
  const int selected = poolRow >= 0 && poolRow < static_cast<int>(officerOfRow.size()) ? officerOfRow[poolRow] : 0;
  ppText = "(" + NumText(Regime[regime].PP) + "pp available)";
  poolRows.clear();
  officerOfRow.clear();
  poolRow = -1;
  if (regime != 0) {
    for (int o = 1; o <= kOfficerCap; ++o) {
      if (Officer[o].Regime != regime || Officer[o].InPool != 1) continue;
      if (o == selected) poolRow = static_cast<int>(officerOfRow.size());
      poolRows.push_back(Officer[o].Name);
      officerOfRow.push_back(o);
    }
  }
  unitView = unit != 0 ? ViewOfOfficer(static_cast<int>(Unit[unit].Officer), kNoOfficer) : OfficerView{};
  poolView = poolRow >= 0 ? ViewOfOfficer(officerOfRow[poolRow], "") : OfficerView{};
  fireEnabled = poolRow >= 0;
}

int OfficerPoolDialog::OfficerInView() const {
  if (poolRow >= 0) return officerOfRow[poolRow];
  if (unit != 0 && ValidOfficer(Unit[unit].Officer) && Officer[Unit[unit].Officer].Regime != 0)
    return static_cast<int>(Unit[unit].Officer);
  return 0;
}

namespace {
bool Closed(bool open, std::string* why) {
  if (open) return false;
  *why = "the dialog is closed";
  return true;
}
bool EditorOnly(bool shown, std::string* why) {
  if (shown) return false;
  *why = "the editor's buttons are only there in the editor";
  return true;
}
}  // namespace

bool OfficerPoolDialog::SelectRow(int row, std::string* why) {
  if (Closed(open, why)) return false;
  if (row < 0 || row >= static_cast<int>(poolRows.size())) {
    *why = "no such row in the officer pool";
    return false;
  }
  poolRow = row;
  Fill();
  return true;
}

bool OfficerPoolDialog::Assign(std::string* why) {
  if (Closed(open, why)) return false;
  if (poolRow < 0) {
    Say("No officer selected");
    return true;
  }
  if (unit == 0) {
    Say("You selected no unit before going to the officerpool.");
    return true;
  }
  UnitRec& un = Unit[unit];
  // An SHQ's supply field is its stock, not a percentage: it is never cut off.
  if (!editButtonsShown && un.Shq < 1 && un.SupplyPct == 0) {
    Say("You cannot replace an officer in a unit that is out of supply");
    return true;
  }
  const int incoming = officerOfRow[poolRow];
  if (ValidOfficer(un.Officer)) Officer[un.Officer].InPool = 1;
  un.Officer = incoming;
  Officer[incoming].InPool = 0;
  // A new commander takes over: the formation stops, loses heart, and
  // (in a game) is thrown into some disorder.
  un.MP = 0;
  un.Readiness -= 15;
  if (un.Readiness < 10) un.Readiness = 10;
  if (!editButtonsShown) {
    un.Disruption += EV(544);
    if (un.Disruption > 100) un.Disruption = 100;
  }
  poolRow = -1;
  Fill();
  RequestRedraw(1);
  UI.PanelDirty = true;
  return true;
}

bool OfficerPoolDialog::Buy(std::string* why) {
  if (Closed(open, why)) return false;
  if (PoolCount(regime) > kPoolLimit - 1) {
    Say("Max 50 officers in pool.");
    return true;
  }
  if (Regime[regime].PP > 0 && regime != 0) {
    Regime[regime].PP = AddSat(Regime[regime].PP, -1);
    MakeOfficer(0);
  } else {
    Say("Not enough PP to buy");
  }
  Fill();
  return true;
}

bool OfficerPoolDialog::Fire(std::string* why) {
  if (Closed(open, why)) return false;
  if (poolRow < 0) {
    *why = "no officer of the pool is selected";
    return false;
  }
  OfficerRec& of = Officer[officerOfRow[poolRow]];
  of.Name.clear();
  of.Regime = 0;
  Say("Officer is fired and will never return");
  poolRow = -1;
  Fill();
  return true;
}

bool OfficerPoolDialog::Close(std::string* why) {
  if (Closed(open, why)) return false;
  open = false;
  return true;
}

bool OfficerPoolDialog::MakeNew(std::string* why) {
  if (Closed(open, why)) return false;
  if (!editButtonsShown) {
    Say("Only in edit mode. sorry if button is still there");
    return true;
  }
  MakeOfficer(0);
  Fill();
  return true;
}

bool OfficerPoolDialog::SetPortrait(std::string* why) {
  if (Closed(open, why) || EditorOnly(editButtonsShown, why)) return false;
  const int o = OfficerInView();
  if (o == 0) {
    *why = "no officer is selected and the formation has none";
    return false;
  }
  const std::string answer = Plat().InputPrompt("Give correct existing number btwn min 1- max200", "",
                                                NumText(Officer[o].Pic));
  const long pic = ValLong(answer);
  // Only an existing portrait number is taken; anything else leaves it.
  if (!Trim(answer).empty() && pic >= 1 && pic <= kPortraitCap) Officer[o].Pic = static_cast<Long>(pic);
  Fill();
  return true;
}

bool OfficerPoolDialog::Edit(std::string* why) {
  if (Closed(open, why) || EditorOnly(editButtonsShown, why)) return false;
  const int o = OfficerInView();
  if (o == 0) {
    *why = "no officer is selected and the formation has none";
    return false;
  }
  OfficerRec& of = Officer[o];
  // An emptied (cancelled) prompt leaves its figure as it was.
  const std::string name = Plat().InputPrompt("Name", "", of.Name);
  if (!name.empty()) of.Name = name;
  Long* const figures[] = {&of.Land, &of.Sea, &of.Air, &of.Fame, &of.Retreat};
  const char* const labels[] = {"Land", "Sea", "Air", "Fame", "Retreat"};
  for (int i = 0; i < 5; ++i) {
    const std::string answer = Plat().InputPrompt(labels[i], "", NumText(*figures[i]));
    if (!Trim(answer).empty()) *figures[i] = ValLong(answer);
  }
  Fill();
  RequestRedraw(1);
  UI.PanelDirty = true;
  return true;
}

bool OfficerPoolDialog::Delete(std::string* why) {
  if (Closed(open, why) || EditorOnly(editButtonsShown, why)) return false;
  return Fire(why);
}

bool OfficerPoolDialog::ResetUnitOfficer(std::string* why) {
  if (Closed(open, why) || EditorOnly(editButtonsShown, why)) return false;
  if (unit == 0 || !ValidOfficer(Unit[unit].Officer) || Officer[Unit[unit].Officer].Regime == 0) {
    *why = "the selected formation has no officer";
    return false;
  }
  OfficerRec& of = Officer[Unit[unit].Officer];
  of.Land = 5;
  of.Sea = 5;
  of.Air = 5;
  of.Retreat = 50;
  Fill();
  return true;
}

bool OfficerPoolDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (action == "officer") {
    const long o = ValLong(value);
    for (std::size_t row = 0; row < officerOfRow.size(); ++row)
      if (officerOfRow[row] == o) return SelectRow(static_cast<int>(row), why);
    *why = "officer " + value + " is not in the pool";
    return false;
  }
  if (action == "assign") return Assign(why);
  if (action == "buy") return Buy(why);
  if (action == "fire") return Fire(why);
  if (action == "close") return Close(why);
  if (action == "new") return MakeNew(why);
  if (action == "portrait") return SetPortrait(why);
  if (action == "edit") return Edit(why);
  if (action == "delete") return Delete(why);
  if (action == "reset") return ResetUnitOfficer(why);
  *why = "no action \"" + action +
         "\" in the Officerpool dialog (officer=N, assign, buy, fire, close; in the editor new, portrait, edit, "
         "delete, reset)";
  return false;
}

void OpenOfficerPoolDialog() {
  const bool editing = UI.EditMode == 1;
  if (editing) {
    // The editor has no regime to move: the pool is that of the selected
    // formation, or of the hex's owner.
    long r = 0;
    if (ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY))) {
      const HexRec& h = Hex[UI.SelX][UI.SelY];
      const long u = UI.SelSlot >= 1 && UI.SelSlot <= kStackSlots ? h.Unit[UI.SelSlot] : 0;
      r = ValidUnit(static_cast<int>(u)) ? Unit[u].Regime : h.Owner;
    }
    Game.CurRegime = ValidRegime(static_cast<int>(r)) ? static_cast<Long>(r) : 0;
  }
  OfficerPoolDialog dialog;
  dialog.Prepare(editing);
  Plat().RunDialog(dialog);
  if (editing) Game.CurRegime = 0;
  RequestRedraw(1);
  UI.PanelDirty = true;
}

}  // namespace mf
