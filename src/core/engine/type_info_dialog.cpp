#include "engine/type_info_dialog.h"

#include "model/arith.h"
#include "model/game_state.h"
#include "model/labels.h"

namespace mf {
namespace {

const std::string kNoWord;
const std::string kClassWords[3][5] = {
    {"", "INFANTRY", "MOBILE", "ARTILLERY", "ARMOR"},
    {"", "WARSHIP", "CARGOSHIP", "CARRIER", "SUB"},
    {"", "FIGHTER", "TRANSPORTER", "BOMBER", ""},
};

bool Listed(int t) { return ValidType(t) && t <= Game.TypeCount; }

}  // namespace

std::string TypeInfoTitle(int t) {
  if (!ValidType(t)) return "";
  return Type[t].Name + " (" + NumText(Type[t].Cost) + ")";
}

const std::string& TypeClassWord(int theater, int cls) {
  if (theater < 0 || theater > 2 || cls < 1 || cls > 4) return kNoWord;
  return kClassWords[theater][cls];
}

std::vector<std::string> TypeInfoLines(int t) {
  std::vector<std::string> out;
  if (!ValidType(t)) return out;
  const TypeRec& ty = Type[t];
  out.push_back(TypeClassWord(ty.Theater, ty.Class));
  for (int a = 1; a <= kTypeAttrs; ++a)
    if (ty.Attr[a] != 0) out.push_back(TypeAttrLabel(a) + " = " + NumText(ty.Attr[a]));
  return out;
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& line : lines) {
    text += line;
    text += '\n';
  }
  return text;
}

void TypeInfoDialog::Prepare(int t) {
  type = t;
  open = Listed(t);
  caption = TypeInfoTitle(t);
  lines = TypeInfoLines(t);
  if (!open) return;
  std::vector<std::string> shown{caption};
  shown.insert(shown.end(), lines.begin(), lines.end());
  Plat().ShowReport(shown);
}

std::string TypeInfoDialog::Text() const {
  std::vector<std::string> all{caption};
  all.insert(all.end(), lines.begin(), lines.end());
  return JoinLines(all);
}

bool TypeInfoDialog::Act(const std::string& action, const std::string&, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (action != "close") {
    *why = "no action \"" + action + "\" in the Info dialog (close)";
    return false;
  }
  CloseButton();
  return true;
}

void OpenTypeInfoDialog(int t) {
  TypeInfoDialog dialog;
  dialog.Prepare(t);
  if (dialog.IsOpen()) Plat().RunDialog(dialog);
}

}  // namespace mf
