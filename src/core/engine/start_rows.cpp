#include "engine/start_rows.h"

#include "model/arith.h"
#include "model/game_state.h"
#include "platform/platform.h"

namespace mf {
namespace {

bool RowShown(int row, int shown, std::string* why) {
  if (row >= 1 && row <= shown) return true;
  *why = "there is no row for regime " + std::to_string(row);
  return false;
}

bool ComputerBanned(ComputerBan ban) { return ban == ComputerBan::kAtOne ? EV(701) == 1 : EV(701) != 0; }

}  // namespace

void MirrorRegimeRows(RegimeRow* rows, int count, int shown) {
  for (int r = 1; r <= count; ++r) {
    RegimeRow& row = rows[r];
    row = RegimeRow{};
    row.shown = r <= shown;
    if (!row.shown) continue;
    row.name = Regime[r].Name;
    row.human = Regime[r].AI == 0;
    row.email = Regime[r].Email;
  }
}

bool ChooseHuman(int row, int shown, bool human, ComputerBan ban, std::string* why) {
  if (!RowShown(row, shown, why)) return false;
  if (!human && ComputerBanned(ban)) {
    Plat().ShowMessage("The AI is not allowed to play in this scenario.", "");
    Regime[row].AI = 0;
  } else {
    Regime[row].AI = human ? 0 : 1;
  }
  return true;
}

bool ChooseEmail(int row, int shown, const std::string& email, std::size_t limit, std::string* why) {
  if (!RowShown(row, shown, why)) return false;
  if (limit == 0 || Len(email) < limit) Regime[row].Email = email;
  return true;
}

}  // namespace mf
