// The Clear / New Game dialog: two size fields and "Make it so". The menu's
// new scenario command clears everything (rules back to their defaults),
// clear map keeps the rules; before every load the silent full clear runs
// with both fields "0".
#pragma once

#include <string>

#include "platform/platform.h"

namespace mf {

class ClearDialog : public HumbleDialog {
 public:
  enum Use { kClearMap, kNewScenario, kOnlyClear };

  static constexpr const char* kCaption = "Clear / New Game";
  static constexpr const char* kWidthLabel = "Map Width";
  static constexpr const char* kHeightLabel = "Map Height";
  static constexpr const char* kNote = "(max 100x100 map.. minimal 10x10)";
  static constexpr const char* kMakeItSo = "Make it so";

  // The fields start with the size of the map as it is (both "0" for the
  // silent clear).
  explicit ClearDialog(Use use);

  std::string DialogName() const override { return "clear"; }
  bool IsOpen() const override { return open_; }
  // "width" and "height" with a text set the fields; "makeitso" clears and
  // closes; "cancel" closes without clearing.
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "makeitso"; }

  Use use() const { return use_; }
  bool Cleared() const { return cleared_; }

  std::string widthText;
  std::string heightText;

  // The buttons.
  void MakeItSoPressed();
  void Cancel() { open_ = false; }

 private:
  Use use_;
  bool open_ = true;
  bool cleared_ = false;
};

// The file menu's "new scenario" and "clear map": the dialog, and after a
// clear the window back in editing mode on the new map.
void NewScenarioCommand();
void ClearMapCommand();

}  // namespace mf
