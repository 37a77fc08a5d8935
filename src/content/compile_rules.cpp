// The rules of a scenario: engine variables, peoples, research fields,
// unit types, the game's own fields, regimes and their diplomacy.
#include "content_compiler.h"

#include <algorithm>
#include <set>

#include "model/labels.h"
#include "model/reset.h"

namespace mf::content {

void Compiler::Rules() {
  for (const Block* b : All("rules")) {
    for (const Entry& e : b->entries) {
      if (BareField(e.key) != "EngineVar") {
        Error(e.where, "[rules] takes EngineVar[n] = value, not " + e.key);
        continue;
      }
      long long v = 0;
      if (Number(e, 0, &v)) SetNum(e.key, v, e.where);
    }
  }
}

void Compiler::Peoples() {
  const auto peoples = Numbered("people", kPeopleCap);
  SetNum("Game.PeopleCount", static_cast<long long>(peoples.size()), "peoples");
  for (const auto& [p, b] : peoples) {
    const std::string prefix = "People[" + std::to_string(p) + "].";
    for (const Entry& e : b->entries) {
      if (e.key == "FirstNames" || e.key == "LastNames") {
        const auto names = List(e);
        if (static_cast<int>(names.size()) > kPeopleNames) {
          Error(e.where, e.key + ": at most " + std::to_string(kPeopleNames) + " names");
          continue;
        }
        std::set<std::string> seen;
        for (std::size_t k = 0; k < names.size(); ++k) {
          Entry one{e.key, names[k], false, e.where};
          if (names[k].size() < 2) Error(e.where, e.key + ": \"" + names[k] + "\" is too short to count as a name");
          if (!seen.insert(names[k]).second) Error(e.where, e.key + ": \"" + names[k] + "\" is given twice");
          if (CheckText(one, false)) {
            const char* field = e.key == "FirstNames" ? "FirstName" : "LastName";
            Set(prefix + field + "[" + std::to_string(k + 1) + "]", names[k], e.where);
          }
        }
        continue;
      }
      SetGeneric("People", prefix, e);
    }
    if (People[p].Name.size() < 2) Error(b->where, "a people needs a Name");
  }
  for (const auto& [p, b] : peoples) peoples_[Lower(People[p].Name)] = p;
}

void Compiler::ResearchFields() {
  const auto fields = Numbered("research", kResearchCap);
  for (const auto& [f, b] : fields) {
    const Entry* name = Find(*b, "Name");
    if (name == nullptr) {
      Error(b->where, "a research field needs a Name");
      continue;
    }
    research_[Lower(name->value)] = f;
  }
  for (const auto& [f, b] : fields) {
    const std::string prefix = "Research[" + std::to_string(f) + "].";
    for (const Entry& e : b->entries) {
      if (e.key == "Need1" || e.key == "Need2") {
        long long v = 0;
        if (Number(e, kSymResearch, &v)) SetNum(prefix + e.key, v, e.where);
        continue;
      }
      SetGeneric("Research", prefix, e);
    }
  }
}

void Compiler::Types() {
  const auto types = Numbered("type", kTypeCap);
  SetNum("Game.TypeCount", static_cast<long long>(types.size()), "types");
  for (const auto& [t, b] : types) {
    const Entry* name = Find(*b, "Name");
    if (name == nullptr) {
      Error(b->where, "a unit type needs a Name");
      continue;
    }
    if (types_.count(Lower(name->value))) Error(name->where, "a second unit type named " + name->value);
    types_[Lower(name->value)] = t;
  }
  for (const auto& [t, b] : types) {
    const std::string prefix = "Type[" + std::to_string(t) + "].";
    bool living = false, owning = false;
    for (const Entry& e : b->entries) {
      int attr = 0;
      for (int a = 1; a <= kTypeAttrs; ++a) {
        if (Lower(TypeAttrLabel(a)) == Lower(e.key)) attr = a;
      }
      if (attr > 0) {
        long long v = 0;
        if (Number(e, 0, &v)) SetNum(prefix + "Attr[" + std::to_string(attr) + "]", v, e.where);
      } else if (e.key == "Theater") {
        long long v = 0;
        if (TheaterValue(e, &v)) SetNum(prefix + "Theater", v, e.where);
      } else if (e.key == "Class") {
        long long v = 0;
        if (Whole(e, &v, 1, 4)) SetNum(prefix + "Class", v, e.where);
      } else if (e.key == "Research") {
        long long v = 0;
        if (Number(e, kSymResearch, &v)) SetNum(prefix + "Research", v, e.where);
      } else if (e.key == "Living" || e.key == "Owning") {
        (e.key == "Living" ? living : owning) = true;
        PeopleFlags(prefix + e.key, e);
      } else {
        SetGeneric("Type", prefix, e);
      }
    }
    // A type no people is named for is open to every people.
    for (int p = 1; p <= Game.PeopleCount; ++p) {
      if (!living) Type[t].Living[p] = 1;
      if (!owning) Type[t].Owning[p] = 1;
    }
    if (Type[t].Class < 1) Error(b->where, "a unit type needs a Class 1..4");
  }
}

// "all", "none" or a list of peoples by name or number.
void Compiler::PeopleFlags(const std::string& field, const Entry& e) {
  const std::string l = Lower(e.value);
  for (int p = 1; p <= Game.PeopleCount; ++p)
    SetNum(field + "[" + std::to_string(p) + "]", l == "all" ? 1 : 0, e.where);
  if (l == "all" || l == "none") return;
  for (const std::string& item : List(e)) {
    long long p = 0;
    if (!NumberText(item, kSymPeople, e, &p)) continue;
    if (p < 1 || p > Game.PeopleCount) {
      Error(e.where, e.key + ": there is no people " + item);
      continue;
    }
    SetNum(field + "[" + std::to_string(p) + "]", 1, e.where);
  }
}

void Compiler::GameFields(const Block& b) {
  for (const Entry& e : b.entries) {
    if (e.key == "Seed") continue;
    SetGeneric("Game", "Game.", e);
  }
  if (Game.ScenarioStory.size() < 2) Error(b.where, "a scenario needs its ScenarioStory");
}

void Compiler::Regimes() {
  const auto regimes = Numbered("regime", kSightRegimes);
  SetNum("Game.RegimeCount", static_cast<long long>(regimes.size()), "regimes");
  for (const auto& [r, b] : regimes) {
    SetNewRegimeDefaults(r);
    const std::string prefix = "Regime[" + std::to_string(r) + "].";
    for (const Entry& e : b->entries) {
      if (e.key == "Research") {
        for (const std::string& item : List(e)) {
          long long f = 0;
          if (NumberText(item, kSymResearch, e, &f))
            SetNum(prefix + "Research[" + std::to_string(f) + "]", 1, e.where);
        }
      } else if (e.key == "OwnPeople") {
        long long p = 0;
        if (Number(e, kSymPeople, &p)) SetNum(prefix + e.key, p, e.where);
      } else {
        SetGeneric("Regime", prefix, e);
      }
    }
    const RegimeRec& re = Regime[r];
    if (re.Name.size() < 2) Error(b->where, "a regime needs a Name");
    if (re.OwnPeople < 1 || re.OwnPeople > Game.PeopleCount) Error(b->where, "a regime needs its OwnPeople");
    if (re.PortraitSet < 1 || re.PortraitSet > kPortraitSets) {
      Error(b->where, "a regime needs a PortraitSet 1.." + std::to_string(kPortraitSets));
    }
    if (re.HexSprite < 1 || re.HexSprite > 15) Error(b->where, "a regime needs a HexSprite (its colour) 1..15");
    if (re.Intro.size() < 2) Error(b->where, "a regime needs its briefing, Intro");
    regimes_[Lower(re.Name)] = r;
  }
}

// Every pair of regimes starts at war with a relation that cannot be
// changed (a stored cost of 0 would read back as 999, so the 999 is
// written out); [diplomacy] lines "1-2 = peace 40" set both directions.
void Compiler::Diplomacy() {
  for (int a = 1; a <= Game.RegimeCount; ++a) {
    for (int c = 1; c <= Game.RegimeCount; ++c) {
      Dip[a][c] = DipRec{};
      Dip[a][c].Cost = 999;
    }
  }
  for (const Block* b : All("diplomacy")) {
    for (const Entry& e : b->entries) {
      const auto pair = Split(e.key, '-');
      long long a = 0, c = 0;
      if (pair.size() != 2 || !ParseWhole(pair[0], &a) || !ParseWhole(pair[1], &c) || a < 1 || c < 1 ||
          a > Game.RegimeCount || c > Game.RegimeCount || a == c) {
        Error(e.where, "expected two different regimes \"A-B\", not " + e.key);
        continue;
      }
      const auto words = Split(TrimAll(e.value), ' ');
      const std::string rel = Lower(words[0]);
      long long cost = 999;
      if ((rel != "war" && rel != "peace") || words.size() > 2 ||
          (words.size() == 2 && (!ParseWhole(words[1], &cost) || cost < 1 || cost > 999))) {
        Error(e.where, "expected \"war\" or \"peace\" and a cost 1..999, not \"" + e.value + "\"");
        continue;
      }
      for (int k = 0; k < 2; ++k) {
        DipRec& d = k == 0 ? Dip[a][c] : Dip[c][a];
        d.Relation = rel == "peace" ? 1 : 0;
        d.Cost = static_cast<Long>(cost);
      }
    }
  }
}

}  // namespace mf::content
