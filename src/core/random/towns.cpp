#include "random/towns.h"

#include "ai/ai_state.h"
#include "ai/sorted_list.h"
#include "model/arith.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"

namespace mf {
namespace {

const std::string kNames[kTownNameCount + 1] = {
    "",
    "Leeds", "Liverpool", "London", "Glasgow", "New York", "Washington", "Miami", "Los Angelos", "Brasilia",
    "Colombo", "Santiago", "Panama", "Capetown", "Walrusbay", "Tokio", "Nagashaki", "Key West", "Sidney",
    "Melbourne", "Paddington", "Toronto", "Being", "Peking", "Saracussa", "Rome", "Torino", "Milano", "Trieste",
    "Belgrade", "Sofia", "Moscow", "Stalingrad", "Leningrad", "Novalum", "Citidalis", "Seoul", "Wladivostok",
    "Bagdad", "Jerusalem", "Cyprus", "Palermo", "Paris", "Bordeaux", "Lyon", "Dyon", "Bruxelles", "Berlin",
    "Amsterdam", "Rotterdam", "The Hague", "Kobenhabn", "Stockholm", "Oslo", "Narvik", "Helsinki", "Moermansk",
    "Minsk", "Riga", "Warschau", "Bern", "Lodz", "Murrayberry", "Northwind", "Emerald City", "Southwind",
    "Centralis", "Garnavieve", "Groschkia", "Atlantia", "Neutralis", "Ankara", "Tripoli", "Corinthe", "Athene",
    "Marrakech", "Meknes", "Dark Pearl", "Valley", "South Town", "North Town", "Marianna", "Peppskov",
    "Fasteria", "New Amsterdam", "Ontario", "Madrid", "Barcelona", "Porto", "Skopje", "Pskov", "Liege",
    "Tannenberg", "Antwerpen", "Raoud", "Kammafur", "Lahore", "Goldtown", "Freetown", "Lovetown",
    "Dunkers City"};

// Sea neighbours of (x, y); a town beside it sets the count to `townMark`
// at the point of the turn where it is met, later sea neighbours adding on.
int SeaNeighbours(int x, int y, int townMark) {
  int c = 0;
  for (int d = 1; d <= 6; ++d) {
    const HexXY n = Neighbour(x, y, d);
    if (n.x < 1 || n.y < 1) continue;
    if (Hex[n.x][n.y].Land == kSea) ++c;
    if (Hex[n.x][n.y].Land == kUrban) c = townMark;
  }
  return c;
}

// Population of an island town: 500 to 2400 in steps of 100.
Long TownPop() { return static_cast<Long>(Int(Rnd() * 20.0) * 100 + 500); }

// The head of the sorted list, or false when nothing was listed.
bool ListHead(int& x, int& y) {
  if (AI.ListCount < 1) return false;
  x = static_cast<int>(AI.ListA[1]);
  y = static_cast<int>(AI.ListB[1]);
  return ValidHex(x, y);
}

}  // namespace

const std::string& TownName(int n) {
  static const std::string none;
  return n >= 1 && n <= kTownNameCount ? kNames[n] : none;
}

std::string TownNameDraw::Draw() {
  if (used_count_ >= kTownNamesDrawn) return "";
  int n = 0;
  do {
    n = static_cast<int>(Int(Rnd() * 99.0 + 1.0));
  } while (used_[n]);
  used_[n] = true;
  ++used_count_;
  return kNames[n];
}

bool PlaceShoreTown(TownNameDraw& names) {
  ListClear();
  for (int x = 2; x <= Game.MapW - 1; ++x)
    for (int y = 2; y <= Game.MapH - 1; ++y) {
      const HexRec& h = Hex[x][y];
      if (h.Work <= 0) continue;
      Long score = h.Work;
      if (h.Land < kUrban) {
        const int c = SeaNeighbours(x, y, -100);
        if (c > 1) score += 100;
        if (c < 0) score -= 100;
      }
      if (score > 0) ListAdd(x, y, score);
    }
  int x = 0, y = 0;
  if (!ListHead(x, y)) return false;
  Rnd();
  HexRec& h = Hex[x][y];
  h.Pop = TownPop();
  h.Land = kUrban;
  h.Owner = 0;
  h.People = 2;
  h.UrbanName = names.Draw();
  return true;
}

bool PlaceInlandTown(TownNameDraw& names) {
  ListClear();
  for (int x = 2; x <= Game.MapW - 1; ++x)
    for (int y = 2; y <= Game.MapH - 1; ++y) {
      const HexRec& h = Hex[x][y];
      if (h.Work <= 0) continue;
      Long score = 20 - h.Work;
      if (h.Land != kSea) {
        const int c = SeaNeighbours(x, y, 100);
        if (c > 1) score -= 100;
      }
      if (score > 0) ListAdd(x, y, score);
    }
  int x = 0, y = 0;
  if (!ListHead(x, y)) return false;
  Rnd();
  Long pop = TownPop();
  // One island in twenty has a city at its heart.
  if (Rnd() < 0.05f) {
    Rnd();
    pop = static_cast<Long>(Int(Rnd() * 20.0) * 100 + 2000);
  }
  HexRec& h = Hex[x][y];
  h.Pop = pop;
  h.Land = kUrban;
  h.Owner = 0;
  h.People = static_cast<Long>(Int(Rnd() * 3.0 + 1.0));
  h.UrbanName = names.Draw();
  return true;
}

}  // namespace mf
