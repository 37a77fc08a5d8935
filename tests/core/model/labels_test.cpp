// The fixed words of the tables: type attributes, losses classes, class
// words by theater and the event editor's field labels.
#include <gtest/gtest.h>

#include <string>

#include "model/labels.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;

class LabelsTest : public CoreTest {};

TEST_F(LabelsTest, TypeAttributeLabels) {
  const char* expected[] = {"Weight",      "Carry Cap",      "Movement Cap", "Soft Attack",      "Soft Defense",
                            "Hard Attack", "Hard Defense",   "Artillery Attack", "Artillery Range", "Recon Cap",
                            "Supply Need", "Engineer Skill", "Subskills",    "Anti-Air Cap",     "Hit Points",
                            "Frontsize",   "Strategic Bombing", "Dogfight",  "Naval Interdict",  "Paradrop Cap"};
  for (int n = 1; n <= 20; ++n) EXPECT_EQ(TypeAttrLabel(n), expected[n - 1]) << n;
  EXPECT_EQ(TypeAttrLabel(0), "");
  EXPECT_EQ(TypeAttrLabel(21), "");
  // The attribute names of the tables follow the labels.
  EXPECT_EQ(TypeAttrLabel(kCarryCap), "Carry Cap");
  EXPECT_EQ(TypeAttrLabel(kFrontsize), "Frontsize");
  EXPECT_EQ(TypeAttrLabel(kParadropCap), "Paradrop Cap");
}

TEST_F(LabelsTest, LossClassLabels) {
  const char* expected[] = {"Infantry", "Trucks", "Artillery", "Armour",       "Warships", "Cargoships",
                            "Carriers", "Subs",   "Fighters",  "Transporters", "Bombers",  "Rockets"};
  for (int n = 1; n <= 12; ++n) EXPECT_EQ(LossClassLabel(n), expected[n - 1]) << n;
  EXPECT_EQ(LossClassLabel(0), "");
  EXPECT_EQ(LossClassLabel(13), "");
}

TEST_F(LabelsTest, LossClassOfATypeIsClassPlusFourTimesTheater) {
  EXPECT_EQ(LossClass(1, kLandTheater), 1);
  EXPECT_EQ(LossClass(4, kLandTheater), 4);
  EXPECT_EQ(LossClass(2, kSeaTheater), 6);   // cargo ships
  EXPECT_EQ(LossClass(4, kSeaTheater), 8);   // subs
  EXPECT_EQ(LossClass(1, kAirTheater), 9);   // fighters
  EXPECT_EQ(LossClass(4, kAirTheater), 12);  // rockets
  EXPECT_EQ(LossClassLabel(LossClass(3, kAirTheater)), "Bombers");
}

TEST_F(LabelsTest, ClassWordsByTheater) {
  EXPECT_EQ(ClassWord(kLandTheater, 1), "Inf");
  EXPECT_EQ(ClassWord(kLandTheater, 2), "Mob");
  EXPECT_EQ(ClassWord(kLandTheater, 3), "Art");
  EXPECT_EQ(ClassWord(kLandTheater, 4), "Arm");
  EXPECT_EQ(ClassWord(kSeaTheater, 1), "War");
  EXPECT_EQ(ClassWord(kSeaTheater, 2), "Trn");
  EXPECT_EQ(ClassWord(kSeaTheater, 3), "Car");
  EXPECT_EQ(ClassWord(kSeaTheater, 4), "Sub");
  EXPECT_EQ(ClassWord(kAirTheater, 1), "Fig");
  EXPECT_EQ(ClassWord(kAirTheater, 2), "Trn");
  EXPECT_EQ(ClassWord(kAirTheater, 3), "Bom");
  EXPECT_EQ(ClassWord(kAirTheater, 4), "n/a");
  EXPECT_EQ(ClassWord(kLandTheater, 0), "");
  EXPECT_EQ(ClassWord(kLandTheater, 5), "");
  EXPECT_EQ(ClassWord(3, 1), "");
  EXPECT_EQ(ClassWord(-1, 1), "");
}

TEST_F(LabelsTest, EventFieldLabelsByName) {
  EXPECT_EQ(EventFieldLabel("TurnMin"), "=> TURN");
  EXPECT_EQ(EventFieldLabel("TurnMax"), "<= TURN");
  EXPECT_EQ(EventFieldLabel("HexX"), "X,Y=OWNER");
  EXPECT_EQ(EventFieldLabel("HexY"), "X,Y=OWNER");
  EXPECT_EQ(EventFieldLabel("HexOwner"), "X,Y=OWNER");
  EXPECT_EQ(EventFieldLabel("Winner"), "GAMEWINNER");
  EXPECT_EQ(EventFieldLabel("NotWinner"), "NOT GAMEWINNER");
  EXPECT_EQ(EventFieldLabel("Random"), "RANDOM100");
  EXPECT_EQ(EventFieldLabel("Once"), "ONLY ONCE?");
  EXPECT_EQ(EventFieldLabel("BookVar"), "BOOKVAR #");
  EXPECT_EQ(EventFieldLabel("BookMin"), "BOOKVAR => #");
  EXPECT_EQ(EventFieldLabel("BookMax"), "BOOKVAR <= #");
  EXPECT_EQ(EventFieldLabel("Type"), "THEN EVENT TYP:");
  EXPECT_EQ(EventFieldLabel("Story"), "SHOW STORY:");
  EXPECT_EQ(EventFieldLabel("Sprite"), "SHOW SPRITE #:");
  EXPECT_EQ(EventFieldLabel("ShowAll"), "SHOWALL");
  EXPECT_EQ(EventFieldLabel("ShowReg1"), "SHOWREG1");
  EXPECT_EQ(EventFieldLabel("ShowReg2"), "SHOWREG2");
  EXPECT_EQ(EventFieldLabel("IfAI"), "IFAIREGIME");
  EXPECT_EQ(EventFieldLabel("Data"), "DATA 30x");
  EXPECT_EQ(EventFieldLabel("DataText"), "DATASTRING 5x");
  EXPECT_EQ(EventFieldLabel("IfWar"), "IFWARWITH");
  EXPECT_EQ(EventFieldLabel("IfPeace"), "IFPEACEWITH");
  EXPECT_EQ(EventFieldLabel("DipLastTurn"), "DIPLASTTURN");
  // The turn an event last fired is the engine's book-keeping, not edited.
  EXPECT_EQ(EventFieldLabel("FiredTurn"), "");
  EXPECT_EQ(EventFieldLabel("Nonsense"), "");
}

TEST_F(LabelsTest, EventFieldsComeInFileOrder) {
  const auto fields = EventFields();
  ASSERT_EQ(fields.size(), 25u);
  EXPECT_EQ(std::string(fields[0].field), "TurnMin");
  EXPECT_EQ(std::string(fields[13].field), "Story");
  EXPECT_EQ(std::string(fields[15].field), "FiredTurn");
  EXPECT_EQ(std::string(fields[24].field), "DipLastTurn");
  EXPECT_EQ(std::string(fields[24].label), "DIPLASTTURN");
}

}  // namespace
}  // namespace mf
