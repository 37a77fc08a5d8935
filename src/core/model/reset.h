// Clearing a game and laying out the map window for it.
#pragma once

#include <cstdint>
#include <string>

namespace mf {

// Sizes the map picture and the scroll bars for the current map, as the
// window shows them after every load and clear (UI.PictureW .. UI.ShowEditorPanel).
void setup();

// The clearing of the Clear / New Game dialog's "Make it so". With
// resetRules false the engine variables (except row 616, the SHQ stock width,
// which goes to 0 with the SHQ tables), types, peoples and research stay;
// with true they go back to their defaults too. Width and height are the
// two fields' texts, taken by Val, rounded by CInt and held to 10..100.
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
void MakeItSo(bool resetRules, const std::string& widthText, const std::string& heightText);
// The silent full clear used before every load: both fields "0".
void onlyclear();
// What the menu's clear commands do after the dialog: fog off, editing on,
// setup, and for a new scenario the regime label "Editing".
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
