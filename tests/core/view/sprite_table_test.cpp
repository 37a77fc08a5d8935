// The sprite and sound tables: numbers, folders and file names, the folder
// rules of a load, the portrait numbering, and the default art the build
// draws.
#include "view/sprite_table.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "model/reset.h"
#include "platform/paths.h"
#include "support/core_test.h"

namespace fs = std::filesystem;

namespace mf {
namespace {

using test::CoreTest;

class SpriteTableTest : public CoreTest {
 protected:
  // Writes an empty file at a path below the program folder ("default/map/x.bmp").
  void Touch(const std::string& rel) const {
    const fs::path p = fs::path(tempDir) / rel;
    fs::create_directories(p.parent_path());
    std::ofstream(p) << "";
  }
  void Remove(const std::string& rel) const { fs::remove(fs::path(tempDir) / rel); }
  std::string Full(const std::string& rel) const { return (fs::path(tempDir) / rel).string(); }

  // Every file of the fixed ranges in the default folders.
  void TouchAllFixed() const {
    for (int n = 1; n <= kSpriteCap; ++n) {
      const SpriteSlot& s = SpriteAt(n);
      if (s.folder == SpriteFolder::None || s.optional) continue;
      const char* dir = s.folder == SpriteFolder::ColorCode ? "default/colorcode/" : "default/map/";
      Touch(dir + s.file);
    }
  }
};

struct Expect {
  int n;
  SpriteFolder folder;
  const char* file;
  bool optional;
};

TEST_F(SpriteTableTest, NumbersFoldersAndNamesAsListed) {
  const SpriteFolder M = SpriteFolder::Map, C = SpriteFolder::ColorCode, T = SpriteFolder::Type,
                     L = SpriteFolder::Landscape;
  const Expect expected[] = {
      {1, M, "hex3b.bmp", false},          {4, M, "sea0.bmp", false},
      {21, M, "hex3c1b.bmp", false},       {28, M, "hex3c8b.bmp", false},
      {35, M, "hex3c15b.bmp", false},      {201, M, "unit1c1b.bmp", false},
      {215, M, "unit1c15b.bmp", false},    {219, M, "unit1cr2b.bmp", false},
      {220, M, "unit1crb.bmp", false},     {221, M, "unit2c1b.bmp", false},
      {240, M, "unit2crb.bmp", false},     {247, M, "unit3c7b.bmp", false},
      {259, M, "unit3cr2b.bmp", false},    {261, M, "unit4c1b.bmp", false},
      {295, M, "unit5c15b.bmp", false},    {301, M, "unit6c1b.bmp", false},
      {321, M, "sea1c1b.bmp", false},      {339, M, "sea1cr2b.bmp", false},
      {341, M, "air1c1b.bmp", false},      {360, M, "air1crb.bmp", false},
      {401, T, "extra1.bmp", true},        {500, T, "extra100.bmp", true},
      {501, T, "1.bmp", true},             {530, T, "30.bmp", true},
      {700, T, "200.bmp", true},           {801, M, "hexlightb.bmp", false},
      {802, M, "hex_noprod2b.bmp", false}, {803, M, "hex_noprodb.bmp", false},
      {804, M, "white.bmp", false},        {805, M, "hex_damb.bmp", false},
      {806, M, "arrow7.bmp", false},       {807, M, "arrow8.bmp", false},
      {808, M, "hidden.bmp", false},       {809, M, "shadow.bmp", false},
      {810, M, "arrow9.bmp", false},       {811, L, "1.bmp", true},
      {830, L, "20.bmp", true},            {831, M, "speed_art.bmp", false},
      {832, M, "speed_foot.bmp", false},   {833, M, "speed_tank.bmp", false},
      {834, M, "speed_truck.bmp", false},  {835, M, "supply_1.bmp", false},
      {840, M, "supply_6.bmp", false},     {841, M, "supply_amph.bmp", false},
      {842, M, "supply_land.bmp", false},  {843, M, "supply_no.bmp", false},
      {844, M, "supply_sea.bmp", false},   {845, M, "arrow1.bmp", false},
      {850, M, "arrow6.bmp", false},       {851, C, "colorcode1b.bmp", false},
      {880, C, "colorcode30b.bmp", false}, {891, M, "clicktojoin.bmp", false},
      {892, M, "joined.bmp", false},       {893, M, "overlay1.bmp", false},
      {1001, M, "hex3bB.bmp", false},      {1004, M, "sea0b.bmp", false},
      {1021, M, "hex3c1bB.bmp", false},    {1035, M, "hex3c15bB.bmp", false},
      {1101, M, "def1.bmp", false},        {1106, M, "def6.bmp", false},
      {1111, M, "def1b.bmp", false},       {1114, M, "def4b.bmp", false},
      {1121, M, "def1c.bmp", false},       {1126, M, "def6c.bmp", false},
      {1500, M, "forest0.bmp", false},     {1503, M, "forest3.bmp", false},
      {1506, M, "forest6.bmp", false},     {1521, M, "urban0.bmp", false},
      {1526, M, "urban5.bmp", false},      {1541, M, "sea1.bmp", false},
      {1546, M, "sea6.bmp", false},        {1561, M, "sea1b.bmp", false},
      {1566, M, "sea6b.bmp", false},       {1601, M, "swamp.bmp", false},
      {1611, M, "mountain.bmp", false},    {1621, M, "road1.bmp", false},
      {1626, M, "road6.bmp", false},       {2001, T, "event1.bmp", true},
      {2012, T, "event12.bmp", true},      {2100, T, "event100.bmp", true},
  };
  for (const Expect& e : expected) {
    SCOPED_TRACE(e.n);
    EXPECT_EQ(SpriteAt(e.n).folder, e.folder);
    EXPECT_EQ(SpriteAt(e.n).file, e.file);
    EXPECT_EQ(SpriteAt(e.n).optional, e.optional);
  }
  // Numbers between the ranges hold no picture.
  for (int n : {0, 2, 3, 5, 20, 36, 200, 216, 217, 218, 361, 400, 701, 800, 881, 890, 894, 1000, 1002,
                1003, 1005, 1020, 1036, 1100, 1107, 1110, 1117, 1120, 1127, 1499, 1507, 1520, 1527,
                1540, 1547, 1560, 1567, 1600, 1602, 1610, 1612, 1620, 1627, 1800, 2101, -1}) {
    SCOPED_TRACE(n);
    EXPECT_EQ(SpriteAt(n).folder, SpriteFolder::None);
    EXPECT_EQ(SpriteAt(n).file, "");
  }
  // Portrait numbers exist; their files come from the scan.
  EXPECT_EQ(SpriteAt(1801).folder, SpriteFolder::Officer);
  EXPECT_EQ(SpriteAt(2000).folder, SpriteFolder::Officer);
  EXPECT_TRUE(SpriteAt(2000).optional);
}

TEST_F(SpriteTableTest, FixedFilesCountAndMasks) {
  // 2 base hexes, 15 regime hexes, 8 families of 17, 5 markers, 3 arrows,
  // hidden and shadow, 4 speed, 10 supply, 6 arrows, 30 badges, 3 joining
  // marks, 2 + 15 dark hexes, 18 entrenchments, 7 forest, 6 urban, 6 + 6
  // river and coast, swamp and mountain, 6 roads: 284.
  int fixed = 0;
  for (int n = 0; n <= kSpriteCap; ++n) {
    if (SpriteAt(n).folder != SpriteFolder::None && !SpriteAt(n).optional) ++fixed;
  }
  EXPECT_EQ(fixed, 284);
  // Map pictures see through white; panel and dialog pictures keep it.
  EXPECT_TRUE(SpriteAt(1).masked);
  EXPECT_TRUE(SpriteAt(804).masked);
  EXPECT_TRUE(SpriteAt(855).masked);
  EXPECT_TRUE(SpriteAt(401).masked);
  EXPECT_TRUE(SpriteAt(1621).masked);
  EXPECT_FALSE(SpriteAt(501).masked);
  EXPECT_FALSE(SpriteAt(700).masked);
  EXPECT_FALSE(SpriteAt(1801).masked);
  EXPECT_FALSE(SpriteAt(2001).masked);
}

TEST_F(SpriteTableTest, SoundTable) {
  const char* expected[kSoundCap + 1] = {};
  expected[1] = "click.wav";
  expected[2] = "intro.wav";
  expected[11] = "mov_inf.wav";
  expected[12] = "mov_arm.wav";
  expected[13] = "att_fighter.wav";
  expected[14] = "att_bomb.wav";
  expected[15] = "mov_ship.wav";
  expected[21] = "att_inf.wav";
  expected[22] = "att_art.wav";
  expected[23] = "att_fighter.wav";
  expected[24] = "att_bomb.wav";
  expected[25] = "att_ship.wav";
  expected[31] = "transfer.wav";
  expected[32] = "victory.wav";
  int named = 0;
  for (int n = 0; n <= kSoundCap + 1; ++n) {
    SCOPED_TRACE(n);
    const std::string want = (n >= 1 && n <= kSoundCap && expected[n]) ? expected[n] : "";
    EXPECT_EQ(SoundFileName(n), want);
    if (!want.empty()) ++named;
  }
  EXPECT_EQ(named, 14);

  Game.GraphicsDirty = 0;
  LoadSprites();
  EXPECT_EQ(SoundFile(1), Full("default/sound/click.wav"));
  EXPECT_EQ(SoundFile(23), Full("default/sound/att_fighter.wav"));
  EXPECT_EQ(SoundFile(3), "");
  // A sound folder of the scenario's own, named in another case on disk.
  Touch("Mysounds/Click.WAV");
  Game.DirSound = "\\mysounds";
  Game.GraphicsDirty = 1;
  LoadSprites();
  EXPECT_EQ(SoundFile(1), Full("Mysounds/Click.WAV"));
}

TEST_F(SpriteTableTest, LandscapeFolderRule) {
  EXPECT_EQ(LandscapeFolderOf("\\default\\map"), "\\default\\landscape");
  EXPECT_EQ(LandscapeFolderOf("\\custom\\map"), "\\custom\\landscape");
  // The rule cuts four characters, whatever they are.
  EXPECT_EQ(LandscapeFolderOf("\\art\\tiles"), "\\art\\t\\landscape");
  EXPECT_EQ(LandscapeFolderOf("map"), "\\landscape");

  Touch("custom/landscape/3.bmp");
  Touch("default/landscape/4.bmp");
  Game.DirMap = "\\custom\\map";
  Game.GraphicsDirty = 1;
  LoadSprites();
  EXPECT_EQ(SpriteFolderPath(SpriteFolder::Landscape), "\\custom\\landscape");
  EXPECT_TRUE(SpritePresent(813));
  EXPECT_EQ(SpriteAt(813).path, Full("custom/landscape/3.bmp"));
  EXPECT_FALSE(SpritePresent(814));

  // Back on the defaults the landscape folder is "\default\landscape".
  LoadSprites();
  EXPECT_EQ(Game.DirMap, "\\default\\map");
  EXPECT_FALSE(SpritePresent(813));
  EXPECT_TRUE(SpritePresent(814));
  EXPECT_EQ(SpriteAt(814).path, Full("default/landscape/4.bmp"));
}

TEST_F(SpriteTableTest, CleanFlagPutsEveryFolderBackToItsDefault) {
  Game.DirMap = "\\a\\map";
  Game.DirColorCode = "\\a\\cc";
  Game.DirSound = "\\a\\snd";
  Game.DirType = "\\a\\typ";
  Game.DirOfficer = "\\a\\off";
  Game.GraphicsDirty = 0;
  const long before = SpriteLoadCount();
  LoadSprites();
  EXPECT_EQ(SpriteLoadCount(), before + 1);
  EXPECT_EQ(Game.DirMap, "\\default\\map");
  EXPECT_EQ(Game.DirColorCode, "\\default\\colorcode");
  EXPECT_EQ(Game.DirSound, "\\default\\sound");
  EXPECT_EQ(Game.DirType, "\\default\\type");
  EXPECT_EQ(Game.DirOfficer, "\\default\\officer");
  EXPECT_EQ(Game.GraphicsDirty, 0);
  EXPECT_EQ(Game.BookVarCount, 200);
}

TEST_F(SpriteTableTest, FoldersNamedInAFileWithACleanFlagAreOverwrittenOnLoad) {
  test::world::NewMap(10, 10);
  Game.DirMap = "\\custom\\map";
  Game.DirType = "\\custom\\type";
  Game.GraphicsDirty = 0;
  const std::string clean = TempPath("clean.mf1");
  ASSERT_TRUE(WriteFile(clean));
  Game.GraphicsDirty = 1;
  const std::string dirty = TempPath("dirty.mf1");
  ASSERT_TRUE(WriteFile(dirty));

  ASSERT_TRUE(LoadGameFile(clean));
  EXPECT_EQ(Game.DirMap, "\\default\\map");
  EXPECT_EQ(Game.DirType, "\\default\\type");
  EXPECT_EQ(Game.GraphicsDirty, 0);

  // A file whose folders were changed keeps them for this load, and its flag
  // is cleared once they are read.
  ASSERT_TRUE(LoadGameFile(dirty));
  EXPECT_EQ(Game.DirMap, "\\custom\\map");
  EXPECT_EQ(Game.DirType, "\\custom\\type");
  EXPECT_EQ(Game.GraphicsDirty, 0);
  EXPECT_EQ(SpriteFolderPath(SpriteFolder::Type), "\\custom\\type");
}

TEST_F(SpriteTableTest, FolderChangedInTheEditorIsUsedByTheNextLoad) {
  TouchAllFixed();
  Touch("mine/map/hex3b.bmp");
  Touch("default/type/7.bmp");
  Touch("mine/type/9.bmp");
  Game.GraphicsDirty = 0;
  ASSERT_TRUE(LoadSprites().ok);
  EXPECT_EQ(SpriteAt(1).path, Full("default/map/hex3b.bmp"));
  EXPECT_TRUE(SpritePresent(507));
  EXPECT_FALSE(SpritePresent(509));

  // The editor names new folders and marks them.
  Game.DirMap = "\\mine\\map";
  Game.DirType = "\\mine\\type";
  Game.GraphicsDirty = 1;
  const SpriteLoadResult& r = LoadSprites();
  EXPECT_EQ(SpriteAt(1).path, Full("mine/map/hex3b.bmp"));
  EXPECT_EQ(SpritePath(1), Full("mine/map/hex3b.bmp"));
  EXPECT_FALSE(SpritePresent(507));
  EXPECT_TRUE(SpritePresent(509));
  EXPECT_EQ(SpriteAt(509).path, Full("mine/type/9.bmp"));
  // The new map folder holds only the base hex: the next fixed file missing
  // there is the sea hex.
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.sprite, 4);
  EXPECT_EQ(r.file, "sea0.bmp");
  EXPECT_EQ(r.folder, "\\mine\\map");
  EXPECT_EQ(Game.GraphicsDirty, 0);
}

TEST_F(SpriteTableTest, PortraitsAreNumberedWithoutGaps) {
  for (const char* f : {"a1", "a2", "a3", "b1", "b5", "c2", "f7"}) Touch(std::string("default/officer/") + f + ".bmp");
  LoadSprites();
  const char* files[] = {"a1.bmp", "a2.bmp", "a3.bmp", "b1.bmp", "b5.bmp", "c2.bmp", "f7.bmp"};
  const int sets[] = {1, 1, 1, 2, 2, 3, 6};
  for (int i = 0; i < 7; ++i) {
    SCOPED_TRACE(i);
    EXPECT_TRUE(SpritePresent(1801 + i));
    EXPECT_EQ(SpriteAt(1801 + i).file, files[i]);
    EXPECT_EQ(OfficerPicSet[1 + i], sets[i]);
  }
  EXPECT_FALSE(SpritePresent(1808));
  EXPECT_EQ(OfficerPicSet[8], 0);
  EXPECT_EQ(LastSpriteLoad().portraits, 7);

  // Removing a2 moves every portrait after it down by one number.
  Remove("default/officer/a2.bmp");
  LoadSprites();
  EXPECT_EQ(SpriteAt(1802).file, "a3.bmp");
  EXPECT_EQ(SpriteAt(1803).file, "b1.bmp");
  EXPECT_EQ(SpriteAt(1804).file, "b5.bmp");
  EXPECT_EQ(SpriteAt(1805).file, "c2.bmp");
  EXPECT_EQ(SpriteAt(1806).file, "f7.bmp");
  EXPECT_EQ(SpriteAt(1806).path, Full("default/officer/f7.bmp"));
  EXPECT_EQ(OfficerPicSet[2], 1);
  EXPECT_EQ(OfficerPicSet[3], 2);
  EXPECT_EQ(OfficerPicSet[5], 3);
  EXPECT_EQ(OfficerPicSet[6], 6);
  EXPECT_FALSE(SpritePresent(1807));
  EXPECT_EQ(SpriteAt(1807).file, "");
  EXPECT_EQ(OfficerPicSet[7], 0);
}

TEST_F(SpriteTableTest, PortraitNumbersStopBeforeTheEventPictures) {
  // 150 of set a and 60 of set b: 210 files, but only 200 numbers.
  for (int i = 1; i <= 150; ++i) Touch("default/officer/a" + std::to_string(i) + ".bmp");
  for (int i = 1; i <= 60; ++i) Touch("default/officer/b" + std::to_string(i) + ".bmp");
  Touch("default/type/event1.bmp");
  LoadSprites();
  EXPECT_EQ(LastSpriteLoad().portraits, 200);
  EXPECT_EQ(SpriteAt(1950).file, "a150.bmp");
  EXPECT_EQ(SpriteAt(1951).file, "b1.bmp");
  EXPECT_EQ(SpriteAt(2000).file, "b50.bmp");
  EXPECT_EQ(OfficerPicSet[150], 1);
  EXPECT_EQ(OfficerPicSet[151], 2);
  EXPECT_EQ(OfficerPicSet[200], 2);
  EXPECT_EQ(SpriteAt(2001).file, "event1.bmp");
  EXPECT_TRUE(SpritePresent(2001));
}

TEST_F(SpriteTableTest, OptionalRangesNeverFail) {
  TouchAllFixed();
  const SpriteLoadResult& r = LoadSprites();
  EXPECT_TRUE(r.ok);
  EXPECT_EQ(r.missing, 0);
  EXPECT_EQ(SpriteLoadMessage(r), "");
  for (int n : {401, 500, 501, 700, 811, 830, 1801, 2001, 2100}) {
    SCOPED_TRACE(n);
    EXPECT_FALSE(SpritePresent(n));
    EXPECT_EQ(SpriteAt(n).path, "");
  }
  EXPECT_TRUE(SpritePresent(1));
  EXPECT_TRUE(SpritePresent(880));
  EXPECT_EQ(SpriteAt(880).path, Full("default/colorcode/colorcode30b.bmp"));
  // Some optional files present, the rest still absent: no failure either.
  Touch("default/type/extra3.bmp");
  Touch("default/type/30.bmp");
  Touch("default/type/event12.bmp");
  EXPECT_TRUE(LoadSprites().ok);
  EXPECT_TRUE(SpritePresent(403));
  EXPECT_TRUE(SpritePresent(530));
  EXPECT_TRUE(SpritePresent(2012));
  EXPECT_FALSE(SpritePresent(404));
  EXPECT_TRUE(platform.Messages().empty());
}

TEST_F(SpriteTableTest, MissingFixedFileIsReportedWithNameAndFolder) {
  TouchAllFixed();
  Remove("default/map/unit3c7b.bmp");
  const SpriteLoadResult& r = LoadSprites();
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.sprite, 247);
  EXPECT_EQ(r.file, "unit3c7b.bmp");
  EXPECT_EQ(r.folder, "\\default\\map");
  EXPECT_EQ(r.folderPath, Full("default/map"));
  EXPECT_EQ(r.missing, 1);
  EXPECT_EQ(SpriteLoadMessage(r), "The picture file \"unit3c7b.bmp\" is missing from the folder \"\\default\\map\" (" +
                                      Full("default/map") + "). Marrowfield cannot draw the map without it.");
  // Everything else was still found; core shows no message itself.
  EXPECT_TRUE(SpritePresent(246));
  EXPECT_TRUE(SpritePresent(1626));
  EXPECT_FALSE(SpritePresent(247));
  EXPECT_TRUE(platform.Messages().empty());

