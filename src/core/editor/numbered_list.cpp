#include "editor/numbered_list.h"

#include "model/arith.h"
#include "platform/platform.h"

namespace mf {

bool PickEntry(int n, int last, const std::string& noun, int* selected, std::string* why) {
  if (n < 1 || n > last) {
    *why = "there is no " + noun + " " + std::to_string(n) + " (the list holds 1.." + std::to_string(last) + ")";
    return false;
  }
  *selected = n;
  return true;
}

int NewEntry(int last, int cap, const std::string& full) {
  if (last >= cap) {
    Plat().ShowMessage(full, "");
    return 0;
  }
  return last + 1;
}

int EntryToDelete(int last, const std::string& none) {
  if (last == 0) {
    Plat().ShowMessage(none, "");
    return 0;
  }
  return last;
}

int AskCopySource(const std::string& question, const std::string& answer, int first, int last, int into) {
  const long from = ValLong(Plat().InputPrompt(question, "", answer));
  if (from < first || from > last || from == into) return 0;
  return static_cast<int>(from);
}

}  // namespace mf
