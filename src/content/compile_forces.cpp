// The forces of a scenario: units with their troops, places, bosses and
// cargo, the officers who lead them and those who wait in a regime's pool.
#include "content_compiler.h"

#include <map>
#include <set>

#include "model/arith.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"

namespace mf::content {

void Compiler::Units() {
  std::vector<UnitSource>& units = units_;
  // First every unit gets its number, so that bosses and cargo can be named
  // before or after the unit that names them.
  int autoLabel = 0;
  for (const Block* b : All("unit")) {
    UnitSource s;
    s.block = b;
    const Entry* re = Find(*b, "Regime");
    long long r = 0;
    if (re == nullptr) {
      Error(b->where, "a unit needs its Regime");
      continue;
    }
    if (!Number(*re, kSymRegime, &r)) continue;
    if (r < 1 || r > Game.RegimeCount) {
      Error(re->where, "Regime: there is no regime " + re->value);
      continue;
    }
    s.regime = static_cast<int>(r);
    s.u = NewUnitNumber();
    if (s.u == 0) {
      Error(b->where, "no free unit number");
      return;
    }
    Unit[s.u].Regime = s.regime;
    const std::string label = b->label.empty() ? "#" + std::to_string(++autoLabel) : b->label;
    if (unitLabels_.count(Lower(label))) Error(b->where, "a second unit labelled " + label);
    unitLabels_[Lower(label)] = s.u;
    units.push_back(s);
  }
  for (UnitSource& s : units) UnitFields(s);
  for (UnitSource& s : units) UnitLinks(s);
  for (UnitSource& s : units) UnitOfficer(s);
}

// The four strength slots of a unit by their keys.
const std::map<std::string, int>& Compiler::Slots() {
  static const std::map<std::string, int> slots = {{"Inf", 1}, {"Mob", 2}, {"Art", 3}, {"Arm", 4}};
  return slots;
}

void Compiler::UnitFields(UnitSource& s) {
  const Block& b = *s.block;
  const int u = s.u;
  const std::string prefix = "Unit[" + std::to_string(u) + "].";
  UnitRec& un = Unit[u];
  const Entry* theater = Find(b, "Theater");
  s.shq = Find(b, "Shq") != nullptr && Yes(Find(b, "Shq")->value);
  s.thq = Find(b, "Thq") != nullptr && Yes(Find(b, "Thq")->value);
  if (s.shq && s.thq) Error(b.where, "a unit is either an SHQ or a THQ");
  // A scenario's troops start rested; experience is that of a new unit.
  un.Readiness = s.shq ? 25 : 100;
  un.Experience = 25;
  int typeTheater = -1;
  for (const Entry& e : b.entries) {
    auto slot = Slots().find(e.key);
    if (slot == Slots().end()) continue;
    long long t = 0, q = 0;
    if (!TypeAndQty(e.value, e, &t, &q)) continue;
    if (Type[t].Class != slot->second) {
      Error(e.where, e.key + ": " + Type[t].Name + " is of class " + std::to_string(Type[t].Class) +
                         ", this slot takes class " + std::to_string(slot->second));
      continue;
    }
    if (typeTheater >= 0 && Type[t].Theater != typeTheater) Error(e.where, "the troops of a unit share one theater");
    typeTheater = Type[t].Theater;
    UnitSlotType(u, slot->second) = static_cast<Long>(t);
    UnitSlotQty(u, slot->second) = static_cast<Long>(q);
  }
  long long th = typeTheater < 0 ? kLandTheater : typeTheater;
  if (theater != nullptr) {
    long long given = 0;
    if (TheaterValue(*theater, &given) && typeTheater >= 0 && given != typeTheater) {
      Error(theater->where, "Theater: the troops of this unit are of another theater");
    }
    th = given;
  }
  if ((s.shq || s.thq) && th != kLandTheater) Error(b.where, "HQs are land units");
  s.theater = static_cast<int>(th);
  un.Theater = s.theater;
  if (s.shq) {
    Game.CurRegime = s.regime;
    const int n = NewShqNumber();
    Game.CurRegime = 0;
    if (n == 0) {
      Error(b.where, "no free SHQ number");
    } else {
      un.Shq = n;
      SetNum("Shq[" + std::to_string(s.regime) + "," + std::to_string(n) + "].Unit", u, b.where);
    }
  }
  if (s.thq) un.Thq = 1;
  const bool troopsGiven = Find(b, "Inf") || Find(b, "Mob") || Find(b, "Art") || Find(b, "Arm");
  if (!s.shq && !s.thq && !troopsGiven) Error(b.where, "a formation needs troops (Inf, Mob, Art or Arm)");

  static const std::set<std::string> kSpecial = {"Regime", "Theater", "Shq",         "Thq",    "Inf",
                                                 "Mob",    "Art",     "Arm",         "At",     "Boss",
                                                 "Cargo",  "Stock",   "SupplyStock", "Officer"};
  for (const Entry& e : b.entries) {
    if (kSpecial.count(e.key) || e.key.rfind("Officer.", 0) == 0) continue;
    SetGeneric("Unit", prefix, e);
  }
  if (Find(b, "Name") == nullptr) Error(b.where, "a unit needs a Name");
  if (const Entry* e = Find(b, "SupplyStock")) {
    long long v = 0;
    if (!s.shq)
      Error(e->where, "SupplyStock is the stock of an SHQ");
    else if (Whole(*e, &v, 0, 1000000))
      un.SupplyPct = static_cast<Long>(v);
  }
  if (const Entry* e = Find(b, "Stock")) {
    if (!s.shq)
      Error(e->where, "Stock is the pool of an SHQ");
    else
      Stock(s, *e);
  }
  if (const Entry* e = Find(b, "At")) {
    int x = 0, y = 0;
    if (HexAt(*e, &x, &y)) Place(s, x, y, *e);
  }
}

// "Rifle Infantry x 40": a unit type and a quantity of at least 1.
bool Compiler::TypeAndQty(const std::string& text, const Entry& e, long long* t, long long* q) {
  const std::size_t x = Lower(text).rfind(" x ");
  if (x == std::string::npos) {
    Error(e.where, e.key + ": expected \"Type name x quantity\", not \"" + text + "\"");
    return false;
  }
  if (!NumberText(text.substr(0, x), kSymType, e, t)) return false;
  if (*t < 1 || *t > Game.TypeCount) {
    Error(e.where, e.key + ": there is no unit type " + std::to_string(*t));
    return false;
  }
  if (!ParseWhole(text.substr(x + 3), q) || *q < 1 || *q > 100000) {
    Error(e.where, e.key + ": the quantity of \"" + text + "\" is not a whole number 1..100000");
    return false;
  }
  return true;
}

// "Trucks x 20, Rifle Infantry x 10": the pool of an SHQ.
void Compiler::Stock(const UnitSource& s, const Entry& e) {
  int slot = 0;
  for (const std::string& item : List(e)) {
    long long t = 0, q = 0;
    if (!TypeAndQty(item, e, &t, &q)) continue;
    ++slot;
    const std::string shq = "Shq[" + std::to_string(s.regime) + "," + std::to_string(Unit[s.u].Shq) + "].";
    SetNum(shq + "StockType[" + std::to_string(slot) + "]", t, e.where);
    SetNum(shq + "StockQty[" + std::to_string(slot) + "]", q, e.where);
  }
}

void Compiler::Place(UnitSource& s, int x, int y, const Entry& e) {
  HexRec& h = Hex[x][y];
  const std::string at = "At " + XY(x, y) + ": ";
  if (s.theater == kSeaTheater) {
    bool port = false;
    for (int d = 1; d <= kHexSides; ++d) {
      const HexXY n = Neighbour(x, y, d);
      if (n.x > 0 && n.y > 0 && Hex[n.x][n.y].Land == kSea) port = true;
    }
    if (h.Land != kSea && !(h.Land == kUrban && port)) Error(e.where, at + "ships lie at sea or in a port");
  } else if (s.theater == kAirTheater) {
    if (h.Land != kGrass && h.Land != kUrban) Error(e.where, at + "air wings stand on grass or in a town");
  } else if (h.Land == kSea) {
    Error(e.where, at + "land units cannot stand at sea");
  }
  if (h.Land != kSea && h.Owner != s.regime) Error(e.where, at + "the hex is not owned by the unit's regime");
  int slot = 1;
  while (slot <= kStackSlots && h.Unit[slot] != 0) ++slot;
  if (slot > kStackSlots) {
    Error(e.where, at + "three units stand there already");
    return;
  }
  if (slot > 1 && Unit[h.Unit[1]].Regime != s.regime) Error(e.where, at + "units of another regime stand there");
  h.Unit[slot] = s.u;
  s.placed = true;
}

void Compiler::UnitLinks(const UnitSource& s) {
  const Block& b = *s.block;
  UnitRec& un = Unit[s.u];
  if (const Entry* e = Find(b, "Boss")) {
    const int boss = UnitRef(*e);
    if (boss > 0) {
      const UnitRec& bu = Unit[boss];
      if (bu.Regime != s.regime)
        Error(e->where, "Boss: the boss serves another regime");
      else if (s.shq)
        Error(e->where, "Boss: an SHQ has no boss");
      else if (s.thq && bu.Shq == 0)
        Error(e->where, "Boss: a THQ reports to an SHQ");
      else if (bu.Shq == 0 && bu.Thq == 0)
        Error(e->where, "Boss: a formation reports to a THQ or an SHQ");
      else
        un.Boss = boss;
    }
  } else if (!s.shq) {
    Error(b.where, "every unit but an SHQ needs a Boss");
  }
  if (const Entry* e = Find(b, "Cargo")) {
    const int c = UnitRef(*e);
    if (c == 0) return;
    const UnitSource* cargo = nullptr;
    for (const UnitSource& o : units_) {
      if (o.u == c) cargo = &o;
    }
    const UnitRec& cu = Unit[c];
    if (s.theater != kSeaTheater) {
      Error(e->where, "Cargo: only ships carry cargo");
    } else if (cu.Regime != s.regime || c == s.u) {
      Error(e->where, "Cargo: the cargo must be another unit of the same regime");
    } else if (Find(*cargo->block, "At") != nullptr) {
      Error(e->where, "Cargo: a unit on board has no At");
    } else if (cu.Theater == kSeaTheater || cu.Shq > 0) {
      Error(e->where, "Cargo: ships and SHQs are not carried");
    } else if (cargoOf_.count(c)) {
      Error(e->where, "Cargo: the unit is on board another ship already");
    } else {
      long long weight = 0;
      for (int k = 1; k <= 4; ++k)
        weight += static_cast<long long>(Type[UnitSlotType(c, k)].Attr[kWeight]) * UnitSlotQty(c, k);
      const int by = cu.Theater == kAirTheater ? 3 : 2;
      const long long cap =
          static_cast<long long>(Type[UnitSlotType(s.u, by)].Attr[kCarryCap]) * UnitSlotQty(s.u, by);
      if (weight > cap) {
        Error(e->where, "Cargo: weighs " + std::to_string(weight) + ", the ships carry " + std::to_string(cap));
      } else {
        un.Cargo = c;
        cargoOf_[c] = s.u;
      }
    }
  }
}

void Compiler::UnitOfficer(UnitSource& s) {
  const Block& b = *s.block;
  if (!s.placed && cargoOf_.count(s.u) == 0) Error(b.where, "a unit needs At, or to be some ship's Cargo");
  const Entry* e = Find(b, "Officer");
  const std::string how = e == nullptr ? "auto" : e->value;
  if (Lower(how) == "none") return;
  const int o = MakeOfficerFor(s.regime, Lower(how) == "auto" ? "" : how, b, e == nullptr ? b.where : e->where);
  if (o > 0) {
    Unit[s.u].Officer = o;
    Officer[o].InPool = 0;
  }
}

// An officer drawn as the game draws one (names from the regime's people,
// skills by the officer ladder of the rules, retreat by its two rows), but
// from the compiler's own seeded generator, so that every build of a
// scenario gives the same officers; the portrait is the next free one of
// the regime's set. Keys "Officer.Land" and so on of the block override.
int Compiler::MakeOfficerFor(int r, const std::string& name, const Block& b, const std::string& where) {
  int o = 1;
  while (o <= kOfficerCap && Officer[o].Regime != 0) ++o;
  if (o > kOfficerCap) {
    Error(where, "no free officer row");
    return 0;
  }
  const RegimeRec& re = Regime[r];
  const PeopleRec& pe = People[re.OwnPeople];
  std::vector<const std::string*> firsts, lasts;
  for (int k = 1; k <= kPeopleNames; ++k) {
    if (pe.FirstName[k].size() > 1) firsts.push_back(&pe.FirstName[k]);
    if (pe.LastName[k].size() > 1) lasts.push_back(&pe.LastName[k]);
  }
  std::string full = name;
  if (full.empty()) {
    if (firsts.empty() || lasts.empty()) {
      Error(where, "the regime's people has no names to give an officer");
      return 0;
    }
    // Two officers of one scenario do not share a name.
    for (int tries = 0; tries < 50; ++tries) {
      full = *firsts[static_cast<std::size_t>(Int(Rnd() * firsts.size()))] + " " +
             *lasts[static_cast<std::size_t>(Int(Rnd() * lasts.size()))];
      if (officerNames_.count(full) == 0) break;
    }
  }
  officerNames_.insert(full);
  Entry text{"Officer", full, false, where};
  if (!CheckText(text, false)) return 0;

  OfficerRec& of = Officer[o];
  of = OfficerRec{};
  of.Regime = r;
  of.InPool = 1;
  of.Name = full;
  of.Air = Skill();
  of.Land = Skill();
  of.Sea = Skill();
  of.Retreat = static_cast<Long>(Int(Rnd() * EV(478)) + EV(477));
  if (of.Retreat > 95) of.Retreat = 95;
  of.Fame = 0;
  const int set = static_cast<int>(re.PortraitSet);
  of.Pic = NextPortrait(set);
  if (o > Game.OfficerCount) Game.OfficerCount = o;
  const std::string prefix = "Officer[" + std::to_string(o) + "].";
  for (const Entry& e : b.entries) {
    if (e.key.rfind("Officer.", 0) != 0) continue;
    const std::string field = e.key.substr(8);
    if (field != "Land" && field != "Sea" && field != "Air" && field != "Fame" && field != "Retreat" &&
        field != "Pic") {
      Error(e.where, e.key + ": an officer's own keys are Land, Sea, Air, Fame, Retreat and Pic");
      continue;
    }
    long long v = 0;
    if (!Whole(e, &v, 0, field == "Retreat" ? 95 : field == "Pic" ? kPortraitCap : 1000)) continue;
    if (field == "Pic" && (v < (set - 1) * kPortraitsPerSet + 1 || v > set * kPortraitsPerSet)) {
      Error(e.where,
            "Officer.Pic: portrait " + std::to_string(v) + " is not of the regime's set " + std::to_string(set));
      continue;
    }
    SetNum(prefix + field, v, e.where);
  }
  return o;
}

// The officer ladder: engine variables 471..476 split a d100 into skills 9..1.
Long Compiler::Skill() {
  const long long d = Int(Rnd() * 100);
  if (d < EV(471)) return Rnd() > 0.8f ? 9 : 8;
  if (d < EV(472)) return 7;
  if (d < EV(473)) return 6;
  if (d < EV(474)) return 5;
  if (d < EV(475)) return 4;
  if (d < EV(476)) return Rnd() > 0.5f ? 3 : 2;
  return 1;
}

Long Compiler::NextPortrait(int set) {
  int& next = portraitNext_[set];
  const Long pic = static_cast<Long>((set - 1) * kPortraitsPerSet + next % kPortraitsPerSet + 1);
  ++next;
  return pic;
}

// Officers waiting in a regime's pool.
void Compiler::PoolOfficers() {
  for (const Block* b : All("officer")) {
    const Entry* re = Find(*b, "Regime");
    long long r = 0;
    if (re == nullptr || !Number(*re, kSymRegime, &r) || r < 1 || r > Game.RegimeCount) {
      Error(b->where, "a pool officer needs the Regime whose pool he waits in");
      continue;
    }
    const Entry* ne = Find(*b, "Name");
    for (const Entry& e : b->entries) {
      if (e.key != "Regime" && e.key != "Name" && e.key.rfind("Officer.", 0) != 0) {
        Error(e.where, "[officer] takes Regime, Name and Officer.Land and the like, not " + e.key);
      }
    }
    MakeOfficerFor(static_cast<int>(r), ne == nullptr || Lower(ne->value) == "auto" ? "" : ne->value, *b, b->where);
  }
}

}  // namespace mf::content
