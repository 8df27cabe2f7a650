#include "wood/dressed_size.h"

#include <algorithm>
#include <iterator>

namespace lignara {
namespace {

/// A limit on the depth for one width.
struct DepthCondition {
  enum class Is { Above, Below, AtLeast, Any } is;
  int depth = 0;

  bool Holds(int nominalDepth) const {
    switch (is) {
      case Is::Above:
        return nominalDepth > depth;
      case Is::Below:
        return nominalDepth < depth;
      case Is::AtLeast:
        return nominalDepth >= depth;
      case Is::Any:
        break;
    }
    return true;
  }
};

constexpr DepthCondition Above(int depth) { return {DepthCondition::Is::Above, depth}; }
constexpr DepthCondition Below(int depth) { return {DepthCondition::Is::Below, depth}; }
constexpr DepthCondition AtLeast(int depth) { return {DepthCondition::Is::AtLeast, depth}; }
constexpr DepthCondition kOtherwise = {DepthCondition::Is::Any};

struct WidthRow {
  int width;
  DepthCondition condition;
  float dressed;
  std::string_view refusal = "";
};

// clang-format off

// The first row of a width whose condition holds counts. The numbers in the texts are those of
// buttons, not of the limits.
constexpr WidthRow kDressedWidths[] = {
    { 1, Above(12), 0, "Depth must be less than 14 in for width of 1 in"},
    { 1, Below(3),  0, "Depth must be greater than 2 in for width of 1 in"},
    { 1, kOtherwise, 0.75},
    { 2, Above(14), 0, "Depth must be less than 16 in for width of 2 in"},
    { 2, Below(3),  0, "Depth must be greater than 2 in for width of 2 in"},
    { 2, kOtherwise, 1.5},
    { 3, Above(16), 0, "Depth must be less than 18 in for width of 3 in"},
    { 3, kOtherwise, 2.5},
    { 4, Above(16), 0, "Depth must be less than 18 in for width of 4 in"},
    { 4, kOtherwise, 3.5},
    { 6, kOtherwise, 5.5},
    { 8, AtLeast(6), 7.5},
    { 8, kOtherwise, 7.25},
    {10, AtLeast(6), 9.5},
    {10, kOtherwise, 9.25},
    {12, AtLeast(6), 11.5},
    {12, kOtherwise, 11.25},
    {14, Below(2),   0, "Depth must be greater than 1 in for a width of 14 in"},
    {14, AtLeast(6), 13.5},
    {14, kOtherwise, 13.25},
    {16, Below(3),   0, "Depth must be greater than 2 in for a width of 16 in"},
    {16, AtLeast(6), 15.5},
    {16, kOtherwise, 15.25},
    {18, Below(6),   0, "Depth must be greater than 4 in for a width of 18 in"},
    {18, kOtherwise, 17.5},
    {20, Below(6),   0, "Depth must be greater than 4 in for a width of 20 in"},
    {20, kOtherwise, 19.5},
    {22, Below(6),   0, "Depth must be greater than 4 in for a width of 22 in"},
    {22, kOtherwise, 21.5},
    {24, Below(6),   0, "Depth must be greater than 4 in for a width of 24 in"},
    {24, kOtherwise, 23.5},
};

struct DepthRow {
  int depth;
  float narrow;  // nominal width below 6 in
  float wide;    // nominal width of 6 in and more
};

constexpr DepthRow kDressedDepths[] = {
    { 1,  0.75,  0.75},
    { 2,  1.5,   1.5},
    { 3,  2.5,   2.5},
    { 4,  3.5,   3.5},
    { 6,  5.5,   5.5},
    { 8,  7.25,  7.5},
    {10,  9.25,  9.5},
    {12, 11.25, 11.5},
    {14, 13.25, 13.5},
    {16, 15.25, 15.5},
    {18, 17.5,  17.5},
    {20, 19.5,  19.5},
    {22, 21.5,  21.5},
    {24, 23.5,  23.5},
};

// clang-format on

constexpr bool HasRows(int size) {
  const auto isWidth = [size](const WidthRow& row) { return row.width == size; };
  const auto isDepth = [size](const DepthRow& row) { return row.depth == size; };
  return std::any_of(std::begin(kDressedWidths), std::end(kDressedWidths), isWidth) &&
         std::any_of(std::begin(kDressedDepths), std::end(kDressedDepths), isDepth);
}
static_assert(std::all_of(kNominalSizes.begin(), kNominalSizes.end(), HasRows) &&
                  std::size(kDressedDepths) == kNominalSizes.size(),
              "each button of a nominal size has its dressed width and depth");

}  // namespace

DressedWidth FindDressedWidth(int width, int depth) {
  for (const WidthRow& row : kDressedWidths) {
    if (row.width == width && row.condition.Holds(depth)) return {row.dressed, row.refusal};
  }
  return {};
}

float FindDressedDepth(int depth, int width) {
  constexpr int kWide = 6;
  for (const DepthRow& row : kDressedDepths) {
    if (row.depth == depth) return width >= kWide ? row.wide : row.narrow;
  }
  return 0;
}

}  // namespace lignara
