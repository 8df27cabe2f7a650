#include "desktop/kit/scene_layout.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "desktop/kit/name_room.h"
#include "desktop/kit/name_thinning.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

constexpr double kNameGap = 3;
/// Where more of the names than this part find no place, fewer are shown.
constexpr double kMostDropped = 0.08;

QPointF Way(NameSide side) {
  switch (side) {
    case NameSide::Above:
      return {0, -1};
    case NameSide::Below:
      return {0, 1};
    case NameSide::Left:
      return {-1, 0};
    case NameSide::Right:
      return {1, 0};
  }
  return {1, 0};
}

/// How thin strokes have to be so that lines side by side do not run together.
double ThinnessAt(double distance, double unit) {
  constexpr double kRoomy = 24, kThinnest = 0.3;
  return std::clamp(distance / (kRoomy * unit), kThinnest, 1.0);
}

/// The direction in which a name stands best: square to its line, on the side asked for.
QPointF WishOf(const NamedLine& line, const QLineF& drawn) {
  const QPointF side = Way(line.side);
  if (drawn.length() < 1e-6) return side;
  const QPointF square = QPointF(-drawn.dy(), drawn.dx()) / drawn.length();
  return QPointF::dotProduct(square, side) < 0 ? -square : square;
}

/// Lays a scene out at one view.
class LayoutMaker {
 public:
  LayoutMaker(const Scene& scene, const VisiblePart& view, const QRectF& room,
              const QFontMetricsF& metrics)
      : scene_(scene), view_(view), room_(room), metrics_(metrics) {
    layout_.unit = metrics.height() / 16;
  }

  SceneLayout Make() {
    std::vector<SeriesMark> marks;
    for (const NamedLine& line : scene_.lines) {
      marks.push_back({line.series, line.place, MarkOf(line), Width(line.name)});
    }
    const double gap = kNameGap * layout_.unit;
    std::size_t step = FirstStep(marks, metrics_.height(), 2 * gap);
    const double distance = LeastDistance(marks);
    layout_.thinness = ThinnessAt(distance, layout_.unit);
    layout_.dense = distance < layout_.unit;
    PlaceAll(kNameSteps[step]);
    for (int more = 0; more < 2 && TooManyDropped() && step + 1 < kNameSteps.size(); ++more) {
      PlaceAll(kNameSteps[++step]);
    }
    return layout_;
  }

 private:
  void PlaceAll(int step) {
    layout_.step = step;
    names_.emplace(room_.adjusted(1, 1, -1, -1), kNameGap * layout_.unit);
    layout_.names.clear();
    layout_.points.clear();
    layout_.loads.clear();
    layout_.values.clear();
    for (const NamedLine& line : scene_.lines) names_->AddLine(Drawn(line));
    ChooseShown();
    for (const std::size_t i : shown_) {
      names_->AddCircle(MarkOf(scene_.lines[i]), layout_.radius());
    }
    PlaceLoads();
    PlaceNames();
    PlacePoints();
  }

  /// Of the lines whose turn it is those are shown whose circles lie clear of each other.
  void ChooseShown() {
    shown_.clear();
    std::vector<QPointF> circles;
    for (const bool lit : {true, false}) {
      for (std::size_t i = 0; i < scene_.lines.size(); ++i) {
        const QPointF mark = MarkOf(scene_.lines[i]);
        if (scene_.lines[i].lit != lit || !IsItsTurn(scene_.lines[i])) continue;
        if (!lit && IsOnOneOf(circles, mark)) continue;
        circles.push_back(mark);
        shown_.push_back(i);
      }
    }
  }

  bool IsItsTurn(const NamedLine& line) const {
    if (!room_.contains(MarkOf(line))) return false;
    const int shift = line.between ? layout_.step / 2 : 0;
    return line.lit || (line.place + shift) % layout_.step == 0;
  }

  bool IsOnOneOf(const std::vector<QPointF>& circles, const QPointF& mark) const {
    const double least = 2 * layout_.radius() + layout_.unit;
    return std::any_of(circles.begin(), circles.end(),
                       [&](const QPointF& other) { return QLineF(other, mark).length() < least; });
  }

  bool TooManyDropped() const {
    const auto wanted = static_cast<double>(shown_.size());
    return wanted - static_cast<double>(layout_.names.size()) > kMostDropped * wanted;
  }

