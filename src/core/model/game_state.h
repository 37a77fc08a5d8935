// The tables of one game. One running game is one set of process-wide
// tables, indexed from 1; slot 0 of every table exists and reads as "none",
// so code may dereference unit 0 of an empty stack slot and get zeros.
//
// Records and fields carry the names the rules use, so that code reads as
// the rules do: Unit[u].Readiness, Hex[x][y].Owner, Shq[r][s].Unit,
// Dip[a][b].Cost, News[r][n].Text, Game.Turn, UI.SelX.
//
// Widths: a rules "long" is 32 bits (Long), a "short" 16 bits (Short). A
// boolean field holds -1 for true and 0 for false. Text is UTF-8 in memory.
#pragma once

#include <cstdint>
#include <string>

#include "model/capacity.h"

namespace mf {

using Long = std::int32_t;
using Short = std::int16_t;

constexpr Long kTrue = -1;   // boolean fields of the file and the tables
constexpr Long kFalse = 0;

// Landscape values.
enum Landscape : int { kGrass = 1, kForest = 2, kUrban = 3, kSea = 4, kSwamp = 5, kMountain = 6 };
// Theater of a unit or type.
enum Theater : int { kLandTheater = 0, kSeaTheater = 1, kAirTheater = 2 };

struct HexRec {
  // Saved fields.
  Long Land = 0;
  Long Pop = 0;
  Long People = 0;
  std::string UrbanName;
  Long Unit[kStackSlots + 1] = {};
  Long Owner = 0;
  Long Prod = 0;
  Long ProdPts = 0;
  Long ProdSHQ = 0;
  Short Vis = 0;
  Short Seen[kSightRegimes + 1] = {};
  Long Road = 0;
  Short River[kHexSides + 1] = {};
  Long Entrench[kHexSides + 1] = {};
  Short Damage = 0;

