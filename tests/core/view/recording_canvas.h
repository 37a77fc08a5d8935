// A canvas that writes down every call, one line each, so that a test can
// check the layers of a hex in the order they were painted:
//   "clear"
//   "blit 1 42 10"                  sprite, left, top
//   "line 42 20 42 40 5592405"      x1 y1 x2 y2 colour
//   "text 75 47 24 arial 9 65280"   text (quoted when it has blanks) x y font size colour
#pragma once

#include <string>
#include <vector>

#include "view/canvas.h"

namespace mf::test {

class RecordingCanvas final : public Canvas {
 public:
  void Clear() override { ops_.push_back("clear"); }
  void Blit(int sprite, int left, int top) override {
    ops_.push_back("blit " + std::to_string(sprite) + " " + std::to_string(left) + " " + std::to_string(top));
  }
  void Line(int x1, int y1, int x2, int y2, Colour colour) override {
    ops_.push_back("line " + std::to_string(x1) + " " + std::to_string(y1) + " " + std::to_string(x2) + " " +
                   std::to_string(y2) + " " + std::to_string(colour));
  }
  void Text(const std::string& text, int x, int y, const std::string& font, int size, Colour colour) override {
    const std::string shown = text.find(' ') != std::string::npos ? "\"" + text + "\"" : text;
    ops_.push_back("text " + shown + " " + std::to_string(x) + " " + std::to_string(y) + " " + font + " " +
                   std::to_string(size) + " " + std::to_string(colour));
  }

  const std::vector<std::string>& Ops() const { return ops_; }
  // Only the lines of one kind ("blit", "line", "text").
  std::vector<std::string> Only(const std::string& kind) const {
    std::vector<std::string> out;
    for (const auto& op : ops_) {
      if (op.rfind(kind + " ", 0) == 0 || op == kind) out.push_back(op);
    }
    return out;
  }
  int Count(const std::string& kind) const { return static_cast<int>(Only(kind).size()); }
  void Reset() { ops_.clear(); }

 private:
  std::vector<std::string> ops_;
};

}  // namespace mf::test
