#include "orders/sight.h"

#include "model/arith.h"
#include "model/bounds.h"
#include "model/cleared_with_tables.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/type_lookup.h"

namespace mf {
namespace {

// The three ways of looking, in the order each hex passes its sight on.
enum SightField : int { kSeaSight = 0, kLandSight = 1, kAirSight = 2 };
constexpr int kFields = 3;
constexpr int kRings = 10;  // rings 0..10: eleven in all

// Working fields of one pass: the recon points that reached a hex in each
// field, and the ring at which they did (-1 = not reached).
struct SightCell {
  long long points[kFields];
  int ring[kFields];
};
SightCell g_cells[kMapCap + 1][kMapCap + 1];

// A clear of the game clears this too.
const bool kClearedWithTables = ClearedWithTables([] {
  for (auto& column : g_cells)
    for (SightCell& c : column) c = SightCell{};
});

int FieldOfTheater(long theater) {
  if (theater == kSeaTheater) return kSeaSight;
  if (theater == kAirTheater) return kAirSight;
  return kLandSight;
}

// Recon points of one formation: one of its own, and what its troops bring.
long long ReconPoints(int u) {
  return AddSat64(1, UnitAttrTotal(u, kReconCap));
}

}  // namespace

void SightPass() {
  const int w = MapW();
  const int hgt = MapH();
  const long r = Game.CurRegime;
  const bool plane = r >= 1 && r <= kSightRegimes;
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= hgt; ++y) {
      HexRec& h = Hex[x][y];
      h.Vis = Game.FogOfWar == 1 ? 0 : 3;
      if (Game.FogOfExploration == 0 && plane) h.Seen[r] = 1;
      h.Mark = 0;
      h.ScratchRecon = -1;
      for (int f = 0; f < kFields; ++f) {
        g_cells[x][y].points[f] = 0;
        g_cells[x][y].ring[f] = -1;
      }
    }
  }

  if (Game.FogOfWar != 0 || Game.FogOfExploration != 0) {
    // Every stack of the regime looks from where it stands.
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= hgt; ++y) {
        HexRec& h = Hex[x][y];
        const long top = h.Unit[1];
        if (!ValidUnit(static_cast<int>(top)) || Unit[top].Regime != r || r == 0) continue;
        for (int s = 1; s <= kStackSlots; ++s) {
          const long u = h.Unit[s];
          if (!ValidUnit(static_cast<int>(u))) continue;
          const int f = FieldOfTheater(Unit[u].Theater);
          g_cells[x][y].points[f] += ReconPoints(static_cast<int>(u));
          g_cells[x][y].ring[f] = 0;
        }
        h.ScratchRecon = 0;
        h.Vis = 1;
      }
    }

    static const int kOrder[kFields] = {kSeaSight, kLandSight, kAirSight};
    for (int d = 0; d <= kRings; ++d) {
      // The price of looking one ring further rises with the square of the
      // distance; the first ring is always within reach.
      const double price = d == 0 ? 1.0 : static_cast<double>(EV(232)) * (d + 1) * (d + 1) / 2.0;
      for (int x = 1; x <= w; ++x) {
        for (int y = 1; y <= hgt; ++y) {
          const HexRec& h = Hex[x][y];
          const bool fromSea = h.Land == kSea;
          const bool fromOwn = h.Owner == r && r != 0;
          for (int f : kOrder) {
            if (g_cells[x][y].ring[f] != d) continue;
            double cost = price;
            if (f == kLandSight && fromOwn) cost = 1.0;  // own land is looked over cheaply
            for (int dir = 1; dir <= kHexSides; ++dir) {
              const HexXY n = Neighbour(x, y, dir);
              if (n.x <= 0 || n.y <= 0) continue;
              const bool toSea = Hex[n.x][n.y].Land == kSea;
              if (f == kSeaSight) {
                // Out from the water, or out to it from own land; never inland.
                if (!fromSea && !(fromOwn && toSea)) continue;
              } else if (f == kLandSight) {
                if (fromSea) continue;
              }
              SightCell& from = g_cells[x][y];
              SightCell& to = g_cells[n.x][n.y];
              if (static_cast<double>(from.points[f]) >= cost && from.points[f] > to.points[f]) {
                to.points[f] = from.points[f];
                to.ring[f] = d + 1;
                Hex[n.x][n.y].Vis = 1;
              }
            }
          }
        }
      }
    }
  }

  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= hgt; ++y) {
      Hex[x][y].Mark = 999;
      Hex[x][y].ScratchRecon = 0;
    }
  }

  if (Game.FogOfExploration == 1 && plane) {
    // What is seen now is explored, and so is the rim of the regime's land.
    for (int x = 1; x <= w; ++x) {
      for (int y = 1; y <= hgt; ++y) {
        HexRec& h = Hex[x][y];
        if (h.Vis > 0) {
          h.Seen[r] = 1;
          continue;
        }
        for (int dir = 1; dir <= kHexSides; ++dir) {
          const HexXY n = Neighbour(x, y, dir);
          if (n.x > 0 && n.y > 0 && Hex[n.x][n.y].Owner == r) {
            h.Seen[r] = 1;
            break;
          }
        }
      }
    }
  }
}

}  // namespace mf
