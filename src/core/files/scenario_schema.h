// The one description of a scenario file: every saved field, in file order,
// with its kind, the first file version that holds it, and the checks a
// reader applies. The writer, the reader, the rule-set import, the JSON export
// and import and the field lister all walk this same sequence, so they can
// never disagree about the order of the fields.
//
// A visitor V provides:
//   Long Long(const FieldName&, Long& ref, Check = {})   whole number, written as " 5 " / "-5 "
//   Long Short(const FieldName&, Short& ref, Check = {}) the same on a 16-bit field
//   Long Bool(const FieldName&, Long& ref)               "True" / "False"; -1 / 0 in the tables
//   void Text(const FieldName&, std::string& ref)        one line, cut at a comma on reading
//   void LongText(const FieldName&, std::string& ref)    several lines joined by "//x//"
//   void Assign(const FieldName&, Long& ref, Long value) a repair that only readers make
//   bool HeadHasFog(Long version)   whether FogOfWar has its own field after the version
//   bool Proceed(Long version)      false stops the walk after the head's first field
// The numeric visits return the value visited (after the reader's checks),
// and the walk takes every loop count from that return value: a reader's
// loops follow the counts of the file, also where it drops the field, and a
// writer's loops follow what it writes.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "model/capacity.h"
#include "model/game_state.h"

namespace mf {

// The record a field belongs to; names are formatted from it.
enum class FieldRec : std::uint8_t {
  kGame, kEvent, kHex, kPeople, kOfficer, kRegime, kDip, kShq, kNews, kUnit, kResearch, kType, kEngineVar
};

// Fields whose saved value is not simply the table's value.
enum class FieldRole : std::uint8_t {
  kPlain,
  kFileVersion,  // always written as the current version
  kStockWidth,   // engine variable 616, raised to Game.TypeCount when written
};

// A field's name, cheap to pass around; turned into its registry name
// ("Hex[3,4].Unit[2]", "Regime[1].PP", "EngineVar[533]") only when needed.
struct FieldName {
  FieldRec rec = FieldRec::kGame;
  const char* field = "";  // unused for engine variables
  int i = 0;               // record index (x of a hex, a of Dip, regime of Shq and News)
  int j = 0;               // second record index (y of a hex, b of Dip, SHQ number, news line)
  int k = 0;               // index inside the field; 0 = none
  bool repeat = false;     // a second copy of a field the file already holds
  FieldRole role = FieldRole::kPlain;

  std::string Format() const;
  // Appends the same name to a text.
  void AppendTo(std::string& out) const;
  // The name in two parts, the record ("Hex[3,4].", "Game.", "EngineVar[533]")
  // and the field in it ("Unit[2]"; nothing for an engine variable), so that
  // a writer of many fields of one record can keep the record's part.
  void AppendRecordTo(std::string& out) const;
  void AppendFieldTo(std::string& out) const;
  // Whether both name fields of the same record.
  bool SameRecord(const FieldName& other) const { return rec == other.rec && i == other.i && j == other.j; }
};

// What a reader does with a number before it stores it. A file may hold
// anything; these keep every stored index inside its table.
struct Check {
  enum Mode : std::uint8_t {
    kNone,
    kIndex,      // outside lo..hi reads as 0
    kCount,      // clamped into lo..hi (table counts, map size, stock width, percentages)
    kZeroIs999,  // a stored 0, or a price below it, reads as 999 (Dip.Cost)
  };
  Mode mode = kNone;
  Long lo = 0;
  Long hi = 0;

