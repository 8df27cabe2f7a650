#include "truss/sketches.h"

#include <string>

#include "truss/member_layout.h"

namespace lignara {
namespace {

constexpr double kUnitsPerFoot = 100;
constexpr double kMargin = 200;
constexpr double kTextHeight = 220;
constexpr double kLetterWidth = 110;
/// Of a dimension line from what it measures.
constexpr double kDimensionGap = 250;
constexpr double kTick = 60;

constexpr double kExampleLength = 30;
constexpr double kFlatHeight = 5;
constexpr double kPitchedHeight = 9;
constexpr double kScissorsHeight = 10;
constexpr double kScissorsInnerHeight = 4;
constexpr int kExampleHalf = 3;

/// The truss that stands for its type.
TrussShape ExampleShape(std::string_view trussType) {
  TrussShape s;
  s.type = std::string(trussType);
  s.halfSpans = kExampleHalf;
  s.length = kExampleLength;
  s.panel = kExampleLength / (2 * kExampleHalf);
  s.height = HasLevelTop(trussType) ? kFlatHeight : kPitchedHeight;
  if (trussType == "KINGPOST") s.panel = kExampleLength / 2;
  if (trussType == "SCI") {
    s.height = kScissorsHeight;
    s.innerHeight = kScissorsInnerHeight;
    // Where the bottom chord of the other half, drawn on in line, meets the rafter.
    s.sciRun = s.length * s.innerHeight / (s.height + s.innerHeight);
    s.sciRise = s.sciRun * s.height / (s.length / 2);
  }
  return s;
}

/// A picture that grows shape by shape, measured in feet from the left support.
class Sketch {
 public:
  Sketch(const TrussShape& shape, double right, double below)
      : baseY_(kMargin + shape.height.value() * kUnitsPerFoot) {
    drawing.width = 2 * kMargin + shape.length.value() * kUnitsPerFoot + right;
    drawing.height = baseY_ + kMargin + below;
    drawing.textHeight = kTextHeight;
    for (const MemberLine& line : LayoutOf(shape)) {
      Line(X(line.from.x.value()), Y(line.from.y.value()), X(line.to.x.value()),
           Y(line.to.y.value()), Colour::Black);
    }
  }

  double X(double feet) const { return kMargin + feet * kUnitsPerFoot; }
  double Y(double feet) const { return baseY_ - feet * kUnitsPerFoot; }

  void Line(double x1, double y1, double x2, double y2, Colour colour) {
    drawing.shapes.emplace_back(LineShape{x1, y1, x2, y2, colour});
  }

  /// A level dimension line with its name above the middle.
  void LevelDimension(double x1, double x2, double y, const std::string& name) {
    Line(x1, y, x2, y, Colour::Gray);
    for (const double x : {x1, x2}) Line(x, y - kTick, x, y + kTick, Colour::Gray);
    const double width = kLetterWidth * static_cast<double>(name.size());
    drawing.shapes.emplace_back(TextShape{(x1 + x2 - width) / 2, y + kTick, name, Colour::Black});
  }

  /// An upright dimension line with its name to the right of the middle.
  void UprightDimension(double x, double y1, double y2, const std::string& name) {
    Line(x, y1, x, y2, Colour::Gray);
    for (const double y : {y1, y2}) Line(x - kTick, y, x + kTick, y, Colour::Gray);
    drawing.shapes.emplace_back(
        TextShape{x + kTick, (y1 + y2 - kTextHeight) / 2, name, Colour::Black});
  }

  Drawing drawing;

 private:
  double baseY_;
};

/// The peak's height, led out to the right of the truss.
void AddHeight(Sketch& sketch, const TrussShape& shape) {
  const double x = sketch.X(kExampleLength) + kDimensionGap;
  const double top = sketch.Y(shape.height.value());
  const double corner = HasLevelTop(shape.type) ? kExampleLength : kExampleLength / 2;
  sketch.Line(sketch.X(corner) + kTick, top, x, top, Colour::Gray);
  sketch.UprightDimension(x, top, sketch.Y(0), "H");
}

}  // namespace

Drawing TypePicture(std::string_view trussType) {
  return Sketch(ExampleShape(trussType), 0, 0).drawing;
}

Drawing ExampleSketch(std::string_view trussType) {
  const TrussShape shape = ExampleShape(trussType);
  const double textWidth = kTick + 2 * kLetterWidth;
  Sketch sketch(shape, kDimensionGap + textWidth, kDimensionGap + kTextHeight);
  if (LayoutOf(shape).empty()) return {};
  sketch.LevelDimension(sketch.X(0), sketch.X(kExampleLength), sketch.Y(0) + kDimensionGap,
                        "Total Length");
  AddHeight(sketch, shape);
  if (trussType == "SCI") {
    sketch.UprightDimension(sketch.X(kExampleLength / 2), sketch.Y(kScissorsInnerHeight),
                            sketch.Y(0), "H1");
  }
  return sketch.drawing;
}

Drawing SlopeSketch() {
  TrussShape nothing;
  nothing.length = 12.0;
  nothing.height = 5.0;
  Sketch sketch(nothing, 5 * kLetterWidth, kTextHeight);
  const double left = sketch.X(0), right = sketch.X(12), base = sketch.Y(0), top = sketch.Y(5);
  sketch.Line(left, base, right, base, Colour::Black);
  sketch.Line(right, base, right, top, Colour::Black);
  sketch.Line(right, top, left, base, Colour::Black);
  const auto text = [&](double x, double y, const char* name) {
    sketch.drawing.shapes.emplace_back(TextShape{x, y, name, Colour::Black});
  };
  text(right + kTick, (base + top - kTextHeight) / 2, "Rise");
  text((left + right) / 2 - 1.5 * kLetterWidth, base + kTick, "Run");
  return sketch.drawing;
}

}  // namespace lignara
