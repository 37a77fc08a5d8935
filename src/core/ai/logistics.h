// The computer player's logistics: which SHQ serves which area and town, and
// stock handed from one SHQ to another. The SHQs found here, in the map's
// scan order, are also what the production, stock and headquarters stages
// walk through.
#pragma once

#include <vector>

#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {

// An SHQ where it stands.
struct ShqPlace {
  int x = 0, y = 0, slot = 0;
  int unit = 0;
};

// The SHQs of Game.CurRegime on the map, x outer, y inner, slots 1..3. With
// ownHexOnly only those on hexes the regime owns: the ones that were served
// this turn and that can hand out stock.
std::vector<ShqPlace> AIShqsOnMap(bool ownHexOnly);

// A town of Game.CurRegime: an owned hex with population.
bool AIOwnTown(int x, int y);

// A hex with sea among its six neighbours: a port, for a town.
bool AISeaBeside(int x, int y);

// The reach of SHQ unit `shq` at hex (x, y) as flooded at the turn start
// (Hex.ShqDist under its number); 999 when the unit is no SHQ of the regime.
Long AIShqReach(int x, int y, int shq);

// The last stock slot of an SHQ unit in use whose type matches `want` with a
// quantity above `above` (0 when none). `want` gets the type.
template <class Want>
int AILastStockSlot(int shq, Long above, Want want) {
  const ShqRec& pool = Shq[Unit[shq].Regime][Unit[shq].Shq];
  int found = 0;
  for (int k = 1; k <= StockWidth(); ++k) {
    const Long t = pool.StockType[k];
    if (ValidType(t) && pool.StockQty[k] > above && want(static_cast<int>(t))) found = k;
  }
  return found;
}

// Puts `qty` pieces of stock type `type` into the class row of that type in
// the transfer request (TransferRequest), leaving the other rows as they are.
void AIRequestStock(Long type, Long qty);
// Hands what the transfer request holds from SHQ `from` to the unit at
// (toX, toY, toSlot): the order registers are set as a click would set them,
// supply is flooded from the giver, and the transfer runs in the computer's
// way. True when something went over.
bool AIHandOver(const ShqPlace& from, int toX, int toY, int toSlot);

// Gives every area the SHQ that serves it: in its own area each SHQ counts
// the population of the towns it reaches (full near, a third farther out, an
// eighth at the edge of its range) and the best one takes the area; then the
// served areas pass their SHQ over land, one to five steps out, to areas
// without one. Nothing without fronts.
void AIAreasToShq();

// Sends the output of each own town to the SHQ that reaches it over land and
// has given least for its demand so far; the town's area then counts as
// served by that SHQ.
void AITownsToShq();

// Stock piled beyond twice a turn's output goes, slot by slot, to the SHQ
// nearby (supply cost below 50) whose areas see the most contact; the giver
// carries nothing more this turn. Transports of land and sea stay put.
void AIShqToShq();

}  // namespace mf
