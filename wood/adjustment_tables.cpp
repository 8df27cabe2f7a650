#include "wood/adjustment_tables.h"

#include <cstddef>

namespace lignara {
namespace {

constexpr int kWidths = 7;
using ByWidth = std::array<float, kWidths>;
using ByGradeClass = std::array<ByWidth, 4>;

// clang-format off

// Western woods: size factor for Fb. One block for members 2 or 3 in. thick, one for thicker ones.
// Columns: 2, 3 or 4 in | 5 in | 6 in | 8 in | 10 in | 12 in | greater than 14 in.
constexpr std::array<ByGradeClass, 2> kSizeFb = {{
    {{{1.5, 1.4, 1.3, 1.2, 1.1, 1.0, 0.9},      // Select to No. 3
      {1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},      // Construction, Standard
      {0.4, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},      // Utility
      {1.1, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0}}},    // Stud
    {{{1.5, 1.4, 1.3, 1.3, 1.2, 1.1, 1.0},
      {1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},
      {1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},
      {1.1, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0}}},
}};

// Western woods: size factor for Ft, of any thickness.
constexpr ByGradeClass kSizeFt = {{
    {1.5, 1.4, 1.3, 1.2, 1.1, 1.0, 0.9},
    {1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},
    {0.4, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},
    {1.1, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0},
}};

// Western woods: size factor for Fc along the grain, of any thickness.
constexpr ByGradeClass kSizeFc = {{
    {1.15, 1.1, 1.1, 1.05, 1.0, 1.0, 0.9},
    {1.0,  1.0, 1.0, 1.0,  1.0, 1.0, 1.0},
    {0.6,  1.0, 1.0, 1.0,  1.0, 1.0, 1.0},
    {1.05, 1.0, 1.0, 1.0,  1.0, 1.0, 1.0},
}};

// Flat use: the load acts on the wide face.
constexpr std::array<ByWidth, 3> kFlatUse = {{
    {1.0, 1.1, 1.15, 1.15, 1.2, 1.2, 1.2},  // 2 or 3 in
    {1.0, 1.0, 1.05, 1.1,  1.1, 1.1, 1.1},  // 4 in
    {1.0, 1.0, 1.05, 1.1,  1.1, 1.1, 1.1},  // greater than 4 in
}};

// Permanent | 10 yr (normal) | 2 mo (snow) | 7 day | 1 day | 10 min (earthquake) | Impact.
constexpr ByWidth kLoadDuration = {0.9, 1.0, 1.15, 1.25, 1.33, 1.6, 2.0};

// No split | split < 1/2 thru | split >= 1/2 thru.
constexpr std::array<float, 3> kShearCondition = {2.0, 1.33, 1.0};

// Grade class of the rows Select, Structural, No. 1, No. 2, No. 3, Construction, Standard, Utility,
// Stud; thickness class of the rows 2 or 3 in, 4 in, greater than 4 in.
constexpr std::array<int, 9> kGradeClass = {1, 1, 1, 1, 1, 2, 2, 3, 4};
constexpr std::array<int, 3> kThicknessClass = {1, 2, 2};

// clang-format on

/// The element that belongs to a list row, where row 1 is the first element; nothing for the blank
/// row and for rows outside.
template <typename Array>
const typename Array::value_type* AtRow(const Array& table, int row) {
  const bool has = row >= 1 && row <= static_cast<int>(table.size());
  return has ? &table[static_cast<std::size_t>(row) - 1] : nullptr;
}

template <typename Array>
float Factor(const Array& table, int row) {
  const float* factor = AtRow(table, row);
  return factor == nullptr ? 1.0F : *factor;
}

template <typename Rows>
float Factor(const Rows& table, int row, int widthRow) {
  const ByWidth* line = AtRow(table, row);
  return line == nullptr ? 1.0F : Factor(*line, widthRow);
}

std::array<float, 3> WesternSizeFactors(int widthRow, int thicknessRow, int gradeRow) {
  const int* grade = AtRow(kGradeClass, gradeRow);
  const int* thickness = AtRow(kThicknessClass, thicknessRow);
  const int gradeClass = grade == nullptr ? 0 : *grade;
  const float fb =
      thickness == nullptr ? 1.0F : Factor(*AtRow(kSizeFb, *thickness), gradeClass, widthRow);
  return {fb, Factor(kSizeFt, gradeClass, widthRow), Factor(kSizeFc, gradeClass, widthRow)};
}

/// The published stresses of southern pine hold for one width each; what is left of the size
/// effect are three rules, of which a later one overrides what stands before it.
std::array<float, 3> SouthernPineSizeFactors(int widthRow, int thicknessRow) {
  constexpr int k5in = 2;
  constexpr int k8in = 4;
  constexpr int k12in = 6;
  constexpr int k4inThick = 2;
  constexpr int kThicker = 3;
  std::array<float, 3> factors = {1.0, 1.0, 1.0};
  if (widthRow >= k8in && thicknessRow >= k4inThick) factors = {1.1F, 1.0, 1.0};
  if (widthRow >= k12in) factors = {0.9F, 0.9F, 0.9F};
  if (thicknessRow == kThicker && widthRow >= k5in) factors = {1.0, 1.0, 1.0};
  return factors;
}

}  // namespace

std::array<float, 3> SizeFactors(WoodFamily family, int widthRow, int thicknessRow, int gradeRow) {
  switch (family) {
    case WoodFamily::SouthernPine:
      return SouthernPineSizeFactors(widthRow, thicknessRow);
    case WoodFamily::MachineRated:
      return {1.0, 1.0, 1.0};
    case WoodFamily::None:
    case WoodFamily::Western:
      break;
  }
  return WesternSizeFactors(widthRow, thicknessRow, gradeRow);
}

float LoadDurationFactor(int row) { return Factor(kLoadDuration, row); }

float ShearConditionFactor(int row) { return Factor(kShearCondition, row); }

float FlatUseFactor(int widthRow, int thicknessRow) {
  return Factor(kFlatUse, thicknessRow, widthRow);
}

}  // namespace lignara
