// The Types dialog: the list of unit types and the editing of one at a
// time, under the rules of which class may have which ability.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class TypesDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Types";
  static constexpr const char* kNew = "New Type";
  static constexpr const char* kDelete = "Delete Last Type";
  static constexpr const char* kCopy = "Copy From #";
  static constexpr const char* kSprite = "Sprite";
  static constexpr const char* kOverride = "Counter Override";
  static constexpr const char* kInfo = "Info";
  static constexpr const char* kClose = "Close";
  static constexpr const char* kLivingTitle = "Built in towns where these people live:";
  static constexpr const char* kOwningTitle = "Built by regimes of these people:";

  // Opens the dialog on the first type.
  void Prepare();
  // Rebuilds the list and the selected type's fields.
  void Refill();

  // ---- Outputs ------------------------------------------------------------
  std::string filter;                 // the filter box: narrows the list by name or number
  std::vector<std::string> rows;      // number + ") " + class label + " " + name
  std::vector<int> typeOfRow;
  int row = -1;                       // the selected type's row, -1 when hidden or none

  // The selected type; all empty without one.
  std::string numberLabel;            // "Type # = " + number
  std::string nameValue, costValue, researchValue, textValue;
  int theater = 0;
  int typeClass = 0;
  std::vector<std::string> classLabels;  // the four class words of its theater
  std::string classLabel;                // its class word, "n/a" for none
  std::string spriteLabel;               // "Sprite: " + number
  std::string overrideLabel;             // "Counter override: " + number, or "none"
  std::vector<std::string> attrRows;     // label + " = " + value, attributes 1..20
  std::vector<long> attrValues;          // the same values alone, for the boxes
  std::vector<std::string> livingRows;   // "IF " or "NOT IF " + people name, peoples 1..count
  std::vector<std::string> owningRows;
  std::string researchLine;              // "No research needed", or "IF " + field name

  // ---- State --------------------------------------------------------------
  bool open = false;
  int selected = 0;  // type number, 0 none

  // ---- The designer's actions -------------------------------------------------
  bool Select(int type, std::string* why);
  void SetFilter(const std::string& text);
  void NewButton();
  void DeleteButton();
  void CopyButton();
  void SpriteButton();
  void OverrideButton();
  void InfoButton();
  void CloseButton() { open = false; }
  void SetName(const std::string& text);
  // Theater 0..2 and class 0..4; anything else is refused with a message.
  void SetTheater(const std::string& value);
  void SetClass(const std::string& value);
  void SetCost(const std::string& value);
  void SetResearch(const std::string& value);
  void SetText(const std::string& value);
  // Attribute a (1..20) to value, unless the rules of the classes refuse it.
  // False when refused (the refusal was shown).
  bool SetAttr(int attr, const std::string& value);
  // Flips whether the type may be made where people p lives / by people p.
  void ToggleLiving(int people);
  void ToggleOwning(int people);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: select=N, filter=TEXT, new, delete, copy, sprite,
  // override, info, close, name=TEXT, theater=T, class=C, cost=N, research=N,
  // text=TEXT, attr=A:V, living=P, owning=P.
  std::string DialogName() const override { return "types"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }
};

// Opens the Types dialog from the Edit menu and waits until it closes.
void OpenTypesDialog();

}  // namespace mf
