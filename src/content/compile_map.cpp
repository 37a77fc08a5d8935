// The map of a scenario: landscape, owners and roads drawn as rows of
// characters, river sides between hexes, and the towns.
#include "content_compiler.h"

#include <algorithm>
#include <set>
#include <utility>

#include "model/hex_geometry.h"

namespace mf::content {

const std::vector<Row>* Compiler::Layer(const char* kind, bool required) {
  const Block* b = Single(kind, required);
  if (b == nullptr) return nullptr;
  if (static_cast<int>(b->rows.size()) != Game.MapH) {
    Error(b->where, std::string("[") + kind + "] has " + std::to_string(b->rows.size()) + " rows; the map is " +
                        std::to_string(Game.MapH) + " high");
    return nullptr;
  }
  for (const Row& r : b->rows) {
    if (static_cast<int>(r.text.size()) != Game.MapW) {
      Error(r.where, std::string("[") + kind + "] row of " + std::to_string(r.text.size()) + " hexes; the map is " +
                         std::to_string(Game.MapW) + " wide");
      return nullptr;
    }
  }
  return &b->rows;
}

void Compiler::Map() {
  if (const auto* land = Layer("land", true)) {
    for (int y = 1; y <= Game.MapH; ++y) {
      const Row& row = (*land)[static_cast<std::size_t>(y - 1)];
      for (int x = 1; x <= Game.MapW; ++x) {
        const char c = row.text[static_cast<std::size_t>(x - 1)];
        const std::string legend = ".fo~s^";
        const std::size_t at = legend.find(c);
        if (at == std::string::npos) {
          Error(row.where, std::string("unknown landscape '") + c + "' (. f o ~ s ^)");
          continue;
        }
        Hex[x][y].Land = static_cast<Long>(at + 1);
      }
    }
  }
  if (const auto* owner = Layer("owner", false)) {
    for (int y = 1; y <= Game.MapH; ++y) {
      const Row& row = (*owner)[static_cast<std::size_t>(y - 1)];
      for (int x = 1; x <= Game.MapW; ++x) {
        const char c = row.text[static_cast<std::size_t>(x - 1)];
        int r = -1;
        if (c == '.' || c == '~')
          r = 0;
        else if (c >= '1' && c <= '9')
          r = c - '0';
        else if (c == 'A' || c == 'a')
          r = 10;
        if (r < 0 || r > Game.RegimeCount) {
          Error(row.where, std::string("owner '") + c + "' at " + XY(x, y) + " is no regime of this scenario");
          continue;
        }
        if (r > 0 && Hex[x][y].Land == kSea) {
          Error(row.where, "sea is never owned: " + XY(x, y));
          continue;
        }
        Hex[x][y].Owner = r;
      }
    }
  }
  if (const auto* roads = Layer("roads", false)) {
    for (int y = 1; y <= Game.MapH; ++y) {
      const Row& row = (*roads)[static_cast<std::size_t>(y - 1)];
      for (int x = 1; x <= Game.MapW; ++x) {
        const char c = row.text[static_cast<std::size_t>(x - 1)];
        if (c == '.' || c == '~') continue;
        if (c != '=') {
          Error(row.where, std::string("unknown road mark '") + c + "' (= or .)");
          continue;
        }
        if (Hex[x][y].Land == kSea) {
          Error(row.where, "no road runs over sea: " + XY(x, y));
          continue;
        }
        Hex[x][y].Road = 1;
      }
    }
  }
  for (const Block* b : All("rivers")) {
    for (const Entry& e : b->entries) {
      std::string all = e.value;
      std::replace(all.begin(), all.end(), '\r', ' ');
      std::replace(all.begin(), all.end(), '\n', ' ');
      for (const std::string& item : Split(all, ' ')) {
        if (item.empty()) continue;
        River(item, e.where);
      }
    }
  }
}

// One river side "x,y:x,y" between two neighbouring land hexes; both hexes
// carry it, each on its own side.
void Compiler::River(const std::string& item, const std::string& where) {
  const auto ends = Split(item, ':');
  int pts[4] = {0, 0, 0, 0};
  bool ok = ends.size() == 2;
  for (std::size_t k = 0; ok && k < 2; ++k) {
    const auto xy = Split(ends[k], ',');
    long long a = 0, b = 0;
    ok = xy.size() == 2 && ParseWhole(xy[0], &a) && ParseWhole(xy[1], &b) &&
         ValidHex(static_cast<int>(a), static_cast<int>(b));
    pts[2 * k] = static_cast<int>(a);
    pts[2 * k + 1] = static_cast<int>(b);
  }
  if (!ok) {
    Error(where, "a river side is \"x,y:x,y\" of two hexes on the map, not \"" + item + "\"");
    return;
  }
  int dir = 0;
  for (int d = 1; d <= kHexSides; ++d) {
    const HexXY n = Neighbour(pts[0], pts[1], d);
    if (n.x == pts[2] && n.y == pts[3]) dir = d;
  }
  if (dir == 0) {
    Error(where, "river side " + item + ": the hexes are not neighbours");
    return;
  }
  if (Hex[pts[0]][pts[1]].Land == kSea || Hex[pts[2]][pts[3]].Land == kSea) {
    Error(where, "river side " + item + ": rivers run between land hexes");
    return;
  }
  Hex[pts[0]][pts[1]].River[dir] = 1;
  Hex[pts[2]][pts[3]].River[(dir + 2) % kHexSides + 1] = 1;
}

void Compiler::Towns() {
  std::set<std::pair<int, int>> towns;
  for (const Block* b : All("town")) {
    const Entry* at = Find(*b, "At");
    int x = 0, y = 0;
    if (at == nullptr) {
      Error(b->where, "a town needs At");
      continue;
    }
    if (!HexAt(*at, &x, &y)) continue;
    if (!towns.insert({x, y}).second) Error(b->where, "a second town at " + XY(x, y));
    HexRec& h = Hex[x][y];
    if (h.Land != kUrban) Error(at->where, "At " + XY(x, y) + ": a town stands on an 'o' hex of [land]");
    h.UrbanName = b->label;
    h.People = h.Owner > 0 ? Regime[h.Owner].OwnPeople : 1;
    const std::string prefix = "Hex[" + XY(x, y) + "].";
    bool shqGiven = false;
    for (const Entry& e : b->entries) {
      if (e.key == "At") continue;
      if (e.key == "Name") {
        if (CheckText(e, false)) h.UrbanName = e.value;
      } else if (e.key == "Prod") {
        const std::string l = Lower(e.value);
        long long v = 0;
        if (l == "pp" || l == "political points")
          v = 0;
        else if (l == "supply")
          v = -1;
        else if (!Number(e, kSymType, &v))
          continue;
        SetNum(prefix + "Prod", v, e.where);
      } else if (e.key == "ProdSHQ") {
        const int v = UnitRef(e);
        if (v == 0) continue;
        shqGiven = true;
        if (Unit[v].Shq == 0)
          Error(e.where, "ProdSHQ: " + e.value + " is no SHQ");
        else if (Unit[v].Regime != h.Owner)
          Error(e.where, "ProdSHQ: the SHQ serves another regime than the town's");
        else
          h.ProdSHQ = v;
      } else if (e.key == "People") {
        long long v = 0;
        if (Number(e, kSymPeople, &v)) {
          if (v < 1 || v > Game.PeopleCount)
            Error(e.where, "People: there is no people " + e.value);
          else
            h.People = static_cast<Long>(v);
        }
      } else if (e.key == "Pop" || e.key == "ProdPts" || e.key == "Damage") {
        long long v = 0;
        if (Whole(e, &v, 0, e.key == "Damage" ? 100 : 250000)) SetNum(prefix + e.key, v, e.where);
      } else {
        Error(e.where, "[town] takes At, Name, Pop, People, Prod, ProdSHQ, ProdPts and Damage, not " + e.key);
      }
    }
    if (h.UrbanName.empty() || h.UrbanName.size() > 20) Error(b->where, "a town's name is 1..20 characters");
    if (h.Pop < 1) Error(b->where, "a town needs its Pop");
    if (h.Owner > 0 && !shqGiven) Error(b->where, "an owned town needs the SHQ it delivers to, ProdSHQ");
    if (h.Owner == 0 && shqGiven) Error(b->where, "a neutral town delivers to nobody");
    if (h.Prod < -1 || h.Prod > Game.TypeCount)
      Error(b->where, "Prod: there is no unit type " + std::to_string(h.Prod));
  }
  for (int x = 1; x <= Game.MapW; ++x) {
    for (int y = 1; y <= Game.MapH; ++y) {
      if (Hex[x][y].Land == kUrban && towns.count({x, y}) == 0) {
        errors_->push_back("the 'o' hex " + XY(x, y) + " of [land] has no [town]");
      }
    }
  }
}

}  // namespace mf::content
