// The keys of the main window. Keys are told by their key codes, as the
// keyboard of the game has always named them; the window turns its own key
// events into these codes.
#pragma once

namespace mf {

constexpr int kKeyEnter = 13;
constexpr int kKeyEscape = 27;
constexpr int kKeySpace = 32;
constexpr int kKeyLeft = 37;
constexpr int kKeyUp = 38;
constexpr int kKeyRight = 39;
constexpr int kKeyDown = 40;
constexpr int kKeyF1 = 112;
constexpr int kKeyF2 = 113;
constexpr int kKeyF11 = 122;
constexpr int kKeyF12 = 123;
// Letters are their upper-case character codes, 'A' (65) .. 'Z' (90).

// A key pressed in the main window. True when the key did something.
//   F1   any time: sound off / on, with "Sound is switched off" / "Sound is switched on".
//   F11  not editing: shows or hides the computer player's analysis log.
//   F12  not editing: asks "Set current Turn please (debug only):" and sets Game.Turn.
//   Esc  any time: cancels the order under way.
//   arrows: scroll the map by half a screen, not past its edges.
//   Enter, Space: the do button, while an order that it finishes is under way.
//   letters: press their order buttons when no move, attack, transfer or
//            change of command is under way (in the editor only with its
//            panel showing), and only buttons that are enabled.
bool KeyDown(int keyCode);

// Scrolls the map by half of the visible part: dx and dy are -1, 0 or 1.
// Asks for the whole map to be redrawn when it moved; false when the map is
// already at that edge (or cannot scroll at all).
bool ScrollHalfScreen(int dx, int dy);

}  // namespace mf
