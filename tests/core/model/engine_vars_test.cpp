// The engine-variable table: every row's start value, category and the
// words the editor shows, the repairs after a load, the editing list and the
// "Give New Value" prompt.
#include <gtest/gtest.h>

#include <string>

#include "model/engine_vars.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;

struct ExpectedRow {
  int index;
  long value;
  int category;
  const char* description;
};

// The whole table as the editor must show it, odd blanks and spellings
// included. Row 234 has a value and no words.
const ExpectedRow kExpected[] = {
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

class EngineVarTest : public CoreTest {};

TEST_F(EngineVarTest, EveryRowHasItsDefaultCategoryAndWordsVerbatim) {
  int described = 0;
  for (const auto& row : kExpected) {
    SCOPED_TRACE(row.index);
    EXPECT_EQ(EngineVar[row.index].Value, row.value);
    EXPECT_EQ(EngineVar[row.index].Category, row.category);
    EXPECT_EQ(EngineVar[row.index].Description, row.description);
    EXPECT_EQ(EngineVarDefault(row.index), row.value);
    if (row.category != 0) ++described;
  }
  EXPECT_EQ(described, 165);
  EXPECT_EQ(std::size(kExpected), 166u);
}

TEST_F(EngineVarTest, RowsOutsideTheTableAreZeroAndUnlabelled) {
  int labelled = 0;
  int nonZero = 0;
  for (int i = 1; i <= kEngineVarCap; ++i) {
    if (!EngineVar[i].Description.empty()) ++labelled;
    if (EngineVar[i].Value != 0) ++nonZero;
  }
  EXPECT_EQ(labelled, 165);
  // Rows 701, 703, 704, 705 and 706 start at 0; the other 160 described rows and row 234 do not.
  EXPECT_EQ(nonZero, 161);
  EXPECT_EQ(EngineVar[13].Value, 0);
  EXPECT_EQ(EngineVar[13].Description, "");
  EXPECT_EQ(EngineVar[1000].Value, 0);
  EXPECT_EQ(EngineVarDefault(13), 0);
  EXPECT_EQ(EngineVarDefault(0), 0);
  EXPECT_EQ(EngineVarDefault(1001), 0);
}

TEST_F(EngineVarTest, TrickyWordsAreKeptAsTheEditorShowsThem) {
  EXPECT_EQ(EngineVar[222].Description, "Readiness Attrition if  OUT of supply");
  EXPECT_EQ(EngineVar[411].Description, "XP gain modifier for  land unit attacked by artillery");
  EXPECT_EQ(EngineVar[434].Description, "Dofighting attacker. Read loss%");
  EXPECT_EQ(EngineVar[478].Description, "Offcier creation. + Random retreat % (retreat=basic+random)");
  EXPECT_EQ(EngineVar[233].Description, "Hex Dammage recup in %pts per round.");
  EXPECT_EQ(EngineVar[215].Description, "Distance >5 from THQ.. Supply %");
  EXPECT_EQ(EngineVar[616].Description, "HQ TYPE COUNT.. howmany different types can be in 1 shq");
  EXPECT_EQ(EngineVar[533].Value, 3);
  EXPECT_EQ(EngineVar[533].Description, "Number of combat rounds");
}

TEST_F(EngineVarTest, Row234HasValue40AndNoWords) {
  EXPECT_EQ(EngineVar[234].Value, 40);
  EXPECT_EQ(EngineVar[234].Description, "");
  EXPECT_EQ(EngineVar[234].Category, 0);
}

TEST_F(EngineVarTest, SetDefaultsTouchesNoOtherRow) {
  EngineVar[13].Value = 77;
  EngineVar[999].Value = -5;
  EngineVar[533].Value = 9;
  EngineVar[234].Value = 12;
  SetEngineVarDefaults();
  EXPECT_EQ(EngineVar[13].Value, 77);
  EXPECT_EQ(EngineVar[999].Value, -5);
  EXPECT_EQ(EngineVar[533].Value, 3);
  EXPECT_EQ(EngineVar[234].Value, 40);
}

TEST_F(EngineVarTest, LoadRepairsRowsHeldAsZero) {
  for (int i = 1; i <= kEngineVarCap; ++i) EngineVar[i].Value = 0;
  RepairEngineVarsAfterLoad(111, false);
  const int rows[] = {234, 544, 545, 546, 547, 28, 235, 236, 111, 112, 113, 121, 122, 123, 707, 237};
  const long values[] = {40, 50, 25, 20, 20, 1, 4000, 10, 250, 750, 1500, 90, 60, 30, 350, 3};
  for (std::size_t k = 0; k < std::size(rows); ++k) {
    SCOPED_TRACE(rows[k]);
    EXPECT_EQ(EngineVar[rows[k]].Value, values[k]);
  }
  // Row 123 repairs to 30 although it starts at 40.
  EXPECT_EQ(EngineVarDefault(123), 40);
  // Rows without a repair stay 0, the number of combat rounds among them.
  EXPECT_EQ(EngineVar[533].Value, 0);
  EXPECT_EQ(EngineVar[1].Value, 0);
  EXPECT_EQ(EngineVar[538].Value, 0);
}

TEST_F(EngineVarTest, AScenarioWithZeroInRow544ReadsBack50) {
  EngineVar[544].Value = 0;
  RepairEngineVarsAfterLoad(111, false);
  EXPECT_EQ(EngineVar[544].Value, 50);
}

TEST_F(EngineVarTest, RepairsLeaveValuesThatAreNotZero) {
  EngineVar[544].Value = 7;
  EngineVar[123].Value = -1;
  EngineVar[235].Value = 1;
  RepairEngineVarsAfterLoad(111, true);
  EXPECT_EQ(EngineVar[544].Value, 7);
  EXPECT_EQ(EngineVar[123].Value, -1);
  EXPECT_EQ(EngineVar[235].Value, 1);
}

TEST_F(EngineVarTest, AnImportRepairsRow235To2000) {
  EngineVar[235].Value = 0;
  EngineVar[123].Value = 0;
  RepairEngineVarsAfterLoad(111, true);
  EXPECT_EQ(EngineVar[235].Value, 2000);
  EXPECT_EQ(EngineVar[123].Value, 30);
}

TEST_F(EngineVarTest, Row538IsDoubledOnlyForFilesOlderThan111) {
  EngineVar[538].Value = 50;
  RepairEngineVarsAfterLoad(111, false);
  EXPECT_EQ(EngineVar[538].Value, 50);
  RepairEngineVarsAfterLoad(110, false);
  EXPECT_EQ(EngineVar[538].Value, 100);
  EngineVar[538].Value = 35;
  RepairEngineVarsAfterLoad(100, true);
  EXPECT_EQ(EngineVar[538].Value, 70);
}

TEST_F(EngineVarTest, ListHasAHeadingPerCategoryAndEveryDescribedRow) {
  const auto lines = EngineVarList();
  ASSERT_EQ(lines.size(), 15u + 165u);
  EXPECT_EQ(lines[0].text, "------------------- 1-------------------");
  EXPECT_EQ(lines[0].index, 0);
  EXPECT_EQ(lines[1].text, "1     Grass Movement Cost for Land Unit");
  EXPECT_EQ(lines[1].index, 1);
  EXPECT_EQ(lines[4].text, "999   Sea Movement Cost for Land unit");
  EXPECT_EQ(lines[4].index, 4);
  // Category 1 has 12 rows, so the heading of category 2 is line 13.
  EXPECT_EQ(lines[13].text, "------------------- 2-------------------");
  EXPECT_EQ(lines[13].index, 0);
  EXPECT_EQ(lines[14].text, "1     Supply MP cost for Grass");
  EXPECT_EQ(lines[14].index, 21);
  int headings = 0;
  for (const auto& line : lines) {
    EXPECT_NE(line.index, 234);
    if (line.index == 0) ++headings;
  }
  EXPECT_EQ(headings, 15);
  EXPECT_EQ(lines.back().text,
            "350   Experience & Rdn modifier. higher is less xp/rdn-drain, lower is more");
  EXPECT_EQ(lines.back().index, 707);
}

TEST_F(EngineVarTest, ListShowsCategory15ZeroValuesPaddedToWidth5) {
  const auto lines = EngineVarList();
  std::size_t heading15 = 0;
  for (std::size_t i = 0; i < lines.size(); ++i)
    if (lines[i].text == "------------------- 15-------------------") heading15 = i;
  ASSERT_GT(heading15, 0u);
  ASSERT_EQ(lines.size(), heading15 + 8);  // rows 701..707
  EXPECT_EQ(lines[heading15 + 1].text, "0     AI Forbidden. If =1 then AI is forbidden to play in this scenario.");
  EXPECT_EQ(lines[heading15 + 1].index, 701);
  EXPECT_EQ(lines[heading15 + 2].text, "150   /100 = the XP/Readiness value of production points with loss.calc");
  EXPECT_EQ(lines[heading15 + 3].text, "0     neutral hex= 0 means neutral hex join auto and 1 means they dont");
}

TEST_F(EngineVarTest, ListValueColumnForWideAndNegativeValues) {
  EngineVar[102].Value = 50000;   // exactly five characters
  EngineVar[101].Value = 123456;  // wider than the column
  EngineVar[111].Value = -5;
  const auto lines = EngineVarList();
  auto textOf = [&](int index) {
    for (const auto& line : lines)
      if (line.index == index) return line.text;
    return std::string("missing");
  };
  EXPECT_EQ(textOf(102), "50000 Maximum Unit Size in Weight Pts");
  EXPECT_EQ(textOf(101), "123456 Minimal Soft Att value to occupy enemy land");
  EXPECT_EQ(textOf(111), "-5    Supply cost for Level 1 Entrenchment");
}

TEST_F(EngineVarTest, ListSkipsRowsWithOneCharacterDescriptions) {
  EngineVar[900].Description = "x";
  EngineVar[900].Category = 3;
  EngineVar[901].Description = "xy";
  EngineVar[901].Category = 3;
  EngineVar[901].Value = 4;
  const auto lines = EngineVarList();
  EXPECT_EQ(lines.size(), 15u + 165u + 1u);
  bool found900 = false;
  bool found901 = false;
  for (const auto& line : lines) {
    if (line.index == 900) found900 = true;
    if (line.index == 901) {
      found901 = true;
      EXPECT_EQ(line.text, "4     xy");
    }
  }
  EXPECT_FALSE(found900);
  EXPECT_TRUE(found901);
}

TEST_F(EngineVarTest, ChangeTakesTheLeadingNumberOfTheEnteredText) {
  platform.QueueAnswer("12abc");
  ASSERT_TRUE(ChangeEngineVar(533));
  EXPECT_EQ(EngineVar[533].Value, 12);
  const auto& events = platform.Events();
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, PlatformEvent::kPrompt);
  EXPECT_EQ(events[0].title, "Give New Value");
  EXPECT_EQ(events[0].text, "Number of combat rounds");
}

