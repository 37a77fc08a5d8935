// The General dialog: what has no dialog of its own. The engine variables
// by category, the end-of-game population, the graphics and sound folders,
// the scenario's story, and its events with their data and text lines.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

// The label of data position i (1..30) / text position i (1..5) for an
// event of that type; "" where the type gives the position no use.
std::string EventDataLabel(long type, int i);
std::string EventTextLabel(long type, int i);

class GeneralDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "General";
  static constexpr const char* kCopy = "Copy Event From #";
  static constexpr const char* kClose = "Close";
  // The lowest and highest event the editor reaches.
  static constexpr int kFirstEvent = 1;
  static constexpr int kLastEvent = 199;

  void Prepare();
  void Refill();

  // ---- Outputs: engine variables ---------------------------------------------
  std::string filter;                 // the filter box over the list
  std::vector<std::string> evRows;    // the list lines; a changed row reads "* " + line + "  (default N)"
  std::vector<int> evOfRow;           // engine variable of each line, 0 for headings
  std::vector<bool> evChanged;        // the line's value differs from its default

  // ---- Outputs: general fields -------------------------------------------------
  struct Field {
    std::string label;  // "GAMEENDPOP", "DIR SOUND", ...
    std::string value;
  };
  std::vector<Field> generalFields;
  std::string storyValue;

  // ---- Outputs: the selected event ---------------------------------------------
  std::string eventBox;                   // the event number box
  std::vector<std::string> eventRows;     // events 1..199: number + ") " + first words of the story
  std::vector<std::string> eventFieldRows;  // label + " = " + value, by position
  std::vector<std::string> dataRows;      // number + ") " + label + " = " + value, or number + ") = " + value
  std::vector<std::string> textRows;
  std::string eventStory;

  // ---- State --------------------------------------------------------------
  bool open = false;
  int event = 0;  // selected event, 0 none

  // ---- The designer's actions -------------------------------------------------
  void SetFilter(const std::string& text);
  // Engine variable n through its "Give New Value" prompt; false for a
  // number the list does not show.
  bool ChangeVar(int n);
  void SetGameEndPop(const std::string& value);
  // Folder k: 0 sound, 1 colorcode, 2 map, 3 type, 4 officer. A change marks
  // the graphics for reloading.
  void SetFolder(int k, const std::string& value);
  void SetStory(const std::string& text);
  // The event number box: 1..199, else "Please fill in a valid number.".
  void EventNumber(const std::string& value);
  // Event field at position pos (1.. eventFieldRows.size()).
  bool SetEventField(int pos, const std::string& value);
  bool SetData(int i, const std::string& value);
  bool SetDataText(int i, const std::string& text);
  void SetEventStory(const std::string& text);
  void CopyButton();
  void CloseButton() { open = false; }

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: ev=N, filter=TEXT, gameendpop=V, dirsound=, dircolorcode=,
  // dirmap=, dirtype=, dirofficer= (each =PATH), story=TEXT, event=N,
  // evfield=POS:V, data=I:V, datatext=I:TEXT, evstory=TEXT, copy, close.
  std::string DialogName() const override { return "general"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }

 private:
  void Touch();  // the selected event is in use: the count reaches it
};

// Opens the General dialog from the Edit menu and waits until it closes.
void OpenGeneralDialog();

}  // namespace mf
