// The menu entries of the editors and the status reports: their words, when
// each can be chosen, and opening one by its name as its menu entry does.
#pragma once

#include <span>
#include <string>

namespace mf {

// One entry: its script name ("types") and its words in the menu ("Types...").
struct EditorMenuEntry {
  const char* name;
  const char* text;
};
// The Edit menu's editors, in menu order.
std::span<const EditorMenuEntry> EditMenuEntries();
// The Game menu's reports.
std::span<const EditorMenuEntry> GameMenuEntries();

// Whether the entry of that name can be chosen now. The reports can be read
// whenever the game is not at work; the editors work on a map under edit,
// never in play, and the unit editor needs a selected formation.
bool MenuDialogEnabled(const std::string& name);

// Opens the dialog of a menu entry by its script name and waits until it
// closes. False, with the reason, for an unknown name or an entry that
// cannot be chosen now.
bool OpenMenuDialog(const std::string& name, std::string* why);

}  // namespace mf
