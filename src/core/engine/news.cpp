#include "engine/news.h"

#include "model/game_state.h"

namespace mf {

void AddNews(int regime, int unit, int kind, const std::string& text, int x, int y, int mark) {
  // A line about a place belongs to whoever stands there.
  if (regime == 0 && kind < kNewsTextOnly && ValidHex(x, y)) {
    const int first = Hex[x][y].Unit[1];
    if (ValidUnit(first)) regime = Unit[first].Regime;
  }
  if (!ValidRegime(regime)) return;
  if (kind < 1 || kind == kNewsTextOnly) return;

  // A full list loses the line into slot 0, which nobody reads.
  int line = 0;
  for (int n = 1; n <= kNewsCap; ++n) {
    if (News[regime][n].Type == 0) {
      line = n;
      break;
    }
  }
  NewsRec& rec = News[regime][line];
  rec = NewsRec{};
  rec.Type = kind;
  if (kind == kNewsLost) {
    rec.Text = ValidUnit(unit) ? Unit[unit].Name : std::string();
  } else if (kind < kNewsTextOnly) {
    rec.X = static_cast<Short>(x);
    rec.Y = static_cast<Short>(y);
    rec.Mark = static_cast<Short>(mark);
  } else {
    rec.Text = text;
  }
}

}  // namespace mf
