#include "qt_canvas.h"

#include <QFileInfo>
#include <algorithm>
#include <cstdlib>
#include <QFont>
#include <QFontMetrics>

#include "view/counter.h"
#include "view/sprite_table.h"

namespace mf::app {

SpriteStore& Sprites() {
  static SpriteStore store;
  return store;
}

namespace {

// White is see-through on the map.
void MaskWhite(QImage& img) {
  img = img.convertToFormat(QImage::Format_ARGB32);
  const int w = img.width();
  for (int y = 0; y < img.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
    for (int x = 0; x < w; ++x) {
      if ((line[x] & 0x00FFFFFFu) == 0x00FFFFFFu) line[x] = 0;
    }
  }
}

}  // namespace

bool SpriteStore::Stale() const { return loadCount_ != mf::SpriteLoadCount(); }

bool SpriteStore::Reload() {
  loadCount_ = mf::SpriteLoadCount();
  pixmaps_.assign(mf::kSpriteCap + 1, QPixmap());
  pixmaps2x_.assign(mf::kSpriteCap + 1, QPixmap());
  problem_.clear();
  loaded_ = 0;
  loaded2x_ = 0;
  const mf::SpriteLoadResult& result = mf::LastSpriteLoad();
  if (!result.ok) problem_ = QString::fromStdString(mf::SpriteLoadMessage(result));
  for (int n = 1; n <= mf::kSpriteCap; ++n) {
    const mf::SpriteSlot& slot = mf::SpriteAt(n);
    if (!slot.present || slot.path.empty()) continue;
    QImage img(QString::fromStdString(slot.path));
    if (img.isNull()) {
      // A file that is there but cannot be read counts as missing.
      if (!slot.optional && problem_.isEmpty()) {
        const QFileInfo info(QString::fromStdString(slot.path));
        problem_ = QString("The picture \"%1\" in the folder \"%2\" cannot be read.")
                       .arg(info.fileName(), info.absolutePath());
      }
      continue;
    }
    img.setDevicePixelRatio(1);
    if (slot.masked) MaskWhite(img);
    pixmaps_[n] = QPixmap::fromImage(img);
    ++loaded_;
    // The same picture drawn at twice the size, when the folder has it.
    const QFileInfo info(QString::fromStdString(slot.path));
    const QString twice = info.absolutePath() + "/" + info.completeBaseName() + "@2x." + info.suffix();
    QImage img2(twice);
    if (!img2.isNull() && img2.width() == 2 * img.width() && img2.height() == 2 * img.height()) {
      if (slot.masked) MaskWhite(img2);
      img2.setDevicePixelRatio(2);
      pixmaps2x_[n] = QPixmap::fromImage(img2);
      ++loaded2x_;
    }
  }
  return problem_.isEmpty();
}

const QPixmap& SpriteStore::Get(int n) const {
  if (n < 0 || n >= static_cast<int>(pixmaps_.size())) return empty_;
  return pixmaps_[n];
}

const QPixmap& SpriteStore::Get(int n, int scale) const {
  if (scale >= 2 && n >= 0 && n < static_cast<int>(pixmaps2x_.size()) && !pixmaps2x_[n].isNull()) return pixmaps2x_[n];
  return Get(n);
}

QImage SpriteStore::Image(int n) const { return Get(n).toImage(); }

QColor GameColour(mf::Colour colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                static_cast<int>((colour >> 16) & 0xFF));
}

ImageCanvas::ImageCanvas(int w, int h, QColor background, int scale)
    : image_(w * scale, h * scale, QImage::Format_ARGB32_Premultiplied),
      background_(background),
      scale_(scale),
      w_(w),
      h_(h) {
  image_.fill(background_);
}

void ImageCanvas::Resize(int w, int h) {
  End();
  if (w == w_ && h == h_ && image_.width() == w * scale_ && image_.height() == h * scale_) return;
  w_ = w;
  h_ = h;
  image_ = QImage(w * scale_, h * scale_, QImage::Format_ARGB32_Premultiplied);
  image_.fill(background_);
}

