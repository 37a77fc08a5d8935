#include "editor/general_dialog.h"

#include <algorithm>

#include "editor/edit_input.h"
#include "editor/numbered_list.h"
#include "model/arith.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/labels.h"

namespace mf {
namespace {

// The event fields the editor shows by position, in the record's order;
// the story, the data and text lists have boxes of their own, and the turn
// an event last fired is the engine's book-keeping.
struct EventLong {
  const char* field;
  Long EventRec::*member;
};
const EventLong kEventLongs[] = {
    {"TurnMin", &EventRec::TurnMin},   {"TurnMax", &EventRec::TurnMax},     {"HexX", &EventRec::HexX},
    {"HexY", &EventRec::HexY},         {"HexOwner", &EventRec::HexOwner},   {"Winner", &EventRec::Winner},
    {"NotWinner", &EventRec::NotWinner}, {"Random", &EventRec::Random},     {"Once", &EventRec::Once},
    {"BookVar", &EventRec::BookVar},   {"BookMin", &EventRec::BookMin},     {"BookMax", &EventRec::BookMax},
    {"Type", &EventRec::Type},         {"Sprite", &EventRec::Sprite},       {"ShowAll", &EventRec::ShowAll},
    {"ShowReg1", &EventRec::ShowReg1}, {"ShowReg2", &EventRec::ShowReg2},   {"IfAI", &EventRec::IfAI},
    {"IfWar", &EventRec::IfWar},       {"IfPeace", &EventRec::IfPeace},     {"DipLastTurn", &EventRec::DipLastTurn},
};
constexpr int kEventLongCount = static_cast<int>(sizeof kEventLongs / sizeof kEventLongs[0]);

const char* const kFolderLabels[5] = {"DIR SOUND", "DIR COLORCODE", "DIR MAP(*)", "DIR TYPE", "DIR OFFICER"};
std::string& Folder(int k) {
  switch (k) {
    case 0:
      return Game.DirSound;
    case 1:
      return Game.DirColorCode;
    case 2:
      return Game.DirMap;
    case 3:
      return Game.DirType;
    default:
      break;
  }
  return Game.DirOfficer;
}

bool EditorEvent(long n) { return n >= GeneralDialog::kFirstEvent && n <= GeneralDialog::kLastEvent; }

}  // namespace

std::string EventDataLabel(long type, int i) {
  static const char* const kMakeUnit[31] = {
      "",       "X",      "Y",      "",       "THEATER", "READINESS", "XP",     "GEN SPRITE", "GEN LAND",
      "GEN AIR", "GEN SEA", "GEN RETREAT", "GEN FAME", "REGIME OF UNIT", "OVERRIDE ENM HEX", "", "", "", "", "",
      "INFTYP", "INFQTY", "MOBTYP", "MOBQTY", "ARTTYP", "ARTQTY", "ARMTYP", "ARMQTY", "", "", ""};
  static const char* const kBookVars[9] = {"",           "BOOKVAR 1 #", "VAR1 MUT +/-", "BOOKVAR 2 #",
                                           "VAR2 MUT +/-", "BOOKVAR 3 #", "VAR 3 OVERRIDE VALUE =",
                                           "BOOKVAR 4 #", "VAR 4 OVERRIDE VALUE ="};
  static const char* const kDiplomacy[5] = {"", "REG1", "REG2", "NEWDIPREL", "NEWCHANGCOST"};
  if (i < 1 || i > kEventData) return "";
  switch (type) {
    case 1:
      return kMakeUnit[i];
    case 2:
      return i == 1 ? "REGIME 2 #" : i == 2 ? "PP MUT 2 +/-" : "";
    case 3:
      return i <= 8 ? kBookVars[i] : "";
    case 4: {
      if (i == 30) return "AI CHOICE";
      if (i > 20) return "";
      const int c = (i - 1) % 5 + 1;
      const char* const kinds[4] = {" BOOKVAR #", " MUT +/-", " BOOKVAR #2", " MUT2 +/-"};
      return "CHOICE " + std::to_string(c) + kinds[(i - 1) / 5];
    }
    case 6:
      return i <= 4 ? kDiplomacy[i] : "";
    case 7:
      return i == 1 ? "SET GAMEWINNER TO" : "";
    default:
      break;
  }
  return "";
}

std::string EventTextLabel(long type, int i) {
  if (i < 1 || i > kEventDataText) return "";
  if (type == 1) return i == 1 ? "NAME OF FORM" : i == 2 ? "NAME OF GEN" : "";
  if (type == 4) return "CHOICE1";  // the five answers' button texts carry one label
  if (type == 5) return i == 1 ? "FILE TO LOAD" : "";
  return "";
}

void GeneralDialog::Prepare() {
  open = true;
  event = 0;
  eventBox.clear();
  filter.clear();
  Refill();
}

void GeneralDialog::Refill() {
  evRows.clear();
  evOfRow.clear();
  evChanged.clear();
  // A heading stays when the filter leaves a line of its category.
  std::string heading;
  bool headingShown = true;
  for (const auto& line : EngineVarList()) {
    if (line.index == 0) {
      heading = line.text;
      headingShown = false;
      if (Trim(filter).empty()) {
        evRows.push_back(heading);
        evOfRow.push_back(0);
        evChanged.push_back(false);
        headingShown = true;
      }
      continue;
    }
    if (!FilterMatches(filter, line.index, EngineVar[line.index].Description)) continue;
    if (!headingShown) {
      evRows.push_back(heading);
      evOfRow.push_back(0);
      evChanged.push_back(false);
      headingShown = true;
    }
    const long def = EngineVarDefault(line.index);
    const bool changed = EngineVar[line.index].Value != def;
    evRows.push_back(changed ? "* " + line.text + "  (default " + NumText(def) + ")" : line.text);
    evOfRow.push_back(line.index);
    evChanged.push_back(changed);
  }

  generalFields.clear();
  generalFields.push_back({"GAMEENDPOP", NumText(Game.GameEndPop)});
  for (int k = 0; k < 5; ++k) generalFields.push_back({kFolderLabels[k], Folder(k)});
  storyValue = Game.ScenarioStory;

  eventRows.clear();
  for (int e = kFirstEvent; e <= kLastEvent; ++e) {
    const std::string& story = Event[e].Story;
    eventRows.push_back(NumText(e) + ") " + (story.size() > 1 ? Left(story, 30) : std::string()));
  }
  eventFieldRows.clear();
  dataRows.clear();
  textRows.clear();
  eventStory.clear();
  if (event == 0) return;
  const EventRec& ev = Event[event];
  for (int k = 0; k < kEventLongCount; ++k) {
    eventFieldRows.push_back(NumText(k + 1) + ") " + EventFieldLabel(kEventLongs[k].field) + " = " +
                             NumText(ev.*kEventLongs[k].member));
  }
  for (int i = 1; i <= kEventData; ++i) {
    const std::string label = EventDataLabel(ev.Type, i);
    dataRows.push_back(NumText(i) + ")" + (label.empty() ? "" : " " + label) + " = " + NumText(ev.Data[i]));
  }
  for (int i = 1; i <= kEventDataText; ++i) {
    const std::string label = EventTextLabel(ev.Type, i);
    textRows.push_back(NumText(i) + ")" + (label.empty() ? "" : " " + label) + " = " + ev.DataText[i]);
  }
  eventStory = ev.Story;
}

void GeneralDialog::SetFilter(const std::string& text) {
  filter = text;
  Refill();
}

bool GeneralDialog::ChangeVar(int n) {
  if (std::find(evOfRow.begin(), evOfRow.end(), n) == evOfRow.end() || n == 0) return false;
  if (!ChangeEngineVar(n)) return false;
  Refill();
  return true;
}

void GeneralDialog::SetGameEndPop(const std::string& value) {
  Game.GameEndPop = std::max<Long>(0, ValLong(value));
  Refill();
}

void GeneralDialog::SetFolder(int k, const std::string& value) {
  if (k < 0 || k > 4 || Folder(k) == value) return;
  Folder(k) = value;
  Game.GraphicsDirty = 1;
  Refill();
}

void GeneralDialog::SetStory(const std::string& text) {
  Game.ScenarioStory = text;
  Refill();
}

void GeneralDialog::EventNumber(const std::string& value) {
  eventBox = value;
  long n = 0;
  if (!WholeNumber(value, &n) || !EditorEvent(n)) {
    Plat().ShowMessage("Please fill in a valid number.", "");
    return;
  }
  event = static_cast<int>(n);
  Refill();
}

void GeneralDialog::Touch() {
  if (Game.EventCount < event) Game.EventCount = event;
}

bool GeneralDialog::SetEventField(int pos, const std::string& value) {
  if (event == 0 || pos < 1 || pos > kEventLongCount) return false;
  Event[event].*kEventLongs[pos - 1].member = ValLong(value);
  Touch();
  Refill();
  return true;
}

bool GeneralDialog::SetData(int i, const std::string& value) {
  if (event == 0 || i < 1 || i > kEventData) return false;
  Event[event].Data[i] = ValLong(value);
  Touch();
  Refill();
  return true;
}

bool GeneralDialog::SetDataText(int i, const std::string& text) {
  if (event == 0 || i < 1 || i > kEventDataText) return false;
  Event[event].DataText[i] = text;
  Touch();
  Refill();
  return true;
}

void GeneralDialog::SetEventStory(const std::string& text) {
  if (event == 0) return;
  Event[event].Story = text;
  Touch();
  Refill();
}

void GeneralDialog::CopyButton() {
  if (event == 0) return;
  const int from = AskCopySource("Copy data from which entry?", "", kFirstEvent, kLastEvent, event);
  if (from == 0) return;
  Event[event] = Event[from];
  Touch();
  Refill();
}

bool GeneralDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  long n = 0;
  std::string text;
  if (action == "ev") {
    if (!WholeNumber(value, &n) || !ChangeVar(static_cast<int>(n))) {
      *why = "engine variable " + value + " is not in the list";
      return false;
    }
    return true;
  }
  if (action == "filter") {
    SetFilter(value);
    return true;
  }
  if (action == "gameendpop") {
    SetGameEndPop(value);
    return true;
  }
  const char* const folders[5] = {"dirsound", "dircolorcode", "dirmap", "dirtype", "dirofficer"};
  for (int k = 0; k < 5; ++k) {
    if (action != folders[k]) continue;
    SetFolder(k, value);
    return true;
  }
  if (action == "story") {
    SetStory(value);
    return true;
  }
  if (action == "event") {
    EventNumber(value);
    return true;
  }
  if (action == "close") {
    CloseButton();
    return true;
  }
  const bool eventAction =
      action == "evfield" || action == "data" || action == "datatext" || action == "evstory" || action == "copy";
  if (!eventAction) {
    *why = "no action \"" + action +
           "\" in the General dialog (ev=N, filter=TEXT, gameendpop=V, dirsound=, dircolorcode=, dirmap=, dirtype=, "
           "dirofficer=, story=TEXT, event=N, evfield=POS:V, data=I:V, datatext=I:TEXT, evstory=TEXT, copy, close)";
    return false;
  }
  if (event == 0) {
    *why = "no event is chosen (event=N first)";
    return false;
  }
  if (action == "evstory") {
    SetEventStory(value);
    return true;
  }
  if (action == "copy") {
    CopyButton();
    return true;
  }
  bool ok = IndexAndText(value, &n, &text);
  if (ok && action == "evfield") ok = SetEventField(static_cast<int>(n), text);
  if (ok && action == "data") ok = SetData(static_cast<int>(n), text);
  if (ok && action == "datatext") ok = SetDataText(static_cast<int>(n), text);
  if (!ok) *why = action + " takes POSITION:VALUE with a position the event has, not \"" + value + "\"";
  return ok;
}

void OpenGeneralDialog() {
  GeneralDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
  UI.PanelDirty = true;
}

}  // namespace mf
