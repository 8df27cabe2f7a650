#pragma once

#include <QWidget>
#include <functional>

#include "app/drawing.h"
#include "desktop/kit/drawing_painter.h"
#include "desktop/kit/visible_part.h"

class QMenu;

namespace lignara {

/// A drawing on the screen, at any size. Mouse positions are told in the drawing's units.
class Picture : public QWidget {
 public:
  explicit Picture(QWidget* parent = nullptr);

  void SetDrawing(const Drawing& drawing);
  const Drawing& drawing() const { return drawing_; }

  /// Called with the place of a mouse press.
  void OnPress(std::function<void(double x, double y)> press);
  /// Tells whether a press at a place would do something; the pointer then is a hand.
  void OnHover(std::function<bool(double x, double y)> isTarget);
  /// Called with each place that the mouse comes to, also before it is pressed there.
  void OnMove(std::function<void(double x, double y)> move);
  /// Called by "Save Picture As..." of the context menu.
  void OnSave(std::function<void()> save) { save_ = std::move(save); }

  /// Lets the user look nearer: Ctrl and the wheel or + and - enlarge and reduce, a drag or the
  /// arrow keys move, a double click or Home shows all again. The drawing itself knows nothing of
  /// it. The picture becomes a stop of the Tab key.
  void LetUserExplore();
  /// The view at the picture's size as it is now.
  const VisiblePart& view();

  /// What the mouse does that comes to a place of the drawing and is pressed there.
  void PressAt(double x, double y);

  QSize sizeHint() const override { return {640, 400}; }
  QSize minimumSizeHint() const override { return {160, 100}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QPointF ToDrawing(const QPointF& position);
  void Fit();
  void ZoomAt(const QPointF& pixel, double factor);
  void MoveBy(const QPointF& pixels);
  bool TakeKey(int key);
  void Drag(const QPointF& position);
  void SetPointer(const QPointF& position);

  Drawing drawing_;
  VisiblePart view_;
  bool explored_ = false;
  bool dragging_ = false;
  QPointF grabbed_;  ///< where the mouse was when it last moved the picture
  std::function<void(double, double)> press_;
  std::function<void(double, double)> move_;
  std::function<bool(double, double)> isTarget_;
  std::function<void()> save_;
};

}  // namespace lignara
