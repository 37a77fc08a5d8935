// The Current Unit dialog: the selected formation in the editor, its four
// troop classes set by picking a type and a quantity, its classes copied
// from another formation, an SHQ's supply stock, and its other fields.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class CurrentUnitDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Current Unit";
  static constexpr const char* kSetClass = "Set Class";
  static constexpr const char* kCopyFrom = "Copy From #";
  static constexpr const char* kStock = "Set Supply Stock";
  static constexpr const char* kClose = "Close";

  // One plain field of the unit record with the values it may take.
  struct Field {
    std::string name;   // registry name: "Readiness"
    std::string value;  // as the box shows it
    long lo = 0, hi = 0;
    bool text = false;      // a text field (the name)
    bool editable = true;   // SHQ, THQ, regime and cargo follow the map's orders
  };

  void Prepare(int unit);
  void Refill();

  // ---- Outputs ------------------------------------------------------------
  std::string numberLine;                 // "Unit # = " + number
  std::vector<std::string> classLines;    // "INFTYPE = 3 (Rifles)", "INFQTY = 10", ... eight lines
  std::vector<std::string> typeRows;      // the types to pick from: number + ") " + class word + " " + name
  int typeRow = -1;
  std::string quantity;                   // the quantity box
  bool stockEnabled = false;              // an SHQ's supply stock can be set
  std::string stockLine;                  // "Supply stock = " + points, for an SHQ
  std::vector<Field> fields;

  // ---- State --------------------------------------------------------------
  bool open = false;
  int unit = 0;
  int pickedType = 0;

  // ---- The designer's actions -------------------------------------------------
  bool PickType(int type, std::string* why);
  // Enters the quantity for the picked type: the type's class picks the
  // line; a negative quantity counts as 0.
  void SetClassButton(const std::string& qty);
  void CopyFromButton();
  void StockButton();
  // A plain field by its name; a value outside its limits is refused with a message.
  bool SetField(const std::string& name, const std::string& value, std::string* why);
  void CloseButton() { open = false; }

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: type=T (pick a type), qty=Q (enter its quantity),
  // copyfrom, stock, field=NAME:VALUE, close.
  std::string DialogName() const override { return "currentunit"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }
};

// Opens the Current Unit dialog for the selected formation from the Edit
// menu and waits until it closes; nothing without one.
void OpenCurrentUnitDialog();

}  // namespace mf
