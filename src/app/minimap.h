// The whole map in small: owners, towns, the formations the current player
// may see, and the rectangle of the map window. A press moves the window
// there, so that large maps stay easy to travel.
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

namespace mf::app {

// What one hex of the minimap shows.
struct MinimapCell {
  QColor colour;
  bool town = false;
  bool unit = false;
};
// The cell of hex (x, y) for the current player: unexplored hexes dark,
// owned land in the owner's colour, other hexes in the colour of their
// landscape; a formation only where the player may see it.
MinimapCell MinimapCellAt(int x, int y);

class Minimap : public QWidget {
  Q_OBJECT
 public:
  explicit Minimap(QWidget* parent = nullptr);
  // Paints the hexes again from the tables.
  void Rebuild();
  // The hex under a point of the widget, in hexes; (0, 0) outside the map.
  QPoint HexAt(QPoint pos) const;

 signals:
  // The player moved the map window; the window syncs.
  void Acted();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;

 private:
  // The rectangle the map picture takes inside the widget.
  QRectF MapRect() const;
  void JumpTo(QPoint pos);
  QImage image_;
};

}  // namespace mf::app
