#include "view/canvas.h"

#include <cctype>

namespace mf {

namespace {

// Stands in while no window is there: the headless program and tests that
// do not look at pictures still run every drawing routine.
class NullCanvas final : public Canvas {
 public:
  void Clear() override {}
  void Blit(int, int, int) override {}
  void Line(int, int, int, int, Colour) override {}
  void Text(const std::string&, int, int, const std::string&, int, Colour) override {}
};

NullCanvas gNullCanvas;
Canvas* gMapCanvas = &gNullCanvas;
Canvas* gPanelHexCanvas = &gNullCanvas;

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char l = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (l >= 'a' && l <= 'f') return l - 'a' + 10;
  return -1;
}

}  // namespace

Canvas& MapCanvas() { return *gMapCanvas; }
Canvas& PanelHexCanvas() { return *gPanelHexCanvas; }
void InstallMapCanvas(Canvas* canvas) { gMapCanvas = canvas ? canvas : &gNullCanvas; }
void InstallPanelHexCanvas(Canvas* canvas) { gPanelHexCanvas = canvas ? canvas : &gNullCanvas; }

Colour ParseTextColour(const std::string& text) {
  std::size_t i = 0;
  while (i < text.size() && text[i] == ' ') ++i;
  const bool hex = i + 1 < text.size() && text[i] == '&' && (text[i + 1] == 'H' || text[i + 1] == 'h');
  if (hex) i += 2;
  const int base = hex ? 16 : 10;
  long value = 0;
  int digits = 0;
  for (; i < text.size() && digits < 8; ++i) {
    const int d = HexDigit(text[i]);
    if (d < 0 || d >= base) break;
    value = value * base + d;
    ++digits;
  }
  if (digits == 0) return kColourWhite;
  return value & 0xFFFFFF;
}

}  // namespace mf