  // The first missing file in numbered order is named, all are counted.
  Remove("default/colorcode/colorcode5b.bmp");
  Remove("default/map/hex3b.bmp");
  LoadSprites();
  EXPECT_EQ(LastSpriteLoad().sprite, 1);
  EXPECT_EQ(LastSpriteLoad().file, "hex3b.bmp");
  EXPECT_EQ(LastSpriteLoad().missing, 3);

  Touch("default/map/hex3b.bmp");
  Touch("default/map/unit3c7b.bmp");
  LoadSprites();
  EXPECT_EQ(LastSpriteLoad().sprite, 855);
  EXPECT_EQ(LastSpriteLoad().file, "colorcode5b.bmp");
  EXPECT_EQ(LastSpriteLoad().folder, "\\default\\colorcode");
}

TEST_F(SpriteTableTest, NamesInAnotherCaseAreFoundButDarkFormsStayApart) {
  TouchAllFixed();
  Remove("default/map/hex3b.bmp");
  Remove("default/map/hex3bB.bmp");
  Touch("default/map/HEX3B.BMP");
  const SpriteLoadResult& r = LoadSprites();
  EXPECT_EQ(SpriteAt(1).path, Full("default/map/HEX3B.BMP"));
  // "hex3bB.bmp" is another picture, not "hex3b.bmp" in another case.
  EXPECT_FALSE(SpritePresent(1001));
  EXPECT_EQ(r.file, "hex3bB.bmp");
}

