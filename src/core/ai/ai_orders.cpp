#include "ai/ai_orders.h"

#include <algorithm>

#include "ai/ai_state.h"

#include "combat/attack.h"
#include "model/bounds.h"
#include "model/type_lookup.h"
#include "orders/movement.h"
#include "platform/platform.h"

namespace mf {

bool AILive(long u) { return ValidUnit(static_cast<int>(u)) && u != 0 && Unit[u].Regime != 0; }

void AIFloodWaves(long waves, const AIWaveStep& expand) {
  std::vector<HexXY> wave, next;
  for (int x = 1; x <= MapW(); ++x)
    for (int y = 1; y <= MapH(); ++y)
      if (Hex[x][y].Mark == 1) wave.push_back({x, y});
  for (long w = 1; w <= waves && !wave.empty(); ++w) {
    std::sort(wave.begin(), wave.end(), [](HexXY a, HexXY b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
    next.clear();
    for (const HexXY h : wave) expand(h.x, h.y, w, next);
    wave.swap(next);
  }
}

bool AIShowing() { return Game.ShowAIMoves != kFalse; }

void AIMoveSound() {
  if (UI.SoundOff == 0) Plat().PlaySound(kAIMoveSound);
}

void AIWatch(int x, int y) {
  if (AIShowing() && ValidHex(x, y)) CenterMap(x, y);
}

void AIShowChange(Long what) {
  if (!AIShowing()) return;
  RequestRedraw(what);
  Plat().YieldEvents();
}

bool AIIsHq(int u) { return ValidUnit(u) && (Unit[u].Thq > 0 || Unit[u].Shq > 0); }

bool AILongRange(int u) {
  if (!ValidUnit(u) || Unit[u].Theater != kLandTheater) return false;
  const long t = Unit[u].ArtType;
  return AttrOf(t, kArtilleryRange) > 1;
}

void AIFloodFrom(int x, int y, int slot) {
  UI.OrdX = x;
  UI.OrdY = y;
  UI.OrdSlot = slot;
  // As a player who selected the unit: some filters of the reach look at
  // the selection.
  UI.SelX = x;
  UI.SelY = y;
  UI.SelSlot = slot;
  MoveFlood(!AIShowing());
}

bool AIMoveUnitTo(int x, int y, int slot, int tx, int ty) {
  const Long u = Hex[x][y].Unit[slot];
  if (!ValidUnit(static_cast<int>(u))) return false;
  AIWatch(x, y);
  UI.OrdX = x;
  UI.OrdY = y;
  UI.OrdSlot = slot;
  UI.SelX = tx;
  UI.SelY = ty;
  UI.Order.SelOrderMove = u;
  const int result = MoveUnit(AIShowing());
  UI.Order.SelOrderMove = 0;
  if (result != kMoveDone) return false;
  AIMoveSound();
  // The selection is the target now: the square around it holds both ends.
  AIShowChange(1);
  return true;
}

void AIClearOrders() {
  UI.Order = OrderFlags{};
  UI.OrdX = UI.OrdY = UI.OrdSlot = 0;
  for (int i = 0; i <= kAttackerCap; ++i) {
    UI.AttackerX[i] = 0;
    UI.AttackerY[i] = 0;
    UI.AttackerSlot[i] = 0;
  }
  UI.AttackerCount = 0;
}

void AIFight(int tx, int ty) {
  AIWatch(tx, ty);
  UI.OrdX = tx;
  UI.OrdY = ty;
  UI.Order.AttackOrder = 1;
  doAttack();
  AIClearOrders();
  AIShowChange(2);
}

}  // namespace mf
