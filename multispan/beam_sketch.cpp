#include "multispan/beam_sketch.h"

#include <algorithm>
#include <cmath>

#include "app/plain_number.h"

namespace lignara {
namespace {

constexpr double kWidth = 5000;
constexpr double kHeight = 1150;
constexpr double kMargin = 200;
constexpr double kBeamY = 700;
constexpr double kTextHeight = 75;
constexpr double kLetterWidth = 0.58 * kTextHeight;
constexpr double kGap = 15;  // between shapes that shall not touch

constexpr double kUniformTop = 170;  // of the largest uniform load, above the beam
constexpr double kPointTop = 450;    // of the largest point load
constexpr double kLeastPart = 0.45;  // of that, of the smallest load
constexpr double kArrowSpacing = 120;
constexpr double kArrowHead = 25;
constexpr double kSupport = 70;  // height of a support
constexpr double kWallReach = 120;
constexpr double kHatch = 40;
constexpr double kNumberY = kBeamY + 160;
constexpr double kLengthY = kNumberY + 100;

double TextWidth(const std::string& text) {
  return static_cast<double>(text.size()) * kLetterWidth;
}

/// Texts of one row, each centred at its place; one that would touch the last is left out.
class TextRow {
 public:
  TextRow(Drawing& drawing) : drawing_(drawing) {}

  void Put(double x, double y, const std::string& text, Colour colour, double room = kWidth) {
    const double width = TextWidth(text);
    const double left = std::clamp(x - width / 2, 0.0, kWidth - width);
    if (width > room || left < taken_) return;
    taken_ = left + width + kLetterWidth;
    drawing_.shapes.emplace_back(TextShape{left, y, text, colour});
  }

 private:
  Drawing& drawing_;
  double taken_ = 0;
};

/// Where the spans lie on the picture.
struct SpanPlaces {
  std::vector<double> ends;  ///< x of the left end of the beam, then of the right end of each span
  double scale = 1;          ///< picture units for a foot

  double Left(int j) const { return ends[static_cast<std::size_t>(j - 1)]; }
  double Right(int j) const { return ends[static_cast<std::size_t>(j)]; }
  double Width(int j) const { return Right(j) - Left(j); }
};

double LengthOf(const MultiSpanModel& model, int j) {
  return static_cast<double>(model.spanLength[j].value());
}

SpanPlaces PlaceSpans(const MultiSpanModel& model, int count) {
  double known = 0;
  int unknown = 0;
  for (int j = 1; j <= count; ++j) {
    known += std::max(LengthOf(model, j), 0.0);
    if (LengthOf(model, j) <= 0) ++unknown;
  }
  const double average = known > 0 ? known / (count - unknown) : 1;
  SpanPlaces places;
  places.scale = (kWidth - 2 * kMargin) / (known + average * unknown);
  places.ends.push_back(kMargin);
  for (int j = 1; j <= count; ++j) {
    const double length = LengthOf(model, j) > 0 ? LengthOf(model, j) : average;
    places.ends.push_back(places.ends.back() + length * places.scale);
  }
  return places;
}

/// Of many spans not all numbers have room: one in so many is shown, the last one always.
int NumberStep(int count) {
  const double number = TextWidth(std::to_string(count)) + kLetterWidth;
  return static_cast<int>(std::ceil(number * count / (kWidth - 2 * kMargin)));
}

/// The largest loads of the beam, for the scale of the arrows.
struct LargestLoads {
  double uniform = 0;
  double point = 0;
};

class BeamSketcher {
 public:
  BeamSketcher(const MultiSpanModel& model, int currentSpan)
      : model_(model),
        count_(std::min<int>(model.spanCount.value(), kMultiSpanLimit)),
        current_(currentSpan),
        numberStep_(NumberStep(count_)),
        at_(PlaceSpans(model, count_)),
        numbers_(drawing_),
        lengths_(drawing_),
        uniformValues_(drawing_),
        pointValues_(drawing_) {
    drawing_.width = kWidth;
    drawing_.height = kHeight;
    drawing_.textHeight = kTextHeight;
    FindLargestLoads();
  }

  Drawing Draw() {
    for (int j = 1; j <= count_; ++j) {
      DrawUniformLoad(j);
      DrawPointLoads(j);
      DrawSpan(j);
    }
    DrawEnd(at_.Left(1), -1, model_.farLeftSupport);
    for (int j = 1; j < count_; ++j) DrawRoller(j);
    DrawEnd(at_.Right(count_), 1, model_.farRightSupport);
    return std::move(drawing_);
  }

 private:
  void Line(double x1, double y1, double x2, double y2, Colour colour) {
    drawing_.shapes.emplace_back(LineShape{x1, y1, x2, y2, colour});
  }

  const Float32& Load(int j, int k) const {
    return model_.pointLoad[static_cast<std::size_t>(j)][k];
  }

  void FindLargestLoads() {
    for (int j = 1; j <= count_; ++j) {
      largest_.uniform = std::max(largest_.uniform, std::fabs(model_.spanUniform[j].value()));
      for (int k = 1; k <= kCountedPointLoads; ++k) {
        const double force = static_cast<double>(Load(j, k).value());
        largest_.point = std::max(largest_.point, std::fabs(force));
      }
    }
  }

  /// The height of a load's arrow: to scale, but never too small to be seen.
  static double ArrowHeight(double load, double largest, double top) {
    return top * std::max(std::fabs(load) / largest, kLeastPart);
  }

