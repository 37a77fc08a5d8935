#include "model/labels.h"

#include "model/capacity.h"

namespace mf {
namespace {

const std::string kNone;

// Index 0 is the empty word so that a table can be read by its number.
const std::string kTypeAttrLabels[kTypeAttrs + 1] = {
    "",
    "Weight",
    "Carry Cap",
    "Movement Cap",
    "Soft Attack",
    "Soft Defense",
    "Hard Attack",
    "Hard Defense",
    "Artillery Attack",
    "Artillery Range",
    "Recon Cap",
    "Supply Need",
    "Engineer Skill",
    "Subskills",
    "Anti-Air Cap",
    "Hit Points",
    "Frontsize",
    "Strategic Bombing",
    "Dogfight",
    "Naval Interdict",
    "Paradrop Cap",
};

const std::string kLossClassLabels[kLossClasses + 1] = {
    "",          "Infantry", "Trucks",       "Artillery", "Armour",  "Warships", "Cargoships",
    "Carriers",  "Subs",     "Fighters",     "Transporters", "Bombers", "Rockets",
};

// The four strength slots carry different words in each theater.
const std::string kClassWords[3][5] = {
    {"", "Inf", "Mob", "Art", "Arm"},  // land
    {"", "War", "Trn", "Car", "Sub"},  // sea
    {"", "Fig", "Trn", "Bom", "n/a"},  // air
};

// Event fields in file order with the words of the event editor. FiredTurn
// is book-keeping of the engine and has no editor line; the hex condition
// shares one line for its three fields.
const EventFieldName kEventFields[] = {
    {"TurnMin", "=> TURN"},
    {"TurnMax", "<= TURN"},
    {"HexX", "X,Y=OWNER"},
    {"HexY", "X,Y=OWNER"},
    {"HexOwner", "X,Y=OWNER"},
    {"Winner", "GAMEWINNER"},
    {"NotWinner", "NOT GAMEWINNER"},
    {"Random", "RANDOM100"},
    {"Once", "ONLY ONCE?"},
    {"BookVar", "BOOKVAR #"},
    {"BookMin", "BOOKVAR => #"},
    {"BookMax", "BOOKVAR <= #"},
    {"Type", "THEN EVENT TYP:"},
    {"Story", "SHOW STORY:"},
    {"Sprite", "SHOW SPRITE #:"},
    {"FiredTurn", ""},
    {"ShowAll", "SHOWALL"},
    {"ShowReg1", "SHOWREG1"},
    {"ShowReg2", "SHOWREG2"},
    {"IfAI", "IFAIREGIME"},
    {"Data", "DATA 30x"},
    {"DataText", "DATASTRING 5x"},
    {"IfWar", "IFWARWITH"},
    {"IfPeace", "IFPEACEWITH"},
    {"DipLastTurn", "DIPLASTTURN"},
};

}  // namespace

const std::string& TypeAttrLabel(int n) {
  if (n < 1 || n > kTypeAttrs) return kNone;
  return kTypeAttrLabels[n];
}

const std::string& LossClassLabel(int n) {
  if (n < 1 || n > kLossClasses) return kNone;
  return kLossClassLabels[n];
}

int LossClass(int typeClass, int theater) { return typeClass + 4 * theater; }

const std::string& ClassWord(int theater, int cls) {
  if (theater < 0 || theater > 2 || cls < 1 || cls > 4) return kNone;
  return kClassWords[theater][cls];
}

std::string EventFieldLabel(const std::string& field) {
  for (const auto& f : kEventFields)
    if (field == f.field) return f.label;
  return "";
}

std::span<const EventFieldName> EventFields() { return kEventFields; }

}  // namespace mf
