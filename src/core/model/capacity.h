// Fixed capacities of the game tables. Nothing in a game grows past these:
// counts such as Game.UnitCount say how far a table is in use, and every
// index that comes from data is checked against these bounds first.
#pragma once

namespace mf {

constexpr int kMapCap = 100;          // hexes each way
constexpr int kMapMin = 10;           // smallest map a clear makes
constexpr int kStackSlots = 3;        // units in one hex
constexpr int kHexSides = 6;          // directions 1..6
constexpr int kUnitCap = 2000;
constexpr int kTypeCap = 500;
constexpr int kTypeAttrs = 20;
constexpr int kRegimeCap = 20;
constexpr int kSightRegimes = 10;     // per-regime sight planes; the real regime limit
constexpr int kPeopleCap = 20;
constexpr int kPeopleNames = 300;
constexpr int kOfficerCap = 2000;
constexpr int kPortraitCap = 200;
constexpr int kShqCap = 50;
constexpr int kBadgeCap = 50;
constexpr int kBadgesGiven = 30;      // only badges 1..30 are handed out
constexpr int kStockCap = 500;        // SHQ stock slots; engine variable 616 is the width in use
constexpr int kLossClasses = 12;
constexpr int kNewsCap = 1000;
constexpr int kResearchCap = 200;
constexpr int kEventCap = 500;
constexpr int kEventsCleared = 200;   // a clear wipes events 1..200 only
constexpr int kEventData = 30;
constexpr int kEventDataText = 5;
constexpr int kBookVarCap = 500;
constexpr int kBookVarCount = 200;    // Game.BookVarCount is always this
constexpr int kEngineVarCap = 1000;
constexpr int kAttackerCap = 40;
constexpr int kRouteSteps = 15;       // movement floods run at most 15 waves
constexpr int kHexColours = 15;       // regime colours of the hex and counter sprites

// The version every file is written with; newer files are refused.
constexpr int kFileVersion = 111;

}  // namespace mf
