#include "qt_canvas.h"

#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>

#include "view/sprite_table.h"

namespace mf::app {

SpriteStore& Sprites() {
  static SpriteStore store;
  return store;
}

bool SpriteStore::Stale() const { return loadCount_ != mf::SpriteLoadCount(); }

bool SpriteStore::Reload() {
  loadCount_ = mf::SpriteLoadCount();
  pixmaps_.assign(mf::kSpriteCap + 1, QPixmap());
  problem_.clear();
  loaded_ = 0;
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
    if (slot.masked) {
      img = img.convertToFormat(QImage::Format_ARGB32);
      const int w = img.width();
      for (int y = 0; y < img.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
        for (int x = 0; x < w; ++x) {
          if ((line[x] & 0x00FFFFFFu) == 0x00FFFFFFu) line[x] = 0;
        }
      }
    }
    pixmaps_[n] = QPixmap::fromImage(img);
    ++loaded_;
  }
  return problem_.isEmpty();
}

const QPixmap& SpriteStore::Get(int n) const {
  if (n < 0 || n >= static_cast<int>(pixmaps_.size())) return empty_;
  return pixmaps_[n];
}

QImage SpriteStore::Image(int n) const { return Get(n).toImage(); }

QColor GameColour(mf::Colour colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                static_cast<int>((colour >> 16) & 0xFF));
}

ImageCanvas::ImageCanvas(int w, int h, QColor background)
    : image_(w, h, QImage::Format_ARGB32_Premultiplied), background_(background) {
  image_.fill(background_);
}

void ImageCanvas::Resize(int w, int h) {
  End();
  if (w == image_.width() && h == image_.height()) return;
  image_ = QImage(w, h, QImage::Format_ARGB32_Premultiplied);
  image_.fill(background_);
}

QPainter& ImageCanvas::P() {
  if (!painter_) painter_ = std::make_unique<QPainter>(&image_);
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
  P().drawPixmap(left, top, pm);
}

void ImageCanvas::Line(int x1, int y1, int x2, int y2, mf::Colour colour) {
  QPainter& p = P();
  p.setPen(QPen(GameColour(colour), 1));
  p.drawLine(x1, y1, x2, y2);
}

void ImageCanvas::Text(const std::string& text, int x, int y, const std::string& font, int size,
                       mf::Colour colour) {
  QPainter& p = P();
  // "Small Fonts" was a tiny bitmap face; a small sans face stands in for it.
  QFont f(font == "Small Fonts" ? QString("DejaVu Sans") : QString::fromStdString(font));
  f.setPixelSize(size <= 7 ? 9 : size + 3);
  p.setFont(f);
  p.setPen(GameColour(colour));
  const QFontMetrics fm(f);
  p.drawText(x, y + fm.ascent(), QString::fromStdString(text));
}

}  // namespace mf::app
