// The type editor's rules of which class may have which ability.
#include "editor/type_rules.h"

#include <gtest/gtest.h>

#include <string>

#include "model/game_state.h"
#include "support/core_test.h"

namespace mf {
namespace {

using test::CoreTest;

class TypeRulesTest : public CoreTest {};

constexpr int kLand = 0, kSea = 1, kAir = 2;

const char* const kNoClass =
    "You can't assign any attributes untill you give a valid type 1-4 1=inf,war,fig 2=mob,car,trn "
    "3=art,car,bom 4=arm,sub,*";

TEST_F(TypeRulesTest, ZeroAlwaysPasses) {
  for (int a = 1; a <= 20; ++a) {
    EXPECT_EQ(TypeAttrRefusal(kLand, 0, a, 0), "") << a;
    EXPECT_EQ(TypeAttrRefusal(kSea, 2, a, 0), "") << a;
    EXPECT_EQ(TypeAttrRefusal(kAir, 2, a, 0), "") << a;
  }
}

TEST_F(TypeRulesTest, UnknownAttribute) {
  EXPECT_EQ(TypeAttrRefusal(kLand, 1, 0, 5), "Not known typedata");
  EXPECT_EQ(TypeAttrRefusal(kLand, 1, 21, 5), "Not known typedata");
}

TEST_F(TypeRulesTest, EngineerSkillIsAskedBeforeTheClass) {
  // A type without a class hears about engineering first, other attributes about the class.
  EXPECT_EQ(TypeAttrRefusal(kLand, 0, kEngineerSkill, 5), "Only infantry can have engineer skill.");
  EXPECT_EQ(TypeAttrRefusal(kLand, 0, kWeight, 5), kNoClass);
  EXPECT_EQ(TypeAttrRefusal(kLand, 5, kSoftAttack, 5), kNoClass);
  EXPECT_EQ(TypeAttrRefusal(kLand, 1, kEngineerSkill, 5), "");
  EXPECT_EQ(TypeAttrRefusal(kLand, 2, kEngineerSkill, 5), "Only infantry can have engineer skill.");
  EXPECT_EQ(TypeAttrRefusal(kSea, 1, kEngineerSkill, 5), "Only infantry can have engineer skill.");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kEngineerSkill, 5), "Only infantry can have engineer skill.");
}

TEST_F(TypeRulesTest, CarryCap) {
  EXPECT_EQ(TypeAttrRefusal(kLand, 1, kCarryCap, 10), "Only mobile and armor may have carrycap.");
  EXPECT_EQ(TypeAttrRefusal(kLand, 3, kCarryCap, 10), "Only mobile and armor may have carrycap.");
  EXPECT_EQ(TypeAttrRefusal(kLand, 2, kCarryCap, 10), "");
  EXPECT_EQ(TypeAttrRefusal(kLand, 4, kCarryCap, 10), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kCarryCap, 10), "Only airtransports may have carrycap.");
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kCarryCap, 10), "Only airtransports may have carrycap.");
  EXPECT_EQ(TypeAttrRefusal(kAir, 2, kCarryCap, 10), "");
  const char* ships = "Only naval ships allowed cargospace is the cargoship and the carrier (type=2 + 3)";
  EXPECT_EQ(TypeAttrRefusal(kSea, 1, kCarryCap, 10), ships);
  EXPECT_EQ(TypeAttrRefusal(kSea, 4, kCarryCap, 10), ships);
  EXPECT_EQ(TypeAttrRefusal(kSea, 2, kCarryCap, 10), "");
  EXPECT_EQ(TypeAttrRefusal(kSea, 3, kCarryCap, 10), "");
}

TEST_F(TypeRulesTest, SoftAndHardFigures) {
  for (int a = kSoftAttack; a <= kHardDefense; ++a) {
    EXPECT_EQ(TypeAttrRefusal(kSea, 1, a, 3), "Naval unittype types don't use soft att, soft def, hard att, hard def.");
    EXPECT_EQ(TypeAttrRefusal(kAir, 2, a, 3), "Air transporters cannot have softatt,softdef,hardatt,harddef");
    EXPECT_EQ(TypeAttrRefusal(kLand, 4, a, 3), "");
    EXPECT_EQ(TypeAttrRefusal(kAir, 4, a, 3), "");  // rockets may have all four
  }
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kSoftAttack, 3), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kHardAttack, 3), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kSoftDefense, 3), "Fighters&Bombers cannot have softdef or harddef");
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kHardDefense, 3), "Fighters&Bombers cannot have softdef or harddef");
}

