#include "model/engine_vars.h"

#include <string>

#include "model/arith.h"
#include "model/game_state.h"
#include "platform/platform.h"

namespace mf {
namespace {

// One row of the rules table: its index, the value it starts with, the
// category it is listed under (0 = never listed) and the words the editor
// shows. The words are the game's own, odd spacing and spelling included,
// because scenario authors know the rows by them.
struct EngineVarRow {
  int index;
  long value;
  int category;
  const char* description;
};

// Row 234 carries the supply percent beyond distance 5 from a THQ. It has a
// value but no words, so the editor's list never shows it; row 215 keeps the
// words "Distance >5" although it serves distance 5 itself.
constexpr EngineVarRow kRows[] = {
    {1, 1, 1, "Grass Movement Cost for Land Unit"},
    {2, 2, 1, "Forest Movement Cost for Land Unit"},
    {3, 1, 1, "Urban Movement Cost for Land unit"},
    {4, 999, 1, "Sea Movement Cost for Land unit"},
    {5, 2, 1, "Swamp Movement Cost for Land unit"},
    {6, 999, 1, "Mountain Movement Cost for Land unit"},
    {7, 2, 1, "Extra MP for mobile unit in forest"},
    {8, 2, 1, "Extra MP for land unit to cross river"},
    {9, 1, 1, "Extra MP for entering enemy land"},
    {10, 1, 1, "Sea Movement Cost for Sea Unit"},
    {11, 1, 1, "Urban Movement Cost for Sea Unit"},
    {12, 1, 1, "Air Movement Cost per Hex"},
    {21, 1, 2, "Supply MP cost for Grass"},
    {22, 1, 2, "Supply MP cost for Forest"},
    {23, 1, 2, "Supply MP cost for Urban"},
    {24, 1, 2, "Supply MP cost for Sea"},
    {25, 1, 2, "Supply MP cost for Swamp"},
    {26, 999, 2, "Supply MP cost for Mountain"},
    {27, 1, 2, "Supply MP cost for Road"},
    {28, 1, 2, "Weight of Supply"},
    {101, 250, 3, "Minimal Soft Att value to occupy enemy land"},
    {102, 50000, 3, "Maximum Unit Size in Weight Pts"},
    {111, 250, 3, "Supply cost for Level 1 Entrenchment"},
    {112, 750, 3, "Supply cost for Level 2 Entrenchment"},
    {113, 1500, 3, "Supply cost for Level 3 Entrenchment"},
    {121, 90, 3, "/100 = Attack modifier versus lvl 1 entrenchment"},
    {122, 60, 3, "/100 = Attack modifier versus lvl 2 entrenchment"},
    {123, 40, 3, "/100 = Attack modifier versus lvl 3 entrenchment"},
    {201, 10, 4, "Population Divider (POP / PD = Supply production)"},
    {210, 100, 4, "Distance 0 from THQ.. Supply %"},
    {211, 100, 4, "Distance 1 from THQ.. Supply %"},
    {212, 90, 4, "Distance 2 from THQ.. Supply %"},
    {213, 80, 4, "Distance 3 from THQ.. Supply %"},
    {214, 70, 4, "Distance 4 from THQ.. Supply %"},
    {215, 60, 4, "Distance >5 from THQ.. Supply %"},
    {216, 50, 4, "Supply% if no supply through port but through shore"},
    {217, 2, 4, "Supply generated for SHQ * This value = max supply stock"},
    {218, 1000, 4, "Always allowed supply stock for SHQ"},
    {221, 10, 4, "Readiness Attrition if IN supply"},
    {222, 20, 4, "Readiness Attrition if  OUT of supply"},
    {223, 15, 4, "Always readiness gain XP / THIS VALUE"},
    {224, 10, 4, "Minimal Readiness allowed if OUT of supply"},
    {225, 30, 4, "Minimal Readiness allowed if IN supply"},
    {226, 30, 4, "Basic Readiness gain by supply"},
    {227, 5, 4, "Bonus Readiness gain by XP / This Value"},
    {228, 50, 4, "Automatic XP increase until this XP Value"},
    {229, 6, 4, "Automatic XP increase"},
    {230, 30, 4, "SHQ Range .. min 10 or so.. and max 50 (longer calcs with longer range)"},
    {231, 2000, 4, "Pop needed for 1 Political Point production"},
    {232, 1000, 4, "Recon Points needed to look 1 hex away. Succesive exp."},
    {233, 5, 4, "Hex Dammage recup in %pts per round."},
    {234, 40, 0, ""},
    {235, 4000, 4, "Ammount of ProdPoints to destroy to get 1 Fame Point."},
    {236, 10, 4, "/100 = extra readiness loss absolute for artillery per combat round."},
    {237, 3, 5, "Multiplier of supply if you set supply production."},
    {301, 250, 5, "Unitdivider; Unit softatt+hardatt/etc.. /unitdivider= counter"},
    {401, 150, 6, "Readiness loss modifier% for unit that is interdicted"},
    {402, 80, 6, "Readiness loss modifier% for unit that interdicts itself"},
    {403, 20, 6, "XP gain modifier% for unit that is interdicted"},
    {404, 100, 6, "XP gain modifier% for unit that interdicts itself"},
    {405, 100, 6, "Read loss modifier for attacked unit in normal land battle"},
    {406, 100, 6, "Read loss modifier for unit attacking itself in normal land battle"},
    {407, 100, 6, "Xp gain modifier for attacked unit in normal land battle"},
    {408, 100, 6, "Xp gain modifier for unit attacking itself in normal land battle"},
    {409, 150, 6, "Read loss modifier for land unit attacked by artillery"},
    {410, 80, 6, "Read loss modifier for artillery unit attacking land unit"},
    {411, 20, 6, "XP gain modifier for  land unit attacked by artillery"},
    {412, 100, 6, "XP gain modifier for artillery unit attacking land unit"},
    {413, 150, 7, "Sea unit attacked by interdict. Read loss mod%"},
    {414, 80, 7, "Unit interdiciting sea unit. Read loss mod%"},
    {415, 20, 7, "Sea unit attacked by interdict. Xp gain mod%"},
    {416, 100, 7, "Unit interdicting sea unit. Xp gain mod%"},
    {417, 100, 7, "Sea unit attacked in harbour by land unit. Read loss mod%"},
    {418, 50, 7, "Land unit attacking sea unit in harbour. Read loss mod%"},
    {419, 20, 7, "Sea unit attacked in harbour by land unit. Xp gain mod%"},
    {420, 50, 7, "Land unit attacking sea unit in harbour. Xp gain mod%"},
    {421, 100, 7, "Sea unit attacked by sea unit. Read loss mod%"},
    {422, 100, 7, "Sea unit attacking sea unit. Read loss mod%"},
    {423, 100, 7, "Sea unit attacked by sea unit. Xp gain mod%"},
    {424, 100, 7, "Sea unit attacking sea unit. Xp gain mod%"},
    {425, 150, 7, "Sea unit attacked by artillery attack. Read loss mod%"},
    {426, 80, 7, "Unit artillery attacking Sea unit. Read loss mod%"},
    {427, 20, 7, "Sea unit attacked by artillery attack. Xp gain mod%"},
    {428, 100, 7, "Unit artillery attacking Sea unit. Xp gain mod%"},
    {429, 150, 8, "Air unit interdicted on land. Read loss mod%"},
    {430, 80, 8, "Interdicting unit attacking air on land. Read loss mod%"},
    {431, 20, 8, "Air unit interdicted on land. Xp gain mod%"},
    {432, 100, 8, "Interdicting unit attacking air on land. Xp gain mod%"},
    {433, 100, 8, "Dogfighting attacked. Read loss%"},
    {434, 100, 8, "Dofighting attacker. Read loss%"},
    {435, 100, 8, "Dogfighting attacked. Xp gain mod%"},
    {436, 100, 8, "Dogfighting attacker. Xp gain mod%"},
    {437, 100, 8, "Air unit attacked on land. Read loss mod%"},
    {438, 50, 8, "Land unit attacking Air unit on land. Read loss mod%"},
    {439, 20, 8, "Air unit attacked on land. Xp gain mod%"},
    {440, 25, 8, "Land unit attacking Air unit on land. Xp gain mod%"},
    {441, 150, 8, "Air unit attacked by artillery/AA. Read loss mod%"},
    {442, 80, 8, "Unit artillery/AA attacking air unit. Read loss mod%"},
    {443, 20, 8, "Air unit attacked by arty/AA. Xp Gain mod%"},
    {444, 100, 8, "Unit artillery/AA attacking air unit. Xp Gain mod%"},
    {451, 50, 9, "Xp gain modifier if Xp 75-100"},
    {452, 25, 9, "Xp gain modifier if Xp 101-150"},
    {453, 40, 9, "Read loss modifier for units with readiness<30"},
    {454, 70, 9, "Read loss modifier for units with readiness 30-60"},
    {461, 750, 10, "Minimum pop for almost smallest town sprite"},
    {462, 1250, 10, "Minimum pop for small town sprite"},
    {463, 2000, 10, "Minimum pop for medium town sprite"},
    {464, 3500, 10, "Minimum pop for large town sprite"},
    {465, 6000, 10, "Minimum pop for largest town sprite"},
    {471, 5, 11, "Officer Skill Creation. d100.. below this number skill= 8 or 9"},
    {472, 15, 11, "Officer Skill Creation. d100.. below this number skill= 7"},
    {473, 30, 11, "Officer Skill Creation. d100.. below this number skill= 6"},
    {474, 50, 11, "Officer Skill Creation. d100.. below this number skill= 5"},
    {475, 65, 11, "Officer Skill Creation. d100.. below this number skill= 4"},
    {476, 80, 11, "Officer Skill Creation. d100.. below this number skill= 3 or 2. above=1"},
    {477, 20, 11, "Officer creation. Basic retreat %"},
    {478, 60, 11, "Offcier creation. + Random retreat % (retreat=basic+random)"},
    {501, 5, 12, "Air Wing interdicts within this many hexes range.. min 1... Max 5"},
    {502, 1, 12, "AA guns participate from hex distance...Min 0 ... Max 5"},
    {503, 2, 12, "Sub dive chance divider if attacked by aircraft"},
    {511, 100, 12, "Softdef modifier for Grass"},
    {512, 130, 12, "Softdef modifier for Forest"},
    {513, 160, 12, "Softdef modifier for Urban"},
    {514, 100, 12, "Softdef modifier for Sea"},
    {515, 130, 12, "Softdef modifier for Swamp"},
    {516, 100, 12, "Softdef modifier for Mountain"},
    {521, 100, 12, "HardAtt mod for Grass"},
    {522, 100, 12, "HardAtt mod for Forest"},
    {523, 100, 12, "HardAtt mod for Urban"},
    {524, 100, 12, "HardAtt mod for Sea"},
    {525, 20, 12, "HardAtt mod for Swamp"},
    {526, 100, 12, "HardAtt mod for Mountain"},
    {531, 200, 12, "Softdef modifier for defending against amphibious invasion/airdrop"},
    {532, 50, 12, "HardAtt modifier if doing an amphibious invasion/airdrop"},
    {533, 3, 12, "Number of combat rounds"},
    {534, 2, 12, "Minimal cost in MP for battle"},
    {535, 1, 12, "Max MP unit may have left after battle"},
    {536, 30, 12, "Attack modifier for attack over River"},
    {537, 15, 12, "100 + % attack modifier for each extra multipronged attack"},
    {538, 50, 12, "Frontsize limitator in # of unittype frontsize points"},
    {541, 80, 12, "Readiness modifier% if Attacking unit breaks off attack."},
    {542, 66, 12, "Readiness modifier is defending unit flees."},
    {543, 90, 12, "Readiness modifier per combat round a def.unit cannot flee"},
    {544, 50, 12, "Disruption for new commander"},
    {545, 25, 12, "Disruption for making new unit"},
    {546, 20, 12, "Disruption caused by retreat"},
    {547, 20, 12, "Disruption caused by attack breakoff"},
    {601, 3, 13, "Transfer cost divider for over land transport"},
    {602, 3, 13, "Transfer cost divider for over sea transport"},
    {603, 1, 13, "Transfer cost divider for land transport after sea transport"},
    {611, 1, 13, "Cost for new Land Unit"},
    {612, 1, 13, "Cost for new Sea unit"},
    {613, 1, 13, "Cost for new Air unit"},
    {614, 3, 13, "Cost for new THQ"},
    {615, 5, 13, "Cost for new SHQ"},
    {616, 20, 13, "HQ TYPE COUNT.. howmany different types can be in 1 shq"},
    {650, 3, 14, "Lose mobile loss divider for attacker if offensive fails"},
    {651, 2, 14, "Lose artillery loss divider for attacker if offensive fails"},
    {661, 60, 14, "Minimum readiness needed to intercept enemy aircraft"},
    {701, 0, 15, "AI Forbidden. If =1 then AI is forbidden to play in this scenario."},
    {702, 150, 15, "/100 = the XP/Readiness value of production points with loss.calc"},
    {703, 0, 15, "neutral hex= 0 means neutral hex join auto and 1 means they dont"},
    {704, 0, 15, "Campaign? 0=no, 1=yes"},
    {705, 0, 15, "Campaign: Fog of Exploration?"},
    {706, 0, 15, "Campaign: Block if loaded by user 1=yes, 0=no"},
    {707, 350, 15, "Experience & Rdn modifier. higher is less xp/rdn-drain, lower is more"},
};

// Rows a file from an older version holds as 0, and what they become then.
// Row 123 repairs to 30 although it starts at 40; old scenarios were balanced
// on 30, so the difference stays.
struct RepairRow {
  int index;
  long value;
};
constexpr RepairRow kRepairs[] = {
    {234, 40},  {544, 50},  {545, 25},   {546, 20}, {547, 20}, {28, 1},    {235, 4000}, {236, 10},
    {111, 250}, {112, 750}, {113, 1500}, {121, 90}, {122, 60}, {123, 30}, {707, 350},  {237, 3},
};

constexpr int kCategories = 15;
constexpr const char* kHeadingDashes = "-------------------";

}  // namespace

void FillEngineVarLabels() {
  for (const auto& row : kRows) {
    EngineVar[row.index].Description = row.description;
    EngineVar[row.index].Category = row.category;
  }
}

void SetEngineVarDefaults() {
  for (const auto& row : kRows) EngineVar[row.index].Value = static_cast<Long>(row.value);
}

long EngineVarDefault(int index) {
  for (const auto& row : kRows)
    if (row.index == index) return row.value;
  return 0;
}

void RepairEngineVarsAfterLoad(long fileVersion, bool forImport) {
  for (const auto& repair : kRepairs) {
    if (EngineVar[repair.index].Value != 0) continue;
    long value = repair.value;
    // An imported file gets half the fame price; imports have always done so.
    if (repair.index == 235 && forImport) value = 2000;
    EngineVar[repair.index].Value = static_cast<Long>(value);
  }
  // Before version 111 the frontsize limit counted half as many points.
  // Saturating: a damaged file may hold a size that would overflow when doubled.
  if (fileVersion < 111) EngineVar[538].Value = AddSat(EngineVar[538].Value, EngineVar[538].Value);
}

std::vector<EngineVarLine> EngineVarList() {
  std::vector<EngineVarLine> lines;
  for (int category = 1; category <= kCategories; ++category) {
    lines.push_back({std::string(kHeadingDashes) + Str(category) + kHeadingDashes, 0});
    for (int i = 1; i <= kEngineVarCap; ++i) {
      const EngineVarRec& row = EngineVar[i];
      if (row.Category != category || row.Description.size() <= 1) continue;
      // The value stands left in a column of five so the descriptions line
      // up; a longer value pushes its description right but keeps one blank.
      std::string text = NumText(row.Value);
      if (text.size() < 5) text.append(5 - text.size(), ' ');
      text += ' ';
      text += row.Description;
      lines.push_back({text, i});
    }
  }
  return lines;
}

bool ChangeEngineVar(int index) {
  // Only rows that the list shows can be changed; heading lines carry index 0.
  if (index < 1 || index > kEngineVarCap) return false;
  if (EngineVar[index].Description.size() <= 1) return false;
  const std::string entered =
      Plat().InputPrompt(EngineVar[index].Description, "Give New Value", NumText(EngineVar[index].Value));
  EngineVar[index].Value = ValLong(entered);
  return true;
}

}  // namespace mf