  // Working fields, never saved.
  Short Mark = 0;
  Short ScratchRecon = 0;
  Long Wave = 0;
  Short PathSea = 0;
  Short PathLand = 0;
  Short PathPortX = 0;
  Short PathPortY = 0;
  Short Route[2][kRouteSteps + 1] = {};  // [0] x, [1] y of the hex left in each wave
  Long Work = 0;
  Short Area = 0;
  Long AreaValue = 0;
  Short Landmass = 0;
  Short ShqDist[kShqCap + 1] = {};
  Short ShqPrev1[kShqCap + 1] = {};
  Short ShqPrev2[kShqCap + 1] = {};
  Short ShqPrev3[kShqCap + 1] = {};
  Short ShqPrev4[kShqCap + 1] = {};
  Short NewsMark[kSightRegimes + 1] = {};
};

struct UnitRec {
  std::string Name;
  Long Shq = 0;
  Long Thq = 0;
  Long Boss = 0;
  Long InfType = 0, InfQty = 0;
  Long MobType = 0, MobQty = 0;
  Long ArtType = 0, ArtQty = 0;
  Long ArmType = 0, ArmQty = 0;
  Long Regime = 0;
  Long SupplyPct = 0;
  Long CounterPic = 0;
  Long ThqBadge = 0;
  Long Experience = 0;
  Long MP = 0;
  Long Readiness = 0;
  Long Theater = 0;
  Long Cargo = 0;
  Long Officer = 0;
  Long Front = 0, AIX = 0, AIY = 0;
  Long Disruption = 0;
  Long FromX = 0, FromY = 0;
  Long GenSupply = 0;
  // Not saved.
  Long SupplyDemand = 0;
  Long Reserved = 0;
};

struct TypeRec {
  std::string Name;
  Long Class = 0;
  Long Attr[kTypeAttrs + 1] = {};
  std::string Text;
  Long Sprite = 0;
  Long Cost = 0;
  Short Living[kPeopleCap + 1] = {};
  Short Owning[kPeopleCap + 1] = {};
  Long Theater = 0;
  Long Research = 0;
  Long Override = 0;
};

// Type attribute numbers, named as their labels.
enum TypeAttr : int {
  kWeight = 1, kCarryCap, kMovementCap, kSoftAttack, kSoftDefense, kHardAttack, kHardDefense,
  kArtilleryAttack, kArtilleryRange, kReconCap, kSupplyNeed, kEngineerSkill, kSubskills,
  kAntiAirCap, kHitPoints, kFrontsize, kStrategicBombing, kDogfight, kNavalInterdict, kParadropCap
};

struct RegimeRec {
  std::string Name;
  Long AI = 0;
  std::string Password;
  Long PP = 0;
  std::string TextColor;
  Long UnitSerial = 0;
  std::string FormationName;
  Long HexSprite = 0;
  std::string Email;
  Long OwnPeople = 0;
  Long Research[kResearchCap + 1] = {};
  Long ThqBadgeUnit[kBadgeCap + 1] = {};
  Long Losses[kLossClasses + 1] = {};
  Long Kills[kLossClasses + 1] = {};
  Long PortraitSet = 0;
  std::string Intro;
};

struct DipRec {
  Long Relation = 0;
  Long Cost = 0;
  Long LastTurn = 0;
  Long Spare = 0;
};

struct ShqRec {
  Long Unit = 0;
  Long StockType[kStockCap + 1] = {};
  Long StockQty[kStockCap + 1] = {};
  Long Carry = 0;
  Long CarrySea = 0;  // not saved
};

struct NewsRec {
  Long Type = 0;
  std::string Text;
  Short X = 0;
  Short Y = 0;
  Short Mark = 0;
};

struct PeopleRec {
  std::string Name;
  std::string FirstName[kPeopleNames + 1];
  std::string LastName[kPeopleNames + 1];
  Long Overrule = 0;
};

struct OfficerRec {
  Long Pic = 0;
  std::string Name;
  Long Regime = 0;
  Long InPool = 0;
  Long Land = 0, Sea = 0, Air = 0;
  Long Fame = 0;
  Long Retreat = 0;
  Long Spare = 0;
};

struct ResearchRec {
  std::string Name;
  Long Cost = 0;
  Long Need1 = 0;
  Long Need2 = 0;
  std::string Text;
};

struct EventRec {
  Long TurnMin = 0, TurnMax = 0;
  Long HexX = 0, HexY = 0, HexOwner = 0;
  Long Winner = 0, NotWinner = 0;
  Long Random = 0;
  Long Once = 0;
  Long BookVar = 0, BookMin = 0, BookMax = 0;
  Long Type = 0;
  std::string Story;
  Long Sprite = 0;
  Long FiredTurn = 0;
  Long ShowAll = 0, ShowReg1 = 0, ShowReg2 = 0;
  Long IfAI = 0;
  Long Data[kEventData + 1] = {};
  std::string DataText[kEventDataText + 1];
  Long IfWar = 0, IfPeace = 0, DipLastTurn = 0;
};

struct GameRec {
  Long FileVersion = 0;
  Long FogOfWar = 0, FogOfExploration = 0, UsePasswords = 0;
  Long GameEndPop = 0, GameWinner = 0, WinnerPop = 0, CurPop = 0;
  Long Turn = 0, CurRegime = 0;
  Long MapW = 0, MapH = 0;
  Long SpareScalar1 = 0, SpareScalar2 = 0, SpareScalar3 = 0;
  std::string DirMap, DirColorCode, DirSound, DirType, DirOfficer;
  Long GraphicsDirty = 0;
  Long PBEM = 0;
  Long ShowAIMoves = kFalse, AIAnalysis = kFalse, SpareFlag = kFalse;  // booleans
  std::string ScenarioStory;
  Long RegimeCount = 0;
  Long AIProdBonus = 0;
  Long EventCount = 0, PeopleCount = 0, OfficerCount = 0, UnitCount = 0, TypeCount = 0;
  Long BookVarCount = 0;
  Long BookVar[kBookVarCap + 1] = {};
};

// One flag per pending order; all zero between orders.
struct OrderFlags {
  Long SelOrderMove = 0;   // unit number moving
  Long AttackOrder = 0;
  Long BossOrder = 0;      // 1 choose THQ, 2 choose SHQ
  Long TransferOrder = 0;
  Long LoadOrder = 0;
  Long LandingOrder = 0;
  Long AirliftOrder = 0;
  Long AirSupplyOrder = 0;
  Long InterdictOrder = 0;
  Long StratBombOrder = 0;
  Long EntrenchOrder = 0;
  Long RegimePaint = 0;    // editor: regime number being painted
  Long LandscapePaint = 0; // editor: landscape being painted
};

// Map overlays that the menu ticks; kept apart from the orders.
struct OverlayFlags {
  Long ShowEnemy = 0;
  Long ShowSight = 0;
  Long ShowSupply = 0;
  Long ShowGrid = 0;
};

// State of the running program shared by the subsystems. Never saved.
struct UIRec {
  Long SelX = 0, SelY = 0, SelSlot = 0, SelCount = 0;
  Long PrevSelX = 0, PrevSelY = 0;
  Long OrdX = 0, OrdY = 0, OrdSlot = 0;
  Long AttackerCount = 0;
  Long AttackerX[kAttackerCap + 1] = {};
  Long AttackerY[kAttackerCap + 1] = {};
  Long AttackerSlot[kAttackerCap + 1] = {};
  OrderFlags Order;
  OverlayFlags Overlay;
  Long EditMode = 0;
  Long SoundOff = 0;         // survives a clear
  bool HideEditor = false;   // survives a clear
  Long ScrollPending = 0;
  std::string PendingFile;
  bool ResumeTurn = false;
  bool ExitAfterTurnForm = false;

