// Clearing a game and laying out the map window for it.
#pragma once

#include <string>

namespace mf {

// Sizes the map picture and the scroll bars for the current map, as the
// window shows them after every load and clear (UI.PictureW .. UI.ShowEditorPanel).
void setup();

// The clearing of the Clear / New Game dialog's "Make it so". With
// resetRules false the engine variables, types, peoples and research stay;
// with true they go back to their defaults too. Width and height are the
// two fields' texts, taken by Val and clamped to 10..100.
void MakeItSo(bool resetRules, const std::string& widthText, const std::string& heightText);
// The silent full clear used before every load: both fields "0".
void onlyclear();
// What the menu's clear commands do after the dialog: fog off, editing on,
// setup, and for a new scenario the regime label "Editing".
void AfterClearCommand(bool newScenario);

// Regime defaults of a new scenario's regime r: FormationName "Bataljon",
// TextColor "&Hffffff", UnitSerial 0.
void SetNewRegimeDefaults(int r);

}  // namespace mf
