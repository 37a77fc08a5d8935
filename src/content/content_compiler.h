// The content compiler's inner workings, shared by its sections: the rules
// (engine variables, peoples, research, unit types, the game's own fields,
// regimes, diplomacy), the map (land, owners, roads, rivers, towns), the
// forces (units, their officers and the pools) and the events. Each section
// is one file; the callers use compile_content.h.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "content_source.h"
#include "model/game_state.h"

namespace mf::content {

// Portraits come in sets of forty, a1..a40 for set 1, b1..b40 for set 2 and
// so on, and the sprite loader numbers them on without gaps: portrait n of
// set s is picture (s - 1) x 40 + n.
constexpr int kPortraitsPerSet = 40;
constexpr int kPortraitSets = 5;

// Kinds of names a number may be given by.
enum SymbolKind : unsigned {
  kSymType = 1,
  kSymResearch = 2,
  kSymPeople = 4,
  kSymRegime = 8,
  kSymUnit = 16,
  kSymAll = 31,
};

// A unit block of the source and what the compiler made of it.
struct UnitSource {
  const Block* block = nullptr;
  int u = 0;
  int regime = 0;
  int theater = 0;
  bool shq = false;
  bool thq = false;
  bool placed = false;
};

class Compiler {
 public:
  Compiler(const std::vector<Block>& blocks, std::vector<std::string>* errors) : blocks_(blocks), errors_(errors) {}

  // Builds the tables from the blocks; false with the faults in errors.
  bool Run();

 private:
  // What every section uses.
  void Error(const std::string& where, const std::string& why);
  std::vector<const Block*> All(const std::string& kind) const;
  const Block* Single(const std::string& kind, bool required);
  static const Entry* Find(const Block& b, const std::string& key);
  bool Whole(const Entry& e, long long* v, long long lo, long long hi);
  int BlockNumber(const Block& b, int cap);
  std::map<int, const Block*> Numbered(const std::string& kind, int cap);
  void Set(const std::string& field, const std::string& value, const std::string& where);
  void SetNum(const std::string& field, long long value, const std::string& where);
  bool CheckText(const Entry& e, bool longText);
  bool Number(const Entry& e, unsigned kinds, long long* v);
  bool NumberText(const std::string& text, unsigned kinds, const Entry& e, long long* v);
  void SetGeneric(const std::string& record, const std::string& prefix, const Entry& e);
  std::vector<std::string> List(const Entry& e);
  int UnitRef(const Entry& e);
  bool HexAt(const Entry& e, int* x, int* y);
  static bool Yes(const std::string& v);
  static std::string XY(int x, int y);
  bool TheaterValue(const Entry& e, long long* v);
  void Finish();
  const Block* RegimeBlock(int r);

  // The rules.
  void Rules();
  void Peoples();
  void ResearchFields();
  void Types();
  void PeopleFlags(const std::string& field, const Entry& e);
  void GameFields(const Block& b);
  void Regimes();
  void Diplomacy();

  // The map.
  const std::vector<Row>* Layer(const char* kind, bool required);
  void Map();
  void River(const std::string& item, const std::string& where);
  void Towns();

  // The forces.
  void Units();
  static const std::map<std::string, int>& Slots();
  void UnitFields(UnitSource& s);
  bool TypeAndQty(const std::string& text, const Entry& e, long long* t, long long* q);
  void Stock(const UnitSource& s, const Entry& e);
  void Place(UnitSource& s, int x, int y, const Entry& e);
  void UnitLinks(const UnitSource& s);
  void UnitOfficer(UnitSource& s);
  int MakeOfficerFor(int r, const std::string& name, const Block& b, const std::string& where);
  Long Skill();
  Long NextPortrait(int set);
  void PoolOfficers();

  // The events.
  void Events();

  const std::vector<Block>& blocks_;
  std::vector<std::string>* errors_;
  std::map<std::string, int> types_, research_, peoples_, regimes_, unitLabels_;
  std::vector<UnitSource> units_;
  std::map<int, int> cargoOf_;
  std::map<int, int> portraitNext_;
  std::set<std::string> officerNames_;
  Block empty_;
};

}  // namespace mf::content
