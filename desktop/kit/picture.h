#pragma once

#include <QWidget>
#include <functional>

#include "app/drawing.h"

namespace lignara {

/// A colour of drawings as it is legible on a light or a dark ground.
QColor ColourOn(const QColor& ground, Colour colour);

/// Paints a drawing into a rectangle, as large as fits, true to shape unless it may be stretched.
/// On a dark palette what the drawing calls black is light.
void PaintDrawing(QPainter& painter, const QRectF& target, const Drawing& drawing,
                  const QPalette& palette);

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

  /// What the mouse does that comes to a place of the drawing and is pressed there.
  void PressAt(double x, double y);

  /// Writes the picture as PNG. False when the file cannot be written.
  bool SavePng(const QString& path);

  QSize sizeHint() const override { return {640, 400}; }
  QSize minimumSizeHint() const override { return {160, 100}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QPointF ToDrawing(const QPointF& position) const;

  Drawing drawing_;
  std::function<void(double, double)> press_;
  std::function<void(double, double)> move_;
  std::function<bool(double, double)> isTarget_;
  std::function<void()> save_;
};

}  // namespace lignara
