// The Info dialog: one unit type in words, its name and price, the word of
// its class and every ability it has. Opened from the Types dialog and from
// the Urban Production dialog.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

// The title: type name + " (" + cost + ")".
std::string TypeInfoTitle(int t);
// The word of a class in a theater: land "INFANTRY", "MOBILE", "ARTILLERY",
// "ARMOR"; sea "WARSHIP", "CARGOSHIP", "CARRIER", "SUB"; air "FIGHTER",
// "TRANSPORTER", "BOMBER". "" for a class the theater has no word for.
const std::string& TypeClassWord(int theater, int cls);
// The lines under the title: the class word, then each attribute other than
// 0 as label + " = " + value, in attribute order.
std::vector<std::string> TypeInfoLines(int t);

class TypeInfoDialog : public HumbleDialog {
 public:
  static constexpr const char* kClose = "Close";
  void Prepare(int type);

  // ---- Outputs ------------------------------------------------------------
  std::string caption;             // the title
  std::vector<std::string> lines;  // the class word and the attributes
  int type = 0;
  bool open = false;

  void CloseButton() { open = false; }
  // Title and lines as plain text, for the clipboard.
  std::string Text() const;

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: close.
  std::string DialogName() const override { return "info"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }
};

// Joins the lines of a report into one text with a line break after each,
// as the reports are copied to the clipboard.
std::string JoinLines(const std::vector<std::string>& lines);

// Shows the Info dialog of type t and waits until it is closed; nothing for
// a type outside 1..Game.TypeCount.
void OpenTypeInfoDialog(int t);

}  // namespace mf
