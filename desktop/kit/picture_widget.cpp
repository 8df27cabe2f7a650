#include "desktop/kit/picture_widget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/kit/legend.h"

namespace lignara {
namespace {

// What one press of a key or one notch of the wheel enlarges by.
constexpr double kZoomStep = 1.25;
// How far one press of an arrow key moves, in pixels.
constexpr double kMoveStep = 40;

struct MoveKey {
  int key;
  QPointF pixels;
};
const MoveKey kMoveKeys[] = {{Qt::Key_Left, {kMoveStep, 0}},
                             {Qt::Key_Right, {-kMoveStep, 0}},
                             {Qt::Key_Up, {0, kMoveStep}},
                             {Qt::Key_Down, {0, -kMoveStep}}};

}  // namespace

Picture::Picture(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

const VisiblePart& Picture::view() {
  view_.SetRoom(size());
  return view_;
}

void Picture::SetDrawing(const Drawing& drawing) {
  if (drawing == drawing_) return;
  const bool other = drawing.width != drawing_.width || drawing.height != drawing_.height;
  drawing_ = drawing;
  view_.SetContent(ContentOf(drawing_));
  if (other || !explored_) view_.Fit();
  update();
}

void Picture::OnPress(std::function<void(double, double)> press) { press_ = std::move(press); }

void Picture::OnHover(std::function<bool(double, double)> isTarget) {
  isTarget_ = std::move(isTarget);
  setMouseTracking(true);
}

void Picture::OnMove(std::function<void(double, double)> move) {
  move_ = std::move(move);
  setMouseTracking(true);
}

void Picture::LetUserExplore() {
  explored_ = true;
  setFocusPolicy(Qt::StrongFocus);
}

void Picture::PressAt(double x, double y) {
  if (move_) move_(x, y);
  if (press_) press_(x, y);
}

void Picture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  PaintDrawing(painter, view(), rect(), drawing_, palette());
}

void Picture::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  grabbed_ = event->position();
  dragging_ = false;
  const QPointF place = ToDrawing(event->position());
  PressAt(place.x(), place.y());
}

void Picture::mouseMoveEvent(QMouseEvent* event) {
  const QPointF place = ToDrawing(event->position());
  if (move_) move_(place.x(), place.y());
  if (explored_ && event->buttons().testFlag(Qt::LeftButton)) {
    Drag(event->position());
  } else {
    SetPointer(event->position());
  }
}

void Picture::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragging_) return;
  dragging_ = false;
  SetPointer(event->position());
}

void Picture::mouseDoubleClickEvent(QMouseEvent* event) {
  if (explored_ && event->button() == Qt::LeftButton) Fit();
}

void Picture::wheelEvent(QWheelEvent* event) {
  if (!explored_ || !event->modifiers().testFlag(Qt::ControlModifier)) {
    event->ignore();
    return;
  }
  constexpr double kNotch = 120;
  ZoomAt(event->position(), std::pow(kZoomStep, event->angleDelta().y() / kNotch));
  event->accept();
}

void Picture::keyPressEvent(QKeyEvent* event) {
  if (!explored_ || !TakeKey(event->key())) QWidget::keyPressEvent(event);
}

bool Picture::TakeKey(int key) {
  const QPointF middle = QRectF(rect()).center();
  for (const MoveKey& move : kMoveKeys) {
    if (key != move.key) continue;
    MoveBy(move.pixels);
    return true;
  }
  if (key == Qt::Key_Home) {
    Fit();
  } else if (key == Qt::Key_Plus || key == Qt::Key_Equal) {
    ZoomAt(middle, kZoomStep);
  } else if (key == Qt::Key_Minus) {
    ZoomAt(middle, 1 / kZoomStep);
  } else {
    return false;
  }
  return true;
}

void Picture::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  const QPointF place = event->pos();
  if (explored_) {
    menu.addAction("Show &All\tHome", this, [this] { Fit(); });
    menu.addAction("Look &Nearer\tCtrl+Wheel", this, [=, this] { ZoomAt(place, kZoomStep); });
    menu.addAction("Look from &Farther", this, [=, this] { ZoomAt(place, 1 / kZoomStep); });
  }
  if (save_) menu.addAction("&Save Picture As...", this, [this] { save_(); });
  if (!menu.isEmpty()) menu.exec(event->globalPos());
}

QPointF Picture::ToDrawing(const QPointF& position) {
  return PlaceAt(view(), rect(), drawing_, position);
}

void Picture::Fit() {
  view_.Fit();
  update();
}

void Picture::ZoomAt(const QPointF& pixel, double factor) {
  view_.SetRoom(size());
  view_.ZoomAt(pixel, factor);
  update();
}

void Picture::MoveBy(const QPointF& pixels) {
  view_.SetRoom(size());
  view_.MoveBy(pixels);
  update();
}

void Picture::Drag(const QPointF& position) {
  const QPointF way = position - grabbed_;
  if (!dragging_ && way.manhattanLength() < QApplication::startDragDistance()) return;
  dragging_ = true;
  setCursor(Qt::ClosedHandCursor);
  grabbed_ = position;
  MoveBy(way);
}

void Picture::SetPointer(const QPointF& position) {
  if (!isTarget_) {
    unsetCursor();
    return;
  }
  const QPointF place = ToDrawing(position);
  setCursor(isTarget_(place.x(), place.y()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

}  // namespace lignara
