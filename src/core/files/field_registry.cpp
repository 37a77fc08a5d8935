// The field registry: one table of records, each with its index dimensions
// and its fields, each field with its kind, its own index dimensions and an
// accessor into the game tables. Scripts, the JSON files and the editors all
// go through here, so every index that comes from outside is checked once, in
// one place, before it touches a table.
//
// Hex indices are checked against the table's capacity (100 x 100), not
// against Game.MapW and Game.MapH: a clear that shrinks a map leaves the
// hexes beyond it as they were, and tests and scripts must be able to look at
// (and set up) those hexes too.
#include "files/field_registry.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <type_traits>
#include <utility>

#include "files/scenario_schema.h"
#include "model/arith.h"
#include "model/game_state.h"
#include "platform/text_case.h"

namespace mf {
namespace {

// Indices of one access: up to two of the record, up to two of the field.
struct Idx {
  int r[2] = {0, 0};
  int f[2] = {0, 0};
};

enum class Kind {
  kLong,   // 32-bit whole number
  kShort,  // 16-bit whole number
  kBool,   // a long holding -1 (true) or 0 (false)
  kFlag,   // a C++ bool of the running program, read as -1 / 0
  kText,   // UTF-8 text
  kDouble, // a floating value kept in memory only
};

// One index dimension: readable 0..max (slot 0 exists and reads as none),
// writable writeMin..max (slot 0 of a 1-based table stays zero).
struct Dim {
  int max = 0;
  int writeMin = 1;
};

using Accessor = void* (*)(const Idx&);

struct FieldDef {
  std::string name;
  Kind kind = Kind::kLong;
  int ndims = 0;
  Dim dims[2];
  Accessor at = nullptr;
  // A plugged-in table instead of an accessor: its first element, the size
  // of one element and the length of a row of a two-index table.
  unsigned char* base = nullptr;
  std::size_t elemSize = 0;
  int rowLength = 0;
};

void* AddressOf(const FieldDef& f, const Idx& i) {
  if (f.at) return f.at(i);
  const std::size_t n = f.ndims == 2 ? static_cast<std::size_t>(i.f[0]) * static_cast<std::size_t>(f.rowLength) +
                                           static_cast<std::size_t>(i.f[1])
                        : f.ndims == 1 ? static_cast<std::size_t>(i.f[0])
                                       : 0;
  return f.base + n * f.elemSize;
}

struct RecordDef {
  std::string name;
  int ndims = 0;
  Dim dims[2];
  // Field used when a name has no ".Field" part (EngineVar[533]); "" when none.
  std::string defaultField;
  std::vector<FieldDef> fields;
};

template <class T>
constexpr Kind KindOf() {
  if constexpr (std::is_same_v<T, Long>) return Kind::kLong;
  else if constexpr (std::is_same_v<T, Short>) return Kind::kShort;
  else if constexpr (std::is_same_v<T, bool>) return Kind::kFlag;
  else if constexpr (std::is_same_v<T, double>) return Kind::kDouble;
  else {
    static_assert(std::is_same_v<T, std::string>, "a registered field is a long, short, bool, double or text");
    return Kind::kText;
  }
}

// A field of the record that Get returns, by member pointer. The kind and
// the array bounds come from the member's type: an array T[N] is indexed
// 1..N-1 (slot 0 read-only), a two-dimensional array (the movement route
// planes) 0-based in both dimensions, as it is stored.
template <auto Get, auto Member>
FieldDef Make(const char* name, bool boolean = false) {
  using Rec = std::remove_reference_t<decltype(Get(std::declval<const Idx&>()))>;
  using M = std::remove_reference_t<decltype(std::declval<Rec&>().*Member)>;
  FieldDef f;
  f.name = name;
  f.ndims = static_cast<int>(std::rank_v<M>);
  if constexpr (std::rank_v<M> == 0) {
    f.kind = KindOf<M>();
    f.at = [](const Idx& i) -> void* { return &(Get(i).*Member); };
  } else if constexpr (std::rank_v<M> == 1) {
    f.kind = KindOf<std::remove_all_extents_t<M>>();
    f.dims[0] = {static_cast<int>(std::extent_v<M, 0>) - 1, 1};
    f.at = [](const Idx& i) -> void* { return &(Get(i).*Member)[i.f[0]]; };
  } else {
    static_assert(std::rank_v<M> == 2, "fields have at most two indices");
    f.kind = KindOf<std::remove_all_extents_t<M>>();
    f.dims[0] = {static_cast<int>(std::extent_v<M, 0>) - 1, 0};
    f.dims[1] = {static_cast<int>(std::extent_v<M, 1>) - 1, 0};
    f.at = [](const Idx& i) -> void* { return &(Get(i).*Member)[i.f[0]][i.f[1]]; };
  }
  if (boolean) f.kind = Kind::kBool;
  return f;
}

// Record getters: the indices were checked before any getter runs.
HexRec& HexAt(const Idx& i) { return Hex[i.r[0]][i.r[1]]; }
UnitRec& UnitAt(const Idx& i) { return Unit[i.r[0]]; }
TypeRec& TypeAt(const Idx& i) { return Type[i.r[0]]; }
RegimeRec& RegimeAt(const Idx& i) { return Regime[i.r[0]]; }
DipRec& DipAt(const Idx& i) { return Dip[i.r[0]][i.r[1]]; }
ShqRec& ShqAt(const Idx& i) { return Shq[i.r[0]][i.r[1]]; }
NewsRec& NewsAt(const Idx& i) { return News[i.r[0]][i.r[1]]; }
PeopleRec& PeopleAt(const Idx& i) { return People[i.r[0]]; }
OfficerRec& OfficerAt(const Idx& i) { return Officer[i.r[0]]; }
ResearchRec& ResearchAt(const Idx& i) { return Research[i.r[0]]; }
EventRec& EventAt(const Idx& i) { return Event[i.r[0]]; }
EngineVarRec& EngineVarAt(const Idx& i) { return EngineVar[i.r[0]]; }
GameRec& GameAt(const Idx&) { return Game; }
UIRec& UIAt(const Idx&) { return UI; }
OrderFlags& OrderAt(const Idx&) { return UI.Order; }
OverlayFlags& OverlayAt(const Idx&) { return UI.Overlay; }

RecordDef Rec(const char* name, std::vector<Dim> dims, std::vector<FieldDef> fields,
              const char* defaultField = "") {
  RecordDef r;
  r.name = name;
  r.ndims = static_cast<int>(dims.size());
  for (int d = 0; d < r.ndims; ++d) r.dims[d] = dims[static_cast<std::size_t>(d)];
  r.defaultField = defaultField;
  r.fields = std::move(fields);
  return r;
}

std::vector<RecordDef> BuildRegistry() {
  std::vector<RecordDef> reg;

#define HEX(F, ...) Make<&HexAt, &HexRec::F>(#F __VA_OPT__(, ) __VA_ARGS__)
  reg.push_back(Rec("Hex", {{kMapCap, 1}, {kMapCap, 1}},
                    {HEX(Land), HEX(Pop), HEX(People), HEX(UrbanName), HEX(Unit), HEX(Owner), HEX(Prod),
                     HEX(ProdPts), HEX(ProdSHQ), HEX(Vis), HEX(Seen), HEX(Road), HEX(River), HEX(Entrench),
                     HEX(Damage),
                     // Working fields.
                     HEX(Mark), HEX(ScratchRecon), HEX(Wave), HEX(PathSea), HEX(PathLand), HEX(PathPortX),
                     HEX(PathPortY), HEX(Route), HEX(Work), HEX(Area), HEX(AreaValue), HEX(Landmass),
                     HEX(ShqDist), HEX(ShqPrev1), HEX(ShqPrev2), HEX(ShqPrev3), HEX(ShqPrev4), HEX(NewsMark)}));
#undef HEX

#define UNIT(F) Make<&UnitAt, &UnitRec::F>(#F)
  reg.push_back(Rec("Unit", {{kUnitCap, 1}},
                    {UNIT(Name), UNIT(Shq), UNIT(Thq), UNIT(Boss), UNIT(InfType), UNIT(InfQty), UNIT(MobType),
                     UNIT(MobQty), UNIT(ArtType), UNIT(ArtQty), UNIT(ArmType), UNIT(ArmQty), UNIT(Regime),
                     UNIT(SupplyPct), UNIT(CounterPic), UNIT(ThqBadge), UNIT(Experience), UNIT(MP),
                     UNIT(Readiness), UNIT(Theater), UNIT(Cargo), UNIT(Officer), UNIT(Front), UNIT(AIX),
                     UNIT(AIY), UNIT(Disruption), UNIT(FromX), UNIT(FromY), UNIT(GenSupply),
                     // Working fields.
                     UNIT(SupplyDemand), UNIT(Reserved)}));
#undef UNIT

#define TYPE(F) Make<&TypeAt, &TypeRec::F>(#F)
  reg.push_back(Rec("Type", {{kTypeCap, 1}},
                    {TYPE(Name), TYPE(Class), TYPE(Attr), TYPE(Text), TYPE(Sprite), TYPE(Cost), TYPE(Living),
                     TYPE(Owning), TYPE(Theater), TYPE(Research), TYPE(Override)}));
#undef TYPE

#define REGIME(F) Make<&RegimeAt, &RegimeRec::F>(#F)
  reg.push_back(Rec("Regime", {{kRegimeCap, 1}},
                    {REGIME(Name), REGIME(AI), REGIME(Password), REGIME(PP), REGIME(TextColor),
                     REGIME(UnitSerial), REGIME(FormationName), REGIME(HexSprite), REGIME(Email),
                     REGIME(OwnPeople), REGIME(Research), REGIME(ThqBadgeUnit), REGIME(Losses), REGIME(Kills),
                     REGIME(PortraitSet), REGIME(Intro)}));
#undef REGIME

#define DIP(F) Make<&DipAt, &DipRec::F>(#F)
  reg.push_back(Rec("Dip", {{kRegimeCap, 1}, {kRegimeCap, 1}},
                    {DIP(Relation), DIP(Cost), DIP(LastTurn), DIP(Spare)}));
#undef DIP

#define SHQ(F) Make<&ShqAt, &ShqRec::F>(#F)
  reg.push_back(Rec("Shq", {{kRegimeCap, 1}, {kShqCap, 1}},
                    {SHQ(Unit), SHQ(StockType), SHQ(StockQty), SHQ(Carry), SHQ(CarrySea)}));
#undef SHQ

#define NEWS(F) Make<&NewsAt, &NewsRec::F>(#F)
  reg.push_back(Rec("News", {{kRegimeCap, 1}, {kNewsCap, 1}},
                    {NEWS(Type), NEWS(Text), NEWS(X), NEWS(Y), NEWS(Mark)}));
#undef NEWS

#define PEOPLE(F) Make<&PeopleAt, &PeopleRec::F>(#F)
  reg.push_back(Rec("People", {{kPeopleCap, 1}},
                    {PEOPLE(Name), PEOPLE(FirstName), PEOPLE(LastName), PEOPLE(Overrule)}));
#undef PEOPLE

  {
    // The portrait sets of the pictures: a plain table of longs.
    FieldDef value;
    value.name = "Value";
    value.kind = Kind::kLong;
    value.at = [](const Idx& i) -> void* { return &OfficerPicSet[i.r[0]]; };
    reg.push_back(Rec("OfficerPicSet", {{kPortraitCap, 1}}, {value}, "Value"));
  }

#define OFFICER(F) Make<&OfficerAt, &OfficerRec::F>(#F)
  reg.push_back(Rec("Officer", {{kOfficerCap, 1}},
                    {OFFICER(Pic), OFFICER(Name), OFFICER(Regime), OFFICER(InPool), OFFICER(Land), OFFICER(Sea),
                     OFFICER(Air), OFFICER(Fame), OFFICER(Retreat), OFFICER(Spare)}));
#undef OFFICER

#define RESEARCH(F) Make<&ResearchAt, &ResearchRec::F>(#F)
  reg.push_back(Rec("Research", {{kResearchCap, 1}},
                    {RESEARCH(Name), RESEARCH(Cost), RESEARCH(Need1), RESEARCH(Need2), RESEARCH(Text)}));
#undef RESEARCH

#define EVENT(F) Make<&EventAt, &EventRec::F>(#F)
  reg.push_back(Rec("Event", {{kEventCap, 1}},
                    {EVENT(TurnMin), EVENT(TurnMax), EVENT(HexX), EVENT(HexY), EVENT(HexOwner), EVENT(Winner),
                     EVENT(NotWinner), EVENT(Random), EVENT(Once), EVENT(BookVar), EVENT(BookMin),
                     EVENT(BookMax), EVENT(Type), EVENT(Story), EVENT(Sprite), EVENT(FiredTurn), EVENT(ShowAll),
                     EVENT(ShowReg1), EVENT(ShowReg2), EVENT(IfAI), EVENT(Data), EVENT(DataText), EVENT(IfWar),
                     EVENT(IfPeace), EVENT(DipLastTurn)}));
#undef EVENT

#define EV_(F) Make<&EngineVarAt, &EngineVarRec::F>(#F)
  reg.push_back(Rec("EngineVar", {{kEngineVarCap, 1}}, {EV_(Value), EV_(Description), EV_(Category)}, "Value"));
#undef EV_

#define GAME(F, ...) Make<&GameAt, &GameRec::F>(#F __VA_OPT__(, ) __VA_ARGS__)
  reg.push_back(Rec("Game", {},
                    {GAME(FileVersion), GAME(FogOfWar), GAME(FogOfExploration), GAME(UsePasswords),
                     GAME(GameEndPop), GAME(GameWinner), GAME(WinnerPop), GAME(CurPop), GAME(Turn),
                     GAME(CurRegime), GAME(MapW), GAME(MapH), GAME(SpareScalar1), GAME(SpareScalar2),
                     GAME(SpareScalar3), GAME(DirMap), GAME(DirColorCode), GAME(DirSound), GAME(DirType),
                     GAME(DirOfficer), GAME(GraphicsDirty), GAME(PBEM), GAME(ShowAIMoves, true),
                     GAME(AIAnalysis, true), GAME(SpareFlag, true), GAME(ScenarioStory), GAME(RegimeCount),
                     GAME(AIProdBonus), GAME(EventCount), GAME(PeopleCount), GAME(OfficerCount),
                     GAME(UnitCount), GAME(TypeCount), GAME(BookVarCount), GAME(BookVar)}));
#undef GAME

#define UIF(F) Make<&UIAt, &UIRec::F>(#F)
#define ORD(F) Make<&OrderAt, &OrderFlags::F>(#F)
#define OVL(F) Make<&OverlayAt, &OverlayFlags::F>(#F)
  reg.push_back(Rec("UI", {},
                    {UIF(SelX), UIF(SelY), UIF(SelSlot), UIF(SelCount), UIF(PrevSelX), UIF(PrevSelY), UIF(OrdX),
                     UIF(OrdY), UIF(OrdSlot), UIF(AttackerCount), UIF(AttackerX), UIF(AttackerY),
                     UIF(AttackerSlot),
                     // The order flags, each by its own name.
                     ORD(SelOrderMove), ORD(AttackOrder), ORD(BossOrder), ORD(TransferOrder), ORD(LoadOrder),
                     ORD(LandingOrder), ORD(AirliftOrder), ORD(AirSupplyOrder), ORD(InterdictOrder),
                     ORD(StratBombOrder), ORD(EntrenchOrder), ORD(RegimePaint), ORD(LandscapePaint),
                     // The map overlays.
                     OVL(ShowEnemy), OVL(ShowSight), OVL(ShowSupply), OVL(ShowGrid),
                     UIF(EditMode), UIF(SoundOff), UIF(HideEditor), UIF(ScrollPending), UIF(PendingFile),
                     UIF(ResumeTurn), UIF(ExitAfterTurnForm), UIF(PictureW), UIF(PictureH), UIF(ScrollMaxX),
                     UIF(ScrollMaxY), UIF(ScrollLargeX), UIF(ScrollLargeY), UIF(ScrollSmall), UIF(ScrollX),
                     UIF(ScrollY), UIF(ShowScrollX), UIF(ShowScrollY), UIF(ShowEditorPanel), UIF(WindowWidth),
                     UIF(ViewW), UIF(ViewH), UIF(HelpText), UIF(RegimeLabel), UIF(TurnLabel),
                     // What the window shows.
                     UIF(MapShown), UIF(PanelsShown), UIF(MapControlsShown), UIF(BusyPointer),
                     UIF(RedrawRequest), UIF(PanelDirty), UIF(WindowTitle), UIF(AILogShown)}));
#undef OVL
#undef ORD
#undef UIF

  return reg;
}

std::vector<RecordDef>& Registry() {
  static std::vector<RecordDef> registry = BuildRegistry();
  return registry;
}

Kind KindOfPlugged(PluggedKind k) {
  switch (k) {
    case PluggedKind::kShort: return Kind::kShort;
    case PluggedKind::kDouble: return Kind::kDouble;
    default: return Kind::kLong;
  }
}

// ---- Names -----------------------------------------------------------------

// A name taken apart: Record[i,j].Field[k,l].
struct ParsedName {
  std::string record;
  int nRecIdx = 0;
  int recIdx[2] = {0, 0};
  std::string field;  // "" when the name has no ".Field" part
  int nFieldIdx = 0;
  int fieldIdx[2] = {0, 0};
};

bool IsNameChar(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

std::string Quoted(const std::string& name) { return "\"" + name + "\""; }

// Reads an identifier at pos.
bool ReadIdent(const std::string& s, std::size_t& pos, std::string* out) {
  const std::size_t start = pos;
  while (pos < s.size() && IsNameChar(s[pos])) ++pos;
  *out = s.substr(start, pos - start);
  return !out->empty();
}

// Reads "[n]" or "[n,m]" at pos if one stands there; blanks inside are allowed.
bool ReadIndices(const std::string& s, std::size_t& pos, int* count, int idx[2], const std::string& name,
                 std::string* why) {
  *count = 0;
  if (pos >= s.size() || s[pos] != '[') return true;
  const std::size_t close = s.find(']', pos);
  if (close == std::string::npos) {
    *why = Quoted(name) + ": malformed name, \"[\" without \"]\"";
    return false;
  }
  const std::string inside = s.substr(pos + 1, close - pos - 1);
  pos = close + 1;
  std::size_t start = 0;
  while (true) {
    const std::size_t comma = inside.find(',', start);
    const std::string part = Trim(inside.substr(start, comma == std::string::npos ? std::string::npos : comma - start));
    std::size_t k = 0;
    if (k < part.size() && part[k] == '-') ++k;
    bool digits = k < part.size() && part.size() - k <= 9;
    for (; digits && k < part.size(); ++k) digits = part[k] >= '0' && part[k] <= '9';
    if (!digits) {
      *why = Quoted(name) + ": index \"" + part + "\" is not a whole number";
      return false;
    }
    if (*count == 2) {
      *why = Quoted(name) + ": more than two indices in one bracket";
      return false;
    }
    idx[(*count)++] = std::stoi(part);
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return true;
}

bool ParseName(const std::string& name, ParsedName* p, std::string* why) {
  std::size_t pos = 0;
  if (!ReadIdent(name, pos, &p->record)) {
    *why = Quoted(name) + ": malformed name, it must begin with a record name";
    return false;
  }
  if (!ReadIndices(name, pos, &p->nRecIdx, p->recIdx, name, why)) return false;
  if (pos < name.size() && name[pos] == '.') {
    ++pos;
    if (!ReadIdent(name, pos, &p->field)) {
      *why = Quoted(name) + ": malformed name, no field name after \".\"";
      return false;
    }
    if (!ReadIndices(name, pos, &p->nFieldIdx, p->fieldIdx, name, why)) return false;
  }
  if (pos != name.size()) {
    *why = Quoted(name) + ": malformed name, unexpected \"" + name.substr(pos) + "\"";
    return false;
  }
  return true;
}

std::string DimsText(const std::string& what, int ndims, const Dim* dims) {
  std::string out = what + "[";
  for (int d = 0; d < ndims; ++d) out += (d ? "," : "") + std::string("0..") + std::to_string(dims[d].max);
  return out + "]";
}

// Checks a set of indices against their dimensions; slot 0 (below writeMin)
// is refused only for writing.
bool CheckIndices(const std::string& name, const std::string& what, int ndims, const Dim* dims, int given,
                  const int* idx, bool forWrite, std::string* why) {
  if (given != ndims) {
    if (ndims == 0) {
      *why = Quoted(name) + ": " + what + " takes no index";
    } else {
      *why = Quoted(name) + ": " + what + " takes " + std::to_string(ndims) + (ndims == 1 ? " index" : " indices") +
             " (" + DimsText(what, ndims, dims) + "), not " + std::to_string(given);
    }
    return false;
  }
  for (int d = 0; d < ndims; ++d) {
    if (idx[d] < 0 || idx[d] > dims[d].max) {
      *why = Quoted(name) + ": index " + std::to_string(idx[d]) + " is outside " + DimsText(what, ndims, dims);
      return false;
    }
  }
  if (forWrite) {
    for (int d = 0; d < ndims; ++d) {
      if (idx[d] < dims[d].writeMin) {
        *why = Quoted(name) + ": slot 0 of " + what + " always stays zero and cannot be written";
        return false;
      }
    }
  }
  return true;
}

// Finds the field a name points at, with all indices checked.
bool Resolve(const std::string& name, bool forWrite, const FieldDef** field, Idx* idx, std::string* why,
             const RecordDef** record = nullptr) {
  ParsedName p;
  if (!ParseName(name, &p, why)) return false;
  const RecordDef* rec = nullptr;
  for (const auto& r : Registry())
    if (r.name == p.record) rec = &r;
  if (!rec) {
    *why = Quoted(name) + ": unknown record \"" + p.record + "\"";
    return false;
  }
  if (!CheckIndices(name, rec->name, rec->ndims, rec->dims, p.nRecIdx, p.recIdx, forWrite, why)) return false;
  std::string fieldName = p.field;
  if (fieldName.empty()) {
    if (rec->defaultField.empty()) {
      *why = Quoted(name) + ": no field named; write " + rec->name + (rec->ndims ? "[...]" : "") + ".Field";
      return false;
    }
    fieldName = rec->defaultField;
  }
  const FieldDef* f = nullptr;
  for (const auto& candidate : rec->fields)
    if (candidate.name == fieldName) f = &candidate;
  if (!f) {
    *why = Quoted(name) + ": unknown field \"" + fieldName + "\" of " + rec->name;
    return false;
  }
  if (!CheckIndices(name, rec->name + "." + f->name, f->ndims, f->dims, p.nFieldIdx, p.fieldIdx, forWrite, why))
    return false;
  for (int d = 0; d < 2; ++d) {
    idx->r[d] = p.recIdx[d];
    idx->f[d] = p.fieldIdx[d];
  }
  *field = f;
  if (record != nullptr) *record = rec;
  return true;
}

// Whether a value text is a number and nothing else: blanks, a sign, digits,
// a decimal fraction. "1e10", "12abc" and "" are not.
bool IsPlainNumber(const std::string& value) {
  const std::string t = Trim(value);
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '-' || t[i] == '+')) ++i;
  bool digits = false;
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') digits = (++i, true);
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') digits = (++i, true);
  }
  return digits && i == t.size();
}

// A whole number from a value text, truncated; refused when the text is not
// a plain number or does not fit the field's width.
bool NumberFor(const std::string& name, const std::string& value, double lo, double hi, const char* width,
               std::int64_t* out, std::string* why) {
  if (!IsPlainNumber(value)) {
    *why = Quoted(name) + ": value \"" + value + "\" is not a number";
    return false;
  }
  const double v = std::trunc(Val(value));
  if (v < lo || v > hi) {
    *why = Quoted(name) + ": value " + Trim(value) + " does not fit a " + width + " field";
    return false;
  }
  *out = static_cast<std::int64_t>(v);
  return true;
}

// A boolean from a value text: the words True and False in any case, or a
// number where anything but 0 is true.
bool TruthOf(const std::string& value) {
  const std::string t = Lower(Trim(value));
  if (t == "true") return true;
  if (t == "false") return false;
  return Val(t) != 0;
}

// A floating value as short as it reads back exactly: 0.5, 1, 0.333333333.
std::string DoubleText(double v) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.9g", v);
  return buf;
}

}  // namespace

