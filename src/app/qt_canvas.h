// The game's pictures as Qt pixmaps, and the canvas the map is painted on.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <memory>
#include <vector>

#include "view/canvas.h"

namespace mf::app {

// Every sprite the last LoadSprites found, converted once into a pixmap
// (white see-through where the sprite table says so). Drawing never touches
// the disk.
class SpriteStore {
 public:
  // Loads every present sprite by the paths of the sprite table. False when a
  // picture of a fixed range is missing or unreadable; Problem() then says
  // which file in which folder.
  bool Reload();
  // True when the sprite table has been loaded again since the last Reload.
  bool Stale() const;
  const QPixmap& Get(int n) const;
  // The picture for drawing at a scale: from 2 on the picture drawn at twice
  // the size (NAME@2x beside NAME), when the folder has one; else the
  // ordinary one. Either way its device-independent size is the ordinary.
  const QPixmap& Get(int n, int scale) const;
  // Number of pictures that have a 2x form.
  int LoadedTwice() const { return loaded2x_; }
  // The picture as an image, for reading colours (minimap, tests).
  QImage Image(int n) const;
  const QString& Problem() const { return problem_; }
  int Loaded() const { return loaded_; }

 private:
  std::vector<QPixmap> pixmaps_;
  std::vector<QPixmap> pixmaps2x_;
  QPixmap empty_;
  QString problem_;
  long loadCount_ = -1;
  int loaded_ = 0;
  int loaded2x_ = 0;
};

SpriteStore& Sprites();

// The game's colour number 0x00BBGGRR as a Qt colour.
QColor GameColour(mf::Colour colour);

// A canvas painting onto an image. The painter stays open between calls;
// End() closes it before the image is shown. The game draws in picture units;
// at a scale above 1 the image has scale x scale pixels per unit, and the
// pictures, lines and figures are drawn at that density (the 2x pictures from
// 2 on), not enlarged afterwards.
class ImageCanvas : public mf::Canvas {
 public:
  ImageCanvas(int w, int h, QColor background, int scale = 1);
  // Size in picture units.
  void Resize(int w, int h);
  void SetScale(int scale);
  int Scale() const { return scale_; }
  void End();
  const QImage& image() const { return image_; }
  QImage& image() { return image_; }

  void Clear() override;
  void Blit(int sprite, int left, int top) override;
  void Line(int x1, int y1, int x2, int y2, mf::Colour colour) override;
  void Text(const std::string& text, int x, int y, const std::string& font, int size, mf::Colour colour) override;

 private:
  QPainter& P();
  QImage image_;
  QColor background_;
  int scale_ = 1;
  int w_ = 0, h_ = 0;
  std::unique_ptr<QPainter> painter_;
};

}  // namespace mf::app
