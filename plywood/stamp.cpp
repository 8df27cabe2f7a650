#include "plywood/stamp.h"

#include <array>
#include <cctype>
#include <cstddef>
#include <string_view>

#include "app/sketch_pen.h"

namespace lignara {
namespace {

struct Box {
  double left, top, right, bottom;
};

constexpr Box kSheet = {60, 60, 4740, 2340};
constexpr Box kBorder = {600, 360, 4200, 2040};
constexpr Box kInnerBorder = {660, 420, 4140, 1980};
constexpr double kTextHeight = 260;
constexpr std::array<double, 3> kTextTops = {540, 1070, 1600};

void AddBox(SketchPen& pen, const Box& box, Colour colour) {
  pen.Box(box.left, box.top, box.right, box.bottom, colour);
}

/// Veneer runs along the sheet; the lines stop at a stamp and leave it clear.
void AddGrain(SketchPen& pen, bool stamped) {
  constexpr double kStep = 190;
  constexpr double kGap = 60;
  constexpr double kRagged = 110;
  bool longer = false;
  for (double y = kSheet.top + kStep; y < kSheet.bottom - kGap; y += kStep) {
    longer = !longer;
    const double left = kSheet.left + (longer ? kGap : kGap + kRagged);
    const double right = kSheet.right - (longer ? kGap + kRagged : kGap);
    const bool broken = stamped && y > kBorder.top - kGap && y < kBorder.bottom + kGap;
    if (broken) {
      pen.Line(left, y, kBorder.left - kGap, y, Colour::Gray);
      pen.Line(kBorder.right + kGap, y, right, y, Colour::Gray);
    } else {
      pen.Line(left, y, right, y, Colour::Gray);
    }
  }
}

/// The width of a letter in the usual screen fonts, as a share of the text height.
double LetterWidth(char letter) {
  if (std::string_view(" -/I").find(letter) != std::string_view::npos) return 0.33;
  return std::isupper(static_cast<unsigned char>(letter)) != 0 ? 0.68 : 0.61;
}

void AddCentred(SketchPen& pen, const std::string& text, double top) {
  double width = 0;
  for (const char letter : text) width += LetterWidth(letter) * kTextHeight;
  pen.Text((kBorder.left + kBorder.right - width) / 2, top, text);
}

SketchPen Sheet(bool stamped) {
  SketchPen pen(kSheet.left + kSheet.right, kSheet.top + kSheet.bottom, kTextHeight);
  AddBox(pen, kSheet, Colour::Gray);
  AddGrain(pen, stamped);
  return pen;
}

}  // namespace

Drawing PanelStamp(const std::string& panelClass, const std::string& gradeMark) {
  SketchPen pen = Sheet(true);
  AddBox(pen, kBorder, Colour::Black);
  AddBox(pen, kInnerBorder, Colour::Black);
  const std::array<std::string, 3> texts = {"APA", panelClass, gradeMark};
  for (std::size_t i = 0; i < texts.size(); ++i) AddCentred(pen, texts[i], kTextTops[i]);
  return pen.drawing();
}

Drawing UnstampedSheet() { return Sheet(false).drawing(); }

}  // namespace lignara