  /// An arrow onto the beam for a downward load, away from it for an upward one.
  void Arrow(double x, double height, bool downward, Colour colour) {
    const double top = kBeamY - height;
    const double tip = downward ? kBeamY : top;
    const double back = downward ? -kArrowHead : kArrowHead;
    Line(x, top, x, kBeamY, colour);
    Line(x - kArrowHead / 1.5, tip + back, x, tip, colour);
    Line(x + kArrowHead / 1.5, tip + back, x, tip, colour);
  }

  void DrawUniformLoad(int j) {
    const double load = model_.spanUniform[j].value();
    if (load == 0) return;
    const double height = ArrowHeight(load, largest_.uniform, kUniformTop);
    const double gaps = std::max(1.0, std::floor(at_.Width(j) / kArrowSpacing));
    Line(at_.Left(j), kBeamY - height, at_.Right(j), kBeamY - height, Colour::Blue);
    for (double i = 0; i <= gaps; ++i) {
      Arrow(at_.Left(j) + at_.Width(j) * i / gaps, height, load > 0, Colour::Blue);
    }
    LetterUniformLoad(j, kBeamY - height - kTextHeight - kGap);
  }

  /// The value of a load over its span, or once over all neighbours that bear the same where they
  /// are too short for it.
  void LetterUniformLoad(int j, double y) {
    const std::string value = PlainNumber(model_.spanUniform[j]);
    int first = j;
    int last = j;
    if (TextWidth(value) > at_.Width(j)) {
      while (first > 1 && SameUniform(first - 1, j)) --first;
      while (last < count_ && SameUniform(last + 1, j)) ++last;
    }
    if (first != j) return;  // lettered with the first of them
    const double room = at_.Right(last) - at_.Left(j);
    uniformValues_.Put(at_.Left(j) + room / 2, y, value, Colour::Blue, room);
  }

  bool SameUniform(int i, int j) const {
    return model_.spanUniform[i].value() == model_.spanUniform[j].value();
  }

  void DrawPointLoads(int j) {
    const bool counts = Load(j, 1).value() != 0;
    for (int k = 1; k <= kCountedPointLoads; ++k) {
      const double force = static_cast<double>(Load(j, k).value());
      if (force == 0) continue;
      const auto place = static_cast<double>(model_.pointX[static_cast<std::size_t>(j)][k].value());
      const double x = at_.Left(j) + place * at_.scale;
      const bool taken = counts && k <= model_.pointCount[j].value();
      const Colour colour = taken ? Colour::Red : Colour::Gray;
      const double height = ArrowHeight(force, largest_.point, kPointTop);
      Arrow(x, height, force > 0, colour);
      pointValues_.Put(x, kBeamY - height - kTextHeight - kGap, PlainNumber(Load(j, k)), colour);
    }
  }

  void DrawSpan(int j) {
    const bool known = LengthOf(model_, j) > 0;
    const Colour colour = !known ? Colour::Gray : j == current_ ? Colour::RoyalBlue : Colour::Black;
    Line(at_.Left(j), kBeamY, at_.Right(j), kBeamY, colour);
    if (j == current_)
      Line(at_.Left(j), kBeamY + kGap, at_.Right(j), kBeamY + kGap, Colour::RoyalBlue);
    const double middle = (at_.Left(j) + at_.Right(j)) / 2;
    const Colour letters = j == current_ ? Colour::RoyalBlue : Colour::Black;
    if ((count_ - j) % numberStep_ == 0) {
      numbers_.Put(middle, kNumberY, std::to_string(j), letters);
    }
    if (!known) return;
    lengths_.Put(middle, kLengthY, PlainNumber(model_.spanLength[j]) + " ft", Colour::Gray,
                 at_.Width(j));
  }

  /// The ground under a support.
  void Ground(double x) {
    Line(x - kSupport, kBeamY + kSupport + kGap, x + kSupport, kBeamY + kSupport + kGap,
         Colour::Black);
  }

  /// A roller under a joint, smaller where the spans beside it are short on the picture.
  void DrawRoller(int joint) {
    const double x = at_.Right(joint);
    const double room = std::min(at_.Width(joint), at_.Width(joint + 1));
    const double size = std::min(kSupport, room / 2);
    const double ground = kBeamY + kGap + size;
    drawing_.shapes.emplace_back(CircleShape{x, kBeamY + kGap + size / 2, size / 2, Colour::Black});
    Line(x - size / 2, ground, x + size / 2, ground, Colour::Black);
  }

  void DrawPin(double x) {
    Line(x, kBeamY + kGap, x - kSupport / 1.5, kBeamY + kSupport + kGap, Colour::Black);
    Line(x, kBeamY + kGap, x + kSupport / 1.5, kBeamY + kSupport + kGap, Colour::Black);
    Ground(x);
  }

  /// A wall, hatched on its far side: `side` is -1 at the left end, 1 at the right one.
  void DrawWall(double x, int side) {
    Line(x, kBeamY - kWallReach, x, kBeamY + kWallReach, Colour::Black);
    for (double y = -kWallReach; y < kWallReach; y += kHatch) {
      Line(x, kBeamY + y, x + side * kHatch, kBeamY + y + kHatch, Colour::Black);
    }
  }

  void DrawEnd(double x, int side, EndSupport support) {
    if (support == EndSupport::Fixed) DrawWall(x, side);
    if (support == EndSupport::Pinned) DrawPin(x);
  }

  const MultiSpanModel& model_;
  int count_;
  int current_;
  int numberStep_;
  SpanPlaces at_;
  LargestLoads largest_;
  Drawing drawing_;
  TextRow numbers_, lengths_, uniformValues_, pointValues_;
};

}  // namespace

Drawing DrawBeamSketch(const MultiSpanModel& model, int currentSpan) {
  return BeamSketcher(model, currentSpan).Draw();
}

}  // namespace lignara