  void PlaceNames() {
    for (const std::size_t i : shown_) {
      const NamedLine& line = scene_.lines[i];
      const auto rect = names_->PlaceBeside(MarkOf(line), layout_.radius(),
                                            WishOf(line, Drawn(line)), SizeOf(line.name));
      if (rect) layout_.names.push_back({i, ToQt(line.name), *rect});
    }
  }

  /// Between marks that follow each other in their series.
  static double LeastDistance(const std::vector<SeriesMark>& marks) {
    double least = 1e9;
    for (std::size_t i = 1; i < marks.size(); ++i) {
      if (marks[i].series != marks[i - 1].series) continue;
      least = std::min(least, QLineF(marks[i].at, marks[i - 1].at).length());
    }
    return least;
  }

  /// Arrows first, each with its room; then the values, which thin out by themselves.
  void PlaceLoads() {
    std::vector<SeriesMark> arrows, values;
    for (const LoadArrow& load : scene_.loads) {
      const QPointF node = view_.ToPixels({load.x, load.y});
      arrows.push_back({load.series, load.place, node, 8 * layout_.unit});
      values.push_back({load.series, load.place, node, Width(load.value)});
    }
    const int arrowStep = kNameSteps[FirstStep(arrows, 1e6, 0)];
    const double gap = kNameGap * layout_.unit;
    const int valueStep = std::max(arrowStep, kNameSteps[FirstStep(values, 1e6, 2 * gap)]);
    for (std::size_t i = 0; i < scene_.loads.size(); ++i) {
      if (scene_.loads[i].place % arrowStep != 0 || !room_.contains(arrows[i].at)) continue;
      layout_.loads.push_back(i);
      names_->Take(ArrowRect(arrows[i].at));
    }
    for (const std::size_t i : layout_.loads) {
      if (scene_.loads[i].place % valueStep == 0) PlaceValue(i, arrows[i].at);
    }
  }

  QRectF ArrowRect(const QPointF& node) const {
    const double u = layout_.unit;
    return {node.x() - 4 * u, node.y() - (kLoadGap + kLoadLength) * u, 8 * u, kLoadLength * u};
  }

  /// Over the arrow, or aslant of its tail where a name or a circle is in the way.
  void PlaceValue(std::size_t i, const QPointF& node) {
    const QSizeF size = SizeOf(scene_.loads[i].value);
    const double low = ArrowRect(node).top() - kNameGap * layout_.unit;
    const double farthest = std::max(room_.left() + 2, room_.right() - size.width() - 2);
    for (const double part : {0.5, 0.9, 0.1}) {
      const double left = std::clamp(node.x() - part * size.width(), room_.left() + 2, farthest);
      const QRectF rect(QPointF(left, low - size.height()), size);
      if (!names_->IsFree(rect)) continue;
      names_->Take(rect);
      layout_.values.push_back({i, ToQt(scene_.loads[i].value), rect});
      return;
    }
  }

  void PlacePoints() {
    for (std::size_t i = 0; i < scene_.points.size(); ++i) {
      const PointName& point = scene_.points[i];
      const QPointF at = view_.ToPixels({point.x, point.y});
      if (point.place % layout_.step != 0 || !room_.contains(at)) continue;
      const auto rect =
          names_->PlaceBeside(at, kNameGap * layout_.unit, QPointF(0, -1), SizeOf(point.name));
      if (rect) layout_.points.push_back({i, ToQt(point.name), *rect});
    }
  }

  QPointF MarkOf(const NamedLine& line) const { return view_.ToPixels({line.markX, line.markY}); }
  QLineF Drawn(const NamedLine& line) const {
    return {view_.ToPixels({line.x1, line.y1}), view_.ToPixels({line.x2, line.y2})};
  }
  double Width(const std::string& text) const { return metrics_.horizontalAdvance(ToQt(text)); }
  /// Digits and capitals reach from the base line to the cap height: a letter's room is less high
  /// than a line of text.
  QSizeF SizeOf(const std::string& text) const { return {Width(text), metrics_.height() * 0.8}; }

  const Scene& scene_;
  const VisiblePart& view_;
  const QRectF room_;
  const QFontMetricsF metrics_;
  std::optional<NameRoom> names_;
  SceneLayout layout_;
  std::vector<std::size_t> shown_;
};

}  // namespace

SceneLayout LayOut(const Scene& scene, const VisiblePart& view, const QRectF& room,
                   const QFontMetricsF& metrics) {
  return LayoutMaker(scene, view, room, metrics).Make();
}

}  // namespace lignara
