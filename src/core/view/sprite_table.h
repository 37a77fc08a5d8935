// The sprite and sound tables.
#pragma once

namespace mf {

// Scans the graphics folders of the game and fills the sprite and sound
// tables, OfficerPicSet and the labels. The program loads the pictures.
void LoadSprites();

}  // namespace mf
