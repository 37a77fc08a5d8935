// Pictures of the unit types (96 x 64) and of scenario events (200 x 150).
#include <cmath>

#include "art.h"
#include "scene.h"

namespace art {
namespace {

const RGB kOlive = C(104, 112, 66);
const RGB kFieldGrey = C(110, 116, 104);
const RGB kSand = C(170, 150, 100);
const RGB kNavyGrey = C(128, 136, 146);
const RGB kHullGrey = C(96, 104, 114);
const RGB kUniform = C(96, 100, 66);

void FieldGun(Canvas& c, float x, float g, float s, float elevation, float barrel, RGB base) {
  Canvas layer(c.Width(), c.Height());
  const float k = s;
  // Trail to the rear, wheel, shield, barrel.
  layer.Fill(Line({x, g - 1}, {x + 16 * k, g - 8 * k}, 2.2f * k), Shade(base, 0.8f));
  const Pt pivot{x + 18 * k, g - 8 * k};
  const Pt muzzle{pivot.x + barrel * k * std::cos(elevation), pivot.y - barrel * k * std::sin(elevation)};
  layer.Fill(Line(pivot, muzzle, 2.0f * k), Shade(base, 0.75f));
  layer.Fill(Line(pivot, Lerp(pivot, muzzle, 0.35f), 3.2f * k), base);
  Shaded(layer, Polygon({{pivot.x - 2 * k, pivot.y - 8 * k}, {pivot.x + 3 * k, pivot.y - 9 * k}, {pivot.x + 3.5f * k, pivot.y + 2 * k},
                       {pivot.x - 2 * k, pivot.y + 2 * k}}),
       base);
  layer.Fill(Circle(pivot.x, g - 5 * k, 5 * k), C(50, 46, 40));
  layer.Fill(Circle(pivot.x, g - 5 * k, 2.5f * k), Shade(base, 0.9f));
  layer.Fill(Circle(pivot.x, g - 5 * k, 0.9f * k), C(40, 40, 36));
  Outline(layer, C(26, 26, 22));
  c.Draw(layer, 0, 0);
}

void Parachute(Canvas& c, float x, float y, float s, RGB cloth) {
  c.Fill(Intersect(Ellipse(x, y, 9 * s, 6 * s), Rect(x - 10 * s, y - 7 * s, x + 10 * s, y)), cloth);
  for (int i = -2; i <= 2; ++i) {
    c.Fill(Intersect(Ellipse(x + i * 3.6f * s, y, 1.8f * s, 1.2f * s), Rect(x - 10 * s, y - 2 * s, x + 10 * s, y + 0.1f)),
           Shade(cloth, 0.75f));
  }
  for (int i = -1; i <= 1; i += 2) c.Fill(Line({x + i * 8.6f * s, y}, {x, y + 9 * s}, 0.5f), C(60, 60, 60));
  c.Fill(Line({x, y}, {x, y + 9 * s}, 0.5f), C(60, 60, 60));
  c.Fill(Circle(x, y + 10 * s, 1.4f * s), C(90, 92, 60));
  c.Fill(Line({x, y + 10.5f * s}, {x, y + 14 * s}, 1.8f * s), kUniform);
  c.Fill(Line({x, y + 14 * s}, {x - 1 * s, y + 17 * s}, 1.0f * s), kUniform);
  c.Fill(Line({x, y + 14 * s}, {x + 1 * s, y + 17 * s}, 1.0f * s), kUniform);
}

void Rocket(Canvas& c, float x, float g, float h) {
  // A rocket on its stand, venting before launch.
  Smoke(c, x + 8, g - 4, 10, 31, C(210, 206, 198), 0.9f);
  c.Fill(Line({x - 8, g}, {x - 2, g - h * 0.5f}, 1.4f), C(60, 60, 56));
  c.Fill(Line({x + 8, g}, {x + 2, g - h * 0.5f}, 1.4f), C(60, 60, 56));
  Canvas layer(c.Width(), c.Height());
  Shaded(layer, Polygon({{x - 3.5f, g - 5}, {x - 3.5f, g - h * 0.8f}, {x, g - h}, {x + 3.5f, g - h * 0.8f}, {x + 3.5f, g - 5}}),
       C(226, 222, 210), 0.1f, 0.8f);
  layer.Fill(Rect(x - 3.5f, g - h * 0.55f, x + 3.5f, g - h * 0.45f), C(40, 40, 40));
  layer.Fill(Polygon({{x - 3.5f, g - 5}, {x - 7, g - 2}, {x - 3.5f, g - 12}}), C(50, 50, 50));
  layer.Fill(Polygon({{x + 3.5f, g - 5}, {x + 7, g - 2}, {x + 3.5f, g - 12}}), C(50, 50, 50));
  Outline(layer, C(30, 30, 30));
  c.Draw(layer, 0, 0);
}

}  // namespace

Canvas TypePicture(int n) {
  Canvas c(kTypeW, kTypeH);
  const int kind = n;
  const bool sea = kind >= 13 && kind <= 20;
  const bool air = (kind >= 21 && kind <= 27);
  if (sea) {
    SeaBackdrop(c, 38, n);
  } else if (air) {
    SkyBackdrop(c, n);
    if (kind == 27) {
      c.FillFn(Rect(-1, 50, 97, 65), [](float, float y) { return Mix(C(70, 116, 160), C(28, 64, 108), (y - 50) / 14); });
      Waves(c, 52, C(150, 186, 214), n);
    }
  } else if (kind == 5) {
    LandBackdrop(c, 44, n);
    c.Fill(Polygon({{-1, 48}, {30, 14}, {46, 28}, {62, 12}, {97, 44}, {97, 65}, {-1, 65}}), C(132, 124, 110));
    c.Fill(Polygon({{22, 23}, {30, 14}, {37, 21}, {33, 20}, {29, 24}}), C(244, 244, 240));
    c.Fill(Polygon({{55, 19}, {62, 12}, {69, 19}, {64, 18}, {60, 21}}), C(244, 244, 240));
    c.Fill(Polygon({{-1, 56}, {40, 44}, {97, 52}, {97, 65}, {-1, 65}}), C(120, 134, 80));
  } else {
    LandBackdrop(c, 40, n);
  }
  switch (kind) {
    case 1:  // rifle infantry advancing
      SoldierSide(c, 22, 58, 26, kUniform, 0);
      SoldierSide(c, 48, 55, 24, kUniform, 0);
      SoldierSide(c, 72, 59, 27, kUniform, 0);
      break;
    case 2: TruckSide(c, 12, 58, 70, kOlive, 0); break;
    case 3:  // engineers with a footbridge over a stream
      c.Fill(Rect(-1, 50, 97, 58), C(60, 110, 170));
      c.Fill(Rect(10, 47, 86, 50), C(150, 110, 66));
      for (float px = 14; px < 86; px += 12) c.Fill(Rect(px, 50, px + 2, 58), C(100, 70, 40));
      SoldierSide(c, 30, 47, 22, kUniform, 2);
      SoldierSide(c, 62, 47, 22, kUniform, 2);
      break;
    case 4:  // paratroops
      Parachute(c, 28, 10, 1.2f, C(226, 222, 206));
      Parachute(c, 62, 4, 1.0f, C(206, 210, 190));
      Parachute(c, 80, 20, 0.8f, C(226, 222, 206));
      break;
    case 5:
      SoldierSide(c, 30, 56, 22, C(90, 100, 90), 3);
      SoldierSide(c, 56, 53, 22, C(90, 100, 90), 3);
      break;
    case 6: FieldGun(c, 14, 58, 1.5f, 0.28f, 26, kOlive); break;
    case 7: FieldGun(c, 4, 58, 1.6f, 0.5f, 38, kFieldGrey); break;
    case 8:  // anti-aircraft gun on its cross mount
      c.Fill(Line({22, 57}, {74, 57}, 2.4f), C(60, 60, 50));
      FieldGun(c, 30, 57, 1.2f, 1.0f, 30, kOlive);
      Smoke(c, 80, 10, 5, 8, C(60, 60, 60), 0.8f);
      Smoke(c, 64, 6, 4, 9, C(60, 60, 60), 0.7f);
      break;
    case 9: TankSide(c, 24, 58, {40, 7, 13, 5, 11, 4, kOlive}); break;
    case 10: TankSide(c, 16, 58, {52, 9, 18, 6.5f, 22, 5, kFieldGrey}); break;
    case 11: TankSide(c, 8, 59, {62, 11, 24, 8, 28, 7, C(96, 100, 84)}); break;
    case 12: ArmouredCar(c, 16, 58, 60, kSand); break;
    case 13: ShipSide(c, 10, 46, {74, 4, 2, 2, 1, 1, 6, 0.8f, false, false, false, kHullGrey, kNavyGrey}); break;
    case 14: ShipSide(c, 6, 47, {82, 5, 2.5f, 2, 2, 1, 8, 1.0f, false, false, false, kHullGrey, kNavyGrey}); break;
    case 15: ShipSide(c, 3, 48, {88, 6, 3, 1, 2, 2, 12, 1.3f, false, false, false, C(86, 92, 100), kNavyGrey}); break;
    case 16: ShipSide(c, 8, 46, {78, 7, 3, 1, 0, 0, 8, 1, false, true, false, C(60, 60, 64), C(214, 206, 186)}); break;
    case 17: ShipSide(c, 4, 47, {86, 6, 3, 0, 0, 0, 7, 1, true, false, false, kHullGrey, kNavyGrey}); break;
    case 18: {  // submarine, half under water
      Canvas layer(c.Width(), c.Height());
      Shaded(layer, Ellipse(46, 46, 38, 4.2f), C(60, 66, 70));
      Shaded(layer, Polygon({{38, 44}, {40, 34}, {52, 34}, {55, 44}}), C(70, 76, 80));
      layer.Fill(Line({46, 34}, {46, 28}, 0.9f), C(40, 40, 40));
      layer.Fill(Line({62, 42}, {68, 42}, 1.2f), C(40, 40, 40));
      Outline(layer, C(20, 20, 20));
      c.Draw(layer, 0, 0);
      c.FillFn(Rect(-1, 46, 97, 65), [](float, float y) { return Mix(C(60, 104, 150), C(28, 64, 108), (y - 46) / 18); }, 0.85f);
      Waves(c, 47, C(160, 196, 222), 18);
      break;
    }
    case 19: ShipSide(c, 6, 47, {84, 8, 3, 2, 0, 0, 10, 1, false, false, true, C(50, 50, 56), C(226, 222, 210)}); break;
    case 20:  // patrol boat with a bow wave
      ShipSide(c, 22, 45, {44, 4, 1.5f, 0, 1, 0, 6, 0.6f, false, false, false, kHullGrey, kNavyGrey});
      c.Fill(Polygon({{62, 44}, {78, 49}, {62, 47}}), C(236, 242, 246), 0.9f);
      c.Fill(Polygon({{8, 45}, {24, 44}, {24, 47}, {6, 48}}), C(236, 242, 246), 0.8f);
      break;
    case 21: PlaneSide(c, 48, 30, {46, 7, 1, false, false, false, false, 0, C(96, 112, 84), C(170, 190, 200)}); break;
    case 22: PlaneSide(c, 48, 30, {56, 7, 2, false, false, false, false, 0, C(110, 112, 100), C(170, 190, 200)}); break;
    case 23: PlaneSide(c, 48, 30, {68, 9, 2, false, false, true, false, 0, C(176, 180, 184), C(150, 156, 160)}); break;
    case 24: PlaneSide(c, 48, 30, {66, 8, 2, true, false, false, false, 0, C(96, 106, 80), C(160, 180, 196)}); break;
    case 25: PlaneSide(c, 48, 30, {82, 9, 4, true, false, false, false, 0, C(70, 74, 70), C(60, 64, 66)}); break;
    case 26:  // dive bomber, nose down, bomb away
      PlaneSide(c, 46, 26, {48, 7, 1, false, true, false, false, 0.55f, C(120, 122, 96), C(170, 190, 200)});
      c.Fill(EllipseRot(66, 50, 3.4f, 1.4f, 0.9f), C(40, 40, 40));
      break;
    case 27:  // naval bomber on floats over the sea
      PlaneSide(c, 48, 26, {56, 7, 1, false, false, false, true, 0, C(110, 130, 140), C(190, 200, 206)});
      break;
    case 28: Rocket(c, 48, 60, 50); break;
    case 29:
      TruckSide(c, 2, 58, 44, kOlive, 1);
      TruckSide(c, 50, 56, 40, kOlive, 1);
      break;
    default: StaffCar(c, 16, 58, 62, C(60, 64, 52), C(200, 40, 36)); break;
  }
  Frame(c);
  return c;
}

Canvas EventPicture(int n) {
  Canvas c(kEventW, kEventH);
  switch (n) {
    case 1: {  // battle
      Gradient(c, -1, 100, C(120, 90, 70), C(224, 170, 110));
      c.FillFn(Rect(-1, 96, 201, 151), [](float x, float y) {
        return Shade(Mix(C(120, 110, 70), C(80, 72, 46), (y - 96) / 54), 0.9f + 0.15f * Noise(x / 8, y / 4, 1));
      });
      Smoke(c, 40, 70, 30, 11, C(90, 84, 80), 0.9f);
      Smoke(c, 150, 60, 36, 12, C(70, 66, 64), 0.9f);
      Blast(c, 120, 92, 16, 13);
      TankSide(c, 22, 128, {70, 13, 26, 10, 30, 6, C(90, 94, 70)});
      TankSide(c, 130, 112, {40, 8, 15, 6, 17, 5, C(74, 78, 64)});
      SoldierSide(c, 110, 140, 26, kUniform, 0);
      SoldierSide(c, 160, 146, 28, kUniform, 0);
      break;
    }
    case 2: {  // a town
      LandBackdrop(c, 96, 2);
      c.Fill(Polygon({{70, 150}, {96, 100}, {104, 100}, {130, 150}}), C(190, 176, 146));
      HouseFront(c, 8, 112, 34, 30, C(226, 210, 180), C(170, 70, 50));
      HouseFront(c, 46, 108, 26, 26, C(210, 196, 170), C(140, 60, 46));
      HouseFront(c, 130, 110, 30, 28, C(232, 220, 196), C(120, 84, 60));
      HouseFront(c, 164, 114, 30, 32, C(214, 200, 176), C(170, 70, 50));
      // The church tower.
      Shaded(c, Rect(92, 40, 108, 100), C(200, 190, 170), 0.1f, 0.85f);
      c.Fill(Polygon({{89, 41}, {100, 14}, {111, 41}}), C(80, 110, 120));
      c.Fill(Circle(100, 56, 4.5f), C(236, 230, 210));
      c.Fill(Line({100, 56}, {100, 53}, 0.8f), C(30, 30, 30));
      c.Fill(Line({100, 56}, {102.5f, 56}, 0.8f), C(30, 30, 30));
      c.Fill(Rect(96, 84, 104, 100), C(90, 62, 40));
      BroadTree(c, 76, 112, 30, C(70, 120, 60));
      BroadTree(c, 124, 110, 26, C(80, 128, 60));
      break;
    }
    case 3: {  // diplomacy: a handshake over the table
      Gradient(c, -1, 151, C(110, 70, 56), C(60, 36, 30));
      c.Fill(Rect(-1, 104, 201, 151), C(96, 58, 36));
      c.Fill(Rect(-1, 104, 201, 108), C(130, 84, 52));
      // Two flags on the table.
      for (int s = 0; s < 2; ++s) {
        const float fx = s ? 172 : 22;
        c.Fill(Line({fx, 104}, {fx, 64}, 1.4f), C(200, 180, 120));
        c.Fill(Rect(fx + 1, 64, fx + 19, 76), s ? C(40, 84, 200) : C(204, 40, 36));
        c.Fill(Rect(fx + 1, 70, fx + 19, 72), C(240, 236, 220));
      }
      // Sleeves from left and right, hands meeting in the middle.
      Shaded(c, Polygon({{-1, 96}, {70, 74}, {80, 86}, {-1, 118}}), C(40, 44, 56));
      Shaded(c, Polygon({{201, 96}, {130, 74}, {120, 86}, {201, 118}}), C(70, 60, 50));
      c.Fill(Polygon({{66, 74}, {74, 72}, {78, 88}, {70, 90}}), C(240, 236, 226));
      c.Fill(Polygon({{134, 74}, {126, 72}, {122, 88}, {130, 90}}), C(240, 236, 226));
      c.Fill(Ellipse(92, 80, 18, 9), C(228, 184, 146));
      c.Fill(Ellipse(108, 82, 18, 9), C(214, 170, 132));
      for (int f = 0; f < 4; ++f) c.Fill(Line({94 + f * 4.0f, 74}, {96 + f * 4.0f, 88}, 0.8f), C(170, 120, 90));
      c.Fill(Ellipse(100, 72, 8, 3.5f), C(232, 190, 152));
      break;
    }
    case 4: {  // the fleet at sea at dusk
      Gradient(c, -1, 84, C(70, 80, 130), C(246, 176, 110));
      c.Fill(Circle(150, 80, 14), C(255, 220, 150));
      c.FillFn(Rect(-1, 82, 201, 151), [](float, float y) { return Mix(C(80, 90, 120), C(24, 40, 70), (y - 82) / 68); });
      Waves(c, 86, C(220, 170, 130), 4);
      ShipSide(c, 10, 86, {50, 4, 2, 2, 2, 1, 8, 0.8f, false, false, false, C(50, 54, 66), C(70, 74, 86)});
      ShipSide(c, 100, 84, {36, 3, 1.5f, 1, 1, 1, 6, 0.6f, false, false, false, C(60, 64, 76), C(80, 84, 96)});
      ShipSide(c, 30, 118, {120, 9, 4, 1, 2, 2, 18, 1.8f, false, false, false, C(70, 76, 88), C(100, 106, 118)});
      break;
    }
    case 5: {  // aircraft in formation
      Gradient(c, -1, 151, C(80, 130, 200), C(210, 226, 240));
      Cloud(c, 40, 118, 16, C(252, 252, 250));
      Cloud(c, 150, 132, 20, C(252, 252, 250));
      Cloud(c, 170, 36, 10, C(252, 252, 250), 0.7f);
      PlaneSide(c, 120, 48, {70, 9, 2, true, false, false, false, 0.05f, C(96, 106, 80), C(160, 180, 196)});
      PlaneSide(c, 60, 78, {60, 8, 2, true, false, false, false, 0.05f, C(96, 106, 80), C(160, 180, 196)});
      PlaneSide(c, 150, 100, {50, 7, 1, false, false, false, false, 0.0f, C(96, 112, 84), C(170, 190, 200)});
      break;
    }
    case 6: {  // winter
      Gradient(c, -1, 90, C(150, 164, 184), C(214, 220, 228));
      c.Fill(Polygon({{-1, 90}, {50, 70}, {110, 86}, {160, 66}, {201, 82}, {201, 151}, {-1, 151}}), C(226, 232, 240));
      c.FillFn(Rect(-1, 96, 201, 151), [](float x, float y) { return Mix(C(240, 244, 250), C(206, 214, 228), 0.5f + 0.5f * Noise(x / 20, y / 6, 6)); });
      for (int i = 0; i < 9; ++i) Pine(c, 10 + i * 22.0f + 6 * Hash(i, 1, 6), 96 + 6 * Hash(i, 2, 6), 30 + 14 * Hash(i, 3, 6), C(50, 80, 66));
      for (int i = 0; i < 9; ++i) {
        const float px = 10 + i * 22.0f + 6 * Hash(i, 1, 6);
        c.Fill(Polygon({{px - 5, 80}, {px, 72}, {px + 5, 80}}), C(240, 244, 250), 0.8f);
      }
      SoldierSide(c, 60, 134, 26, C(200, 204, 206), 3);
      SoldierSide(c, 100, 130, 24, C(200, 204, 206), 3);
      SoldierSide(c, 140, 136, 26, C(200, 204, 206), 3);
      for (int i = 0; i < 160; ++i) c.Fill(Circle(Hash(i, 1, 66) * 200, Hash(i, 2, 66) * 150, 0.6f + Hash(i, 3, 66)), C(252, 252, 255), 0.9f);
      break;
    }
    case 7: {  // victory: a flag on the hill in the sun
      Gradient(c, -1, 151, C(250, 210, 120), C(250, 240, 200));
      for (int r = 0; r < 16; ++r) {
        const float a = r * 0.3927f;
        c.Fill(Polygon({{100, 60}, {100 + 200 * std::cos(a), 60 + 200 * std::sin(a)}, {100 + 200 * std::cos(a + 0.18f), 60 + 200 * std::sin(a + 0.18f)}}),
               C(255, 236, 160), 0.6f);
      }
      c.Fill(Circle(100, 60, 18), C(255, 246, 200));
      c.Fill(Polygon({{-1, 151}, {-1, 126}, {60, 108}, {100, 100}, {140, 108}, {201, 120}, {201, 151}}), C(100, 122, 60));
      c.Fill(Line({100, 101}, {100, 22}, 2.2f), C(60, 50, 40));
      c.FillFn(Polygon({{101, 24}, {126, 20}, {150, 28}, {172, 24}, {172, 58}, {150, 62}, {126, 54}, {101, 58}}),
               [](float x, float) { return Shade(C(44, 76, 166), 0.85f + 0.2f * std::sin(x / 8.0f)); });
      // The emblem: a golden wreath round a star.
      c.Fill(Ring(136, 41, 10, 2.2f), C(240, 200, 70));
      for (int leaf = 0; leaf < 10; ++leaf) {
        const float a = 0.8f + leaf * 0.47f;
        c.Fill(EllipseRot(136 + 11.5f * std::cos(a), 41 + 11.5f * std::sin(a), 2.6f, 1.1f, a + 1.2f), C(240, 200, 70));
      }
      DrawStar(c, 136, 41, 6, C(250, 226, 120));
      break;
    }
    case 8: {  // the map and the plans
      c.FillFn(Rect(-1, -1, 201, 151), [](float x, float y) { return Shade(C(120, 80, 50), 0.9f + 0.2f * Noise(x / 30, y / 3, 8)); });
      c.Fill(Polygon({{20, 18}, {180, 12}, {186, 132}, {16, 138}}), C(226, 216, 184));
      // Hexes of the map with a coast, a river and towns.
      for (int gy = 0; gy < 7; ++gy) {
        for (int gx = 0; gx < 9; ++gx) {
          const float hx = 32 + gx * 17 + (gy % 2 ? 8.5f : 0), hy = 30 + gy * 15;
          const bool sea = gx + gy * 0.5f < 2.5f;
          std::vector<Pt> hex;
          for (int k = 0; k < 6; ++k) hex.push_back({hx + 9.0f * std::cos(0.5236f + k * 1.0472f), hy + 9.0f * std::sin(0.5236f + k * 1.0472f)});
          c.Fill(Polygon(hex), sea ? C(150, 180, 200) : (gx > 5 ? C(214, 170, 160) : C(200, 210, 160)), 0.8f);
          c.Stroke(hex, C(150, 136, 110), 0.5f);
        }
      }
      c.Fill(Polyline({{60, 20}, {80, 60}, {76, 90}, {100, 132}}, 2.0f), C(90, 130, 190));
      // Arrows of the plan.
      c.Fill(Polyline({{70, 110}, {110, 96}, {140, 70}}, 3.0f), C(200, 30, 30));
      c.Fill(Polygon({{146, 62}, {132, 68}, {142, 78}}), C(200, 30, 30));
      c.Fill(Polyline({{60, 50}, {100, 46}, {128, 50}}, 3.0f), C(200, 30, 30));
      c.Fill(Polygon({{136, 51}, {126, 44}, {124, 56}}), C(200, 30, 30));
      // Pencil and compass.
      c.Fill(Line({150, 120}, {196, 96}, 4.0f), C(230, 190, 60));
      c.Fill(Polygon({{150, 118}, {144, 125}, {152, 122}}), C(60, 40, 30));
      c.Fill(Line({24, 140}, {44, 100}, 1.5f), C(180, 180, 190));
      c.Fill(Line({44, 100}, {58, 140}, 1.5f), C(180, 180, 190));
      c.Fill(Circle(44, 100, 3), C(120, 120, 130));
      break;
    }
    case 9: {  // explosion
      Gradient(c, -1, 151, C(40, 30, 30), C(120, 70, 40));
      c.Fill(Rect(-1, 120, 201, 151), C(50, 40, 30));
      Smoke(c, 100, 40, 56, 91, C(60, 52, 48), 0.95f);
      Blast(c, 100, 88, 46, 92);
      for (int i = 0; i < 18; ++i) {
        const float a = -3.1f + 3.1f * Hash(i, 1, 93);
        const float d = 50 + 40 * Hash(i, 2, 93);
        c.Fill(Line({100 + d * 0.8f * std::cos(a), 88 + d * 0.8f * std::sin(a)}, {100 + d * std::cos(a), 88 + d * std::sin(a)}, 1.6f),
               C(40, 30, 26));
      }
      break;
    }
    case 10: {  // factory
      Gradient(c, -1, 110, C(150, 150, 156), C(206, 200, 190));
      for (int i = 0; i < 4; ++i) {
        const float x = 100 + i * 22.0f;
        c.Fill(Rect(x, 18 + i * 6.0f, x + 9, 110), C(130, 70, 56));
        c.Fill(Rect(x - 1, 18 + i * 6.0f, x + 10, 22 + i * 6.0f), C(60, 40, 36));
        Smoke(c, x + 14 + i * 2.0f, 8 + i * 6.0f, 10 + i * 2.0f, 100 + i, C(110, 106, 104), 0.8f);
      }
      // Saw-tooth roofs of the halls.
      std::vector<Pt> roof{{-1, 150}, {-1, 84}};
      for (float x = 0; x < 201; x += 24) {
        roof.push_back({x, 84});
        roof.push_back({x + 16, 64});
        roof.push_back({x + 16, 84});
      }
      roof.push_back({201, 84});
      roof.push_back({201, 150});
      c.Fill(Polygon(roof), C(90, 90, 96));
      c.Fill(Rect(-1, 84, 201, 130), C(150, 96, 74));
      for (float x = 8; x < 200; x += 18) c.Fill(Rect(x, 92, x + 10, 108), C(250, 210, 120));
      c.Fill(Rect(-1, 130, 201, 151), C(80, 78, 74));
      TruckSide(c, 20, 146, 50, kOlive, 1);
      break;
    }
    case 11: {  // harbour
      SeaBackdrop(c, 80, 11);
      c.Fill(Rect(-1, 60, 90, 110), C(150, 140, 120));
      for (int i = 0; i < 3; ++i) HouseFront(c, 4 + i * 28.0f, 60, 24, 18, C(200, 170, 130), C(130, 60, 44));
      c.Fill(Rect(-1, 108, 110, 151), C(120, 116, 110));
      c.Fill(Rect(-1, 106, 110, 110), C(90, 86, 82));
      // Cranes on the quay.
      for (float cx : {40.0f, 90.0f}) {
        c.Fill(Line({cx, 108}, {cx, 40}, 2.4f), C(180, 110, 40));
        c.Fill(Line({cx - 10, 42}, {cx + 40, 42}, 2.0f), C(180, 110, 40));
        c.Fill(Line({cx + 32, 42}, {cx + 32, 70}, 0.7f), C(50, 50, 50));
        c.Fill(Rect(cx + 28, 70, cx + 36, 76), C(160, 110, 60));
      }
      ShipSide(c, 112, 118, {84, 9, 4, 1, 0, 0, 12, 1, false, true, false, C(60, 60, 66), C(214, 206, 186)});
      break;
    }
    default: {  // ruins
      Gradient(c, -1, 110, C(120, 116, 112), C(180, 170, 156));
      Smoke(c, 150, 40, 30, 121, C(90, 88, 86), 0.8f);
      c.FillFn(Rect(-1, 108, 201, 151), [](float x, float y) { return Shade(C(130, 120, 104), 0.85f + 0.25f * Noise(x / 5, y / 5, 12)); });
      // Broken walls with empty windows.
      c.Fill(Polygon({{20, 110}, {20, 40}, {36, 34}, {44, 52}, {58, 46}, {60, 110}}), C(170, 150, 130));
      c.Fill(Polygon({{110, 110}, {110, 60}, {124, 50}, {132, 70}, {150, 66}, {152, 110}}), C(160, 140, 124));
      for (float x : {28.0f, 44.0f}) c.Fill(Rect(x, 64, x + 8, 80), C(40, 36, 34));
      c.Fill(Rect(120, 78, 128, 94), C(40, 36, 34));
      c.Fill(Rect(136, 80, 144, 96), C(40, 36, 34));
      for (int i = 0; i < 30; ++i) {
        const float x = Hash(i, 1, 122) * 200, y = 112 + Hash(i, 2, 122) * 36;
        c.Fill(Polygon({{x, y}, {x + 4 + 6 * Hash(i, 3, 122), y - 1}, {x + 6, y + 4}, {x - 1, y + 3}}), C(100, 90, 80));
      }
      c.Fill(Line({70, 112}, {96, 88}, 2.2f), C(70, 50, 36));
      c.Fill(Line({64, 104}, {90, 120}, 2.2f), C(70, 50, 36));
      break;
    }
  }
  Frame(c);
  return c;
}

}  // namespace art
