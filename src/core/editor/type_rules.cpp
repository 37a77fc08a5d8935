#include "editor/type_rules.h"

#include "model/capacity.h"
#include "model/game_state.h"

namespace mf {

std::string TypeAttrRefusal(int theater, int cls, int attr, long value) {
  if (attr < 1 || attr > kTypeAttrs) return "Not known typedata";
  if (value == 0) return "";  // zero clears a wrong value after a change of class

  const bool land = theater == kLandTheater;
  const bool sea = theater == kSeaTheater;
  const bool air = theater == kAirTheater;

  // Engineering is an infantry trade; this is asked before the class is known to be valid.
  if (attr == kEngineerSkill && !(land && cls == 1)) return "Only infantry can have engineer skill.";
  if (cls < 1 || cls > 4) {
    return "You can't assign any attributes untill you give a valid type 1-4 1=inf,war,fig 2=mob,car,trn "
           "3=art,car,bom 4=arm,sub,*";
  }
  if (attr == kCarryCap) {
    if (land && cls != 2 && cls != 4) return "Only mobile and armor may have carrycap.";
    if (air && cls != 2) return "Only airtransports may have carrycap.";
    if (sea && cls != 2 && cls != 3) {
      return "Only naval ships allowed cargospace is the cargoship and the carrier (type=2 + 3)";
    }
  }
  if (attr >= kSoftAttack && attr <= kHardDefense) {
    if (sea) return "Naval unittype types don't use soft att, soft def, hard att, hard def.";
    if (air && cls == 2) return "Air transporters cannot have softatt,softdef,hardatt,harddef";
    if ((attr == kSoftDefense || attr == kHardDefense) && air && (cls == 1 || cls == 3)) {
      return "Fighters&Bombers cannot have softdef or harddef";
    }
  }
  if (attr == kArtilleryAttack || attr == kArtilleryRange) {
    if (land && cls != 3) return "Only land type that can have artillery attack is type3: artillery";
    if (air) return "Aircraft cant have artillery caps.";
    if (attr == kArtilleryAttack && sea && cls == 2) return "Cargoships may not have artillery";
    if (attr == kArtilleryRange && sea && (cls == 2 || cls == 4)) {
      return "Subs may not have range in artillery, cargo ships no artillery at all.";
    }
  }
  if (attr == kSubskills && !(sea && cls == 4)) return "Only subs, theater=1, type=4 may have subskills";
  if (attr >= kStrategicBombing && attr <= kNavalInterdict) {
    if (!air) return "This is only for air unittypes.";
    if (attr == kStrategicBombing && cls != 3) return "Only bomber (theater=2,type=3) can have strategic bombing cap.";
    if (attr == kDogfight && cls != 1) return "Only fighter can have dogfight value";
    if (attr == kNavalInterdict && cls == 2) return "Transport aircraft cannot have naval interdict value";
  }
  if (attr == kParadropCap && !land) return "Only land theater types can have paradrop attribute.";
  return "";
}

std::vector<BrokenTypeRule> BrokenTypeRules(int t) {
  std::vector<BrokenTypeRule> broken;
  if (!ValidType(t)) return broken;
  const TypeRec& ty = Type[t];
  for (int a = 1; a <= kTypeAttrs; ++a) {
    std::string why = TypeAttrRefusal(ty.Theater, ty.Class, a, ty.Attr[a]);
    if (!why.empty()) broken.push_back({a, std::move(why)});
  }
  return broken;
}

}  // namespace mf