bool GetField(const std::string& name, std::string* value, std::string* why) {
  std::string scratch;
  if (!why) why = &scratch;
  const FieldDef* f = nullptr;
  Idx idx;
  if (!Resolve(name, false, &f, &idx, why)) return false;
  void* p = AddressOf(*f, idx);
  switch (f->kind) {
    case Kind::kLong:
    case Kind::kBool:
      *value = NumText(*static_cast<Long*>(p));
      break;
    case Kind::kShort:
      *value = NumText(*static_cast<Short*>(p));
      break;
    case Kind::kFlag:
      *value = *static_cast<bool*>(p) ? NumText(kTrue) : NumText(kFalse);
      break;
    case Kind::kText:
      *value = *static_cast<std::string*>(p);
      break;
    case Kind::kDouble:
      *value = DoubleText(*static_cast<double*>(p));
      break;
  }
  return true;
}

bool SetField(const std::string& name, const std::string& value, std::string* why) {
  std::string scratch;
  if (!why) why = &scratch;
  const FieldDef* f = nullptr;
  const RecordDef* rec = nullptr;
  Idx idx;
  if (!Resolve(name, true, &f, &idx, why, &rec)) return false;
  void* p = AddressOf(*f, idx);
  std::int64_t n = 0;
  // A saved field takes only what a load of the file would keep as it is.
  auto inFileRange = [&](std::int64_t v) {
    FieldRec fr{};
    if (!FieldRecOf(rec->name, &fr)) return true;
    const Check c = SchemaCheckOf(fr, fr == FieldRec::kEngineVar ? std::to_string(idx.r[0]) : f->name);
    if (CheckAccepts(static_cast<Long>(v), c)) return true;
    *why = Quoted(name) + ": value " + Trim(value) + " is outside what a scenario file holds there" +
           (c.mode == Check::kZeroIs999 ? " (0 or more)"
                                        : " (" + std::to_string(c.lo) + ".." + std::to_string(c.hi) + ")");
    return false;
  };
  switch (f->kind) {
    case Kind::kLong:
      if (!NumberFor(name, value, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max(), "long", &n,
                     why) ||
          !inFileRange(n))
        return false;
      *static_cast<Long*>(p) = static_cast<Long>(n);
      break;
    case Kind::kShort:
      if (!NumberFor(name, value, std::numeric_limits<Short>::min(), std::numeric_limits<Short>::max(), "short",
                     &n, why) ||
          !inFileRange(n))
        return false;
      *static_cast<Short*>(p) = static_cast<Short>(n);
      break;
    case Kind::kBool:
      *static_cast<Long*>(p) = TruthOf(value) ? kTrue : kFalse;
      break;
    case Kind::kFlag:
      *static_cast<bool*>(p) = TruthOf(value);
      break;
    case Kind::kText:
      *static_cast<std::string*>(p) = value;
      break;
    case Kind::kDouble:
      *static_cast<double*>(p) = Val(value);
      break;
  }
  return true;
}

