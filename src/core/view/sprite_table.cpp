#include "view/sprite_table.h"

#include <filesystem>
#include <map>
#include <set>
#include <system_error>

#include "model/capacity.h"
#include "model/game_state.h"
#include "platform/paths.h"
#include "platform/text_case.h"

namespace fs = std::filesystem;

namespace mf {
namespace {

const char* const kDefaultDirMap = "\\default\\map";
const char* const kDefaultDirColorCode = "\\default\\colorcode";
const char* const kDefaultDirSound = "\\default\\sound";
const char* const kDefaultDirType = "\\default\\type";
const char* const kDefaultDirOfficer = "\\default\\officer";

const std::string kEmpty;

struct Tables {
  SpriteSlot slot[kSpriteCap + 1];
  std::string soundName[kSoundCap + 1];
  std::string soundFile[kSoundCap + 1];
  SpriteLoadResult last;
  long loads = 0;
};

// Pictures shown in panels and dialogs (type pictures, portraits, event
// pictures) keep their white; everything else lands on the map, where white
// is the see-through colour so a hex drawn over its neighbours leaves them.
bool MaskedOnMap(int n) {
  if (n >= 501 && n <= 700) return false;
  if (n >= kPortraitFirst) return false;
  return true;
}

void Put(Tables& t, int n, SpriteFolder folder, const std::string& file, bool optional) {
  SpriteSlot& s = t.slot[n];
  s.folder = folder;
  s.file = file;
  s.optional = optional;
  s.masked = MaskedOnMap(n);
}

// A numbered run of files: first number, stem, from, to, suffix.
void PutRun(Tables& t, int first, SpriteFolder folder, const std::string& stem, int from, int to,
            const std::string& suffix, bool optional) {
  for (int i = from; i <= to; ++i) {
    Put(t, first + (i - from), folder, stem + std::to_string(i) + suffix, optional);
  }
}

// The counters of one family: 15 regime colours, then the two marks.
// Number 180 + 20 x family + colour; 19 in the colour place is the
// no-supply mark "r2", 20 the uncoloured counter "r".
void PutFamily(Tables& t, int family, const std::string& stem) {
  const int base = 180 + 20 * family;
  for (int c = 1; c <= 15; ++c) Put(t, base + c, SpriteFolder::Map, stem + std::to_string(c) + "b.bmp", false);
  Put(t, base + 19, SpriteFolder::Map, stem + "r2b.bmp", false);
  Put(t, base + 20, SpriteFolder::Map, stem + "rb.bmp", false);
}

void Build(Tables& t) {
  using F = SpriteFolder;
  const F M = F::Map;
  Put(t, 1, M, "hex3b.bmp", false);
  Put(t, 4, M, "sea0.bmp", false);
  PutRun(t, 21, M, "hex3c", 1, 15, "b.bmp", false);

  PutFamily(t, 1, "unit1c");
  PutFamily(t, 2, "unit2c");
  PutFamily(t, 3, "unit3c");
  PutFamily(t, 4, "unit4c");
  PutFamily(t, 5, "unit5c");
  PutFamily(t, 6, "unit6c");
  PutFamily(t, 7, "sea1c");
  PutFamily(t, 8, "air1c");

  PutRun(t, 401, F::Type, "extra", 1, 100, ".bmp", true);
  PutRun(t, 501, F::Type, "", 1, 200, ".bmp", true);

  Put(t, 801, M, "hexlightb.bmp", false);
  Put(t, 802, M, "hex_noprod2b.bmp", false);
  Put(t, 803, M, "hex_noprodb.bmp", false);
  Put(t, 804, M, "white.bmp", false);
  Put(t, 805, M, "hex_damb.bmp", false);
  Put(t, 806, M, "arrow7.bmp", false);
  Put(t, 807, M, "arrow8.bmp", false);
  Put(t, 808, M, "hidden.bmp", false);
  Put(t, 809, M, "shadow.bmp", false);
  Put(t, 810, M, "arrow9.bmp", false);
  PutRun(t, 811, F::Landscape, "", 1, 20, ".bmp", true);
  Put(t, 831, M, "speed_art.bmp", false);
  Put(t, 832, M, "speed_foot.bmp", false);
  Put(t, 833, M, "speed_tank.bmp", false);
  Put(t, 834, M, "speed_truck.bmp", false);
  PutRun(t, 835, M, "supply_", 1, 6, ".bmp", false);
  Put(t, 841, M, "supply_amph.bmp", false);
  Put(t, 842, M, "supply_land.bmp", false);
  Put(t, 843, M, "supply_no.bmp", false);
  Put(t, 844, M, "supply_sea.bmp", false);
  PutRun(t, 845, M, "arrow", 1, 6, ".bmp", false);
  PutRun(t, 851, F::ColorCode, "colorcode", 1, 30, "b.bmp", false);
  Put(t, 891, M, "clicktojoin.bmp", false);
  Put(t, 892, M, "joined.bmp", false);
  Put(t, 893, M, "overlay1.bmp", false);

  // Dark forms of the base hexes, for hexes within reach of an order.
  Put(t, 1001, M, "hex3bB.bmp", false);
  Put(t, 1004, M, "sea0b.bmp", false);
  PutRun(t, 1021, M, "hex3c", 1, 15, "bB.bmp", false);

  // Entrenchment by side, levels 1..3: 1100 + 10 x (level - 1) + side.
  PutRun(t, 1101, M, "def", 1, 6, ".bmp", false);
  PutRun(t, 1111, M, "def", 1, 6, "b.bmp", false);
  PutRun(t, 1121, M, "def", 1, 6, "c.bmp", false);

  PutRun(t, 1500, M, "forest", 0, 6, ".bmp", false);
  PutRun(t, 1521, M, "urban", 0, 5, ".bmp", false);
  PutRun(t, 1541, M, "sea", 1, 6, ".bmp", false);
  PutRun(t, 1561, M, "sea", 1, 6, "b.bmp", false);
  Put(t, 1601, M, "swamp.bmp", false);
  Put(t, 1611, M, "mountain.bmp", false);
  PutRun(t, 1621, M, "road", 1, 6, ".bmp", false);

  // Portraits: the numbers exist, the files are decided by the scan.
  for (int n = kPortraitFirst; n < kPortraitFirst + kPortraitCap; ++n) Put(t, n, F::Officer, "", true);
  PutRun(t, 2001, F::Type, "event", 1, 100, ".bmp", true);

  t.soundName[1] = "click.wav";
  t.soundName[2] = "intro.wav";
  t.soundName[11] = "mov_inf.wav";
  t.soundName[12] = "mov_arm.wav";
  t.soundName[13] = "att_fighter.wav";
  t.soundName[14] = "att_bomb.wav";
  t.soundName[15] = "mov_ship.wav";
  t.soundName[21] = "att_inf.wav";
  t.soundName[22] = "att_art.wav";
  t.soundName[23] = "att_fighter.wav";
  t.soundName[24] = "att_bomb.wav";
  t.soundName[25] = "att_ship.wav";
  t.soundName[31] = "transfer.wav";
  t.soundName[32] = "victory.wav";
}

Tables& T() {
  static Tables* tables = [] {
    auto* t = new Tables;
    Build(*t);
    return t;
  }();
  return *tables;
}

// The files of one folder, read once per load: exact names first, then the
// same name in another case, as user-made folders may have it.
class FolderIndex {
 public:
  explicit FolderIndex(const std::string& gamePath) : gamePath_(gamePath) {
    dir_ = ResolveGamePath(gamePath);
    std::error_code ec;
    for (fs::directory_iterator it(dir_, ec), end; !ec && it != end; it.increment(ec)) {
      std::error_code fec;
      if (!it->is_regular_file(fec)) continue;
      const std::string name = it->path().filename().string();
      exact_.insert(name);
      auto [pos, inserted] = folded_.emplace(Lower(name), name);
      // Directory order is arbitrary; the smallest name wins so every run agrees.
      if (!inserted && name < pos->second) pos->second = name;
    }
  }