  static constexpr Check Index(Long lo, Long hi) { return {kIndex, lo, hi}; }
  static constexpr Check Count(Long hi) { return {kCount, 0, hi}; }
  static constexpr Check Clamp(Long lo, Long hi) { return {kCount, lo, hi}; }
  static constexpr Check ZeroIs999() { return {kZeroIs999, 0, 0}; }
  static constexpr Check NotNegative() { return {kIndex, 0, std::numeric_limits<Long>::max()}; }
};

// The largest size of a unit-type attribute or a rule constant, either way
// from 0: twenty times the largest the shipped scenarios use (a unit size of
// 50000 weight). Beyond it a reader takes the nearest end, so that the sums
// and products play makes of them stay inside a long.
constexpr Long kFigureCap = 1000000;

// A number as a reader stores it.
inline Long ApplyCheck(Long value, Check c) {
  switch (c.mode) {
    case Check::kIndex:
      return (value < c.lo || value > c.hi) ? 0 : value;
    case Check::kCount:
      return value < c.lo ? c.lo : (value > c.hi ? c.hi : value);
    case Check::kZeroIs999:
      // A price below nothing would pay a regime for changing sides.
      return value <= 0 ? 999 : value;
    case Check::kNone:
      break;
  }
  return value;
}

// Whether a value given by a person (a script, a prompt, an editor) lies in
// what the reader would keep as it is; a reader repairs what this refuses.
inline bool CheckAccepts(Long value, Check c) {
  switch (c.mode) {
    case Check::kIndex:
    case Check::kCount:
      return value >= c.lo && value <= c.hi;
    case Check::kZeroIs999:
      return value >= 0;
    case Check::kNone:
      break;
  }
  return true;
}

// The reader's check of a saved field by its record and field name
// ("Unit", "Readiness"; engine variables as "EngineVar", "616"); no check
// for a field the file does not hold.
Check SchemaCheckOf(FieldRec rec, const std::string& field);
// The record of a registry name ("Hex", "Dip", ...); false when the file
// holds no such record.
bool FieldRecOf(const std::string& name, FieldRec* rec);

// A number as a save writes it: the current version, the raised stock width,
// counts inside their tables.
inline Long SavedValue(const FieldName& n, Long value, Check c) {
  if (n.role == FieldRole::kFileVersion) return kFileVersion;
  if (n.role == FieldRole::kStockWidth && value < Game.TypeCount) value = Game.TypeCount;
  if (c.mode == Check::kCount) value = ApplyCheck(value, c);
  return value;
}

// One saved field as the lister shows it.
struct ListedField {
  std::string name;   // registry name, "Unit[7].Readiness"
  std::string value;  // numbers without a leading blank (booleans -1 / 0), texts as they stand
  bool repeat = false;
};

// Every field a save would write now, in file order, repeats included and
// marked; for `marrowfield-cli dump`. The tables are not changed.
std::vector<ListedField> ListScenarioFields();

namespace schema_detail {
inline FieldName G(const char* f, int k = 0) { return {FieldRec::kGame, f, 0, 0, k}; }
inline FieldName R1(FieldRec r, int i, const char* f, int k = 0) { return {r, f, i, 0, k}; }
inline FieldName R2(FieldRec r, int i, int j, const char* f, int k = 0) { return {r, f, i, j, k}; }
inline FieldName Repeat(FieldName n) {
  n.repeat = true;
  return n;
}
inline FieldName EVName(int i) { return {FieldRec::kEngineVar, "", i, 0, 0}; }
}  // namespace schema_detail

// The file, field by field. Loops are bounded by the tables' capacities: a
// map of 0..100 each way, counts of 0..capacity, a stock width of 0..500.
template <class V>
void WalkScenario(V& v) {
  using namespace schema_detail;
  using R = FieldRec;

  // ---- Head ----
  FieldName versionName = G("FileVersion");
  versionName.role = FieldRole::kFileVersion;
  const Long version = v.Long(versionName, Game.FileVersion);
  // Before version 10 there was no version field: the first number is the
  // fog switch, and the small number stays as the version so that every
  // later test treats the file as oldest.
  if (v.HeadHasFog(version)) {
    v.Long(G("FogOfWar"), Game.FogOfWar, Check::Index(0, 1));
  } else {
    v.Assign(G("FogOfWar"), Game.FogOfWar, version);
  }
  if (!v.Proceed(version)) return;
  v.Long(G("FogOfExploration"), Game.FogOfExploration, Check::Index(0, 1));
  v.Long(G("UsePasswords"), Game.UsePasswords);
  v.Long(G("GameEndPop"), Game.GameEndPop);
  v.Long(G("GameWinner"), Game.GameWinner, Check::Index(0, kRegimeCap));
  v.Long(G("WinnerPop"), Game.WinnerPop);
  v.Long(G("CurPop"), Game.CurPop);
  v.Long(G("Turn"), Game.Turn, Check::NotNegative());
  v.Long(G("CurRegime"), Game.CurRegime, Check::Index(0, kRegimeCap));
  const int mapW = v.Long(G("MapW"), Game.MapW, Check::Count(kMapCap));
  const int mapH = v.Long(G("MapH"), Game.MapH, Check::Count(kMapCap));
  v.Long(G("SpareScalar1"), Game.SpareScalar1);
  v.Long(G("SpareScalar2"), Game.SpareScalar2);
  v.Long(G("SpareScalar3"), Game.SpareScalar3);
  v.Text(G("DirMap"), Game.DirMap);
  v.Text(G("DirColorCode"), Game.DirColorCode);
  v.Text(G("DirSound"), Game.DirSound);
  v.Text(G("DirType"), Game.DirType);
  v.Long(G("GraphicsDirty"), Game.GraphicsDirty);
  v.Text(G("DirOfficer"), Game.DirOfficer);
  v.Long(G("PBEM"), Game.PBEM);
  v.Bool(G("ShowAIMoves"), Game.ShowAIMoves);
  v.Bool(G("AIAnalysis"), Game.AIAnalysis);
  v.Bool(G("SpareFlag"), Game.SpareFlag);
  v.LongText(G("ScenarioStory"), Game.ScenarioStory);
  int regimeCount = 0;
  if (version >= 100) regimeCount = v.Long(G("RegimeCount"), Game.RegimeCount, Check::Count(kRegimeCap));
  if (version >= 110) v.Long(G("AIProdBonus"), Game.AIProdBonus);

  // ---- Events ----
  if (version >= 101) {
    const int events = v.Long(G("EventCount"), Game.EventCount, Check::Count(kEventCap));
    for (int e = 1; e <= events; ++e) {
      EventRec& ev = Event[e];
      auto n = [e](const char* f, int k = 0) { return R1(R::kEvent, e, f, k); };
      v.Long(n("TurnMin"), ev.TurnMin);
      v.Long(n("TurnMax"), ev.TurnMax);
      v.Long(n("HexX"), ev.HexX, Check::Index(0, kMapCap));
      v.Long(n("HexY"), ev.HexY, Check::Index(0, kMapCap));
      v.Long(n("HexOwner"), ev.HexOwner);
      v.Long(n("Winner"), ev.Winner);
      v.Long(n("NotWinner"), ev.NotWinner);
      v.Long(n("Random"), ev.Random);
      v.Long(n("Once"), ev.Once);
      v.Long(n("BookVar"), ev.BookVar, Check::Index(0, kBookVarCap));
      v.Long(n("BookMin"), ev.BookMin);
      v.Long(n("BookMax"), ev.BookMax);
      v.Long(n("Type"), ev.Type);
      v.LongText(n("Story"), ev.Story);
      v.Long(n("Sprite"), ev.Sprite);
      v.Long(n("FiredTurn"), ev.FiredTurn);
      v.Long(n("ShowAll"), ev.ShowAll);
      v.Long(n("ShowReg1"), ev.ShowReg1, Check::Index(0, kRegimeCap));
      v.Long(n("ShowReg2"), ev.ShowReg2, Check::Index(0, kRegimeCap));
      if (version >= 102) v.Long(n("IfAI"), ev.IfAI, Check::Index(0, kRegimeCap));
      for (int k = 1; k <= kEventData; ++k) v.Long(n("Data", k), ev.Data[k]);
      for (int k = 1; k <= kEventDataText; ++k) v.Text(n("DataText", k), ev.DataText[k]);
      if (version >= 105) {
        v.Long(n("IfWar"), ev.IfWar, Check::Index(0, kRegimeCap));
        v.Long(n("IfPeace"), ev.IfPeace, Check::Index(0, kRegimeCap));
        v.Long(n("DipLastTurn"), ev.DipLastTurn);
      }
    }
  }

  // ---- Book variables ----
  if (version >= 103) {
    const int books = v.Long(G("BookVarCount"), Game.BookVarCount, Check::Count(kBookVarCap));
    for (int b = 1; b <= books; ++b) v.Long(G("BookVar", b), Game.BookVar[b]);
  }

  // ---- Map ----
  for (int x = 1; x <= mapW; ++x) {
    for (int y = 1; y <= mapH; ++y) {
      HexRec& h = Hex[x][y];
      auto n = [x, y](const char* f, int k = 0) { return R2(R::kHex, x, y, f, k); };
      v.Long(n("Pop"), h.Pop, Check::NotNegative());
      v.Long(n("Land"), h.Land, Check::Index(0, kMountain));
      v.Long(n("People"), h.People, Check::Index(0, kPeopleCap));
      v.Text(n("UrbanName"), h.UrbanName);
      for (int s = 1; s <= kStackSlots; ++s) v.Long(n("Unit", s), h.Unit[s], Check::Index(0, kUnitCap));
      v.Long(n("Owner"), h.Owner, Check::Index(0, kRegimeCap));
      v.Long(n("Prod"), h.Prod, Check::Index(-1, kTypeCap));
      v.Long(n("ProdPts"), h.ProdPts, Check::NotNegative());
      v.Long(n("ProdSHQ"), h.ProdSHQ, Check::Index(0, kUnitCap));
      v.Short(n("Vis"), h.Vis);
      if (version >= 100) {
        for (int r = 1; r <= regimeCount; ++r) {
          // The sight planes hold 10 regimes; a file with more keeps the
          // rest of its planes to itself.
          Short spare = 0;
          v.Short(n("Seen", r), r <= kSightRegimes ? h.Seen[r] : spare);
        }
      }
      v.Long(n("Road"), h.Road, Check::Index(0, 1));
      for (int side = 1; side <= kHexSides; ++side) {
        v.Short(n("River", side), h.River[side], Check::Index(0, 1));
        if (version >= 109) v.Long(n("Entrench", side), h.Entrench[side], Check::Clamp(0, 3));
      }
      v.Short(n("Damage"), h.Damage, Check::Clamp(0, 100));
    }
  }

  // ---- Peoples ----
  const int peoples = v.Long(G("PeopleCount"), Game.PeopleCount, Check::Count(kPeopleCap));
  int peopleCount = peoples;
  for (int p = 1; p <= peoples; ++p) {
    PeopleRec& pe = People[p];
    // Each record starts with the count once more, which overwrites it.
    peopleCount = v.Long(Repeat(G("PeopleCount")), Game.PeopleCount, Check::Count(kPeopleCap));
    v.Text(R1(R::kPeople, p, "Name"), pe.Name);
    for (int k = 1; k <= kPeopleNames; ++k) {
      v.Text(R1(R::kPeople, p, "FirstName", k), pe.FirstName[k]);
      v.Text(R1(R::kPeople, p, "LastName", k), pe.LastName[k]);
    }
    v.Long(R1(R::kPeople, p, "Overrule"), pe.Overrule);
  }

  // ---- Officers ----
  const int officers = v.Long(G("OfficerCount"), Game.OfficerCount, Check::Count(kOfficerCap));
  for (int o = 1; o <= officers; ++o) {
    OfficerRec& of = Officer[o];
    auto n = [o](const char* f) { return R1(R::kOfficer, o, f); };
    v.Long(n("Pic"), of.Pic, Check::Index(0, kPortraitCap));
    v.Text(n("Name"), of.Name);
    v.Long(n("Regime"), of.Regime, Check::Index(0, kRegimeCap));
    v.Long(n("InPool"), of.InPool);
    v.Long(n("Land"), of.Land);
    v.Long(n("Sea"), of.Sea);
    v.Long(n("Air"), of.Air);
    v.Long(n("Fame"), of.Fame);
    v.Long(n("Retreat"), of.Retreat, Check::Clamp(0, 100));
    v.Long(n("Spare"), of.Spare);
  }

  // ---- Stock width, ahead of the SHQ stocks that it sizes ----
  FieldName widthName = EVName(616);
  widthName.role = FieldRole::kStockWidth;
  const int stockWidth = v.Long(widthName, EngineVar[616].Value, Check::Count(kStockCap));

  // ---- Regimes ----
  const int regimes = v.Long(Repeat(G("RegimeCount")), Game.RegimeCount, Check::Count(kRegimeCap));
  for (int r = 1; r <= regimes; ++r) {
    RegimeRec& re = Regime[r];
    auto n = [r](const char* f, int k = 0) { return R1(R::kRegime, r, f, k); };
    if (version >= 104) {
      for (int b = 1; b <= regimes; ++b) {
        DipRec& d = Dip[r][b];
        v.Long(R2(R::kDip, r, b, "Relation"), d.Relation, Check::Index(0, 1));
        v.Long(R2(R::kDip, r, b, "Cost"), d.Cost, Check::ZeroIs999());
        v.Long(R2(R::kDip, r, b, "LastTurn"), d.LastTurn);
        v.Long(R2(R::kDip, r, b, "Spare"), d.Spare);
      }
    } else {
      // Older files knew no diplomacy: no relation of r can be changed.
      for (int b = 1; b <= kRegimeCap; ++b) v.Assign(R2(R::kDip, r, b, "Cost"), Dip[r][b].Cost, 999);
    }
    v.Text(n("Name"), re.Name);
    v.Long(n("AI"), re.AI);
    v.Text(n("Password"), re.Password);
    v.Long(n("PP"), re.PP);
    v.Text(n("TextColor"), re.TextColor);
    v.Long(n("UnitSerial"), re.UnitSerial);
    v.Text(n("FormationName"), re.FormationName);
    v.Long(n("HexSprite"), re.HexSprite, Check::Index(0, kHexColours));
    v.Text(n("Email"), re.Email);
    v.Long(n("OwnPeople"), re.OwnPeople, Check::Index(0, kPeopleCap));
    for (int f = 1; f <= kResearchCap; ++f) v.Long(n("Research", f), re.Research[f], Check::Index(0, 1));
    for (int b = 1; b <= kBadgeCap; ++b) v.Long(n("ThqBadgeUnit", b), re.ThqBadgeUnit[b], Check::Index(0, kUnitCap));
    for (int s = 1; s <= kShqCap; ++s) {
      ShqRec& sh = Shq[r][s];
      for (int k = 1; k <= stockWidth; ++k) {
        v.Long(R2(R::kShq, r, s, "StockType", k), sh.StockType[k], Check::Index(0, kTypeCap));
        v.Long(R2(R::kShq, r, s, "StockQty", k), sh.StockQty[k], Check::NotNegative());
      }
      v.Long(R2(R::kShq, r, s, "Unit"), sh.Unit, Check::Index(0, kUnitCap));
      v.Long(R2(R::kShq, r, s, "Carry"), sh.Carry);
    }
    for (int c = 1; c <= kLossClasses; ++c) {
      v.Long(n("Losses", c), re.Losses[c]);
      v.Long(n("Kills", c), re.Kills[c]);
    }
    for (int line = 1; line <= kNewsCap; ++line) {
      NewsRec& nw = News[r][line];
      v.Long(R2(R::kNews, r, line, "Type"), nw.Type);
      v.Text(R2(R::kNews, r, line, "Text"), nw.Text);
      v.Short(R2(R::kNews, r, line, "X"), nw.X, Check::Index(0, kMapCap));
      v.Short(R2(R::kNews, r, line, "Y"), nw.Y, Check::Index(0, kMapCap));
      v.Short(R2(R::kNews, r, line, "Mark"), nw.Mark, Check::Index(0, kSightRegimes));
    }
    // The regime's sight once more, x then y; being read last, it is what counts.
    for (int x = 1; x <= mapW; ++x) {
      for (int y = 1; y <= mapH; ++y) {
        Short spare = 0;
        v.Short(Repeat(R2(R::kHex, x, y, "Seen", r)), r <= kSightRegimes ? Hex[x][y].Seen[r] : spare);
      }
    }
    v.Long(n("PortraitSet"), re.PortraitSet);
    v.LongText(n("Intro"), re.Intro);
  }

  // ---- Units, free slots included ----
  const int units = v.Long(G("UnitCount"), Game.UnitCount, Check::Count(kUnitCap));
  for (int u = 1; u <= units; ++u) {
    UnitRec& un = Unit[u];
    auto n = [u](const char* f) { return R1(R::kUnit, u, f); };
    v.Text(n("Name"), un.Name);
    v.Long(n("Shq"), un.Shq, Check::Index(0, kShqCap));
    v.Long(n("Thq"), un.Thq);
    v.Long(n("Boss"), un.Boss, Check::Index(0, kUnitCap));
    v.Long(n("InfType"), un.InfType, Check::Index(0, kTypeCap));
    v.Long(n("InfQty"), un.InfQty, Check::NotNegative());
    v.Long(n("MobType"), un.MobType, Check::Index(0, kTypeCap));
    v.Long(n("MobQty"), un.MobQty, Check::NotNegative());
    v.Long(n("ArtType"), un.ArtType, Check::Index(0, kTypeCap));
    v.Long(n("ArtQty"), un.ArtQty, Check::NotNegative());
    v.Long(n("ArmType"), un.ArmType, Check::Index(0, kTypeCap));
    v.Long(n("ArmQty"), un.ArmQty, Check::NotNegative());
    v.Long(n("Regime"), un.Regime, Check::Index(0, kRegimeCap));
    v.Long(n("SupplyPct"), un.SupplyPct, Check::NotNegative());
    v.Long(n("CounterPic"), un.CounterPic);
    v.Long(n("ThqBadge"), un.ThqBadge, Check::Index(0, kBadgeCap));
    v.Long(n("Experience"), un.Experience, Check::NotNegative());
    v.Long(n("MP"), un.MP);
    v.Long(n("Readiness"), un.Readiness, Check::Clamp(0, 100));
    v.Long(n("Theater"), un.Theater, Check::Index(0, kAirTheater));
    v.Long(n("Cargo"), un.Cargo, Check::Index(0, kUnitCap));
    v.Long(n("Officer"), un.Officer, Check::Index(0, kOfficerCap));
    v.Long(n("Front"), un.Front);
    v.Long(n("AIX"), un.AIX, Check::Index(0, kMapCap));
    v.Long(n("AIY"), un.AIY, Check::Index(0, kMapCap));
    // A disruption below 0 came from a bug of old versions; it reads as none.
    if (version >= 106) v.Long(n("Disruption"), un.Disruption, Check::NotNegative());
    if (version >= 107) {
      v.Long(n("FromX"), un.FromX, Check::Index(0, kMapCap));
      v.Long(n("FromY"), un.FromY, Check::Index(0, kMapCap));
    }
    if (version >= 108) v.Long(n("GenSupply"), un.GenSupply);
  }

  // ---- Research fields, always all of them ----
  for (int f = 1; f <= kResearchCap; ++f) {
    ResearchRec& rs = Research[f];
    auto n = [f](const char* fl) { return R1(R::kResearch, f, fl); };
    v.Text(n("Name"), rs.Name);
    v.Long(n("Cost"), rs.Cost, Check::NotNegative());
    v.Long(n("Need1"), rs.Need1, Check::Index(0, kResearchCap));
    v.Long(n("Need2"), rs.Need2, Check::Index(0, kResearchCap));
    if (version >= 100) {
      v.LongText(n("Text"), rs.Text);
    } else {
      v.Text(n("Text"), rs.Text);
    }
  }

  // ---- Unit types ----
  const int types = v.Long(G("TypeCount"), Game.TypeCount, Check::Count(kTypeCap));
  for (int t = 1; t <= types; ++t) {
    TypeRec& ty = Type[t];
    auto n = [t](const char* f, int k = 0) { return R1(R::kType, t, f, k); };
    v.Text(n("Name"), ty.Name);
    const Long cls = v.Long(n("Class"), ty.Class, Check::Index(0, 4));
    Long frontsize = 0;
    for (int a = 1; a <= kTypeAttrs; ++a) {
      const Long value = v.Long(n("Attr", a), ty.Attr[a], Check::Clamp(-kFigureCap, kFigureCap));
      if (a == kFrontsize) frontsize = value;
    }
    v.Text(n("Text"), ty.Text);
    v.Long(n("Sprite"), ty.Sprite);
    v.Long(n("Cost"), ty.Cost, Check::NotNegative());
    for (int p = 1; p <= peopleCount; ++p) {
      v.Short(n("Living", p), ty.Living[p]);
      v.Short(n("Owning", p), ty.Owning[p]);
    }
    const Long theater = v.Long(n("Theater"), ty.Theater, Check::Index(0, kAirTheater));
    v.Long(n("Research"), ty.Research, Check::Index(0, kResearchCap));
    v.Long(n("Override"), ty.Override);
    // Land types of files older than the frontsize rule get the size of their class.
    if (frontsize == 0 && theater == kLandTheater) {
      const Long size = cls == 1 ? 1 : cls == 3 ? 10 : cls == 4 ? 20 : 0;
      if (size != 0) v.Assign(n("Attr", kFrontsize), ty.Attr[kFrontsize], size);
    }
  }

  // ---- Rules ----
  for (int i = 1; i <= kEngineVarCap; ++i) {
    if (i == 616) {
      FieldName endWidth = Repeat(EVName(616));
      endWidth.role = FieldRole::kStockWidth;
      v.Long(endWidth, EngineVar[i].Value, Check::Count(kStockCap));
    } else {
      v.Long(EVName(i), EngineVar[i].Value, Check::Clamp(-kFigureCap, kFigureCap));
    }
  }
}

}  // namespace mf
