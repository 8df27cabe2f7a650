#pragma once

#include <QPainter>
#include <QPointF>
#include <QPolygonF>

namespace lignara {

/// How thick curves are, in pixels of a screen.
inline constexpr double kCurveWidth = 1.5;

/// Lines that go on from each other, painted as one stroke. Of the many points that a long curve
/// has in one column of pixels only those that are seen are kept: the first, the highest, the
/// lowest and the last. So a curve of thousands of lines is painted as fast as one of hundreds.
class CurveStroke {
 public:
  /// `column`: the width in which points are taken together, in the painter's units.
  CurveStroke(QPainter& painter, double column) : painter_(painter), column_(column) {}

  void Add(const QPointF& from, const QPointF& to, const QPen& pen);
  /// Paints what was gathered.
  void Finish();

 private:
  bool GoesOn(const QPointF& from, const QPen& pen) const;
  void Gather(const QPointF& point);
  void CloseColumn();
  double ColumnOf(const QPointF& point) const;

  QPainter& painter_;
  const double column_;
  QPen pen_;
  QPolygonF kept_;                           ///< of the columns behind
  QPointF first_, highest_, lowest_, last_;  ///< of the column at hand
  bool open_ = false;
};

}  // namespace lignara
