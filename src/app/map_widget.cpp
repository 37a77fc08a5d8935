#include "map_widget.h"

#include <QGridLayout>
#include <algorithm>
#include <cstdlib>
#include <QMouseEvent>
#include <QPainter>
#include <QHelpEvent>
#include <QSet>
#include <QPainterPath>
#include <QToolTip>
#include <QWheelEvent>
#include <cmath>

#include "control/selection.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/reset.h"
#include "view/draw_hex.h"
#include "editor/map_paint.h"
#include "view/panel.h"

namespace mf::app {
namespace {

// The picture reaches a hex beyond the view on the right and below, so hexes
// cut by the view's edge are whole.
constexpr int kCanvasMarginW = 2 * kHexPicW;
constexpr int kCanvasMarginH = 2 * kHexPicH;
const QColor kMapBackground(24, 28, 34);
// The edge of the hexes within reach of an order: a light line that stands
// out on every terrain and every regime colour.
const QColor kReachColour(130, 235, 255);
// The mark of a formation joined to the attack being prepared.
constexpr int kJoinedSprite = 892;

// The outline of a hex around its centre on the view.
QPainterPath HexOutline(QPoint c, int z) {
  const int cx = c.x(), cy = c.y();
  QPainterPath path;
  path.moveTo(cx - 21 * z, cy - 10 * z);
  path.lineTo(cx - 21 * z, cy + 10 * z);
  path.lineTo(cx, cy + 20 * z);
  path.lineTo(cx + 21 * z, cy + 10 * z);
  path.lineTo(cx + 21 * z, cy - 10 * z);
  path.lineTo(cx, cy - 20 * z);
  path.closeSubpath();
  return path;
}

}  // namespace

MapWidget::MapWidget(QWidget* parent)
    : QWidget(parent), canvas_(kViewSlackW + kCanvasMarginW, kViewSlackH + kCanvasMarginH, kMapBackground) {
  view_ = new MapView(this);
  hbar_ = new QScrollBar(Qt::Horizontal, this);
  vbar_ = new QScrollBar(Qt::Vertical, this);
  hbar_->setObjectName("mapScrollX");
  vbar_->setObjectName("mapScrollY");
  // A bar that hides keeps its place, so the view does not change size (and
  // ask for another layout) when a map comes in that needs no scrolling.
  for (QScrollBar* bar : {hbar_, vbar_}) {
    QSizePolicy sp = bar->sizePolicy();
    sp.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(sp);
  }
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(view_, 0, 0);
  grid->addWidget(vbar_, 0, 1);
  grid->addWidget(hbar_, 1, 0);

  connect(hbar_, &QScrollBar::valueChanged, this,
          [this](int v) { ScrollMoved(Qt::Horizontal, v, hbar_->isSliderDown()); });
  connect(vbar_, &QScrollBar::valueChanged, this,
          [this](int v) { ScrollMoved(Qt::Vertical, v, vbar_->isSliderDown()); });
  connect(hbar_, &QScrollBar::sliderReleased, this, [this] { ScrollReleased(); });
  connect(vbar_, &QScrollBar::sliderReleased, this, [this] { ScrollReleased(); });
  setFocusPolicy(Qt::NoFocus);
}

void MapWidget::SetZoom(int zoom) {
  if (zoom != 1 && zoom != 2) return;
  if (zoom == zoom_) return;
  zoom_ = zoom;
  ViewResized();
}

int MapWidget::DrawScale() const {
  const double ratio = view_ ? view_->devicePixelRatioF() : 1.0;
  const int dense = std::clamp(static_cast<int>(std::ceil(ratio - 0.01)), 1, 2);
  return zoom_ * dense;
}

void MapWidget::ViewResized() {
  const int w = view_->width() / zoom_;
  const int h = view_->height() / zoom_;
  if (w < 1 || h < 1) return;
  const int scale = DrawScale();
  if (w == UI.ViewW && h == UI.ViewH && canvas_.image().width() == (w + kCanvasMarginW) * scale &&
      canvas_.Scale() == scale)
    return;
  UI.ViewW = w;
  UI.ViewH = h;
  canvas_.SetScale(scale);
  canvas_.Resize(w + kCanvasMarginW, h + kCanvasMarginH);
  UI.WindowWidth = window() ? window()->width() : UI.WindowWidth;
  setup();
  RequestRedraw(2);
  // The window syncs (and draws) once the resize is over, never in the
  // middle of Qt laying out or showing its widgets.
  if (!syncQueued_) {
    syncQueued_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          syncQueued_ = false;
          emit Acted();
        },
        Qt::QueuedConnection);
  }
}

