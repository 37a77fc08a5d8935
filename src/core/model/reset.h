// Clearing a game and laying out the map window for it.
#pragma once

#include <cstdint>
#include <string>

namespace mf {

// Sizes the map picture and the scroll bars for the current map, as the
// window shows them after every load and clear (UI.PictureW .. UI.ShowEditorPanel).
void LayOutMapWindow();

// The clearing of the Clear / New Game dialog's "Make it so". With
// resetRules false the engine variables (except row 616, the SHQ stock width,
// which goes to 0 with the SHQ tables), types, peoples and research stay;
// with true they go back to their defaults too. The new map is width x
// height hexes, each held to 10..100.
//
// Hexes inside the old map are cleared; hexes beyond it keep their data but
// every hex of the new map gets Land 1. Events and book variables 1..200 are
// cleared and Game.BookVarCount is set to 200. The UI selections (also the
// previous selection and the order origin), all order flags, the attackers,
// UI.EditMode, UI.ResumeTurn and UI.ExitAfterTurnForm are zeroed; the
// overlay switches, UI.SoundOff, UI.HideEditor, UI.PendingFile (the
// campaign's next file, read by the timer around a clear) and the window's
// own fields stay. Of the game switches FogOfWar, FogOfExploration,
// UsePasswords, PBEM and AIProdBonus are zeroed; Game.FileVersion stays.
void ClearGame(bool resetRules, std::int64_t width, std::int64_t height);
// A map size typed into the dialog's fields (or a script): its leading
// number, rounded as any number stored into a whole field ("12abc" is 12,
// "20.5" is 20, "abc" is 0). ClearGame holds it to the map's limits.
std::int64_t MapSizeFromText(const std::string& text);
// The silent full clear used before every load: the smallest map.
void ClearForLoad();
// What the menu's clear commands do after the dialog: fog off, editing on,
// the map window laid out, and for a new scenario the regime label "Editing".
void AfterClearCommand(bool newScenario);

// The state the game program opens in: zeroed tables, engine-variable labels
// and defaults, the generator seeded with a fixed number (so that a script or
// a compiled scenario repeats itself exactly unless it seeds on its own), an
// empty map in editing mode with the editor panel hidden, and the map window
// laid out.
void StartFresh(std::uint32_t seed = 1);

// Regime defaults of a new scenario's regime r: FormationName "Bataljon",
// TextColor "&Hffffff", UnitSerial 0.
void SetNewRegimeDefaults(int r);

}  // namespace mf
