#include "plywood/stamp.h"

#include <array>
#include <cctype>
#include <cstddef>
#include <string_view>

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

void AddBox(Drawing& drawing, const Box& box, Colour colour) {
  const auto& [left, top, right, bottom] = box;
  for (const LineShape& side :
       {LineShape{left, top, right, top, colour}, LineShape{right, top, right, bottom, colour},
        LineShape{right, bottom, left, bottom, colour},
        LineShape{left, bottom, left, top, colour}}) {
    drawing.shapes.emplace_back(side);
  }
}

/// Veneer runs along the sheet; the lines stop at a stamp and leave it clear.
void AddGrain(Drawing& drawing, bool stamped) {
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
      drawing.shapes.emplace_back(LineShape{left, y, kBorder.left - kGap, y, Colour::Gray});
      drawing.shapes.emplace_back(LineShape{kBorder.right + kGap, y, right, y, Colour::Gray});
    } else {
      drawing.shapes.emplace_back(LineShape{left, y, right, y, Colour::Gray});
    }
  }
}

/// The width of a letter in the usual screen fonts, as a share of the text height.
double LetterWidth(char letter) {
  if (std::string_view(" -/I").find(letter) != std::string_view::npos) return 0.33;
  return std::isupper(static_cast<unsigned char>(letter)) != 0 ? 0.68 : 0.61;
}

void AddCentred(Drawing& drawing, const std::string& text, double top) {
  double width = 0;
  for (const char letter : text) width += LetterWidth(letter) * kTextHeight;
  drawing.shapes.emplace_back(
      TextShape{(kBorder.left + kBorder.right - width) / 2, top, text, Colour::Black});
}

Drawing Sheet(bool stamped) {
  Drawing drawing;
  drawing.width = kSheet.left + kSheet.right;
  drawing.height = kSheet.top + kSheet.bottom;
  drawing.textHeight = kTextHeight;
  AddBox(drawing, kSheet, Colour::Gray);
  AddGrain(drawing, stamped);
  return drawing;
}

}  // namespace

Drawing PanelStamp(const std::string& panelClass, const std::string& gradeMark) {
  Drawing drawing = Sheet(true);
  AddBox(drawing, kBorder, Colour::Black);
  AddBox(drawing, kInnerBorder, Colour::Black);
  const std::array<std::string, 3> texts = {"APA", panelClass, gradeMark};
  for (std::size_t i = 0; i < texts.size(); ++i) AddCentred(drawing, texts[i], kTextTops[i]);
  return drawing;
}

Drawing UnstampedSheet() { return Sheet(false); }

}  // namespace lignara