void AddFieldRecord(const std::string& record, const std::vector<PluggedField>& fields) {
  RecordDef r;
  r.name = record;
  for (const PluggedField& pf : fields) {
    FieldDef f;
    f.name = pf.name;
    f.kind = KindOfPlugged(pf.kind);
    f.ndims = pf.ndims;
    // Slot 0 of a one-index table reads as none; a two-index table is
    // stored 0-based in both, as the route planes are.
    if (pf.ndims == 1) f.dims[0] = {pf.extent[0] - 1, 1};
    if (pf.ndims == 2) {
      f.dims[0] = {pf.extent[0] - 1, 0};
      f.dims[1] = {pf.extent[1] - 1, 0};
    }
    f.base = static_cast<unsigned char*>(pf.base);
    f.elemSize = pf.elemSize;
    f.rowLength = pf.extent[1];
    r.fields.push_back(std::move(f));
  }
  for (auto& existing : Registry()) {
    if (existing.name == record) {
      existing = std::move(r);
      return;
    }
  }
  Registry().push_back(std::move(r));
}

std::vector<std::string> FieldPatterns() {
  std::vector<std::string> out;
  for (const auto& r : Registry()) {
    const std::string recPart = r.name + (r.ndims == 0 ? "" : r.ndims == 1 ? "[]" : "[,]");
    if (!r.defaultField.empty()) out.push_back(recPart);
    for (const auto& f : r.fields)
      out.push_back(recPart + "." + f.name + (f.ndims == 0 ? "" : f.ndims == 1 ? "[]" : "[,]"));
  }
  return out;
}

}  // namespace mf