// ---- The default art drawn by the build -----------------------------------

// The folder that holds default/: the test programs are built into the same
// bin folder as the game's programs, so it is the folder of this program,
// unless MF_PROGRAM_DIR names another.
std::string BuiltProgramDir() {
  if (const char* env = std::getenv("MF_PROGRAM_DIR"); env && *env) return env;
  std::error_code ec;
  return fs::read_symlink("/proc/self/exe", ec).parent_path().string();
}

struct Bmp {
  bool ok = false;
  int width = 0, height = 0, bits = 0;
  std::vector<std::uint8_t> data;
  // Colour at (x, y), y counted from the top, as 0xRRGGBB.
  std::uint32_t At(int x, int y) const {
    const int stride = (width * 3 + 3) / 4 * 4;
    const std::size_t off = static_cast<std::size_t>(height - 1 - y) * stride + x * 3;
    return (std::uint32_t{data[off + 2]} << 16) | (std::uint32_t{data[off + 1]} << 8) | data[off];
  }
};

std::uint32_t Le(const std::vector<std::uint8_t>& b, std::size_t at, int bytes) {
  std::uint32_t v = 0;
  for (int i = bytes - 1; i >= 0; --i) v = (v << 8) | b[at + i];
  return v;
}

Bmp ReadBmp(const std::string& path) {
  Bmp bmp;
  std::ifstream in(path, std::ios::binary);
  std::vector<std::uint8_t> b((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (b.size() < 54 || b[0] != 'B' || b[1] != 'M') return bmp;
  const std::uint32_t offset = Le(b, 10, 4);
  bmp.width = static_cast<int>(Le(b, 18, 4));
  bmp.height = static_cast<int>(Le(b, 22, 4));
  bmp.bits = static_cast<int>(Le(b, 28, 2));
  const std::size_t stride = (bmp.width * 3 + 3) / 4 * 4;
  if (bmp.bits != 24 || b.size() < offset + stride * bmp.height) return bmp;
  bmp.data.assign(b.begin() + offset, b.end());
  bmp.ok = true;
  return bmp;
}

class DefaultArtTest : public CoreTest {};

TEST_F(DefaultArtTest, EveryFixedFileAndTheDefaultContentPicturesExist) {
  const std::string dir = BuiltProgramDir();
  ASSERT_TRUE(fs::is_directory(fs::path(dir) / "default" / "map")) << dir;
  SetProgramDir(dir);
  Game.GraphicsDirty = 0;
  const SpriteLoadResult& r = LoadSprites();
  EXPECT_TRUE(r.ok) << SpriteLoadMessage(r);
  EXPECT_EQ(r.missing, 0);
  for (int n = 401; n <= 410; ++n) EXPECT_TRUE(SpritePresent(n)) << n;
  for (int n = 501; n <= 530; ++n) EXPECT_TRUE(SpritePresent(n)) << n;
  for (int n = 2001; n <= 2012; ++n) EXPECT_TRUE(SpritePresent(n)) << n;
  // Forty portraits for each of the peoples' sets a..e.
  EXPECT_EQ(r.portraits, 200);
  EXPECT_EQ(SpriteAt(1801).file, "a1.bmp");
  EXPECT_EQ(SpriteAt(1840).file, "a40.bmp");
  EXPECT_EQ(SpriteAt(1841).file, "b1.bmp");
  EXPECT_EQ(SpriteAt(2000).file, "e40.bmp");
  for (int p = 1; p <= 200; ++p) EXPECT_EQ(OfficerPicSet[p], (p - 1) / 40 + 1) << p;
  for (int n = 1; n <= kSoundCap; ++n) {
    if (SoundFileName(n).empty()) continue;
    std::ifstream in(SoundFile(n), std::ios::binary);
    char head[12] = {};
    in.read(head, 12);
    EXPECT_EQ(std::string(head, 4), "RIFF") << SoundFile(n);
    EXPECT_EQ(std::string(head + 8, 4), "WAVE") << SoundFile(n);
  }
}

TEST_F(DefaultArtTest, MapPicturesAreHexSizedBitmapsThatTile) {
  const std::string dir = BuiltProgramDir();
  ASSERT_TRUE(fs::is_directory(fs::path(dir) / "default" / "map")) << dir;
  SetProgramDir(dir);
  Game.GraphicsDirty = 0;
  LoadSprites();
  for (int n = 1; n < 1801; ++n) {
    const SpriteSlot& s = SpriteAt(n);
    if (!s.present || !s.masked) continue;
    SCOPED_TRACE(s.path);
    const Bmp bmp = ReadBmp(s.path);
    ASSERT_TRUE(bmp.ok);
    EXPECT_EQ(bmp.width, 43);
    EXPECT_EQ(bmp.height, 41);
  }
  // The base hexes fill the outline and leave white outside it, so that
  // neighbours show through the corners: centre (21, 20), corners (0, 10),
  // (0, 30), (21, 40), (42, 30), (42, 10), (21, 0).
  const std::uint32_t white = 0xFFFFFF;
  for (int n : {1, 4, 21, 35, 1001, 1004, 1021, 1035, 804}) {
    SCOPED_TRACE(n);
    const Bmp bmp = ReadBmp(SpriteAt(n).path);
    ASSERT_TRUE(bmp.ok);
    EXPECT_NE(bmp.At(21, 20), white);
    EXPECT_NE(bmp.At(21, 1), white);
    EXPECT_NE(bmp.At(21, 39), white);
    EXPECT_NE(bmp.At(1, 20), white);
    EXPECT_NE(bmp.At(41, 20), white);
    EXPECT_EQ(bmp.At(0, 0), white);
    EXPECT_EQ(bmp.At(42, 0), white);
    EXPECT_EQ(bmp.At(0, 40), white);
    EXPECT_EQ(bmp.At(42, 40), white);
    EXPECT_EQ(bmp.At(8, 2), white);
    EXPECT_EQ(bmp.At(34, 38), white);
  }
  // The dark form of a hex is darker at its centre than the hex itself.
  auto sum = [](std::uint32_t c) { return (c >> 16) + ((c >> 8) & 255) + (c & 255); };
  for (int n : {1, 4, 21, 28, 35}) {
    SCOPED_TRACE(n);
    EXPECT_LT(sum(ReadBmp(SpriteAt(n + 1000).path).At(21, 20)), sum(ReadBmp(SpriteAt(n).path).At(21, 20)));
  }
  // Fifteen regime colours that differ from each other.
  std::vector<std::uint32_t> seen;
  for (int c = 1; c <= 15; ++c) {
    const std::uint32_t centre = ReadBmp(SpriteAt(20 + c).path).At(21, 20);
    for (std::uint32_t other : seen) EXPECT_NE(centre, other) << c;
    seen.push_back(centre);
  }
}

}  // namespace
}  // namespace mf
