// The sprite and sound tables.
//
// Every picture of the game has a number 0..2100; scenarios and types refer
// to pictures by these numbers only, so the numbering is part of the file
// format. Core keeps the table of what each number is (folder, file name,
// whether the file is required) and scans which files exist; it never holds
// pixels. The program loads the pictures by the paths found here, and shows
// the message when a required file is missing.
#pragma once

#include <string>

namespace mf {

constexpr int kSpriteCap = 2100;    // sprite numbers 0..2100
constexpr int kSoundCap = 32;       // sound numbers 1..32
constexpr int kPortraitFirst = 1801;  // officer portraits are numbered from here
constexpr int kPortraitSets = 6;      // sets a..f
constexpr int kPortraitFiles = 200;   // files a1..a200 per set

// The folder a picture is read from: the map, badge, type and officer
// folders of Game, and the landscape folder beside the map folder.
enum class SpriteFolder : char {
  None = 0,
  Map = 'M',
  ColorCode = 'C',
  Type = 'T',
  Officer = 'O',
  Landscape = 'L',
};

struct SpriteSlot {
  SpriteFolder folder = SpriteFolder::None;  // None: no picture has this number
  std::string file;        // "hex3b.bmp"; for portraits the file found by the last load
  bool optional = false;   // an absent file just leaves the slot empty
  bool masked = false;     // drawn on the map with white (255,255,255) see-through
  bool present = false;    // the file was found by the last LoadSprites
  std::string path;        // its file-system path, when present
};

// The slot of a sprite number; an empty slot for 0 and numbers outside 1..2100.
const SpriteSlot& SpriteAt(int n);
// True when the last LoadSprites found the picture of this number.
bool SpritePresent(int n);
// The game path of a folder as the last load used it ("\default\map").
std::string SpriteFolderPath(SpriteFolder folder);
// The full file-system path of sprite n under the current folders of Game
// (the landscape folder by its rule); "" for an unused number or a portrait
// slot that no file took.
std::string SpritePath(int n);
// The landscape folder that belongs to a map folder: the map folder without
// its last four characters, plus "\landscape".
std::string LandscapeFolderOf(const std::string& dirMap);

// File name of sound n ("click.wav"), "" for an unused number.
const std::string& SoundFileName(int n);
// SoundFile[n]: the full path of sound n in the sound folder, as the last
// load filled it; "" for an unused number.
const std::string& SoundFile(int n);

// What a load found. ok is false when a file of a fixed range is missing;
// sprite, file and folder name the first such file (folder as the game path,
// folderPath as the file-system path), missing counts them all.
struct SpriteLoadResult {
  bool ok = true;
  int sprite = 0;
  std::string file;
  std::string folder;
  std::string folderPath;
  int missing = 0;
  int portraits = 0;  // portrait numbers handed out from 1801
};

// The message the program shows for a failed load, naming file and folder.
std::string SpriteLoadMessage(const SpriteLoadResult& result);

// Scans the graphics folders of the game and fills the sprite and sound
// tables, OfficerPicSet and Game.BookVarCount. With Game.GraphicsDirty 0 all
// folders go back to their defaults first; the flag is 0 afterwards.
// Runs at start and after every load of a file.
const SpriteLoadResult& LoadSprites();
// The result of the last LoadSprites.
const SpriteLoadResult& LastSpriteLoad();
// How many times LoadSprites has run; the program reloads its pictures when
// this number changes.
long SpriteLoadCount();

}  // namespace mf
