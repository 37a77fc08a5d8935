#include "view/panel.h"

#include "combat/frontage.h"

#include <algorithm>

#include "model/arith.h"
#include "model/bounds.h"
#include "model/cleared_with_tables.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/type_lookup.h"
#include "view/counter.h"
#include "view/draw_hex.h"

namespace mf {

PanelContent Panel;

namespace {
// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] { Panel = PanelContent{}; });
}  // namespace

namespace {

// Sprites of the panel.
constexpr int kSupplyShore = 841;   // came ashore on open shore
constexpr int kSupplyLand = 842;
constexpr int kSupplyNone = 843;
constexpr int kSupplyPort = 844;    // over the sea through a port
constexpr int kTypePictureBase = 500;
constexpr int kPortraitBase = 1800;

const char* const kHidden = "N/A";
const char* const kNoBoss = "None assigned";
const char* const kUnexploredCaption = "Unexplored hex";

const UnitRec& UnitOf(Long u) { return ValidUnit(u) ? Unit[u] : Unit[0]; }

// The words for an empty troop class, by class and theater.
const char* EmptyClassWord(int cls, Long theater) {
  static const char* const kWords[5][3] = {
      {"", "", ""},
      {"Soldier type", "Warship type", "Fighter type"},
      {"Mobile type", "Cargo type", "Transport type"},
      {"Artillery type", "Carrier type", "Bomber type"},
      {"Armour type", "Submarine type", "n/a"},
  };
  const int t = (theater >= 0 && theater <= 2) ? static_cast<int>(theater) : 0;
  return kWords[cls][t];
}

// The hex where a unit stands in a stack; false when it stands nowhere
// (cargo, or gone).
bool FindUnitHex(int u, int* fx, int* fy) {
  for (int x = 1; x <= Game.MapW && x <= kMapCap; ++x) {
    for (int y = 1; y <= Game.MapH && y <= kMapCap; ++y) {
      for (int s = 1; s <= kStackSlots; ++s) {
        if (Hex[x][y].Unit[s] == u) {
          *fx = x;
          *fy = y;
          return true;
        }
      }
    }
  }
  return false;
}

// While the map is put away (a turn changing hands, the computer at work)
// the player is shown nothing of it; the editor always sees its map.
bool MapHiddenFromPlayer() { return !UI.MapShown && UI.EditMode != 1; }

// A computer regime's own figures are not for the human players at the
// screen; its label is the driver's, with " (AI)".
bool ComputerAtWork() {
  return Game.Turn > 0 && UI.EditMode != 1 && ComputerToMove();
}

void FillStatus() {
  if (ComputerAtWork()) {
    Panel.regimeText = UI.RegimeLabel;
    Panel.turnText = UI.TurnLabel;
    return;
  }
  if (ValidRegime(Game.CurRegime)) {
    UI.RegimeLabel = Regime[Game.CurRegime].Name;
    UI.TurnLabel = NumText(Game.Turn);
    Panel.ppText = NumText(Regime[Game.CurRegime].PP);
  }
  // Before the first turn the labels keep what the editor wrote there.
  Panel.regimeText = UI.RegimeLabel;
  Panel.turnText = UI.TurnLabel;
}

void FillUrban(int x, int y) {
  const HexRec& h = Hex[x][y];
  if (h.Pop <= 0) return;
  Panel.urbanShown = true;
  Panel.urbanName = h.UrbanName;
  Panel.urbanPop = NumText(h.Pop);
  if (h.Damage > 0) Panel.urbanDamage = "(" + NumText(h.Damage) + "% DAM)";

  // What a foreign town makes is not for the player to know under fog of war.
  const bool known = h.Owner == Game.CurRegime || UI.EditMode == 1 || Game.FogOfWar == 0;
  if (!known) {
    Panel.urbanProd = kHidden;
    Panel.urbanShq = std::string("SHQ: ") + kHidden;
    return;
  }
  if (h.Prod > 0) {
    const Long cost = TypeOf(h.Prod).Cost;
    const long pieces = cost > 0 ? static_cast<long>(h.Pop / cost) : 0;
    Panel.urbanProd = NumText(pieces) + "x " + TypeOf(h.Prod).Name;
  } else if (h.Prod == -1) {
    const Long divider = EV(201);
    const long supply = divider != 0 ? static_cast<long>(Int((h.Pop / 100.0) * (100 - h.Damage) / divider)) : 0;
    Panel.urbanProd = NumText(static_cast<long>(supply) * EV(237)) + " Extra Supply Points";
  } else {
    const Long divider = EV(231);
    const long points = divider != 0 ? static_cast<long>(Int((100 - h.Damage) / 100.0 * h.Pop / divider)) : 0;
    Panel.urbanProd = NumText(points) + " Political Point(s)";
  }
  const UnitRec& shq = UnitOf(h.ProdSHQ);
  const bool hasShq = h.ProdSHQ > 0 && shq.Regime > 0;
  Panel.urbanShq = "SHQ: " + (hasShq ? shq.Name : std::string("None"));
  int sx = 0, sy = 0;
  if (hasShq && FindUnitHex(h.ProdSHQ, &sx, &sy)) Panel.urbanDistance = NumText(Distance(x, y, sx, sy)) + " hex";
}

void FillOwner(int x, int y) {
  const HexRec& h = Hex[x][y];
  if (h.Owner > 0 && ValidRegime(h.Owner)) {
    Panel.ownerFlag = sprite::Checked(sprite::kRegimeHexBase + static_cast<long long>(Regime[h.Owner].HexSprite));
    Panel.ownerText = Regime[h.Owner].Name;
    Panel.hexCaption = Regime[h.Owner].Name + " hex";
  } else if (h.Land == kSea) {
    Panel.ownerText = "Sea hex";
    Panel.hexCaption = "Sea hex";
  } else {
    Panel.ownerText = "Neutral hex";
    Panel.hexCaption = "Neutral hex";
  }
}

void FillChain(int u, bool full) {
  const UnitRec& un = Unit[u];
  Panel.thqText = "THQ";
  Panel.shqText = "SHQ";
  Panel.playerText = "PLA";
  const UnitRec& boss = UnitOf(un.Boss);
  std::string thq = kNoBoss, shq = kNoBoss;
  if (un.Boss > 0 && boss.Thq > 0) thq = boss.Name;
  if (un.Boss > 0 && boss.Shq > 0) {
    shq = boss.Name;
  } else if (un.Boss > 0 && boss.Boss > 0 && UnitOf(boss.Boss).Shq > 0) {
    shq = UnitOf(boss.Boss).Name;
  }
  Panel.thqName = full ? thq : kHidden;
  Panel.shqName = full ? shq : kHidden;
  Panel.playerName = RunByComputer(un.Regime) ? "AI" : "HUMAN";
}

void FillTroops(int u, bool full) {
  const UnitRec& un = Unit[u];
  for (int cls = 1; cls <= 4; ++cls) {
    PanelTroopSlot& slot = Panel.troops[cls];
    const Long t = UnitSlotType(u, cls);
    const Long q = UnitSlotQty(u, cls);
    slot.type = ValidType(t) ? t : 0;
    if (slot.type > 0) {
      slot.typeText = Type[t].Name;
      slot.picture = Type[t].Sprite > 0 ? sprite::Checked(kTypePictureBase + static_cast<long long>(Type[t].Sprite)) : 0;
      slot.qtyText = std::string("x ") + (full ? NumText(q) : kHidden);
    } else {
      slot.typeText = EmptyClassWord(cls, un.Theater);
    }
  }
  if (un.Theater == kLandTheater) {
    if (full) Panel.troops[1].extraText = CoverText(u);
    if (un.ArtType > 0) {
      const Long range = AttrOf(un.ArtType, kArtilleryRange);
      Panel.troops[3].extraText = range > 1 ? "RANGE: " + NumText(range) : "FRONT ART";
    }
  }
  if (un.Shq > 0 && full && ValidRegime(un.Regime) && un.Shq <= kShqCap) {
    Panel.kcapText = NumText(Int(Shq[un.Regime][un.Shq].Carry / 1000.0)) + "Kcap";
  }
}

void FillUnit(int u) {
  const UnitRec& un = Unit[u];
  const bool full = SeesUnitFully(u);
  Panel.unitShown = true;
  Panel.unit = u;
  Panel.unitName = un.Name;
  Panel.unitPictureShown = true;
  Panel.unitPicture = un.CounterPic;
  if (full) {
    Panel.readinessText = NumText(un.Readiness);
    Panel.experienceText = NumText(un.Experience);
    // An SHQ keeps its supply stock in the field that is a percentage for others.
    Panel.supplyPctText = un.Shq > 0 ? NumText(un.SupplyPct) : NumText(un.SupplyPct) + "%";
    Panel.mpText = NumText(un.MP);
    if (un.Officer > 0 && un.Officer <= kOfficerCap) {
      Panel.officerText = Officer[un.Officer].Name;
      Panel.officerPicture = Officer[un.Officer].Pic > 0 ? sprite::Checked(kPortraitBase + static_cast<long long>(Officer[un.Officer].Pic)) : 0;
    } else {
      Panel.officerText = "None";
    }
  } else {
    Panel.readinessText = kHidden;
    Panel.experienceText = kHidden;
    Panel.supplyPctText = kHidden;
    Panel.mpText = kHidden;
    Panel.officerText = kHidden;
  }
  FillChain(u, full);
  FillTroops(u, full);
}

}  // namespace

void ClearPanels() { Panel = PanelContent{}; }

void HexSupply(int x, int y, int* icon, std::string* text, Colour* colour) {
  int h = 999, best = 0;
  const Long r = Game.CurRegime;
  if (ValidHex(x, y) && ValidRegime(r)) {
    for (int s = 1; s <= kShqCap; ++s) {
      if (Shq[r][s].Unit > 0 && Hex[x][y].ShqDist[s] < h) {
        h = Hex[x][y].ShqDist[s];
        best = s;
      }
    }
  }
  const bool shore = best > 0 && Hex[x][y].ShqPrev3[best] == -1;
  if (h == 999) {
    *icon = kSupplyNone;
  } else if (best > 0 && Hex[x][y].ShqPrev1[best] > 0) {
    *icon = shore ? kSupplyShore : kSupplyPort;
  } else {
    *icon = kSupplyLand;
  }
  // Rounder figures than the supply rules work with: a guide for the player.
  static const char* const kLand[6] = {"100%", "80%", "65%", "50%", "35%", "20%"};
  static const char* const kShore[6] = {"50%", "40%", "32%", "25%", "17%", "10%"};
  const double range = EV(230);
  int step = 0;
  if (h > 0.5 * range) step = 1;
  if (h > 0.6 * range) step = 2;
  if (h > 0.7 * range) step = 3;
  if (h > 0.8 * range) step = 4;
  if (h > 0.9 * range) step = 5;
  *text = shore ? kShore[step] : kLand[step];
  *colour = kColourGreen;
  if (h > 0.6 * range) *colour = kColourYellow;
  if (h > 0.8 * range) *colour = kColourRed;
}

void LoneFrontage(int u, double* inf, double* art, double* arm) {
  *inf = *art = *arm = 0;
  if (!ValidUnit(u)) return;
  // One attacker: the whole front of engine variable 538 is his.
  const FrontShares f = LoneFrontageOf(Unit[u], EV(538));
  *inf = f.inf;
  *art = f.art;
  *arm = f.arm;
}

std::string CoverText(int u) {
  if (!ValidUnit(u) || Unit[u].Theater != kLandTheater) return std::string();
  const UnitRec& un = Unit[u];
  double fInf = 0, fArt = 0, fArm = 0;
  LoneFrontage(u, &fInf, &fArt, &fArm);
  const double pInf = static_cast<double>(AttrOf(un.InfType, kFrontsize)) * un.InfQty;
  const double pArm = static_cast<double>(AttrOf(un.ArmType, kFrontsize)) * un.ArmQty;
  // Shares of the infantry and the armour that stand in the line.
  double fi = 100, fa = 100;
  if (fInf < pInf) fi = static_cast<double>(Int(100 * fInf / pInf));
  if (fArm < pArm) fa = static_cast<double>(Int(100 * fArm / pArm));
  // How many of the infantry the armour in the line can carry.
  const double lift = static_cast<double>(AttrOf(un.ArmType, kCarryCap)) * un.ArmQty;
  const Long weight = AttrOf(un.InfType, kWeight);
  double c = (un.InfType > 0 && weight != 0) ? static_cast<double>(Int(lift / weight)) : static_cast<double>(Int(lift));
  c = c * fa / 100;
  const double inLine = un.InfQty * fi / 100;
  if (c < static_cast<double>(Int(inLine))) return "COV: " + NumText(Int(c / inLine * 100)) + "%";
  return "COV: ALL";
}

namespace {

void Fill(int x, int y, bool draw) {
  ClearPanels();
  FillStatus();
  if (!ValidHex(x, y) || MapHiddenFromPlayer()) return;
  Panel.hexShown = true;
  Panel.x = x;
  Panel.y = y;
  const HexRec& h = Hex[x][y];

  // A hex the regime never saw: the white hex, and nothing of what is there.
  if (HexUnexplored(x, y)) {
    Panel.hexPictureShown = true;
    Panel.hexCaption = kUnexploredCaption;
    if (draw) {
      PanelHexCanvas().Clear();
      TerrainDraw(x, y, 0, 0, false, 2);
    }
    return;
  }

  int count = 0;
  for (int s = 1; s <= kStackSlots; ++s) {
    if (h.Unit[s] > 0) ++count;
  }
  const bool unitsSeen = count > 0 && (h.Vis >= 1 || Game.FogOfWar == 0 || UI.EditMode == 1);
  const int sel = (x == UI.SelX && y == UI.SelY) ? UI.SelSlot : (count > 0 ? 1 : 0);

  if (unitsSeen) {
    for (int s = 1; s <= kStackSlots; ++s) {
      const int u = h.Unit[s];
      if (u <= 0 || !ValidUnit(u)) continue;
      Counter(u);
      PanelStackSlot& slot = Panel.stack[s];
      slot.shown = true;
      slot.unit = u;
      slot.picture = Unit[u].CounterPic;
      slot.badge = Unit[u].ThqBadge > 0 ? kBadgeSpriteBase + Unit[u].ThqBadge : 0;
      slot.mp = SeesUnitFully(u) ? Unit[u].MP : -1;
      slot.selected = s == sel;
    }
  }

  HexSupply(x, y, &Panel.supplyIcon, &Panel.supplyText, &Panel.supplyColour);

  if (h.Owner == 0) Panel.landText = "Neutral Territory";
  if (h.Land == kGrass) Panel.landText = "Plains";
  if (h.Land == kForest) Panel.landText = "Forest";
  if (h.Land == kSea) Panel.landText = "Sea";
  if (h.Land == kSwamp) Panel.landText = "Swamp";
  if (h.Land == kMountain) Panel.landText = "Mountains";

  FillUrban(x, y);
  FillOwner(x, y);

  if (!unitsSeen) {
    Panel.hexPictureShown = true;
    if (draw) {
      PanelHexCanvas().Clear();
      TerrainDraw(x, y, 0, 0, false, 2);
    }
    return;
  }
  if (sel >= 1 && sel <= kStackSlots && ValidUnit(h.Unit[sel]) && h.Unit[sel] > 0) FillUnit(h.Unit[sel]);
}

}  // namespace

void Refresh(int x, int y) { Fill(x, y, true); }

PanelContent PanelOf(int x, int y) {
  const PanelContent shown = Panel;
  Fill(x, y, false);
  PanelContent out = Panel;
  Panel = shown;
  return out;
}

std::string HexTipText(int x, int y) {
  if (!ValidHex(x, y)) return std::string();
  const PanelContent p = PanelOf(x, y);
  if (!p.hexShown) return std::string();
  std::string tip = "Hex " + NumText(x) + ", " + NumText(y);
  if (HexUnexplored(x, y)) return tip + "\n" + p.hexCaption;
  if (!p.landText.empty()) tip += "\n" + p.landText;
  if (!p.ownerText.empty()) tip += "\n" + p.ownerText;
  if (p.urbanShown) {
    tip += "\n" + p.urbanName + " (pop " + p.urbanPop + ")";
    if (!p.urbanProd.empty()) tip += "\n" + p.urbanProd;
  }
  for (int s = 1; s <= kStackSlots; ++s) {
    const PanelStackSlot& slot = p.stack[s];
    if (!slot.shown || !ValidUnit(slot.unit)) continue;
    std::string line = Unit[slot.unit].Name;
    // A foreign formation's estimate is on its counter; working it out here
    // would draw from the game's random numbers.
    if (SeesUnitFully(slot.unit)) {
      const CounterTexts t = CounterFigureTexts(slot.unit);
      if (!t.attack.empty()) line += "  attack " + t.attack;
      if (!t.defence.empty()) line += ", defence " + t.defence;
      if (slot.mp >= 0) line += ", MP " + NumText(slot.mp);
    }
    tip += "\n" + line;
  }
  return tip;
}

}  // namespace mf