void MapWidget::SyncFromGame() {
  syncing_ = true;
  hbar_->setRange(0, static_cast<int>(UI.ScrollMaxX));
  vbar_->setRange(0, static_cast<int>(UI.ScrollMaxY));
  hbar_->setPageStep(static_cast<int>(UI.ScrollLargeX));
  vbar_->setPageStep(static_cast<int>(UI.ScrollLargeY));
  hbar_->setSingleStep(static_cast<int>(UI.ScrollSmall > 0 ? UI.ScrollSmall : 100));
  vbar_->setSingleStep(static_cast<int>(UI.ScrollSmall > 0 ? UI.ScrollSmall : 100));
  if (!hbar_->isSliderDown()) hbar_->setValue(static_cast<int>(UI.ScrollX));
  if (!vbar_->isSliderDown()) vbar_->setValue(static_cast<int>(UI.ScrollY));
  hbar_->setVisible(UI.ShowScrollX);
  vbar_->setVisible(UI.ShowScrollY);
  syncing_ = false;
}

bool MapWidget::TakeScrolledOnly() {
  const bool only = scrolledOnly_;
  scrolledOnly_ = false;
  return only;
}

void MapWidget::RedrawForScroll() {
  // Only when nothing else is waiting to be drawn is it a scroll alone.
  if (UI.RedrawRequest == 0) scrolledOnly_ = true;
  RequestRedraw(2);
}

void MapWidget::RedrawRequested() {
  const Long what = UI.RedrawRequest;
  // Cleared first: drawing lets the event loop run, and a request made in
  // the meantime must survive for the next round.
  UI.RedrawRequest = 0;
  if (what >= 2)
    DoDrawhex();
  else if (what == 1)
    DoDrawhex6();
  if (what >= 1) {
    drawnScrollX_ = UI.ScrollX;
    drawnScrollY_ = UI.ScrollY;
  }
  canvas_.End();
  view_->update();
}

QPoint MapWidget::HexCentreOnView(int x, int y) const {
  const PixelXY c = HexToPixel(x, y, static_cast<int>(UI.ScrollX), static_cast<int>(UI.ScrollY));
  return QPoint(c.x * zoom_, c.y * zoom_);
}

HexXY MapWidget::HexAt(QPoint pos) const {
  return PixelToHex(pos.x() / zoom_, pos.y() / zoom_, static_cast<int>(UI.ScrollX), static_cast<int>(UI.ScrollY));
}

void MapWidget::Pressed(QPoint pos, Qt::MouseButton button) {
  if (!interactive_ || !UI.MapShown) return;
  if (button != Qt::LeftButton && button != Qt::RightButton) return;
  const HexXY h = HexAt(pos);
  dragged_ = h;
  emit HexPressed(h.x, h.y, button == Qt::LeftButton ? kLeftButton : kRightButton);
}

void MapWidget::Moved(QPoint pos, Qt::MouseButtons buttons) {
  const HexXY h = HexAt(pos);
  const bool brush = !BrushLabel().empty();
  if (h.x != hover_.x || h.y != hover_.y) {
    hover_ = h;
    if (brush) view_->update();
  }
  if (!interactive_ || !UI.MapShown || !brush || !(buttons & Qt::LeftButton)) return;
  // Every hex the pointer crosses, once: a fast pointer may skip a hex
  // between two moves, so the way between is walked in small steps.
  if (h.x <= 0 || h.y <= 0 || (h.x == dragged_.x && h.y == dragged_.y)) return;
  dragged_ = h;
  emit HexDragged(h.x, h.y);
}

void MapWidget::Released(Qt::MouseButton button) {
  if (button != Qt::LeftButton || BrushLabel().empty()) return;
  emit ButtonReleased();
}

void MapWidget::ScrollMoved(Qt::Orientation o, int value, bool dragging) {
  if (syncing_) return;
  Long& pos = o == Qt::Horizontal ? UI.ScrollX : UI.ScrollY;
  if (pos == value) return;
  pos = value;
  if (dragging) {
    // While the thumb is held only the place is noted; the map follows when
    // the button goes up, as a full redraw per pixel would be too slow.
    UI.ScrollPending = 1;
    view_->update();
    return;
  }
  RedrawForScroll();
  emit Acted();
}

bool MapWidget::ScrollBy(int dx, int dy) {
  const Long x = std::clamp<Long>(UI.ScrollX + dx, 0, std::max<Long>(0, UI.ScrollMaxX));
  const Long y = std::clamp<Long>(UI.ScrollY + dy, 0, std::max<Long>(0, UI.ScrollMaxY));
  if (x == UI.ScrollX && y == UI.ScrollY) return false;
  UI.ScrollX = x;
  UI.ScrollY = y;
  RedrawForScroll();
  emit Acted();
  return true;
}

