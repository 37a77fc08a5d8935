// The Regimes dialog: the regime table (new, delete and every field with
// its check) and the people editor with the urban sprites and name lists.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class RegimesDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Regimes";
  static constexpr const char* kNew = "New Regime";
  static constexpr const char* kDelete = "Delete Regime";
  static constexpr const char* kColour = "Text Colour...";
  static constexpr const char* kNewPeople = "New People";
  static constexpr const char* kClose = "Close";

  void Prepare();
  void Refill();

  // ---- Outputs: regimes -------------------------------------------------------
  std::vector<std::string> regimeRows;  // number + ") " + name
  int regimeRow = -1;
  // The selected regime's fields, as their boxes show them; empty without one.
  std::string nameValue, hexColorValue, peopleValue, ppValue, formationValue, emailValue, setsValue, introValue;
  std::string textColorValue;  // "&H" + hexadecimal, 0x00BBGGRR
  bool aiValue = false;
  std::string peopleName;  // name of the regime's people, "" when none

  // ---- Outputs: peoples ------------------------------------------------------
  std::vector<std::string> peopleRows;  // number + ") " + name
  int peopleRow = -1;
  std::string peopleNameValue, overruleValue;
  std::vector<std::string> firstNames, lastNames;  // 300 entries each, empty ones included

  // ---- State --------------------------------------------------------------
  bool open = false;
  int selected = 0;        // regime, 0 none
  int selectedPeople = 0;  // people, 0 none

  // ---- The designer's actions -------------------------------------------------
  bool Select(int regime, std::string* why);
  void NewButton();
  void DeleteButton();
  void SetName(const std::string& text);
  void SetHexColor(const std::string& value);
  void SetPeople(const std::string& value);
  void ColourButton();
  void SetPortraitSets(const std::string& value);
  void SetAI(bool computer);
  void SetPP(const std::string& value);
  void SetFormation(const std::string& text);
  void SetEmail(const std::string& text);
  void SetIntro(const std::string& text);
  // The people editor.
  bool SelectPeople(int people, std::string* why);
  void NewPeopleButton();
  void SetPeopleName(const std::string& text);
  void SetOverrule(const std::string& value);
  // Name i (1..300) of the first or last name list.
  void SetFirstName(int i, const std::string& text);
  void SetLastName(int i, const std::string& text);
  void CloseButton() { open = false; }

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: select=N, new, delete, name=TEXT, hexcolor=N, people=N,
  // colour (the picker takes a queued answer "#rrggbb" or cancel), sets=N,
  // ai=0/1, pp=N, formation=TEXT, email=TEXT, intro=TEXT, newpeople,
  // peopleselect=N, peoplename=TEXT, overrule=V, firstname=I:TEXT,
  // lastname=I:TEXT, close.
  std::string DialogName() const override { return "regimes"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }
};

// "&H" + the lower-case hexadecimal digits of a colour 0x00BBGGRR, as the
// regime table keeps text colours ("&Hffffff" for white).
std::string ColourText(long bgr);

// Opens the Regimes dialog from the Edit menu and waits until it closes.
void OpenRegimesDialog();

}  // namespace mf
