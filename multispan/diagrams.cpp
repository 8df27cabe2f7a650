#include "multispan/diagrams.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/number_pattern.h"

namespace lignara {
namespace {

constexpr double kTextShare = 0.09;  // of the height
constexpr double kTextGap = 0.005;   // of the width, between a peak and its letters
/// A curve of more points than a screen has columns would only cost time.
constexpr int kCurvePoints = 2000;

struct Point {
  double x, value;
};

/// A diagram under way, with its base line and the joints.
class Diagram {
 public:
  Diagram(const BeamCase& beam, double height, Colour colour) : colour_(colour) {
    drawing_.stretched = true;
    drawing_.width = beam.TotalLength();
    drawing_.height = height > 0 ? height : 1;
    drawing_.textHeight = kTextShare * drawing_.height;
    double joint = 0;
    for (int j = 1; j < beam.count; ++j) {
      joint += beam.Span(j).length;
      Line(joint, 0, joint, drawing_.height, Colour::Gray);
    }
    Line(0, Middle(), drawing_.width, Middle(), Colour::Black);
  }

  void Curve(const std::vector<Point>& points) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
      Line(points[i].x, Y(points[i].value), points[i + 1].x, Y(points[i + 1].value), colour_);
    }
  }

  /// Letters the largest and the smallest value, outside of the curve.
  void Peaks(const std::vector<Point>& points, const char* pattern) {
    if (points.empty()) return;
    const auto less = [](const Point& a, const Point& b) { return a.value < b.value; };
    const Point high = *std::max_element(points.begin(), points.end(), less);
    const Point low = *std::min_element(points.begin(), points.end(), less);
    if (high.value > 0) Letter(high, pattern);
    if (low.value < 0) Letter(low, pattern);
  }

  Drawing WithCursor(std::optional<double> x) {
    if (x) Line(*x, 0, *x, drawing_.height, Colour::Green);
    return std::move(drawing_);
  }

 private:
  double Middle() const { return drawing_.height / 2; }
  double Y(double value) const { return Middle() - value; }
  void Line(double x1, double y1, double x2, double y2, Colour colour) {
    drawing_.shapes.emplace_back(LineShape{x1, y1, x2, y2, colour});
  }
  void Letter(const Point& peak, const char* pattern) {
    const double beside = peak.value > 0 ? -1.3 : 0.2;
    drawing_.shapes.emplace_back(TextShape{peak.x + kTextGap * drawing_.width,
                                           Y(peak.value) + beside * drawing_.textHeight,
                                           FormatNumber(peak.value, pattern), colour_});
  }

  Drawing drawing_;
  Colour colour_;
};

/// Twice the largest sum of the magnitudes of two neighbouring vertices. A picture is never
/// infinitely high.
double ShearHeight(const ShearDiagram& shear) {
  double largest = 0;
  for (std::size_t i = 0; i + 1 < shear.vertices.size(); ++i) {
    largest = std::max(largest,
                       std::fabs(shear.vertices[i].shear) + std::fabs(shear.vertices[i + 1].shear));
  }
  return std::min(2 * largest, std::numeric_limits<double>::max());
}

/// The stations of the curve, thinned where there are very many; the peaks stay.
std::vector<Point> CurvePoints(const MomentCurve& curve) {
  const int count = static_cast<int>(curve.stations.size());
  const int step = std::max(1, count / kCurvePoints);
  std::vector<Point> points;
  for (int first = 0; first < count && curve.integrations > 0; first += step) {
    int peak = first;
    for (int s = first; s < std::min(first + step, count); ++s) {
      if (std::fabs(curve.At(s)) > std::fabs(curve.At(peak))) peak = s;
    }
    points.push_back({curve.PlaceOf(peak), static_cast<double>(curve.At(peak))});
  }
  return points;
}

double LargestMagnitude(const std::vector<Point>& points) {
  double largest = 0;
  for (const Point& p : points) largest = std::max(largest, std::fabs(p.value));
  return largest;
}

}  // namespace

Drawing DrawShearDiagram(const MultiSpanSolution& run, std::optional<double> cursor) {
  Diagram diagram(run.beam, ShearHeight(run.shear), Colour::Red);
  std::vector<Point> points;
  for (const ShearVertex& v : run.shear.vertices) points.push_back({v.x, v.shear});
  diagram.Curve(points);
  diagram.Peaks(points, "0.00");
  return diagram.WithCursor(cursor);
}

Drawing DrawMomentDiagram(const MultiSpanSolution& run, std::optional<double> cursor) {
  const std::vector<Point> points = CurvePoints(run.curve);
  Diagram diagram(run.beam, 4 * LargestMagnitude(points), Colour::Blue);
  diagram.Curve(points);
  diagram.Peaks(points, "0.00");
  return diagram.WithCursor(cursor);
}

Drawing DrawShapeDiagram(const MultiSpanSolution& run, const DeflectedShape& shape,
                         std::optional<double> cursor) {
  std::vector<Point> points;
  for (int i = 0; i <= DeflectedShape::kStations; ++i) {
    const Float32& down = shape.deflection[i];
    points.push_back({shape.PlaceOf(i), -static_cast<double>(down.value())});
  }
  Diagram diagram(run.beam, 3 * LargestMagnitude(points), Colour::DarkOrange);
  diagram.Curve(points);
  return diagram.WithCursor(cursor);
}

}  // namespace lignara
