#include "view/counter.h"

#include <cmath>

#include "model/arith.h"
#include "model/game_state.h"
#include "model/rnd.h"
#include "model/type_lookup.h"
#include "view/canvas.h"

namespace mf {

namespace {

const RegimeRec& RegimeOf(Long r) { return ValidRegime(r) ? Regime[r] : Regime[0]; }

// One figure through readiness, experience and the counter divider.
long ScaleFigure(double raw, Long readiness, Long experience) {
  double v = std::trunc(raw * readiness / 100.0);
  v = std::trunc(v * experience / 100.0);
  Long divider = EV(301);
  if (divider < 1) divider = 1;  // a zeroed rule must not wipe every counter
  v = std::trunc(v / divider);
  if (v > 99) v = 99;
  return static_cast<long>(v);
}

}  // namespace

bool SeesUnitFully(int u) {
  if (UI.EditMode == 1 || Game.FogOfWar == 0) return true;
  return ValidUnit(u) && Unit[u].Regime == Game.CurRegime;
}

CounterNumbers CounterFigures(int u) {
  CounterNumbers n;
  if (!ValidUnit(u)) return n;
  const UnitRec& un = Unit[u];
  const Long types[4] = {un.InfType, un.MobType, un.ArtType, un.ArmType};
  const Long qtys[4] = {un.InfQty, un.MobQty, un.ArtQty, un.ArmQty};
  double attack = 0, defence = 0, soft = 0;
  for (int k = 0; k < 4; ++k) {
    const Long t = types[k];
    const double q = qtys[k];
    // Infantry and armour are many men and few tanks: their hit points weigh in.
    double w = 1.0;
    if (k == 0) w = AttrOf(t, kHitPoints) / 20.0;
    if (k == 3) w = AttrOf(t, kHitPoints) / 200.0;
    soft += AttrOf(t, kSoftAttack) * q * w;
    attack += (AttrOf(t, kSoftAttack) + AttrOf(t, kHardAttack)) * q * w;
    defence += (AttrOf(t, kSoftDefense) + AttrOf(t, kHardDefense)) * q * w;
  }
  n.softAttack = soft;
  n.attackSum = attack;
  n.attack = ScaleFigure(attack, un.Readiness, un.Experience);
  n.defence = ScaleFigure(defence, un.Readiness, un.Experience);
  if (un.ArtType > 0 && AttrOf(un.ArtType, kArtilleryRange) > 1) {
    n.hasArtillery = true;
    const double guns =
        static_cast<double>(AttrOf(un.ArtType, kArtilleryAttack) + AttrOf(un.ArtType, kAntiAirCap)) * un.ArtQty;
    n.artillery = ScaleFigure(guns, un.Readiness, un.Experience);
  }
  return n;
}

CounterTexts CounterFigureTexts(int u) {
  CounterTexts t;
  if (!ValidUnit(u)) return t;
  const UnitRec& un = Unit[u];
  const CounterNumbers n = CounterFigures(u);
  if (SeesUnitFully(u)) {
    t.attack = NumText(n.attack);
    t.defence = NumText(n.defence);
    if (n.hasArtillery) t.artillery = NumText(n.artillery);
  } else {
    // An enemy under fog: a rough figure that does not flicker from one
    // redraw to the next, since the seed is the same all through the turn.
    double a = static_cast<double>(Int((n.attack + n.defence) / 2.0));
    SeedRnd(static_cast<std::uint32_t>(Game.CurRegime + Game.Turn + un.Readiness + u));
    a = a + 0.2 * a;
    const double r = Rnd();
    a = a - r * a * 0.4;
    if (a < 0) a = 0;
    t.attack = "+-" + NumText(static_cast<long>(std::trunc(a)));
  }
  if (un.Theater == kLandTheater && n.softAttack < EV(101)) t.attack = "Low";
  if (n.attackSum == 0) t.attack = "   0";
  if (un.Shq > 0) t.attack = "SHQ";
  return t;
}

void DrawCounterFigures(Canvas& canvas, int u, int left, int top) {
  if (!ValidUnit(u)) return;
  const CounterTexts t = CounterFigureTexts(u);
  const Colour colour = ParseTextColour(RegimeOf(Unit[u].Regime).TextColor);
  const std::string font = "Small Fonts";
  if (!t.attack.empty()) canvas.Text(t.attack, left + kAttackTextX, top + kFigureTextY, font, kFigureFontSize, colour);
  if (!t.defence.empty()) canvas.Text(t.defence, left + kDefenceTextX, top + kFigureTextY, font, kFigureFontSize, colour);
  if (!t.artillery.empty()) canvas.Text(t.artillery, left + kArtilleryTextX, top + kArtilleryTextY, font, kFigureFontSize, colour);
}

}  // namespace mf
