// The side panel: everything the current player may know of the selected
// hex and its formations. Refresh fills one plain struct with every text,
// picture number, colour and visibility; the window shows it as it stands.
#pragma once

#include <string>

#include "view/canvas.h"

namespace mf {

// One of the three small counters of the stack.
struct PanelStackSlot {
  bool shown = false;
  int unit = 0;
  int picture = 0;      // Unit.CounterPic
  int badge = 0;        // sprite of the THQ badge, 0 for none
  // The range bar: movement points left; -1 when they are hidden.
  int mp = -1;
  bool selected = false;
};

// One of the four troop classes of the selected formation.
struct PanelTroopSlot {
  int type = 0;
  int picture = 0;          // 500 + Type.Sprite, 0 for an empty class
  std::string typeText;     // the type's name, or the word for an empty class
  std::string qtyText;      // "x " + quantity, "x N/A" when hidden, empty for an empty class
  std::string extraText;    // "COV: ..." over the infantry, "RANGE: ..."/"FRONT ART" on the artillery
};

struct PanelContent {
  // Status labels.
  std::string regimeText;
  std::string turnText;
  std::string ppText;

  // False when the hex is off the map: everything below stays blank.
  bool hexShown = false;
  int x = 0, y = 0;

  PanelStackSlot stack[4];  // [1..3]

  // Supply of the hex from the best of the current regime's SHQs.
  int supplyIcon = 0;
  std::string supplyText;
  Colour supplyColour = kColourGreen;

  std::string landText;

  // The town on the hex.
  bool urbanShown = false;
  std::string urbanName;
  std::string urbanPop;
  std::string urbanProd;
  std::string urbanShq;       // "SHQ: " + name
  std::string urbanDamage;    // "(" + n + "% DAM)", empty without damage
  std::string urbanDistance;  // distance to the receiving SHQ + " hex"

  // Owner.
  int ownerFlag = 0;        // the owner's regime hex, 0 for none
  std::string ownerText;    // regime name, "Neutral hex" or "Sea hex"

  // Either the selected formation's picture or, when the player sees no
  // formation here, the hex itself drawn onto the panel hex canvas.
  bool unitPictureShown = false;
  int unitPicture = 0;
  bool hexPictureShown = false;
  std::string hexCaption;   // regime name + " hex", or "Neutral hex", "Sea hex"

  // The selected formation.
  bool unitShown = false;
  int unit = 0;
  std::string unitName;
  std::string readinessText;
  std::string experienceText;
  std::string supplyPctText;   // percentage; for an SHQ its stock in points
  std::string mpText;
  std::string officerText;
  int officerPicture = 0;      // 1800 + Officer.Pic, 0 for none or hidden
  std::string thqText;         // "THQ"
  std::string thqName;         // boss THQ's name or "None assigned"
  std::string shqText;         // "SHQ"
  std::string shqName;
  std::string playerText;      // "PLA"
  std::string playerName;      // "HUMAN" or "AI"
  PanelTroopSlot troops[5];    // [1..4] infantry, mobile, artillery, armour
  std::string kcapText;        // an SHQ's pool transport, "12Kcap"
};

// The panel as the last Refresh or ClearPanels left it.
extern PanelContent Panel;

// Fills Panel for hex (x, y), and draws the hex into the panel hex canvas
// when no formation is to be seen there.
void Refresh(int x, int y);
// What the panel would show for hex (x, y), without touching Panel or the
// panel's hex picture: the hover tip of the map and the reports use it, so
// they never tell more than the panel does.
PanelContent PanelOf(int x, int y);
// The map's hover tip for hex (x, y): its landscape, owner and town, and the
// formations of its stack, told exactly as far as the panel would tell them.
// Lines are separated by '\n'; empty off the map.
std::string HexTipText(int x, int y);
// Blanks every label and hides every section.
void ClearPanels();

// The texts for one part of the panel, for the report windows too.
// Supply of hex (x, y) for the current regime: icon sprite, label, colour.
void HexSupply(int x, int y, int* icon, std::string* text, Colour* colour);
// "COV: " + n + "%" or "COV: ALL" for a land formation; empty for others.
std::string CoverText(int u);
// Frontage of formation u as a lone attacker: infantry, artillery, armour.
void LoneFrontage(int u, double* inf, double* art, double* arm);

}  // namespace mf
