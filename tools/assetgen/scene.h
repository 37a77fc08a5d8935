// Helpers for the larger pictures (unit types, events, portraits): shaded
// parts, outlines, skies and grounds, and side views of vehicles, ships,
// aircraft and soldiers that several pictures share.
#pragma once

#include "canvas.h"

namespace art {

// A part lit from above: light at its top, darker at its bottom.
void Shaded(Canvas& c, const Shape& s, RGB base, float light = 0.28f, float dark = 0.68f);
// Darkens the pixels of a separate layer that border empty pixels: an ink
// line round the silhouette.
void Outline(Canvas& layer, RGB ink);
// A vertical gradient over the whole canvas from y0 to y1.
void Gradient(Canvas& c, float y0, float y1, RGB top, RGB bottom);
// A thin dark frame round the picture.
void Frame(Canvas& c);
void Cloud(Canvas& c, float x, float y, float s, RGB colour, float opacity = 0.9f);

// Sky and ground of a land picture, horizon at y.
void LandBackdrop(Canvas& c, float horizon, int seed);
// Sky and sea, horizon at y.
void SeaBackdrop(Canvas& c, float horizon, int seed);
void SkyBackdrop(Canvas& c, int seed);
// Wave lines over the water below y.
void Waves(Canvas& c, float from, RGB colour, int seed);

struct TankSpec {
  float length = 44, hull = 9, turretW = 16, turretH = 6, gun = 18;
  int wheels = 5;
  RGB base;
};
// A tank facing right, its tracks standing on ground y, its rear at x.
void TankSide(Canvas& c, float x, float ground, const TankSpec& t);
// A lorry facing right; cargo 0 canvas cover, 1 crates, 2 open with a gun crew.
void TruckSide(Canvas& c, float x, float ground, float length, RGB base, int cargo);
// An armoured car facing right.
void ArmouredCar(Canvas& c, float x, float ground, float length, RGB base);
// A staff car facing right with pennants on the wings.
void StaffCar(Canvas& c, float x, float ground, float length, RGB base, RGB pennant);

struct ShipSpec {
  float length = 70, freeboard = 6, draft = 3;
  int funnels = 1, turretsFore = 1, turretsAft = 1;
  float bridge = 8;        // height of the superstructure
  float turret = 1;        // size of the turrets
  bool flatDeck = false;   // a carrier's flight deck
  bool cranes = false;     // a cargo ship's derricks
  bool portholes = false;  // a troopship's rows of windows
  RGB hull, upper;
};
// A ship facing right on the waterline y, stern at x.
void ShipSide(Canvas& c, float x, float waterline, const ShipSpec& s);

struct PlaneSpec {
  float length = 36, body = 5;
  int engines = 1;          // 1: engine in the nose; 2 or 4: on the wings
  bool glassNose = false;
  bool gullWing = false;
  bool windows = false;     // a transport's cabin windows
  bool floats = false;
  float angle = 0;          // radians, nose down positive
  RGB top, under;
};
// An aircraft in side view facing right, centred at (x, y).
void PlaneSide(Canvas& c, float x, float y, const PlaneSpec& p);

// A soldier in side view facing right, feet at (x, ground), h tall.
// pose 0 advancing with rifle, 1 standing, 2 with a spade, 3 marching with pack.
void SoldierSide(Canvas& c, float x, float ground, float h, RGB uniform, int pose);

// A conifer, a deciduous tree.
void Pine(Canvas& c, float x, float ground, float h, RGB needles);
void BroadTree(Canvas& c, float x, float ground, float h, RGB leaves);
// A house front with a pitched roof.
void HouseFront(Canvas& c, float x, float ground, float w, float h, RGB wall, RGB roof);
// An explosion: a fireball with a dark smoke crown.
void Blast(Canvas& c, float x, float y, float r, int seed);
void Smoke(Canvas& c, float x, float y, float r, int seed, RGB colour, float opacity = 0.8f);

}  // namespace art
