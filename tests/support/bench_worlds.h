// The worlds the benchmarks measure, built in code, shared with the golden
// tests that hold the results of the measured routines fixed while they are
// made faster. No test framework here: the benchmark program links it too.
#pragma once

namespace mf::bench {

// The largest turn start: 100 x 100 hexes, regime 1 with 20 SHQs and 400
// formations (20 of them THQs) and 100 towns, the SHQ range (engine variable
// 230) at 50, regime 2 at peace with it. Clears the game first; the same
// world every time.
void BuildTurnWorld();

// The driver's economy steps of a turn start for Game.CurRegime: every
// formation waits for its new supply, then capture, supply, one hex loop of
// recovery and towns, transport and the clearing of the flood.
void TurnStartEconomy();

// The largest scenario file: 100 x 100 hexes, 10 regimes with their news,
// stocks and briefings, 100 types, 2000 units, 50 events. Clears the game
// first; the same scenario every time.
void BuildFullScenario();

}  // namespace mf::bench
