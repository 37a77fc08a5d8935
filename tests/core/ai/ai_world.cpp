#include "ai_world.h"

#include "model/game_state.h"

namespace mf::test::ai {
namespace {
int g_infantry = 0;
}

void RowMap(const std::string& land, const std::string& owners) {
  const int w = static_cast<int>(land.size());
  world::NewMap(w, 1);
  Game.MapW = w;
  Game.MapH = 1;
  EngineVar[301].Value = 10;
  g_infantry = 0;
  for (int x = 1; x <= w; ++x) {
    HexRec& h = Hex[x][1];
    switch (land[static_cast<std::size_t>(x - 1)]) {
      case 'f': h.Land = kForest; break;
      case 's': h.Land = kSwamp; break;
      case 'm': h.Land = kMountain; break;
      case '~': h.Land = kSea; break;
      case 'T': h.Land = kUrban; break;
      default: h.Land = kGrass; break;
    }
    h.Owner = static_cast<std::size_t>(x - 1) < owners.size() ? owners[static_cast<std::size_t>(x - 1)] - '0' : 0;
  }
}

void Town(int x, const std::string& name, long pop) {
  Hex[x][1].Land = kUrban;
  Hex[x][1].UrbanName = name;
  Hex[x][1].Pop = pop;
}

int Soldiers(int r, int x, const std::string& name, int worth) {
  if (g_infantry == 0) {
    g_infantry = world::AddType("Infantry", kLandTheater, 1);
    Type[g_infantry].Attr[kSoftAttack] = 10;
    Type[g_infantry].Attr[kSoftDefense] = 10;
  }
  const Long owner = Hex[x][1].Owner;  // a unit does not take the ground it is put on
  const int u = world::AddUnit(r, x, 1, name, g_infantry, worth);
  Hex[x][1].Owner = owner;
  Unit[u].Experience = 100;
  return u;
}

int Ship(int r, int x, const std::string& name) {
  const Long owner = Hex[x][1].Owner;
  const int u = world::AddUnit(r, x, 1, name);
  Hex[x][1].Owner = owner;
  Unit[u].Theater = kSeaTheater;
  return u;
}

std::vector<long> AreaRow() {
  std::vector<long> out;
  for (int x = 1; x <= Game.MapW; ++x) out.push_back(Hex[x][1].Area);
  return out;
}
std::vector<long> AreaValueRow() {
  std::vector<long> out;
  for (int x = 1; x <= Game.MapW; ++x) out.push_back(Hex[x][1].AreaValue);
  return out;
}
std::vector<long> LandmassRow() {
  std::vector<long> out;
  for (int x = 1; x <= Game.MapW; ++x) out.push_back(Hex[x][1].Landmass);
  return out;
}

}  // namespace mf::test::ai
