// assetgen: draws the default pictures and synthesises the default sounds of
// Marrowfield under the file names the sprite and sound tables look for.
//
//   assetgen --out DIR            writes DIR/{map,colorcode,type,officer,landscape,sound}
//   assetgen --preview FILE.bmp   a small map of mixed terrain and units, drawn
//                                 the way the game layers its hexes
//   assetgen --sheet FILE.bmp     every map picture side by side
//   assetgen --pictures FILE.bmp  type, event and portrait pictures side by side
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "art.h"
#include "preview.h"

namespace fs = std::filesystem;

namespace art {
namespace {

struct Item {
  int sprite;  // the sprite number, 0 for portraits (numbered when loaded)
  std::string folder;
  std::string file;
  bool masked;
  std::function<Canvas()> make;
};

std::string N(int n) { return std::to_string(n); }

// Every picture, in the numbered order of the sprite table.
std::vector<Item> Items() {
  std::vector<Item> v;
  auto map = [&](int n, const std::string& file, std::function<Canvas()> f) {
    v.push_back({n, "map", file, true, std::move(f)});
  };
  map(1, "hex3b.bmp", [] { return PlainHex(false); });
  map(4, "sea0.bmp", [] { return SeaHex(false); });
  for (int c = 1; c <= 15; ++c) map(20 + c, "hex3c" + N(c) + "b.bmp", [c] { return RegimeHex(c, false); });
  const char* stems[9] = {"", "unit1c", "unit2c", "unit3c", "unit4c", "unit5c", "unit6c", "sea1c", "air1c"};
  for (int f = 1; f <= 8; ++f) {
    const int base = 180 + 20 * f;
    for (int c = 1; c <= 15; ++c) map(base + c, stems[f] + N(c) + "b.bmp", [f, c] { return Counter(f, c); });
    map(base + 19, std::string(stems[f]) + "r2b.bmp", [f] { return Counter(f, 19); });
    map(base + 20, std::string(stems[f]) + "rb.bmp", [f] { return Counter(f, 20); });
  }
  for (int n = 1; n <= 10; ++n) v.push_back({400 + n, "type", "extra" + N(n) + ".bmp", true, [n] { return Extra(n); }});
  for (int n = 1; n <= 30; ++n) v.push_back({500 + n, "type", N(n) + ".bmp", false, [n] { return TypePicture(n); }});
  map(801, "hexlightb.bmp", [] { return Highlight(); });
  map(802, "hex_noprod2b.bmp", [] { return NoProduction(2); });
  map(803, "hex_noprodb.bmp", [] { return NoProduction(1); });
  map(804, "white.bmp", [] { return UnexploredHex(); });
  map(805, "hex_damb.bmp", [] { return Damage(); });
  map(806, "arrow7.bmp", [] { return NewsMark(7); });
  map(807, "arrow8.bmp", [] { return NewsMark(8); });
  map(808, "hidden.bmp", [] { return Hidden(); });
  map(809, "shadow.bmp", [] { return ShadowMark(); });
  map(810, "arrow9.bmp", [] { return NewsMark(9); });
  for (int n = 1; n <= 6; ++n) {
    v.push_back({810 + n, "landscape", N(n) + ".bmp", true, [n] { return UrbanAlt(n - 1); }});
  }
  const char* speed[5] = {"", "speed_art.bmp", "speed_foot.bmp", "speed_tank.bmp", "speed_truck.bmp"};
  for (int k = 1; k <= 4; ++k) map(830 + k, speed[k], [k] { return SpeedIcon(k); });
  const char* supply[11] = {"",           "supply_1.bmp",    "supply_2.bmp",    "supply_3.bmp",
                            "supply_4.bmp", "supply_5.bmp",  "supply_6.bmp",    "supply_amph.bmp",
                            "supply_land.bmp", "supply_no.bmp", "supply_sea.bmp"};
  for (int k = 1; k <= 10; ++k) map(834 + k, supply[k], [k] { return SupplyIcon(k); });
  for (int m = 1; m <= 6; ++m) map(844 + m, "arrow" + N(m) + ".bmp", [m] { return NewsMark(m); });
  for (int n = 1; n <= 30; ++n) {
    v.push_back({850 + n, "colorcode", "colorcode" + N(n) + "b.bmp", true, [n] { return Badge(n); }});
  }
  map(891, "clicktojoin.bmp", [] { return JoinMark(1); });
  map(892, "joined.bmp", [] { return JoinMark(2); });
  map(893, "overlay1.bmp", [] { return JoinMark(3); });
  map(1001, "hex3bB.bmp", [] { return PlainHex(true); });
  map(1004, "sea0b.bmp", [] { return SeaHex(true); });
  for (int c = 1; c <= 15; ++c) map(1020 + c, "hex3c" + N(c) + "bB.bmp", [c] { return RegimeHex(c, true); });
  const char* levels[4] = {"", "", "b", "c"};
  for (int l = 1; l <= 3; ++l) {
    for (int s = 1; s <= 6; ++s) {
      map(1100 + 10 * (l - 1) + s, "def" + N(s) + levels[l] + ".bmp", [l, s] { return Entrenchment(l, s); });
    }
  }
  for (int s = 0; s <= 6; ++s) map(1500 + s, "forest" + N(s) + ".bmp", [s] { return Forest(s); });
  for (int u = 0; u <= 5; ++u) map(1521 + u, "urban" + N(u) + ".bmp", [u] { return Urban(u); });
  for (int s = 1; s <= 6; ++s) map(1540 + s, "sea" + N(s) + ".bmp", [s] { return Water(s, false); });
  for (int s = 1; s <= 6; ++s) map(1560 + s, "sea" + N(s) + "b.bmp", [s] { return Water(s, true); });
  map(1601, "swamp.bmp", [] { return Swamp(); });
  map(1611, "mountain.bmp", [] { return Mountain(); });
  for (int s = 1; s <= 6; ++s) map(1620 + s, "road" + N(s) + ".bmp", [s] { return Road(s); });
  const char letters[6] = "abcde";
  for (int set = 1; set <= 5; ++set) {
    for (int n = 1; n <= 40; ++n) {
      v.push_back({0, "officer", std::string(1, letters[set - 1]) + N(n) + ".bmp", false,
                   [set, n] { return Portrait(set, n); }});
    }
  }
  for (int n = 1; n <= 12; ++n) {
    v.push_back({2000 + n, "type", "event" + N(n) + ".bmp", false, [n] { return EventPicture(n); }});
  }
  return v;
}

int WriteAll(const std::string& out) {
  std::error_code ec;
  for (const char* sub : {"map", "colorcode", "type", "officer", "landscape", "sound"}) {
    fs::create_directories(fs::path(out) / sub, ec);
    if (ec) {
      std::fprintf(stderr, "assetgen: cannot make %s/%s: %s\n", out.c_str(), sub, ec.message().c_str());
      return 1;
    }
  }
  int count = 0;
  for (const Item& it : Items()) {
    // Each picture at its own size and, beside it as NAME@2x.bmp, drawn
    // again at twice the size for the map's 2x zoom and dense screens.
    const fs::path path = fs::path(out) / it.folder / it.file;
    const fs::path path2x = fs::path(out) / it.folder / (path.stem().string() + "@2x" + path.extension().string());
    for (const auto& [scale, file] : {std::pair<int, fs::path>{1, path}, std::pair<int, fs::path>{2, path2x}}) {
      SetDrawScale(scale);
      const bool written = it.make().WriteBmp(file.string(), it.masked);
      SetDrawScale(1);
      if (!written) {
        std::fprintf(stderr, "assetgen: cannot write %s\n", file.string().c_str());
        return 1;
      }
    }
    ++count;
  }
  if (!WriteSounds((fs::path(out) / "sound").string())) {
    std::fprintf(stderr, "assetgen: cannot write the sounds into %s/sound\n", out.c_str());
    return 1;
  }
  std::printf("assetgen: %d pictures at 1x and 2x and the sounds written to %s\n", count, out.c_str());
  return 0;
}

// The sprites by number, as the map sees them: half-covered pixels either
// fully there or see-through, exactly as the written files will be.
std::map<int, Canvas> SpritesByNumber() {
  std::map<int, Canvas> sprites;
  for (const Item& it : Items()) {
    if (it.sprite == 0 || !it.masked) continue;
    sprites.emplace(it.sprite, Hardened(it.make()));
  }
  return sprites;
}

int Sheet(const std::string& file) {
  const std::map<int, Canvas> sprites = SpritesByNumber();
  const int cols = 20;
  const int rows = (static_cast<int>(sprites.size()) + cols - 1) / cols;
  Canvas sheet(cols * 47 + 4, rows * 47 + 4);
  sheet.Fill(Rect(-1, -1, sheet.Width() + 1, sheet.Height() + 1), C(176, 180, 186));
  int i = 0;
  for (const auto& [n, c] : sprites) {
    const int x = 4 + (i % cols) * 47, y = 4 + (i / cols) * 47;
    sheet.Fill(Rect(x - 0.5f, y - 0.5f, x + 42.5f, y + 40.5f), C(200, 204, 210));
    sheet.Draw(c, x, y);
    DrawNumber(sheet, x, y + 41, n, C(20, 20, 20));
    ++i;
  }
  return sheet.WriteBmp(file, false) ? 0 : 1;
}

int Pictures(const std::string& file) {
  std::vector<Item> items;
  for (Item& it : Items()) {
    if (!it.masked) items.push_back(std::move(it));
  }
  // Types in rows of ten, then events in rows of six, then portraits in rows of twenty.
  const int w = 20 * (kPortraitW + 4) + 4;
  const int typeRows = 3, eventRows = 2, portraitRows = 10;
  const int h = 4 + typeRows * (kTypeH + 4) + eventRows * (kEventH + 4) + portraitRows * (kPortraitH + 4);
  Canvas sheet(w, h);
  sheet.Fill(Rect(-1, -1, w + 1, h + 1), C(70, 72, 76));
  int t = 0, e = 0, p = 0;
  for (const Item& it : items) {
    const Canvas c = it.make();
    if (it.folder == "officer") {
      sheet.Draw(c, 4 + (p % 20) * (kPortraitW + 4),
                 4 + typeRows * (kTypeH + 4) + eventRows * (kEventH + 4) + (p / 20) * (kPortraitH + 4));
      ++p;
    } else if (it.sprite > 2000) {
      sheet.Draw(c, 4 + (e % 6) * (kEventW + 4), 4 + typeRows * (kTypeH + 4) + (e / 6) * (kEventH + 4));
      ++e;
    } else {
      sheet.Draw(c, 4 + (t % 10) * (kTypeW + 4), 4 + (t / 10) * (kTypeH + 4));
      ++t;
    }
  }
  return sheet.WriteBmp(file, false) ? 0 : 1;
}

}  // namespace
}  // namespace art

int main(int argc, char** argv) {
  std::string out, preview, sheet, pictures;
  for (int i = 1; i + 1 < argc; i += 2) {
    if (!std::strcmp(argv[i], "--out")) out = argv[i + 1];
    else if (!std::strcmp(argv[i], "--preview")) preview = argv[i + 1];
    else if (!std::strcmp(argv[i], "--sheet")) sheet = argv[i + 1];
    else if (!std::strcmp(argv[i], "--pictures")) pictures = argv[i + 1];
  }
  if (out.empty() && preview.empty() && sheet.empty() && pictures.empty()) {
    std::fprintf(stderr, "usage: assetgen --out DIR | --preview FILE.bmp | --sheet FILE.bmp | --pictures FILE.bmp\n");
    return 2;
  }
  int rc = 0;
  if (!out.empty()) rc |= art::WriteAll(out);
  if (!preview.empty()) rc |= art::Preview(preview, art::SpritesByNumber());
  if (!sheet.empty()) rc |= art::Sheet(sheet);
  if (!pictures.empty()) rc |= art::Pictures(pictures);
  return rc;
}