TEST_F(EngineVarTest, ChangeWithTextWithoutANumberGivesZero) {
  platform.QueueAnswer("abc");
  ASSERT_TRUE(ChangeEngineVar(533));
  EXPECT_EQ(EngineVar[533].Value, 0);
}

TEST_F(EngineVarTest, ChangeTruncatesFractions) {
  platform.QueueAnswer("7.9");
  ASSERT_TRUE(ChangeEngineVar(1));
  EXPECT_EQ(EngineVar[1].Value, 7);
  platform.QueueAnswer("-7.9");
  ASSERT_TRUE(ChangeEngineVar(1));
  EXPECT_EQ(EngineVar[1].Value, -7);
}

TEST_F(EngineVarTest, ChangeOffersThePresentValueAsDefault) {
  EngineVar[102].Value = 50000;
  // Nothing queued: the prompt is answered with its default.
  ASSERT_TRUE(ChangeEngineVar(102));
  ASSERT_EQ(platform.Events().size(), 1u);
  EXPECT_EQ(platform.Events()[0].answer, "50000");
  EXPECT_EQ(EngineVar[102].Value, 50000);
}

TEST_F(EngineVarTest, ACancelledPromptGivesZero) {
  platform.QueueAnswer("cancel");
  ASSERT_TRUE(ChangeEngineVar(533));
  EXPECT_EQ(EngineVar[533].Value, 0);
}

TEST_F(EngineVarTest, HeadingLinesAndUnlistedRowsCannotBeChanged) {
  platform.QueueAnswer("5");
  EXPECT_FALSE(ChangeEngineVar(0));
  EXPECT_FALSE(ChangeEngineVar(234));
  EXPECT_FALSE(ChangeEngineVar(13));
  EXPECT_FALSE(ChangeEngineVar(1001));
  EXPECT_FALSE(ChangeEngineVar(-3));
  EXPECT_TRUE(platform.Events().empty());
  EXPECT_EQ(EngineVar[234].Value, 40);
}

TEST_F(EngineVarTest, Row234StaysAt40SinceNoListLineReachesIt) {
  // Change every row the list offers; row 234 is not among them.
  for (const auto& line : EngineVarList()) {
    if (line.index == 0) continue;
    platform.QueueAnswer("1");
    ASSERT_TRUE(ChangeEngineVar(line.index));
  }
  EXPECT_EQ(EngineVar[234].Value, 40);
  EXPECT_EQ(EngineVar[215].Value, 1);
}

}  // namespace
}  // namespace mf