TEST_F(TypeRulesTest, Artillery) {
  const char* landArt = "Only land type that can have artillery attack is type3: artillery";
  EXPECT_EQ(TypeAttrRefusal(kLand, 1, kArtilleryAttack, 9), landArt);
  EXPECT_EQ(TypeAttrRefusal(kLand, 4, kArtilleryRange, 2), landArt);
  EXPECT_EQ(TypeAttrRefusal(kLand, 3, kArtilleryAttack, 9), "");
  EXPECT_EQ(TypeAttrRefusal(kLand, 3, kArtilleryRange, 2), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kArtilleryAttack, 9), "Aircraft cant have artillery caps.");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kArtilleryRange, 1), "Aircraft cant have artillery caps.");
  EXPECT_EQ(TypeAttrRefusal(kSea, 2, kArtilleryAttack, 9), "Cargoships may not have artillery");
  EXPECT_EQ(TypeAttrRefusal(kSea, 2, kArtilleryRange, 1),
            "Subs may not have range in artillery, cargo ships no artillery at all.");
  EXPECT_EQ(TypeAttrRefusal(kSea, 4, kArtilleryRange, 1),
            "Subs may not have range in artillery, cargo ships no artillery at all.");
  EXPECT_EQ(TypeAttrRefusal(kSea, 4, kArtilleryAttack, 9), "");  // torpedoes at the next hex
  EXPECT_EQ(TypeAttrRefusal(kSea, 1, kArtilleryRange, 3), "");
  EXPECT_EQ(TypeAttrRefusal(kSea, 3, kArtilleryRange, 1), "");
}

TEST_F(TypeRulesTest, SubskillsOnlyForSubmarines) {
  const char* msg = "Only subs, theater=1, type=4 may have subskills";
  EXPECT_EQ(TypeAttrRefusal(kSea, 4, kSubskills, 60), "");
  EXPECT_EQ(TypeAttrRefusal(kSea, 1, kSubskills, 60), msg);
  EXPECT_EQ(TypeAttrRefusal(kLand, 4, kSubskills, 60), msg);
  EXPECT_EQ(TypeAttrRefusal(kAir, 4, kSubskills, 60), msg);
}

TEST_F(TypeRulesTest, AirOnlyAbilities) {
  for (int a = kStrategicBombing; a <= kNavalInterdict; ++a) {
    EXPECT_EQ(TypeAttrRefusal(kLand, 1, a, 5), "This is only for air unittypes.") << a;
    EXPECT_EQ(TypeAttrRefusal(kSea, 1, a, 5), "This is only for air unittypes.") << a;
  }
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kStrategicBombing, 40), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kStrategicBombing, 40),
            "Only bomber (theater=2,type=3) can have strategic bombing cap.");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kDogfight, 30), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kDogfight, 30), "Only fighter can have dogfight value");
  EXPECT_EQ(TypeAttrRefusal(kAir, 3, kNavalInterdict, 30), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 1, kNavalInterdict, 30), "");
  EXPECT_EQ(TypeAttrRefusal(kAir, 2, kNavalInterdict, 30), "Transport aircraft cannot have naval interdict value");
}

TEST_F(TypeRulesTest, ParadropOnlyOnLand) {
  EXPECT_EQ(TypeAttrRefusal(kLand, 1, kParadropCap, 1), "");
  EXPECT_EQ(TypeAttrRefusal(kSea, 2, kParadropCap, 1), "Only land theater types can have paradrop attribute.");
  EXPECT_EQ(TypeAttrRefusal(kAir, 2, kParadropCap, 1), "Only land theater types can have paradrop attribute.");
}

TEST_F(TypeRulesTest, FreeAttributesPassEverywhere) {
  // Weight, movement, recon, supply need, anti-air, hit points and frontsize suit every class.
  for (int th = 0; th <= 2; ++th) {
    for (int c = 1; c <= 4; ++c) {
      for (int a : {kWeight, kMovementCap, kReconCap, kSupplyNeed, kAntiAirCap, kHitPoints, kFrontsize}) {
        EXPECT_EQ(TypeAttrRefusal(th, c, a, 7), "") << th << " " << c << " " << a;
      }
    }
  }
}

TEST_F(TypeRulesTest, BrokenRulesOfATypeInAttributeOrder) {
  Game.TypeCount = 2;
  Type[1].Theater = kSea;
  Type[1].Class = 2;  // a cargo ship
  Type[1].Attr[kCarryCap] = 100;
  Type[1].Attr[kSoftAttack] = 4;
  Type[1].Attr[kArtilleryAttack] = 10;
  Type[1].Attr[kParadropCap] = 1;
  const auto broken = BrokenTypeRules(1);
  ASSERT_EQ(broken.size(), 3u);
  EXPECT_EQ(broken[0].attr, kSoftAttack);
  EXPECT_EQ(broken[0].message, "Naval unittype types don't use soft att, soft def, hard att, hard def.");
  EXPECT_EQ(broken[1].attr, kArtilleryAttack);
  EXPECT_EQ(broken[1].message, "Cargoships may not have artillery");
  EXPECT_EQ(broken[2].attr, kParadropCap);
  EXPECT_EQ(broken[2].message, "Only land theater types can have paradrop attribute.");

  Type[2].Theater = kLand;
  Type[2].Class = 1;
  Type[2].Attr[kEngineerSkill] = 20;
  Type[2].Attr[kSoftAttack] = 8;
  EXPECT_TRUE(BrokenTypeRules(2).empty());
  EXPECT_TRUE(BrokenTypeRules(0).empty());
  EXPECT_TRUE(BrokenTypeRules(501).empty());
}

}  // namespace
}  // namespace mf
