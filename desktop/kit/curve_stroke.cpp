#include "desktop/kit/curve_stroke.h"

#include <cmath>

namespace lignara {

void CurveStroke::Add(const QPointF& from, const QPointF& to, const QPen& pen) {
  if (!GoesOn(from, pen)) {
    Finish();
    pen_ = pen;
    Gather(from);
  }
  Gather(to);
}

bool CurveStroke::GoesOn(const QPointF& from, const QPen& pen) const {
  return open_ && from == last_ && pen == pen_;
}

double CurveStroke::ColumnOf(const QPointF& point) const { return std::floor(point.x() / column_); }

void CurveStroke::Gather(const QPointF& point) {
  if (open_ && ColumnOf(point) == ColumnOf(first_)) {
    if (point.y() < highest_.y()) highest_ = point;
    if (point.y() > lowest_.y()) lowest_ = point;
    last_ = point;
    return;
  }
  CloseColumn();
  first_ = highest_ = lowest_ = last_ = point;
  open_ = true;
}

/// In the order in which the curve went through them.
void CurveStroke::CloseColumn() {
  if (!open_) return;
  const bool up = highest_.x() <= lowest_.x();
  for (const QPointF& point : {first_, up ? highest_ : lowest_, up ? lowest_ : highest_, last_}) {
    if (kept_.isEmpty() || kept_.back() != point) kept_ << point;
  }
}

void CurveStroke::Finish() {
  CloseColumn();
  if (kept_.size() > 1) {
    painter_.setPen(pen_);
    painter_.drawPolyline(kept_);
  }
  kept_.clear();
  open_ = false;
}

}  // namespace lignara
