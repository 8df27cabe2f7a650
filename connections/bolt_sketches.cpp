#include "connections/bolt_sketches.h"

#include <cmath>

#include "app/sketch_pen.h"

namespace lignara {
namespace {

constexpr double kTextHeight = 180;
constexpr Colour kSteel = Colour::RoyalBlue;
constexpr Colour kGrain = Colour::Gray;

/// A piece of timber that is shown in part; a broken end goes on.
struct Timber {
  double left, top, right, bottom;
  bool brokenLeft, brokenRight;
};

void DrawEnd(SketchPen& pen, double x, double top, double bottom, bool broken) {
  const double middle = (top + bottom) / 2;
  if (broken) {
    pen.Path({{x, top},
              {x, middle - 60},
              {x + 70, middle - 20},
              {x - 70, middle + 20},
              {x, middle + 60},
              {x, bottom}});
  } else {
    pen.Line(x, top, x, bottom);
  }
}

void DrawTimber(SketchPen& pen, const Timber& t) {
  constexpr double kEndGap = 140;
  for (const double part : {0.3, 0.7}) {
    const double y = t.top + part * (t.bottom - t.top);
    pen.Line(t.left + kEndGap, y, t.right - kEndGap, y, kGrain);
  }
  pen.Line(t.left, t.top, t.right, t.top);
  pen.Line(t.left, t.bottom, t.right, t.bottom);
  DrawEnd(pen, t.left, t.top, t.bottom, t.brokenLeft);
  DrawEnd(pen, t.right, t.top, t.bottom, t.brokenRight);
}

/// A bolt through members from one outer face to the other, with head, washers and nut.
void DrawBolt(SketchPen& pen, double x, double top, double bottom) {
  constexpr double kShank = 45, kHead = 110, kWasher = 180;
  constexpr double kWasherThickness = 40, kHeadHeight = 90, kThreadEnd = 70;
  pen.Box(x - kWasher, top - kWasherThickness, x + kWasher, top, kSteel);
  pen.Box(x - kHead, top - kWasherThickness - kHeadHeight, x + kHead, top - kWasherThickness,
          kSteel);
  pen.Box(x - kWasher, bottom, x + kWasher, bottom + kWasherThickness, kSteel);
  const double nutEnd = bottom + kWasherThickness + kHeadHeight;
  pen.Box(x - kHead, bottom + kWasherThickness, x + kHead, nutEnd, kSteel);
  for (const double side : {x - kShank, x + kShank}) {
    pen.Line(side, top, side, bottom, kSteel);
    pen.Line(side, nutEnd, side, nutEnd + kThreadEnd, kSteel);
  }
  pen.Line(x - kShank, nutEnd + kThreadEnd, x + kShank, nutEnd + kThreadEnd, kSteel);
}

/// A side member ends at the right, the main member at the left, and both pass the bolt.
struct JointLayout {
  static constexpr double kSideLeft = 480, kSideRight = 2000;
  static constexpr double kMainLeft = 1000, kMainRight = 2560;
  static constexpr double kBolt = 1500;
  static constexpr double kSideNames = 330, kMainName = 2720;
};

void DrawSideMember(SketchPen& pen, double top, double bottom, const char* name) {
  DrawTimber(pen, {JointLayout::kSideLeft, top, JointLayout::kSideRight, bottom, true, false});
  pen.UprightDimension(JointLayout::kSideNames, top, bottom, name, SketchPen::NameSide::Left);
}

void DrawMainMember(SketchPen& pen, double top, double bottom, const char* name) {
  DrawTimber(pen, {JointLayout::kMainLeft, top, JointLayout::kMainRight, bottom, false, true});
  pen.UprightDimension(JointLayout::kMainName, top, bottom, name);
}

}  // namespace

Drawing JointSketch(bool singleShear) {
  SketchPen pen(4500, 1900, kTextHeight);
  if (singleShear) {
    DrawSideMember(pen, 500, 850, "L2");
    DrawMainMember(pen, 850, 1350, "L1(main)");
    DrawBolt(pen, JointLayout::kBolt, 500, 1350);
  } else {
    DrawSideMember(pen, 380, 680, "L2");
    DrawMainMember(pen, 680, 1180, "L1(main member)");
    DrawSideMember(pen, 1180, 1480, "L3");
    DrawBolt(pen, JointLayout::kBolt, 380, 1480);
  }
  return pen.drawing();
}

Drawing LoadAngleSketch() {
  constexpr double kX = 700, kY = 1000;  // of the bolt
  constexpr double kAngle = 0.6;         // radians
  constexpr double kLoad = 1150, kArc = 560, kName = 690;
  constexpr int kArcParts = 12;
  SketchPen pen(2200, 1500, kTextHeight);
  DrawTimber(pen, {200, 720, 2000, 1280, true, true});
  pen.Line(kX, kY, kX + kLoad, kY);
  SketchPen::Points arc;
  for (int i = 0; i <= kArcParts; ++i) {
    const double at = kAngle * i / kArcParts;
    arc.emplace_back(kX + kArc * std::cos(at), kY - kArc * std::sin(at));
  }
  pen.Path(arc);
  pen.Circle(kX, kY, 90, kSteel);
  pen.Arrow(kX, kY, kX + kLoad * std::cos(kAngle), kY - kLoad * std::sin(kAngle), Colour::Red);
  pen.Text(kX + kName * std::cos(kAngle / 2) - pen.letterWidth() / 2,
           kY - kName * std::sin(kAngle / 2) - kTextHeight / 2, "A");
  return pen.drawing();
}

Drawing TensionRodSketch() {
  constexpr double kX = 750;  // axis of the rod
  constexpr double kTimberTop = 560, kTimberBottom = 1160;
  constexpr double kRod = 45, kNut = 110, kPlate = 320;  // half widths
  constexpr double kPlateTop = 480, kNutTop = 380, kRodTop = 300, kRodEnd = 1420;
  SketchPen pen(1500, 1900, 140);
  DrawTimber(pen, {150, kTimberTop, 1350, kTimberBottom, true, true});
  pen.Box(kX - kPlate, kPlateTop, kX + kPlate, kTimberTop, kSteel);
  pen.Box(kX - kNut, kNutTop, kX + kNut, kPlateTop, kSteel);
  pen.Path({{kX - kRod, kNutTop}, {kX - kRod, kRodTop}, {kX + kRod, kRodTop}, {kX + kRod, kNutTop}},
           kSteel);
  for (const double side : {kX - kRod, kX + kRod}) {
    pen.Line(side, kTimberTop, side, kRodEnd, kSteel);
  }
  pen.Arrow(kX, kRodEnd, kX, 1780, Colour::Red);
  pen.Text(kX + kNut, 1500, "Load");
  return pen.drawing();
}

}  // namespace lignara