void MapWidget::Wheel(QWheelEvent* e) {
  const QPoint turn = e->angleDelta();
  if (e->modifiers() & Qt::ControlModifier) {
    // Towards the player zooms in, away zooms out.
    if (turn.y() > 0 && zoom_ != 2) {
      SetZoom(2);
      emit ZoomChanged(2);
    } else if (turn.y() < 0 && zoom_ != 1) {
      SetZoom(1);
      emit ZoomChanged(1);
    }
    e->accept();
    return;
  }
  // A notch (120 eighths of a degree) scrolls a row of hexes down or a
  // column across; Shift turns the wheel sideways.
  const bool across = (e->modifiers() & Qt::ShiftModifier) || (turn.y() == 0 && turn.x() != 0);
  wheelRest_ += across ? (turn.x() != 0 ? turn.x() : turn.y()) : turn.y();
  const int notches = wheelRest_ / 120;
  wheelRest_ -= notches * 120;
  if (notches != 0) {
    if (across)
      ScrollBy(-notches * 2 * kHexColumnW, 0);
    else
      ScrollBy(0, -notches * 2 * kHexRowH);
  }
  e->accept();
}

void MapWidget::ScrollReleased() {
  if (UI.ScrollPending == 0) return;
  UI.ScrollPending = 0;
  RedrawForScroll();
  emit Acted();
}

MapView::MapView(MapWidget* owner) : QWidget(owner), owner_(owner) {
  setObjectName("mapView");
  setMinimumSize(320, 240);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(false);
}

void MapView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const int z = owner_->zoom_;
  if (!UI.MapShown) {
    p.fillRect(rect(), kMapBackground);
    return;
  }
  const QImage& img = owner_->canvas_.image();
  // The picture is drawn at the view's density: one image pixel per screen
  // pixel, nothing enlarged.
  const int s = owner_->canvas_.Scale();
  const int lw = width() / z + 1, lh = height() / z + 1;
  const QRect source(0, 0, lw * s, lh * s);
  const int dx = static_cast<int>(owner_->drawnScrollX_ - UI.ScrollX) * z;
  const int dy = static_cast<int>(owner_->drawnScrollY_ - UI.ScrollY) * z;
  if (dx != 0 || dy != 0) p.fillRect(rect(), kMapBackground);
  p.drawImage(QRectF(dx, dy, lw * z, lh * z), img, source);
  if (s != owner_->DrawScale()) {
    // The window moved to a screen of another density: draw again for it.
    QMetaObject::invokeMethod(owner_, [o = owner_] { o->ViewResized(); }, Qt::QueuedConnection);
  }
  if (dx == 0 && dy == 0) {
    DrawReachOutline(p);
    DrawAttackMarks(p);
  }

  // The selected hex: an outline over the picture, so that selecting never
  // needs the hexes repainted just for the highlight.
  p.setRenderHint(QPainter::Antialiasing, true);
  if (ValidHex(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY))) {
    const QPainterPath path = HexOutline(owner_->HexCentreOnView(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY)), z);
    p.setPen(QPen(QColor(0, 0, 0, 160), 4 * z));
    p.drawPath(path);
    p.setPen(QPen(QColor(255, 230, 90), 2 * z));
    p.drawPath(path);
  }

  // The brush under the pointer: the hex it would paint, and what it paints.
  const std::string brush = BrushLabel();
  const HexXY h = owner_->hover_;
  if (!brush.empty() && ValidHex(h.x, h.y)) {
    const QPoint c = owner_->HexCentreOnView(h.x, h.y);
    const QPainterPath path = HexOutline(c, z);
    p.fillPath(path, QColor(255, 255, 255, 70));
    p.setPen(QPen(QColor(40, 200, 255), 2 * z, Qt::DashLine));
    p.drawPath(path);
    const QString text = QString::fromStdString(brush);
    const QRect box = p.fontMetrics().boundingRect(text).adjusted(-4, -2, 4, 2);
    const QRect at = box.translated(c.x() - box.center().x(), c.y() - 22 * z - box.bottom() - 2);
    p.fillRect(at, QColor(20, 24, 30, 210));
    p.setPen(QColor(235, 240, 245));
    p.drawText(at, Qt::AlignCenter, text);
  }
}

