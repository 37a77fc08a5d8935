#include "orders/entrench.h"

#include <cstdint>
#include <string>

#include "model/arith.h"
#include "model/game_state.h"
#include "model/type_lookup.h"
#include "orders/flood.h"
#include "orders/order_buttons.h"
#include "platform/platform.h"
#include "platform/say.h"

namespace mf {
namespace {


// The SHQ that pays for a formation's works: its boss, or its boss's boss.
int PayingShq(int u) {
  const long boss = Unit[u].Boss;
  if (!ValidUnit(static_cast<int>(boss))) return 0;
  if (Unit[boss].Shq > 0) return static_cast<int>(boss);
  const long top = Unit[boss].Boss;
  if (ValidUnit(static_cast<int>(top)) && Unit[top].Shq > 0) return static_cast<int>(top);
  return 0;
}

}  // namespace

void doEntrench(int direction) {
  if (direction < 1 || direction > kHexSides) return;
  if (!ValidHex(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY)) || UI.OrdSlot < 1 || UI.OrdSlot > kStackSlots)
    return;
  HexRec& h = Hex[UI.OrdX][UI.OrdY];
  const int u = ValidUnit(static_cast<int>(h.Unit[UI.OrdSlot])) ? static_cast<int>(h.Unit[UI.OrdSlot]) : 0;
  if (u == 0) return;
  UnitRec& un = Unit[u];

  const long level = h.Entrench[direction] < 0 ? 0 : h.Entrench[direction];
  if (level >= 3) {
    Say("Maximum level of entrenchment (level 3) is reached already.");
    return;
  }
  // Works are paid from the SHQ's stock: a formation without one cannot dig.
  const int shq = PayingShq(u);
  if (shq == 0) return;

  const long cost = EV(111 + static_cast<int>(level));
  const std::int64_t skill = AttrOf(un.InfType, kEngineerSkill) * un.InfQty;
  if (skill < cost || un.InfQty <= 0 || un.Theater != kLandTheater) {
    Say("Only units with infantry with enough engineer skill can build fortifications. You need " + NumText(cost) +
        " skill points, and you only have: " + NumText(skill));
    return;
  }
  // Lacking engineer skill never costs extra as things stand; the message
  // keeps its place for it.
  const long penalty = 0;
  if (Unit[shq].SupplyPct < cost) {
    Say("Not enough supply in SHQ to construct this level of entrenchment. Supply needed is " + NumText(cost) +
        " of which " + NumText(penalty) + " would have been penalty points for not having enough engineer skill.");
    return;
  }
  // The more engineers above what the level needs, the faster the work.
  const double need = skill > 0 ? 2.0 * static_cast<double>(cost) / static_cast<double>(skill) : 0.0;
  if (un.MP < need || un.MP == 0) {
    Say("You need at least " + std::string(need > 1 ? "2" : "1") + " MP to do that.");
    return;
  }
  if (!Plat().AskYesNo("Do you want to spend " + NumText(cost) + " Supply Points to build a level " +
                           NumText(level + 1) + " fortification?",
                       ""))
    return;

  UI.Order.EntrenchOrder = 0;
  Unit[shq].SupplyPct -= static_cast<Long>(cost);
  h.Entrench[direction] = static_cast<Long>(level + 1);
  const double spent = need < 1 ? 1.0 : need;
  std::int64_t mp = CInt(static_cast<double>(un.MP) - spent);
  if (mp < 0) mp = 0;
  un.MP = static_cast<Long>(mp);

  ClearFlood();
  ReturnSelectionToOrigin();
  RequestRedraw(2);
  RefreshButtons();
  Buttons.doButton.enabled = false;
  Buttons.orderLineShown = false;
  Buttons.cancel.enabled = false;
  Helper();
}

}  // namespace mf
