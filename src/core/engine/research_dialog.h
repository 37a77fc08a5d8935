// The Research dialog: the fields a regime holds, the fields on offer with
// their prices, the details of the selected field and the Buy button. In the
// editor it also takes fields away from the regime and edits the research
// tree itself.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class ResearchDialog : public HumbleDialog {
 public:
  // Opens the dialog for `regime`; `editing` shows the editing buttons and
  // lets the Buy button skip price and needs.
  void Prepare(int regime, bool editing);
  // Rebuilds both lists, the details and the points label.
  void Refill();

  // ---- Outputs ------------------------------------------------------------
  std::string caption = "Research";
  std::string knownTitle = "Known research fields:";
  std::string offerTitle = "Research fields on offer:";
  std::vector<int> knownFields;          // field numbers, in number order
  std::vector<std::string> knownRows;    // their names
  std::vector<int> offerFields;
  std::vector<std::string> offerRows;    // name + " (" + cost + ")", "***" when a need is missing
  int knownIndex = -1;                   // row of the selection in a list, -1 none
  int offerIndex = -1;
  std::string pointsLabel;               // "(" + points + "pp available)"

  // Details of the selected field; all empty without a selection.
  std::string detailText;     // Research.Text
  std::string detailName;     // name + " (" + cost + ")"
  std::string detailNeed1;    // "NEED1: " + name, empty when the field needs nothing first
  std::string detailNeed2;    // "NEED2: " + name
  std::string detailNumber;   // "NR: " + number

  std::string buyCaption = "Buy";
  std::string closeCaption = "Close";
  // The editing buttons, shown only in the editor.
  bool editButtonsShown = false;
  std::string deleteCaption = "Delete";
  std::string numberCaption = "Field #";
  std::string nameCaption = "Name";
  std::string need1Caption = "Need 1";
  std::string need2Caption = "Need 2";
  std::string wipeCaption = "Wipe";
  std::string costLabel = "Cost:";
  std::string textLabel = "Text:";
  std::string costValue;  // the selected field's price and text, as the editor's boxes show them
  std::string textValue;

  // ---- State --------------------------------------------------------------
  bool open = false;
  bool editing = false;
  int regime = 0;
  int selected = 0;  // field number, 0 none

  // ---- The player's actions -------------------------------------------------
  // Selects field `field` in whichever list holds it. False when neither does.
  bool SelectField(int field, std::string* why);
  void BuyButton();
  void CloseButton() { open = false; }
  // Editor only. Takes the selected field away from the regime ("Deleted");
  // nothing unless the selection is a held field.
  void DeleteButton();
  // "Research field #": selects any field by its number, 1..200.
  void NumberButton();
  // "Research field name", "Field needed 1", "Field needed 2": edit the selected field.
  void NameButton();
  void NeedButton(int which);
  // Empties the selected field: name, needs, text and price.
  void WipeButton();
  // Plain edits of the selected field's price and text.
  void SetCost(const std::string& value);
  void SetText(const std::string& value);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: field=N, buy, close; in the editor also delete, number,
  // name, need1, need2, wipe (prompts answered by `answer`), cost=N, text=T.
  std::string DialogName() const override { return "research"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }
};

}  // namespace mf