void ImageCanvas::SetScale(int scale) {
  if (scale < 1) scale = 1;
  if (scale == scale_) return;
  scale_ = scale;
  End();
  image_ = QImage(w_ * scale_, h_ * scale_, QImage::Format_ARGB32_Premultiplied);
  image_.fill(background_);
}

QPainter& ImageCanvas::P() {
  if (!painter_) {
    painter_ = std::make_unique<QPainter>(&image_);
    painter_->scale(scale_, scale_);
    painter_->setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter_->setRenderHint(QPainter::TextAntialiasing, true);
  }
  return *painter_;
}

void ImageCanvas::End() {
  if (painter_) {
    painter_->end();
    painter_.reset();
  }
}

void ImageCanvas::Clear() {
  End();
  image_.fill(background_);
}

void ImageCanvas::Blit(int sprite, int left, int top) {
  const QPixmap& pm = Sprites().Get(sprite);
  if (pm.isNull()) return;
  const QPixmap& drawn = Sprites().Get(sprite, scale_);
  // Always the picture's own size in picture units, at whatever density.
  P().drawPixmap(QRectF(left, top, pm.width(), pm.height()), drawn, QRectF(0, 0, drawn.width(), drawn.height()));
}

void ImageCanvas::Line(int x1, int y1, int x2, int y2, mf::Colour colour) {
  QPainter& p = P();
  p.setPen(QPen(GameColour(colour), 1));
  p.drawLine(x1, y1, x2, y2);
}

void ImageCanvas::Text(const std::string& text, int x, int y, const std::string& font, int size,
                       mf::Colour colour) {
  QPainter& p = P();
  // The map's figures are small: the counter figures ("Small Fonts", a tiny
  // bitmap face once) in a narrow bold face that fits the counter's band,
  // the supply figures a little larger. Both must read at 1x.
  const bool figures = font == "Small Fonts";
  QFont f(figures ? QString("DejaVu Sans") : QString::fromStdString(font));
  f.setBold(true);
  f.setStretch(figures ? QFont::Condensed : QFont::SemiCondensed);
  f.setPixelSize(figures ? 8 : (size <= 9 ? 9 : size + 1));
  f.setHintingPreference(scale_ == 1 ? QFont::PreferFullHinting : QFont::PreferNoHinting);
  p.setFont(f);
  const QFontMetrics fm(f);
  const QString t = QString::fromStdString(text);
  const QColor ink = GameColour(colour);
  // A counter figure keeps to its place: one wider than the room before the
  // next figure ("SHQ", "+-12") is drawn narrower, so that it never runs
  // into the defence figure and the two read as two ("SHQ 0", not "SHQ0").
  const int room = mf::kDefenceTextX - mf::kAttackTextX - 4;
  const int wide = fm.horizontalAdvance(t);
  const double squeeze = figures && wide > room ? static_cast<double>(room) / wide : 1.0;
  auto draw = [&](int dx, int dy) {
    if (squeeze == 1.0) {
      p.drawText(x + dx, y + dy + fm.ascent(), t);
      return;
    }
    p.save();
    p.translate(x + dx, 0);
    p.scale(squeeze, 1.0);
    p.drawText(0, y + dy + fm.ascent(), t);
    p.restore();
  };
  // What the figure stands on: the counter's band, or the terrain.
  const int bx = std::clamp((x + 1) * scale_, 0, image_.width() - 1);
  const int by = std::clamp((y + 3) * scale_, 0, image_.height() - 1);
  const QColor ground = image_.pixelColor(bx, by);
  const bool faint = std::abs(ink.lightness() - ground.lightness()) < 100;
  if (!figures || faint) {
    // A halo of the opposite lightness wherever the ink alone would not
    // read: green on grass, white figures on a light counter.
    const QColor halo = ink.lightness() > 110 ? QColor(10, 14, 18, 230) : QColor(250, 246, 230, 230);
    p.setPen(halo);
    // Round the terrain all eight ways; on a counter's band the four
    // straight ones, so that small figures stay clean.
    for (int dx = -1; dx <= 1; ++dx)
      for (int dy = -1; dy <= 1; ++dy)
        if ((dx != 0 || dy != 0) && (!figures || dx == 0 || dy == 0)) draw(dx, dy);
  }
  p.setPen(ink);
  draw(0, 0);
}

}  // namespace mf::app
