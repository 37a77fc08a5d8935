// The map window: the picture that the game's drawing paints, with its two
// scroll bars, the outline of the selected hex, and presses turned into hexes.
#pragma once

#include <QScrollBar>
#include <QWidget>

#include "model/hex_geometry.h"
#include "qt_canvas.h"

namespace mf::app {

class MapView;

class MapWidget : public QWidget {
  Q_OBJECT
 public:
  explicit MapWidget(QWidget* parent = nullptr);

  // 1 or 2: every picture unit shows as zoom x zoom pixels.
  void SetZoom(int zoom);
  int Zoom() const { return zoom_; }
  // The density the map is drawn at: the zoom times the screen's pixel
  // ratio (rounded up), so that a 2x zoom or a dense screen gets pictures
  // drawn at that size rather than enlarged ones.
  int DrawScale() const;
  // Puts the bars in line with the UI scroll fields and the picture with the
  // size of the view; called by the window whenever it syncs.
  void SyncFromGame();
  // Redraws what the game asked for (UI.RedrawRequest) and shows it.
  void RedrawRequested();
  // Whether presses reach the game (off while the game is busy).
  void SetInteractive(bool on) { interactive_ = on; }
  MapView* view() const { return view_; }
  // Whether the redraw now asked for comes from scrolling alone (and clears
  // the note): the map's content is as it was, so what the window derives
  // from the whole map, such as the minimap's picture, stays as it is.
  bool TakeScrolledOnly();
  ImageCanvas& canvas() { return canvas_; }
  // The window point (in the view's pixels) of the centre of hex (x, y).
  QPoint HexCentreOnView(int x, int y) const;
  // The hex under a point of the view; zeros off the map.
  HexXY HexAt(QPoint pos) const;

 signals:
  // The player did something on the map (scrolling); the window syncs.
  void Acted();
  // A press of a mouse button on hex (x, y) (zeros off the map), with the
  // game's button number; the window runs it as a command of the player.
  void HexPressed(int x, int y, int button);
  // With a paint brush on: the pointer dragged onto another hex with the
  // left button held, and the button let go.
  void HexDragged(int x, int y);
  void ButtonReleased();
  // Ctrl and the mouse wheel changed the zoom.
  void ZoomChanged(int zoom);

 private:
  friend class MapView;
  void ViewResized();
  void Pressed(QPoint pos, Qt::MouseButton button);
  // The pointer moved (buttons held as given) or left the map.
  void Moved(QPoint pos, Qt::MouseButtons buttons);
  void Released(Qt::MouseButton button);
  void ScrollMoved(Qt::Orientation o, int value, bool dragging);
  void ScrollReleased();
  // The wheel scrolls (with Shift or a sideways wheel across), with Ctrl zooms.
  void Wheel(QWheelEvent* e);
  // Scrolls by (dx, dy) picture units within the ranges; true when it moved.
  bool ScrollBy(int dx, int dy);

  MapView* view_ = nullptr;
  QScrollBar* hbar_ = nullptr;
  QScrollBar* vbar_ = nullptr;
  ImageCanvas canvas_;
  int zoom_ = 1;
  // The scroll place the picture was drawn for; while a scroll thumb is
  // dragged the old picture is shown shifted by the difference.
  long drawnScrollX_ = 0;
  long drawnScrollY_ = 0;
  bool syncing_ = false;
  bool syncQueued_ = false;
  bool interactive_ = true;
  // The hex under the pointer, where the brush is shown, and the hex the
  // last drag reached.
  HexXY hover_;
  HexXY dragged_;
  int wheelRest_ = 0;  // eighths of a degree not yet turned into a step
  bool scrolledOnly_ = false;
  // Asks for the redraw of a view that moved.
  void RedrawForScroll();
};

// The picture itself.
class MapView : public QWidget {
  Q_OBJECT
 public:
  explicit MapView(MapWidget* owner);

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void leaveEvent(QEvent*) override;
  void wheelEvent(QWheelEvent*) override;
  // The hover tip: what the player may know of the hex under the mouse.
  bool event(QEvent*) override;

 private:
  // The target of an attack being prepared and the formations joined to it.
  void DrawAttackMarks(QPainter& p);
  // The edge of the hexes within reach of the order under way.
  void DrawReachOutline(QPainter& p);
  MapWidget* owner_;
  QPoint lastPos_;
};

}  // namespace mf::app
