#include "truss/sketches.h"

#include <string>

#include "app/sketch_pen.h"
#include "truss/member_layout.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr double kUnitsPerFoot = 100;
constexpr double kMargin = 200;
constexpr double kTextHeight = 220;
/// Of a dimension line from what it measures.
constexpr double kDimensionGap = 250;
/// Room for the name of a height beside its line.
constexpr double kHeightNameWidth = 280;

constexpr double kRiseNameWidth = 550;

constexpr double kExampleLength = 30;
constexpr int kExampleHalf = 3;

/// The truss that stands for its type.
TrussShape ExampleShape(std::string_view trussType) {
  TrussShape s;
  const TrussTypeInfo& type = TrussTypeOf(trussType);
  s.type = type.keyword;
  s.halfSpans = kExampleHalf;
  s.length = kExampleLength;
  s.panel = kExampleLength / (type.onePanelAHalf ? 2 : 2 * kExampleHalf);
  s.height = type.example.height;
  s.innerHeight = type.example.innerHeight;
  // Scissors: where the bottom chord of the other half, drawn on in line, meets the rafter.
  s.sciRun = s.length * s.innerHeight / (s.height + s.innerHeight);
  s.sciRise = s.sciRun * s.height / (s.length / 2);
  return s;
}

/// A picture of a truss, measured in feet from the left support.
class Sketch : public SketchPen {
 public:
  Sketch(const TrussShape& shape, double right, double below)
      : SketchPen(2 * kMargin + shape.length.value() * kUnitsPerFoot + right,
                  Base(shape) + kMargin + below, kTextHeight),
        baseY_(Base(shape)) {
    for (const MemberLine& line : LayoutOf(shape)) {
      Line(X(line.from.x.value()), Y(line.from.y.value()), X(line.to.x.value()),
           Y(line.to.y.value()));
    }
  }

  double X(double feet) const { return kMargin + feet * kUnitsPerFoot; }
  double Y(double feet) const { return baseY_ - feet * kUnitsPerFoot; }

 private:
  static double Base(const TrussShape& shape) {
    return kMargin + shape.height.value() * kUnitsPerFoot;
  }

  double baseY_;
};

/// The peak's height, led out to the right of the truss.
void AddHeight(Sketch& sketch, const TrussShape& shape) {
  const double x = sketch.X(kExampleLength) + kDimensionGap;
  const double top = sketch.Y(shape.height.value());
  const double corner = TrussTypeOf(shape.type).levelTop ? kExampleLength : kExampleLength / 2;
  sketch.Line(sketch.X(corner) + sketch.tick(), top, x, top, Colour::Gray);
  sketch.UprightDimension(x, top, sketch.Y(0), "H");
}

}  // namespace

Drawing TypePicture(std::string_view trussType) {
  return Sketch(ExampleShape(trussType), 0, 0).drawing();
}

Drawing ExampleSketch(std::string_view trussType) {
  const TrussShape shape = ExampleShape(trussType);
  Sketch sketch(shape, kDimensionGap + kHeightNameWidth, kDimensionGap + kTextHeight);
  if (LayoutOf(shape).empty()) return {};
  sketch.LevelDimension(sketch.X(0), sketch.X(kExampleLength), sketch.Y(0) + kDimensionGap,
                        "Total Length");
  AddHeight(sketch, shape);
  if (shape.innerHeight > 0) {
    sketch.UprightDimension(sketch.X(kExampleLength / 2), sketch.Y(shape.innerHeight.value()),
                            sketch.Y(0), "H1");
  }
  return sketch.drawing();
}

Drawing SlopeSketch() {
  TrussShape nothing;
  nothing.length = 12.0;
  nothing.height = 5.0;
  Sketch sketch(nothing, kRiseNameWidth, kTextHeight);
  const double left = sketch.X(0), right = sketch.X(12), base = sketch.Y(0), top = sketch.Y(5);
  sketch.Path({{left, base}, {right, base}, {right, top}, {left, base}});
  sketch.Text(right + sketch.tick(), (base + top - kTextHeight) / 2, "Rise");
  sketch.Text((left + right - sketch.TextWidth("Run")) / 2, base + sketch.tick(), "Run");
  return sketch.drawing();
}

}  // namespace lignara
