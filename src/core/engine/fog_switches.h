#pragma once
// The two fog switches of a game about to start, coupled as both start
// dialogs (Start Game and Random Scenario) offer them: exploration fog is a
// kind of fog of war, so turning it on turns fog of war on, and turning fog
// of war off takes exploration fog with it.

#include "model/game_state.h"

namespace mf {

inline void SetFogOfWar(bool on) {
  Game.FogOfWar = on ? 1 : 0;
  if (!on) Game.FogOfExploration = 0;
}

inline void SetFogOfExploration(bool on) {
  Game.FogOfExploration = on ? 1 : 0;
  if (on) Game.FogOfWar = 1;
}

}  // namespace mf