void MapView::DrawReachOutline(QPainter& p) {
  if (!RangeModeOn() || UI.EditMode == 1) return;
  const int z = owner_->zoom_;
  // Corners of a hex from its centre, in the order of its sides: side k
  // runs from corner k - 1 to corner k (side 1 north-west, clockwise).
  static const QPoint kCorner[6] = {{-21, -10}, {0, -20}, {21, -10}, {21, 10}, {0, 20}, {-21, 10}};
  auto reach = [](int x, int y) { return ValidHex(x, y) && Hex[x][y].Mark < 999; };
  QPainterPath edge;
  const int w = MapW();
  const int h = MapH();
  const QRect seen = rect().adjusted(-50 * z, -50 * z, 50 * z, 50 * z);
  for (int x = 1; x <= w; ++x) {
    for (int y = 1; y <= h; ++y) {
      if (!reach(x, y)) continue;
      const QPoint c = owner_->HexCentreOnView(x, y);
      if (!seen.contains(c)) continue;
      for (int side = 1; side <= kHexSides; ++side) {
        const HexXY n = Neighbour(x, y, side);
        if (reach(n.x, n.y)) continue;
        edge.moveTo(c + kCorner[side - 1] * z);
        edge.lineTo(c + kCorner[side % 6] * z);
      }
    }
  }
  if (edge.isEmpty()) return;
  p.setRenderHint(QPainter::Antialiasing, true);
  p.setPen(QPen(QColor(0, 0, 0, 170), 3.5 * z, Qt::SolidLine, Qt::RoundCap));
  p.drawPath(edge);
  p.setPen(QPen(kReachColour, 1.6 * z, Qt::SolidLine, Qt::RoundCap));
  p.drawPath(edge);
}

void MapView::DrawAttackMarks(QPainter& p) {
  if (UI.Order.AttackOrder <= 0 || UI.EditMode == 1) return;
  const int z = owner_->zoom_;
  p.setRenderHint(QPainter::Antialiasing, true);
  // The target: a red ring with a cross.
  if (ValidHex(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY))) {
    const QPoint c = owner_->HexCentreOnView(static_cast<int>(UI.OrdX), static_cast<int>(UI.OrdY));
    p.setPen(QPen(QColor(0, 0, 0, 170), 4 * z));
    p.drawEllipse(c, 17 * z, 17 * z);
    p.setPen(QPen(QColor(235, 60, 50), 2 * z));
    p.drawEllipse(c, 17 * z, 17 * z);
    for (const QPoint& d : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
      p.drawLine(c + d * 13 * z, c + d * 21 * z);
  }
  // Every joined formation's hex carries the joined mark, once.
  const QPixmap& mark = Sprites().Get(kJoinedSprite);
  const QPixmap& markDrawn = Sprites().Get(kJoinedSprite, z);
  QSet<int> done;
  for (int i = 1; i <= UI.AttackerCount && i <= kAttackerCap; ++i) {
    const int x = static_cast<int>(UI.AttackerX[i]), y = static_cast<int>(UI.AttackerY[i]);
    if (!ValidHex(x, y) || done.contains(x * 1000 + y)) continue;
    done.insert(x * 1000 + y);
    const QPoint c = owner_->HexCentreOnView(x, y);
    if (!mark.isNull()) {
      p.drawPixmap(QRectF(c.x() - 21 * z, c.y() - 20 * z, mark.width() * z, mark.height() * z), markDrawn,
                   QRectF(markDrawn.rect()));
    }
    p.setPen(QPen(QColor(255, 170, 40), 2 * z, Qt::DashLine));
    p.drawEllipse(c, 17 * z, 17 * z);
  }
}

bool MapView::event(QEvent* e) {
  if (e->type() == QEvent::ToolTip) {
    auto* help = static_cast<QHelpEvent*>(e);
    const HexXY h = owner_->HexAt(help->pos());
    const std::string tip = UI.MapShown ? HexTipText(h.x, h.y) : std::string();
    if (tip.empty()) {
      QToolTip::hideText();
      e->ignore();
    } else {
      QToolTip::showText(help->globalPos(), QString::fromStdString(tip), this);
    }
    return true;
  }
  return QWidget::event(e);
}

void MapView::wheelEvent(QWheelEvent* e) { owner_->Wheel(e); }

void MapView::resizeEvent(QResizeEvent*) { owner_->ViewResized(); }

void MapView::mousePressEvent(QMouseEvent* e) {
  owner_->Pressed(e->position().toPoint(), e->button());
  lastPos_ = e->position().toPoint();
}

void MapView::mouseMoveEvent(QMouseEvent* e) {
  // The way from the last place is walked in steps of a few pixels, so that
  // no hex crossed by a quick stroke is missed.
  const QPoint to = e->position().toPoint();
  const QPoint from = lastPos_;
  const int steps = std::max(1, (std::abs(to.x() - from.x()) + std::abs(to.y() - from.y())) / 4);
  for (int i = 1; i <= steps; ++i)
    owner_->Moved(from + (to - from) * i / steps, e->buttons());
  lastPos_ = to;
}

void MapView::mouseReleaseEvent(QMouseEvent* e) { owner_->Released(e->button()); }

void MapView::leaveEvent(QEvent*) {
  owner_->hover_ = HexXY{};
  update();
}

}  // namespace mf::app
