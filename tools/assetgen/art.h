// The default pictures of Marrowfield, one function per kind of picture.
// Map pictures are 43 x 41 hex pictures; everything less than half covered
// is written as white, the map's see-through colour.
#pragma once

#include <string>

#include "canvas.h"

namespace art {

constexpr int kHexW = 43;
constexpr int kHexH = 41;

// The fifteen regime colours, 1..15 (0 unused).
RGB RegimeColour(int c);

// ---- terrain (terrain.cpp) ----
Canvas PlainHex(bool dark);              // 1, 1001: grass
Canvas SeaHex(bool dark);                // 4, 1004
Canvas RegimeHex(int colour, bool dark); // 21..35, 1021..1035
Canvas UnexploredHex();                  // 804
Canvas Forest(int side);                 // 1500 (side 0) and its edges 1501..1506
Canvas Urban(int size);                  // 1521 (size 0, largest) .. 1526 (size 5)
Canvas UrbanAlt(int size);               // 811..816: towns of another building style
Canvas Swamp();                          // 1601
Canvas Mountain();                       // 1611
Canvas Water(int side, bool dark);       // 1541..1546 river or coast, 1561..1566 dark
Canvas Road(int side);                   // 1621..1626
Canvas Entrenchment(int level, int side);  // 1101..1126

// ---- marks and icons (marks.cpp) ----
Canvas Highlight();            // 801
Canvas NoProduction(int kind); // 802 (kind 2), 803 (kind 1)
Canvas Damage();               // 805
Canvas Hidden();               // 808
Canvas ShadowMark();           // 809
Canvas NewsMark(int mark);     // 1..6 attack from that side, 7 bombardment, 8 air attack, 9 destroyed
Canvas SpeedIcon(int kind);    // 1 art, 2 foot, 3 tank, 4 truck
Canvas SupplyIcon(int kind);   // 1..6 levels, 7 amphibious, 8 land, 9 none, 10 sea
Canvas JoinMark(int kind);     // 891 click to join, 892 joined, 893 overlay

// ---- counters (counters.cpp) ----
// Family 1..8; colour 1..15, 19 the no-supply mark, 20 uncoloured.
Canvas Counter(int family, int colour);
Canvas Badge(int n);   // 1..30
Canvas Extra(int n);   // 1..10

// ---- pictures (pictures.cpp, portraits.cpp) ----
constexpr int kTypeW = 96, kTypeH = 64;
constexpr int kEventW = 200, kEventH = 150;
constexpr int kPortraitW = 64, kPortraitH = 80;
Canvas TypePicture(int n);          // 1..30
Canvas EventPicture(int n);         // 1..12
Canvas Portrait(int set, int n);    // set 1..5, n 1..40

// ---- sounds (sound.cpp) ----
// Writes the twelve wave files into dir; false on a write failure.
bool WriteSounds(const std::string& dir);

// ---- shared drawing helpers (canvas of any size) ----
// Small silhouettes in a box centred at (cx, cy), about size pixels wide.
void DrawTruck(Canvas& c, float cx, float cy, float size, RGB ink);
void DrawTank(Canvas& c, float cx, float cy, float size, RGB ink);
void DrawGun(Canvas& c, float cx, float cy, float size, RGB ink);
void DrawShip(Canvas& c, float cx, float cy, float size, RGB ink);
void DrawPlane(Canvas& c, float cx, float cy, float size, RGB ink);
void DrawStar(Canvas& c, float cx, float cy, float r, RGB ink);
void DrawSoldier(Canvas& c, float cx, float cy, float size, RGB ink);

}  // namespace art
