#include "glulam/size_and_stability.h"

#include <cmath>
#include <limits>
#include <optional>

#include "app/number_that_fits.h"

namespace lignara {
namespace {

/// Up to a slenderness, its end included, the size factor takes this correction.
struct SizeBand {
  double slenderness;
  double correction;
};
constexpr SizeBand kSizeBands[] = {{7, 1.063},
                                   {14, 1.023},
                                   {21, 1},
                                   {28, 1 - 0.016},
                                   {std::numeric_limits<double>::infinity(), 1 - 0.028}};

double SizeCorrection(const Float32& slenderness) {
  for (const SizeBand& band : kSizeBands) {
    if (slenderness.value() <= band.slenderness) return band.correction;
  }
  return 1;
}

constexpr double kDepthWithoutSizeFactor = 12;  // in
constexpr double kLengthFactor = 1.92;
constexpr double kShortBeam = 100;
constexpr double kLongestBeam = 2500;
constexpr double kMostSlenderColumn = 50;

/// The square of the slenderness of the beam.
std::optional<Float32> BeamSlenderness2(const GlulamSection& section) {
  const std::optional<Float32> effective = NumberThatFits(kLengthFactor * section.feet * 12);
  if (!effective) return std::nullopt;
  return NumberThatFits(*effective * section.depth / Square(section.width));
}

}  // namespace

Float32 SizeFactor(const GlulamSection& section) {
  if (section.depth <= kDepthWithoutSizeFactor) return 1;
  constexpr double kPower = 1.0 / 9.0;
  const Number sides = kDepthWithoutSizeFactor / section.Least();
  const Float32 factor = std::pow(sides.value(), kPower);
  return factor * SizeCorrection(section.Slenderness());
}

StableStress StableBending(const GlulamSection& section, Number f, Number e) {
  const std::optional<Float32> slenderness2 = BeamSlenderness2(section);
  const std::optional<Float32> limit2 = NumberThatFits(3 * e / (5 * f));
  // Without them nothing is known to be safe.
  if (!slenderness2 || !limit2) return {};
  const Number rb2 = *slenderness2;
  if (rb2 <= kShortBeam) return {f};
  if (rb2 <= *limit2) return {f * (1 - 0.333 * Square(rb2 / *limit2))};
  if (rb2 <= kLongestBeam) return {0.4 * e / rb2};
  return {0, true};
}

StableStress ColumnStress(const GlulamSection& section, Number e) {
  const std::optional<Float32> slenderness = NumberThatFits(section.Length() / section.Least());
  if (!slenderness) return {};
  if (*slenderness > kMostSlenderColumn) return {0, true};
  return {0.3 * e / Square(section.Length() / section.depth)};
}

}  // namespace lignara
