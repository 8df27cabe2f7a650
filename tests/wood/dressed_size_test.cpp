#include "wood/dressed_size.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace lignara {
namespace {

constexpr std::array<int, 14> kSizes = {1, 2, 3, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24};

TEST(DressedSize, Buttons) { EXPECT_EQ(kNominalSizes, kSizes); }

// Which pairs there are: a line a width, a letter a depth in the order of the buttons. "x" refused
// as too deep, "o" refused as too shallow, "." accepted.
constexpr std::array<const char*, 14> kAccepted = {
    // 1 2 3 4 6 8 10 12 14 16 18 20 22 24
    "oo......xxxxxx",  // 1
    "oo.......xxxxx",  // 2
    "..........xxxx",  // 3
    "..........xxxx",  // 4
    "..............",  // 6
    "..............",  // 8
    "..............",  // 10
    "..............",  // 12
    "o.............",  // 14
    "oo............",  // 16
    "oooo..........",  // 18
    "oooo..........",  // 20
    "oooo..........",  // 22
    "oooo..........",  // 24
};

std::string TooDeep(int width) {
  switch (width) {
    case 1:
      return "Depth must be less than 14 in for width of 1 in";
    case 2:
      return "Depth must be less than 16 in for width of 2 in";
    case 3:
      return "Depth must be less than 18 in for width of 3 in";
    default:
      return "Depth must be less than 18 in for width of 4 in";
  }
}

std::string TooShallow(int width) {
  switch (width) {
    case 1:
      return "Depth must be greater than 2 in for width of 1 in";
    case 2:
      return "Depth must be greater than 2 in for width of 2 in";
    case 14:
      return "Depth must be greater than 1 in for a width of 14 in";
    case 16:
      return "Depth must be greater than 2 in for a width of 16 in";
    default:
      return "Depth must be greater than 4 in for a width of " + std::to_string(width) + " in";
  }
}

/// What dressing takes off a width, in hundredths of an inch.
int DressedWidthInHundredths(int width, int depth) {
  if (width == 1) return 75;
  if (width <= 6 || width >= 18) return width * 100 - 50;
  // 8 to 16 in.: timbers lose 1/2 in., but with a depth below 6 in. they count as planks.
  return width * 100 - (depth >= 6 ? 50 : 75);
}

int DressedDepthInHundredths(int depth, int width) {
  if (depth == 1) return 75;
  if (depth <= 6 || depth >= 18) return depth * 100 - 50;
  return depth * 100 - (width >= 6 ? 50 : 75);
}

TEST(DressedSize, All196Pairs) {
  for (std::size_t w = 0; w < kSizes.size(); ++w) {
    for (std::size_t d = 0; d < kSizes.size(); ++d) {
      const int width = kSizes[w];
      const int depth = kSizes[d];
      const DressedWidth dressed = FindDressedWidth(width, depth);
      const char verdict = kAccepted[w][d];
      const std::string refusal = verdict == 'x'   ? TooDeep(width)
                                  : verdict == 'o' ? TooShallow(width)
                                                   : "";
      EXPECT_EQ(dressed.refusal, refusal) << width << " by " << depth;
      if (verdict != '.') continue;
      EXPECT_EQ(dressed.inches * 100, DressedWidthInHundredths(width, depth))
          << width << " by " << depth;
      EXPECT_EQ(FindDressedDepth(depth, width) * 100, DressedDepthInHundredths(depth, width))
          << width << " by " << depth;
    }
  }
}

TEST(DressedSize, DepthsCellByCell) {
  constexpr std::array<float, 14> kNarrow = {0.75F,  1.5F,   2.5F,   3.5F,  5.5F,  7.25F, 9.25F,
                                             11.25F, 13.25F, 15.25F, 17.5F, 19.5F, 21.5F, 23.5F};
  constexpr std::array<float, 14> kWide = {0.75F, 1.5F,  2.5F,  3.5F,  5.5F,  7.5F,  9.5F,
                                           11.5F, 13.5F, 15.5F, 17.5F, 19.5F, 21.5F, 23.5F};
  for (const int width : kSizes) {
    for (std::size_t d = 0; d < kSizes.size(); ++d) {
      EXPECT_EQ(FindDressedDepth(kSizes[d], width), width < 6 ? kNarrow[d] : kWide[d])
          << width << " by " << kSizes[d];
    }
  }
}

struct Pair {
  int width, depth;
  float b, d;
};

TEST(DressedSize, Examples) {
  const Pair pairs[] = {
      {2, 4, 1.5F, 3.5F},    {6, 8, 5.5F, 7.5F},     {4, 8, 3.5F, 7.25F},   {8, 4, 7.25F, 3.5F},
      {8, 6, 7.5F, 5.5F},    {1, 12, 0.75F, 11.25F}, {2, 14, 1.5F, 13.25F}, {3, 16, 2.5F, 15.25F},
      {14, 2, 13.25F, 1.5F}, {24, 24, 23.5F, 23.5F},
  };
  for (const Pair& p : pairs) {
    EXPECT_EQ(FindDressedWidth(p.width, p.depth).refusal, "") << p.width << " by " << p.depth;
    EXPECT_EQ(FindDressedWidth(p.width, p.depth).inches, p.b) << p.width << " by " << p.depth;
    EXPECT_EQ(FindDressedDepth(p.depth, p.width), p.d) << p.width << " by " << p.depth;
  }
}

TEST(DressedSize, SizesWithoutAButtonHaveNone) {
  EXPECT_EQ(FindDressedWidth(5, 8).inches, 0.0F);
  EXPECT_EQ(FindDressedWidth(5, 8).refusal, "");
  EXPECT_EQ(FindDressedDepth(5, 8), 0.0F);
}

}  // namespace
}  // namespace lignara
