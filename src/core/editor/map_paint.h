// Painting the map by hand in the editor: owners, landscape, roads and
// rivers by brush, towns by three questions, and every stroke undoable.
#pragma once

#include <string>

namespace mf {

// The landscape list right of the type button: row n paints brush n. Rows
// 1 "Grass", 2 "Forest", 4 "Sea", 5 "Swamp/Marsh", 6 "Mountain" set the
// landscape, 7 "Road" toggles the road, 11..16 toggle the river on side
// n - 10; rows 3 and 8..10 are empty lines.
constexpr int kPaintListRows = 16;
constexpr int kRoadBrush = 7;
constexpr int kFirstRiverBrush = 11;
// The number typed in the regime box for painting neutral ownership.
constexpr int kNeutralBrush = 99;
// Strokes kept for undo and redo.
constexpr int kPaintUndoDepth = 100;

const std::string& PaintListEntry(int row);  // "" for an empty line or outside 1..16

// The painting controls of the editor panel.
struct PaintToolsRec {
  std::string regimeBox;  // the number box above the regime button
  int listRow = 0;        // the selected row of the landscape list, 0 none
};
extern PaintToolsRec PaintTools;

// Captions of the three buttons: "PAINT REGIME" / "END REGIME PAINTING",
// "PAINT TYPE" / "END TYPE PAINTING", "URBAN".
std::string RegimePaintCaption();
std::string TypePaintCaption();
std::string UrbanCaption();

// The regime button: with its brush on, ends it; otherwise starts painting
// the regime typed in the box (99 neutral), or says how to fill the box.
// Any other brush ends first. Only in the editor.
void PressRegimePaint();
// The type button: the same for the landscape chosen in the list.
void PressTypePaint();
// The urban button on the selected hex: "Urban Name", "Population" and
// "People?" asked in turn (a cancelled question changes nothing). A
// population of 0 turns the town back into grass.
void PressUrban();
// Ends whichever brush is on.
void EndPainting();
// The box and the list; a brush that is on follows a valid new choice.
void SetPaintRegimeBox(const std::string& text);
void SelectPaintRow(int row);

// A left press on the map with a brush on (the map's click has selected the
// hex): a new stroke begins and paints the selected hex.
void RegimePaintButton();
void LandscapePaintButton();
// The pointer dragged onto hex (x, y) with the button held: the stroke
// paints it, once per stroke. The map selects the hex first, as a press
// does, so that the redraw around the selection shows it.
void PaintDragTo(int x, int y);
// The button let go: the stroke is finished.
void EndPaintStroke();
// Whether a stroke is under way (a brush is on and the button is held).
bool PaintStrokeOpen();

// Ctrl+Z and Ctrl+Y: the last stroke (a click, a drag or a town's
// questions) undone or done again. False when there is nothing to undo/redo.
bool UndoPaint();
bool RedoPaint();
int UndoDepth();
int RedoDepth();
// Forgets every stroke (a new map was loaded or made).
void ForgetPaintStrokes();

// What the pointer shows on the map: the brush that is on ("Owner: Dark
// Empire", "Owner: neutral", "Forest", "River -|"), "" with no brush on.
std::string BrushLabel();

}  // namespace mf
