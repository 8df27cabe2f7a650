#include "beam/load_picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "app/plain_number.h"
#include "app/sketch_pen.h"
#include "beam/label_rooms.h"
#include "beam/load_lanes.h"

namespace lignara {
namespace {

/// One unit of the sketch in units of the picture, whose lines are a few of those wide.
constexpr double kUnit = 10;
constexpr double kWidth = 1000, kTextHeight = 17;
constexpr double kLeft = 110, kRight = 890;  // the ends of the beam
constexpr double kHalfDepth = 3;
constexpr double kDimensionPitch = 24;
constexpr int kDimensionRows = 3;  // above that of the span

/// Where things stand, from top to bottom. A low picture keeps its letters legible beside open
/// panels; many loads need more room above each other.
struct Heights {
  explicit Heights(int loads) : whole(loads > kFew ? 440 : 360) {}

  double Beam() const { return whole / 2; }              ///< its axis
  double Top() const { return Beam() - kHalfDepth; }     ///< where loads from above end
  double Bottom() const { return Beam() + kHalfDepth; }  ///< and those from below
  double Dimensions() const { return whole - 98; }
  /// For loads and their labels.
  double Above() const { return Top() - 2 * kTextHeight; }
  double Below() const { return Dimensions() - 8 - Bottom(); }
  double TallestPoint() const { return whole / 4; }

  static constexpr int kFew = 12;
  double whole;
};

/// About the width of a text, in the letters that most screens have.
double WidthOf(const std::string& text) {
  if (text == "W" || text == "M") return 0.95 * kTextHeight;
  return 0.6 * kTextHeight * static_cast<double>(text.size());
}

/// Draws one beam with its loads.
class LoadSketch {
 public:
  LoadSketch(const SingleSpanBeam& beam, int chosen)
      : beam_(beam),
        chosen_(chosen),
        at_(beam.loadCount.value()),
        lanes_(FindLanes(beam)),
        pen_(kWidth, at_.whole, kTextHeight),
        labels_(at_.Dimensions()) {}

  void Draw();
  Drawing Take() const;

 private:
  /// How one load is drawn.
  using Draft = void (LoadSketch::*)(int load);
  static Draft DraftOf(LoadKind kind);

  void DrawBeam();
  void DrawSupport(double x, SupportType support, double outward);
  void DrawPoint(int load);
  void DrawUniform(int load);
  void DrawMoment(int load);
  void DrawDisplacement(int load);
  void DrawAxial(int load);
  void DrawNotes();
  void DrawDimensions();
  void DrawDimensionsOf(int load, double y);

  void FindScales();
  bool IsUpward(int load) const { return beam_.loadW[load] < 0; }
  double LaneHeight(int load) const {
    return IsUpward(load) ? std::min(70.0, at_.Below() / std::max(lanes_.below, 1))
                          : std::min(74.0, at_.Above() / std::max(lanes_.above, 1));
  }
  double At(const Number& feet) const;
  /// The height of a load to scale, between the smallest that is seen and the tallest.
  static double ToScale(double value, double largest, double least, double most);
  Colour ColourOf(int load, Colour usual) const { return load == chosen_ ? Colour::Red : usual; }
  /// A letter and its number, at the first free place from (x, y) on, `step` by `step`. Where the
  /// number finds no room the letter stands alone, and where that finds none nothing stands.
  void Label(double x, double y, double step, const char* letter, const std::string& number,
             int load, Colour colour);

