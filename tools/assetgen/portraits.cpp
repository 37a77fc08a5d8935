// Officer portraits, 64 x 80: forty faces for each of the five default
// peoples. Each people has its own uniform, backdrop and range of looks; the
// faces within a set differ in age, hair, headgear, beard and spectacles.
#include <algorithm>
#include <cmath>

#include "art.h"
#include "scene.h"

namespace art {
namespace {

struct People {
  RGB uniform, facing, backdrop;
  RGB skins[3];
  RGB hairs[4];
  RGB cap;
};

const People kPeoples[6] = {
    {},
    // a: grey-green coats, pale skins, fair to brown hair
    {C(96, 106, 92), C(170, 40, 40), C(150, 160, 170),
     {C(238, 204, 178), C(228, 190, 160), C(244, 214, 190)},
     {C(210, 180, 110), C(130, 90, 50), C(90, 66, 40), C(170, 130, 80)},
     C(84, 94, 80)},
    // b: khaki, weathered skins, dark hair
    {C(150, 126, 84), C(40, 90, 40), C(196, 176, 140),
     {C(214, 170, 130), C(196, 150, 110), C(222, 182, 142)},
     {C(50, 40, 34), C(80, 60, 44), C(30, 26, 24), C(120, 100, 80)},
     C(140, 116, 76)},
    // c: navy blue, fair skins, red to brown hair
    {C(44, 56, 92), C(210, 180, 60), C(120, 140, 170),
     {C(244, 212, 190), C(236, 200, 176), C(248, 222, 204)},
     {C(170, 90, 44), C(110, 70, 40), C(200, 160, 100), C(60, 44, 34)},
     C(36, 44, 76)},
    // d: olive, olive to brown skins, black hair
    {C(92, 98, 52), C(200, 40, 60), C(180, 150, 110),
     {C(190, 140, 100), C(170, 120, 84), C(206, 158, 118)},
     {C(26, 24, 24), C(46, 36, 30), C(70, 56, 46), C(20, 20, 22)},
     C(80, 86, 44)},
    // e: dark green, brown skins, black and grey hair
    {C(52, 80, 62), C(230, 200, 80), C(110, 150, 130),
     {C(150, 104, 72), C(126, 86, 58), C(170, 122, 86)},
     {C(24, 22, 22), C(40, 34, 30), C(150, 150, 150), C(30, 28, 28)},
     C(46, 70, 54)},
};

float R(int set, int n, int k) { return Hash(n, k, 7000 + set); }

}  // namespace

Canvas Portrait(int set, int n) {
  const People& p = kPeoples[std::clamp(set, 1, 5)];
  Canvas c(kPortraitW, kPortraitH);
  const float cx = 32 + (R(set, n, 1) - 0.5f) * 3;
  // Backdrop: a studio gradient with a soft light behind the head.
  Gradient(c, -1, 81, Tint(p.backdrop, 0.25f), Shade(p.backdrop, 0.7f));
  c.Fill(Circle(cx, 34, 26), Tint(p.backdrop, 0.35f), 0.35f);

  const RGB skin = Mix(p.skins[n % 3], p.skins[(n / 3) % 3], R(set, n, 2));
  const RGB hair = p.hairs[static_cast<int>(R(set, n, 3) * 4) % 4];
  const float age = R(set, n, 4);  // 0 young .. 1 old
  const RGB hairShown = age > 0.8f ? Mix(hair, C(200, 200, 200), (age - 0.8f) * 4) : hair;
  const float faceW = 11 + R(set, n, 5) * 2.5f, faceH = 14 + R(set, n, 6) * 2.5f;
  const float fy = 36;
  const int headgear = static_cast<int>(R(set, n, 7) * 10);  // 0..4 cap, 5..6 helmet, 7 beret, 8..9 bare

  // Shoulders and coat with collar, tabs and decorations.
  Shaded(c, Polygon({{-1, 81}, {-1, 68}, {10, 60}, {cx - 7, 55}, {cx + 7, 55}, {54, 60}, {65, 68}, {65, 81}}), p.uniform, 0.2f, 0.75f);
  c.Fill(Polygon({{cx - 8, 55}, {cx, 70}, {cx + 8, 55}, {cx + 4, 54}, {cx, 60}, {cx - 4, 54}}), Shade(p.uniform, 0.7f));
  c.Fill(Polygon({{cx - 3.5f, 55}, {cx, 63}, {cx + 3.5f, 55}}), C(236, 232, 222));
  c.Fill(Polygon({{cx - 1.6f, 57}, {cx, 66}, {cx + 1.6f, 57}}), Shade(p.uniform, 0.5f));
  c.Fill(Polygon({{cx - 12, 57}, {cx - 6, 56}, {cx - 4, 62}, {cx - 11, 63}}), p.facing);
  c.Fill(Polygon({{cx + 12, 57}, {cx + 6, 56}, {cx + 4, 62}, {cx + 11, 63}}), p.facing);
  c.Fill(Rect(5, 61, 17, 64), Tint(p.facing, 0.2f));
  c.Fill(Rect(47, 61, 59, 64), Tint(p.facing, 0.2f));
  const int medals = static_cast<int>(R(set, n, 8) * 4);
  for (int m = 0; m < medals; ++m) {
    const float mx = cx - 16 + m * 4.5f;
    c.Fill(Rect(mx - 1.5f, 68, mx + 1.5f, 70), m % 2 ? C(200, 40, 40) : C(40, 100, 180));
    c.Fill(Circle(mx, 72.5f, 1.6f), C(220, 190, 80));
  }
  for (float by : {68.0f, 75.0f}) c.Fill(Circle(cx + 0.2f, by, 0.9f), C(210, 190, 110));

  // Neck, ears, face.
  c.Fill(Rect(cx - 4.5f, fy + faceH - 6, cx + 4.5f, 57), Shade(skin, 0.85f));
  c.Fill(Ellipse(cx - faceW - 0.5f, fy + 1, 2.2f, 3.4f), Shade(skin, 0.9f));
  c.Fill(Ellipse(cx + faceW + 0.5f, fy + 1, 2.2f, 3.4f), Shade(skin, 0.9f));
  c.FillFn(Ellipse(cx, fy, faceW, faceH), [&](float x, float y) {
    // Light from the upper left.
    const float t = std::clamp(((x - cx) + (y - fy) * 0.6f) / (faceW * 1.6f) + 0.5f, 0.0f, 1.0f);
    return Mix(Tint(skin, 0.12f), Shade(skin, 0.82f), t);
  });
  // A broad or pointed chin.
  if (R(set, n, 9) > 0.5f) c.Fill(Ellipse(cx, fy + faceH * 0.55f, faceW * 0.8f, faceH * 0.45f), Shade(skin, 0.95f));

  // Hair, visible where the headgear leaves it.
  const bool bald = age > 0.7f && R(set, n, 10) > 0.5f;
  if (!bald || headgear >= 8) {
    c.Fill(Intersect(Ellipse(cx, fy - 3, faceW + 1.2f, faceH * 0.95f), Rect(0, 0, 64, fy - faceH * 0.35f)), hairShown);
    c.Fill(Rect(cx - faceW - 1.2f, fy - 6, cx - faceW + 1.6f, fy + 1), hairShown);
    c.Fill(Rect(cx + faceW - 1.6f, fy - 6, cx + faceW + 1.2f, fy + 1), hairShown);
  }

  // Eyes, brows, nose, mouth.
  const float ey = fy - 1 + R(set, n, 11) * 1.5f, es = 4.4f + R(set, n, 12) * 1.0f;
  for (int s = -1; s <= 1; s += 2) {
    c.Fill(Ellipse(cx + s * es, ey, 2.0f, 1.1f), C(246, 244, 238));
    c.Fill(Circle(cx + s * es + 0.3f, ey, 0.9f), R(set, n, 13) > 0.6f ? C(60, 100, 140) : C(70, 50, 36));
    const float tilt = (R(set, n, 14) - 0.5f) * 1.4f;
    c.Fill(Line({cx + s * (es - 2.2f), ey - 2.6f + (s > 0 ? tilt : 0)}, {cx + s * (es + 2.4f), ey - 2.8f - (s > 0 ? 0 : tilt)}, 1.1f),
           Shade(hairShown, 0.8f));
  }
  const float nose = 4 + R(set, n, 15) * 2;
  c.Fill(Polygon({{cx - 0.6f, ey + 1}, {cx - 2.0f, ey + nose + 1}, {cx + 1.6f, ey + nose + 1.4f}, {cx + 0.8f, ey + 1}}), Shade(skin, 0.8f));
  const float my = ey + nose + 4.5f;
  const bool moustache = R(set, n, 16) > 0.55f;
  const bool beard = R(set, n, 17) > 0.85f;
  if (beard) {
    c.Fill(Intersect(Ellipse(cx, fy + 2, faceW + 0.4f, faceH + 1.5f), Rect(0, my - 2, 64, 80)), Shade(hairShown, 0.95f));
  }
  const float smile = (R(set, n, 18) - 0.4f) * 1.4f;
  c.Fill(Polyline({{cx - 3.2f, my}, {cx, my + smile}, {cx + 3.2f, my}}, 0.9f), C(130, 70, 60));
  if (moustache) c.Fill(Polygon({{cx - 4.5f, my - 0.6f}, {cx, my - 2.6f}, {cx + 4.5f, my - 0.6f}, {cx, my - 1.2f}}), Shade(hairShown, 0.9f));
  if (age > 0.55f) {
    // Lines of age round the eyes and mouth.
    c.Fill(Line({cx - 5.5f, my - 3.5f}, {cx - 4.2f, my + 0.5f}, 0.5f), Shade(skin, 0.7f), 0.8f);
    c.Fill(Line({cx + 5.5f, my - 3.5f}, {cx + 4.2f, my + 0.5f}, 0.5f), Shade(skin, 0.7f), 0.8f);
  }
  if (R(set, n, 19) > 0.84f) {
    for (int s = -1; s <= 1; s += 2) c.Fill(Ring(cx + s * es, ey, 2.6f, 0.7f), C(40, 36, 30));
    c.Fill(Line({cx - es + 2.6f, ey}, {cx + es - 2.6f, ey}, 0.6f), C(40, 36, 30));
  }

  // Headgear.
  const float top = fy - faceH * 0.55f;
  if (headgear <= 4) {
    // A peaked cap with a badge.
    c.Fill(Polygon({{cx - faceW - 3, top + 1}, {cx - faceW - 1, top - 9}, {cx + faceW + 5, top - 11}, {cx + faceW + 3, top + 1}}), p.cap);
    c.Fill(Rect(cx - faceW - 1.5f, top - 1.5f, cx + faceW + 2.5f, top + 2), p.facing);
    c.Fill(Polygon({{cx - faceW + 1, top + 2}, {cx + faceW - 1, top + 2}, {cx + faceW - 3, top + 5.5f}, {cx - faceW + 3, top + 5.5f}}),
           C(24, 22, 20));
    c.Fill(Circle(cx + 1, top - 4, 2.2f), C(226, 196, 90));
  } else if (headgear <= 6) {
    // A steel helmet.
    c.Fill(Intersect(Ellipse(cx, top + 3, faceW + 4, faceH * 0.85f), Rect(0, 0, 64, top + 3)), Shade(p.cap, 0.9f));
    c.Fill(Ellipse(cx, top + 3, faceW + 5.5f, 2.0f), Shade(p.cap, 0.75f));
    c.Fill(Ellipse(cx - 4, top - 5, 4, 2), Tint(p.cap, 0.25f), 0.6f);
  } else if (headgear == 7) {
    // A beret, pulled to one side.
    c.Fill(EllipseRot(cx + 2, top - 1, faceW + 4, 5.5f, -0.12f), Mix(p.facing, C(60, 30, 40), 0.4f));
    c.Fill(Circle(cx - 5, top - 1, 1.8f), C(226, 196, 90));
  }
  Frame(c);
  return c;
}

}  // namespace art
