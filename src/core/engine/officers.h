// Officers: the pool of a regime, portraits, fame.
#pragma once

namespace mf {

// Opens the Officerpool dialog for Game.CurRegime ("[O]fficerpool").
void doPool();

}  // namespace mf