  // The map window's scroll bars, as LayOutMapWindow computes them.
  Long PictureW = 0, PictureH = 0;
  Long ScrollMaxX = 0, ScrollMaxY = 0;
  Long ScrollLargeX = 0, ScrollLargeY = 0;
  Long ScrollSmall = 0;
  Long ScrollX = 0, ScrollY = 0;
  bool ShowScrollX = false, ShowScrollY = false;
  bool ShowEditorPanel = false;
  Long WindowWidth = 1024;   // width of the main window in pixels, set by the window
  // The visible part of the map picture, in picture units: the classic map
  // window is 958 x 448; the window sets its real size here before LayOutMapWindow.
  Long ViewW = 958, ViewH = 448;

  // Lines the main window shows.
  std::string HelpText;
  std::string RegimeLabel;
  std::string TurnLabel;

  // What the main window shows. Core routines set these; the window brings
  // itself in line with them after every action of the player and every tick.
  bool MapShown = true;          // the map picture is visible and takes clicks
  bool PanelsShown = true;       // the side panels
  bool MapControlsShown = true;  // order buttons, do and cancel buttons
  bool BusyPointer = false;      // the driver is running; the timer leaves computer turns alone
  Long RedrawRequest = 0;        // 0 nothing, 1 the 31 x 31 square around the selection, 2 the whole map
  bool PanelDirty = false;       // the side panel must be rebuilt for the selected hex
  std::string WindowTitle;       // "" shows the program's name
  bool AILogShown = false;       // F11: the computer player's analysis log under the map
  Long StatusReport = 0;         // report the Status dialog showed last, 1..3; 0 none yet
};


struct EngineVarRec {
  Long Value = 0;
  std::string Description;  // filled at start, never saved
  Long Category = 0;        // 1..15, filled at start, never saved
};

// ---- The tables -----------------------------------------------------------

extern HexRec Hex[kMapCap + 1][kMapCap + 1];          // Hex[x][y]
extern UnitRec Unit[kUnitCap + 1];
extern TypeRec Type[kTypeCap + 1];
extern RegimeRec Regime[kRegimeCap + 1];
extern DipRec Dip[kRegimeCap + 1][kRegimeCap + 1];    // Dip[a][b]: a's relation to b
extern ShqRec Shq[kRegimeCap + 1][kShqCap + 1];       // Shq[regime][number]
extern NewsRec News[kRegimeCap + 1][kNewsCap + 1];    // News[regime][line]
extern PeopleRec People[kPeopleCap + 1];
extern Long OfficerPicSet[kPortraitCap + 1];
extern OfficerRec Officer[kOfficerCap + 1];
extern ResearchRec Research[kResearchCap + 1];
extern EventRec Event[kEventCap + 1];
extern EngineVarRec EngineVar[kEngineVarCap + 1];
extern GameRec Game;
extern UIRec UI;

// Asks the window for a redraw: 1 the square around the selection, 2 everything.
inline void RequestRedraw(Long what) {
  if (what > UI.RedrawRequest) UI.RedrawRequest = what;
}

// Value of engine variable n, 0 outside 1..1000.
inline Long EV(int n) { return (n >= 1 && n <= kEngineVarCap) ? EngineVar[n].Value : 0; }

// The four strength slots of a unit by class 1..4 (Inf, Mob, Art, Arm).
// Class 0 or out of range gives a scratch zero so a bad class reads as none.
Long& UnitSlotType(int u, int cls);
Long& UnitSlotQty(int u, int cls);

// Index checks for data that names a table entry.
inline bool ValidHex(int x, int y) { return x >= 1 && y >= 1 && x <= Game.MapW && y <= Game.MapH && x <= kMapCap && y <= kMapCap; }
inline bool ValidUnit(int u) { return u >= 1 && u <= kUnitCap; }
inline bool ValidType(int t) { return t >= 1 && t <= kTypeCap; }
inline bool ValidRegime(int r) { return r >= 1 && r <= kRegimeCap; }

// Sets every table to its zero state, as at program start, and puts back to
// their start the globals of one game that live outside the tables (the
// battle being fought, the order buttons, the side panel, the floods'
// working fields, the computer player's tables...), each registered for it
// in model/cleared_with_tables.h, so that nothing of one game reaches the
// next.
void ZeroAllTables();

// Find a free unit: first unit 1..2000 with Regime 0; clears its Thq, Shq,
// Boss, raises Game.UnitCount. 0 (with the rules' message) when none is free.
int NewUnitNumber();
// Find a free SHQ number of Game.CurRegime; 0 with a message when none.
int NewShqNumber();

}  // namespace mf