  const SingleSpanBeam& beam_;
  const int chosen_;
  const Heights at_;
  const LoadLanes lanes_;
  SketchPen pen_;
  double largestP_ = 0, largestW_ = 0;
  LabelRooms labels_;
};

double LoadSketch::At(const Number& feet) const {
  return kLeft + (kRight - kLeft) * (feet / beam_.spanLength).value();
}

double LoadSketch::ToScale(double value, double largest, double least, double most) {
  const double share = largest > 0 ? std::fabs(value) / largest : 0;
  return least + (most - least) * share;
}

void LoadSketch::FindScales() {
  for (int load = 1; load <= beam_.loadCount.value(); ++load) {
    const LoadKind kind = beam_.KindOf(load);
    if (kind == LoadKind::PointLoad) {
      largestP_ = std::max(largestP_, std::fabs(static_cast<double>(beam_.loadP[load].value())));
    }
    if (IsDistributed(kind)) {
      largestW_ = std::max(largestW_, std::fabs(static_cast<double>(beam_.loadW[load].value())));
    }
  }
}

void LoadSketch::Label(double x, double y, double step, const char* letter,
                       const std::string& number, int load, Colour colour) {
  constexpr double kGap = 0.3 * kTextHeight;
  const double letterWidth = WidthOf(letter) + kGap;
  for (const double numberWidth : {WidthOf(number), 0.0}) {
    const double width = letterWidth + numberWidth;
    LabelRoom room{std::clamp(x - width / 2, 0.0, kWidth - width), y, width + kGap, kTextHeight};
    if (!labels_.Take(room, step)) continue;
    pen_.Text(room.x, room.y, letter, ColourOf(load, colour));
    if (numberWidth > 0) pen_.Text(room.x + letterWidth, room.y, number, ColourOf(load, colour));
    return;
  }
}

/// An arrow that ends on the beam, from above for a downward load.
void LoadSketch::DrawPoint(int load) {
  const double P = beam_.loadP[load].value();
  const bool down = P >= 0;
  const double height =
      ToScale(P, largestP_, 26, down ? at_.TallestPoint() : at_.Below() - kTextHeight - 2);
  const double x = At(beam_.loadA[load]);
  const double tail = down ? at_.Top() - height : at_.Bottom() + height;
  pen_.Arrow(x, tail, x, down ? at_.Top() : at_.Bottom(), ColourOf(load, Colour::Blue));
  Label(x, down ? tail - kTextHeight - 2 : tail + 2, down ? -kTextHeight : kTextHeight, "P",
        PlainNumber(beam_.loadP[load]) + " lbs", load, Colour::Blue);
}

/// A block, a triangle with its base on the beam, filled with arrows where there is room.
void LoadSketch::DrawUniform(int load) {
  const double W = beam_.loadW[load].value();
  const double towards = W >= 0 ? -1 : 1;
  const double lane = LaneHeight(load);
  const double full = std::min(lane - std::min(4.0, lane / 3), ToScale(W, largestW_, 12, 70));
  const double base = (W >= 0 ? at_.Top() : at_.Bottom()) +
                      towards * lane * lanes_.laneOf[static_cast<std::size_t>(load)];
  const double x1 = At(beam_.loadA[load]), x2 = At(beam_.loadA[load] + beam_.loadB[load]);
  const LoadKind kind = beam_.KindOf(load);
  const double h1 = kind == LoadKind::SlopedLeftZero ? 0 : full;
  const double h2 = kind == LoadKind::SlopedRightZero ? 0 : full;
  const Colour colour = ColourOf(load, Colour::RoyalBlue);
  pen_.Path(
      {{x1, base}, {x1, base + towards * h1}, {x2, base + towards * h2}, {x2, base}, {x1, base}},
      colour);
  const int arrows = std::clamp(static_cast<int>(std::fabs(x2 - x1) / 30), 0, 26);
  for (int i = 1; i < arrows && full >= 20; ++i) {
    const double x = x1 + (x2 - x1) * i / arrows;
    const double height = h1 + (h2 - h1) * i / arrows;
    if (height >= 12) pen_.Arrow(x, base + towards * height, x, base, colour);
  }
  const double tip = base + towards * full;
  Label((x1 + x2) / 2, towards < 0 ? tip - kTextHeight - 2 : tip + 2, towards * kTextHeight, "W",
        PlainNumber(beam_.loadW[load]) + " lbs/ft", load, Colour::RoyalBlue);
}

/// Three quarters of a circle with a head; a positive moment turns clockwise.
void LoadSketch::DrawMoment(int load) {
  constexpr double kRadius = 22;
  constexpr int kSegments = 12;
  const double x = At(beam_.loadA[load]);
  const double turn = beam_.loadM[load] >= 0 ? 1 : -1;
  const Colour colour = ColourOf(load, Colour::DarkOrange);
  const auto point = [&](int i) {
    const double angle = std::numbers::pi * (-1.25 + 1.5 * i / kSegments);
    return std::pair{x + turn * kRadius * std::cos(angle), at_.Beam() + kRadius * std::sin(angle)};
  };
  SketchPen::Points points;
  for (int i = 0; i < kSegments; ++i) points.push_back(point(i));
  pen_.Path(points, colour);
  pen_.Arrow(points.back().first, points.back().second, point(kSegments).first,
             point(kSegments).second, colour);
  Label(x, at_.Beam() - kRadius - kTextHeight - 2, -kTextHeight, "M",
        PlainNumber(beam_.loadM[load]) + " ft-lb", load, Colour::DarkOrange);
}

void LoadSketch::DrawDisplacement(int load) {
  constexpr double kReach = 45;
  const bool left = beam_.KindOf(load) == LoadKind::LeftDisplacement;
  const double x = left ? kLeft - 34 : kRight + 34;
  const double towards = beam_.loadDisp[load] >= 0 ? -1 : 1;
  pen_.Arrow(x, at_.Beam() - towards * kReach / 2, x, at_.Beam() + towards * kReach,
             ColourOf(load, Colour::Black));
  Label(x, at_.Beam() - kReach - kTextHeight - 2, -kTextHeight, "Disp",
        PlainNumber(beam_.loadDisp[load]) + " in", load, Colour::Black);
}

/// An arrow at each end: away from the beam for tension.
void LoadSketch::DrawAxial(int load) {
  constexpr double kGap = 14, kReach = 62;
  const bool tension = beam_.loadAxial[load] >= 0;
  const Colour colour = ColourOf(load, Colour::DarkOrange);
  for (const auto& [end, outward] : {std::pair{kLeft, -1.0}, std::pair{kRight, 1.0}}) {
    const double near = end + outward * kGap, far = end + outward * kReach;
    pen_.Arrow(tension ? near : far, at_.Beam(), tension ? far : near, at_.Beam(), colour);
  }
  constexpr double kBelowSupport = 38;
  Label(kRight + 56, at_.Beam() + kBelowSupport, kTextHeight, "P",
        PlainNumber(beam_.loadAxial[load]) + " lbs", load, Colour::DarkOrange);
}

/// The sense of an axial load, in the corner.
void LoadSketch::DrawNotes() {
  double y = 8;
  for (const char* note : {"(+) = Tension", "(-) = compression"}) {
    LabelRoom room{8, y, WidthOf(note), kTextHeight};
    labels_.Take(room, 0);
    pen_.Text(room.x, room.y, note);
    y += 1.2 * kTextHeight;
  }
}

LoadSketch::Draft LoadSketch::DraftOf(LoadKind kind) {
  switch (kind) {
    case LoadKind::PointLoad:
      return &LoadSketch::DrawPoint;
    case LoadKind::LevelUniform:
    case LoadKind::SlopedLeftZero:
    case LoadKind::SlopedRightZero:
      return &LoadSketch::DrawUniform;
    case LoadKind::PointMoment:
      return &LoadSketch::DrawMoment;
    case LoadKind::LeftDisplacement:
    case LoadKind::RightDisplacement:
      return &LoadSketch::DrawDisplacement;
    case LoadKind::AxialLoad:
      return &LoadSketch::DrawAxial;
  }
  return &LoadSketch::DrawPoint;
}

/// A wall for a fixed end, a hinge for a pinned one.
void LoadSketch::DrawSupport(double x, SupportType support, double outward) {
  if (support == SupportType::Fixed) {
    constexpr double kWall = 36;
    pen_.Line(x, at_.Beam() - kWall, x, at_.Beam() + kWall);
    for (double y = at_.Beam() - kWall; y < at_.Beam() + kWall; y += 12) {
      pen_.Line(x, y, x + outward * 9, y + 9, Colour::Gray);
    }
  }
  if (support == SupportType::Pinned) {
    constexpr double kSide = 14, kRise = 24;
    pen_.Path({{x, at_.Bottom()},
               {x - kSide, at_.Bottom() + kRise},
               {x + kSide, at_.Bottom() + kRise},
               {x, at_.Bottom()}});
    for (double at = -kSide; at <= kSide; at += 7) {
      pen_.Line(x + at, at_.Bottom() + kRise, x + at - 6, at_.Bottom() + kRise + 7, Colour::Gray);
    }
  }
}

void LoadSketch::DrawBeam() {
  pen_.Box(kLeft, at_.Top(), kRight, at_.Bottom());
  DrawSupport(kLeft, beam_.leftSupport, -1);
  DrawSupport(kRight, beam_.rightSupport, 1);
}

void LoadSketch::DrawDimensionsOf(int load, double y) {
  const LoadKindInfo& kind = LoadKindOf(beam_.KindOf(load));
  const auto draw = [&](const char* letter, const Number& from, const Float32& length) {
    if (length == 0) return;
    const double x1 = At(from), x2 = At(from + length);
    pen_.LevelDimension(x1, x2, y, letter);
    pen_.Text((x1 + x2) / 2 + pen_.letterWidth() * 2, y + pen_.tick(), PlainNumber(length) + " ft");
  };
  if (kind.Shows(LoadField::A)) draw("A", 0.0, beam_.loadA[load]);
  if (kind.Shows(LoadField::B)) draw("B", beam_.loadA[load], beam_.loadB[load]);
}

/// Of few loads all places are lettered, of many that of the chosen one, or of the latest.
void LoadSketch::DrawDimensions() {
  std::vector<int> placed;
  for (int load = 1; load <= beam_.loadCount.value(); ++load) {
    if (LoadKindOf(beam_.KindOf(load)).Shows(LoadField::A)) placed.push_back(load);
  }
  if (static_cast<int>(placed.size()) > kDimensionRows) {
    placed = {chosen_ > 0 ? chosen_ : placed.back()};
  }
  double y = at_.Dimensions();
  for (const int load : placed) {
    DrawDimensionsOf(load, y);
    y += kDimensionPitch;
  }
  y = at_.Dimensions() + kDimensionRows * kDimensionPitch;
  pen_.LevelDimension(kLeft, kRight, y, "L");
  pen_.Text((kLeft + kRight) / 2 + pen_.letterWidth() * 2, y + pen_.tick(),
            PlainNumber(beam_.spanLength) + " ft");
}

void LoadSketch::Draw() {
  FindScales();
  DrawBeam();
  if (HasLoadOf(beam_, LoadKind::AxialLoad)) DrawNotes();
  // The chosen load finds room for its label first.
  if (chosen_ > 0) (this->*DraftOf(beam_.KindOf(chosen_)))(chosen_);
  for (int load = 1; load <= beam_.loadCount.value(); ++load) {
    if (load != chosen_) (this->*DraftOf(beam_.KindOf(load)))(load);
  }
  DrawDimensions();
}

Drawing LoadSketch::Take() const {
  Drawing drawing = pen_.drawing();
  drawing.width *= kUnit;
  drawing.height *= kUnit;
  drawing.textHeight *= kUnit;
  for (Shape& shape : drawing.shapes) {
    if (auto* line = std::get_if<LineShape>(&shape)) {
      for (double* at : {&line->x1, &line->y1, &line->x2, &line->y2}) *at *= kUnit;
    } else if (auto* text = std::get_if<TextShape>(&shape)) {
      for (double* at : {&text->x, &text->y}) *at *= kUnit;
    }
  }
  return drawing;
}

}  // namespace

void DrawLoadPicture(BeamWindow& window, Platform& platform) {
  if (!(window.beam.spanLength > 0)) platform.ShowMessage({"YOU NEED A VALUE FOR LENGTH !"});
  ShowLoadPicture(window);
}

void ShowLoadPicture(BeamWindow& window) {
  window.loadPicture = {};
  if (!(window.beam.spanLength > 0)) return;
  LoadSketch sketch(window.beam, window.loads.row + 1);
  sketch.Draw();
  window.loadPicture = sketch.Take();
}

}  // namespace lignara