  // The file-system path of a file in this folder, "" when it is absent.
  std::string Find(const std::string& file) const {
    if (exact_.count(file)) return (fs::path(dir_) / file).string();
    auto it = folded_.find(Lower(file));
    if (it != folded_.end()) return (fs::path(dir_) / it->second).string();
    return "";
  }

  // The path a file has here whether or not it exists.
  std::string PathOf(const std::string& file) const {
    const std::string found = Find(file);
    return found.empty() ? (fs::path(dir_) / file).string() : found;
  }

  const std::string& GamePath() const { return gamePath_; }
  const std::string& Dir() const { return dir_; }

 private:
  std::string gamePath_;
  std::string dir_;
  std::set<std::string> exact_;
  std::map<std::string, std::string> folded_;
};

std::string Join(const std::string& folder, const std::string& file) {
  if (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) return folder + file;
  return folder + "\\" + file;
}

}  // namespace

std::string LandscapeFolderOf(const std::string& dirMap) {
  const std::size_t keep = dirMap.size() >= 4 ? dirMap.size() - 4 : 0;
  return dirMap.substr(0, keep) + "\\landscape";
}

const SpriteSlot& SpriteAt(int n) {
  static const SpriteSlot none;
  if (n < 1 || n > kSpriteCap) return none;
  return T().slot[n];
}

bool SpritePresent(int n) { return SpriteAt(n).present; }

std::string SpriteFolderPath(SpriteFolder folder) {
  switch (folder) {
    case SpriteFolder::Map: return Game.DirMap;
    case SpriteFolder::ColorCode: return Game.DirColorCode;
    case SpriteFolder::Type: return Game.DirType;
    case SpriteFolder::Officer: return Game.DirOfficer;
    case SpriteFolder::Landscape: return LandscapeFolderOf(Game.DirMap);
    case SpriteFolder::None: break;
  }
  return "";
}

std::string SpritePath(int n) {
  const SpriteSlot& s = SpriteAt(n);
  if (s.folder == SpriteFolder::None || s.file.empty()) return "";
  return ResolveGamePath(Join(SpriteFolderPath(s.folder), s.file));
}

const std::string& SoundFileName(int n) {
  if (n < 1 || n > kSoundCap) return kEmpty;
  return T().soundName[n];
}

const std::string& SoundFile(int n) {
  if (n < 1 || n > kSoundCap) return kEmpty;
  return T().soundFile[n];
}

std::string SpriteLoadMessage(const SpriteLoadResult& result) {
  if (result.ok) return "";
  return "The picture file \"" + result.file + "\" is missing from the folder \"" + result.folder + "\" (" +
         result.folderPath + "). Marrowfield cannot draw the map without it.";
}

const SpriteLoadResult& LoadSprites() {
  Tables& t = T();
  // 1. Count the calls. A scenario that did not change its folders gets the
  // default ones, whatever folder names the file carried.
  ++t.loads;
  if (Game.GraphicsDirty == 0) {
    Game.DirMap = kDefaultDirMap;
    Game.DirColorCode = kDefaultDirColorCode;
    Game.DirSound = kDefaultDirSound;
    Game.DirType = kDefaultDirType;
    Game.DirOfficer = kDefaultDirOfficer;
  }
  // 2. The folders are read now; the next load starts from defaults again
  // unless the editor changes a folder before it.
  Game.GraphicsDirty = 0;

  const FolderIndex map(Game.DirMap);
  const FolderIndex colorCode(Game.DirColorCode);
  const FolderIndex type(Game.DirType);
  const FolderIndex officer(Game.DirOfficer);
  const FolderIndex landscape(LandscapeFolderOf(Game.DirMap));
  auto indexOf = [&](SpriteFolder f) -> const FolderIndex* {
    switch (f) {
      case SpriteFolder::Map: return &map;
      case SpriteFolder::ColorCode: return &colorCode;
      case SpriteFolder::Type: return &type;
      case SpriteFolder::Officer: return &officer;
      case SpriteFolder::Landscape: return &landscape;
      case SpriteFolder::None: break;
    }
    return nullptr;
  };

  SpriteLoadResult result;

  // 3. Every picture in numbered order. Optional files are looked for and an
  // absent one leaves its slot empty; a missing fixed file is recorded, and
  // the scan goes on so that a headless run still knows all the rest.
  for (int n = 1; n < kPortraitFirst; ++n) {
    SpriteSlot& s = t.slot[n];
    s.present = false;
    s.path.clear();
    const FolderIndex* index = indexOf(s.folder);
    if (!index) continue;
    s.path = index->Find(s.file);
    s.present = !s.path.empty();
    if (!s.present && !s.optional) {
      if (result.ok) {
        result.ok = false;
        result.sprite = n;
        result.file = s.file;
        result.folder = index->GamePath();
        result.folderPath = index->Dir();
      }
      ++result.missing;
    }
  }

  // Portraits: sets a..f, files 1..200 each; every file found takes the next
  // number from 1801, so removing one file moves all after it down by one.
  for (int p = 1; p <= kPortraitCap; ++p) OfficerPicSet[p] = 0;
  for (int n = kPortraitFirst; n < kPortraitFirst + kPortraitCap; ++n) {
    t.slot[n].file.clear();
    t.slot[n].path.clear();
    t.slot[n].present = false;
  }
  int next = kPortraitFirst;
  for (int set = 1; set <= kPortraitSets; ++set) {
    const std::string letter(1, static_cast<char>('a' + set - 1));
    for (int i = 1; i <= kPortraitFiles; ++i) {
      // The portrait numbers end where the event pictures begin.
      if (next >= kPortraitFirst + kPortraitCap) break;
      const std::string file = letter + std::to_string(i) + ".bmp";
      const std::string path = officer.Find(file);
      if (path.empty()) continue;
      SpriteSlot& s = t.slot[next];
      s.file = file;
      s.path = path;
      s.present = true;
      OfficerPicSet[next - kPortraitFirst + 1] = set;
      ++next;
    }
  }
  result.portraits = next - kPortraitFirst;

  for (int n = kPortraitFirst + kPortraitCap; n <= kSpriteCap; ++n) {
    SpriteSlot& s = t.slot[n];
    const FolderIndex* index = indexOf(s.folder);
    s.path = index ? index->Find(s.file) : "";
    s.present = !s.path.empty();
  }

  // 4. Sound paths. The type attribute and event labels are fixed words of
  // the program (model/labels.h) and need no filling here.
  const FolderIndex sound(Game.DirSound);
  for (int n = 1; n <= kSoundCap; ++n) {
    t.soundFile[n] = t.soundName[n].empty() ? "" : sound.PathOf(t.soundName[n]);
  }
  Game.BookVarCount = kBookVarCount;

  t.last = result;
  return t.last;
}

const SpriteLoadResult& LastSpriteLoad() { return T().last; }

long SpriteLoadCount() { return T().loads; }

}  // namespace mf
