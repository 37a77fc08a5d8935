#include "minimap.h"

#include <QMouseEvent>
#include <QPainter>
#include <vector>

#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "qt_canvas.h"
#include "view/draw_hex.h"
#include "view/sprite_table.h"

namespace mf::app {
namespace {

// The colour of a picture at its centre, the way a player sees the hex from
// afar; a fallback when the picture is missing or see-through there.
QColor CentreColour(int sprite, QColor fallback) {
  static long cachedLoad = -2;
  static std::vector<QColor> cache;
  if (cachedLoad != mf::SpriteLoadCount()) {
    cachedLoad = mf::SpriteLoadCount();
    cache.assign(mf::kSpriteCap + 1, QColor());
  }
  if (sprite < 1 || sprite > mf::kSpriteCap) return fallback;
  if (!cache[sprite].isValid()) {
    const QImage img = Sprites().Image(sprite);
    QColor c;
    if (!img.isNull()) c = img.pixelColor(img.width() / 2, img.height() / 2);
    cache[sprite] = (c.isValid() && c.alpha() > 0) ? c : QColor(0, 0, 0, 0);
  }
  return cache[sprite].alpha() > 0 ? cache[sprite] : fallback;
}

}  // namespace

MinimapCell MinimapCellAt(int x, int y) {
  MinimapCell cell;
  if (!ValidHex(x, y)) return cell;
  const HexRec& h = Hex[x][y];
  const int r = static_cast<int>(Game.CurRegime);
  const bool editing = UI.EditMode == 1;
  if (Game.FogOfExploration != 0 && !editing && r >= 1 && r <= kSightRegimes && h.Seen[r] == 0) {
    cell.colour = QColor(40, 40, 44);
    return cell;
  }
  if (h.Land == kSea) {
    cell.colour = CentreColour(sprite::kSeaHex, QColor(40, 90, 160));
  } else if (h.Owner > 0 && ValidRegime(static_cast<int>(h.Owner))) {
    cell.colour = CentreColour(sprite::kRegimeHexBase + static_cast<int>(Regime[h.Owner].HexSprite),
                               QColor(150, 150, 150));
  } else if (h.Land == kForest) {
    cell.colour = CentreColour(sprite::kForest, QColor(40, 110, 50));
  } else if (h.Land == kSwamp) {
    cell.colour = CentreColour(sprite::kSwamp, QColor(90, 110, 80));
  } else if (h.Land == kMountain) {
    cell.colour = CentreColour(sprite::kMountain, QColor(130, 120, 110));
  } else {
    cell.colour = CentreColour(sprite::kBaseHex, QColor(120, 160, 80));
  }
  cell.town = h.Pop > 0;
  const bool mayLook = h.Vis > 0 || Game.FogOfWar == 0 || editing;
  cell.unit = mayLook && h.Unit[1] > 0;
  return cell;
}

Minimap::Minimap(QWidget* parent) : QWidget(parent) {
  setObjectName("minimap");
  setMinimumSize(200, 150);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setCursor(Qt::CrossCursor);
  setToolTip("The whole map: press to move the map window there");
}

void Minimap::Rebuild() {
  const int w = MapW();
  const int h = MapH();
  if (w < 1 || h < 1) {
    image_ = QImage();
    update();
    return;
  }
  // Two pixels a hex each way, odd rows shifted by one as on the map.
  image_ = QImage(2 * w + 1, 2 * h, QImage::Format_ARGB32);
  image_.fill(QColor(16, 18, 22));
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      const MinimapCell cell = MinimapCellAt(x, y);
      const int px = 2 * (x - 1) + (y % 2 != 0 ? 1 : 0);
      const int py = 2 * (y - 1);
      QColor c = cell.colour;
      for (int dx = 0; dx < 2; ++dx)
        for (int dy = 0; dy < 2; ++dy) image_.setPixelColor(px + dx, py + dy, c);
      if (cell.town) image_.setPixelColor(px, py, QColor(250, 250, 250));
      if (cell.unit) image_.setPixelColor(px + 1, py + 1, QColor(10, 10, 10));
    }
  }
  update();
}

QRectF Minimap::MapRect() const {
  if (image_.isNull()) return QRectF();
  const double sx = (width() - 4) / double(image_.width());
  const double sy = (height() - 4) / double(image_.height());
  const double s = std::min(sx, sy);
  const double w = image_.width() * s;
  const double h = image_.height() * s;
  return QRectF((width() - w) / 2, (height() - h) / 2, w, h);
}

QPoint Minimap::HexAt(QPoint pos) const {
  const QRectF r = MapRect();
  if (r.isEmpty() || !r.contains(pos)) return QPoint(0, 0);
  const double fx = (pos.x() - r.left()) / r.width() * image_.width();
  const double fy = (pos.y() - r.top()) / r.height() * image_.height();
  const int y = static_cast<int>(fy / 2) + 1;
  const int x = static_cast<int>((fx - (y % 2 != 0 ? 1 : 0)) / 2) + 1;
  if (!ValidHex(x, y)) return QPoint(0, 0);
  return QPoint(x, y);
}

void Minimap::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), QColor(16, 18, 22));
  // Between the turns of two players at one screen the map is hidden; the
  // minimap tells no more than the map.
  if (image_.isNull() || !UI.MapShown) return;
  const QRectF r = MapRect();
  p.drawImage(r, image_);
  // The map window: picture units to minimap pixels. A hex column is 42
  // picture units and two minimap pixels; a row 30 units and two pixels.
  const double kx = r.width() / image_.width() * 2.0 / kHexColumnW;
  const double ky = r.height() / image_.height() * 2.0 / kHexRowH;
  // Hex (1, 1) sits at picture (63, 30) and minimap (1, 0) + half a cell.
  const double left = r.left() + (UI.ScrollX + 21 - 42) * kx;
  const double top = r.top() + (UI.ScrollY - 15) * ky;
  QRectF view(left, top, UI.ViewW * kx, UI.ViewH * ky);
  view = view.intersected(r.adjusted(-1, -1, 1, 1));
  p.setPen(QPen(QColor(255, 230, 90), 1.5));
  p.setBrush(Qt::NoBrush);
  p.drawRect(view);
}

void Minimap::JumpTo(QPoint pos) {
  const QRectF r = MapRect();
  if (r.isEmpty()) return;
  const double kx = r.width() / image_.width() * 2.0 / kHexColumnW;
  const double ky = r.height() / image_.height() * 2.0 / kHexRowH;
  // The pressed point becomes the middle of the map window.
  Long sx = static_cast<Long>((pos.x() - r.left()) / kx - 21 + 42 - UI.ViewW / 2.0);
  Long sy = static_cast<Long>((pos.y() - r.top()) / ky + 15 - UI.ViewH / 2.0);
  if (sx > UI.ScrollMaxX) sx = UI.ScrollMaxX;
  if (sy > UI.ScrollMaxY) sy = UI.ScrollMaxY;
  if (sx < 0) sx = 0;
  if (sy < 0) sy = 0;
  if (sx == UI.ScrollX && sy == UI.ScrollY) return;
  UI.ScrollX = sx;
  UI.ScrollY = sy;
  RequestRedraw(2);
  emit Acted();
}

void Minimap::mousePressEvent(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton && UI.MapShown) JumpTo(e->position().toPoint());
}

void Minimap::mouseMoveEvent(QMouseEvent* e) {
  if ((e->buttons() & Qt::LeftButton) && UI.MapShown) JumpTo(e->position().toPoint());
}

}  // namespace mf::app
